"""bindings/rust: the declarations of what both libraries export, the enumerations, and of each family the structures
of several results and the functions for one element and for whole arrays, with checks and without; and Cargo.toml."""

import re

from array_header import columns
from array_kernels import has_kernel
from binding_model import calls, camel, project_version, selectors
from languages.rust_model import (NUMBERS, Docs, blank, block, can_fail, element, file, has_arrays, is_counted, listed,
                                  literal, module, parameter_type, path, result_type, returned, spaced, span)

CARGO = """\
# Produced by generate/languages/rust_binding.py, which knows the version; do not edit.
[package]
name = "quorvel"
version = "{version}"
edition = "2021"
rust-version = "1.63"
description = "Building physics: moist air, walls, glazing, sun and sky, geometry; the same bits on every platform"
license = "MIT"
readme = "README.md"
categories = ["science", "api-bindings"]
publish = false
links = "quorvel"
include = ["/src", "/build.rs", "/README.md"]

[features]
# Into the program itself: it then needs no shared library beside it.
static = []
"""
LINK = ['#[cfg_attr(feature = "static", link(name = "{name}", kind = "static"))]',
        '#[cfg_attr(not(feature = "static"), link(name = "{name}"))]']
_STANDARD = {"Path>": "std::path::Path", "addr_of_mut!": "std::ptr::addr_of_mut"}
POINTED = {**NUMBERS, "Text": "c_char"}


# ---- Declarations ------------------------------------------------------------------------------------------------

def _pointer(arg, is_input):
    return f"*{'const' if is_input else 'mut'} {POINTED[arg.type]}"


def _link(call):
    return f"[`crate::{path(call)}`]"


def _by_reference(call):
    args = [f"{arg.name}: {_pointer(arg, arg.dir == 'in')}" for arg in call.routine.args]
    result = f" -> {POINTED[call.routine.result.type]}" if call.routine.result else ""
    return [f"/// {_link(call)}", *listed(f"pub fn {call.routine.export}(", args, f"){result};")]


def _of_arrays(call):
    given, results = columns(call.routine)
    named = [(name, _pointer(arg, True)) for name, arg in given]
    named += [(name, _pointer(arg, False)) for name, arg in results]
    args = ["count: usize"] + [text for name, kind in named for text in (f"{name}: {kind}", f"{name}_stride: isize")]
    return [f"/// {_link(call)}", *listed(f"pub fn quorvel_{call.name}(", args, ") -> i32;")]


def _declarations(library, declared, *uses):
    link = [line.format(name=library) for line in LINK]
    return file(uses, block([*link, 'extern "C"'], spaced(declared)))


# ---- Without checks ----------------------------------------------------------------------------------------------

def _signature(call, checked):
    parameters = [f"{parameter.name}: {parameter_type(parameter, checked)}" for parameter in call.parameters]
    kind = f"Result<{returned(call)}, Error>" if checked or can_fail(call) else returned(call)
    return listed(f"pub fn {call.name}(", parameters, f") -> {kind}")


def _memory(call):
    """Counts told by lists, which must be equally long; room for results; selectors and texts as C has them."""
    for count in call.counts:
        if count.lists:
            lengths = [f'("{listed.name}", {listed.name}.len())' for listed in count.lists]
            yield from listed(f'let {count.name} = check::count("{path(call)}", &[', lengths, "])?;")
        else:
            yield from listed(
                f"let room_of_{count.name} = check::room(", [f'"{path(call)}"', f'"{count.name}"', count.name], ")?;")
    for parameter in call.parameters:
        if parameter.kind == "Text":
            yield f'let {parameter.name} = check::text("{path(call)}", "{parameter.name}", {parameter.name}.as_ref())?;'
        elif parameter.selector and not parameter.shape:
            yield f"let {parameter.name}: i32 = {parameter.name}.into();"


def _before(call, result):
    """What a result holds before the call."""
    if result.given:
        return f"{result.given}.to_vec()" if is_counted(result) else f"{'*' * bool(result.shape)}{result.given}"
    extent = next((extent for extent in result.shape if not isinstance(extent, int)), None)
    return f"vec![{blank(result)}; room_of_{extent}]" if extent else blank(result)


def _address(thing, place, is_input):
    """Of a number, or of the first of an array."""
    if not thing.shape and thing.kind != "Text":
        return f"&{'' if is_input else 'mut '}{place}"
    return f"{place}.as_{'' if is_input else 'mut_'}ptr()" + ".cast()" * (len(thing.shape) > 1)


def _place(call, result):
    return f"results.{result.clear_name}" if call.structure else "result"


def _argument(call, passed):
    if passed.role == "unread":
        return f"&{'0' if passed.arg.type == 'Integer' else '0.0'}"
    if passed.role == "count":
        return f"&{passed.arg.name}"
    if passed.role == "result":
        return _address(passed.result, _place(call, passed.result), False)
    return _address(passed.parameter, passed.arg.name, True)


