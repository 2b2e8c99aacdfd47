"""bindings/python/quorvel: the documented functions of each family, the enumerations of the selectors, the types of
all of them, and what is known of each routine at run time."""

import textwrap
from dataclasses import replace

from languages.python_docs import TYPES, docstring, in_python, wrapped
from languages.python_model import class_name, is_documented, is_filled, is_offered, operands, seen_signature, signature

EDIT = "# Produced from the catalogue of routines (catalogue/); do not edit."


def _quoted(text):
    return text.replace("\\", "\\\\").replace('"""', '\\"\\"\\"')


def _kept(family):
    return [routine for routine in family.routines if is_documented(routine)]


def _selectors_of(routines):
    return sorted({o.of.selector for r in routines for side in operands(r) for o in side if o.of.selector})


def _parameters(routine):
    inputs, _ = operands(routine)
    options = ["*", "out=None"] + ["where=True"] * (not signature(routine))
    return ", ".join([operand.field for operand in inputs] + options)


def _fields(routine):
    for operand in operands(routine)[1]:
        yield operand.field, operand.of.meaning


def _class(routine):
    fields = list(_fields(routine))
    about = "\n".join(line for name, what in fields for line in wrapped(f"{name}: {what}", "    "))
    names = " ".join(name for name, _ in fields)
    return (f'\n\n{class_name(routine)} = namedtuple("{class_name(routine)}", "{names}")\n'
            f'{class_name(routine)}.__doc__ = """What {routine.name} returns.\n\n{about}\n"""')


def _function(family, routine):
    inputs, outputs = operands(routine)
    given = ", ".join([operand.field for operand in inputs] + ["out", "True" if signature(routine) else "where"])
    call = f"_{routine.name}({given})"
    if len(outputs) > 1:
        call = f"_new({class_name(routine)}, {call})"
    text = textwrap.indent(_quoted(docstring(routine, family.family)), "    ")
    return (f"\n\ndef {routine.name}({_parameters(routine)}):\n"
            f'    """{text.lstrip()}\n    """\n    return {call}\n')


def _core_function(routine):
    return f'filled("{routine.name}")' if is_filled(routine) else f'functions["{routine.name}"]'


def _module(family):
    routines = _kept(family)
    several = [routine for routine in routines if len(operands(routine)[1]) > 1]
    selectors = _selectors_of(routines)
    public = [*selectors, *map(class_name, several), *(routine.name for routine in routines)]
    lines = [f'"""{family.title}: the routines of the library, element by element."""', "", EDIT, ""]
    lines += ["from collections import namedtuple", ""] if several else []
    lines += ["from .._core import functions"]
    lines += ["from .._dispatch import filled"] if any(map(is_filled, routines)) else []
    lines += [f"from ..selectors import {', '.join(selectors)}"] if selectors else []
    lines += ["", "_new = tuple.__new__  # a third of the time of _make"] if several else []
    lines += ["", "__all__ = [", *(f'    "{name}",' for name in public), "]", ""]
    lines += [f'_{routine.name} = {_core_function(routine)}' for routine in routines]
    lines += ["".join(map(_class, several))]
    return "\n".join(lines) + "".join(_function(family, routine) for routine in routines)


def _scalar_type(operand):
    if operand.of.selector:
        return f"int | Literal[{', '.join(map(repr, operand.arg.values))}]"
    return {"Real": "float", "DoubleReal": "float", "Integer": "int"}[operand.kind]


def _typed(routine, arrays):
    """Parameters of a stub: numbers, or what NumPy makes into arrays."""
    inputs, outputs = operands(routine)
    parameters = [
        f"{o.field}: {'ArrayLike' if arrays else _scalar_type(o)}" for o in inputs
    ]
    room = "NDArray[Any] | None" if len(outputs) == 1 else "tuple[NDArray[Any] | None, ...] | None"
    options = ["*", f"out: {room if arrays else 'None'} = ..."]
    if not signature(routine):
        options.append(f"where: {'ArrayLike' if arrays else 'Literal[True]'} = ...")
    return ", ".join(parameters + options)


