"""Polygons as lists or arrays of points, one or many at once, in double precision.

A polygon is an array of shape (n, 2), in plan, or (n, 3), in space, or a list that makes one; a collection is a
list of polygons, which may have different numbers of vertices, or an array of shape (m, n, 2) or (m, n, 3).
"""

from typing import Any, NamedTuple

import numpy as np
from numpy.typing import ArrayLike, NDArray

from .. import _core
from . import routines

__all__ = ["Clipped", "ClippingError", "area", "clip", "orientation", "overlap", "overlap_area"]


class ClippingError(ValueError):
    """Two polygons cannot be clipped; says why."""


class Clipped(NamedTuple):
    """What clip returns: pieces, each an array of shape (n, 2)."""

    difference: list[NDArray[np.float64]]
    overlap: list[NDArray[np.float64]]


def clip(a: ArrayLike, b: ArrayLike) -> Any:
    """Difference A - B and overlap of two simple polygons in plan.

    Parameters
    ----------
    a, b : array_like, shape (n, 2), or collections of them
        Vertices one after the other, either way round, from 3. A polygon must not cross itself. One polygon goes
        with each of a collection; two collections go pair by pair.

    Returns
    -------
    Clipped, or a list of them for collections
        The pieces run in the sense of A. Where B lies within A the difference is two pieces, which touch along
        level bridges from B to A.

    Raises
    ------
    ClippingError
        Where a polygon crosses itself, has no area, has fewer than 3 vertices or coordinates that are no
        numbers, or the two cross more than 1024 times.

    Notes
    -----
    Exact to about 1e-4 of the diagonal of the box round both, times the length of the boundaries; the areas of
    difference and overlap add up to that of A to rounding. HOHOLEDP in quorvel.h has more.

    References
    ----------
    Boundary tracing: K. Weiler, P. Atherton, Hidden surface removal using polygon area sorting, 1977.

    Examples
    --------
    >>> from quorvel.geometry import area, clip
    >>> square = [(0, 0), (0, 2), (2, 2), (2, 0)]
    >>> shifted = [(x + 1, y + 1) for x, y in square]
    >>> pieces = clip(square, shifted)
    >>> float(area(pieces.difference).sum()), float(area(pieces.overlap).sum())
    (3.0, 1.0)
    """
    if _is_collection(a) or _is_collection(b):
        return [_clip(*pair, f"pair {k}: ") for k, pair in enumerate(zip(*_paired(a, b, "clip")))]
    return _clip(_plan(a, "a"), _plan(b, "b"))


def overlap(a: ArrayLike, b: ArrayLike) -> Any:
    """The pieces of the overlap of two polygons in plan: `clip(a, b).overlap`, or a list of these.

    `ufuncs.overlap` has the routine GEOVER of quorvel.h, in single precision.
    """
    clipped = clip(a, b)
    return clipped.overlap if isinstance(clipped, Clipped) else [each.overlap for each in clipped]


def overlap_area(a: ArrayLike, b: ArrayLike) -> Any:
    """Area of the overlap of polygons in plan, in m² if they are in m.

    Takes what `clip` takes, and is the quickest way for many: the loop runs without Python's lock. Of a pair that
    cannot be clipped it is not a number.

    Examples
    --------
    >>> from quorvel.geometry import overlap_area
    >>> square = [(0, 0), (0, 2), (2, 2), (2, 0)]
    >>> float(overlap_area(square, [(x + 1, y + 1) for x, y in square]))
    1.0
    """
    first, second = _paired(a, b, "overlap_area")
    areas = np.empty(max(len(first), len(second)))
    one_each = [polygons[:1] if _is_same(polygons) else polygons for polygons in (first, second)]
    _core.overlap_areas(*_flat(one_each[0]), *_flat(one_each[1]), areas)
    areas[[not (_is_finite(left) and _is_finite(right)) for left, right in zip(first, second)]] = np.nan
    return areas if _is_collection(a) or _is_collection(b) else areas[0]


