"""Calendar, sun and sky: the routines of the library, element by element."""

# Produced from the catalogue of routines (catalogue/); do not edit.

from collections import namedtuple

from .._core import functions
from ..selectors import BandSet, DayKind, SkyKind, SkyModel, TimeKind

_new = tuple.__new__  # a third of the time of _make

__all__ = [
    "BandSet",
    "DayKind",
    "SkyKind",
    "SkyModel",
    "TimeKind",
    "LocateBand",
    "BandClimate",
    "DesignIrradiance",
    "MuneerSlope",
    "SiteConstants",
    "AlmanacPosition",
    "AlmanacSunHours",
    "SolarGeometry",
    "SurfaceAngles",
    "SurfaceIrradiance",
    "SurfaceIrradianceAndIncidence",
    "locate_band",
    "band_climate",
    "interpolate_band_rows",
    "band_row",
    "store_design_day",
    "store_design_day_by_option",
    "design_day",
    "design_day_by_option",
    "second_design_day",
    "second_design_day_by_option",
    "daily_temperature",
    "daily_value",
    "design_irradiance",
    "height_factor",
    "eccentricity_factor",
    "clearness_index",
    "muneer_slope",
    "perez_diffuse",
    "site_constants",
    "diffuse_tilt_factor",
    "slope_diffuse",
    "sol_air_temperature",
    "long_wave_loss",
    "solar_time_correction",
    "almanac_position",
    "almanac_sun_hours",
    "solar_geometry",
    "surface_angles",
    "surface_irradiance",
    "surface_irradiance_and_incidence",
]

_locate_band = functions["locate_band"]
_band_climate = functions["band_climate"]
_interpolate_band_rows = functions["interpolate_band_rows"]
_band_row = functions["band_row"]
_store_design_day = functions["store_design_day"]
_store_design_day_by_option = functions["store_design_day_by_option"]
_design_day = functions["design_day"]
_design_day_by_option = functions["design_day_by_option"]
_second_design_day = functions["second_design_day"]
_second_design_day_by_option = functions["second_design_day_by_option"]
_daily_temperature = functions["daily_temperature"]
_daily_value = functions["daily_value"]
_design_irradiance = functions["design_irradiance"]
_height_factor = functions["height_factor"]
_eccentricity_factor = functions["eccentricity_factor"]
_clearness_index = functions["clearness_index"]
_muneer_slope = functions["muneer_slope"]
_perez_diffuse = functions["perez_diffuse"]
_site_constants = functions["site_constants"]
_diffuse_tilt_factor = functions["diffuse_tilt_factor"]
_slope_diffuse = functions["slope_diffuse"]
_sol_air_temperature = functions["sol_air_temperature"]
_long_wave_loss = functions["long_wave_loss"]
_solar_time_correction = functions["solar_time_correction"]
_almanac_position = functions["almanac_position"]
_almanac_sun_hours = functions["almanac_sun_hours"]
_solar_geometry = functions["solar_geometry"]
_surface_angles = functions["surface_angles"]
_surface_irradiance = functions["surface_irradiance"]
_surface_irradiance_and_incidence = functions["surface_irradiance_and_incidence"]


LocateBand = namedtuple("LocateBand", "lower_band upper_band band_weight")
LocateBand.__doc__ = """What locate_band returns.

    lower_band: lower band, 1 to 9
    upper_band: upper band, 2 to 10
    band_weight: (fraction - F(lower)) / (F(upper) - F(lower)), limited to -1 to 1
"""

BandClimate = namedtuple("BandClimate", "percentage q1 q2 q3 q4 q5 q6 time_a time_b q7 q8")
BandClimate.__doc__ = """What band_climate returns.

    percentage: cumulative percentage of days: given with band 0, otherwise returned [%]
    q1: quantity Q1: beam factor
    q2: quantity Q2: diffuse factor
    q3: quantity Q3: air temperature at time A [°C]
    q4: quantity Q4: air temperature at time B [°C]
    q5: quantity Q5: wet-bulb temperature at time A [°C]
    q6: quantity Q6: wet-bulb temperature at time B [°C]
    time_a: time A, in the afternoon [h]
    time_b: time B, about sunrise [h]
    q7: quantity Q7: cloud-free share of the sky [%]
    q8: quantity Q8: wind speed [m/s]
"""

DesignIrradiance = namedtuple("DesignIrradiance", "direct_normal diffuse_horizontal")
DesignIrradiance.__doc__ = """What design_irradiance returns.

    direct_normal: direct normal irradiance, the same for both skies [W/m²]
    diffuse_horizontal: diffuse irradiance on the horizontal [W/m²]
"""

MuneerSlope = namedtuple("MuneerSlope", "surface_beam surface_diffuse ground_reflected incidence")
MuneerSlope.__doc__ = """What muneer_slope returns.

    surface_beam: beam irradiance on the surface, 0 with the sun behind it [W/m²]
    surface_diffuse: diffuse irradiance of the sky on the surface [W/m²]
    ground_reflected: ground-reflected irradiance on the surface [W/m²]
    incidence: angle of incidence, 1.5707964 with the sun behind the surface [rad]
"""

SiteConstants = namedtuple("SiteConstants", "ground_reflectance beam_factor diffuse_factor alternative_diffuse_factor")
SiteConstants.__doc__ = """What site_constants returns.

    ground_reflectance: reflectance of the ground
    beam_factor: factor on the direct normal irradiance
    diffuse_factor: factor on the diffuse horizontal irradiance
    alternative_diffuse_factor: factor that takes its place where it is 0
"""

AlmanacPosition = namedtuple("AlmanacPosition", "longitude zone_meridian solar_altitude solar_azimuth declination")
AlmanacPosition.__doc__ = """What almanac_position returns.

    longitude: longitude, positive west [rad]
    zone_meridian: longitude of the clock's meridian, positive west [rad]
    solar_altitude: altitude, negative below the horizon; no refraction [rad]
    solar_azimuth: azimuth [rad]
    declination: declination [rad]
"""

AlmanacSunHours = namedtuple("AlmanacSunHours", "sunrise sunset")
AlmanacSunHours.__doc__ = """What almanac_sun_hours returns.

    sunrise: sunrise; 25 when the sun does not rise, 0 when it does not set [h]
    sunset: sunset; 25 when the sun does not set, 0 when it does not rise [h]
"""

SolarGeometry = namedtuple("SolarGeometry", "declination solar_altitude solar_azimuth sunrise sunset")
SolarGeometry.__doc__ = """What solar_geometry returns.

    declination: declination [rad]
    solar_altitude: altitude, 0 when the sun is below the horizon [rad]
    solar_azimuth: azimuth, 0 when the sun is below the horizon [rad]
    sunrise: sunrise; 25 when the sun does not rise, 0 when it does not set [h]
    sunset: sunset; 25 when the sun does not set, 0 when it does not rise [h]
"""

SurfaceAngles = namedtuple("SurfaceAngles", "incidence vertical_shadow_angle horizontal_shadow_angle")
SurfaceAngles.__doc__ = """What surface_angles returns.

    incidence: angle of incidence, 0 to pi; above pi/2 the sun is behind the surface [rad]
    vertical_shadow_angle: angle off the normal in the plane of normal and slope, positive up
    the slope; the profile angle of a vertical surface [rad]
    horizontal_shadow_angle: angle off the normal in the plane of normal and level line,
    positive clockwise seen from above [rad]
"""

SurfaceIrradiance = namedtuple("SurfaceIrradiance", "surface_beam surface_diffuse ground_reflected")
SurfaceIrradiance.__doc__ = """What surface_irradiance returns.

    surface_beam: beam irradiance on the surface, 0 with the sun behind it [W/m²]
    surface_diffuse: diffuse irradiance of the sky on the surface [W/m²]
    ground_reflected: ground-reflected irradiance on the surface [W/m²]
"""

SurfaceIrradianceAndIncidence = namedtuple("SurfaceIrradianceAndIncidence", "surface_beam surface_diffuse ground_reflected incidence")
SurfaceIrradianceAndIncidence.__doc__ = """What surface_irradiance_and_incidence returns.

    surface_beam: beam irradiance on the surface, 0 with the sun behind it [W/m²]
    surface_diffuse: diffuse irradiance of the sky on the surface [W/m²]
    ground_reflected: ground-reflected irradiance on the surface [W/m²]
    incidence: angle of incidence, 1.5707964 with the sun behind the surface [rad]
"""

