"""include/quorvel/FAMILY.hpp: the documented C++ interface, for one element and for whole arrays; and selectors.hpp,
the values of the selectors by name."""

import re
import textwrap

import cpp_arrays
import cpp_scalar
from cpp_types import bounds, count_of, counts, is_offered, name_of, outputs
from header import WIDTH, domain, meaning

EDIT = "// Produced from the catalogue of routines (catalogue/); do not edit."

FAMILY = """\
// {title}: see quorvel/quorvel.hpp.
{edit}
#pragma once

#include <quorvel.h>
#include <quorvel_arrays.h>

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "quorvel/call.hpp"
#include "quorvel/input.hpp"
#include "quorvel/selectors.hpp"

// The inner names keep what an application compiles apart from the library's own functions.
namespace quorvel::{family} {{
inline namespace v0 {{
{routines}
}}  // namespace v0
}}  // namespace quorvel::{family}
"""

SELECTORS = """\
// The values of the selectors: quorvel::psychrometer::sling.
{edit}
#pragma once

#include <cstdint>

namespace quorvel {{
{selectors}
}}  // namespace quorvel
"""


def _lines(text, first="/// ", rest="/// "):
    return textwrap.wrap(text, WIDTH, initial_indent=first, subsequent_indent=rest, break_on_hyphens=False)


def _left(arg):
    blank = "as given" if arg.dir == "inout" else "not a number"
    return f"{blank} {arg.left_in_range}" if arg.left_in_range else ""


def _described(arg, returned):
    """Unit, range and meaning of an argument or result."""
    where = "" if returned else domain(arg)
    named = where if where not in ("any", "selector") else ""
    lead = ", ".join(filter(None, [arg.unit if arg.unit != "1" else "", named]))
    if returned and getattr(arg, "logical", False):
        return arg.meaning
    if hasattr(arg, "dir"):
        text = meaning(arg, returned, _left(arg) if returned else "")
    else:
        text = arg.meaning + "; 1e20 for none" * arg.none
    return f"{lead}: {text}" if lead else text


def _above_field(arg):
    return _lines(_described(arg, returned=True), "    /// ", "    /// ")


def _counted(routine):
    for name, (count, lists) in counts(routine).items():
        if lists:
            low, high = bounds(count)
            limits = f"{low} .. {high}" if high < 2**31 - 1 else f"from {low}"
            listed = " and ".join(arg.name for arg in lists)
            yield from _lines(f"@throws std::out_of_range unless {listed} {'has' if len(lists) == 1 else 'have'} "
                              f"{limits} ({name}: {count.meaning})", rest="///     ")


def _about(routine):
    results = outputs(routine)
    lines = _lines(routine.summary)
    if routine.formula:
        lines += ["///", *_lines(f"Formula: {routine.formula}")]
    for note in routine.notes:
        lines += ["///", *_lines(f"@note {note}")]
    lines += ["///"]
    for arg in cpp_scalar.given(routine):
        lines += _lines(f"@param {arg.name}  {_described(arg, returned=False)}", rest="///     ")
    if len(results) == 1:
        lines += _lines(f"@return {_described(results[0], returned=True)}", rest="///     ")
    lines += _counted(routine)
    lines += _lines(f"Source: {routine.source}", rest="///     ")
    return [*lines, f"/// ({routine.export} of quorvel.h)"] if routine.export else lines


def _about_arrays(routine):
    lines = [f"/// {routine.name} for whole arrays."]
    for name, (count, lists) in counts(routine).items():
        listed = [arg.name for arg in lists] + [
            name_of(arg) for arg in routine.args if arg.dir == "out" and count_of(arg) == name]
        lines += _lines(f"Of a row of {' and '.join(listed)}, {name} tells how many count.")
    if routine.result and routine.result.logical:
        lines += _lines("The result is -1 for true, 0 for false.")
    return lines


def _statements(text):
    """A function, its long lines folded between arguments."""
    for line in text.split("\n"):
        indent = len(line) - len(line.lstrip())
        rest = " " * (indent + 8 if line.startswith("inline") else indent + 4)
        kept = re.sub(r"(?<!,) | (?=\d+>)", "\0", line[indent:])  # no break within a type
        folded = textwrap.wrap(kept, WIDTH, initial_indent=" " * indent, subsequent_indent=rest,
                               break_long_words=False, break_on_hyphens=False)
        yield from (part.replace("\0", " ") for part in folded)


def _routine(routine):
    several = len(outputs(routine)) > 1
    parts = []
    if several:
        parts += [f"/// What {routine.name} returns.", cpp_scalar.structure(routine, _above_field)]
        parts += ["", f"/// Arrays for what {routine.name} returns.", cpp_arrays.structure(routine), ""]
    parts += [*_about(routine), *_statements(cpp_scalar.function(routine)), ""]
    parts += [*_about_arrays(routine), *_statements(cpp_arrays.function(routine))]
    return "\n" + "\n".join(parts) + "\n"


def _family(family):
    routines = "".join(_routine(routine) for routine in family.routines if is_offered(routine))
    return FAMILY.format(title=family.title, edit=EDIT, family=family.family, routines=routines)


def _selector(name, values):
    constants = "".join(
        f"{line}\n" for identifier, (number, what) in values.items()
        for line in [*_lines(what), f"inline constexpr std::int32_t {identifier} = {number};"])
    return f"\nnamespace {name} {{\n{constants}}}  // namespace {name}\n"


def _selectors(families):
    """By their quantities; where two routines differ in what they say of the values, the last one speaks."""
    found = {}
    for family in families:
        for routine in filter(is_offered, family.routines):
            found |= {arg.quantity: arg.values for arg in (*routine.args, *outputs(routine)) if arg.values}
    return SELECTORS.format(edit=EDIT, selectors="".join(_selector(*item) for item in found.items()))


def files(families):
    """The texts of the headers by their names."""
    return {**{f"{family.family}.hpp": _family(family) for family in families}, "selectors.hpp": _selectors(families)}
