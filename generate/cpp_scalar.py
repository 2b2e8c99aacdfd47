"""The routines of the C++ interface for one element: values in, a value or a structure out."""

from cpp_types import bounds, camel, count_of, counts, element, field, inputs, name_of, outputs, taken_from_lists
from header import WIDTH


def given(routine):
    """What a caller passes: lists tell how long they are."""
    return [arg for arg in inputs(routine) if arg.name not in taken_from_lists(routine)]


def parameter(arg):
    if count_of(arg):
        return f"std::span<const {element(arg)}> {arg.name}"
    return f"const {element(arg)}& {arg.name}" if arg.shape else f"{element(arg)} {arg.name}"


def _declared(arg, name, indent):
    """An output before the call."""
    if count_of(arg):
        return f"{indent}{field(arg)} {name};"
    line = f"{indent}{field(arg)} {name} = detail::none<{field(arg)}>;"
    return line if len(line) <= WIDTH else line.replace(" = ", f" =\n{indent}    ")


def structure(routine, above):
    """Of a routine with several outputs; `above` gives the lines above each."""
    fields = []
    for arg in outputs(routine):
        fields += [*above(arg), _declared(arg, name_of(arg), "    ")]
    return "\n".join([f"struct {camel(routine.name)} {{", *fields, "};"])


def _count_checks(routine):
    for name, (count, lists) in counts(routine).items():
        low, high = bounds(count)
        what = f'"{routine.name}", "{name}", {{{low}, {high}}}'
        if lists:
            listed = ", ".join(f'{{"{arg.name}", {arg.name}.size()}}' for arg in lists)
            yield f"const std::int32_t {name} = detail::counted({what}, {{{listed}}});"
        else:
            yield f"detail::check_count({what}, {name});"


def _address(arg, name):
    return f"detail::numbers({name})" if arg.shape else f"&{name}"


def _passed(arg, place):
    if arg.ignored:
        return f"&detail::unread<{element(arg)}>"
    return _address(arg, arg.name if arg.dir == "in" else place(arg))


def _prepared(arg, place):
    """What an output holds before the call: what was given, or as much room as is counted."""
    if count_of(arg) and arg.dir == "inout":
        return [f"{place(arg)}.assign({arg.name}.begin(), {arg.name}.end());"]
    if count_of(arg):
        return [f"{place(arg)}.assign(static_cast<std::size_t>({count_of(arg)}), detail::none<{element(arg)}>);"]
    return [f"{place(arg)} = {arg.name};"] if arg.dir == "inout" else []


def _call_by_reference(routine, place):
    call = f"{routine.export}({', '.join(_passed(arg, place) for arg in routine.args)})"
    logical = routine.result and routine.result.logical
    return f"{call} != 0" if logical else call


def _call_of_arrays(routine, place):
    """Of one element, where there is no call by reference: nothing of it can be refused."""
    addresses = [_address(arg, arg.name) for arg in inputs(routine)]
    addresses += [_address(arg, place(arg)) for arg in outputs(routine)]
    return f"quorvel_{routine.name}({', '.join(['1', *(f'{address}, 0' for address in addresses)])})"


def _body(routine):
    results = outputs(routine)
    returned = [arg for arg in routine.args if arg.dir != "in"]
    place = (lambda arg: f"out.{name_of(arg)}") if len(results) > 1 else (lambda _: "out")
    call = _call_by_reference(routine, place) if routine.export else _call_of_arrays(routine, place)
    yield from _count_checks(routine)
    if routine.export and not returned:
        yield f"return {call};"
        return
    if len(results) > 1:
        yield f"{camel(routine.name)} out;"
    else:
        yield _declared(results[0], "out", "")
    for arg in returned:
        yield from _prepared(arg, place)
    yield f"{place(routine.result)} = {call};" if routine.export and routine.result else f"{call};"
    yield "return out;"


def function(routine):
    results = outputs(routine)
    kind = camel(routine.name) if len(results) > 1 else field(results[0])
    head = f"inline {kind} {routine.name}({', '.join(map(parameter, given(routine)))}) {{"
    return "\n".join([head, *(f"    {statement}" for statement in _body(routine)), "}"])
