"""Moist air: the routines of the library, element by element."""

# Produced from the catalogue of routines (catalogue/); do not edit.

from collections import namedtuple

from .._core import functions
from ..selectors import Psychrometer

_new = tuple.__new__  # a third of the time of _make

__all__ = [
    "Psychrometer",
    "AdiabaticMixing",
    "PoolEvaporation",
    "PoolEvaporationFromWetBulb",
    "dry_air_enthalpy",
    "water_vapour_enthalpy",
    "dry_air_specific_heat",
    "water_vapour_specific_heat",
    "latent_heat",
    "dry_bulb_from_vapour_pressure_and_relative_humidity",
    "dry_bulb_from_vapour_pressure_and_percentage_saturation",
    "dry_bulb_from_moisture_content_and_relative_humidity",
    "dry_bulb_from_moisture_content_and_percentage_saturation",
    "dry_bulb_from_enthalpy_and_moisture_content",
    "dry_bulb_from_enthalpy_and_vapour_pressure",
    "dry_bulb_from_enthalpy_and_relative_humidity",
    "dry_bulb_from_enthalpy_and_percentage_saturation",
    "dry_bulb_from_wet_bulb_and_vapour_pressure",
    "dry_bulb_from_wet_bulb_and_moisture_content",
    "dry_bulb_from_wet_bulb_and_relative_humidity",
    "dry_bulb_from_wet_bulb_and_percentage_saturation",
    "dry_bulb_from_wet_bulb_and_enthalpy",
    "adiabatic_mixing",
    "moisture_content_from_psychrometer",
    "moisture_content",
    "vapour_pressure_from_moisture_content",
    "moisture_content_from_percentage_saturation",
    "moisture_content_from_enthalpy",
    "moist_air_density",
    "percentage_saturation",
    "specific_enthalpy",
    "specific_enthalpy_from_psychrometer",
    "specific_volume",
    "saturation_temperature_from_enthalpy",
    "pool_evaporation",
    "pool_evaporation_from_wet_bulb",
    "saturation_pressure",
    "dew_point",
    "vapour_pressure",
    "relative_humidity",
    "vapour_pressure_from_psychrometer",
    "weighted_temperature",
    "psychrometer_wet_bulb",
    "wet_bulb_from_percentage_saturation",
    "wet_bulb_from_moisture_content",
    "wet_bulb",
]

_dry_air_enthalpy = functions["dry_air_enthalpy"]
_water_vapour_enthalpy = functions["water_vapour_enthalpy"]
_dry_air_specific_heat = functions["dry_air_specific_heat"]
_water_vapour_specific_heat = functions["water_vapour_specific_heat"]
_latent_heat = functions["latent_heat"]
_dry_bulb_from_vapour_pressure_and_relative_humidity = functions["dry_bulb_from_vapour_pressure_and_relative_humidity"]
_dry_bulb_from_vapour_pressure_and_percentage_saturation = functions["dry_bulb_from_vapour_pressure_and_percentage_saturation"]
_dry_bulb_from_moisture_content_and_relative_humidity = functions["dry_bulb_from_moisture_content_and_relative_humidity"]
_dry_bulb_from_moisture_content_and_percentage_saturation = functions["dry_bulb_from_moisture_content_and_percentage_saturation"]
_dry_bulb_from_enthalpy_and_moisture_content = functions["dry_bulb_from_enthalpy_and_moisture_content"]
_dry_bulb_from_enthalpy_and_vapour_pressure = functions["dry_bulb_from_enthalpy_and_vapour_pressure"]
_dry_bulb_from_enthalpy_and_relative_humidity = functions["dry_bulb_from_enthalpy_and_relative_humidity"]
_dry_bulb_from_enthalpy_and_percentage_saturation = functions["dry_bulb_from_enthalpy_and_percentage_saturation"]
_dry_bulb_from_wet_bulb_and_vapour_pressure = functions["dry_bulb_from_wet_bulb_and_vapour_pressure"]
_dry_bulb_from_wet_bulb_and_moisture_content = functions["dry_bulb_from_wet_bulb_and_moisture_content"]
_dry_bulb_from_wet_bulb_and_relative_humidity = functions["dry_bulb_from_wet_bulb_and_relative_humidity"]
_dry_bulb_from_wet_bulb_and_percentage_saturation = functions["dry_bulb_from_wet_bulb_and_percentage_saturation"]
_dry_bulb_from_wet_bulb_and_enthalpy = functions["dry_bulb_from_wet_bulb_and_enthalpy"]
_adiabatic_mixing = functions["adiabatic_mixing"]
_moisture_content_from_psychrometer = functions["moisture_content_from_psychrometer"]
_moisture_content = functions["moisture_content"]
_vapour_pressure_from_moisture_content = functions["vapour_pressure_from_moisture_content"]
_moisture_content_from_percentage_saturation = functions["moisture_content_from_percentage_saturation"]
_moisture_content_from_enthalpy = functions["moisture_content_from_enthalpy"]
_moist_air_density = functions["moist_air_density"]
_percentage_saturation = functions["percentage_saturation"]
_specific_enthalpy = functions["specific_enthalpy"]
_specific_enthalpy_from_psychrometer = functions["specific_enthalpy_from_psychrometer"]
_specific_volume = functions["specific_volume"]
_saturation_temperature_from_enthalpy = functions["saturation_temperature_from_enthalpy"]
_pool_evaporation = functions["pool_evaporation"]
_pool_evaporation_from_wet_bulb = functions["pool_evaporation_from_wet_bulb"]
_saturation_pressure = functions["saturation_pressure"]
_dew_point = functions["dew_point"]
_vapour_pressure = functions["vapour_pressure"]
_relative_humidity = functions["relative_humidity"]
_vapour_pressure_from_psychrometer = functions["vapour_pressure_from_psychrometer"]
_weighted_temperature = functions["weighted_temperature"]
_psychrometer_wet_bulb = functions["psychrometer_wet_bulb"]
_wet_bulb_from_percentage_saturation = functions["wet_bulb_from_percentage_saturation"]
_wet_bulb_from_moisture_content = functions["wet_bulb_from_moisture_content"]
_wet_bulb = functions["wet_bulb"]


AdiabaticMixing = namedtuple("AdiabaticMixing", "dry_bulb moisture_content enthalpy")
AdiabaticMixing.__doc__ = """What adiabatic_mixing returns.

    dry_bulb: dry-bulb temperature of the mixture [°C]
    moisture_content: moisture content of the mixture [kg/kg]
    enthalpy: specific enthalpy of the mixture, by mass of dry air [kJ/kg]
"""

PoolEvaporation = namedtuple("PoolEvaporation", "evaporation_rate latent_load convective_load reference_load")
PoolEvaporation.__doc__ = """What pool_evaporation returns.

    evaporation_rate: evaporation rate [kg/(m²s)]
    latent_load: latent load, 2.45 MJ per kg evaporated [W]
    convective_load: convection from the water to the room air at 10 W/m²K [W]
    reference_load: exchange of the water with the second reference temperature [W]
"""

PoolEvaporationFromWetBulb = namedtuple("PoolEvaporationFromWetBulb", "evaporation_rate latent_load convective_load reference_load")
PoolEvaporationFromWetBulb.__doc__ = """What pool_evaporation_from_wet_bulb returns.

    evaporation_rate: evaporation rate [kg/(m²s)]
    latent_load: latent load, 2.45 MJ per kg evaporated [W]
    convective_load: convection from the water to the room air at 10 W/m²K [W]
    reference_load: exchange of the water with the second reference temperature [W]
"""

def dry_air_enthalpy(temperature, *, out=None, where=True):
    """Specific enthalpy of dry air.

    Parameters
    ----------
    temperature : array_like of float
        Temperature [°C]; valid -50 to 100.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    enthalpy : float32
        Specific enthalpy, 0 at 0 °C [kJ/kg].

    Notes
    -----
    Formula: 0.00071035 + 1.0058 t + 1.7139e-5 t^2 - 7.7976e-7 t^3 + 2.2256e-8 t^4 - 1.691e-10 t^5,
    t = temperature

    Within 0.02 kJ/kg of the ASHRAE tables from -20 to 50 °C, but 0.3 above them at -50 °C.

    At 0 °C it is 0.0007 kJ/kg: the constant of the fit is deliberate.

    Each element has the bits of PSHDRY in quorvel.h.

    References
    ----------
    Polynomial fit to tables of dry air; its author is not known.

    Examples
    --------
    >>> from quorvel.psychro import dry_air_enthalpy
    >>> result = dry_air_enthalpy(temperature=20)
    >>> bool(abs(result - 20.12) <= 0.05)
    True

    (1.006 kJ/kgK)
    """
    return _dry_air_enthalpy(temperature, out, where)


