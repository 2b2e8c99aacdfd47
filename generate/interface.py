"""interface.txt: what hosts rely on, a line for each routine: how it is called, and the order of what it takes."""


def _argument(arg):
    shape = "".join(f"[{extent}]" for extent in arg.shape)
    return f"{arg.dir} {arg.type} {arg.name}{shape}"


def line(routine):
    kind = routine.result.type if routine.result else "subroutine"
    return f"{routine.export} {kind} ({', '.join(map(_argument, routine.args))})"


def render(families):
    return "".join(sorted(f"{line(routine)}\n" for family in families for routine in family.routines))
