!> Whether the routines take what is given: each of these subroutines has the arguments of the routine that it is
!> called after, those that are mere results left out, and finds the first fault in them, if any.
! Produced from the catalogue of routines (catalogue/); do not edit.
module quorvel_checks
   use, intrinsic :: iso_fortran_env, only: sp => real32, dp => real64, i4 => int32
   use, intrinsic :: ieee_arithmetic, only: ieee_is_nan
   use quorvel_faults
   implicit none
   private
   public :: &
      check_absorption_product, &
      check_adiabatic_mixing, &
      check_ahead_and_nearer, &
      check_air_cavity_resistance, &
      check_almanac_position, &
      check_almanac_sun_hours, &
      check_area_in_space, &
      check_back_azimuth, &
      check_band_climate, &
      check_band_row, &
      check_boundary_crossing, &
      check_clearness_index, &
      check_coincide, &
      check_collinearity, &
      check_condensation_profile, &
      check_condenses_within_layer, &
      check_count_enclosed, &
      check_cross_product, &
      check_cross_product_in_double, &
      check_crossing_point, &
      check_cyclic_response, &
      check_daily_temperature, &
      check_daily_value, &
      check_design_day, &
      check_design_day_by_option, &
      check_design_irradiance, &
      check_dew_point, &
      check_diffuse_roller_blind, &
      check_diffuse_tilt_factor, &
      check_direction_to, &
      check_dot_product_in_double, &
      check_dry_air_enthalpy, &
      check_dry_air_specific_heat, &
      check_dry_bulb_from_enthalpy_and_moisture_content, &
      check_dry_bulb_from_enthalpy_and_percentage_saturation, &
      check_dry_bulb_from_enthalpy_and_relative_humidity, &
      check_dry_bulb_from_enthalpy_and_vapour_pressure, &
      check_dry_bulb_from_moisture_content_and_percentage_saturation, &
      check_dry_bulb_from_moisture_content_and_relative_humidity, &
      check_dry_bulb_from_vapour_pressure_and_percentage_saturation, &
      check_dry_bulb_from_vapour_pressure_and_relative_humidity, &
      check_dry_bulb_from_wet_bulb_and_enthalpy, &
      check_dry_bulb_from_wet_bulb_and_moisture_content, &
      check_dry_bulb_from_wet_bulb_and_percentage_saturation, &
      check_dry_bulb_from_wet_bulb_and_relative_humidity, &
      check_dry_bulb_from_wet_bulb_and_vapour_pressure, &
      check_eccentricity_factor, &
      check_element_property, &
      check_facing, &
      check_forward_projection, &
      check_forward_projection_or_start, &
      check_gas_cavity_resistance, &
      check_glass_diffuse, &
      check_glass_direct, &
      check_global_to_local, &
      check_height_factor, &
      check_in_span, &
      check_inside, &
      check_interpolate_band_rows, &
      check_interpolate_station_rows, &
      check_latent_heat, &
      check_length, &
      check_length_in_double, &
      check_local_coordinates, &
      check_local_to_global, &
      check_locate_band, &
      check_locate_station_band, &
      check_long_wave_loss, &
      check_meeting_point, &
      check_moist_air_density, &
      check_moisture_content, &
      check_moisture_content_from_enthalpy, &
      check_moisture_content_from_percentage_saturation, &
      check_moisture_content_from_psychrometer, &
      check_muneer_slope, &
      check_natural_convection_coefficient, &
      check_normal_transmittance, &
      check_open_slat_diffuse, &
      check_open_slat_direct, &
      check_overlap, &
      check_overlap_alias, &
      check_pack_pane, &
      check_pack_three_fractions, &
      check_pack_three_fractions_third_first, &
      check_pack_two_fractions, &
      check_pane_temperatures, &
      check_parallel_planes, &
      check_parallel_sides, &
      check_percentage_saturation, &
      check_perez_diffuse, &
      check_plan_area, &
      check_polygon_orientation, &
      check_pool_evaporation, &
      check_pool_evaporation_from_wet_bulb, &
      check_projection, &
      check_psychrometer_wet_bulb, &
      check_rectangular, &
      check_refraction_angle, &
      check_relative_humidity, &
      check_roller_blind, &
      check_saturation_pressure, &
      check_saturation_temperature_from_enthalpy, &
      check_second_design_day, &
      check_second_design_day_by_option, &
      check_side_of_line, &
      check_signed_plan_area, &
      check_single_pass_absorption, &
      check_site_constants, &
      check_slab_optics, &
      check_slat_diffuse, &
      check_slat_direct, &
      check_slope_diffuse, &
      check_sol_air_temperature, &
      check_solar_geometry, &
      check_solar_time_correction, &
      check_specific_enthalpy, &
      check_specific_enthalpy_from_psychrometer, &
      check_specific_volume, &
      check_stacked_layers, &
      check_station_climate, &
      check_station_records, &
      check_station_row, &
      check_store_design_day, &
      check_store_design_day_by_option, &
      check_surface_angles, &
      check_surface_axes, &
      check_surface_irradiance, &
      check_surface_irradiance_and_incidence, &
      check_surface_reflectance, &
      check_surface_resistance, &
      check_surface_resistance_at_emissivity, &
      check_to_local, &
      check_total_vapour_resistance, &
      check_traced_layers, &
      check_two_faced_slat_diffuse, &
      check_two_faced_slat_direct, &
      check_u_value, &
      check_u_value_at_tilt_and_exposure, &
      check_unit_diffuse, &
      check_unit_diffuse_shares, &
      check_unit_direct, &
      check_unit_direct_shares, &
      check_unit_shares, &
      check_vapour_pressure, &
      check_vapour_pressure_from_moisture_content, &
      check_vapour_pressure_from_psychrometer, &
      check_vector_dot_product, &
      check_vertical_cavity_resistance, &
      check_water_vapour_enthalpy, &
      check_water_vapour_specific_heat, &
      check_weighted_temperature, &
      check_wet_bulb, &
      check_wet_bulb_from_moisture_content, &
      check_wet_bulb_from_percentage_saturation, &
      check_window_parameters

