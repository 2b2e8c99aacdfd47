!> Climate data files as objects. Each is one open file; one thread at a time may use an object, and objects have
!> nothing in common. What goes wrong is told in `fault`; without it the program ends with an error.
module quorvel_climate_file
   use, intrinsic :: iso_c_binding
   use, intrinsic :: iso_fortran_env, only: sp => real32, i4 => int32
   use quorvel_faults, only: quorvel_fault, set_fault
   use quorvel_selectors, only: file_unit_opened_last
   use quorvel_checks
   implicit none
   private
   public :: climate_file, climate_of_month

   !> Quantities Q1 to Q7 in the units of the file (Q1 and Q2 not below 0, Q7 from 0 to 1), and hours of the day.
   type :: climate_of_month
      real(sp) :: q(7) = 0, time_a = 0, time_b = 0
   end type

   type :: climate_file
      private
      type(c_ptr) :: handle = c_null_ptr
      character(len=:), allocatable :: name
   contains
      procedure :: open => open_file
      procedure :: is_open
      procedure :: close => close_file
      procedure :: station_climate
      procedure :: locate_station_band
      procedure :: interpolate_station_rows
      procedure :: station_row
      procedure :: station_records
      final :: finish
   end type

   interface
      function c_open(path, status) bind(C, name='quorvel_climate_file_open') result(file)
         import :: c_ptr, c_char, c_int32_t
         character(kind=c_char), intent(in) :: path(*)
         integer(c_int32_t), intent(out) :: status
         type(c_ptr) :: file
      end function
      subroutine c_close(file) bind(C, name='quorvel_climate_file_close')
         import :: c_ptr
         type(c_ptr), value :: file
      end subroutine
      integer(c_int32_t) function c_station_climate(file, station, band, month, band_set, percentage, quantities, &
         times) bind(C, name='quorvel_climate_file_station_climate')
         import :: c_ptr, c_int32_t, c_float
         type(c_ptr), value :: file
         integer(c_int32_t), value :: station, band, month, band_set
         real(c_float), value :: percentage
         real(c_float), intent(inout) :: quantities(7), times(2)
      end function
      integer(c_int32_t) function c_locate_station_band(file, station, band_set, fraction, month, lower_band, &
         upper_band, band_weight) bind(C, name='quorvel_climate_file_locate_station_band')
         import :: c_ptr, c_int32_t, c_float
         type(c_ptr), value :: file
         integer(c_int32_t), value :: station, band_set, month
         real(c_float), value :: fraction
         integer(c_int32_t), intent(inout) :: lower_band, upper_band
         real(c_float), intent(inout) :: band_weight
      end function
      integer(c_int32_t) function c_interpolate_station_rows(file, station, base_row, lower_band, upper_band, month, &
         band_weight, value) bind(C, name='quorvel_climate_file_interpolate_station_rows')
         import :: c_ptr, c_int32_t, c_float
         type(c_ptr), value :: file
         integer(c_int32_t), value :: station, base_row, lower_band, upper_band, month
         real(c_float), value :: band_weight
         real(c_float), intent(inout) :: value
      end function
      integer(c_int32_t) function c_station_row(file, station, row, values) &
         bind(C, name='quorvel_climate_file_station_row')
         import :: c_ptr, c_int32_t, c_float
         type(c_ptr), value :: file
         integer(c_int32_t), value :: station, row
         real(c_float), intent(inout) :: values(12)
      end function
      integer(c_int32_t) function c_station_records(file, station, month, records) &
         bind(C, name='quorvel_climate_file_station_records')
         import :: c_ptr, c_int32_t, c_float
         type(c_ptr), value :: file
         integer(c_int32_t), value :: station, month
         real(c_float), intent(inout) :: records(11, 12)
      end function
   end interface

