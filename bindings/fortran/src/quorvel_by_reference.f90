!> The routines by reference, under the names that the library exports: what it gives, to the bit, and nothing
!> checked. Lists are as long as the counts say. An output that a call may leave as it was is `inout`. A text ends
!> with `c_null_char`. The routines of the climate data file have a state and are not pure.
! Produced from the catalogue of routines (catalogue/); do not edit.
module quorvel_by_reference
   use, intrinsic :: iso_c_binding, only: c_float, c_double, c_int32_t, c_char, c_size_t, c_ptrdiff_t
   implicit none
   public

   interface
      !> dry_air_enthalpy: Specific enthalpy of dry air.
      pure function PSHDRY(temperature) bind(C, name='PSHDRY')
         import :: c_float
         real(c_float), intent(in) :: temperature
         real(c_float) :: PSHDRY
      end function

      !> water_vapour_enthalpy: Specific enthalpy of water vapour.
      pure function PSHVAP(temperature) bind(C, name='PSHVAP')
         import :: c_float
         real(c_float), intent(in) :: temperature
         real(c_float) :: PSHVAP
      end function

      !> dry_air_specific_heat: Specific heat of dry air at constant pressure.
      pure function PSCPDR(temperature) bind(C, name='PSCPDR')
         import :: c_float
         real(c_float), intent(in) :: temperature
         real(c_float) :: PSCPDR
      end function

      !> water_vapour_specific_heat: Specific heat of water vapour at constant pressure.
      pure function PSCPVA(temperature) bind(C, name='PSCPVA')
         import :: c_float
         real(c_float), intent(in) :: temperature
         real(c_float) :: PSCPVA
      end function

      !> latent_heat: Latent heat of evaporation of water, of sublimation of ice below 0 degC.
      pure function PSHFG(temperature) bind(C, name='PSHFG')
         import :: c_float
         real(c_float), intent(in) :: temperature
         real(c_float) :: PSHFG
      end function

      !> moisture_content_from_psychrometer: Moisture content of air from the reading of a wet-and-dry-bulb
      !> psychrometer.
      pure function PSGS(dry_bulb, wet_bulb, pressure, psychrometer) bind(C, name='PSGS')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: dry_bulb
         real(c_float), intent(in) :: wet_bulb
         real(c_float), intent(in) :: pressure
         integer(c_int32_t), intent(in) :: psychrometer
         real(c_float) :: PSGS
      end function

      !> percentage_saturation: Percentage saturation: moisture content by that of saturated air at the same temperature
      !> and pressure.
      pure function PSPCST(dry_bulb, moisture_content, pressure) bind(C, name='PSPCST')
         import :: c_float
         real(c_float), intent(in) :: dry_bulb
         real(c_float), intent(in) :: moisture_content
         real(c_float), intent(in) :: pressure
         real(c_float) :: PSPCST
      end function

      !> specific_enthalpy_from_psychrometer: Specific enthalpy of moist air from the reading of a wet-and-dry-bulb
      !> psychrometer.
      pure function PSHWET(dry_bulb, wet_bulb, pressure, psychrometer) bind(C, name='PSHWET')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: dry_bulb
         real(c_float), intent(in) :: wet_bulb
         real(c_float), intent(in) :: pressure
         integer(c_int32_t), intent(in) :: psychrometer
         real(c_float) :: PSHWET
      end function

      !> specific_volume: Specific volume of moist air.
      pure function PSSPVL(dry_bulb, moisture_content, pressure) bind(C, name='PSSPVL')
         import :: c_float
         real(c_float), intent(in) :: dry_bulb
         real(c_float), intent(in) :: moisture_content
         real(c_float), intent(in) :: pressure
         real(c_float) :: PSSPVL
      end function

      !> saturation_temperature_from_enthalpy: Temperature at which saturated air has a specific enthalpy.
      pure function PSTSAT(enthalpy, pressure) bind(C, name='PSTSAT')
         import :: c_float
         real(c_float), intent(in) :: enthalpy
         real(c_float), intent(in) :: pressure
         real(c_float) :: PSTSAT
      end function

      !> pool_evaporation: Evaporation from an indoor pool and its heat flows, for room air given by its moisture
      !> content.
      pure subroutine TPPOOL(water_area, wetted_area, water_temperature, dry_bulb, moisture_content, &
         reference_temperature, bathers, reference_coefficient, pressure, evaporation_rate, latent_load, &
         convective_load, reference_load) bind(C, name='TPPOOL')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: water_area
         real(c_float), intent(in) :: wetted_area
         real(c_float), intent(in) :: water_temperature
         real(c_float), intent(in) :: dry_bulb
         real(c_float), intent(in) :: moisture_content
         real(c_float), intent(in) :: reference_temperature
         integer(c_int32_t), intent(in) :: bathers
         real(c_float), intent(in) :: reference_coefficient
         real(c_float), intent(in) :: pressure
         real(c_float), intent(out) :: evaporation_rate
         real(c_float), intent(out) :: latent_load
         real(c_float), intent(out) :: convective_load
         real(c_float), intent(out) :: reference_load
      end subroutine

      !> pool_evaporation_from_wet_bulb: Evaporation from an indoor pool and its heat flows, for room air given by its
      !> wet bulb.
      pure subroutine TPPOOL2(water_area, wetted_area, water_temperature, dry_bulb, wet_bulb, reference_temperature, &
         bathers, reference_coefficient, pressure, evaporation_rate, latent_load, convective_load, reference_load) &
         bind(C, name='TPPOOL2')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: water_area
         real(c_float), intent(in) :: wetted_area
         real(c_float), intent(in) :: water_temperature
         real(c_float), intent(in) :: dry_bulb
         real(c_float), intent(in) :: wet_bulb
         real(c_float), intent(in) :: reference_temperature
         integer(c_int32_t), intent(in) :: bathers
         real(c_float), intent(in) :: reference_coefficient
         real(c_float), intent(in) :: pressure
         real(c_float), intent(out) :: evaporation_rate
         real(c_float), intent(out) :: latent_load
         real(c_float), intent(out) :: convective_load
         real(c_float), intent(out) :: reference_load
      end subroutine

      !> saturation_pressure: Saturation vapour pressure over a plane surface of water, or of ice below 0 degC.
      pure function PSSVP(temperature) bind(C, name='PSSVP')
         import :: c_float
         real(c_float), intent(in) :: temperature
         real(c_float) :: PSSVP
      end function

      !> vapour_pressure: Vapour pressure of air at a dry-bulb temperature and relative humidity.
      pure function PSVP(dry_bulb, relative_humidity) bind(C, name='PSVP')
         import :: c_float
         real(c_float), intent(in) :: dry_bulb
         real(c_float), intent(in) :: relative_humidity
         real(c_float) :: PSVP
      end function

      !> vapour_pressure_from_psychrometer: Vapour pressure from the reading of a wet-and-dry-bulb psychrometer.
      pure function PSVAP(dry_bulb, wet_bulb, pressure, psychrometer) bind(C, name='PSVAP')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: dry_bulb
         real(c_float), intent(in) :: wet_bulb
         real(c_float), intent(in) :: pressure
         integer(c_int32_t), intent(in) :: psychrometer
         real(c_float) :: PSVAP
      end function

      !> weighted_temperature: Weighted temperature of two air temperatures.
      pure function PSTEFF(first_temperature, second_temperature) bind(C, name='PSTEFF')
         import :: c_float
         real(c_float), intent(in) :: first_temperature
         real(c_float), intent(in) :: second_temperature
         real(c_float) :: PSTEFF
      end function

      !> psychrometer_wet_bulb: Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and relative
      !> humidity.
      pure function PSTWET(dry_bulb, relative_humidity, pressure, psychrometer) bind(C, name='PSTWET')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: dry_bulb
         real(c_float), intent(in) :: relative_humidity
         real(c_float), intent(in) :: pressure
         integer(c_int32_t), intent(in) :: psychrometer
         real(c_float) :: PSTWET
      end function

      !> wet_bulb_from_percentage_saturation: Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature
      !> and percentage saturation.
      pure function PSTWB(dry_bulb, percentage_saturation, pressure, psychrometer) bind(C, name='PSTWB')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: dry_bulb
         real(c_float), intent(in) :: percentage_saturation
         real(c_float), intent(in) :: pressure
         integer(c_int32_t), intent(in) :: psychrometer
         real(c_float) :: PSTWB
      end function

      !> wet_bulb_from_moisture_content: Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and
      !> moisture content.
      pure function PSWBLB(dry_bulb, moisture_content, pressure, psychrometer) bind(C, name='PSWBLB')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: dry_bulb
         real(c_float), intent(in) :: moisture_content
         real(c_float), intent(in) :: pressure
         integer(c_int32_t), intent(in) :: psychrometer
         real(c_float) :: PSWBLB
      end function

      !> cyclic_response: Admittance, decrement factor and surface factor of a construction with their time shifts, and
      !> its U-value.
      pure subroutine TPADMT(thickness, conductivity, density, specific_heat, inside_resistance, outside_resistance, &
         layers, harmonic, element_kind, admittance, admittance_lead, decrement_factor, decrement_lag, surface_factor, &
         surface_factor_lag, u_value) bind(C, name='TPADMT')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: thickness(*)
         real(c_float), intent(in) :: conductivity(*)
         real(c_float), intent(in) :: density(*)
         real(c_float), intent(in) :: specific_heat(*)
         real(c_float), intent(in) :: inside_resistance
         real(c_float), intent(in) :: outside_resistance
         integer(c_int32_t), intent(in) :: layers
         integer(c_int32_t), intent(in) :: harmonic
         integer(c_int32_t), intent(in) :: element_kind
         real(c_float), intent(inout) :: admittance
         real(c_float), intent(inout) :: admittance_lead
         real(c_float), intent(inout) :: decrement_factor
         real(c_float), intent(inout) :: decrement_lag
         real(c_float), intent(inout) :: surface_factor
         real(c_float), intent(inout) :: surface_factor_lag
         real(c_float), intent(inout) :: u_value
      end subroutine

      !> vertical_cavity_resistance: Thermal resistance of a sealed vertical air cavity between ordinary building
      !> surfaces.
      pure function TPRCAV(cavity_width) bind(C, name='TPRCAV')
         import :: c_float
         real(c_float), intent(in) :: cavity_width
         real(c_float) :: TPRCAV
      end function

      !> air_cavity_resistance: Thermal resistance of a sealed air cavity by convection and long-wave radiation.
      pure function TPRCA2(tilt, cavity_width, emissivity_1, emissivity_2) bind(C, name='TPRCA2')
         import :: c_float
         real(c_float), intent(in) :: tilt
         real(c_float), intent(in) :: cavity_width
         real(c_float), intent(in) :: emissivity_1
         real(c_float), intent(in) :: emissivity_2
         real(c_float) :: TPRCA2
      end function

      !> gas_cavity_resistance: Thermal resistance of a sealed cavity filled with any gas.
      pure function TPRCAX(tilt, cavity_width, emissivity_1, emissivity_2, density, conductivity, specific_heat, &
         viscosity) bind(C, name='TPRCAX')
         import :: c_float
         real(c_float), intent(in) :: tilt
         real(c_float), intent(in) :: cavity_width
         real(c_float), intent(in) :: emissivity_1
         real(c_float), intent(in) :: emissivity_2
         real(c_float), intent(in) :: density
         real(c_float), intent(in) :: conductivity
         real(c_float), intent(in) :: specific_heat
         real(c_float), intent(in) :: viscosity
         real(c_float) :: TPRCAX
      end function

      !> total_vapour_resistance: Vapour resistance of a construction.
      pure subroutine TPDAMP(thickness, vapour_resistivity, layers, vapour_resistance) bind(C, name='TPDAMP')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: thickness(*)
         real(c_float), intent(in) :: vapour_resistivity(*)
         integer(c_int32_t), intent(in) :: layers
         real(c_float), intent(inout) :: vapour_resistance
      end subroutine

      !> condensation_profile: Steady temperature, vapour pressure and saturation pressure at the interfaces of a
      !> construction; the vapour pressure is held down to saturation where it would exceed it.
      pure subroutine TPGRAD(thickness, conductivity, vapour_resistivity, inside_resistance, outside_resistance, &
         layers, inside_temperature, outside_temperature, inside_humidity, outside_humidity, interface_temperature, &
         interface_vapour_pressure, interface_saturation_pressure) bind(C, name='TPGRAD')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: thickness(*)
         real(c_float), intent(in) :: conductivity(*)
         real(c_float), intent(in) :: vapour_resistivity(*)
         real(c_float), intent(in) :: inside_resistance
         real(c_float), intent(in) :: outside_resistance
         integer(c_int32_t), intent(in) :: layers
         real(c_float), intent(in) :: inside_temperature
         real(c_float), intent(in) :: outside_temperature
         real(c_float), intent(in) :: inside_humidity
         real(c_float), intent(in) :: outside_humidity
         real(c_float), intent(inout) :: interface_temperature(21)
         real(c_float), intent(inout) :: interface_vapour_pressure(21)
         real(c_float), intent(inout) :: interface_saturation_pressure(21)
      end subroutine

      !> condenses_within_layer: Whether vapour condenses inside a layer, from the temperatures and vapour pressures of
      !> its two faces.
      pure function ITPCON(warm_temperature, cold_temperature, warm_vapour_pressure, cold_vapour_pressure) bind(C, &
         name='ITPCON')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: warm_temperature
         real(c_float), intent(in) :: cold_temperature
         real(c_float), intent(in) :: warm_vapour_pressure
         real(c_float), intent(in) :: cold_vapour_pressure
         integer(c_int32_t) :: ITPCON
      end function

      !> element_property: One property of one record of a construction, a list of elements from face to face.
      pure function BELDAT(element_records, record_count, record_number, item) bind(C, name='BELDAT')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: element_records(10, *)
         integer(c_int32_t), intent(in) :: record_count
         integer(c_int32_t), intent(in) :: record_number
         integer(c_int32_t), intent(in) :: item
         real(c_float) :: BELDAT
      end function

      !> natural_convection_coefficient: Coefficient of natural convection at a surface of a room.
      pure function TPHCON(temperature_difference, characteristic_length, heat_flow_direction) bind(C, name='TPHCON')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: temperature_difference
         real(c_float), intent(in) :: characteristic_length
         integer(c_int32_t), intent(in) :: heat_flow_direction
         real(c_float) :: TPHCON
      end function

      !> pack_two_fractions: Packs two fractions of two decimals into one real, or unpacks them.
      pure subroutine TPCOLW(packing, packed_number, fraction_1, fraction_2) bind(C, name='TPCOLW')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: packing
         real(c_float), intent(inout) :: packed_number
         real(c_float), intent(inout) :: fraction_1
         real(c_float), intent(inout) :: fraction_2
      end subroutine

      !> pack_three_fractions: Packs three fractions of two decimals into one real, or unpacks them.
      pure subroutine TPCOLT(packing, packed_number, fraction_1, fraction_2, fraction_3) bind(C, name='TPCOLT')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: packing
         real(c_float), intent(inout) :: packed_number
         real(c_float), intent(inout) :: fraction_1
         real(c_float), intent(inout) :: fraction_2
         real(c_float), intent(inout) :: fraction_3
      end subroutine

      !> pack_three_fractions_third_first: TPCOLT with its arguments in another order.
      pure subroutine TPCOLW2(packing, packed_number, fraction_3, fraction_1, fraction_2) bind(C, name='TPCOLW2')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: packing
         real(c_float), intent(inout) :: packed_number
         real(c_float), intent(inout) :: fraction_3
         real(c_float), intent(inout) :: fraction_1
         real(c_float), intent(inout) :: fraction_2
      end subroutine

      !> pack_pane: Packs the solar absorptance of a pane and the reflectances of its faces into one real, as
      !> absorptance and transmittances, or unpacks them.
      pure subroutine TPCOSW(packing, packed_number, absorptance, reflectance_1, reflectance_2) bind(C, name='TPCOSW')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: packing
         real(c_float), intent(inout) :: packed_number
         real(c_float), intent(inout) :: absorptance
         real(c_float), intent(inout) :: reflectance_1
         real(c_float), intent(inout) :: reflectance_2
      end subroutine

      !> surface_resistance: Thermal resistance of the inside or outside surface of an element, for an emissivity of
      !> 0.9.
      pure function TPRSUR(surface, tilt, exposure) bind(C, name='TPRSUR')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: surface
         real(c_float), intent(in) :: tilt
         integer(c_int32_t), intent(in) :: exposure
         real(c_float) :: TPRSUR
      end function

      !> surface_resistance_at_emissivity: Thermal resistance of the inside or outside surface of an element of any
      !> emissivity.
      pure function TPRSU2(surface, tilt, exposure, emissivity) bind(C, name='TPRSU2')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: surface
         real(c_float), intent(in) :: tilt
         integer(c_int32_t), intent(in) :: exposure
         real(c_float), intent(in) :: emissivity
         real(c_float) :: TPRSU2
      end function

      !> u_value: U-value of a construction of plane layers between two surface resistances.
      pure subroutine TPUVAL(thickness, conductivity, surface_resistance_1, surface_resistance_2, layers, u_value) &
         bind(C, name='TPUVAL')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: thickness(*)
         real(c_float), intent(in) :: conductivity(*)
         real(c_float), intent(in) :: surface_resistance_1
         real(c_float), intent(in) :: surface_resistance_2
         integer(c_int32_t), intent(in) :: layers
         real(c_float), intent(inout) :: u_value
      end subroutine

      !> u_value_at_tilt_and_exposure: U-value of a construction at another tilt and exposure, from its U-value as a
      !> vertical wall in normal exposure.
      pure function TPUMOD(u_value, tilt, exposure) bind(C, name='TPUMOD')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: u_value
         real(c_float), intent(in) :: tilt
         integer(c_int32_t), intent(in) :: exposure
         real(c_float) :: TPUMOD
      end function

      !> window_parameters: U-value, admittance, decrement factor and surface factor of a glazing of one to three panes.
      pure subroutine TPWNDO(panes, pane_kind_1, emissivity_1, pane_kind_2, emissivity_2, pane_kind_3, emissivity_3, &
         cavity_width_1, cavity_width_2, outer_surface, exposure, tilt, unused, admittance, admittance_lead, &
         decrement_factor, decrement_lag, surface_factor, surface_factor_lag, u_value) bind(C, name='TPWNDO')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: panes
         integer(c_int32_t), intent(in) :: pane_kind_1
         real(c_float), intent(in) :: emissivity_1
         integer(c_int32_t), intent(in) :: pane_kind_2
         real(c_float), intent(in) :: emissivity_2
         integer(c_int32_t), intent(in) :: pane_kind_3
         real(c_float), intent(in) :: emissivity_3
         real(c_float), intent(in) :: cavity_width_1
         real(c_float), intent(in) :: cavity_width_2
         integer(c_int32_t), intent(in) :: outer_surface
         integer(c_int32_t), intent(in) :: exposure
         real(c_float), intent(in) :: tilt
         real(c_float), intent(in) :: unused
         real(c_float), intent(out) :: admittance
         real(c_float), intent(out) :: admittance_lead
         real(c_float), intent(out) :: decrement_factor
         real(c_float), intent(out) :: decrement_lag
         real(c_float), intent(out) :: surface_factor
         real(c_float), intent(out) :: surface_factor_lag
         real(c_float), intent(out) :: u_value
      end subroutine

      !> glass_direct: Transmittance, absorptance and reflectance of a pane for direct radiation, both polarisations.
      pure subroutine WNDRGL(normal_transmittance, normal_reflectance, incidence, parallel_transmittance, &
         parallel_absorptance, parallel_reflectance, perpendicular_transmittance, perpendicular_absorptance, &
         perpendicular_reflectance) bind(C, name='WNDRGL')
         import :: c_float
         real(c_float), intent(in) :: normal_transmittance
         real(c_float), intent(in) :: normal_reflectance
         real(c_float), intent(in) :: incidence
         real(c_float), intent(out) :: parallel_transmittance
         real(c_float), intent(out) :: parallel_absorptance
         real(c_float), intent(out) :: parallel_reflectance
         real(c_float), intent(out) :: perpendicular_transmittance
         real(c_float), intent(out) :: perpendicular_absorptance
         real(c_float), intent(out) :: perpendicular_reflectance
      end subroutine

      !> glass_diffuse: Transmittance and absorptance of a pane for isotropic diffuse radiation.
      pure subroutine WNDFGL(normal_transmittance, normal_reflectance, transmittance, absorptance) bind(C, &
         name='WNDFGL')
         import :: c_float
         real(c_float), intent(in) :: normal_transmittance
         real(c_float), intent(in) :: normal_reflectance
         real(c_float), intent(out) :: transmittance
         real(c_float), intent(out) :: absorptance
      end subroutine

      !> stacked_layers: Transmittance, absorptance and reflectance of a stack of layers, each reflection counted once.
      pure subroutine WNCOM2(layers, layer_transmittances, unused, layer_reflectances, transmittance, absorptance, &
         reflectance) bind(C, name='WNCOM2')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: layers
         real(c_float), intent(in) :: layer_transmittances(*)
         real(c_float), intent(in) :: unused
         real(c_float), intent(in) :: layer_reflectances(*)
         real(c_float), intent(out) :: transmittance
         real(c_float), intent(out) :: absorptance
         real(c_float), intent(out) :: reflectance
      end subroutine

      !> traced_layers: Transmittance, absorptance and reflectance of a stack of layers with the inter-reflections
      !> between all of them.
      pure subroutine WNCOMP(layers, layer_transmittances, layer_absorptances, layer_reflectances, transmittance, &
         absorptance, reflectance) bind(C, name='WNCOMP')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: layers
         real(c_float), intent(in) :: layer_transmittances(*)
         real(c_float), intent(in) :: layer_absorptances(*)
         real(c_float), intent(in) :: layer_reflectances(*)
         real(c_float), intent(inout) :: transmittance
         real(c_float), intent(inout) :: absorptance
         real(c_float), intent(inout) :: reflectance
      end subroutine

      !> roller_blind: Transmittance, absorptance and reflectance of a roller blind, the same at every angle.
      pure subroutine WNDRRO(blind_transmittance, blind_reflectance, incidence, transmittance, absorptance, &
         reflectance) bind(C, name='WNDRRO')
         import :: c_float
         real(c_float), intent(in) :: blind_transmittance
         real(c_float), intent(in) :: blind_reflectance
         real(c_float), intent(in) :: incidence
         real(c_float), intent(out) :: transmittance
         real(c_float), intent(out) :: absorptance
         real(c_float), intent(out) :: reflectance
      end subroutine

      !> diffuse_roller_blind: Transmittance, absorptance and reflectance of a roller blind for diffuse radiation.
      pure subroutine WNDFRO(blind_transmittance, blind_reflectance, transmittance, absorptance, reflectance) bind(C, &
         name='WNDFRO')
         import :: c_float
         real(c_float), intent(in) :: blind_transmittance
         real(c_float), intent(in) :: blind_reflectance
         real(c_float), intent(out) :: transmittance
         real(c_float), intent(out) :: absorptance
         real(c_float), intent(out) :: reflectance
      end subroutine

      !> refraction_angle: Angle of a ray inside the glass, by Snell's law.
      pure function WNRANG(incidence, refractive_index) bind(C, name='WNRANG')
         import :: c_float
         real(c_float), intent(in) :: incidence
         real(c_float), intent(in) :: refractive_index
         real(c_float) :: WNRANG
      end function

      !> surface_reflectance: Reflectance of one face of the glass for the two polarisations, by Fresnel's equations.
      pure subroutine WNREFL(incidence, refraction_angle, refractive_index, parallel_reflectance, &
         perpendicular_reflectance) bind(C, name='WNREFL')
         import :: c_float
         real(c_float), intent(in) :: incidence
         real(c_float), intent(in) :: refraction_angle
         real(c_float), intent(in) :: refractive_index
         real(c_float), intent(out) :: parallel_reflectance
         real(c_float), intent(out) :: perpendicular_reflectance
      end subroutine

      !> single_pass_absorption: Share of a ray that is absorbed in one pass through the body of a pane.
      pure function WNABEN(refraction_angle, absorption_product, unused) bind(C, name='WNABEN')
         import :: c_float
         real(c_float), intent(in) :: refraction_angle
         real(c_float), intent(in) :: absorption_product
         real(c_float), intent(in) :: unused
         real(c_float) :: WNABEN
      end function

      !> slab_optics: Transmittance, absorptance and reflectance of a pane for one polarisation, with all
      !> inter-reflections between its two faces.
      pure subroutine WNTAR(single_pass_absorptance, face_reflectance, transmittance, absorptance, reflectance) &
         bind(C, name='WNTAR')
         import :: c_float
         real(c_float), intent(in) :: single_pass_absorptance
         real(c_float), intent(in) :: face_reflectance
         real(c_float), intent(out) :: transmittance
         real(c_float), intent(out) :: absorptance
         real(c_float), intent(out) :: reflectance
      end subroutine

      !> absorption_product: Absorption coefficient times thickness of a pane, from its transmittance at normal
      !> incidence.
      pure function WNKL(normal_transmittance, refractive_index) bind(C, name='WNKL')
         import :: c_float
         real(c_float), intent(in) :: normal_transmittance
         real(c_float), intent(in) :: refractive_index
         real(c_float) :: WNKL
      end function

      !> normal_transmittance: Transmittance of a pane at normal incidence: the inverse of WNKL.
      pure function WNTNOR(absorption_product, normal_reflectance) bind(C, name='WNTNOR')
         import :: c_float
         real(c_float), intent(in) :: absorption_product
         real(c_float), intent(in) :: normal_reflectance
         real(c_float) :: WNTNOR
      end function

      !> pane_temperatures: Steady temperatures of the panes of a glazing from the air temperatures on both sides and
      !> the solar radiation that each pane absorbs.
      pure subroutine WNTEMP(inside_temperature, outside_temperature, panes, absorbed_1, absorbed_2, absorbed_3, &
         absorbed_4, absorbed_5, pane_temperature_1, pane_temperature_2, pane_temperature_3, pane_temperature_4, &
         pane_temperature_5) bind(C, name='WNTEMP')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: inside_temperature
         real(c_float), intent(in) :: outside_temperature
         integer(c_int32_t), intent(in) :: panes
         real(c_float), intent(in) :: absorbed_1
         real(c_float), intent(in) :: absorbed_2
         real(c_float), intent(in) :: absorbed_3
         real(c_float), intent(in) :: absorbed_4
         real(c_float), intent(in) :: absorbed_5
         real(c_float), intent(inout) :: pane_temperature_1
         real(c_float), intent(inout) :: pane_temperature_2
         real(c_float), intent(inout) :: pane_temperature_3
         real(c_float), intent(inout) :: pane_temperature_4
         real(c_float), intent(inout) :: pane_temperature_5
      end subroutine

      !> unit_direct: Transmittance, absorptance and reflectance for direct radiation of a glazing unit known only by
      !> its shading coefficients.
      pure subroutine WNDRSC(shortwave_shading_coefficient, longwave_shading_coefficient, incidence, transmittance, &
         absorptance, reflectance) bind(C, name='WNDRSC')
         import :: c_float
         real(c_float), intent(in) :: shortwave_shading_coefficient
         real(c_float), intent(in) :: longwave_shading_coefficient
         real(c_float), intent(in) :: incidence
         real(c_float), intent(out) :: transmittance
         real(c_float), intent(out) :: absorptance
         real(c_float), intent(out) :: reflectance
      end subroutine

      !> unit_diffuse: Transmittance, absorptance and reflectance for isotropic diffuse radiation of a glazing unit
      !> known only by its shading coefficients.
      pure subroutine WNDFSC(shortwave_shading_coefficient, longwave_shading_coefficient, transmittance, absorptance, &
         reflectance) bind(C, name='WNDFSC')
         import :: c_float
         real(c_float), intent(in) :: shortwave_shading_coefficient
         real(c_float), intent(in) :: longwave_shading_coefficient
         real(c_float), intent(out) :: transmittance
         real(c_float), intent(out) :: absorptance
         real(c_float), intent(out) :: reflectance
      end subroutine

      !> unit_direct_shares: WNDRSC, with the remainder that is neither transmitted nor absorbed split among the panes
      !> of the unit.
      pure subroutine WNDRSM(shortwave_shading_coefficient, longwave_shading_coefficient, incidence, panes, &
         transmittance, pane_shares, absorptance) bind(C, name='WNDRSM')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: shortwave_shading_coefficient
         real(c_float), intent(in) :: longwave_shading_coefficient
         real(c_float), intent(in) :: incidence
         integer(c_int32_t), intent(in) :: panes
         real(c_float), intent(out) :: transmittance
         real(c_float), intent(inout) :: pane_shares(*)
         real(c_float), intent(out) :: absorptance
      end subroutine

      !> unit_diffuse_shares: WNDFSC, with the remainder that is neither transmitted nor absorbed split among the panes
      !> of the unit.
      pure subroutine WNDFSM(shortwave_shading_coefficient, longwave_shading_coefficient, panes, transmittance, &
         pane_shares, absorptance) bind(C, name='WNDFSM')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: shortwave_shading_coefficient
         real(c_float), intent(in) :: longwave_shading_coefficient
         integer(c_int32_t), intent(in) :: panes
         real(c_float), intent(out) :: transmittance
         real(c_float), intent(inout) :: pane_shares(*)
         real(c_float), intent(out) :: absorptance
      end subroutine

      !> unit_shares: WNDRSM or WNDFSM, by a selector.
      pure subroutine WNDRS0(radiation, shortwave_shading_coefficient, longwave_shading_coefficient, incidence, panes, &
         transmittance, pane_shares, absorptance) bind(C, name='WNDRS0')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: radiation
         real(c_float), intent(in) :: shortwave_shading_coefficient
         real(c_float), intent(in) :: longwave_shading_coefficient
         real(c_float), intent(in) :: incidence
         integer(c_int32_t), intent(in) :: panes
         real(c_float), intent(out) :: transmittance
         real(c_float), intent(inout) :: pane_shares(*)
         real(c_float), intent(out) :: absorptance
      end subroutine

      !> slat_direct: Transmittance, absorptance and reflectance of a slatted blind for a beam, both faces of the slats
      !> alike.
      pure subroutine WNDRSL(slat_spacing, slat_width, slat_angle, profile_angle, slat_absorptance, transmittance, &
         absorptance, reflectance) bind(C, name='WNDRSL')
         import :: c_float
         real(c_float), intent(in) :: slat_spacing
         real(c_float), intent(in) :: slat_width
         real(c_float), intent(in) :: slat_angle
         real(c_float), intent(in) :: profile_angle
         real(c_float), intent(in) :: slat_absorptance
         real(c_float), intent(out) :: transmittance
         real(c_float), intent(out) :: absorptance
         real(c_float), intent(out) :: reflectance
      end subroutine

      !> two_faced_slat_direct: Transmittance, absorptance and reflectance of a blind for a beam, whose slats have two
      !> different faces.
      pure subroutine WNDRS2(slat_spacing, slat_width, slat_angle, profile_angle, struck_absorptance, &
         opposite_absorptance, transmittance, absorptance, reflectance) bind(C, name='WNDRS2')
         import :: c_float
         real(c_float), intent(in) :: slat_spacing
         real(c_float), intent(in) :: slat_width
         real(c_float), intent(in) :: slat_angle
         real(c_float), intent(in) :: profile_angle
         real(c_float), intent(in) :: struck_absorptance
         real(c_float), intent(in) :: opposite_absorptance
         real(c_float), intent(out) :: transmittance
         real(c_float), intent(out) :: absorptance
         real(c_float), intent(out) :: reflectance
      end subroutine

      !> open_slat_direct: WNDRS2 for a blind that leaves a share of the radiation to pass untouched.
      pure subroutine WNDRS3(slat_spacing, slat_width, slat_angle, profile_angle, open_share, struck_absorptance, &
         opposite_absorptance, transmittance, absorptance, reflectance) bind(C, name='WNDRS3')
         import :: c_float
         real(c_float), intent(in) :: slat_spacing
         real(c_float), intent(in) :: slat_width
         real(c_float), intent(in) :: slat_angle
         real(c_float), intent(in) :: profile_angle
         real(c_float), intent(in) :: open_share
         real(c_float), intent(in) :: struck_absorptance
         real(c_float), intent(in) :: opposite_absorptance
         real(c_float), intent(out) :: transmittance
         real(c_float), intent(out) :: absorptance
         real(c_float), intent(out) :: reflectance
      end subroutine

      !> slat_diffuse: Transmittance and absorptance of a slatted blind for the diffuse radiation from the sky's and
      !> from the ground's side, both faces of the slats alike.
      pure subroutine WNDFSL(slat_spacing, slat_width, slat_angle, slat_absorptance, sky_transmittance, &
         ground_transmittance, sky_absorptance, ground_absorptance) bind(C, name='WNDFSL')
         import :: c_float
         real(c_float), intent(in) :: slat_spacing
         real(c_float), intent(in) :: slat_width
         real(c_float), intent(in) :: slat_angle
         real(c_float), intent(in) :: slat_absorptance
         real(c_float), intent(out) :: sky_transmittance
         real(c_float), intent(out) :: ground_transmittance
         real(c_float), intent(out) :: sky_absorptance
         real(c_float), intent(out) :: ground_absorptance
      end subroutine

      !> two_faced_slat_diffuse: WNDFSL for slats with two different faces.
      pure subroutine WNDFS2(slat_spacing, slat_width, slat_angle, struck_absorptance, opposite_absorptance, &
         sky_transmittance, ground_transmittance, sky_absorptance, ground_absorptance) bind(C, name='WNDFS2')
         import :: c_float
         real(c_float), intent(in) :: slat_spacing
         real(c_float), intent(in) :: slat_width
         real(c_float), intent(in) :: slat_angle
         real(c_float), intent(in) :: struck_absorptance
         real(c_float), intent(in) :: opposite_absorptance
         real(c_float), intent(out) :: sky_transmittance
         real(c_float), intent(out) :: ground_transmittance
         real(c_float), intent(out) :: sky_absorptance
         real(c_float), intent(out) :: ground_absorptance
      end subroutine

      !> open_slat_diffuse: WNDFS2 for a blind that leaves a share of the radiation to pass untouched.
      pure subroutine WNDFS3(slat_spacing, slat_width, slat_angle, open_share, struck_absorptance, &
         opposite_absorptance, sky_transmittance, ground_transmittance, sky_absorptance, ground_absorptance) bind(C, &
         name='WNDFS3')
         import :: c_float
         real(c_float), intent(in) :: slat_spacing
         real(c_float), intent(in) :: slat_width
         real(c_float), intent(in) :: slat_angle
         real(c_float), intent(in) :: open_share
         real(c_float), intent(in) :: struck_absorptance
         real(c_float), intent(in) :: opposite_absorptance
         real(c_float), intent(out) :: sky_transmittance
         real(c_float), intent(out) :: ground_transmittance
         real(c_float), intent(out) :: sky_absorptance
         real(c_float), intent(out) :: ground_absorptance
      end subroutine

      !> locate_band: Where a cumulative fraction of days lies among the ten bands of a month, in frequencies of the
      !> caller.
      pure subroutine CLBAN1(fraction, month, frequencies, lower_band, upper_band, band_weight) bind(C, name='CLBAN1')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: fraction
         integer(c_int32_t), intent(in) :: month
         real(c_float), intent(in) :: frequencies(12, 10)
         integer(c_int32_t), intent(out) :: lower_band
         integer(c_int32_t), intent(out) :: upper_band
         real(c_float), intent(out) :: band_weight
      end subroutine

      !> band_climate: Monthly climate of one of ten bands of days, or interpolated at a cumulative percentage of days.
      pure subroutine CLBAND(band, month, band_set, percentage, q1, q2, q3, q4, q5, q6, time_a, time_b, q7, q8) &
         bind(C, name='CLBAND')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: band
         integer(c_int32_t), intent(in) :: month
         integer(c_int32_t), intent(in) :: band_set
         real(c_float), intent(inout) :: percentage
         real(c_float), intent(out) :: q1
         real(c_float), intent(out) :: q2
         real(c_float), intent(out) :: q3
         real(c_float), intent(out) :: q4
         real(c_float), intent(out) :: q5
         real(c_float), intent(out) :: q6
         real(c_float), intent(out) :: time_a
         real(c_float), intent(out) :: time_b
         real(c_float), intent(out) :: q7
         real(c_float), intent(out) :: q8
      end subroutine

      !> interpolate_band_rows: Value between two rows of the band table.
      pure subroutine CLBAN2(base_row, lower_band, upper_band, month, band_weight, value) bind(C, name='CLBAN2')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: base_row
         integer(c_int32_t), intent(in) :: lower_band
         integer(c_int32_t), intent(in) :: upper_band
         integer(c_int32_t), intent(in) :: month
         real(c_float), intent(in) :: band_weight
         real(c_float), intent(out) :: value
      end subroutine

      !> band_row: One row of the band table, a value per month.
      pure subroutine CLBAN3(row, values) bind(C, name='CLBAN3')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: row
         real(c_float), intent(out) :: values(12)
      end subroutine

      !> store_design_day: Design day of a month as a day of the year, as ICLDAY gives it.
      pure subroutine CLDAY(month, day) bind(C, name='CLDAY')
         import :: c_int32_t
         integer(c_int32_t), intent(in) :: month
         integer(c_int32_t), intent(out) :: day
      end subroutine

      !> store_design_day_by_option: Design day of a month as a day of the year or of the month, as ICLDAYEX gives it.
      pure subroutine CLDAYEX(month, day, day_kind) bind(C, name='CLDAYEX')
         import :: c_int32_t
         integer(c_int32_t), intent(in) :: month
         integer(c_int32_t), intent(out) :: day
         integer(c_int32_t), intent(in) :: day_kind
      end subroutine

      !> design_day: Design day of a month as a day of the year.
      pure function ICLDAY(month) bind(C, name='ICLDAY')
         import :: c_int32_t
         integer(c_int32_t), intent(in) :: month
         integer(c_int32_t) :: ICLDAY
      end function

      !> design_day_by_option: Design day of a month as a day of the year or of the month.
      pure function ICLDAYEX(month, day_kind) bind(C, name='ICLDAYEX')
         import :: c_int32_t
         integer(c_int32_t), intent(in) :: month
         integer(c_int32_t), intent(in) :: day_kind
         integer(c_int32_t) :: ICLDAYEX
      end function

      !> second_design_day: Second design day of a month as a day of the year.
      pure function ICLDA2(month) bind(C, name='ICLDA2')
         import :: c_int32_t
         integer(c_int32_t), intent(in) :: month
         integer(c_int32_t) :: ICLDA2
      end function

      !> second_design_day_by_option: Second design day of a month as a day of the year or of the month.
      pure function ICLDA2EX(month, day_kind) bind(C, name='ICLDA2EX')
         import :: c_int32_t
         integer(c_int32_t), intent(in) :: month
         integer(c_int32_t), intent(in) :: day_kind
         integer(c_int32_t) :: ICLDA2EX
      end function

      !> station_records: Monthly records of a station, from a climate data file at given percentages of days.
      subroutine CLBNF0(file_name, station, month, station_records) bind(C, name='CLBNF0')
         import :: c_char, c_int32_t, c_float
         character(kind=c_char), intent(in) :: file_name(*)
         integer(c_int32_t), intent(in) :: station
         integer(c_int32_t), intent(in) :: month
         real(c_float), intent(inout) :: station_records(11, 12)
      end subroutine

      !> station_climate: Monthly climate of one of ten bands of days of a station, or interpolated at a cumulative
      !> percentage of days.
      subroutine CLBNFI(file_unit, station, band, month, band_set, percentage, q1, q2, q3, q4, q5, q6, q7, time_a, &
         time_b) bind(C, name='CLBNFI')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: file_unit
         integer(c_int32_t), intent(in) :: station
         integer(c_int32_t), intent(in) :: band
         integer(c_int32_t), intent(in) :: month
         integer(c_int32_t), intent(in) :: band_set
         real(c_float), intent(in) :: percentage
         real(c_float), intent(inout) :: q1
         real(c_float), intent(inout) :: q2
         real(c_float), intent(inout) :: q3
         real(c_float), intent(inout) :: q4
         real(c_float), intent(inout) :: q5
         real(c_float), intent(inout) :: q6
         real(c_float), intent(inout) :: q7
         real(c_float), intent(inout) :: time_a
         real(c_float), intent(inout) :: time_b
      end subroutine

      !> locate_station_band: Where a cumulative fraction of days lies among the ten bands of a month, in the
      !> frequencies that CLBNF0 or CLBNFI read last.
      subroutine CLBNF1(fraction, month, lower_band, upper_band, band_weight) bind(C, name='CLBNF1')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: fraction
         integer(c_int32_t), intent(in) :: month
         integer(c_int32_t), intent(out) :: lower_band
         integer(c_int32_t), intent(out) :: upper_band
         real(c_float), intent(out) :: band_weight
      end subroutine

      !> interpolate_station_rows: Value between two rows of the station given to CLBNF0 or CLBNFI last.
      subroutine CLBNF2(base_row, lower_band, upper_band, month, band_weight, value) bind(C, name='CLBNF2')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: base_row
         integer(c_int32_t), intent(in) :: lower_band
         integer(c_int32_t), intent(in) :: upper_band
         integer(c_int32_t), intent(in) :: month
         real(c_float), intent(in) :: band_weight
         real(c_float), intent(inout) :: value
      end subroutine

      !> station_row: One row of the station given to CLBNF0 or CLBNFI last.
      subroutine CLBNF3(row, values) bind(C, name='CLBNF3')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: row
         real(c_float), intent(inout) :: values(12)
      end subroutine

      !> daily_temperature: Temperature at an hour of a day, by half cosine waves between its highest and its lowest.
      pure function CLTAO(hour, highest_temperature, lowest_temperature, hour_of_highest, hour_of_lowest) bind(C, &
         name='CLTAO')
         import :: c_float
         real(c_float), intent(in) :: hour
         real(c_float), intent(in) :: highest_temperature
         real(c_float), intent(in) :: lowest_temperature
         real(c_float), intent(in) :: hour_of_highest
         real(c_float), intent(in) :: hour_of_lowest
         real(c_float) :: CLTAO
      end function

      !> daily_value: Value at an hour of a day that swings about its mean by half cosine waves between two hours.
      pure function CLTAOX(hour, mean, amplitude, first_hour, second_hour, amplitude_factor) bind(C, name='CLTAOX')
         import :: c_float
         real(c_float), intent(in) :: hour
         real(c_float), intent(in) :: mean
         real(c_float), intent(in) :: amplitude
         real(c_float), intent(in) :: first_hour
         real(c_float), intent(in) :: second_hour
         real(c_float), intent(in) :: amplitude_factor
         real(c_float) :: CLTAOX
      end function

      !> design_irradiance: Design irradiance by solar altitude: direct normal and diffuse horizontal.
      pure subroutine CLSNNR(solar_altitude, solar_azimuth, site_height, sky_kind, direct_normal, diffuse_horizontal) &
         bind(C, name='CLSNNR')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: solar_altitude
         real(c_float), intent(in) :: solar_azimuth
         real(c_float), intent(in) :: site_height
         integer(c_int32_t), intent(in) :: sky_kind
         real(c_float), intent(out) :: direct_normal
         real(c_float), intent(out) :: diffuse_horizontal
      end subroutine

      !> height_factor: Factor by which irradiance grows with the height of the site.
      pure function CLHIGH(site_height, solar_altitude) bind(C, name='CLHIGH')
         import :: c_float
         real(c_float), intent(in) :: site_height
         real(c_float), intent(in) :: solar_altitude
         real(c_float) :: CLHIGH
      end function

      !> eccentricity_factor: Irradiance outside the atmosphere on a day, by that at the mean distance of the sun.
      pure function CLETAJ(day) bind(C, name='CLETAJ')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: day
         real(c_float) :: CLETAJ
      end function

      !> clearness_index: Global horizontal irradiance by that outside the atmosphere.
      pure function CLMODUL(day, solar_altitude, global_horizontal) bind(C, name='CLMODUL')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: day
         real(c_float), intent(in) :: solar_altitude
         real(c_float), intent(in) :: global_horizontal
         real(c_float) :: CLMODUL
      end function

      !> muneer_slope: Irradiance on a tilted surface by Muneer's sky: beam, sky diffuse and ground-reflected.
      pure subroutine CLMUNRAD(solar_altitude, solar_azimuth, surface_azimuth, tilt, beam_horizontal, &
         diffuse_horizontal, extraterrestrial_horizontal, ground_reflectance, surface_beam, surface_diffuse, &
         ground_reflected, incidence) bind(C, name='CLMUNRAD')
         import :: c_float
         real(c_float), intent(in) :: solar_altitude
         real(c_float), intent(in) :: solar_azimuth
         real(c_float), intent(in) :: surface_azimuth
         real(c_float), intent(in) :: tilt
         real(c_float), intent(in) :: beam_horizontal
         real(c_float), intent(in) :: diffuse_horizontal
         real(c_float), intent(in) :: extraterrestrial_horizontal
         real(c_float), intent(in) :: ground_reflectance
         real(c_float), intent(out) :: surface_beam
         real(c_float), intent(out) :: surface_diffuse
         real(c_float), intent(out) :: ground_reflected
         real(c_float), intent(out) :: incidence
      end subroutine

      !> perez_diffuse: Diffuse irradiance of the sky on a tilted surface by the anisotropic sky of Perez.
      pure subroutine CLPERSKY(solar_altitude, tilt, beam_horizontal, diffuse_horizontal, surface_diffuse, incidence, &
         extraterrestrial_normal) bind(C, name='CLPERSKY')
         import :: c_float
         real(c_float), intent(in) :: solar_altitude
         real(c_float), intent(in) :: tilt
         real(c_float), intent(in) :: beam_horizontal
         real(c_float), intent(in) :: diffuse_horizontal
         real(c_float), intent(out) :: surface_diffuse
         real(c_float), intent(in) :: incidence
         real(c_float), intent(in) :: extraterrestrial_normal
      end subroutine

      !> site_constants: Radiation constants of a site class in a month.
      pure subroutine CLCONS(site_class, month, ground_reflectance, beam_factor, diffuse_factor, &
         alternative_diffuse_factor) bind(C, name='CLCONS')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: site_class
         integer(c_int32_t), intent(in) :: month
         real(c_float), intent(out) :: ground_reflectance
         real(c_float), intent(out) :: beam_factor
         real(c_float), intent(out) :: diffuse_factor
         real(c_float), intent(out) :: alternative_diffuse_factor
      end subroutine

      !> diffuse_tilt_factor: Diffuse irradiance of the sky on a tilted surface without circumsolar part, by that on the
      !> horizontal.
      pure function CLDIFRAD(day, solar_altitude, beam_horizontal, unused, tilt, sky_model) bind(C, name='CLDIFRAD')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: day
         real(c_float), intent(in) :: solar_altitude
         real(c_float), intent(in) :: beam_horizontal
         real(c_float), intent(in) :: unused
         real(c_float), intent(in) :: tilt
         integer(c_int32_t), intent(in) :: sky_model
         real(c_float) :: CLDIFRAD
      end function

      !> slope_diffuse: Diffuse irradiance of the sky on a tilted surface by day of the year and model of the sky.
      pure function CLDIFSLO(day, solar_altitude, solar_azimuth, surface_azimuth, tilt, beam_horizontal, &
         diffuse_horizontal, sky_model) bind(C, name='CLDIFSLO')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: day
         real(c_float), intent(in) :: solar_altitude
         real(c_float), intent(in) :: solar_azimuth
         real(c_float), intent(in) :: surface_azimuth
         real(c_float), intent(in) :: tilt
         real(c_float), intent(in) :: beam_horizontal
         real(c_float), intent(in) :: diffuse_horizontal
         integer(c_int32_t), intent(in) :: sky_model
         real(c_float) :: CLDIFSLO
      end function

      !> sol_air_temperature: Temperature of the sol-air kind: a base temperature raised by a net gain of heat.
      pure function CLTEO(base_temperature, surface_coefficient, absorptance, unused_1, unused_2, irradiance, &
         long_wave_loss) bind(C, name='CLTEO')
         import :: c_float
         real(c_float), intent(in) :: base_temperature
         real(c_float), intent(in) :: surface_coefficient
         real(c_float), intent(in) :: absorptance
         real(c_float), intent(in) :: unused_1
         real(c_float), intent(in) :: unused_2
         real(c_float), intent(in) :: irradiance
         real(c_float), intent(in) :: long_wave_loss
         real(c_float) :: CLTEO
      end function

      !> long_wave_loss: Net long-wave radiation that a surface loses to its surroundings, never negative.
      pure function CLRERD(tilt, cloud_cover) bind(C, name='CLRERD')
         import :: c_float
         real(c_float), intent(in) :: tilt
         real(c_float), intent(in) :: cloud_cover
         real(c_float) :: CLRERD
      end function

      !> solar_time_correction: What is to be added to clock time to get solar time.
      pure function CLTCOR(clock_offset, day, longitude, reference_longitude) bind(C, name='CLTCOR')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: clock_offset
         integer(c_int32_t), intent(in) :: day
         real(c_float), intent(in) :: longitude
         real(c_float), intent(in) :: reference_longitude
         real(c_float) :: CLTCOR
      end function

      !> almanac_position: Altitude, azimuth and declination of the sun by calendar date and clock.
      pure subroutine CLYALLOP(time_kind, year, month, day_of_month, clock_time, latitude, longitude, zone_meridian, &
         solar_altitude, solar_azimuth, declination) bind(C, name='CLYALLOP')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: time_kind
         integer(c_int32_t), intent(in) :: year
         integer(c_int32_t), intent(in) :: month
         integer(c_int32_t), intent(in) :: day_of_month
         real(c_float), intent(in) :: clock_time
         real(c_float), intent(in) :: latitude
         real(c_float), intent(inout) :: longitude
         real(c_float), intent(inout) :: zone_meridian
         real(c_float), intent(out) :: solar_altitude
         real(c_float), intent(out) :: solar_azimuth
         real(c_float), intent(out) :: declination
      end subroutine

      !> almanac_sun_hours: Sunrise and sunset in solar time by calendar date.
      pure subroutine CLRISESET(year, month, day_of_month, latitude, sunrise, sunset) bind(C, name='CLRISESET')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: year
         integer(c_int32_t), intent(in) :: month
         integer(c_int32_t), intent(in) :: day_of_month
         real(c_float), intent(in) :: latitude
         real(c_float), intent(out) :: sunrise
         real(c_float), intent(out) :: sunset
      end subroutine

      !> solar_geometry: Declination, altitude and azimuth of the sun, sunrise and sunset, by latitude, day of the year
      !> and solar hour.
      pure subroutine CLSNGE(latitude, day, solar_time, declination, solar_altitude, solar_azimuth, sunrise, sunset) &
         bind(C, name='CLSNGE')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: latitude
         integer(c_int32_t), intent(in) :: day
         real(c_float), intent(in) :: solar_time
         real(c_float), intent(out) :: declination
         real(c_float), intent(out) :: solar_altitude
         real(c_float), intent(out) :: solar_azimuth
         real(c_float), intent(inout) :: sunrise
         real(c_float), intent(inout) :: sunset
      end subroutine

      !> surface_angles: Angle of incidence of the sun on a surface, and its angles in the vertical and the horizontal
      !> sense.
      pure subroutine CLSNSR(solar_altitude, solar_azimuth, surface_azimuth, tilt, incidence, vertical_shadow_angle, &
         horizontal_shadow_angle) bind(C, name='CLSNSR')
         import :: c_float
         real(c_float), intent(in) :: solar_altitude
         real(c_float), intent(in) :: solar_azimuth
         real(c_float), intent(in) :: surface_azimuth
         real(c_float), intent(in) :: tilt
         real(c_float), intent(out) :: incidence
         real(c_float), intent(out) :: vertical_shadow_angle
         real(c_float), intent(out) :: horizontal_shadow_angle
      end subroutine

      !> surface_irradiance: Irradiance on the plane of a surface: direct from the sun, diffuse from the sky, reflected
      !> from the ground.
      pure subroutine CLSORD(solar_altitude, solar_azimuth, surface_azimuth, tilt, direct_normal, diffuse_horizontal, &
         ground_reflectance, beam_factor, diffuse_factor, surface_beam, surface_diffuse, ground_reflected) bind(C, &
         name='CLSORD')
         import :: c_float
         real(c_float), intent(in) :: solar_altitude
         real(c_float), intent(in) :: solar_azimuth
         real(c_float), intent(in) :: surface_azimuth
         real(c_float), intent(in) :: tilt
         real(c_float), intent(in) :: direct_normal
         real(c_float), intent(in) :: diffuse_horizontal
         real(c_float), intent(in) :: ground_reflectance
         real(c_float), intent(in) :: beam_factor
         real(c_float), intent(in) :: diffuse_factor
         real(c_float), intent(out) :: surface_beam
         real(c_float), intent(out) :: surface_diffuse
         real(c_float), intent(out) :: ground_reflected
      end subroutine

      !> surface_irradiance_and_incidence: Irradiance on the plane of a surface as CLSORD, and the angle of incidence.
      pure subroutine CLSOR2(solar_altitude, solar_azimuth, surface_azimuth, tilt, direct_normal, diffuse_horizontal, &
         ground_reflectance, beam_factor, diffuse_factor, surface_beam, surface_diffuse, ground_reflected, incidence) &
         bind(C, name='CLSOR2')
         import :: c_float
         real(c_float), intent(in) :: solar_altitude
         real(c_float), intent(in) :: solar_azimuth
         real(c_float), intent(in) :: surface_azimuth
         real(c_float), intent(in) :: tilt
         real(c_float), intent(in) :: direct_normal
         real(c_float), intent(in) :: diffuse_horizontal
         real(c_float), intent(in) :: ground_reflectance
         real(c_float), intent(in) :: beam_factor
         real(c_float), intent(in) :: diffuse_factor
         real(c_float), intent(out) :: surface_beam
         real(c_float), intent(out) :: surface_diffuse
         real(c_float), intent(out) :: ground_reflected
         real(c_float), intent(out) :: incidence
      end subroutine

      !> clip: Difference A - B and overlap of two simple polygons A and B in plan, in double precision.
      pure subroutine HOHOLEDP(x, y, vertices_a, positions_a, vertices_b, positions_b, point_capacity, &
         crossing_capacity, difference_capacity, overlap_capacity, used_points, difference_pieces, overlap_pieces, &
         status) bind(C, name='HOHOLEDP')
         import :: c_double, c_int32_t
         real(c_double), intent(inout) :: x(*)
         real(c_double), intent(inout) :: y(*)
         integer(c_int32_t), intent(in) :: vertices_a
         integer(c_int32_t), intent(in) :: positions_a(*)
         integer(c_int32_t), intent(in) :: vertices_b
         integer(c_int32_t), intent(in) :: positions_b(*)
         integer(c_int32_t), intent(in) :: point_capacity
         integer(c_int32_t), intent(in) :: crossing_capacity
         integer(c_int32_t), intent(in) :: difference_capacity
         integer(c_int32_t), intent(in) :: overlap_capacity
         integer(c_int32_t), intent(inout) :: used_points
         integer(c_int32_t), intent(inout) :: difference_pieces(*)
         integer(c_int32_t), intent(inout) :: overlap_pieces(*)
         integer(c_int32_t), intent(out) :: status
      end subroutine

      !> overlap: Pieces and area of the overlap of two simple polygons in plan.
      pure subroutine GEOVER(x_1, y_1, vertices_1, x_2, y_2, vertices_2, piece_x, piece_y, piece_vertices, area) &
         bind(C, name='GEOVER')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: x_1(*)
         real(c_float), intent(in) :: y_1(*)
         integer(c_int32_t), intent(in) :: vertices_1
         real(c_float), intent(in) :: x_2(*)
         real(c_float), intent(in) :: y_2(*)
         integer(c_int32_t), intent(in) :: vertices_2
         real(c_float), intent(out) :: piece_x(25, 5)
         real(c_float), intent(out) :: piece_y(25, 5)
         integer(c_int32_t), intent(out) :: piece_vertices(5)
         real(c_float), intent(out) :: area
      end subroutine

      !> overlap_alias: The same as GEOVER.
      pure subroutine GEHOLE(x_1, y_1, vertices_1, x_2, y_2, vertices_2, piece_x, piece_y, piece_vertices, area) &
         bind(C, name='GEHOLE')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: x_1(*)
         real(c_float), intent(in) :: y_1(*)
         integer(c_int32_t), intent(in) :: vertices_1
         real(c_float), intent(in) :: x_2(*)
         real(c_float), intent(in) :: y_2(*)
         integer(c_int32_t), intent(in) :: vertices_2
         real(c_float), intent(out) :: piece_x(25, 5)
         real(c_float), intent(out) :: piece_y(25, 5)
         integer(c_int32_t), intent(out) :: piece_vertices(5)
         real(c_float), intent(out) :: area
      end subroutine

      !> collinearity: Whether points in plan lie on one straight line.
      pure function IGELIN(x, y, points) bind(C, name='IGELIN')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: x(*)
         real(c_float), intent(in) :: y(*)
         integer(c_int32_t), intent(in) :: points
         integer(c_int32_t) :: IGELIN
      end function

      !> count_enclosed: How many points lie in a convex polygon with clockwise vertices or on its boundary, and which.
      pure subroutine GECLOS(x, y, vertices, point_x, point_y, points, enclosed, enclosed_points) bind(C, &
         name='GECLOS')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: x(*)
         real(c_float), intent(in) :: y(*)
         integer(c_int32_t), intent(in) :: vertices
         real(c_float), intent(in) :: point_x(*)
         real(c_float), intent(in) :: point_y(*)
         integer(c_int32_t), intent(in) :: points
         integer(c_int32_t), intent(inout) :: enclosed(*)
         integer(c_int32_t), intent(out) :: enclosed_points
      end subroutine

      !> boundary_crossing: Where a segment crosses the boundary of a polygon in plan.
      pure subroutine GESIDE(segment_start, segment_end, x, y, vertices, crossing_point, crossing_code) bind(C, &
         name='GESIDE')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: segment_start(2)
         real(c_float), intent(in) :: segment_end(2)
         real(c_float), intent(in) :: x(*)
         real(c_float), intent(in) :: y(*)
         integer(c_int32_t), intent(in) :: vertices
         real(c_float), intent(out) :: crossing_point(2)
         integer(c_int32_t), intent(out) :: crossing_code
      end subroutine

      !> inside: Whether a point in the plane of a polygon in space lies inside or on its boundary.
      pure subroutine GEINSI(point, polygon, vertices, inside) bind(C, name='GEINSI')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: point(3)
         real(c_float), intent(in) :: polygon(3, *)
         integer(c_int32_t), intent(in) :: vertices
         integer(c_int32_t), intent(out) :: inside
      end subroutine

      !> parallel_planes: Whether the planes of two triangles are parallel.
      pure function GEPLEL(triangle_1, triangle_2) bind(C, name='GEPLEL')
         import :: c_double, c_int32_t
         real(c_double), intent(in) :: triangle_1(3, 3)
         real(c_double), intent(in) :: triangle_2(3, 3)
         integer(c_int32_t) :: GEPLEL
      end function

      !> parallel_sides: Whether two triangles have parallel sides, and which.
      function GEPSID(triangle_1, triangle_2, side_1, side_2) bind(C, name='GEPSID')
         import :: c_double, c_int32_t
         real(c_double), intent(in) :: triangle_1(3, 3)
         real(c_double), intent(in) :: triangle_2(3, 3)
         integer(c_int32_t), intent(out) :: side_1
         integer(c_int32_t), intent(out) :: side_2
         integer(c_int32_t) :: GEPSID
      end function

      !> rectangular: Whether a quadrilateral is rectangular.
      pure function GERECT(quadrilateral) bind(C, name='GERECT')
         import :: c_double, c_int32_t
         real(c_double), intent(in) :: quadrilateral(3, 4)
         integer(c_int32_t) :: GERECT
      end function

      !> facing: Azimuth and tilt of the plane of a triangle.
      pure subroutine GETILT(triangle, azimuth, tilt) bind(C, name='GETILT')
         import :: c_double
         real(c_double), intent(in) :: triangle(3, 3)
         real(c_double), intent(inout) :: azimuth
         real(c_double), intent(out) :: tilt
      end subroutine

      !> local_coordinates: Two quadrilaterals in local coordinates of the first.
      pure subroutine GELCAL(quadrilateral_1, quadrilateral_2, local_1, local_2) bind(C, name='GELCAL')
         import :: c_double
         real(c_double), intent(in) :: quadrilateral_1(3, 4)
         real(c_double), intent(in) :: quadrilateral_2(3, 4)
         real(c_double), intent(out) :: local_1(3, 4)
         real(c_double), intent(out) :: local_2(3, 4)
      end subroutine

      !> to_local: Components of each of four points along three axes.
      pure subroutine GETRNS(corners, x_axis, y_axis, z_axis) bind(C, name='GETRNS')
         import :: c_double
         real(c_double), intent(inout) :: corners(3, 4)
         real(c_double), intent(in) :: x_axis(3)
         real(c_double), intent(in) :: y_axis(3)
         real(c_double), intent(in) :: z_axis(3)
      end subroutine

      !> meeting_point: Where two infinite lines in plan meet.
      pure subroutine GEMEET(line_1_start, line_1_end, line_2_start, line_2_end, meeting_point) bind(C, name='GEMEET')
         import :: c_float
         real(c_float), intent(in) :: line_1_start(2)
         real(c_float), intent(in) :: line_1_end(2)
         real(c_float), intent(in) :: line_2_start(2)
         real(c_float), intent(in) :: line_2_end(2)
         real(c_float), intent(out) :: meeting_point(2)
      end subroutine

      !> crossing_point: Where two segments in plan cross or touch.
      pure subroutine GECROS(segment_1_start, segment_1_end, segment_2_start, segment_2_end, crossing_point) bind(C, &
         name='GECROS')
         import :: c_float
         real(c_float), intent(in) :: segment_1_start(2)
         real(c_float), intent(in) :: segment_1_end(2)
         real(c_float), intent(in) :: segment_2_start(2)
         real(c_float), intent(in) :: segment_2_end(2)
         real(c_float), intent(out) :: crossing_point(2)
      end subroutine

      !> in_span: Whether a point of the line AB lies between A and B.
      pure function GEINLN(first_end, second_end, point) bind(C, name='GEINLN')
         import :: c_float
         real(c_float), intent(in) :: first_end(3)
         real(c_float), intent(in) :: second_end(3)
         real(c_float), intent(in) :: point(3)
         real(c_float) :: GEINLN
      end function

      !> ahead_and_nearer: Whether a point lies on B's side of A and nearer to A than B does.
      pure function GEINLN2(first_end, second_end, point) bind(C, name='GEINLN2')
         import :: c_float
         real(c_float), intent(in) :: first_end(3)
         real(c_float), intent(in) :: second_end(3)
         real(c_float), intent(in) :: point(3)
         real(c_float) :: GEINLN2
      end function

      !> coincide: Whether two points in plan coincide.
      pure function GECOIN(x_1, y_1, x_2, y_2) bind(C, name='GECOIN')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: x_1
         real(c_float), intent(in) :: y_1
         real(c_float), intent(in) :: x_2
         real(c_float), intent(in) :: y_2
         integer(c_int32_t) :: GECOIN
      end function

      !> side_of_line: Side of a directed line in plan on which a point lies.
      pure function IGEPNT(line_start, line_end, point) bind(C, name='IGEPNT')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: line_start(2)
         real(c_float), intent(in) :: line_end(2)
         real(c_float), intent(in) :: point(2)
         integer(c_int32_t) :: IGEPNT
      end function

      !> back_azimuth: Azimuth opposite to a direction that is given by its angle from east, anticlockwise; also the
      !> angle of an azimuth.
      pure function BORI(angle) bind(C, name='BORI')
         import :: c_float
         real(c_float), intent(in) :: angle
         real(c_float) :: BORI
      end function

      !> direction_to: Unit vector of a direction, such as that to the sun.
      pure subroutine GESUNV(solar_altitude, solar_azimuth, direction) bind(C, name='GESUNV')
         import :: c_float
         real(c_float), intent(in) :: solar_altitude
         real(c_float), intent(in) :: solar_azimuth
         real(c_float), intent(out) :: direction(3)
      end subroutine

      !> surface_axes: Rotation matrix of a surface, from local to global coordinates, and its inverse.
      pure subroutine GERSET(surface_azimuth, tilt, rotation_matrix, inverse_matrix) bind(C, name='GERSET')
         import :: c_float
         real(c_float), intent(in) :: surface_azimuth
         real(c_float), intent(in) :: tilt
         real(c_float), intent(out) :: rotation_matrix(3, 3)
         real(c_float), intent(out) :: inverse_matrix(3, 3)
      end subroutine

      !> local_to_global: Local to global coordinates: the rotation matrix times the vector.
      pure subroutine GERAXI(local_vector, rotation_matrix, global_vector) bind(C, name='GERAXI')
         import :: c_float
         real(c_float), intent(in) :: local_vector(3)
         real(c_float), intent(in) :: rotation_matrix(3, 3)
         real(c_float), intent(out) :: global_vector(3)
      end subroutine

      !> global_to_local: Global to local coordinates: the transpose of the rotation matrix times the vector.
      pure subroutine GERAX2(global_vector, rotation_matrix, local_vector) bind(C, name='GERAX2')
         import :: c_float
         real(c_float), intent(in) :: global_vector(3)
         real(c_float), intent(in) :: rotation_matrix(3, 3)
         real(c_float), intent(out) :: local_vector(3)
      end subroutine

      !> plan_area: Area of a polygon in plan.
      pure function GEAPOL(x, y, vertices) bind(C, name='GEAPOL')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: x(*)
         real(c_float), intent(in) :: y(*)
         integer(c_int32_t), intent(in) :: vertices
         real(c_float) :: GEAPOL
      end function

      !> signed_plan_area: Area of a polygon in plan, positive for clockwise vertices.
      pure function GEAPO2(x, y, vertices) bind(C, name='GEAPO2')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: x(*)
         real(c_float), intent(in) :: y(*)
         integer(c_int32_t), intent(in) :: vertices
         real(c_float) :: GEAPO2
      end function

      !> area_in_space: Area of a plane polygon in space.
      pure function GEAPO3(x, y, z, vertices) bind(C, name='GEAPO3')
         import :: c_float, c_int32_t
         real(c_float), intent(in) :: x(*)
         real(c_float), intent(in) :: y(*)
         real(c_float), intent(in) :: z(*)
         integer(c_int32_t), intent(in) :: vertices
         real(c_float) :: GEAPO3
      end function

      !> polygon_orientation: Area, tilt and orientation of a plane polygon in space.
      pure subroutine GEASO(vertices, polygon, area, tilt, back_azimuth) bind(C, name='GEASO')
         import :: c_int32_t, c_float
         integer(c_int32_t), intent(in) :: vertices
         real(c_float), intent(in) :: polygon(3, *)
         real(c_float), intent(out) :: area
         real(c_float), intent(inout) :: tilt
         real(c_float), intent(inout) :: back_azimuth
      end subroutine

      !> projection: Projection of a point along a direction, forwards or backwards, onto a plane.
      pure subroutine GEPROJ(plane_point, plane_normal, point, direction, projected_point) bind(C, name='GEPROJ')
         import :: c_float
         real(c_float), intent(in) :: plane_point(3)
         real(c_float), intent(in) :: plane_normal(3)
         real(c_float), intent(in) :: point(3)
         real(c_float), intent(in) :: direction(3)
         real(c_float), intent(out) :: projected_point(3)
      end subroutine

      !> forward_projection: Projection of a point along a direction, forwards only, onto a plane.
      pure subroutine GEPROJ2(plane_point, plane_normal, point, direction, projected_point) bind(C, name='GEPROJ2')
         import :: c_float
         real(c_float), intent(in) :: plane_point(3)
         real(c_float), intent(in) :: plane_normal(3)
         real(c_float), intent(in) :: point(3)
         real(c_float), intent(in) :: direction(3)
         real(c_float), intent(out) :: projected_point(3)
      end subroutine

      !> forward_projection_or_start: Projection of a point along a direction onto a plane, or the point itself where
      !> the plane does not lie ahead.
      pure subroutine GEPROJ3(plane_point, plane_normal, point, direction, projected_point) bind(C, name='GEPROJ3')
         import :: c_float
         real(c_float), intent(in) :: plane_point(3)
         real(c_float), intent(in) :: plane_normal(3)
         real(c_float), intent(in) :: point(3)
         real(c_float), intent(in) :: direction(3)
         real(c_float), intent(out) :: projected_point(3)
      end subroutine

      !> dot_product: Dot product of two vectors.
      pure function GEDOTP(vector_a, vector_b) bind(C, name='GEDOTP')
         import :: c_float
         real(c_float), intent(in) :: vector_a(3)
         real(c_float), intent(in) :: vector_b(3)
         real(c_float) :: GEDOTP
      end function

      !> dot_product_in_double: Dot product of two vectors in double precision.
      pure function GEDTDP(vector_a, vector_b) bind(C, name='GEDTDP')
         import :: c_double
         real(c_double), intent(in) :: vector_a(3)
         real(c_double), intent(in) :: vector_b(3)
         real(c_double) :: GEDTDP
      end function

      !> cross_product: Cross product of two vectors.
      pure subroutine GEXPRO(vector_a, vector_b, cross_product) bind(C, name='GEXPRO')
         import :: c_float
         real(c_float), intent(in) :: vector_a(3)
         real(c_float), intent(in) :: vector_b(3)
         real(c_float), intent(out) :: cross_product(3)
      end subroutine

      !> cross_product_in_double: Cross product of two vectors in double precision.
      pure subroutine GEXPDP(vector_a, vector_b, cross_product) bind(C, name='GEXPDP')
         import :: c_double
         real(c_double), intent(in) :: vector_a(3)
         real(c_double), intent(in) :: vector_b(3)
         real(c_double), intent(out) :: cross_product(3)
      end subroutine

      !> length: Length of a vector.
      pure function GEVMOD(vector) bind(C, name='GEVMOD')
         import :: c_float
         real(c_float), intent(in) :: vector(3)
         real(c_float) :: GEVMOD
      end function

      !> length_in_double: Length of a vector in double precision.
      pure function GEVMDP(vector) bind(C, name='GEVMDP')
         import :: c_double
         real(c_double), intent(in) :: vector(3)
         real(c_double) :: GEVMDP
      end function

      ! Functions of whole arrays, here of one element. What they return besides is the status, of which nothing
      ! can come; without it they are subroutines, as only these may be pure.
      !> Dry bulb of air with a vapour pressure and relative humidity.
      pure subroutine array_dry_bulb_from_vapour_pressure_and_relative_humidity(count, vapour_pressure, &
         vapour_pressure_stride, relative_humidity, relative_humidity_stride, result, result_stride) bind(C, &
         name='quorvel_dry_bulb_from_vapour_pressure_and_relative_humidity')
         import :: c_float, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: vapour_pressure_stride, relative_humidity_stride, result_stride
         real(c_float), intent(in) :: vapour_pressure
         real(c_float), intent(in) :: relative_humidity
         real(c_float), intent(inout) :: result
      end subroutine

      !> Dry bulb of air with a vapour pressure and percentage saturation.
      pure subroutine array_dry_bulb_from_vapour_pressure_and_percentage_saturation(count, vapour_pressure, &
         vapour_pressure_stride, percentage_saturation, percentage_saturation_stride, pressure, pressure_stride, &
         result, result_stride) bind(C, name='quorvel_dry_bulb_from_vapour_pressure_and_percentage_saturation')
         import :: c_float, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: vapour_pressure_stride, percentage_saturation_stride, &
            pressure_stride, result_stride
         real(c_float), intent(in) :: vapour_pressure
         real(c_float), intent(in) :: percentage_saturation
         real(c_float), intent(in) :: pressure
         real(c_float), intent(inout) :: result
      end subroutine

      !> Dry bulb of air with a moisture content and relative humidity.
      pure subroutine array_dry_bulb_from_moisture_content_and_relative_humidity(count, moisture_content, &
         moisture_content_stride, relative_humidity, relative_humidity_stride, pressure, pressure_stride, result, &
         result_stride) bind(C, name='quorvel_dry_bulb_from_moisture_content_and_relative_humidity')
         import :: c_float, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: moisture_content_stride, relative_humidity_stride, &
            pressure_stride, result_stride
         real(c_float), intent(in) :: moisture_content
         real(c_float), intent(in) :: relative_humidity
         real(c_float), intent(in) :: pressure
         real(c_float), intent(inout) :: result
      end subroutine

      !> Dry bulb of air with a moisture content and percentage saturation.
      pure subroutine array_dry_bulb_from_moisture_content_and_percentage_saturation(count, moisture_content, &
         moisture_content_stride, percentage_saturation, percentage_saturation_stride, pressure, pressure_stride, &
         result, result_stride) bind(C, name='quorvel_dry_bulb_from_moisture_content_and_percentage_saturation')
         import :: c_float, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: moisture_content_stride, percentage_saturation_stride, &
            pressure_stride, result_stride
         real(c_float), intent(in) :: moisture_content
         real(c_float), intent(in) :: percentage_saturation
         real(c_float), intent(in) :: pressure
         real(c_float), intent(inout) :: result
      end subroutine

      !> Dry bulb of air with a specific enthalpy and moisture content.
      pure subroutine array_dry_bulb_from_enthalpy_and_moisture_content(count, enthalpy, enthalpy_stride, &
         moisture_content, moisture_content_stride, result, result_stride) bind(C, &
         name='quorvel_dry_bulb_from_enthalpy_and_moisture_content')
         import :: c_float, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: enthalpy_stride, moisture_content_stride, result_stride
         real(c_float), intent(in) :: enthalpy
         real(c_float), intent(in) :: moisture_content
         real(c_float), intent(inout) :: result
      end subroutine

      !> Dry bulb of air with a specific enthalpy and vapour pressure.
      pure subroutine array_dry_bulb_from_enthalpy_and_vapour_pressure(count, enthalpy, enthalpy_stride, &
         vapour_pressure, vapour_pressure_stride, pressure, pressure_stride, result, result_stride) bind(C, &
         name='quorvel_dry_bulb_from_enthalpy_and_vapour_pressure')
         import :: c_float, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: enthalpy_stride, vapour_pressure_stride, pressure_stride, &
            result_stride
         real(c_float), intent(in) :: enthalpy
         real(c_float), intent(in) :: vapour_pressure
         real(c_float), intent(in) :: pressure
         real(c_float), intent(inout) :: result
      end subroutine

      !> Dry bulb of air with a specific enthalpy and relative humidity.
      pure subroutine array_dry_bulb_from_enthalpy_and_relative_humidity(count, enthalpy, enthalpy_stride, &
         relative_humidity, relative_humidity_stride, pressure, pressure_stride, result, result_stride) bind(C, &
         name='quorvel_dry_bulb_from_enthalpy_and_relative_humidity')
         import :: c_float, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: enthalpy_stride, relative_humidity_stride, pressure_stride, &
            result_stride
         real(c_float), intent(in) :: enthalpy
         real(c_float), intent(in) :: relative_humidity
         real(c_float), intent(in) :: pressure
         real(c_float), intent(inout) :: result
      end subroutine

      !> Dry bulb of air with a specific enthalpy and percentage saturation.
      pure subroutine array_dry_bulb_from_enthalpy_and_percentage_saturation(count, enthalpy, enthalpy_stride, &
         percentage_saturation, percentage_saturation_stride, pressure, pressure_stride, result, result_stride) &
         bind(C, name='quorvel_dry_bulb_from_enthalpy_and_percentage_saturation')
         import :: c_float, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: enthalpy_stride, percentage_saturation_stride, pressure_stride, &
            result_stride
         real(c_float), intent(in) :: enthalpy
         real(c_float), intent(in) :: percentage_saturation
         real(c_float), intent(in) :: pressure
         real(c_float), intent(inout) :: result
      end subroutine

      !> Dry bulb of air with a wet bulb and vapour pressure.
      pure subroutine array_dry_bulb_from_wet_bulb_and_vapour_pressure(count, wet_bulb, wet_bulb_stride, &
         vapour_pressure, vapour_pressure_stride, pressure, pressure_stride, psychrometer, psychrometer_stride, &
         result, result_stride) bind(C, name='quorvel_dry_bulb_from_wet_bulb_and_vapour_pressure')
         import :: c_float, c_int32_t, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: wet_bulb_stride, vapour_pressure_stride, pressure_stride, &
            psychrometer_stride, result_stride
         real(c_float), intent(in) :: wet_bulb
         real(c_float), intent(in) :: vapour_pressure
         real(c_float), intent(in) :: pressure
         integer(c_int32_t), intent(in) :: psychrometer
         real(c_float), intent(inout) :: result
      end subroutine

      !> Dry bulb of air with a wet bulb and moisture content.
      pure subroutine array_dry_bulb_from_wet_bulb_and_moisture_content(count, wet_bulb, wet_bulb_stride, &
         moisture_content, moisture_content_stride, pressure, pressure_stride, psychrometer, psychrometer_stride, &
         result, result_stride) bind(C, name='quorvel_dry_bulb_from_wet_bulb_and_moisture_content')
         import :: c_float, c_int32_t, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: wet_bulb_stride, moisture_content_stride, pressure_stride, &
            psychrometer_stride, result_stride
         real(c_float), intent(in) :: wet_bulb
         real(c_float), intent(in) :: moisture_content
         real(c_float), intent(in) :: pressure
         integer(c_int32_t), intent(in) :: psychrometer
         real(c_float), intent(inout) :: result
      end subroutine

      !> Dry bulb of air with a wet bulb and relative humidity.
      pure subroutine array_dry_bulb_from_wet_bulb_and_relative_humidity(count, wet_bulb, wet_bulb_stride, &
         relative_humidity, relative_humidity_stride, pressure, pressure_stride, psychrometer, psychrometer_stride, &
         result, result_stride) bind(C, name='quorvel_dry_bulb_from_wet_bulb_and_relative_humidity')
         import :: c_float, c_int32_t, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: wet_bulb_stride, relative_humidity_stride, pressure_stride, &
            psychrometer_stride, result_stride
         real(c_float), intent(in) :: wet_bulb
         real(c_float), intent(in) :: relative_humidity
         real(c_float), intent(in) :: pressure
         integer(c_int32_t), intent(in) :: psychrometer
         real(c_float), intent(inout) :: result
      end subroutine

      !> Dry bulb of air with a wet bulb and percentage saturation.
      pure subroutine array_dry_bulb_from_wet_bulb_and_percentage_saturation(count, wet_bulb, wet_bulb_stride, &
         percentage_saturation, percentage_saturation_stride, pressure, pressure_stride, psychrometer, &
         psychrometer_stride, result, result_stride) bind(C, &
         name='quorvel_dry_bulb_from_wet_bulb_and_percentage_saturation')
         import :: c_float, c_int32_t, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: wet_bulb_stride, percentage_saturation_stride, pressure_stride, &
            psychrometer_stride, result_stride
         real(c_float), intent(in) :: wet_bulb
         real(c_float), intent(in) :: percentage_saturation
         real(c_float), intent(in) :: pressure
         integer(c_int32_t), intent(in) :: psychrometer
         real(c_float), intent(inout) :: result
      end subroutine

      !> Dry bulb of air with a wet bulb and specific enthalpy.
      pure subroutine array_dry_bulb_from_wet_bulb_and_enthalpy(count, wet_bulb, wet_bulb_stride, enthalpy, &
         enthalpy_stride, pressure, pressure_stride, psychrometer, psychrometer_stride, result, result_stride) bind(C, &
         name='quorvel_dry_bulb_from_wet_bulb_and_enthalpy')
         import :: c_float, c_int32_t, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: wet_bulb_stride, enthalpy_stride, pressure_stride, &
            psychrometer_stride, result_stride
         real(c_float), intent(in) :: wet_bulb
         real(c_float), intent(in) :: enthalpy
         real(c_float), intent(in) :: pressure
         integer(c_int32_t), intent(in) :: psychrometer
         real(c_float), intent(inout) :: result
      end subroutine

      !> Two streams of moist air that become one, without heat from outside.
      pure subroutine array_adiabatic_mixing(count, first_air_flow, first_air_flow_stride, first_dry_bulb, &
         first_dry_bulb_stride, first_moisture_content, first_moisture_content_stride, second_air_flow, &
         second_air_flow_stride, second_dry_bulb, second_dry_bulb_stride, second_moisture_content, &
         second_moisture_content_stride, dry_bulb, dry_bulb_stride, moisture_content, moisture_content_stride, &
         enthalpy, enthalpy_stride) bind(C, name='quorvel_adiabatic_mixing')
         import :: c_float, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: first_air_flow_stride, first_dry_bulb_stride, &
            first_moisture_content_stride, second_air_flow_stride, second_dry_bulb_stride, &
            second_moisture_content_stride, dry_bulb_stride, moisture_content_stride, enthalpy_stride
         real(c_float), intent(in) :: first_air_flow
         real(c_float), intent(in) :: first_dry_bulb
         real(c_float), intent(in) :: first_moisture_content
         real(c_float), intent(in) :: second_air_flow
         real(c_float), intent(in) :: second_dry_bulb
         real(c_float), intent(in) :: second_moisture_content
         real(c_float), intent(inout) :: dry_bulb
         real(c_float), intent(inout) :: moisture_content
         real(c_float), intent(inout) :: enthalpy
      end subroutine

      !> Moisture content of air with a vapour pressure.
      pure subroutine array_moisture_content(count, dry_bulb, dry_bulb_stride, vapour_pressure, &
         vapour_pressure_stride, pressure, pressure_stride, result, result_stride) bind(C, &
         name='quorvel_moisture_content')
         import :: c_float, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: dry_bulb_stride, vapour_pressure_stride, pressure_stride, &
            result_stride
         real(c_float), intent(in) :: dry_bulb
         real(c_float), intent(in) :: vapour_pressure
         real(c_float), intent(in) :: pressure
         real(c_float), intent(inout) :: result
      end subroutine

      !> Vapour pressure of air with a moisture content, the inverse of moisture_content.
      pure subroutine array_vapour_pressure_from_moisture_content(count, dry_bulb, dry_bulb_stride, moisture_content, &
         moisture_content_stride, pressure, pressure_stride, result, result_stride) bind(C, &
         name='quorvel_vapour_pressure_from_moisture_content')
         import :: c_float, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: dry_bulb_stride, moisture_content_stride, pressure_stride, &
            result_stride
         real(c_float), intent(in) :: dry_bulb
         real(c_float), intent(in) :: moisture_content
         real(c_float), intent(in) :: pressure
         real(c_float), intent(inout) :: result
      end subroutine

      !> Moisture content of air with a percentage saturation, the inverse of percentage_saturation.
      pure subroutine array_moisture_content_from_percentage_saturation(count, dry_bulb, dry_bulb_stride, &
         percentage_saturation, percentage_saturation_stride, pressure, pressure_stride, result, result_stride) &
         bind(C, name='quorvel_moisture_content_from_percentage_saturation')
         import :: c_float, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: dry_bulb_stride, percentage_saturation_stride, pressure_stride, &
            result_stride
         real(c_float), intent(in) :: dry_bulb
         real(c_float), intent(in) :: percentage_saturation
         real(c_float), intent(in) :: pressure
         real(c_float), intent(inout) :: result
      end subroutine

      !> Moisture content of air with a specific enthalpy, the inverse of specific_enthalpy.
      pure subroutine array_moisture_content_from_enthalpy(count, dry_bulb, dry_bulb_stride, enthalpy, &
         enthalpy_stride, result, result_stride) bind(C, name='quorvel_moisture_content_from_enthalpy')
         import :: c_float, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: dry_bulb_stride, enthalpy_stride, result_stride
         real(c_float), intent(in) :: dry_bulb
         real(c_float), intent(in) :: enthalpy
         real(c_float), intent(inout) :: result
      end subroutine

      !> Density of moist air.
      pure subroutine array_moist_air_density(count, dry_bulb, dry_bulb_stride, moisture_content, &
         moisture_content_stride, pressure, pressure_stride, result, result_stride) bind(C, &
         name='quorvel_moist_air_density')
         import :: c_float, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: dry_bulb_stride, moisture_content_stride, pressure_stride, &
            result_stride
         real(c_float), intent(in) :: dry_bulb
         real(c_float), intent(in) :: moisture_content
         real(c_float), intent(in) :: pressure
         real(c_float), intent(inout) :: result
      end subroutine

      !> Specific enthalpy of moist air.
      pure subroutine array_specific_enthalpy(count, dry_bulb, dry_bulb_stride, moisture_content, &
         moisture_content_stride, result, result_stride) bind(C, name='quorvel_specific_enthalpy')
         import :: c_float, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: dry_bulb_stride, moisture_content_stride, result_stride
         real(c_float), intent(in) :: dry_bulb
         real(c_float), intent(in) :: moisture_content
         real(c_float), intent(inout) :: result
      end subroutine

      !> Dew point of air with a vapour pressure, the inverse of the saturation pressure; below 0 degC the frost point.
      pure subroutine array_dew_point(count, vapour_pressure, vapour_pressure_stride, result, result_stride) bind(C, &
         name='quorvel_dew_point')
         import :: c_float, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: vapour_pressure_stride, result_stride
         real(c_float), intent(in) :: vapour_pressure
         real(c_float), intent(inout) :: result
      end subroutine

      !> Relative humidity of air with a vapour pressure.
      pure subroutine array_relative_humidity(count, dry_bulb, dry_bulb_stride, vapour_pressure, &
         vapour_pressure_stride, result, result_stride) bind(C, name='quorvel_relative_humidity')
         import :: c_float, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: dry_bulb_stride, vapour_pressure_stride, result_stride
         real(c_float), intent(in) :: dry_bulb
         real(c_float), intent(in) :: vapour_pressure
         real(c_float), intent(inout) :: result
      end subroutine

      !> Wet-bulb temperature that a psychrometer reads in air with a vapour pressure.
      pure subroutine array_wet_bulb(count, dry_bulb, dry_bulb_stride, vapour_pressure, vapour_pressure_stride, &
         pressure, pressure_stride, psychrometer, psychrometer_stride, result, result_stride) bind(C, &
         name='quorvel_wet_bulb')
         import :: c_float, c_int32_t, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: dry_bulb_stride, vapour_pressure_stride, pressure_stride, &
            psychrometer_stride, result_stride
         real(c_float), intent(in) :: dry_bulb
         real(c_float), intent(in) :: vapour_pressure
         real(c_float), intent(in) :: pressure
         integer(c_int32_t), intent(in) :: psychrometer
         real(c_float), intent(inout) :: result
      end subroutine

      !> Whether two triangles have parallel sides, and which.
      pure subroutine array_parallel_sides(count, triangle_1, triangle_1_stride, triangle_2, triangle_2_stride, &
         result, result_stride, side_1, side_1_stride, side_2, side_2_stride) bind(C, name='quorvel_parallel_sides')
         import :: c_double, c_int32_t, c_size_t, c_ptrdiff_t
         integer(c_size_t), intent(in), value :: count
         integer(c_ptrdiff_t), intent(in), value :: triangle_1_stride, triangle_2_stride, result_stride, &
            side_1_stride, side_2_stride
         real(c_double), intent(in) :: triangle_1(3, 3)
         real(c_double), intent(in) :: triangle_2(3, 3)
         integer(c_int32_t), intent(inout) :: result
         integer(c_int32_t), intent(inout) :: side_1
         integer(c_int32_t), intent(inout) :: side_2
      end subroutine

   end interface
end module quorvel_by_reference
