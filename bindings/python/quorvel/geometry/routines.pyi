# Produced from the catalogue of routines (catalogue/); do not edit.
from typing import Any, Literal, NamedTuple, overload

from numpy import bool_, float32, float64, int32
from numpy.typing import ArrayLike, NDArray

from ..selectors import Enclosed as Enclosed

class Overlap(NamedTuple):
    piece_x: Any
    piece_y: Any
    piece_vertices: Any
    area: Any

def overlap(x_1: ArrayLike, y_1: ArrayLike, x_2: ArrayLike, y_2: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ...) -> Overlap: ...

class OverlapAlias(NamedTuple):
    piece_x: Any
    piece_y: Any
    piece_vertices: Any
    area: Any

def overlap_alias(x_1: ArrayLike, y_1: ArrayLike, x_2: ArrayLike, y_2: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ...) -> OverlapAlias: ...

def collinearity(x: ArrayLike, y: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

class CountEnclosed(NamedTuple):
    enclosed: Any
    enclosed_points: Any

def count_enclosed(x: ArrayLike, y: ArrayLike, point_x: ArrayLike, point_y: ArrayLike, enclosed: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ...) -> CountEnclosed: ...

class BoundaryCrossing(NamedTuple):
    crossing_point: Any
    crossing_code: Any

def boundary_crossing(segment_start: ArrayLike, segment_end: ArrayLike, x: ArrayLike, y: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ...) -> BoundaryCrossing: ...

def inside(point: ArrayLike, polygon: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

def parallel_planes(triangle_1: ArrayLike, triangle_2: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

class ParallelSides(NamedTuple):
    result: Any
    side_1: Any
    side_2: Any

def parallel_sides(triangle_1: ArrayLike, triangle_2: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ...) -> ParallelSides: ...

def rectangular(quadrilateral: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

class Facing(NamedTuple):
    azimuth: Any
    tilt: Any

def facing(triangle: ArrayLike, azimuth: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ...) -> Facing: ...

class LocalCoordinates(NamedTuple):
    local_1: Any
    local_2: Any

def local_coordinates(quadrilateral_1: ArrayLike, quadrilateral_2: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ...) -> LocalCoordinates: ...

def to_local(corners: ArrayLike, x_axis: ArrayLike, y_axis: ArrayLike, z_axis: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

def meeting_point(line_1_start: ArrayLike, line_1_end: ArrayLike, line_2_start: ArrayLike, line_2_end: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

def crossing_point(segment_1_start: ArrayLike, segment_1_end: ArrayLike, segment_2_start: ArrayLike, segment_2_end: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

def in_span(first_end: ArrayLike, second_end: ArrayLike, point: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

def ahead_and_nearer(first_end: ArrayLike, second_end: ArrayLike, point: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

@overload
def coincide(x_1: float, y_1: float, x_2: float, y_2: float, *, out: None = ..., where: Literal[True] = ...) -> bool_: ...
@overload
def coincide(x_1: ArrayLike, y_1: ArrayLike, x_2: ArrayLike, y_2: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[bool_]: ...

def side_of_line(line_start: ArrayLike, line_end: ArrayLike, point: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

@overload
def back_azimuth(angle: float, *, out: None = ..., where: Literal[True] = ...) -> float32: ...
@overload
def back_azimuth(angle: ArrayLike, *, out: NDArray[Any] | None = ..., where: ArrayLike = ...) -> NDArray[float32]: ...

def direction_to(solar_altitude: ArrayLike, solar_azimuth: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

class SurfaceAxes(NamedTuple):
    rotation_matrix: Any
    inverse_matrix: Any

def surface_axes(surface_azimuth: ArrayLike, tilt: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ...) -> SurfaceAxes: ...

def local_to_global(local_vector: ArrayLike, rotation_matrix: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

def global_to_local(global_vector: ArrayLike, rotation_matrix: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

def plan_area(x: ArrayLike, y: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

def signed_plan_area(x: ArrayLike, y: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

def area_in_space(x: ArrayLike, y: ArrayLike, z: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

class PolygonOrientation(NamedTuple):
    area: Any
    tilt: Any
    back_azimuth: Any

def polygon_orientation(polygon: ArrayLike, *, out: tuple[NDArray[Any] | None, ...] | None = ...) -> PolygonOrientation: ...

def projection(plane_point: ArrayLike, plane_normal: ArrayLike, point: ArrayLike, direction: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

def forward_projection(plane_point: ArrayLike, plane_normal: ArrayLike, point: ArrayLike, direction: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

def forward_projection_or_start(plane_point: ArrayLike, plane_normal: ArrayLike, point: ArrayLike, direction: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

def dot_product(vector_a: ArrayLike, vector_b: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

def dot_product_in_double(vector_a: ArrayLike, vector_b: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

def cross_product(vector_a: ArrayLike, vector_b: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

def cross_product_in_double(vector_a: ArrayLike, vector_b: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

def length(vector: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...

def length_in_double(vector: ArrayLike, *, out: NDArray[Any] | None = ...) -> Any: ...
