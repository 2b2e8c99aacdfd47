"""The whole state of moist air from any two quantities, mixing, and processes of air conditioning."""

from typing import Any, NamedTuple

import numpy as np

from .._labelled import describe
from . import routines as r

__all__ = ["State", "cooled", "heated", "humidified", "mixed", "state"]


class State(NamedTuple):
    """Moist air; single numbers, arrays, or tables and labelled arrays, as they were given.

    As all that has several results it is a named tuple, of which tables are made without more ado. A table of pandas
    has a column for each quantity and the index of the Series given, a data set of xarray dimensions, units and long
    names; single numbers are a row.

    >>> import pandas, xarray
    >>> from quorvel import psychro
    >>> table = pandas.DataFrame({"t": [20.0, 30.0]}, index=["room", "roof"])
    >>> air = psychro.state(t=table.t, rh=50)
    >>> pandas.DataFrame(air._asdict())[["dry_bulb", "dew_point", "pressure"]].round(1)
          dry_bulb  dew_point  pressure
    room      20.0        9.3  101325.0
    roof      30.0       18.4  101325.0
    >>> pandas.DataFrame([psychro.state(t=20, rh=50)])[["dry_bulb", "dew_point"]].round(1)
       dry_bulb  dew_point
    0      20.0        9.3
    >>> air = psychro.state(t=xarray.DataArray([20.0, 30.0], dims="time"), rh=50)
    >>> xarray.Dataset(air._asdict()).enthalpy.attrs["units"]
    'kJ/kg'
    """

    dry_bulb: Any
    """°C"""
    wet_bulb: Any
    """°C, of the psychrometer asked for"""
    relative_humidity: Any
    """%"""
    percentage_saturation: Any
    """%"""
    dew_point: Any
    """°C; of frost below 0 °C"""
    moisture_content: Any
    """kg of vapour per kg of dry air"""
    enthalpy: Any
    """kJ per kg of dry air"""
    vapour_pressure: Any
    """Pa"""
    specific_volume: Any
    """m³ per kg of dry air"""
    density: Any
    """kg of moist air per m³"""
    pressure: Any
    """Pa"""


NAMES = {"t": "dry bulb", "wb": "wet bulb", "rh": "relative humidity", "mu": "percentage saturation", "td": "dew point",
         "g": "moisture content", "h": "enthalpy", "pv": "vapour pressure"}
# Each pair is of one of these and another that follows it, but for those of one group.
ALIKE = ({"td", "g", "pv"}, {"rh", "mu"})

# Vapour pressure or moisture content of air with a dry bulb, by what else is known
WITH_DRY_BULB = {
    "wb": lambda t, wb, p, kind: {"pv": r.vapour_pressure_from_psychrometer(t, wb, p, kind)},
    "rh": lambda t, rh, p, kind: {"pv": r.vapour_pressure(t, rh)},
    "mu": lambda t, mu, p, kind: {"g": r.moisture_content_from_percentage_saturation(t, mu, p)},
    "g": lambda t, g, p, kind: {"g": g},
    "h": lambda t, h, p, kind: {"g": r.moisture_content_from_enthalpy(t, h)},
    "pv": lambda t, pv, p, kind: {"pv": pv},
}
# Dry bulb of air without one
DRY_BULB = {
    ("wb", "rh"): lambda wb, rh, p, kind: r.dry_bulb_from_wet_bulb_and_relative_humidity(wb, rh, p, kind),
    ("wb", "mu"): lambda wb, mu, p, kind: r.dry_bulb_from_wet_bulb_and_percentage_saturation(wb, mu, p, kind),
    ("wb", "g"): lambda wb, g, p, kind: r.dry_bulb_from_wet_bulb_and_moisture_content(wb, g, p, kind),
    ("wb", "h"): lambda wb, h, p, kind: r.dry_bulb_from_wet_bulb_and_enthalpy(wb, h, p, kind),
    ("wb", "pv"): lambda wb, pv, p, kind: r.dry_bulb_from_wet_bulb_and_vapour_pressure(wb, pv, p, kind),
    ("rh", "g"): lambda rh, g, p, kind: r.dry_bulb_from_moisture_content_and_relative_humidity(g, rh, p),
    ("rh", "h"): lambda rh, h, p, kind: r.dry_bulb_from_enthalpy_and_relative_humidity(h, rh, p),
    ("rh", "pv"): lambda rh, pv, p, kind: r.dry_bulb_from_vapour_pressure_and_relative_humidity(pv, rh),
    ("mu", "g"): lambda mu, g, p, kind: r.dry_bulb_from_moisture_content_and_percentage_saturation(g, mu, p),
    ("mu", "h"): lambda mu, h, p, kind: r.dry_bulb_from_enthalpy_and_percentage_saturation(h, mu, p),
    ("mu", "pv"): lambda mu, pv, p, kind: r.dry_bulb_from_vapour_pressure_and_percentage_saturation(pv, mu, p),
    ("g", "h"): lambda g, h, p, kind: r.dry_bulb_from_enthalpy_and_moisture_content(h, g),
    ("h", "pv"): lambda h, pv, p, kind: r.dry_bulb_from_enthalpy_and_vapour_pressure(h, pv, p),
}


