"""bindings/fortran: the modules that follow from the catalogue."""

import binding_model
from languages import fortran_by_reference, fortran_checks, fortran_wrappers
from languages.fortran_model import EDIT, WIDTH
from plain_text import wrapped

SELECTORS = """\
!> The values of the selectors by name: psychrometer_sling.
{edit}
module quorvel_selectors
   use, intrinsic :: iso_fortran_env, only: i4 => int32
   implicit none
   private :: i4

{constants}end module quorvel_selectors
"""


def _selectors(families):
    constants = ""
    for arg in binding_model.selectors(families).values():
        constants += "\n".join(wrapped(f"{arg.meaning}", WIDTH, "   ! ")) + "\n"
        for identifier, (number, what) in arg.values.items():
            line = f"   integer(i4), parameter :: {arg.quantity}_{identifier} = {number}"
            constants += "\n".join(wrapped(what, WIDTH, f"{line} !! ", "   !! ")) + "\n"
        constants += "\n"
    return SELECTORS.format(edit=EDIT, constants=constants)


def files(families):
    """The texts of the modules by their files."""
    calls = binding_model.calls(families)
    return {
        "quorvel_selectors.f90": _selectors(families),
        "quorvel_by_reference.f90": fortran_by_reference.render(calls),
        "quorvel_unchecked.f90": fortran_wrappers.unchecked(calls),
        "quorvel_checks.f90": fortran_checks.render(calls),
        "quorvel.f90": fortran_wrappers.checked(calls),
    }
