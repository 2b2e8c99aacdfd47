!> What the examples and the corpus cannot show: faults, lists, optional results, polygons, climate files, threads.
program by_hand
   use, intrinsic :: ieee_arithmetic
   use quorvel
   use quorvel_unchecked, only: unchecked_saturation_pressure => saturation_pressure, &
                                unchecked_cyclic_response => cyclic_response, unchecked_solar_geometry => solar_geometry
   use quorvel_by_reference
   use testing
   implicit none
   real, parameter :: pi = acos(-1.0)

   call faults_name_what_is_wrong()
   call faults_of_lists()
   call faults_of_whole_arrays()
   call what_is_left_alone_is_not_a_number()
   call arrays_of_any_rank()
   call results_that_are_wanted()
   call polygons_are_cut()
   call polygons_with_faults()
   call climate_files()
   call threads()
   call finish(59)

contains

   subroutine expect_fault(fault, text)
      type(quorvel_fault), intent(in) :: fault
      character(len=*), intent(in) :: text
      call expect(fault%found .and. fault%message() == 'quorvel: '//text, text//', not '//fault%message())
   end subroutine

   subroutine faults_name_what_is_wrong()
      type(quorvel_fault) :: fault
      call check_saturation_pressure(20.0, fault)
      call expect(.not. fault%found .and. fault%message() == '', 'no fault')
      call check_saturation_pressure(200.00002, fault)
      call expect_fault(fault, 'saturation_pressure: temperature is 200.00002; valid -100 to 200 degC')
      call check_saturation_pressure(ieee_value(1.0, ieee_quiet_nan), fault)
      call expect_fault(fault, 'saturation_pressure: temperature is NaN; valid -100 to 200 degC')
      call check_vapour_pressure_from_psychrometer(25.0, 20.0, 101325.0, 3, fault)
      call expect_fault(fault, 'vapour_pressure_from_psychrometer: psychrometer is 3; valid 1 (sling), 2 (screen)')
      call check_vapour_pressure(250.0, 150.0, fault)
      call expect_fault(fault, 'vapour_pressure: dry_bulb is 250; valid -100 to 200 degC')
      call check_pool_evaporation(50.0, 10.0, 28.0, 30.0, 0.01, 30.0, 5, 0.0, 1.0e5 - 0.5, fault)
      call expect(.not. fault%found, 'all in their ranges')
      call check_height_factor(1.0e20, 0.5, fault)
      call expect_fault(fault, 'height_factor: site_height is 0.100000E+21; valid 0 to 4000 m')
   end subroutine

   subroutine faults_of_lists()
      type(quorvel_fault) :: fault
      real, parameter :: x(4) = [0.0, 0.0, 4.0, 4.0], y(4) = [0.0, 3.0, 3.0, 0.0]
      call check_plan_area(x, y(:3), fault)
      call expect_fault(fault, 'plan_area: y has 3 elements, x has 4')
      call check_plan_area(x(:2), y(:2), fault)
      call expect_fault(fault, 'plan_area: x has 2 elements; valid from 3')
      call check_u_value([0.1, 0.2, 0.1], [1.0, 1.0, -1.0], 0.12, 0.06, fault)
      call expect_fault(fault, 'u_value: conductivity(3) is -1; valid from 0 W/mK')
      call check_u_value(spread(0.1, 1, 21), spread(1.0, 1, 21), 0.12, 0.06, fault)
      call expect_fault(fault, 'u_value: thickness has 21 elements; valid 0 to 20')
      call check_length([3.0, 4.0], fault)
      call expect_fault(fault, 'length: vector has an extent of 2, not 3')
      call check_surface_axes(1.0, 4.0, fault)
      call expect_fault(fault, 'surface_axes: tilt is 4; valid 0 to 3.1416 rad')
      call check_local_to_global([1.0, 0.0, 0.0], reshape([1., 0., 0., 0., 1., 0., 0., -2., 1.], [3, 3]), fault)
      call expect_fault(fault, 'local_to_global: rotation_matrix(2, 3) is -2; valid -1 to 1')
      call expect(plan_area(x(4:1:-1), y(4:1:-1)) == plan_area(x, y), 'lists with a stride')
   end subroutine

   subroutine faults_of_whole_arrays()
      type(quorvel_fault) :: faults(3)
      real :: pressures(3)
      real, parameter :: temperatures(3) = [20.0, 300.0, 0.0]
      call check_saturation_pressure(temperatures, faults)
      call expect(all(faults%found .eqv. [.false., .true., .false.]), 'a fault for each element')
      pressures = 0
      where (.not. faults%found) pressures = saturation_pressure(temperatures)
      call expect(pressures(2) == 0 .and. all(pressures([1, 3]) > 600), 'what is valid is worked out')
   end subroutine

   subroutine what_is_left_alone_is_not_a_number()
      real :: u_value, sunrise, wall(21)
      wall = 1
      u_value = 5
      call unchecked_cyclic_response(wall, wall, wall, wall, 0.12, 0.06, 1, element_kind_between, u_value=u_value)
      call expect(ieee_is_nan(u_value), 'of too many layers')
      call unchecked_solar_geometry(3.0, 172, 12.0, sunrise=sunrise)
      call expect(ieee_is_nan(sunrise), 'of a latitude beyond the pole')
   end subroutine

   subroutine arrays_of_any_rank()
      real :: t(2, 3), p(2, 3)
      integer :: i, j
      t = reshape([-40.0, 0.0, 20.0, 99.5, 150.0, 7.0], [2, 3])
      p = vapour_pressure(t, 50.0)
      do j = 1, 3
         do i = 1, 2
            call expect(agrees(p(i, j), PSVP(t(i, j), 50.0)), 'an element of a table')
         end do
      end do
      call expect(all(agrees(dew_point(vapour_pressure([10.0, 20.0], 100.0)), [10.0, 20.0]) .or. &
                      abs(dew_point(vapour_pressure([10.0, 20.0], 100.0)) - [10.0, 20.0]) < 0.01), 'there and back')
   end subroutine

   subroutine results_that_are_wanted()
      real :: altitude(24), azimuth(24), shares(5)
      integer :: hour
      call solar_geometry(0.9, 172, [(real(hour), hour=1, 24)], solar_altitude=altitude, solar_azimuth=azimuth)
      call expect(maxloc(altitude, 1) == 12 .and. abs(azimuth(12) - pi) < 1e-3, 'the sun is highest in the south')
      call unit_direct_shares(0.6, 0.1, 0.3, 2, pane_shares=shares)
      call expect(all(shares(:2) > 0) .and. all(ieee_is_nan(shares(3:))), 'room for more panes than there are')
      call expect(parallel_planes(reshape(1.0d0*[0, 0, 0, 1, 0, 0, 0, 1, 0], [3, 3]), &
                                  reshape(1.0d0*[0, 0, 5, 0, 1, 5, 1, 0, 5], [3, 3])), 'a logical')
   end subroutine

   !> A regular polygon, clockwise.
   function regular(vertices, radius, x, y) result(polygon)
      integer, intent(in) :: vertices
      double precision, intent(in) :: radius, x, y
      type(quorvel_polygon) :: polygon
      integer :: k
      polygon%x = x + radius*[(sin(2*pi*k/vertices), k=1, vertices)]
      polygon%y = y + radius*[(cos(2*pi*k/vertices), k=1, vertices)]
   end function

   subroutine polygons_are_cut()
      type(quorvel_polygon) :: a, b
      type(quorvel_polygon), allocatable :: difference(:), overlap(:)
      integer :: vertices
      do vertices = 3, 300, 27
         a = regular(vertices, 2.0d0, 0.0d0, 0.0d0)
         b = regular(4, 1.5d0, 1.0d0, 0.3d0)
         call clip(a, b, difference, overlap)
         call expect(abs(sum(polygon_area(difference)) + sum(polygon_area(overlap)) - polygon_area(a)) < 1d-9 .and. &
                     sum(polygon_area(overlap)) > 0, 'areas add up')
      end do
      call clip(a, regular(5, 0.5d0, 0.0d0, 0.0d0), difference, overlap)
      call expect(size(difference) == 2 .and. size(overlap) == 1, 'a hole')
      call clip(a, regular(5, 0.5d0, 9.0d0, 0.0d0), difference, overlap)
      call expect(size(difference) == 1 .and. size(overlap) == 0, 'apart')
   end subroutine

   subroutine polygons_with_faults()
      type(quorvel_polygon) :: nothing, crossed, uneven
      type(quorvel_polygon), allocatable :: difference(:), overlap(:)
      type(quorvel_fault) :: fault
      crossed = quorvel_polygon(x=1d0*[0, 2, 0, 2], y=1d0*[0, 2, 2, 0])
      uneven = quorvel_polygon(x=1d0*[0, 2, 0], y=1d0*[0, 2])
      call clip(regular(4, 1d0, 0d0, 0d0), crossed, difference, overlap, fault)
      call expect_fault(fault, 'clip: b crosses itself')
      call expect(size(difference) == 0 .and. size(overlap) == 0, 'no pieces')
      call clip(nothing, crossed, difference, overlap, fault)
      call expect_fault(fault, 'clip: a has no vertices')
      call clip(crossed, uneven, difference, overlap, fault)
      call expect_fault(fault, 'clip: x and y of b have not as many elements')
   end subroutine

   !> An object against the routines by reference.
   subroutine climate_files()
      type(climate_file) :: file
      type(climate_of_month) :: climate
      type(quorvel_fault) :: fault
      real :: row(12), row_by_reference(12), q(7), times(2), value, value_by_reference, weight
      integer :: lower, upper
      call file%station_row(1, 1, row, fault)
      call expect_fault(fault, 'climate_file: no file is open')
      call file%open('no such file', fault)
      call expect_fault(fault, 'climate_file: no such file cannot be opened')
      call file%open('example.climate    ')
      call expect(file%is_open(), 'blanks after a name')
      call open_example()
      call CLBNFI(file_unit_opened_last, 7, 3, 5, 2, 0.0, q(1), q(2), q(3), q(4), q(5), q(6), q(7), times(1), times(2))
      call file%station_climate(7, 3, 5, band_set_second, 0.0, climate)
      call expect(all(agrees([climate%q, climate%time_a, climate%time_b], [q, times])), 'climate of a month')
      call CLBNF3(12, row_by_reference)
      call file%station_row(7, 12, row)
      call expect(all(agrees(row, row_by_reference)), 'row of a station')
      call file%locate_station_band(7, band_set_second, 0.4, 5, lower, upper, weight)
      call expect(lower < upper .and. weight >= 0 .and. weight <= 1, 'between two bands')
      call CLBNF2(12, lower, upper, 5, weight, value_by_reference)
      call file%interpolate_station_rows(7, 12, lower, upper, 5, weight, value)
      call expect(agrees(value, value_by_reference), 'between two rows')
      call file%station_row(7, 172, row, fault)
      call expect_fault(fault, 'station_row: row is 172; valid 1 to 171')
      call file%station_row(5000, 1, row, fault)
      call expect_fault(fault, 'climate_file: station 5000 of example.climate cannot be read')
      call file%close()
      call file%close()
      call expect(.not. file%is_open(), 'closed, twice')
   end subroutine

   subroutine threads()
      integer, parameter :: count = 20000
      real :: t(count), alone(count), together(count)
      integer :: i
      t = [(-100 + 300.0*i/count, i=1, count)]
      alone = unchecked_saturation_pressure(t)
      !$omp parallel do num_threads(4)
      do i = 1, count
         together(i) = saturation_pressure(t(i))
      end do
      call expect(all(agrees(alone, together)), 'threads')
      do concurrent (i=1:count)
         together(i) = saturation_pressure(t(i))
      end do
      call expect(all(agrees(alone, together)), 'do concurrent')
   end subroutine
end program by_hand
