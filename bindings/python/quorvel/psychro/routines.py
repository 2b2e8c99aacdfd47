"""Moist air: the routines of the library, element by element."""

# Produced from the catalogue of routines (catalogue/); do not edit.

from collections import namedtuple

from .._core import functions
from ..selectors import Psychrometer

__all__ = [
    "Psychrometer",
    "PoolEvaporation",
    "PoolEvaporationFromWetBulb",
    "dry_air_enthalpy",
    "water_vapour_enthalpy",
    "dry_air_specific_heat",
    "water_vapour_specific_heat",
    "latent_heat",
    "moisture_content_from_psychrometer",
    "percentage_saturation",
    "specific_enthalpy",
    "specific_enthalpy_from_psychrometer",
    "specific_volume",
    "saturation_temperature_from_enthalpy",
    "pool_evaporation",
    "pool_evaporation_from_wet_bulb",
    "saturation_pressure",
    "vapour_pressure",
    "relative_humidity",
    "vapour_pressure_from_psychrometer",
    "weighted_temperature",
    "psychrometer_wet_bulb",
    "wet_bulb_from_percentage_saturation",
    "wet_bulb_from_moisture_content",
]

_dry_air_enthalpy = functions["dry_air_enthalpy"]
_water_vapour_enthalpy = functions["water_vapour_enthalpy"]
_dry_air_specific_heat = functions["dry_air_specific_heat"]
_water_vapour_specific_heat = functions["water_vapour_specific_heat"]
_latent_heat = functions["latent_heat"]
_moisture_content_from_psychrometer = functions["moisture_content_from_psychrometer"]
_percentage_saturation = functions["percentage_saturation"]
_specific_enthalpy = functions["specific_enthalpy"]
_specific_enthalpy_from_psychrometer = functions["specific_enthalpy_from_psychrometer"]
_specific_volume = functions["specific_volume"]
_saturation_temperature_from_enthalpy = functions["saturation_temperature_from_enthalpy"]
_pool_evaporation = functions["pool_evaporation"]
_pool_evaporation_from_wet_bulb = functions["pool_evaporation_from_wet_bulb"]
_saturation_pressure = functions["saturation_pressure"]
_vapour_pressure = functions["vapour_pressure"]
_relative_humidity = functions["relative_humidity"]
_vapour_pressure_from_psychrometer = functions["vapour_pressure_from_psychrometer"]
_weighted_temperature = functions["weighted_temperature"]
_psychrometer_wet_bulb = functions["psychrometer_wet_bulb"]
_wet_bulb_from_percentage_saturation = functions["wet_bulb_from_percentage_saturation"]
_wet_bulb_from_moisture_content = functions["wet_bulb_from_moisture_content"]


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
    psychrometer : Psychrometer or array_like of int
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
    Vapour pressure of PSVAP; the enhancement factor f is a quadratic in absolute temperature whose
    coefficients are linear in pressure.

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
    Definition, with the saturation moisture content of PSGS.

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
    psychrometer : Psychrometer or array_like of int
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
    Formula: h = PSHDRY(t) + g PSHVAP(t), g = PSGS(t, twb, p)

    A wet bulb at or above the dry bulb counts as saturation; the coefficient of an iced bulb is
    taken when the wet bulb is below 0 °C.

    Per kilogram of dry air, from dry air and liquid water at 0 °C.

    Saturated air at 101325 Pa is within 0.07 kJ/kg of the ASHRAE tables from -20 to 30 °C, within
    0.2 % up to 50 °C.

    A psychrometer type below 1 counts as 1, above 2 as 2.

    Each element has the bits of PSHWET in quorvel.h.

    References
    ----------
    Enthalpies of PSHDRY and PSHVAP, moisture content of PSGS.

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
    Enthalpy of PSHWET, solved by a step-and-refine search.

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

    The vapour pressure is that of a sling psychrometer at the wet bulb of PSWBLB, and good to the
    step of that search.

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
    TPPOOL2)
    """
    return PoolEvaporation._make(_pool_evaporation(water_area, wetted_area, water_temperature, dry_bulb, moisture_content, reference_temperature, bathers, reference_coefficient, pressure, out, where))


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
    return PoolEvaporationFromWetBulb._make(_pool_evaporation_from_wet_bulb(water_area, wetted_area, water_temperature, dry_bulb, wet_bulb, reference_temperature, bathers, reference_coefficient, pressure, out, where))


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
    Definition of relative humidity, with the saturation pressure of PSSVP.

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
    psychrometer : Psychrometer or array_like of int
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
    psychrometer : Psychrometer or array_like of int
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
    The coefficient of an iced bulb is taken when the dry bulb is below 0 °C, where PSVAP looks at
    the wet bulb; the asymmetry is deliberate.

    A stepping search that ends within 0.1 K: the result moves in small jumps with its arguments.

    Relative humidity is limited to 0 to 100 %. Where the search would never end (a pressure of zero
    or below, say), the value it has reached is returned.

    A psychrometer type below 1 counts as 1, above 2 as 2.

    Each element has the bits of PSTWET in quorvel.h.

    References
    ----------
    Psychrometer equation of PSVAP, solved by a step-and-refine search.

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
    psychrometer : Psychrometer or array_like of int
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
    Psychrometer equation of PSVAP with the moisture content of PSGS, solved by a step-and-refine
    search.

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
    psychrometer : Psychrometer or array_like of int
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
    Psychrometer equation of PSVAP with the moisture content of PSGS, solved by a step-and-refine
    search.

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
