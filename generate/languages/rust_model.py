"""What Rust makes of a call: its names and types, and how its text is laid out."""

import math
import re
import textwrap

WIDTH = 120
EDIT = "// Produced from the catalogue of routines (catalogue/); do not edit."
NUMBERS = {"Real": "f32", "DoubleReal": "f64", "Integer": "i32", "Logical": "i32"}


def path(call):
    """Of its function within the crate."""
    return f"{'unchecked::' * call.is_by_hand}{call.family}::{call.name}"


# ---- Types -------------------------------------------------------------------------------------------------------

def number(thing):
    return NUMBERS[thing.kind]


def is_counted(thing):
    return any(not isinstance(extent, int) for extent in thing.shape)


def of_fixed(thing, one):
    """A type or a value repeated by all extents that are not counted, the one that varies fastest innermost."""
    for extent in thing.shape:
        if isinstance(extent, int):
            one = f"[{one}; {extent}]"
    return one


def element(parameter, checked):
    """Of a parameter: selectors of single values are enumerations where they are looked at."""
    kind = parameter.selector if checked and parameter.selector and not parameter.shape else number(parameter)
    return of_fixed(parameter, kind)


def parameter_type(parameter, checked):
    if parameter.kind == "Text":
        return "impl AsRef<Path>"
    kind = element(parameter, checked)
    if is_counted(parameter):
        return f"&[{kind}]"
    if parameter.shape:
        return f"&{kind}"
    return f"impl Into<{kind}>" if parameter.selector and not checked else kind


def result_type(result):
    if result.kind == "Logical":
        return "bool"
    kind = of_fixed(result, number(result))
    return f"Vec<{kind}>" if is_counted(result) else kind


def returned(call):
    return call.structure or result_type(call.results[0])


def has_arrays(call):
    """Whether it has a form for whole arrays, of numbers or of arrays of a fixed length."""
    things = (*call.parameters, *call.results)
    is_fixed = not call.counts and all(thing.kind != "Text" and not is_counted(thing) for thing in things)
    truth_in_structure = call.structure and any(result.kind == "Logical" for result in call.results)
    return is_fixed and bool(call.parameters) and not call.routine.state and not truth_in_structure


def can_fail(call):
    """Whether a call without a look at the values is refused where the memory needs it."""
    return bool(call.counts) or any(parameter.kind == "Text" for parameter in call.parameters)


# ---- Literals ----------------------------------------------------------------------------------------------------

def literal(value, kind):
    kind = NUMBERS[kind]
    if kind == "i32":
        return f"i32::{'MIN' if value < 0 else 'MAX'}" if math.isinf(value) or value == 2**31 - 1 else str(int(value))
    if math.isinf(value):
        return f"{kind}::{'NEG_' * (value < 0)}INFINITY"
    return repr(float(value)) if abs(value) < 1e16 else f"{value:e}"


def span(limits, kind):
    return "..=".join(literal(limit, kind) for limit in limits)


def blank(thing):
    """Of a fixed array, or of what is counted: what a result holds if a call leaves it."""
    if thing.kind == "Logical":
        return "false"
    kind = number(thing)
    return of_fixed(thing, "0" if kind == "i32" else f"{kind}::NAN")


# ---- Layout ------------------------------------------------------------------------------------------------------

def indented(lines, depth=1):
    return [" " * 4 * depth + line if line else "" for line in lines]


def listed(head, items, tail):
    """Items in brackets: on one line, or on as many as they need, set in."""
    items = list(items)
    line = f"{head}{', '.join(items)}{tail}"
    if len(line) <= WIDTH - 12:
        return [line]
    parts = textwrap.wrap(", ".join(item.replace(" ", "\0") for item in items) + ",", WIDTH - 16,
                          break_long_words=False, break_on_hyphens=False)
    return [head.rstrip(), *indented(part.replace("\0", " ") for part in parts), tail.lstrip()]


def block(head, lines):
    *heads, last = head
    return [*heads, f"{last} {{", *indented(lines), "}"]


def spaced(parts):
    """Lines of parts, with an empty line between them."""
    return [line for part in parts for line in ["", *part]][1:]


def file(*parts):
    return "".join(f"{line}\n" for line in [EDIT, "", *spaced(filter(None, map(list, parts)))])


def module(name, about, lines):
    return [f"/// {about}", *block([f"pub mod {name}"], lines)]


# ---- Documentation -----------------------------------------------------------------------------------------------

class Docs:
    """Texts of the catalogue as comments, with the names of the crate in place of those of C."""

    def __init__(self, calls, family=""):
        self._exported = {call.routine.export: path(call) for call in calls if call.routine.export}
        self._family = family  # whose module they stand in

    def text(self, text):
        text = re.sub(r"[\[\]<>*]", r"\\\g<0>", text)
        text = re.sub(r"\b[A-Z][A-Z0-9]{3,8}\b", self._of_exported, text)
        text = re.sub(r"(?<![`:\w])[a-z]\w*_\w+\b(?![`:])", r"`\g<0>`", text)
        return re.sub(r"(\[`[\w:]+`\])\((?!crate)", r"\1\\(", text)  # of a call, not the target of a link

    def _of_exported(self, found):
        known = self._exported.get(found[0])
        if not known:
            return found[0]
        family, name = known.rsplit("::", 1)
        if family == self._family:
            return f"[`{name}`]"
        return f"[`{known}`]" if family.startswith("unchecked") else f"[`{known}`](crate::{known})"

    def lines(self, text, first="", rest=""):
        text = self.text(text)
        return _comment(text[0].upper() + text[1:] if not first else text, first, rest)

    def summary(self, text):
        return self.lines(text if text.endswith((".", ")", ":")) else f"{text}.")

    def function(self, call):
        """Of a checked function for one element."""
        yield from self.summary(call.routine.summary)
        if call.parameters:
            yield from ("///", "/// # Arguments")
        for parameter in call.parameters:
            yield from self.lines(_sentence(parameter), f"* `{parameter.name}`: ", "  ")
        if not call.structure:
            yield from ("///", "/// # Returns", *self.summary(_with_unit(call.results[0])))
        if call.parameters:
            yield from ("///", "/// # Errors", "/// Where an argument is not valid.")
        yield from self._remarks(call)

    def _remarks(self, call):
        routine = call.routine
        notes = ([f"Formula: {routine.formula}"] if routine.formula else []) + call.notes
        yield from ("///", "/// # Notes") if notes else ()
        for note in notes:
            yield from self.lines(note, "* ", "  ")
        yield from ("///", "/// # Source", *self.lines(routine.source))
        if routine.export:
            yield from ("///", f"/// `{routine.export}` in quorvel.h.")

    def field(self, result):
        return self.summary(_with_unit(result))


def _with_unit(thing):
    """Its sentence, the unit not in square brackets, which are links in these comments."""
    return thing.sentence.replace(f" [{thing.unit}]", f" ({thing.unit})", 1) if thing.unit else thing.sentence


def _sentence(parameter):
    return parameter.arg.meaning if parameter.selector and not parameter.shape else _with_unit(parameter)


def _comment(text, first="", rest=""):
    """Lines of a comment; a sign at the beginning of one would make it an item of a list."""
    lines = textwrap.wrap(text, WIDTH - 12, initial_indent=first, subsequent_indent=rest, break_long_words=False,
                          break_on_hyphens=False)
    safe = [re.sub(r"^( *)([-+] |\d+[.)] |#)", r"\1\\\2", line) for line in lines[1:]]
    return [f"/// {line}" for line in [*lines[:1], *safe]]
