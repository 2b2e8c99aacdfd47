"""What the array library runs for each routine: the formula over whole arrays, or, for lists and records, the
entry point element by element.

Formulas that take packs are in pack_kernels/FAMILY.cpp, which is compiled once for single numbers and once for each
level of instructions; all others in single_kernels/FAMILY.cpp. A table for each level lists what it is to be asked for.
"""

from entry_points import VALUES, number_type

LEVELS = ("v2", "v3", "v4")
NUMBERS = {"Real": "Number", "Integer": "Integers"}
KERNEL = "(std::size_t count, char* const* at, const std::ptrdiff_t* step) noexcept"


def has_kernel(routine):
    """Whether elements can be had one by one: a routine with a state cannot, nor one that takes a text."""
    return not routine.state and all(arg.type != "Text" for arg in routine.args)


def takes_packs(routine):
    return has_kernel(routine) and not routine.entry and not routine.alone and number_type(routine) == "Real"


def inputs(routine):
    """The arguments that a caller of arrays gives, in their order."""
    return [arg for arg in routine.args if arg.dir != "out" and not arg.ignored]


def outputs(routine):
    """What such a caller gets: the value of a function first."""
    return [routine.result] * bool(routine.result) + [arg for arg in routine.args if arg.dir != "in"]


def _value_type(arg):
    number = NUMBERS.get(arg.type, arg.type)
    return VALUES[tuple(arg.shape)].format(number) if arg.shape else number


def _output(arg, name):
    """An output as it is stored: also where the routine leaves it as it was."""
    if getattr(arg, "logical", False):
        return f"logical({name})"
    if getattr(arg, "dir", "") == "inout":
        return f"or_given({name}, {arg.name})"
    return f"or_none({name})" if getattr(arg, "left", "") else name


def _formula(family, routine):
    number = NUMBERS.get(number_type(routine), number_type(routine))
    types = ", ".join(_value_type(arg) for arg in inputs(routine))
    parameters = ", ".join(f"{_value_type(arg)} {arg.name}" for arg in inputs(routine))
    given = ", ".join(arg.name for arg in inputs(routine))
    call = f"{family.family}::{routine.core or routine.name}<{number}>({given})"
    results = outputs(routine)
    if len(results) == 1:
        body = [f"return outputs({_output(results[0], call)});"]
    else:
        names = [f"value_{index}" for index, _ in enumerate(results)]
        stored = ", ".join(map(_output, results, names))
        body = [f"const auto [{', '.join(names)}] = {call};", f"return outputs({stored});"]
    lines = [f"    each<{types}>(count, at, step, []({parameters}) {{", *(f"        {line}" for line in body), "    });"]
    return "\n".join(lines)


def _extent(arg, places):
    return " * ".join(str(n) if isinstance(n, int) else f"row.count({places[n]})" for n in arg.shape) or "1"


def _passed(arg, places, results):
    """An argument of the entry point, in a row of the arrays."""
    if arg.ignored:
        return f"row.unread<{arg.type}>()"
    if arg.dir == "in":
        return f"row.in<{arg.type}>({places[arg.name]})"
    if arg.dir == "out":
        return f"row.out<{arg.type}>({results[arg.name]}, {_extent(arg, places)})"
    return f"row.inout<{arg.type}>({places[arg.name]}, {results[arg.name]}, {_extent(arg, places)})"


def _rows(_, routine):
    given = inputs(routine)
    places = {arg.name: index for index, arg in enumerate(given)}
    first = len(given) + bool(routine.result)
    returned = [arg for arg in routine.args if arg.dir != "in"]
    results = {arg.name: first + index for index, arg in enumerate(returned)}
    call = f"{routine.export}({', '.join(_passed(arg, places, results) for arg in routine.args)})"
    if routine.result:
        call = f"*row.out<{routine.result.type}>({len(given)}, 1) = {call}"
    return "\n".join(
        [
            "    for (std::size_t i = 0; i < count; ++i) {",
            "        const Row row(at, step, i);",
            f"        {call};",
            "    }",
        ]
    )


def _function(family, routine):
    body = _rows(family, routine) if routine.entry else _formula(family, routine)
    return f"\nvoid {routine.name}{KERNEL} {{\n{body}\n}}\n"


def _file(family, routines):
    topics = dict.fromkeys(routine.topic for routine in routines if not routine.entry)
    headers = ["arrays/each.h", *(f"{family.family}/{topic}.h" for topic in topics)]
    if by_hand := dict.fromkeys(routine.topic for routine in routines if routine.entry):
        headers += ["arrays/row.h", *(f"entry/{family.family}/{topic}.h" for topic in by_hand)]
    head = "".join(f'#include "{name}"\n' for name in headers)
    declared = "".join(f"void {routine.name}{KERNEL};\n" for routine in routines)
    defined = "".join(_function(family, routine) for routine in routines)
    return f"{head}\nnamespace quorvel::arrays::kernels {{\n\n{declared}{defined}\n}}  // namespace quorvel::arrays::kernels\n"


def _table(routines, kept):
    declared = "".join(f"void {routine.name}{KERNEL};\n" for routine in routines if kept(routine))
    listed = "".join(f"    {f'kernels::{routine.name}' if kept(routine) else 'nullptr'},\n" for routine in routines)
    return (
        '#include "arrays/kernel.h"\n\nnamespace quorvel::arrays {\n'
        f"namespace kernels {{\n{declared}}}  // namespace kernels\n\n"
        f"extern const Kernel table[];\nconst Kernel table[] = {{\n{listed}}};\n\n}}  // namespace quorvel::arrays\n"
    )


def with_packs(families):
    """The files of a level of instructions by their names."""
    texts = {}
    for family in families:
        routines = [routine for routine in family.routines if takes_packs(routine)]
        texts[f"{family.family}.cpp"] = _file(family, routines)
    routines = [routine for family in families for routine in family.routines]
    for level in LEVELS:
        texts[f"table_{level}.cpp"] = _table(routines, lambda routine: takes_packs(routine) and level >= routine.packs_from)
    return texts


def alone(families):
    """The files that are compiled for single numbers only."""
    texts = {}
    for family in families:
        routines = [routine for routine in family.routines if has_kernel(routine) and not takes_packs(routine)]
        texts[f"{family.family}.cpp"] = _file(family, routines)
    texts["table.cpp"] = _table([routine for family in families for routine in family.routines], has_kernel)
    return texts
