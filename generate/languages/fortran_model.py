"""How Fortran says a routine: its procedures' names, kinds, extents and declarations."""

import itertools

from binding_model import fixed
from plain_text import statement_lines, wrapped

WIDTH = 120
KINDS = {"Real": "real(sp)", "DoubleReal": "real(dp)", "Integer": "integer(i4)", "Logical": "logical"}
KIND_PARAMETERS = "use, intrinsic :: iso_fortran_env, only: sp => real32, dp => real64, i4 => int32"
EDIT = "! Produced from the catalogue of routines (catalogue/); do not edit."

# Intrinsic procedures of Fortran, which a module's name would hide, by what they are called here.
_INTRINSIC = {"dot_product": "vector_dot_product"}


def procedure_name(call):
    return _INTRINSIC.get(call.name, call.name)


def is_elemental(call):
    return not any(each.shape for each in (*call.parameters, *call.results))


def by_arrays(call):
    """Whether the function of arrays serves: there is no other, or it would be a function with outputs, which cannot
    be pure."""
    return not call.passed or bool(call.routine.result and len(call.results) > 1)


def is_function(call):
    return len(call.results) == 1


def folded(statement, indent):
    """A statement on as many lines as it needs; it may be broken at blanks outside of texts."""
    pad = " " * indent
    return " &\n".join(statement_lines(statement, WIDTH - 2, pad, pad + "   "))


def documented(kind, attributes, name, about):
    """A declaration with its documentation behind it, and below where that is longer."""
    pad = " " * 6
    line = pad + ", ".join([kind, *attributes]) + f" :: {name}"
    return wrapped(about, WIDTH, f"{line} !! ", f"{pad}!! ")


def declared(variables):
    """Declarations of (kind, attributes, name), of one sort together."""
    for sort, group in itertools.groupby(variables, key=lambda variable: variable[:2]):
        names = ", ".join(name for _, _, name in group)
        yield folded(", ".join([sort[0], *sort[1]]) + f" :: {names}", 6)


def literal(kind, value):
    """A number of the catalogue as a constant."""
    if kind == "Integer":
        return f"{value}_i4"
    return f"{float(value)!r}_{'dp' if kind == 'DoubleReal' else 'sp'}"


def extents(shape, assumed):
    """In brackets: as given, or assumed where they are counted, or wherever `assumed` says so."""
    if not shape:
        return ""
    if assumed or any(not isinstance(extent, int) for extent in shape):
        return f"({', '.join(':' * len(shape))})"
    return f"({', '.join(map(str, shape))})"


def length(parameter):
    """Of a list, in what its count counts."""
    per_element = fixed(parameter)
    return f"size({parameter.name})" + (f"/{per_element}" if per_element > 1 else "")


def result_extents(call, result):
    """Of the value of a function, or of a variable that takes a result."""
    return f"({', '.join(_extent(call, extent) for extent in result.shape)})" if result.shape else ""


def _extent(call, extent):
    if isinstance(extent, int):
        return str(extent)
    count = next(count for count in call.counts if count.name == extent)
    low_high = f"max(0_i4, min({extent}, {count.high}_i4))"
    return length(count.lists[0]) if count.lists else low_high


def own(result):
    """The variable of a wrapper that takes a result."""
    return f"own_{result.clear_name}"
