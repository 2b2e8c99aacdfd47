"""The corpus of calls by reference, 100,000 of each routine, again through the ufuncs: every bit of what they
give is held against the library, whose own bits the recorded hashes hold. With it come odd values of all kinds."""

import subprocess

import numpy as np
import pytest
from conftest import ROUTINES
from python_model import operands
from quorvel import ufuncs

CASES = 100000
UNTOUCHED = 0xC5C5C5C5
WORDS = {"Real": 1, "Integer": 1, "DoubleReal": 2}
DTYPES = {"Real": "<f4", "Integer": "<i4", "DoubleReal": "<f8"}


def extents(arg, routine):
    """Of the room that the corpus has: as many as it draws at most, and two."""
    highest = {each.name: int(each.draw[1]) + 2 for each in routine.args if each.draw}
    return [extent if isinstance(extent, int) else highest[extent] for extent in reversed(arg.shape)]


class Cases:
    """Arguments before the calls, and what these left, by name: arrays of (cases, room)."""

    def __init__(self, words, routine):
        self.words, self.place = words.reshape(CASES, -1), 0
        self.given = {arg.name: self._take(arg, routine) for arg in routine.args if arg.dir != "out"}
        self.left = {"result": self._take(routine.result, routine)} if routine.result else {}
        self.left |= {arg.name: self._take(arg, routine) for arg in routine.args if arg.dir != "in"}
        assert self.place == self.words.shape[1]

    def _take(self, arg, routine):
        shape = extents(arg, routine)
        count = WORDS[arg.type] * int(np.prod(shape))
        block = np.ascontiguousarray(self.words[:, self.place:self.place + count])
        self.place += count
        return block.view(DTYPES[arg.type]).reshape(CASES, *shape)


def counted(array, arg, counts):
    """The part of the room that the counts of these cases, which have them in common, count."""
    room = [counts.get(extent, None) if not isinstance(extent, int) else extent for extent in reversed(arg.shape)]
    return array[(slice(None), *(slice(extent) for extent in room))]


def groups(routine, cases):
    """Cases with the same counts, as far as counts are valid and fit the room."""
    names = sorted({extent for arg in routine.args for extent in arg.shape if not isinstance(extent, int)})
    described = {arg.name: arg for arg in routine.args}
    if not names:
        yield {}, slice(None)
        return
    counts = np.stack([cases.given[name] for name in names], axis=1)
    for row in np.unique(counts, axis=0):
        low_high = [(max(arg.range[0], 0), min(arg.range[1], arg.draw[1] + 2)) for arg in map(described.get, names)]
        if all(low <= count <= high for count, (low, high) in zip(row, low_high)):
            yield dict(zip(names, map(int, row))), (counts == row).all(axis=1)


def bits(array):
    """Equal for any not-a-number."""
    unsigned = np.ascontiguousarray(array).view(f"u{array.dtype.itemsize}").copy()
    if array.dtype.kind == "f":
        unsigned[np.isnan(array)] = 1
    return unsigned


def assert_same(got, left, operand, name):
    if operand.kind == "Logical":
        left = left != 0
    untouched = np.array([UNTOUCHED] * (left.dtype.itemsize // 4), np.uint32).view(left.dtype)[0] if left.dtype != bool else None
    written = np.ones(left.shape, bool) if untouched is None else bits(left) != bits(np.array([untouched]))[0]
    differs = (bits(got) != bits(left)) & written
    assert not differs.any(), f"{name}, {operand.field}: {differs.sum()} of {differs.size} numbers differ"


@pytest.mark.parametrize("name", ROUTINES)
def test_bits_of_the_corpus(name, build, tmp_path):
    _, routine = ROUTINES[name]
    if not routine.export:
        pytest.skip("has no form by reference")
    done = subprocess.run([build / "quorvel_corpus", "--words", routine.export], capture_output=True, check=True, cwd=tmp_path)
    cases = Cases(np.frombuffer(done.stdout, "<u4"), routine)
    inputs, outputs = operands(routine)
    compared = 0
    for counts, chosen in groups(routine, cases):
        given = [counted(cases.given[o.arg.name][chosen], o.arg, counts) for o in inputs]
        results = getattr(ufuncs, name)(*given)
        for operand, got in zip(outputs, results if isinstance(results, tuple) else [results]):
            arg_name = getattr(operand.arg, "name", "result")
            left = counted(cases.left[arg_name][chosen], operand.arg, counts)
            got = got[(slice(None), *map(slice, left.shape[1:]))]
            assert_same(got, left, operand, name)
        compared += len(given[0])
    assert compared >= CASES // 2
