!> What is wrong with the arguments of a routine. A fault is the first one that is found: the procedures leave one
!> that they are given as it is.
module quorvel_faults
   use, intrinsic :: iso_fortran_env, only: sp => real32, dp => real64, i4 => int32
   implicit none
   private
   public :: quorvel_fault, refuse, expect_all, expect_extent, expect_as_many, expect_count, set_fault

   type :: quorvel_fault
      logical :: found = .false.
      ! Has no value unless one is found: to clear it would take longer than most routines do.
      character(len=240), private :: text
   contains
      procedure :: message
   end type

   !> A value that is not valid.
   interface refuse
      procedure refuse_real, refuse_double_real, refuse_integer
   end interface

contains

   !> Names the routine, the argument, its value and what is valid; empty without a fault.
   pure function message(self)
      class(quorvel_fault), intent(in) :: self
      character(len=:), allocatable :: message
      message = ''
      if (self%found) message = trim(self%text)
   end function

   elemental subroutine set_fault(fault, routine, text)
      type(quorvel_fault), intent(inout) :: fault
      character(len=*), intent(in) :: routine, text
      if (fault%found) return
      fault%found = .true.
      fault%text = 'quorvel: '//routine//': '//text
   end subroutine

   elemental subroutine refuse_double_real(fault, routine, argument, valid, value)
      type(quorvel_fault), intent(inout) :: fault
      character(len=*), intent(in) :: routine, argument, valid
      real(dp), intent(in) :: value
      call set_fault(fault, routine, argument//' is '//trim(number(value))//'; '//valid)
   end subroutine

   elemental subroutine refuse_real(fault, routine, argument, valid, value)
      type(quorvel_fault), intent(inout) :: fault
      character(len=*), intent(in) :: routine, argument, valid
      real(sp), intent(in) :: value
      call refuse_double_real(fault, routine, argument, valid, real(value, dp))
   end subroutine

   elemental subroutine refuse_integer(fault, routine, argument, valid, value)
      type(quorvel_fault), intent(inout) :: fault
      character(len=*), intent(in) :: routine, argument, valid
      integer(i4), intent(in) :: value
      call set_fault(fault, routine, argument//' is '//trim(whole(value))//'; '//valid)
   end subroutine

   !> All numbers of a list, or of a table with so many rows, must be valid.
   pure subroutine expect_all(fault, routine, argument, valid, is_valid, values, rows)
      type(quorvel_fault), intent(inout) :: fault
      character(len=*), intent(in) :: routine, argument, valid
      logical, intent(in) :: is_valid(:)
      real(dp), intent(in) :: values(:)
      integer, intent(in) :: rows !! 0 for a list
      character(len=30) :: place
      integer :: at
      at = findloc(is_valid, .false., dim=1)
      if (at == 0) return
      place = whole(at)
      if (rows > 0) place = trim(whole(1 + mod(at - 1, rows)))//', '//whole(1 + (at - 1)/rows)
      call refuse(fault, routine, argument//'('//trim(place)//')', valid, values(at))
   end subroutine

   !> An array must have this extent.
   pure subroutine expect_extent(fault, routine, argument, extent, valid)
      type(quorvel_fault), intent(inout) :: fault
      character(len=*), intent(in) :: routine, argument
      integer, intent(in) :: extent, valid
      if (extent == valid) return
      call set_fault(fault, routine, argument//' has an extent of '//trim(whole(extent))//', not '//whole(valid))
   end subroutine

   !> Two lists must have as many elements.
   pure subroutine expect_as_many(fault, routine, argument, length, other, length_of_other)
      type(quorvel_fault), intent(inout) :: fault
      character(len=*), intent(in) :: routine, argument, other
      integer, intent(in) :: length, length_of_other
      if (length == length_of_other) return
      call set_fault(fault, routine, argument//' has '//trim(whole(length))//' elements, '//other//' has '// &
                     whole(length_of_other))
   end subroutine

   !> A list must have so many elements.
   pure subroutine expect_count(fault, routine, argument, length, lowest, highest)
      type(quorvel_fault), intent(inout) :: fault
      character(len=*), intent(in) :: routine, argument
      integer, intent(in) :: length, lowest, highest
      if (length >= lowest .and. length <= highest) return
      if (highest == huge(highest)) then
         call set_fault(fault, routine, argument//' has '//trim(whole(length))//' elements; valid from '//whole(lowest))
      else
         call set_fault(fault, routine, argument//' has '//trim(whole(length))//' elements; valid '// &
                        trim(whole(lowest))//' to '//whole(highest))
      end if
   end subroutine

   pure function whole(value) result(text)
      integer, intent(in) :: value
      character(len=11) :: text
      write (text, '(i0)') value
   end function

   !> With as few digits as tell it from others of its kind.
   pure function number(value) result(text)
      real(dp), intent(in) :: value
      character(len=24) :: text
      character(len=8) :: form
      real(dp) :: read_back
      logical :: is_single
      integer :: digits
      is_single = real(real(value, sp), dp) == value
      do digits = 6, 17
         write (form, '(a, i0, a)') '(g0.', digits, ')'
         write (text, form) value
         if (.not. abs(value) <= huge(value)) return
         read (text, *) read_back
         if (read_back == value .or. (is_single .and. real(read_back, sp) == real(value, sp))) exit
      end do
      text = without_zeros(text)
   end function

   !> At the end of a number with a point.
   pure function without_zeros(number) result(text)
      character(len=*), intent(in) :: number
      character(len=len(number)) :: text
      integer :: last
      text = number
      if (scan(text, '.') == 0 .or. scan(text, 'E') > 0) return
      last = verify(text, '0 ', back=.true.)
      if (text(last:last) == '.') last = last - 1
      text = text(:last)
   end function
end module quorvel_faults
