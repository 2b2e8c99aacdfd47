"""bindings/vba/quorvel.bas: a module for Excel and other hosts of VBA: declarations by reference, enumerations, and
functions that take and return what stands in cells. What is written by hand is in bindings/vba/by_hand.bas."""

import math
import re
from pathlib import Path

from array_header import columns
from binding_model import calls, camel, lower_camel, selectors
from languages import clipping_statuses
from plain_text import in_clear_names, plain, wrapped

WIDTH = 120
CONTINUATIONS = 24  # as many as VBA takes
HAND = Path(__file__).parents[2] / "bindings/vba/by_hand.bas"
MARK = "\n' ---- Procedures\n"
TYPES = {"Real": "Single", "DoubleReal": "Double", "Integer": "Long", "Text": "Byte"}
LIMITS = {"Real": "largest", "DoubleReal": "1E+300", "Integer": "2147483647"}
LOCALS = {"fault", "held", "spread", "rowcount", "columncount", "rowat", "columnat"}  # of each function

HEAD = """\
Attribute VB_Name = "quorvel"
' Quorvel: building-physics and building-services calculations, for cells and for VBA.
'
' Produced from the catalogue of routines (catalogue/) and bindings/vba/by_hand.bas; do not edit.
'
' Each function takes values, ranges or arrays, and returns a value, a row of values, or a table, which spill. Where an
' argument is one number, a range gives a result for each of its cells. In place of an error that stops: #VALUE! for what
' is no number or not as many as needed, #N/A for what is outside of its valid range or was not written, #NUM! where the
' result is not a number. Angles are in radians unless the comment says degrees.
Option Explicit

"""


def _folded(line):
    """A statement in lines, broken between arguments."""
    if len(line) <= WIDTH:
        return [line]
    indent = line[:len(line) - len(line.lstrip())]
    lines, current = [], indent
    for part in re.split(r'(?<=, )|(?<=" \()|(?<= )(?=Lib ")', line.lstrip()):
        if len(current + part) > WIDTH - 2 and current.strip():
            lines.append(f"{current.rstrip()} _")
            current = indent + "    "
        current += part
    assert len(lines) <= CONTINUATIONS, line
    return [*lines, current]


def function_name(call):
    """Of all families together, as cells know no modules."""
    return camel(call.family) + camel(call.name)


# ---- Declarations ----------------------------------------------------------------------------------------------

def _declared(name, library, parameters, result):
    kind = f"Function {name}" if result else f"Sub {name}"
    text = f'Private Declare PtrSafe {kind} Lib "{library}.dll" ({", ".join(parameters)})'
    return _folded(text + (f" As {result}" if result else ""))


def _declarations(call):
    if call.routine.export:
        parameters = [f"ByRef {lower_camel(passed.arg.name)} As {TYPES[passed.arg.type]}" for passed in call.passed]
        result = TYPES[call.routine.result.type] if call.routine.result else ""
        return _declared(call.routine.export, "quorvel", parameters, result)
    given, results = columns(call.routine)
    parameters = ["ByVal count As LongPtr"] + [
        f"ByRef {lower_camel(name)} As {TYPES[arg.type]}, ByVal {lower_camel(name)}Stride As LongPtr"
        for name, arg in (*given, *results)]
    return _declared(f"quorvel_{call.name}", "quorvel_arrays", parameters, "Long")


def _enumerations(families):
    for name, arg in selectors(families).items():
        values = [f"    {name}{camel(identifier)} = {value}" for identifier, (value, _) in arg.values.items()]
        yield from ["", f"Enum {name}", *values, "End Enum"]


# ---- Functions ---------------------------------------------------------------------------------------------------

def _given(parameter):
    return f"{lower_camel(parameter.name)}Given"


def _result(result):
    """The variable of a result; what is given too is changed where it is."""
    name = "value" if result.name == "result" else lower_camel(result.name)
    return f"{name}Given" if result.given else f"{name}Result"


def _literal(value, kind):
    if math.isinf(value):
        return ("-" if value < 0 else "") + LIMITS[kind]
    return str(int(value)) if value == int(value) and abs(value) < 2**31 else repr(float(value)).upper()


def _limits(parameter):
    return ", ".join(_literal(limit, parameter.kind) for limit in parameter.limits)


