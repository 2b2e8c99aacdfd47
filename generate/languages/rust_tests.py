"""What the tests of the Rust crate are generated from: every example of the catalogue, and for each routine the calls
of the corpus, without checks. What they call is in bindings/rust/tests/support."""

import math

import corpus_layout
from binding_model import calls, camel, examples
from languages.rust_model import (EDIT, NUMBERS, block, can_fail, has_arrays, indented, is_counted, listed, literal,
                                  path, spaced)

# ---- Examples ----------------------------------------------------------------------------------------------------

def _nested(values, extents):
    """Numbers in brackets, the extent that varies fastest innermost."""
    for extent in extents[:-1]:
        values = [f"[{', '.join(values[k:k + extent])}]" for k in range(0, len(values), extent)]
    return f"[{', '.join(values)}]"


def _literal(parameter, value, checked):
    if parameter.kind == "Text":
        return f'"{value}"'
    if parameter.shape:
        return f"&{_nested([literal(each, parameter.kind) for each in value], parameter.shape)}"
    names = {number: camel(name) for name, (number, _) in parameter.arg.values.items()}
    return f"{parameter.selector}::{names[value]}" if checked and parameter.selector else literal(value, parameter.kind)


def _is_sayable(call, example):
    """Whether the checked function takes it as an argument at all: an enumeration has no other values."""
    singles = [each for each in call.parameters if each.selector and not each.shape]
    return not call.is_by_hand and all(each.allows(example.given[each.name]) for each in singles)


def _results(call):
    return [(result, f".{result.clear_name}" if call.structure else "") for result in call.results]


def _given(call, example, checked):
    return [_literal(each, example.given[each.name], checked) for each in call.parameters]


def _example(call, example):
    checked = not call.is_by_hand and call.allows(example)
    given, module = _given(call, example, checked), f"{'' if checked else 'unchecked::'}{call.family}"
    lines = listed(f"let one = {module}::{call.name}(", given, ")" + ".unwrap()" * (checked or can_fail(call)) + ";")
    if not checked and _is_sayable(call, example):
        lines += listed(f"assert!({call.family}::{call.name}(", _given(call, example, True), ").is_err());")
    for result, field in _results(call):
        if result.name in example.gives:
            value = example.gives[result.name]
            numbers = [repr(float(each)) for each in (value if isinstance(value, list) else [value])]
            within = repr(float(example.within[result.name]))
            lines += listed(f'near("{path(call)}, {result.name}", &one{field}, {within}, &[', numbers, "]);")
    return lines + (_example_of_arrays(call, module, given) if has_arrays(call) else [])


def _example_of_arrays(call, module, given):
    """By turns an array and a single value."""
    values = [text.removeprefix("&") for text in given]
    several = [f"&[{text}; 3]" if index % 2 == 0 else text for index, text in enumerate(values)]
    lines = listed(f"let all = {module}::arrays::{call.name}(", several, ").unwrap();")
    return lines + [f'same("{path(call)}, {result.name}", &one{field}, &all[2]{field});'
                    for result, field in _results(call)]


# ---- Corpus ------------------------------------------------------------------------------------------------------

def _column(arg, layout):
    variable = "" if arg.ignored else f"let {arg.name} = "
    if arg.type == "Text":
        return f"{variable}corpus.texts();"
    kind = NUMBERS[arg.type]
    for extent in layout.room(arg):
        kind = f"[{kind}; {extent}]"
    return f"{variable}corpus.column::<{kind}>();"


def _of_case(parameter):
    """A parameter in case i: of lists, what is counted."""
    if is_counted(parameter):
        return f"&{parameter.name}[i][..{parameter.shape[-1]}[i] as usize]"
    return f"{'&' * bool(parameter.shape or parameter.kind == 'Text')}{parameter.name}[i]"


def _corpus(call):
    layout = corpus_layout.Layout(call.routine)
    lines = [_column(arg, layout) for arg in layout.given]
    counted = [f"(0..={layout.highest[count.name]}).contains(&{count.name}[i])" for count in call.counts if count.lists]
    lines += [f"corpus.only(&|i| {' && '.join(counted)});"] if counted else []
    whole = has_arrays(call)
    if whole:
        function = f"unchecked::{call.family}::arrays::{call.name}("
        lines += listed(f"let all = {function}", [f"&{each.name}" for each in call.parameters], ").unwrap();")
    function = f"unchecked::{call.family}::{call.name}("
    held = listed(f"let one = {function}", map(_of_case, call.parameters), ")" + ".unwrap()" * can_fail(call) + ";")
    for result, field in _results(call):
        room = math.prod(layout.room(result.arg)) * (2 if result.kind == "DoubleReal" else 1)
        got = f"&one{field}" + f", &all[i]{field}" * whole
        held.append(f'left.hold("{result.name}", {room}, &[{got}]);')
    return [*lines, "corpus.each(&|i, left| {", *indented(held), "});"]


# ---- Files -------------------------------------------------------------------------------------------------------

def _file(uses, functions):
    head = [EDIT, "mod support;", *uses, ""]
    return "".join(f"{line}\n" for line in [*head, *spaced(functions)])


def files(families):
    """The texts by their names."""
    of_examples = []
    for family in families:  # one after the other: those of the climate data file share a state
        numbered = [(f"{call.name}_{number}", _example(call, example)) for call, example, number in examples(families)
                    if call.family == family.family]
        of_examples += [block([f"fn {family.family}_{name}()"], lines) for name, lines in numbered]
        of_examples.append(block(["#[test]", f"fn {family.family}_examples()"],
                                 [f"{family.family}_{name}();" for name, _ in numbered]))
    exported = [call for call in calls(families) if call.routine.export]
    of_corpus = [block([f"fn {call.routine.export.lower()}(corpus: &mut Corpus)"], _corpus(call)) for call in exported]
    run = [f'run(&mut differing, "{call.routine.export}", {call.routine.export.lower()});' for call in exported]
    of_corpus.append(block(["#[test]", "fn bits_of_the_corpus()"], 
                           ["let mut differing = Differing::new();", *run, f"finish(differing, {len(exported)});"]))
    return {
        "examples.rs": _file(["use quorvel::*;", "use support::{near, same};"], of_examples),
        "corpus.rs": _file(["use quorvel::unchecked;", "use support::{finish, run, Corpus, Differing};"], of_corpus),
    }
