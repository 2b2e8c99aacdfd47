"""Geometry: the routines of the library, element by element."""

# Produced from the catalogue of routines (catalogue/); do not edit.

from collections import namedtuple

from .._core import functions
from ..selectors import Enclosed

_new = tuple.__new__  # a third of the time of _make

__all__ = [
    "Enclosed",
    "CountEnclosed",
    "BoundaryCrossing",
    "ParallelSides",
    "Facing",
    "LocalCoordinates",
    "SurfaceAxes",
    "PolygonOrientation",
    "collinearity",
    "count_enclosed",
    "boundary_crossing",
    "inside",
    "parallel_planes",
    "parallel_sides",
    "rectangular",
    "facing",
    "local_coordinates",
    "to_local",
    "meeting_point",
    "crossing_point",
    "in_span",
    "ahead_and_nearer",
    "coincide",
    "side_of_line",
    "back_azimuth",
    "direction_to",
    "surface_axes",
    "local_to_global",
    "global_to_local",
    "plan_area",
    "signed_plan_area",
    "area_in_space",
    "polygon_orientation",
    "projection",
    "forward_projection",
    "forward_projection_or_start",
    "dot_product",
    "dot_product_in_double",
    "cross_product",
    "cross_product_in_double",
    "length",
    "length_in_double",
]

_collinearity = functions["collinearity"]
_count_enclosed = functions["count_enclosed"]
_boundary_crossing = functions["boundary_crossing"]
_inside = functions["inside"]
_parallel_planes = functions["parallel_planes"]
_parallel_sides = functions["parallel_sides"]
_rectangular = functions["rectangular"]
_facing = functions["facing"]
_local_coordinates = functions["local_coordinates"]
_to_local = functions["to_local"]
_meeting_point = functions["meeting_point"]
_crossing_point = functions["crossing_point"]
_in_span = functions["in_span"]
_ahead_and_nearer = functions["ahead_and_nearer"]
_coincide = functions["coincide"]
_side_of_line = functions["side_of_line"]
_back_azimuth = functions["back_azimuth"]
_direction_to = functions["direction_to"]
_surface_axes = functions["surface_axes"]
_local_to_global = functions["local_to_global"]
_global_to_local = functions["global_to_local"]
_plan_area = functions["plan_area"]
_signed_plan_area = functions["signed_plan_area"]
_area_in_space = functions["area_in_space"]
_polygon_orientation = functions["polygon_orientation"]
_projection = functions["projection"]
_forward_projection = functions["forward_projection"]
_forward_projection_or_start = functions["forward_projection_or_start"]
_dot_product = functions["dot_product"]
_dot_product_in_double = functions["dot_product_in_double"]
_cross_product = functions["cross_product"]
_cross_product_in_double = functions["cross_product_in_double"]
_length = functions["length"]
_length_in_double = functions["length_in_double"]


CountEnclosed = namedtuple("CountEnclosed", "enclosed enclosed_points")
CountEnclosed.__doc__ = """What count_enclosed returns.

    enclosed: 1 for points that are enclosed
    enclosed_points: number of enclosed points
"""

BoundaryCrossing = namedtuple("BoundaryCrossing", "crossing_point crossing_code")
BoundaryCrossing.__doc__ = """What boundary_crossing returns.

    crossing_point: crossing point, or what the notes say [m]
    crossing_code: number, counted from 1, of the vertex that ends the crossed edge, or what the
    notes say
"""

ParallelSides = namedtuple("ParallelSides", "result side_1 side_2")
ParallelSides.__doc__ = """What parallel_sides returns.

    result: whether there are any
    side_1: side of one triangle: 1 between its first two corners, 2 between its last two; 3
    none
    side_2: side of the other, likewise
"""

Facing = namedtuple("Facing", "azimuth tilt")
Facing.__doc__ = """What facing returns.

    azimuth: azimuth of the outward normal; given, what a level triangle gets, in radians [°]
    tilt: tilt: 0 horizontal facing up, 90 vertical, 180 facing down [°]
"""

LocalCoordinates = namedtuple("LocalCoordinates", "local_1 local_2")
LocalCoordinates.__doc__ = """What local_coordinates returns.

    local_1: the first in local coordinates [m]
    local_2: the second in local coordinates [m]
"""

SurfaceAxes = namedtuple("SurfaceAxes", "rotation_matrix inverse_matrix")
SurfaceAxes.__doc__ = """What surface_axes returns.

    rotation_matrix: matrix; its columns are the local axes in global coordinates
    inverse_matrix: inverse of it
"""

PolygonOrientation = namedtuple("PolygonOrientation", "area tilt back_azimuth")
PolygonOrientation.__doc__ = """What polygon_orientation returns.

    area: area, positive when the vertices run as the corner at the first one turns [m²]
    tilt: angle between the normal and the vertical [°]
    back_azimuth: azimuth opposite to the normal [°]
"""

def collinearity(x, y, *, out=None):
    """Whether points in plan lie on one straight line.

    Parameters
    ----------
    x : array_like of float, shape (..., points)
        X of the vertices [m].
    y : array_like of float, shape (..., points)
        Y of the vertices [m].
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    code : int32
        1 on one line; otherwise the number, counted from 1, of the first point whose y differs from
        that of the first of all.

    Raises
    ------
    ValueError
        Unless the number of points is at least 1.
        Unless all arguments have as many points.

    Notes
    -----
    The points are held against the line through the first two that differ by 1e-5 or more in both
    coordinates. A point is off it when the ratios of its offsets to theirs, in x and in y, differ
    by more than 1e-5: what is tolerated grows with the distance between the two.

    Points that all have the x or the y of the first, to within 1e-5, are on one line. Not a number
    counts as equal to anything.

    Coordinates near one another within 1e-5 can leave no two points to draw the line through; then
    the points are not on one line, and finding that out takes n²/2 comparisons.

    Each element has the bits of IGELIN in quorvel.h.

    References
    ----------
    Intercept theorem.

    Examples
    --------
    >>> from quorvel.geometry import collinearity
    >>> result = collinearity(x=[0, 1, 2], y=[0, 1, 2])
    >>> bool(result == 1)
    True

    (on the line y = x)
    """
    return _collinearity(x, y, out, True)


