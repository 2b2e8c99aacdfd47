"""routine_table.inc: every exported routine as C++ data, and a function that calls it by address; and arrays_only.inc,
the same of those without an exported name, with a call of the formula.

Included by conformance/routine_table.cpp and arrays_only.cpp, which declare the types named here.
"""

import entry_points
from catalogue import by_reference
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
    f, function = ("Address f", f"reinterpret_cast<{result} (*)({', '.join(types)})>(f)") if routine.export else (
        "Address", f"formula::{routine.name}")
    if routine.result:
        return f"[]({f}, void* const* a, void* r) {{ *static_cast<{result}*>(r) = {function}({args}); }}"
    return f"[]({f}, void* const* a, void*) {{ {function}({args}); }}"


def _routine(family, routine):
    names = [arg.name for arg in routine.args]
    result = f"Type::{routine.result.type}" if routine.result else "Type::None"
    args = "".join(f"\n     {_argument(arg, names)}," for arg in routine.args)
    name = routine.export or routine.name
    return f'{{"{name}", "{family.family}", {result},\n    {{{args}}},\n    {_call(routine)}}},\n'


def render(families):
    return "".join(_routine(family, routine) for family in by_reference(families) for routine in family.routines)


def arrays_only(families):
    pairs = [(family, routine) for family in families for routine in family.routines if not routine.export]
    topics = dict.fromkeys(f"{family.family}/{routine.topic}.h" for family, routine in pairs)
    headers = "".join(f'#include "{topic}"\n' for topic in topics)
    formulas = "".join(entry_points.definition(family, routine, routine.name) for family, routine in pairs)
    table = "".join(_routine(family, routine) for family, routine in pairs)
    return (
        f"{headers}\nnamespace quorvel::conformance {{\nnamespace {{\nnamespace formula {{\nusing namespace entry;\n{formulas}\n"
        "}  // namespace formula\n}  // namespace\n\n"
        f"const std::vector<Routine>& arrays_only() {{\n    static const std::vector<Routine> table = {{\n{table}    }};\n"
        "    return table;\n}\n\n}  // namespace quorvel::conformance\n"
    )
