!> Why polygons cannot be clipped, and whether more room helps, by the status of HOHOLEDP.
! Produced from the catalogue of routines (catalogue/); do not edit.
module quorvel_clipping_status
   use, intrinsic :: iso_fortran_env, only: i4 => int32
   implicit none
   private
   public :: clipping_fault, is_short_of_room

contains

   pure function clipping_fault(status) result(text)
      integer(i4), intent(in) :: status
      character(len=:), allocatable :: text
      select case (status)
      case (1)
         text = 'a has fewer than 3 vertices'
      case (2)
         text = 'b has fewer than 3 vertices'
      case (3)
         text = 'a crosses itself'
      case (4)
         text = 'b crosses itself'
      case (5)
         text = 'a has no area'
      case (6)
         text = 'a and b cross more than 1024 times'
      case (7, 10, 11)
         text = 'the pieces have more vertices than there is room for'
      case (8)
         text = 'an edge of a carries more than 10 crossings'
      case (9)
         text = 'an edge of b carries more than 10 crossings'
      case (105, 106)
         text = 'a or b is narrower than the tolerance, or touches itself'
      case (109)
         text = 'a or b has coordinates that are not numbers'
      case default
         text = 'unknown status'
      end select
   end function

   pure logical function is_short_of_room(status)
      integer(i4), intent(in) :: status
      is_short_of_room = any(status == [7, 10, 11])
   end function
end module quorvel_clipping_status