contains

   !> Opens a file by its name; blanks at the end do not count.
   subroutine open_file(self, name, fault)
      class(climate_file), intent(inout) :: self
      character(len=*), intent(in) :: name
      type(quorvel_fault), intent(out), optional :: fault
      type(quorvel_fault) :: found
      integer(c_int32_t) :: status
      call self%close()
      self%name = trim(name)
      self%handle = c_open(self%name//c_null_char, status)
      if (.not. c_associated(self%handle)) call set_fault(found, 'climate_file', self%name//' cannot be opened')
      call tell(found, fault)
   end subroutine

   pure function is_open(self)
      class(climate_file), intent(in) :: self
      logical :: is_open
      is_open = c_associated(self%handle)
   end function

   subroutine close_file(self)
      class(climate_file), intent(inout) :: self
      call c_close(self%handle)
      self%handle = c_null_ptr
   end subroutine

   subroutine finish(self)
      type(climate_file), intent(inout) :: self
      call self%close()
   end subroutine

   !> Climate of a month, of a band from 1 to 10 or, for band 0, at a cumulative percentage of days. (CLBNFI)
   subroutine station_climate(self, station, band, month, band_set, percentage, climate, fault)
      class(climate_file), intent(in) :: self
      integer(i4), intent(in) :: station, band, month, band_set
      real(sp), intent(in) :: percentage !! 0 to 100; used with band 0
      type(climate_of_month), intent(out) :: climate
      type(quorvel_fault), intent(out), optional :: fault
      type(quorvel_fault) :: found
      real(sp) :: times(2)
      call check_station_climate(file_unit_opened_last, station, band, month, band_set, percentage, found)
      times = 0
      if (is_ready(self, found)) call expect_readable(self, found, station, c_station_climate( &
         self%handle, station, band, month, band_set, percentage, climate%q, times))
      climate%time_a = times(1)
      climate%time_b = times(2)
      call tell(found, fault)
   end subroutine

   !> Where a cumulative fraction of days lies among the bands of a month. (CLBNF1)
   subroutine locate_station_band(self, station, band_set, fraction, month, lower_band, upper_band, band_weight, fault)
      class(climate_file), intent(in) :: self
      integer(i4), intent(in) :: station, band_set, month
      real(sp), intent(in) :: fraction !! 0 to 1
      integer(i4), intent(out) :: lower_band, upper_band
      real(sp), intent(out) :: band_weight
      type(quorvel_fault), intent(out), optional :: fault
      type(quorvel_fault) :: found
      call check_locate_station_band(fraction, month, found)
      lower_band = 0
      upper_band = 0
      band_weight = 0
      if (is_ready(self, found)) call expect_readable(self, found, station, c_locate_station_band( &
         self%handle, station, band_set, fraction, month, lower_band, upper_band, band_weight))
      call tell(found, fault)
   end subroutine

   !> Value between the rows base_row + lower_band and base_row + upper_band of a station. (CLBNF2)
   subroutine interpolate_station_rows(self, station, base_row, lower_band, upper_band, month, band_weight, value, &
                                       fault)
      class(climate_file), intent(in) :: self
      integer(i4), intent(in) :: station, base_row, lower_band, upper_band, month
      real(sp), intent(in) :: band_weight
      real(sp), intent(out) :: value
      type(quorvel_fault), intent(out), optional :: fault
      type(quorvel_fault) :: found
      call check_interpolate_station_rows(base_row, lower_band, upper_band, month, band_weight, found)
      value = 0
      if (is_ready(self, found)) call expect_readable(self, found, station, c_interpolate_station_rows( &
         self%handle, station, base_row, lower_band, upper_band, month, band_weight, value))
      call tell(found, fault)
   end subroutine

   !> A row from 1 to 171, a value for each month: 1 time A, 2 time B, 3 to 12 frequencies of the bands, 13 to 82 Q1 to
   !> Q7, ten each; 82 more in set 2. (CLBNF3)
   subroutine station_row(self, station, row, values, fault)
      class(climate_file), intent(in) :: self
      integer(i4), intent(in) :: station, row
      real(sp), intent(out) :: values(12)
      type(quorvel_fault), intent(out), optional :: fault
      type(quorvel_fault) :: found
      call check_station_row(row, found)
      values = 0
      if (is_ready(self, found)) call expect_readable(self, found, station, c_station_row( &
         self%handle, station, row, values))
      call tell(found, fault)
   end subroutine

   !> The record of a month, or all for month 0. Given in a record: (10) band set, (11) percentage of days. Returned in
   !> (1:9): Q4, Q6, time B, Q3, Q5, time A, Q1, Q2, Q7. (CLBNF0)
   subroutine station_records(self, station, month, records, fault)
      class(climate_file), intent(in) :: self
      integer(i4), intent(in) :: station, month
      real(sp), intent(inout) :: records(11, 12)
      type(quorvel_fault), intent(out), optional :: fault
      type(quorvel_fault) :: found
      call check_station_records(station, month, records, found)
      if (is_ready(self, found)) call expect_readable(self, found, station, c_station_records( &
         self%handle, station, month, records))
      call tell(found, fault)
   end subroutine

   logical function is_ready(self, found)
      class(climate_file), intent(in) :: self
      type(quorvel_fault), intent(inout) :: found
      if (.not. self%is_open()) call set_fault(found, 'climate_file', 'no file is open')
      is_ready = .not. found%found
   end function

   subroutine expect_readable(self, found, station, status)
      class(climate_file), intent(in) :: self
      type(quorvel_fault), intent(inout) :: found
      integer(i4), intent(in) :: station
      integer(c_int32_t), intent(in) :: status
      character(len=11) :: number
      if (status == 0) return
      write (number, '(i0)') station
      call set_fault(found, 'climate_file', 'station '//trim(number)//' of '//self%name//' cannot be read')
   end subroutine

   !> To the caller, or to whoever runs the program.
   subroutine tell(found, fault)
      type(quorvel_fault), intent(in) :: found
      type(quorvel_fault), intent(out), optional :: fault
      if (present(fault)) then
         fault = found
      else if (found%found) then
         error stop found%message()
      end if
   end subroutine
end module quorvel_climate_file