def locate_band(fraction, month, frequencies, *, out=None):
    """Where a cumulative fraction of days lies among the ten bands of a month, in frequencies of the
    caller.

    Parameters
    ----------
    fraction : array_like of float
        Cumulative fraction of days; valid 0 to 1.
    month : array_like of int
        Month; valid 1 to 12.
    frequencies : array_like of float, shape (..., 10, 12)
        Cumulative frequencies of each band in each month, not falling with the band; valid 0 to 1.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    LocateBand
        A named tuple of:

    lower_band : int32
        Lower band, 1 to 9.
    upper_band : int32
        Upper band, 2 to 10.
    band_weight : float32
        (fraction - F(lower)) / (F(upper) - F(lower)), limited to -1 to 1.

    Notes
    -----
    Fractions, where `band_climate` takes a percentage.

    At or below the first band's frequency the weight is 0 or negative. Bands of equal frequency are
    skipped upwards, to band 10 at most; for a fraction equal to the frequencies of all the rest the
    weight is not a number.

    A month outside 1 to 12 counts as the nearest. A fraction that is not a number gives bands 9 and
    10 and a weight that is not a number.

    Each element has the bits of CLBAN1 in quorvel.h.

    References
    ----------
    Search for linear interpolation.

    Examples
    --------
    >>> from quorvel.climate import locate_band
    >>> result = locate_band(fraction=0.25, month=6, frequencies=[[0.1, 0.1, 0.1, 0.1, 0.1, 0.1,
    ...     0.1, 0.1, 0.1, 0.1, 0.1, 0.1], [0.2, 0.2, 0.2, 0.2, 0.2, 0.2, 0.2, 0.2, 0.2, 0.2, 0.2,
    ...     0.2], [0.3, 0.3, 0.3, 0.3, 0.3, 0.3, 0.3, 0.3, 0.3, 0.3, 0.3, 0.3], [0.4, 0.4, 0.4, 0.4,
    ...     0.4, 0.4, 0.4, 0.4, 0.4, 0.4, 0.4, 0.4], [0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5,
    ...     0.5, 0.5, 0.5], [0.6, 0.6, 0.6, 0.6, 0.6, 0.6, 0.6, 0.6, 0.6, 0.6, 0.6, 0.6], [0.7, 0.7,
    ...     0.7, 0.7, 0.7, 0.7, 0.7, 0.7, 0.7, 0.7, 0.7, 0.7], [0.8, 0.8, 0.8, 0.8, 0.8, 0.8, 0.8,
    ...     0.8, 0.8, 0.8, 0.8, 0.8], [0.9, 0.9, 0.9, 0.9, 0.9, 0.9, 0.9, 0.9, 0.9, 0.9, 0.9, 0.9],
    ...     [1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1]])
    >>> bool(abs(result.lower_band - 2) <= 1e-06)
    True
    >>> bool(abs(result.upper_band - 3) <= 1e-06)
    True
    >>> bool(abs(result.band_weight - 0.5) <= 1e-06)
    True

    (0.25 is half way from 0.2 to 0.3)
    """
    return _new(LocateBand, _locate_band(fraction, month, frequencies, out, True))


def band_climate(band, month, band_set, percentage, *, out=None, where=True):
    """Monthly climate of one of ten bands of days, or interpolated at a cumulative percentage of days.

    Parameters
    ----------
    band : array_like of int
        Band, or 0 to interpolate at the percentage; valid 0 to 10.
    month : array_like of int
        Month; valid 1 to 12.
    band_set : BandSet, or array_like of its names or numbers
        Set of bands: 1 bands from the warmest to the coldest days, 2 bands from the highest to the
        lowest Q1.
    percentage : array_like of float
        Cumulative percentage of days: given with band 0, otherwise returned [%]; valid 0 to 100.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    BandClimate
        A named tuple of:

    percentage : float32
        Cumulative percentage of days: given with band 0, otherwise returned [%]; as given with band
        0.
    q1 : float32
        Quantity Q1: beam factor.
    q2 : float32
        Quantity Q2: diffuse factor.
    q3 : float32
        Quantity Q3: air temperature at time A [°C].
    q4 : float32
        Quantity Q4: air temperature at time B [°C].
    q5 : float32
        Quantity Q5: wet-bulb temperature at time A [°C].
    q6 : float32
        Quantity Q6: wet-bulb temperature at time B [°C].
    time_a : float32
        Time A, in the afternoon [h].
    time_b : float32
        Time B, about sunrise [h].
    q7 : float32
        Quantity Q7: cloud-free share of the sky [%].
    q8 : float32
        Quantity Q8: wind speed [m/s].

    Notes
    -----
    A percentage below band 1 extrapolates backwards from it, by the step to band 2 at most; one
    above 100 gives band 10.

    A band below 0 counts as 1 and above 10 as 10, a month outside 1 to 12 as the nearest, a set
    other than 2 as 1. A percentage that is not a number makes Q1 to Q8 not numbers.

    The table built in is representative and not measured; data/bands tells how it was made and how
    to build with data of your own. Q1 to Q8 mean what the table's maker says; the meanings here are
    those of the table built in.

    Each element has the bits of CLBAND in quorvel.h.

    References
    ----------
    Linear interpolation in the band table.

    Examples
    --------
    >>> from quorvel.climate import BandSet, band_climate
    >>> result = band_climate(band=10, month=6, band_set=BandSet.first, percentage=0)
    >>> bool(abs(result.percentage - 100) <= 0.0001)
    True

    (the tenth band holds the last of the days)
    """
    return _new(BandClimate, _band_climate(band, month, band_set, percentage, out, where))


def interpolate_band_rows(base_row, lower_band, upper_band, month, band_weight, *, out=None, where=True):
    """Value between two rows of the band table.

    Parameters
    ----------
    base_row : array_like of int
        Row before the quantity's band 1: 2 for F, 12 for Q1, 22 for Q2 and so on in set 1; 92 more
        in set 2; valid 0 to 174.
    lower_band : array_like of int
        Lower band; valid 1 to 10.
    upper_band : array_like of int
        Upper band; valid 1 to 10.
    month : array_like of int
        Month; valid 1 to 12.
    band_weight : array_like of float
        Share of the step from the lower to the upper row; valid -1 to 1.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    value : float32
        Value, in the quantity's unit.

    Notes
    -----
    Rows base_row + lower_band and base_row + upper_band outside 1 to 184 count as the nearest row,
    a month outside 1 to 12 as the nearest month.

    Each element has the bits of CLBAN2 in quorvel.h.

    References
    ----------
    Linear interpolation in the band table.

    Examples
    --------
    >>> from quorvel.climate import interpolate_band_rows
    >>> result = interpolate_band_rows(base_row=2, lower_band=10, upper_band=10, month=1,
    ...     band_weight=0)
    >>> bool(result == 1)
    True

    (the tenth band holds the last of the days)
    """
    return _interpolate_band_rows(base_row, lower_band, upper_band, month, band_weight, out, where)


def band_row(row, *, out=None):
    """One row of the band table, a value per month.

    Parameters
    ----------
    row : array_like of int
        Row: 1 to 92 in set 1, 93 to 184 in set 2; valid 1 to 184.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    values : float32, shape (..., 12)
        Values from January to December, in the row's unit.

    Notes
    -----
    Rows of a set: 1 time A, 2 time B, 3 to 12 cumulative frequency F of bands 1 to 10, 13 to 22 Q1,
    23 to 32 Q2 and so on to Q8.

    A row below 1 counts as 1, above 184 as 184.

    Each element has the bits of CLBAN3 in quorvel.h.

    References
    ----------
    The band table; see data/bands.

    Examples
    --------
    >>> from quorvel.climate import band_row
    >>> result = band_row(row=12)
    >>> all(abs(a - b) <= 0 for a, b in zip(result.flat, [1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1]))
    True

    (the tenth band holds the last of the days)
    """
    return _band_row(row, out, True)


