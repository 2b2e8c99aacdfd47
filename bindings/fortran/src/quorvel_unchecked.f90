!> The routines without any check: the same names and arguments as in module quorvel, and for whatever is given the
!> bits that C gets. Of lists of unequal lengths the shortest counts; arrays of a fixed shape must have it. What a
!> routine leaves as it was is not a number (an integer: 0).
! Produced from the catalogue of routines (catalogue/); do not edit.
module quorvel_unchecked
   use, intrinsic :: iso_fortran_env, only: sp => real32, dp => real64, i4 => int32
   use, intrinsic :: iso_c_binding, only: c_size_t, c_ptrdiff_t
   use quorvel_by_reference
   implicit none
   private
   public :: &
      absorption_product, &
      adiabatic_mixing, &
      ahead_and_nearer, &
      air_cavity_resistance, &
      almanac_position, &
      almanac_sun_hours, &
      area_in_space, &
      back_azimuth, &
      band_climate, &
      band_row, &
      boundary_crossing, &
      clearness_index, &
      coincide, &
      collinearity, &
      condensation_profile, &
      condenses_within_layer, &
      count_enclosed, &
      cross_product, &
      cross_product_in_double, &
      crossing_point, &
      cyclic_response, &
      daily_temperature, &
      daily_value, &
      design_day, &
      design_day_by_option, &
      design_irradiance, &
      dew_point, &
      diffuse_roller_blind, &
      diffuse_tilt_factor, &
      direction_to, &
      dot_product_in_double, &
      dry_air_enthalpy, &
      dry_air_specific_heat, &
      dry_bulb_from_enthalpy_and_moisture_content, &
      dry_bulb_from_enthalpy_and_percentage_saturation, &
      dry_bulb_from_enthalpy_and_relative_humidity, &
      dry_bulb_from_enthalpy_and_vapour_pressure, &
      dry_bulb_from_moisture_content_and_percentage_saturation, &
      dry_bulb_from_moisture_content_and_relative_humidity, &
      dry_bulb_from_vapour_pressure_and_percentage_saturation, &
      dry_bulb_from_vapour_pressure_and_relative_humidity, &
      dry_bulb_from_wet_bulb_and_enthalpy, &
      dry_bulb_from_wet_bulb_and_moisture_content, &
      dry_bulb_from_wet_bulb_and_percentage_saturation, &
      dry_bulb_from_wet_bulb_and_relative_humidity, &
      dry_bulb_from_wet_bulb_and_vapour_pressure, &
      eccentricity_factor, &
      element_property, &
      facing, &
      forward_projection, &
      forward_projection_or_start, &
      gas_cavity_resistance, &
      glass_diffuse, &
      glass_direct, &
      global_to_local, &
      height_factor, &
      in_span, &
      inside, &
      interpolate_band_rows, &
      latent_heat, &
      length, &
      length_in_double, &
      local_coordinates, &
      local_to_global, &
      locate_band, &
      long_wave_loss, &
      meeting_point, &
      moist_air_density, &
      moisture_content, &
      moisture_content_from_enthalpy, &
      moisture_content_from_percentage_saturation, &
      moisture_content_from_psychrometer, &
      muneer_slope, &
      natural_convection_coefficient, &
      normal_transmittance, &
      open_slat_diffuse, &
      open_slat_direct, &
      overlap, &
      overlap_alias, &
      pack_pane, &
      pack_three_fractions, &
      pack_three_fractions_third_first, &
      pack_two_fractions, &
      pane_temperatures, &
      parallel_planes, &
      parallel_sides, &
      percentage_saturation, &
      perez_diffuse, &
      plan_area, &
      polygon_orientation, &
      pool_evaporation, &
      pool_evaporation_from_wet_bulb, &
      projection, &
      psychrometer_wet_bulb, &
      rectangular, &
      refraction_angle, &
      relative_humidity, &
      roller_blind, &
      saturation_pressure, &
      saturation_temperature_from_enthalpy, &
      second_design_day, &
      second_design_day_by_option, &
      side_of_line, &
      signed_plan_area, &
      single_pass_absorption, &
      site_constants, &
      slab_optics, &
      slat_diffuse, &
      slat_direct, &
      slope_diffuse, &
      sol_air_temperature, &
      solar_geometry, &
      solar_time_correction, &
      specific_enthalpy, &
      specific_enthalpy_from_psychrometer, &
      specific_volume, &
      stacked_layers, &
      store_design_day, &
      store_design_day_by_option, &
      surface_angles, &
      surface_axes, &
      surface_irradiance, &
      surface_irradiance_and_incidence, &
      surface_reflectance, &
      surface_resistance, &
      surface_resistance_at_emissivity, &
      to_local, &
      total_vapour_resistance, &
      traced_layers, &
      two_faced_slat_diffuse, &
      two_faced_slat_direct, &
      u_value, &
      u_value_at_tilt_and_exposure, &
      unit_diffuse, &
      unit_diffuse_shares, &
      unit_direct, &
      unit_direct_shares, &
      unit_shares, &
      vapour_pressure, &
      vapour_pressure_from_moisture_content, &
      vapour_pressure_from_psychrometer, &
      vector_dot_product, &
      vertical_cavity_resistance, &
      water_vapour_enthalpy, &
      water_vapour_specific_heat, &
      weighted_temperature, &
      wet_bulb, &
      wet_bulb_from_moisture_content, &
      wet_bulb_from_percentage_saturation, &
      window_parameters

   real(sp), parameter :: no_real = transfer(int(z'7fc00000', i4), 0.0_sp)
   real(dp), parameter :: no_double_real = transfer([0_i4, int(z'7ff80000', i4)], 0.0_dp)

