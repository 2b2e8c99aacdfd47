"""Climate data files: band climate of many stations, monthly."""

import os
from typing import NamedTuple

import numpy as np
from numpy.typing import NDArray

from .. import _core

__all__ = ["ClimateFile", "Station", "StationBand", "StationClimate"]


class StationClimate(NamedTuple):
    """Climate of a month: the quantities of the file, in its units (Q1 and Q2 not below 0, Q7 from 0 to 1), and
    two hours of the day."""

    q1: float
    q2: float
    q3: float
    q4: float
    q5: float
    q6: float
    q7: float
    time_a: float
    time_b: float


class StationBand(NamedTuple):
    """Between which bands a cumulative fraction of days lies, 1 to 10, and how far from the lower one."""

    lower_band: int
    upper_band: int
    band_weight: float


class ClimateFile:
    """An open climate data file; `file[station]` is a station of it.

    Each object keeps what it has read; objects have nothing in common, those of one file either. What lies
    outside the ranges counts as the nearest; a band set other than 2 is 1.

    Parameters
    ----------
    path : path-like
        Of a regular file.

    Raises
    ------
    FileNotFoundError
        Where there is no regular file of that name that may be read.
    OSError
        By the methods: where the file has no such station.

    Examples
    --------
    >>> from quorvel.climate import ClimateFile
    >>> with ClimateFile("stations.dat") as stations:              # doctest: +SKIP
    ...     july = stations[12].climate(month=7, percentage=97.5)
    """

    def __init__(self, path: str | os.PathLike[str]) -> None:
        self.path = os.fspath(path)
        self._file = _core.open_climate_file(path)

    def __getitem__(self, station: int) -> "Station":
        return Station(self, station)

    __iter__ = None  # a file does not tell how many stations it has

    def __enter__(self) -> "ClimateFile":
        return self

    def __exit__(self, *_: object) -> None:
        self.close()

    def close(self) -> None:
        """Close the file; its stations can no longer be read."""
        self._file = None

    def __repr__(self):
        return f"ClimateFile({self.path!r})" if self._file else f"<closed ClimateFile {self.path!r}>"

    def _read(self, function, station, *args):
        if self._file is None:
            raise ValueError(f"{self.path}: the climate data file is closed")
        try:
            return function(self._file, station, *args)
        except OSError:
            raise OSError(f"{self.path}: station {station} cannot be read") from None


class Station:
    """A station of a climate data file."""

    def __init__(self, file: ClimateFile, number: int) -> None:
        self.file, self.number = file, number

    def __repr__(self):
        return f"{self.file!r}[{self.number}]"

    def climate(self, month: int, *, band: int = 0, percentage: float = 0.0, band_set: int = 1) -> StationClimate:
        """Climate of a month, 1 to 12: of a band from 1 to 10 or, for band 0, at a cumulative percentage of days.

        The bits of CLBNFI in quorvel.h.
        """
        return StationClimate(*self._read(_core.station_climate, band, month, band_set, percentage))

    def locate_band(self, fraction: float, month: int, *, band_set: int = 1) -> StationBand:
        """Where a cumulative fraction of days lies among the ten bands of a month. The bits of CLBNF1."""
        return StationBand(*self._read(_core.locate_station_band, band_set, fraction, month))

    def interpolate_rows(self, base_row: int, band: StationBand, month: int) -> float:
        """Value between the rows base_row + lower_band and base_row + upper_band of a StationBand. (CLBNF2)"""
        return self._read(_core.interpolate_station_rows, base_row, band.lower_band, band.upper_band, month,
                          band.band_weight)

    def row(self, row: int) -> NDArray[np.float32]:
        """A row from 1 to 171, a value for each month: 1 time A, 2 time B, 3 to 12 frequencies of the bands, 13
        to 82 Q1 to Q7, ten each; 82 more in set 2. An array of 12 of float32; the bits of CLBNF3."""
        return np.array(self._read(_core.station_row, row), np.float32)

    def frequencies(self, band_set: int = 1) -> NDArray[np.float32]:
        """Share of the days in each band and month, an array of shape (10, 12)."""
        first = 3 if band_set != 2 else 85
        return np.stack([self.row(first + band) for band in range(10)])

    def _read(self, function, *args):
        return self.file._read(function, self.number, *args)
