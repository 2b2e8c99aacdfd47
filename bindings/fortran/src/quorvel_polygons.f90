!> Polygons in plan, of any number of vertices, in double precision: their difference, overlap and area.
module quorvel_polygons
   use, intrinsic :: iso_fortran_env, only: dp => real64, i4 => int32
   use quorvel_by_reference, only: HOHOLEDP
   use quorvel_clipping_status, only: clipping_fault, is_short_of_room
   use quorvel_faults, only: quorvel_fault, set_fault
   implicit none
   private
   public :: quorvel_polygon, polygon_area, clip

   !> Vertices one after the other, either way round, from three. It must not cross itself.
   type :: quorvel_polygon
      real(dp), allocatable :: x(:), y(:) !! [m]
   end type

   integer(i4), parameter :: most_crossings = 1024, first_room = 64, most_room = 2**24

   !> What a call of the routine works on: the vertices of both polygons, then those that it adds.
   type :: pool
      real(dp), allocatable :: x(:), y(:)
      integer(i4), allocatable :: difference(:), overlap(:)
      integer(i4) :: status
   end type

contains

   !> Difference a - b and overlap of two polygons, as pieces that run in the sense of a. Where b lies within a, the
   !> difference is two pieces, which touch along level bridges from b to a.
   !>
   !> Exact to about 1e-4 of the diagonal of the box round both, times the length of the boundaries; the areas of
   !> difference and overlap add up to that of a to rounding.
   !>
   !> Polygons that cannot be clipped, for one that crosses itself or has no area, are told in `fault`, and there are
   !> no pieces; without it the program ends with an error.
   !>
   !> Source: Boundary tracing: K. Weiler, P. Atherton, Hidden surface removal using polygon area sorting, 1977.
   !> (HOHOLEDP of quorvel_by_reference)
   pure subroutine clip(a, b, difference, overlap, fault)
      type(quorvel_polygon), intent(in) :: a, b
      type(quorvel_polygon), allocatable, intent(out) :: difference(:), overlap(:)
      type(quorvel_fault), intent(out), optional :: fault
      type(quorvel_fault) :: own_fault
      type(pool) :: clipped
      call check(a, 'a', own_fault)
      call check(b, 'b', own_fault)
      clipped%status = 0
      if (.not. own_fault%found) call clip_in_enough_room(a, b, clipped)
      if (clipped%status /= 0) call set_fault(own_fault, 'clip', clipping_fault(clipped%status))
      if (present(fault)) fault = own_fault
      if (own_fault%found .and. .not. present(fault)) error stop own_fault%message()
      if (own_fault%found) then
         allocate (difference(0), overlap(0))
      else
         difference = pieces(clipped, clipped%difference)
         overlap = pieces(clipped, clipped%overlap)
      end if
   end subroutine

   !> Area in plan, whichever way round [m2].
   elemental function polygon_area(polygon) result(area)
      type(quorvel_polygon), intent(in) :: polygon
      real(dp) :: area
      integer :: i
      area = 0
      if (.not. allocated(polygon%x) .or. .not. allocated(polygon%y)) return
      associate (x => polygon%x, y => polygon%y)
         do i = 3, min(size(x), size(y))
            area = area + ((x(i) - x(1))*(y(i - 1) - y(1)) - (x(i - 1) - x(1))*(y(i) - y(1)))
         end do
      end associate
      area = abs(area)/2
   end function

   pure subroutine check(polygon, name, fault)
      type(quorvel_polygon), intent(in) :: polygon
      character(len=*), intent(in) :: name
      type(quorvel_fault), intent(inout) :: fault
      if (.not. allocated(polygon%x) .or. .not. allocated(polygon%y)) then
         call set_fault(fault, 'clip', name//' has no vertices')
      else if (size(polygon%x) /= size(polygon%y)) then
         call set_fault(fault, 'clip', 'x and y of '//name//' have not as many elements')
      end if
   end subroutine

   pure subroutine clip_in_enough_room(a, b, clipped)
      type(quorvel_polygon), intent(in) :: a, b
      type(pool), intent(out) :: clipped
      integer(i4) :: room
      room = first_room
      do
         call clip_in_room(a, b, room, clipped)
         if (.not. is_short_of_room(clipped%status) .or. room >= most_room) exit
         room = 2*room
      end do
   end subroutine

   pure subroutine clip_in_room(a, b, room, clipped)
      type(quorvel_polygon), intent(in) :: a, b
      integer(i4), intent(in) :: room
      type(pool), intent(out) :: clipped
      integer(i4) :: i, used, capacity, of_a, of_b
      real(dp) :: free(room)
      of_a = size(a%x)
      of_b = size(b%x)
      used = of_a + of_b
      capacity = used + room
      free = 0
      clipped%x = [a%x, b%x, free]
      clipped%y = [a%y, b%y, free]
      allocate (clipped%difference(capacity), clipped%overlap(capacity))
      call HOHOLEDP(clipped%x, clipped%y, of_a, [(i, i=1, of_a)], of_b, [(i, i=of_a + 1, of_a + of_b)], capacity, &
                    most_crossings, capacity, capacity, used, clipped%difference, clipped%overlap, clipped%status)
   end subroutine

   !> The polygons of a list: of each piece the number of its vertices and their places, negative where a bridge
   !> begins, and a 0 at last.
   pure function pieces(clipped, list) result(polygons)
      type(pool), intent(in) :: clipped
      integer(i4), intent(in) :: list(:)
      type(quorvel_polygon), allocatable :: polygons(:)
      integer :: at, piece
      allocate (polygons(count_pieces(list)))
      at = 1
      do piece = 1, size(polygons)
         associate (places => abs(list(at + 1:at + list(at))))
            polygons(piece)%x = clipped%x(places)
            polygons(piece)%y = clipped%y(places)
         end associate
         at = at + 1 + list(at)
      end do
   end function

   pure function count_pieces(list) result(count)
      integer(i4), intent(in) :: list(:)
      integer :: count, at
      count = 0
      at = 1
      do while (list(at) /= 0)
         count = count + 1
         at = at + 1 + list(at)
      end do
   end function
end module quorvel_polygons
