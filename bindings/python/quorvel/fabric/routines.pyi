# Produced from the catalogue of routines (catalogue/); do not edit.
from typing import Any, Literal, NamedTuple, overload

from numpy import bool_, float32, float64, int32
from numpy.typing import ArrayLike, NDArray

from ..selectors import ElementKind as ElementKind
from ..selectors import Exposure as Exposure
from ..selectors import HeatFlowDirection as HeatFlowDirection
from ..selectors import Packing as Packing
from ..selectors import PaneKind as PaneKind
from ..selectors import Surface as Surface

class CyclicResponse(NamedTuple):
    admittance: Any
    admittance_lead: Any
    decrement_factor: Any
    decrement_lag: Any
    surface_factor: Any
    surface_factor_lag: Any
    u_value: Any

def cyclic_response(thickness: ArrayLike, conductivity: ArrayLike, density: ArrayLike, specific_heat: ArrayLike, inside_resistance: ArrayLike, outside_resistance: ArrayLike, harmonic: ArrayLike, element_kind: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ...) -> CyclicResponse: ...

@overload
def vertical_cavity_resistance(cavity_width: float, *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def vertical_cavity_resistance(cavity_width: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

@overload
def air_cavity_resistance(tilt: float, cavity_width: float, emissivity_1: float, emissivity_2: float, *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def air_cavity_resistance(tilt: ArrayLike, cavity_width: ArrayLike, emissivity_1: ArrayLike, emissivity_2: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

@overload
def gas_cavity_resistance(tilt: float, cavity_width: float, emissivity_1: float, emissivity_2: float, density: float, conductivity: float, specific_heat: float, viscosity: float, *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def gas_cavity_resistance(tilt: ArrayLike, cavity_width: ArrayLike, emissivity_1: ArrayLike, emissivity_2: ArrayLike, density: ArrayLike, conductivity: ArrayLike, specific_heat: ArrayLike, viscosity: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

def total_vapour_resistance(thickness: ArrayLike, vapour_resistivity: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

class CondensationProfile(NamedTuple):
    interface_temperature: Any
    interface_vapour_pressure: Any
    interface_saturation_pressure: Any

def condensation_profile(thickness: ArrayLike, conductivity: ArrayLike, vapour_resistivity: ArrayLike, inside_resistance: ArrayLike, outside_resistance: ArrayLike, inside_temperature: ArrayLike, outside_temperature: ArrayLike, inside_humidity: ArrayLike, outside_humidity: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ...) -> CondensationProfile: ...

@overload
def condenses_within_layer(warm_temperature: float, cold_temperature: float, warm_vapour_pressure: float, cold_vapour_pressure: float, *, out: None = ..., where: Literal[True] = ...) -> int32: ...
@overload
def condenses_within_layer(warm_temperature: ArrayLike, cold_temperature: ArrayLike, warm_vapour_pressure: ArrayLike, cold_vapour_pressure: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[int32]: ...

def element_property(element_records: ArrayLike, record_number: ArrayLike, item: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

@overload
def natural_convection_coefficient(temperature_difference: float, characteristic_length: float, heat_flow_direction: int | Literal['upward', 'horizontal', 'downward'], *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def natural_convection_coefficient(temperature_difference: ArrayLike, characteristic_length: ArrayLike, heat_flow_direction: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

class PackTwoFractions(NamedTuple):
    packed_number: Any
    fraction_1: Any
    fraction_2: Any

def pack_two_fractions(packing: ArrayLike, packed_number: ArrayLike, fraction_1: ArrayLike, fraction_2: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> PackTwoFractions: ...

class PackThreeFractions(NamedTuple):
    packed_number: Any
    fraction_1: Any
    fraction_2: Any
    fraction_3: Any

def pack_three_fractions(packing: ArrayLike, packed_number: ArrayLike, fraction_1: ArrayLike, fraction_2: ArrayLike, fraction_3: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> PackThreeFractions: ...

class PackThreeFractionsThirdFirst(NamedTuple):
    packed_number: Any
    fraction_3: Any
    fraction_1: Any
    fraction_2: Any

def pack_three_fractions_third_first(packing: ArrayLike, packed_number: ArrayLike, fraction_3: ArrayLike, fraction_1: ArrayLike, fraction_2: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> PackThreeFractionsThirdFirst: ...

class PackPane(NamedTuple):
    packed_number: Any
    absorptance: Any
    reflectance_1: Any
    reflectance_2: Any

def pack_pane(packing: ArrayLike, packed_number: ArrayLike, absorptance: ArrayLike, reflectance_1: ArrayLike, reflectance_2: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> PackPane: ...

@overload
def surface_resistance(surface: int | Literal['outside', 'inside'], tilt: float, exposure: int | Literal['sheltered', 'normal', 'severe'], *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def surface_resistance(surface: ArrayLike, tilt: ArrayLike, exposure: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

@overload
def surface_resistance_at_emissivity(surface: int | Literal['outside', 'inside'], tilt: float, exposure: int | Literal['sheltered', 'normal', 'severe'], emissivity: float, *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def surface_resistance_at_emissivity(surface: ArrayLike, tilt: ArrayLike, exposure: ArrayLike, emissivity: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

def u_value(thickness: ArrayLike, conductivity: ArrayLike, surface_resistance_1: ArrayLike, surface_resistance_2: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

@overload
def u_value_at_tilt_and_exposure(u_value: float, tilt: float, exposure: int | Literal['sheltered', 'normal', 'severe'], *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def u_value_at_tilt_and_exposure(u_value: ArrayLike, tilt: ArrayLike, exposure: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

class WindowParameters(NamedTuple):
    admittance: Any
    admittance_lead: Any
    decrement_factor: Any
    decrement_lag: Any
    surface_factor: Any
    surface_factor_lag: Any
    u_value: Any

def window_parameters(panes: ArrayLike, pane_kind_1: ArrayLike, emissivity_1: ArrayLike, pane_kind_2: ArrayLike, emissivity_2: ArrayLike, pane_kind_3: ArrayLike, emissivity_3: ArrayLike, cavity_width_1: ArrayLike, cavity_width_2: ArrayLike, outer_surface: ArrayLike, exposure: ArrayLike, tilt: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ..., where: ArrayLike = ...) -> WindowParameters: ...
