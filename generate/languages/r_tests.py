"""The tests of the R package that follow from the catalogue: its examples, and how the corpus of calls is laid out."""

import binding_model
import corpus_layout
from languages import r_docs
from languages.r_model import EDIT, function_name


def _compared(call, example):
    for result in call.results:
        if result.name in example.gives:
            value = example.gives[result.name]
            got = f"got${result.clear_name}" if call.structure else "got"
            wanted = f"c({', '.join(map(str, value))})" if isinstance(value, list) else repr(value)
            logical = str(result.kind == "Logical").upper()
            within = repr(example.within[result.name])
            yield f'compare("{call.name} {result.clear_name}", {got}, {wanted}, {within}, {logical})'


def _examples(calls):
    for call, example in ((call, example) for call in calls if call.is_offered for example in call.routine.examples):
        yield f"got <- {r_docs.invocation(call, example)}"
        yield from _compared(call, example)


def _column(name, arg, layout):
    room = layout.room(arg) if arg.type != "Text" else []
    counts = [f'"{extent}"' if isinstance(extent, str) else "NA" for extent in getattr(arg, "shape", ())]
    return f'    {name} = column("{arg.type}", c({", ".join(map(str, room))}), c({", ".join(counts)}))'


def _layout(call):
    layout = corpus_layout.Layout(call.routine)
    names = {result.name: result.clear_name for result in call.results}
    given = ",\n".join(_column(arg.name, arg, layout) for arg in layout.given)
    left = ",\n".join(_column(names[name], arg, layout) for name, arg in layout.left.items())
    limits = ", ".join(f"{name} = c({low}, {high})" for name, low, high in layout.orders())
    return (f'layouts${call.routine.export} <- list(\n  name = "{function_name(call)}", limits = list({limits}),\n'
            f"  given = list(\n{given}),\n  left = list(\n{left}))")


def files(families):
    calls = binding_model.calls(families)
    layouts = [_layout(call) for call in calls if call.routine.export]
    return {
        "examples.R": "\n".join([f"# {EDIT}", *_examples(calls), ""]),
        "layouts.R": "\n".join([f"# {EDIT}", "layouts <- list()", *layouts, ""]),
    }