def state(*, p: Any = 101325.0, psychrometer: Any = "sling", **known: Any) -> State:
    """The whole state of moist air from any two of its quantities.

    Parameters
    ----------
    t : array_like of float
        Dry-bulb temperature [°C].
    wb : array_like of float
        Wet-bulb temperature [°C].
    rh : array_like of float
        Relative humidity [%].
    mu : array_like of float
        Percentage saturation [%].
    td : array_like of float
        Dew point [°C]; frost point below 0 °C.
    g : array_like of float
        Moisture content [kg/kg of dry air].
    h : array_like of float
        Specific enthalpy [kJ/kg of dry air].
    pv : array_like of float
        Vapour pressure [Pa].
    p : array_like of float, optional
        Atmospheric pressure [Pa].
    psychrometer : Psychrometer or its name, optional
        What measures the wet bulb, "sling" or "screen".

    Returns
    -------
    State
        All of these, and density and specific volume.

    Raises
    ------
    TypeError
        Unless exactly two quantities are given; or for two that say the same: dew point, moisture content and
        vapour pressure are one quantity at a pressure but for some 0.5 %, relative humidity and percentage
        saturation at a temperature.

    Notes
    -----
    A dry bulb that is not given is searched for, where it cannot be solved for; the notes of the functions
    `dry_bulb_from_…` say how closely, and what a pair gets that no air has. All is worked out from dry bulb and
    moisture, so what is limited comes back limited: 100 % for a relative humidity of 150 %.

    Wet bulb and enthalpy run nearly side by side: from the two of them, a wet bulb that is wrong by 0.1 K makes some
    kelvins of dry bulb. The wet bulb is the reading of a psychrometer, up to 0.2 K above that of adiabatic saturation.

    Examples
    --------
    >>> from quorvel import psychro
    >>> air = psychro.state(t=25, rh=50)
    >>> print(f"{air.moisture_content:.4f} kg/kg, {air.enthalpy:.1f} kJ/kg, {air.wet_bulb:.1f} °C, {air.dew_point:.1f} °C")
    0.0099 kg/kg, 50.4 kJ/kg, 18.0 °C, 13.9 °C
    """
    given = {name: _single(known[name]) for name in NAMES if known.get(name) is not None}
    _check(given, known)
    p = _single(p)
    if "td" in given:  # from here on a vapour pressure
        given["pv"] = r.saturation_pressure(given.pop("td"))
    given = {name: given[name] for name in NAMES if name in given}
    if "t" not in given:
        given["t"] = DRY_BULB[tuple(given)](*given.values(), p, psychrometer)
    other = next(name for name in ("pv", "g", "rh", "mu", "h", "wb") if name in given)
    return _complete(given["t"], WITH_DRY_BULB[other](given["t"], given[other], p, psychrometer), p, psychrometer)


def mixed(first: State, second: State, first_flow: Any = 1.0, second_flow: Any = 1.0) -> State:
    """Two streams of air that become one, without heat from outside.

    Parameters
    ----------
    first, second : State
        At the same pressure, which is not checked.
    first_flow, second_flow : array_like of float, optional
        Mass flows of dry air, in any unit.

    Returns
    -------
    State
        Saturated air with the mixture's enthalpy and moisture may be mist: its relative humidity is above 100 %.

    Examples
    --------
    >>> from quorvel import psychro
    >>> outdoors, indoors = psychro.state(t=0, rh=90), psychro.state(t=22, rh=45)
    >>> print(f"{psychro.mixed(outdoors, indoors, 1, 3).dry_bulb:.1f} °C")
    16.5 °C
    """
    mixture = r.adiabatic_mixing(first_flow, first.dry_bulb, first.moisture_content,
                                 second_flow, second.dry_bulb, second.moisture_content)
    return state(t=mixture.dry_bulb, g=mixture.moisture_content, p=first.pressure)