def water_vapour_enthalpy(temperature, *, out=None, where=True):
    """Specific enthalpy of water vapour.

    Parameters
    ----------
    temperature : array_like of float
        Temperature [°C]; valid -50 to 100.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    enthalpy : float32
        Specific enthalpy, from liquid water at 0 °C [kJ/kg].

    Notes
    -----
    Formula: 2500.9 + 1.8439 t + 2.5285e-5 t^2 - 1.6297e-5 t^3 + 5.8962e-9 t^4 + 1.248e-9 t^5, t =
    temperature

    Within 0.5 kJ/kg of saturated steam from 0 to 60 °C (IAPWS 1995), within 7 at 100 °C.

    Each element has the bits of PSHVAP in quorvel.h.

    References
    ----------
    Polynomial fit to tables of water vapour; its author is not known.

    Examples
    --------
    >>> from quorvel.psychro import water_vapour_enthalpy
    >>> result = water_vapour_enthalpy(temperature=20)
    >>> bool(abs(result - 2537.4) <= 0.5)
    True

    (saturated steam, IAPWS 1995)
    """
    return _water_vapour_enthalpy(temperature, out, where)


def dry_air_specific_heat(temperature, *, out=None, where=True):
    """Specific heat of dry air at constant pressure.

    Parameters
    ----------
    temperature : array_like of float
        Temperature [°C]; valid -50 to 100.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    specific_heat : float32
        Specific heat [kJ/kgK].

    Notes
    -----
    The pieces meet, but for steps of 0.00004 kJ/kgK up at 40 °C and down at 50 °C, which are
    deliberate.

    Each element has the bits of PSCPDR in quorvel.h.

    References
    ----------
    Straight lines between tabulated values for each 10 K; the author of the table is not known.

    Examples
    --------
    >>> from quorvel.psychro import dry_air_specific_heat
    >>> result = dry_air_specific_heat(temperature=20)
    >>> bool(abs(result - 1.006) <= 0.002)
    True

    (properties of dry air)
    """
    return _dry_air_specific_heat(temperature, out, where)


def water_vapour_specific_heat(temperature, *, out=None, where=True):
    """Specific heat of water vapour at constant pressure.

    Parameters
    ----------
    temperature : array_like of float
        Temperature [°C]; valid -50 to 100.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    specific_heat : float32
        Specific heat [kJ/kgK].

    Notes
    -----
    Formula: 1.7 + 0.01 temperature, at most 1.9

    Constant from 20 °C up.

    Each element has the bits of PSCPVA in quorvel.h.

    References
    ----------
    Rounded engineering values; their author is not known.

    Examples
    --------
    >>> from quorvel.psychro import water_vapour_specific_heat
    >>> result = water_vapour_specific_heat(temperature=25)
    >>> bool(abs(result - 1.912) <= 0.015)
    True

    (saturated steam, IAPWS 1995)
    """
    return _water_vapour_specific_heat(temperature, out, where)


def latent_heat(temperature, *, out=None, where=True):
    """Latent heat of evaporation of water, of sublimation of ice below 0 °C.

    Parameters
    ----------
    temperature : array_like of float
        Temperature [°C]; valid -50 to 100.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    enthalpy : float32
        Latent heat [kJ/kg].

    Notes
    -----
    At exactly 60 °C the result is 0: the table's row for it is empty, which is deliberate. Just
    below and above, it is 2357.9.

    Within 0.5 kJ/kg of the international values (IAPWS 1995) from 0 to 60 °C.

    Each element has the bits of PSHFG in quorvel.h.

    References
    ----------
    Straight lines between tabulated values for each 10 K; the author of the table is not known.

    Examples
    --------
    >>> from quorvel.psychro import latent_heat
    >>> result = latent_heat(temperature=20)
    >>> bool(abs(result - 2453.5) <= 0.5)
    True

    (evaporation, IAPWS 1995)
    """
    return _latent_heat(temperature, out, where)


def dry_bulb_from_vapour_pressure_and_relative_humidity(vapour_pressure, relative_humidity, *, out=None, where=True):
    """Dry bulb of air with a vapour pressure and relative humidity.

    Parameters
    ----------
    vapour_pressure : array_like of float
        Vapour pressure [Pa]; valid from 0.
    relative_humidity : array_like of float
        Relative humidity [%]; valid 0 to 100.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    dry_bulb : float32
        Dry-bulb temperature [°C].

    Notes
    -----
    Formula: rh / 100 ps(t) = pv

    Found from -200 to 400 °C; where there is none, as for arguments out of range, the result is not
    a number.

    Relative humidity is limited to 0 to 100 %, not rejected; 0 % gives not a number.

    References
    ----------
    The dew point of saturated air of that temperature, by dew_point.

    Examples
    --------
    >>> from quorvel.psychro import dry_bulb_from_vapour_pressure_and_relative_humidity
    >>> result = dry_bulb_from_vapour_pressure_and_relative_humidity(vapour_pressure=1584.95,
    ...     relative_humidity=50)
    >>> bool(abs(result - 25) <= 0.15)
    True

    (air of 25 °C and 50 %: pv = 3169.9 / 2 Pa, g = 0.622 1.0045 pv / (p - 1.0045 pv), h = 1.006 t +
    g (2501 + 1.86 t))
    """
    return _dry_bulb_from_vapour_pressure_and_relative_humidity(vapour_pressure, relative_humidity, out, where)


def dry_bulb_from_vapour_pressure_and_percentage_saturation(vapour_pressure, percentage_saturation, pressure, *, out=None, where=True):
    """Dry bulb of air with a vapour pressure and percentage saturation.

    Parameters
    ----------
    vapour_pressure : array_like of float
        Vapour pressure [Pa]; valid from 0.
    percentage_saturation : array_like of float
        Percentage saturation [%]; valid 0 to 100.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    dry_bulb : float32
        Dry-bulb temperature [°C].

    Notes
    -----
    Formula: percentage / 100 gs(t, p) = moisture_content(t, pv, p)

    Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not
    a number.

    Up to where water boils at the atmospheric pressure. The percentage is not limited.

    References
    ----------
    Newton's method in double precision on the equations of the routines named.

    Examples
    --------
    >>> from quorvel.psychro import dry_bulb_from_vapour_pressure_and_percentage_saturation
    >>> result = dry_bulb_from_vapour_pressure_and_percentage_saturation(vapour_pressure=1584.95,
    ...     percentage_saturation=49.22, pressure=101325)
    >>> bool(abs(result - 25) <= 0.15)
    True

    (air of 25 °C and 50 %: pv = 3169.9 / 2 Pa, g = 0.622 1.0045 pv / (p - 1.0045 pv), h = 1.006 t +
    g (2501 + 1.86 t))
    """
    return _dry_bulb_from_vapour_pressure_and_percentage_saturation(vapour_pressure, percentage_saturation, pressure, out, where)


def dry_bulb_from_moisture_content_and_relative_humidity(moisture_content, relative_humidity, pressure, *, out=None, where=True):
    """Dry bulb of air with a moisture content and relative humidity.

    Parameters
    ----------
    moisture_content : array_like of float
        Moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1.
    relative_humidity : array_like of float
        Relative humidity [%]; valid 0 to 100.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    dry_bulb : float32
        Dry-bulb temperature [°C].

    Notes
    -----
    Formula: rh / 100 ps(t) = vapour_pressure_from_moisture_content(t, g, p)

    Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not
    a number.

    Relative humidity is limited to 0 to 100 %, not rejected; 0 % gives not a number.

    References
    ----------
    Newton's method in double precision on the equations of the routines named.

    Examples
    --------
    >>> from quorvel.psychro import dry_bulb_from_moisture_content_and_relative_humidity
    >>> result = dry_bulb_from_moisture_content_and_relative_humidity(moisture_content=0.009929,
    ...     relative_humidity=50, pressure=101325)
    >>> bool(abs(result - 25) <= 0.15)
    True

    (air of 25 °C and 50 %: pv = 3169.9 / 2 Pa, g = 0.622 1.0045 pv / (p - 1.0045 pv), h = 1.006 t +
    g (2501 + 1.86 t))
    """
    return _dry_bulb_from_moisture_content_and_relative_humidity(moisture_content, relative_humidity, pressure, out, where)


def dry_bulb_from_moisture_content_and_percentage_saturation(moisture_content, percentage_saturation, pressure, *, out=None, where=True):
    """Dry bulb of air with a moisture content and percentage saturation.

    Parameters
    ----------
    moisture_content : array_like of float
        Moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1.
    percentage_saturation : array_like of float
        Percentage saturation [%]; valid 0 to 100.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    dry_bulb : float32
        Dry-bulb temperature [°C].

    Notes
    -----
    Formula: percentage / 100 gs(t, p) = g

    Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not
    a number.

    Up to where water boils at the atmospheric pressure. The percentage is not limited.

    References
    ----------
    Newton's method in double precision on the equations of the routines named.

    Examples
    --------
    >>> from quorvel.psychro import dry_bulb_from_moisture_content_and_percentage_saturation
    >>> result = dry_bulb_from_moisture_content_and_percentage_saturation(moisture_content=0.009929,
    ...     percentage_saturation=49.22, pressure=101325)
    >>> bool(abs(result - 25) <= 0.15)
    True

    (air of 25 °C and 50 %: pv = 3169.9 / 2 Pa, g = 0.622 1.0045 pv / (p - 1.0045 pv), h = 1.006 t +
    g (2501 + 1.86 t))
    """
    return _dry_bulb_from_moisture_content_and_percentage_saturation(moisture_content, percentage_saturation, pressure, out, where)


