"""A routine as a modern language calls it: values and lists in, values or a named structure out. Every binding's
template starts from here, so that all languages agree on names, on what is told by a list, and on what is refused.

    call = binding_model.call(family, routine)
    call.parameters    what a caller passes: counts that a list tells are left out, arguments that are not read too
    call.results       what the caller gets, the function's value first
    call.counts        how long lists must be, and which lists must be equally long
    call.passed        one entry for each argument by reference, in its order: what stands there

A routine without an exported name has no call by reference: `call.passed` is then empty, and its function of whole
arrays, quorvel_NAME of libquorvel_arrays, serves (see include/quorvel_arrays.h).
"""

import math
import subprocess
from dataclasses import dataclass
from pathlib import Path

from cpp_types import BY_HAND, bounds, camel, counts, is_offered, taken_from_lists
from header import number

__all__ = ["Call", "Count", "Parameter", "Passed", "Result", "bounds", "call", "calls", "camel", "examples", "fixed",
           "lower_camel", "parameters", "project_version", "results", "selectors"]

VERSION = Path(__file__).parents[1] / "packaging/version"
ANY = (-math.inf, math.inf)


def project_version():
    return subprocess.run([VERSION], check=True, capture_output=True, text=True).stdout.strip()


def fixed(described):
    """How many numbers there are of what is counted; all, where nothing is."""
    return math.prod(extent for extent in described.shape if isinstance(extent, int))


@dataclass(frozen=True)
class _Described:
    """What parameters and results have in common."""

    name: str
    arg: object

    @property
    def kind(self):
        """Real, DoubleReal, Integer, Text, or Logical for a result that is -1 or 0."""
        return "Logical" if getattr(self.arg, "logical", False) else self.arg.type

    @property
    def shape(self):
        """Empty for one value; numbers and names of counts, the extent that varies fastest first."""
        return self.arg.shape

    @property
    def clear_name(self):
        """A name that says what it is even of a function's value."""
        return self.arg.quantity if self.name == "result" else self.name

    @property
    def name_in_arrays(self):
        return self.name

    @property
    def unit(self):
        """Empty for a mere number."""
        return "" if self.arg.unit == "1" else self.arg.unit

    @property
    def selector(self):
        """Its enumeration, as in PsychrometerType; empty for others."""
        return camel(self.arg.quantity) if self.arg.values else ""

    @property
    def limits(self):
        """Lowest and highest valid value, ends included; infinite where there are none."""
        if self.arg.values:
            values = [value for value, _ in self.arg.values.values()]
            return min(values), max(values)
        return tuple(self.arg.range) or ANY

    @property
    def is_limited(self):
        return self.limits != ANY

    @property
    def meaning(self):
        """What it means, and its unit."""
        return self.arg.meaning + (f" [{self.unit}]" if self.unit else "")


@dataclass(frozen=True)
class Parameter(_Described):
    def allows(self, value):
        """Whether a value, or all of a list, is valid."""
        low, high = self.limits
        return self.kind == "Text" or all(low <= each <= high for each in (value if self.shape else [value]))

    @property
    def limits_in_words(self):
        """"-100 to 200", "from 0"; empty where any value will do."""
        low, high = self.limits
        if math.isinf(low):
            return "" if math.isinf(high) else f"to {number(high)}"
        return f"from {number(low)}" if math.isinf(high) else f"{number(low)} to {number(high)}"

    def valid(self, spelt=str):
        """What is valid, for a fault; the identifiers of selectors as `spelt` makes them."""
        if self.arg.values:
            return "valid " + ", ".join(f"{value} ({spelt(name)})" for name, (value, _) in self.arg.values.items())
        return f"valid {self.limits_in_words} {self.unit}".rstrip() if self.is_limited else "valid is any number"

    @property
    def sentence(self):
        """What it means, its unit and what is valid."""
        if self.arg.values:
            return self.meaning + ": " + ", ".join(f"{value} {what}" for value, what in self.arg.values.values())
        return self.meaning + (f"; valid {self.limits_in_words}" if self.is_limited else "")


@dataclass(frozen=True)
class Result(_Described):
    """Of the function's value the name is "result"."""

    given: str  # the parameter whose value it has before the call; empty for a mere output

    @property
    def unwritten(self):
        """When a call by reference leaves it as it was, in words: a modern call, which refuses counts out of range,
        then gives not-a-number, or what was given."""
        return getattr(self.arg, "left", "")

    @property
    def name_in_arrays(self):
        """Beside the array of its parameter."""
        return f"new_{self.name}" if self.given else self.name

    @property
    def sentence(self):
        """What it means, its unit, and what it is where there is none."""
        text = self.meaning + "; 1e20 where there is none" * self.arg.none
        if left := getattr(self.arg, "left_in_range", ""):
            blank = "0" if self.kind == "Integer" else "not a number"
            text += f"; {'as given' if self.given else blank} {left}"
        return text


