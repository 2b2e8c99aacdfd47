"""What a study will take, from its definition and a short measured sample."""

import time
import tracemalloc
from math import prod
from typing import NamedTuple

from .chunks import chunks, extent
from .definition import HOURS
from .model import hours_of
from .weather import weather_of
from .work import compute

__all__ = ["Plan", "plan"]

SAMPLE = 0.5  # seconds
COPIES = 3  # of a chunk while it is written: the values, those in Zarr's order, those compressed


class Plan(NamedTuple):
    elements: int
    chunks: int
    output_bytes: int  # before compression
    chunk_bytes: int  # most memory of a worker's thread, beside the libraries themselves
    rate: float  # elements a second of one thread, as measured now, without writing

    def seconds(self, workers):
        return self.elements / self.rate / workers


def plan(study):
    """Measure a part of the first chunk and reckon up the whole."""
    stations = [weather_of(station) for station in study.stations]  # all files are read: faults show here
    hours = hours_of(stations[0])
    whole = extent(study, chunks(study)[0])
    first = whole[2].start
    sample = (*whole[:2], slice(first, first + 1), *whole[3:])
    tracemalloc.start()
    kept = compute(study, hours, sample)
    working = tracemalloc.get_traced_memory()[1]
    tracemalloc.stop()
    row = sum(array.nbytes for array in kept.values())
    rows = whole[2].stop - first
    elements = HOURS * prod(study.shape)
    size = HOURS * prod(part.stop - part.start for part in sample)
    rate = size * _rate(study, hours, sample)
    return Plan(elements, len(chunks(study)), row * elements // size, working + COPIES * row * rows, rate)


def _rate(study, hours, sample):
    """How often a second the sample is worked out."""
    times, begin = 0, time.perf_counter()
    while (passed := time.perf_counter() - begin) < SAMPLE or not times:
        compute(study, hours, sample)
        times += 1
    return times / passed
