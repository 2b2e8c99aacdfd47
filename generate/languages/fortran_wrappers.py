"""quorvel_unchecked.f90 and quorvel.f90: the routines under their readable names, as functions of one result, or as
subroutines whose results are optional."""

from array_header import columns
from languages.fortran_model import (EDIT, KIND_PARAMETERS, KINDS, WIDTH, by_arrays, declared, documented, extents,
                                     folded, is_elemental, is_function, length, literal, own, procedure_name,
                                     result_extents)
from plain_text import in_clear_names, wrapped

UNCHECKED = """\
!> The routines without any check: the same names and arguments as in module quorvel, and for whatever is given the
!> bits that C gets. Of lists of unequal lengths the shortest counts; arrays of a fixed shape must have it. What a
!> routine leaves as it was is not a number (an integer: 0).
{edit}
module quorvel_unchecked
   {kinds}
   use, intrinsic :: iso_c_binding, only: c_size_t, c_ptrdiff_t
   use quorvel_by_reference
   implicit none
   private
   public :: &
      {names}

   real(sp), parameter :: no_real = transfer(int(z'7fc00000', i4), 0.0_sp)
   real(dp), parameter :: no_double_real = transfer([0_i4, int(z'7ff80000', i4)], 0.0_dp)

contains
{procedures}
   !> How many elements there are in the shortest of some lists.
   pure function shortest(lengths) result(count)
      integer, intent(in) :: lengths(:)
      integer(i4) :: count
      count = int(minval(lengths), i4)
   end function

   !> What a result has room for, not a number beyond what there is.
   pure subroutine store(result, values)
      real(sp), intent(out) :: result(:)
      real(sp), intent(in) :: values(:)
      integer :: count
      count = min(size(result), size(values))
      result = no_real
      result(:count) = values(:count)
   end subroutine
end module quorvel_unchecked
"""

CHECKED = """\
!> Quorvel: building-physics and building-services calculations, for numbers and for whole arrays.
!>
!> A function has one result; of several, a subroutine has the optional arguments: pass those that you want, by their
!> keywords. All are pure, and elemental wherever no argument is a list or a vector.
!>
!> What is given must lie in the ranges that are told with each argument, and be a number; where it does not, the
!> program ends with an error that says so. To find out before, `call check_...` with the same arguments and a
!> quorvel_fault. quorvel_unchecked has the same procedures without any check.
!>
!> Angles are in radians; azimuths run from north, clockwise seen from above (east pi/2, south pi); tilt and solar
!> altitude are measured from the horizontal. Arrays of several dimensions are as Fortran has them: a polygon is (3, n).
{edit}
module quorvel
   {kinds}
   use quorvel_faults, only: quorvel_fault, expect_extent, expect_count
   use quorvel_selectors
   use quorvel_checks
   use quorvel_polygons
   use quorvel_climate_file
   implicit none
   private :: sp, dp, i4, expect_extent, expect_count

   !> Stands for a quantity that does not exist, where the documentation of a result says so.
   real(sp), parameter :: quorvel_none = 1.0e20_sp

contains
{procedures}
end module quorvel
"""

NOTHING = {"Real": "no_real", "DoubleReal": "no_double_real", "Integer": "0_i4"}


class Wrapper:
    """What the procedures of both modules have in common."""

    def __init__(self, call):
        self.call = call
        self.name = procedure_name(call)
        self.is_function = is_function(call)
        self.outputs = () if self.is_function else tuple(result for result in call.results if not result.given)

    @property
    def head(self):
        names = [parameter.name for parameter in self.call.parameters] + [result.clear_name for result in self.outputs]
        kind = "elemental" if is_elemental(self.call) else "pure"
        if self.is_function:
            return folded(f"{kind} function {self.name}({', '.join(names)}) result(answer)", 3)
        return folded(f"{kind} subroutine {self.name}({', '.join(names)})", 3)

    @property
    def foot(self):
        return f"   end {'function' if self.is_function else 'subroutine'}"

    def is_changed(self, parameter):
        return not self.is_function and any(result.given == parameter.name for result in self.call.results)

    def variables(self, assumed):
        """The arguments and the value, each with what it is: kind, attributes, name."""
        for parameter in self.call.parameters:
            intent = "intent(inout)" if self.is_changed(parameter) else "intent(in)"
            yield parameter, (KINDS[parameter.kind], (intent,), parameter.name + extents(parameter.shape, assumed))
        for result in self.outputs:
            name = result.clear_name + extents(result.shape, assumed)
            yield result, (KINDS[result.kind], ("intent(out)", "optional"), name)
        if self.is_function:
            result = self.call.results[0]
            yield result, (KINDS[result.kind], (), "answer" + result_extents(self.call, result))


