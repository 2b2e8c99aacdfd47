"""quorvel/FAMILY.h: the routines of a family for hosts in C++, by value. Includes nothing of the other families,
so that a new routine leaves alone what has no use for it."""

from pathlib import Path

from catalogue import by_reference
from declarations import result_type, with_parameters


def _routine(routine):
    start = f"inline const quorvel::host::Routine<{result_type(routine)}("
    return with_parameters(start, routine, f')> {routine.export}{{"{routine.export}"}};')


def _header(family):
    routines = "".join(f"{_routine(routine)}\n" for routine in family.routines)
    head = '#pragma once\n\n#include <cstdint>\n\n#include "quorvel/library.h"\n'
    return f"// {family.title}: what lib::NAME calls.\n{head}\nnamespace lib {{\n\n{routines}\n}}  // namespace lib\n"


def files(families):
    """The texts of the headers by their names."""
    return {Path(f"{family.family}.h"): _header(family) for family in by_reference(families)}