def store_design_day(month, *, out=None, where=True):
    """Design day of a month as a day of the year, as `design_day` gives it.

    Parameters
    ----------
    month : array_like of int
        Month; valid 1 to 12.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    day : int32
        Design day of the year.

    Notes
    -----
    A month outside 1 to 12 gives 0.

    The year has 365 days.

    Each element has the bits of CLDAY in quorvel.h.

    References
    ----------
    Table of customary design days, close to the 21st of each month.

    Examples
    --------
    >>> from quorvel.climate import store_design_day
    >>> result = store_design_day(month=6)
    >>> bool(abs(result - 172) <= 1)
    True

    (the longest day)
    """
    return _store_design_day(month, out, where)


def store_design_day_by_option(month, day_kind, *, out=None, where=True):
    """Design day of a month as a day of the year or of the month, as `design_day_by_option` gives it.

    Parameters
    ----------
    month : array_like of int
        Month; valid 1 to 12.
    day_kind : DayKind, or array_like of its names or numbers
        How the day is counted: 1 day of the month, 2 day of the year.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    day : int32
        Design day.

    Notes
    -----
    The two counts are separate sets and not the same date: in February day 52 of the year (the
    21st) stands beside the 20th.

    A month outside 1 to 12 gives 0; another way of counting counts as 2.

    Each element has the bits of CLDAYEX in quorvel.h.

    References
    ----------
    Table of customary design days, close to the 21st of each month.

    Examples
    --------
    >>> from quorvel.climate import DayKind, store_design_day_by_option
    >>> result = store_design_day_by_option(month=12, day_kind=DayKind.of_month)
    >>> bool(abs(result - 21) <= 1)
    True

    (the shortest day)
    """
    return _store_design_day_by_option(month, day_kind, out, where)


def design_day(month, *, out=None, where=True):
    """Design day of a month as a day of the year.

    Parameters
    ----------
    month : array_like of int
        Month; valid 1 to 12.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    day : int32
        Design day of the year.

    Notes
    -----
    A month outside 1 to 12 gives 0.

    The year has 365 days.

    Each element has the bits of ICLDAY in quorvel.h.

    References
    ----------
    Table of customary design days, close to the 21st of each month.

    Examples
    --------
    >>> from quorvel.climate import design_day
    >>> result = design_day(month=6)
    >>> bool(abs(result - 172) <= 1)
    True

    (the longest day)
    """
    return _design_day(month, out, where)


def design_day_by_option(month, day_kind, *, out=None, where=True):
    """Design day of a month as a day of the year or of the month.

    Parameters
    ----------
    month : array_like of int
        Month; valid 1 to 12.
    day_kind : DayKind, or array_like of its names or numbers
        How the day is counted: 1 day of the month, 2 day of the year.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    day : int32
        Design day.

    Notes
    -----
    The two counts are separate sets and not the same date: in February day 52 of the year (the
    21st) stands beside the 20th.

    A month outside 1 to 12 gives 0; another way of counting counts as 2.

    Each element has the bits of ICLDAYEX in quorvel.h.

    References
    ----------
    Table of customary design days, close to the 21st of each month.

    Examples
    --------
    >>> from quorvel.climate import DayKind, design_day_by_option
    >>> result = design_day_by_option(month=12, day_kind=DayKind.of_year)
    >>> bool(abs(result - 355) <= 1)
    True

    (the shortest day)
    """
    return _design_day_by_option(month, day_kind, out, where)


def second_design_day(month, *, out=None, where=True):
    """Second design day of a month as a day of the year.

    Parameters
    ----------
    month : array_like of int
        Month; valid 1 to 12.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    day : int32
        Second design day of the year.

    Notes
    -----
    A month outside 1 to 12 gives 0.

    The year has 365 days.

    Each element has the bits of ICLDA2 in quorvel.h.

    References
    ----------
    Table of design days: about the 29th until May, 21 June, the 4th from July.

    Examples
    --------
    >>> from quorvel.climate import second_design_day
    >>> result = second_design_day(month=6)
    >>> bool(result == 172)
    True

    (21 June)
    """
    return _second_design_day(month, out, where)


def second_design_day_by_option(month, day_kind, *, out=None, where=True):
    """Second design day of a month as a day of the year or of the month.

    Parameters
    ----------
    month : array_like of int
        Month; valid 1 to 12.
    day_kind : DayKind, or array_like of its names or numbers
        How the day is counted: 1 day of the month, 2 day of the year.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    day : int32
        Second design day.

    Notes
    -----
    Both counts are the same date here.

    A month outside 1 to 12 gives 0; another way of counting counts as 2.

    Each element has the bits of ICLDA2EX in quorvel.h.

    References
    ----------
    Table of design days: about the 29th until May, 21 June, the 4th from July.

    Examples
    --------
    >>> from quorvel.climate import DayKind, second_design_day_by_option
    >>> result = second_design_day_by_option(month=7, day_kind=DayKind.of_month)
    >>> bool(result == 4)
    True

    (4 July)
    """
    return _second_design_day_by_option(month, day_kind, out, where)


def daily_temperature(hour, highest_temperature, lowest_temperature, hour_of_highest, hour_of_lowest, *, out=None, where=True):
    """Temperature at an hour of a day, by half cosine waves between its highest and its lowest.

    Parameters
    ----------
    hour : array_like of float
        Hour [h]; valid 0 to 24.
    highest_temperature : array_like of float
        Highest temperature of the day [°C]; valid -100 to 200.
    lowest_temperature : array_like of float
        Lowest temperature of the day [°C]; valid -100 to 200.
    hour_of_highest : array_like of float
        Hour of the highest [h]; valid 0 to 24.
    hour_of_lowest : array_like of float
        Hour of the lowest [h]; valid 0 to 24.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    temperature : float32
        Temperature [°C].

    Notes
    -----
    Formula: m + a cos(pi h / L) after the highest, m - a cos(pi h / L) after the lowest; m = mean
    of both, a = half their difference, h = hours since the one passed last, L = hours from it to
    the other

    The same before and after midnight if the next day is like this one.

    Hours of the extremes that coincide give the mean at every hour. With one at 0 and the other at
    24 the wave through midnight has no length: at the later of the two the result is no number.

    Pi is 3.141593 here, a step above the float nearest to it, so the extremes are met to rounding.

    Each element has the bits of CLTAO in quorvel.h.

    References
    ----------
    Two half cosine waves.

    Examples
    --------
    >>> from quorvel.climate import daily_temperature
    >>> result = daily_temperature(hour=14, highest_temperature=25, lowest_temperature=15,
    ...     hour_of_highest=14, hour_of_lowest=4)
    >>> bool(abs(result - 25) <= 0.0001)
    True

    (the highest at its hour)
    """
    return _daily_temperature(hour, highest_temperature, lowest_temperature, hour_of_highest, hour_of_lowest, out, where)


def daily_value(hour, mean, amplitude, first_hour, second_hour, amplitude_factor, *, out=None, where=True):
    """Value at an hour of a day that swings about its mean by half cosine waves between two hours.

    Parameters
    ----------
    hour : array_like of float
        Hour [h]; valid 0 to 24.
    mean : array_like of float
        Mean, in the unit of the result.
    amplitude : array_like of float
        Half the difference of the extremes, in the same unit.
    first_hour : array_like of float
        Hour of the first extreme, the highest if amplitude times amplitude_factor is positive [h];
        valid 0 to 24.
    second_hour : array_like of float
        Hour of the second extreme, after the first [h]; valid 0 to 24.
    amplitude_factor : array_like of float
        Factor on the amplitude.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    value : float32
        Value.

    Notes
    -----
    Formula: mean + a cos(pi (hour - first_hour) / (second_hour - first_hour)) between the two
    hours, mean - a cos(pi h / (first_hour + 24 - second_hour)) h hours after the second; a =
    amplitude_factor amplitude

    The order of the hours is not checked: with the second before the first, the wave that should go
    through midnight runs beyond its extreme.

    Pi as in `daily_temperature`.

    Each element has the bits of CLTAOX in quorvel.h.

    References
    ----------
    Two half cosine waves.

    Examples
    --------
    >>> from quorvel.climate import daily_value
    >>> result = daily_value(hour=15, mean=20, amplitude=5, first_hour=3, second_hour=15,
    ...     amplitude_factor=-1)
    >>> bool(abs(result - 25) <= 0.0001)
    True

    (the second extreme at its hour, the highest for a negative factor)
    """
    return _daily_value(hour, mean, amplitude, first_hour, second_hour, amplitude_factor, out, where)


