"""How Pascal says a routine: names, types, and what stands in a call by reference."""

import math

from binding_model import camel
from plain_text import statement_lines, wrapped

WIDTH = 120
TYPES = {"Real": "Single", "DoubleReal": "Double", "Integer": "LongInt", "Logical": "Boolean"}
EDIT = "{ Produced from the catalogue of routines (catalogue/); do not edit. }"

# Functions of Pascal's own, which a unit's name would hide, by what they are called here.
_STANDARD = {"length": "VectorLength"}


def function_name(call):
    return _STANDARD.get(call.name, camel(call.name))


def folded(statement, indent=0):
    """A statement on as many lines as it needs; it may be broken at blanks outside of texts."""
    pad = " " * indent
    return "\n".join(statement_lines(statement, WIDTH, pad, pad + "  "))


def comment(paragraphs):
    """A comment of several paragraphs, each wrapped by itself."""
    lines = [line for text in paragraphs for line in wrapped(text, WIDTH - 2, "  ", "    ")]
    return "{ " + "\n".join(lines).lstrip() + " }"


def is_list(arg):
    return any(not isinstance(extent, int) for extent in arg.shape)


def element(arg):
    """The type of a value, or of an array of fixed extents; of a list, of what is counted. The extent that varies
    fastest comes last."""
    extents = [str(extent) for extent in reversed(arg.shape) if isinstance(extent, int)]
    return f"T{TYPES[arg.type]}{'x'.join(extents)}" if extents else TYPES[arg.type]


def array_types(calls):
    """Of all that is passed and returned: the definition of each by its name."""
    found = {}
    for call in calls:
        for each in (*call.parameters, *call.results):
            extents = [extent for extent in reversed(each.arg.shape) if isinstance(extent, int)]
            if extents:
                indices = ", ".join(f"0..{extent - 1}" for extent in extents)
                found[element(each.arg)] = f"array[{indices}] of {TYPES[each.arg.type]}"
    return dict(sorted(found.items()))


def parameter_type(parameter):
    """Lists and vectors are open arrays, tables of fixed extents are types of their own."""
    arg = parameter.arg
    if not arg.shape:
        return f"T{parameter.selector}" if parameter.selector else TYPES[arg.type]
    if is_list(arg):
        return f"array of {element(arg)}"
    return f"array of {TYPES[arg.type]}" if len(arg.shape) == 1 else element(arg)


def result_type(result):
    if result.kind == "Logical":
        return "Boolean"
    return f"T{TYPES[result.arg.type]}s" if is_list(result.arg) else element(result.arg)


def function_type(call):
    return f"T{camel(call.name)}" if len(call.results) > 1 else result_type(call.results[0])


def parameter_list(parameters):
    """In brackets; empty without any."""
    listed = [f"{'const ' * bool(each.shape)}{camel(each.name)}: {parameter_type(each)}" for each in parameters]
    return f"({'; '.join(listed)})" if listed else ""


def head(call):
    """The declaration of a function."""
    return folded(f"function {function_name(call)}{parameter_list(call.parameters)}: {function_type(call)};")


def passed_names(call):
    return ", ".join(camel(parameter.name) for parameter in call.parameters)


def length(parameter):
    return f"System.Length({camel(parameter.name)})"


def literal(value):
    if isinstance(value, float) and math.isinf(value):
        return "Infinity" if value > 0 else "-Infinity"
    return repr(value)


def pointer(arg):
    return f"P{TYPES[arg.type]}"


def first(name, arg, is_dynamic=False):
    """The address of an array's first number."""
    is_open = is_list(arg) or (len(arg.shape) == 1 and not is_dynamic)
    return f"{pointer(arg)}(@{name}{'[0]' * is_open})"
