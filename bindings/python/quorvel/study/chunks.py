"""How the cube is cut into chunks: each whole in its hours, and of one station and one tilt."""

import itertools
import math

from .definition import HOURS

__all__ = ["chunk_shape", "chunks", "extent"]


def chunk_shape(study):
    """Extent of a chunk along station, tilt, azimuth, glazing and blind, as large as the study wishes."""
    extents, left = [], max(1, study.chunk_elements // HOURS)
    for length in reversed(study.shape[2:]):
        extents.insert(0, min(length, left))
        left = max(1, left // length)
    return (1, 1, *extents)


def chunks(study):
    """The places of all chunks, station by station."""
    counts = (math.ceil(length / extent) for length, extent in zip(study.shape, chunk_shape(study)))
    return list(itertools.product(*map(range, counts)))


def extent(study, place):
    """The slices that a chunk is."""
    return tuple(slice(n * size, min((n + 1) * size, length))
                 for n, size, length in zip(place, chunk_shape(study), study.shape))