def count_enclosed(x, y, point_x, point_y, enclosed, *, out=None):
    """How many points lie in a convex polygon with clockwise vertices or on its boundary, and which.

    Parameters
    ----------
    x : array_like of float, shape (..., vertices)
        X of the vertices [m].
    y : array_like of float, shape (..., vertices)
        Y of the vertices [m].
    point_x : array_like of float, shape (..., points)
        X of the points [m].
    point_y : array_like of float, shape (..., points)
        Y of the points [m].
    enclosed : Enclosed, or array_like of its names or numbers, shape (..., points)
        1 for points that are enclosed: 0 not enclosed, 1 enclosed.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    CountEnclosed
        A named tuple of:

    enclosed : int32, shape (..., points)
        1 for points that are enclosed; as given for points that are not enclosed.
    enclosed_points : int32
        Number of enclosed points.

    Raises
    ------
    ValueError
        Unless the number of vertices is at least 3.
        Unless the number of points is at least 1.
        Unless all arguments have as many vertices.
        Unless all arguments have as many points.

    Notes
    -----
    A point is enclosed when it is left of no edge, as `side_of_line` sees it, or is at a vertex (to
    less than 1e-5 in each coordinate) that comes before any such edge.

    Points that are not numbers are left of no edge, and so enclosed.

    Each element has the bits of GECLOS in quorvel.h.

    References
    ----------
    A convex polygon is the intersection of half-planes.

    Examples
    --------
    >>> from quorvel.geometry import count_enclosed
    >>> result = count_enclosed(x=[0, 0, 1, 1], y=[0, 1, 1, 0], point_x=[0.5, 2], point_y=[0.5, 2],
    ...     enclosed=[0, 0])
    >>> all(abs(a - b) <= 0 for a, b in zip(result.enclosed.flat, [1, 0]))
    True
    >>> bool(result.enclosed_points == 1)
    True

    (centre of a square, and a point outside of it)
    """
    return _new(CountEnclosed, _count_enclosed(x, y, point_x, point_y, enclosed, out, True))


def boundary_crossing(segment_start, segment_end, x, y, *, out=None):
    """Where a segment crosses the boundary of a polygon in plan.

    Parameters
    ----------
    segment_start : array_like of float, shape (..., 2)
        Start of the segment [m].
    segment_end : array_like of float, shape (..., 2)
        End of the segment [m].
    x : array_like of float, shape (..., vertices)
        X of the vertices [m].
    y : array_like of float, shape (..., vertices)
        Y of the vertices [m].
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    BoundaryCrossing
        A named tuple of:

    crossing_point : float32, shape (..., 2)
        Crossing point, or what the notes say [m]; 1e20 where there is none.
    crossing_code : int32
        Number, counted from 1, of the vertex that ends the crossed edge, or what the notes say.

    Raises
    ------
    ValueError
        Unless the number of vertices is at least 3.
        Unless all arguments have as many vertices.

    Notes
    -----
    The edges are tried in turn, from that between the first two vertices on, as `crossing_point`
    does; the first one that is crossed away from the start ends the search. A crossing beyond
    100000 is none.

    No such edge, but the start at a vertex (to less than 1e-5): the code is its number with a
    minus, and the point is the last outcome of the search, the start or 1e20.

    Otherwise, the start on edges: the code is 999 + the number of the vertex that ends the last of
    them, and the point that vertex. (The sum is taken modulo 2^32. Of a polygon with 1000 vertices
    or more, small codes of this kind cannot be told from edges by the code alone.)

    Otherwise the code is 0, and the point 1e20.

    Each element has the bits of GESIDE in quorvel.h.

    References
    ----------
    As `crossing_point`.

    Examples
    --------
    >>> from quorvel.geometry import boundary_crossing
    >>> result = boundary_crossing(segment_start=[0.5, 0.5], segment_end=[2, 0.5], x=[0, 0, 1, 1],
    ...     y=[0, 1, 1, 0])
    >>> all(abs(a - b) <= 1e-06 for a, b in zip(result.crossing_point.flat, [1, 0.5]))
    True
    >>> bool(abs(result.crossing_code - 4) <= 1e-06)
    True

    (out of a unit square to the east, over its last edge but one)
    """
    return _new(BoundaryCrossing, _boundary_crossing(segment_start, segment_end, x, y, out, True))


def inside(point, polygon, *, out=None):
    """Whether a point in the plane of a polygon in space lies inside or on its boundary.

    Parameters
    ----------
    point : array_like of float, shape (..., 3)
        Point [m].
    polygon : array_like of float, shape (..., vertices, 3)
        Vertices, the last of which repeats the first [m].
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    inside : int32
        1 inside, 0 outside.

    Raises
    ------
    ValueError
        Unless the number of vertices, the repeated one included, is at least 4.

    Notes
    -----
    The first edge with whose line the point is in line (twice the area of the triangle between them
    at most 1e-6) decides alone: 1 if the point is in the span of the edge, as `in_span` sees it,
    else 0. So a point may be found outside a polygon that is not convex because it is in line with
    an edge.

    That the point is in the plane is not tested: over the middle of a square it is inside up to
    half the length of a side.

    Not a number gives 0.

    Each element has the bits of GEINSI in quorvel.h.

    References
    ----------
    Sum of the angles under which the point sees the edges.

    Examples
    --------
    >>> from quorvel.geometry import inside
    >>> result = inside(point=[0.5, 0.5, 0], polygon=[[0, 0, 0], [0, 1, 0], [1, 1, 0], [1, 0, 0],
    ...     [0, 0, 0]])
    >>> bool(result == 1)
    True

    (centre of a square)
    """
    return _inside(point, polygon, out, True)


