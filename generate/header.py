"""quorvel.h: the documented C header."""

import math
import textwrap

from catalogue import C_TYPES, by_reference
from declarations import CLOSING, OPENING, WIDTH, prototype, result_type

PREAMBLE = """\
/*
 * Quorvel - building-physics and building-services calculations.
 *
 * Produced from the catalogue of routines (catalogue/); do not edit.
 *
 * Every argument is passed by reference, inputs are never written, and arrays are one-based in the
 * texts and stored column by column. A text is a row of characters that ends with a NUL (CLBNF0 says
 * how from languages that write none). Angles are in radians; azimuths run from north, clockwise
 * seen from above (east pi/2, south pi); tilt and solar altitude are measured from the horizontal.
 * Routines report no errors: what an argument outside its range gets is said in the notes. Logical
 * results are -1 (true) and 0 (false); 1.0e20 stands for a quantity that does not exist. Every
 * routine is re-entrant. Only those of the climate data file (CLBNF0 and following) have a state;
 * they share it in a process, behind a lock.
 */
#ifndef QUORVEL_H
#define QUORVEL_H

"""

POSTAMBLE = """
#endif /* QUORVEL_H */
"""


def number(value):
    return f"{value:.8g}" if isinstance(value, float) else str(value)


def _interval(low, high):
    if high == math.inf:
        return f"from {number(low)}"
    return f"to {number(high)}" if low == -math.inf else f"{number(low)} .. {number(high)}"


def domain(arg):
    if arg.ignored:
        return "not used"
    if arg.dir == "out":
        return ""
    if arg.values:
        return "selector"
    if arg.type == "Text":
        return "text"
    return _interval(*arg.range) if arg.range else "any"


def meaning(arg, returned, left=""):
    """With `left`, which says when an output is left as what."""
    text = arg.meaning
    if arg.values:
        text += ": " + ", ".join(f"{number} {meaning}" for number, meaning in arg.values.values())
    if arg.shape:
        text += f" [{', '.join(str(extent) for extent in arg.shape)}]"
    text += f"; {left}" * bool(left)
    return text + "; 1e20 for none" * (returned and arg.none)


def result_meaning(result):
    """Of the value of a function."""
    return result.meaning + "; -1 if so, else 0" * result.logical + "; 1e20 for none" * result.none


def rows(args, returned):
    left = {arg.name: f"left as it was {arg.left}" for arg in args if returned and arg.left}
    cells = [(arg.name, C_TYPES[arg.type], arg.unit, domain(arg), meaning(arg, returned, left.get(arg.name, "")))
             for arg in args]
    widths = [max(len(row[column]) for row in cells) for column in range(4)]
    for row in cells:
        lead = "    " + "  ".join(cell.ljust(width) for cell, width in zip(row, widths)) + "  "
        yield from textwrap.wrap(row[4], WIDTH - 3, initial_indent=lead, subsequent_indent=" " * len(lead))


def paragraph(text, first, rest):
    return textwrap.wrap(text, WIDTH - 3, initial_indent=first, subsequent_indent=rest)


def _shown(value):
    return f"({', '.join(map(_shown, value))})" if isinstance(value, list) else f"{value:.9g}"


def _example(routine):
    """The first example as a call of the inputs, where it fits into a line; "-" is never read."""
    first = next(iter(routine.examples), None)
    if not first or any(isinstance(value, str) for value in first.given.values()):
        return []
    inputs = (arg.name for arg in routine.args if arg.dir != "out")
    given = ", ".join(_shown(first.given[name]) if name in first.given else "-" for name in inputs)
    gives = []
    for name, value in first.gives.items():
        tolerance = f" +- {_shown(first.within[name])}" if first.within[name] else ""
        gives.append(("" if name == "result" else f"{name} = ") + _shown(value) + tolerance)
    line = f"Example: {routine.export}({given}) -> {', '.join(gives)}"
    return [line] if len(line) <= WIDTH - 3 else []


def about(routine):
    """Formula, notes and statuses."""
    lines = paragraph(f"Formula: {routine.formula}", "", "    ") if routine.formula else []
    if notes := (*routine.notes, *routine.by_reference):
        lines.append("Notes:")
        for note in notes:
            lines += paragraph(note, "    - ", "      ")
    if routine.statuses:
        lines.append("Status:")
    for status in routine.statuses:
        lines += paragraph(status.meaning, f"    {status.status:<5}", " " * 9)
    return lines


def comment(routine):
    """The routine's block, always in one order: purpose, given, returned, formula, notes, example, source."""
    lines = paragraph(f"{routine.export} ({routine.name}): {routine.summary}", "", "    ")
    given = [arg for arg in routine.args if arg.dir != "out"]
    returned = [arg for arg in routine.args if arg.dir != "in"]
    if given:
        lines += ["Given:", *rows(given, returned=False)]
    if returned:
        lines += ["Returned:", *rows(returned, returned=True)]
    if routine.result:
        value = f"{result_type(routine)}  {routine.result.unit}".rstrip()
        lines += ["Result:", *paragraph(result_meaning(routine.result), f"    {value}  ", "        ")]
    lines += [*about(routine), *_example(routine)]
    lines += paragraph(f"Source: {routine.source}", "", "    ")
    return "\n".join(["/*", *(f" * {line}".rstrip() for line in lines), " */"])


def render(families):
    parts = [PREAMBLE, OPENING]
    for family in by_reference(families):
        parts.append(f"\n/* ---- {family.title} {'-' * (WIDTH - 12 - len(family.title))} */\n")
        parts += [f"\n{comment(routine)}\n{prototype(routine)}\n" for routine in family.routines]
    return "".join(parts) + CLOSING + POSTAMBLE
