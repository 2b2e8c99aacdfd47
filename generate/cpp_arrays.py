"""The routines of the C++ interface for whole arrays."""

from array_header import columns
from cpp_types import camel, count_of, element


def structure_name(routine):
    return f"{camel(routine.name)}Arrays"


def _view(arg):
    return f"Table<{element(arg)}>" if count_of(arg) else f"std::span<{element(arg)}>"


def structure(routine):
    """Of a routine with several outputs."""
    fields = (f"    {_view(arg)} {name.removeprefix('new_')};" for name, arg in columns(routine)[1])
    return "\n".join([f"struct {structure_name(routine)} {{", *fields, "};"])


def _parameters(routine):
    given, returned = columns(routine)
    for name, arg in given:
        yield f"Table<const {element(arg)}> {name}" if count_of(arg) else f"const Input<{element(arg)}>& {name}"
    if len(returned) > 1:
        yield f"const {structure_name(routine)}& out"
    else:
        yield f"{_view(returned[0][1])} {returned[0][0]}"


def _argument(kind, name, arg, place):
    counted_by = f", {count_of(arg)}" if count_of(arg) else ""
    return f'detail::{kind}("{name}", {place}{counted_by})'


def _arguments(routine):
    given, returned = columns(routine)
    for name, arg in given:
        yield _argument("given", name, arg, name)
    for name, arg in returned:
        plain = name.removeprefix("new_")
        yield _argument("returned", plain, arg, f"out.{plain}" if len(returned) > 1 else name)


def function(routine):
    head = f"inline void {routine.name}({', '.join(_parameters(routine))}) {{"
    call = f'detail::call_arrays("{routine.name}", quorvel_{routine.name}'
    return "\n".join([head, "    " + ",\n        ".join([call, *_arguments(routine)]) + ");", "}"])
