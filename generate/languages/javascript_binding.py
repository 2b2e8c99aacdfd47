"""bindings/javascript/quorvel: the functions of each family as data for quorvel/routine.js, the objects of the
selectors, the types of both for TypeScript, and the examples of the catalogue for the tests."""

import json
import math
import re
import textwrap

import binding_model
import corpus_layout
from array_kernels import has_kernel
from binding_model import lower_camel

WIDTH = 120
EDIT = "// Produced from the catalogue of routines (catalogue/); do not edit.\n"
ARRAYS = {"Real": "Float32Array", "DoubleReal": "Float64Array", "Integer": "Int32Array", "Logical": "boolean[]"}


def _literal(value):
    """As it is written in JavaScript by hand."""
    if isinstance(value, float) and math.isinf(value):
        return "Infinity" if value > 0 else "-Infinity"
    if isinstance(value, dict):
        return "{ " + ", ".join(f"{key}: {_literal(each)}" for key, each in value.items()) + " }"
    if isinstance(value, (list, tuple)):
        return f"[{', '.join(map(_literal, value))}]"
    if isinstance(value, _Selector):
        return f"selectors.{value.name}"
    return f"'{value}'" if isinstance(value, str) else repr(value)


class _Selector:
    def __init__(self, name):
        self.name = name


# ---- The functions as data ----


def _argument(arg, direction, parameter=None, name=None):
    unit = {"unit": arg.unit} if arg.unit not in ("", "1") else {}
    extents = [extent if isinstance(extent, int) else lower_camel(extent) for extent in arg.shape]
    if direction == "count":
        limits = {"range": _bounds(arg)}
    elif parameter and parameter.selector:
        limits = {"selector": _Selector(parameter.selector)}
    else:
        limits = {"range": parameter.limits} if parameter and parameter.is_limited else {}
    kind = "Logical" if getattr(arg, "logical", False) else arg.type
    return {"dir": direction, "name": lower_camel(name or arg.name), "type": kind, **unit, **({"shape": extents} if extents else {}), **limits}


def _bounds(arg):
    low, high = binding_model.bounds(arg)
    return low, math.inf if high == 2**31 - 1 else high


def _arguments(call):
    """The value of the function, and the arguments in the order of C."""
    parameters = {parameter.name: parameter for parameter in call.parameters}
    told = {count.name for count in call.counts if count.lists}
    counts = {count.name: count.arg for count in call.counts}
    for result in call.results:
        if result.name == "result":
            yield _argument(result.arg, "result", name=result.clear_name)
    for arg in call.routine.args:
        if arg.name in told:
            yield _argument(arg, "count")
        elif arg.ignored:
            yield {"dir": "unread", "name": lower_camel(arg.name), "type": arg.type}
        else:
            literal = _argument(arg, arg.dir, parameters.get(arg.name))
            yield literal | ({"range": _bounds(arg)} if arg.name in counts else {})


def _row(call):
    routine = call.routine
    arrays = _literal(routine.name) if has_kernel(routine) else "null"
    reference = _literal(routine.export) if routine.export else "null"
    rows = "".join(f"  {_literal(argument)},\n" for argument in _arguments(call))
    names = [f"'{call.family}.{lower_camel(routine.name)}'", reference, arrays]
    start = f"export const {lower_camel(routine.name)} = routine("
    line = start + ", ".join(names) + ", ["
    if len(line) > WIDTH:
        line = start + "".join(f"\n  {name}," for name in names) + " ["
    return f"{line}\n{rows}]);\n"


def _functions(calls):
    selectors = "import * as selectors from '../selectors.js';\n" if any(_selectors_of(calls)) else ""
    return f"{EDIT}import {{ routine }} from '../routine.js';\n{selectors}\n" + "\n".join(map(_row, calls))


def _selectors_of(calls):
    return sorted({parameter.selector for call in calls for parameter in call.parameters if parameter.selector})


