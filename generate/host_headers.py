"""quorvel/FAMILY.h: the routines of a family for hosts in C++, by reference and by value. Includes nothing of the other families,
so that a new routine leaves alone what has no use for it."""

from pathlib import Path

from catalogue import by_reference
from declarations import result_type, with_parameters
from host_values import functions


def _routine(routine):
    start = f"inline const quorvel::host::Routine<{result_type(routine)}("
    return with_parameters(start, routine, f')> {routine.export}{{"{routine.export}"}};')


def _header(family):
    routines = "".join(f"{_routine(routine)}\n" for routine in family.routines)
    includes = ["<array>", "<cstdint>", "<span>", "<string>", "<vector>", None, '"quorvel/library.h"', '"quorvel/values.h"']
    head = "".join(f"#include {name}\n" if name else "\n" for name in includes)
    body = f"namespace lib {{\n\nnamespace host = quorvel::host;\n\n{routines}\n{functions(family)}\n\n}}  // namespace lib\n"
    return f"// {family.title}: what lib::NAME calls, by its exported or its readable name.\n#pragma once\n\n{head}\n{body}"


def files(families):
    """The texts of the headers by their names."""
    return {Path(f"{family.family}.h"): _header(family) for family in by_reference(families)}
