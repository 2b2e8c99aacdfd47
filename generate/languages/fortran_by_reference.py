"""quorvel_by_reference.f90: the routines as Fortran calls what C has exported, without anything between."""

from array_header import columns
from languages.fortran_model import EDIT, WIDTH, by_arrays, folded
from plain_text import wrapped

C_KINDS = {"Real": "real(c_float)", "DoubleReal": "real(c_double)", "Integer": "integer(c_int32_t)",
           "Text": "character(kind=c_char)"}

MODULE = """\
!> The routines by reference, under the names that the library exports: what it gives, to the bit, and nothing
!> checked. Lists are as long as the counts say. An output that a call may leave as it was is `inout`. A text ends
!> with `c_null_char`. The routines of the climate data file have a state and are not pure.
{edit}
module quorvel_by_reference
   use, intrinsic :: iso_c_binding, only: c_float, c_double, c_int32_t, c_char, c_size_t, c_ptrdiff_t
   implicit none
   public

   interface
{routines}
      ! Functions of whole arrays, here of one element. What they return besides is the status, of which nothing
      ! can come; without it they are subroutines, as only these may be pure.
{of_arrays}
   end interface
end module quorvel_by_reference
"""


def _shape(arg):
    if not arg.shape:
        return " (*)" if arg.type == "Text" else ""
    return f"({', '.join(str(extent) if isinstance(extent, int) else '*' for extent in arg.shape)})"


def _declaration(arg, name, intent):
    return f"         {C_KINDS[arg.type]}, intent({intent}) :: {name}{_shape(arg).strip()}"


def _imports(args):
    kinds = dict.fromkeys(C_KINDS[arg.type].split("(")[-1].removeprefix("kind=").rstrip(")") for arg in args)
    return f"         import :: {', '.join(kinds)}"


def _intent(arg):
    return "inout" if arg.dir == "inout" or arg.left else arg.dir


def _interface(routine):
    names = ", ".join(arg.name for arg in routine.args)
    kind = "function" if routine.result else "subroutine"
    pure = not routine.state and not (routine.result and any(arg.dir != "in" for arg in routine.args))
    head = f"{'pure ' * pure}{kind} {routine.export}({names}) bind(C, name='{routine.export}')"
    lines = [*wrapped(f"{routine.name}: {routine.summary}", WIDTH, "      !> "), folded(head, 6)]
    lines.append(_imports([*routine.args, *([routine.result] if routine.result else [])]))
    lines += [_declaration(arg, arg.name, _intent(arg)) for arg in routine.args]
    if routine.result:
        lines.append(f"         {C_KINDS[routine.result.type]} :: {routine.export}")
    return "\n".join([*lines, f"      end {kind}", ""])


def _interface_of_arrays(routine):
    given, returned = columns(routine)
    named = [(name, arg, "in") for name, arg in given] + [(name, arg, "inout") for name, arg in returned]
    names = ", ".join(["count", *(f"{name}, {name}_stride" for name, _, _ in named)])
    strides = ", ".join(f"{name}_stride" for name, _, _ in named)
    name = f"array_{routine.name}"
    lines = [*wrapped(routine.summary, WIDTH, "      !> "),
             folded(f"pure subroutine {name}({names}) bind(C, name='quorvel_{routine.name}')", 6),
             _imports([arg for _, arg, _ in named]) + ", c_size_t, c_ptrdiff_t",
             "         integer(c_size_t), intent(in), value :: count",
             folded(f"integer(c_ptrdiff_t), intent(in), value :: {strides}", 9)]
    lines += [_declaration(arg, name, intent) for name, arg, intent in named]
    return "\n".join([*lines, "      end subroutine", ""])


def render(calls):
    routines = "\n".join(_interface(call.routine) for call in calls if call.routine.export)
    of_arrays = "\n".join(_interface_of_arrays(call.routine) for call in calls if call.is_offered and by_arrays(call))
    return MODULE.format(edit=EDIT, routines=routines, of_arrays=of_arrays)
