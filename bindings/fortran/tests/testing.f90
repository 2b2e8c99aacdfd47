!> What the tests of the modules have in common.
module testing
   use, intrinsic :: iso_fortran_env, only: sp => real32, dp => real64, i4 => int32, error_unit
   use, intrinsic :: iso_c_binding, only: c_null_char
   use, intrinsic :: ieee_arithmetic, only: ieee_is_nan
   use quorvel_by_reference, only: CLBNF0
   implicit none
   private
   public :: unit, expect, expect_near, finish, agrees, is_untouched, open_corpus, more_cases, in_order, open_example
   public :: untouched, untouched_pair, untouched_integer

   ! What the corpus has in an output before the call.
   integer(i4), parameter :: untouched_integer = int(z'C5C5C5C5', i4)
   real(sp), parameter :: untouched = transfer(untouched_integer, 0.0_sp)
   real(dp), parameter :: untouched_pair = transfer([untouched_integer, untouched_integer], 0.0_dp)

   integer :: unit, checks = 0, failures = 0
   character(len=:), allocatable :: routine ! of the corpus that is open
   integer :: cases_left, orders_asked, orders_found

   !> Equal to the bit, or both not numbers.
   interface agrees
      procedure agrees_real, agrees_double_real, agrees_integer
   end interface

   interface is_untouched
      procedure is_untouched_real, is_untouched_integer
   end interface

contains

   subroutine expect(condition, what)
      logical, intent(in) :: condition
      character(len=*), intent(in) :: what
      checks = checks + 1
      if (condition) return
      failures = failures + 1
      if (failures <= 50) write (error_unit, '(2a)') 'failed: ', what
   end subroutine

   !> Of a list the first ones may be expected.
   subroutine expect_near(what, got, wanted, tolerance)
      character(len=*), intent(in) :: what
      real(dp), intent(in) :: got(:), wanted(:), tolerance
      call expect(all(abs(got(:size(wanted)) - wanted) <= tolerance), what)
   end subroutine

   !> No fewer checks than `least` must have been made.
   subroutine finish(least)
      integer, intent(in) :: least
      print '(i0, a, i0, a)', checks, ' checks, ', failures, ' failures'
      if (failures > 0 .or. checks < least) error stop 1
   end subroutine

   subroutine open_corpus(name, cases)
      character(len=*), intent(in) :: name
      integer, intent(in) :: cases
      open (newunit=unit, file='corpus/'//name, access='stream', form='unformatted', action='read', status='old')
      routine = name
      cases_left = cases
      orders_asked = 0
      orders_found = 0
   end subroutine

   function more_cases() result(more)
      logical :: more
      integer(8) :: place, size
      more = cases_left > 0
      cases_left = cases_left - 1
      if (more) return
      inquire (unit=unit, pos=place, size=size)
      call expect(place == size + 1, 'all that there is of '//routine)
      call expect(2*orders_found >= orders_asked, 'most calls have counts that a list can tell: '//routine)
      close (unit)
   end function

   !> Whether the counts of a call are such that lists can tell them.
   function in_order(counts_are)
      logical, intent(in) :: counts_are
      logical :: in_order
      in_order = counts_are
      orders_asked = orders_asked + 1
      if (in_order) orders_found = orders_found + 1
   end function

   !> The state with which the corpus begins.
   subroutine open_example()
      real(sp) :: records(11, 12)
      records = 1
      call CLBNF0('example.climate'//c_null_char, 1_i4, 0_i4, records)
   end subroutine

   elemental function agrees_real(got, left) result(same)
      real(sp), intent(in) :: got, left
      logical :: same
      same = transfer(got, 0_i4) == transfer(left, 0_i4) .or. (ieee_is_nan(got) .and. ieee_is_nan(left))
   end function

   elemental function agrees_double_real(got, left) result(same)
      real(dp), intent(in) :: got, left
      logical :: same
      same = transfer(got, 0_8) == transfer(left, 0_8) .or. (ieee_is_nan(got) .and. ieee_is_nan(left))
   end function

   elemental function agrees_integer(got, left) result(same)
      integer(i4), intent(in) :: got, left
      logical :: same
      same = got == left
   end function

   elemental function is_untouched_real(value) result(is)
      real(sp), intent(in) :: value
      logical :: is
      is = transfer(value, 0_i4) == untouched_integer
   end function

   elemental function is_untouched_integer(value) result(is)
      integer(i4), intent(in) :: value
      logical :: is
      is = value == untouched_integer
   end function
end module testing
