"""bindings/csharp/Quorvel: the declarations of what both libraries export, the enumerations, and of each family the
structures of several results, the methods with checks, and those without."""

from array_header import columns
from binding_model import calls, camel, lower_camel, selectors
from languages import csharp_checks
from languages.csharp_docs import Docs
from languages.csharp_model import (EDIT, NUMBERS, block, element, field, is_elementwise, laid_out, literal,
                                    parameter_list, qualified, returned, type_of)

# ---- Declarations ----------------------------------------------------------------------------------------------

def _number(arg):
    return camel(arg.quantity) if getattr(arg, "values", None) else NUMBERS[arg.type]


def _declared(passed):
    arg, name = passed.arg, lower_camel(passed.arg.name)
    if arg.type == "Text":
        return f"[In] byte[] {name}"
    if not arg.shape:
        return f"ref {_number(arg)} {name}"
    return f"{'[In]' if arg.dir == 'in' else '[In, Out]'} {_number(arg)}{('', '[]', '[,]')[len(arg.shape)]} {name}"


def _by_reference(call):
    result = NUMBERS[call.routine.result.type] if call.routine.result else "void"
    parameters = ", ".join(map(_declared, call.passed))
    return f"internal static extern {result} {call.routine.export}({parameters});"


def _of_arrays(call):
    given, results = columns(call.routine)
    parameters = ", ".join(["UIntPtr count"] + [
        f"ref {_number(arg)} {lower_camel(name)}, IntPtr {lower_camel(name)}Stride" for name, arg in (*given, *results)])
    return f"internal static extern int quorvel_{call.name}({parameters});"


def _native(found):
    lines = []
    for call in found:
        if call.routine.export:
            lines += ["", "[DllImport(Library, CallingConvention = C)]", _by_reference(call)]
        if is_elementwise(call) or not call.routine.export:
            lines += ["", "[DllImport(Arrays, CallingConvention = C)]", _of_arrays(call)]
    return _file(
        "using System.Runtime.InteropServices;",
        ["/// <summary>What the libraries export, argument by argument as in quorvel.h and quorvel_arrays.h.</summary>",
         *block("internal static partial class Native", lines[1:])])


# ---- Without checks ----------------------------------------------------------------------------------------------

def _array(result):
    """A new array for a result; one that a call may leave as it was is not a number before it."""
    extents = ", ".join(str(extent) if isinstance(extent, int) else f"Math.Max(0, {lower_camel(extent)})"
                        for extent in reversed(result.shape))
    new = f"new {element(result)}[{extents}]"
    return f"Blank.Of({new})" if result.unwritten and result.kind != "Integer" else new


def _before(result):
    """What a result holds before the call; empty for 0."""
    if result.given and result.shape:
        return f"({type_of(result)}){lower_camel(result.given)}.Clone()"
    if result.given:
        return lower_camel(result.given)
    if result.shape:
        return _array(result)
    is_written = result.name == "result" or result.kind not in ("Real", "DoubleReal")
    return "" if is_written else literal(float("nan"), result.kind)


def _prepared(call):
    """The variable of the results."""
    if not call.structure:
        return f"{type_of(call.results[0])} results = {_before(call.results[0]) or '0'};"
    fields = [f"{field(call, result)} = {_before(result)}" for result in call.results if _before(result)]
    return f"var results = new {call.structure}" + (f" {{ {', '.join(fields)} }};" if fields else "();")


def _place(call, result):
    return f"results.{field(call, result)}" if call.structure else "results"


def _argument(call, passed):
    name = lower_camel(passed.arg.name)
    if passed.role == "unread":
        return f"ref Unread.{passed.arg.type}"
    if passed.role == "result":
        return ("" if passed.arg.shape else "ref ") + _place(call, passed.result)
    if passed.arg.type == "Text":
        return f'Text.Of("{qualified(call)}", "{name}", {name})'
    return name if passed.arg.shape else f"ref {name}"


def _address(thing, name):
    """Of the first number, for what takes arrays."""
    return f"ref {name}" + (f"[{', '.join('0' for _ in thing.shape)}]" if thing.shape else "")


def _function_call(call):
    """The call, and whether it gives the function's value."""
    if call.routine.export:
        passed = ", ".join(_argument(call, passed) for passed in call.passed)
        return f"Native.{call.routine.export}({passed})", bool(call.routine.result)
    places = [_address(parameter, lower_camel(parameter.name)) for parameter in call.parameters]
    places += [_address(result, _place(call, result)) for result in call.results]
    return f"Elements.Done(Native.quorvel_{call.name}({', '.join(['(UIntPtr)1', *(f'{at}, IntPtr.Zero' for at in places)])}))", False


def _single(call):
    """The statements for one element."""
    lines = list(csharp_checks.memory(call))
    text, has_value = _function_call(call)
    if has_value and call.results[0].kind == "Logical":
        text += " != 0"
    if has_value and not call.structure:
        return [*lines, f"return {text};"]
    value = f"{_place(call, call.results[0])} = " if has_value else ""
    return [*lines, _prepared(call), f"{value}{text};", "return results;"]