def dry_bulb_from_enthalpy_and_moisture_content(enthalpy, moisture_content, *, out=None, where=True):
    """Dry bulb of air with a specific enthalpy and moisture content.

    Parameters
    ----------
    enthalpy : array_like of float
        Specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460.
    moisture_content : array_like of float
        Moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    dry_bulb : float32
        Dry-bulb temperature [°C].

    Notes
    -----
    Formula: ha(t) + g hv(t) = h

    Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not
    a number.

    The enthalpies hold from -50 to 100 °C.

    References
    ----------
    Newton's method in double precision on the equations of the routines named.

    Examples
    --------
    >>> from quorvel.psychro import dry_bulb_from_enthalpy_and_moisture_content
    >>> result = dry_bulb_from_enthalpy_and_moisture_content(enthalpy=50.44,
    ...     moisture_content=0.009929)
    >>> bool(abs(result - 25) <= 0.1)
    True

    (air of 25 °C and 50 %: pv = 3169.9 / 2 Pa, g = 0.622 1.0045 pv / (p - 1.0045 pv), h = 1.006 t +
    g (2501 + 1.86 t))
    """
    return _dry_bulb_from_enthalpy_and_moisture_content(enthalpy, moisture_content, out, where)


def dry_bulb_from_enthalpy_and_vapour_pressure(enthalpy, vapour_pressure, pressure, *, out=None, where=True):
    """Dry bulb of air with a specific enthalpy and vapour pressure.

    Parameters
    ----------
    enthalpy : array_like of float
        Specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460.
    vapour_pressure : array_like of float
        Vapour pressure [Pa]; valid from 0.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    dry_bulb : float32
        Dry-bulb temperature [°C].

    Notes
    -----
    Formula: moisture_content_from_enthalpy(t, h) = moisture_content(t, pv, p)

    Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not
    a number.

    The enthalpies hold from -50 to 100 °C.

    References
    ----------
    Newton's method in double precision on the equations of the routines named.

    Examples
    --------
    >>> from quorvel.psychro import dry_bulb_from_enthalpy_and_vapour_pressure
    >>> result = dry_bulb_from_enthalpy_and_vapour_pressure(enthalpy=50.44, vapour_pressure=1584.95,
    ...     pressure=101325)
    >>> bool(abs(result - 25) <= 0.1)
    True

    (air of 25 °C and 50 %: pv = 3169.9 / 2 Pa, g = 0.622 1.0045 pv / (p - 1.0045 pv), h = 1.006 t +
    g (2501 + 1.86 t))
    """
    return _dry_bulb_from_enthalpy_and_vapour_pressure(enthalpy, vapour_pressure, pressure, out, where)


def dry_bulb_from_enthalpy_and_relative_humidity(enthalpy, relative_humidity, pressure, *, out=None, where=True):
    """Dry bulb of air with a specific enthalpy and relative humidity.

    Parameters
    ----------
    enthalpy : array_like of float
        Specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460.
    relative_humidity : array_like of float
        Relative humidity [%]; valid 0 to 100.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    dry_bulb : float32
        Dry-bulb temperature [°C].

    Notes
    -----
    Formula: moisture_content_from_enthalpy(t, h) = moisture_content(t, rh / 100 ps(t), p)

    Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not
    a number.

    The enthalpies hold from -50 to 100 °C.

    Relative humidity is limited to 0 to 100 %, not rejected.

    References
    ----------
    Newton's method in double precision on the equations of the routines named.

    Examples
    --------
    >>> from quorvel.psychro import dry_bulb_from_enthalpy_and_relative_humidity
    >>> result = dry_bulb_from_enthalpy_and_relative_humidity(enthalpy=50.44, relative_humidity=50,
    ...     pressure=101325)
    >>> bool(abs(result - 25) <= 0.15)
    True

    (air of 25 °C and 50 %: pv = 3169.9 / 2 Pa, g = 0.622 1.0045 pv / (p - 1.0045 pv), h = 1.006 t +
    g (2501 + 1.86 t))
    """
    return _dry_bulb_from_enthalpy_and_relative_humidity(enthalpy, relative_humidity, pressure, out, where)


def dry_bulb_from_enthalpy_and_percentage_saturation(enthalpy, percentage_saturation, pressure, *, out=None, where=True):
    """Dry bulb of air with a specific enthalpy and percentage saturation.

    Parameters
    ----------
    enthalpy : array_like of float
        Specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460.
    percentage_saturation : array_like of float
        Percentage saturation [%]; valid 0 to 100.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    dry_bulb : float32
        Dry-bulb temperature [°C].

    Notes
    -----
    Formula: moisture_content_from_enthalpy(t, h) = percentage / 100 gs(t, p)

    Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not
    a number.

    The enthalpies hold from -50 to 100 °C.

    Up to where water boils at the atmospheric pressure. The percentage is not limited.

    References
    ----------
    Newton's method in double precision on the equations of the routines named.

    Examples
    --------
    >>> from quorvel.psychro import dry_bulb_from_enthalpy_and_percentage_saturation
    >>> result = dry_bulb_from_enthalpy_and_percentage_saturation(enthalpy=50.44,
    ...     percentage_saturation=49.22, pressure=101325)
    >>> bool(abs(result - 25) <= 0.15)
    True

    (air of 25 °C and 50 %: pv = 3169.9 / 2 Pa, g = 0.622 1.0045 pv / (p - 1.0045 pv), h = 1.006 t +
    g (2501 + 1.86 t))
    """
    return _dry_bulb_from_enthalpy_and_percentage_saturation(enthalpy, percentage_saturation, pressure, out, where)


def dry_bulb_from_wet_bulb_and_vapour_pressure(wet_bulb, vapour_pressure, pressure, psychrometer, *, out=None, where=True):
    """Dry bulb of air with a wet bulb and vapour pressure.

    Parameters
    ----------
    wet_bulb : array_like of float
        Wet-bulb temperature [°C]; valid -100 to 200.
    vapour_pressure : array_like of float
        Vapour pressure [Pa]; valid from 0.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    psychrometer : Psychrometer, or array_like of its names or numbers
        Psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated).
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    dry_bulb : float32
        Dry-bulb temperature [°C].

    Notes
    -----
    Formula: t = twb + (ps(twb) - pv) / (A p)

    A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.

    A psychrometer type below 1 counts as 1, above 2 as 2.

    References
    ----------
    Psychrometer equation of vapour_pressure_from_psychrometer, solved for the dry bulb.

    Examples
    --------
    >>> from quorvel.psychro import Psychrometer, dry_bulb_from_wet_bulb_and_vapour_pressure
    >>> result = dry_bulb_from_wet_bulb_and_vapour_pressure(wet_bulb=17.96, vapour_pressure=1584.95,
    ...     pressure=101325, psychrometer=Psychrometer.sling)
    >>> bool(abs(result - 25) <= 0.15)
    True

    (air of 25 °C and 50 %: pv = 3169.9 / 2 Pa, g = 0.622 1.0045 pv / (p - 1.0045 pv); 2059.7 Pa at
    the wet bulb less 0.000666 p (25 - 17.96); h = 1.006 t + g (2501 + 1.86 t))
    """
    return _dry_bulb_from_wet_bulb_and_vapour_pressure(wet_bulb, vapour_pressure, pressure, psychrometer, out, where)


def dry_bulb_from_wet_bulb_and_moisture_content(wet_bulb, moisture_content, pressure, psychrometer, *, out=None, where=True):
    """Dry bulb of air with a wet bulb and moisture content.

    Parameters
    ----------
    wet_bulb : array_like of float
        Wet-bulb temperature [°C]; valid -100 to 200.
    moisture_content : array_like of float
        Moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    psychrometer : Psychrometer, or array_like of its names or numbers
        Psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated).
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    dry_bulb : float32
        Dry-bulb temperature [°C].

    Notes
    -----
    Formula: vapour_pressure_from_psychrometer(t, twb, p) = vapour_pressure_from_moisture_content(t,
    g, p)

    Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not
    a number.

    A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.

    A psychrometer type below 1 counts as 1, above 2 as 2.

    References
    ----------
    Newton's method in double precision on the equations of the routines named.

    Examples
    --------
    >>> from quorvel.psychro import Psychrometer, dry_bulb_from_wet_bulb_and_moisture_content
    >>> result = dry_bulb_from_wet_bulb_and_moisture_content(wet_bulb=17.96,
    ...     moisture_content=0.009929, pressure=101325, psychrometer=Psychrometer.sling)
    >>> bool(abs(result - 25) <= 0.15)
    True

    (air of 25 °C and 50 %: pv = 3169.9 / 2 Pa, g = 0.622 1.0045 pv / (p - 1.0045 pv); 2059.7 Pa at
    the wet bulb less 0.000666 p (25 - 17.96); h = 1.006 t + g (2501 + 1.86 t))
    """
    return _dry_bulb_from_wet_bulb_and_moisture_content(wet_bulb, moisture_content, pressure, psychrometer, out, where)


