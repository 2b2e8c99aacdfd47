"""The sun of a year at a place, in the middle of each hour."""

from typing import NamedTuple

import numpy as np

from ..climate import almanac_position
from ..climate.epw import MONTH_DAYS as DAYS
from ..selectors import TimeKind

__all__ = ["DAYS", "MONTHS", "Place", "YEAR", "sun"]

# Hours of typical years come from different years: a common one makes them comparable.
YEAR = 2005
MONTHS = np.concatenate(([0], np.cumsum(DAYS))) * 24  # the hours with which the months begin, and the year ends


class Place(NamedTuple):
    latitude: float  # degrees, north positive
    longitude: float  # degrees, east positive
    time_zone: float  # hours ahead of Greenwich


def sun(place):
    """Altitude and azimuth in the middle of each hour, standard time of the place's zone [rad]."""
    month = np.repeat(np.arange(1, 13, dtype=np.int32), np.multiply(DAYS, 24))
    day = np.repeat(np.concatenate([np.arange(1, days + 1, dtype=np.int32) for days in DAYS]), 24)
    hour = np.tile(np.arange(24, dtype=np.float32) + np.float32(0.5), 365)
    meridian = 15 * place.time_zone
    # Beyond the date line the longitude is that of the zone's side: the routine adds no whole turns.
    longitude = meridian + (place.longitude - meridian + 180) % 360 - 180
    found = almanac_position(TimeKind.zone, YEAR, month, day, hour, *np.radians(
        [place.latitude, -longitude, -meridian]).astype(np.float32))
    return found.solar_altitude, found.solar_azimuth
