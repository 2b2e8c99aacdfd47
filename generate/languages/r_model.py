"""What the templates of the R package have in common: names, and values as R writes them."""

import math

__all__ = ["EDIT", "formals", "function_name", "literal", "names_in_r", "number", "quoted"]

EDIT = "Produced from the catalogue of routines (catalogue/); do not edit."

# Where R has a function of that name itself, or one by hand stands for the routine.
OTHER_NAMES = {"length": "vector_length", "clip": "clip_polygons"}


def function_name(call):
    return OTHER_NAMES.get(call.name, call.name)


def names_in_r(calls):
    """The functions by exported names."""
    return {call.routine.export: function_name(call) for call in calls if call.routine.export}


def quoted(name):
    return f'"{name}"'


def formals(call):
    """The arguments of a function; selectors of one value say what may be chosen, the first one first."""
    for parameter in call.parameters:
        names = ", ".join(map(quoted, parameter.arg.values))
        yield f"{parameter.name} = c({names})" if parameter.selector and not parameter.shape else parameter.name
    yield "unchecked = FALSE"


def number(value):
    if isinstance(value, float) and math.isinf(value):
        return "Inf" if value > 0 else "-Inf"
    return repr(value)


def literal(described, value):
    """A value of an argument: a number, a vector, a matrix."""
    if not isinstance(value, list):
        return number(value)
    numbers = f"c({', '.join(map(number, value))})" if value else "numeric()"
    return numbers if len(described.shape) < 2 else f"matrix({numbers}, {described.shape[0]})"