def design_irradiance(solar_altitude, site_height, sky_kind, *, out=None, where=True):
    """Design irradiance by solar altitude: direct normal and diffuse horizontal.

    Parameters
    ----------
    solar_altitude : array_like of float
        Solar altitude [rad]; valid 0 to 1.5707964.
    site_height : array_like of float
        Height of the site above sea level [m]; valid 0 to 4000.
    sky_kind : SkyKind, or array_like of its names or numbers
        Kind of sky: 0 clear, 1 cloudy: the larger diffuse irradiance.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    DesignIrradiance
        A named tuple of:

    direct_normal : float32
        Direct normal irradiance, the same for both skies [W/m²].
    diffuse_horizontal : float32
        Diffuse irradiance on the horizontal [W/m²].

    Notes
    -----
    Formula: direct_normal = 1035.49 - 156.13 / a - 1.91863 / a^2 + 2.51353 / a^3 - 0.148842 / a^4;
    diffuse_horizontal = 1.52269 + 280.358 a - 375.111 a^2 + 253.716 a^3 - 63.3311 a^4 of the clear
    sky, 0.331322 + 283.1 a + 4.42111 a^2 of the cloudy one; a = solar_altitude above 0.087

    Both grow with the height by the factor of `height_factor`.

    Up to 0.087 rad both are proportional to the altitude, also below 0, where they are negative.
    The direct irradiance falls by 2 W/m² where the polynomial takes over.

    An altitude beyond 1.5707964 in size gives two zeros. A sky kind below 0 counts as 0, above 1 as
    1.

    Each element has the bits of CLSNNR in quorvel.h.

    References
    ----------
    Polynomials through the design irradiances of a clear and a cloudy sky that building services
    guides print.

    Examples
    --------
    >>> from quorvel.climate import SkyKind, design_irradiance
    >>> result = design_irradiance(solar_altitude=0.523599, site_height=0, sky_kind=SkyKind.clear)
    >>> bool(abs(result.direct_normal - 740) <= 7.4)
    True

    (standard clear sky of P. Moon, 1940, the sun 30° high)
    """
    return _new(DesignIrradiance, _design_irradiance(solar_altitude, site_height, sky_kind, out, where))


def height_factor(site_height, solar_altitude, *, out=None, where=True):
    """Factor by which irradiance grows with the height of the site.

    Parameters
    ----------
    site_height : array_like of float
        Height of the site above sea level [m]; valid 0 to 4000.
    solar_altitude : array_like of float
        Solar altitude [rad]; valid 0 to 1.5707964.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    factor : float32
        Factor.

    Notes
    -----
    Formula: 1.02 + site_height (0.00002 + 0.00005 / sin(solar_altitude))

    1 below 300 m, and for suns whose sine of altitude is below 0.08; the factor jumps from 1 to
    1.041 or more at 300 m.

    Each element has the bits of CLHIGH in quorvel.h.

    References
    ----------
    Linear fit to height corrections of design irradiance.

    Examples
    --------
    >>> from quorvel.climate import height_factor
    >>> result = height_factor(site_height=0, solar_altitude=0.5235988)
    >>> bool(result == 1)
    True

    (the design irradiance is that of sea level)
    """
    return _height_factor(site_height, solar_altitude, out, where)


def eccentricity_factor(day, *, out=None, where=True):
    """Irradiance outside the atmosphere on a day, by that at the mean distance of the sun.

    Parameters
    ----------
    day : array_like of int
        Day of the year; valid 1 to 366.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    factor : float32
        Factor.

    Notes
    -----
    Formula: 1 + 0.03344 cos((360 day / 365.25 - 2.8) pi / 180)

    0.967 to 1.033; greatest in the first days of January.

    Each element has the bits of CLETAJ in quorvel.h.

    References
    ----------
    Correction of the European Solar Radiation Atlas, 1 + 0.03344 cos(day angle - 2.8 degrees).

    Examples
    --------
    >>> from quorvel.climate import eccentricity_factor
    >>> result = eccentricity_factor(day=3)
    >>> bool(abs(result - 1.034) <= 0.002)
    True

    ((1 / 0.983 AU)² at perihelion)
    """
    return _eccentricity_factor(day, out, where)


def clearness_index(day, solar_altitude, global_horizontal, *, out=None, where=True):
    """Global horizontal irradiance by that outside the atmosphere.

    Parameters
    ----------
    day : array_like of int
        Day of the year; valid 1 to 366.
    solar_altitude : array_like of float
        Solar altitude [rad]; valid 0 to 1.5707964.
    global_horizontal : array_like of float
        Global horizontal irradiance [W/m²]; valid from 0.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    clearness_index : float32
        Clearness index.

    Notes
    -----
    Formula: global_horizontal / (1367 `eccentricity_factor`(day) sin(solar_altitude))

    An altitude of 0 divides by zero: infinite, or not a number for an irradiance of 0.

    Each element has the bits of CLMODUL in quorvel.h.

    References
    ----------
    B. Y. H. Liu and R. C. Jordan, Solar Energy 4 (1960), with a solar constant of 1367 W/m² and the
    eccentricity of `eccentricity_factor`.

    Examples
    --------
    >>> from quorvel.climate import clearness_index
    >>> result = clearness_index(day=94, solar_altitude=0.5235988, global_horizontal=341.75)
    >>> bool(abs(result - 0.5) <= 0.003)
    True

    (half of 1367 sin 30° when the sun is at its mean distance)
    """
    return _clearness_index(day, solar_altitude, global_horizontal, out, where)


def muneer_slope(solar_altitude, solar_azimuth, surface_azimuth, tilt, beam_horizontal, diffuse_horizontal, extraterrestrial_horizontal, ground_reflectance, *, out=None, where=True):
    """Irradiance on a tilted surface by Muneer's sky: beam, sky diffuse and ground-reflected.

    Parameters
    ----------
    solar_altitude : array_like of float
        Solar altitude [rad]; valid 0 to 1.5707964.
    solar_azimuth : array_like of float
        Solar azimuth [rad]; valid 0 to 6.2832.
    surface_azimuth : array_like of float
        Azimuth of the surface's outward normal [rad]; valid 0 to 6.2832.
    tilt : array_like of float
        Tilt from the horizontal [rad]; valid 0 to 3.1416.
    beam_horizontal : array_like of float
        Beam irradiance on the horizontal [W/m²]; valid from 0.
    diffuse_horizontal : array_like of float
        Diffuse irradiance on the horizontal [W/m²]; valid from 0.
    extraterrestrial_horizontal : array_like of float
        Irradiance on the horizontal outside the atmosphere [W/m²]; valid 0 to 1415.
    ground_reflectance : array_like of float
        Reflectance of the ground; valid 0 to 1.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    MuneerSlope
        A named tuple of:

    surface_beam : float32
        Beam irradiance on the surface, 0 with the sun behind it [W/m²].
    surface_diffuse : float32
        Diffuse irradiance of the sky on the surface [W/m²].
    ground_reflected : float32
        Ground-reflected irradiance on the surface [W/m²].
    incidence : float32
        Angle of incidence, 1.5707964 with the sun behind the surface [rad].

    Notes
    -----
    Formula: surface_beam = beam_horizontal cos(i) / sin(h); surface_diffuse = diffuse_horizontal (f
    (1 - K) + K cos(i) / sin(h)); ground_reflected = ground_reflectance (beam_horizontal +
    diffuse_horizontal) sin(b / 2)^2; f = cos(b / 2)^2 + 2 r / (pi (2 r + 3)) (sin(b) - b cos(b) -
    pi sin(b / 2)^2), K = beam_horizontal / extraterrestrial_horizontal, h = solar_altitude, b =
    tilt, i = angle of incidence

    Radiance index r = 5.73 with the sun behind the surface; else 1.68 for a beam below 5 W/m² and
    -0.62 from there on. The circumsolar part starts above 5: exactly 5 takes -0.62 without it:
    deliberate.

    With the sun behind the surface cos(i) counts as 0; there, and up to a beam of 5 W/m², K does
    too.

    A sun up to 0.1 rad above the horizon has a form of its own: the diffuse irradiance times the
    cosine of the angle of incidence, brightened with the tilt. The result jumps there and at the
    thresholds of the beam.

    That form does not become the diffuse irradiance on the horizontal, as it does above 0.1 rad:
    there it is the diffuse irradiance times the sine of the altitude, 10 of 100 W/m² at 0.0999 rad
    and 1 at 0.01 rad, and on a wall that faces the sun 135.

    Computed in double precision: 0.1 as a single-precision altitude lies above the limit.

    The beam is divided by the sine of the altitude: an altitude of 0 gives an infinite beam on the
    surface, or no number.

    Each element has the bits of CLMUNRAD in quorvel.h.

    References
    ----------
    T. Muneer, Solar radiation model for Europe, Building Services Engineering Research and
    Technology 11 (1990); radiance of the sky after P. Moon and D. E. Spencer (1942).

    Examples
    --------
    >>> from quorvel.climate import muneer_slope
    >>> result = muneer_slope(solar_altitude=0.8, solar_azimuth=3, surface_azimuth=0, tilt=0,
    ...     beam_horizontal=300, diffuse_horizontal=150, extraterrestrial_horizontal=980.6,
    ...     ground_reflectance=0.2)
    >>> bool(abs(result.surface_beam - 300) <= 0.01)
    True
    >>> bool(abs(result.surface_diffuse - 150) <= 0.01)
    True
    >>> bool(result.ground_reflected == 0)
    True

    (a level surface sees the whole sky)
    """
    return _new(MuneerSlope, _muneer_slope(solar_altitude, solar_azimuth, surface_azimuth, tilt, beam_horizontal, diffuse_horizontal, extraterrestrial_horizontal, ground_reflectance, out, where))


