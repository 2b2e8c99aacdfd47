# Produced from the catalogue of routines (catalogue/); do not edit.
from typing import Any, Literal, NamedTuple, overload

from numpy import bool_, float32, float64, int32
from numpy.typing import ArrayLike, NDArray

from ..selectors import Radiation as Radiation

class GlassDirect(NamedTuple):
    parallel_transmittance: Any
    parallel_absorptance: Any
    parallel_reflectance: Any
    perpendicular_transmittance: Any
    perpendicular_absorptance: Any
    perpendicular_reflectance: Any

def glass_direct(normal_transmittance: ArrayLike, normal_reflectance: ArrayLike, incidence: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> GlassDirect: ...

class GlassDiffuse(NamedTuple):
    transmittance: Any
    absorptance: Any

def glass_diffuse(normal_transmittance: ArrayLike, normal_reflectance: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> GlassDiffuse: ...

class StackedLayers(NamedTuple):
    transmittance: Any
    absorptance: Any
    reflectance: Any

def stacked_layers(layer_transmittances: ArrayLike, layer_reflectances: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ...) -> StackedLayers: ...

class TracedLayers(NamedTuple):
    transmittance: Any
    absorptance: Any
    reflectance: Any

def traced_layers(layer_transmittances: ArrayLike, layer_absorptances: ArrayLike, layer_reflectances: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ...) -> TracedLayers: ...

class RollerBlind(NamedTuple):
    transmittance: Any
    absorptance: Any
    reflectance: Any

def roller_blind(blind_transmittance: ArrayLike, blind_reflectance: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> RollerBlind: ...

class DiffuseRollerBlind(NamedTuple):
    transmittance: Any
    absorptance: Any
    reflectance: Any

def diffuse_roller_blind(blind_transmittance: ArrayLike, blind_reflectance: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> DiffuseRollerBlind: ...

@overload
def refraction_angle(incidence: float, refractive_index: float, *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def refraction_angle(incidence: ArrayLike, refractive_index: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

class SurfaceReflectance(NamedTuple):
    parallel_reflectance: Any
    perpendicular_reflectance: Any

def surface_reflectance(incidence: ArrayLike, refraction_angle: ArrayLike, refractive_index: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> SurfaceReflectance: ...

@overload
def single_pass_absorption(refraction_angle: float, absorption_product: float, *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def single_pass_absorption(refraction_angle: ArrayLike, absorption_product: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

class SlabOptics(NamedTuple):
    transmittance: Any
    absorptance: Any
    reflectance: Any

def slab_optics(single_pass_absorptance: ArrayLike, face_reflectance: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> SlabOptics: ...

@overload
def absorption_product(normal_transmittance: float, refractive_index: float, *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def absorption_product(normal_transmittance: ArrayLike, refractive_index: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

@overload
def normal_transmittance(absorption_product: float, normal_reflectance: float, *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def normal_transmittance(absorption_product: ArrayLike, normal_reflectance: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

class PaneTemperatures(NamedTuple):
    pane_temperature_1: Any
    pane_temperature_2: Any
    pane_temperature_3: Any
    pane_temperature_4: Any
    pane_temperature_5: Any

def pane_temperatures(inside_temperature: ArrayLike, outside_temperature: ArrayLike, panes: ArrayLike, absorbed_1: ArrayLike, absorbed_2: ArrayLike, absorbed_3: ArrayLike, absorbed_4: ArrayLike, absorbed_5: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> PaneTemperatures: ...

class UnitDirect(NamedTuple):
    transmittance: Any
    absorptance: Any
    reflectance: Any

def unit_direct(shortwave_shading_coefficient: ArrayLike, longwave_shading_coefficient: ArrayLike, incidence: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> UnitDirect: ...

class UnitDiffuse(NamedTuple):
    transmittance: Any
    absorptance: Any
    reflectance: Any

def unit_diffuse(shortwave_shading_coefficient: ArrayLike, longwave_shading_coefficient: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> UnitDiffuse: ...

class UnitDirectShares(NamedTuple):
    transmittance: Any
    pane_shares: Any
    absorptance: Any

def unit_direct_shares(shortwave_shading_coefficient: ArrayLike, longwave_shading_coefficient: ArrayLike, incidence: ArrayLike, panes: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ...) -> UnitDirectShares: ...

class UnitDiffuseShares(NamedTuple):
    transmittance: Any
    pane_shares: Any
    absorptance: Any

def unit_diffuse_shares(shortwave_shading_coefficient: ArrayLike, longwave_shading_coefficient: ArrayLike, panes: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ...) -> UnitDiffuseShares: ...

class UnitShares(NamedTuple):
    transmittance: Any
    pane_shares: Any
    absorptance: Any

def unit_shares(radiation: ArrayLike, shortwave_shading_coefficient: ArrayLike, longwave_shading_coefficient: ArrayLike, incidence: ArrayLike, panes: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ...) -> UnitShares: ...

class SlatDirect(NamedTuple):
    transmittance: Any
    absorptance: Any
    reflectance: Any

def slat_direct(slat_spacing: ArrayLike, slat_width: ArrayLike, slat_angle: ArrayLike, profile_angle: ArrayLike, slat_absorptance: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> SlatDirect: ...

class TwoFacedSlatDirect(NamedTuple):
    transmittance: Any
    absorptance: Any
    reflectance: Any

def two_faced_slat_direct(slat_spacing: ArrayLike, slat_width: ArrayLike, slat_angle: ArrayLike, profile_angle: ArrayLike, struck_absorptance: ArrayLike, opposite_absorptance: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> TwoFacedSlatDirect: ...

class OpenSlatDirect(NamedTuple):
    transmittance: Any
    absorptance: Any
    reflectance: Any

def open_slat_direct(slat_spacing: ArrayLike, slat_width: ArrayLike, slat_angle: ArrayLike, profile_angle: ArrayLike, open_share: ArrayLike, struck_absorptance: ArrayLike, opposite_absorptance: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> OpenSlatDirect: ...

class SlatDiffuse(NamedTuple):
    sky_transmittance: Any
    ground_transmittance: Any
    sky_absorptance: Any
    ground_absorptance: Any

def slat_diffuse(slat_spacing: ArrayLike, slat_width: ArrayLike, slat_angle: ArrayLike, slat_absorptance: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> SlatDiffuse: ...

class TwoFacedSlatDiffuse(NamedTuple):
    sky_transmittance: Any
    ground_transmittance: Any
    sky_absorptance: Any
    ground_absorptance: Any

def two_faced_slat_diffuse(slat_spacing: ArrayLike, slat_width: ArrayLike, slat_angle: ArrayLike, struck_absorptance: ArrayLike, opposite_absorptance: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> TwoFacedSlatDiffuse: ...

class OpenSlatDiffuse(NamedTuple):
    sky_transmittance: Any
    ground_transmittance: Any
    sky_absorptance: Any
    ground_absorptance: Any

def open_slat_diffuse(slat_spacing: ArrayLike, slat_width: ArrayLike, slat_angle: ArrayLike, open_share: ArrayLike, struck_absorptance: ArrayLike, opposite_absorptance: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> OpenSlatDiffuse: ...
