"""The routines for hosts in C++ by value: doubles in, doubles or a structure of them out. Numbers are rounded to the
library's single precision here and nowhere else. In lib::, beside the routines by reference."""

from math import prod

from binding_model import call

TYPES = {"Real": "double", "DoubleReal": "double", "Integer": "std::int32_t", "Logical": "bool"}
STORED = {"Real": "float", "DoubleReal": "double", "Integer": "std::int32_t", "Logical": "std::int32_t"}


def _is_fixed(shape):
    return all(isinstance(extent, int) for extent in shape)


def _parameter(parameter):
    if parameter.kind == "Text":
        return f"const std::string& {parameter.name}"
    if parameter.shape:
        return f"std::span<const {TYPES[parameter.kind]}> {parameter.name}"
    return f"{TYPES[parameter.kind]} {parameter.name}"


def _returned(result):
    kind = TYPES[result.kind]
    if not result.shape:
        return kind
    return f"std::array<{kind}, {prod(result.shape)}>" if _is_fixed(result.shape) else f"std::vector<{kind}>"


def _field(result):
    start = "" if result.shape and not _is_fixed(result.shape) else "{}"
    return f"    {_returned(result)} {result.name}{start};  // {result.sentence}"


def _size(shape):
    counted = " * ".join(f"host::size({extent})" if isinstance(extent, str) else str(extent) for extent in shape)
    return counted


def _counts(call):
    for count in call.counts:
        if count.lists:
            sizes = ", ".join(f"{listed.name}.size()" for listed in count.lists)
            yield (f'const std::int32_t {count.name} = host::count("{call.name}", "{count.name}", {count.low}, '
                   f"{count.high}, {{{sizes}}});")


def _fixed_lists(call):
    for parameter in call.parameters:
        if parameter.shape and _is_fixed(parameter.shape):
            size = prod(parameter.shape)
            yield f'host::count("{call.name}", "{parameter.name}", {size}, {size}, {{{parameter.name}.size()}});'


def _stored(result):
    """What the routine writes into, as it is before the call."""
    kind = STORED[result.kind]
    if not result.shape:
        before = f"static_cast<{kind}>({result.given})" if result.given else f"host::unwritten<{kind}>"
        return f"{kind} stored_{result.name} = {before};"
    if result.given:
        return f"auto stored_{result.name} = host::stored<{kind}>({result.given});"
    return f"std::vector<{kind}> stored_{result.name}({_size(result.shape)}, host::unwritten<{kind}>);"


def _passed(passed):
    arg = passed.arg
    if passed.role == "unread":
        return f"{STORED[arg.type]}{{}}"
    if passed.role == "count":
        return arg.name
    if passed.role == "result":
        return f"stored_{arg.name}.data()" if arg.shape else f"stored_{arg.name}"
    if arg.shape:
        return f"host::stored<{STORED[arg.type]}>({arg.name}).data()"
    return f"static_cast<float>({arg.name})" if arg.type == "Real" else arg.name


def _told(result):
    if result.kind == "Logical":
        return f"stored_{result.name} != 0"
    if not result.shape:
        return f"stored_{result.name}"
    return f"host::told<{_returned(result)}>(stored_{result.name})"


def _body(call):
    yield from _counts(call)
    yield from _fixed_lists(call)
    value = next((result for result in call.results if result.name == "result"), None)
    for result in call.results:
        if result is not value:
            yield _stored(result)
    assigned = f"const {STORED[value.kind]} stored_result = " if value else ""
    yield f"{assigned}{call.routine.export}({', '.join(map(_passed, call.passed))});"
    told = ", ".join(map(_told, call.results))
    yield f"return {{{told}}};" if call.structure else f"return {told};"


def _function(call):
    kind = call.structure or _returned(call.results[0])
    lines = [f"inline {kind} {call.name}({', '.join(map(_parameter, call.parameters))}) {{"]
    lines += [f"    {statement}" for statement in _body(call)]
    structure = [f"struct {call.structure} {{", *map(_field, call.results), "};"] if call.structure else []
    about = [f"// {call.routine.summary}", *(f"// {p.name}: {p.sentence}" for p in call.parameters)]
    return "\n".join([*structure, *about, *lines, "}"])


def functions(family):
    return "\n\n".join(_function(call(family, routine)) for routine in family.routines)