def perez_diffuse(solar_altitude, tilt, beam_horizontal, diffuse_horizontal, incidence, extraterrestrial_normal, *, out=None, where=True):
    """Diffuse irradiance of the sky on a tilted surface by the anisotropic sky of Perez.

    Parameters
    ----------
    solar_altitude : array_like of float
        Solar altitude [rad]; valid 0 to 1.5707964.
    tilt : array_like of float
        Tilt from the horizontal [rad]; valid 0 to 3.1416.
    beam_horizontal : array_like of float
        Beam irradiance on the horizontal [W/m²]; valid from 0.
    diffuse_horizontal : array_like of float
        Diffuse irradiance on the horizontal [W/m²]; valid from 0.
    incidence : array_like of float
        Angle of incidence of the sun on the surface [rad]; valid 0 to 3.1416.
    extraterrestrial_normal : array_like of float
        Normal irradiance outside the atmosphere [W/m²]; valid 1320 to 1415.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    surface_diffuse : float32
        Diffuse irradiance of the sky on the surface [W/m²].

    Notes
    -----
    Formula: diffuse_horizontal ((1 - F1) cos(tilt / 2)^2 + F1 a / b + F2 sin(tilt)); a =
    cos(incidence), at least 0, b = sin(solar_altitude), at least 0.0871557; F1 = f11 + f12 D + f13
    Z, at least 0, F2 = f21 + f22 D + f23 Z

    The air mass is that of Kasten and Young with the altitude in radians in place of degrees: 16 %
    too small for the sun at 2.5 degrees, 4 % at 30 and 2 % in the zenith: deliberate.

    The circumsolar part is not below 0, the horizon's part may be; the sum is not limited.

    Computed in double precision, coefficients and limits included; a clearness on the limit of two
    rows of coefficients belongs to the lower. The result jumps between rows, as the published model
    does.

    Altitude, diffuse and extraterrestrial irradiance of 0 divide by zero.

    The formula's Z is the sun's angle from the zenith, D the brightness: the air mass times
    diffuse_horizontal / extraterrestrial_normal. The coefficients f are those of the row of the
    clearness.

    Each element has the bits of CLPERSKY in quorvel.h.

    References
    ----------
    R. Perez, P. Ineichen, R. Seals, J. Michalsky and R. Stewart, Modeling daylight availability and
    irradiance components from direct and global irradiance, Solar Energy 44 (1990): composite of
    all sites, coefficients with all their places. Air mass: F. Kasten and A. T. Young, Applied
    Optics 28 (1989).

    Examples
    --------
    >>> from quorvel.climate import perez_diffuse
    >>> result = perez_diffuse(solar_altitude=0.8, tilt=0, beam_horizontal=300,
    ...     diffuse_horizontal=150, incidence=0.7707963, extraterrestrial_normal=1367)
    >>> bool(abs(result - 150) <= 0.01)
    True

    (a level surface sees the whole sky)
    """
    return _perez_diffuse(solar_altitude, tilt, beam_horizontal, diffuse_horizontal, incidence, extraterrestrial_normal, out, where)


def site_constants(site_class, month, *, out=None, where=True):
    """Radiation constants of a site class in a month.

    Parameters
    ----------
    site_class : array_like of int
        Site class; valid 1 to 6.
    month : array_like of int
        Month; valid 1 to 12.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    SiteConstants
        A named tuple of:

    ground_reflectance : float32
        Reflectance of the ground.
    beam_factor : float32
        Factor on the direct normal irradiance.
    diffuse_factor : float32
        Factor on the diffuse horizontal irradiance.
    alternative_diffuse_factor : float32
        Factor that takes its place where it is 0.

    Notes
    -----
    Only class 1 varies over the year. Classes 4 and 6 have a diffuse factor of 0 and the
    alternative one in its place; the caller chooses.

    A site class outside 1 to 6 or a month outside 1 to 12 gives four zeros.

    Each element has the bits of CLCONS in quorvel.h.

    References
    ----------
    Table of design constants of the library.

    Examples
    --------
    >>> from quorvel.climate import site_constants
    >>> result = site_constants(site_class=5, month=6)
    >>> bool(abs(result.ground_reflectance - 0.2) <= 1e-06)
    True
    >>> bool(abs(result.beam_factor - 1) <= 1e-06)
    True
    >>> bool(abs(result.diffuse_factor - 1) <= 1e-06)
    True

    (the customary reflectance of the ground; irradiance as it is)
    """
    return _new(SiteConstants, _site_constants(site_class, month, out, where))


def diffuse_tilt_factor(day, solar_altitude, beam_horizontal, tilt, sky_model, *, out=None, where=True):
    """Diffuse irradiance of the sky on a tilted surface without circumsolar part, by that on the
    horizontal.

    Parameters
    ----------
    day : array_like of int
        Day of the year; valid 1 to 366.
    solar_altitude : array_like of float
        Solar altitude [rad]; valid 0 to 1.5707964.
    beam_horizontal : array_like of float
        Beam irradiance on the horizontal [W/m²]; valid from 0.
    tilt : array_like of float
        Tilt from the horizontal [rad]; valid 0 to 3.1416.
    sky_model : SkyModel, or array_like of its names or numbers
        Model of the sky: 0 radiance index by the kind of sky, 1 clearness, northern Europe, 2
        clearness, southern Europe, as any other value.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    factor : float32
        Factor, 1 for a horizontal surface.

    Notes
    -----
    Formula: cos(b / 2)^2 + a (sin(b) - b cos(b) - pi sin(b / 2)^2), b = tilt; model 0: a = 2 r /
    (pi (2 r + 3)), model 1: 0.00333 - 0.415 K - 0.6987 K^2, model 2: 0.00263 - 0.712 K - 0.6883
    K^2; K = beam_horizontal / (1367 `eccentricity_factor`(day) sin(solar_altitude))

    Model 0 takes the radiance index r = 5.73 up to an altitude of 0, 1.68 for a beam below 5 W/m²
    and -0.62 otherwise; the side of the surface does not matter here.

    Models 1 and 2 divide by the sine of the altitude: at 0 the factor is infinite or no number.

    Each element has the bits of CLDIFRAD in quorvel.h.

    References
    ----------
    T. Muneer, Solar radiation model for Europe, Building Services Engineering Research and
    Technology 11 (1990), with a solar constant of 1367 W/m² and the eccentricity of
    `eccentricity_factor`.

    Examples
    --------
    >>> from quorvel.climate import SkyModel, diffuse_tilt_factor
    >>> result = diffuse_tilt_factor(day=100, solar_altitude=0.8, beam_horizontal=300, tilt=0,
    ...     sky_model=SkyModel.northern_europe)
    >>> bool(abs(result - 1) <= 1e-06)
    True

    (a level surface sees the whole sky)
    """
    return _diffuse_tilt_factor(day, solar_altitude, beam_horizontal, tilt, sky_model, out, where)


