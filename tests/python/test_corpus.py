"""The corpus of calls by reference, 100,000 of each routine, again through the ufuncs: every bit of what they
give is held against the library, whose own bits the recorded hashes hold. With it come odd values of all kinds."""

import subprocess

import numpy as np
import pytest
from conftest import ROUTINES
from corpus_layout import Layout
from languages.python_model import operands
from quorvel import ufuncs

CASES = 100000
UNTOUCHED = 0xC5C5C5C5
DTYPES = {"Real": "<f4", "Integer": "<i4", "DoubleReal": "<f8"}


class Cases:
    """Arguments before the calls, and what these left, by name: arrays of (cases, room)."""

    def __init__(self, words, layout):
        self.words, self.place = words.reshape(CASES, -1), 0
        self.given = {arg.name: self._take(arg, layout) for arg in layout.given}
        self.left = {name: self._take(arg, layout) for name, arg in layout.left.items()}
        assert self.place == self.words.shape[1]

    def _take(self, arg, layout):
        shape = layout.room(arg)[::-1]
        count = np.dtype(DTYPES[arg.type]).itemsize // 4 * int(np.prod(shape))
        block = np.ascontiguousarray(self.words[:, self.place:self.place + count])
        self.place += count
        return block.view(DTYPES[arg.type]).reshape(CASES, *shape)


def counted(array, arg, counts):
    """The part of the room that the counts of these cases, which have them in common, count."""
    room = [counts.get(extent, None) if not isinstance(extent, int) else extent for extent in reversed(arg.shape)]
    return array[(slice(None), *(slice(extent) for extent in room))]


def groups(layout, cases):
    """Cases with the same counts, as far as counts are valid and fit the room."""
    orders = layout.orders()
    if not orders:
        yield {}, slice(None)
        return
    names = [name for name, _, _ in orders]
    counts = np.stack([cases.given[name] for name in names], axis=1)
    for row in np.unique(counts, axis=0):
        if all(low <= count <= high for count, (_, low, high) in zip(row, orders)):
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
    layout = Layout(routine)
    cases = Cases(np.frombuffer(done.stdout, "<u4"), layout)
    inputs, outputs = operands(routine)
    compared = 0
    for counts, chosen in groups(layout, cases):
        given = [counted(cases.given[o.arg.name][chosen], o.arg, counts) for o in inputs]
        results = getattr(ufuncs, name)(*given)
        for operand, got in zip(outputs, results if isinstance(results, tuple) else [results]):
            arg_name = getattr(operand.arg, "name", "result")
            left = counted(cases.left[arg_name][chosen], operand.arg, counts)
            got = got[(slice(None), *map(slice, left.shape[1:]))]
            assert_same(got, left, operand, name)
        compared += len(given[0])
    assert compared >= CASES // 2
