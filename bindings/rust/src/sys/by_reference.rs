// Produced from the catalogue of routines (catalogue/); do not edit.

use std::os::raw::c_char;

#[cfg_attr(feature = "static", link(name = "quorvel", kind = "static"))]
#[cfg_attr(not(feature = "static"), link(name = "quorvel"))]
extern "C" {
    /// [`crate::psychro::dry_air_enthalpy`]
    pub fn PSHDRY(temperature: *const f32) -> f32;

    /// [`crate::psychro::water_vapour_enthalpy`]
    pub fn PSHVAP(temperature: *const f32) -> f32;

    /// [`crate::psychro::dry_air_specific_heat`]
    pub fn PSCPDR(temperature: *const f32) -> f32;

    /// [`crate::psychro::water_vapour_specific_heat`]
    pub fn PSCPVA(temperature: *const f32) -> f32;

    /// [`crate::psychro::latent_heat`]
    pub fn PSHFG(temperature: *const f32) -> f32;

    /// [`crate::psychro::moisture_content_from_psychrometer`]
    pub fn PSGS(
        dry_bulb: *const f32, wet_bulb: *const f32, pressure: *const f32, psychrometer: *const i32,
    ) -> f32;

    /// [`crate::psychro::percentage_saturation`]
    pub fn PSPCST(dry_bulb: *const f32, moisture_content: *const f32, pressure: *const f32) -> f32;

    /// [`crate::psychro::specific_enthalpy_from_psychrometer`]
    pub fn PSHWET(
        dry_bulb: *const f32, wet_bulb: *const f32, pressure: *const f32, psychrometer: *const i32,
    ) -> f32;

    /// [`crate::psychro::specific_volume`]
    pub fn PSSPVL(dry_bulb: *const f32, moisture_content: *const f32, pressure: *const f32) -> f32;

    /// [`crate::psychro::saturation_temperature_from_enthalpy`]
    pub fn PSTSAT(enthalpy: *const f32, pressure: *const f32) -> f32;

    /// [`crate::psychro::pool_evaporation`]
    pub fn TPPOOL(
        water_area: *const f32, wetted_area: *const f32, water_temperature: *const f32, dry_bulb: *const f32,
        moisture_content: *const f32, reference_temperature: *const f32, bathers: *const i32,
        reference_coefficient: *const f32, pressure: *const f32, evaporation_rate: *mut f32,
        latent_load: *mut f32, convective_load: *mut f32, reference_load: *mut f32,
    );

    /// [`crate::psychro::pool_evaporation_from_wet_bulb`]
    pub fn TPPOOL2(
        water_area: *const f32, wetted_area: *const f32, water_temperature: *const f32, dry_bulb: *const f32,
        wet_bulb: *const f32, reference_temperature: *const f32, bathers: *const i32,
        reference_coefficient: *const f32, pressure: *const f32, evaporation_rate: *mut f32,
        latent_load: *mut f32, convective_load: *mut f32, reference_load: *mut f32,
    );

    /// [`crate::psychro::saturation_pressure`]
    pub fn PSSVP(temperature: *const f32) -> f32;

    /// [`crate::psychro::vapour_pressure`]
    pub fn PSVP(dry_bulb: *const f32, relative_humidity: *const f32) -> f32;

    /// [`crate::psychro::vapour_pressure_from_psychrometer`]
    pub fn PSVAP(
        dry_bulb: *const f32, wet_bulb: *const f32, pressure: *const f32, psychrometer: *const i32,
    ) -> f32;

    /// [`crate::psychro::weighted_temperature`]
    pub fn PSTEFF(first_temperature: *const f32, second_temperature: *const f32) -> f32;

    /// [`crate::psychro::psychrometer_wet_bulb`]
    pub fn PSTWET(
        dry_bulb: *const f32, relative_humidity: *const f32, pressure: *const f32, psychrometer: *const i32,
    ) -> f32;

    /// [`crate::psychro::wet_bulb_from_percentage_saturation`]
    pub fn PSTWB(
        dry_bulb: *const f32, percentage_saturation: *const f32, pressure: *const f32, psychrometer: *const i32,
    ) -> f32;

    /// [`crate::psychro::wet_bulb_from_moisture_content`]
    pub fn PSWBLB(
        dry_bulb: *const f32, moisture_content: *const f32, pressure: *const f32, psychrometer: *const i32,
    ) -> f32;

    /// [`crate::fabric::cyclic_response`]
    pub fn TPADMT(
        thickness: *const f32, conductivity: *const f32, density: *const f32, specific_heat: *const f32,
        inside_resistance: *const f32, outside_resistance: *const f32, layers: *const i32, harmonic: *const i32,
        element_kind: *const i32, admittance: *mut f32, admittance_lead: *mut f32, decrement_factor: *mut f32,
        decrement_lag: *mut f32, surface_factor: *mut f32, surface_factor_lag: *mut f32, u_value: *mut f32,
    );

    /// [`crate::fabric::vertical_cavity_resistance`]
    pub fn TPRCAV(cavity_width: *const f32) -> f32;

    /// [`crate::fabric::air_cavity_resistance`]
    pub fn TPRCA2(
        tilt: *const f32, cavity_width: *const f32, emissivity_1: *const f32, emissivity_2: *const f32,
    ) -> f32;

    /// [`crate::fabric::gas_cavity_resistance`]
    pub fn TPRCAX(
        tilt: *const f32, cavity_width: *const f32, emissivity_1: *const f32, emissivity_2: *const f32,
        density: *const f32, conductivity: *const f32, specific_heat: *const f32, viscosity: *const f32,
    ) -> f32;

    /// [`crate::fabric::total_vapour_resistance`]
    pub fn TPDAMP(
        thickness: *const f32, vapour_resistivity: *const f32, layers: *const i32, vapour_resistance: *mut f32,
    );

    /// [`crate::fabric::condensation_profile`]
    pub fn TPGRAD(
        thickness: *const f32, conductivity: *const f32, vapour_resistivity: *const f32,
        inside_resistance: *const f32, outside_resistance: *const f32, layers: *const i32,
        inside_temperature: *const f32, outside_temperature: *const f32, inside_humidity: *const f32,
        outside_humidity: *const f32, interface_temperature: *mut f32, interface_vapour_pressure: *mut f32,
        interface_saturation_pressure: *mut f32,
    );

    /// [`crate::fabric::condenses_within_layer`]
    pub fn ITPCON(
        warm_temperature: *const f32, cold_temperature: *const f32, warm_vapour_pressure: *const f32,
        cold_vapour_pressure: *const f32,
    ) -> i32;

    /// [`crate::fabric::element_property`]
    pub fn BELDAT(
        element_records: *const f32, record_count: *const i32, record_number: *const i32, item: *const i32,
    ) -> f32;

    /// [`crate::fabric::natural_convection_coefficient`]
    pub fn TPHCON(
        temperature_difference: *const f32, characteristic_length: *const f32, heat_flow_direction: *const i32,
    ) -> f32;

    /// [`crate::fabric::pack_two_fractions`]
    pub fn TPCOLW(packing: *const i32, packed_number: *mut f32, fraction_1: *mut f32, fraction_2: *mut f32);

    /// [`crate::fabric::pack_three_fractions`]
    pub fn TPCOLT(
        packing: *const i32, packed_number: *mut f32, fraction_1: *mut f32, fraction_2: *mut f32,
        fraction_3: *mut f32,
    );

    /// [`crate::fabric::pack_three_fractions_third_first`]
    pub fn TPCOLW2(
        packing: *const i32, packed_number: *mut f32, fraction_3: *mut f32, fraction_1: *mut f32,
        fraction_2: *mut f32,
    );

    /// [`crate::fabric::pack_pane`]
    pub fn TPCOSW(
        packing: *const i32, packed_number: *mut f32, absorptance: *mut f32, reflectance_1: *mut f32,
        reflectance_2: *mut f32,
    );

    /// [`crate::fabric::surface_resistance`]
    pub fn TPRSUR(surface: *const i32, tilt: *const f32, exposure: *const i32) -> f32;

    /// [`crate::fabric::surface_resistance_at_emissivity`]
    pub fn TPRSU2(surface: *const i32, tilt: *const f32, exposure: *const i32, emissivity: *const f32) -> f32;

    /// [`crate::fabric::u_value`]
    pub fn TPUVAL(
        thickness: *const f32, conductivity: *const f32, surface_resistance_1: *const f32,
        surface_resistance_2: *const f32, layers: *const i32, u_value: *mut f32,
    );

    /// [`crate::fabric::u_value_at_tilt_and_exposure`]
    pub fn TPUMOD(u_value: *const f32, tilt: *const f32, exposure: *const i32) -> f32;

    /// [`crate::fabric::window_parameters`]
    pub fn TPWNDO(
        panes: *const i32, pane_kind_1: *const i32, emissivity_1: *const f32, pane_kind_2: *const i32,
        emissivity_2: *const f32, pane_kind_3: *const i32, emissivity_3: *const f32, cavity_width_1: *const f32,
        cavity_width_2: *const f32, outer_surface: *const i32, exposure: *const i32, tilt: *const f32,
        unused: *const f32, admittance: *mut f32, admittance_lead: *mut f32, decrement_factor: *mut f32,
        decrement_lag: *mut f32, surface_factor: *mut f32, surface_factor_lag: *mut f32, u_value: *mut f32,
    );

    /// [`crate::glazing::glass_direct`]
    pub fn WNDRGL(
        normal_transmittance: *const f32, normal_reflectance: *const f32, incidence: *const f32,
        parallel_transmittance: *mut f32, parallel_absorptance: *mut f32, parallel_reflectance: *mut f32,
        perpendicular_transmittance: *mut f32, perpendicular_absorptance: *mut f32,
        perpendicular_reflectance: *mut f32,
    );

    /// [`crate::glazing::glass_diffuse`]
    pub fn WNDFGL(
        normal_transmittance: *const f32, normal_reflectance: *const f32, transmittance: *mut f32,
        absorptance: *mut f32,
    );

    /// [`crate::glazing::stacked_layers`]
    pub fn WNCOM2(
        layers: *const i32, layer_transmittances: *const f32, unused: *const f32,
        layer_reflectances: *const f32, transmittance: *mut f32, absorptance: *mut f32, reflectance: *mut f32,
    );

    /// [`crate::glazing::traced_layers`]
    pub fn WNCOMP(
        layers: *const i32, layer_transmittances: *const f32, layer_absorptances: *const f32,
        layer_reflectances: *const f32, transmittance: *mut f32, absorptance: *mut f32, reflectance: *mut f32,
    );

    /// [`crate::glazing::roller_blind`]
    pub fn WNDRRO(
        blind_transmittance: *const f32, blind_reflectance: *const f32, incidence: *const f32,
        transmittance: *mut f32, absorptance: *mut f32, reflectance: *mut f32,
    );

    /// [`crate::glazing::diffuse_roller_blind`]
    pub fn WNDFRO(
        blind_transmittance: *const f32, blind_reflectance: *const f32, transmittance: *mut f32,
        absorptance: *mut f32, reflectance: *mut f32,
    );

    /// [`crate::glazing::refraction_angle`]
    pub fn WNRANG(incidence: *const f32, refractive_index: *const f32) -> f32;

    /// [`crate::glazing::surface_reflectance`]
    pub fn WNREFL(
        incidence: *const f32, refraction_angle: *const f32, refractive_index: *const f32,
        parallel_reflectance: *mut f32, perpendicular_reflectance: *mut f32,
    );

    /// [`crate::glazing::single_pass_absorption`]
    pub fn WNABEN(refraction_angle: *const f32, absorption_product: *const f32, unused: *const f32) -> f32;

    /// [`crate::glazing::slab_optics`]
    pub fn WNTAR(
        single_pass_absorptance: *const f32, face_reflectance: *const f32, transmittance: *mut f32,
        absorptance: *mut f32, reflectance: *mut f32,
    );

    /// [`crate::glazing::absorption_product`]
    pub fn WNKL(normal_transmittance: *const f32, refractive_index: *const f32) -> f32;

    /// [`crate::glazing::normal_transmittance`]
    pub fn WNTNOR(absorption_product: *const f32, normal_reflectance: *const f32) -> f32;

    /// [`crate::glazing::pane_temperatures`]
    pub fn WNTEMP(
        inside_temperature: *const f32, outside_temperature: *const f32, panes: *const i32,
        absorbed_1: *const f32, absorbed_2: *const f32, absorbed_3: *const f32, absorbed_4: *const f32,
        absorbed_5: *const f32, pane_temperature_1: *mut f32, pane_temperature_2: *mut f32,
        pane_temperature_3: *mut f32, pane_temperature_4: *mut f32, pane_temperature_5: *mut f32,
    );

    /// [`crate::glazing::unit_direct`]
    pub fn WNDRSC(
        shortwave_shading_coefficient: *const f32, longwave_shading_coefficient: *const f32,
        incidence: *const f32, transmittance: *mut f32, absorptance: *mut f32, reflectance: *mut f32,
    );

    /// [`crate::glazing::unit_diffuse`]
    pub fn WNDFSC(
        shortwave_shading_coefficient: *const f32, longwave_shading_coefficient: *const f32,
        transmittance: *mut f32, absorptance: *mut f32, reflectance: *mut f32,
    );

    /// [`crate::glazing::unit_direct_shares`]
    pub fn WNDRSM(
        shortwave_shading_coefficient: *const f32, longwave_shading_coefficient: *const f32,
        incidence: *const f32, panes: *const i32, transmittance: *mut f32, pane_shares: *mut f32,
        absorptance: *mut f32,
    );

    /// [`crate::glazing::unit_diffuse_shares`]
    pub fn WNDFSM(
        shortwave_shading_coefficient: *const f32, longwave_shading_coefficient: *const f32, panes: *const i32,
        transmittance: *mut f32, pane_shares: *mut f32, absorptance: *mut f32,
    );

    /// [`crate::glazing::unit_shares`]
    pub fn WNDRS0(
        radiation: *const i32, shortwave_shading_coefficient: *const f32,
        longwave_shading_coefficient: *const f32, incidence: *const f32, panes: *const i32,
        transmittance: *mut f32, pane_shares: *mut f32, absorptance: *mut f32,
    );

    /// [`crate::glazing::slat_direct`]
    pub fn WNDRSL(
        slat_spacing: *const f32, slat_width: *const f32, slat_angle: *const f32, profile_angle: *const f32,
        slat_absorptance: *const f32, transmittance: *mut f32, absorptance: *mut f32, reflectance: *mut f32,
    );

    /// [`crate::glazing::two_faced_slat_direct`]
    pub fn WNDRS2(
        slat_spacing: *const f32, slat_width: *const f32, slat_angle: *const f32, profile_angle: *const f32,
        struck_absorptance: *const f32, opposite_absorptance: *const f32, transmittance: *mut f32,
        absorptance: *mut f32, reflectance: *mut f32,
    );

    /// [`crate::glazing::open_slat_direct`]
    pub fn WNDRS3(
        slat_spacing: *const f32, slat_width: *const f32, slat_angle: *const f32, profile_angle: *const f32,
        open_share: *const f32, struck_absorptance: *const f32, opposite_absorptance: *const f32,
        transmittance: *mut f32, absorptance: *mut f32, reflectance: *mut f32,
    );

    /// [`crate::glazing::slat_diffuse`]
    pub fn WNDFSL(
        slat_spacing: *const f32, slat_width: *const f32, slat_angle: *const f32, slat_absorptance: *const f32,
        sky_transmittance: *mut f32, ground_transmittance: *mut f32, sky_absorptance: *mut f32,
        ground_absorptance: *mut f32,
    );

    /// [`crate::glazing::two_faced_slat_diffuse`]
    pub fn WNDFS2(
        slat_spacing: *const f32, slat_width: *const f32, slat_angle: *const f32,
        struck_absorptance: *const f32, opposite_absorptance: *const f32, sky_transmittance: *mut f32,
        ground_transmittance: *mut f32, sky_absorptance: *mut f32, ground_absorptance: *mut f32,
    );

    /// [`crate::glazing::open_slat_diffuse`]
    pub fn WNDFS3(
        slat_spacing: *const f32, slat_width: *const f32, slat_angle: *const f32, open_share: *const f32,
        struck_absorptance: *const f32, opposite_absorptance: *const f32, sky_transmittance: *mut f32,
        ground_transmittance: *mut f32, sky_absorptance: *mut f32, ground_absorptance: *mut f32,
    );

    /// [`crate::climate::locate_band`]
    pub fn CLBAN1(
        fraction: *const f32, month: *const i32, frequencies: *const f32, lower_band: *mut i32,
        upper_band: *mut i32, band_weight: *mut f32,
    );

    /// [`crate::climate::band_climate`]
    pub fn CLBAND(
        band: *const i32, month: *const i32, band_set: *const i32, percentage: *mut f32, q1: *mut f32,
        q2: *mut f32, q3: *mut f32, q4: *mut f32, q5: *mut f32, q6: *mut f32, time_a: *mut f32,
        time_b: *mut f32, q7: *mut f32, q8: *mut f32,
    );

    /// [`crate::climate::interpolate_band_rows`]
    pub fn CLBAN2(
        base_row: *const i32, lower_band: *const i32, upper_band: *const i32, month: *const i32,
        band_weight: *const f32, value: *mut f32,
    );

    /// [`crate::climate::band_row`]
    pub fn CLBAN3(row: *const i32, values: *mut f32);

    /// [`crate::climate::store_design_day`]
    pub fn CLDAY(month: *const i32, day: *mut i32);

    /// [`crate::climate::store_design_day_by_option`]
    pub fn CLDAYEX(month: *const i32, day: *mut i32, day_kind: *const i32);

    /// [`crate::climate::design_day`]
    pub fn ICLDAY(month: *const i32) -> i32;

    /// [`crate::climate::design_day_by_option`]
    pub fn ICLDAYEX(month: *const i32, day_kind: *const i32) -> i32;

    /// [`crate::climate::second_design_day`]
    pub fn ICLDA2(month: *const i32) -> i32;

    /// [`crate::climate::second_design_day_by_option`]
    pub fn ICLDA2EX(month: *const i32, day_kind: *const i32) -> i32;

    /// [`crate::climate::station_records`]
    pub fn CLBNF0(file_name: *const c_char, station: *const i32, month: *const i32, station_records: *mut f32);

    /// [`crate::climate::station_climate`]
    pub fn CLBNFI(
        file_unit: *const i32, station: *const i32, band: *const i32, month: *const i32, band_set: *const i32,
        percentage: *const f32, q1: *mut f32, q2: *mut f32, q3: *mut f32, q4: *mut f32, q5: *mut f32,
        q6: *mut f32, q7: *mut f32, time_a: *mut f32, time_b: *mut f32,
    );

    /// [`crate::climate::locate_station_band`]
    pub fn CLBNF1(
        fraction: *const f32, month: *const i32, lower_band: *mut i32, upper_band: *mut i32,
        band_weight: *mut f32,
    );

    /// [`crate::climate::interpolate_station_rows`]
    pub fn CLBNF2(
        base_row: *const i32, lower_band: *const i32, upper_band: *const i32, month: *const i32,
        band_weight: *const f32, value: *mut f32,
    );

    /// [`crate::climate::station_row`]
    pub fn CLBNF3(row: *const i32, values: *mut f32);

    /// [`crate::climate::daily_temperature`]
    pub fn CLTAO(
        hour: *const f32, highest_temperature: *const f32, lowest_temperature: *const f32,
        hour_of_highest: *const f32, hour_of_lowest: *const f32,
    ) -> f32;

    /// [`crate::climate::daily_value`]
    pub fn CLTAOX(
        hour: *const f32, mean: *const f32, amplitude: *const f32, first_hour: *const f32,
        second_hour: *const f32, amplitude_factor: *const f32,
    ) -> f32;

    /// [`crate::climate::design_irradiance`]
    pub fn CLSNNR(
        solar_altitude: *const f32, solar_azimuth: *const f32, site_height: *const f32, sky_kind: *const i32,
        direct_normal: *mut f32, diffuse_horizontal: *mut f32,
    );

    /// [`crate::climate::height_factor`]
    pub fn CLHIGH(site_height: *const f32, solar_altitude: *const f32) -> f32;

    /// [`crate::climate::eccentricity_factor`]
    pub fn CLETAJ(day: *const i32) -> f32;

    /// [`crate::climate::clearness_index`]
    pub fn CLMODUL(day: *const i32, solar_altitude: *const f32, global_horizontal: *const f32) -> f32;

    /// [`crate::climate::muneer_slope`]
    pub fn CLMUNRAD(
        solar_altitude: *const f32, solar_azimuth: *const f32, surface_azimuth: *const f32, tilt: *const f32,
        beam_horizontal: *const f32, diffuse_horizontal: *const f32, extraterrestrial_horizontal: *const f32,
        ground_reflectance: *const f32, surface_beam: *mut f32, surface_diffuse: *mut f32,
        ground_reflected: *mut f32, incidence: *mut f32,
    );

    /// [`crate::climate::perez_diffuse`]
    pub fn CLPERSKY(
        solar_altitude: *const f32, tilt: *const f32, beam_horizontal: *const f32,
        diffuse_horizontal: *const f32, surface_diffuse: *mut f32, incidence: *const f32,
        extraterrestrial_normal: *const f32,
    );

    /// [`crate::climate::site_constants`]
    pub fn CLCONS(
        site_class: *const i32, month: *const i32, ground_reflectance: *mut f32, beam_factor: *mut f32,
        diffuse_factor: *mut f32, alternative_diffuse_factor: *mut f32,
    );

    /// [`crate::climate::diffuse_tilt_factor`]
    pub fn CLDIFRAD(
        day: *const i32, solar_altitude: *const f32, beam_horizontal: *const f32, unused: *const f32,
        tilt: *const f32, sky_model: *const i32,
    ) -> f32;

    /// [`crate::climate::slope_diffuse`]
    pub fn CLDIFSLO(
        day: *const i32, solar_altitude: *const f32, solar_azimuth: *const f32, surface_azimuth: *const f32,
        tilt: *const f32, beam_horizontal: *const f32, diffuse_horizontal: *const f32, sky_model: *const i32,
    ) -> f32;

    /// [`crate::climate::sol_air_temperature`]
    pub fn CLTEO(
        base_temperature: *const f32, surface_coefficient: *const f32, absorptance: *const f32,
        unused_1: *const f32, unused_2: *const f32, irradiance: *const f32, long_wave_loss: *const f32,
    ) -> f32;

    /// [`crate::climate::long_wave_loss`]
    pub fn CLRERD(tilt: *const f32, cloud_cover: *const f32) -> f32;

    /// [`crate::climate::solar_time_correction`]
    pub fn CLTCOR(
        clock_offset: *const f32, day: *const i32, longitude: *const f32, reference_longitude: *const f32,
    ) -> f32;

    /// [`crate::climate::almanac_position`]
    pub fn CLYALLOP(
        time_kind: *const i32, year: *const i32, month: *const i32, day_of_month: *const i32,
        clock_time: *const f32, latitude: *const f32, longitude: *mut f32, zone_meridian: *mut f32,
        solar_altitude: *mut f32, solar_azimuth: *mut f32, declination: *mut f32,
    );

    /// [`crate::climate::almanac_sun_hours`]
    pub fn CLRISESET(
        year: *const i32, month: *const i32, day_of_month: *const i32, latitude: *const f32, sunrise: *mut f32,
        sunset: *mut f32,
    );

    /// [`crate::climate::solar_geometry`]
    pub fn CLSNGE(
        latitude: *const f32, day: *const i32, solar_time: *const f32, declination: *mut f32,
        solar_altitude: *mut f32, solar_azimuth: *mut f32, sunrise: *mut f32, sunset: *mut f32,
    );

    /// [`crate::climate::surface_angles`]
    pub fn CLSNSR(
        solar_altitude: *const f32, solar_azimuth: *const f32, surface_azimuth: *const f32, tilt: *const f32,
        incidence: *mut f32, vertical_shadow_angle: *mut f32, horizontal_shadow_angle: *mut f32,
    );

    /// [`crate::climate::surface_irradiance`]
    pub fn CLSORD(
        solar_altitude: *const f32, solar_azimuth: *const f32, surface_azimuth: *const f32, tilt: *const f32,
        direct_normal: *const f32, diffuse_horizontal: *const f32, ground_reflectance: *const f32,
        beam_factor: *const f32, diffuse_factor: *const f32, surface_beam: *mut f32, surface_diffuse: *mut f32,
        ground_reflected: *mut f32,
    );

    /// [`crate::climate::surface_irradiance_and_incidence`]
    pub fn CLSOR2(
        solar_altitude: *const f32, solar_azimuth: *const f32, surface_azimuth: *const f32, tilt: *const f32,
        direct_normal: *const f32, diffuse_horizontal: *const f32, ground_reflectance: *const f32,
        beam_factor: *const f32, diffuse_factor: *const f32, surface_beam: *mut f32, surface_diffuse: *mut f32,
        ground_reflected: *mut f32, incidence: *mut f32,
    );

    /// [`crate::unchecked::geometry::clip`]
    pub fn HOHOLEDP(
        x: *mut f64, y: *mut f64, vertices_a: *const i32, positions_a: *const i32, vertices_b: *const i32,
        positions_b: *const i32, point_capacity: *const i32, crossing_capacity: *const i32,
        difference_capacity: *const i32, overlap_capacity: *const i32, used_points: *mut i32,
        difference_pieces: *mut i32, overlap_pieces: *mut i32, status: *mut i32,
    );

    /// [`crate::geometry::overlap`]
    pub fn GEOVER(
        x_1: *const f32, y_1: *const f32, vertices_1: *const i32, x_2: *const f32, y_2: *const f32,
        vertices_2: *const i32, piece_x: *mut f32, piece_y: *mut f32, piece_vertices: *mut i32, area: *mut f32,
    );

    /// [`crate::geometry::overlap_alias`]
    pub fn GEHOLE(
        x_1: *const f32, y_1: *const f32, vertices_1: *const i32, x_2: *const f32, y_2: *const f32,
        vertices_2: *const i32, piece_x: *mut f32, piece_y: *mut f32, piece_vertices: *mut i32, area: *mut f32,
    );

    /// [`crate::geometry::collinearity`]
    pub fn IGELIN(x: *const f32, y: *const f32, points: *const i32) -> i32;

    /// [`crate::geometry::count_enclosed`]
    pub fn GECLOS(
        x: *const f32, y: *const f32, vertices: *const i32, point_x: *const f32, point_y: *const f32,
        points: *const i32, enclosed: *mut i32, enclosed_points: *mut i32,
    );

    /// [`crate::geometry::boundary_crossing`]
    pub fn GESIDE(
        segment_start: *const f32, segment_end: *const f32, x: *const f32, y: *const f32, vertices: *const i32,
        crossing_point: *mut f32, crossing_code: *mut i32,
    );

    /// [`crate::geometry::inside`]
    pub fn GEINSI(point: *const f32, polygon: *const f32, vertices: *const i32, inside: *mut i32);

    /// [`crate::geometry::parallel_planes`]
    pub fn GEPLEL(triangle_1: *const f64, triangle_2: *const f64) -> i32;

    /// [`crate::geometry::parallel_sides`]
    pub fn GEPSID(triangle_1: *const f64, triangle_2: *const f64, side_1: *mut i32, side_2: *mut i32) -> i32;

    /// [`crate::geometry::rectangular`]
    pub fn GERECT(quadrilateral: *const f64) -> i32;

    /// [`crate::geometry::facing`]
    pub fn GETILT(triangle: *const f64, azimuth: *mut f64, tilt: *mut f64);

    /// [`crate::geometry::local_coordinates`]
    pub fn GELCAL(
        quadrilateral_1: *const f64, quadrilateral_2: *const f64, local_1: *mut f64, local_2: *mut f64,
    );

    /// [`crate::geometry::to_local`]
    pub fn GETRNS(corners: *mut f64, x_axis: *const f64, y_axis: *const f64, z_axis: *const f64);

    /// [`crate::geometry::meeting_point`]
    pub fn GEMEET(
        line_1_start: *const f32, line_1_end: *const f32, line_2_start: *const f32, line_2_end: *const f32,
        meeting_point: *mut f32,
    );

    /// [`crate::geometry::crossing_point`]
    pub fn GECROS(
        segment_1_start: *const f32, segment_1_end: *const f32, segment_2_start: *const f32,
        segment_2_end: *const f32, crossing_point: *mut f32,
    );

    /// [`crate::geometry::in_span`]
    pub fn GEINLN(first_end: *const f32, second_end: *const f32, point: *const f32) -> f32;

    /// [`crate::geometry::ahead_and_nearer`]
    pub fn GEINLN2(first_end: *const f32, second_end: *const f32, point: *const f32) -> f32;

    /// [`crate::geometry::coincide`]
    pub fn GECOIN(x_1: *const f32, y_1: *const f32, x_2: *const f32, y_2: *const f32) -> i32;

    /// [`crate::geometry::side_of_line`]
    pub fn IGEPNT(line_start: *const f32, line_end: *const f32, point: *const f32) -> i32;

    /// [`crate::geometry::back_azimuth`]
    pub fn BORI(angle: *const f32) -> f32;

    /// [`crate::geometry::direction_to`]
    pub fn GESUNV(solar_altitude: *const f32, solar_azimuth: *const f32, direction: *mut f32);

    /// [`crate::geometry::surface_axes`]
    pub fn GERSET(
        surface_azimuth: *const f32, tilt: *const f32, rotation_matrix: *mut f32, inverse_matrix: *mut f32,
    );

    /// [`crate::geometry::local_to_global`]
    pub fn GERAXI(local_vector: *const f32, rotation_matrix: *const f32, global_vector: *mut f32);

    /// [`crate::geometry::global_to_local`]
    pub fn GERAX2(global_vector: *const f32, rotation_matrix: *const f32, local_vector: *mut f32);

    /// [`crate::geometry::plan_area`]
    pub fn GEAPOL(x: *const f32, y: *const f32, vertices: *const i32) -> f32;

    /// [`crate::geometry::signed_plan_area`]
    pub fn GEAPO2(x: *const f32, y: *const f32, vertices: *const i32) -> f32;

    /// [`crate::geometry::area_in_space`]
    pub fn GEAPO3(x: *const f32, y: *const f32, z: *const f32, vertices: *const i32) -> f32;

    /// [`crate::geometry::polygon_orientation`]
    pub fn GEASO(
        vertices: *const i32, polygon: *const f32, area: *mut f32, tilt: *mut f32, back_azimuth: *mut f32,
    );

    /// [`crate::geometry::projection`]
    pub fn GEPROJ(
        plane_point: *const f32, plane_normal: *const f32, point: *const f32, direction: *const f32,
        projected_point: *mut f32,
    );

    /// [`crate::geometry::forward_projection`]
    pub fn GEPROJ2(
        plane_point: *const f32, plane_normal: *const f32, point: *const f32, direction: *const f32,
        projected_point: *mut f32,
    );

    /// [`crate::geometry::forward_projection_or_start`]
    pub fn GEPROJ3(
        plane_point: *const f32, plane_normal: *const f32, point: *const f32, direction: *const f32,
        projected_point: *mut f32,
    );

    /// [`crate::geometry::dot_product`]
    pub fn GEDOTP(vector_a: *const f32, vector_b: *const f32) -> f32;

    /// [`crate::geometry::dot_product_in_double`]
    pub fn GEDTDP(vector_a: *const f64, vector_b: *const f64) -> f64;

    /// [`crate::geometry::cross_product`]
    pub fn GEXPRO(vector_a: *const f32, vector_b: *const f32, cross_product: *mut f32);

    /// [`crate::geometry::cross_product_in_double`]
    pub fn GEXPDP(vector_a: *const f64, vector_b: *const f64, cross_product: *mut f64);

    /// [`crate::geometry::length`]
    pub fn GEVMOD(vector: *const f32) -> f32;

    /// [`crate::geometry::length_in_double`]
    pub fn GEVMDP(vector: *const f64) -> f64;
}
