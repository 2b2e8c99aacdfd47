"""The result of a study: a Zarr group with labelled axes, in which whole chunks appear one by one.

The group also holds the study itself and the weather of its stations, so that a worker needs nothing but the group.
"""

import hashlib
import json
import warnings
from dataclasses import replace
from functools import lru_cache

import numpy as np

from .. import _core
from . import model
from ._extra import needed
from .chunks import chunk_shape, chunks, extent
from .definition import HOURS, Study
from .places import place_of
from .sun import YEAR, Place
from .table import StudyError
from .weather import Weather, weather_of

zarr = needed("zarr")

__all__ = ["AXES", "Result", "VARIABLES", "open_result"]

AXES = ("station", "tilt", "azimuth", "glazing", "blind")
# By what is kept: the axis after the others and its length, unit and meaning.
_TRANSMITTED = "solar radiation transmitted through glazing and blind per area of glazing"
VARIABLES = {
    "hourly": ("time", HOURS, "W/m2", f"{_TRANSMITTED}, mean of the hour"),
    "monthly": ("month", 12, "kWh/m2", f"{_TRANSMITTED}, sum of the month"),
    "annual": (None, 0, "kWh/m2", f"{_TRANSMITTED}, sum of the year"),
    "peak": (None, 0, "W/m2", f"{_TRANSMITTED}, greatest hourly mean of the year"),
}
_WEATHER = {"direct_normal": "direct normal irradiance, mean of the hour",
            "diffuse_horizontal": "diffuse irradiance on the horizontal, mean of the hour"}


def open_result(study, path):
    """The result of a study at a path or URL, made where there is none.

    Raises
    ------
    StudyError
        Where a weather file is not as it must be, or the path holds something else, such as another study's result.
    """
    weather = [weather_of(station) for station in study.stations]
    identity = _identity(study, weather)
    place = place_of(path)
    if not place.exists():
        _create(place, study, weather, identity)
    result = Result(path)
    _same_study(path, result.identity, identity)
    return result


class Result:
    """A result that exists. It may be sent to another process, which must see the same file system or store."""

    def __init__(self, path):
        self.where = place_of(path)
        self.path = self.where.path
        try:
            self.group = zarr.open_group(self.path, mode="r+")
            self.identity = json.loads(self.group.attrs["quorvel_study"])
        except (FileNotFoundError, KeyError, TypeError, ValueError, OSError):
            raise StudyError(f"{path} exists and is not the result of a study") from None
        self.study = Study(**self.identity["study"])

    def __reduce__(self):
        self.where.expect_shared()
        return _reopened, (self.path, self.stamp)

    @property
    def stamp(self):
        """The identity in few bytes, for they go with each chunk's task."""
        return hashlib.sha256(json.dumps(self.identity, sort_keys=True).encode()).hexdigest()

    def weather(self, station):
        """Of the station of that number, as it was when the result was made."""
        place = Place(*(float(self.group[name][station]) for name in Place._fields))
        return Weather(place, *(self.group[name][station] for name in _WEATHER))

    def done(self):
        """The places of the chunks that are there: files of the variable that is written last."""
        names = self.where.names(_variable(self.study.keep[-1]))
        return [place for place in chunks(self.study) if _file(self.study, place) in names]

    def has(self, place):
        return self.where.has(_variable(self.study.keep[-1]), _file(self.study, place))

    def write(self, place, arrays):
        """Write a chunk: each variable's file appears whole, and the last one says that all are there."""
        for name in self.study.keep:
            self.group[_variable(name)][extent(self.study, place)] = arrays[name]


@lru_cache(maxsize=4)
def _reopened(path, stamp):
    """At a worker, once for all chunks."""
    result = Result(path)
    if result.stamp != stamp:
        raise StudyError(f"{path} has become the result of another study")
    if result.identity["library"] != _core.version():
        raise StudyError(f"a worker has version {_core.version()} of quorvel, the result {result.identity['library']}")
    return result


def _variable(name):
    return f"transmitted_{name}"


def _file(study, place):
    further = (0,) if VARIABLES[study.keep[-1]][0] else ()
    return ".".join(map(str, ("c", *place, *further)))


def _identity(study, weather):
    """What makes two results the same; a changed weather file or library is another study."""
    digests = [hashlib.sha256(b"".join((repr(one.place).encode(), *(part.astype("<f4").tobytes() for part in one[1:]))))
               .hexdigest() for one in weather]
    # The weather stands for the files: they may be elsewhere when the study goes on.
    named = replace(study, stations=[{"name": station["name"]} for station in study.stations])
    return {"study": named.as_dict(), "weather": digests, "library": _core.version(), "model": model.VERSION}


def _same_study(path, found, wanted):
    was, now = ({**identity, **identity["study"]} for identity in (found, wanted))
    different = [key for key in now if key != "study" and was.get(key) != now[key]]
    if different:
        raise StudyError(f"{path} is the result of another study, with different {', '.join(different)}; "
                         "remove it or choose another path with --result")


def _create(place, study, weather, identity):
    """All but the chunks. What says whose result it is comes last: what has it is complete."""
    with place.made() as location:
        group = zarr.open_group(location, mode="w-", attributes={
            "title": "Parametric study of a facade", "source": "quorvel.study"})
        _label(group, study)
        _store_weather(group, weather)
        for name in study.keep:
            axis, length, unit, meaning = VARIABLES[name]
            further = (length,) if axis else ()
            group.create_array(
                _variable(name), shape=(*study.shape, *further), chunks=(*chunk_shape(study), *further),
                dtype="float32", fill_value=np.nan, dimension_names=AXES + ((axis,) if axis else ()),
                chunk_key_encoding={"name": "default", "separator": "."},
                attributes={"units": unit, "long_name": meaning, "coordinates": "latitude longitude time_zone"})
        group.attrs["quorvel_study"] = json.dumps(identity)
        with warnings.catch_warnings():  # of readers that do not know consolidated metadata
            warnings.simplefilter("ignore")
            zarr.consolidate_metadata(group.store, path=group.path)


def _label(group, study):
    names = {"station": study.stations, "glazing": study.glazings, "blind": study.blinds}
    for axis, entries in names.items():
        _array(group, axis, np.array([entry["name"] for entry in entries]), (axis,), long_name=axis)
    _array(group, "tilt", np.array(study.tilts), ("tilt",), units="degree", long_name="tilt from the horizontal")
    _array(group, "azimuth", np.array(study.azimuths), ("azimuth",), units="degree",
           long_name="azimuth of the outward normal, clockwise from north")
    _array(group, "month", np.arange(1, 13, dtype=np.int32), ("month",), long_name="month")
    _array(group, "time", np.arange(HOURS, dtype=np.int32), ("time",), calendar="proleptic_gregorian",
           units=f"hours since {YEAR}-01-01 00:30:00", long_name="middle of the hour, standard time of the station")


def _store_weather(group, weather):
    units = {"latitude": "degree_north", "longitude": "degree_east", "time_zone": "h"}
    for n, (name, unit) in enumerate(units.items()):
        _array(group, name, np.array([one.place[n] for one in weather]), ("station",), units=unit,
               long_name=name.replace("_", " "))
    for name, meaning in _WEATHER.items():
        _array(group, name, np.stack([getattr(one, name) for one in weather]), ("station", "time"), (1, HOURS),
               units="W/m2", long_name=meaning)


def _array(group, name, values, axes, chunks="auto", **attributes):
    dtype = str if values.dtype.kind == "U" else values.dtype  # of any length
    group.create_array(name, shape=values.shape, dtype=dtype, chunks=chunks, dimension_names=axes,
                       attributes=attributes)[:] = values