@dataclass(frozen=True)
class Count:
    name: str
    arg: object
    lists: tuple  # the parameters that it counts; without any it is a parameter itself
    low: int
    high: int


@dataclass(frozen=True)
class Passed:
    """One argument by reference: a parameter, a count told by lists, a result (with its parameter, where that goes
    in at the same place), or something unread."""

    role: str  # "parameter", "count", "result", "unread"
    arg: object
    parameter: Parameter | None = None
    result: Result | None = None


@dataclass(frozen=True)
class Call:
    family: str
    routine: object
    parameters: tuple
    results: tuple
    counts: tuple
    passed: tuple

    @property
    def name(self):
        return self.routine.name

    @property
    def is_by_hand(self):
        """Whether polygons are clipped by what is written by hand, lists of points in and out."""
        return self.name in BY_HAND

    @property
    def is_offered(self):
        """Not those of the climate data file, for which there is an object, nor those by hand."""
        return is_offered(self.routine)

    @property
    def elementwise(self):
        """Whether it is of numbers alone, so that arrays of them are element by element."""
        things = (*self.parameters, *self.results)
        return not (self.routine.state or self.counts or any(thing.shape or thing.kind == "Text" for thing in things))

    def allows(self, example):
        """Whether all that an example gives is valid."""
        counted = all(count.low <= example.given[count.name] <= count.high for count in self.counts)
        return counted and all(parameter.allows(example.given[parameter.name]) for parameter in self.parameters)

    @property
    def notes(self):
        """With what the numbers of a status tell."""
        told = [f"{each.status} {each.meaning}" for each in self.routine.statuses]
        return [*self.routine.notes, *([f"Status: {'; '.join(told)}."] if told else [])]

    @property
    def remarks(self):
        """Formula, notes and source, a text each."""
        formula = [f"Formula: {self.routine.formula}"] if self.routine.formula else []
        return [*formula, *self.notes, f"Source: {self.routine.source}"]

    @property
    def structure(self):
        """Of several results; empty for one."""
        return camel(self.name) if len(self.results) > 1 else ""


def lower_camel(name):
    """As in JavaScript: saturationPressure."""
    return name.split("_")[0] + camel("_".join(name.split("_")[1:]))


def parameters(routine):
    """What a caller passes. Those of the climate data file are lists too, and a text."""
    told = taken_from_lists(routine)
    return tuple(
        Parameter(arg.name, arg) for arg in routine.args
        if arg.dir != "out" and not arg.ignored and arg.name not in told)


def results(routine):
    """What a caller gets, the function's value first."""
    taken = {parameter.name for parameter in parameters(routine)}
    of_function = [Result("result", routine.result, "")] if routine.result else []
    of_arguments = [Result(arg.name, arg, arg.name if arg.name in taken else "")
                    for arg in routine.args if arg.dir != "in"]
    return tuple(of_function + of_arguments)


def _counts(routine, given):
    by_name = {parameter.name: parameter for parameter in given}
    return tuple(
        Count(name, arg, tuple(by_name[listed.name] for listed in lists), *bounds(arg))
        for name, (arg, lists) in counts(routine).items())


def _passed(routine, given, returned):
    told = taken_from_lists(routine)
    by_name = {parameter.name: parameter for parameter in given}
    results_by_name = {result.name: result for result in returned}
    for arg in routine.args if routine.export else ():
        parameter = by_name.get(arg.name)
        if arg.name in told:
            yield Passed("count", arg)
        elif arg.dir != "in":
            yield Passed("result", arg, parameter, results_by_name[arg.name])
        else:
            yield Passed("parameter" if parameter else "unread", arg, parameter)


def call(family, routine):
    given, returned = parameters(routine), results(routine)
    return Call(family.family, routine, given, returned, _counts(routine, given),
                tuple(_passed(routine, given, returned)))


def calls(families):
    """All of them, in the order of the catalogue."""
    return [call(family, routine) for family in families for routine in family.routines]


def examples(families):
    """Each with its call and, from 1, its number among those of the routine."""
    return [(each, example, number) for each in calls(families)
            for number, example in enumerate(each.routine.examples, 1)]


def selectors(families):
    """The enumerations: values with identifier, number and meaning, by name, each with what it selects. Where two
    routines differ in what they say of the values, the last one speaks."""
    return {
        thing.selector: thing.arg for each in calls(families)
        for thing in (*each.results, *each.parameters) if thing.selector}
