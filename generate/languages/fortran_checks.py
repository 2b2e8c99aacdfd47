"""quorvel_checks.f90: for each routine a subroutine that tells what is wrong with its arguments."""

import math

from languages.fortran_model import (EDIT, KIND_PARAMETERS, KINDS, declared, extents, folded, is_elemental, length,
                                     literal, procedure_name)

MODULE = """\
!> Whether the routines take what is given: each of these subroutines has the arguments of the routine that it is
!> called after, those that are mere results left out, and finds the first fault in them, if any.
{edit}
module quorvel_checks
   {kinds}
   use, intrinsic :: ieee_arithmetic, only: ieee_is_nan
   use quorvel_faults
   implicit none
   private
   public :: &
      {names}

contains
{checks}end module quorvel_checks
"""


def _is_valid(parameter, name):
    """A condition; empty where anything goes."""
    low, high = parameter.limits
    above = "" if math.isinf(low) else f"{name} >= {literal(parameter.kind, low)}"
    below = "" if math.isinf(high) else f"{name} <= {literal(parameter.kind, high)}"
    if above or below:
        return " .and. ".join(filter(None, [above, below]))
    return "" if parameter.kind == "Integer" else f".not. ieee_is_nan({name})"


class Check:
    def __init__(self, call):
        self.call = call
        self.name = procedure_name(call)
        self.parameters = [parameter for parameter in call.parameters if parameter.kind != "Text"]

    def _fault(self, parameter, procedure, *more):
        texts = ", ".join(f"'{text}'" for text in (self.name, parameter.name))
        return f"call {procedure}(fault, {', '.join([texts, *more])})"

    def _extents(self):
        """Of arrays: what the routine says, or what the first of some lists has."""
        for parameter in self.parameters:
            for place, extent in enumerate(parameter.shape, 1):
                if isinstance(extent, int):
                    yield self._fault(parameter, "expect_extent", f"size({parameter.name}, {place})", str(extent))
        for count in self.call.counts:
            for parameter in count.lists[1:]:
                first = count.lists[0]
                yield self._fault(parameter, "expect_as_many", length(parameter), f"'{first.name}'", length(first))
            if count.lists:
                first = count.lists[0]
                yield self._fault(first, "expect_count", length(first), str(count.low), str(count.high))

    def _values(self):
        for parameter in self.parameters:
            condition = _is_valid(parameter, parameter.name)
            if not condition:
                continue
            valid = f"'{parameter.valid()}'"
            if not parameter.shape:
                yield f"if (.not. ({condition})) " + self._fault(parameter, "refuse", valid, parameter.name)
                continue
            rows = parameter.shape[0] if len(parameter.shape) > 1 else 0
            values = f"[real({parameter.name}, dp)]"
            yield self._fault(parameter, "expect_all", valid, f"[{condition}]", values, str(rows))

    def text(self):
        kind = "elemental" if is_elemental(self.call) else "pure"
        names = ", ".join([*(parameter.name for parameter in self.parameters), "fault"])
        lines = [folded(f"{kind} subroutine check_{self.name}({names})", 3)]
        lines += declared((KINDS[parameter.kind], ("intent(in)",), parameter.name + extents(parameter.shape, True))
                          for parameter in self.parameters)
        lines += ["      type(quorvel_fault), intent(out) :: fault"]
        lines += [folded(statement, 6) for statement in (*self._extents(), *self._values())]
        return "\n".join([*lines, "   end subroutine", "\n"])


def render(calls):
    checks = [Check(call) for call in calls if not call.is_by_hand]
    names = ", &\n      ".join(sorted(f"check_{check.name}" for check in checks))
    texts = "".join(check.text() for check in checks)
    return MODULE.format(edit=EDIT, kinds=KIND_PARAMETERS, names=names, checks=texts)