def _columns(thing):
    """Numbers in a row of a list or array: all that is not its slowest extent."""
    return math.prod(extent for extent in thing.shape[:-1])


def _taken(parameter):
    """The expression that reads a value."""
    name = lower_camel(parameter.name)
    if parameter.selector:
        names = " ".join(parameter.arg.values)
        return f'SelectorOf({name}, {_literal(parameter.limits[0], "Integer")}, "{names}", fault)'
    return f"{TYPES[parameter.kind]}Of({name}, {_limits(parameter)}, fault)"


def _list(parameter):
    return (f"{TYPES[parameter.kind]}sOf({lower_camel(parameter.name)}, {_columns(parameter)}, {_limits(parameter)}, "
            f"{_given(parameter)}, fault)")


def _variables(call):
    """Declarations of what is given."""
    yield "Dim fault As Long"
    for parameter in call.parameters:
        if parameter.kind == "Text":
            yield f"Dim {_given(parameter)} As Variant, {_given(parameter)}Bytes() As Byte"
        else:
            yield f"Dim {_given(parameter)}{'()' if parameter.shape else ''} As {TYPES[parameter.kind]}"


def _reading(call):
    counted = {}
    for parameter in call.parameters:
        if parameter.kind == "Text":
            yield f"{_given(parameter)} = BytesOf({lower_camel(parameter.name)}, fault)"
        elif not parameter.shape:
            yield f"{_given(parameter)} = {_taken(parameter)}"
        elif isinstance(parameter.shape[-1], int):
            yield f"Equal {_list(parameter)}, {parameter.shape[-1]}, fault"
        elif parameter.shape[-1] in counted:
            yield f"Equal {_list(parameter)}, {lower_camel(parameter.shape[-1])}, fault"
        else:
            counted[parameter.shape[-1]] = True
            yield f"Dim {lower_camel(parameter.shape[-1])} As Long"
            yield f"{lower_camel(parameter.shape[-1])} = {_list(parameter)}"
    for count in call.counts:
        if count.lists and (count.low, count.high) != (0, 2**31 - 1):
            yield f"Limit {lower_camel(count.name)}, {count.low}, {count.high}, fault"


def _room(result):
    """The number of numbers of an array, less 1."""
    factors = [str(extent) if isinstance(extent, int) else f"{lower_camel(extent)}Given" for extent in result.shape]
    return f"{' * '.join(factors)} - 1" if any(not factor.isdigit() for factor in factors) else str(math.prod(map(int, factors)) - 1)


def _before(result):
    """The variable of a mere result, and what it holds before the call."""
    kind, name = TYPES[result.arg.type], _result(result)
    if result.given:
        return
    if result.shape:
        yield f"Dim {name}() As {kind}"
        yield f"ReDim {name}(0 To {_room(result)})"
        if result.unwritten and kind == "Single":
            yield f"BlankSingles {name}"
    else:
        yield f"Dim {name} As {kind}"
        if kind != "Long" and result.name != "result":
            yield f"{name} = unwritten"


def _address(passed):
    if passed.role == "unread":
        return f"unread{TYPES[passed.arg.type]}"
    if passed.role == "count":
        return lower_camel(passed.arg.name)
    name = _result(passed.result) if passed.role == "result" else _given(passed.parameter)
    if passed.arg.type == "Text":
        return f"{name}Bytes(0)"
    return f"{name}(0)" if passed.arg.shape else name


def _call(call):
    for kind in dict.fromkeys(TYPES[passed.arg.type] for passed in call.passed if passed.role == "unread"):
        yield f"Dim unread{kind} As {kind}"
    for parameter in call.parameters:
        if parameter.kind == "Text":
            yield f"{_given(parameter)}Bytes = {_given(parameter)}"
    if not call.routine.export:
        things = [(_given(p), p) for p in call.parameters] + [(_result(r), r) for r in call.results]
        places = ", ".join(f"{name}{'(0)' if thing.shape else ''}, 0" for name, thing in things)
        yield f"quorvel_{call.name} 1, {places}"
        return
    places = ", ".join(map(_address, call.passed))
    if call.routine.result:
        yield f"{_result(call.results[0])} = {call.routine.export}({places})"
    else:
        yield f"{call.routine.export} {places}"