def heated(air: State, t: Any) -> State:
    """Air brought to a dry bulb without moisture given or taken; to cool it above its dew point likewise.

    The heat is the difference of the enthalpies [kJ/kg of dry air]. Below the dew point it gives mist, of more than
    100 %; there a coil dries the air: see `cooled`.
    """
    return state(t=t, g=air.moisture_content, p=air.pressure)


def cooled(air: State, t: Any, coil_temperature: Any) -> State:
    """Air cooled to a dry bulb by a coil whose surface is at a temperature, in the mean.

    Parameters
    ----------
    air : State
    t : array_like of float
        Dry bulb behind the coil [°C], between those of the coil and the air.
    coil_temperature : array_like of float
        Mean temperature of the wet surface, the apparatus dew point [°C].

    Returns
    -------
    State
        On the straight line from the air to saturated air at the coil, as if a part of the air took on the state
        of the surface and the rest passed by. Above the air's dew point the coil stays dry.
    """
    saturated = state(t=coil_temperature, rh=100.0, p=air.pressure)
    t, coil_temperature = _single(t), _single(coil_temperature)
    touching = (air.dry_bulb - t) / (air.dry_bulb - coil_temperature)
    surplus = air.moisture_content - saturated.moisture_content
    condensed = touching * surplus * (surplus > 0)
    return state(t=t, g=air.moisture_content - condensed, p=air.pressure)


def humidified(air: State, rh: Any, by: str = "water") -> State:
    """Air brought to a higher relative humidity [%] by water, along its wet bulb, or by steam, at its dry bulb.

    Water of the wet bulb's temperature, finely sprayed, takes the heat that evaporates it from the air; steam near
    100 °C brings its own, and changes the dry bulb by less than a kelvin, which is neglected.
    """
    if by == "water":
        wet_bulb = r.wet_bulb(air.dry_bulb, air.vapour_pressure, air.pressure, "sling")
        return state(wb=wet_bulb, rh=rh, p=air.pressure)
    if by == "steam":
        return state(t=air.dry_bulb, rh=rh, p=air.pressure)
    raise ValueError(f"by must be 'water' or 'steam', not {by!r}")


def _check(given, known):
    unknown = [name for name in known if name not in NAMES]
    names = ", ".join(f"{short} ({long})" for short, long in NAMES.items())
    if unknown:
        raise TypeError(f"state: {unknown[0]} is none of {names}")
    if len(given) != 2:
        raise TypeError(f"state: two quantities are needed, not {len(given)}, of {names}")
    if any(set(given) <= alike for alike in ALIKE):
        first, second = (NAMES[name] for name in given)
        raise TypeError(f"state: {first} and {second} say the same; give a temperature, say, with one of them")


def _single(value):
    """In single precision; a list as an array."""
    return value.astype(np.float32) if hasattr(value, "astype") else np.asarray(value, np.float32)[()]


def _described(value, name):
    """An array of xarray with the unit of that quantity, of which there may be none yet where it was given."""
    if hasattr(value, "dims"):
        from ..catalogue import ROUTINES

        arguments = (*ROUTINES["percentage_saturation"].inputs, *ROUTINES["relative_humidity"].inputs)
        describe(value, next(argument for argument in arguments if argument.name == name))
    return value


def _complete(t, humidity, p, psychrometer):
    """All quantities from dry bulb, and vapour pressure or moisture content."""
    t, p = _described(t, "dry_bulb"), _described(p, "pressure")
    g = humidity["g"] if "g" in humidity else r.moisture_content(t, humidity["pv"], p)
    pv = humidity["pv"] if "pv" in humidity else r.vapour_pressure_from_moisture_content(t, g, p)
    return State(
        dry_bulb=t,
        wet_bulb=r.wet_bulb(t, pv, p, psychrometer),
        relative_humidity=r.relative_humidity(t, pv),
        percentage_saturation=r.percentage_saturation(t, g, p),
        dew_point=r.dew_point(pv),
        moisture_content=_described(g, "moisture_content"),
        enthalpy=r.specific_enthalpy(t, g),
        vapour_pressure=_described(pv, "vapour_pressure"),
        specific_volume=r.specific_volume(t, g, p),
        density=r.moist_air_density(t, g, p),
        pressure=p,
    )
