# Produced from the catalogue of routines (catalogue/); do not edit.
from typing import Any, Literal, NamedTuple, overload

from numpy import bool_, float32, float64, int32
from numpy.typing import ArrayLike, NDArray

from ..selectors import BandSet as BandSet
from ..selectors import DayKind as DayKind
from ..selectors import SkyKind as SkyKind
from ..selectors import SkyModel as SkyModel
from ..selectors import TimeKind as TimeKind

class LocateBand(NamedTuple):
    lower_band: Any
    upper_band: Any
    band_weight: Any

def locate_band(fraction: ArrayLike, month: ArrayLike, frequencies: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ...) -> LocateBand: ...

class BandClimate(NamedTuple):
    percentage: Any
    q1: Any
    q2: Any
    q3: Any
    q4: Any
    q5: Any
    q6: Any
    time_a: Any
    time_b: Any
    q7: Any
    q8: Any

def band_climate(band: ArrayLike, month: ArrayLike, band_set: ArrayLike, percentage: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> BandClimate: ...

@overload
def interpolate_band_rows(base_row: int, lower_band: int, upper_band: int, month: int, band_weight: float, *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def interpolate_band_rows(base_row: ArrayLike, lower_band: ArrayLike, upper_band: ArrayLike, month: ArrayLike, band_weight: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

def band_row(row: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

@overload
def store_design_day(month: int, *, out: None = ..., where: Literal[True] = ...) -> int32: ...
@overload
def store_design_day(month: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[int32]: ...

@overload
def store_design_day_by_option(month: int, day_kind: int | Literal['of_month', 'of_year'], *, out: None = ..., where: Literal[True] = ...) -> int32: ...
@overload
def store_design_day_by_option(month: ArrayLike, day_kind: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[int32]: ...

@overload
def design_day(month: int, *, out: None = ..., where: Literal[True] = ...) -> int32: ...
@overload
def design_day(month: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[int32]: ...

@overload
def design_day_by_option(month: int, day_kind: int | Literal['of_month', 'of_year'], *, out: None = ..., where: Literal[True] = ...) -> int32: ...
@overload
def design_day_by_option(month: ArrayLike, day_kind: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[int32]: ...

@overload
def second_design_day(month: int, *, out: None = ..., where: Literal[True] = ...) -> int32: ...
@overload
def second_design_day(month: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[int32]: ...

@overload
def second_design_day_by_option(month: int, day_kind: int | Literal['of_month', 'of_year'], *, out: None = ..., where: Literal[True] = ...) -> int32: ...
@overload
def second_design_day_by_option(month: ArrayLike, day_kind: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[int32]: ...

@overload
def daily_temperature(hour: float, highest_temperature: float, lowest_temperature: float, hour_of_highest: float, hour_of_lowest: float, *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def daily_temperature(hour: ArrayLike, highest_temperature: ArrayLike, lowest_temperature: ArrayLike, hour_of_highest: ArrayLike, hour_of_lowest: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

@overload
def daily_value(hour: float, mean: float, amplitude: float, first_hour: float, second_hour: float, amplitude_factor: float, *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def daily_value(hour: ArrayLike, mean: ArrayLike, amplitude: ArrayLike, first_hour: ArrayLike, second_hour: ArrayLike, amplitude_factor: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

class DesignIrradiance(NamedTuple):
    direct_normal: Any
    diffuse_horizontal: Any

def design_irradiance(solar_altitude: ArrayLike, site_height: ArrayLike, sky_kind: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> DesignIrradiance: ...

@overload
def height_factor(site_height: float, solar_altitude: float, *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def height_factor(site_height: ArrayLike, solar_altitude: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

@overload
def eccentricity_factor(day: int, *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def eccentricity_factor(day: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

@overload
def clearness_index(day: int, solar_altitude: float, global_horizontal: float, *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def clearness_index(day: ArrayLike, solar_altitude: ArrayLike, global_horizontal: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

class MuneerSlope(NamedTuple):
    surface_beam: Any
    surface_diffuse: Any
    ground_reflected: Any
    incidence: Any

def muneer_slope(solar_altitude: ArrayLike, solar_azimuth: ArrayLike, surface_azimuth: ArrayLike, tilt: ArrayLike, beam_horizontal: ArrayLike, diffuse_horizontal: ArrayLike, extraterrestrial_horizontal: ArrayLike, ground_reflectance: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> MuneerSlope: ...

@overload
def perez_diffuse(solar_altitude: float, tilt: float, beam_horizontal: float, diffuse_horizontal: float, incidence: float, extraterrestrial_normal: float, *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def perez_diffuse(solar_altitude: ArrayLike, tilt: ArrayLike, beam_horizontal: ArrayLike, diffuse_horizontal: ArrayLike, incidence: ArrayLike, extraterrestrial_normal: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

class SiteConstants(NamedTuple):
    ground_reflectance: Any
    beam_factor: Any
    diffuse_factor: Any
    alternative_diffuse_factor: Any

def site_constants(site_class: ArrayLike, month: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> SiteConstants: ...

@overload
def diffuse_tilt_factor(day: int, solar_altitude: float, beam_horizontal: float, tilt: float, sky_model: int | Literal['radiance_index', 'northern_europe', 'southern_europe'], *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def diffuse_tilt_factor(day: ArrayLike, solar_altitude: ArrayLike, beam_horizontal: ArrayLike, tilt: ArrayLike, sky_model: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

@overload
def slope_diffuse(day: int, solar_altitude: float, solar_azimuth: float, surface_azimuth: float, tilt: float, beam_horizontal: float, diffuse_horizontal: float, sky_model: int | Literal['radiance_index', 'northern_europe', 'southern_europe'], *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def slope_diffuse(day: ArrayLike, solar_altitude: ArrayLike, solar_azimuth: ArrayLike, surface_azimuth: ArrayLike, tilt: ArrayLike, beam_horizontal: ArrayLike, diffuse_horizontal: ArrayLike, sky_model: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

@overload
def sol_air_temperature(base_temperature: float, surface_coefficient: float, absorptance: float, irradiance: float, long_wave_loss: float, *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def sol_air_temperature(base_temperature: ArrayLike, surface_coefficient: ArrayLike, absorptance: ArrayLike, irradiance: ArrayLike, long_wave_loss: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

@overload
def long_wave_loss(tilt: float, cloud_cover: float, *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def long_wave_loss(tilt: ArrayLike, cloud_cover: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

@overload
def solar_time_correction(clock_offset: float, day: int, longitude: float, reference_longitude: float, *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def solar_time_correction(clock_offset: ArrayLike, day: ArrayLike, longitude: ArrayLike, reference_longitude: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

class AlmanacPosition(NamedTuple):
    longitude: Any
    zone_meridian: Any
    solar_altitude: Any
    solar_azimuth: Any
    declination: Any

def almanac_position(time_kind: ArrayLike, year: ArrayLike, month: ArrayLike, day_of_month: ArrayLike, clock_time: ArrayLike, latitude: ArrayLike, longitude: ArrayLike, zone_meridian: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> AlmanacPosition: ...

class AlmanacSunHours(NamedTuple):
    sunrise: Any
    sunset: Any

def almanac_sun_hours(year: ArrayLike, month: ArrayLike, day_of_month: ArrayLike, latitude: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> AlmanacSunHours: ...

class SolarGeometry(NamedTuple):
    declination: Any
    solar_altitude: Any
    solar_azimuth: Any
    sunrise: Any
    sunset: Any

def solar_geometry(latitude: ArrayLike, day: ArrayLike, solar_time: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> SolarGeometry: ...

class SurfaceAngles(NamedTuple):
    incidence: Any
    vertical_shadow_angle: Any
    horizontal_shadow_angle: Any

def surface_angles(solar_altitude: ArrayLike, solar_azimuth: ArrayLike, surface_azimuth: ArrayLike, tilt: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> SurfaceAngles: ...

class SurfaceIrradiance(NamedTuple):
    surface_beam: Any
    surface_diffuse: Any
    ground_reflected: Any

def surface_irradiance(solar_altitude: ArrayLike, solar_azimuth: ArrayLike, surface_azimuth: ArrayLike, tilt: ArrayLike, direct_normal: ArrayLike, diffuse_horizontal: ArrayLike, ground_reflectance: ArrayLike, beam_factor: ArrayLike, diffuse_factor: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> SurfaceIrradiance: ...

class SurfaceIrradianceAndIncidence(NamedTuple):
    surface_beam: Any
    surface_diffuse: Any
    ground_reflected: Any
    incidence: Any

def surface_irradiance_and_incidence(solar_altitude: ArrayLike, solar_azimuth: ArrayLike, surface_azimuth: ArrayLike, tilt: ArrayLike, direct_normal: ArrayLike, diffuse_horizontal: ArrayLike, ground_reflectance: ArrayLike, beam_factor: ArrayLike, diffuse_factor: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> SurfaceIrradianceAndIncidence: ...