def parallel_planes(triangle_1, triangle_2, *, out=None):
    """Whether the planes of two triangles are parallel.

    Parameters
    ----------
    triangle_1 : array_like of float, shape (..., 3, 3)
        Corners of one triangle [m].
    triangle_2 : array_like of float, shape (..., 3, 3)
        Corners of the other [m].
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    truth : bool
        Whether they are parallel.

    Notes
    -----
    So they are when the cross product of their normals, each as long as twice the triangle's area,
    is shorter than 0.001: small triangles are parallel to any.

    Each element has the bits of GEPLEL in quorvel.h.

    References
    ----------
    Definition.

    Examples
    --------
    >>> from quorvel.geometry import parallel_planes
    >>> result = parallel_planes(triangle_1=[[0, 0, 0], [1, 0, 0], [0, 1, 0]], triangle_2=[[0, 0,
    ...     1], [1, 0, 1], [0, 1, 1]])
    >>> bool(result)
    True

    (floor and ceiling)
    """
    return _parallel_planes(triangle_1, triangle_2, out, True)


def parallel_sides(triangle_1, triangle_2, *, out=None):
    """Whether two triangles have parallel sides, and which.

    Parameters
    ----------
    triangle_1 : array_like of float, shape (..., 3, 3)
        Corners of one triangle [m].
    triangle_2 : array_like of float, shape (..., 3, 3)
        Corners of the other [m].
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    ParallelSides
        A named tuple of:

    truth : bool
        Whether there are any.
    side_1 : int32
        Side of one triangle: 1 between its first two corners, 2 between its last two; 3 none.
    side_2 : int32
        Side of the other, likewise.

    Notes
    -----
    Sides are parallel when their cross product is shorter than 0.001, so that short sides are
    parallel to any.

    The sides between last and first corner are not tested.

    Each element has the bits of GEPSID in quorvel.h.

    References
    ----------
    Definition.

    Examples
    --------
    >>> from quorvel.geometry import parallel_sides
    >>> result = parallel_sides(triangle_1=[[0, 0, 0], [1, 0, 0], [0, 1, 0]], triangle_2=[[0, 0, 1],
    ...     [0, 1, 1], [1, 1, 1]])
    >>> bool(result.result)
    True
    >>> bool(result.side_1 == 1)
    True
    >>> bool(result.side_2 == 2)
    True

    (side 1 of one and side 2 of the other run east)
    """
    return _new(ParallelSides, _parallel_sides(triangle_1, triangle_2, out, True))


def rectangular(quadrilateral, *, out=None):
    """Whether a quadrilateral is rectangular.

    Parameters
    ----------
    quadrilateral : array_like of float, shape (..., 4, 3)
        Corners in turn [m].
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    truth : bool
        Whether it is rectangular.

    Notes
    -----
    So it is when at all corners but the first the dot product of the two sides is at most 1e-6 in
    magnitude.

    Each element has the bits of GERECT in quorvel.h.

    References
    ----------
    Definition.

    Examples
    --------
    >>> from quorvel.geometry import rectangular
    >>> result = rectangular(quadrilateral=[[0, 0, 0], [2, 0, 0], [2, 1, 0], [0, 1, 0]])
    >>> bool(result)
    True

    (a rectangle of 2 m by 1 m)
    """
    return _rectangular(quadrilateral, out, True)


def facing(triangle, azimuth, *, out=None):
    """Azimuth and tilt of the plane of a triangle.

    Parameters
    ----------
    triangle : array_like of float, shape (..., 3, 3)
        Corners, clockwise seen from outside [m].
    azimuth : array_like of float
        Azimuth of the outward normal; given, what a level triangle gets, in radians [°]; valid 0 to
        6.2832.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    Facing
        A named tuple of:

    azimuth : float64
        Azimuth of the outward normal; given, what a level triangle gets, in radians [°].
    tilt : float64
        Tilt: 0 horizontal facing up, 90 vertical, 180 facing down [°].

    Notes
    -----
    A level triangle, the level part of whose normal (as long as twice its area) is shorter than
    1e-10, gets the given azimuth times 180/pi.

    Azimuths of 360 or more are reduced by 360 once; from 359.99 on they become 0.

    A triangle without area gives a tilt that is not a number.

    Each element has the bits of GETILT in quorvel.h.

    References
    ----------
    Definition.

    Examples
    --------
    >>> from quorvel.geometry import facing
    >>> result = facing(triangle=[[0, 0, 0], [0, 0, 1], [1, 0, 1]], azimuth=0)
    >>> bool(abs(result.azimuth - 180) <= 1e-06)
    True
    >>> bool(abs(result.tilt - 90) <= 1e-06)
    True

    (a wall that faces south, clockwise from outside)
    """
    return _new(Facing, _facing(triangle, azimuth, out, True))


def local_coordinates(quadrilateral_1, quadrilateral_2, *, out=None):
    """Two quadrilaterals in local coordinates of the first.

    Parameters
    ----------
    quadrilateral_1 : array_like of float, shape (..., 4, 3)
        Corners of the first [m].
    quadrilateral_2 : array_like of float, shape (..., 4, 3)
        Corners of the second [m].
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    LocalCoordinates
        A named tuple of:

    local_1 : float64, shape (..., 4, 3)
        The first in local coordinates [m].
    local_2 : float64, shape (..., 4, 3)
        The second in local coordinates [m].

    Notes
    -----
    The origin is the first corner of the first; from there x points to the second corner, y to the
    fourth, z along the cross product of the ways to the second and the third.

    Coordinates are dot products with the axes, so that lengths are kept only where that has a right
    angle at its first corner.

    Coincident corners give what is not a number.

    Each element has the bits of GELCAL in quorvel.h.

    References
    ----------
    Definition.

    Examples
    --------
    >>> from quorvel.geometry import local_coordinates
    >>> result = local_coordinates(quadrilateral_1=[[1, 1, 0], [3, 1, 0], [3, 3, 0], [1, 3, 0]],
    ...     quadrilateral_2=[[1, 1, 5], [3, 1, 5], [3, 3, 5], [1, 3, 5]])
    >>> all(abs(a - b) <= 1e-12 for a, b in zip(result.local_1.flat, [0, 0, 0, 2, 0, 0, 2, 2, 0, 0,
    ...     2, 0]))
    True
    >>> all(abs(a - b) <= 1e-12 for a, b in zip(result.local_2.flat, [0, 0, 5, 2, 0, 5, 2, 2, 5, 0,
    ...     2, 5]))
    True

    (squares of 2 m, one 5 m above the other)
    """
    return _new(LocalCoordinates, _local_coordinates(quadrilateral_1, quadrilateral_2, out, True))