def dry_bulb_from_wet_bulb_and_relative_humidity(wet_bulb, relative_humidity, pressure, psychrometer, *, out=None, where=True):
    """Dry bulb of air with a wet bulb and relative humidity.

    Parameters
    ----------
    wet_bulb : array_like of float
        Wet-bulb temperature [°C]; valid -100 to 200.
    relative_humidity : array_like of float
        Relative humidity [%]; valid 0 to 100.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    psychrometer : Psychrometer, or array_like of its names or numbers
        Psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated).
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    dry_bulb : float32
        Dry-bulb temperature [°C].

    Notes
    -----
    Formula: vapour_pressure_from_psychrometer(t, twb, p) = rh / 100 ps(t)

    Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not
    a number.

    Relative humidity is limited to 0 to 100 %, not rejected.

    A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.

    A psychrometer type below 1 counts as 1, above 2 as 2.

    References
    ----------
    Newton's method in double precision on the equations of the routines named.

    Examples
    --------
    >>> from quorvel.psychro import Psychrometer, dry_bulb_from_wet_bulb_and_relative_humidity
    >>> result = dry_bulb_from_wet_bulb_and_relative_humidity(wet_bulb=17.96, relative_humidity=50,
    ...     pressure=101325, psychrometer=Psychrometer.sling)
    >>> bool(abs(result - 25) <= 0.15)
    True

    (air of 25 °C and 50 %: pv = 3169.9 / 2 Pa, g = 0.622 1.0045 pv / (p - 1.0045 pv); 2059.7 Pa at
    the wet bulb less 0.000666 p (25 - 17.96); h = 1.006 t + g (2501 + 1.86 t))
    """
    return _dry_bulb_from_wet_bulb_and_relative_humidity(wet_bulb, relative_humidity, pressure, psychrometer, out, where)


def dry_bulb_from_wet_bulb_and_percentage_saturation(wet_bulb, percentage_saturation, pressure, psychrometer, *, out=None, where=True):
    """Dry bulb of air with a wet bulb and percentage saturation.

    Parameters
    ----------
    wet_bulb : array_like of float
        Wet-bulb temperature [°C]; valid -100 to 200.
    percentage_saturation : array_like of float
        Percentage saturation [%]; valid 0 to 100.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    psychrometer : Psychrometer, or array_like of its names or numbers
        Psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated).
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    dry_bulb : float32
        Dry-bulb temperature [°C].

    Notes
    -----
    Formula: moisture_content_from_psychrometer(t, twb, p) = percentage / 100 gs(t, p)

    Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not
    a number.

    Up to where water boils at the atmospheric pressure. The percentage is not limited.

    A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.

    A psychrometer type below 1 counts as 1, above 2 as 2.

    References
    ----------
    Newton's method in double precision on the equations of the routines named.

    Examples
    --------
    >>> from quorvel.psychro import Psychrometer, dry_bulb_from_wet_bulb_and_percentage_saturation
    >>> result = dry_bulb_from_wet_bulb_and_percentage_saturation(wet_bulb=17.96,
    ...     percentage_saturation=49.22, pressure=101325, psychrometer=Psychrometer.sling)
    >>> bool(abs(result - 25) <= 0.15)
    True

    (air of 25 °C and 50 %: pv = 3169.9 / 2 Pa, g = 0.622 1.0045 pv / (p - 1.0045 pv); 2059.7 Pa at
    the wet bulb less 0.000666 p (25 - 17.96); h = 1.006 t + g (2501 + 1.86 t))
    """
    return _dry_bulb_from_wet_bulb_and_percentage_saturation(wet_bulb, percentage_saturation, pressure, psychrometer, out, where)


def dry_bulb_from_wet_bulb_and_enthalpy(wet_bulb, enthalpy, pressure, psychrometer, *, out=None, where=True):
    """Dry bulb of air with a wet bulb and specific enthalpy.

    Parameters
    ----------
    wet_bulb : array_like of float
        Wet-bulb temperature [°C]; valid -100 to 200.
    enthalpy : array_like of float
        Specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    psychrometer : Psychrometer, or array_like of its names or numbers
        Psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated).
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    dry_bulb : float32
        Dry-bulb temperature [°C].

    Notes
    -----
    Formula: specific_enthalpy_from_psychrometer(t, twb, p) = h

    Badly conditioned, since the enthalpy hardly changes along a wet bulb: 0.01 kJ/kg of enthalpy
    can be 0.25 K of dry bulb. For wet bulbs from -50 to 55 °C, above which the enthalpy turns.

    An enthalpy that no air of that wet bulb has, between saturated and dry, gives not a number; 1 K
    beyond saturation is allowed for, and gives the wet bulb.

    A psychrometer type below 1 counts as 1, above 2 as 2.

    References
    ----------
    Newton's method in double precision on the equations of the routines named.

    Examples
    --------
    >>> from quorvel.psychro import Psychrometer, dry_bulb_from_wet_bulb_and_enthalpy
    >>> result = dry_bulb_from_wet_bulb_and_enthalpy(wet_bulb=17.96, enthalpy=50.44,
    ...     pressure=101325, psychrometer=Psychrometer.sling)
    >>> bool(abs(result - 25) <= 1.5)
    True

    (air of 25 °C and 50 %: pv = 3169.9 / 2 Pa, g = 0.622 1.0045 pv / (p - 1.0045 pv); 2059.7 Pa at
    the wet bulb less 0.000666 p (25 - 17.96); h = 1.006 t + g (2501 + 1.86 t))
    """
    return _dry_bulb_from_wet_bulb_and_enthalpy(wet_bulb, enthalpy, pressure, psychrometer, out, where)


def adiabatic_mixing(first_air_flow, first_dry_bulb, first_moisture_content, second_air_flow, second_dry_bulb, second_moisture_content, *, out=None, where=True):
    """Two streams of moist air that become one, without heat from outside.

    Parameters
    ----------
    first_air_flow : array_like of float
        Mass flow of dry air in the first stream, or its share in any unit [kg/s]; valid from 0.
    first_dry_bulb : array_like of float
        Dry-bulb temperature of the first stream [°C]; valid -100 to 200.
    first_moisture_content : array_like of float
        Moisture content of the first stream [kg/kg]; valid 0 to 0.1.
    second_air_flow : array_like of float
        Mass flow of dry air in the second stream, in the same unit [kg/s]; valid from 0.
    second_dry_bulb : array_like of float
        Dry-bulb temperature of the second stream [°C]; valid -100 to 200.
    second_moisture_content : array_like of float
        Moisture content of the second stream [kg/kg]; valid 0 to 0.1.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    AdiabaticMixing
        A named tuple of:

    dry_bulb : float32
        Dry-bulb temperature of the mixture [°C].
    moisture_content : float32
        Moisture content of the mixture [kg/kg].
    enthalpy : float32
        Specific enthalpy of the mixture, by mass of dry air [kJ/kg].

    Notes
    -----
    Formula: g = (m1 g1 + m2 g2) / (m1 + m2), h likewise; t from h and g

    All moisture counts as vapour: percentage_saturation says whether the mixture is above
    saturation and would form fog.

    The enthalpies hold from -50 to 100 °C. Where no dry bulb from -100 to 200 °C belongs to the
    mixture, it is not a number; nor is anything without flow.

    References
    ----------
    Balances of enthalpy, water and dry air: ASHRAE Handbook Fundamentals 2017, chapter 1, adiabatic
    mixing of two moist airstreams.

    Examples
    --------
    >>> from quorvel.psychro import adiabatic_mixing
    >>> result = adiabatic_mixing(first_air_flow=2.535, first_dry_bulb=4,
    ...     first_moisture_content=0.00357, second_air_flow=7.284, second_dry_bulb=25,
    ...     second_moisture_content=0.00993)
    >>> bool(abs(result.dry_bulb - 19.5) <= 0.15)
    True
    >>> bool(abs(result.moisture_content - 0.00829) <= 1e-05)
    True

    (ASHRAE Handbook Fundamentals 2017, chapter 1, example of mixed outdoor and recirculated air,
    dry bulb from the chart; balance of water)
    """
    return _new(AdiabaticMixing, _adiabatic_mixing(first_air_flow, first_dry_bulb, first_moisture_content, second_air_flow, second_dry_bulb, second_moisture_content, out, where))