class Unchecked(Wrapper):
    def _place(self, result):
        """The variable that the routine writes."""
        if self.is_function and not (by_arrays(self.call) and result.kind == "Logical"):
            return "answer"
        return result.given if result.given and not by_arrays(self.call) else own(result)

    def _variables(self):
        for count in self.call.counts:
            if count.lists:
                yield KINDS["Integer"], (), count.name
        for result in self.call.results:
            if self._place(result) == own(result):
                yield KINDS[result.arg.type], (), own(result) + result_extents(self.call, result)

    def _prepared(self):
        for count in self.call.counts:
            if count.lists:
                yield f"{count.name} = shortest([{', '.join(map(length, count.lists))}])"
        for result in self.call.results:
            if result.given and self.is_function:
                yield f"answer = {result.given}"
            elif result.unwritten and not result.given:
                yield f"{self._place(result)} = {NOTHING[result.arg.type]}"

    def _argument(self, passed):
        if passed.role == "result":
            return self._place(passed.result)
        return literal(passed.arg.type, 0) if passed.role == "unread" else passed.arg.name

    def _call_by_reference(self):
        routine = self.call.routine
        invoked = f"{routine.export}({', '.join(map(self._argument, self.call.passed))})"
        if not routine.result:
            return f"call {invoked}"
        logical = self.call.results[0].kind == "Logical"
        return f"answer = {invoked}" + " /= 0" * logical

    def _call_of_arrays(self):
        given, _ = columns(self.call.routine)
        addresses = [*(name for name, _ in given), *map(self._place, self.call.results)]
        strided = ", ".join(f"{address}, 0_c_ptrdiff_t" for address in addresses)
        return f"call array_{self.call.name}(1_c_size_t, {strided})"

    def _stored(self):
        """The results, where they are wanted."""
        for result in self.call.results:
            if self._place(result) != own(result):
                continue
            value = own(result) + " /= 0" * (result.kind == "Logical")
            if self.is_function or result.given:
                yield f"{'answer' if self.is_function else result.given} = {value}"
            elif any(not isinstance(extent, int) for extent in result.shape):
                yield f"if (present({result.clear_name})) call store({result.clear_name}, {value})"
            else:
                yield f"if (present({result.clear_name})) {result.clear_name} = {value}"

    def text(self):
        call = self._call_of_arrays() if by_arrays(self.call) else self._call_by_reference()
        statements = [*self._prepared(), call, *self._stored()]
        lines = [self.head, *declared([*(variable for _, variable in self.variables(False)), *self._variables()])]
        return "\n".join([*lines, *(folded(statement, 6) for statement in statements), self.foot, ""])


class Checked(Wrapper):
    def __init__(self, call, names):
        super().__init__(call)
        self.names = names

    def _about(self):
        routine = self.call.routine
        yield from self._paragraph(routine.summary)
        for text in self.call.remarks:
            yield "   !>"
            yield from self._paragraph(text)
        if routine.export:
            yield f"   !> ({routine.export} of quorvel_by_reference)"

    def _paragraph(self, text):
        return wrapped(in_clear_names(text, self.names), WIDTH, "   !> ")

    def _extents_of_outputs(self):
        for result in self.outputs:
            for place, extent in enumerate(result.shape, 1):
                size = f"fault, '{self.name}', '{result.clear_name}', size({result.clear_name}, {place})"
                yield f"if (present({result.clear_name})) " + (
                    f"call expect_extent({size}, {extent})" if isinstance(extent, int) else
                    f"call expect_count({size}, int({extent}), huge(1))")

    def _passed(self):
        given = [parameter.name for parameter in self.call.parameters]
        return ", ".join(given + [result.clear_name for result in self.outputs])

    def text(self):
        given = ", ".join([*(parameter.name for parameter in self.call.parameters), "fault"])
        invoked = f"unchecked({self._passed()})"
        statements = [
            "type(quorvel_fault) :: fault", f"call check_{self.name}({given})", *self._extents_of_outputs(),
            "if (fault%found) error stop fault%message()",
            f"answer = {invoked}" if self.is_function else f"call {invoked}"]
        lines = [*self._about(), self.head, f"      use quorvel_unchecked, only: unchecked => {self.name}"]
        for thing, variable in self.variables(True):
            lines += documented(*variable, in_clear_names(thing.sentence, self.names))
        return "\n".join([*lines, *(folded(statement, 6) for statement in statements), self.foot, ""])


def unchecked(calls):
    wrappers = [Unchecked(call) for call in calls if call.is_offered]
    names = ", &\n      ".join(sorted(wrapper.name for wrapper in wrappers))
    procedures = "\n".join(wrapper.text() for wrapper in wrappers)
    return UNCHECKED.format(edit=EDIT, kinds=KIND_PARAMETERS, names=names, procedures=procedures)


def checked(calls):
    names = {call.routine.export: procedure_name(call) for call in calls if call.routine.export}
    procedures = "\n".join(Checked(call, names).text() for call in calls if call.is_offered)
    return CHECKED.format(edit=EDIT, kinds=KIND_PARAMETERS, procedures=procedures)
