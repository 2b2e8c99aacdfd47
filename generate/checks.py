"""What a table of the catalogue may hold: its keys, the types of their values, and names."""

import re

from reserved_words import RESERVED

C_TYPES = {"Real": "float", "DoubleReal": "double", "Integer": "int32_t", "Text": "char"}
INT32 = range(-(2**31), 2**31)


def is_number(value):
    return isinstance(value, (int, float)) and not isinstance(value, bool)


def is_whole(value):
    return type(value) is int and value in INT32


def is_text(value):
    return isinstance(value, str) and value != ""


def is_flag(value):
    return value is True


def is_interval(value):
    return isinstance(value, list) and len(value) == 2 and all(map(is_number, value)) and value[0] < value[1]


def is_list_of(kind):
    return lambda value: isinstance(value, list) and value and all(map(kind, value))


def is_extent(value):
    return is_text(value) or (isinstance(value, int) and value > 0)


def is_selector(value):
    """Identifiers with the number and the meaning of each."""
    return isinstance(value, dict) and bool(value) and all(
        isinstance(choice, list) and len(choice) == 2 and choice[0] in INT32 and is_text(choice[1])
        for choice in value.values())


def is_named_sum(value):
    """What is counted by a count and some more: {interfaces = "layers + 1"}."""
    return isinstance(value, dict) and len(value) == 1 and all(
        is_text(text) and re.fullmatch(r"[a-z]\w* \+ [1-9]\d*", text) for text in value.values())


def is_table(value):
    return isinstance(value, dict)


def is_type(value):
    return value in C_TYPES


def is_direction(value):
    return value in ("in", "out", "inout")


def check_keys(table, kinds, required, place):
    for key, value in table.items():
        place.require(key in kinds, f"unknown key {key}", f"{key} =")
        place.require(kinds[key](value), f"{key} must not be {value!r}", f"{key} =")
    for key in required:
        place.require(key in table, f"{key} is missing")


def check_name(name, place):
    """A name that is a keyword argument in every language."""
    place.require(re.fullmatch(r"[a-z][a-z0-9_]*", name), f"{name} is not a lower-case identifier", name)
    place.require(name not in RESERVED, f"{name} is a reserved word of {RESERVED.get(name)}", name)


def check_selector(values, place):
    for name in values:
        check_name(name, place)
    numbers = [number for number, _ in values.values()]
    place.require(len(set(numbers)) == len(numbers), "two values of the selector have one number", "values =")


def check_described(thing, place):
    """Of a quantity, and of an argument or result that overrides parts of one."""
    place.require(thing.unit or thing.type in ("Integer", "Text"), "a real needs a unit (1 for a pure number)")
    selects = thing.type == "Integer" and not thing.range
    place.require(not thing.values or selects, "a selector is an Integer without range")
    check_selector(thing.values, place)
    if thing.type == "Integer":
        ends = (end for end in thing.range if abs(end) != float("inf"))
        place.require(all(isinstance(end, int) for end in ends), "the range of an Integer has whole ends", "range =")