# ---- Their types ----


class _Texts:
    """Texts of the catalogue with JavaScript's names in place of exported and of readable ones."""

    def __init__(self, calls):
        names = {call.name for call in calls} | {arg.name for call in calls for arg in call.routine.args}
        self._names = {name: lower_camel(name) for name in names if "_" in name}
        self._names |= {call.routine.export: lower_camel(call.name) for call in calls if call.routine.export}

    def __call__(self, text):
        return re.sub(r"\b\w+\b", lambda found: self._names.get(found[0], found[0]), text)

    def comment(self, lines):
        text = "".join(
            textwrap.fill(self(line), WIDTH - 4, initial_indent=" * ", subsequent_indent=" *   ",
                          break_long_words=False, break_on_hyphens=False) + "\n" if line else " *\n"
            for line in lines)
        return f"/**\n{text.replace('*/', '* /')} */\n"


def _comment(call, texts):
    routine = call.routine
    lines = [routine.summary, ""]
    lines += [f"Formula: {routine.formula}", ""] if routine.formula else []
    lines += [f"- {note}" for note in call.notes] + [""] * bool(call.notes)
    lines += [f"Source: {routine.source}", ""]
    lines += [f"@param {lower_camel(parameter.name)} {parameter.sentence}" for parameter in call.parameters]
    if len(call.results) == 1:
        lines.append(f"@returns {call.results[0].sentence}")
    lines += [f"@see {routine.export} of quorvel.h\0"] if routine.export else []
    text = texts.comment(lines)
    return text.replace(f"@see {lower_camel(routine.name)} of quorvel.h\0", f"@see {routine.export} of quorvel.h")


def _parameter_type(parameter, many):
    if parameter.kind == "Text":
        return "string"
    if parameter.selector and parameter.shape:
        return f"ArrayLike<{parameter.selector}>"
    if parameter.selector:
        return f"Each<{parameter.selector}>" if many else parameter.selector
    if parameter.shape:
        return "List"
    return "Each<number>" if many else "number"


def _result_type(result, many):
    """Of several results: where numbers stand, a type parameter of the structure."""
    if result.kind == "Logical":
        return "boolean[]" if many else "boolean"
    return ARRAYS[result.kind] if many or result.shape else "number"


def _remark(text):
    """A comment of a line, or of more."""
    return textwrap.fill(f"/** {text} */", WIDTH, initial_indent="  ", subsequent_indent="   * ",
                         break_long_words=False, break_on_hyphens=False) + "\n"


def _structure(call, texts):
    kinds = list(dict.fromkeys(result.kind for result in call.results if not result.shape))
    defaults = {"Logical": "boolean"}
    generic = ", ".join(f"{kind} = {defaults.get(kind, 'number')}" for kind in kinds)
    fields = "".join(
        f"{_remark(texts(result.sentence))}  readonly {lower_camel(result.clear_name)}: "
        f"{ARRAYS[result.kind] if result.shape else result.kind};\n" for result in call.results)
    name = call.structure + (f"<{generic}>" if generic else "")
    return f"/** What {lower_camel(call.name)} returns. */\nexport interface {name} {{\n{fields}}}\n\n"


def _returned(call, many):
    if not call.structure:
        return _result_type(call.results[0], many)
    kinds = dict.fromkeys(result.kind for result in call.results if not result.shape)
    return call.structure + (f"<{', '.join(ARRAYS[kind] for kind in kinds)}>" if many and kinds else "")


def _signature(call, many):
    parameters = [f"{lower_camel(parameter.name)}: {_parameter_type(parameter, many)}" for parameter in call.parameters]
    start, end = f"export function {lower_camel(call.name)}(", f"): {_returned(call, many)};\n"
    line = start + ", ".join(parameters) + end
    return line if len(line) <= WIDTH else start + "".join(f"\n  {each}," for each in parameters) + "\n" + end