def moisture_content_from_psychrometer(dry_bulb, wet_bulb, pressure, psychrometer, *, out=None, where=True):
    """Moisture content of air from the reading of a wet-and-dry-bulb psychrometer.

    Parameters
    ----------
    dry_bulb : array_like of float
        Dry-bulb temperature [°C]; valid -100 to 200.
    wet_bulb : array_like of float
        Wet-bulb temperature [°C]; valid -100 to 200.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    psychrometer : Psychrometer, or array_like of its names or numbers
        Psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated).
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    moisture_content : float32
        Moisture content, water vapour per dry air [kg/kg].

    Notes
    -----
    Formula: g = 0.62197 f pv / (p - f pv)

    A wet bulb at or above the dry bulb counts as saturation; the coefficient of an iced bulb is
    taken when the wet bulb is below 0 °C.

    The enhancement factor takes its ice coefficients at 0 °C and below, where the saturation
    pressure counts exactly 0 °C as water; the difference is deliberate.

    Not limited: a reading drier than any air gives a negative content, a vapour pressure above the
    atmospheric too.

    A psychrometer type below 1 counts as 1, above 2 as 2.

    Each element has the bits of PSGS in quorvel.h.

    References
    ----------
    Vapour pressure of `vapour_pressure_from_psychrometer`; the enhancement factor f is a quadratic
    in absolute temperature whose coefficients are linear in pressure.

    Examples
    --------
    >>> from quorvel.psychro import Psychrometer, moisture_content_from_psychrometer
    >>> result = moisture_content_from_psychrometer(dry_bulb=25, wet_bulb=25, pressure=101325,
    ...     psychrometer=Psychrometer.sling)
    >>> bool(abs(result - 0.020173) <= 8.1e-05)
    True

    (ASHRAE Handbook Fundamentals 2017, chapter 1, table 2)
    """
    return _moisture_content_from_psychrometer(dry_bulb, wet_bulb, pressure, psychrometer, out, where)


def moisture_content(dry_bulb, vapour_pressure, pressure, *, out=None, where=True):
    """Moisture content of air with a vapour pressure.

    Parameters
    ----------
    dry_bulb : array_like of float
        Dry-bulb temperature [°C]; valid -100 to 200.
    vapour_pressure : array_like of float
        Vapour pressure [Pa]; valid from 0.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    moisture_content : float32
        Moisture content, water vapour per dry air [kg/kg].

    Notes
    -----
    Formula: g = 0.62197 f pv / (p - f pv)

    Enhancement factor f of moisture_content_from_psychrometer, at the dry bulb.

    Not limited: neither to saturation, nor to vapour pressures below the atmospheric.

    References
    ----------
    Definition for a mixture of ideal gases, ASHRAE Handbook Fundamentals 2017, chapter 1, with the
    enhancement factor of moisture_content_from_psychrometer.

    Examples
    --------
    >>> from quorvel.psychro import moisture_content
    >>> result = moisture_content(dry_bulb=25, vapour_pressure=1584.95, pressure=101325)
    >>> bool(abs(result - 0.009929) <= 1e-05)
    True

    (0.622 1.0045 pv / (p - 1.0045 pv))
    """
    return _moisture_content(dry_bulb, vapour_pressure, pressure, out, where)


def vapour_pressure_from_moisture_content(dry_bulb, moisture_content, pressure, *, out=None, where=True):
    """Vapour pressure of air with a moisture content, the inverse of moisture_content.

    Parameters
    ----------
    dry_bulb : array_like of float
        Dry-bulb temperature [°C]; valid -100 to 200.
    moisture_content : array_like of float
        Moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    vapour_pressure : float32
        Vapour pressure [Pa].

    Notes
    -----
    Formula: pv = p g / (f (0.62197 + g))

    Not limited to saturation.

    References
    ----------
    As moisture_content.

    Examples
    --------
    >>> from quorvel.psychro import vapour_pressure_from_moisture_content
    >>> result = vapour_pressure_from_moisture_content(dry_bulb=25, moisture_content=0.020173,
    ...     pressure=101325)
    >>> bool(abs(result - 3169.9) <= 10)
    True

    (ASHRAE Handbook Fundamentals 2017, chapter 1, tables 2 and 3: saturated air)
    """
    return _vapour_pressure_from_moisture_content(dry_bulb, moisture_content, pressure, out, where)


def moisture_content_from_percentage_saturation(dry_bulb, percentage_saturation, pressure, *, out=None, where=True):
    """Moisture content of air with a percentage saturation, the inverse of percentage_saturation.

    Parameters
    ----------
    dry_bulb : array_like of float
        Dry-bulb temperature [°C]; valid -100 to 200.
    percentage_saturation : array_like of float
        Percentage saturation [%]; valid 0 to 100.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    moisture_content : float32
        Moisture content, water vapour per dry air [kg/kg].

    Notes
    -----
    Formula: g = percentage / 100 gs(t, p)

    Not limited. From boiling on, where the saturation pressure is above the atmospheric, it means
    nothing.

    References
    ----------
    Definition, with the saturation moisture content of moisture_content_from_psychrometer.

    Examples
    --------
    >>> from quorvel.psychro import moisture_content_from_percentage_saturation
    >>> result = moisture_content_from_percentage_saturation(dry_bulb=25, percentage_saturation=50,
    ...     pressure=101325)
    >>> bool(abs(result - 0.0100865) <= 4e-05)
    True

    (half of ASHRAE Handbook Fundamentals 2017, chapter 1, table 2)
    """
    return _moisture_content_from_percentage_saturation(dry_bulb, percentage_saturation, pressure, out, where)


def moisture_content_from_enthalpy(dry_bulb, enthalpy, *, out=None, where=True):
    """Moisture content of air with a specific enthalpy, the inverse of specific_enthalpy.

    Parameters
    ----------
    dry_bulb : array_like of float
        Dry-bulb temperature [°C]; valid -50 to 100.
    enthalpy : array_like of float
        Specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    moisture_content : float32
        Moisture content, water vapour per dry air [kg/kg].

    Notes
    -----
    Formula: g = (h - ha(t)) / hv(t)

    Not limited: negative where dry air alone has more, and neither to saturation.

    References
    ----------
    As specific_enthalpy.

    Examples
    --------
    >>> from quorvel.psychro import moisture_content_from_enthalpy
    >>> result = moisture_content_from_enthalpy(dry_bulb=25, enthalpy=76.504)
    >>> bool(abs(result - 0.020173) <= 6e-05)
    True

    (ASHRAE Handbook Fundamentals 2017, chapter 1, table 2: saturated air)
    """
    return _moisture_content_from_enthalpy(dry_bulb, enthalpy, out, where)


def moist_air_density(dry_bulb, moisture_content, pressure, *, out=None, where=True):
    """Density of moist air.

    Parameters
    ----------
    dry_bulb : array_like of float
        Dry-bulb temperature [°C]; valid -100 to 200.
    moisture_content : array_like of float
        Moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    moist_air_density : float32
        Density of the moist air [kg/m³].

    Notes
    -----
    Formula: (1 + g) / v, by specific_volume

    A moisture content above saturation counts as saturation.

    References
    ----------
    Definition: ASHRAE Handbook Fundamentals 2017, chapter 1.

    Examples
    --------
    >>> from quorvel.psychro import moist_air_density
    >>> result = moist_air_density(dry_bulb=25, moisture_content=0.020173, pressure=101325)
    >>> bool(abs(result - 1.1699) <= 0.0014)
    True

    (1.020173 / 0.872 m³/kg: ASHRAE Handbook Fundamentals 2017, chapter 1, table 2)
    """
    return _moist_air_density(dry_bulb, moisture_content, pressure, out, where)


def percentage_saturation(dry_bulb, moisture_content, pressure, *, out=None, where=True):
    """Percentage saturation: moisture content by that of saturated air at the same temperature and
    pressure.

    Parameters
    ----------
    dry_bulb : array_like of float
        Dry-bulb temperature [°C]; valid -100 to 200.
    moisture_content : array_like of float
        Moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    percentage_saturation : float32
        Percentage saturation [%].

    Notes
    -----
    Formula: 100 g / gs(t, p)

    Not limited: supersaturated air gives more than 100.

    Percentage saturation is not relative humidity, the ratio of vapour pressures, and is the lower
    of the two.

    Each element has the bits of PSPCST in quorvel.h.

    References
    ----------
    Definition, with the saturation moisture content of `moisture_content_from_psychrometer`.

    Examples
    --------
    >>> from quorvel.psychro import percentage_saturation
    >>> result = percentage_saturation(dry_bulb=25, moisture_content=0.020173, pressure=101325)
    >>> bool(abs(result - 100) <= 0.5)
    True

    (ASHRAE Handbook Fundamentals 2017, chapter 1, table 2: saturated air)
    """
    return _percentage_saturation(dry_bulb, moisture_content, pressure, out, where)


def specific_enthalpy(dry_bulb, moisture_content, *, out=None, where=True):
    """Specific enthalpy of moist air.

    Parameters
    ----------
    dry_bulb : array_like of float
        Dry-bulb temperature [°C]; valid -50 to 100.
    moisture_content : array_like of float
        Moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    enthalpy : float32
        Specific enthalpy, by mass of dry air [kJ/kg].

    Notes
    -----
    Formula: h = ha(t) + g hv(t), by dry_air_enthalpy and water_vapour_enthalpy

    Per kilogram of dry air, from dry air and liquid water at 0 °C.

    All moisture counts as vapour: the moisture content is not limited to that of saturated air.

    References
    ----------
    Sum over dry air and vapour, as for mixtures of ideal gases: ASHRAE Handbook Fundamentals 2017,
    chapter 1.

    Examples
    --------
    >>> from quorvel.psychro import specific_enthalpy
    >>> result = specific_enthalpy(dry_bulb=25, moisture_content=0.020173)
    >>> bool(abs(result - 76.504) <= 0.15)
    True

    (ASHRAE Handbook Fundamentals 2017, chapter 1, table 2: saturated air)
    """
    return _specific_enthalpy(dry_bulb, moisture_content, out, where)