def _prepared(call):
    """The variable of the results."""
    if not call.structure:
        return [f"let mut result = {_before(call, call.results[0])};"]
    fields = [(result.clear_name, _before(call, result)) for result in call.results]
    named = [name if name == value else f"{name}: {value}" for name, value in fields]
    return listed(f"let mut results = {call.structure} {{ ", named, " };")


def _by_reference_body(call):
    """The statements before the value, and the value."""
    value = call.results[0] if call.routine.result else None
    truth = " != 0" * bool(value and value.kind == "Logical")
    invoked = f"unsafe {{ sys::{call.routine.export}("
    arguments = [_argument(call, passed) for passed in call.passed]
    if value and not call.structure:
        return [], listed(invoked, arguments, f"){truth} }}")
    assigned = f"{_place(call, value)} = " if value else ""
    lines = [*_prepared(call), *listed(f"{assigned}{invoked}", arguments, f"){truth} }};")]
    return lines, ["results" if call.structure else "result"]


def _by_arrays_body(call):
    """The same of a routine without a call by reference: one element."""
    places = [_address(parameter, parameter.name, True) for parameter in call.parameters]
    places += [_address(result, _place(call, result), False) for result in call.results]
    arguments = ["1", *(f"{place}, 0" for place in places)]
    invoked = listed(f"elements::done(unsafe {{ sys::quorvel_{call.name}(", arguments, ") });")
    truth = " != 0" * (call.results[0].kind == "Logical")
    return [*_prepared(call), *invoked], [f"results{truth}" if call.structure else f"result{truth}"]


def _unchecked(call):
    lines, value = _by_reference_body(call) if call.routine.export else _by_arrays_body(call)
    if can_fail(call):
        value = [f"Ok({value[0]}", *value[1:-1], f"{value[-1]})"] if len(value) > 1 else [f"Ok({value[0]})"]
    about = f"`{call.routine.export}` as it is in quorvel.h." if call.is_by_hand else f"{_link(call)} without checks."
    return [f"/// {about}", *block(_signature(call, False), [*_memory(call), *lines, *value])]


# ---- With checks -------------------------------------------------------------------------------------------------

def _check(call, parameter, is_array=False):
    if parameter.kind == "Text" or (parameter.selector and not parameter.shape):
        return []
    if not parameter.is_limited and parameter.kind == "Integer":
        return []
    place = f"{'' if parameter.shape and not is_array else '&'}{parameter.name}"
    valid = span(parameter.limits, parameter.kind)
    arguments = [f'"{path(call)}"', f'"{parameter.name}"', place, valid, f'"{parameter.unit}"']
    return listed("check::range(", arguments, ")?;")


def _counted(call, count):
    """Of lists that must not be of any length, or of a parameter that counts results."""
    limits = f"{count.low}..={literal(count.high, 'Integer')}"
    if not count.lists:
        return [f'check::range("{path(call)}", "{count.name}", &{count.name}, {limits}, "")?;']
    if (count.low, count.high) == (0, 2**31 - 1):
        return []
    name = count.lists[0].name
    return [f'check::length("{path(call)}", "{name}", {name}.len(), {limits})?;']


def _checks(call):
    counting = {count.name for count in call.counts}
    lines = [line for count in call.counts for line in _counted(call, count)]
    return lines + [line for parameter in call.parameters if parameter.name not in counting
                    for line in _check(call, parameter)]


def _passed_on(call, module):
    names = [parameter.name for parameter in call.parameters]
    is_result = can_fail(call) or module.endswith("arrays")
    text = f"unchecked::{module}::{call.name}("
    return listed(text, names, ")") if is_result else listed(f"Ok({text}", names, "))")


def _checked(docs, call):
    checks = _checks(call)
    if not call.routine.state:
        return [*docs.function(call), *block(_signature(call, True), [*checks, *_passed_on(call, call.family)])]
    looked_at = [each for each in call.parameters if _check(call, each)]  # ClimateFile checks likewise
    parameters = [f"{each.name}: {parameter_type(each, True)}" for each in looked_at]
    head = listed(f"pub(crate) fn check_{call.name}(", parameters, ") -> Result<(), Error>")
    checked = f"check_{call.name}({', '.join(each.name for each in looked_at)})?;"
    return [*block(head, [*checks, "Ok(())"]), "", *docs.function(call),
            *block(_signature(call, True), [checked, *_passed_on(call, call.family)])]


# ---- Whole arrays ------------------------------------------------------------------------------------------------

def _array_head(call, checked):
    parameters = [f"{each.name}: impl Into<Input<'a, {element(each, checked)}>>" for each in call.parameters]
    kind = f"Result<Vec<{returned(call)}>, Error>"
    return [f"/// {_link(call)} of whole arrays{'' if checked else ', without checks'}.",
            *listed(f"pub fn {call.name}<'a>(", parameters, f") -> {kind}")]