def _array_parameters(call):
    return ", ".join(f"Input<{element(parameter)}> {lower_camel(parameter.name)}" for parameter in call.parameters)


def _whole(call):
    """The statements for whole arrays."""
    names = [lower_camel(parameter.name) for parameter in call.parameters]
    logical = call.results[0].kind == "Logical"
    kind = call.structure or ("int" if logical else element(call.results[0]))
    places = [f"ref {name}.First, {name}.Stride" for name in names]
    places += [f"ref Elements.First(results){f'.{field(call, result)}' if call.structure else ''}, Elements<{kind}>.Stride"
               for result in call.results]
    lengths = ", ".join(f'("{name}", {name}.Length)' for name in names)
    return [
        f'int count = Elements.Count("{qualified(call)}", {lengths});',
        f"var results = new {kind}[count];",
        f"Elements.Done(Native.quorvel_{call.name}({', '.join(['(UIntPtr)count', *places])}));",
        f"return {'Elements.Logical(results)' if logical else 'results'};",
    ]


def _inherited(call):
    """The documentation of the checked method for one element."""
    types = ", ".join(type_of(parameter) for parameter in call.parameters)
    return f'/// <inheritdoc cref="Quorvel.{qualified(call)}({types})"/>'


def _unchecked(call):
    name = camel(call.name)
    by_hand = f"/// <summary>{call.routine.export} as it is in quorvel.h.</summary>"
    yield by_hand if call.is_by_hand else _inherited(call)
    yield from block(f"public static {returned(call)} {name}({', '.join(parameter_list(call))})", _single(call))
    if is_elementwise(call):
        yield ""
        yield _inherited(call)
        yield from block(f"public static {returned(call)}[] {name}({_array_parameters(call)})", _whole(call))


# ---- With checks -------------------------------------------------------------------------------------------------

def _passed_on(call):
    names = ", ".join(lower_camel(parameter.name) for parameter in call.parameters)
    return f"return Unchecked.{qualified(call)}({names});"


def _checked(docs, call):
    name, parameters = camel(call.name), ", ".join(parameter_list(call))
    checks = csharp_checks.values(call)
    if call.routine.state:  # the class ClimateFile checks likewise
        yield from block(f"internal static void Check{name}({parameters})", checks)
        yield ""
        names = ", ".join(lower_camel(parameter.name) for parameter in call.parameters)
        checks = [f"Check{name}({names});"]
    yield from docs.method(call)
    yield from block(f"public static {returned(call)} {name}({parameters})", [*checks, _passed_on(call)])
    if is_elementwise(call):
        yield ""
        yield _inherited(call)
        yield from block(f"public static {returned(call)}[] {name}({_array_parameters(call)})", [*checks, _passed_on(call)])


# ---- Structures and files ----------------------------------------------------------------------------------------

def _structure(docs, call):
    fields = [(type_of(result), field(call, result), result) for result in call.results]
    lines = []
    for kind, name, result in fields:
        lines += [docs.field(result), f"public {kind} {name};", ""]
    out = ", ".join(f"out {kind} {lower_camel(result.clear_name)}" for kind, name, result in fields)
    taken = [f"{lower_camel(result.clear_name)} = {name};" for _, name, result in fields]
    lines += ["/// <summary>Into variables, in the order of the fields.</summary>",
              *block(f"public void Deconstruct({out})", taken)]
    return [docs.structure(call), *block(f"public struct {call.structure}", lines)]


def _spaced(parts):
    """Lines of parts, with an empty line between them."""
    lines = [line for part in parts for line in ["", *part]]
    return lines[1:]


def _file(using, body):
    head = [EDIT, "using System;", *([using] if using else []), ""]
    return laid_out([*head, *block("namespace Quorvel", body)])


def _family(docs, family, found):
    name = camel(family.family)
    checked = _spaced(list(_checked(docs, call)) for call in found if not call.is_by_hand)
    unchecked = _spaced(list(_unchecked(call)) for call in found)
    parts = [_structure(docs, call) for call in found if call.structure]
    parts.append([f"/// <summary>{family.title}.</summary>", *block(f"public static partial class {name}", checked)])
    inner = [f"/// <summary>{family.title}, unchecked.</summary>", *block(f"public static class {name}", unchecked)]
    parts.append(block("public static partial class Unchecked", inner))
    return _file("", _spaced(parts))


def _enumeration(docs, name, arg):
    values = [line for identifier, (value, what) in arg.values.items()
              for line in (docs.summary(what), f"{camel(identifier)} = {value},")]
    return [docs.summary(arg.meaning), *block(f"public enum {name}", values)]


def files(families):
    """The texts by their names."""
    found = calls(families)
    docs = Docs(found)
    texts = {
        "Native.cs": _native(found),
        "Selectors.cs": _file("", _spaced(_enumeration(docs, *item) for item in selectors(families).items())),
    }
    for family in families:
        texts[f"{camel(family.family)}.cs"] = _family(docs, family, [c for c in found if c.family == family.family])
    return texts