def specific_enthalpy_from_psychrometer(dry_bulb, wet_bulb, pressure, psychrometer, *, out=None, where=True):
    """Specific enthalpy of moist air from the reading of a wet-and-dry-bulb psychrometer.

    Parameters
    ----------
    dry_bulb : array_like of float
        Dry-bulb temperature [°C]; valid -100 to 200.
    wet_bulb : array_like of float
        Wet-bulb temperature [°C]; valid -100 to 200.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    psychrometer : Psychrometer, or array_like of its names or numbers
        Psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated).
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    enthalpy : float32
        Specific enthalpy, by mass of dry air [kJ/kg].

    Notes
    -----
    Formula: h = `dry_air_enthalpy`(t) + g `water_vapour_enthalpy`(t), g =
    `moisture_content_from_psychrometer`(t, twb, p)

    A wet bulb at or above the dry bulb counts as saturation; the coefficient of an iced bulb is
    taken when the wet bulb is below 0 °C.

    Per kilogram of dry air, from dry air and liquid water at 0 °C.

    Saturated air at 101325 Pa is within 0.07 kJ/kg of the ASHRAE tables from -20 to 30 °C, within
    0.2 % up to 50 °C.

    A psychrometer type below 1 counts as 1, above 2 as 2.

    Each element has the bits of PSHWET in quorvel.h.

    References
    ----------
    Enthalpies of `dry_air_enthalpy` and `water_vapour_enthalpy`, moisture content of
    `moisture_content_from_psychrometer`.

    Examples
    --------
    >>> from quorvel.psychro import Psychrometer, specific_enthalpy_from_psychrometer
    >>> result = specific_enthalpy_from_psychrometer(dry_bulb=25, wet_bulb=25, pressure=101325,
    ...     psychrometer=Psychrometer.sling)
    >>> bool(abs(result - 76.504) <= 0.22)
    True

    (ASHRAE Handbook Fundamentals 2017, chapter 1, table 2)
    """
    return _specific_enthalpy_from_psychrometer(dry_bulb, wet_bulb, pressure, psychrometer, out, where)


def specific_volume(dry_bulb, moisture_content, pressure, *, out=None, where=True):
    """Specific volume of moist air.

    Parameters
    ----------
    dry_bulb : array_like of float
        Dry-bulb temperature [°C]; valid -100 to 200.
    moisture_content : array_like of float
        Moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    specific_volume : float32
        Specific volume, by mass of dry air [m³/kg].

    Notes
    -----
    Formula: v = 287.04 (t + 273.15) / pa - xa^2 B - 2 xa xv C - xv^2 D; xa = 0.62197 / (0.62197 +
    g), xv = 1 - xa, pa = p - p g / (1.0045 (0.62197 + g))

    A moisture content above saturation counts as saturation.

    Per kilogram of dry air: the reciprocal is not the density of the moist air.

    Virial coefficients of air, B = (4.542 - 0.082785 t + 0.0004353 t^2 - 2.1418e-6 t^3) / 10000,
    and of air with vapour, C = (1.45 - 0.0097 t + 0.32 (t / 100)^2) / 1000; that of vapour, D,
    follows straight lines, one below 0 °C and one for each 10 K up to 50 °C and beyond.

    Each element has the bits of PSSPVL in quorvel.h.

    References
    ----------
    Virial equation of the mixture, written for 101325 Pa (1.0045 is the enhancement factor there);
    its author is not known.

    Examples
    --------
    >>> from quorvel.psychro import specific_volume
    >>> result = specific_volume(dry_bulb=25, moisture_content=0.020173, pressure=101325)
    >>> bool(abs(result - 0.872) <= 0.001)
    True

    (ASHRAE Handbook Fundamentals 2017, chapter 1, table 2)
    """
    return _specific_volume(dry_bulb, moisture_content, pressure, out, where)


def saturation_temperature_from_enthalpy(enthalpy, pressure, *, out=None, where=True):
    """Temperature at which saturated air has a specific enthalpy.

    Parameters
    ----------
    enthalpy : array_like of float
        Specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    temperature : float32
        Saturation temperature [°C].

    Notes
    -----
    An enthalpy below -10 gives -13.4, above 460 it gives 60, whatever the pressure; at 101325 Pa
    the search itself gives -12.98 and 59.98 there.

    A stepping search with steps down to 0.01 K: the result is below the exact temperature by less
    than that, or above it by 0.001 K at most.

    Where the search would never end (a pressure so low that the water boils, an argument that is
    not a number), the value it has reached is returned: some ten thousand degrees.

    Each element has the bits of PSTSAT in quorvel.h.

    References
    ----------
    Enthalpy of `specific_enthalpy_from_psychrometer`, solved by a step-and-refine search.

    Examples
    --------
    >>> from quorvel.psychro import saturation_temperature_from_enthalpy
    >>> result = saturation_temperature_from_enthalpy(enthalpy=76.504, pressure=101325)
    >>> bool(abs(result - 25) <= 0.06)
    True

    (ASHRAE Handbook Fundamentals 2017, chapter 1, table 2)
    """
    return _saturation_temperature_from_enthalpy(enthalpy, pressure, out, where)


def pool_evaporation(water_area, wetted_area, water_temperature, dry_bulb, moisture_content, reference_temperature, bathers, reference_coefficient, pressure, *, out=None, where=True):
    """Evaporation from an indoor pool and its heat flows, for room air given by its moisture content.

    Parameters
    ----------
    water_area : array_like of float
        Area of the water surface [m²]; valid from 0.
    wetted_area : array_like of float
        Further wetted area, which adds to the latent load only [m²]; valid from 0.
    water_temperature : array_like of float
        Water temperature [°C]; valid -100 to 200.
    dry_bulb : array_like of float
        Dry-bulb temperature of the room air [°C]; valid -100 to 200.
    moisture_content : array_like of float
        Moisture content of the room air [kg/kg]; valid 0 to 0.1.
    reference_temperature : array_like of float
        Second reference temperature [°C]; valid -100 to 200.
    bathers : array_like of int
        Number of bathers, below 1 unoccupied; valid from 0.
    reference_coefficient : array_like of float
        Coefficient of the exchange with the second reference temperature [W/m²K]; valid from 0.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    PoolEvaporation
        A named tuple of:

    evaporation_rate : float32
        Evaporation rate [kg/(m²s)].
    latent_load : float32
        Latent load, 2.45 MJ per kg evaporated [W].
    convective_load : float32
        Convection from the water to the room air at 10 W/m²K [W].
    reference_load : float32
        Exchange of the water with the second reference temperature [W].

    Notes
    -----
    Formula: dp = ps(water_temperature) - pv; evaporation_rate = 2.193e-8 dp - 1.64e-5 without
    bathers, 4.17e-8 dp bathers / water_area + 3.28e-5 with them; latent_load = 2.45e6
    evaporation_rate (water_area + wetted_area)

    The vapour pressure is that of a sling psychrometer at the wet bulb of
    `wet_bulb_from_moisture_content`, and good to the step of that search.

    Nothing is limited: a calm pool close to equilibrium with the air has a negative rate.

    With bathers the rate per area falls as the pool grows, and an area of 0 divides by zero.

    Each element has the bits of TPPOOL in quorvel.h.

    References
    ----------
    Regressions of the kind that Biasin and Krumme gave in 1974 (unoccupied -0.059 + 0.000079 dp in
    kg/(m²h)), turned to kg/(m²s); fixed latent heat and convective coefficient.

    Examples
    --------
    >>> from quorvel.psychro import pool_evaporation
    >>> result = pool_evaporation(water_area=250, wetted_area=50, water_temperature=28, dry_bulb=30,
    ...     moisture_content=0.012, reference_temperature=22, bathers=0, reference_coefficient=4,
    ...     pressure=101325)
    >>> bool(abs(result.evaporation_rate - 2.46e-05) <= 4e-07)
    True
    >>> bool(abs(result.latent_load - 18080) <= 300)
    True
    >>> bool(abs(result.convective_load - -5000) <= 0.01)
    True
    >>> bool(abs(result.reference_load - 6000) <= 0.01)
    True

    ((-0.059 + 0.000079 (3783 - 1915)) / 3600; 1915 Pa is that moisture content; heat flows as in
    `pool_evaporation_from_wet_bulb`)
    """
    return _new(PoolEvaporation, _pool_evaporation(water_area, wetted_area, water_temperature, dry_bulb, moisture_content, reference_temperature, bathers, reference_coefficient, pressure, out, where))


