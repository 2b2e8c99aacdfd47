"""C declarations of the routines: what quorvel.h, the entry points and the hosts' C++ headers say of each."""

from catalogue import C_TYPES

WIDTH = 100

# What stands around declarations
OPENING = """\
#include <stdint.h>

#if defined(QUORVEL_STATIC)
#define QUORVEL_API
#elif defined(_WIN32) && defined(QUORVEL_BUILDING)
#define QUORVEL_API /* exported by a list: a library that contains this one exports other names */
#elif defined(_WIN32)
#define QUORVEL_API __declspec(dllimport)
#else
#define QUORVEL_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif
"""
CLOSING = """
#ifdef __cplusplus
}
#endif
"""


def result_type(routine):
    return C_TYPES[routine.result.type] if routine.result else "void"


def pointer(arg):
    return f"{'const ' if arg.dir == 'in' else ''}{C_TYPES[arg.type]} *"


def with_parameters(start, routine, end):
    """`start`, the parameters and `end`, wrapped between parameters."""
    lines = [start]
    indent = " " * len(start)
    parameters = [f"{pointer(arg)}{arg.name}" for arg in routine.args]
    for parameter, following in zip(parameters, [", "] * (len(parameters) - 1) + [end]):
        if len(lines[-1] + parameter + following) > WIDTH:
            lines.append(indent)
        lines[-1] += parameter + following
    return "\n".join(line.rstrip() for line in lines)


def prototype(routine):
    return with_parameters(f"QUORVEL_API {result_type(routine)} {routine.export}(", routine, ");")


def header(routines):
    """The declarations of a few routines, without a word on them."""
    prototypes = "".join(f"\n{prototype(routine)}" for routine in routines)
    return f"#pragma once\n\n{OPENING}{prototypes}\n{CLOSING}"
