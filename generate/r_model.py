"""What the templates of the R package have in common: names, and values as R writes them."""

import math

__all__ = ["EDIT", "formals", "function_name", "is_generated", "literal", "names_in_r", "quoted"]

EDIT = "Produced from the catalogue of routines (catalogue/); do not edit."

# Where R has a function of that name itself, or one by hand stands for the routine.
OTHER_NAMES = {"length": "vector_length", "clip": "clip_polygons"}


def function_name(call):
    return OTHER_NAMES.get(call.name, call.name)


def is_generated(call):
    """Not those of the climate data file, which are functions of an open file, nor clipping."""
    return call.is_offered


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


def _number(value):
    if isinstance(value, float) and math.isinf(value):
        return "Inf" if value > 0 else "-Inf"
    return repr(value)


def literal(described, value):
    """A value of an argument: a name of a selector, a vector, a matrix."""
    if described.kind == "Text":
        return f'"{value}"'
    if not isinstance(value, list):
        return _number(value) if isinstance(value, (int, float)) else value
    if len(described.shape) < 2:
        return f"c({', '.join(map(_number, value))})" if value else "numeric()"
    rows = described.shape[0]
    dims = [rows, len(value) // rows] if isinstance(rows, int) else None
    return f"matrix(c({', '.join(map(_number, value))}), {dims[0]})"