def takes_elements(call):
    """Whether lists may stand in place of numbers."""
    return has_kernel(call.routine) and any(not parameter.shape for parameter in call.parameters)


def _declaration(call, texts):
    structure = _structure(call, texts) if call.structure else ""
    arrays = _signature(call, True) if takes_elements(call) else ""
    return structure + _comment(call, texts) + _signature(call, False) + arrays


def _types(calls, texts):
    names = _selectors_of(calls)
    imported = f"import type {{ {', '.join(names)} }} from '../selectors.js';\n" if names else ""
    declared = "\n".join(_declaration(call, texts) for call in calls)
    used = [name for name in ("Each", "List") if re.search(rf"\b{name}\b", declared)]
    return f"{EDIT}import type {{ {', '.join(used)} }} from '../numbers.js';\n{imported}\n{declared}"


# ---- Selectors ----


def _selectors(found):
    text = f"{EDIT}"
    for name, arg in found.items():
        values = ", ".join(f"{lower_camel(identifier)}: {value}" for identifier, (value, _) in arg.values.items())
        text += f"\nexport const {name} = Object.freeze({{ {values} }});\n"
    return text


def _selector_types(found):
    text = f"{EDIT}import type {{ NameOrValue }} from './numbers.js';\n"
    for name, arg in found.items():
        values = "".join(
            f"  /** {what} */\n  readonly {lower_camel(identifier)}: {value};\n"
            for identifier, (value, what) in arg.values.items())
        about = arg.meaning[0].upper() + arg.meaning[1:]
        text += (f"\n/** {about}: its values by their names. */\nexport declare const {name}: {{\n{values}}};\n"
                 f"/** {about}: a name or its value. */\n"
                 f"export type {name} = NameOrValue<typeof {name}>;\n")
    return text


# ---- Examples ----


def _examples(calls):
    """Each with the arguments of its call, and results by name with their tolerances."""
    rows = []
    for call in calls:
        for example in call.routine.examples:
            given = [example.given[parameter.name] for parameter in call.parameters]
            gives = {
                lower_camel(result.clear_name): [example.gives[result.name], example.within[result.name]]
                for result in call.results if result.name in example.gives}
            rows.append([call.family, lower_camel(call.name), given, gives])
    return "[\n" + ",\n".join(json.dumps(row) for row in rows) + "\n]\n"


def _layouts(calls):
    """How the corpus of calls has the arguments of each routine, and which function it is here."""
    rows = {}
    for call in calls:
        routine = call.routine
        if not routine.export:
            continue
        layout = corpus_layout.Layout(routine)
        arguments = [
            {"name": lower_camel(arg.name), "dir": arg.dir, "type": arg.type, "shape": [
                [room, 0 if isinstance(extent, int) else lower_camel(extent)]
                for extent, room in zip(arg.shape, layout.room(arg))]}
            for arg in routine.args]
        if routine.result:
            name = lower_camel(call.results[0].clear_name)
            arguments.insert(0, {"name": name, "dir": "result", "type": routine.result.type, "shape": []})
        rows[routine.export] = {"family": call.family, "name": lower_camel(call.name), "args": arguments}
    return "{\n" + ",\n".join(f"{json.dumps(key)}: {json.dumps(row)}" for key, row in rows.items()) + "\n}\n"


def files(families):
    """The texts by their names, of the package and of its tests."""
    calls = binding_model.calls(families)
    selectors, texts = binding_model.selectors(families), _Texts(calls)
    written = {
        "quorvel/selectors.js": _selectors(selectors),
        "quorvel/selectors.d.ts": _selector_types(selectors),
        "tests/examples.json": _examples(calls),
        "tests/layouts.json": _layouts(calls),
    }
    for family in families:
        own = [call for call in calls if call.family == family.family]
        written[f"quorvel/routines/{family.family}.js"] = _functions(own)
        written[f"quorvel/routines/{family.family}.d.ts"] = _types(own, texts)
    return written