def slope_diffuse(day, solar_altitude, solar_azimuth, surface_azimuth, tilt, beam_horizontal, diffuse_horizontal, sky_model, *, out=None, where=True):
    """Diffuse irradiance of the sky on a tilted surface by day of the year and model of the sky.

    Parameters
    ----------
    day : array_like of int
        Day of the year; valid 1 to 366.
    solar_altitude : array_like of float
        Solar altitude [rad]; valid 0 to 1.5707964.
    solar_azimuth : array_like of float
        Solar azimuth [rad]; valid 0 to 6.2832.
    surface_azimuth : array_like of float
        Azimuth of the surface's outward normal [rad]; valid 0 to 6.2832.
    tilt : array_like of float
        Tilt from the horizontal [rad]; valid 0 to 3.1416.
    beam_horizontal : array_like of float
        Beam irradiance on the horizontal [W/m²]; valid from 0.
    diffuse_horizontal : array_like of float
        Diffuse irradiance on the horizontal [W/m²]; valid from 0.
    sky_model : SkyModel, or array_like of its names or numbers
        Model of the sky: 0 radiance index by the kind of sky, 1 clearness, northern Europe, 2
        clearness, southern Europe, as any other value.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    surface_diffuse : float32
        Diffuse irradiance of the sky on the surface [W/m²].

    Notes
    -----
    Formula: diffuse_horizontal (f (1 - K) + K cos(i) / sin(solar_altitude)); f =
    `diffuse_tilt_factor`, i = angle of incidence

    The factor of `diffuse_tilt_factor` and a circumsolar part, weighted by the clearness of the
    beam. A sun behind the surface has no circumsolar part, as one whose direction is not a number.

    From a beam of 5 W/m² on, a sun below 0.1 rad has a form of its own, which follows the clearness
    but not the model. The result jumps there.

    On the horizontal the result is the diffuse irradiance, but for that form, which brightens it
    around the sun: at 0.0999 rad by 0.4 % for a beam of 50 W/m² and by 4.5 % for 600.

    Divides by the sine of the altitude: at 0 the result is infinite or no number.

    K is that of `diffuse_tilt_factor`.

    Each element has the bits of CLDIFSLO in quorvel.h.

    References
    ----------
    As `diffuse_tilt_factor`. Low sun: the clear sky of R. C. Temps and K. L. Coulson (Solar Energy
    19, 1977) with the modulation by T. M. Klucher (Solar Energy 23, 1979), the beam clearness in
    place of his factor.

    Examples
    --------
    >>> from quorvel.climate import SkyModel, slope_diffuse
    >>> result = slope_diffuse(day=100, solar_altitude=0.8, solar_azimuth=3, surface_azimuth=0,
    ...     tilt=0, beam_horizontal=300, diffuse_horizontal=150, sky_model=SkyModel.southern_europe)
    >>> bool(abs(result - 150) <= 0.01)
    True

    (a level surface sees the whole sky)
    """
    return _slope_diffuse(day, solar_altitude, solar_azimuth, surface_azimuth, tilt, beam_horizontal, diffuse_horizontal, sky_model, out, where)


def sol_air_temperature(base_temperature, surface_coefficient, absorptance, irradiance, long_wave_loss, *, out=None, where=True):
    """Temperature of the sol-air kind: a base temperature raised by a net gain of heat.

    Parameters
    ----------
    base_temperature : array_like of float
        Base temperature, as of the air outdoors [°C]; valid -100 to 200.
    surface_coefficient : array_like of float
        Heat transfer coefficient of the surface [W/m²K]; valid from 0.
    absorptance : array_like of float
        Absorptance; valid 0 to 1.
    irradiance : array_like of float
        Solar irradiance on the surface [W/m²]; valid from 0.
    long_wave_loss : array_like of float
        Net loss [W/m²]; valid from 0.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    temperature : float32
        Sol-air temperature [°C].

    Notes
    -----
    Formula: base_temperature + absorptance (irradiance - long_wave_loss) / surface_coefficient

    The absorptance weighs the long-wave loss as it does the irradiance.

    A coefficient of 0 divides by zero.

    Each element has the bits of CLTEO in quorvel.h.

    References
    ----------
    Heat balance of an outer surface.

    Examples
    --------
    >>> from quorvel.climate import sol_air_temperature
    >>> result = sol_air_temperature(base_temperature=20, surface_coefficient=25, absorptance=1,
    ...     irradiance=500, long_wave_loss=100)
    >>> bool(abs(result - 36) <= 1e-05)
    True

    (20 + (500 - 100) / 25)
    """
    return _sol_air_temperature(base_temperature, surface_coefficient, absorptance, irradiance, long_wave_loss, out, where)


def long_wave_loss(tilt, cloud_cover, *, out=None, where=True):
    """Net long-wave radiation that a surface loses to its surroundings, never negative.

    Parameters
    ----------
    tilt : array_like of float
        Tilt from the horizontal [rad]; valid 0 to 3.1416.
    cloud_cover : array_like of float
        Share of the sky that is covered by cloud; valid 0 to 1.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    long_wave_loss : float32
        Net loss [W/m²].

    Notes
    -----
    Formula: 72 cos(tilt) + 21 - (62 cos(tilt) + 17) cloud_cover, at least 0

    Horizontal 93 - 79 cloud_cover, vertical 21 - 17 cloud_cover, between them by the cosine of the
    tilt. Less than nothing is 0; not a number stays so.

    Each element has the bits of CLRERD in quorvel.h.

    References
    ----------
    Net long-wave losses of horizontal and vertical surfaces by cloud cover, as building services
    guides print them; meaning of the arguments inferred from these values.

    Examples
    --------
    >>> from quorvel.climate import long_wave_loss
    >>> result = long_wave_loss(tilt=0, cloud_cover=0)
    >>> bool(abs(result - 93) <= 0.0001)
    True

    (93 W/m² from a level surface under a clear sky, as building services guides print it)
    """
    return _long_wave_loss(tilt, cloud_cover, out, where)


def solar_time_correction(clock_offset, day, longitude, reference_longitude, *, out=None, where=True):
    """What is to be added to clock time to get solar time.

    Parameters
    ----------
    clock_offset : array_like of float
        Hours by which the clock is put forward, as in summer time [h].
    day : array_like of int
        Day of the year; valid 1 to 366.
    longitude : array_like of float
        Longitude of the site, positive west [rad]; valid -3.1416 to 3.1416.
    reference_longitude : array_like of float
        Longitude of the clock's meridian, positive west [rad]; valid -3.1416 to 3.1416.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    time_shift : float32
        Correction [h].

    Notes
    -----
    Formula: equation of time - clock_offset - (longitude - reference_longitude) / 0.2618

    Only the difference of the longitudes counts. Given positive east instead, it enters with the
    wrong sign.

    The equation of time stays within 0.7 min of the true one.

    The hour is rounded to 0.2618 rad here and not in `solar_geometry`: deliberate.

    Each element has the bits of CLTCOR in quorvel.h.

    References
    ----------
    Fourier series of the equation of time to the third harmonic, of the kind given by J. W.
    Spencer, Search 2 (1971); coefficients refitted.

    Examples
    --------
    >>> from quorvel.climate import solar_time_correction
    >>> result = solar_time_correction(clock_offset=0, day=307, longitude=0, reference_longitude=0)
    >>> bool(abs(result - 0.2737) <= 0.012)
    True

    (equation of time on 3 November, the greatest: 16 min 25 s)
    """
    return _solar_time_correction(clock_offset, day, longitude, reference_longitude, out, where)