def _cell(result):
    name = _result(result)
    if result.shape:
        return f"TableOf({name}, {_columns(result)})"
    return f"({name} <> 0)" if result.kind == "Logical" else f"CellOf({name})"


def _returned(call):
    cells = [_cell(result) for result in call.results]
    if len(cells) == 1:
        return cells[0]
    listed = f"Array({', '.join(cells)})"
    return f"Beside({listed})" if any(result.shape for result in call.results) else listed


def _comment(call, names):
    """What the function does, in ASCII."""
    def told(text, first, rest):
        return wrapped(in_clear_names(text, names), WIDTH, first, rest)

    yield from told(call.routine.summary, "' ", "' ")
    for parameter in call.parameters:
        yield from told(f"{lower_camel(parameter.name)}: {parameter.sentence}", "'   ", "'     ")
    several = len(call.results) > 1
    for result in call.results:
        lead = f"{lower_camel(result.clear_name)}: " if several else ""
        yield from told(f"-> {lead}{result.sentence}".replace("not a number ", "#N/A "), "'   ", "'     ")
    for remark in call.remarks:
        yield from told(remark, "'   ", "'   ")


def _spread(call):
    """The call of itself for each cell of ranges; several results are a row for each."""
    name = function_name(call)
    names = [lower_camel(parameter.name) for parameter in call.parameters]
    each = ", ".join(f"CellAt(held({k}), rowAt, columnAt)" for k in range(len(names)))
    several = len(call.results) > 1
    yield "Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long"
    yield f"held = Array({', '.join(f'HeldBy({each})' for each in names)})"
    yield "If Spans(held, rowCount, columnCount) Then"
    yield f"    ReDim spread(1 To rowCount{' * columnCount' if several else ''}, 1 To {len(call.results) if several else 'columnCount'})"
    yield "    For rowAt = 1 To rowCount"
    yield "        For columnAt = 1 To columnCount"
    if several:
        yield f"            PutRow spread, (rowAt - 1) * columnCount + columnAt, {name}({each})"
    else:
        yield f"            spread(rowAt, columnAt) = {name}({each})"
    yield from ["        Next columnAt", "    Next rowAt", f"    {name} = spread", "    Exit Function", "End If"]


def _function(call, names):
    name = function_name(call)
    parameters = ", ".join(f"ByVal {lower_camel(parameter.name)} As Variant" for parameter in call.parameters)
    body = list(_spread(call)) if call.elementwise else []
    body += [*_variables(call), *_reading(call)]
    body += ["If fault <> 0 Then", f"    {name} = CVErr(fault)", "    Exit Function", "End If"]
    body += [line for result in call.results for line in _before(result)]
    body += [*_call(call), f"{name} = {_returned(call)}"]
    yield from _comment(call, names)
    yield from _folded(f"Public Function {name}({parameters}) As Variant")
    for line in body:
        yield from _folded(f"    {line}")
    yield "End Function"


def _require_apart(found, procedures):
    """A parameter hides a procedure or variable of its name, which its function may need."""
    procedure_names = LOCALS | {name.lower() for name in re.findall(r"^\w+ (?:Function|Sub) (\w+)", procedures, re.MULTILINE)}
    for call in found:
        hidden = procedure_names & {lower_camel(parameter.name).lower() for parameter in call.parameters}
        assert not hidden, f"{call.name}: {hidden} is in by_hand.bas"


def render(families):
    found = calls(families)
    names = {call.routine.export: function_name(call) for call in found if call.routine.export}
    declarations, procedures = HAND.read_text(encoding="ascii").split(MARK)
    _require_apart(found, procedures)
    lines = [*(line for call in found for line in _declarations(call)), *_enumerations(families), ""]
    lines += [declarations, procedures, clipping_statuses.vba(families)]
    for call in found:
        if not call.is_by_hand:
            lines += [*_function(call, names), ""]
    loader = 'Private Declare PtrSafe Function LoadLibraryW Lib "kernel32" (ByVal path As LongPtr) As LongPtr\n'
    return plain(HEAD + loader + "\n".join(lines).rstrip("\n") + "\n").replace("\n", "\r\n")  # else Excel imports no module