def to_local(corners, x_axis, y_axis, z_axis, *, out=None):
    """Components of each of four points along three axes.

    Parameters
    ----------
    corners : array_like of float, shape (..., 4, 3)
        Points [m].
    x_axis : array_like of float, shape (..., 3)
        X axis.
    y_axis : array_like of float, shape (..., 3)
        Y axis.
    z_axis : array_like of float, shape (..., 3)
        Z axis.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    corners : float64, shape (..., 4, 3)
        Points [m].

    Notes
    -----
    Each element has the bits of GETRNS in quorvel.h.

    References
    ----------
    Definition.

    Examples
    --------
    >>> from quorvel.geometry import to_local
    >>> result = to_local(corners=[[1, 2, 3], [0, 0, 0], [4, 5, 6], [1, 0, 0]], x_axis=[0, 1, 0],
    ...     y_axis=[0, 0, 1], z_axis=[1, 0, 0])
    >>> all(abs(a - b) <= 0 for a, b in zip(result.flat, [2, 3, 1, 0, 0, 0, 5, 6, 4, 0, 0, 1]))
    True

    (coordinates exchanged in a ring)
    """
    return _to_local(corners, x_axis, y_axis, z_axis, out, True)


def meeting_point(line_1_start, line_1_end, line_2_start, line_2_end, *, out=None):
    """Where two infinite lines in plan meet.

    Parameters
    ----------
    line_1_start : array_like of float, shape (..., 2)
        Point of line 1 [m].
    line_1_end : array_like of float, shape (..., 2)
        Another point of line 1 [m].
    line_2_start : array_like of float, shape (..., 2)
        Point of line 2 [m].
    line_2_end : array_like of float, shape (..., 2)
        Another point of line 2 [m].
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    meeting_point : float32, shape (..., 2)
        Meeting point [m]; 1e20 where there is none.

    Notes
    -----
    Parallel lines give 1e20 in both coordinates: those for which |ab| |cd| times the sine of the
    angle between them is below 1e-10.

    Any of the points may be vectors; their z is not read.

    Each element has the bits of GEMEET in quorvel.h.

    References
    ----------
    Elementary analytic geometry.

    Examples
    --------
    >>> from quorvel.geometry import meeting_point
    >>> result = meeting_point(line_1_start=[0, 0], line_1_end=[1, 1], line_2_start=[0, 2],
    ...     line_2_end=[2, 0])
    >>> all(abs(a - b) <= 0 for a, b in zip(result.flat, [1, 1]))
    True

    (y = x and y = 2 - x)
    """
    return _meeting_point(line_1_start, line_1_end, line_2_start, line_2_end, out, True)


def crossing_point(segment_1_start, segment_1_end, segment_2_start, segment_2_end, *, out=None):
    """Where two segments in plan cross or touch.

    Parameters
    ----------
    segment_1_start : array_like of float, shape (..., 2)
        Start of segment 1 [m].
    segment_1_end : array_like of float, shape (..., 2)
        End of segment 1 [m].
    segment_2_start : array_like of float, shape (..., 2)
        Start of segment 2 [m].
    segment_2_end : array_like of float, shape (..., 2)
        End of segment 2 [m].
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    crossing_point : float32, shape (..., 2)
        Crossing point [m]; 1e20 where there is none.

    Notes
    -----
    Segments that do not meet, and parallel ones whether they meet or not, give 1e20 in both
    coordinates. Not a number counts as not meeting.

    A segment reaches almost 0.0001 beyond its ends in x and in y.

    Each element has the bits of GECROS in quorvel.h.

    References
    ----------
    As `meeting_point`.

    Examples
    --------
    >>> from quorvel.geometry import crossing_point
    >>> result = crossing_point(segment_1_start=[0, 0], segment_1_end=[2, 2], segment_2_start=[0,
    ...     2], segment_2_end=[2, 0])
    >>> all(abs(a - b) <= 0 for a, b in zip(result.flat, [1, 1]))
    True

    (y = x and y = 2 - x)
    """
    return _crossing_point(segment_1_start, segment_1_end, segment_2_start, segment_2_end, out, True)


def in_span(first_end, second_end, point, *, out=None):
    """Whether a point of the line AB lies between A and B.

    Parameters
    ----------
    first_end : array_like of float, shape (..., 3)
        One end [m].
    second_end : array_like of float, shape (..., 3)
        Other end [m].
    point : array_like of float, shape (..., 3)
        Point on the line AB [m].
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    indicator : float32
        1 between them or at an end, else 0.

    Notes
    -----
    That the point is on the line is not tested: the answer is whether it is in the box of which A
    and B are corners.

    Not a number in y or z of the point does not exclude it.

    Each element has the bits of GEINLN in quorvel.h.

    References
    ----------
    Definition.

    Examples
    --------
    >>> from quorvel.geometry import in_span
    >>> result = in_span(first_end=[0, 0, 0], second_end=[2, 2, 2], point=[1, 1, 1])
    >>> bool(result == 1)
    True

    (the middle)
    """
    return _in_span(first_end, second_end, point, out, True)


