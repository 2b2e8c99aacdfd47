"""Geometry: vectors, lines, planes, frames, polygons and their clipping."""

from . import polygon, routines
from .routines import *  # noqa: F403
from .polygon import *  # noqa: F403  (overlap is that of polygons; routines.overlap has the routine)

__all__ = sorted({*routines.__all__, *polygon.__all__})
