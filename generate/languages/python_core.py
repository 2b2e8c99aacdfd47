"""python_routines.inc: for each function of the Python package what the array library does not say of it.

Included by bindings/python/core/routine.cpp, which declares the types named here.
"""

import math

from languages.python_model import is_offered, operands, signature


def _number(value):
    if math.isinf(value):
        return "any" if value > 0 else "-any"
    return f"{float(value)!r}f"


def _axis(extent):
    return f"{{{extent}, nullptr}}" if isinstance(extent, int) else f'{{0, "{extent}"}}'


def _operand(operand):
    low, high = operand.of.limits
    axes = ", ".join(map(_axis, operand.axes))
    return f'{{"{operand.name}", Kind::{operand.kind}, {_number(low)}, {_number(high)}, {len(operand.axes)}, {{{axes}}}}}'


def _routine(routine):
    inputs, outputs = operands(routine)
    listed = "".join(f"\n     {_operand(operand)}," for operand in inputs + outputs)
    return f'{{"{routine.name}", "{signature(routine)}", {len(inputs)}, {len(outputs)},\n    {{{listed}}}}},\n'


def render(families):
    return "".join(_routine(routine) for family in families for routine in family.routines if is_offered(routine))