def ahead_and_nearer(first_end, second_end, point, *, out=None):
    """Whether a point lies on B's side of A and nearer to A than B does.

    Parameters
    ----------
    first_end : array_like of float, shape (..., 3)
        One end [m].
    second_end : array_like of float, shape (..., 3)
        Other end [m].
    point : array_like of float, shape (..., 3)
        Point [m].
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    indicator : float32
        1 if so, else 0.

    Notes
    -----
    A itself counts, B does not; so nothing does where the two coincide.

    Not a number anywhere gives 1.

    Each element has the bits of GEINLN2 in quorvel.h.

    References
    ----------
    Definition.

    Examples
    --------
    >>> from quorvel.geometry import ahead_and_nearer
    >>> result = ahead_and_nearer(first_end=[0, 0, 0], second_end=[2, 2, 2], point=[1, 1, 1])
    >>> bool(result == 1)
    True

    (half way to the second end)
    """
    return _ahead_and_nearer(first_end, second_end, point, out, True)


def coincide(x_1, y_1, x_2, y_2, *, out=None, where=True):
    """Whether two points in plan coincide.

    Parameters
    ----------
    x_1 : array_like of float
        X of one point [m].
    y_1 : array_like of float
        Y of one point [m].
    x_2 : array_like of float
        X of the other [m].
    y_2 : array_like of float
        Y of the other [m].
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    truth : bool
        Whether both coordinates differ by less than 1e-5.

    Notes
    -----
    Each element has the bits of GECOIN in quorvel.h.

    References
    ----------
    Definition.

    Examples
    --------
    >>> from quorvel.geometry import coincide
    >>> result = coincide(x_1=1, y_1=2, x_2=1.000001, y_2=2)
    >>> bool(result)
    True

    (0.000001 m apart)
    """
    return _coincide(x_1, y_1, x_2, y_2, out, where)


def side_of_line(line_start, line_end, point, *, out=None):
    """Side of a directed line in plan on which a point lies.

    Parameters
    ----------
    line_start : array_like of float, shape (..., 2)
        Start of the line [m].
    line_end : array_like of float, shape (..., 2)
        Point towards which it runs [m].
    point : array_like of float, shape (..., 2)
        Point [m].
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    code : int32
        1 right of the line, -1 left of it, 0 nearer to it than 1e-5.

    Notes
    -----
    Where the two points of the line are the same the line runs north.

    Not a number gives 0.

    Each element has the bits of IGEPNT in quorvel.h.

    References
    ----------
    Distance of a point from a line by its bearing.

    Examples
    --------
    >>> from quorvel.geometry import side_of_line
    >>> result = side_of_line(line_start=[0, 0], line_end=[0, 1], point=[1, 0.5])
    >>> bool(result == 1)
    True

    (east of a line to the north)
    """
    return _side_of_line(line_start, line_end, point, out, True)


def back_azimuth(angle, *, out=None, where=True):
    """Azimuth opposite to a direction that is given by its angle from east, anticlockwise; also the
    angle of an azimuth.

    Parameters
    ----------
    angle : array_like of float
        Angle from east, anticlockwise, or azimuth [°]; valid 0 to 360.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    azimuth : float32
        Azimuth of the opposite direction, or angle of it [°].

    Notes
    -----
    It is the remainder of 630 - angle by 360 with the sign of the dividend: angles above 630 give
    negative results.

    Magnitudes from 1000 on are no angles and are returned as they are.

    Each element has the bits of BORI in quorvel.h.

    References
    ----------
    Definition.

    Examples
    --------
    >>> from quorvel.geometry import back_azimuth
    >>> result = back_azimuth(angle=90)
    >>> bool(result == 180)
    True

    (a direction to the north comes from the south)
    """
    return _back_azimuth(angle, out, where)


def direction_to(solar_altitude, solar_azimuth, *, out=None):
    """Unit vector of a direction, such as that to the sun.

    Parameters
    ----------
    solar_altitude : array_like of float
        Altitude [rad]; valid -1.5708 to 1.5708.
    solar_azimuth : array_like of float
        Azimuth [rad]; valid 0 to 6.2832.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    direction : float32, shape (..., 3)
        Direction.

    Notes
    -----
    Formula: (sin(solar_azimuth) cos(solar_altitude), cos(solar_azimuth) cos(solar_altitude),
    sin(solar_altitude))

    Each element has the bits of GESUNV in quorvel.h.

    References
    ----------
    Spherical to rectangular coordinates.

    Examples
    --------
    >>> from quorvel.geometry import direction_to
    >>> result = direction_to(solar_altitude=0.5235988, solar_azimuth=1.5707963)
    >>> all(abs(a - b) <= 1e-06 for a, b in zip(result.flat, [0.8660254, 0, 0.5]))
    True

    (30° above the eastern horizon)
    """
    return _direction_to(solar_altitude, solar_azimuth, out, True)


def surface_axes(surface_azimuth, tilt, *, out=None):
    """Rotation matrix of a surface, from local to global coordinates, and its inverse.

    Parameters
    ----------
    surface_azimuth : array_like of float
        Azimuth of the surface's outward normal [rad]; valid 0 to 6.2832.
    tilt : array_like of float
        Tilt: 0 horizontal facing up, pi/2 vertical [rad]; valid 0 to 3.1416.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    SurfaceAxes
        A named tuple of:

    rotation_matrix : float32, shape (..., 3, 3)
        Matrix; its columns are the local axes in global coordinates.
    inverse_matrix : float32, shape (..., 3, 3)
        Inverse of it.

    Notes
    -----
    Formula: columns (-cos(a), sin(a), 0), (-sin(a) cos(b), -cos(a) cos(b), sin(b)), (sin(a) sin(b),
    cos(a) sin(b), cos(b)); a = surface_azimuth, b = tilt

    Local x is level and points to the right seen from outside, y points up the slope, z outwards;
    the axes are right-handed.

    Elements of the matrix below 1e-5 in magnitude are set to 0. The inverse, by elimination with
    full pivoting, is the transpose to rounding.

    Each element has the bits of GERSET in quorvel.h.

    References
    ----------
    Rotation matrices; Gauss-Jordan elimination.

    Examples
    --------
    >>> from quorvel.geometry import surface_axes
    >>> result = surface_axes(surface_azimuth=0, tilt=1.5707963)
    >>> all(abs(a - b) <= 1e-06 for a, b in zip(result.rotation_matrix.flat, [-1, 0, 0, 0, 0, 1, 0,
    ...     1, 0]))
    True

    (a wall that faces north: local x to the west, y up, z to the north)
    """
    return _new(SurfaceAxes, _surface_axes(surface_azimuth, tilt, out, True))


