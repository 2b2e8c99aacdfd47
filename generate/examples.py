"""The examples of a routine: arguments with the results that the literature or a calculation gives."""

from dataclasses import dataclass

import checks

KINDS = {
    "given": checks.is_table,
    "gives": checks.is_table,
    "within": lambda value: checks.is_number(value) or checks.is_table(value),
    "source": checks.is_text,
}


@dataclass(frozen=True)
class Example:
    given: dict   # by argument; lists for arrays, in the order of their elements
    gives: dict   # by argument, and the value of a function as "result"
    within: dict  # by argument too
    source: str


def _number(described, value, place):
    """A value, or the number of a selector's identifier."""
    if isinstance(value, str) and described.values:
        place.require(value in described.values, f"{value} is no value of the selector", value)
        return described.values[value][0]
    place.require(checks.is_number(value), f"{value!r} is no number", str(value))
    place.require(described.type != "Integer" or value in checks.INT32, f"{value} is no Integer", str(value))
    return value


def _values(described, value, place):
    if described.type == "Text":
        place.require(checks.is_text(value), f"{value!r} is no text")
        return value
    if described.shape:
        place.require(isinstance(value, list), "an array needs a list")
        return [_number(described, element, place) for element in value]
    return _number(described, value, place)


def _count(arg, given):
    count = 1
    for extent in arg.shape:
        count *= extent if isinstance(extent, int) else max(given[extent], 0)
    return count


def _given(routine, table, place):
    args = {arg.name: arg for arg in routine.args if arg.dir != "out"}
    for name in table:
        place.require(name in args, f"{name} is not given to {routine.export or routine.name}", name)
    for name, arg in args.items():
        place.require(name in table or arg.ignored, f"{name} is not given")
    given = {name: _values(args[name], value, place) for name, value in table.items()}
    for name, value in given.items():
        if args[name].shape:
            count = _count(args[name], given)
            place.require(len(value) == count, f"{name} has {len(value)} elements and not {count}", name)
    return given


def _gives(routine, table, given, place):
    outputs = {arg.name: arg for arg in routine.args if arg.dir != "in"}
    if routine.result:
        outputs["result"] = routine.result
    place.require(table, "nothing is expected")
    for name, value in table.items():
        place.require(name in outputs, f"{name} is not returned by {routine.export or routine.name}", name)
        if outputs[name].shape:
            fits = isinstance(value, list) and len(value) <= _count(outputs[name], given)
            place.require(fits, f"{name} has not as many elements", name)
    return {name: _values(outputs[name], value, place) for name, value in table.items()}


def _within(table, gives, place):
    if checks.is_number(table):
        table = dict.fromkeys(gives, table)
    for name, tolerance in table.items():
        place.require(checks.is_number(tolerance) and tolerance >= 0, f"{tolerance!r} is no tolerance", "within")
    place.require(table.keys() == gives.keys(), "within needs a tolerance for each result", "within")
    return table


def example(routine, table, place):
    checks.check_keys(table, KINDS, KINDS, place)
    given = _given(routine, table["given"], place)
    gives = _gives(routine, table["gives"], given, place)
    return Example(given, gives, _within(table["within"], gives, place), table["source"])
