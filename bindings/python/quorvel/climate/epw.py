"""Weather files in the EPW format: a year of hours at one place."""

import csv
import math
import os
from collections.abc import Iterator, KeysView
from typing import Any, NamedTuple

import numpy as np
from numpy.typing import NDArray

__all__ = ["Column", "EPW_COLUMNS", "Weather", "read_epw"]


class Column(NamedTuple):
    """A column of a weather file: its unit, what it is, and from which number on a value is missing."""

    unit: str
    meaning: str
    missing: float


# In their order, after year, month, day, hour, minute and flags. The numbers for
# missing values are those of the data dictionary of the format.
EPW_COLUMNS = {
    "dry_bulb": Column("°C", "dry-bulb temperature", 99.9),
    "dew_point": Column("°C", "dew-point temperature", 99.9),
    "relative_humidity": Column("%", "relative humidity", 999),
    "pressure": Column("Pa", "atmospheric pressure", 999999),
    "extraterrestrial_horizontal": Column("Wh/m²", "extraterrestrial radiation on the horizontal", 9999),
    "extraterrestrial_normal": Column("Wh/m²", "extraterrestrial radiation normal to the sun", 9999),
    "sky_infrared": Column("Wh/m²", "infrared radiation from the sky on the horizontal", 9999),
    "global_horizontal": Column("Wh/m²", "global radiation on the horizontal", 9999),
    "direct_normal": Column("Wh/m²", "direct radiation normal to the sun", 9999),
    "diffuse_horizontal": Column("Wh/m²", "diffuse radiation on the horizontal", 9999),
    "global_illuminance": Column("lx", "global illuminance on the horizontal", 999900),
    "direct_illuminance": Column("lx", "direct illuminance normal to the sun", 999900),
    "diffuse_illuminance": Column("lx", "diffuse illuminance on the horizontal", 999900),
    "zenith_luminance": Column("cd/m²", "luminance of the zenith", 9999),
    "wind_direction": Column("°", "direction that the wind comes from, clockwise from north", 999),
    "wind_speed": Column("m/s", "wind speed", 999),
    "sky_cover": Column("tenths", "sky covered by clouds", 99),
    "opaque_sky_cover": Column("tenths", "sky covered by clouds that hide the blue or the stars", 99),
    "visibility": Column("km", "visibility", 9999),
    "ceiling_height": Column("m", "height of the lowest cloud layer", 99999),
}
_FIRST = 6  # fields ahead of them
_HEADER_LINES = 8
MONTH_DAYS = (31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31)


class Weather:
    """Hours of weather at one place: `weather["dry_bulb"]` is an array of float32, a value for each hour.

    Attributes
    ----------
    place : str
        City and country.
    latitude, longitude : float
        In degrees, north and east positive.
    time_zone : float
        Hours ahead of Greenwich.
    elevation : float
        Above sea level [m].
    month, day, hour : ndarray of int32
        Of each record; hour 1 ends at 01:00, standard time.
    """

    def __init__(self, location, dates, columns):
        self.place, self.latitude, self.longitude, self.time_zone, self.elevation = location
        self.year, self.month, self.day, self.hour = dates
        self.columns = columns

    def __getitem__(self, name: str) -> NDArray[np.float32]:
        if name not in self.columns:
            raise KeyError(f"{name!r} is none of the columns {', '.join(self.columns)}")
        return self.columns[name]

    def __len__(self) -> int:
        return len(self.hour)

    def __contains__(self, name: object) -> bool:
        return name in self.columns

    def __iter__(self) -> Iterator[str]:
        return iter(self.columns)

    def keys(self) -> KeysView[str]:
        """The names of the columns."""
        return self.columns.keys()

    def __repr__(self):
        return f"<Weather of {self.place}: {len(self)} hours>"

    @property
    def day_of_year(self) -> NDArray[np.int32]:
        """1 to 365, as the functions of the sun take it: 29 February counts as 28 February."""
        before = np.concatenate(([0], np.cumsum(MONTH_DAYS)))[self.month - 1]
        return (before + np.minimum(self.day, np.array(MONTH_DAYS)[self.month - 1])).astype(np.int32)

    def to_pandas(self, label: str = "start") -> Any:
        """A table of pandas, a row an hour.

        Its index is the start, middle or end of each hour by `label`, in standard time without a time zone, in a year
        of the calendar: 2004 if there is a 29 February, else 2005.
        """
        import pandas

        shifts = {"start": 1.0, "middle": 0.5, "end": 0.0}
        if label not in shifts:
            raise ValueError(f"label must be one of {', '.join(map(repr, shifts))}, not {label!r}")
        leap = bool(np.any((self.month == 2) & (self.day == 29)))
        index = pandas.to_datetime({"year": np.full(len(self), 2004 if leap else 2005), "month": self.month, "day": self.day})
        table = pandas.DataFrame(self.columns)
        table.index = pandas.DatetimeIndex(index + pandas.to_timedelta(self.hour - shifts[label], unit="h"), name="time")
        return table

    def to_xarray(self) -> Any:
        """A data set of xarray with the dimension time, units and long names."""
        data = self.to_pandas().to_xarray()
        for name, column in EPW_COLUMNS.items():
            data[name].attrs.update(units=column.unit, long_name=column.meaning)
        data.attrs.update(place=self.place, latitude=self.latitude, longitude=self.longitude,
                          time_zone=self.time_zone, elevation=self.elevation)
        return data


