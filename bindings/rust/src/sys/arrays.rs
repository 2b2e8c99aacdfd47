// Produced from the catalogue of routines (catalogue/); do not edit.

#[cfg_attr(feature = "static", link(name = "quorvel_arrays", kind = "static"))]
#[cfg_attr(not(feature = "static"), link(name = "quorvel_arrays"))]
extern "C" {
    /// [`crate::psychro::dry_air_enthalpy`]
    pub fn quorvel_dry_air_enthalpy(
        count: usize, temperature: *const f32, temperature_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::water_vapour_enthalpy`]
    pub fn quorvel_water_vapour_enthalpy(
        count: usize, temperature: *const f32, temperature_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::dry_air_specific_heat`]
    pub fn quorvel_dry_air_specific_heat(
        count: usize, temperature: *const f32, temperature_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::water_vapour_specific_heat`]
    pub fn quorvel_water_vapour_specific_heat(
        count: usize, temperature: *const f32, temperature_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::latent_heat`]
    pub fn quorvel_latent_heat(
        count: usize, temperature: *const f32, temperature_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::dry_bulb_from_vapour_pressure_and_relative_humidity`]
    pub fn quorvel_dry_bulb_from_vapour_pressure_and_relative_humidity(
        count: usize, vapour_pressure: *const f32, vapour_pressure_stride: isize, relative_humidity: *const f32,
        relative_humidity_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::dry_bulb_from_vapour_pressure_and_percentage_saturation`]
    pub fn quorvel_dry_bulb_from_vapour_pressure_and_percentage_saturation(
        count: usize, vapour_pressure: *const f32, vapour_pressure_stride: isize,
        percentage_saturation: *const f32, percentage_saturation_stride: isize, pressure: *const f32,
        pressure_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::dry_bulb_from_moisture_content_and_relative_humidity`]
    pub fn quorvel_dry_bulb_from_moisture_content_and_relative_humidity(
        count: usize, moisture_content: *const f32, moisture_content_stride: isize,
        relative_humidity: *const f32, relative_humidity_stride: isize, pressure: *const f32,
        pressure_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::dry_bulb_from_moisture_content_and_percentage_saturation`]
    pub fn quorvel_dry_bulb_from_moisture_content_and_percentage_saturation(
        count: usize, moisture_content: *const f32, moisture_content_stride: isize,
        percentage_saturation: *const f32, percentage_saturation_stride: isize, pressure: *const f32,
        pressure_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::dry_bulb_from_enthalpy_and_moisture_content`]
    pub fn quorvel_dry_bulb_from_enthalpy_and_moisture_content(
        count: usize, enthalpy: *const f32, enthalpy_stride: isize, moisture_content: *const f32,
        moisture_content_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::dry_bulb_from_enthalpy_and_vapour_pressure`]
    pub fn quorvel_dry_bulb_from_enthalpy_and_vapour_pressure(
        count: usize, enthalpy: *const f32, enthalpy_stride: isize, vapour_pressure: *const f32,
        vapour_pressure_stride: isize, pressure: *const f32, pressure_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::dry_bulb_from_enthalpy_and_relative_humidity`]
    pub fn quorvel_dry_bulb_from_enthalpy_and_relative_humidity(
        count: usize, enthalpy: *const f32, enthalpy_stride: isize, relative_humidity: *const f32,
        relative_humidity_stride: isize, pressure: *const f32, pressure_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::dry_bulb_from_enthalpy_and_percentage_saturation`]
    pub fn quorvel_dry_bulb_from_enthalpy_and_percentage_saturation(
        count: usize, enthalpy: *const f32, enthalpy_stride: isize, percentage_saturation: *const f32,
        percentage_saturation_stride: isize, pressure: *const f32, pressure_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::dry_bulb_from_wet_bulb_and_vapour_pressure`]
    pub fn quorvel_dry_bulb_from_wet_bulb_and_vapour_pressure(
        count: usize, wet_bulb: *const f32, wet_bulb_stride: isize, vapour_pressure: *const f32,
        vapour_pressure_stride: isize, pressure: *const f32, pressure_stride: isize, psychrometer: *const i32,
        psychrometer_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::dry_bulb_from_wet_bulb_and_moisture_content`]
    pub fn quorvel_dry_bulb_from_wet_bulb_and_moisture_content(
        count: usize, wet_bulb: *const f32, wet_bulb_stride: isize, moisture_content: *const f32,
        moisture_content_stride: isize, pressure: *const f32, pressure_stride: isize, psychrometer: *const i32,
        psychrometer_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::dry_bulb_from_wet_bulb_and_relative_humidity`]
    pub fn quorvel_dry_bulb_from_wet_bulb_and_relative_humidity(
        count: usize, wet_bulb: *const f32, wet_bulb_stride: isize, relative_humidity: *const f32,
        relative_humidity_stride: isize, pressure: *const f32, pressure_stride: isize, psychrometer: *const i32,
        psychrometer_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::dry_bulb_from_wet_bulb_and_percentage_saturation`]
    pub fn quorvel_dry_bulb_from_wet_bulb_and_percentage_saturation(
        count: usize, wet_bulb: *const f32, wet_bulb_stride: isize, percentage_saturation: *const f32,
        percentage_saturation_stride: isize, pressure: *const f32, pressure_stride: isize,
        psychrometer: *const i32, psychrometer_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::dry_bulb_from_wet_bulb_and_enthalpy`]
    pub fn quorvel_dry_bulb_from_wet_bulb_and_enthalpy(
        count: usize, wet_bulb: *const f32, wet_bulb_stride: isize, enthalpy: *const f32,
        enthalpy_stride: isize, pressure: *const f32, pressure_stride: isize, psychrometer: *const i32,
        psychrometer_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::adiabatic_mixing`]
    pub fn quorvel_adiabatic_mixing(
        count: usize, first_air_flow: *const f32, first_air_flow_stride: isize, first_dry_bulb: *const f32,
        first_dry_bulb_stride: isize, first_moisture_content: *const f32, first_moisture_content_stride: isize,
        second_air_flow: *const f32, second_air_flow_stride: isize, second_dry_bulb: *const f32,
        second_dry_bulb_stride: isize, second_moisture_content: *const f32,
        second_moisture_content_stride: isize, dry_bulb: *mut f32, dry_bulb_stride: isize,
        moisture_content: *mut f32, moisture_content_stride: isize, enthalpy: *mut f32, enthalpy_stride: isize,
    ) -> i32;

    /// [`crate::psychro::moisture_content_from_psychrometer`]
    pub fn quorvel_moisture_content_from_psychrometer(
        count: usize, dry_bulb: *const f32, dry_bulb_stride: isize, wet_bulb: *const f32,
        wet_bulb_stride: isize, pressure: *const f32, pressure_stride: isize, psychrometer: *const i32,
        psychrometer_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::moisture_content`]
    pub fn quorvel_moisture_content(
        count: usize, dry_bulb: *const f32, dry_bulb_stride: isize, vapour_pressure: *const f32,
        vapour_pressure_stride: isize, pressure: *const f32, pressure_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::vapour_pressure_from_moisture_content`]
    pub fn quorvel_vapour_pressure_from_moisture_content(
        count: usize, dry_bulb: *const f32, dry_bulb_stride: isize, moisture_content: *const f32,
        moisture_content_stride: isize, pressure: *const f32, pressure_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::moisture_content_from_percentage_saturation`]
    pub fn quorvel_moisture_content_from_percentage_saturation(
        count: usize, dry_bulb: *const f32, dry_bulb_stride: isize, percentage_saturation: *const f32,
        percentage_saturation_stride: isize, pressure: *const f32, pressure_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::moisture_content_from_enthalpy`]
    pub fn quorvel_moisture_content_from_enthalpy(
        count: usize, dry_bulb: *const f32, dry_bulb_stride: isize, enthalpy: *const f32,
        enthalpy_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::moist_air_density`]
    pub fn quorvel_moist_air_density(
        count: usize, dry_bulb: *const f32, dry_bulb_stride: isize, moisture_content: *const f32,
        moisture_content_stride: isize, pressure: *const f32, pressure_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::percentage_saturation`]
    pub fn quorvel_percentage_saturation(
        count: usize, dry_bulb: *const f32, dry_bulb_stride: isize, moisture_content: *const f32,
        moisture_content_stride: isize, pressure: *const f32, pressure_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::specific_enthalpy`]
    pub fn quorvel_specific_enthalpy(
        count: usize, dry_bulb: *const f32, dry_bulb_stride: isize, moisture_content: *const f32,
        moisture_content_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::specific_enthalpy_from_psychrometer`]
    pub fn quorvel_specific_enthalpy_from_psychrometer(
        count: usize, dry_bulb: *const f32, dry_bulb_stride: isize, wet_bulb: *const f32,
        wet_bulb_stride: isize, pressure: *const f32, pressure_stride: isize, psychrometer: *const i32,
        psychrometer_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::specific_volume`]
    pub fn quorvel_specific_volume(
        count: usize, dry_bulb: *const f32, dry_bulb_stride: isize, moisture_content: *const f32,
        moisture_content_stride: isize, pressure: *const f32, pressure_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::saturation_temperature_from_enthalpy`]
    pub fn quorvel_saturation_temperature_from_enthalpy(
        count: usize, enthalpy: *const f32, enthalpy_stride: isize, pressure: *const f32,
        pressure_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::pool_evaporation`]
    pub fn quorvel_pool_evaporation(
        count: usize, water_area: *const f32, water_area_stride: isize, wetted_area: *const f32,
        wetted_area_stride: isize, water_temperature: *const f32, water_temperature_stride: isize,
        dry_bulb: *const f32, dry_bulb_stride: isize, moisture_content: *const f32,
        moisture_content_stride: isize, reference_temperature: *const f32, reference_temperature_stride: isize,
        bathers: *const i32, bathers_stride: isize, reference_coefficient: *const f32,
        reference_coefficient_stride: isize, pressure: *const f32, pressure_stride: isize,
        evaporation_rate: *mut f32, evaporation_rate_stride: isize, latent_load: *mut f32,
        latent_load_stride: isize, convective_load: *mut f32, convective_load_stride: isize,
        reference_load: *mut f32, reference_load_stride: isize,
    ) -> i32;

    /// [`crate::psychro::pool_evaporation_from_wet_bulb`]
    pub fn quorvel_pool_evaporation_from_wet_bulb(
        count: usize, water_area: *const f32, water_area_stride: isize, wetted_area: *const f32,
        wetted_area_stride: isize, water_temperature: *const f32, water_temperature_stride: isize,
        dry_bulb: *const f32, dry_bulb_stride: isize, wet_bulb: *const f32, wet_bulb_stride: isize,
        reference_temperature: *const f32, reference_temperature_stride: isize, bathers: *const i32,
        bathers_stride: isize, reference_coefficient: *const f32, reference_coefficient_stride: isize,
        pressure: *const f32, pressure_stride: isize, evaporation_rate: *mut f32,
        evaporation_rate_stride: isize, latent_load: *mut f32, latent_load_stride: isize,
        convective_load: *mut f32, convective_load_stride: isize, reference_load: *mut f32,
        reference_load_stride: isize,
    ) -> i32;

    /// [`crate::psychro::saturation_pressure`]
    pub fn quorvel_saturation_pressure(
        count: usize, temperature: *const f32, temperature_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::dew_point`]
    pub fn quorvel_dew_point(
        count: usize, vapour_pressure: *const f32, vapour_pressure_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::vapour_pressure`]
    pub fn quorvel_vapour_pressure(
        count: usize, dry_bulb: *const f32, dry_bulb_stride: isize, relative_humidity: *const f32,
        relative_humidity_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::relative_humidity`]
    pub fn quorvel_relative_humidity(
        count: usize, dry_bulb: *const f32, dry_bulb_stride: isize, vapour_pressure: *const f32,
        vapour_pressure_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::vapour_pressure_from_psychrometer`]
    pub fn quorvel_vapour_pressure_from_psychrometer(
        count: usize, dry_bulb: *const f32, dry_bulb_stride: isize, wet_bulb: *const f32,
        wet_bulb_stride: isize, pressure: *const f32, pressure_stride: isize, psychrometer: *const i32,
        psychrometer_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::weighted_temperature`]
    pub fn quorvel_weighted_temperature(
        count: usize, first_temperature: *const f32, first_temperature_stride: isize,
        second_temperature: *const f32, second_temperature_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::psychrometer_wet_bulb`]
    pub fn quorvel_psychrometer_wet_bulb(
        count: usize, dry_bulb: *const f32, dry_bulb_stride: isize, relative_humidity: *const f32,
        relative_humidity_stride: isize, pressure: *const f32, pressure_stride: isize, psychrometer: *const i32,
        psychrometer_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::wet_bulb_from_percentage_saturation`]
    pub fn quorvel_wet_bulb_from_percentage_saturation(
        count: usize, dry_bulb: *const f32, dry_bulb_stride: isize, percentage_saturation: *const f32,
        percentage_saturation_stride: isize, pressure: *const f32, pressure_stride: isize,
        psychrometer: *const i32, psychrometer_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::wet_bulb_from_moisture_content`]
    pub fn quorvel_wet_bulb_from_moisture_content(
        count: usize, dry_bulb: *const f32, dry_bulb_stride: isize, moisture_content: *const f32,
        moisture_content_stride: isize, pressure: *const f32, pressure_stride: isize, psychrometer: *const i32,
        psychrometer_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::psychro::wet_bulb`]
    pub fn quorvel_wet_bulb(
        count: usize, dry_bulb: *const f32, dry_bulb_stride: isize, vapour_pressure: *const f32,
        vapour_pressure_stride: isize, pressure: *const f32, pressure_stride: isize, psychrometer: *const i32,
        psychrometer_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::fabric::cyclic_response`]
    pub fn quorvel_cyclic_response(
        count: usize, thickness: *const f32, thickness_stride: isize, conductivity: *const f32,
        conductivity_stride: isize, density: *const f32, density_stride: isize, specific_heat: *const f32,
        specific_heat_stride: isize, inside_resistance: *const f32, inside_resistance_stride: isize,
        outside_resistance: *const f32, outside_resistance_stride: isize, layers: *const i32,
        layers_stride: isize, harmonic: *const i32, harmonic_stride: isize, element_kind: *const i32,
        element_kind_stride: isize, admittance: *mut f32, admittance_stride: isize, admittance_lead: *mut f32,
        admittance_lead_stride: isize, decrement_factor: *mut f32, decrement_factor_stride: isize,
        decrement_lag: *mut f32, decrement_lag_stride: isize, surface_factor: *mut f32,
        surface_factor_stride: isize, surface_factor_lag: *mut f32, surface_factor_lag_stride: isize,
        u_value: *mut f32, u_value_stride: isize,
    ) -> i32;

    /// [`crate::fabric::vertical_cavity_resistance`]
    pub fn quorvel_vertical_cavity_resistance(
        count: usize, cavity_width: *const f32, cavity_width_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::fabric::air_cavity_resistance`]
    pub fn quorvel_air_cavity_resistance(
        count: usize, tilt: *const f32, tilt_stride: isize, cavity_width: *const f32,
        cavity_width_stride: isize, emissivity_1: *const f32, emissivity_1_stride: isize,
        emissivity_2: *const f32, emissivity_2_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::fabric::gas_cavity_resistance`]
    pub fn quorvel_gas_cavity_resistance(
        count: usize, tilt: *const f32, tilt_stride: isize, cavity_width: *const f32,
        cavity_width_stride: isize, emissivity_1: *const f32, emissivity_1_stride: isize,
        emissivity_2: *const f32, emissivity_2_stride: isize, density: *const f32, density_stride: isize,
        conductivity: *const f32, conductivity_stride: isize, specific_heat: *const f32,
        specific_heat_stride: isize, viscosity: *const f32, viscosity_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::fabric::total_vapour_resistance`]
    pub fn quorvel_total_vapour_resistance(
        count: usize, thickness: *const f32, thickness_stride: isize, vapour_resistivity: *const f32,
        vapour_resistivity_stride: isize, layers: *const i32, layers_stride: isize, vapour_resistance: *mut f32,
        vapour_resistance_stride: isize,
    ) -> i32;

    /// [`crate::fabric::condensation_profile`]
    pub fn quorvel_condensation_profile(
        count: usize, thickness: *const f32, thickness_stride: isize, conductivity: *const f32,
        conductivity_stride: isize, vapour_resistivity: *const f32, vapour_resistivity_stride: isize,
        inside_resistance: *const f32, inside_resistance_stride: isize, outside_resistance: *const f32,
        outside_resistance_stride: isize, layers: *const i32, layers_stride: isize,
        inside_temperature: *const f32, inside_temperature_stride: isize, outside_temperature: *const f32,
        outside_temperature_stride: isize, inside_humidity: *const f32, inside_humidity_stride: isize,
        outside_humidity: *const f32, outside_humidity_stride: isize, interface_temperature: *mut f32,
        interface_temperature_stride: isize, interface_vapour_pressure: *mut f32,
        interface_vapour_pressure_stride: isize, interface_saturation_pressure: *mut f32,
        interface_saturation_pressure_stride: isize,
    ) -> i32;

    /// [`crate::fabric::condenses_within_layer`]
    pub fn quorvel_condenses_within_layer(
        count: usize, warm_temperature: *const f32, warm_temperature_stride: isize,
        cold_temperature: *const f32, cold_temperature_stride: isize, warm_vapour_pressure: *const f32,
        warm_vapour_pressure_stride: isize, cold_vapour_pressure: *const f32,
        cold_vapour_pressure_stride: isize, result: *mut i32, result_stride: isize,
    ) -> i32;

    /// [`crate::fabric::element_property`]
    pub fn quorvel_element_property(
        count: usize, element_records: *const f32, element_records_stride: isize, record_count: *const i32,
        record_count_stride: isize, record_number: *const i32, record_number_stride: isize, item: *const i32,
        item_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::fabric::natural_convection_coefficient`]
    pub fn quorvel_natural_convection_coefficient(
        count: usize, temperature_difference: *const f32, temperature_difference_stride: isize,
        characteristic_length: *const f32, characteristic_length_stride: isize, heat_flow_direction: *const i32,
        heat_flow_direction_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::fabric::pack_two_fractions`]
    pub fn quorvel_pack_two_fractions(
        count: usize, packing: *const i32, packing_stride: isize, packed_number: *const f32,
        packed_number_stride: isize, fraction_1: *const f32, fraction_1_stride: isize, fraction_2: *const f32,
        fraction_2_stride: isize, new_packed_number: *mut f32, new_packed_number_stride: isize,
        new_fraction_1: *mut f32, new_fraction_1_stride: isize, new_fraction_2: *mut f32,
        new_fraction_2_stride: isize,
    ) -> i32;

    /// [`crate::fabric::pack_three_fractions`]
    pub fn quorvel_pack_three_fractions(
        count: usize, packing: *const i32, packing_stride: isize, packed_number: *const f32,
        packed_number_stride: isize, fraction_1: *const f32, fraction_1_stride: isize, fraction_2: *const f32,
        fraction_2_stride: isize, fraction_3: *const f32, fraction_3_stride: isize, new_packed_number: *mut f32,
        new_packed_number_stride: isize, new_fraction_1: *mut f32, new_fraction_1_stride: isize,
        new_fraction_2: *mut f32, new_fraction_2_stride: isize, new_fraction_3: *mut f32,
        new_fraction_3_stride: isize,
    ) -> i32;

    /// [`crate::fabric::pack_three_fractions_third_first`]
    pub fn quorvel_pack_three_fractions_third_first(
        count: usize, packing: *const i32, packing_stride: isize, packed_number: *const f32,
        packed_number_stride: isize, fraction_3: *const f32, fraction_3_stride: isize, fraction_1: *const f32,
        fraction_1_stride: isize, fraction_2: *const f32, fraction_2_stride: isize, new_packed_number: *mut f32,
        new_packed_number_stride: isize, new_fraction_3: *mut f32, new_fraction_3_stride: isize,
        new_fraction_1: *mut f32, new_fraction_1_stride: isize, new_fraction_2: *mut f32,
        new_fraction_2_stride: isize,
    ) -> i32;

    /// [`crate::fabric::pack_pane`]
    pub fn quorvel_pack_pane(
        count: usize, packing: *const i32, packing_stride: isize, packed_number: *const f32,
        packed_number_stride: isize, absorptance: *const f32, absorptance_stride: isize,
        reflectance_1: *const f32, reflectance_1_stride: isize, reflectance_2: *const f32,
        reflectance_2_stride: isize, new_packed_number: *mut f32, new_packed_number_stride: isize,
        new_absorptance: *mut f32, new_absorptance_stride: isize, new_reflectance_1: *mut f32,
        new_reflectance_1_stride: isize, new_reflectance_2: *mut f32, new_reflectance_2_stride: isize,
    ) -> i32;

    /// [`crate::fabric::surface_resistance`]
    pub fn quorvel_surface_resistance(
        count: usize, surface: *const i32, surface_stride: isize, tilt: *const f32, tilt_stride: isize,
        exposure: *const i32, exposure_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::fabric::surface_resistance_at_emissivity`]
    pub fn quorvel_surface_resistance_at_emissivity(
        count: usize, surface: *const i32, surface_stride: isize, tilt: *const f32, tilt_stride: isize,
        exposure: *const i32, exposure_stride: isize, emissivity: *const f32, emissivity_stride: isize,
        result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::fabric::u_value`]
    pub fn quorvel_u_value(
        count: usize, thickness: *const f32, thickness_stride: isize, conductivity: *const f32,
        conductivity_stride: isize, surface_resistance_1: *const f32, surface_resistance_1_stride: isize,
        surface_resistance_2: *const f32, surface_resistance_2_stride: isize, layers: *const i32,
        layers_stride: isize, u_value: *mut f32, u_value_stride: isize,
    ) -> i32;

    /// [`crate::fabric::u_value_at_tilt_and_exposure`]
    pub fn quorvel_u_value_at_tilt_and_exposure(
        count: usize, u_value: *const f32, u_value_stride: isize, tilt: *const f32, tilt_stride: isize,
        exposure: *const i32, exposure_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::fabric::window_parameters`]
    pub fn quorvel_window_parameters(
        count: usize, panes: *const i32, panes_stride: isize, pane_kind_1: *const i32,
        pane_kind_1_stride: isize, emissivity_1: *const f32, emissivity_1_stride: isize,
        pane_kind_2: *const i32, pane_kind_2_stride: isize, emissivity_2: *const f32,
        emissivity_2_stride: isize, pane_kind_3: *const i32, pane_kind_3_stride: isize,
        emissivity_3: *const f32, emissivity_3_stride: isize, cavity_width_1: *const f32,
        cavity_width_1_stride: isize, cavity_width_2: *const f32, cavity_width_2_stride: isize,
        outer_surface: *const i32, outer_surface_stride: isize, exposure: *const i32, exposure_stride: isize,
        tilt: *const f32, tilt_stride: isize, admittance: *mut f32, admittance_stride: isize,
        admittance_lead: *mut f32, admittance_lead_stride: isize, decrement_factor: *mut f32,
        decrement_factor_stride: isize, decrement_lag: *mut f32, decrement_lag_stride: isize,
        surface_factor: *mut f32, surface_factor_stride: isize, surface_factor_lag: *mut f32,
        surface_factor_lag_stride: isize, u_value: *mut f32, u_value_stride: isize,
    ) -> i32;

    /// [`crate::glazing::glass_direct`]
    pub fn quorvel_glass_direct(
        count: usize, normal_transmittance: *const f32, normal_transmittance_stride: isize,
        normal_reflectance: *const f32, normal_reflectance_stride: isize, incidence: *const f32,
        incidence_stride: isize, parallel_transmittance: *mut f32, parallel_transmittance_stride: isize,
        parallel_absorptance: *mut f32, parallel_absorptance_stride: isize, parallel_reflectance: *mut f32,
        parallel_reflectance_stride: isize, perpendicular_transmittance: *mut f32,
        perpendicular_transmittance_stride: isize, perpendicular_absorptance: *mut f32,
        perpendicular_absorptance_stride: isize, perpendicular_reflectance: *mut f32,
        perpendicular_reflectance_stride: isize,
    ) -> i32;

    /// [`crate::glazing::glass_diffuse`]
    pub fn quorvel_glass_diffuse(
        count: usize, normal_transmittance: *const f32, normal_transmittance_stride: isize,
        normal_reflectance: *const f32, normal_reflectance_stride: isize, transmittance: *mut f32,
        transmittance_stride: isize, absorptance: *mut f32, absorptance_stride: isize,
    ) -> i32;

    /// [`crate::glazing::stacked_layers`]
    pub fn quorvel_stacked_layers(
        count: usize, layers: *const i32, layers_stride: isize, layer_transmittances: *const f32,
        layer_transmittances_stride: isize, layer_reflectances: *const f32, layer_reflectances_stride: isize,
        transmittance: *mut f32, transmittance_stride: isize, absorptance: *mut f32, absorptance_stride: isize,
        reflectance: *mut f32, reflectance_stride: isize,
    ) -> i32;

    /// [`crate::glazing::traced_layers`]
    pub fn quorvel_traced_layers(
        count: usize, layers: *const i32, layers_stride: isize, layer_transmittances: *const f32,
        layer_transmittances_stride: isize, layer_absorptances: *const f32, layer_absorptances_stride: isize,
        layer_reflectances: *const f32, layer_reflectances_stride: isize, transmittance: *mut f32,
        transmittance_stride: isize, absorptance: *mut f32, absorptance_stride: isize, reflectance: *mut f32,
        reflectance_stride: isize,
    ) -> i32;

    /// [`crate::glazing::roller_blind`]
    pub fn quorvel_roller_blind(
        count: usize, blind_transmittance: *const f32, blind_transmittance_stride: isize,
        blind_reflectance: *const f32, blind_reflectance_stride: isize, transmittance: *mut f32,
        transmittance_stride: isize, absorptance: *mut f32, absorptance_stride: isize, reflectance: *mut f32,
        reflectance_stride: isize,
    ) -> i32;

    /// [`crate::glazing::diffuse_roller_blind`]
    pub fn quorvel_diffuse_roller_blind(
        count: usize, blind_transmittance: *const f32, blind_transmittance_stride: isize,
        blind_reflectance: *const f32, blind_reflectance_stride: isize, transmittance: *mut f32,
        transmittance_stride: isize, absorptance: *mut f32, absorptance_stride: isize, reflectance: *mut f32,
        reflectance_stride: isize,
    ) -> i32;

    /// [`crate::glazing::refraction_angle`]
    pub fn quorvel_refraction_angle(
        count: usize, incidence: *const f32, incidence_stride: isize, refractive_index: *const f32,
        refractive_index_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::glazing::surface_reflectance`]
    pub fn quorvel_surface_reflectance(
        count: usize, incidence: *const f32, incidence_stride: isize, refraction_angle: *const f32,
        refraction_angle_stride: isize, refractive_index: *const f32, refractive_index_stride: isize,
        parallel_reflectance: *mut f32, parallel_reflectance_stride: isize, perpendicular_reflectance: *mut f32,
        perpendicular_reflectance_stride: isize,
    ) -> i32;

    /// [`crate::glazing::single_pass_absorption`]
    pub fn quorvel_single_pass_absorption(
        count: usize, refraction_angle: *const f32, refraction_angle_stride: isize,
        absorption_product: *const f32, absorption_product_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::glazing::slab_optics`]
    pub fn quorvel_slab_optics(
        count: usize, single_pass_absorptance: *const f32, single_pass_absorptance_stride: isize,
        face_reflectance: *const f32, face_reflectance_stride: isize, transmittance: *mut f32,
        transmittance_stride: isize, absorptance: *mut f32, absorptance_stride: isize, reflectance: *mut f32,
        reflectance_stride: isize,
    ) -> i32;

    /// [`crate::glazing::absorption_product`]
    pub fn quorvel_absorption_product(
        count: usize, normal_transmittance: *const f32, normal_transmittance_stride: isize,
        refractive_index: *const f32, refractive_index_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::glazing::normal_transmittance`]
    pub fn quorvel_normal_transmittance(
        count: usize, absorption_product: *const f32, absorption_product_stride: isize,
        normal_reflectance: *const f32, normal_reflectance_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::glazing::pane_temperatures`]
    pub fn quorvel_pane_temperatures(
        count: usize, inside_temperature: *const f32, inside_temperature_stride: isize,
        outside_temperature: *const f32, outside_temperature_stride: isize, panes: *const i32,
        panes_stride: isize, absorbed_1: *const f32, absorbed_1_stride: isize, absorbed_2: *const f32,
        absorbed_2_stride: isize, absorbed_3: *const f32, absorbed_3_stride: isize, absorbed_4: *const f32,
        absorbed_4_stride: isize, absorbed_5: *const f32, absorbed_5_stride: isize,
        pane_temperature_1: *mut f32, pane_temperature_1_stride: isize, pane_temperature_2: *mut f32,
        pane_temperature_2_stride: isize, pane_temperature_3: *mut f32, pane_temperature_3_stride: isize,
        pane_temperature_4: *mut f32, pane_temperature_4_stride: isize, pane_temperature_5: *mut f32,
        pane_temperature_5_stride: isize,
    ) -> i32;

    /// [`crate::glazing::unit_direct`]
    pub fn quorvel_unit_direct(
        count: usize, shortwave_shading_coefficient: *const f32, shortwave_shading_coefficient_stride: isize,
        longwave_shading_coefficient: *const f32, longwave_shading_coefficient_stride: isize,
        incidence: *const f32, incidence_stride: isize, transmittance: *mut f32, transmittance_stride: isize,
        absorptance: *mut f32, absorptance_stride: isize, reflectance: *mut f32, reflectance_stride: isize,
    ) -> i32;

    /// [`crate::glazing::unit_diffuse`]
    pub fn quorvel_unit_diffuse(
        count: usize, shortwave_shading_coefficient: *const f32, shortwave_shading_coefficient_stride: isize,
        longwave_shading_coefficient: *const f32, longwave_shading_coefficient_stride: isize,
        transmittance: *mut f32, transmittance_stride: isize, absorptance: *mut f32, absorptance_stride: isize,
        reflectance: *mut f32, reflectance_stride: isize,
    ) -> i32;

    /// [`crate::glazing::unit_direct_shares`]
    pub fn quorvel_unit_direct_shares(
        count: usize, shortwave_shading_coefficient: *const f32, shortwave_shading_coefficient_stride: isize,
        longwave_shading_coefficient: *const f32, longwave_shading_coefficient_stride: isize,
        incidence: *const f32, incidence_stride: isize, panes: *const i32, panes_stride: isize,
        transmittance: *mut f32, transmittance_stride: isize, pane_shares: *mut f32, pane_shares_stride: isize,
        absorptance: *mut f32, absorptance_stride: isize,
    ) -> i32;

    /// [`crate::glazing::unit_diffuse_shares`]
    pub fn quorvel_unit_diffuse_shares(
        count: usize, shortwave_shading_coefficient: *const f32, shortwave_shading_coefficient_stride: isize,
        longwave_shading_coefficient: *const f32, longwave_shading_coefficient_stride: isize, panes: *const i32,
        panes_stride: isize, transmittance: *mut f32, transmittance_stride: isize, pane_shares: *mut f32,
        pane_shares_stride: isize, absorptance: *mut f32, absorptance_stride: isize,
    ) -> i32;

    /// [`crate::glazing::unit_shares`]
    pub fn quorvel_unit_shares(
        count: usize, radiation: *const i32, radiation_stride: isize, shortwave_shading_coefficient: *const f32,
        shortwave_shading_coefficient_stride: isize, longwave_shading_coefficient: *const f32,
        longwave_shading_coefficient_stride: isize, incidence: *const f32, incidence_stride: isize,
        panes: *const i32, panes_stride: isize, transmittance: *mut f32, transmittance_stride: isize,
        pane_shares: *mut f32, pane_shares_stride: isize, absorptance: *mut f32, absorptance_stride: isize,
    ) -> i32;

    /// [`crate::glazing::slat_direct`]
    pub fn quorvel_slat_direct(
        count: usize, slat_spacing: *const f32, slat_spacing_stride: isize, slat_width: *const f32,
        slat_width_stride: isize, slat_angle: *const f32, slat_angle_stride: isize, profile_angle: *const f32,
        profile_angle_stride: isize, slat_absorptance: *const f32, slat_absorptance_stride: isize,
        transmittance: *mut f32, transmittance_stride: isize, absorptance: *mut f32, absorptance_stride: isize,
        reflectance: *mut f32, reflectance_stride: isize,
    ) -> i32;

    /// [`crate::glazing::two_faced_slat_direct`]
    pub fn quorvel_two_faced_slat_direct(
        count: usize, slat_spacing: *const f32, slat_spacing_stride: isize, slat_width: *const f32,
        slat_width_stride: isize, slat_angle: *const f32, slat_angle_stride: isize, profile_angle: *const f32,
        profile_angle_stride: isize, struck_absorptance: *const f32, struck_absorptance_stride: isize,
        opposite_absorptance: *const f32, opposite_absorptance_stride: isize, transmittance: *mut f32,
        transmittance_stride: isize, absorptance: *mut f32, absorptance_stride: isize, reflectance: *mut f32,
        reflectance_stride: isize,
    ) -> i32;

    /// [`crate::glazing::open_slat_direct`]
    pub fn quorvel_open_slat_direct(
        count: usize, slat_spacing: *const f32, slat_spacing_stride: isize, slat_width: *const f32,
        slat_width_stride: isize, slat_angle: *const f32, slat_angle_stride: isize, profile_angle: *const f32,
        profile_angle_stride: isize, open_share: *const f32, open_share_stride: isize,
        struck_absorptance: *const f32, struck_absorptance_stride: isize, opposite_absorptance: *const f32,
        opposite_absorptance_stride: isize, transmittance: *mut f32, transmittance_stride: isize,
        absorptance: *mut f32, absorptance_stride: isize, reflectance: *mut f32, reflectance_stride: isize,
    ) -> i32;

    /// [`crate::glazing::slat_diffuse`]
    pub fn quorvel_slat_diffuse(
        count: usize, slat_spacing: *const f32, slat_spacing_stride: isize, slat_width: *const f32,
        slat_width_stride: isize, slat_angle: *const f32, slat_angle_stride: isize,
        slat_absorptance: *const f32, slat_absorptance_stride: isize, sky_transmittance: *mut f32,
        sky_transmittance_stride: isize, ground_transmittance: *mut f32, ground_transmittance_stride: isize,
        sky_absorptance: *mut f32, sky_absorptance_stride: isize, ground_absorptance: *mut f32,
        ground_absorptance_stride: isize,
    ) -> i32;

    /// [`crate::glazing::two_faced_slat_diffuse`]
    pub fn quorvel_two_faced_slat_diffuse(
        count: usize, slat_spacing: *const f32, slat_spacing_stride: isize, slat_width: *const f32,
        slat_width_stride: isize, slat_angle: *const f32, slat_angle_stride: isize,
        struck_absorptance: *const f32, struck_absorptance_stride: isize, opposite_absorptance: *const f32,
        opposite_absorptance_stride: isize, sky_transmittance: *mut f32, sky_transmittance_stride: isize,
        ground_transmittance: *mut f32, ground_transmittance_stride: isize, sky_absorptance: *mut f32,
        sky_absorptance_stride: isize, ground_absorptance: *mut f32, ground_absorptance_stride: isize,
    ) -> i32;

    /// [`crate::glazing::open_slat_diffuse`]
    pub fn quorvel_open_slat_diffuse(
        count: usize, slat_spacing: *const f32, slat_spacing_stride: isize, slat_width: *const f32,
        slat_width_stride: isize, slat_angle: *const f32, slat_angle_stride: isize, open_share: *const f32,
        open_share_stride: isize, struck_absorptance: *const f32, struck_absorptance_stride: isize,
        opposite_absorptance: *const f32, opposite_absorptance_stride: isize, sky_transmittance: *mut f32,
        sky_transmittance_stride: isize, ground_transmittance: *mut f32, ground_transmittance_stride: isize,
        sky_absorptance: *mut f32, sky_absorptance_stride: isize, ground_absorptance: *mut f32,
        ground_absorptance_stride: isize,
    ) -> i32;

    /// [`crate::climate::locate_band`]
    pub fn quorvel_locate_band(
        count: usize, fraction: *const f32, fraction_stride: isize, month: *const i32, month_stride: isize,
        frequencies: *const f32, frequencies_stride: isize, lower_band: *mut i32, lower_band_stride: isize,
        upper_band: *mut i32, upper_band_stride: isize, band_weight: *mut f32, band_weight_stride: isize,
    ) -> i32;

    /// [`crate::climate::band_climate`]
    pub fn quorvel_band_climate(
        count: usize, band: *const i32, band_stride: isize, month: *const i32, month_stride: isize,
        band_set: *const i32, band_set_stride: isize, percentage: *const f32, percentage_stride: isize,
        new_percentage: *mut f32, new_percentage_stride: isize, q1: *mut f32, q1_stride: isize, q2: *mut f32,
        q2_stride: isize, q3: *mut f32, q3_stride: isize, q4: *mut f32, q4_stride: isize, q5: *mut f32,
        q5_stride: isize, q6: *mut f32, q6_stride: isize, time_a: *mut f32, time_a_stride: isize,
        time_b: *mut f32, time_b_stride: isize, q7: *mut f32, q7_stride: isize, q8: *mut f32, q8_stride: isize,
    ) -> i32;

    /// [`crate::climate::interpolate_band_rows`]
    pub fn quorvel_interpolate_band_rows(
        count: usize, base_row: *const i32, base_row_stride: isize, lower_band: *const i32,
        lower_band_stride: isize, upper_band: *const i32, upper_band_stride: isize, month: *const i32,
        month_stride: isize, band_weight: *const f32, band_weight_stride: isize, value: *mut f32,
        value_stride: isize,
    ) -> i32;

    /// [`crate::climate::band_row`]
    pub fn quorvel_band_row(
        count: usize, row: *const i32, row_stride: isize, values: *mut f32, values_stride: isize,
    ) -> i32;

    /// [`crate::climate::store_design_day`]
    pub fn quorvel_store_design_day(
        count: usize, month: *const i32, month_stride: isize, day: *mut i32, day_stride: isize,
    ) -> i32;

    /// [`crate::climate::store_design_day_by_option`]
    pub fn quorvel_store_design_day_by_option(
        count: usize, month: *const i32, month_stride: isize, day_kind: *const i32, day_kind_stride: isize,
        day: *mut i32, day_stride: isize,
    ) -> i32;

    /// [`crate::climate::design_day`]
    pub fn quorvel_design_day(
        count: usize, month: *const i32, month_stride: isize, result: *mut i32, result_stride: isize,
    ) -> i32;

    /// [`crate::climate::design_day_by_option`]
    pub fn quorvel_design_day_by_option(
        count: usize, month: *const i32, month_stride: isize, day_kind: *const i32, day_kind_stride: isize,
        result: *mut i32, result_stride: isize,
    ) -> i32;

    /// [`crate::climate::second_design_day`]
    pub fn quorvel_second_design_day(
        count: usize, month: *const i32, month_stride: isize, result: *mut i32, result_stride: isize,
    ) -> i32;

    /// [`crate::climate::second_design_day_by_option`]
    pub fn quorvel_second_design_day_by_option(
        count: usize, month: *const i32, month_stride: isize, day_kind: *const i32, day_kind_stride: isize,
        result: *mut i32, result_stride: isize,
    ) -> i32;

    /// [`crate::climate::daily_temperature`]
    pub fn quorvel_daily_temperature(
        count: usize, hour: *const f32, hour_stride: isize, highest_temperature: *const f32,
        highest_temperature_stride: isize, lowest_temperature: *const f32, lowest_temperature_stride: isize,
        hour_of_highest: *const f32, hour_of_highest_stride: isize, hour_of_lowest: *const f32,
        hour_of_lowest_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::climate::daily_value`]
    pub fn quorvel_daily_value(
        count: usize, hour: *const f32, hour_stride: isize, mean: *const f32, mean_stride: isize,
        amplitude: *const f32, amplitude_stride: isize, first_hour: *const f32, first_hour_stride: isize,
        second_hour: *const f32, second_hour_stride: isize, amplitude_factor: *const f32,
        amplitude_factor_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::climate::design_irradiance`]
    pub fn quorvel_design_irradiance(
        count: usize, solar_altitude: *const f32, solar_altitude_stride: isize, site_height: *const f32,
        site_height_stride: isize, sky_kind: *const i32, sky_kind_stride: isize, direct_normal: *mut f32,
        direct_normal_stride: isize, diffuse_horizontal: *mut f32, diffuse_horizontal_stride: isize,
    ) -> i32;

    /// [`crate::climate::height_factor`]
    pub fn quorvel_height_factor(
        count: usize, site_height: *const f32, site_height_stride: isize, solar_altitude: *const f32,
        solar_altitude_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::climate::eccentricity_factor`]
    pub fn quorvel_eccentricity_factor(
        count: usize, day: *const i32, day_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::climate::clearness_index`]
    pub fn quorvel_clearness_index(
        count: usize, day: *const i32, day_stride: isize, solar_altitude: *const f32,
        solar_altitude_stride: isize, global_horizontal: *const f32, global_horizontal_stride: isize,
        result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::climate::muneer_slope`]
    pub fn quorvel_muneer_slope(
        count: usize, solar_altitude: *const f32, solar_altitude_stride: isize, solar_azimuth: *const f32,
        solar_azimuth_stride: isize, surface_azimuth: *const f32, surface_azimuth_stride: isize,
        tilt: *const f32, tilt_stride: isize, beam_horizontal: *const f32, beam_horizontal_stride: isize,
        diffuse_horizontal: *const f32, diffuse_horizontal_stride: isize,
        extraterrestrial_horizontal: *const f32, extraterrestrial_horizontal_stride: isize,
        ground_reflectance: *const f32, ground_reflectance_stride: isize, surface_beam: *mut f32,
        surface_beam_stride: isize, surface_diffuse: *mut f32, surface_diffuse_stride: isize,
        ground_reflected: *mut f32, ground_reflected_stride: isize, incidence: *mut f32,
        incidence_stride: isize,
    ) -> i32;

    /// [`crate::climate::perez_diffuse`]
    pub fn quorvel_perez_diffuse(
        count: usize, solar_altitude: *const f32, solar_altitude_stride: isize, tilt: *const f32,
        tilt_stride: isize, beam_horizontal: *const f32, beam_horizontal_stride: isize,
        diffuse_horizontal: *const f32, diffuse_horizontal_stride: isize, incidence: *const f32,
        incidence_stride: isize, extraterrestrial_normal: *const f32, extraterrestrial_normal_stride: isize,
        surface_diffuse: *mut f32, surface_diffuse_stride: isize,
    ) -> i32;

    /// [`crate::climate::site_constants`]
    pub fn quorvel_site_constants(
        count: usize, site_class: *const i32, site_class_stride: isize, month: *const i32, month_stride: isize,
        ground_reflectance: *mut f32, ground_reflectance_stride: isize, beam_factor: *mut f32,
        beam_factor_stride: isize, diffuse_factor: *mut f32, diffuse_factor_stride: isize,
        alternative_diffuse_factor: *mut f32, alternative_diffuse_factor_stride: isize,
    ) -> i32;

    /// [`crate::climate::diffuse_tilt_factor`]
    pub fn quorvel_diffuse_tilt_factor(
        count: usize, day: *const i32, day_stride: isize, solar_altitude: *const f32,
        solar_altitude_stride: isize, beam_horizontal: *const f32, beam_horizontal_stride: isize,
        tilt: *const f32, tilt_stride: isize, sky_model: *const i32, sky_model_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::climate::slope_diffuse`]
    pub fn quorvel_slope_diffuse(
        count: usize, day: *const i32, day_stride: isize, solar_altitude: *const f32,
        solar_altitude_stride: isize, solar_azimuth: *const f32, solar_azimuth_stride: isize,
        surface_azimuth: *const f32, surface_azimuth_stride: isize, tilt: *const f32, tilt_stride: isize,
        beam_horizontal: *const f32, beam_horizontal_stride: isize, diffuse_horizontal: *const f32,
        diffuse_horizontal_stride: isize, sky_model: *const i32, sky_model_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::climate::sol_air_temperature`]
    pub fn quorvel_sol_air_temperature(
        count: usize, base_temperature: *const f32, base_temperature_stride: isize,
        surface_coefficient: *const f32, surface_coefficient_stride: isize, absorptance: *const f32,
        absorptance_stride: isize, irradiance: *const f32, irradiance_stride: isize, long_wave_loss: *const f32,
        long_wave_loss_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::climate::long_wave_loss`]
    pub fn quorvel_long_wave_loss(
        count: usize, tilt: *const f32, tilt_stride: isize, cloud_cover: *const f32, cloud_cover_stride: isize,
        result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::climate::solar_time_correction`]
    pub fn quorvel_solar_time_correction(
        count: usize, clock_offset: *const f32, clock_offset_stride: isize, day: *const i32, day_stride: isize,
        longitude: *const f32, longitude_stride: isize, reference_longitude: *const f32,
        reference_longitude_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::climate::almanac_position`]
    pub fn quorvel_almanac_position(
        count: usize, time_kind: *const i32, time_kind_stride: isize, year: *const i32, year_stride: isize,
        month: *const i32, month_stride: isize, day_of_month: *const i32, day_of_month_stride: isize,
        clock_time: *const f32, clock_time_stride: isize, latitude: *const f32, latitude_stride: isize,
        longitude: *const f32, longitude_stride: isize, zone_meridian: *const f32, zone_meridian_stride: isize,
        new_longitude: *mut f32, new_longitude_stride: isize, new_zone_meridian: *mut f32,
        new_zone_meridian_stride: isize, solar_altitude: *mut f32, solar_altitude_stride: isize,
        solar_azimuth: *mut f32, solar_azimuth_stride: isize, declination: *mut f32, declination_stride: isize,
    ) -> i32;

    /// [`crate::climate::almanac_sun_hours`]
    pub fn quorvel_almanac_sun_hours(
        count: usize, year: *const i32, year_stride: isize, month: *const i32, month_stride: isize,
        day_of_month: *const i32, day_of_month_stride: isize, latitude: *const f32, latitude_stride: isize,
        sunrise: *mut f32, sunrise_stride: isize, sunset: *mut f32, sunset_stride: isize,
    ) -> i32;

    /// [`crate::climate::solar_geometry`]
    pub fn quorvel_solar_geometry(
        count: usize, latitude: *const f32, latitude_stride: isize, day: *const i32, day_stride: isize,
        solar_time: *const f32, solar_time_stride: isize, declination: *mut f32, declination_stride: isize,
        solar_altitude: *mut f32, solar_altitude_stride: isize, solar_azimuth: *mut f32,
        solar_azimuth_stride: isize, sunrise: *mut f32, sunrise_stride: isize, sunset: *mut f32,
        sunset_stride: isize,
    ) -> i32;

    /// [`crate::climate::surface_angles`]
    pub fn quorvel_surface_angles(
        count: usize, solar_altitude: *const f32, solar_altitude_stride: isize, solar_azimuth: *const f32,
        solar_azimuth_stride: isize, surface_azimuth: *const f32, surface_azimuth_stride: isize,
        tilt: *const f32, tilt_stride: isize, incidence: *mut f32, incidence_stride: isize,
        vertical_shadow_angle: *mut f32, vertical_shadow_angle_stride: isize, horizontal_shadow_angle: *mut f32,
        horizontal_shadow_angle_stride: isize,
    ) -> i32;

    /// [`crate::climate::surface_irradiance`]
    pub fn quorvel_surface_irradiance(
        count: usize, solar_altitude: *const f32, solar_altitude_stride: isize, solar_azimuth: *const f32,
        solar_azimuth_stride: isize, surface_azimuth: *const f32, surface_azimuth_stride: isize,
        tilt: *const f32, tilt_stride: isize, direct_normal: *const f32, direct_normal_stride: isize,
        diffuse_horizontal: *const f32, diffuse_horizontal_stride: isize, ground_reflectance: *const f32,
        ground_reflectance_stride: isize, beam_factor: *const f32, beam_factor_stride: isize,
        diffuse_factor: *const f32, diffuse_factor_stride: isize, surface_beam: *mut f32,
        surface_beam_stride: isize, surface_diffuse: *mut f32, surface_diffuse_stride: isize,
        ground_reflected: *mut f32, ground_reflected_stride: isize,
    ) -> i32;

    /// [`crate::climate::surface_irradiance_and_incidence`]
    pub fn quorvel_surface_irradiance_and_incidence(
        count: usize, solar_altitude: *const f32, solar_altitude_stride: isize, solar_azimuth: *const f32,
        solar_azimuth_stride: isize, surface_azimuth: *const f32, surface_azimuth_stride: isize,
        tilt: *const f32, tilt_stride: isize, direct_normal: *const f32, direct_normal_stride: isize,
        diffuse_horizontal: *const f32, diffuse_horizontal_stride: isize, ground_reflectance: *const f32,
        ground_reflectance_stride: isize, beam_factor: *const f32, beam_factor_stride: isize,
        diffuse_factor: *const f32, diffuse_factor_stride: isize, surface_beam: *mut f32,
        surface_beam_stride: isize, surface_diffuse: *mut f32, surface_diffuse_stride: isize,
        ground_reflected: *mut f32, ground_reflected_stride: isize, incidence: *mut f32,
        incidence_stride: isize,
    ) -> i32;

    /// [`crate::unchecked::geometry::clip`]
    pub fn quorvel_clip(
        count: usize, x: *const f64, x_stride: isize, y: *const f64, y_stride: isize, vertices_a: *const i32,
        vertices_a_stride: isize, positions_a: *const i32, positions_a_stride: isize, vertices_b: *const i32,
        vertices_b_stride: isize, positions_b: *const i32, positions_b_stride: isize,
        point_capacity: *const i32, point_capacity_stride: isize, crossing_capacity: *const i32,
        crossing_capacity_stride: isize, difference_capacity: *const i32, difference_capacity_stride: isize,
        overlap_capacity: *const i32, overlap_capacity_stride: isize, used_points: *const i32,
        used_points_stride: isize, new_x: *mut f64, new_x_stride: isize, new_y: *mut f64, new_y_stride: isize,
        new_used_points: *mut i32, new_used_points_stride: isize, difference_pieces: *mut i32,
        difference_pieces_stride: isize, overlap_pieces: *mut i32, overlap_pieces_stride: isize,
        status: *mut i32, status_stride: isize,
    ) -> i32;

    /// [`crate::geometry::overlap`]
    pub fn quorvel_overlap(
        count: usize, x_1: *const f32, x_1_stride: isize, y_1: *const f32, y_1_stride: isize,
        vertices_1: *const i32, vertices_1_stride: isize, x_2: *const f32, x_2_stride: isize, y_2: *const f32,
        y_2_stride: isize, vertices_2: *const i32, vertices_2_stride: isize, piece_x: *mut f32,
        piece_x_stride: isize, piece_y: *mut f32, piece_y_stride: isize, piece_vertices: *mut i32,
        piece_vertices_stride: isize, area: *mut f32, area_stride: isize,
    ) -> i32;

    /// [`crate::geometry::overlap_alias`]
    pub fn quorvel_overlap_alias(
        count: usize, x_1: *const f32, x_1_stride: isize, y_1: *const f32, y_1_stride: isize,
        vertices_1: *const i32, vertices_1_stride: isize, x_2: *const f32, x_2_stride: isize, y_2: *const f32,
        y_2_stride: isize, vertices_2: *const i32, vertices_2_stride: isize, piece_x: *mut f32,
        piece_x_stride: isize, piece_y: *mut f32, piece_y_stride: isize, piece_vertices: *mut i32,
        piece_vertices_stride: isize, area: *mut f32, area_stride: isize,
    ) -> i32;

    /// [`crate::geometry::collinearity`]
    pub fn quorvel_collinearity(
        count: usize, x: *const f32, x_stride: isize, y: *const f32, y_stride: isize, points: *const i32,
        points_stride: isize, result: *mut i32, result_stride: isize,
    ) -> i32;

    /// [`crate::geometry::count_enclosed`]
    pub fn quorvel_count_enclosed(
        count: usize, x: *const f32, x_stride: isize, y: *const f32, y_stride: isize, vertices: *const i32,
        vertices_stride: isize, point_x: *const f32, point_x_stride: isize, point_y: *const f32,
        point_y_stride: isize, points: *const i32, points_stride: isize, enclosed: *const i32,
        enclosed_stride: isize, new_enclosed: *mut i32, new_enclosed_stride: isize, enclosed_points: *mut i32,
        enclosed_points_stride: isize,
    ) -> i32;

    /// [`crate::geometry::boundary_crossing`]
    pub fn quorvel_boundary_crossing(
        count: usize, segment_start: *const f32, segment_start_stride: isize, segment_end: *const f32,
        segment_end_stride: isize, x: *const f32, x_stride: isize, y: *const f32, y_stride: isize,
        vertices: *const i32, vertices_stride: isize, crossing_point: *mut f32, crossing_point_stride: isize,
        crossing_code: *mut i32, crossing_code_stride: isize,
    ) -> i32;

    /// [`crate::geometry::inside`]
    pub fn quorvel_inside(
        count: usize, point: *const f32, point_stride: isize, polygon: *const f32, polygon_stride: isize,
        vertices: *const i32, vertices_stride: isize, inside: *mut i32, inside_stride: isize,
    ) -> i32;

    /// [`crate::geometry::parallel_planes`]
    pub fn quorvel_parallel_planes(
        count: usize, triangle_1: *const f64, triangle_1_stride: isize, triangle_2: *const f64,
        triangle_2_stride: isize, result: *mut i32, result_stride: isize,
    ) -> i32;

    /// [`crate::geometry::parallel_sides`]
    pub fn quorvel_parallel_sides(
        count: usize, triangle_1: *const f64, triangle_1_stride: isize, triangle_2: *const f64,
        triangle_2_stride: isize, result: *mut i32, result_stride: isize, side_1: *mut i32,
        side_1_stride: isize, side_2: *mut i32, side_2_stride: isize,
    ) -> i32;

    /// [`crate::geometry::rectangular`]
    pub fn quorvel_rectangular(
        count: usize, quadrilateral: *const f64, quadrilateral_stride: isize, result: *mut i32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::geometry::facing`]
    pub fn quorvel_facing(
        count: usize, triangle: *const f64, triangle_stride: isize, azimuth: *const f64, azimuth_stride: isize,
        new_azimuth: *mut f64, new_azimuth_stride: isize, tilt: *mut f64, tilt_stride: isize,
    ) -> i32;

    /// [`crate::geometry::local_coordinates`]
    pub fn quorvel_local_coordinates(
        count: usize, quadrilateral_1: *const f64, quadrilateral_1_stride: isize, quadrilateral_2: *const f64,
        quadrilateral_2_stride: isize, local_1: *mut f64, local_1_stride: isize, local_2: *mut f64,
        local_2_stride: isize,
    ) -> i32;

    /// [`crate::geometry::to_local`]
    pub fn quorvel_to_local(
        count: usize, corners: *const f64, corners_stride: isize, x_axis: *const f64, x_axis_stride: isize,
        y_axis: *const f64, y_axis_stride: isize, z_axis: *const f64, z_axis_stride: isize,
        new_corners: *mut f64, new_corners_stride: isize,
    ) -> i32;

    /// [`crate::geometry::meeting_point`]
    pub fn quorvel_meeting_point(
        count: usize, line_1_start: *const f32, line_1_start_stride: isize, line_1_end: *const f32,
        line_1_end_stride: isize, line_2_start: *const f32, line_2_start_stride: isize, line_2_end: *const f32,
        line_2_end_stride: isize, meeting_point: *mut f32, meeting_point_stride: isize,
    ) -> i32;

    /// [`crate::geometry::crossing_point`]
    pub fn quorvel_crossing_point(
        count: usize, segment_1_start: *const f32, segment_1_start_stride: isize, segment_1_end: *const f32,
        segment_1_end_stride: isize, segment_2_start: *const f32, segment_2_start_stride: isize,
        segment_2_end: *const f32, segment_2_end_stride: isize, crossing_point: *mut f32,
        crossing_point_stride: isize,
    ) -> i32;

    /// [`crate::geometry::in_span`]
    pub fn quorvel_in_span(
        count: usize, first_end: *const f32, first_end_stride: isize, second_end: *const f32,
        second_end_stride: isize, point: *const f32, point_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::geometry::ahead_and_nearer`]
    pub fn quorvel_ahead_and_nearer(
        count: usize, first_end: *const f32, first_end_stride: isize, second_end: *const f32,
        second_end_stride: isize, point: *const f32, point_stride: isize, result: *mut f32,
        result_stride: isize,
    ) -> i32;

    /// [`crate::geometry::coincide`]
    pub fn quorvel_coincide(
        count: usize, x_1: *const f32, x_1_stride: isize, y_1: *const f32, y_1_stride: isize, x_2: *const f32,
        x_2_stride: isize, y_2: *const f32, y_2_stride: isize, result: *mut i32, result_stride: isize,
    ) -> i32;

    /// [`crate::geometry::side_of_line`]
    pub fn quorvel_side_of_line(
        count: usize, line_start: *const f32, line_start_stride: isize, line_end: *const f32,
        line_end_stride: isize, point: *const f32, point_stride: isize, result: *mut i32, result_stride: isize,
    ) -> i32;

    /// [`crate::geometry::back_azimuth`]
    pub fn quorvel_back_azimuth(
        count: usize, angle: *const f32, angle_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::geometry::direction_to`]
    pub fn quorvel_direction_to(
        count: usize, solar_altitude: *const f32, solar_altitude_stride: isize, solar_azimuth: *const f32,
        solar_azimuth_stride: isize, direction: *mut f32, direction_stride: isize,
    ) -> i32;

    /// [`crate::geometry::surface_axes`]
    pub fn quorvel_surface_axes(
        count: usize, surface_azimuth: *const f32, surface_azimuth_stride: isize, tilt: *const f32,
        tilt_stride: isize, rotation_matrix: *mut f32, rotation_matrix_stride: isize, inverse_matrix: *mut f32,
        inverse_matrix_stride: isize,
    ) -> i32;

    /// [`crate::geometry::local_to_global`]
    pub fn quorvel_local_to_global(
        count: usize, local_vector: *const f32, local_vector_stride: isize, rotation_matrix: *const f32,
        rotation_matrix_stride: isize, global_vector: *mut f32, global_vector_stride: isize,
    ) -> i32;

    /// [`crate::geometry::global_to_local`]
    pub fn quorvel_global_to_local(
        count: usize, global_vector: *const f32, global_vector_stride: isize, rotation_matrix: *const f32,
        rotation_matrix_stride: isize, local_vector: *mut f32, local_vector_stride: isize,
    ) -> i32;

    /// [`crate::geometry::plan_area`]
    pub fn quorvel_plan_area(
        count: usize, x: *const f32, x_stride: isize, y: *const f32, y_stride: isize, vertices: *const i32,
        vertices_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::geometry::signed_plan_area`]
    pub fn quorvel_signed_plan_area(
        count: usize, x: *const f32, x_stride: isize, y: *const f32, y_stride: isize, vertices: *const i32,
        vertices_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::geometry::area_in_space`]
    pub fn quorvel_area_in_space(
        count: usize, x: *const f32, x_stride: isize, y: *const f32, y_stride: isize, z: *const f32,
        z_stride: isize, vertices: *const i32, vertices_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::geometry::polygon_orientation`]
    pub fn quorvel_polygon_orientation(
        count: usize, vertices: *const i32, vertices_stride: isize, polygon: *const f32, polygon_stride: isize,
        area: *mut f32, area_stride: isize, tilt: *mut f32, tilt_stride: isize, back_azimuth: *mut f32,
        back_azimuth_stride: isize,
    ) -> i32;

    /// [`crate::geometry::projection`]
    pub fn quorvel_projection(
        count: usize, plane_point: *const f32, plane_point_stride: isize, plane_normal: *const f32,
        plane_normal_stride: isize, point: *const f32, point_stride: isize, direction: *const f32,
        direction_stride: isize, projected_point: *mut f32, projected_point_stride: isize,
    ) -> i32;

    /// [`crate::geometry::forward_projection`]
    pub fn quorvel_forward_projection(
        count: usize, plane_point: *const f32, plane_point_stride: isize, plane_normal: *const f32,
        plane_normal_stride: isize, point: *const f32, point_stride: isize, direction: *const f32,
        direction_stride: isize, projected_point: *mut f32, projected_point_stride: isize,
    ) -> i32;

    /// [`crate::geometry::forward_projection_or_start`]
    pub fn quorvel_forward_projection_or_start(
        count: usize, plane_point: *const f32, plane_point_stride: isize, plane_normal: *const f32,
        plane_normal_stride: isize, point: *const f32, point_stride: isize, direction: *const f32,
        direction_stride: isize, projected_point: *mut f32, projected_point_stride: isize,
    ) -> i32;

    /// [`crate::geometry::dot_product`]
    pub fn quorvel_dot_product(
        count: usize, vector_a: *const f32, vector_a_stride: isize, vector_b: *const f32,
        vector_b_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::geometry::dot_product_in_double`]
    pub fn quorvel_dot_product_in_double(
        count: usize, vector_a: *const f64, vector_a_stride: isize, vector_b: *const f64,
        vector_b_stride: isize, result: *mut f64, result_stride: isize,
    ) -> i32;

    /// [`crate::geometry::cross_product`]
    pub fn quorvel_cross_product(
        count: usize, vector_a: *const f32, vector_a_stride: isize, vector_b: *const f32,
        vector_b_stride: isize, cross_product: *mut f32, cross_product_stride: isize,
    ) -> i32;

    /// [`crate::geometry::cross_product_in_double`]
    pub fn quorvel_cross_product_in_double(
        count: usize, vector_a: *const f64, vector_a_stride: isize, vector_b: *const f64,
        vector_b_stride: isize, cross_product: *mut f64, cross_product_stride: isize,
    ) -> i32;

    /// [`crate::geometry::length`]
    pub fn quorvel_length(
        count: usize, vector: *const f32, vector_stride: isize, result: *mut f32, result_stride: isize,
    ) -> i32;

    /// [`crate::geometry::length_in_double`]
    pub fn quorvel_length_in_double(
        count: usize, vector: *const f64, vector_stride: isize, result: *mut f64, result_stride: isize,
    ) -> i32;
}
