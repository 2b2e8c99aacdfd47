"""Entry points: reads the arguments of a call, hands their values to the core function of the same clear
name, and stores what it returns. A core function that does not fit the catalogue does not compile.

Routines with an `entry` in the catalogue are written by hand in src/entry/.
"""

from catalogue import C_TYPES

TYPES = {"Real": "Real", "DoubleReal": "DoubleReal", "Integer": "Integer", "Text": "char"}

# What the core functions take for arrays of a fixed shape
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
    return f"load<{(arg.value or VALUES[arg.shape]).format(TYPES[arg.type])}>({arg.name})"


def _number_type(routine):
    types = [arg.type for arg in routine.args] + ([routine.result.type] if routine.result else [])
    return "DoubleReal" if "DoubleReal" in types else "Real"


def _call(family, routine):
    given = ", ".join(_value(arg) for arg in routine.args if arg.dir != "out" and not arg.ignored)
    return f"{family.family}::{routine.core or routine.name}<{_number_type(routine)}>({given})"


def _body(family, routine):
    call = _call(family, routine)
    outputs = [arg.name for arg in routine.args if arg.dir != "in"]
    stores = [f"    store({name}_value, {name});\n" for name in outputs]
    wrap = "logical({})" if routine.result and routine.result.logical else "{}"
    if not outputs:
        return f"    return {wrap.format(call)};\n"
    if len(outputs) == 1 and not routine.result:
        return f"    store({call}, {outputs[0]});\n"
    names = ", ".join((["result"] if routine.result else []) + [f"{name}_value" for name in outputs])
    end = [f"    return {wrap.format('result')};\n"] if routine.result else []
    return "".join([f"    const auto [{names}] = {call};\n", *stores, *end])


def _definition(family, routine):
    result = TYPES[routine.result.type] if routine.result else "void"
    parameters = ", ".join(_parameter(arg) for arg in routine.args)
    return f"\n{result} {routine.export}({parameters}) {{\n{_body(family, routine)}}}\n"


def render(family, topic):
    """The entry points of one topic."""
    made = [routine for routine in topic.routines if not routine.entry]
    head = f'#include "{family.family}/{topic.stem}.h"\n\n#include "entry/entry.h"\n\nusing namespace quorvel;\nusing namespace quorvel::entry;\n'
    return head + "".join(_definition(family, routine) for routine in made)
