"""bindings/r/quorvel: the functions of the routines with what is known of their arguments, what the package exports,
its description, and its help pages."""

import textwrap

import binding_model
from languages import r_docs
from languages.r_model import EDIT, formals, function_name, number, quoted
from plain_text import plain, statement_lines

WIDTH = 120

DESCRIPTION = """\
Package: quorvel
Version: {version}
Title: Building-Physics and Building-Services Calculations
Description: Moist air, walls and their condensation, panes, glazing units and
    blinds, sun and sky, climate of bands of days, vectors and polygons, for
    numbers and whole vectors. Results are of single precision, the same bits
    as in every other language of the library.
Author: Quorvel maintainers
Maintainer: Quorvel maintainers <maintainers@quorvel.invalid>
License: MIT + file LICENSE
Encoding: UTF-8
Depends: R (>= 4.0)
SystemRequirements: quorvel_arrays
"""

NAMESPACE = """\
# {edit}
useDynLib(quorvel, .registration = TRUE)
S3method(close, climate_file)
S3method(print, climate_file)
{exports}"""

BY_HAND = ["climate_file", "polygon_area"]


def _namespace(calls):
    names = sorted({*(function_name(call) for call in calls), *BY_HAND})
    return NAMESPACE.format(edit=EDIT, exports="".join(f"export({name})\n" for name in names))


# ---- What is known of the arguments, for R/arguments.R ----


def _extents(shape):
    """Numbers, and NA for what is counted; none for one value."""
    extents = ["NA" if isinstance(extent, str) else str(extent) for extent in shape]
    return [f"shape = c({', '.join(extents)})"] if extents else []


def _known(parameter):
    if parameter.kind == "Text":
        return "list()"
    if parameter.selector:
        choices = [f"{name} = {value}" for name, (value, _) in parameter.arg.values.items()]
        return f"choice({', '.join(choices + _extents(parameter.shape))})"
    low, high = map(number, parameter.limits)
    what = [low, high, f"'{plain(parameter.valid())}'"] + ["whole = TRUE"] * (parameter.kind == "Integer")
    return f"number({', '.join(what + _extents(parameter.shape))})"


def _returned(result):
    return f"returned({', '.join(['logical = TRUE'] * (result.kind == 'Logical') + _extents(result.shape))})"


def _list(name, rows):
    lines = ["\n".join(statement_lines(f"{key} = {value}", WIDTH - 2, "    ", "      ")) for key, value in rows]
    text = ",\n".join(lines)
    return f"  {name} = list(\n{text})"


def _knowledge(call):
    given = _list("given", [(parameter.name, _known(parameter)) for parameter in call.parameters])
    results = _list("results", [(result.clear_name, _returned(result)) for result in call.results])
    return f'known${function_name(call)} <- list(\n  routine = "{call.name}",\n{given},\n{results})\n'


# ---- The functions ----


def _passed(parameter):
    if parameter.selector and not parameter.shape:
        first = next(iter(parameter.arg.values))
        return f"if (missing({parameter.name})) {quoted(first)} else {parameter.name}"
    return parameter.name


def _filled(start, parts, end):
    """Parts with commas between them, in lines."""
    return textwrap.fill(start + ", ".join(part.replace(" ", "\0") for part in parts) + end, WIDTH,
                         subsequent_indent="    ", break_long_words=False, break_on_hyphens=False).replace("\0", " ")


def _function(call):
    head = _filled(f"{function_name(call)} <- function(", formals(call), ") {")
    given = _filled("  given <- list(", map(_passed, call.parameters), ")")  # here, so that R tells of whose is missing
    return f'{head}\n{given}\n  run("{function_name(call)}", given, unchecked)\n}}\n'


def _routines(calls):
    parts = [f"# {EDIT}\n\nknown <- list()\n"]
    for call in calls:
        parts.append(_knowledge(call) + (_function(call) if call.is_offered else ""))
    return "\n".join(parts)


def files(families):
    """The texts of the package by their files."""
    calls = binding_model.calls(families)
    pages = {f"man/{name}.Rd": text for name, text in r_docs.files(families, calls).items()}
    return {
        "DESCRIPTION": DESCRIPTION.format(version=binding_model.project_version()),
        "NAMESPACE": _namespace(calls),
        "R/routines.R": _routines(calls),
        **pages,
    }