contains
   elemental subroutine check_dry_air_enthalpy(temperature, fault)
      real(sp), intent(in) :: temperature
      type(quorvel_fault), intent(out) :: fault
      if (.not. (temperature >= -50.0_sp .and. temperature <= 100.0_sp)) call refuse(fault, 'dry_air_enthalpy', &
         'temperature', 'valid -50 to 100 degC', temperature)
   end subroutine

   elemental subroutine check_water_vapour_enthalpy(temperature, fault)
      real(sp), intent(in) :: temperature
      type(quorvel_fault), intent(out) :: fault
      if (.not. (temperature >= -50.0_sp .and. temperature <= 100.0_sp)) call refuse(fault, 'water_vapour_enthalpy', &
         'temperature', 'valid -50 to 100 degC', temperature)
   end subroutine

   elemental subroutine check_dry_air_specific_heat(temperature, fault)
      real(sp), intent(in) :: temperature
      type(quorvel_fault), intent(out) :: fault
      if (.not. (temperature >= -50.0_sp .and. temperature <= 100.0_sp)) call refuse(fault, 'dry_air_specific_heat', &
         'temperature', 'valid -50 to 100 degC', temperature)
   end subroutine

   elemental subroutine check_water_vapour_specific_heat(temperature, fault)
      real(sp), intent(in) :: temperature
      type(quorvel_fault), intent(out) :: fault
      if (.not. (temperature >= -50.0_sp .and. temperature <= 100.0_sp)) call refuse(fault, &
         'water_vapour_specific_heat', 'temperature', 'valid -50 to 100 degC', temperature)
   end subroutine

   elemental subroutine check_latent_heat(temperature, fault)
      real(sp), intent(in) :: temperature
      type(quorvel_fault), intent(out) :: fault
      if (.not. (temperature >= -50.0_sp .and. temperature <= 100.0_sp)) call refuse(fault, 'latent_heat', &
         'temperature', 'valid -50 to 100 degC', temperature)
   end subroutine

   elemental subroutine check_dry_bulb_from_vapour_pressure_and_relative_humidity(vapour_pressure, relative_humidity, &
      fault)
      real(sp), intent(in) :: vapour_pressure, relative_humidity
      type(quorvel_fault), intent(out) :: fault
      if (.not. (vapour_pressure >= 0.0_sp)) call refuse(fault, 'dry_bulb_from_vapour_pressure_and_relative_humidity', &
         'vapour_pressure', 'valid from 0 Pa', vapour_pressure)
      if (.not. (relative_humidity >= 0.0_sp .and. relative_humidity <= 100.0_sp)) call refuse(fault, &
         'dry_bulb_from_vapour_pressure_and_relative_humidity', 'relative_humidity', 'valid 0 to 100 %', &
         relative_humidity)
   end subroutine

   elemental subroutine check_dry_bulb_from_vapour_pressure_and_percentage_saturation(vapour_pressure, &
      percentage_saturation, pressure, fault)
      real(sp), intent(in) :: vapour_pressure, percentage_saturation, pressure
      type(quorvel_fault), intent(out) :: fault
      if (.not. (vapour_pressure >= 0.0_sp)) call refuse(fault, &
         'dry_bulb_from_vapour_pressure_and_percentage_saturation', 'vapour_pressure', 'valid from 0 Pa', &
         vapour_pressure)
      if (.not. (percentage_saturation >= 0.0_sp .and. percentage_saturation <= 100.0_sp)) call refuse(fault, &
         'dry_bulb_from_vapour_pressure_and_percentage_saturation', 'percentage_saturation', 'valid 0 to 100 %', &
         percentage_saturation)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, &
         'dry_bulb_from_vapour_pressure_and_percentage_saturation', 'pressure', 'valid 50000 to 110000 Pa', pressure)
   end subroutine

   elemental subroutine check_dry_bulb_from_moisture_content_and_relative_humidity(moisture_content, &
      relative_humidity, pressure, fault)
      real(sp), intent(in) :: moisture_content, relative_humidity, pressure
      type(quorvel_fault), intent(out) :: fault
      if (.not. (moisture_content >= 0.0_sp .and. moisture_content <= 0.1_sp)) call refuse(fault, &
         'dry_bulb_from_moisture_content_and_relative_humidity', 'moisture_content', 'valid 0 to 0.1 kg/kg', &
         moisture_content)
      if (.not. (relative_humidity >= 0.0_sp .and. relative_humidity <= 100.0_sp)) call refuse(fault, &
         'dry_bulb_from_moisture_content_and_relative_humidity', 'relative_humidity', 'valid 0 to 100 %', &
         relative_humidity)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, &
         'dry_bulb_from_moisture_content_and_relative_humidity', 'pressure', 'valid 50000 to 110000 Pa', pressure)
   end subroutine

   elemental subroutine check_dry_bulb_from_moisture_content_and_percentage_saturation(moisture_content, &
      percentage_saturation, pressure, fault)
      real(sp), intent(in) :: moisture_content, percentage_saturation, pressure
      type(quorvel_fault), intent(out) :: fault
      if (.not. (moisture_content >= 0.0_sp .and. moisture_content <= 0.1_sp)) call refuse(fault, &
         'dry_bulb_from_moisture_content_and_percentage_saturation', 'moisture_content', 'valid 0 to 0.1 kg/kg', &
         moisture_content)
      if (.not. (percentage_saturation >= 0.0_sp .and. percentage_saturation <= 100.0_sp)) call refuse(fault, &
         'dry_bulb_from_moisture_content_and_percentage_saturation', 'percentage_saturation', 'valid 0 to 100 %', &
         percentage_saturation)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, &
         'dry_bulb_from_moisture_content_and_percentage_saturation', 'pressure', 'valid 50000 to 110000 Pa', pressure)
   end subroutine

   elemental subroutine check_dry_bulb_from_enthalpy_and_moisture_content(enthalpy, moisture_content, fault)
      real(sp), intent(in) :: enthalpy, moisture_content
      type(quorvel_fault), intent(out) :: fault
      if (.not. (enthalpy >= -10.0_sp .and. enthalpy <= 460.0_sp)) call refuse(fault, &
         'dry_bulb_from_enthalpy_and_moisture_content', 'enthalpy', 'valid -10 to 460 kJ/kg', enthalpy)
      if (.not. (moisture_content >= 0.0_sp .and. moisture_content <= 0.1_sp)) call refuse(fault, &
         'dry_bulb_from_enthalpy_and_moisture_content', 'moisture_content', 'valid 0 to 0.1 kg/kg', moisture_content)
   end subroutine

   elemental subroutine check_dry_bulb_from_enthalpy_and_vapour_pressure(enthalpy, vapour_pressure, pressure, fault)
      real(sp), intent(in) :: enthalpy, vapour_pressure, pressure
      type(quorvel_fault), intent(out) :: fault
      if (.not. (enthalpy >= -10.0_sp .and. enthalpy <= 460.0_sp)) call refuse(fault, &
         'dry_bulb_from_enthalpy_and_vapour_pressure', 'enthalpy', 'valid -10 to 460 kJ/kg', enthalpy)
      if (.not. (vapour_pressure >= 0.0_sp)) call refuse(fault, 'dry_bulb_from_enthalpy_and_vapour_pressure', &
         'vapour_pressure', 'valid from 0 Pa', vapour_pressure)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, &
         'dry_bulb_from_enthalpy_and_vapour_pressure', 'pressure', 'valid 50000 to 110000 Pa', pressure)
   end subroutine

   elemental subroutine check_dry_bulb_from_enthalpy_and_relative_humidity(enthalpy, relative_humidity, pressure, &
      fault)
      real(sp), intent(in) :: enthalpy, relative_humidity, pressure
      type(quorvel_fault), intent(out) :: fault
      if (.not. (enthalpy >= -10.0_sp .and. enthalpy <= 460.0_sp)) call refuse(fault, &
         'dry_bulb_from_enthalpy_and_relative_humidity', 'enthalpy', 'valid -10 to 460 kJ/kg', enthalpy)
      if (.not. (relative_humidity >= 0.0_sp .and. relative_humidity <= 100.0_sp)) call refuse(fault, &
         'dry_bulb_from_enthalpy_and_relative_humidity', 'relative_humidity', 'valid 0 to 100 %', relative_humidity)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, &
         'dry_bulb_from_enthalpy_and_relative_humidity', 'pressure', 'valid 50000 to 110000 Pa', pressure)
   end subroutine

   elemental subroutine check_dry_bulb_from_enthalpy_and_percentage_saturation(enthalpy, percentage_saturation, &
      pressure, fault)
      real(sp), intent(in) :: enthalpy, percentage_saturation, pressure
      type(quorvel_fault), intent(out) :: fault
      if (.not. (enthalpy >= -10.0_sp .and. enthalpy <= 460.0_sp)) call refuse(fault, &
         'dry_bulb_from_enthalpy_and_percentage_saturation', 'enthalpy', 'valid -10 to 460 kJ/kg', enthalpy)
      if (.not. (percentage_saturation >= 0.0_sp .and. percentage_saturation <= 100.0_sp)) call refuse(fault, &
         'dry_bulb_from_enthalpy_and_percentage_saturation', 'percentage_saturation', 'valid 0 to 100 %', &
         percentage_saturation)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, &
         'dry_bulb_from_enthalpy_and_percentage_saturation', 'pressure', 'valid 50000 to 110000 Pa', pressure)
   end subroutine

   elemental subroutine check_dry_bulb_from_wet_bulb_and_vapour_pressure(wet_bulb, vapour_pressure, pressure, &
      psychrometer, fault)
      real(sp), intent(in) :: wet_bulb, vapour_pressure, pressure
      integer(i4), intent(in) :: psychrometer
      type(quorvel_fault), intent(out) :: fault
      if (.not. (wet_bulb >= -100.0_sp .and. wet_bulb <= 200.0_sp)) call refuse(fault, &
         'dry_bulb_from_wet_bulb_and_vapour_pressure', 'wet_bulb', 'valid -100 to 200 degC', wet_bulb)
      if (.not. (vapour_pressure >= 0.0_sp)) call refuse(fault, 'dry_bulb_from_wet_bulb_and_vapour_pressure', &
         'vapour_pressure', 'valid from 0 Pa', vapour_pressure)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, &
         'dry_bulb_from_wet_bulb_and_vapour_pressure', 'pressure', 'valid 50000 to 110000 Pa', pressure)
      if (.not. (psychrometer >= 1_i4 .and. psychrometer <= 2_i4)) call refuse(fault, &
         'dry_bulb_from_wet_bulb_and_vapour_pressure', 'psychrometer', 'valid 1 (sling), 2 (screen)', psychrometer)
   end subroutine

   elemental subroutine check_dry_bulb_from_wet_bulb_and_moisture_content(wet_bulb, moisture_content, pressure, &
      psychrometer, fault)
      real(sp), intent(in) :: wet_bulb, moisture_content, pressure
      integer(i4), intent(in) :: psychrometer
      type(quorvel_fault), intent(out) :: fault
      if (.not. (wet_bulb >= -100.0_sp .and. wet_bulb <= 200.0_sp)) call refuse(fault, &
         'dry_bulb_from_wet_bulb_and_moisture_content', 'wet_bulb', 'valid -100 to 200 degC', wet_bulb)
      if (.not. (moisture_content >= 0.0_sp .and. moisture_content <= 0.1_sp)) call refuse(fault, &
         'dry_bulb_from_wet_bulb_and_moisture_content', 'moisture_content', 'valid 0 to 0.1 kg/kg', moisture_content)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, &
         'dry_bulb_from_wet_bulb_and_moisture_content', 'pressure', 'valid 50000 to 110000 Pa', pressure)
      if (.not. (psychrometer >= 1_i4 .and. psychrometer <= 2_i4)) call refuse(fault, &
         'dry_bulb_from_wet_bulb_and_moisture_content', 'psychrometer', 'valid 1 (sling), 2 (screen)', psychrometer)
   end subroutine

   elemental subroutine check_dry_bulb_from_wet_bulb_and_relative_humidity(wet_bulb, relative_humidity, pressure, &
      psychrometer, fault)
      real(sp), intent(in) :: wet_bulb, relative_humidity, pressure
      integer(i4), intent(in) :: psychrometer
      type(quorvel_fault), intent(out) :: fault
      if (.not. (wet_bulb >= -100.0_sp .and. wet_bulb <= 200.0_sp)) call refuse(fault, &
         'dry_bulb_from_wet_bulb_and_relative_humidity', 'wet_bulb', 'valid -100 to 200 degC', wet_bulb)
      if (.not. (relative_humidity >= 0.0_sp .and. relative_humidity <= 100.0_sp)) call refuse(fault, &
         'dry_bulb_from_wet_bulb_and_relative_humidity', 'relative_humidity', 'valid 0 to 100 %', relative_humidity)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, &
         'dry_bulb_from_wet_bulb_and_relative_humidity', 'pressure', 'valid 50000 to 110000 Pa', pressure)
      if (.not. (psychrometer >= 1_i4 .and. psychrometer <= 2_i4)) call refuse(fault, &
         'dry_bulb_from_wet_bulb_and_relative_humidity', 'psychrometer', 'valid 1 (sling), 2 (screen)', psychrometer)
   end subroutine

   elemental subroutine check_dry_bulb_from_wet_bulb_and_percentage_saturation(wet_bulb, percentage_saturation, &
      pressure, psychrometer, fault)
      real(sp), intent(in) :: wet_bulb, percentage_saturation, pressure
      integer(i4), intent(in) :: psychrometer
      type(quorvel_fault), intent(out) :: fault
      if (.not. (wet_bulb >= -100.0_sp .and. wet_bulb <= 200.0_sp)) call refuse(fault, &
         'dry_bulb_from_wet_bulb_and_percentage_saturation', 'wet_bulb', 'valid -100 to 200 degC', wet_bulb)
      if (.not. (percentage_saturation >= 0.0_sp .and. percentage_saturation <= 100.0_sp)) call refuse(fault, &
         'dry_bulb_from_wet_bulb_and_percentage_saturation', 'percentage_saturation', 'valid 0 to 100 %', &
         percentage_saturation)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, &
         'dry_bulb_from_wet_bulb_and_percentage_saturation', 'pressure', 'valid 50000 to 110000 Pa', pressure)
      if (.not. (psychrometer >= 1_i4 .and. psychrometer <= 2_i4)) call refuse(fault, &
         'dry_bulb_from_wet_bulb_and_percentage_saturation', 'psychrometer', 'valid 1 (sling), 2 (screen)', &
         psychrometer)
   end subroutine

   elemental subroutine check_dry_bulb_from_wet_bulb_and_enthalpy(wet_bulb, enthalpy, pressure, psychrometer, fault)
      real(sp), intent(in) :: wet_bulb, enthalpy, pressure
      integer(i4), intent(in) :: psychrometer
      type(quorvel_fault), intent(out) :: fault
      if (.not. (wet_bulb >= -100.0_sp .and. wet_bulb <= 200.0_sp)) call refuse(fault, &
         'dry_bulb_from_wet_bulb_and_enthalpy', 'wet_bulb', 'valid -100 to 200 degC', wet_bulb)
      if (.not. (enthalpy >= -10.0_sp .and. enthalpy <= 460.0_sp)) call refuse(fault, &
         'dry_bulb_from_wet_bulb_and_enthalpy', 'enthalpy', 'valid -10 to 460 kJ/kg', enthalpy)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, &
         'dry_bulb_from_wet_bulb_and_enthalpy', 'pressure', 'valid 50000 to 110000 Pa', pressure)
      if (.not. (psychrometer >= 1_i4 .and. psychrometer <= 2_i4)) call refuse(fault, &
         'dry_bulb_from_wet_bulb_and_enthalpy', 'psychrometer', 'valid 1 (sling), 2 (screen)', psychrometer)
   end subroutine

   elemental subroutine check_adiabatic_mixing(first_air_flow, first_dry_bulb, first_moisture_content, &
      second_air_flow, second_dry_bulb, second_moisture_content, fault)
      real(sp), intent(in) :: first_air_flow, first_dry_bulb, first_moisture_content, second_air_flow, &
         second_dry_bulb, second_moisture_content
      type(quorvel_fault), intent(out) :: fault
      if (.not. (first_air_flow >= 0.0_sp)) call refuse(fault, 'adiabatic_mixing', 'first_air_flow', &
         'valid from 0 kg/s', first_air_flow)
      if (.not. (first_dry_bulb >= -100.0_sp .and. first_dry_bulb <= 200.0_sp)) call refuse(fault, 'adiabatic_mixing', &
         'first_dry_bulb', 'valid -100 to 200 degC', first_dry_bulb)
      if (.not. (first_moisture_content >= 0.0_sp .and. first_moisture_content <= 0.1_sp)) call refuse(fault, &
         'adiabatic_mixing', 'first_moisture_content', 'valid 0 to 0.1 kg/kg', first_moisture_content)
      if (.not. (second_air_flow >= 0.0_sp)) call refuse(fault, 'adiabatic_mixing', 'second_air_flow', &
         'valid from 0 kg/s', second_air_flow)
      if (.not. (second_dry_bulb >= -100.0_sp .and. second_dry_bulb <= 200.0_sp)) call refuse(fault, &
         'adiabatic_mixing', 'second_dry_bulb', 'valid -100 to 200 degC', second_dry_bulb)
      if (.not. (second_moisture_content >= 0.0_sp .and. second_moisture_content <= 0.1_sp)) call refuse(fault, &
         'adiabatic_mixing', 'second_moisture_content', 'valid 0 to 0.1 kg/kg', second_moisture_content)
   end subroutine

   elemental subroutine check_moisture_content_from_psychrometer(dry_bulb, wet_bulb, pressure, psychrometer, fault)
      real(sp), intent(in) :: dry_bulb, wet_bulb, pressure
      integer(i4), intent(in) :: psychrometer
      type(quorvel_fault), intent(out) :: fault
      if (.not. (dry_bulb >= -100.0_sp .and. dry_bulb <= 200.0_sp)) call refuse(fault, &
         'moisture_content_from_psychrometer', 'dry_bulb', 'valid -100 to 200 degC', dry_bulb)
      if (.not. (wet_bulb >= -100.0_sp .and. wet_bulb <= 200.0_sp)) call refuse(fault, &
         'moisture_content_from_psychrometer', 'wet_bulb', 'valid -100 to 200 degC', wet_bulb)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, &
         'moisture_content_from_psychrometer', 'pressure', 'valid 50000 to 110000 Pa', pressure)
      if (.not. (psychrometer >= 1_i4 .and. psychrometer <= 2_i4)) call refuse(fault, &
         'moisture_content_from_psychrometer', 'psychrometer', 'valid 1 (sling), 2 (screen)', psychrometer)
   end subroutine

   elemental subroutine check_moisture_content(dry_bulb, vapour_pressure, pressure, fault)
      real(sp), intent(in) :: dry_bulb, vapour_pressure, pressure
      type(quorvel_fault), intent(out) :: fault
      if (.not. (dry_bulb >= -100.0_sp .and. dry_bulb <= 200.0_sp)) call refuse(fault, 'moisture_content', 'dry_bulb', &
         'valid -100 to 200 degC', dry_bulb)
      if (.not. (vapour_pressure >= 0.0_sp)) call refuse(fault, 'moisture_content', 'vapour_pressure', &
         'valid from 0 Pa', vapour_pressure)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, 'moisture_content', &
         'pressure', 'valid 50000 to 110000 Pa', pressure)
   end subroutine

   elemental subroutine check_vapour_pressure_from_moisture_content(dry_bulb, moisture_content, pressure, fault)
      real(sp), intent(in) :: dry_bulb, moisture_content, pressure
      type(quorvel_fault), intent(out) :: fault
      if (.not. (dry_bulb >= -100.0_sp .and. dry_bulb <= 200.0_sp)) call refuse(fault, &
         'vapour_pressure_from_moisture_content', 'dry_bulb', 'valid -100 to 200 degC', dry_bulb)
      if (.not. (moisture_content >= 0.0_sp .and. moisture_content <= 0.1_sp)) call refuse(fault, &
         'vapour_pressure_from_moisture_content', 'moisture_content', 'valid 0 to 0.1 kg/kg', moisture_content)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, &
         'vapour_pressure_from_moisture_content', 'pressure', 'valid 50000 to 110000 Pa', pressure)
   end subroutine

   elemental subroutine check_moisture_content_from_percentage_saturation(dry_bulb, percentage_saturation, pressure, &
      fault)
      real(sp), intent(in) :: dry_bulb, percentage_saturation, pressure
      type(quorvel_fault), intent(out) :: fault
      if (.not. (dry_bulb >= -100.0_sp .and. dry_bulb <= 200.0_sp)) call refuse(fault, &
         'moisture_content_from_percentage_saturation', 'dry_bulb', 'valid -100 to 200 degC', dry_bulb)
      if (.not. (percentage_saturation >= 0.0_sp .and. percentage_saturation <= 100.0_sp)) call refuse(fault, &
         'moisture_content_from_percentage_saturation', 'percentage_saturation', 'valid 0 to 100 %', &
         percentage_saturation)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, &
         'moisture_content_from_percentage_saturation', 'pressure', 'valid 50000 to 110000 Pa', pressure)
   end subroutine

   elemental subroutine check_moisture_content_from_enthalpy(dry_bulb, enthalpy, fault)
      real(sp), intent(in) :: dry_bulb, enthalpy
      type(quorvel_fault), intent(out) :: fault
      if (.not. (dry_bulb >= -50.0_sp .and. dry_bulb <= 100.0_sp)) call refuse(fault, &
         'moisture_content_from_enthalpy', 'dry_bulb', 'valid -50 to 100 degC', dry_bulb)
      if (.not. (enthalpy >= -10.0_sp .and. enthalpy <= 460.0_sp)) call refuse(fault, &
         'moisture_content_from_enthalpy', 'enthalpy', 'valid -10 to 460 kJ/kg', enthalpy)
   end subroutine

   elemental subroutine check_moist_air_density(dry_bulb, moisture_content, pressure, fault)
      real(sp), intent(in) :: dry_bulb, moisture_content, pressure
      type(quorvel_fault), intent(out) :: fault
      if (.not. (dry_bulb >= -100.0_sp .and. dry_bulb <= 200.0_sp)) call refuse(fault, 'moist_air_density', &
         'dry_bulb', 'valid -100 to 200 degC', dry_bulb)
      if (.not. (moisture_content >= 0.0_sp .and. moisture_content <= 0.1_sp)) call refuse(fault, 'moist_air_density', &
         'moisture_content', 'valid 0 to 0.1 kg/kg', moisture_content)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, 'moist_air_density', &
         'pressure', 'valid 50000 to 110000 Pa', pressure)
   end subroutine

   elemental subroutine check_percentage_saturation(dry_bulb, moisture_content, pressure, fault)
      real(sp), intent(in) :: dry_bulb, moisture_content, pressure
      type(quorvel_fault), intent(out) :: fault
      if (.not. (dry_bulb >= -100.0_sp .and. dry_bulb <= 200.0_sp)) call refuse(fault, 'percentage_saturation', &
         'dry_bulb', 'valid -100 to 200 degC', dry_bulb)
      if (.not. (moisture_content >= 0.0_sp .and. moisture_content <= 0.1_sp)) call refuse(fault, &
         'percentage_saturation', 'moisture_content', 'valid 0 to 0.1 kg/kg', moisture_content)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, 'percentage_saturation', &
         'pressure', 'valid 50000 to 110000 Pa', pressure)
   end subroutine

   elemental subroutine check_specific_enthalpy(dry_bulb, moisture_content, fault)
      real(sp), intent(in) :: dry_bulb, moisture_content
      type(quorvel_fault), intent(out) :: fault
      if (.not. (dry_bulb >= -50.0_sp .and. dry_bulb <= 100.0_sp)) call refuse(fault, 'specific_enthalpy', 'dry_bulb', &
         'valid -50 to 100 degC', dry_bulb)
      if (.not. (moisture_content >= 0.0_sp .and. moisture_content <= 0.1_sp)) call refuse(fault, 'specific_enthalpy', &
         'moisture_content', 'valid 0 to 0.1 kg/kg', moisture_content)
   end subroutine

   elemental subroutine check_specific_enthalpy_from_psychrometer(dry_bulb, wet_bulb, pressure, psychrometer, fault)
      real(sp), intent(in) :: dry_bulb, wet_bulb, pressure
      integer(i4), intent(in) :: psychrometer
      type(quorvel_fault), intent(out) :: fault
      if (.not. (dry_bulb >= -100.0_sp .and. dry_bulb <= 200.0_sp)) call refuse(fault, &
         'specific_enthalpy_from_psychrometer', 'dry_bulb', 'valid -100 to 200 degC', dry_bulb)
      if (.not. (wet_bulb >= -100.0_sp .and. wet_bulb <= 200.0_sp)) call refuse(fault, &
         'specific_enthalpy_from_psychrometer', 'wet_bulb', 'valid -100 to 200 degC', wet_bulb)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, &
         'specific_enthalpy_from_psychrometer', 'pressure', 'valid 50000 to 110000 Pa', pressure)
      if (.not. (psychrometer >= 1_i4 .and. psychrometer <= 2_i4)) call refuse(fault, &
         'specific_enthalpy_from_psychrometer', 'psychrometer', 'valid 1 (sling), 2 (screen)', psychrometer)
   end subroutine

   elemental subroutine check_specific_volume(dry_bulb, moisture_content, pressure, fault)
      real(sp), intent(in) :: dry_bulb, moisture_content, pressure
      type(quorvel_fault), intent(out) :: fault
      if (.not. (dry_bulb >= -100.0_sp .and. dry_bulb <= 200.0_sp)) call refuse(fault, 'specific_volume', 'dry_bulb', &
         'valid -100 to 200 degC', dry_bulb)
      if (.not. (moisture_content >= 0.0_sp .and. moisture_content <= 0.1_sp)) call refuse(fault, 'specific_volume', &
         'moisture_content', 'valid 0 to 0.1 kg/kg', moisture_content)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, 'specific_volume', &
         'pressure', 'valid 50000 to 110000 Pa', pressure)
   end subroutine

   elemental subroutine check_saturation_temperature_from_enthalpy(enthalpy, pressure, fault)
      real(sp), intent(in) :: enthalpy, pressure
      type(quorvel_fault), intent(out) :: fault
      if (.not. (enthalpy >= -10.0_sp .and. enthalpy <= 460.0_sp)) call refuse(fault, &
         'saturation_temperature_from_enthalpy', 'enthalpy', 'valid -10 to 460 kJ/kg', enthalpy)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, &
         'saturation_temperature_from_enthalpy', 'pressure', 'valid 50000 to 110000 Pa', pressure)
   end subroutine

   elemental subroutine check_pool_evaporation(water_area, wetted_area, water_temperature, dry_bulb, moisture_content, &
      reference_temperature, bathers, reference_coefficient, pressure, fault)
      real(sp), intent(in) :: water_area, wetted_area, water_temperature, dry_bulb, moisture_content, &
         reference_temperature
      integer(i4), intent(in) :: bathers
      real(sp), intent(in) :: reference_coefficient, pressure
      type(quorvel_fault), intent(out) :: fault
      if (.not. (water_area >= 0.0_sp)) call refuse(fault, 'pool_evaporation', 'water_area', 'valid from 0 m2', &
         water_area)
      if (.not. (wetted_area >= 0.0_sp)) call refuse(fault, 'pool_evaporation', 'wetted_area', 'valid from 0 m2', &
         wetted_area)
      if (.not. (water_temperature >= -100.0_sp .and. water_temperature <= 200.0_sp)) call refuse(fault, &
         'pool_evaporation', 'water_temperature', 'valid -100 to 200 degC', water_temperature)
      if (.not. (dry_bulb >= -100.0_sp .and. dry_bulb <= 200.0_sp)) call refuse(fault, 'pool_evaporation', 'dry_bulb', &
         'valid -100 to 200 degC', dry_bulb)
      if (.not. (moisture_content >= 0.0_sp .and. moisture_content <= 0.1_sp)) call refuse(fault, 'pool_evaporation', &
         'moisture_content', 'valid 0 to 0.1 kg/kg', moisture_content)
      if (.not. (reference_temperature >= -100.0_sp .and. reference_temperature <= 200.0_sp)) call refuse(fault, &
         'pool_evaporation', 'reference_temperature', 'valid -100 to 200 degC', reference_temperature)
      if (.not. (bathers >= 0_i4)) call refuse(fault, 'pool_evaporation', 'bathers', 'valid from 0', bathers)
      if (.not. (reference_coefficient >= 0.0_sp)) call refuse(fault, 'pool_evaporation', 'reference_coefficient', &
         'valid from 0 W/m2K', reference_coefficient)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, 'pool_evaporation', &
         'pressure', 'valid 50000 to 110000 Pa', pressure)
   end subroutine

   elemental subroutine check_pool_evaporation_from_wet_bulb(water_area, wetted_area, water_temperature, dry_bulb, &
      wet_bulb, reference_temperature, bathers, reference_coefficient, pressure, fault)
      real(sp), intent(in) :: water_area, wetted_area, water_temperature, dry_bulb, wet_bulb, reference_temperature
      integer(i4), intent(in) :: bathers
      real(sp), intent(in) :: reference_coefficient, pressure
      type(quorvel_fault), intent(out) :: fault
      if (.not. (water_area >= 0.0_sp)) call refuse(fault, 'pool_evaporation_from_wet_bulb', 'water_area', &
         'valid from 0 m2', water_area)
      if (.not. (wetted_area >= 0.0_sp)) call refuse(fault, 'pool_evaporation_from_wet_bulb', 'wetted_area', &
         'valid from 0 m2', wetted_area)
      if (.not. (water_temperature >= -100.0_sp .and. water_temperature <= 200.0_sp)) call refuse(fault, &
         'pool_evaporation_from_wet_bulb', 'water_temperature', 'valid -100 to 200 degC', water_temperature)
      if (.not. (dry_bulb >= -100.0_sp .and. dry_bulb <= 200.0_sp)) call refuse(fault, &
         'pool_evaporation_from_wet_bulb', 'dry_bulb', 'valid -100 to 200 degC', dry_bulb)
      if (.not. (wet_bulb >= -100.0_sp .and. wet_bulb <= 200.0_sp)) call refuse(fault, &
         'pool_evaporation_from_wet_bulb', 'wet_bulb', 'valid -100 to 200 degC', wet_bulb)
      if (.not. (reference_temperature >= -100.0_sp .and. reference_temperature <= 200.0_sp)) call refuse(fault, &
         'pool_evaporation_from_wet_bulb', 'reference_temperature', 'valid -100 to 200 degC', reference_temperature)
      if (.not. (bathers >= 0_i4)) call refuse(fault, 'pool_evaporation_from_wet_bulb', 'bathers', 'valid from 0', &
         bathers)
      if (.not. (reference_coefficient >= 0.0_sp)) call refuse(fault, 'pool_evaporation_from_wet_bulb', &
         'reference_coefficient', 'valid from 0 W/m2K', reference_coefficient)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, &
         'pool_evaporation_from_wet_bulb', 'pressure', 'valid 50000 to 110000 Pa', pressure)
   end subroutine

   elemental subroutine check_saturation_pressure(temperature, fault)
      real(sp), intent(in) :: temperature
      type(quorvel_fault), intent(out) :: fault
      if (.not. (temperature >= -100.0_sp .and. temperature <= 200.0_sp)) call refuse(fault, 'saturation_pressure', &
         'temperature', 'valid -100 to 200 degC', temperature)
   end subroutine

   elemental subroutine check_dew_point(vapour_pressure, fault)
      real(sp), intent(in) :: vapour_pressure
      type(quorvel_fault), intent(out) :: fault
      if (.not. (vapour_pressure >= 0.0_sp)) call refuse(fault, 'dew_point', 'vapour_pressure', 'valid from 0 Pa', &
         vapour_pressure)
   end subroutine

   elemental subroutine check_vapour_pressure(dry_bulb, relative_humidity, fault)
      real(sp), intent(in) :: dry_bulb, relative_humidity
      type(quorvel_fault), intent(out) :: fault
      if (.not. (dry_bulb >= -100.0_sp .and. dry_bulb <= 200.0_sp)) call refuse(fault, 'vapour_pressure', 'dry_bulb', &
         'valid -100 to 200 degC', dry_bulb)
      if (.not. (relative_humidity >= 0.0_sp .and. relative_humidity <= 100.0_sp)) call refuse(fault, &
         'vapour_pressure', 'relative_humidity', 'valid 0 to 100 %', relative_humidity)
   end subroutine

   elemental subroutine check_relative_humidity(dry_bulb, vapour_pressure, fault)
      real(sp), intent(in) :: dry_bulb, vapour_pressure
      type(quorvel_fault), intent(out) :: fault
      if (.not. (dry_bulb >= -100.0_sp .and. dry_bulb <= 200.0_sp)) call refuse(fault, 'relative_humidity', &
         'dry_bulb', 'valid -100 to 200 degC', dry_bulb)
      if (.not. (vapour_pressure >= 0.0_sp)) call refuse(fault, 'relative_humidity', 'vapour_pressure', &
         'valid from 0 Pa', vapour_pressure)
   end subroutine

   elemental subroutine check_vapour_pressure_from_psychrometer(dry_bulb, wet_bulb, pressure, psychrometer, fault)
      real(sp), intent(in) :: dry_bulb, wet_bulb, pressure
      integer(i4), intent(in) :: psychrometer
      type(quorvel_fault), intent(out) :: fault
      if (.not. (dry_bulb >= -100.0_sp .and. dry_bulb <= 200.0_sp)) call refuse(fault, &
         'vapour_pressure_from_psychrometer', 'dry_bulb', 'valid -100 to 200 degC', dry_bulb)
      if (.not. (wet_bulb >= -100.0_sp .and. wet_bulb <= 200.0_sp)) call refuse(fault, &
         'vapour_pressure_from_psychrometer', 'wet_bulb', 'valid -100 to 200 degC', wet_bulb)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, &
         'vapour_pressure_from_psychrometer', 'pressure', 'valid 50000 to 110000 Pa', pressure)
      if (.not. (psychrometer >= 1_i4 .and. psychrometer <= 2_i4)) call refuse(fault, &
         'vapour_pressure_from_psychrometer', 'psychrometer', 'valid 1 (sling), 2 (screen)', psychrometer)
   end subroutine

   elemental subroutine check_weighted_temperature(first_temperature, second_temperature, fault)
      real(sp), intent(in) :: first_temperature, second_temperature
      type(quorvel_fault), intent(out) :: fault
      if (.not. (first_temperature >= -100.0_sp .and. first_temperature <= 200.0_sp)) call refuse(fault, &
         'weighted_temperature', 'first_temperature', 'valid -100 to 200 degC', first_temperature)
      if (.not. (second_temperature >= -100.0_sp .and. second_temperature <= 200.0_sp)) call refuse(fault, &
         'weighted_temperature', 'second_temperature', 'valid -100 to 200 degC', second_temperature)
   end subroutine

   elemental subroutine check_psychrometer_wet_bulb(dry_bulb, relative_humidity, pressure, psychrometer, fault)
      real(sp), intent(in) :: dry_bulb, relative_humidity, pressure
      integer(i4), intent(in) :: psychrometer
      type(quorvel_fault), intent(out) :: fault
      if (.not. (dry_bulb >= -100.0_sp .and. dry_bulb <= 200.0_sp)) call refuse(fault, 'psychrometer_wet_bulb', &
         'dry_bulb', 'valid -100 to 200 degC', dry_bulb)
      if (.not. (relative_humidity >= 0.0_sp .and. relative_humidity <= 100.0_sp)) call refuse(fault, &
         'psychrometer_wet_bulb', 'relative_humidity', 'valid 0 to 100 %', relative_humidity)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, 'psychrometer_wet_bulb', &
         'pressure', 'valid 50000 to 110000 Pa', pressure)
      if (.not. (psychrometer >= 1_i4 .and. psychrometer <= 2_i4)) call refuse(fault, 'psychrometer_wet_bulb', &
         'psychrometer', 'valid 1 (sling), 2 (screen)', psychrometer)
   end subroutine

   elemental subroutine check_wet_bulb_from_percentage_saturation(dry_bulb, percentage_saturation, pressure, &
      psychrometer, fault)
      real(sp), intent(in) :: dry_bulb, percentage_saturation, pressure
      integer(i4), intent(in) :: psychrometer
      type(quorvel_fault), intent(out) :: fault
      if (.not. (dry_bulb >= -100.0_sp .and. dry_bulb <= 200.0_sp)) call refuse(fault, &
         'wet_bulb_from_percentage_saturation', 'dry_bulb', 'valid -100 to 200 degC', dry_bulb)
      if (.not. (percentage_saturation >= 0.0_sp .and. percentage_saturation <= 100.0_sp)) call refuse(fault, &
         'wet_bulb_from_percentage_saturation', 'percentage_saturation', 'valid 0 to 100 %', percentage_saturation)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, &
         'wet_bulb_from_percentage_saturation', 'pressure', 'valid 50000 to 110000 Pa', pressure)
      if (.not. (psychrometer >= 1_i4 .and. psychrometer <= 2_i4)) call refuse(fault, &
         'wet_bulb_from_percentage_saturation', 'psychrometer', 'valid 1 (sling), 2 (screen)', psychrometer)
   end subroutine

   elemental subroutine check_wet_bulb_from_moisture_content(dry_bulb, moisture_content, pressure, psychrometer, &
      fault)
      real(sp), intent(in) :: dry_bulb, moisture_content, pressure
      integer(i4), intent(in) :: psychrometer
      type(quorvel_fault), intent(out) :: fault
      if (.not. (dry_bulb >= -100.0_sp .and. dry_bulb <= 200.0_sp)) call refuse(fault, &
         'wet_bulb_from_moisture_content', 'dry_bulb', 'valid -100 to 200 degC', dry_bulb)
      if (.not. (moisture_content >= 0.0_sp .and. moisture_content <= 0.1_sp)) call refuse(fault, &
         'wet_bulb_from_moisture_content', 'moisture_content', 'valid 0 to 0.1 kg/kg', moisture_content)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, &
         'wet_bulb_from_moisture_content', 'pressure', 'valid 50000 to 110000 Pa', pressure)
      if (.not. (psychrometer >= 1_i4 .and. psychrometer <= 2_i4)) call refuse(fault, &
         'wet_bulb_from_moisture_content', 'psychrometer', 'valid 1 (sling), 2 (screen)', psychrometer)
   end subroutine

   elemental subroutine check_wet_bulb(dry_bulb, vapour_pressure, pressure, psychrometer, fault)
      real(sp), intent(in) :: dry_bulb, vapour_pressure, pressure
      integer(i4), intent(in) :: psychrometer
      type(quorvel_fault), intent(out) :: fault
      if (.not. (dry_bulb >= -100.0_sp .and. dry_bulb <= 200.0_sp)) call refuse(fault, 'wet_bulb', 'dry_bulb', &
         'valid -100 to 200 degC', dry_bulb)
      if (.not. (vapour_pressure >= 0.0_sp)) call refuse(fault, 'wet_bulb', 'vapour_pressure', 'valid from 0 Pa', &
         vapour_pressure)
      if (.not. (pressure >= 50000.0_sp .and. pressure <= 110000.0_sp)) call refuse(fault, 'wet_bulb', 'pressure', &
         'valid 50000 to 110000 Pa', pressure)
      if (.not. (psychrometer >= 1_i4 .and. psychrometer <= 2_i4)) call refuse(fault, 'wet_bulb', 'psychrometer', &
         'valid 1 (sling), 2 (screen)', psychrometer)
   end subroutine

   pure subroutine check_cyclic_response(thickness, conductivity, density, specific_heat, inside_resistance, &
      outside_resistance, harmonic, element_kind, fault)
      real(sp), intent(in) :: thickness(:), conductivity(:), density(:), specific_heat(:), inside_resistance, &
         outside_resistance
      integer(i4), intent(in) :: harmonic, element_kind
      type(quorvel_fault), intent(out) :: fault
      call expect_as_many(fault, 'cyclic_response', 'conductivity', size(conductivity), 'thickness', size(thickness))
      call expect_as_many(fault, 'cyclic_response', 'density', size(density), 'thickness', size(thickness))
      call expect_as_many(fault, 'cyclic_response', 'specific_heat', size(specific_heat), 'thickness', &
         size(thickness))
      call expect_count(fault, 'cyclic_response', 'thickness', size(thickness), 0, 20)
      call expect_all(fault, 'cyclic_response', 'thickness', 'valid is any number', [.not. ieee_is_nan(thickness)], &
         [real(thickness, dp)], 0)
      call expect_all(fault, 'cyclic_response', 'conductivity', 'valid from 0 W/mK', [conductivity >= 0.0_sp], &
         [real(conductivity, dp)], 0)
      call expect_all(fault, 'cyclic_response', 'density', 'valid from 0 kg/m3', [density >= 0.0_sp], [real(density, &
         dp)], 0)
      call expect_all(fault, 'cyclic_response', 'specific_heat', 'valid from 0 J/kgK', [specific_heat >= 0.0_sp], &
         [real(specific_heat, dp)], 0)
      if (.not. (inside_resistance >= 0.0_sp)) call refuse(fault, 'cyclic_response', 'inside_resistance', &
         'valid from 0 m2K/W', inside_resistance)
      if (.not. (outside_resistance >= 0.0_sp)) call refuse(fault, 'cyclic_response', 'outside_resistance', &
         'valid from 0 m2K/W', outside_resistance)
      if (.not. (harmonic >= 0_i4)) call refuse(fault, 'cyclic_response', 'harmonic', 'valid from 0', harmonic)
      if (.not. (element_kind >= 1_i4 .and. element_kind <= 2_i4)) call refuse(fault, 'cyclic_response', &
         'element_kind', 'valid 1 (between), 2 (partition)', element_kind)
   end subroutine

   elemental subroutine check_vertical_cavity_resistance(cavity_width, fault)
      real(sp), intent(in) :: cavity_width
      type(quorvel_fault), intent(out) :: fault
      if (.not. (cavity_width >= 0.001_sp)) call refuse(fault, 'vertical_cavity_resistance', 'cavity_width', &
         'valid from 0.001 m', cavity_width)
   end subroutine

   elemental subroutine check_air_cavity_resistance(tilt, cavity_width, emissivity_1, emissivity_2, fault)
      real(sp), intent(in) :: tilt, cavity_width, emissivity_1, emissivity_2
      type(quorvel_fault), intent(out) :: fault
      if (.not. (tilt >= 0.0_sp .and. tilt <= 3.1416_sp)) call refuse(fault, 'air_cavity_resistance', 'tilt', &
         'valid 0 to 3.1416 rad', tilt)
      if (.not. (cavity_width >= 0.001_sp)) call refuse(fault, 'air_cavity_resistance', 'cavity_width', &
         'valid from 0.001 m', cavity_width)
      if (.not. (emissivity_1 >= 0.0_sp .and. emissivity_1 <= 1.0_sp)) call refuse(fault, 'air_cavity_resistance', &
         'emissivity_1', 'valid 0 to 1', emissivity_1)
      if (.not. (emissivity_2 >= 0.0_sp .and. emissivity_2 <= 1.0_sp)) call refuse(fault, 'air_cavity_resistance', &
         'emissivity_2', 'valid 0 to 1', emissivity_2)
   end subroutine

   elemental subroutine check_gas_cavity_resistance(tilt, cavity_width, emissivity_1, emissivity_2, density, &
      conductivity, specific_heat, viscosity, fault)
      real(sp), intent(in) :: tilt, cavity_width, emissivity_1, emissivity_2, density, conductivity, specific_heat, &
         viscosity
      type(quorvel_fault), intent(out) :: fault
      if (.not. (tilt >= 0.0_sp .and. tilt <= 3.1416_sp)) call refuse(fault, 'gas_cavity_resistance', 'tilt', &
         'valid 0 to 3.1416 rad', tilt)
      if (.not. (cavity_width >= 0.001_sp)) call refuse(fault, 'gas_cavity_resistance', 'cavity_width', &
         'valid from 0.001 m', cavity_width)
      if (.not. (emissivity_1 >= 0.0_sp .and. emissivity_1 <= 1.0_sp)) call refuse(fault, 'gas_cavity_resistance', &
         'emissivity_1', 'valid 0 to 1', emissivity_1)
      if (.not. (emissivity_2 >= 0.0_sp .and. emissivity_2 <= 1.0_sp)) call refuse(fault, 'gas_cavity_resistance', &
         'emissivity_2', 'valid 0 to 1', emissivity_2)
      if (.not. (density >= 0.0_sp)) call refuse(fault, 'gas_cavity_resistance', 'density', 'valid from 0 kg/m3', &
         density)
      if (.not. (conductivity >= 0.0_sp)) call refuse(fault, 'gas_cavity_resistance', 'conductivity', &
         'valid from 0 W/mK', conductivity)
      if (.not. (specific_heat >= 0.0_sp)) call refuse(fault, 'gas_cavity_resistance', 'specific_heat', &
         'valid from 0 J/kgK', specific_heat)
      if (.not. (viscosity >= 0.0_sp)) call refuse(fault, 'gas_cavity_resistance', 'viscosity', 'valid from 0 Pa s', &
         viscosity)
   end subroutine

   pure subroutine check_total_vapour_resistance(thickness, vapour_resistivity, fault)
      real(sp), intent(in) :: thickness(:), vapour_resistivity(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_as_many(fault, 'total_vapour_resistance', 'vapour_resistivity', size(vapour_resistivity), &
         'thickness', size(thickness))
      call expect_count(fault, 'total_vapour_resistance', 'thickness', size(thickness), 0, 20)
      call expect_all(fault, 'total_vapour_resistance', 'thickness', 'valid is any number', [.not. &
         ieee_is_nan(thickness)], [real(thickness, dp)], 0)
      call expect_all(fault, 'total_vapour_resistance', 'vapour_resistivity', 'valid from 0 GN s/(kg m)', &
         [vapour_resistivity >= 0.0_sp], [real(vapour_resistivity, dp)], 0)
   end subroutine

   pure subroutine check_condensation_profile(thickness, conductivity, vapour_resistivity, inside_resistance, &
      outside_resistance, inside_temperature, outside_temperature, inside_humidity, outside_humidity, fault)
      real(sp), intent(in) :: thickness(:), conductivity(:), vapour_resistivity(:), inside_resistance, &
         outside_resistance, inside_temperature, outside_temperature, inside_humidity, outside_humidity
      type(quorvel_fault), intent(out) :: fault
      call expect_as_many(fault, 'condensation_profile', 'conductivity', size(conductivity), 'thickness', &
         size(thickness))
      call expect_as_many(fault, 'condensation_profile', 'vapour_resistivity', size(vapour_resistivity), 'thickness', &
         size(thickness))
      call expect_count(fault, 'condensation_profile', 'thickness', size(thickness), 0, 20)
      call expect_all(fault, 'condensation_profile', 'thickness', 'valid is any number', [.not. &
         ieee_is_nan(thickness)], [real(thickness, dp)], 0)
      call expect_all(fault, 'condensation_profile', 'conductivity', 'valid from 0 W/mK', [conductivity >= 0.0_sp], &
         [real(conductivity, dp)], 0)
      call expect_all(fault, 'condensation_profile', 'vapour_resistivity', 'valid from 0 GN s/(kg m)', &
         [vapour_resistivity >= 0.0_sp], [real(vapour_resistivity, dp)], 0)
      if (.not. (inside_resistance >= 0.0_sp)) call refuse(fault, 'condensation_profile', 'inside_resistance', &
         'valid from 0 m2K/W', inside_resistance)
      if (.not. (outside_resistance >= 0.0_sp)) call refuse(fault, 'condensation_profile', 'outside_resistance', &
         'valid from 0 m2K/W', outside_resistance)
      if (.not. (inside_temperature >= -100.0_sp .and. inside_temperature <= 200.0_sp)) call refuse(fault, &
         'condensation_profile', 'inside_temperature', 'valid -100 to 200 degC', inside_temperature)
      if (.not. (outside_temperature >= -100.0_sp .and. outside_temperature <= 200.0_sp)) call refuse(fault, &
         'condensation_profile', 'outside_temperature', 'valid -100 to 200 degC', outside_temperature)
      if (.not. (inside_humidity >= 0.0_sp .and. inside_humidity <= 100.0_sp)) call refuse(fault, &
         'condensation_profile', 'inside_humidity', 'valid 0 to 100 %', inside_humidity)
      if (.not. (outside_humidity >= 0.0_sp .and. outside_humidity <= 100.0_sp)) call refuse(fault, &
         'condensation_profile', 'outside_humidity', 'valid 0 to 100 %', outside_humidity)
   end subroutine

   elemental subroutine check_condenses_within_layer(warm_temperature, cold_temperature, warm_vapour_pressure, &
      cold_vapour_pressure, fault)
      real(sp), intent(in) :: warm_temperature, cold_temperature, warm_vapour_pressure, cold_vapour_pressure
      type(quorvel_fault), intent(out) :: fault
      if (.not. (warm_temperature >= -100.0_sp .and. warm_temperature <= 200.0_sp)) call refuse(fault, &
         'condenses_within_layer', 'warm_temperature', 'valid -100 to 200 degC', warm_temperature)
      if (.not. (cold_temperature >= -100.0_sp .and. cold_temperature <= 200.0_sp)) call refuse(fault, &
         'condenses_within_layer', 'cold_temperature', 'valid -100 to 200 degC', cold_temperature)
      if (.not. (warm_vapour_pressure >= 0.0_sp)) call refuse(fault, 'condenses_within_layer', 'warm_vapour_pressure', &
         'valid from 0 Pa', warm_vapour_pressure)
      if (.not. (cold_vapour_pressure >= 0.0_sp)) call refuse(fault, 'condenses_within_layer', 'cold_vapour_pressure', &
         'valid from 0 Pa', cold_vapour_pressure)
   end subroutine

   pure subroutine check_element_property(element_records, record_number, item, fault)
      real(sp), intent(in) :: element_records(:, :)
      integer(i4), intent(in) :: record_number, item
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'element_property', 'element_records', size(element_records, 1), 10)
      call expect_count(fault, 'element_property', 'element_records', size(element_records)/10, 1, 2147483647)
      call expect_all(fault, 'element_property', 'element_records', 'valid is any number', [.not. &
         ieee_is_nan(element_records)], [real(element_records, dp)], 10)
      if (.not. (record_number >= 1_i4)) call refuse(fault, 'element_property', 'record_number', 'valid from 1', &
         record_number)
      if (.not. (item >= 1_i4 .and. item <= 72_i4)) call refuse(fault, 'element_property', 'item', 'valid 1 to 72', &
         item)
   end subroutine

   elemental subroutine check_natural_convection_coefficient(temperature_difference, characteristic_length, &
      heat_flow_direction, fault)
      real(sp), intent(in) :: temperature_difference, characteristic_length
      integer(i4), intent(in) :: heat_flow_direction
      type(quorvel_fault), intent(out) :: fault
      if (.not. (.not. ieee_is_nan(temperature_difference))) call refuse(fault, 'natural_convection_coefficient', &
         'temperature_difference', 'valid is any number', temperature_difference)
      if (.not. (characteristic_length >= 0.0_sp)) call refuse(fault, 'natural_convection_coefficient', &
         'characteristic_length', 'valid from 0 m', characteristic_length)
      if (.not. (heat_flow_direction >= 1_i4 .and. heat_flow_direction <= 3_i4)) call refuse(fault, &
         'natural_convection_coefficient', 'heat_flow_direction', 'valid 1 (upward), 2 (horizontal), 3 (downward)', &
         heat_flow_direction)
   end subroutine

   elemental subroutine check_pack_two_fractions(packing, packed_number, fraction_1, fraction_2, fault)
      integer(i4), intent(in) :: packing
      real(sp), intent(in) :: packed_number, fraction_1, fraction_2
      type(quorvel_fault), intent(out) :: fault
      if (.not. (packing >= 1_i4 .and. packing <= 2_i4)) call refuse(fault, 'pack_two_fractions', 'packing', &
         'valid 1 (pack), 2 (unpack)', packing)
      if (.not. (packed_number >= 0.0_sp .and. packed_number <= 9999.99_sp)) call refuse(fault, 'pack_two_fractions', &
         'packed_number', 'valid 0 to 9999.99', packed_number)
      if (.not. (fraction_1 >= 0.0_sp .and. fraction_1 <= 0.99_sp)) call refuse(fault, 'pack_two_fractions', &
         'fraction_1', 'valid 0 to 0.99', fraction_1)
      if (.not. (fraction_2 >= 0.0_sp .and. fraction_2 <= 0.99_sp)) call refuse(fault, 'pack_two_fractions', &
         'fraction_2', 'valid 0 to 0.99', fraction_2)
   end subroutine

   elemental subroutine check_pack_three_fractions(packing, packed_number, fraction_1, fraction_2, fraction_3, fault)
      integer(i4), intent(in) :: packing
      real(sp), intent(in) :: packed_number, fraction_1, fraction_2, fraction_3
      type(quorvel_fault), intent(out) :: fault
      if (.not. (packing >= 1_i4 .and. packing <= 2_i4)) call refuse(fault, 'pack_three_fractions', 'packing', &
         'valid 1 (pack), 2 (unpack)', packing)
      if (.not. (packed_number >= 0.0_sp .and. packed_number <= 9999.99_sp)) call refuse(fault, &
         'pack_three_fractions', 'packed_number', 'valid 0 to 9999.99', packed_number)
      if (.not. (fraction_1 >= 0.0_sp .and. fraction_1 <= 0.99_sp)) call refuse(fault, 'pack_three_fractions', &
         'fraction_1', 'valid 0 to 0.99', fraction_1)
      if (.not. (fraction_2 >= 0.0_sp .and. fraction_2 <= 0.99_sp)) call refuse(fault, 'pack_three_fractions', &
         'fraction_2', 'valid 0 to 0.99', fraction_2)
      if (.not. (fraction_3 >= 0.0_sp .and. fraction_3 <= 0.99_sp)) call refuse(fault, 'pack_three_fractions', &
         'fraction_3', 'valid 0 to 0.99', fraction_3)
   end subroutine

   elemental subroutine check_pack_three_fractions_third_first(packing, packed_number, fraction_3, fraction_1, &
      fraction_2, fault)
      integer(i4), intent(in) :: packing
      real(sp), intent(in) :: packed_number, fraction_3, fraction_1, fraction_2
      type(quorvel_fault), intent(out) :: fault
      if (.not. (packing >= 1_i4 .and. packing <= 2_i4)) call refuse(fault, 'pack_three_fractions_third_first', &
         'packing', 'valid 1 (pack), 2 (unpack)', packing)
      if (.not. (packed_number >= 0.0_sp .and. packed_number <= 9999.99_sp)) call refuse(fault, &
         'pack_three_fractions_third_first', 'packed_number', 'valid 0 to 9999.99', packed_number)
      if (.not. (fraction_3 >= 0.0_sp .and. fraction_3 <= 0.99_sp)) call refuse(fault, &
         'pack_three_fractions_third_first', 'fraction_3', 'valid 0 to 0.99', fraction_3)
      if (.not. (fraction_1 >= 0.0_sp .and. fraction_1 <= 0.99_sp)) call refuse(fault, &
         'pack_three_fractions_third_first', 'fraction_1', 'valid 0 to 0.99', fraction_1)
      if (.not. (fraction_2 >= 0.0_sp .and. fraction_2 <= 0.99_sp)) call refuse(fault, &
         'pack_three_fractions_third_first', 'fraction_2', 'valid 0 to 0.99', fraction_2)
   end subroutine

   elemental subroutine check_pack_pane(packing, packed_number, absorptance, reflectance_1, reflectance_2, fault)
      integer(i4), intent(in) :: packing
      real(sp), intent(in) :: packed_number, absorptance, reflectance_1, reflectance_2
      type(quorvel_fault), intent(out) :: fault
      if (.not. (packing >= 1_i4 .and. packing <= 2_i4)) call refuse(fault, 'pack_pane', 'packing', &
         'valid 1 (pack), 2 (unpack)', packing)
      if (.not. (packed_number >= 0.0_sp .and. packed_number <= 9999.99_sp)) call refuse(fault, 'pack_pane', &
         'packed_number', 'valid 0 to 9999.99', packed_number)
      if (.not. (absorptance >= 0.0_sp .and. absorptance <= 1.0_sp)) call refuse(fault, 'pack_pane', 'absorptance', &
         'valid 0 to 1', absorptance)
      if (.not. (reflectance_1 >= 0.0_sp .and. reflectance_1 <= 1.0_sp)) call refuse(fault, 'pack_pane', &
         'reflectance_1', 'valid 0 to 1', reflectance_1)
      if (.not. (reflectance_2 >= 0.0_sp .and. reflectance_2 <= 1.0_sp)) call refuse(fault, 'pack_pane', &
         'reflectance_2', 'valid 0 to 1', reflectance_2)
   end subroutine

   elemental subroutine check_surface_resistance(surface, tilt, exposure, fault)
      integer(i4), intent(in) :: surface
      real(sp), intent(in) :: tilt
      integer(i4), intent(in) :: exposure
      type(quorvel_fault), intent(out) :: fault
      if (.not. (surface >= 1_i4 .and. surface <= 2_i4)) call refuse(fault, 'surface_resistance', 'surface', &
         'valid 1 (outside), 2 (inside)', surface)
      if (.not. (tilt >= 0.0_sp .and. tilt <= 3.1416_sp)) call refuse(fault, 'surface_resistance', 'tilt', &
         'valid 0 to 3.1416 rad', tilt)
      if (.not. (exposure >= 1_i4 .and. exposure <= 3_i4)) call refuse(fault, 'surface_resistance', 'exposure', &
         'valid 1 (sheltered), 2 (normal), 3 (severe)', exposure)
   end subroutine

   elemental subroutine check_surface_resistance_at_emissivity(surface, tilt, exposure, emissivity, fault)
      integer(i4), intent(in) :: surface
      real(sp), intent(in) :: tilt
      integer(i4), intent(in) :: exposure
      real(sp), intent(in) :: emissivity
      type(quorvel_fault), intent(out) :: fault
      if (.not. (surface >= 1_i4 .and. surface <= 2_i4)) call refuse(fault, 'surface_resistance_at_emissivity', &
         'surface', 'valid 1 (outside), 2 (inside)', surface)
      if (.not. (tilt >= 0.0_sp .and. tilt <= 3.1416_sp)) call refuse(fault, 'surface_resistance_at_emissivity', &
         'tilt', 'valid 0 to 3.1416 rad', tilt)
      if (.not. (exposure >= 1_i4 .and. exposure <= 3_i4)) call refuse(fault, 'surface_resistance_at_emissivity', &
         'exposure', 'valid 1 (sheltered), 2 (normal), 3 (severe)', exposure)
      if (.not. (emissivity >= 0.0_sp .and. emissivity <= 1.0_sp)) call refuse(fault, &
         'surface_resistance_at_emissivity', 'emissivity', 'valid 0 to 1', emissivity)
   end subroutine

   pure subroutine check_u_value(thickness, conductivity, surface_resistance_1, surface_resistance_2, fault)
      real(sp), intent(in) :: thickness(:), conductivity(:), surface_resistance_1, surface_resistance_2
      type(quorvel_fault), intent(out) :: fault
      call expect_as_many(fault, 'u_value', 'conductivity', size(conductivity), 'thickness', size(thickness))
      call expect_count(fault, 'u_value', 'thickness', size(thickness), 0, 20)
      call expect_all(fault, 'u_value', 'thickness', 'valid is any number', [.not. ieee_is_nan(thickness)], &
         [real(thickness, dp)], 0)
      call expect_all(fault, 'u_value', 'conductivity', 'valid from 0 W/mK', [conductivity >= 0.0_sp], &
         [real(conductivity, dp)], 0)
      if (.not. (surface_resistance_1 >= 0.0_sp)) call refuse(fault, 'u_value', 'surface_resistance_1', &
         'valid from 0 m2K/W', surface_resistance_1)
      if (.not. (surface_resistance_2 >= 0.0_sp)) call refuse(fault, 'u_value', 'surface_resistance_2', &
         'valid from 0 m2K/W', surface_resistance_2)
   end subroutine

   elemental subroutine check_u_value_at_tilt_and_exposure(u_value, tilt, exposure, fault)
      real(sp), intent(in) :: u_value, tilt
      integer(i4), intent(in) :: exposure
      type(quorvel_fault), intent(out) :: fault
      if (.not. (u_value >= 0.0_sp)) call refuse(fault, 'u_value_at_tilt_and_exposure', 'u_value', &
         'valid from 0 W/m2K', u_value)
      if (.not. (tilt >= 0.0_sp .and. tilt <= 3.1416_sp)) call refuse(fault, 'u_value_at_tilt_and_exposure', 'tilt', &
         'valid 0 to 3.1416 rad', tilt)
      if (.not. (exposure >= 1_i4 .and. exposure <= 3_i4)) call refuse(fault, 'u_value_at_tilt_and_exposure', &
         'exposure', 'valid 1 (sheltered), 2 (normal), 3 (severe)', exposure)
   end subroutine

   elemental subroutine check_window_parameters(panes, pane_kind_1, emissivity_1, pane_kind_2, emissivity_2, &
      pane_kind_3, emissivity_3, cavity_width_1, cavity_width_2, outer_surface, exposure, tilt, fault)
      integer(i4), intent(in) :: panes, pane_kind_1
      real(sp), intent(in) :: emissivity_1
      integer(i4), intent(in) :: pane_kind_2
      real(sp), intent(in) :: emissivity_2
      integer(i4), intent(in) :: pane_kind_3
      real(sp), intent(in) :: emissivity_3, cavity_width_1, cavity_width_2
      integer(i4), intent(in) :: outer_surface, exposure
      real(sp), intent(in) :: tilt
      type(quorvel_fault), intent(out) :: fault
      if (.not. (panes >= 1_i4 .and. panes <= 3_i4)) call refuse(fault, 'window_parameters', 'panes', 'valid 1 to 3', &
         panes)
      if (.not. (pane_kind_1 >= 1_i4 .and. pane_kind_1 <= 2_i4)) call refuse(fault, 'window_parameters', &
         'pane_kind_1', 'valid 1 (closing), 2 (vented)', pane_kind_1)
      if (.not. (emissivity_1 >= 0.0_sp .and. emissivity_1 <= 1.0_sp)) call refuse(fault, 'window_parameters', &
         'emissivity_1', 'valid 0 to 1', emissivity_1)
      if (.not. (pane_kind_2 >= 1_i4 .and. pane_kind_2 <= 2_i4)) call refuse(fault, 'window_parameters', &
         'pane_kind_2', 'valid 1 (closing), 2 (vented)', pane_kind_2)
      if (.not. (emissivity_2 >= 0.0_sp .and. emissivity_2 <= 1.0_sp)) call refuse(fault, 'window_parameters', &
         'emissivity_2', 'valid 0 to 1', emissivity_2)
      if (.not. (pane_kind_3 >= 1_i4 .and. pane_kind_3 <= 2_i4)) call refuse(fault, 'window_parameters', &
         'pane_kind_3', 'valid 1 (closing), 2 (vented)', pane_kind_3)
      if (.not. (emissivity_3 >= 0.0_sp .and. emissivity_3 <= 1.0_sp)) call refuse(fault, 'window_parameters', &
         'emissivity_3', 'valid 0 to 1', emissivity_3)
      if (.not. (cavity_width_1 >= 0.001_sp)) call refuse(fault, 'window_parameters', 'cavity_width_1', &
         'valid from 0.001 m', cavity_width_1)
      if (.not. (cavity_width_2 >= 0.001_sp)) call refuse(fault, 'window_parameters', 'cavity_width_2', &
         'valid from 0.001 m', cavity_width_2)
      if (.not. (outer_surface >= 1_i4 .and. outer_surface <= 2_i4)) call refuse(fault, 'window_parameters', &
         'outer_surface', 'valid 1 (outside), 2 (inside)', outer_surface)
      if (.not. (exposure >= 1_i4 .and. exposure <= 3_i4)) call refuse(fault, 'window_parameters', 'exposure', &
         'valid 1 (sheltered), 2 (normal), 3 (severe)', exposure)
      if (.not. (tilt >= 0.0_sp .and. tilt <= 3.1416_sp)) call refuse(fault, 'window_parameters', 'tilt', &
         'valid 0 to 3.1416 rad', tilt)
   end subroutine

   elemental subroutine check_glass_direct(normal_transmittance, normal_reflectance, incidence, fault)
      real(sp), intent(in) :: normal_transmittance, normal_reflectance, incidence
      type(quorvel_fault), intent(out) :: fault
      if (.not. (normal_transmittance >= 0.0_sp .and. normal_transmittance <= 0.92_sp)) call refuse(fault, &
         'glass_direct', 'normal_transmittance', 'valid 0 to 0.92', normal_transmittance)
      if (.not. (normal_reflectance >= 0.0_sp .and. normal_reflectance <= 0.99_sp)) call refuse(fault, 'glass_direct', &
         'normal_reflectance', 'valid 0 to 0.99', normal_reflectance)
      if (.not. (incidence >= -1.5708_sp .and. incidence <= 1.5708_sp)) call refuse(fault, 'glass_direct', &
         'incidence', 'valid -1.5708 to 1.5708 rad', incidence)
   end subroutine

   elemental subroutine check_glass_diffuse(normal_transmittance, normal_reflectance, fault)
      real(sp), intent(in) :: normal_transmittance, normal_reflectance
      type(quorvel_fault), intent(out) :: fault
      if (.not. (normal_transmittance >= 0.0_sp .and. normal_transmittance <= 0.92_sp)) call refuse(fault, &
         'glass_diffuse', 'normal_transmittance', 'valid 0 to 0.92', normal_transmittance)
      if (.not. (normal_reflectance >= 0.0_sp .and. normal_reflectance <= 0.99_sp)) call refuse(fault, &
         'glass_diffuse', 'normal_reflectance', 'valid 0 to 0.99', normal_reflectance)
   end subroutine

   pure subroutine check_stacked_layers(layer_transmittances, layer_reflectances, fault)
      real(sp), intent(in) :: layer_transmittances(:), layer_reflectances(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_as_many(fault, 'stacked_layers', 'layer_reflectances', size(layer_reflectances), &
         'layer_transmittances', size(layer_transmittances))
      call expect_count(fault, 'stacked_layers', 'layer_transmittances', size(layer_transmittances), 0, 2147483647)
      call expect_all(fault, 'stacked_layers', 'layer_transmittances', 'valid 0 to 1', [layer_transmittances >= 0.0_sp &
         .and. layer_transmittances <= 1.0_sp], [real(layer_transmittances, dp)], 0)
      call expect_all(fault, 'stacked_layers', 'layer_reflectances', 'valid 0 to 1', [layer_reflectances >= 0.0_sp &
         .and. layer_reflectances <= 1.0_sp], [real(layer_reflectances, dp)], 0)
   end subroutine

   pure subroutine check_traced_layers(layer_transmittances, layer_absorptances, layer_reflectances, fault)
      real(sp), intent(in) :: layer_transmittances(:), layer_absorptances(:), layer_reflectances(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_as_many(fault, 'traced_layers', 'layer_absorptances', size(layer_absorptances), &
         'layer_transmittances', size(layer_transmittances))
      call expect_as_many(fault, 'traced_layers', 'layer_reflectances', size(layer_reflectances), &
         'layer_transmittances', size(layer_transmittances))
      call expect_count(fault, 'traced_layers', 'layer_transmittances', size(layer_transmittances), 0, 11)
      call expect_all(fault, 'traced_layers', 'layer_transmittances', 'valid 0 to 1', [layer_transmittances >= 0.0_sp &
         .and. layer_transmittances <= 1.0_sp], [real(layer_transmittances, dp)], 0)
      call expect_all(fault, 'traced_layers', 'layer_absorptances', 'valid 0 to 1', [layer_absorptances >= 0.0_sp &
         .and. layer_absorptances <= 1.0_sp], [real(layer_absorptances, dp)], 0)
      call expect_all(fault, 'traced_layers', 'layer_reflectances', 'valid 0 to 1', [layer_reflectances >= 0.0_sp &
         .and. layer_reflectances <= 1.0_sp], [real(layer_reflectances, dp)], 0)
   end subroutine

   elemental subroutine check_roller_blind(blind_transmittance, blind_reflectance, fault)
      real(sp), intent(in) :: blind_transmittance, blind_reflectance
      type(quorvel_fault), intent(out) :: fault
      if (.not. (blind_transmittance >= 0.0_sp .and. blind_transmittance <= 1.0_sp)) call refuse(fault, &
         'roller_blind', 'blind_transmittance', 'valid 0 to 1', blind_transmittance)
      if (.not. (blind_reflectance >= 0.0_sp .and. blind_reflectance <= 1.0_sp)) call refuse(fault, 'roller_blind', &
         'blind_reflectance', 'valid 0 to 1', blind_reflectance)
   end subroutine

   elemental subroutine check_diffuse_roller_blind(blind_transmittance, blind_reflectance, fault)
      real(sp), intent(in) :: blind_transmittance, blind_reflectance
      type(quorvel_fault), intent(out) :: fault
      if (.not. (blind_transmittance >= 0.0_sp .and. blind_transmittance <= 1.0_sp)) call refuse(fault, &
         'diffuse_roller_blind', 'blind_transmittance', 'valid 0 to 1', blind_transmittance)
      if (.not. (blind_reflectance >= 0.0_sp .and. blind_reflectance <= 1.0_sp)) call refuse(fault, &
         'diffuse_roller_blind', 'blind_reflectance', 'valid 0 to 1', blind_reflectance)
   end subroutine

   elemental subroutine check_refraction_angle(incidence, refractive_index, fault)
      real(sp), intent(in) :: incidence, refractive_index
      type(quorvel_fault), intent(out) :: fault
      if (.not. (incidence >= -1.5708_sp .and. incidence <= 1.5708_sp)) call refuse(fault, 'refraction_angle', &
         'incidence', 'valid -1.5708 to 1.5708 rad', incidence)
      if (.not. (refractive_index >= 1.0_sp .and. refractive_index <= 4.0_sp)) call refuse(fault, 'refraction_angle', &
         'refractive_index', 'valid 1 to 4', refractive_index)
   end subroutine

   elemental subroutine check_surface_reflectance(incidence, refraction_angle, refractive_index, fault)
      real(sp), intent(in) :: incidence, refraction_angle, refractive_index
      type(quorvel_fault), intent(out) :: fault
      if (.not. (incidence >= -1.5708_sp .and. incidence <= 1.5708_sp)) call refuse(fault, 'surface_reflectance', &
         'incidence', 'valid -1.5708 to 1.5708 rad', incidence)
      if (.not. (refraction_angle >= -1.5708_sp .and. refraction_angle <= 1.5708_sp)) call refuse(fault, &
         'surface_reflectance', 'refraction_angle', 'valid -1.5708 to 1.5708 rad', refraction_angle)
      if (.not. (refractive_index >= 1.0_sp .and. refractive_index <= 4.0_sp)) call refuse(fault, &
         'surface_reflectance', 'refractive_index', 'valid 1 to 4', refractive_index)
   end subroutine

   elemental subroutine check_single_pass_absorption(refraction_angle, absorption_product, fault)
      real(sp), intent(in) :: refraction_angle, absorption_product
      type(quorvel_fault), intent(out) :: fault
      if (.not. (refraction_angle >= -1.5708_sp .and. refraction_angle <= 1.5708_sp)) call refuse(fault, &
         'single_pass_absorption', 'refraction_angle', 'valid -1.5708 to 1.5708 rad', refraction_angle)
      if (.not. (absorption_product >= 0.0_sp .and. absorption_product <= 20.0_sp)) call refuse(fault, &
         'single_pass_absorption', 'absorption_product', 'valid 0 to 20', absorption_product)
   end subroutine

   elemental subroutine check_slab_optics(single_pass_absorptance, face_reflectance, fault)
      real(sp), intent(in) :: single_pass_absorptance, face_reflectance
      type(quorvel_fault), intent(out) :: fault
      if (.not. (single_pass_absorptance >= 0.0_sp .and. single_pass_absorptance <= 1.0_sp)) call refuse(fault, &
         'slab_optics', 'single_pass_absorptance', 'valid 0 to 1', single_pass_absorptance)
      if (.not. (face_reflectance >= 0.0_sp .and. face_reflectance <= 1.0_sp)) call refuse(fault, 'slab_optics', &
         'face_reflectance', 'valid 0 to 1', face_reflectance)
   end subroutine

   elemental subroutine check_absorption_product(normal_transmittance, refractive_index, fault)
      real(sp), intent(in) :: normal_transmittance, refractive_index
      type(quorvel_fault), intent(out) :: fault
      if (.not. (normal_transmittance >= 0.0_sp .and. normal_transmittance <= 0.92_sp)) call refuse(fault, &
         'absorption_product', 'normal_transmittance', 'valid 0 to 0.92', normal_transmittance)
      if (.not. (refractive_index >= 1.0_sp .and. refractive_index <= 4.0_sp)) call refuse(fault, &
         'absorption_product', 'refractive_index', 'valid 1 to 4', refractive_index)
   end subroutine

   elemental subroutine check_normal_transmittance(absorption_product, normal_reflectance, fault)
      real(sp), intent(in) :: absorption_product, normal_reflectance
      type(quorvel_fault), intent(out) :: fault
      if (.not. (absorption_product >= 0.0_sp .and. absorption_product <= 20.0_sp)) call refuse(fault, &
         'normal_transmittance', 'absorption_product', 'valid 0 to 20', absorption_product)
      if (.not. (normal_reflectance >= 0.0_sp .and. normal_reflectance <= 0.99_sp)) call refuse(fault, &
         'normal_transmittance', 'normal_reflectance', 'valid 0 to 0.99', normal_reflectance)
   end subroutine

   elemental subroutine check_pane_temperatures(inside_temperature, outside_temperature, panes, absorbed_1, &
      absorbed_2, absorbed_3, absorbed_4, absorbed_5, fault)
      real(sp), intent(in) :: inside_temperature, outside_temperature
      integer(i4), intent(in) :: panes
      real(sp), intent(in) :: absorbed_1, absorbed_2, absorbed_3, absorbed_4, absorbed_5
      type(quorvel_fault), intent(out) :: fault
      if (.not. (inside_temperature >= -100.0_sp .and. inside_temperature <= 200.0_sp)) call refuse(fault, &
         'pane_temperatures', 'inside_temperature', 'valid -100 to 200 degC', inside_temperature)
      if (.not. (outside_temperature >= -100.0_sp .and. outside_temperature <= 200.0_sp)) call refuse(fault, &
         'pane_temperatures', 'outside_temperature', 'valid -100 to 200 degC', outside_temperature)
      if (.not. (panes >= 1_i4 .and. panes <= 5_i4)) call refuse(fault, 'pane_temperatures', 'panes', 'valid 1 to 5', &
         panes)
      if (.not. (absorbed_1 >= 0.0_sp)) call refuse(fault, 'pane_temperatures', 'absorbed_1', 'valid from 0 W/m2', &
         absorbed_1)
      if (.not. (absorbed_2 >= 0.0_sp)) call refuse(fault, 'pane_temperatures', 'absorbed_2', 'valid from 0 W/m2', &
         absorbed_2)
      if (.not. (absorbed_3 >= 0.0_sp)) call refuse(fault, 'pane_temperatures', 'absorbed_3', 'valid from 0 W/m2', &
         absorbed_3)
      if (.not. (absorbed_4 >= 0.0_sp)) call refuse(fault, 'pane_temperatures', 'absorbed_4', 'valid from 0 W/m2', &
         absorbed_4)
      if (.not. (absorbed_5 >= 0.0_sp)) call refuse(fault, 'pane_temperatures', 'absorbed_5', 'valid from 0 W/m2', &
         absorbed_5)
   end subroutine

   elemental subroutine check_unit_direct(shortwave_shading_coefficient, longwave_shading_coefficient, incidence, &
      fault)
      real(sp), intent(in) :: shortwave_shading_coefficient, longwave_shading_coefficient, incidence
      type(quorvel_fault), intent(out) :: fault
      if (.not. (shortwave_shading_coefficient >= 0.0_sp .and. shortwave_shading_coefficient <= 1.05_sp)) call &
         refuse(fault, 'unit_direct', 'shortwave_shading_coefficient', 'valid 0 to 1.05', &
         shortwave_shading_coefficient)
      if (.not. (longwave_shading_coefficient >= 0.0_sp .and. longwave_shading_coefficient <= 1.0_sp)) call &
         refuse(fault, 'unit_direct', 'longwave_shading_coefficient', 'valid 0 to 1', longwave_shading_coefficient)
      if (.not. (incidence >= -1.5708_sp .and. incidence <= 1.5708_sp)) call refuse(fault, 'unit_direct', 'incidence', &
         'valid -1.5708 to 1.5708 rad', incidence)
   end subroutine

   elemental subroutine check_unit_diffuse(shortwave_shading_coefficient, longwave_shading_coefficient, fault)
      real(sp), intent(in) :: shortwave_shading_coefficient, longwave_shading_coefficient
      type(quorvel_fault), intent(out) :: fault
      if (.not. (shortwave_shading_coefficient >= 0.0_sp .and. shortwave_shading_coefficient <= 1.05_sp)) call &
         refuse(fault, 'unit_diffuse', 'shortwave_shading_coefficient', 'valid 0 to 1.05', &
         shortwave_shading_coefficient)
      if (.not. (longwave_shading_coefficient >= 0.0_sp .and. longwave_shading_coefficient <= 1.0_sp)) call &
         refuse(fault, 'unit_diffuse', 'longwave_shading_coefficient', 'valid 0 to 1', longwave_shading_coefficient)
   end subroutine

   pure subroutine check_unit_direct_shares(shortwave_shading_coefficient, longwave_shading_coefficient, incidence, &
      panes, fault)
      real(sp), intent(in) :: shortwave_shading_coefficient, longwave_shading_coefficient, incidence
      integer(i4), intent(in) :: panes
      type(quorvel_fault), intent(out) :: fault
      if (.not. (shortwave_shading_coefficient >= 0.0_sp .and. shortwave_shading_coefficient <= 1.05_sp)) call &
         refuse(fault, 'unit_direct_shares', 'shortwave_shading_coefficient', 'valid 0 to 1.05', &
         shortwave_shading_coefficient)
      if (.not. (longwave_shading_coefficient >= 0.0_sp .and. longwave_shading_coefficient <= 1.0_sp)) call &
         refuse(fault, 'unit_direct_shares', 'longwave_shading_coefficient', 'valid 0 to 1', &
         longwave_shading_coefficient)
      if (.not. (incidence >= -1.5708_sp .and. incidence <= 1.5708_sp)) call refuse(fault, 'unit_direct_shares', &
         'incidence', 'valid -1.5708 to 1.5708 rad', incidence)
      if (.not. (panes >= 1_i4 .and. panes <= 5_i4)) call refuse(fault, 'unit_direct_shares', 'panes', 'valid 1 to 5', &
         panes)
   end subroutine

   pure subroutine check_unit_diffuse_shares(shortwave_shading_coefficient, longwave_shading_coefficient, panes, &
      fault)
      real(sp), intent(in) :: shortwave_shading_coefficient, longwave_shading_coefficient
      integer(i4), intent(in) :: panes
      type(quorvel_fault), intent(out) :: fault
      if (.not. (shortwave_shading_coefficient >= 0.0_sp .and. shortwave_shading_coefficient <= 1.05_sp)) call &
         refuse(fault, 'unit_diffuse_shares', 'shortwave_shading_coefficient', 'valid 0 to 1.05', &
         shortwave_shading_coefficient)
      if (.not. (longwave_shading_coefficient >= 0.0_sp .and. longwave_shading_coefficient <= 1.0_sp)) call &
         refuse(fault, 'unit_diffuse_shares', 'longwave_shading_coefficient', 'valid 0 to 1', &
         longwave_shading_coefficient)
      if (.not. (panes >= 1_i4 .and. panes <= 5_i4)) call refuse(fault, 'unit_diffuse_shares', 'panes', &
         'valid 1 to 5', panes)
   end subroutine

   pure subroutine check_unit_shares(radiation, shortwave_shading_coefficient, longwave_shading_coefficient, &
      incidence, panes, fault)
      integer(i4), intent(in) :: radiation
      real(sp), intent(in) :: shortwave_shading_coefficient, longwave_shading_coefficient, incidence
      integer(i4), intent(in) :: panes
      type(quorvel_fault), intent(out) :: fault
      if (.not. (radiation >= 1_i4 .and. radiation <= 2_i4)) call refuse(fault, 'unit_shares', 'radiation', &
         'valid 1 (direct), 2 (diffuse)', radiation)
      if (.not. (shortwave_shading_coefficient >= 0.0_sp .and. shortwave_shading_coefficient <= 1.05_sp)) call &
         refuse(fault, 'unit_shares', 'shortwave_shading_coefficient', 'valid 0 to 1.05', &
         shortwave_shading_coefficient)
      if (.not. (longwave_shading_coefficient >= 0.0_sp .and. longwave_shading_coefficient <= 1.0_sp)) call &
         refuse(fault, 'unit_shares', 'longwave_shading_coefficient', 'valid 0 to 1', longwave_shading_coefficient)
      if (.not. (incidence >= -1.5708_sp .and. incidence <= 1.5708_sp)) call refuse(fault, 'unit_shares', 'incidence', &
         'valid -1.5708 to 1.5708 rad', incidence)
      if (.not. (panes >= 1_i4 .and. panes <= 5_i4)) call refuse(fault, 'unit_shares', 'panes', 'valid 1 to 5', panes)
   end subroutine

   elemental subroutine check_slat_direct(slat_spacing, slat_width, slat_angle, profile_angle, slat_absorptance, &
      fault)
      real(sp), intent(in) :: slat_spacing, slat_width, slat_angle, profile_angle, slat_absorptance
      type(quorvel_fault), intent(out) :: fault
      if (.not. (slat_spacing >= 0.0_sp)) call refuse(fault, 'slat_direct', 'slat_spacing', 'valid from 0 m', &
         slat_spacing)
      if (.not. (slat_width >= 0.0_sp)) call refuse(fault, 'slat_direct', 'slat_width', 'valid from 0 m', slat_width)
      if (.not. (slat_angle >= -90.0_sp .and. slat_angle <= 90.0_sp)) call refuse(fault, 'slat_direct', 'slat_angle', &
         'valid -90 to 90 deg', slat_angle)
      if (.not. (profile_angle >= -1.5708_sp .and. profile_angle <= 1.5708_sp)) call refuse(fault, 'slat_direct', &
         'profile_angle', 'valid -1.5708 to 1.5708 rad', profile_angle)
      if (.not. (slat_absorptance >= 0.0_sp .and. slat_absorptance <= 1.0_sp)) call refuse(fault, 'slat_direct', &
         'slat_absorptance', 'valid 0 to 1', slat_absorptance)
   end subroutine

   elemental subroutine check_two_faced_slat_direct(slat_spacing, slat_width, slat_angle, profile_angle, &
      struck_absorptance, opposite_absorptance, fault)
      real(sp), intent(in) :: slat_spacing, slat_width, slat_angle, profile_angle, struck_absorptance, &
         opposite_absorptance
      type(quorvel_fault), intent(out) :: fault
      if (.not. (slat_spacing >= 0.0_sp)) call refuse(fault, 'two_faced_slat_direct', 'slat_spacing', &
         'valid from 0 m', slat_spacing)
      if (.not. (slat_width >= 0.0_sp)) call refuse(fault, 'two_faced_slat_direct', 'slat_width', 'valid from 0 m', &
         slat_width)
      if (.not. (slat_angle >= -90.0_sp .and. slat_angle <= 90.0_sp)) call refuse(fault, 'two_faced_slat_direct', &
         'slat_angle', 'valid -90 to 90 deg', slat_angle)
      if (.not. (profile_angle >= -1.5708_sp .and. profile_angle <= 1.5708_sp)) call refuse(fault, &
         'two_faced_slat_direct', 'profile_angle', 'valid -1.5708 to 1.5708 rad', profile_angle)
      if (.not. (struck_absorptance >= 0.0_sp .and. struck_absorptance <= 1.0_sp)) call refuse(fault, &
         'two_faced_slat_direct', 'struck_absorptance', 'valid 0 to 1', struck_absorptance)
      if (.not. (opposite_absorptance >= 0.0_sp .and. opposite_absorptance <= 1.0_sp)) call refuse(fault, &
         'two_faced_slat_direct', 'opposite_absorptance', 'valid 0 to 1', opposite_absorptance)
   end subroutine

   elemental subroutine check_open_slat_direct(slat_spacing, slat_width, slat_angle, profile_angle, open_share, &
      struck_absorptance, opposite_absorptance, fault)
      real(sp), intent(in) :: slat_spacing, slat_width, slat_angle, profile_angle, open_share, struck_absorptance, &
         opposite_absorptance
      type(quorvel_fault), intent(out) :: fault
      if (.not. (slat_spacing >= 0.0_sp)) call refuse(fault, 'open_slat_direct', 'slat_spacing', 'valid from 0 m', &
         slat_spacing)
      if (.not. (slat_width >= 0.0_sp)) call refuse(fault, 'open_slat_direct', 'slat_width', 'valid from 0 m', &
         slat_width)
      if (.not. (slat_angle >= -90.0_sp .and. slat_angle <= 90.0_sp)) call refuse(fault, 'open_slat_direct', &
         'slat_angle', 'valid -90 to 90 deg', slat_angle)
      if (.not. (profile_angle >= -1.5708_sp .and. profile_angle <= 1.5708_sp)) call refuse(fault, 'open_slat_direct', &
         'profile_angle', 'valid -1.5708 to 1.5708 rad', profile_angle)
      if (.not. (open_share >= 0.0_sp .and. open_share <= 1.0_sp)) call refuse(fault, 'open_slat_direct', &
         'open_share', 'valid 0 to 1', open_share)
      if (.not. (struck_absorptance >= 0.0_sp .and. struck_absorptance <= 1.0_sp)) call refuse(fault, &
         'open_slat_direct', 'struck_absorptance', 'valid 0 to 1', struck_absorptance)
      if (.not. (opposite_absorptance >= 0.0_sp .and. opposite_absorptance <= 1.0_sp)) call refuse(fault, &
         'open_slat_direct', 'opposite_absorptance', 'valid 0 to 1', opposite_absorptance)
   end subroutine

   elemental subroutine check_slat_diffuse(slat_spacing, slat_width, slat_angle, slat_absorptance, fault)
      real(sp), intent(in) :: slat_spacing, slat_width, slat_angle, slat_absorptance
      type(quorvel_fault), intent(out) :: fault
      if (.not. (slat_spacing >= 0.0_sp)) call refuse(fault, 'slat_diffuse', 'slat_spacing', 'valid from 0 m', &
         slat_spacing)
      if (.not. (slat_width >= 0.0_sp)) call refuse(fault, 'slat_diffuse', 'slat_width', 'valid from 0 m', slat_width)
      if (.not. (slat_angle >= -90.0_sp .and. slat_angle <= 90.0_sp)) call refuse(fault, 'slat_diffuse', 'slat_angle', &
         'valid -90 to 90 deg', slat_angle)
      if (.not. (slat_absorptance >= 0.0_sp .and. slat_absorptance <= 1.0_sp)) call refuse(fault, 'slat_diffuse', &
         'slat_absorptance', 'valid 0 to 1', slat_absorptance)
   end subroutine

   elemental subroutine check_two_faced_slat_diffuse(slat_spacing, slat_width, slat_angle, struck_absorptance, &
      opposite_absorptance, fault)
      real(sp), intent(in) :: slat_spacing, slat_width, slat_angle, struck_absorptance, opposite_absorptance
      type(quorvel_fault), intent(out) :: fault
      if (.not. (slat_spacing >= 0.0_sp)) call refuse(fault, 'two_faced_slat_diffuse', 'slat_spacing', &
         'valid from 0 m', slat_spacing)
      if (.not. (slat_width >= 0.0_sp)) call refuse(fault, 'two_faced_slat_diffuse', 'slat_width', 'valid from 0 m', &
         slat_width)
      if (.not. (slat_angle >= -90.0_sp .and. slat_angle <= 90.0_sp)) call refuse(fault, 'two_faced_slat_diffuse', &
         'slat_angle', 'valid -90 to 90 deg', slat_angle)
      if (.not. (struck_absorptance >= 0.0_sp .and. struck_absorptance <= 1.0_sp)) call refuse(fault, &
         'two_faced_slat_diffuse', 'struck_absorptance', 'valid 0 to 1', struck_absorptance)
      if (.not. (opposite_absorptance >= 0.0_sp .and. opposite_absorptance <= 1.0_sp)) call refuse(fault, &
         'two_faced_slat_diffuse', 'opposite_absorptance', 'valid 0 to 1', opposite_absorptance)
   end subroutine

   elemental subroutine check_open_slat_diffuse(slat_spacing, slat_width, slat_angle, open_share, struck_absorptance, &
      opposite_absorptance, fault)
      real(sp), intent(in) :: slat_spacing, slat_width, slat_angle, open_share, struck_absorptance, &
         opposite_absorptance
      type(quorvel_fault), intent(out) :: fault
      if (.not. (slat_spacing >= 0.0_sp)) call refuse(fault, 'open_slat_diffuse', 'slat_spacing', 'valid from 0 m', &
         slat_spacing)
      if (.not. (slat_width >= 0.0_sp)) call refuse(fault, 'open_slat_diffuse', 'slat_width', 'valid from 0 m', &
         slat_width)
      if (.not. (slat_angle >= -90.0_sp .and. slat_angle <= 90.0_sp)) call refuse(fault, 'open_slat_diffuse', &
         'slat_angle', 'valid -90 to 90 deg', slat_angle)
      if (.not. (open_share >= 0.0_sp .and. open_share <= 1.0_sp)) call refuse(fault, 'open_slat_diffuse', &
         'open_share', 'valid 0 to 1', open_share)
      if (.not. (struck_absorptance >= 0.0_sp .and. struck_absorptance <= 1.0_sp)) call refuse(fault, &
         'open_slat_diffuse', 'struck_absorptance', 'valid 0 to 1', struck_absorptance)
      if (.not. (opposite_absorptance >= 0.0_sp .and. opposite_absorptance <= 1.0_sp)) call refuse(fault, &
         'open_slat_diffuse', 'opposite_absorptance', 'valid 0 to 1', opposite_absorptance)
   end subroutine

   pure subroutine check_locate_band(fraction, month, frequencies, fault)
      real(sp), intent(in) :: fraction
      integer(i4), intent(in) :: month
      real(sp), intent(in) :: frequencies(:, :)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'locate_band', 'frequencies', size(frequencies, 1), 12)
      call expect_extent(fault, 'locate_band', 'frequencies', size(frequencies, 2), 10)
      if (.not. (fraction >= 0.0_sp .and. fraction <= 1.0_sp)) call refuse(fault, 'locate_band', 'fraction', &
         'valid 0 to 1', fraction)
      if (.not. (month >= 1_i4 .and. month <= 12_i4)) call refuse(fault, 'locate_band', 'month', 'valid 1 to 12', &
         month)
      call expect_all(fault, 'locate_band', 'frequencies', 'valid 0 to 1', [frequencies >= 0.0_sp .and. frequencies <= &
         1.0_sp], [real(frequencies, dp)], 12)
   end subroutine

   elemental subroutine check_band_climate(band, month, band_set, percentage, fault)
      integer(i4), intent(in) :: band, month, band_set
      real(sp), intent(in) :: percentage
      type(quorvel_fault), intent(out) :: fault
      if (.not. (band >= 0_i4 .and. band <= 10_i4)) call refuse(fault, 'band_climate', 'band', 'valid 0 to 10', band)
      if (.not. (month >= 1_i4 .and. month <= 12_i4)) call refuse(fault, 'band_climate', 'month', 'valid 1 to 12', &
         month)
      if (.not. (band_set >= 1_i4 .and. band_set <= 2_i4)) call refuse(fault, 'band_climate', 'band_set', &
         'valid 1 (first), 2 (second)', band_set)
      if (.not. (percentage >= 0.0_sp .and. percentage <= 100.0_sp)) call refuse(fault, 'band_climate', 'percentage', &
         'valid 0 to 100 %', percentage)
   end subroutine

   elemental subroutine check_interpolate_band_rows(base_row, lower_band, upper_band, month, band_weight, fault)
      integer(i4), intent(in) :: base_row, lower_band, upper_band, month
      real(sp), intent(in) :: band_weight
      type(quorvel_fault), intent(out) :: fault
      if (.not. (base_row >= 0_i4 .and. base_row <= 174_i4)) call refuse(fault, 'interpolate_band_rows', 'base_row', &
         'valid 0 to 174', base_row)
      if (.not. (lower_band >= 1_i4 .and. lower_band <= 10_i4)) call refuse(fault, 'interpolate_band_rows', &
         'lower_band', 'valid 1 to 10', lower_band)
      if (.not. (upper_band >= 1_i4 .and. upper_band <= 10_i4)) call refuse(fault, 'interpolate_band_rows', &
         'upper_band', 'valid 1 to 10', upper_band)
      if (.not. (month >= 1_i4 .and. month <= 12_i4)) call refuse(fault, 'interpolate_band_rows', 'month', &
         'valid 1 to 12', month)
      if (.not. (band_weight >= -1.0_sp .and. band_weight <= 1.0_sp)) call refuse(fault, 'interpolate_band_rows', &
         'band_weight', 'valid -1 to 1', band_weight)
   end subroutine

   pure subroutine check_band_row(row, fault)
      integer(i4), intent(in) :: row
      type(quorvel_fault), intent(out) :: fault
      if (.not. (row >= 1_i4 .and. row <= 184_i4)) call refuse(fault, 'band_row', 'row', 'valid 1 to 184', row)
   end subroutine

   elemental subroutine check_store_design_day(month, fault)
      integer(i4), intent(in) :: month
      type(quorvel_fault), intent(out) :: fault
      if (.not. (month >= 1_i4 .and. month <= 12_i4)) call refuse(fault, 'store_design_day', 'month', 'valid 1 to 12', &
         month)
   end subroutine

   elemental subroutine check_store_design_day_by_option(month, day_kind, fault)
      integer(i4), intent(in) :: month, day_kind
      type(quorvel_fault), intent(out) :: fault
      if (.not. (month >= 1_i4 .and. month <= 12_i4)) call refuse(fault, 'store_design_day_by_option', 'month', &
         'valid 1 to 12', month)
      if (.not. (day_kind >= 1_i4 .and. day_kind <= 2_i4)) call refuse(fault, 'store_design_day_by_option', &
         'day_kind', 'valid 1 (of_month), 2 (of_year)', day_kind)
   end subroutine

   elemental subroutine check_design_day(month, fault)
      integer(i4), intent(in) :: month
      type(quorvel_fault), intent(out) :: fault
      if (.not. (month >= 1_i4 .and. month <= 12_i4)) call refuse(fault, 'design_day', 'month', 'valid 1 to 12', &
         month)
   end subroutine

   elemental subroutine check_design_day_by_option(month, day_kind, fault)
      integer(i4), intent(in) :: month, day_kind
      type(quorvel_fault), intent(out) :: fault
      if (.not. (month >= 1_i4 .and. month <= 12_i4)) call refuse(fault, 'design_day_by_option', 'month', &
         'valid 1 to 12', month)
      if (.not. (day_kind >= 1_i4 .and. day_kind <= 2_i4)) call refuse(fault, 'design_day_by_option', 'day_kind', &
         'valid 1 (of_month), 2 (of_year)', day_kind)
   end subroutine

   elemental subroutine check_second_design_day(month, fault)
      integer(i4), intent(in) :: month
      type(quorvel_fault), intent(out) :: fault
      if (.not. (month >= 1_i4 .and. month <= 12_i4)) call refuse(fault, 'second_design_day', 'month', &
         'valid 1 to 12', month)
   end subroutine

   elemental subroutine check_second_design_day_by_option(month, day_kind, fault)
      integer(i4), intent(in) :: month, day_kind
      type(quorvel_fault), intent(out) :: fault
      if (.not. (month >= 1_i4 .and. month <= 12_i4)) call refuse(fault, 'second_design_day_by_option', 'month', &
         'valid 1 to 12', month)
      if (.not. (day_kind >= 1_i4 .and. day_kind <= 2_i4)) call refuse(fault, 'second_design_day_by_option', &
         'day_kind', 'valid 1 (of_month), 2 (of_year)', day_kind)
   end subroutine

   pure subroutine check_station_records(station, month, station_records, fault)
      integer(i4), intent(in) :: station, month
      real(sp), intent(in) :: station_records(:, :)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'station_records', 'station_records', size(station_records, 1), 11)
      call expect_extent(fault, 'station_records', 'station_records', size(station_records, 2), 12)
      if (.not. (station >= 1_i4)) call refuse(fault, 'station_records', 'station', 'valid from 1', station)
      if (.not. (month >= 0_i4 .and. month <= 12_i4)) call refuse(fault, 'station_records', 'month', 'valid 0 to 12', &
         month)
      call expect_all(fault, 'station_records', 'station_records', 'valid is any number', [.not. &
         ieee_is_nan(station_records)], [real(station_records, dp)], 11)
   end subroutine

   elemental subroutine check_station_climate(file_unit, station, band, month, band_set, percentage, fault)
      integer(i4), intent(in) :: file_unit, station, band, month, band_set
      real(sp), intent(in) :: percentage
      type(quorvel_fault), intent(out) :: fault
      if (.not. (file_unit >= 31_i4 .and. file_unit <= 31_i4)) call refuse(fault, 'station_climate', 'file_unit', &
         'valid 31 (opened_last)', file_unit)
      if (.not. (station >= 1_i4)) call refuse(fault, 'station_climate', 'station', 'valid from 1', station)
      if (.not. (band >= 0_i4 .and. band <= 10_i4)) call refuse(fault, 'station_climate', 'band', 'valid 0 to 10', &
         band)
      if (.not. (month >= 1_i4 .and. month <= 12_i4)) call refuse(fault, 'station_climate', 'month', 'valid 1 to 12', &
         month)
      if (.not. (band_set >= 1_i4 .and. band_set <= 2_i4)) call refuse(fault, 'station_climate', 'band_set', &
         'valid 1 (first), 2 (second)', band_set)
      if (.not. (percentage >= 0.0_sp .and. percentage <= 100.0_sp)) call refuse(fault, 'station_climate', &
         'percentage', 'valid 0 to 100 %', percentage)
   end subroutine

   elemental subroutine check_locate_station_band(fraction, month, fault)
      real(sp), intent(in) :: fraction
      integer(i4), intent(in) :: month
      type(quorvel_fault), intent(out) :: fault
      if (.not. (fraction >= 0.0_sp .and. fraction <= 1.0_sp)) call refuse(fault, 'locate_station_band', 'fraction', &
         'valid 0 to 1', fraction)
      if (.not. (month >= 1_i4 .and. month <= 12_i4)) call refuse(fault, 'locate_station_band', 'month', &
         'valid 1 to 12', month)
   end subroutine

   elemental subroutine check_interpolate_station_rows(base_row, lower_band, upper_band, month, band_weight, fault)
      integer(i4), intent(in) :: base_row, lower_band, upper_band, month
      real(sp), intent(in) :: band_weight
      type(quorvel_fault), intent(out) :: fault
      if (.not. (base_row >= 2_i4 .and. base_row <= 154_i4)) call refuse(fault, 'interpolate_station_rows', &
         'base_row', 'valid 2 to 154', base_row)
      if (.not. (lower_band >= 1_i4 .and. lower_band <= 10_i4)) call refuse(fault, 'interpolate_station_rows', &
         'lower_band', 'valid 1 to 10', lower_band)
      if (.not. (upper_band >= 1_i4 .and. upper_band <= 10_i4)) call refuse(fault, 'interpolate_station_rows', &
         'upper_band', 'valid 1 to 10', upper_band)
      if (.not. (month >= 1_i4 .and. month <= 12_i4)) call refuse(fault, 'interpolate_station_rows', 'month', &
         'valid 1 to 12', month)
      if (.not. (band_weight >= -1.0_sp .and. band_weight <= 1.0_sp)) call refuse(fault, 'interpolate_station_rows', &
         'band_weight', 'valid -1 to 1', band_weight)
   end subroutine

   pure subroutine check_station_row(row, fault)
      integer(i4), intent(in) :: row
      type(quorvel_fault), intent(out) :: fault
      if (.not. (row >= 1_i4 .and. row <= 171_i4)) call refuse(fault, 'station_row', 'row', 'valid 1 to 171', row)
   end subroutine

   elemental subroutine check_daily_temperature(hour, highest_temperature, lowest_temperature, hour_of_highest, &
      hour_of_lowest, fault)
      real(sp), intent(in) :: hour, highest_temperature, lowest_temperature, hour_of_highest, hour_of_lowest
      type(quorvel_fault), intent(out) :: fault
      if (.not. (hour >= 0.0_sp .and. hour <= 24.0_sp)) call refuse(fault, 'daily_temperature', 'hour', &
         'valid 0 to 24 h', hour)
      if (.not. (highest_temperature >= -100.0_sp .and. highest_temperature <= 200.0_sp)) call refuse(fault, &
         'daily_temperature', 'highest_temperature', 'valid -100 to 200 degC', highest_temperature)
      if (.not. (lowest_temperature >= -100.0_sp .and. lowest_temperature <= 200.0_sp)) call refuse(fault, &
         'daily_temperature', 'lowest_temperature', 'valid -100 to 200 degC', lowest_temperature)
      if (.not. (hour_of_highest >= 0.0_sp .and. hour_of_highest <= 24.0_sp)) call refuse(fault, 'daily_temperature', &
         'hour_of_highest', 'valid 0 to 24 h', hour_of_highest)
      if (.not. (hour_of_lowest >= 0.0_sp .and. hour_of_lowest <= 24.0_sp)) call refuse(fault, 'daily_temperature', &
         'hour_of_lowest', 'valid 0 to 24 h', hour_of_lowest)
   end subroutine

   elemental subroutine check_daily_value(hour, mean, amplitude, first_hour, second_hour, amplitude_factor, fault)
      real(sp), intent(in) :: hour, mean, amplitude, first_hour, second_hour, amplitude_factor
      type(quorvel_fault), intent(out) :: fault
      if (.not. (hour >= 0.0_sp .and. hour <= 24.0_sp)) call refuse(fault, 'daily_value', 'hour', 'valid 0 to 24 h', &
         hour)
      if (.not. (.not. ieee_is_nan(mean))) call refuse(fault, 'daily_value', 'mean', 'valid is any number', mean)
      if (.not. (.not. ieee_is_nan(amplitude))) call refuse(fault, 'daily_value', 'amplitude', 'valid is any number', &
         amplitude)
      if (.not. (first_hour >= 0.0_sp .and. first_hour <= 24.0_sp)) call refuse(fault, 'daily_value', 'first_hour', &
         'valid 0 to 24 h', first_hour)
      if (.not. (second_hour >= 0.0_sp .and. second_hour <= 24.0_sp)) call refuse(fault, 'daily_value', 'second_hour', &
         'valid 0 to 24 h', second_hour)
      if (.not. (.not. ieee_is_nan(amplitude_factor))) call refuse(fault, 'daily_value', 'amplitude_factor', &
         'valid is any number', amplitude_factor)
   end subroutine

   elemental subroutine check_design_irradiance(solar_altitude, site_height, sky_kind, fault)
      real(sp), intent(in) :: solar_altitude, site_height
      integer(i4), intent(in) :: sky_kind
      type(quorvel_fault), intent(out) :: fault
      if (.not. (solar_altitude >= 0.0_sp .and. solar_altitude <= 1.5707964_sp)) call refuse(fault, &
         'design_irradiance', 'solar_altitude', 'valid 0 to 1.5707964 rad', solar_altitude)
      if (.not. (site_height >= 0.0_sp .and. site_height <= 4000.0_sp)) call refuse(fault, 'design_irradiance', &
         'site_height', 'valid 0 to 4000 m', site_height)
      if (.not. (sky_kind >= 0_i4 .and. sky_kind <= 1_i4)) call refuse(fault, 'design_irradiance', 'sky_kind', &
         'valid 0 (clear), 1 (cloudy)', sky_kind)
   end subroutine

   elemental subroutine check_height_factor(site_height, solar_altitude, fault)
      real(sp), intent(in) :: site_height, solar_altitude
      type(quorvel_fault), intent(out) :: fault
      if (.not. (site_height >= 0.0_sp .and. site_height <= 4000.0_sp)) call refuse(fault, 'height_factor', &
         'site_height', 'valid 0 to 4000 m', site_height)
      if (.not. (solar_altitude >= 0.0_sp .and. solar_altitude <= 1.5707964_sp)) call refuse(fault, 'height_factor', &
         'solar_altitude', 'valid 0 to 1.5707964 rad', solar_altitude)
   end subroutine

   elemental subroutine check_eccentricity_factor(day, fault)
      integer(i4), intent(in) :: day
      type(quorvel_fault), intent(out) :: fault
      if (.not. (day >= 1_i4 .and. day <= 366_i4)) call refuse(fault, 'eccentricity_factor', 'day', 'valid 1 to 366', &
         day)
   end subroutine

   elemental subroutine check_clearness_index(day, solar_altitude, global_horizontal, fault)
      integer(i4), intent(in) :: day
      real(sp), intent(in) :: solar_altitude, global_horizontal
      type(quorvel_fault), intent(out) :: fault
      if (.not. (day >= 1_i4 .and. day <= 366_i4)) call refuse(fault, 'clearness_index', 'day', 'valid 1 to 366', day)
      if (.not. (solar_altitude >= 0.0_sp .and. solar_altitude <= 1.5707964_sp)) call refuse(fault, 'clearness_index', &
         'solar_altitude', 'valid 0 to 1.5707964 rad', solar_altitude)
      if (.not. (global_horizontal >= 0.0_sp)) call refuse(fault, 'clearness_index', 'global_horizontal', &
         'valid from 0 W/m2', global_horizontal)
   end subroutine

   elemental subroutine check_muneer_slope(solar_altitude, solar_azimuth, surface_azimuth, tilt, beam_horizontal, &
      diffuse_horizontal, extraterrestrial_horizontal, ground_reflectance, fault)
      real(sp), intent(in) :: solar_altitude, solar_azimuth, surface_azimuth, tilt, beam_horizontal, &
         diffuse_horizontal, extraterrestrial_horizontal, ground_reflectance
      type(quorvel_fault), intent(out) :: fault
      if (.not. (solar_altitude >= 0.0_sp .and. solar_altitude <= 1.5707964_sp)) call refuse(fault, 'muneer_slope', &
         'solar_altitude', 'valid 0 to 1.5707964 rad', solar_altitude)
      if (.not. (solar_azimuth >= 0.0_sp .and. solar_azimuth <= 6.2832_sp)) call refuse(fault, 'muneer_slope', &
         'solar_azimuth', 'valid 0 to 6.2832 rad', solar_azimuth)
      if (.not. (surface_azimuth >= 0.0_sp .and. surface_azimuth <= 6.2832_sp)) call refuse(fault, 'muneer_slope', &
         'surface_azimuth', 'valid 0 to 6.2832 rad', surface_azimuth)
      if (.not. (tilt >= 0.0_sp .and. tilt <= 3.1416_sp)) call refuse(fault, 'muneer_slope', 'tilt', &
         'valid 0 to 3.1416 rad', tilt)
      if (.not. (beam_horizontal >= 0.0_sp)) call refuse(fault, 'muneer_slope', 'beam_horizontal', &
         'valid from 0 W/m2', beam_horizontal)
      if (.not. (diffuse_horizontal >= 0.0_sp)) call refuse(fault, 'muneer_slope', 'diffuse_horizontal', &
         'valid from 0 W/m2', diffuse_horizontal)
      if (.not. (extraterrestrial_horizontal >= 0.0_sp .and. extraterrestrial_horizontal <= 1415.0_sp)) call &
         refuse(fault, 'muneer_slope', 'extraterrestrial_horizontal', 'valid 0 to 1415 W/m2', &
         extraterrestrial_horizontal)
      if (.not. (ground_reflectance >= 0.0_sp .and. ground_reflectance <= 1.0_sp)) call refuse(fault, 'muneer_slope', &
         'ground_reflectance', 'valid 0 to 1', ground_reflectance)
   end subroutine

   elemental subroutine check_perez_diffuse(solar_altitude, tilt, beam_horizontal, diffuse_horizontal, incidence, &
      extraterrestrial_normal, fault)
      real(sp), intent(in) :: solar_altitude, tilt, beam_horizontal, diffuse_horizontal, incidence, &
         extraterrestrial_normal
      type(quorvel_fault), intent(out) :: fault
      if (.not. (solar_altitude >= 0.0_sp .and. solar_altitude <= 1.5707964_sp)) call refuse(fault, 'perez_diffuse', &
         'solar_altitude', 'valid 0 to 1.5707964 rad', solar_altitude)
      if (.not. (tilt >= 0.0_sp .and. tilt <= 3.1416_sp)) call refuse(fault, 'perez_diffuse', 'tilt', &
         'valid 0 to 3.1416 rad', tilt)
      if (.not. (beam_horizontal >= 0.0_sp)) call refuse(fault, 'perez_diffuse', 'beam_horizontal', &
         'valid from 0 W/m2', beam_horizontal)
      if (.not. (diffuse_horizontal >= 0.0_sp)) call refuse(fault, 'perez_diffuse', 'diffuse_horizontal', &
         'valid from 0 W/m2', diffuse_horizontal)
      if (.not. (incidence >= 0.0_sp .and. incidence <= 3.1416_sp)) call refuse(fault, 'perez_diffuse', 'incidence', &
         'valid 0 to 3.1416 rad', incidence)
      if (.not. (extraterrestrial_normal >= 1320.0_sp .and. extraterrestrial_normal <= 1415.0_sp)) call refuse(fault, &
         'perez_diffuse', 'extraterrestrial_normal', 'valid 1320 to 1415 W/m2', extraterrestrial_normal)
   end subroutine

   elemental subroutine check_site_constants(site_class, month, fault)
      integer(i4), intent(in) :: site_class, month
      type(quorvel_fault), intent(out) :: fault
      if (.not. (site_class >= 1_i4 .and. site_class <= 6_i4)) call refuse(fault, 'site_constants', 'site_class', &
         'valid 1 to 6', site_class)
      if (.not. (month >= 1_i4 .and. month <= 12_i4)) call refuse(fault, 'site_constants', 'month', 'valid 1 to 12', &
         month)
   end subroutine

   elemental subroutine check_diffuse_tilt_factor(day, solar_altitude, beam_horizontal, tilt, sky_model, fault)
      integer(i4), intent(in) :: day
      real(sp), intent(in) :: solar_altitude, beam_horizontal, tilt
      integer(i4), intent(in) :: sky_model
      type(quorvel_fault), intent(out) :: fault
      if (.not. (day >= 1_i4 .and. day <= 366_i4)) call refuse(fault, 'diffuse_tilt_factor', 'day', 'valid 1 to 366', &
         day)
      if (.not. (solar_altitude >= 0.0_sp .and. solar_altitude <= 1.5707964_sp)) call refuse(fault, &
         'diffuse_tilt_factor', 'solar_altitude', 'valid 0 to 1.5707964 rad', solar_altitude)
      if (.not. (beam_horizontal >= 0.0_sp)) call refuse(fault, 'diffuse_tilt_factor', 'beam_horizontal', &
         'valid from 0 W/m2', beam_horizontal)
      if (.not. (tilt >= 0.0_sp .and. tilt <= 3.1416_sp)) call refuse(fault, 'diffuse_tilt_factor', 'tilt', &
         'valid 0 to 3.1416 rad', tilt)
      if (.not. (sky_model >= 0_i4 .and. sky_model <= 2_i4)) call refuse(fault, 'diffuse_tilt_factor', 'sky_model', &
         'valid 0 (radiance_index), 1 (northern_europe), 2 (southern_europe)', sky_model)
   end subroutine

   elemental subroutine check_slope_diffuse(day, solar_altitude, solar_azimuth, surface_azimuth, tilt, &
      beam_horizontal, diffuse_horizontal, sky_model, fault)
      integer(i4), intent(in) :: day
      real(sp), intent(in) :: solar_altitude, solar_azimuth, surface_azimuth, tilt, beam_horizontal, &
         diffuse_horizontal
      integer(i4), intent(in) :: sky_model
      type(quorvel_fault), intent(out) :: fault
      if (.not. (day >= 1_i4 .and. day <= 366_i4)) call refuse(fault, 'slope_diffuse', 'day', 'valid 1 to 366', day)
      if (.not. (solar_altitude >= 0.0_sp .and. solar_altitude <= 1.5707964_sp)) call refuse(fault, 'slope_diffuse', &
         'solar_altitude', 'valid 0 to 1.5707964 rad', solar_altitude)
      if (.not. (solar_azimuth >= 0.0_sp .and. solar_azimuth <= 6.2832_sp)) call refuse(fault, 'slope_diffuse', &
         'solar_azimuth', 'valid 0 to 6.2832 rad', solar_azimuth)
      if (.not. (surface_azimuth >= 0.0_sp .and. surface_azimuth <= 6.2832_sp)) call refuse(fault, 'slope_diffuse', &
         'surface_azimuth', 'valid 0 to 6.2832 rad', surface_azimuth)
      if (.not. (tilt >= 0.0_sp .and. tilt <= 3.1416_sp)) call refuse(fault, 'slope_diffuse', 'tilt', &
         'valid 0 to 3.1416 rad', tilt)
      if (.not. (beam_horizontal >= 0.0_sp)) call refuse(fault, 'slope_diffuse', 'beam_horizontal', &
         'valid from 0 W/m2', beam_horizontal)
      if (.not. (diffuse_horizontal >= 0.0_sp)) call refuse(fault, 'slope_diffuse', 'diffuse_horizontal', &
         'valid from 0 W/m2', diffuse_horizontal)
      if (.not. (sky_model >= 0_i4 .and. sky_model <= 2_i4)) call refuse(fault, 'slope_diffuse', 'sky_model', &
         'valid 0 (radiance_index), 1 (northern_europe), 2 (southern_europe)', sky_model)
   end subroutine

   elemental subroutine check_sol_air_temperature(base_temperature, surface_coefficient, absorptance, irradiance, &
      long_wave_loss, fault)
      real(sp), intent(in) :: base_temperature, surface_coefficient, absorptance, irradiance, long_wave_loss
      type(quorvel_fault), intent(out) :: fault
      if (.not. (base_temperature >= -100.0_sp .and. base_temperature <= 200.0_sp)) call refuse(fault, &
         'sol_air_temperature', 'base_temperature', 'valid -100 to 200 degC', base_temperature)
      if (.not. (surface_coefficient >= 0.0_sp)) call refuse(fault, 'sol_air_temperature', 'surface_coefficient', &
         'valid from 0 W/m2K', surface_coefficient)
      if (.not. (absorptance >= 0.0_sp .and. absorptance <= 1.0_sp)) call refuse(fault, 'sol_air_temperature', &
         'absorptance', 'valid 0 to 1', absorptance)
      if (.not. (irradiance >= 0.0_sp)) call refuse(fault, 'sol_air_temperature', 'irradiance', 'valid from 0 W/m2', &
         irradiance)
      if (.not. (long_wave_loss >= 0.0_sp)) call refuse(fault, 'sol_air_temperature', 'long_wave_loss', &
         'valid from 0 W/m2', long_wave_loss)
   end subroutine

   elemental subroutine check_long_wave_loss(tilt, cloud_cover, fault)
      real(sp), intent(in) :: tilt, cloud_cover
      type(quorvel_fault), intent(out) :: fault
      if (.not. (tilt >= 0.0_sp .and. tilt <= 3.1416_sp)) call refuse(fault, 'long_wave_loss', 'tilt', &
         'valid 0 to 3.1416 rad', tilt)
      if (.not. (cloud_cover >= 0.0_sp .and. cloud_cover <= 1.0_sp)) call refuse(fault, 'long_wave_loss', &
         'cloud_cover', 'valid 0 to 1', cloud_cover)
   end subroutine

   elemental subroutine check_solar_time_correction(clock_offset, day, longitude, reference_longitude, fault)
      real(sp), intent(in) :: clock_offset
      integer(i4), intent(in) :: day
      real(sp), intent(in) :: longitude, reference_longitude
      type(quorvel_fault), intent(out) :: fault
      if (.not. (.not. ieee_is_nan(clock_offset))) call refuse(fault, 'solar_time_correction', 'clock_offset', &
         'valid is any number', clock_offset)
      if (.not. (day >= 1_i4 .and. day <= 366_i4)) call refuse(fault, 'solar_time_correction', 'day', &
         'valid 1 to 366', day)
      if (.not. (longitude >= -3.1416_sp .and. longitude <= 3.1416_sp)) call refuse(fault, 'solar_time_correction', &
         'longitude', 'valid -3.1416 to 3.1416 rad', longitude)
      if (.not. (reference_longitude >= -3.1416_sp .and. reference_longitude <= 3.1416_sp)) call refuse(fault, &
         'solar_time_correction', 'reference_longitude', 'valid -3.1416 to 3.1416 rad', reference_longitude)
   end subroutine

   elemental subroutine check_almanac_position(time_kind, year, month, day_of_month, clock_time, latitude, longitude, &
      zone_meridian, fault)
      integer(i4), intent(in) :: time_kind, year, month, day_of_month
      real(sp), intent(in) :: clock_time, latitude, longitude, zone_meridian
      type(quorvel_fault), intent(out) :: fault
      if (.not. (time_kind >= 1_i4 .and. time_kind <= 3_i4)) call refuse(fault, 'almanac_position', 'time_kind', &
         'valid 1 (solar), 2 (zone), 3 (dated_solar)', time_kind)
      if (.not. (year >= 1976_i4 .and. year <= 2099_i4)) call refuse(fault, 'almanac_position', 'year', &
         'valid 1976 to 2099', year)
      if (.not. (month >= 1_i4 .and. month <= 12_i4)) call refuse(fault, 'almanac_position', 'month', 'valid 1 to 12', &
         month)
      if (.not. (day_of_month >= 1_i4 .and. day_of_month <= 31_i4)) call refuse(fault, 'almanac_position', &
         'day_of_month', 'valid 1 to 31', day_of_month)
      if (.not. (clock_time >= 0.0_sp .and. clock_time <= 24.0_sp)) call refuse(fault, 'almanac_position', &
         'clock_time', 'valid 0 to 24 h', clock_time)
      if (.not. (latitude >= -1.5707964_sp .and. latitude <= 1.5707964_sp)) call refuse(fault, 'almanac_position', &
         'latitude', 'valid -1.5707964 to 1.5707964 rad', latitude)
      if (.not. (longitude >= -3.1416_sp .and. longitude <= 3.1416_sp)) call refuse(fault, 'almanac_position', &
         'longitude', 'valid -3.1416 to 3.1416 rad', longitude)
      if (.not. (zone_meridian >= -3.1416_sp .and. zone_meridian <= 3.1416_sp)) call refuse(fault, 'almanac_position', &
         'zone_meridian', 'valid -3.1416 to 3.1416 rad', zone_meridian)
   end subroutine

   elemental subroutine check_almanac_sun_hours(year, month, day_of_month, latitude, fault)
      integer(i4), intent(in) :: year, month, day_of_month
      real(sp), intent(in) :: latitude
      type(quorvel_fault), intent(out) :: fault
      if (.not. (year >= 1976_i4 .and. year <= 2099_i4)) call refuse(fault, 'almanac_sun_hours', 'year', &
         'valid 1976 to 2099', year)
      if (.not. (month >= 1_i4 .and. month <= 12_i4)) call refuse(fault, 'almanac_sun_hours', 'month', &
         'valid 1 to 12', month)
      if (.not. (day_of_month >= 1_i4 .and. day_of_month <= 31_i4)) call refuse(fault, 'almanac_sun_hours', &
         'day_of_month', 'valid 1 to 31', day_of_month)
      if (.not. (latitude >= -1.5707964_sp .and. latitude <= 1.5707964_sp)) call refuse(fault, 'almanac_sun_hours', &
         'latitude', 'valid -1.5707964 to 1.5707964 rad', latitude)
   end subroutine

   elemental subroutine check_solar_geometry(latitude, day, solar_time, fault)
      real(sp), intent(in) :: latitude
      integer(i4), intent(in) :: day
      real(sp), intent(in) :: solar_time
      type(quorvel_fault), intent(out) :: fault
      if (.not. (latitude >= -1.5707964_sp .and. latitude <= 1.5707964_sp)) call refuse(fault, 'solar_geometry', &
         'latitude', 'valid -1.5707964 to 1.5707964 rad', latitude)
      if (.not. (day >= 1_i4 .and. day <= 365_i4)) call refuse(fault, 'solar_geometry', 'day', 'valid 1 to 365', day)
      if (.not. (solar_time >= 0.0_sp .and. solar_time <= 24.0_sp)) call refuse(fault, 'solar_geometry', 'solar_time', &
         'valid 0 to 24 h', solar_time)
   end subroutine

   elemental subroutine check_surface_angles(solar_altitude, solar_azimuth, surface_azimuth, tilt, fault)
      real(sp), intent(in) :: solar_altitude, solar_azimuth, surface_azimuth, tilt
      type(quorvel_fault), intent(out) :: fault
      if (.not. (solar_altitude >= -1.5707964_sp .and. solar_altitude <= 1.5707964_sp)) call refuse(fault, &
         'surface_angles', 'solar_altitude', 'valid -1.5707964 to 1.5707964 rad', solar_altitude)
      if (.not. (solar_azimuth >= 0.0_sp .and. solar_azimuth <= 6.2832_sp)) call refuse(fault, 'surface_angles', &
         'solar_azimuth', 'valid 0 to 6.2832 rad', solar_azimuth)
      if (.not. (surface_azimuth >= 0.0_sp .and. surface_azimuth <= 6.2832_sp)) call refuse(fault, 'surface_angles', &
         'surface_azimuth', 'valid 0 to 6.2832 rad', surface_azimuth)
      if (.not. (tilt >= 0.0_sp .and. tilt <= 3.1416_sp)) call refuse(fault, 'surface_angles', 'tilt', &
         'valid 0 to 3.1416 rad', tilt)
   end subroutine

   elemental subroutine check_surface_irradiance(solar_altitude, solar_azimuth, surface_azimuth, tilt, direct_normal, &
      diffuse_horizontal, ground_reflectance, beam_factor, diffuse_factor, fault)
      real(sp), intent(in) :: solar_altitude, solar_azimuth, surface_azimuth, tilt, direct_normal, diffuse_horizontal, &
         ground_reflectance, beam_factor, diffuse_factor
      type(quorvel_fault), intent(out) :: fault
      if (.not. (solar_altitude >= 0.0_sp .and. solar_altitude <= 1.5707964_sp)) call refuse(fault, &
         'surface_irradiance', 'solar_altitude', 'valid 0 to 1.5707964 rad', solar_altitude)
      if (.not. (solar_azimuth >= 0.0_sp .and. solar_azimuth <= 6.2832_sp)) call refuse(fault, 'surface_irradiance', &
         'solar_azimuth', 'valid 0 to 6.2832 rad', solar_azimuth)
      if (.not. (surface_azimuth >= 0.0_sp .and. surface_azimuth <= 6.2832_sp)) call refuse(fault, &
         'surface_irradiance', 'surface_azimuth', 'valid 0 to 6.2832 rad', surface_azimuth)
      if (.not. (tilt >= 0.0_sp .and. tilt <= 3.1416_sp)) call refuse(fault, 'surface_irradiance', 'tilt', &
         'valid 0 to 3.1416 rad', tilt)
      if (.not. (direct_normal >= 0.0_sp)) call refuse(fault, 'surface_irradiance', 'direct_normal', &
         'valid from 0 W/m2', direct_normal)
      if (.not. (diffuse_horizontal >= 0.0_sp)) call refuse(fault, 'surface_irradiance', 'diffuse_horizontal', &
         'valid from 0 W/m2', diffuse_horizontal)
      if (.not. (ground_reflectance >= 0.0_sp .and. ground_reflectance <= 1.0_sp)) call refuse(fault, &
         'surface_irradiance', 'ground_reflectance', 'valid 0 to 1', ground_reflectance)
      if (.not. (beam_factor >= 0.0_sp)) call refuse(fault, 'surface_irradiance', 'beam_factor', 'valid from 0', &
         beam_factor)
      if (.not. (diffuse_factor >= 0.0_sp)) call refuse(fault, 'surface_irradiance', 'diffuse_factor', 'valid from 0', &
         diffuse_factor)
   end subroutine

   elemental subroutine check_surface_irradiance_and_incidence(solar_altitude, solar_azimuth, surface_azimuth, tilt, &
      direct_normal, diffuse_horizontal, ground_reflectance, beam_factor, diffuse_factor, fault)
      real(sp), intent(in) :: solar_altitude, solar_azimuth, surface_azimuth, tilt, direct_normal, diffuse_horizontal, &
         ground_reflectance, beam_factor, diffuse_factor
      type(quorvel_fault), intent(out) :: fault
      if (.not. (solar_altitude >= 0.0_sp .and. solar_altitude <= 1.5707964_sp)) call refuse(fault, &
         'surface_irradiance_and_incidence', 'solar_altitude', 'valid 0 to 1.5707964 rad', solar_altitude)
      if (.not. (solar_azimuth >= 0.0_sp .and. solar_azimuth <= 6.2832_sp)) call refuse(fault, &
         'surface_irradiance_and_incidence', 'solar_azimuth', 'valid 0 to 6.2832 rad', solar_azimuth)
      if (.not. (surface_azimuth >= 0.0_sp .and. surface_azimuth <= 6.2832_sp)) call refuse(fault, &
         'surface_irradiance_and_incidence', 'surface_azimuth', 'valid 0 to 6.2832 rad', surface_azimuth)
      if (.not. (tilt >= 0.0_sp .and. tilt <= 3.1416_sp)) call refuse(fault, 'surface_irradiance_and_incidence', &
         'tilt', 'valid 0 to 3.1416 rad', tilt)
      if (.not. (direct_normal >= 0.0_sp)) call refuse(fault, 'surface_irradiance_and_incidence', 'direct_normal', &
         'valid from 0 W/m2', direct_normal)
      if (.not. (diffuse_horizontal >= 0.0_sp)) call refuse(fault, 'surface_irradiance_and_incidence', &
         'diffuse_horizontal', 'valid from 0 W/m2', diffuse_horizontal)
      if (.not. (ground_reflectance >= 0.0_sp .and. ground_reflectance <= 1.0_sp)) call refuse(fault, &
         'surface_irradiance_and_incidence', 'ground_reflectance', 'valid 0 to 1', ground_reflectance)
      if (.not. (beam_factor >= 0.0_sp)) call refuse(fault, 'surface_irradiance_and_incidence', 'beam_factor', &
         'valid from 0', beam_factor)
      if (.not. (diffuse_factor >= 0.0_sp)) call refuse(fault, 'surface_irradiance_and_incidence', 'diffuse_factor', &
         'valid from 0', diffuse_factor)
   end subroutine

   pure subroutine check_overlap(x_1, y_1, x_2, y_2, fault)
      real(sp), intent(in) :: x_1(:), y_1(:), x_2(:), y_2(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_as_many(fault, 'overlap', 'y_1', size(y_1), 'x_1', size(x_1))
      call expect_count(fault, 'overlap', 'x_1', size(x_1), 3, 2147483647)
      call expect_as_many(fault, 'overlap', 'y_2', size(y_2), 'x_2', size(x_2))
      call expect_count(fault, 'overlap', 'x_2', size(x_2), 3, 2147483647)
      call expect_all(fault, 'overlap', 'x_1', 'valid is any number', [.not. ieee_is_nan(x_1)], [real(x_1, dp)], 0)
      call expect_all(fault, 'overlap', 'y_1', 'valid is any number', [.not. ieee_is_nan(y_1)], [real(y_1, dp)], 0)
      call expect_all(fault, 'overlap', 'x_2', 'valid is any number', [.not. ieee_is_nan(x_2)], [real(x_2, dp)], 0)
      call expect_all(fault, 'overlap', 'y_2', 'valid is any number', [.not. ieee_is_nan(y_2)], [real(y_2, dp)], 0)
   end subroutine

   pure subroutine check_overlap_alias(x_1, y_1, x_2, y_2, fault)
      real(sp), intent(in) :: x_1(:), y_1(:), x_2(:), y_2(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_as_many(fault, 'overlap_alias', 'y_1', size(y_1), 'x_1', size(x_1))
      call expect_count(fault, 'overlap_alias', 'x_1', size(x_1), 3, 2147483647)
      call expect_as_many(fault, 'overlap_alias', 'y_2', size(y_2), 'x_2', size(x_2))
      call expect_count(fault, 'overlap_alias', 'x_2', size(x_2), 3, 2147483647)
      call expect_all(fault, 'overlap_alias', 'x_1', 'valid is any number', [.not. ieee_is_nan(x_1)], [real(x_1, dp)], &
         0)
      call expect_all(fault, 'overlap_alias', 'y_1', 'valid is any number', [.not. ieee_is_nan(y_1)], [real(y_1, dp)], &
         0)
      call expect_all(fault, 'overlap_alias', 'x_2', 'valid is any number', [.not. ieee_is_nan(x_2)], [real(x_2, dp)], &
         0)
      call expect_all(fault, 'overlap_alias', 'y_2', 'valid is any number', [.not. ieee_is_nan(y_2)], [real(y_2, dp)], &
         0)
   end subroutine

   pure subroutine check_collinearity(x, y, fault)
      real(sp), intent(in) :: x(:), y(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_as_many(fault, 'collinearity', 'y', size(y), 'x', size(x))
      call expect_count(fault, 'collinearity', 'x', size(x), 1, 2147483647)
      call expect_all(fault, 'collinearity', 'x', 'valid is any number', [.not. ieee_is_nan(x)], [real(x, dp)], 0)
      call expect_all(fault, 'collinearity', 'y', 'valid is any number', [.not. ieee_is_nan(y)], [real(y, dp)], 0)
   end subroutine

   pure subroutine check_count_enclosed(x, y, point_x, point_y, enclosed, fault)
      real(sp), intent(in) :: x(:), y(:), point_x(:), point_y(:)
      integer(i4), intent(in) :: enclosed(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_as_many(fault, 'count_enclosed', 'y', size(y), 'x', size(x))
      call expect_count(fault, 'count_enclosed', 'x', size(x), 3, 2147483647)
      call expect_as_many(fault, 'count_enclosed', 'point_y', size(point_y), 'point_x', size(point_x))
      call expect_as_many(fault, 'count_enclosed', 'enclosed', size(enclosed), 'point_x', size(point_x))
      call expect_count(fault, 'count_enclosed', 'point_x', size(point_x), 1, 2147483647)
      call expect_all(fault, 'count_enclosed', 'x', 'valid is any number', [.not. ieee_is_nan(x)], [real(x, dp)], 0)
      call expect_all(fault, 'count_enclosed', 'y', 'valid is any number', [.not. ieee_is_nan(y)], [real(y, dp)], 0)
      call expect_all(fault, 'count_enclosed', 'point_x', 'valid is any number', [.not. ieee_is_nan(point_x)], &
         [real(point_x, dp)], 0)
      call expect_all(fault, 'count_enclosed', 'point_y', 'valid is any number', [.not. ieee_is_nan(point_y)], &
         [real(point_y, dp)], 0)
      call expect_all(fault, 'count_enclosed', 'enclosed', 'valid 0 (outside), 1 (inside)', [enclosed >= 0_i4 .and. &
         enclosed <= 1_i4], [real(enclosed, dp)], 0)
   end subroutine

   pure subroutine check_boundary_crossing(segment_start, segment_end, x, y, fault)
      real(sp), intent(in) :: segment_start(:), segment_end(:), x(:), y(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'boundary_crossing', 'segment_start', size(segment_start, 1), 2)
      call expect_extent(fault, 'boundary_crossing', 'segment_end', size(segment_end, 1), 2)
      call expect_as_many(fault, 'boundary_crossing', 'y', size(y), 'x', size(x))
      call expect_count(fault, 'boundary_crossing', 'x', size(x), 3, 2147483647)
      call expect_all(fault, 'boundary_crossing', 'segment_start', 'valid is any number', [.not. &
         ieee_is_nan(segment_start)], [real(segment_start, dp)], 0)
      call expect_all(fault, 'boundary_crossing', 'segment_end', 'valid is any number', [.not. &
         ieee_is_nan(segment_end)], [real(segment_end, dp)], 0)
      call expect_all(fault, 'boundary_crossing', 'x', 'valid is any number', [.not. ieee_is_nan(x)], [real(x, dp)], &
         0)
      call expect_all(fault, 'boundary_crossing', 'y', 'valid is any number', [.not. ieee_is_nan(y)], [real(y, dp)], &
         0)
   end subroutine

   pure subroutine check_inside(point, polygon, fault)
      real(sp), intent(in) :: point(:), polygon(:, :)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'inside', 'point', size(point, 1), 3)
      call expect_extent(fault, 'inside', 'polygon', size(polygon, 1), 3)
      call expect_count(fault, 'inside', 'polygon', size(polygon)/3, 4, 2147483647)
      call expect_all(fault, 'inside', 'point', 'valid is any number', [.not. ieee_is_nan(point)], [real(point, dp)], &
         0)
      call expect_all(fault, 'inside', 'polygon', 'valid is any number', [.not. ieee_is_nan(polygon)], [real(polygon, &
         dp)], 3)
   end subroutine

   pure subroutine check_parallel_planes(triangle_1, triangle_2, fault)
      real(dp), intent(in) :: triangle_1(:, :), triangle_2(:, :)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'parallel_planes', 'triangle_1', size(triangle_1, 1), 3)
      call expect_extent(fault, 'parallel_planes', 'triangle_1', size(triangle_1, 2), 3)
      call expect_extent(fault, 'parallel_planes', 'triangle_2', size(triangle_2, 1), 3)
      call expect_extent(fault, 'parallel_planes', 'triangle_2', size(triangle_2, 2), 3)
      call expect_all(fault, 'parallel_planes', 'triangle_1', 'valid is any number', [.not. ieee_is_nan(triangle_1)], &
         [real(triangle_1, dp)], 3)
      call expect_all(fault, 'parallel_planes', 'triangle_2', 'valid is any number', [.not. ieee_is_nan(triangle_2)], &
         [real(triangle_2, dp)], 3)
   end subroutine

   pure subroutine check_parallel_sides(triangle_1, triangle_2, fault)
      real(dp), intent(in) :: triangle_1(:, :), triangle_2(:, :)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'parallel_sides', 'triangle_1', size(triangle_1, 1), 3)
      call expect_extent(fault, 'parallel_sides', 'triangle_1', size(triangle_1, 2), 3)
      call expect_extent(fault, 'parallel_sides', 'triangle_2', size(triangle_2, 1), 3)
      call expect_extent(fault, 'parallel_sides', 'triangle_2', size(triangle_2, 2), 3)
      call expect_all(fault, 'parallel_sides', 'triangle_1', 'valid is any number', [.not. ieee_is_nan(triangle_1)], &
         [real(triangle_1, dp)], 3)
      call expect_all(fault, 'parallel_sides', 'triangle_2', 'valid is any number', [.not. ieee_is_nan(triangle_2)], &
         [real(triangle_2, dp)], 3)
   end subroutine

   pure subroutine check_rectangular(quadrilateral, fault)
      real(dp), intent(in) :: quadrilateral(:, :)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'rectangular', 'quadrilateral', size(quadrilateral, 1), 3)
      call expect_extent(fault, 'rectangular', 'quadrilateral', size(quadrilateral, 2), 4)
      call expect_all(fault, 'rectangular', 'quadrilateral', 'valid is any number', [.not. &
         ieee_is_nan(quadrilateral)], [real(quadrilateral, dp)], 3)
   end subroutine

   pure subroutine check_facing(triangle, azimuth, fault)
      real(dp), intent(in) :: triangle(:, :), azimuth
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'facing', 'triangle', size(triangle, 1), 3)
      call expect_extent(fault, 'facing', 'triangle', size(triangle, 2), 3)
      call expect_all(fault, 'facing', 'triangle', 'valid is any number', [.not. ieee_is_nan(triangle)], &
         [real(triangle, dp)], 3)
      if (.not. (azimuth >= 0.0_dp .and. azimuth <= 6.2832_dp)) call refuse(fault, 'facing', 'azimuth', &
         'valid 0 to 6.2832 deg', azimuth)
   end subroutine

   pure subroutine check_local_coordinates(quadrilateral_1, quadrilateral_2, fault)
      real(dp), intent(in) :: quadrilateral_1(:, :), quadrilateral_2(:, :)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'local_coordinates', 'quadrilateral_1', size(quadrilateral_1, 1), 3)
      call expect_extent(fault, 'local_coordinates', 'quadrilateral_1', size(quadrilateral_1, 2), 4)
      call expect_extent(fault, 'local_coordinates', 'quadrilateral_2', size(quadrilateral_2, 1), 3)
      call expect_extent(fault, 'local_coordinates', 'quadrilateral_2', size(quadrilateral_2, 2), 4)
      call expect_all(fault, 'local_coordinates', 'quadrilateral_1', 'valid is any number', [.not. &
         ieee_is_nan(quadrilateral_1)], [real(quadrilateral_1, dp)], 3)
      call expect_all(fault, 'local_coordinates', 'quadrilateral_2', 'valid is any number', [.not. &
         ieee_is_nan(quadrilateral_2)], [real(quadrilateral_2, dp)], 3)
   end subroutine

   pure subroutine check_to_local(corners, x_axis, y_axis, z_axis, fault)
      real(dp), intent(in) :: corners(:, :), x_axis(:), y_axis(:), z_axis(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'to_local', 'corners', size(corners, 1), 3)
      call expect_extent(fault, 'to_local', 'corners', size(corners, 2), 4)
      call expect_extent(fault, 'to_local', 'x_axis', size(x_axis, 1), 3)
      call expect_extent(fault, 'to_local', 'y_axis', size(y_axis, 1), 3)
      call expect_extent(fault, 'to_local', 'z_axis', size(z_axis, 1), 3)
      call expect_all(fault, 'to_local', 'corners', 'valid is any number', [.not. ieee_is_nan(corners)], &
         [real(corners, dp)], 3)
      call expect_all(fault, 'to_local', 'x_axis', 'valid is any number', [.not. ieee_is_nan(x_axis)], [real(x_axis, &
         dp)], 0)
      call expect_all(fault, 'to_local', 'y_axis', 'valid is any number', [.not. ieee_is_nan(y_axis)], [real(y_axis, &
         dp)], 0)
      call expect_all(fault, 'to_local', 'z_axis', 'valid is any number', [.not. ieee_is_nan(z_axis)], [real(z_axis, &
         dp)], 0)
   end subroutine

   pure subroutine check_meeting_point(line_1_start, line_1_end, line_2_start, line_2_end, fault)
      real(sp), intent(in) :: line_1_start(:), line_1_end(:), line_2_start(:), line_2_end(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'meeting_point', 'line_1_start', size(line_1_start, 1), 2)
      call expect_extent(fault, 'meeting_point', 'line_1_end', size(line_1_end, 1), 2)
      call expect_extent(fault, 'meeting_point', 'line_2_start', size(line_2_start, 1), 2)
      call expect_extent(fault, 'meeting_point', 'line_2_end', size(line_2_end, 1), 2)
      call expect_all(fault, 'meeting_point', 'line_1_start', 'valid is any number', [.not. &
         ieee_is_nan(line_1_start)], [real(line_1_start, dp)], 0)
      call expect_all(fault, 'meeting_point', 'line_1_end', 'valid is any number', [.not. ieee_is_nan(line_1_end)], &
         [real(line_1_end, dp)], 0)
      call expect_all(fault, 'meeting_point', 'line_2_start', 'valid is any number', [.not. &
         ieee_is_nan(line_2_start)], [real(line_2_start, dp)], 0)
      call expect_all(fault, 'meeting_point', 'line_2_end', 'valid is any number', [.not. ieee_is_nan(line_2_end)], &
         [real(line_2_end, dp)], 0)
   end subroutine

   pure subroutine check_crossing_point(segment_1_start, segment_1_end, segment_2_start, segment_2_end, fault)
      real(sp), intent(in) :: segment_1_start(:), segment_1_end(:), segment_2_start(:), segment_2_end(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'crossing_point', 'segment_1_start', size(segment_1_start, 1), 2)
      call expect_extent(fault, 'crossing_point', 'segment_1_end', size(segment_1_end, 1), 2)
      call expect_extent(fault, 'crossing_point', 'segment_2_start', size(segment_2_start, 1), 2)
      call expect_extent(fault, 'crossing_point', 'segment_2_end', size(segment_2_end, 1), 2)
      call expect_all(fault, 'crossing_point', 'segment_1_start', 'valid is any number', [.not. &
         ieee_is_nan(segment_1_start)], [real(segment_1_start, dp)], 0)
      call expect_all(fault, 'crossing_point', 'segment_1_end', 'valid is any number', [.not. &
         ieee_is_nan(segment_1_end)], [real(segment_1_end, dp)], 0)
      call expect_all(fault, 'crossing_point', 'segment_2_start', 'valid is any number', [.not. &
         ieee_is_nan(segment_2_start)], [real(segment_2_start, dp)], 0)
      call expect_all(fault, 'crossing_point', 'segment_2_end', 'valid is any number', [.not. &
         ieee_is_nan(segment_2_end)], [real(segment_2_end, dp)], 0)
   end subroutine

   pure subroutine check_in_span(first_end, second_end, point, fault)
      real(sp), intent(in) :: first_end(:), second_end(:), point(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'in_span', 'first_end', size(first_end, 1), 3)
      call expect_extent(fault, 'in_span', 'second_end', size(second_end, 1), 3)
      call expect_extent(fault, 'in_span', 'point', size(point, 1), 3)
      call expect_all(fault, 'in_span', 'first_end', 'valid is any number', [.not. ieee_is_nan(first_end)], &
         [real(first_end, dp)], 0)
      call expect_all(fault, 'in_span', 'second_end', 'valid is any number', [.not. ieee_is_nan(second_end)], &
         [real(second_end, dp)], 0)
      call expect_all(fault, 'in_span', 'point', 'valid is any number', [.not. ieee_is_nan(point)], [real(point, dp)], &
         0)
   end subroutine

   pure subroutine check_ahead_and_nearer(first_end, second_end, point, fault)
      real(sp), intent(in) :: first_end(:), second_end(:), point(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'ahead_and_nearer', 'first_end', size(first_end, 1), 3)
      call expect_extent(fault, 'ahead_and_nearer', 'second_end', size(second_end, 1), 3)
      call expect_extent(fault, 'ahead_and_nearer', 'point', size(point, 1), 3)
      call expect_all(fault, 'ahead_and_nearer', 'first_end', 'valid is any number', [.not. ieee_is_nan(first_end)], &
         [real(first_end, dp)], 0)
      call expect_all(fault, 'ahead_and_nearer', 'second_end', 'valid is any number', [.not. ieee_is_nan(second_end)], &
         [real(second_end, dp)], 0)
      call expect_all(fault, 'ahead_and_nearer', 'point', 'valid is any number', [.not. ieee_is_nan(point)], &
         [real(point, dp)], 0)
   end subroutine

   elemental subroutine check_coincide(x_1, y_1, x_2, y_2, fault)
      real(sp), intent(in) :: x_1, y_1, x_2, y_2
      type(quorvel_fault), intent(out) :: fault
      if (.not. (.not. ieee_is_nan(x_1))) call refuse(fault, 'coincide', 'x_1', 'valid is any number', x_1)
      if (.not. (.not. ieee_is_nan(y_1))) call refuse(fault, 'coincide', 'y_1', 'valid is any number', y_1)
      if (.not. (.not. ieee_is_nan(x_2))) call refuse(fault, 'coincide', 'x_2', 'valid is any number', x_2)
      if (.not. (.not. ieee_is_nan(y_2))) call refuse(fault, 'coincide', 'y_2', 'valid is any number', y_2)
   end subroutine

   pure subroutine check_side_of_line(line_start, line_end, point, fault)
      real(sp), intent(in) :: line_start(:), line_end(:), point(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'side_of_line', 'line_start', size(line_start, 1), 2)
      call expect_extent(fault, 'side_of_line', 'line_end', size(line_end, 1), 2)
      call expect_extent(fault, 'side_of_line', 'point', size(point, 1), 2)
      call expect_all(fault, 'side_of_line', 'line_start', 'valid is any number', [.not. ieee_is_nan(line_start)], &
         [real(line_start, dp)], 0)
      call expect_all(fault, 'side_of_line', 'line_end', 'valid is any number', [.not. ieee_is_nan(line_end)], &
         [real(line_end, dp)], 0)
      call expect_all(fault, 'side_of_line', 'point', 'valid is any number', [.not. ieee_is_nan(point)], [real(point, &
         dp)], 0)
   end subroutine

   elemental subroutine check_back_azimuth(angle, fault)
      real(sp), intent(in) :: angle
      type(quorvel_fault), intent(out) :: fault
      if (.not. (angle >= 0.0_sp .and. angle <= 360.0_sp)) call refuse(fault, 'back_azimuth', 'angle', &
         'valid 0 to 360 deg', angle)
   end subroutine

   pure subroutine check_direction_to(solar_altitude, solar_azimuth, fault)
      real(sp), intent(in) :: solar_altitude, solar_azimuth
      type(quorvel_fault), intent(out) :: fault
      if (.not. (solar_altitude >= -1.5708_sp .and. solar_altitude <= 1.5708_sp)) call refuse(fault, 'direction_to', &
         'solar_altitude', 'valid -1.5708 to 1.5708 rad', solar_altitude)
      if (.not. (solar_azimuth >= 0.0_sp .and. solar_azimuth <= 6.2832_sp)) call refuse(fault, 'direction_to', &
         'solar_azimuth', 'valid 0 to 6.2832 rad', solar_azimuth)
   end subroutine

   pure subroutine check_surface_axes(surface_azimuth, tilt, fault)
      real(sp), intent(in) :: surface_azimuth, tilt
      type(quorvel_fault), intent(out) :: fault
      if (.not. (surface_azimuth >= 0.0_sp .and. surface_azimuth <= 6.2832_sp)) call refuse(fault, 'surface_axes', &
         'surface_azimuth', 'valid 0 to 6.2832 rad', surface_azimuth)
      if (.not. (tilt >= 0.0_sp .and. tilt <= 3.1416_sp)) call refuse(fault, 'surface_axes', 'tilt', &
         'valid 0 to 3.1416 rad', tilt)
   end subroutine

   pure subroutine check_local_to_global(local_vector, rotation_matrix, fault)
      real(sp), intent(in) :: local_vector(:), rotation_matrix(:, :)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'local_to_global', 'local_vector', size(local_vector, 1), 3)
      call expect_extent(fault, 'local_to_global', 'rotation_matrix', size(rotation_matrix, 1), 3)
      call expect_extent(fault, 'local_to_global', 'rotation_matrix', size(rotation_matrix, 2), 3)
      call expect_all(fault, 'local_to_global', 'local_vector', 'valid is any number', [.not. &
         ieee_is_nan(local_vector)], [real(local_vector, dp)], 0)
      call expect_all(fault, 'local_to_global', 'rotation_matrix', 'valid -1 to 1', [rotation_matrix >= -1.0_sp .and. &
         rotation_matrix <= 1.0_sp], [real(rotation_matrix, dp)], 3)
   end subroutine

   pure subroutine check_global_to_local(global_vector, rotation_matrix, fault)
      real(sp), intent(in) :: global_vector(:), rotation_matrix(:, :)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'global_to_local', 'global_vector', size(global_vector, 1), 3)
      call expect_extent(fault, 'global_to_local', 'rotation_matrix', size(rotation_matrix, 1), 3)
      call expect_extent(fault, 'global_to_local', 'rotation_matrix', size(rotation_matrix, 2), 3)
      call expect_all(fault, 'global_to_local', 'global_vector', 'valid is any number', [.not. &
         ieee_is_nan(global_vector)], [real(global_vector, dp)], 0)
      call expect_all(fault, 'global_to_local', 'rotation_matrix', 'valid -1 to 1', [rotation_matrix >= -1.0_sp .and. &
         rotation_matrix <= 1.0_sp], [real(rotation_matrix, dp)], 3)
   end subroutine

   pure subroutine check_plan_area(x, y, fault)
      real(sp), intent(in) :: x(:), y(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_as_many(fault, 'plan_area', 'y', size(y), 'x', size(x))
      call expect_count(fault, 'plan_area', 'x', size(x), 3, 2147483647)
      call expect_all(fault, 'plan_area', 'x', 'valid is any number', [.not. ieee_is_nan(x)], [real(x, dp)], 0)
      call expect_all(fault, 'plan_area', 'y', 'valid is any number', [.not. ieee_is_nan(y)], [real(y, dp)], 0)
   end subroutine

   pure subroutine check_signed_plan_area(x, y, fault)
      real(sp), intent(in) :: x(:), y(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_as_many(fault, 'signed_plan_area', 'y', size(y), 'x', size(x))
      call expect_count(fault, 'signed_plan_area', 'x', size(x), 3, 2147483647)
      call expect_all(fault, 'signed_plan_area', 'x', 'valid is any number', [.not. ieee_is_nan(x)], [real(x, dp)], 0)
      call expect_all(fault, 'signed_plan_area', 'y', 'valid is any number', [.not. ieee_is_nan(y)], [real(y, dp)], 0)
   end subroutine

   pure subroutine check_area_in_space(x, y, z, fault)
      real(sp), intent(in) :: x(:), y(:), z(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_as_many(fault, 'area_in_space', 'y', size(y), 'x', size(x))
      call expect_as_many(fault, 'area_in_space', 'z', size(z), 'x', size(x))
      call expect_count(fault, 'area_in_space', 'x', size(x), 3, 2147483647)
      call expect_all(fault, 'area_in_space', 'x', 'valid is any number', [.not. ieee_is_nan(x)], [real(x, dp)], 0)
      call expect_all(fault, 'area_in_space', 'y', 'valid is any number', [.not. ieee_is_nan(y)], [real(y, dp)], 0)
      call expect_all(fault, 'area_in_space', 'z', 'valid is any number', [.not. ieee_is_nan(z)], [real(z, dp)], 0)
   end subroutine

   pure subroutine check_polygon_orientation(polygon, fault)
      real(sp), intent(in) :: polygon(:, :)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'polygon_orientation', 'polygon', size(polygon, 1), 3)
      call expect_count(fault, 'polygon_orientation', 'polygon', size(polygon)/3, 3, 2147483647)
      call expect_all(fault, 'polygon_orientation', 'polygon', 'valid is any number', [.not. ieee_is_nan(polygon)], &
         [real(polygon, dp)], 3)
   end subroutine

   pure subroutine check_projection(plane_point, plane_normal, point, direction, fault)
      real(sp), intent(in) :: plane_point(:), plane_normal(:), point(:), direction(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'projection', 'plane_point', size(plane_point, 1), 3)
      call expect_extent(fault, 'projection', 'plane_normal', size(plane_normal, 1), 3)
      call expect_extent(fault, 'projection', 'point', size(point, 1), 3)
      call expect_extent(fault, 'projection', 'direction', size(direction, 1), 3)
      call expect_all(fault, 'projection', 'plane_point', 'valid is any number', [.not. ieee_is_nan(plane_point)], &
         [real(plane_point, dp)], 0)
      call expect_all(fault, 'projection', 'plane_normal', 'valid is any number', [.not. ieee_is_nan(plane_normal)], &
         [real(plane_normal, dp)], 0)
      call expect_all(fault, 'projection', 'point', 'valid is any number', [.not. ieee_is_nan(point)], [real(point, &
         dp)], 0)
      call expect_all(fault, 'projection', 'direction', 'valid is any number', [.not. ieee_is_nan(direction)], &
         [real(direction, dp)], 0)
   end subroutine

   pure subroutine check_forward_projection(plane_point, plane_normal, point, direction, fault)
      real(sp), intent(in) :: plane_point(:), plane_normal(:), point(:), direction(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'forward_projection', 'plane_point', size(plane_point, 1), 3)
      call expect_extent(fault, 'forward_projection', 'plane_normal', size(plane_normal, 1), 3)
      call expect_extent(fault, 'forward_projection', 'point', size(point, 1), 3)
      call expect_extent(fault, 'forward_projection', 'direction', size(direction, 1), 3)
      call expect_all(fault, 'forward_projection', 'plane_point', 'valid is any number', [.not. &
         ieee_is_nan(plane_point)], [real(plane_point, dp)], 0)
      call expect_all(fault, 'forward_projection', 'plane_normal', 'valid is any number', [.not. &
         ieee_is_nan(plane_normal)], [real(plane_normal, dp)], 0)
      call expect_all(fault, 'forward_projection', 'point', 'valid is any number', [.not. ieee_is_nan(point)], &
         [real(point, dp)], 0)
      call expect_all(fault, 'forward_projection', 'direction', 'valid is any number', [.not. ieee_is_nan(direction)], &
         [real(direction, dp)], 0)
   end subroutine

   pure subroutine check_forward_projection_or_start(plane_point, plane_normal, point, direction, fault)
      real(sp), intent(in) :: plane_point(:), plane_normal(:), point(:), direction(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'forward_projection_or_start', 'plane_point', size(plane_point, 1), 3)
      call expect_extent(fault, 'forward_projection_or_start', 'plane_normal', size(plane_normal, 1), 3)
      call expect_extent(fault, 'forward_projection_or_start', 'point', size(point, 1), 3)
      call expect_extent(fault, 'forward_projection_or_start', 'direction', size(direction, 1), 3)
      call expect_all(fault, 'forward_projection_or_start', 'plane_point', 'valid is any number', [.not. &
         ieee_is_nan(plane_point)], [real(plane_point, dp)], 0)
      call expect_all(fault, 'forward_projection_or_start', 'plane_normal', 'valid is any number', [.not. &
         ieee_is_nan(plane_normal)], [real(plane_normal, dp)], 0)
      call expect_all(fault, 'forward_projection_or_start', 'point', 'valid is any number', [.not. &
         ieee_is_nan(point)], [real(point, dp)], 0)
      call expect_all(fault, 'forward_projection_or_start', 'direction', 'valid is any number', [.not. &
         ieee_is_nan(direction)], [real(direction, dp)], 0)
   end subroutine

   pure subroutine check_vector_dot_product(vector_a, vector_b, fault)
      real(sp), intent(in) :: vector_a(:), vector_b(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'vector_dot_product', 'vector_a', size(vector_a, 1), 3)
      call expect_extent(fault, 'vector_dot_product', 'vector_b', size(vector_b, 1), 3)
      call expect_all(fault, 'vector_dot_product', 'vector_a', 'valid is any number', [.not. ieee_is_nan(vector_a)], &
         [real(vector_a, dp)], 0)
      call expect_all(fault, 'vector_dot_product', 'vector_b', 'valid is any number', [.not. ieee_is_nan(vector_b)], &
         [real(vector_b, dp)], 0)
   end subroutine

   pure subroutine check_dot_product_in_double(vector_a, vector_b, fault)
      real(dp), intent(in) :: vector_a(:), vector_b(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'dot_product_in_double', 'vector_a', size(vector_a, 1), 3)
      call expect_extent(fault, 'dot_product_in_double', 'vector_b', size(vector_b, 1), 3)
      call expect_all(fault, 'dot_product_in_double', 'vector_a', 'valid is any number', [.not. &
         ieee_is_nan(vector_a)], [real(vector_a, dp)], 0)
      call expect_all(fault, 'dot_product_in_double', 'vector_b', 'valid is any number', [.not. &
         ieee_is_nan(vector_b)], [real(vector_b, dp)], 0)
   end subroutine

   pure subroutine check_cross_product(vector_a, vector_b, fault)
      real(sp), intent(in) :: vector_a(:), vector_b(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'cross_product', 'vector_a', size(vector_a, 1), 3)
      call expect_extent(fault, 'cross_product', 'vector_b', size(vector_b, 1), 3)
      call expect_all(fault, 'cross_product', 'vector_a', 'valid is any number', [.not. ieee_is_nan(vector_a)], &
         [real(vector_a, dp)], 0)
      call expect_all(fault, 'cross_product', 'vector_b', 'valid is any number', [.not. ieee_is_nan(vector_b)], &
         [real(vector_b, dp)], 0)
   end subroutine

   pure subroutine check_cross_product_in_double(vector_a, vector_b, fault)
      real(dp), intent(in) :: vector_a(:), vector_b(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'cross_product_in_double', 'vector_a', size(vector_a, 1), 3)
      call expect_extent(fault, 'cross_product_in_double', 'vector_b', size(vector_b, 1), 3)
      call expect_all(fault, 'cross_product_in_double', 'vector_a', 'valid is any number', [.not. &
         ieee_is_nan(vector_a)], [real(vector_a, dp)], 0)
      call expect_all(fault, 'cross_product_in_double', 'vector_b', 'valid is any number', [.not. &
         ieee_is_nan(vector_b)], [real(vector_b, dp)], 0)
   end subroutine

   pure subroutine check_length(vector, fault)
      real(sp), intent(in) :: vector(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'length', 'vector', size(vector, 1), 3)
      call expect_all(fault, 'length', 'vector', 'valid is any number', [.not. ieee_is_nan(vector)], [real(vector, &
         dp)], 0)
   end subroutine

   pure subroutine check_length_in_double(vector, fault)
      real(dp), intent(in) :: vector(:)
      type(quorvel_fault), intent(out) :: fault
      call expect_extent(fault, 'length_in_double', 'vector', size(vector, 1), 3)
      call expect_all(fault, 'length_in_double', 'vector', 'valid is any number', [.not. ieee_is_nan(vector)], &
         [real(vector, dp)], 0)
   end subroutine

end module quorvel_checks
