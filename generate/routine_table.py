"""routine_table.inc: every routine as C++ data, and a function that calls it by address.

Included by conformance/routine_table.cpp, which declares the types named here.
"""

from declarations import pointer, result_type


def _extent(extent, names):
    return f"{{{extent}, -1}}" if isinstance(extent, int) else f"{{0, {names.index(extent)}}}"


def _argument(arg, names):
    low, high = arg.draw or (0, 0)
    shape = ", ".join(_extent(extent, names) for extent in arg.shape)
    return (
        f'{{"{arg.name}", Type::{arg.type}, Direction::{arg.dir.capitalize()}, '
        f"{float(low)!r}, {float(high)!r}, {{{shape}}}}}"
    )


def _call(routine):
    types = [pointer(arg) for arg in routine.args]
    args = ", ".join(f"static_cast<{kind}>(a[{index}])" for index, kind in enumerate(types))
    result = result_type(routine)
    call = f"reinterpret_cast<{result} (*)({', '.join(types)})>(f)({args})"
    if routine.result:
        return f"[](Address f, void* const* a, void* r) {{ *static_cast<{result}*>(r) = {call}; }}"
    return f"[](Address f, void* const* a, void*) {{ {call}; }}"


def _routine(family, routine):
    names = [arg.name for arg in routine.args]
    result = f"Type::{routine.result.type}" if routine.result else "Type::None"
    args = "".join(f"\n     {_argument(arg, names)}," for arg in routine.args)
    return f'{{"{routine.export}", "{family.family}", {result},\n    {{{args}}},\n    {_call(routine)}}},\n'


def render(families):
    return "".join(_routine(family, routine) for family in families for routine in family.routines)