def local_to_global(local_vector, rotation_matrix, *, out=None):
    """Local to global coordinates: the rotation matrix times the vector.

    Parameters
    ----------
    local_vector : array_like of float, shape (..., 3)
        Vector in local coordinates [m].
    rotation_matrix : array_like of float, shape (..., 3, 3)
        Rotation matrix; valid -1 to 1.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    global_vector : float32, shape (..., 3)
        Vector in global coordinates [m].

    Notes
    -----
    Each element has the bits of GERAXI in quorvel.h.

    References
    ----------
    Definition.

    Examples
    --------
    >>> from quorvel.geometry import local_to_global
    >>> result = local_to_global(local_vector=[1, 2, 3], rotation_matrix=[[0, 1, 0], [-1, 0, 0], [0,
    ...     0, 1]])
    >>> all(abs(a - b) <= 0 for a, b in zip(result.flat, [-2, 1, 3]))
    True

    (local x to the north, y to the west)
    """
    return _local_to_global(local_vector, rotation_matrix, out, True)


def global_to_local(global_vector, rotation_matrix, *, out=None):
    """Global to local coordinates: the transpose of the rotation matrix times the vector.

    Parameters
    ----------
    global_vector : array_like of float, shape (..., 3)
        Vector in global coordinates [m].
    rotation_matrix : array_like of float, shape (..., 3, 3)
        Rotation matrix; valid -1 to 1.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    local_vector : float32, shape (..., 3)
        Vector in local coordinates [m].

    Notes
    -----
    Each element has the bits of GERAX2 in quorvel.h.

    References
    ----------
    Definition.

    Examples
    --------
    >>> from quorvel.geometry import global_to_local
    >>> result = global_to_local(global_vector=[-2, 1, 3], rotation_matrix=[[0, 1, 0], [-1, 0, 0],
    ...     [0, 0, 1]])
    >>> all(abs(a - b) <= 0 for a, b in zip(result.flat, [1, 2, 3]))
    True

    (local x to the north, y to the west)
    """
    return _global_to_local(global_vector, rotation_matrix, out, True)


def plan_area(x, y, *, out=None):
    """Area of a polygon in plan.

    Parameters
    ----------
    x : array_like of float, shape (..., vertices)
        X of the vertices [m].
    y : array_like of float, shape (..., vertices)
        Y of the vertices [m].
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    area : float32
        Area [m²].

    Raises
    ------
    ValueError
        Unless the number of vertices is at least 3.
        Unless all arguments have as many vertices.

    Notes
    -----
    Formula: half the size of the sum of x(i) y(i - 1) - y(i) x(i - 1), the last one before the
    first

    A polygon far from the origin beside its size loses digits.

    Each element has the bits of GEAPOL in quorvel.h.

    References
    ----------
    Shoelace formula.

    Examples
    --------
    >>> from quorvel.geometry import plan_area
    >>> result = plan_area(x=[0, 0, 1, 1], y=[0, 1, 1, 0])
    >>> bool(result == 1)
    True

    (unit square)
    """
    return _plan_area(x, y, out, True)


def signed_plan_area(x, y, *, out=None):
    """Area of a polygon in plan, positive for clockwise vertices.

    Parameters
    ----------
    x : array_like of float, shape (..., vertices)
        X of the vertices [m].
    y : array_like of float, shape (..., vertices)
        Y of the vertices [m].
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    area : float32
        Area, negative for anticlockwise vertices [m²].

    Raises
    ------
    ValueError
        Unless the number of vertices is at least 3.
        Unless all arguments have as many vertices.

    Notes
    -----
    Formula: half the sum of x(i) y(i - 1) - y(i) x(i - 1), the last one before the first

    As `plan_area`.

    Each element has the bits of GEAPO2 in quorvel.h.

    References
    ----------
    Shoelace formula.

    Examples
    --------
    >>> from quorvel.geometry import signed_plan_area
    >>> result = signed_plan_area(x=[0, 0, 1, 1], y=[0, 1, 1, 0])
    >>> bool(result == 1)
    True

    (clockwise unit square)
    """
    return _signed_plan_area(x, y, out, True)


def area_in_space(x, y, z, *, out=None):
    """Area of a plane polygon in space.

    Parameters
    ----------
    x : array_like of float, shape (..., vertices)
        X of the vertices [m].
    y : array_like of float, shape (..., vertices)
        Y of the vertices [m].
    z : array_like of float, shape (..., vertices)
        Z of the vertices [m].
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    area : float32
        Area [m²].

    Raises
    ------
    ValueError
        Unless the number of vertices is at least 3.
        Unless all arguments have as many vertices.

    Notes
    -----
    It is the sum of the triangles over the edges with the mean of the vertices as apex, all counted
    as positive: too large for a polygon that is not seen whole from there. Of the surfaces of real
    buildings 3.3 % come out too large by more than 0.1 %, half of these by more than 7 %.

    Each element has the bits of GEAPO3 in quorvel.h.

    References
    ----------
    Elementary geometry.

    Examples
    --------
    >>> from quorvel.geometry import area_in_space
    >>> result = area_in_space(x=[0, 0, 1, 1], y=[0, 3, 3, 0], z=[0, 4, 4, 0])
    >>> bool(abs(result - 5) <= 1e-05)
    True

    (1 m by 5 m, the slope of 3 and 4)
    """
    return _area_in_space(x, y, z, out, True)