def read_epw(path: str | os.PathLike[str]) -> Weather:
    """Read a weather file.

    Parameters
    ----------
    path : path-like
        Of an EPW file.

    Returns
    -------
    Weather
        Missing values are not a number.

    Raises
    ------
    ValueError
        Where a line is not what the format says; names the line.

    Examples
    --------
    >>> from quorvel.climate import read_epw
    >>> table = read_epw("london.epw").to_pandas()    # doctest: +SKIP
    """
    name = os.fspath(path)
    with open(path, newline="", encoding="utf-8-sig", errors="replace") as file:
        try:
            rows = list(csv.reader(file))
        except csv.Error as error:
            raise ValueError(f"{name}: no table of values between commas ({error})") from None
    location = _location(rows, name)
    if len(rows) < _HEADER_LINES or rows[_HEADER_LINES - 1][:1] != ["DATA PERIODS"]:
        raise ValueError(f"{name}, line {_HEADER_LINES}: DATA PERIODS is expected, the last line of the header")
    records = [(line, row) for line, row in enumerate(rows[_HEADER_LINES:], _HEADER_LINES + 1) if row]
    if not records:
        raise ValueError(f"{name}: there are no hours of weather")
    numbers = np.array([_numbers(row, f"{name}, line {line}") for line, row in records])
    dates = numbers[:, :4].astype(np.int32).T
    columns = {}
    for place, (column, known) in enumerate(EPW_COLUMNS.items(), 4):
        values = numbers[:, place]
        columns[column] = np.where(values >= known.missing, np.nan, values).astype(np.float32)
    return Weather(location, dates, columns)


def _location(rows, name):
    if not rows or len(rows[0]) < 10 or rows[0][0].strip().upper() != "LOCATION":
        raise ValueError(f"{name}, line 1: LOCATION with ten fields is expected")
    place = f"{name}, line 1"
    try:
        numbers = [float(field) for field in rows[0][6:10]]
    except ValueError:
        raise ValueError(f"{place}: latitude, longitude, time zone and elevation are numbers") from None
    for what, value, (low, high) in zip(("latitude", "longitude", "time zone", "elevation"), numbers,
                                        ((-90, 90), (-180, 180), (-12, 14), (-500, 9000))):
        _check(what, value, low, high, place)
    return (", ".join(filter(None, (rows[0][1].strip(), rows[0][3].strip()))), *numbers)


def _numbers(row, place):
    needed = _FIRST + len(EPW_COLUMNS)
    if len(row) < needed:
        raise ValueError(f"{place}: {needed} fields are expected, not {len(row)}")
    try:
        dates, values = [float(field) for field in row[:4]], [float(field) for field in row[_FIRST:needed]]
    except ValueError:
        raise ValueError(f"{place}: a field is no number") from None
    _check("year", dates[0], 0, 9999, place)
    _check("month", dates[1], 1, 12, place)
    _check("day", dates[2], 1, 29 if dates[1] == 2 else MONTH_DAYS[int(dates[1]) - 1], place)
    _check("hour", dates[3], 1, 24, place)
    if not all(map(math.isfinite, values)) or any(date % 1 for date in dates):
        raise ValueError(f"{place}: a field is no number, or a date has a fraction")
    return [*dates, *values]


def _check(what, value, low, high, place):
    if not low <= value <= high:
        raise ValueError(f"{place}: {what} {value:g} is not from {low} to {high}")