def pool_evaporation_from_wet_bulb(water_area, wetted_area, water_temperature, dry_bulb, wet_bulb, reference_temperature, bathers, reference_coefficient, pressure, *, out=None, where=True):
    """Evaporation from an indoor pool and its heat flows, for room air given by its wet bulb.

    Parameters
    ----------
    water_area : array_like of float
        Area of the water surface [m²]; valid from 0.
    wetted_area : array_like of float
        Further wetted area, which adds to the latent load only [m²]; valid from 0.
    water_temperature : array_like of float
        Water temperature [°C]; valid -100 to 200.
    dry_bulb : array_like of float
        Dry-bulb temperature of the room air [°C]; valid -100 to 200.
    wet_bulb : array_like of float
        Wet-bulb temperature of the room air, sling psychrometer [°C]; valid -100 to 200.
    reference_temperature : array_like of float
        Second reference temperature [°C]; valid -100 to 200.
    bathers : array_like of int
        Number of bathers, below 1 unoccupied; valid from 0.
    reference_coefficient : array_like of float
        Coefficient of the exchange with the second reference temperature [W/m²K]; valid from 0.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    PoolEvaporationFromWetBulb
        A named tuple of:

    evaporation_rate : float32
        Evaporation rate [kg/(m²s)].
    latent_load : float32
        Latent load, 2.45 MJ per kg evaporated [W].
    convective_load : float32
        Convection from the water to the room air at 10 W/m²K [W].
    reference_load : float32
        Exchange of the water with the second reference temperature [W].

    Notes
    -----
    Formula: dp = ps(water_temperature) - pv; evaporation_rate = 2.193e-8 dp - 1.64e-5 without
    bathers, 4.17e-8 dp bathers / water_area + 3.28e-5 with them; latent_load = 2.45e6
    evaporation_rate (water_area + wetted_area)

    A wet bulb at or above the dry bulb counts as saturated air.

    Nothing is limited: a calm pool close to equilibrium with the air has a negative rate.

    With bathers the rate per area falls as the pool grows, and an area of 0 divides by zero.

    Each element has the bits of TPPOOL2 in quorvel.h.

    References
    ----------
    Regressions of the kind that Biasin and Krumme gave in 1974 (unoccupied -0.059 + 0.000079 dp in
    kg/(m²h)), turned to kg/(m²s); fixed latent heat and convective coefficient.

    Examples
    --------
    >>> from quorvel.psychro import pool_evaporation_from_wet_bulb
    >>> result = pool_evaporation_from_wet_bulb(water_area=250, wetted_area=50,
    ...     water_temperature=28, dry_bulb=30, wet_bulb=22, reference_temperature=22, bathers=0,
    ...     reference_coefficient=4, pressure=101325)
    >>> bool(abs(result.evaporation_rate - 2.044e-05) <= 4e-07)
    True
    >>> bool(abs(result.latent_load - 15025) <= 300)
    True
    >>> bool(abs(result.convective_load - -5000) <= 0.01)
    True
    >>> bool(abs(result.reference_load - 6000) <= 0.01)
    True

    ((-0.059 + 0.000079 (3783 - 2645 + 540)) / 3600; 2.45 MJ/kg from 300 m²; 10 (28 - 30) and 4 (28
    - 22) W from 1 m²)
    """
    return _new(PoolEvaporationFromWetBulb, _pool_evaporation_from_wet_bulb(water_area, wetted_area, water_temperature, dry_bulb, wet_bulb, reference_temperature, bathers, reference_coefficient, pressure, out, where))


def saturation_pressure(temperature, *, out=None, where=True):
    """Saturation vapour pressure over a plane surface of water, or of ice below 0 °C.

    Parameters
    ----------
    temperature : array_like of float
        Temperature [°C]; valid -100 to 200.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    saturation_pressure : float32
        Saturation vapour pressure [Pa].

    Notes
    -----
    Formula: log10(ps) = 33.59051 - 3142.31 / T - 8.2 log10(T) + 0.0024804 T over water, 12.538099 -
    2663.91 / T over ice; T = temperature + 273.15

    Exactly 0 °C counts as water. The two branches meet there only to 0.04 Pa (610.34 over water,
    610.30 over ice); the step is deliberate.

    Within 0.4 % of the international formulation from -20 to 150 °C, within 1 % down to -40 °C.

    Each element has the bits of PSSVP in quorvel.h.

    References
    ----------
    National Engineering Laboratory, Steam Tables 1964, in the reduced form that building services
    guides print.

    Examples
    --------
    >>> from quorvel.psychro import saturation_pressure
    >>> result = saturation_pressure(temperature=20)
    >>> bool(abs(result - 2339.3) <= 9.4)
    True

    (water: Wagner and Pruss, 2002)
    """
    return _saturation_pressure(temperature, out, where)


def dew_point(vapour_pressure, *, out=None, where=True):
    """Dew point of air with a vapour pressure, the inverse of the saturation pressure; below 0 °C the
    frost point.

    Parameters
    ----------
    vapour_pressure : array_like of float
        Vapour pressure [Pa]; valid from 0.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    dew_point : float32
        Dew-point temperature, of frost below 0 °C [°C].

    Notes
    -----
    Formula: ps(dew_point) = pv

    Solved in double precision; saturation_pressure, in single precision, returns the vapour
    pressure to 0.002 %, and dew_point the temperature that was given to it to 0.001 K up to 100 °C.

    The vapour pressures between ice and water at 0 °C, 610.30 to 610.34 Pa, give 0 °C to 0.0001 K.

    Found from -200 to 400 °C. A pressure of 0 or less, or beyond those of this range, gives not a
    number.

    References
    ----------
    Saturation pressure of saturation_pressure (National Engineering Laboratory, Steam Tables 1964),
    solved by Newton's method.

    Examples
    --------
    >>> from quorvel.psychro import dew_point
    >>> result = dew_point(vapour_pressure=2339.3)
    >>> bool(abs(result - 20) <= 0.05)
    True

    (water: Wagner and Pruss, 2002)
    """
    return _dew_point(vapour_pressure, out, where)


def vapour_pressure(dry_bulb, relative_humidity, *, out=None, where=True):
    """Vapour pressure of air at a dry-bulb temperature and relative humidity.

    Parameters
    ----------
    dry_bulb : array_like of float
        Dry-bulb temperature [°C]; valid -100 to 200.
    relative_humidity : array_like of float
        Relative humidity [%]; valid 0 to 100.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    vapour_pressure : float32
        Vapour pressure [Pa].

    Notes
    -----
    Formula: pv = rh / 100 ps(t)

    Relative humidity is limited to 0 to 100 %, not rejected.

    Each element has the bits of PSVP in quorvel.h.

    References
    ----------
    Definition of relative humidity, with the saturation pressure of `saturation_pressure`.

    Examples
    --------
    >>> from quorvel.psychro import vapour_pressure
    >>> result = vapour_pressure(dry_bulb=20, relative_humidity=50)
    >>> bool(abs(result - 1169.7) <= 4)
    True

    (half of saturation)
    """
    return _vapour_pressure(dry_bulb, relative_humidity, out, where)


def relative_humidity(dry_bulb, vapour_pressure, *, out=None, where=True):
    """Relative humidity of air with a vapour pressure.

    Parameters
    ----------
    dry_bulb : array_like of float
        Dry-bulb temperature [°C]; valid -100 to 200.
    vapour_pressure : array_like of float
        Vapour pressure [Pa]; valid from 0.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    relative_humidity : float32
        Relative humidity [%].

    Notes
    -----
    Formula: rh = 100 pv / ps(t)

    Not limited: supersaturated air gives more than 100.

    References
    ----------
    Definition of relative humidity, the ratio of vapour pressures, with saturation_pressure.

    Examples
    --------
    >>> from quorvel.psychro import relative_humidity
    >>> result = relative_humidity(dry_bulb=20, vapour_pressure=1169.65)
    >>> bool(abs(result - 50) <= 0.2)
    True

    (2339.3 Pa at saturation: Wagner and Pruss, 2002)
    """
    return _relative_humidity(dry_bulb, vapour_pressure, out, where)


def vapour_pressure_from_psychrometer(dry_bulb, wet_bulb, pressure, psychrometer, *, out=None, where=True):
    """Vapour pressure from the reading of a wet-and-dry-bulb psychrometer.

    Parameters
    ----------
    dry_bulb : array_like of float
        Dry-bulb temperature [°C]; valid -100 to 200.
    wet_bulb : array_like of float
        Wet-bulb temperature [°C]; valid -100 to 200.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    psychrometer : Psychrometer, or array_like of its names or numbers
        Psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated).
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    vapour_pressure : float32
        Vapour pressure [Pa].

    Notes
    -----
    Formula: pv = ps(twb) - A p (t - twb)

    The coefficient of an iced bulb is taken when the wet bulb is below 0 °C.

    A wet bulb at or above the dry bulb gives the saturation pressure at the dry-bulb temperature.

    The result is not limited: a reading drier than any air gives a negative pressure.

    A psychrometer type below 1 counts as 1, above 2 as 2.

    A is 0.000666 1/K for a sling psychrometer and 0.000799 for a screen one, 0.000594 and 0.00072
    with an iced bulb.

    Each element has the bits of PSVAP in quorvel.h.

    References
    ----------
    Psychrometer equation with the customary coefficients A.

    Examples
    --------
    >>> from quorvel.psychro import Psychrometer, vapour_pressure_from_psychrometer
    >>> result = vapour_pressure_from_psychrometer(dry_bulb=25, wet_bulb=20, pressure=101325,
    ...     psychrometer=Psychrometer.sling)
    >>> bool(abs(result - 2002) <= 9)
    True

    (2339 - 0.000666 p (25 - 20))
    """
    return _vapour_pressure_from_psychrometer(dry_bulb, wet_bulb, pressure, psychrometer, out, where)