def polygon_orientation(polygon, *, out=None):
    """Area, tilt and orientation of a plane polygon in space.

    Parameters
    ----------
    polygon : array_like of float, shape (..., vertices, 3)
        Vertices [m].
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    PolygonOrientation
        A named tuple of:

    area : float32
        Area, positive when the vertices run as the corner at the first one turns [m²].
    tilt : float32
        Angle between the normal and the vertical [°].
    back_azimuth : float32
        Azimuth opposite to the normal [°].

    Raises
    ------
    ValueError
        Unless the number of vertices is at least 3.

    Notes
    -----
    The normal points to where the corner at the first vertex is seen to turn anticlockwise: its
    opposite is the outward normal of a convex polygon that runs clockwise seen from outside.

    Only the corner at the first vertex gives the plane. Of 31605 surfaces of real buildings 141
    begin within a straight side, and for 7 of these rounding alone decides the normal, so that
    area, tilt and orientation are wrong: let the first vertex be a true corner.

    The orientation of a nearly level polygon (the cosine of its tilt beyond 0.999) is the azimuth
    opposite to its first side if the normal points up, and that of the side if it points down.

    Degrees are radians times 180 by 3.141593, so that right angles can be one step off, and what
    faces north may get 0.00003.

    Each element has the bits of GEASO in quorvel.h.

    References
    ----------
    Shoelace formula in the plane of the polygon.

    Examples
    --------
    >>> from quorvel.geometry import polygon_orientation
    >>> result = polygon_orientation(polygon=[[0, 0, 0], [0, 0, 1], [1, 0, 1], [1, 0, 0]])
    >>> bool(abs(result.area - 1) <= 0.0001)
    True
    >>> bool(abs(result.tilt - 90) <= 0.0001)
    True
    >>> bool(abs(result.back_azimuth - 180) <= 0.0001)
    True

    (a wall that faces south, clockwise from outside)
    """
    return _new(PolygonOrientation, _polygon_orientation(polygon, out, True))


def projection(plane_point, plane_normal, point, direction, *, out=None):
    """Projection of a point along a direction, forwards or backwards, onto a plane.

    Parameters
    ----------
    plane_point : array_like of float, shape (..., 3)
        A point of the plane [m].
    plane_normal : array_like of float, shape (..., 3)
        Normal of the plane, of any length.
    point : array_like of float, shape (..., 3)
        The point [m].
    direction : array_like of float, shape (..., 3)
        Direction, of any length.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    projected_point : float32, shape (..., 3)
        Projected point [m]; 1e20 where there is none.

    Notes
    -----
    Formula: point + t direction, t = (plane_point - point) . plane_normal / (direction .
    plane_normal)

    A direction parallel to the plane (its dot product with the normal of magnitude 1e-15 or less,
    or not a number) gives 1e20 in all coordinates.

    Each element has the bits of GEPROJ in quorvel.h.

    References
    ----------
    Elementary analytic geometry.

    Examples
    --------
    >>> from quorvel.geometry import projection
    >>> result = projection(plane_point=[0, 0, 0], plane_normal=[0, 0, 1], point=[0, 0, 5],
    ...     direction=[1, 0, -1])
    >>> all(abs(a - b) <= 0 for a, b in zip(result.flat, [5, 0, 0]))
    True

    (down a slope of 45°)
    """
    return _projection(plane_point, plane_normal, point, direction, out, True)


def forward_projection(plane_point, plane_normal, point, direction, *, out=None):
    """Projection of a point along a direction, forwards only, onto a plane.

    Parameters
    ----------
    plane_point : array_like of float, shape (..., 3)
        A point of the plane [m].
    plane_normal : array_like of float, shape (..., 3)
        Normal of the plane, of any length.
    point : array_like of float, shape (..., 3)
        The point [m].
    direction : array_like of float, shape (..., 3)
        Direction, of any length.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    projected_point : float32, shape (..., 3)
        Projected point [m]; 1e20 where there is none.

    Notes
    -----
    Formula: point + t direction, t = (plane_point - point) . plane_normal / (direction .
    plane_normal)

    A direction parallel to the plane or away from it, and a point that is in the plane already,
    give 1e20 in all coordinates.

    Forwards means that the way from the point to its projection, scaled to length 1, differs from
    the direction, scaled so, by 1e-6 at most in each component. Coordinates that are large beside
    the way to the plane can spoil that by rounding: at site coordinates of real buildings, about 7
    % of the points whose projection lies ahead are not found.

    Each element has the bits of GEPROJ2 in quorvel.h.

    References
    ----------
    As `projection`.

    Examples
    --------
    >>> from quorvel.geometry import forward_projection
    >>> result = forward_projection(plane_point=[0, 0, 0], plane_normal=[0, 0, 1], point=[0, 0, 5],
    ...     direction=[1, 0, -1])
    >>> all(abs(a - b) <= 0 for a, b in zip(result.flat, [5, 0, 0]))
    True

    (down a slope of 45°)
    """
    return _forward_projection(plane_point, plane_normal, point, direction, out, True)


