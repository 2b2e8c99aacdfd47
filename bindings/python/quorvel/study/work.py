"""One chunk of a result, worked out and written by whichever worker has it."""

import os
import socket
import time
from functools import lru_cache
from math import prod
from typing import NamedTuple

import numpy as np

from . import model
from .chunks import extent
from .definition import HOURS

__all__ = ["Done", "compute", "hours_at", "work"]


class Done(NamedTuple):
    """A chunk that is there."""

    place: tuple
    elements: int  # worked out for it; none where it was there before
    seconds: float
    worker: str


def work(result, place):
    """Work out the chunk and write it, unless it is there."""
    begin = time.perf_counter()
    elements = 0
    if not result.has(place):
        where = extent(result.study, place)
        result.write(place, compute(result.study, hours_at(result, where[0].start), where))
        elements = HOURS * prod(part.stop - part.start for part in where)
    return Done(place, elements, time.perf_counter() - begin, f"{socket.gethostname()}:{os.getpid()}")


@lru_cache(maxsize=8)
def hours_at(result, station):
    """The hours with radiation of a station; several chunks in a row have the same."""
    return model.hours_of(result.weather(station))


def compute(study, hours, where):
    """What is kept of the part of the cube that the slices say: of one station, whose hours are given, and one tilt."""
    axes = (study.tilts, study.azimuths, study.glazings, study.blinds)
    tilts, azimuths, glazings, blinds = (axis[part] for axis, part in zip(axes, where[1:]))
    units = [model.panes_together(unit["panes"]) for unit in glazings]
    screens = model.slats_and_rollers(blinds)
    arrays = {}
    for row, azimuth in enumerate(azimuths):
        surface = model.facade(hours, azimuth, tilts[0], study.ground_reflectance)
        for column, q in enumerate(model.transmitted(surface, units, screens)):
            for name, values in model.reduced(q, hours.number, study.keep).items():
                if name not in arrays:
                    arrays[name] = np.empty((1, 1, len(azimuths), len(units), *values.shape), np.float32)
                arrays[name][0, 0, row, column] = values
    return arrays