def almanac_position(time_kind, year, month, day_of_month, clock_time, latitude, longitude, zone_meridian, *, out=None, where=True):
    """Altitude, azimuth and declination of the sun by calendar date and clock.

    Parameters
    ----------
    time_kind : TimeKind, or array_like of its names or numbers
        What the time is: 1 solar time; longitude and zone meridian are set to 0, 2 clock of the
        zone, at the longitude, 3 solar time; the zone meridian only dates the declination.
    year : array_like of int
        Year; valid 1976 to 2099.
    month : array_like of int
        Month; valid 1 to 12.
    day_of_month : array_like of int
        Day of the month; valid 1 to 31.
    clock_time : array_like of float
        Clock hour [h]; valid 0 to 24.
    latitude : array_like of float
        Latitude, positive north [rad]; valid -1.5707964 to 1.5707964.
    longitude : array_like of float
        Longitude, positive west [rad]; valid -3.1416 to 3.1416.
    zone_meridian : array_like of float
        Longitude of the clock's meridian, positive west [rad]; valid -3.1416 to 3.1416.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    AlmanacPosition
        A named tuple of:

    longitude : float32
        Longitude, positive west [rad]; as given except with solar time.
    zone_meridian : float32
        Longitude of the clock's meridian, positive west [rad]; as given except with solar time.
    solar_altitude : float32
        Altitude, negative below the horizon; no refraction [rad].
    solar_azimuth : float32
        Azimuth [rad].
    declination : float32
        Declination [rad].

    Notes
    -----
    Within 0.03 degrees, and of the azimuth 0.1 degrees where the sun is near due south or north,
    since a cosine of azimuth beyond 0.999999 in size counts as 1. Of this 0.02 degrees come from a
    misplaced degree factor in the equation of the centre: deliberate.

    The hour angle is not brought into -180 to 180 degrees. Its sign decides between morning and
    afternoon, so within an hour of midnight the azimuth may be the mirror image.

    A kind of time other than 1 and 2 counts as 3. Date and hour are not checked: a day beyond the
    month's end counts on into the next month. Before March 1976 three years of four are a day late;
    2100 is given a leap day.

    Each element has the bits of CLYALLOP in quorvel.h.

    References
    ----------
    Low-precision formulas of B. D. Yallop for the sun, as printed in T. Muneer, Solar Radiation and
    Daylight Models for the Energy Efficient Design of Buildings, 1997.

    Examples
    --------
    >>> from quorvel.climate import TimeKind, almanac_position
    >>> result = almanac_position(time_kind=TimeKind.zone, year=2003, month=10, day_of_month=17,
    ...     clock_time=12.508333, latitude=0.6936371, longitude=1.8357129, zone_meridian=1.8325957)
    >>> bool(abs(result.solar_altitude - 0.695898) <= 0.00035)
    True
    >>> bool(abs(result.solar_azimuth - 3.391877) <= 0.00035)
    True

    (I. Reda and A. Andreas, Solar position algorithm, NREL/TP-560-34302, 2008: the worked example)
    """
    return _new(AlmanacPosition, _almanac_position(time_kind, year, month, day_of_month, clock_time, latitude, longitude, zone_meridian, out, where))


def almanac_sun_hours(year, month, day_of_month, latitude, *, out=None, where=True):
    """Sunrise and sunset in solar time by calendar date.

    Parameters
    ----------
    year : array_like of int
        Year; valid 1976 to 2099.
    month : array_like of int
        Month; valid 1 to 12.
    day_of_month : array_like of int
        Day of the month; valid 1 to 31.
    latitude : array_like of float
        Latitude, positive north [rad]; valid -1.5707964 to 1.5707964.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    AlmanacSunHours
        A named tuple of:

    sunrise : float32
        Sunrise; 25 when the sun does not rise, 0 when it does not set [h].
    sunset : float32
        Sunset; 25 when the sun does not set, 0 when it does not rise [h].

    Notes
    -----
    The centre of the sun on a level horizon without refraction, with the declination of noon at
    Greenwich.

    Dates as in `almanac_position`. A latitude of 1.5707964, or its negative, is by rounding just
    beyond the pole: midnight sun and polar night change places there.

    Each element has the bits of CLRISESET in quorvel.h.

    References
    ----------
    Declination as `almanac_position`; sunrise equation.

    Examples
    --------
    >>> from quorvel.climate import almanac_sun_hours
    >>> result = almanac_sun_hours(year=2010, month=6, day_of_month=21, latitude=0.898845)
    >>> bool(abs(result.sunrise - 3.798) <= 0.003)
    True
    >>> bool(abs(result.sunset - 20.202) <= 0.003)
    True

    (12 h ± acos(-tan 51.5° tan 23.44°) / 15)
    """
    return _new(AlmanacSunHours, _almanac_sun_hours(year, month, day_of_month, latitude, out, where))


def solar_geometry(latitude, day, solar_time, *, out=None, where=True):
    """Declination, altitude and azimuth of the sun, sunrise and sunset, by latitude, day of the year
    and solar hour.

    Parameters
    ----------
    latitude : array_like of float
        Latitude, positive north [rad]; valid -1.5707964 to 1.5707964.
    day : array_like of int
        Day of the year; valid 1 to 365.
    solar_time : array_like of float
        Solar time, noon at 12 [h]; valid 0 to 24.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    SolarGeometry
        A named tuple of:

    declination : float32
        Declination [rad].
    solar_altitude : float32
        Altitude, 0 when the sun is below the horizon [rad].
    solar_azimuth : float32
        Azimuth, 0 when the sun is below the horizon [rad].
    sunrise : float32
        Sunrise; 25 when the sun does not rise, 0 when it does not set [h]; not a number with
        latitude, day or hour outside its range.
    sunset : float32
        Sunset; 25 when the sun does not set, 0 when it does not rise [h]; not a number with
        latitude, day or hour outside its range.

    Notes
    -----
    Formula: sin(declination) = 0.398 sin(d - 1.4096 + 0.03347 sin(d)), d = 0.01721 day;
    sin(altitude) = sin(declination) sin(latitude) + cos(declination) cos(latitude) cos(H), H =
    0.261799395 (12 - solar_time); sunrise = 12 / pi acos(tan(latitude) tan(declination)), sunset =
    24 - sunrise

    Latitude, day or hour outside its range (day 366 too) gives a declination, altitude and azimuth
    of 0.

    Within 0.5 degrees of the true position; no leap years, no refraction, the sun a point.

    Noon counts as morning. With the sun in the zenith the azimuth is arbitrary.

    A latitude of 1.5707964, or its negative, is by rounding just beyond the pole: midnight sun and
    polar night change places there.

    Not a number for the latitude or the hour makes what depends on it not a number.

    Each element has the bits of CLSNGE in quorvel.h.

    References
    ----------
    Spherical astronomy; sine of the declination as 0.398 times the sine of the sun's ecliptic
    longitude, with the first-order equation of the centre.

    Examples
    --------
    >>> from quorvel.climate import solar_geometry
    >>> result = solar_geometry(latitude=0.8985, day=172, solar_time=12)
    >>> bool(abs(result.declination - 0.4093) <= 0.003)
    True
    >>> bool(abs(result.solar_altitude - 1.0816) <= 0.003)
    True
    >>> bool(abs(result.solar_azimuth - 3.14159) <= 0.0005)
    True

    (London at noon of the longest day: 90 - 51.5 + 23.4 degrees)
    """
    return _new(SolarGeometry, _solar_geometry(latitude, day, solar_time, out, where))