def forward_projection_or_start(plane_point, plane_normal, point, direction, *, out=None):
    """Projection of a point along a direction onto a plane, or the point itself where the plane does
    not lie ahead.

    Parameters
    ----------
    plane_point : array_like of float, shape (..., 3)
        A point of the plane [m].
    plane_normal : array_like of float, shape (..., 3)
        Normal of the plane, of any length.
    point : array_like of float, shape (..., 3)
        The point [m].
    direction : array_like of float, shape (..., 3)
        Direction, of any length.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    projected_point : float32, shape (..., 3)
        Projected point, or the point itself [m].

    Notes
    -----
    Formula: point + t direction, t = (plane_point - point) . plane_normal / (direction .
    plane_normal)

    A direction whose product with the normal is exactly 0 gives what the division by zero makes of
    it: infinities or not a number. There is no other limit for parallel directions, so that the
    length of the normal does not matter.

    Ahead is as in `forward_projection`, and so about 7 % of the points at site coordinates of real
    buildings are returned as they are, although the plane lies ahead.

    Each element has the bits of GEPROJ3 in quorvel.h.

    References
    ----------
    As `projection`.

    Examples
    --------
    >>> from quorvel.geometry import forward_projection_or_start
    >>> result = forward_projection_or_start(plane_point=[0, 0, 0], plane_normal=[0, 0, 1],
    ...     point=[0, 0, 5], direction=[-1, 0, 1])
    >>> all(abs(a - b) <= 0 for a, b in zip(result.flat, [0, 0, 5]))
    True

    (the plane lies behind)
    """
    return _forward_projection_or_start(plane_point, plane_normal, point, direction, out, True)


def dot_product(vector_a, vector_b, *, out=None):
    """Dot product of two vectors.

    Parameters
    ----------
    vector_a : array_like of float, shape (..., 3)
        Vector [m].
    vector_b : array_like of float, shape (..., 3)
        Vector [m].
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    dot_product : float32
        A . b [m²].

    Notes
    -----
    Formula: a1 b1 + a2 b2 + a3 b3

    Each element has the bits of GEDOTP in quorvel.h.

    References
    ----------
    Definition.

    Examples
    --------
    >>> from quorvel.geometry import dot_product
    >>> result = dot_product(vector_a=[1, 2, 3], vector_b=[4, 5, 6])
    >>> bool(result == 32)
    True

    (4 + 10 + 18)
    """
    return _dot_product(vector_a, vector_b, out, True)


def dot_product_in_double(vector_a, vector_b, *, out=None):
    """Dot product of two vectors in double precision.

    Parameters
    ----------
    vector_a : array_like of float, shape (..., 3)
        Vector [m].
    vector_b : array_like of float, shape (..., 3)
        Vector [m].
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    dot_product : float64
        A . b [m²].

    Notes
    -----
    Formula: a1 b1 + a2 b2 + a3 b3

    Each element has the bits of GEDTDP in quorvel.h.

    References
    ----------
    Definition.

    Examples
    --------
    >>> from quorvel.geometry import dot_product_in_double
    >>> result = dot_product_in_double(vector_a=[1, 2, 3], vector_b=[4, 5, 6])
    >>> bool(result == 32)
    True

    (4 + 10 + 18)
    """
    return _dot_product_in_double(vector_a, vector_b, out, True)


def cross_product(vector_a, vector_b, *, out=None):
    """Cross product of two vectors.

    Parameters
    ----------
    vector_a : array_like of float, shape (..., 3)
        Vector [m].
    vector_b : array_like of float, shape (..., 3)
        Vector [m].
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    cross_product : float32, shape (..., 3)
        A x b [m²].

    Notes
    -----
    Formula: (a2 b3 - a3 b2, a3 b1 - a1 b3, a1 b2 - a2 b1)

    Each element has the bits of GEXPRO in quorvel.h.

    References
    ----------
    Definition.

    Examples
    --------
    >>> from quorvel.geometry import cross_product
    >>> result = cross_product(vector_a=[1, 2, 3], vector_b=[4, 5, 6])
    >>> all(abs(a - b) <= 0 for a, b in zip(result.flat, [-3, 6, -3]))
    True

    ((12 - 15, 12 - 6, 5 - 8))
    """
    return _cross_product(vector_a, vector_b, out, True)


def cross_product_in_double(vector_a, vector_b, *, out=None):
    """Cross product of two vectors in double precision.

    Parameters
    ----------
    vector_a : array_like of float, shape (..., 3)
        Vector [m].
    vector_b : array_like of float, shape (..., 3)
        Vector [m].
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    cross_product : float64, shape (..., 3)
        A x b [m²].

    Notes
    -----
    Formula: (a2 b3 - a3 b2, a3 b1 - a1 b3, a1 b2 - a2 b1)

    Each element has the bits of GEXPDP in quorvel.h.

    References
    ----------
    Definition.

    Examples
    --------
    >>> from quorvel.geometry import cross_product_in_double
    >>> result = cross_product_in_double(vector_a=[1, 2, 3], vector_b=[4, 5, 6])
    >>> all(abs(a - b) <= 0 for a, b in zip(result.flat, [-3, 6, -3]))
    True

    ((12 - 15, 12 - 6, 5 - 8))
    """
    return _cross_product_in_double(vector_a, vector_b, out, True)


def length(vector, *, out=None):
    """Length of a vector.

    Parameters
    ----------
    vector : array_like of float, shape (..., 3)
        Vector [m].
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    length : float32
        Length [m].

    Notes
    -----
    Formula: sqrt(v1^2 + v2^2 + v3^2)

    Squares beyond the range of a float make the length infinite or 0: from about 1e19, below about
    1e-23.

    Each element has the bits of GEVMOD in quorvel.h.

    References
    ----------
    Definition.

    Examples
    --------
    >>> from quorvel.geometry import length
    >>> result = length(vector=[3, 4, 12])
    >>> bool(result == 13)
    True

    (9 + 16 + 144 = 13²)
    """
    return _length(vector, out, True)


def length_in_double(vector, *, out=None):
    """Length of a vector in double precision.

    Parameters
    ----------
    vector : array_like of float, shape (..., 3)
        Vector [m].
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    length : float64
        Length [m].

    Notes
    -----
    Formula: sqrt(v1^2 + v2^2 + v3^2)

    Each element has the bits of GEVMDP in quorvel.h.

    References
    ----------
    Definition.

    Examples
    --------
    >>> from quorvel.geometry import length_in_double
    >>> result = length_in_double(vector=[3, 4, 12])
    >>> bool(result == 13)
    True

    (9 + 16 + 144 = 13²)
    """
    return _length_in_double(vector, out, True)
