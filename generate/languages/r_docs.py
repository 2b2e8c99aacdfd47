"""Help pages of the R package: one for each routine, and one that lists them all."""

import re
import textwrap

from languages.r_model import EDIT, formals, function_name, literal, names_in_r
from plain_text import in_clear_names

WIDTH = 90  # of usage and examples, as R shows them

PAGE = """\
% {edit}
\\name{{{name}}}
\\alias{{{name}}}
{concepts}\\title{{{title}}}
\\description{{
{summary}
}}
\\usage{{
{usage}
}}
\\arguments{{
{arguments}
}}
{details}\\value{{
{value}
}}
\\source{{
{source}
}}
\\examples{{
{examples}
}}
"""

INDEX = """\
% {edit}
\\name{{quorvel-package}}
\\alias{{quorvel-package}}
\\alias{{quorvel}}
\\docType{{package}}
\\title{{Building-Physics and Building-Services Calculations}}
\\description{{
Moist air, walls, panes, glazing units and blinds, sun and sky, vectors and polygons.
}}
\\details{{
Where an argument is one number, a vector may stand: the function then works out all elements. Shorter vectors are
recycled, where they fit evenly. Results have the names and dimensions of the first argument that is as long.

What is a vector or matrix itself (layers, points, a rotation matrix) is one for all elements or, with one dimension
more, one for each: the columns of a matrix are vectors. The numbers of a point are a column too: a polygon in space is
\\code{{rbind(x, y, z)}}. Vectors of layers or vertices that belong together must have the same length.

One result is a vector, or an array with the elements as its last dimension. Several are a data frame with a row for
each element, or a list where some of them are vectors or matrices. All are worked out in single precision, some
geometry in double. What a routine leaves unset is \\code{{NaN}}, a whole number 0.

A selector is one of the names that the usage shows, which may be shortened, or its number; the first one unless it is
given. A vector has one for each element.

An argument that is not a number, or outside of its valid range, stops with an error of class \\code{{quorvel_error}},
which has the \\code{{routine}}, the \\code{{argument}} and its \\code{{value}}. With \\code{{unchecked = TRUE}}
nothing but types, lengths and counts (of layers, of panes) is checked, and the result is that of the routine in C to
the bit; the details of each page tell what that is outside of the ranges. \\code{{NA}} then passes as a number that is
none, and comes back as \\code{{NaN}}; as a whole number it is the lowest one of 32 bits, which also stands for what
has more.

Angles are in radians; azimuths run from north, clockwise seen from above.
}}
{sections}"""


def escaped(text):
    return re.sub(r"([\\%{}])", r"\\\1", text)


class _Texts:
    """Texts of the catalogue with links to functions in place of exported names."""

    def __init__(self, calls):
        self._names = {exported: f"\\code{{\\link{{{name}}}}}" for exported, name in names_in_r(calls).items()}

    def __call__(self, text):
        return in_clear_names(escaped(text), self._names)

    def sentence(self, text):
        text = self(text)
        return text[0].upper() + text[1:] + ("" if text.endswith(".") else ".")

    def paragraph(self, text):
        return textwrap.fill(text, WIDTH, break_long_words=False, break_on_hyphens=False)


def _shape(described):
    """What a vector or matrix has."""
    extents = [str(extent).replace("_", " ") for extent in described.shape]
    return f" {' x '.join(extents)} numbers." if len(extents) > 1 else f" A vector of {extents[0]}." if extents else ""


def _meaning(parameter, texts):
    if not parameter.selector:
        return texts.sentence(parameter.sentence) + _shape(parameter)
    values = [f'\\code{{"{name}"}} ({value}) {texts(what)}' for name, (value, what) in parameter.arg.values.items()]
    return f"{texts.sentence(parameter.meaning)[:-1]}: {', '.join(values)}." + _shape(parameter)


def items(call, texts):
    entries = [(parameter.name, _meaning(parameter, texts)) for parameter in call.parameters]
    entries.append(("unchecked", "Whether to pass anything on as it is; see \\code{\\link{quorvel}}."))
    return "\n".join(texts.paragraph(f"\\item{{{name}}}{{{text}}}") for name, text in entries)


def _value(call, texts):
    described = [(result.clear_name, texts.sentence(result.sentence) + _shape(result)) for result in call.results]
    if len(described) == 1:
        return texts.paragraph(described[0][1])
    kind = "A list" if any(result.shape for result in call.results) else "A data frame"
    rows = [texts.paragraph(f"\\item{{{name}}}{{{text}}}") for name, text in described]
    return "\n".join([f"{kind} of", *rows])


def _details(call, texts):
    remarks = [f"Formula: {call.routine.formula}"] if call.routine.formula else []
    paragraphs = [texts.paragraph(texts(text)) for text in (*remarks, *call.routine.notes)]
    text = "\n\n".join(paragraphs)
    return f"\\details{{\n{text}\n}}\n" if text else ""


def shown(parameter, value):
    """An argument of an example: selectors by their names."""
    names = {number: f'"{name}"' for name, (number, _) in parameter.arg.values.items()}
    return names.get(value, literal(parameter, value)) if not parameter.shape else literal(parameter, value)


def invocation(call, example):
    given = [f"{parameter.name} = {shown(parameter, example.given[parameter.name])}" for parameter in call.parameters]
    given += [] if call.allows(example) else ["unchecked = TRUE"]
    return f"{function_name(call)}({', '.join(given)})"


def _expected(call, example):
    for result in call.results:
        if result.name in example.gives:
            value = example.gives[result.name]
            value = ", ".join(map(str, value)) if isinstance(value, list) else value
            within = f" within {example.within[result.name]}" if example.within[result.name] else ""
            yield f"{result.clear_name + ' ' if call.structure else ''}{value}{within}"


def _folded(text, first="", rest=""):
    return textwrap.fill(text, WIDTH, initial_indent=first, subsequent_indent=rest, break_long_words=False,
                         break_on_hyphens=False)


def _examples(call):
    for example in call.routine.examples[:2]:
        remark = f"{'; '.join(_expected(call, example))} ({example.source})"
        yield _folded(remark.replace("\\", "\\\\").replace("%", "\\%"), "# ", "# ")
        yield _folded(invocation(call, example).replace(" = ", "\0=\0"), "", "    ").replace("\0", " ")


def _usage(call):
    arguments = ", ".join(each.replace(" ", "\0") for each in formals(call))
    return _folded(f"{function_name(call)}({arguments})", "", "    ").replace("\0", " ")


def _page(call, texts):
    routine = call.routine
    return PAGE.format(
        edit=EDIT, name=function_name(call), title=texts.paragraph(texts(routine.summary).rstrip(".")),
        concepts=f"\\concept{{{routine.export}}}\n" if routine.export else "",
        summary=texts.paragraph(texts(routine.summary)), usage=_usage(call), arguments=items(call, texts),
        details=_details(call, texts), value=_value(call, texts), source=texts.paragraph(texts(routine.source)),
        examples="\n".join(_examples(call)))


def _section(family, calls, texts):
    own = [(function_name(call), call.routine.summary) for call in calls if call.family == family.family]
    text = "\n".join(texts.paragraph(f"\\item{{\\code{{\\link{{{name}}}}}}}{{{texts(about)}}}") for name, about in own)
    return f"\\section{{{family.title}}}{{\n\\describe{{\n{text}\n}}}}\n"


def files(families, calls):
    texts = _Texts(calls)
    index = INDEX.format(edit=EDIT, sections="".join(_section(family, calls, texts) for family in families))
    pages = {function_name(call): _page(call, texts) for call in calls if call.is_offered}
    return {"quorvel-package": index, **pages}
