"""Entry points: each reads the arguments of a call, hands their values to the core function, and stores what
that returns. A core function that does not fit the catalogue does not compile.

Routines with an `entry` in the catalogue are written by hand in src/entry/. A header for each topic declares the
entry points of both kinds, so that those that do not fit the catalogue do not compile either; nothing else includes it.
"""

from pathlib import Path

import declarations
from catalogue import by_reference

TYPES = {"Real": "Real", "DoubleReal": "DoubleReal", "Integer": "Integer"}

# What core functions take for a fixed number of values
VALUES = {
    (2,): "geometry::PlanVector<{}>",
    (3,): "geometry::SpaceVector<{}>",
    (3, 3): "geometry::Columns<{}, 3>",
    (3, 4): "geometry::Columns<{}, 4>",
}

def _parameter(arg):
    return f"{'const ' if arg.dir == 'in' else ''}{TYPES[arg.type]}*{'' if arg.ignored else ' ' + arg.name}"

def _value(arg):
    if not arg.shape:
        return f"*{arg.name}"
    return f"load<{VALUES[tuple(arg.shape)].format(TYPES[arg.type])}>({arg.name})"

def number_type(routine):
    types = [thing.type for thing in (*routine.args, routine.result) if thing]
    return "DoubleReal" if "DoubleReal" in types else "Real"

def _call(family, routine):
    given = ", ".join(_value(arg) for arg in routine.args if arg.dir != "out" and not arg.ignored)
    return f"{family.family}::{routine.core or routine.name}<{number_type(routine)}>({given})"

def _statements(family, routine):
    call = _call(family, routine)
    outputs = [arg.name for arg in routine.args if arg.dir != "in"]
    result = "logical({})" if routine.result and routine.result.logical else "{}"
    if not outputs:
        return [f"return {result.format(call)};"]
    if len(outputs) == 1 and not routine.result:
        return [f"store({call}, {outputs[0]});"]
    names = ["result"] * bool(routine.result) + [f"{name}_value" for name in outputs]
    return [
        f"const auto [{', '.join(names)}] = {call};",
        *(f"store({name}_value, {name});" for name in outputs),
        *[f"return {result.format('result')};"] * bool(routine.result),
    ]

def definition(family, routine, name):
    result = TYPES[routine.result.type] if routine.result else "void"
    parameters = ", ".join(_parameter(arg) for arg in routine.args)
    body = "".join(f"    {statement}\n" for statement in _statements(family, routine))
    return f"\n{result} {name}({parameters}) {{\n{body}}}\n"

def _text(family, routines):
    made = [routine for routine in routines if not routine.entry]
    if not made:
        return "// All entry points of this topic are written by hand.\n"
    formulas = f"{family.family}/{made[0].topic}.h"
    headers = (formulas, "entry/entry.h", f"entry/{formulas}")
    head = "".join(f'#include "{name}"\n' for name in headers)
    using = "\nusing namespace quorvel;\nusing namespace quorvel::entry;\n"
    return head + using + "".join(definition(family, routine, routine.export) for routine in made)

def files(families):
    """The texts of the files by their names: source and header of each topic."""
    texts = {}
    for family in by_reference(families):
        for topic in dict.fromkeys(routine.topic for routine in family.routines):
            routines = [routine for routine in family.routines if routine.topic == topic]
            texts[Path(family.family) / f"{topic}.cpp"] = _text(family, routines)
            texts[Path(family.family) / f"{topic}.h"] = declarations.header(routines)
    return texts
