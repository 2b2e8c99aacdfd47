"""What the tests of the C# binding are generated from: every example of the catalogue as a call with checks, and for
each routine the calls of the corpus, without. What they call is in bindings/csharp/tests."""

import math

import corpus_layout
from binding_model import calls, camel, examples, lower_camel
from languages.csharp_model import EDIT, block, element, field, is_elementwise, laid_out, literal, qualified

COLUMNS = {"Real": "Reals", "DoubleReal": "Doubles", "Integer": "Integers", "Text": "Texts"}


# ---- Examples ----------------------------------------------------------------------------------------------------

def _number(parameter, value):
    text = literal(value, parameter.kind)
    return f"({parameter.selector}){text}" if parameter.selector else text


def _literal(parameter, value):
    """An argument; a matrix row by row."""
    if parameter.kind == "Text":
        return f'"{value}"'
    if not parameter.shape:
        return _number(parameter, value)
    numbers = [_number(parameter, each) for each in value]
    kind = element(parameter)
    if len(parameter.shape) == 1:
        return f"new {kind}[] {{ {', '.join(numbers)} }}"
    step = parameter.shape[0]
    rows = [f"{{ {', '.join(numbers[k:k + step])} }}" for k in range(0, len(numbers), step)]
    return f"new {kind}[,] {{ {', '.join(rows)} }}"


def _results(call, variable):
    for result in call.results:
        yield result, f"{variable}.{field(call, result)}" if call.structure else variable


def _example(call, example):
    given = [_literal(parameter, example.given[parameter.name]) for parameter in call.parameters]
    is_checked = not call.is_by_hand and call.allows(example)
    method = ("" if is_checked else "Unchecked.") + qualified(call)
    lines = [f"var one = {method}({', '.join(given)});"]
    if not is_checked and not call.is_by_hand:
        lines.append(f'Test.Throws<System.ArgumentException>("invalid", () => {qualified(call)}({", ".join(given)}));')
    for result, place in _results(call, "one"):
        if result.name in example.gives:
            value = example.gives[result.name]
            numbers = ", ".join(map(repr, map(float, value if isinstance(value, list) else [value])))
            lines.append(f'Test.Near("{qualified(call)}, {result.name}", {place}, {float(example.within[result.name])!r}, {numbers});')
    if is_elementwise(call):  # by turns an array and a single value
        several = [f"Test.Repeated({text})" if index % 2 == 0 else text for index, text in enumerate(given)]
        lines.append(f"var all = {method}({', '.join(several)});")
        lines += [f'Test.Same("{qualified(call)}, {result.name}", {one}, {other});' for (result, one), (_, other) in
                  zip(_results(call, "one"), _results(call, "all[2]"))]
    return lines


# ---- Corpus ------------------------------------------------------------------------------------------------------

def _column(arg, layout):
    kind = f"Selectors<{camel(arg.quantity)}>" if arg.values else COLUMNS[arg.type]
    variable = "" if arg.ignored else f"var {lower_camel(arg.name)} = "
    return f"{variable}corpus.{kind}({math.prod(layout.room(arg)) if arg.shape else ''});"


def _of_case(parameter):
    """A parameter in case i: of lists, what is counted."""
    name = lower_camel(parameter.name)
    extents = [str(extent) if isinstance(extent, int) else f"{lower_camel(extent)}[i]" for extent in reversed(parameter.shape)]
    return f"Corpus.Part({', '.join([f'{name}[i]', *extents])})" if extents else f"{name}[i]"


def _counted(call):
    told = [lower_camel(count.name) for count in call.counts if count.lists]
    return [f"corpus.Only(i => {' && '.join(f'{name}[i] >= 0' for name in told)});"] if told else []


def _corpus(call):
    layout = corpus_layout.Layout(call.routine)
    lines = [_column(arg, layout) for arg in layout.given]
    lines += _counted(call)
    given = ", ".join(map(_of_case, call.parameters))
    lines.append(f"var one = corpus.Each(i => Unchecked.{qualified(call)}({given}));")
    whole = is_elementwise(call)
    if whole:
        lines.append(f"var all = Unchecked.{qualified(call)}({', '.join(lower_camel(p.name) for p in call.parameters)});")
    for (result, one), (_, other) in zip(_results(call, "one[i]"), _results(call, "all[i]")):
        words = math.prod(layout.room(result.arg)) * (2 if result.kind == "DoubleReal" else 1)
        got = f"i => {one}" + (f", i => {other}" if whole else "")
        lines.append(f'corpus.Left("{result.name}", {words}, {got});')
    return lines


# ---- Files -------------------------------------------------------------------------------------------------------

def _class(name, constant, methods, calls_of):
    """A constant, methods, and one that has them all called."""
    run = block("internal static void Run()", calls_of)
    body = [f"internal const int {constant};", "", *run, *(line for head, lines in methods for line in ["", *block(f"private static void {head}", lines)])]
    return laid_out([EDIT, "using Quorvel;", "", *block(f"internal static class {name}", body)])


def files(families):
    """The texts by their names."""
    found = calls(families)
    numbered = [(f"{call.family}_{call.name}_{number}", _example(call, example))
                for call, example, number in examples(families)]
    exported = [call for call in found if call.routine.export]
    return {
        "Examples.cs": _class(
            "Examples", f"Count = {len(numbered)}", [(f"{name}()", lines) for name, lines in numbered],
            [f"{name}();" for name, _ in numbered]),
        "CorpusCalls.cs": _class(
            "CorpusCalls", f"Cases = {corpus_layout.CASES}",
            [(f"{call.routine.export}(Corpus corpus)", _corpus(call)) for call in exported],
            [f'Corpus.Run("{call.routine.export}", {call.routine.export});' for call in exported]),
    }
