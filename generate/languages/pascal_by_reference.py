"""quorvelbyreference.pas: the routines as Pascal calls what C has exported, without anything between."""

from array_header import columns
from binding_model import camel
from languages.pascal_model import EDIT, TYPES, comment, folded, pointer

UNIT = """\
{edit}

{{ The routines by reference, under the names that the libraries export: what C gives, to the bit, and nothing checked.
  Arrays are passed by the address of their first number and are as long as the counts say.

  Exceptions of floating point must be masked around a call, as MaskExceptions of QuorvelFloatingPoint does. }}
unit QuorvelByReference;

{{$mode objfpc}}

interface

const
{{$ifdef windows}}
  Library_ = 'quorvel.dll';
  ArrayLibrary = 'quorvel_arrays.dll';
{{$else}}
  Library_ = 'quorvel';
  ArrayLibrary = 'quorvel_arrays';
{{$endif}}

{routines}
{{ Functions of whole arrays, here of elements of any number: strides are in bytes. }}

{of_arrays}
implementation

end.
"""


def _parameter(arg, name, is_output):
    if arg.type == "Text":
        return f"{name}: PAnsiChar"
    if arg.shape:
        return f"{name}: {pointer(arg)}"
    return f"{'var' if is_output else 'constref'} {name}: {TYPES[arg.type]}"


def _declaration(routine):
    parameters = "; ".join(_parameter(arg, camel(arg.name), arg.dir != "in") for arg in routine.args)
    listed = f"({parameters})" if parameters else ""
    kind = f"function {routine.export}{listed}: {TYPES[routine.result.type]}" if routine.result else (
        f"procedure {routine.export}{listed}")
    return f"{comment([f'{camel(routine.name)}: {routine.summary}'])}\n{folded(f'{kind}; cdecl; external Library_;')}\n"


def _declaration_of_arrays(routine):
    given, returned = columns(routine)
    named = [(camel(name), arg, False) for name, arg in given] + [(camel(name), arg, True) for name, arg in returned]
    parameters = [f"{_parameter(arg, name, is_output)}; {name}Stride: PtrInt" for name, arg, is_output in named]
    # The value of a function cannot be called Result.
    listed = "; ".join(["Count: SizeUInt", *parameters]).replace("Result", "Answer")
    declaration = folded(f"function quorvel_{routine.name}({listed}): LongInt; cdecl; external ArrayLibrary;")
    return f"{comment([routine.summary])}\n{declaration}\n"


def render(calls):
    routines = "\n".join(_declaration(call.routine) for call in calls if call.routine.export)
    of_arrays = "\n".join(
        _declaration_of_arrays(call.routine) for call in calls if call.is_offered and not call.routine.export)
    return UNIT.format(edit=EDIT, routines=routines, of_arrays=of_arrays)
