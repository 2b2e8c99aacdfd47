"""Docstrings of the Python package, in NumPy's form."""

import textwrap
from dataclasses import replace

from array_header import name_of
from cpp_types import bounds, counts
from languages.python_model import class_name, given_counts, operands, signature
from plain_text import in_clear_names

WIDTH = 100

TYPES = {"Real": "float32", "DoubleReal": "float64", "Integer": "int32", "Logical": "bool"}


def in_python(routine, names):
    """Its texts, with the functions of the package in place of exported names."""
    quoted = {exported: f"`{name}`" for exported, name in names.items()}

    def clear(text):
        return in_clear_names(text, quoted)

    def described(thing):
        values = {key: (number, clear(what)) for key, (number, what) in thing.values.items()}
        return replace(thing, meaning=clear(thing.meaning), values=values)

    return replace(
        routine, summary=clear(routine.summary), formula=clear(routine.formula), source=clear(routine.source),
        notes=tuple(map(clear, routine.notes)), args=tuple(map(described, routine.args)),
        result=described(routine.result) if routine.result else None,
        examples=tuple(replace(example, source=clear(example.source)) for example in routine.examples))


def wrapped(text, indent=""):
    return textwrap.wrap(text, WIDTH - 4, initial_indent=indent, subsequent_indent=indent,
                         break_long_words=False, break_on_hyphens=False)


def _shape(operand):
    if not operand.axes:
        return ""
    _, count, more = operand.filled or ("", "", 0)
    extents = [f"{count} + {more}"] if operand.filled else map(str, operand.axes)
    return f", shape (..., {', '.join(extents)})"


def _type(operand):
    if operand.of.selector:
        return f"{operand.of.selector}, or array_like of its names or numbers"
    return f"array_like of {'int' if operand.kind == 'Integer' else 'float'}"


def _sentence(operand):
    text = operand.of.sentence
    return text[0].upper() + text[1:] + "."


def _parameters(routine, inputs, several):
    for operand in inputs:
        yield f"{operand.field} : {_type(operand)}{_shape(operand)}"
        yield from wrapped(_sentence(operand), "    ")
    yield "out : tuple of ndarray, optional" if several else "out : ndarray, optional"
    yield from wrapped("Where to put the results, as for any NumPy ufunc.", "    ")
    if not signature(routine):
        yield "where : array_like of bool, optional"
        yield from wrapped("Which elements to work out, as for any NumPy ufunc.", "    ")


def _returns(routine, outputs):
    if len(outputs) > 1:
        yield class_name(routine)
        yield "    A named tuple of:"
        yield ""
    for operand in outputs:
        yield f"{operand.of.clear_name} : {TYPES[operand.kind]}{_shape(operand)}"
        yield from wrapped(_sentence(operand), "    ")


def _raises(routine):
    """Of counts, and of lists that must have so many numbers."""
    for count, _ in counts(routine).values():
        low, high = bounds(count)
        limits = f"at least {low}" if high == 2**31 - 1 else f"{low} to {high}" if low else f"at most {high}"
        if limits != "at least 0":
            number = f"{count.meaning}," if "," in count.meaning else count.meaning
            yield from wrapped(f"Unless the {number} is {limits}.", "    ")
    told = [name for name, (_, lists) in counts(routine).items() if len(lists) > 1]
    for name in told:
        yield from wrapped(f"Unless all arguments have as many {name}.", "    ")


def _counted_by(name, routine):
    return " and ".join(f"`{arg.name}`" for arg in routine.args if name in arg.shape)


def _notes(routine):
    formula = [f"Formula: {routine.formula}"] if routine.formula else []
    room = [f"Elements of {_counted_by(name, routine)} beyond `{name}` are not numbers."
            for name in given_counts(routine)]
    same = [f"Each element has the bits of {routine.export} in quorvel.h."] if routine.export else []
    for text in [*formula, *routine.notes, *room, *same]:
        yield from wrapped(text)
        yield ""


def _literal(operand, value):
    if operand.arg.values and not operand.axes:
        name = next((name for name, (number, _) in operand.arg.values.items() if number == value), None)
        if name:
            return f"{operand.of.selector}.{name}"
    if not operand.axes:
        return repr(value)
    rows = value
    for extent in reversed(operand.axes[1:]):
        rows = [rows[k:k + extent] for k in range(0, len(rows), extent)]
    return repr(rows)


def call(routine, example):
    """An example as a call."""
    inputs, _ = operands(routine)
    given = ", ".join(f"{operand.field}={_literal(operand, example.given[operand.arg.name])}" for operand in inputs)
    return f"{routine.name}({given})"


def _compared(operand, value, tolerance, several):
    got = f"result.{operand.field}" if several else "result"
    if operand.kind == "Logical":
        return f"bool({got})", str(bool(value))
    if not operand.axes:
        return (f"bool({got} == {value!r})" if not tolerance else f"bool(abs({got} - {value!r}) <= {tolerance!r})"), "True"
    return f"all(abs(a - b) <= {tolerance!r} for a, b in zip({got}.flat, {value!r}))", "True"


def _folded(statement):
    """A statement of an example; it may be broken where it has blanks within brackets."""
    return textwrap.wrap(statement, WIDTH - 4, initial_indent=">>> ", subsequent_indent="...     ",
                         break_long_words=False, break_on_hyphens=False)


def example_lines(routine, family):
    example = next(iter(routine.examples), None)
    if not example:
        return
    inputs, outputs = operands(routine)
    names = sorted({routine.name} | {o.of.selector for o in inputs if o.of.selector and not o.axes})
    yield f">>> from quorvel.{family} import {', '.join(names)}"
    yield from _folded(f"result = {call(routine, example)}")
    for operand in outputs:
        if name_of(operand.arg) in example.gives:
            value, tolerance = example.gives[name_of(operand.arg)], example.within[name_of(operand.arg)]
            text, answer = _compared(operand, value, tolerance, len(outputs) > 1)
            yield from _folded(text)
            yield answer
    yield ""
    yield from wrapped(f"({example.source})")


def docstring(routine, family):
    inputs, outputs = operands(routine)
    lines = [*wrapped(routine.summary), "", "Parameters", "----------",
             *_parameters(routine, inputs, len(outputs) > 1), "", "Returns", "-------", *_returns(routine, outputs), ""]
    raises = list(_raises(routine))
    if raises:
        lines += ["Raises", "------", "ValueError", *raises, ""]
    notes = list(_notes(routine))
    if notes:
        lines += ["Notes", "-----", *notes]
    lines += ["References", "----------", *wrapped(routine.source)]
    if routine.examples:
        lines += ["", "Examples", "--------", *example_lines(routine, family)]
    return "\n".join(line.rstrip() for line in lines)
