"""The functions of the cells, without the office: the corpus of calls to the bit, and what Python they need."""

import ast
import math
import os
import struct
import unittest
from math import copysign, isnan
from pathlib import Path

import catalogue
import quorvel_calc
from corpus_layout import CASES, Layout
from languages import calc_binding
from quorvel_calc import library
from quorvel_calc.evaluation import Evaluation

OUT = Path(os.environ["QUORVEL_OUT"])
FAMILIES = catalogue.load(Path(catalogue.__file__).parents[1] / "catalogue")
CALLS = [call for call in calc_binding.calls(FAMILIES) if call.routine.export and not calc_binding.needs_file(call)]
CODES = {"Real": "f", "DoubleReal": "d", "Integer": "i"}
UNTOUCHED = {code: struct.unpack(f"<{code}", b"\xC5" * struct.calcsize(code))[0] for code in CODES.values()}


class Corpus:
    """Arguments before the calls, and what these left, by name: a list of numbers for each case."""

    def __init__(self, call):
        layout = Layout(call.routine)
        fields = [*layout.given, *layout.left.values()]
        sizes = [math.prod(layout.room(arg)) for arg in fields]
        form = "<" + "".join(f"{size}{CODES[arg.type]}" for arg, size in zip(fields, sizes))
        words = (OUT / "corpus" / call.routine.export).read_bytes()
        self.cases = [self._split(row, sizes) for row in struct.iter_unpack(form, words)]
        self.given = {arg.name: index for index, arg in enumerate(layout.given)}
        self.left = {name: index for index, name in enumerate(layout.left, len(layout.given))}
        self.limits = layout.orders()

    @staticmethod
    def _split(row, sizes):
        place, parts = 0, []
        for size in sizes:
            parts.append(row[place:place + size])
            place += size
        return parts

    def counts(self, case):
        """Those of a case; none where one is not valid."""
        found = {name: case[self.given[name]][0] for name, _, _ in self.limits}
        return found if all(low <= found[name] <= high for name, low, high in self.limits) else None


def part(numbers, arg, counts):
    return numbers[:math.prod(counts.get(extent, extent) for extent in arg.shape)]


def cells(numbers, parameter):
    """As they stand in a sheet."""
    width = parameter.shape[0] if len(parameter.shape) == 2 else 1
    rows = [tuple(map(float, numbers[k:k + width])) for k in range(0, len(numbers), width)]
    return tuple(zip(*rows)) if parameter.turned else tuple(rows) or (("",),)


def same(got, left, result):
    if result.kind == "Logical":
        return bool(got) == bool(left)
    code = CODES[result.kind]
    return got == left and copysign(1, got) == copysign(1, left) or isnan(got) and isnan(left) or left == UNTOUCHED[code]


class Bits(unittest.TestCase):
    def test_every_function_is_there(self):
        exported = {name for name, routine in quorvel_calc.ROUTINES.items()
                    if not routine.of_file and library.description(name)[0].contents.exported_name}
        self.assertEqual({call.name for call in CALLS}, exported)
        self.assertGreater(len(exported), 100)

    def test_corpus(self):
        for call in CALLS:
            with self.subTest(call.name):
                routine, corpus = quorvel_calc.ROUTINES[call.name], Corpus(call)
                self.assertEqual(len(corpus.cases), CASES)
                together = all(each.is_line for each in routine.results) and not corpus.limits and not any(
                    len(each.shape) > 1 for each in routine.parameters)
                compared = (self.columns if together else self.single_calls)(call, routine, corpus)
                self.assertGreaterEqual(compared, CASES // 2)

    def columns(self, call, routine, corpus):
        """All calls as one, with an argument in each column or, of coordinates, few columns."""
        given = [tuple(tuple(map(float, case[corpus.given[each.name]])) for case in corpus.cases) for each in routine.parameters]
        table = quorvel_calc.table(call.name, given, checked=False)
        for got, case in zip(table, corpus.cases):
            left = [(number, described) for described, result in zip(routine.results, call.results)
                    for number in case[corpus.left[result.name]]]
            self.assertEqual(len(got), len(left))
            self.assertTrue(all(same(one, *other) for one, other in zip(got, left)), (got, left))
        return len(table)

    def single_calls(self, call, routine, corpus):
        compared = 0
        for case in corpus.cases:
            counts = corpus.counts(case)
            if counts is None:
                continue
            given = [cells(part(case[corpus.given[own.name]], own.arg, counts), each)
                     for own, each in zip(call.parameters, routine.parameters)]
            evaluation = Evaluation(routine, given, checked=False)
            for got, result, described in zip(evaluation.elements[0], call.results, routine.results):
                left = part(case[corpus.left[result.name]], result.arg, counts)
                self.assertEqual(len(got), len(left))
                self.assertTrue(all(same(one, other, described) for one, other in zip(got, left)), result.name)
            compared += 1
        return compared


class Sources(unittest.TestCase):
    def test_python_of_old_offices(self):
        sources = list((OUT / "addin").rglob("*.py"))
        self.assertGreater(len(sources), 5)
        for path in sources:
            ast.parse(path.read_text(encoding="utf-8"), str(path), feature_version=(3, 8))


if __name__ == "__main__":
    unittest.main()
