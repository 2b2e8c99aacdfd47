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
from dataclasses import dataclass

from cpp_types import bounds, camel, counts, taken_from_lists
from header import number

__all__ = ["Call", "Count", "Parameter", "Passed", "Result", "call", "calls", "camel", "lower_camel", "selectors"]


def _selector(arg):
    return camel(arg.quantity) if arg.values else ""


@dataclass(frozen=True)
class Parameter:
    name: str
    arg: object

    @property
    def kind(self):
        """Real, DoubleReal, Integer or Text."""
        return self.arg.type

    @property
    def shape(self):
        """Empty for one value; numbers and names of counts, the extent that varies fastest first."""
        return self.arg.shape

    @property
    def selector(self):
        """Its enumeration, as in PsychrometerType; empty for others."""
        return _selector(self.arg)

    @property
    def limits(self):
        """Lowest and highest valid value, ends included, either of them perhaps infinite; none where any will do."""
        if self.arg.values:
            values = [value for value, _ in self.arg.values.values()]
            return min(values), max(values)
        return tuple(self.arg.range) or None

    def allows(self, value):
        """Whether a value, or all of a list, is valid."""
        low, high = self.limits or (-math.inf, math.inf)
        return self.kind == "Text" or all(low <= each <= high for each in (value if self.shape else [value]))

    @property
    def limits_in_words(self):
        """"-100 to 200", "from 0"; empty where any value will do."""
        low, high = self.limits or (-math.inf, math.inf)
        if math.isinf(low):
            return "" if math.isinf(high) else f"to {number(high)}"
        return f"from {number(low)}" if math.isinf(high) else f"{number(low)} to {number(high)}"

    @property
    def sentence(self):
        """What it means, its unit and what is valid."""
        arg = self.arg
        text = arg.meaning + (f" [{arg.unit}]" if arg.unit not in ("", "1") else "")
        if arg.values:
            return text + ": " + ", ".join(f"{value} {what}" for value, what in arg.values.values())
        return text + (f"; valid {self.limits_in_words}" if self.limits_in_words else "")


@dataclass(frozen=True)
class Result:
    name: str      # "result" of the function's value
    arg: object
    given: str     # the parameter whose value it has before the call; empty for a mere output

    @property
    def kind(self):
        """Real, DoubleReal, Integer, or Logical for what is -1 or 0."""
        return "Logical" if getattr(self.arg, "logical", False) else self.arg.type

    @property
    def shape(self):
        return self.arg.shape

    @property
    def selector(self):
        return _selector(self.arg)

    @property
    def unwritten(self):
        """When a call leaves it as it was, in words: a modern call then gives not-a-number, or what was given."""
        return getattr(self.arg, "unwritten", "")

    @property
    def clear_name(self):
        """A name that says what it is even of a function's value."""
        return self.arg.quantity if self.name == "result" else self.name

    @property
    def sentence(self):
        arg = self.arg
        text = arg.meaning + (f" [{arg.unit}]" if arg.unit not in ("", "1") else "")
        if arg.none:
            text += "; 1e20 where there is none"
        if self.unwritten:
            blank = "0" if self.kind == "Integer" else "not a number"
            text += f"; {'as given' if self.given else blank} {self.unwritten}"
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
    def elementwise(self):
        """Whether it is of numbers alone, so that arrays of them are element by element."""
        things = (*self.parameters, *self.results)
        return not (self.routine.state or self.counts or any(thing.shape or thing.kind == "Text" for thing in things))

    def allows(self, example):
        """Whether all that an example gives is valid."""
        counted = all(count.low <= example.given[count.name] <= count.high for count in self.counts)
        return counted and all(parameter.allows(example.given[parameter.name]) for parameter in self.parameters)

    @property
    def structure(self):
        """Of several results; empty for one."""
        return camel(self.name) if len(self.results) > 1 else ""


def lower_camel(name):
    """As in JavaScript: saturationPressure."""
    return name.split("_")[0] + camel("_".join(name.split("_")[1:]))


def _given(routine):
    """The parameters. Those of the climate data file are lists too, and a text."""
    told = taken_from_lists(routine)
    return tuple(
        Parameter(arg.name, arg) for arg in routine.args
        if arg.dir != "out" and not arg.ignored and arg.name not in told)


def _returned(routine, parameters):
    taken = {parameter.name for parameter in parameters}
    of_function = [Result("result", routine.result, "")] if routine.result else []
    of_arguments = [Result(arg.name, arg, arg.name if arg.name in taken else "")
                    for arg in routine.args if arg.dir != "in"]
    return tuple(of_function + of_arguments)


def _counts(routine, parameters):
    by_name = {parameter.name: parameter for parameter in parameters}
    return tuple(
        Count(name, arg, tuple(by_name[listed.name] for listed in lists), *bounds(arg))
        for name, (arg, lists) in counts(routine).items())


def _passed(routine, parameters, results):
    told = taken_from_lists(routine)
    by_name = {parameter.name: parameter for parameter in parameters}
    returned = {result.name: result for result in results}
    for arg in routine.args if routine.export else ():
        parameter = by_name.get(arg.name)
        if arg.name in told:
            yield Passed("count", arg)
        elif arg.dir != "in":
            yield Passed("result", arg, parameter, returned[arg.name])
        else:
            yield Passed("parameter" if parameter else "unread", arg, parameter)


def call(family, routine):
    parameters = _given(routine)
    results = _returned(routine, parameters)
    return Call(family.family, routine, parameters, results, _counts(routine, parameters),
                tuple(_passed(routine, parameters, results)))


def calls(families):
    """All of them, in the order of the catalogue."""
    return [call(family, routine) for family in families for routine in family.routines]


def selectors(families):
    """The enumerations: values with identifier, number and meaning, by name, each with what it selects. Where two
    routines differ in what they say of the values, the last one speaks."""
    return {
        thing.selector: thing.arg for each in calls(families)
        for thing in (*each.results, *each.parameters) if thing.selector}