def _returned(routine):
    outputs = operands(routine)[1]
    return class_name(routine) if len(outputs) > 1 else f"NDArray[{_numpy_type(outputs[0])}]"


def _numpy_type(operand):
    return {"Logical": "bool_"}.get(operand.kind, TYPES[operand.kind])


def _stub(routine):
    outputs = operands(routine)[1]
    several, core = len(outputs) > 1, signature(routine)
    lines = []
    if several:
        fields = "".join(f"    {o.field}: Any\n" for o in outputs)
        lines.append(f"class {class_name(routine)}(NamedTuple):\n{fields}")
    if not several and not core:
        lines.append(f"@overload\ndef {routine.name}({_typed(routine, False)}) -> {_numpy_type(outputs[0])}: ...\n@overload")
    lines.append(f"def {routine.name}({_typed(routine, True)}) -> {'Any' if core and not several else _returned(routine)}: ...\n")
    return "\n".join(lines)


def _stubs(family):
    routines = _kept(family)
    selectors = _selectors_of(routines)
    again = "".join(f"from ..selectors import {name} as {name}\n" for name in selectors)
    return (f"{EDIT}\nfrom typing import Any, Literal, NamedTuple, overload\n\n"
            f"from numpy import bool_, float32, float64, int32\nfrom numpy.typing import ArrayLike, NDArray\n\n{again}\n"
            + "\n".join(map(_stub, routines)))


def _selectors(families):
    """By their quantities; where two routines differ in what they say of the values, the last one speaks."""
    found = {}
    for family in families:
        for routine in _kept(family):
            found |= {o.of.selector: o.arg for side in operands(routine) for o in side if o.of.selector}
    text = f'"""What the selectors stand for."""\n\n{EDIT}\n\nfrom enum import IntEnum\n'
    for name, arg in found.items():
        values = "".join(
            f"    {identifier} = {value}\n    \"\"\"{what}\"\"\"\n" for identifier, (value, what) in arg.values.items())
        about = arg.meaning[0].upper() + arg.meaning[1:]
        text += f'\n\nclass {name}(IntEnum):\n    """{about}."""\n\n{values}'
    return text


def _extents(operand):
    return f"(Filled({', '.join(map(repr, operand.filled))}),)" if operand.filled else repr(operand.axes)


def _argument(operand):
    arg = operand.arg
    interval = operand.of.limits if operand.of.is_limited else ()
    text = ", ".join(map(repr, (
        operand.of.clear_name, TYPES[operand.kind], arg.unit, arg.meaning, interval, operand.of.selector)))
    text += f", {_extents(operand)}"
    return f"A({text.replace('inf', 'INF')})" if "inf" in repr(interval) else f"A({text})"


def _described(family, routine):
    inputs, outputs = ("".join(f"\n         {_argument(o)}," for o in side) for side in operands(routine))
    return (f'    "{routine.name}": R(\n        "{family.family}", {routine.export!r}, {seen_signature(routine)!r},\n'
            f"        ({inputs}\n        ),\n        ({outputs}\n        ),\n    ),\n")


def _catalogue(families):
    routines = "".join(_described(family, routine) for family in families for routine in family.routines
                       if is_offered(routine))
    return (f'"""What is known of each routine at run time."""\n\n{EDIT}\n\n'
            "from collections import namedtuple\n\nINF = float(\"inf\")\n\n"
            'Filled = namedtuple("Filled", "name count more")  # an extent: so many more than that count\n'
            'A = Argument = namedtuple("Argument", "name dtype unit meaning range selector axes")\n'
            'R = Routine = namedtuple("Routine", "family exported_name signature inputs outputs")\n\n'
            f"ROUTINES = {{\n{routines}}}\n")


def files(families):
    """The texts by their names."""
    names = {routine.export: routine.name for family in families for routine in _kept(family) if routine.export}
    families = [replace(family, routines=tuple(in_python(routine, names) for routine in family.routines))
                for family in families]
    texts = {"selectors.py": _selectors(families), "catalogue.py": _catalogue(families)}
    for family in families:
        texts[f"{family.family}/routines.py"] = _module(family)
        texts[f"{family.family}/routines.pyi"] = _stubs(family)
    return texts
