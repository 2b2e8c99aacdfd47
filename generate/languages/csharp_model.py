"""What C# makes of a call: its names and types, and how long lines are folded."""

import math
import re
import textwrap

from binding_model import camel, lower_camel

WIDTH = 120
EDIT = "// Produced from the catalogue of routines (catalogue/); do not edit."
TYPES = {"Real": "float", "DoubleReal": "double", "Integer": "int", "Text": "string", "Logical": "bool"}
NUMBERS = {**TYPES, "Logical": "int"}  # as the library has them


def qualified(call):
    return f"{camel(call.family)}.{camel(call.name)}"


def element(thing):
    """Of a parameter or result: an enumeration or a number."""
    return thing.selector or TYPES[thing.kind]


def type_of(thing):
    """Arrays have the extent that varies fastest last, as C# stores them."""
    return element(thing) + ("", "[]", "[,]")[len(thing.shape)]


def field(call, result):
    """Its name in the structure."""
    name = camel(result.clear_name)
    return f"{name}Value" if name == call.structure else name


def returned(call):
    return call.structure or type_of(call.results[0])


def parameter_list(call):
    return [f"{type_of(parameter)} {lower_camel(parameter.name)}" for parameter in call.parameters]


def is_elementwise(call):
    """Whether it has a form for whole arrays, with structures that are laid out as those of C."""
    return call.elementwise and not (call.structure and any(result.kind == "Logical" for result in call.results))


def literal(value, kind):
    """A number of that kind."""
    if isinstance(value, float) and math.isnan(value):
        return f"{NUMBERS[kind]}.NaN"
    if math.isinf(value):
        return f"{'-' if value < 0 else ''}{NUMBERS[kind]}.{'PositiveInfinity' if kind != 'Integer' else 'MaxValue'}"
    if kind in ("Integer", "Logical"):
        return str(int(value))
    text = repr(int(value) if value == int(value) and abs(value) < 1e7 else float(value))
    return f"{text}f" if kind == "Real" else text


def laid_out(lines):
    """A text of lines within the width: statements are broken between arguments, comments between words."""
    return "".join(f"{part}\n" for line in lines for part in _folded(line))


def _folded(line):
    if len(line) <= WIDTH:
        return [line]
    indent, text = re.match(r"( *)(.*)", line).groups()
    if text.startswith("/// "):
        kept, first, rest = re.sub(r"<[^>]*>", lambda tag: tag[0].replace(" ", "\0"), text[4:]), indent + "/// ", indent + "/// "
    else:
        kept, first, rest = re.sub(r'"[^"]*"|(?<!,) ', lambda part: part[0].replace(" ", "\0"), text), indent, indent + "    "
    parts = textwrap.wrap(kept, WIDTH, initial_indent=first, subsequent_indent=rest, break_long_words=False,
                          break_on_hyphens=False)
    return [part.replace("\0", " ") for part in parts]


def indented(lines, depth):
    return [" " * 4 * depth + line if line else "" for line in lines]


def block(head, lines):
    """A head of one or more lines, and a body in braces."""
    heads = [head] if isinstance(head, str) else head
    return [*heads, "{", *indented(lines, 1), "}"]