def weighted_temperature(first_temperature, second_temperature, *, out=None, where=True):
    """Weighted temperature of two air temperatures.

    Parameters
    ----------
    first_temperature : array_like of float
        Temperature with the greater weight [°C]; valid -100 to 200.
    second_temperature : array_like of float
        Temperature with the lesser, negative weight [°C]; valid -100 to 200.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    temperature : float32
        Weighted temperature [°C].

    Notes
    -----
    Formula: (41.94 t1 - 7.33 t2) / (34.61 + t1 - t2)

    Two equal temperatures give that temperature. Infinite where the second is above the first by
    34.61 K.

    Each element has the bits of PSTEFF in quorvel.h.

    References
    ----------
    The derivation is not known, so the second temperature has no other meaning than the formula's.

    Examples
    --------
    >>> from quorvel.psychro import weighted_temperature
    >>> result = weighted_temperature(first_temperature=20, second_temperature=10)
    >>> bool(abs(result - 17.15983) <= 1e-05)
    True

    ((838.8 - 73.3) / 44.61)
    """
    return _weighted_temperature(first_temperature, second_temperature, out, where)


def psychrometer_wet_bulb(dry_bulb, relative_humidity, pressure, psychrometer, *, out=None, where=True):
    """Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and relative humidity.

    Parameters
    ----------
    dry_bulb : array_like of float
        Dry-bulb temperature [°C]; valid -100 to 200.
    relative_humidity : array_like of float
        Relative humidity [%]; valid 0 to 100.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    psychrometer : Psychrometer, or array_like of its names or numbers
        Psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated).
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    wet_bulb : float32
        Wet-bulb temperature, never above the dry bulb [°C].

    Notes
    -----
    The coefficient of an iced bulb is taken when the dry bulb is below 0 °C, where
    `vapour_pressure_from_psychrometer` looks at the wet bulb; the asymmetry is deliberate.

    A stepping search that ends within 0.1 K: the result moves in small jumps with its arguments.

    Relative humidity is limited to 0 to 100 %. Where the search would never end (a pressure of zero
    or below, say), the value it has reached is returned.

    A psychrometer type below 1 counts as 1, above 2 as 2.

    Each element has the bits of PSTWET in quorvel.h.

    References
    ----------
    Psychrometer equation of `vapour_pressure_from_psychrometer`, solved by a step-and-refine
    search.

    Examples
    --------
    >>> from quorvel.psychro import Psychrometer, psychrometer_wet_bulb
    >>> result = psychrometer_wet_bulb(dry_bulb=30, relative_humidity=50, pressure=101325,
    ...     psychrometer=Psychrometer.sling)
    >>> bool(abs(result - 22) <= 0.2)
    True

    (psychrometric chart at sea level)
    """
    return _psychrometer_wet_bulb(dry_bulb, relative_humidity, pressure, psychrometer, out, where)


def wet_bulb_from_percentage_saturation(dry_bulb, percentage_saturation, pressure, psychrometer, *, out=None, where=True):
    """Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and percentage
    saturation.

    Parameters
    ----------
    dry_bulb : array_like of float
        Dry-bulb temperature [°C]; valid -100 to 200.
    percentage_saturation : array_like of float
        Percentage saturation [%]; valid 0 to 100.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    psychrometer : Psychrometer, or array_like of its names or numbers
        Psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated).
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    wet_bulb : float32
        Wet-bulb temperature [°C].

    Notes
    -----
    A stepping search with steps down to 0.01 K: the result is above the exact wet bulb by less than
    that and moves in small jumps with its arguments.

    The percentage is not limited: 100 and more give the dry bulb.

    About 0 °C, where the coefficient changes to that of an iced bulb, two wet bulbs can belong to
    one percentage; which of them is found depends on the steps.

    Where the search would never end (below absolute zero, say), the value it has reached is
    returned.

    A psychrometer type below 1 counts as 1, above 2 as 2.

    Each element has the bits of PSTWB in quorvel.h.

    References
    ----------
    Psychrometer equation of `vapour_pressure_from_psychrometer` with the moisture content of
    `moisture_content_from_psychrometer`, solved by a step-and-refine search.

    Examples
    --------
    >>> from quorvel.psychro import Psychrometer, wet_bulb_from_percentage_saturation
    >>> result = wet_bulb_from_percentage_saturation(dry_bulb=30, percentage_saturation=50,
    ...     pressure=101325, psychrometer=Psychrometer.sling)
    >>> bool(abs(result - 22.28) <= 0.05)
    True

    (2168 Pa of half the saturated moisture content 0.02733 (ASHRAE) = 2690 - 0.000666 p (30 -
    22.28))
    """
    return _wet_bulb_from_percentage_saturation(dry_bulb, percentage_saturation, pressure, psychrometer, out, where)


def wet_bulb_from_moisture_content(dry_bulb, moisture_content, pressure, psychrometer, *, out=None, where=True):
    """Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and moisture content.

    Parameters
    ----------
    dry_bulb : array_like of float
        Dry-bulb temperature [°C]; valid -100 to 200.
    moisture_content : array_like of float
        Moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    psychrometer : Psychrometer, or array_like of its names or numbers
        Psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated).
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    wet_bulb : float32
        Wet-bulb temperature [°C].

    Notes
    -----
    A stepping search with steps of 5 K down to 0.005 K and a last one of 0.0005 K: the result is
    within 0.005 K of the exact wet bulb.

    At saturation or above the result is the dry bulb, whatever that is. Otherwise a dry bulb above
    10000 °C gives -100, one that is not a number -200.

    Where the search would never end (a moisture content that is not a number, or far below 0), the
    value it has reached is returned.

    A psychrometer type below 1 counts as 1, above 2 as 2.

    Each element has the bits of PSWBLB in quorvel.h.

    References
    ----------
    Psychrometer equation of `vapour_pressure_from_psychrometer` with the moisture content of
    `moisture_content_from_psychrometer`, solved by a step-and-refine search.

    Examples
    --------
    >>> from quorvel.psychro import Psychrometer, wet_bulb_from_moisture_content
    >>> result = wet_bulb_from_moisture_content(dry_bulb=30, moisture_content=0.013666,
    ...     pressure=101325, psychrometer=Psychrometer.sling)
    >>> bool(abs(result - 22.28) <= 0.05)
    True

    (2168 Pa of that moisture content = 2690 - 0.000666 p (30 - 22.28))
    """
    return _wet_bulb_from_moisture_content(dry_bulb, moisture_content, pressure, psychrometer, out, where)


def wet_bulb(dry_bulb, vapour_pressure, pressure, psychrometer, *, out=None, where=True):
    """Wet-bulb temperature that a psychrometer reads in air with a vapour pressure.

    Parameters
    ----------
    dry_bulb : array_like of float
        Dry-bulb temperature [°C]; valid -100 to 200.
    vapour_pressure : array_like of float
        Vapour pressure [Pa]; valid from 0.
    pressure : array_like of float
        Atmospheric pressure [Pa]; valid 50000 to 110000.
    psychrometer : Psychrometer, or array_like of its names or numbers
        Psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated).
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    wet_bulb : float32
        Wet-bulb temperature [°C].

    Notes
    -----
    Formula: ps(twb) - A p (t - twb) = pv

    The exact solution, in double precision; vapour_pressure_from_psychrometer gives the vapour
    pressure back to 0.002 % of saturation.

    About 0 °C an iced wet bulb and one that is not can belong to the same air: that which is not
    iced is found.

    At saturation or above the result is the dry bulb. A vapour pressure too far below 0 gives not a
    number.

    A psychrometer type below 1 counts as 1, above 2 as 2.

    References
    ----------
    Psychrometer equation of vapour_pressure_from_psychrometer, solved by Newton's method.

    Examples
    --------
    >>> from quorvel.psychro import Psychrometer, wet_bulb
    >>> result = wet_bulb(dry_bulb=25, vapour_pressure=1584.95, pressure=101325,
    ...     psychrometer=Psychrometer.sling)
    >>> bool(abs(result - 17.96) <= 0.04)
    True

    (2059.7 Pa at 17.96 °C (Wagner and Pruss, 2002) less 0.000666 p (25 - 17.96))
    """
    return _wet_bulb(dry_bulb, vapour_pressure, pressure, psychrometer, out, where)
