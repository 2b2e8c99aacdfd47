"""A routine as cells call it."""

from math import inf
from typing import NamedTuple


class Parameter(NamedTuple):
    name: str
    kind: str            # Real, DoubleReal, Integer or Text
    unit: str = ""
    limits: tuple = (-inf, inf)
    words: dict = {}     # of a selector: numbers by words
    shape: tuple = ()    # of an array: numbers and names of counts, the extent that varies fastest first
    turned: bool = False  # a matrix, which varies fastest down its columns
    otherwise: object = None  # what it is where it is left out


class Result(NamedTuple):
    name: str            # in the array library
    kind: str            # Real, DoubleReal, Integer, or Logical for what is -1 or 0
    shape: tuple = ()
    turned: bool = False
    none: bool = False   # 1e20 stands for what does not exist

    @property
    def is_line(self):
        """Whether it runs along a row, so that several stand one below the other: a number, or coordinates."""
        return self.shape in ((), (2,), (3,))


class Routine(NamedTuple):
    name: str
    method: str          # of the add-in
    parameters: tuple
    results: tuple
    of_file: bool = False  # of a climate data file