def surface_angles(solar_altitude, solar_azimuth, surface_azimuth, tilt, *, out=None, where=True):
    """Angle of incidence of the sun on a surface, and its angles in the vertical and the horizontal
    sense.

    Parameters
    ----------
    solar_altitude : array_like of float
        Solar altitude [rad]; valid -1.5707964 to 1.5707964.
    solar_azimuth : array_like of float
        Solar azimuth [rad]; valid 0 to 6.2832.
    surface_azimuth : array_like of float
        Azimuth of the surface's outward normal [rad]; valid 0 to 6.2832.
    tilt : array_like of float
        Tilt from the horizontal [rad]; valid 0 to 3.1416.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    SurfaceAngles
        A named tuple of:

    incidence : float32
        Angle of incidence, 0 to pi; above pi/2 the sun is behind the surface [rad].
    vertical_shadow_angle : float32
        Angle off the normal in the plane of normal and slope, positive up the slope; the profile
        angle of a vertical surface [rad].
    horizontal_shadow_angle : float32
        Angle off the normal in the plane of normal and level line, positive clockwise seen from
        above [rad].

    Notes
    -----
    Formula: cos(incidence) = cos(solar_altitude) sin(tilt) cos(solar_azimuth - surface_azimuth) +
    sin(solar_altitude) cos(tilt)

    With the sun behind the surface the two angles exceed pi/2 in size.

    With the sun along the level line the vertical angle is pi/2, with the sun along the slope line
    the horizontal angle is -pi/2: exactly so only where the components vanish, anything by rounding
    otherwise.

    The components are rounded, so angles below 0.0005 rad are not resolved.

    Each element has the bits of CLSNSR in quorvel.h.

    References
    ----------
    Vector algebra: the sun's direction in the frame of level line, slope line and outward normal.

    Examples
    --------
    >>> from quorvel.climate import surface_angles
    >>> result = surface_angles(solar_altitude=0.7853982, solar_azimuth=3.1415927,
    ...     surface_azimuth=3.1415927, tilt=1.5707963)
    >>> bool(abs(result.incidence - 0.785398) <= 0.001)
    True
    >>> bool(abs(result.vertical_shadow_angle - 0.785398) <= 0.001)
    True
    >>> bool(abs(result.horizontal_shadow_angle - 0) <= 0.001)
    True

    (a wall that faces the azimuth of a sun 45° high)
    """
    return _new(SurfaceAngles, _surface_angles(solar_altitude, solar_azimuth, surface_azimuth, tilt, out, where))


def surface_irradiance(solar_altitude, solar_azimuth, surface_azimuth, tilt, direct_normal, diffuse_horizontal, ground_reflectance, beam_factor, diffuse_factor, *, out=None, where=True):
    """Irradiance on the plane of a surface: direct from the sun, diffuse from the sky, reflected from
    the ground.

    Parameters
    ----------
    solar_altitude : array_like of float
        Solar altitude [rad]; valid 0 to 1.5707964.
    solar_azimuth : array_like of float
        Solar azimuth [rad]; valid 0 to 6.2832.
    surface_azimuth : array_like of float
        Azimuth of the surface's outward normal [rad]; valid 0 to 6.2832.
    tilt : array_like of float
        Tilt from the horizontal [rad]; valid 0 to 3.1416.
    direct_normal : array_like of float
        Direct normal irradiance [W/m²]; valid from 0.
    diffuse_horizontal : array_like of float
        Diffuse irradiance on the horizontal [W/m²]; valid from 0.
    ground_reflectance : array_like of float
        Reflectance of the ground; valid 0 to 1.
    beam_factor : array_like of float
        Factor on the direct normal irradiance; valid from 0.
    diffuse_factor : array_like of float
        Factor on the diffuse horizontal irradiance; valid from 0.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    SurfaceIrradiance
        A named tuple of:

    surface_beam : float32
        Beam irradiance on the surface, 0 with the sun behind it [W/m²].
    surface_diffuse : float32
        Diffuse irradiance of the sky on the surface [W/m²].
    ground_reflected : float32
        Ground-reflected irradiance on the surface [W/m²].

    Notes
    -----
    Formula: surface_beam = direct_normal beam_factor cos(i); surface_diffuse = d (1 + cos(tilt)) /
    2 (1 - 0.1 sin(tilt) (1 + cos(surface_azimuth))); ground_reflected = ground_reflectance (1 -
    cos(tilt)) / 2 (d + direct_normal beam_factor sin(solar_altitude)); d = diffuse_horizontal
    diffuse_factor, i = angle of incidence, the beam 0 behind the surface

    A vertical surface gets up to 20 % less diffuse irradiance the more it faces north, whatever the
    hemisphere.

    Nothing is limited: a negative altitude or irradiance gives negative parts. An angle that is not
    a number gives a direct irradiance of 0.

    Each element has the bits of CLSORD in quorvel.h.

    References
    ----------
    Cosine law; isotropic sky and ground by view factors (B. Y. H. Liu and R. C. Jordan, Solar
    Energy 4, 1960), with an empirical darkening to the north.

    Examples
    --------
    >>> from quorvel.climate import surface_irradiance
    >>> result = surface_irradiance(solar_altitude=0.5235988, solar_azimuth=3.14159,
    ...     surface_azimuth=0, tilt=0, direct_normal=800, diffuse_horizontal=100,
    ...     ground_reflectance=0, beam_factor=1, diffuse_factor=1)
    >>> bool(abs(result.surface_beam - 400) <= 0.1)
    True

    (level surface: direct normal times sin 30°)
    """
    return _new(SurfaceIrradiance, _surface_irradiance(solar_altitude, solar_azimuth, surface_azimuth, tilt, direct_normal, diffuse_horizontal, ground_reflectance, beam_factor, diffuse_factor, out, where))


def surface_irradiance_and_incidence(solar_altitude, solar_azimuth, surface_azimuth, tilt, direct_normal, diffuse_horizontal, ground_reflectance, beam_factor, diffuse_factor, *, out=None, where=True):
    """Irradiance on the plane of a surface as `surface_irradiance`, and the angle of incidence.

    Parameters
    ----------
    solar_altitude : array_like of float
        Solar altitude [rad]; valid 0 to 1.5707964.
    solar_azimuth : array_like of float
        Solar azimuth [rad]; valid 0 to 6.2832.
    surface_azimuth : array_like of float
        Azimuth of the surface's outward normal [rad]; valid 0 to 6.2832.
    tilt : array_like of float
        Tilt from the horizontal [rad]; valid 0 to 3.1416.
    direct_normal : array_like of float
        Direct normal irradiance [W/m²]; valid from 0.
    diffuse_horizontal : array_like of float
        Diffuse irradiance on the horizontal [W/m²]; valid from 0.
    ground_reflectance : array_like of float
        Reflectance of the ground; valid 0 to 1.
    beam_factor : array_like of float
        Factor on the direct normal irradiance; valid from 0.
    diffuse_factor : array_like of float
        Factor on the diffuse horizontal irradiance; valid from 0.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    SurfaceIrradianceAndIncidence
        A named tuple of:

    surface_beam : float32
        Beam irradiance on the surface, 0 with the sun behind it [W/m²].
    surface_diffuse : float32
        Diffuse irradiance of the sky on the surface [W/m²].
    ground_reflected : float32
        Ground-reflected irradiance on the surface [W/m²].
    incidence : float32
        Angle of incidence, 1.5707964 with the sun behind the surface [rad].

    Notes
    -----
    The irradiances are those of `surface_irradiance`, bit for bit; see there.

    `surface_angles` gives the angle of incidence behind the surface too.

    Each element has the bits of CLSOR2 in quorvel.h.

    References
    ----------
    As `surface_irradiance`.

    Examples
    --------
    >>> from quorvel.climate import surface_irradiance_and_incidence
    >>> result = surface_irradiance_and_incidence(solar_altitude=0.5235988, solar_azimuth=3.1415927,
    ...     surface_azimuth=3.1415927, tilt=1.5707963, direct_normal=800, diffuse_horizontal=100,
    ...     ground_reflectance=0.2, beam_factor=1, diffuse_factor=1)
    >>> bool(abs(result.surface_beam - 692.82) <= 0.1)
    True
    >>> bool(abs(result.ground_reflected - 50) <= 0.1)
    True
    >>> bool(abs(result.incidence - 0.523599) <= 0.001)
    True

    (800 cos 30°; 0.2 (800 sin 30° + 100) / 2; the sun stands 30° off the normal)
    """
    return _new(SurfaceIrradianceAndIncidence, _surface_irradiance_and_incidence(solar_altitude, solar_azimuth, surface_azimuth, tilt, direct_normal, diffuse_horizontal, ground_reflectance, beam_factor, diffuse_factor, out, where))
