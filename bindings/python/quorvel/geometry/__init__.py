"""Geometry: vectors, lines, planes, frames, polygons and their clipping."""

from . import polygon, routines
from .polygon import *  # noqa: F403
from .routines import *  # noqa: F403

__all__ = sorted({*routines.__all__, *polygon.__all__})