contains
   elemental function dry_air_enthalpy(temperature) result(answer)
      real(sp), intent(in) :: temperature
      real(sp) :: answer
      answer = PSHDRY(temperature)
   end function

   elemental function water_vapour_enthalpy(temperature) result(answer)
      real(sp), intent(in) :: temperature
      real(sp) :: answer
      answer = PSHVAP(temperature)
   end function

   elemental function dry_air_specific_heat(temperature) result(answer)
      real(sp), intent(in) :: temperature
      real(sp) :: answer
      answer = PSCPDR(temperature)
   end function

   elemental function water_vapour_specific_heat(temperature) result(answer)
      real(sp), intent(in) :: temperature
      real(sp) :: answer
      answer = PSCPVA(temperature)
   end function

   elemental function latent_heat(temperature) result(answer)
      real(sp), intent(in) :: temperature
      real(sp) :: answer
      answer = PSHFG(temperature)
   end function

   elemental function dry_bulb_from_vapour_pressure_and_relative_humidity(vapour_pressure, relative_humidity) &
      result(answer)
      real(sp), intent(in) :: vapour_pressure, relative_humidity
      real(sp) :: answer
      call array_dry_bulb_from_vapour_pressure_and_relative_humidity(1_c_size_t, vapour_pressure, 0_c_ptrdiff_t, &
         relative_humidity, 0_c_ptrdiff_t, answer, 0_c_ptrdiff_t)
   end function

   elemental function dry_bulb_from_vapour_pressure_and_percentage_saturation(vapour_pressure, percentage_saturation, &
      pressure) result(answer)
      real(sp), intent(in) :: vapour_pressure, percentage_saturation, pressure
      real(sp) :: answer
      call array_dry_bulb_from_vapour_pressure_and_percentage_saturation(1_c_size_t, vapour_pressure, 0_c_ptrdiff_t, &
         percentage_saturation, 0_c_ptrdiff_t, pressure, 0_c_ptrdiff_t, answer, 0_c_ptrdiff_t)
   end function

   elemental function dry_bulb_from_moisture_content_and_relative_humidity(moisture_content, relative_humidity, &
      pressure) result(answer)
      real(sp), intent(in) :: moisture_content, relative_humidity, pressure
      real(sp) :: answer
      call array_dry_bulb_from_moisture_content_and_relative_humidity(1_c_size_t, moisture_content, 0_c_ptrdiff_t, &
         relative_humidity, 0_c_ptrdiff_t, pressure, 0_c_ptrdiff_t, answer, 0_c_ptrdiff_t)
   end function

   elemental function dry_bulb_from_moisture_content_and_percentage_saturation(moisture_content, &
      percentage_saturation, pressure) result(answer)
      real(sp), intent(in) :: moisture_content, percentage_saturation, pressure
      real(sp) :: answer
      call array_dry_bulb_from_moisture_content_and_percentage_saturation(1_c_size_t, moisture_content, 0_c_ptrdiff_t, &
         percentage_saturation, 0_c_ptrdiff_t, pressure, 0_c_ptrdiff_t, answer, 0_c_ptrdiff_t)
   end function

   elemental function dry_bulb_from_enthalpy_and_moisture_content(enthalpy, moisture_content) result(answer)
      real(sp), intent(in) :: enthalpy, moisture_content
      real(sp) :: answer
      call array_dry_bulb_from_enthalpy_and_moisture_content(1_c_size_t, enthalpy, 0_c_ptrdiff_t, moisture_content, &
         0_c_ptrdiff_t, answer, 0_c_ptrdiff_t)
   end function

   elemental function dry_bulb_from_enthalpy_and_vapour_pressure(enthalpy, vapour_pressure, pressure) result(answer)
      real(sp), intent(in) :: enthalpy, vapour_pressure, pressure
      real(sp) :: answer
      call array_dry_bulb_from_enthalpy_and_vapour_pressure(1_c_size_t, enthalpy, 0_c_ptrdiff_t, vapour_pressure, &
         0_c_ptrdiff_t, pressure, 0_c_ptrdiff_t, answer, 0_c_ptrdiff_t)
   end function

   elemental function dry_bulb_from_enthalpy_and_relative_humidity(enthalpy, relative_humidity, pressure) &
      result(answer)
      real(sp), intent(in) :: enthalpy, relative_humidity, pressure
      real(sp) :: answer
      call array_dry_bulb_from_enthalpy_and_relative_humidity(1_c_size_t, enthalpy, 0_c_ptrdiff_t, relative_humidity, &
         0_c_ptrdiff_t, pressure, 0_c_ptrdiff_t, answer, 0_c_ptrdiff_t)
   end function

   elemental function dry_bulb_from_enthalpy_and_percentage_saturation(enthalpy, percentage_saturation, pressure) &
      result(answer)
      real(sp), intent(in) :: enthalpy, percentage_saturation, pressure
      real(sp) :: answer
      call array_dry_bulb_from_enthalpy_and_percentage_saturation(1_c_size_t, enthalpy, 0_c_ptrdiff_t, &
         percentage_saturation, 0_c_ptrdiff_t, pressure, 0_c_ptrdiff_t, answer, 0_c_ptrdiff_t)
   end function

   elemental function dry_bulb_from_wet_bulb_and_vapour_pressure(wet_bulb, vapour_pressure, pressure, psychrometer) &
      result(answer)
      real(sp), intent(in) :: wet_bulb, vapour_pressure, pressure
      integer(i4), intent(in) :: psychrometer
      real(sp) :: answer
      call array_dry_bulb_from_wet_bulb_and_vapour_pressure(1_c_size_t, wet_bulb, 0_c_ptrdiff_t, vapour_pressure, &
         0_c_ptrdiff_t, pressure, 0_c_ptrdiff_t, psychrometer, 0_c_ptrdiff_t, answer, 0_c_ptrdiff_t)
   end function

   elemental function dry_bulb_from_wet_bulb_and_moisture_content(wet_bulb, moisture_content, pressure, psychrometer) &
      result(answer)
      real(sp), intent(in) :: wet_bulb, moisture_content, pressure
      integer(i4), intent(in) :: psychrometer
      real(sp) :: answer
      call array_dry_bulb_from_wet_bulb_and_moisture_content(1_c_size_t, wet_bulb, 0_c_ptrdiff_t, moisture_content, &
         0_c_ptrdiff_t, pressure, 0_c_ptrdiff_t, psychrometer, 0_c_ptrdiff_t, answer, 0_c_ptrdiff_t)
   end function

   elemental function dry_bulb_from_wet_bulb_and_relative_humidity(wet_bulb, relative_humidity, pressure, &
      psychrometer) result(answer)
      real(sp), intent(in) :: wet_bulb, relative_humidity, pressure
      integer(i4), intent(in) :: psychrometer
      real(sp) :: answer
      call array_dry_bulb_from_wet_bulb_and_relative_humidity(1_c_size_t, wet_bulb, 0_c_ptrdiff_t, relative_humidity, &
         0_c_ptrdiff_t, pressure, 0_c_ptrdiff_t, psychrometer, 0_c_ptrdiff_t, answer, 0_c_ptrdiff_t)
   end function

   elemental function dry_bulb_from_wet_bulb_and_percentage_saturation(wet_bulb, percentage_saturation, pressure, &
      psychrometer) result(answer)
      real(sp), intent(in) :: wet_bulb, percentage_saturation, pressure
      integer(i4), intent(in) :: psychrometer
      real(sp) :: answer
      call array_dry_bulb_from_wet_bulb_and_percentage_saturation(1_c_size_t, wet_bulb, 0_c_ptrdiff_t, &
         percentage_saturation, 0_c_ptrdiff_t, pressure, 0_c_ptrdiff_t, psychrometer, 0_c_ptrdiff_t, answer, &
         0_c_ptrdiff_t)
   end function

   elemental function dry_bulb_from_wet_bulb_and_enthalpy(wet_bulb, enthalpy, pressure, psychrometer) result(answer)
      real(sp), intent(in) :: wet_bulb, enthalpy, pressure
      integer(i4), intent(in) :: psychrometer
      real(sp) :: answer
      call array_dry_bulb_from_wet_bulb_and_enthalpy(1_c_size_t, wet_bulb, 0_c_ptrdiff_t, enthalpy, 0_c_ptrdiff_t, &
         pressure, 0_c_ptrdiff_t, psychrometer, 0_c_ptrdiff_t, answer, 0_c_ptrdiff_t)
   end function

   elemental subroutine adiabatic_mixing(first_air_flow, first_dry_bulb, first_moisture_content, second_air_flow, &
      second_dry_bulb, second_moisture_content, dry_bulb, moisture_content, enthalpy)
      real(sp), intent(in) :: first_air_flow, first_dry_bulb, first_moisture_content, second_air_flow, &
         second_dry_bulb, second_moisture_content
      real(sp), intent(out), optional :: dry_bulb, moisture_content, enthalpy
      real(sp) :: own_dry_bulb, own_moisture_content, own_enthalpy
      call array_adiabatic_mixing(1_c_size_t, first_air_flow, 0_c_ptrdiff_t, first_dry_bulb, 0_c_ptrdiff_t, &
         first_moisture_content, 0_c_ptrdiff_t, second_air_flow, 0_c_ptrdiff_t, second_dry_bulb, 0_c_ptrdiff_t, &
         second_moisture_content, 0_c_ptrdiff_t, own_dry_bulb, 0_c_ptrdiff_t, own_moisture_content, 0_c_ptrdiff_t, &
         own_enthalpy, 0_c_ptrdiff_t)
      if (present(dry_bulb)) dry_bulb = own_dry_bulb
      if (present(moisture_content)) moisture_content = own_moisture_content
      if (present(enthalpy)) enthalpy = own_enthalpy
   end subroutine

   elemental function moisture_content_from_psychrometer(dry_bulb, wet_bulb, pressure, psychrometer) result(answer)
      real(sp), intent(in) :: dry_bulb, wet_bulb, pressure
      integer(i4), intent(in) :: psychrometer
      real(sp) :: answer
      answer = PSGS(dry_bulb, wet_bulb, pressure, psychrometer)
   end function

   elemental function moisture_content(dry_bulb, vapour_pressure, pressure) result(answer)
      real(sp), intent(in) :: dry_bulb, vapour_pressure, pressure
      real(sp) :: answer
      call array_moisture_content(1_c_size_t, dry_bulb, 0_c_ptrdiff_t, vapour_pressure, 0_c_ptrdiff_t, pressure, &
         0_c_ptrdiff_t, answer, 0_c_ptrdiff_t)
   end function

   elemental function vapour_pressure_from_moisture_content(dry_bulb, moisture_content, pressure) result(answer)
      real(sp), intent(in) :: dry_bulb, moisture_content, pressure
      real(sp) :: answer
      call array_vapour_pressure_from_moisture_content(1_c_size_t, dry_bulb, 0_c_ptrdiff_t, moisture_content, &
         0_c_ptrdiff_t, pressure, 0_c_ptrdiff_t, answer, 0_c_ptrdiff_t)
   end function

   elemental function moisture_content_from_percentage_saturation(dry_bulb, percentage_saturation, pressure) &
      result(answer)
      real(sp), intent(in) :: dry_bulb, percentage_saturation, pressure
      real(sp) :: answer
      call array_moisture_content_from_percentage_saturation(1_c_size_t, dry_bulb, 0_c_ptrdiff_t, &
         percentage_saturation, 0_c_ptrdiff_t, pressure, 0_c_ptrdiff_t, answer, 0_c_ptrdiff_t)
   end function

   elemental function moisture_content_from_enthalpy(dry_bulb, enthalpy) result(answer)
      real(sp), intent(in) :: dry_bulb, enthalpy
      real(sp) :: answer
      call array_moisture_content_from_enthalpy(1_c_size_t, dry_bulb, 0_c_ptrdiff_t, enthalpy, 0_c_ptrdiff_t, answer, &
         0_c_ptrdiff_t)
   end function

   elemental function moist_air_density(dry_bulb, moisture_content, pressure) result(answer)
      real(sp), intent(in) :: dry_bulb, moisture_content, pressure
      real(sp) :: answer
      call array_moist_air_density(1_c_size_t, dry_bulb, 0_c_ptrdiff_t, moisture_content, 0_c_ptrdiff_t, pressure, &
         0_c_ptrdiff_t, answer, 0_c_ptrdiff_t)
   end function

   elemental function percentage_saturation(dry_bulb, moisture_content, pressure) result(answer)
      real(sp), intent(in) :: dry_bulb, moisture_content, pressure
      real(sp) :: answer
      answer = PSPCST(dry_bulb, moisture_content, pressure)
   end function

   elemental function specific_enthalpy(dry_bulb, moisture_content) result(answer)
      real(sp), intent(in) :: dry_bulb, moisture_content
      real(sp) :: answer
      call array_specific_enthalpy(1_c_size_t, dry_bulb, 0_c_ptrdiff_t, moisture_content, 0_c_ptrdiff_t, answer, &
         0_c_ptrdiff_t)
   end function

   elemental function specific_enthalpy_from_psychrometer(dry_bulb, wet_bulb, pressure, psychrometer) result(answer)
      real(sp), intent(in) :: dry_bulb, wet_bulb, pressure
      integer(i4), intent(in) :: psychrometer
      real(sp) :: answer
      answer = PSHWET(dry_bulb, wet_bulb, pressure, psychrometer)
   end function

   elemental function specific_volume(dry_bulb, moisture_content, pressure) result(answer)
      real(sp), intent(in) :: dry_bulb, moisture_content, pressure
      real(sp) :: answer
      answer = PSSPVL(dry_bulb, moisture_content, pressure)
   end function

   elemental function saturation_temperature_from_enthalpy(enthalpy, pressure) result(answer)
      real(sp), intent(in) :: enthalpy, pressure
      real(sp) :: answer
      answer = PSTSAT(enthalpy, pressure)
   end function

   elemental subroutine pool_evaporation(water_area, wetted_area, water_temperature, dry_bulb, moisture_content, &
      reference_temperature, bathers, reference_coefficient, pressure, evaporation_rate, latent_load, convective_load, &
      reference_load)
      real(sp), intent(in) :: water_area, wetted_area, water_temperature, dry_bulb, moisture_content, &
         reference_temperature
      integer(i4), intent(in) :: bathers
      real(sp), intent(in) :: reference_coefficient, pressure
      real(sp), intent(out), optional :: evaporation_rate, latent_load, convective_load, reference_load
      real(sp) :: own_evaporation_rate, own_latent_load, own_convective_load, own_reference_load
      call TPPOOL(water_area, wetted_area, water_temperature, dry_bulb, moisture_content, reference_temperature, &
         bathers, reference_coefficient, pressure, own_evaporation_rate, own_latent_load, own_convective_load, &
         own_reference_load)
      if (present(evaporation_rate)) evaporation_rate = own_evaporation_rate
      if (present(latent_load)) latent_load = own_latent_load
      if (present(convective_load)) convective_load = own_convective_load
      if (present(reference_load)) reference_load = own_reference_load
   end subroutine

   elemental subroutine pool_evaporation_from_wet_bulb(water_area, wetted_area, water_temperature, dry_bulb, wet_bulb, &
      reference_temperature, bathers, reference_coefficient, pressure, evaporation_rate, latent_load, convective_load, &
      reference_load)
      real(sp), intent(in) :: water_area, wetted_area, water_temperature, dry_bulb, wet_bulb, reference_temperature
      integer(i4), intent(in) :: bathers
      real(sp), intent(in) :: reference_coefficient, pressure
      real(sp), intent(out), optional :: evaporation_rate, latent_load, convective_load, reference_load
      real(sp) :: own_evaporation_rate, own_latent_load, own_convective_load, own_reference_load
      call TPPOOL2(water_area, wetted_area, water_temperature, dry_bulb, wet_bulb, reference_temperature, bathers, &
         reference_coefficient, pressure, own_evaporation_rate, own_latent_load, own_convective_load, &
         own_reference_load)
      if (present(evaporation_rate)) evaporation_rate = own_evaporation_rate
      if (present(latent_load)) latent_load = own_latent_load
      if (present(convective_load)) convective_load = own_convective_load
      if (present(reference_load)) reference_load = own_reference_load
   end subroutine

   elemental function saturation_pressure(temperature) result(answer)
      real(sp), intent(in) :: temperature
      real(sp) :: answer
      answer = PSSVP(temperature)
   end function

   elemental function dew_point(vapour_pressure) result(answer)
      real(sp), intent(in) :: vapour_pressure
      real(sp) :: answer
      call array_dew_point(1_c_size_t, vapour_pressure, 0_c_ptrdiff_t, answer, 0_c_ptrdiff_t)
   end function

   elemental function vapour_pressure(dry_bulb, relative_humidity) result(answer)
      real(sp), intent(in) :: dry_bulb, relative_humidity
      real(sp) :: answer
      answer = PSVP(dry_bulb, relative_humidity)
   end function

   elemental function relative_humidity(dry_bulb, vapour_pressure) result(answer)
      real(sp), intent(in) :: dry_bulb, vapour_pressure
      real(sp) :: answer
      call array_relative_humidity(1_c_size_t, dry_bulb, 0_c_ptrdiff_t, vapour_pressure, 0_c_ptrdiff_t, answer, &
         0_c_ptrdiff_t)
   end function

   elemental function vapour_pressure_from_psychrometer(dry_bulb, wet_bulb, pressure, psychrometer) result(answer)
      real(sp), intent(in) :: dry_bulb, wet_bulb, pressure
      integer(i4), intent(in) :: psychrometer
      real(sp) :: answer
      answer = PSVAP(dry_bulb, wet_bulb, pressure, psychrometer)
   end function

   elemental function weighted_temperature(first_temperature, second_temperature) result(answer)
      real(sp), intent(in) :: first_temperature, second_temperature
      real(sp) :: answer
      answer = PSTEFF(first_temperature, second_temperature)
   end function

   elemental function psychrometer_wet_bulb(dry_bulb, relative_humidity, pressure, psychrometer) result(answer)
      real(sp), intent(in) :: dry_bulb, relative_humidity, pressure
      integer(i4), intent(in) :: psychrometer
      real(sp) :: answer
      answer = PSTWET(dry_bulb, relative_humidity, pressure, psychrometer)
   end function

   elemental function wet_bulb_from_percentage_saturation(dry_bulb, percentage_saturation, pressure, psychrometer) &
      result(answer)
      real(sp), intent(in) :: dry_bulb, percentage_saturation, pressure
      integer(i4), intent(in) :: psychrometer
      real(sp) :: answer
      answer = PSTWB(dry_bulb, percentage_saturation, pressure, psychrometer)
   end function

   elemental function wet_bulb_from_moisture_content(dry_bulb, moisture_content, pressure, psychrometer) &
      result(answer)
      real(sp), intent(in) :: dry_bulb, moisture_content, pressure
      integer(i4), intent(in) :: psychrometer
      real(sp) :: answer
      answer = PSWBLB(dry_bulb, moisture_content, pressure, psychrometer)
   end function

   elemental function wet_bulb(dry_bulb, vapour_pressure, pressure, psychrometer) result(answer)
      real(sp), intent(in) :: dry_bulb, vapour_pressure, pressure
      integer(i4), intent(in) :: psychrometer
      real(sp) :: answer
      call array_wet_bulb(1_c_size_t, dry_bulb, 0_c_ptrdiff_t, vapour_pressure, 0_c_ptrdiff_t, pressure, &
         0_c_ptrdiff_t, psychrometer, 0_c_ptrdiff_t, answer, 0_c_ptrdiff_t)
   end function

   pure subroutine cyclic_response(thickness, conductivity, density, specific_heat, inside_resistance, &
      outside_resistance, harmonic, element_kind, admittance, admittance_lead, decrement_factor, decrement_lag, &
      surface_factor, surface_factor_lag, u_value)
      real(sp), intent(in) :: thickness(:), conductivity(:), density(:), specific_heat(:), inside_resistance, &
         outside_resistance
      integer(i4), intent(in) :: harmonic, element_kind
      real(sp), intent(out), optional :: admittance, admittance_lead, decrement_factor, decrement_lag, surface_factor, &
         surface_factor_lag, u_value
      integer(i4) :: layers
      real(sp) :: own_admittance, own_admittance_lead, own_decrement_factor, own_decrement_lag, own_surface_factor, &
         own_surface_factor_lag, own_u_value
      layers = shortest([size(thickness), size(conductivity), size(density), size(specific_heat)])
      own_admittance = no_real
      own_admittance_lead = no_real
      own_decrement_factor = no_real
      own_decrement_lag = no_real
      own_surface_factor = no_real
      own_surface_factor_lag = no_real
      own_u_value = no_real
      call TPADMT(thickness, conductivity, density, specific_heat, inside_resistance, outside_resistance, layers, &
         harmonic, element_kind, own_admittance, own_admittance_lead, own_decrement_factor, own_decrement_lag, &
         own_surface_factor, own_surface_factor_lag, own_u_value)
      if (present(admittance)) admittance = own_admittance
      if (present(admittance_lead)) admittance_lead = own_admittance_lead
      if (present(decrement_factor)) decrement_factor = own_decrement_factor
      if (present(decrement_lag)) decrement_lag = own_decrement_lag
      if (present(surface_factor)) surface_factor = own_surface_factor
      if (present(surface_factor_lag)) surface_factor_lag = own_surface_factor_lag
      if (present(u_value)) u_value = own_u_value
   end subroutine

   elemental function vertical_cavity_resistance(cavity_width) result(answer)
      real(sp), intent(in) :: cavity_width
      real(sp) :: answer
      answer = TPRCAV(cavity_width)
   end function

   elemental function air_cavity_resistance(tilt, cavity_width, emissivity_1, emissivity_2) result(answer)
      real(sp), intent(in) :: tilt, cavity_width, emissivity_1, emissivity_2
      real(sp) :: answer
      answer = TPRCA2(tilt, cavity_width, emissivity_1, emissivity_2)
   end function

   elemental function gas_cavity_resistance(tilt, cavity_width, emissivity_1, emissivity_2, density, conductivity, &
      specific_heat, viscosity) result(answer)
      real(sp), intent(in) :: tilt, cavity_width, emissivity_1, emissivity_2, density, conductivity, specific_heat, &
         viscosity
      real(sp) :: answer
      answer = TPRCAX(tilt, cavity_width, emissivity_1, emissivity_2, density, conductivity, specific_heat, viscosity)
   end function

   pure function total_vapour_resistance(thickness, vapour_resistivity) result(answer)
      real(sp), intent(in) :: thickness(:), vapour_resistivity(:)
      real(sp) :: answer
      integer(i4) :: layers
      layers = shortest([size(thickness), size(vapour_resistivity)])
      answer = no_real
      call TPDAMP(thickness, vapour_resistivity, layers, answer)
   end function

   pure subroutine condensation_profile(thickness, conductivity, vapour_resistivity, inside_resistance, &
      outside_resistance, inside_temperature, outside_temperature, inside_humidity, outside_humidity, &
      interface_temperature, interface_vapour_pressure, interface_saturation_pressure)
      real(sp), intent(in) :: thickness(:), conductivity(:), vapour_resistivity(:), inside_resistance, &
         outside_resistance, inside_temperature, outside_temperature, inside_humidity, outside_humidity
      real(sp), intent(out), optional :: interface_temperature(21), interface_vapour_pressure(21), &
         interface_saturation_pressure(21)
      integer(i4) :: layers
      real(sp) :: own_interface_temperature(21), own_interface_vapour_pressure(21), &
         own_interface_saturation_pressure(21)
      layers = shortest([size(thickness), size(conductivity), size(vapour_resistivity)])
      own_interface_temperature = no_real
      own_interface_vapour_pressure = no_real
      own_interface_saturation_pressure = no_real
      call TPGRAD(thickness, conductivity, vapour_resistivity, inside_resistance, outside_resistance, layers, &
         inside_temperature, outside_temperature, inside_humidity, outside_humidity, own_interface_temperature, &
         own_interface_vapour_pressure, own_interface_saturation_pressure)
      if (present(interface_temperature)) interface_temperature = own_interface_temperature
      if (present(interface_vapour_pressure)) interface_vapour_pressure = own_interface_vapour_pressure
      if (present(interface_saturation_pressure)) interface_saturation_pressure = own_interface_saturation_pressure
   end subroutine

   elemental function condenses_within_layer(warm_temperature, cold_temperature, warm_vapour_pressure, &
      cold_vapour_pressure) result(answer)
      real(sp), intent(in) :: warm_temperature, cold_temperature, warm_vapour_pressure, cold_vapour_pressure
      integer(i4) :: answer
      answer = ITPCON(warm_temperature, cold_temperature, warm_vapour_pressure, cold_vapour_pressure)
   end function

   pure function element_property(element_records, record_number, item) result(answer)
      real(sp), intent(in) :: element_records(:, :)
      integer(i4), intent(in) :: record_number, item
      real(sp) :: answer
      integer(i4) :: record_count
      record_count = shortest([size(element_records)/10])
      answer = BELDAT(element_records, record_count, record_number, item)
   end function

   elemental function natural_convection_coefficient(temperature_difference, characteristic_length, &
      heat_flow_direction) result(answer)
      real(sp), intent(in) :: temperature_difference, characteristic_length
      integer(i4), intent(in) :: heat_flow_direction
      real(sp) :: answer
      answer = TPHCON(temperature_difference, characteristic_length, heat_flow_direction)
   end function

   elemental subroutine pack_two_fractions(packing, packed_number, fraction_1, fraction_2)
      integer(i4), intent(in) :: packing
      real(sp), intent(inout) :: packed_number, fraction_1, fraction_2
      call TPCOLW(packing, packed_number, fraction_1, fraction_2)
   end subroutine

   elemental subroutine pack_three_fractions(packing, packed_number, fraction_1, fraction_2, fraction_3)
      integer(i4), intent(in) :: packing
      real(sp), intent(inout) :: packed_number, fraction_1, fraction_2, fraction_3
      call TPCOLT(packing, packed_number, fraction_1, fraction_2, fraction_3)
   end subroutine

   elemental subroutine pack_three_fractions_third_first(packing, packed_number, fraction_3, fraction_1, fraction_2)
      integer(i4), intent(in) :: packing
      real(sp), intent(inout) :: packed_number, fraction_3, fraction_1, fraction_2
      call TPCOLW2(packing, packed_number, fraction_3, fraction_1, fraction_2)
   end subroutine

   elemental subroutine pack_pane(packing, packed_number, absorptance, reflectance_1, reflectance_2)
      integer(i4), intent(in) :: packing
      real(sp), intent(inout) :: packed_number, absorptance, reflectance_1, reflectance_2
      call TPCOSW(packing, packed_number, absorptance, reflectance_1, reflectance_2)
   end subroutine

   elemental function surface_resistance(surface, tilt, exposure) result(answer)
      integer(i4), intent(in) :: surface
      real(sp), intent(in) :: tilt
      integer(i4), intent(in) :: exposure
      real(sp) :: answer
      answer = TPRSUR(surface, tilt, exposure)
   end function

   elemental function surface_resistance_at_emissivity(surface, tilt, exposure, emissivity) result(answer)
      integer(i4), intent(in) :: surface
      real(sp), intent(in) :: tilt
      integer(i4), intent(in) :: exposure
      real(sp), intent(in) :: emissivity
      real(sp) :: answer
      answer = TPRSU2(surface, tilt, exposure, emissivity)
   end function

   pure function u_value(thickness, conductivity, surface_resistance_1, surface_resistance_2) result(answer)
      real(sp), intent(in) :: thickness(:), conductivity(:), surface_resistance_1, surface_resistance_2
      real(sp) :: answer
      integer(i4) :: layers
      layers = shortest([size(thickness), size(conductivity)])
      answer = no_real
      call TPUVAL(thickness, conductivity, surface_resistance_1, surface_resistance_2, layers, answer)
   end function

   elemental function u_value_at_tilt_and_exposure(u_value, tilt, exposure) result(answer)
      real(sp), intent(in) :: u_value, tilt
      integer(i4), intent(in) :: exposure
      real(sp) :: answer
      answer = TPUMOD(u_value, tilt, exposure)
   end function

   elemental subroutine window_parameters(panes, pane_kind_1, emissivity_1, pane_kind_2, emissivity_2, pane_kind_3, &
      emissivity_3, cavity_width_1, cavity_width_2, outer_surface, exposure, tilt, admittance, admittance_lead, &
      decrement_factor, decrement_lag, surface_factor, surface_factor_lag, u_value)
      integer(i4), intent(in) :: panes, pane_kind_1
      real(sp), intent(in) :: emissivity_1
      integer(i4), intent(in) :: pane_kind_2
      real(sp), intent(in) :: emissivity_2
      integer(i4), intent(in) :: pane_kind_3
      real(sp), intent(in) :: emissivity_3, cavity_width_1, cavity_width_2
      integer(i4), intent(in) :: outer_surface, exposure
      real(sp), intent(in) :: tilt
      real(sp), intent(out), optional :: admittance, admittance_lead, decrement_factor, decrement_lag, surface_factor, &
         surface_factor_lag, u_value
      real(sp) :: own_admittance, own_admittance_lead, own_decrement_factor, own_decrement_lag, own_surface_factor, &
         own_surface_factor_lag, own_u_value
      call TPWNDO(panes, pane_kind_1, emissivity_1, pane_kind_2, emissivity_2, pane_kind_3, emissivity_3, &
         cavity_width_1, cavity_width_2, outer_surface, exposure, tilt, 0.0_sp, own_admittance, own_admittance_lead, &
         own_decrement_factor, own_decrement_lag, own_surface_factor, own_surface_factor_lag, own_u_value)
      if (present(admittance)) admittance = own_admittance
      if (present(admittance_lead)) admittance_lead = own_admittance_lead
      if (present(decrement_factor)) decrement_factor = own_decrement_factor
      if (present(decrement_lag)) decrement_lag = own_decrement_lag
      if (present(surface_factor)) surface_factor = own_surface_factor
      if (present(surface_factor_lag)) surface_factor_lag = own_surface_factor_lag
      if (present(u_value)) u_value = own_u_value
   end subroutine

   elemental subroutine glass_direct(normal_transmittance, normal_reflectance, incidence, parallel_transmittance, &
      parallel_absorptance, parallel_reflectance, perpendicular_transmittance, perpendicular_absorptance, &
      perpendicular_reflectance)
      real(sp), intent(in) :: normal_transmittance, normal_reflectance, incidence
      real(sp), intent(out), optional :: parallel_transmittance, parallel_absorptance, parallel_reflectance, &
         perpendicular_transmittance, perpendicular_absorptance, perpendicular_reflectance
      real(sp) :: own_parallel_transmittance, own_parallel_absorptance, own_parallel_reflectance, &
         own_perpendicular_transmittance, own_perpendicular_absorptance, own_perpendicular_reflectance
      call WNDRGL(normal_transmittance, normal_reflectance, incidence, own_parallel_transmittance, &
         own_parallel_absorptance, own_parallel_reflectance, own_perpendicular_transmittance, &
         own_perpendicular_absorptance, own_perpendicular_reflectance)
      if (present(parallel_transmittance)) parallel_transmittance = own_parallel_transmittance
      if (present(parallel_absorptance)) parallel_absorptance = own_parallel_absorptance
      if (present(parallel_reflectance)) parallel_reflectance = own_parallel_reflectance
      if (present(perpendicular_transmittance)) perpendicular_transmittance = own_perpendicular_transmittance
      if (present(perpendicular_absorptance)) perpendicular_absorptance = own_perpendicular_absorptance
      if (present(perpendicular_reflectance)) perpendicular_reflectance = own_perpendicular_reflectance
   end subroutine

   elemental subroutine glass_diffuse(normal_transmittance, normal_reflectance, transmittance, absorptance)
      real(sp), intent(in) :: normal_transmittance, normal_reflectance
      real(sp), intent(out), optional :: transmittance, absorptance
      real(sp) :: own_transmittance, own_absorptance
      call WNDFGL(normal_transmittance, normal_reflectance, own_transmittance, own_absorptance)
      if (present(transmittance)) transmittance = own_transmittance
      if (present(absorptance)) absorptance = own_absorptance
   end subroutine

   pure subroutine stacked_layers(layer_transmittances, layer_reflectances, transmittance, absorptance, reflectance)
      real(sp), intent(in) :: layer_transmittances(:), layer_reflectances(:)
      real(sp), intent(out), optional :: transmittance, absorptance, reflectance
      integer(i4) :: layers
      real(sp) :: own_transmittance, own_absorptance, own_reflectance
      layers = shortest([size(layer_transmittances), size(layer_reflectances)])
      call WNCOM2(layers, layer_transmittances, 0.0_sp, layer_reflectances, own_transmittance, own_absorptance, &
         own_reflectance)
      if (present(transmittance)) transmittance = own_transmittance
      if (present(absorptance)) absorptance = own_absorptance
      if (present(reflectance)) reflectance = own_reflectance
   end subroutine

   pure subroutine traced_layers(layer_transmittances, layer_absorptances, layer_reflectances, transmittance, &
      absorptance, reflectance)
      real(sp), intent(in) :: layer_transmittances(:), layer_absorptances(:), layer_reflectances(:)
      real(sp), intent(out), optional :: transmittance, absorptance, reflectance
      integer(i4) :: layers
      real(sp) :: own_transmittance, own_absorptance, own_reflectance
      layers = shortest([size(layer_transmittances), size(layer_absorptances), size(layer_reflectances)])
      own_transmittance = no_real
      own_absorptance = no_real
      own_reflectance = no_real
      call WNCOMP(layers, layer_transmittances, layer_absorptances, layer_reflectances, own_transmittance, &
         own_absorptance, own_reflectance)
      if (present(transmittance)) transmittance = own_transmittance
      if (present(absorptance)) absorptance = own_absorptance
      if (present(reflectance)) reflectance = own_reflectance
   end subroutine

   elemental subroutine roller_blind(blind_transmittance, blind_reflectance, transmittance, absorptance, reflectance)
      real(sp), intent(in) :: blind_transmittance, blind_reflectance
      real(sp), intent(out), optional :: transmittance, absorptance, reflectance
      real(sp) :: own_transmittance, own_absorptance, own_reflectance
      call WNDRRO(blind_transmittance, blind_reflectance, 0.0_sp, own_transmittance, own_absorptance, own_reflectance)
      if (present(transmittance)) transmittance = own_transmittance
      if (present(absorptance)) absorptance = own_absorptance
      if (present(reflectance)) reflectance = own_reflectance
   end subroutine

   elemental subroutine diffuse_roller_blind(blind_transmittance, blind_reflectance, transmittance, absorptance, &
      reflectance)
      real(sp), intent(in) :: blind_transmittance, blind_reflectance
      real(sp), intent(out), optional :: transmittance, absorptance, reflectance
      real(sp) :: own_transmittance, own_absorptance, own_reflectance
      call WNDFRO(blind_transmittance, blind_reflectance, own_transmittance, own_absorptance, own_reflectance)
      if (present(transmittance)) transmittance = own_transmittance
      if (present(absorptance)) absorptance = own_absorptance
      if (present(reflectance)) reflectance = own_reflectance
   end subroutine

   elemental function refraction_angle(incidence, refractive_index) result(answer)
      real(sp), intent(in) :: incidence, refractive_index
      real(sp) :: answer
      answer = WNRANG(incidence, refractive_index)
   end function

   elemental subroutine surface_reflectance(incidence, refraction_angle, refractive_index, parallel_reflectance, &
      perpendicular_reflectance)
      real(sp), intent(in) :: incidence, refraction_angle, refractive_index
      real(sp), intent(out), optional :: parallel_reflectance, perpendicular_reflectance
      real(sp) :: own_parallel_reflectance, own_perpendicular_reflectance
      call WNREFL(incidence, refraction_angle, refractive_index, own_parallel_reflectance, &
         own_perpendicular_reflectance)
      if (present(parallel_reflectance)) parallel_reflectance = own_parallel_reflectance
      if (present(perpendicular_reflectance)) perpendicular_reflectance = own_perpendicular_reflectance
   end subroutine

   elemental function single_pass_absorption(refraction_angle, absorption_product) result(answer)
      real(sp), intent(in) :: refraction_angle, absorption_product
      real(sp) :: answer
      answer = WNABEN(refraction_angle, absorption_product, 0.0_sp)
   end function

   elemental subroutine slab_optics(single_pass_absorptance, face_reflectance, transmittance, absorptance, &
      reflectance)
      real(sp), intent(in) :: single_pass_absorptance, face_reflectance
      real(sp), intent(out), optional :: transmittance, absorptance, reflectance
      real(sp) :: own_transmittance, own_absorptance, own_reflectance
      call WNTAR(single_pass_absorptance, face_reflectance, own_transmittance, own_absorptance, own_reflectance)
      if (present(transmittance)) transmittance = own_transmittance
      if (present(absorptance)) absorptance = own_absorptance
      if (present(reflectance)) reflectance = own_reflectance
   end subroutine

   elemental function absorption_product(normal_transmittance, refractive_index) result(answer)
      real(sp), intent(in) :: normal_transmittance, refractive_index
      real(sp) :: answer
      answer = WNKL(normal_transmittance, refractive_index)
   end function

   elemental function normal_transmittance(absorption_product, normal_reflectance) result(answer)
      real(sp), intent(in) :: absorption_product, normal_reflectance
      real(sp) :: answer
      answer = WNTNOR(absorption_product, normal_reflectance)
   end function

   elemental subroutine pane_temperatures(inside_temperature, outside_temperature, panes, absorbed_1, absorbed_2, &
      absorbed_3, absorbed_4, absorbed_5, pane_temperature_1, pane_temperature_2, pane_temperature_3, &
      pane_temperature_4, pane_temperature_5)
      real(sp), intent(in) :: inside_temperature, outside_temperature
      integer(i4), intent(in) :: panes
      real(sp), intent(in) :: absorbed_1, absorbed_2, absorbed_3, absorbed_4, absorbed_5
      real(sp), intent(out), optional :: pane_temperature_1, pane_temperature_2, pane_temperature_3, &
         pane_temperature_4, pane_temperature_5
      real(sp) :: own_pane_temperature_1, own_pane_temperature_2, own_pane_temperature_3, own_pane_temperature_4, &
         own_pane_temperature_5
      own_pane_temperature_1 = no_real
      own_pane_temperature_2 = no_real
      own_pane_temperature_3 = no_real
      own_pane_temperature_4 = no_real
      own_pane_temperature_5 = no_real
      call WNTEMP(inside_temperature, outside_temperature, panes, absorbed_1, absorbed_2, absorbed_3, absorbed_4, &
         absorbed_5, own_pane_temperature_1, own_pane_temperature_2, own_pane_temperature_3, own_pane_temperature_4, &
         own_pane_temperature_5)
      if (present(pane_temperature_1)) pane_temperature_1 = own_pane_temperature_1
      if (present(pane_temperature_2)) pane_temperature_2 = own_pane_temperature_2
      if (present(pane_temperature_3)) pane_temperature_3 = own_pane_temperature_3
      if (present(pane_temperature_4)) pane_temperature_4 = own_pane_temperature_4
      if (present(pane_temperature_5)) pane_temperature_5 = own_pane_temperature_5
   end subroutine

   elemental subroutine unit_direct(shortwave_shading_coefficient, longwave_shading_coefficient, incidence, &
      transmittance, absorptance, reflectance)
      real(sp), intent(in) :: shortwave_shading_coefficient, longwave_shading_coefficient, incidence
      real(sp), intent(out), optional :: transmittance, absorptance, reflectance
      real(sp) :: own_transmittance, own_absorptance, own_reflectance
      call WNDRSC(shortwave_shading_coefficient, longwave_shading_coefficient, incidence, own_transmittance, &
         own_absorptance, own_reflectance)
      if (present(transmittance)) transmittance = own_transmittance
      if (present(absorptance)) absorptance = own_absorptance
      if (present(reflectance)) reflectance = own_reflectance
   end subroutine

   elemental subroutine unit_diffuse(shortwave_shading_coefficient, longwave_shading_coefficient, transmittance, &
      absorptance, reflectance)
      real(sp), intent(in) :: shortwave_shading_coefficient, longwave_shading_coefficient
      real(sp), intent(out), optional :: transmittance, absorptance, reflectance
      real(sp) :: own_transmittance, own_absorptance, own_reflectance
      call WNDFSC(shortwave_shading_coefficient, longwave_shading_coefficient, own_transmittance, own_absorptance, &
         own_reflectance)
      if (present(transmittance)) transmittance = own_transmittance
      if (present(absorptance)) absorptance = own_absorptance
      if (present(reflectance)) reflectance = own_reflectance
   end subroutine

   pure subroutine unit_direct_shares(shortwave_shading_coefficient, longwave_shading_coefficient, incidence, panes, &
      transmittance, pane_shares, absorptance)
      real(sp), intent(in) :: shortwave_shading_coefficient, longwave_shading_coefficient, incidence
      integer(i4), intent(in) :: panes
      real(sp), intent(out), optional :: transmittance, pane_shares(:), absorptance
      real(sp) :: own_transmittance, own_pane_shares(max(0_i4, min(panes, 5_i4))), own_absorptance
      own_pane_shares = no_real
      call WNDRSM(shortwave_shading_coefficient, longwave_shading_coefficient, incidence, panes, own_transmittance, &
         own_pane_shares, own_absorptance)
      if (present(transmittance)) transmittance = own_transmittance
      if (present(pane_shares)) call store(pane_shares, own_pane_shares)
      if (present(absorptance)) absorptance = own_absorptance
   end subroutine

   pure subroutine unit_diffuse_shares(shortwave_shading_coefficient, longwave_shading_coefficient, panes, &
      transmittance, pane_shares, absorptance)
      real(sp), intent(in) :: shortwave_shading_coefficient, longwave_shading_coefficient
      integer(i4), intent(in) :: panes
      real(sp), intent(out), optional :: transmittance, pane_shares(:), absorptance
      real(sp) :: own_transmittance, own_pane_shares(max(0_i4, min(panes, 5_i4))), own_absorptance
      own_pane_shares = no_real
      call WNDFSM(shortwave_shading_coefficient, longwave_shading_coefficient, panes, own_transmittance, &
         own_pane_shares, own_absorptance)
      if (present(transmittance)) transmittance = own_transmittance
      if (present(pane_shares)) call store(pane_shares, own_pane_shares)
      if (present(absorptance)) absorptance = own_absorptance
   end subroutine

   pure subroutine unit_shares(radiation, shortwave_shading_coefficient, longwave_shading_coefficient, incidence, &
      panes, transmittance, pane_shares, absorptance)
      integer(i4), intent(in) :: radiation
      real(sp), intent(in) :: shortwave_shading_coefficient, longwave_shading_coefficient, incidence
      integer(i4), intent(in) :: panes
      real(sp), intent(out), optional :: transmittance, pane_shares(:), absorptance
      real(sp) :: own_transmittance, own_pane_shares(max(0_i4, min(panes, 5_i4))), own_absorptance
      own_pane_shares = no_real
      call WNDRS0(radiation, shortwave_shading_coefficient, longwave_shading_coefficient, incidence, panes, &
         own_transmittance, own_pane_shares, own_absorptance)
      if (present(transmittance)) transmittance = own_transmittance
      if (present(pane_shares)) call store(pane_shares, own_pane_shares)
      if (present(absorptance)) absorptance = own_absorptance
   end subroutine

   elemental subroutine slat_direct(slat_spacing, slat_width, slat_angle, profile_angle, slat_absorptance, &
      transmittance, absorptance, reflectance)
      real(sp), intent(in) :: slat_spacing, slat_width, slat_angle, profile_angle, slat_absorptance
      real(sp), intent(out), optional :: transmittance, absorptance, reflectance
      real(sp) :: own_transmittance, own_absorptance, own_reflectance
      call WNDRSL(slat_spacing, slat_width, slat_angle, profile_angle, slat_absorptance, own_transmittance, &
         own_absorptance, own_reflectance)
      if (present(transmittance)) transmittance = own_transmittance
      if (present(absorptance)) absorptance = own_absorptance
      if (present(reflectance)) reflectance = own_reflectance
   end subroutine

   elemental subroutine two_faced_slat_direct(slat_spacing, slat_width, slat_angle, profile_angle, struck_absorptance, &
      opposite_absorptance, transmittance, absorptance, reflectance)
      real(sp), intent(in) :: slat_spacing, slat_width, slat_angle, profile_angle, struck_absorptance, &
         opposite_absorptance
      real(sp), intent(out), optional :: transmittance, absorptance, reflectance
      real(sp) :: own_transmittance, own_absorptance, own_reflectance
      call WNDRS2(slat_spacing, slat_width, slat_angle, profile_angle, struck_absorptance, opposite_absorptance, &
         own_transmittance, own_absorptance, own_reflectance)
      if (present(transmittance)) transmittance = own_transmittance
      if (present(absorptance)) absorptance = own_absorptance
      if (present(reflectance)) reflectance = own_reflectance
   end subroutine

   elemental subroutine open_slat_direct(slat_spacing, slat_width, slat_angle, profile_angle, open_share, &
      struck_absorptance, opposite_absorptance, transmittance, absorptance, reflectance)
      real(sp), intent(in) :: slat_spacing, slat_width, slat_angle, profile_angle, open_share, struck_absorptance, &
         opposite_absorptance
      real(sp), intent(out), optional :: transmittance, absorptance, reflectance
      real(sp) :: own_transmittance, own_absorptance, own_reflectance
      call WNDRS3(slat_spacing, slat_width, slat_angle, profile_angle, open_share, struck_absorptance, &
         opposite_absorptance, own_transmittance, own_absorptance, own_reflectance)
      if (present(transmittance)) transmittance = own_transmittance
      if (present(absorptance)) absorptance = own_absorptance
      if (present(reflectance)) reflectance = own_reflectance
   end subroutine

   elemental subroutine slat_diffuse(slat_spacing, slat_width, slat_angle, slat_absorptance, sky_transmittance, &
      ground_transmittance, sky_absorptance, ground_absorptance)
      real(sp), intent(in) :: slat_spacing, slat_width, slat_angle, slat_absorptance
      real(sp), intent(out), optional :: sky_transmittance, ground_transmittance, sky_absorptance, ground_absorptance
      real(sp) :: own_sky_transmittance, own_ground_transmittance, own_sky_absorptance, own_ground_absorptance
      call WNDFSL(slat_spacing, slat_width, slat_angle, slat_absorptance, own_sky_transmittance, &
         own_ground_transmittance, own_sky_absorptance, own_ground_absorptance)
      if (present(sky_transmittance)) sky_transmittance = own_sky_transmittance
      if (present(ground_transmittance)) ground_transmittance = own_ground_transmittance
      if (present(sky_absorptance)) sky_absorptance = own_sky_absorptance
      if (present(ground_absorptance)) ground_absorptance = own_ground_absorptance
   end subroutine

   elemental subroutine two_faced_slat_diffuse(slat_spacing, slat_width, slat_angle, struck_absorptance, &
      opposite_absorptance, sky_transmittance, ground_transmittance, sky_absorptance, ground_absorptance)
      real(sp), intent(in) :: slat_spacing, slat_width, slat_angle, struck_absorptance, opposite_absorptance
      real(sp), intent(out), optional :: sky_transmittance, ground_transmittance, sky_absorptance, ground_absorptance
      real(sp) :: own_sky_transmittance, own_ground_transmittance, own_sky_absorptance, own_ground_absorptance
      call WNDFS2(slat_spacing, slat_width, slat_angle, struck_absorptance, opposite_absorptance, &
         own_sky_transmittance, own_ground_transmittance, own_sky_absorptance, own_ground_absorptance)
      if (present(sky_transmittance)) sky_transmittance = own_sky_transmittance
      if (present(ground_transmittance)) ground_transmittance = own_ground_transmittance
      if (present(sky_absorptance)) sky_absorptance = own_sky_absorptance
      if (present(ground_absorptance)) ground_absorptance = own_ground_absorptance
   end subroutine

   elemental subroutine open_slat_diffuse(slat_spacing, slat_width, slat_angle, open_share, struck_absorptance, &
      opposite_absorptance, sky_transmittance, ground_transmittance, sky_absorptance, ground_absorptance)
      real(sp), intent(in) :: slat_spacing, slat_width, slat_angle, open_share, struck_absorptance, &
         opposite_absorptance
      real(sp), intent(out), optional :: sky_transmittance, ground_transmittance, sky_absorptance, ground_absorptance
      real(sp) :: own_sky_transmittance, own_ground_transmittance, own_sky_absorptance, own_ground_absorptance
      call WNDFS3(slat_spacing, slat_width, slat_angle, open_share, struck_absorptance, opposite_absorptance, &
         own_sky_transmittance, own_ground_transmittance, own_sky_absorptance, own_ground_absorptance)
      if (present(sky_transmittance)) sky_transmittance = own_sky_transmittance
      if (present(ground_transmittance)) ground_transmittance = own_ground_transmittance
      if (present(sky_absorptance)) sky_absorptance = own_sky_absorptance
      if (present(ground_absorptance)) ground_absorptance = own_ground_absorptance
   end subroutine

   pure subroutine locate_band(fraction, month, frequencies, lower_band, upper_band, band_weight)
      real(sp), intent(in) :: fraction
      integer(i4), intent(in) :: month
      real(sp), intent(in) :: frequencies(12, 10)
      integer(i4), intent(out), optional :: lower_band, upper_band
      real(sp), intent(out), optional :: band_weight
      integer(i4) :: own_lower_band, own_upper_band
      real(sp) :: own_band_weight
      call CLBAN1(fraction, month, frequencies, own_lower_band, own_upper_band, own_band_weight)
      if (present(lower_band)) lower_band = own_lower_band
      if (present(upper_band)) upper_band = own_upper_band
      if (present(band_weight)) band_weight = own_band_weight
   end subroutine

   elemental subroutine band_climate(band, month, band_set, percentage, q1, q2, q3, q4, q5, q6, time_a, time_b, q7, &
      q8)
      integer(i4), intent(in) :: band, month, band_set
      real(sp), intent(inout) :: percentage
      real(sp), intent(out), optional :: q1, q2, q3, q4, q5, q6, time_a, time_b, q7, q8
      real(sp) :: own_q1, own_q2, own_q3, own_q4, own_q5, own_q6, own_time_a, own_time_b, own_q7, own_q8
      call CLBAND(band, month, band_set, percentage, own_q1, own_q2, own_q3, own_q4, own_q5, own_q6, own_time_a, &
         own_time_b, own_q7, own_q8)
      if (present(q1)) q1 = own_q1
      if (present(q2)) q2 = own_q2
      if (present(q3)) q3 = own_q3
      if (present(q4)) q4 = own_q4
      if (present(q5)) q5 = own_q5
      if (present(q6)) q6 = own_q6
      if (present(time_a)) time_a = own_time_a
      if (present(time_b)) time_b = own_time_b
      if (present(q7)) q7 = own_q7
      if (present(q8)) q8 = own_q8
   end subroutine

   elemental function interpolate_band_rows(base_row, lower_band, upper_band, month, band_weight) result(answer)
      integer(i4), intent(in) :: base_row, lower_band, upper_band, month
      real(sp), intent(in) :: band_weight
      real(sp) :: answer
      call CLBAN2(base_row, lower_band, upper_band, month, band_weight, answer)
   end function

   pure function band_row(row) result(answer)
      integer(i4), intent(in) :: row
      real(sp) :: answer(12)
      call CLBAN3(row, answer)
   end function

   elemental function store_design_day(month) result(answer)
      integer(i4), intent(in) :: month
      integer(i4) :: answer
      call CLDAY(month, answer)
   end function

   elemental function store_design_day_by_option(month, day_kind) result(answer)
      integer(i4), intent(in) :: month, day_kind
      integer(i4) :: answer
      call CLDAYEX(month, answer, day_kind)
   end function

   elemental function design_day(month) result(answer)
      integer(i4), intent(in) :: month
      integer(i4) :: answer
      answer = ICLDAY(month)
   end function

   elemental function design_day_by_option(month, day_kind) result(answer)
      integer(i4), intent(in) :: month, day_kind
      integer(i4) :: answer
      answer = ICLDAYEX(month, day_kind)
   end function

   elemental function second_design_day(month) result(answer)
      integer(i4), intent(in) :: month
      integer(i4) :: answer
      answer = ICLDA2(month)
   end function

   elemental function second_design_day_by_option(month, day_kind) result(answer)
      integer(i4), intent(in) :: month, day_kind
      integer(i4) :: answer
      answer = ICLDA2EX(month, day_kind)
   end function

   elemental function daily_temperature(hour, highest_temperature, lowest_temperature, hour_of_highest, &
      hour_of_lowest) result(answer)
      real(sp), intent(in) :: hour, highest_temperature, lowest_temperature, hour_of_highest, hour_of_lowest
      real(sp) :: answer
      answer = CLTAO(hour, highest_temperature, lowest_temperature, hour_of_highest, hour_of_lowest)
   end function

   elemental function daily_value(hour, mean, amplitude, first_hour, second_hour, amplitude_factor) result(answer)
      real(sp), intent(in) :: hour, mean, amplitude, first_hour, second_hour, amplitude_factor
      real(sp) :: answer
      answer = CLTAOX(hour, mean, amplitude, first_hour, second_hour, amplitude_factor)
   end function

   elemental subroutine design_irradiance(solar_altitude, site_height, sky_kind, direct_normal, diffuse_horizontal)
      real(sp), intent(in) :: solar_altitude, site_height
      integer(i4), intent(in) :: sky_kind
      real(sp), intent(out), optional :: direct_normal, diffuse_horizontal
      real(sp) :: own_direct_normal, own_diffuse_horizontal
      call CLSNNR(solar_altitude, 0.0_sp, site_height, sky_kind, own_direct_normal, own_diffuse_horizontal)
      if (present(direct_normal)) direct_normal = own_direct_normal
      if (present(diffuse_horizontal)) diffuse_horizontal = own_diffuse_horizontal
   end subroutine

   elemental function height_factor(site_height, solar_altitude) result(answer)
      real(sp), intent(in) :: site_height, solar_altitude
      real(sp) :: answer
      answer = CLHIGH(site_height, solar_altitude)
   end function

   elemental function eccentricity_factor(day) result(answer)
      integer(i4), intent(in) :: day
      real(sp) :: answer
      answer = CLETAJ(day)
   end function

   elemental function clearness_index(day, solar_altitude, global_horizontal) result(answer)
      integer(i4), intent(in) :: day
      real(sp), intent(in) :: solar_altitude, global_horizontal
      real(sp) :: answer
      answer = CLMODUL(day, solar_altitude, global_horizontal)
   end function

   elemental subroutine muneer_slope(solar_altitude, solar_azimuth, surface_azimuth, tilt, beam_horizontal, &
      diffuse_horizontal, extraterrestrial_horizontal, ground_reflectance, surface_beam, surface_diffuse, &
      ground_reflected, incidence)
      real(sp), intent(in) :: solar_altitude, solar_azimuth, surface_azimuth, tilt, beam_horizontal, &
         diffuse_horizontal, extraterrestrial_horizontal, ground_reflectance
      real(sp), intent(out), optional :: surface_beam, surface_diffuse, ground_reflected, incidence
      real(sp) :: own_surface_beam, own_surface_diffuse, own_ground_reflected, own_incidence
      call CLMUNRAD(solar_altitude, solar_azimuth, surface_azimuth, tilt, beam_horizontal, diffuse_horizontal, &
         extraterrestrial_horizontal, ground_reflectance, own_surface_beam, own_surface_diffuse, own_ground_reflected, &
         own_incidence)
      if (present(surface_beam)) surface_beam = own_surface_beam
      if (present(surface_diffuse)) surface_diffuse = own_surface_diffuse
      if (present(ground_reflected)) ground_reflected = own_ground_reflected
      if (present(incidence)) incidence = own_incidence
   end subroutine

   elemental function perez_diffuse(solar_altitude, tilt, beam_horizontal, diffuse_horizontal, incidence, &
      extraterrestrial_normal) result(answer)
      real(sp), intent(in) :: solar_altitude, tilt, beam_horizontal, diffuse_horizontal, incidence, &
         extraterrestrial_normal
      real(sp) :: answer
      call CLPERSKY(solar_altitude, tilt, beam_horizontal, diffuse_horizontal, answer, incidence, &
         extraterrestrial_normal)
   end function

   elemental subroutine site_constants(site_class, month, ground_reflectance, beam_factor, diffuse_factor, &
      alternative_diffuse_factor)
      integer(i4), intent(in) :: site_class, month
      real(sp), intent(out), optional :: ground_reflectance, beam_factor, diffuse_factor, alternative_diffuse_factor
      real(sp) :: own_ground_reflectance, own_beam_factor, own_diffuse_factor, own_alternative_diffuse_factor
      call CLCONS(site_class, month, own_ground_reflectance, own_beam_factor, own_diffuse_factor, &
         own_alternative_diffuse_factor)
      if (present(ground_reflectance)) ground_reflectance = own_ground_reflectance
      if (present(beam_factor)) beam_factor = own_beam_factor
      if (present(diffuse_factor)) diffuse_factor = own_diffuse_factor
      if (present(alternative_diffuse_factor)) alternative_diffuse_factor = own_alternative_diffuse_factor
   end subroutine

   elemental function diffuse_tilt_factor(day, solar_altitude, beam_horizontal, tilt, sky_model) result(answer)
      integer(i4), intent(in) :: day
      real(sp), intent(in) :: solar_altitude, beam_horizontal, tilt
      integer(i4), intent(in) :: sky_model
      real(sp) :: answer
      answer = CLDIFRAD(day, solar_altitude, beam_horizontal, 0.0_sp, tilt, sky_model)
   end function

   elemental function slope_diffuse(day, solar_altitude, solar_azimuth, surface_azimuth, tilt, beam_horizontal, &
      diffuse_horizontal, sky_model) result(answer)
      integer(i4), intent(in) :: day
      real(sp), intent(in) :: solar_altitude, solar_azimuth, surface_azimuth, tilt, beam_horizontal, &
         diffuse_horizontal
      integer(i4), intent(in) :: sky_model
      real(sp) :: answer
      answer = CLDIFSLO(day, solar_altitude, solar_azimuth, surface_azimuth, tilt, beam_horizontal, &
         diffuse_horizontal, sky_model)
   end function

   elemental function sol_air_temperature(base_temperature, surface_coefficient, absorptance, irradiance, &
      long_wave_loss) result(answer)
      real(sp), intent(in) :: base_temperature, surface_coefficient, absorptance, irradiance, long_wave_loss
      real(sp) :: answer
      answer = CLTEO(base_temperature, surface_coefficient, absorptance, 0.0_sp, 0.0_sp, irradiance, long_wave_loss)
   end function

   elemental function long_wave_loss(tilt, cloud_cover) result(answer)
      real(sp), intent(in) :: tilt, cloud_cover
      real(sp) :: answer
      answer = CLRERD(tilt, cloud_cover)
   end function

   elemental function solar_time_correction(clock_offset, day, longitude, reference_longitude) result(answer)
      real(sp), intent(in) :: clock_offset
      integer(i4), intent(in) :: day
      real(sp), intent(in) :: longitude, reference_longitude
      real(sp) :: answer
      answer = CLTCOR(clock_offset, day, longitude, reference_longitude)
   end function

   elemental subroutine almanac_position(time_kind, year, month, day_of_month, clock_time, latitude, longitude, &
      zone_meridian, solar_altitude, solar_azimuth, declination)
      integer(i4), intent(in) :: time_kind, year, month, day_of_month
      real(sp), intent(in) :: clock_time, latitude
      real(sp), intent(inout) :: longitude, zone_meridian
      real(sp), intent(out), optional :: solar_altitude, solar_azimuth, declination
      real(sp) :: own_solar_altitude, own_solar_azimuth, own_declination
      call CLYALLOP(time_kind, year, month, day_of_month, clock_time, latitude, longitude, zone_meridian, &
         own_solar_altitude, own_solar_azimuth, own_declination)
      if (present(solar_altitude)) solar_altitude = own_solar_altitude
      if (present(solar_azimuth)) solar_azimuth = own_solar_azimuth
      if (present(declination)) declination = own_declination
   end subroutine

   elemental subroutine almanac_sun_hours(year, month, day_of_month, latitude, sunrise, sunset)
      integer(i4), intent(in) :: year, month, day_of_month
      real(sp), intent(in) :: latitude
      real(sp), intent(out), optional :: sunrise, sunset
      real(sp) :: own_sunrise, own_sunset
      call CLRISESET(year, month, day_of_month, latitude, own_sunrise, own_sunset)
      if (present(sunrise)) sunrise = own_sunrise
      if (present(sunset)) sunset = own_sunset
   end subroutine

   elemental subroutine solar_geometry(latitude, day, solar_time, declination, solar_altitude, solar_azimuth, sunrise, &
      sunset)
      real(sp), intent(in) :: latitude
      integer(i4), intent(in) :: day
      real(sp), intent(in) :: solar_time
      real(sp), intent(out), optional :: declination, solar_altitude, solar_azimuth, sunrise, sunset
      real(sp) :: own_declination, own_solar_altitude, own_solar_azimuth, own_sunrise, own_sunset
      own_sunrise = no_real
      own_sunset = no_real
      call CLSNGE(latitude, day, solar_time, own_declination, own_solar_altitude, own_solar_azimuth, own_sunrise, &
         own_sunset)
      if (present(declination)) declination = own_declination
      if (present(solar_altitude)) solar_altitude = own_solar_altitude
      if (present(solar_azimuth)) solar_azimuth = own_solar_azimuth
      if (present(sunrise)) sunrise = own_sunrise
      if (present(sunset)) sunset = own_sunset
   end subroutine

   elemental subroutine surface_angles(solar_altitude, solar_azimuth, surface_azimuth, tilt, incidence, &
      vertical_shadow_angle, horizontal_shadow_angle)
      real(sp), intent(in) :: solar_altitude, solar_azimuth, surface_azimuth, tilt
      real(sp), intent(out), optional :: incidence, vertical_shadow_angle, horizontal_shadow_angle
      real(sp) :: own_incidence, own_vertical_shadow_angle, own_horizontal_shadow_angle
      call CLSNSR(solar_altitude, solar_azimuth, surface_azimuth, tilt, own_incidence, own_vertical_shadow_angle, &
         own_horizontal_shadow_angle)
      if (present(incidence)) incidence = own_incidence
      if (present(vertical_shadow_angle)) vertical_shadow_angle = own_vertical_shadow_angle
      if (present(horizontal_shadow_angle)) horizontal_shadow_angle = own_horizontal_shadow_angle
   end subroutine

   elemental subroutine surface_irradiance(solar_altitude, solar_azimuth, surface_azimuth, tilt, direct_normal, &
      diffuse_horizontal, ground_reflectance, beam_factor, diffuse_factor, surface_beam, surface_diffuse, &
      ground_reflected)
      real(sp), intent(in) :: solar_altitude, solar_azimuth, surface_azimuth, tilt, direct_normal, diffuse_horizontal, &
         ground_reflectance, beam_factor, diffuse_factor
      real(sp), intent(out), optional :: surface_beam, surface_diffuse, ground_reflected
      real(sp) :: own_surface_beam, own_surface_diffuse, own_ground_reflected
      call CLSORD(solar_altitude, solar_azimuth, surface_azimuth, tilt, direct_normal, diffuse_horizontal, &
         ground_reflectance, beam_factor, diffuse_factor, own_surface_beam, own_surface_diffuse, own_ground_reflected)
      if (present(surface_beam)) surface_beam = own_surface_beam
      if (present(surface_diffuse)) surface_diffuse = own_surface_diffuse
      if (present(ground_reflected)) ground_reflected = own_ground_reflected
   end subroutine

   elemental subroutine surface_irradiance_and_incidence(solar_altitude, solar_azimuth, surface_azimuth, tilt, &
      direct_normal, diffuse_horizontal, ground_reflectance, beam_factor, diffuse_factor, surface_beam, &
      surface_diffuse, ground_reflected, incidence)
      real(sp), intent(in) :: solar_altitude, solar_azimuth, surface_azimuth, tilt, direct_normal, diffuse_horizontal, &
         ground_reflectance, beam_factor, diffuse_factor
      real(sp), intent(out), optional :: surface_beam, surface_diffuse, ground_reflected, incidence
      real(sp) :: own_surface_beam, own_surface_diffuse, own_ground_reflected, own_incidence
      call CLSOR2(solar_altitude, solar_azimuth, surface_azimuth, tilt, direct_normal, diffuse_horizontal, &
         ground_reflectance, beam_factor, diffuse_factor, own_surface_beam, own_surface_diffuse, own_ground_reflected, &
         own_incidence)
      if (present(surface_beam)) surface_beam = own_surface_beam
      if (present(surface_diffuse)) surface_diffuse = own_surface_diffuse
      if (present(ground_reflected)) ground_reflected = own_ground_reflected
      if (present(incidence)) incidence = own_incidence
   end subroutine

   pure subroutine overlap(x_1, y_1, x_2, y_2, piece_x, piece_y, piece_vertices, area)
      real(sp), intent(in) :: x_1(:), y_1(:), x_2(:), y_2(:)
      real(sp), intent(out), optional :: piece_x(25, 5), piece_y(25, 5)
      integer(i4), intent(out), optional :: piece_vertices(5)
      real(sp), intent(out), optional :: area
      integer(i4) :: vertices_1, vertices_2
      real(sp) :: own_piece_x(25, 5), own_piece_y(25, 5)
      integer(i4) :: own_piece_vertices(5)
      real(sp) :: own_area
      vertices_1 = shortest([size(x_1), size(y_1)])
      vertices_2 = shortest([size(x_2), size(y_2)])
      call GEOVER(x_1, y_1, vertices_1, x_2, y_2, vertices_2, own_piece_x, own_piece_y, own_piece_vertices, own_area)
      if (present(piece_x)) piece_x = own_piece_x
      if (present(piece_y)) piece_y = own_piece_y
      if (present(piece_vertices)) piece_vertices = own_piece_vertices
      if (present(area)) area = own_area
   end subroutine

   pure subroutine overlap_alias(x_1, y_1, x_2, y_2, piece_x, piece_y, piece_vertices, area)
      real(sp), intent(in) :: x_1(:), y_1(:), x_2(:), y_2(:)
      real(sp), intent(out), optional :: piece_x(25, 5), piece_y(25, 5)
      integer(i4), intent(out), optional :: piece_vertices(5)
      real(sp), intent(out), optional :: area
      integer(i4) :: vertices_1, vertices_2
      real(sp) :: own_piece_x(25, 5), own_piece_y(25, 5)
      integer(i4) :: own_piece_vertices(5)
      real(sp) :: own_area
      vertices_1 = shortest([size(x_1), size(y_1)])
      vertices_2 = shortest([size(x_2), size(y_2)])
      call GEHOLE(x_1, y_1, vertices_1, x_2, y_2, vertices_2, own_piece_x, own_piece_y, own_piece_vertices, own_area)
      if (present(piece_x)) piece_x = own_piece_x
      if (present(piece_y)) piece_y = own_piece_y
      if (present(piece_vertices)) piece_vertices = own_piece_vertices
      if (present(area)) area = own_area
   end subroutine

   pure function collinearity(x, y) result(answer)
      real(sp), intent(in) :: x(:), y(:)
      integer(i4) :: answer, points
      points = shortest([size(x), size(y)])
      answer = IGELIN(x, y, points)
   end function

   pure subroutine count_enclosed(x, y, point_x, point_y, enclosed, enclosed_points)
      real(sp), intent(in) :: x(:), y(:), point_x(:), point_y(:)
      integer(i4), intent(inout) :: enclosed(:)
      integer(i4), intent(out), optional :: enclosed_points
      integer(i4) :: vertices, points, own_enclosed_points
      vertices = shortest([size(x), size(y)])
      points = shortest([size(point_x), size(point_y), size(enclosed)])
      call GECLOS(x, y, vertices, point_x, point_y, points, enclosed, own_enclosed_points)
      if (present(enclosed_points)) enclosed_points = own_enclosed_points
   end subroutine

   pure subroutine boundary_crossing(segment_start, segment_end, x, y, crossing_point, crossing_code)
      real(sp), intent(in) :: segment_start(2), segment_end(2), x(:), y(:)
      real(sp), intent(out), optional :: crossing_point(2)
      integer(i4), intent(out), optional :: crossing_code
      integer(i4) :: vertices
      real(sp) :: own_crossing_point(2)
      integer(i4) :: own_crossing_code
      vertices = shortest([size(x), size(y)])
      call GESIDE(segment_start, segment_end, x, y, vertices, own_crossing_point, own_crossing_code)
      if (present(crossing_point)) crossing_point = own_crossing_point
      if (present(crossing_code)) crossing_code = own_crossing_code
   end subroutine

   pure function inside(point, polygon) result(answer)
      real(sp), intent(in) :: point(3), polygon(:, :)
      integer(i4) :: answer, vertices
      vertices = shortest([size(polygon)/3])
      call GEINSI(point, polygon, vertices, answer)
   end function

   pure function parallel_planes(triangle_1, triangle_2) result(answer)
      real(dp), intent(in) :: triangle_1(3, 3), triangle_2(3, 3)
      logical :: answer
      answer = GEPLEL(triangle_1, triangle_2) /= 0
   end function

   pure subroutine parallel_sides(triangle_1, triangle_2, truth, side_1, side_2)
      real(dp), intent(in) :: triangle_1(3, 3), triangle_2(3, 3)
      logical, intent(out), optional :: truth
      integer(i4), intent(out), optional :: side_1, side_2
      integer(i4) :: own_truth, own_side_1, own_side_2
      call array_parallel_sides(1_c_size_t, triangle_1, 0_c_ptrdiff_t, triangle_2, 0_c_ptrdiff_t, own_truth, &
         0_c_ptrdiff_t, own_side_1, 0_c_ptrdiff_t, own_side_2, 0_c_ptrdiff_t)
      if (present(truth)) truth = own_truth /= 0
      if (present(side_1)) side_1 = own_side_1
      if (present(side_2)) side_2 = own_side_2
   end subroutine

   pure function rectangular(quadrilateral) result(answer)
      real(dp), intent(in) :: quadrilateral(3, 4)
      logical :: answer
      answer = GERECT(quadrilateral) /= 0
   end function

   pure subroutine facing(triangle, azimuth, tilt)
      real(dp), intent(in) :: triangle(3, 3)
      real(dp), intent(inout) :: azimuth
      real(dp), intent(out), optional :: tilt
      real(dp) :: own_tilt
      call GETILT(triangle, azimuth, own_tilt)
      if (present(tilt)) tilt = own_tilt
   end subroutine

   pure subroutine local_coordinates(quadrilateral_1, quadrilateral_2, local_1, local_2)
      real(dp), intent(in) :: quadrilateral_1(3, 4), quadrilateral_2(3, 4)
      real(dp), intent(out), optional :: local_1(3, 4), local_2(3, 4)
      real(dp) :: own_local_1(3, 4), own_local_2(3, 4)
      call GELCAL(quadrilateral_1, quadrilateral_2, own_local_1, own_local_2)
      if (present(local_1)) local_1 = own_local_1
      if (present(local_2)) local_2 = own_local_2
   end subroutine

   pure function to_local(corners, x_axis, y_axis, z_axis) result(answer)
      real(dp), intent(in) :: corners(3, 4), x_axis(3), y_axis(3), z_axis(3)
      real(dp) :: answer(3, 4)
      answer = corners
      call GETRNS(answer, x_axis, y_axis, z_axis)
   end function

   pure function meeting_point(line_1_start, line_1_end, line_2_start, line_2_end) result(answer)
      real(sp), intent(in) :: line_1_start(2), line_1_end(2), line_2_start(2), line_2_end(2)
      real(sp) :: answer(2)
      call GEMEET(line_1_start, line_1_end, line_2_start, line_2_end, answer)
   end function

   pure function crossing_point(segment_1_start, segment_1_end, segment_2_start, segment_2_end) result(answer)
      real(sp), intent(in) :: segment_1_start(2), segment_1_end(2), segment_2_start(2), segment_2_end(2)
      real(sp) :: answer(2)
      call GECROS(segment_1_start, segment_1_end, segment_2_start, segment_2_end, answer)
   end function

   pure function in_span(first_end, second_end, point) result(answer)
      real(sp), intent(in) :: first_end(3), second_end(3), point(3)
      real(sp) :: answer
      answer = GEINLN(first_end, second_end, point)
   end function

   pure function ahead_and_nearer(first_end, second_end, point) result(answer)
      real(sp), intent(in) :: first_end(3), second_end(3), point(3)
      real(sp) :: answer
      answer = GEINLN2(first_end, second_end, point)
   end function

   elemental function coincide(x_1, y_1, x_2, y_2) result(answer)
      real(sp), intent(in) :: x_1, y_1, x_2, y_2
      logical :: answer
      answer = GECOIN(x_1, y_1, x_2, y_2) /= 0
   end function

   pure function side_of_line(line_start, line_end, point) result(answer)
      real(sp), intent(in) :: line_start(2), line_end(2), point(2)
      integer(i4) :: answer
      answer = IGEPNT(line_start, line_end, point)
   end function

   elemental function back_azimuth(angle) result(answer)
      real(sp), intent(in) :: angle
      real(sp) :: answer
      answer = BORI(angle)
   end function

   pure function direction_to(solar_altitude, solar_azimuth) result(answer)
      real(sp), intent(in) :: solar_altitude, solar_azimuth
      real(sp) :: answer(3)
      call GESUNV(solar_altitude, solar_azimuth, answer)
   end function

   pure subroutine surface_axes(surface_azimuth, tilt, rotation_matrix, inverse_matrix)
      real(sp), intent(in) :: surface_azimuth, tilt
      real(sp), intent(out), optional :: rotation_matrix(3, 3), inverse_matrix(3, 3)
      real(sp) :: own_rotation_matrix(3, 3), own_inverse_matrix(3, 3)
      call GERSET(surface_azimuth, tilt, own_rotation_matrix, own_inverse_matrix)
      if (present(rotation_matrix)) rotation_matrix = own_rotation_matrix
      if (present(inverse_matrix)) inverse_matrix = own_inverse_matrix
   end subroutine

   pure function local_to_global(local_vector, rotation_matrix) result(answer)
      real(sp), intent(in) :: local_vector(3), rotation_matrix(3, 3)
      real(sp) :: answer(3)
      call GERAXI(local_vector, rotation_matrix, answer)
   end function

   pure function global_to_local(global_vector, rotation_matrix) result(answer)
      real(sp), intent(in) :: global_vector(3), rotation_matrix(3, 3)
      real(sp) :: answer(3)
      call GERAX2(global_vector, rotation_matrix, answer)
   end function

   pure function plan_area(x, y) result(answer)
      real(sp), intent(in) :: x(:), y(:)
      real(sp) :: answer
      integer(i4) :: vertices
      vertices = shortest([size(x), size(y)])
      answer = GEAPOL(x, y, vertices)
   end function

   pure function signed_plan_area(x, y) result(answer)
      real(sp), intent(in) :: x(:), y(:)
      real(sp) :: answer
      integer(i4) :: vertices
      vertices = shortest([size(x), size(y)])
      answer = GEAPO2(x, y, vertices)
   end function

   pure function area_in_space(x, y, z) result(answer)
      real(sp), intent(in) :: x(:), y(:), z(:)
      real(sp) :: answer
      integer(i4) :: vertices
      vertices = shortest([size(x), size(y), size(z)])
      answer = GEAPO3(x, y, z, vertices)
   end function

   pure subroutine polygon_orientation(polygon, area, tilt, back_azimuth)
      real(sp), intent(in) :: polygon(:, :)
      real(sp), intent(out), optional :: area, tilt, back_azimuth
      integer(i4) :: vertices
      real(sp) :: own_area, own_tilt, own_back_azimuth
      vertices = shortest([size(polygon)/3])
      own_tilt = no_real
      own_back_azimuth = no_real
      call GEASO(vertices, polygon, own_area, own_tilt, own_back_azimuth)
      if (present(area)) area = own_area
      if (present(tilt)) tilt = own_tilt
      if (present(back_azimuth)) back_azimuth = own_back_azimuth
   end subroutine

   pure function projection(plane_point, plane_normal, point, direction) result(answer)
      real(sp), intent(in) :: plane_point(3), plane_normal(3), point(3), direction(3)
      real(sp) :: answer(3)
      call GEPROJ(plane_point, plane_normal, point, direction, answer)
   end function

   pure function forward_projection(plane_point, plane_normal, point, direction) result(answer)
      real(sp), intent(in) :: plane_point(3), plane_normal(3), point(3), direction(3)
      real(sp) :: answer(3)
      call GEPROJ2(plane_point, plane_normal, point, direction, answer)
   end function

   pure function forward_projection_or_start(plane_point, plane_normal, point, direction) result(answer)
      real(sp), intent(in) :: plane_point(3), plane_normal(3), point(3), direction(3)
      real(sp) :: answer(3)
      call GEPROJ3(plane_point, plane_normal, point, direction, answer)
   end function

   pure function vector_dot_product(vector_a, vector_b) result(answer)
      real(sp), intent(in) :: vector_a(3), vector_b(3)
      real(sp) :: answer
      answer = GEDOTP(vector_a, vector_b)
   end function

   pure function dot_product_in_double(vector_a, vector_b) result(answer)
      real(dp), intent(in) :: vector_a(3), vector_b(3)
      real(dp) :: answer
      answer = GEDTDP(vector_a, vector_b)
   end function

   pure function cross_product(vector_a, vector_b) result(answer)
      real(sp), intent(in) :: vector_a(3), vector_b(3)
      real(sp) :: answer(3)
      call GEXPRO(vector_a, vector_b, answer)
   end function

   pure function cross_product_in_double(vector_a, vector_b) result(answer)
      real(dp), intent(in) :: vector_a(3), vector_b(3)
      real(dp) :: answer(3)
      call GEXPDP(vector_a, vector_b, answer)
   end function

   pure function length(vector) result(answer)
      real(sp), intent(in) :: vector(3)
      real(sp) :: answer
      answer = GEVMOD(vector)
   end function

   pure function length_in_double(vector) result(answer)
      real(dp), intent(in) :: vector(3)
      real(dp) :: answer
      answer = GEVMDP(vector)
   end function

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
