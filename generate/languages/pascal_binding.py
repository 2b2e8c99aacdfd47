"""bindings/pascal: the units that follow from the catalogue."""

import binding_model
from binding_model import camel
from languages import pascal_by_reference, pascal_functions
from languages.pascal_model import EDIT, TYPES, array_types, comment, function_type, result_type

TYPES_UNIT = """\
{edit}

{{ What the functions of unit Quorvel take and return. }}
unit QuorvelTypes;

{{$mode objfpc}}{{$scopedenums on}}

interface

type
{types}
implementation

end.
"""


def _enumeration(name, arg):
    values = sorted((number, identifier, what) for identifier, (number, what) in arg.values.items())
    about = [arg.meaning, *(f"{camel(identifier)}: {what}" for _, identifier, what in values)]
    listed = ", ".join(f"{camel(identifier)} = {number}" for number, identifier, _ in values)
    return f"{_indented(comment(about))}\n  T{name} = ({listed});\n"


def _record(call):
    fields = "".join(f"    {camel(result.clear_name)}: {result_type(result)};\n" for result in call.results)
    return f"  {{ What {camel(call.name)} returns. }}\n  {function_type(call)} = record\n{fields}  end;\n"


def _indented(text):
    return "\n".join(f"  {line}" for line in text.split("\n"))


def _types(families, calls):
    lists = "".join(f"  T{TYPES[kind]}s = array of {TYPES[kind]};\n" for kind in ("Real", "DoubleReal", "Integer"))
    arrays = "".join(f"  {name} = {definition};\n" for name, definition in array_types(calls).items())
    selectors = [_enumeration(name, arg) for name, arg in binding_model.selectors(families).items()]
    records = [_record(call) for call in calls if call.is_offered and len(call.results) > 1]
    return TYPES_UNIT.format(edit=EDIT, types="\n".join([lists + arrays, *selectors, *records]))


def files(families):
    """The texts of the units by their files."""
    calls = binding_model.calls(families)
    return {
        "quorveltypes.pas": _types(families, calls),
        "quorvelbyreference.pas": pascal_by_reference.render(calls),
        "quorvelunchecked.pas": pascal_functions.unchecked(calls),
        "quorvelclimatechecks.pas": pascal_functions.climate_checks(calls),
        "quorvel.pas": pascal_functions.checked(calls),
    }