def area(polygon: ArrayLike) -> Any:
    """Area of a polygon in plan or in space, or of each of a collection; positive whichever way round.

    In plan by the shoelace formula; in space the length of the vector area, so exact for plane polygons. In double
    precision; `plan_area` and `area_in_space` have the bits of the routines.

    Examples
    --------
    >>> from quorvel.geometry import area
    >>> float(area([(0, 0), (0, 2), (3, 2), (3, 0)]))
    6.0
    >>> float(area([(0, 0, 1), (0, 2, 1), (3, 2, 1), (3, 0, 1)]))
    6.0
    """
    if _is_collection(polygon):
        return np.array([_area(_points(each, "polygon")) for each in polygon])
    return _area(_points(polygon, "polygon"))


def orientation(polygon: ArrayLike) -> routines.PolygonOrientation:
    """Area, tilt and azimuth of a plane polygon in space, or of each of a collection, as `polygon_orientation`.

    Polygons of a collection that have as many vertices as one another are worked out in one call.

    Examples
    --------
    >>> from quorvel.geometry import orientation
    >>> wall = orientation([(0, 0, 0), (0, 0, 1), (1, 0, 1), (1, 0, 0)])
    >>> round(float(wall.tilt), 3), round(float(wall.back_azimuth), 3)
    (90.0, 180.0)
    """
    if not _is_collection(polygon):
        return routines.polygon_orientation(_points(polygon, "polygon", 3))
    polygons = [_points(each, "polygon", 3) for each in polygon]
    results = np.empty((3, len(polygons)), np.float32)
    counts = np.array([len(each) for each in polygons])
    for count in np.unique(counts):
        same = counts == count
        results[:, same] = routines.polygon_orientation(np.stack([polygons[k] for k in np.flatnonzero(same)]))
    return routines.PolygonOrientation(*results)


def _is_collection(polygons):
    if isinstance(polygons, np.ndarray) and polygons.dtype != object:
        return polygons.ndim > 2
    if not isinstance(polygons, (list, tuple, np.ndarray)):
        return False
    return len(polygons) == 0 or np.ndim(polygons[0]) > 1


def _points(polygon, name, extent=None):
    points = np.asarray(polygon)
    if points.dtype.kind not in "biuf" or np.ma.isMaskedArray(polygon):
        raise ValueError(f"{name}: a polygon is of numbers, not of {'masked values' if points.dtype.kind in 'biuf' else points.dtype}")
    points = np.ascontiguousarray(points, np.float64)
    extents = (extent,) if extent else (2, 3)
    if points.ndim != 2 or points.shape[1] not in extents:
        shapes = " or ".join(f"(n, {each})" for each in extents)
        raise ValueError(f"{name}: a polygon has the shape {shapes}, not {points.shape}")
    return points


def _plan(polygon, name):
    return _points(polygon, name, 2)


def _area(points):
    if len(points) == 0:
        return 0.0
    sides = np.zeros((len(points), 3))
    sides[:, :points.shape[1]] = points - points[0]
    return 0.5 * np.linalg.norm(np.cross(sides[:-1], sides[1:]).sum(axis=0))


def _is_finite(points):
    return bool(np.isfinite(points).all())


def _clip(a, b, which=""):
    for points, name in ((a, "a"), (b, "b")):
        if not _is_finite(points):
            raise ClippingError(f"clip: {which}{name} has coordinates that are not numbers")
    fault, difference, both = _core.clip(a, b)
    if fault:
        raise ClippingError(f"clip: {which}{fault}")
    return Clipped(*([np.frombuffer(piece).reshape(-1, 2) for piece in pieces] for pieces in (difference, both)))


def _paired(a, b, name):
    """Two lists of polygons, of one length."""
    lists = []
    for polygons, which in ((a, "a"), (b, "b")):
        many = _is_collection(polygons)
        lists.append([_plan(each, which) for each in polygons] if many else _plan(polygons, which))
    lengths = {len(polygons) for polygons in lists if isinstance(polygons, list)} or {1}
    if len(lengths) > 1:
        raise ValueError(f"{name}: a has {len(lists[0])} polygons and b {len(lists[1])}")
    return [polygons if isinstance(polygons, list) else [polygons] * max(lengths) for polygons in lists]


def _is_same(polygons):
    return all(each is polygons[0] for each in polygons)


def _flat(polygons):
    starts = np.concatenate(([0], np.cumsum([len(each) for each in polygons], dtype=np.int64)))
    return (np.concatenate(polygons) if polygons else np.empty((0, 2))), starts.astype(np.int64)