def _array_checked(call):
    taken = [f"let {parameter.name} = {parameter.name}.into();" for parameter in call.parameters]
    checks = [line for parameter in call.parameters for line in _check(call, parameter, True)]
    selected = [f"let {each.name} = {each.name}.numbers();" for each in call.parameters
                if each.selector and not each.shape]
    return block(_array_head(call, True), [*taken, *checks, *selected, *_passed_on(call, f"{call.family}::arrays")])


def _array_unchecked(call):
    taken = [f"let {parameter.name} = {parameter.name}.into();" for parameter in call.parameters]
    lengths = [f'{parameter.name}.length("{parameter.name}")' for parameter in call.parameters]
    places = [f"{each.name}.first(){'.cast()' * bool(each.shape)}, {each.name}.stride()" for each in call.parameters]
    for result in call.results:
        place = f"addr_of_mut!((*at).{result.clear_name})" if call.structure else "at"
        places.append(f"{place}{'.cast()' * bool(result.shape)}, stride")
    logical = not call.structure and call.results[0].kind == "Logical"
    kind = "i32" if logical else returned(call)
    lines = [*taken, *listed("let lengths = [", lengths, "];"),
             *listed(f"let mut results = elements::results::<{kind}>(", [f'"{path(call)}"', "&lengths"], ")?;"),
             "let (count, at, stride) = elements::room(&mut results);",
             *listed(f"elements::done(unsafe {{ sys::quorvel_{call.name}(", ["count", *places], ") });"),
             "Ok(elements::logical(results))" if logical else "Ok(results)"]
    return block(_array_head(call, False), lines)


# ---- Files -------------------------------------------------------------------------------------------------------

def _structure(docs, call):
    plain = "Copy, " * (not any(is_counted(result) for result in call.results))
    default = ", Default" * has_arrays(call)
    fields = [line for result in call.results
              for line in (*docs.field(result), f"pub {result.clear_name}: {result_type(result)},")]
    function = f"{'crate::unchecked::geometry::' * call.is_by_hand}{call.name}"
    return [f"/// What [`{function}`] returns.", *["#[repr(C)]"] * has_arrays(call),
            f"#[derive(Clone, {plain}Debug, PartialEq{default})]", *block([f"pub struct {call.structure}"], fields)]


def _uses(known, lines, *further):
    """Declarations of those names that the lines have: "check::" as crate::check."""
    text = "\n".join(line for line in lines if not line.lstrip().startswith("//"))
    names = [re.sub(r"\W.*", "", name) for name in known if re.search(rf"\b{name}", text)]
    own = sorted(names, key=lambda name: (name[0].isupper(), name))
    other = [f"use {where};" for name, where in _STANDARD.items() if name in text]
    return [*further, f"use crate::{{{', '.join(own)}}};", *other]


def _family(docs, family, found, names):
    offered = [call for call in found if not call.is_by_hand]
    arrays = spaced([_array_checked(call) for call in offered if has_arrays(call)])
    body = spaced([*(_structure(docs, call) for call in found if call.structure),
                   *(_checked(docs, call) for call in offered),
                   module("arrays", "Functions of whole arrays.", ["use super::*;", "", *arrays])])
    own = ["check::", "unchecked::", "Error", "Input<", *(rf"{name}\b" for name in names)]
    return file([f"//! {family.title}."], _uses(own, body), body)


def _family_unchecked(family, found):
    arrays = spaced([_array_unchecked(call) for call in found if has_arrays(call)])
    body = spaced([*map(_unchecked, found),
                   module("arrays", "Functions of whole arrays.", ["use super::*;", "", *arrays])])
    structures = [f"use crate::{family.family}::*;"] * any(call.structure for call in found)
    return file([f"//! {family.title}, unchecked."],
                _uses(["check::", "elements::", "sys::", "Error", "Input<"], body, *structures), body)


def _enumeration(docs, name, arg):
    values = [line for identifier, (value, what) in arg.values.items()
              for line in (*docs.summary(what), f"{camel(identifier)} = {value},")]
    return block(["selector!"], [*docs.summary(arg.meaning), *block([name], values)])


def files(families):
    """The texts by their names in bindings/rust."""
    found = calls(families)
    names = selectors(families)
    declared = [_by_reference(call) for call in found if call.routine.export]
    of_arrays = [_of_arrays(call) for call in found if has_kernel(call.routine)]
    texts = {
        "Cargo.toml": CARGO.format(version=project_version()),
        "src/sys/by_reference.rs": _declarations("quorvel", declared, "use std::os::raw::c_char;"),
        "src/sys/arrays.rs": _declarations("quorvel_arrays", of_arrays),
        "src/selectors.rs": file(["use crate::selector::selector;"],
                                 *(_enumeration(Docs(found), *item) for item in names.items())),
    }
    for family in families:
        of_family = [call for call in found if call.family == family.family]
        texts[f"src/{family.family}.rs"] = _family(Docs(found, family.family), family, of_family, names)
        texts[f"src/unchecked/{family.family}.rs"] = _family_unchecked(family, of_family)
    return texts
