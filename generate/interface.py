"""interface.txt: what hosts rely on, a line for each routine and each function of the array library: how it is
called, and the order of what it takes."""

import array_header
from catalogue import by_reference


def _argument(arg):
    shape = "".join(f"[{extent}]" for extent in arg.shape)
    return f"{arg.dir} {arg.type} {arg.name}{shape}"


def line(routine):
    kind = routine.result.type if routine.result else "subroutine"
    return f"{routine.export} {kind} ({', '.join(map(_argument, routine.args))})"


def render(families):
    lines = [line(routine) for family in by_reference(families) for routine in family.routines]
    return "".join(f"{text}\n" for text in sorted(lines) + sorted(array_header.prototypes(families)))
