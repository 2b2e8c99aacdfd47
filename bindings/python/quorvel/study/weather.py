"""Direct and diffuse irradiance at the stations, hour by hour of a year of 365 days."""

from typing import NamedTuple

import numpy as np

from ..climate import design_irradiance, read_epw
from ..selectors import SkyKind
from .definition import HOURS
from .table import StudyError
from .sun import DAYS, Place, sun

__all__ = ["Weather", "weather_of"]


class Weather(NamedTuple):
    """Of one station; mean irradiance over each hour [W/m²]."""

    place: Place
    direct_normal: np.ndarray
    diffuse_horizontal: np.ndarray


def weather_of(station):
    """Weather of a station of a study.

    Raises
    ------
    StudyError
        Where a weather file does not have the hours of a year from 1 January, or an hour lacks its irradiance.
        A 29 February is left out.
    """
    return _from_file(station["epw"]) if "epw" in station else _clear_sky(station)


def _clear_sky(station):
    place = Place(station["latitude"], station["longitude"], station["time_zone"])
    altitude, _ = sun(place)
    sky = design_irradiance(np.maximum(altitude, 0), np.float32(station["height"]), SkyKind.clear)
    return Weather(place, sky.direct_normal, sky.diffuse_horizontal)


def _from_file(path):
    try:
        epw = read_epw(path)
    except OSError as error:
        raise StudyError(f"{path}: {error.strerror}") from None
    except ValueError as error:
        raise StudyError(str(error)) from None
    usual = ~((epw.month == 2) & (epw.day == 29))
    months = np.repeat(np.arange(1, 13), DAYS)
    if usual.sum() != HOURS or np.any(epw.month[usual] != np.repeat(months, 24)) \
            or np.any(epw.hour[usual] != np.tile(np.arange(1, 25), 365)):
        raise StudyError(f"{path}: it must hold the {HOURS} hours of a year from 1 January")
    columns = [epw[name][usual] for name in ("direct_normal", "diffuse_horizontal")]
    for name, values in zip(("direct_normal", "diffuse_horizontal"), columns):
        wrong = np.count_nonzero(~(values >= 0))
        if wrong:
            raise StudyError(f"{path}: {name} is missing or below 0 W/m² in {wrong} hours")
    return Weather(Place(epw.latitude, epw.longitude, epw.time_zone), *columns)
