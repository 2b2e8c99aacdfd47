// Produced from the catalogue of routines (catalogue/); do not edit.

//! Building fabric, unchecked.

use crate::fabric::*;
use crate::{check, elements, sys, Error, Input};
use std::ptr::addr_of_mut;

/// [`crate::fabric::cyclic_response`] without checks.
pub fn cyclic_response(
    thickness: &[f32], conductivity: &[f32], density: &[f32], specific_heat: &[f32], inside_resistance: f32,
    outside_resistance: f32, harmonic: i32, element_kind: impl Into<i32>,
) -> Result<CyclicResponse, Error> {
    let layers = check::count("fabric::cyclic_response", &[
        ("thickness", thickness.len()), ("conductivity", conductivity.len()), ("density", density.len()),
        ("specific_heat", specific_heat.len()),
    ])?;
    let element_kind: i32 = element_kind.into();
    let mut results = CyclicResponse {
        admittance: f32::NAN, admittance_lead: f32::NAN, decrement_factor: f32::NAN, decrement_lag: f32::NAN,
        surface_factor: f32::NAN, surface_factor_lag: f32::NAN, u_value: f32::NAN,
    };
    unsafe { sys::TPADMT(
        thickness.as_ptr(), conductivity.as_ptr(), density.as_ptr(), specific_heat.as_ptr(), &inside_resistance,
        &outside_resistance, &layers, &harmonic, &element_kind, &mut results.admittance,
        &mut results.admittance_lead, &mut results.decrement_factor, &mut results.decrement_lag,
        &mut results.surface_factor, &mut results.surface_factor_lag, &mut results.u_value,
    ) };
    Ok(results)
}

/// [`crate::fabric::vertical_cavity_resistance`] without checks.
pub fn vertical_cavity_resistance(cavity_width: f32) -> f32 {
    unsafe { sys::TPRCAV(&cavity_width) }
}

/// [`crate::fabric::air_cavity_resistance`] without checks.
pub fn air_cavity_resistance(tilt: f32, cavity_width: f32, emissivity_1: f32, emissivity_2: f32) -> f32 {
    unsafe { sys::TPRCA2(&tilt, &cavity_width, &emissivity_1, &emissivity_2) }
}

/// [`crate::fabric::gas_cavity_resistance`] without checks.
pub fn gas_cavity_resistance(
    tilt: f32, cavity_width: f32, emissivity_1: f32, emissivity_2: f32, density: f32, conductivity: f32,
    specific_heat: f32, viscosity: f32,
) -> f32 {
    unsafe { sys::TPRCAX(
        &tilt, &cavity_width, &emissivity_1, &emissivity_2, &density, &conductivity, &specific_heat, &viscosity,
    ) }
}

/// [`crate::fabric::total_vapour_resistance`] without checks.
pub fn total_vapour_resistance(thickness: &[f32], vapour_resistivity: &[f32]) -> Result<f32, Error> {
    let layers = check::count("fabric::total_vapour_resistance", &[
        ("thickness", thickness.len()), ("vapour_resistivity", vapour_resistivity.len()),
    ])?;
    let mut result = f32::NAN;
    unsafe { sys::TPDAMP(thickness.as_ptr(), vapour_resistivity.as_ptr(), &layers, &mut result) };
    Ok(result)
}

/// [`crate::fabric::condensation_profile`] without checks.
pub fn condensation_profile(
    thickness: &[f32], conductivity: &[f32], vapour_resistivity: &[f32], inside_resistance: f32,
    outside_resistance: f32, inside_temperature: f32, outside_temperature: f32, inside_humidity: f32,
    outside_humidity: f32,
) -> Result<CondensationProfile, Error> {
    let layers = check::count("fabric::condensation_profile", &[
        ("thickness", thickness.len()), ("conductivity", conductivity.len()),
        ("vapour_resistivity", vapour_resistivity.len()),
    ])?;
    let mut results = CondensationProfile {
        interface_temperature: [f32::NAN; 21], interface_vapour_pressure: [f32::NAN; 21],
        interface_saturation_pressure: [f32::NAN; 21],
    };
    unsafe { sys::TPGRAD(
        thickness.as_ptr(), conductivity.as_ptr(), vapour_resistivity.as_ptr(), &inside_resistance,
        &outside_resistance, &layers, &inside_temperature, &outside_temperature, &inside_humidity,
        &outside_humidity, results.interface_temperature.as_mut_ptr(),
        results.interface_vapour_pressure.as_mut_ptr(), results.interface_saturation_pressure.as_mut_ptr(),
    ) };
    Ok(results)
}

/// [`crate::fabric::condenses_within_layer`] without checks.
pub fn condenses_within_layer(
    warm_temperature: f32, cold_temperature: f32, warm_vapour_pressure: f32, cold_vapour_pressure: f32,
) -> i32 {
    unsafe { sys::ITPCON(&warm_temperature, &cold_temperature, &warm_vapour_pressure, &cold_vapour_pressure) }
}

/// [`crate::fabric::element_property`] without checks.
pub fn element_property(element_records: &[[f32; 10]], record_number: i32, item: i32) -> Result<f32, Error> {
    let record_count = check::count("fabric::element_property", &[("element_records", element_records.len())])?;
    Ok(unsafe { sys::BELDAT(element_records.as_ptr().cast(), &record_count, &record_number, &item) })
}

/// [`crate::fabric::natural_convection_coefficient`] without checks.
pub fn natural_convection_coefficient(
    temperature_difference: f32, characteristic_length: f32, heat_flow_direction: impl Into<i32>,
) -> f32 {
    let heat_flow_direction: i32 = heat_flow_direction.into();
    unsafe { sys::TPHCON(&temperature_difference, &characteristic_length, &heat_flow_direction) }
}

/// [`crate::fabric::pack_two_fractions`] without checks.
pub fn pack_two_fractions(
    packing: impl Into<i32>, packed_number: f32, fraction_1: f32, fraction_2: f32,
) -> PackTwoFractions {
    let packing: i32 = packing.into();
    let mut results = PackTwoFractions { packed_number, fraction_1, fraction_2 };
    unsafe { sys::TPCOLW(
        &packing, &mut results.packed_number, &mut results.fraction_1, &mut results.fraction_2,
    ) };
    results
}

/// [`crate::fabric::pack_three_fractions`] without checks.
pub fn pack_three_fractions(
    packing: impl Into<i32>, packed_number: f32, fraction_1: f32, fraction_2: f32, fraction_3: f32,
) -> PackThreeFractions {
    let packing: i32 = packing.into();
    let mut results = PackThreeFractions { packed_number, fraction_1, fraction_2, fraction_3 };
    unsafe { sys::TPCOLT(
        &packing, &mut results.packed_number, &mut results.fraction_1, &mut results.fraction_2,
        &mut results.fraction_3,
    ) };
    results
}

/// [`crate::fabric::pack_three_fractions_third_first`] without checks.
pub fn pack_three_fractions_third_first(
    packing: impl Into<i32>, packed_number: f32, fraction_3: f32, fraction_1: f32, fraction_2: f32,
) -> PackThreeFractionsThirdFirst {
    let packing: i32 = packing.into();
    let mut results = PackThreeFractionsThirdFirst { packed_number, fraction_3, fraction_1, fraction_2 };
    unsafe { sys::TPCOLW2(
        &packing, &mut results.packed_number, &mut results.fraction_3, &mut results.fraction_1,
        &mut results.fraction_2,
    ) };
    results
}

/// [`crate::fabric::pack_pane`] without checks.
pub fn pack_pane(
    packing: impl Into<i32>, packed_number: f32, absorptance: f32, reflectance_1: f32, reflectance_2: f32,
) -> PackPane {
    let packing: i32 = packing.into();
    let mut results = PackPane { packed_number, absorptance, reflectance_1, reflectance_2 };
    unsafe { sys::TPCOSW(
        &packing, &mut results.packed_number, &mut results.absorptance, &mut results.reflectance_1,
        &mut results.reflectance_2,
    ) };
    results
}

/// [`crate::fabric::surface_resistance`] without checks.
pub fn surface_resistance(surface: impl Into<i32>, tilt: f32, exposure: impl Into<i32>) -> f32 {
    let surface: i32 = surface.into();
    let exposure: i32 = exposure.into();
    unsafe { sys::TPRSUR(&surface, &tilt, &exposure) }
}

/// [`crate::fabric::surface_resistance_at_emissivity`] without checks.
pub fn surface_resistance_at_emissivity(
    surface: impl Into<i32>, tilt: f32, exposure: impl Into<i32>, emissivity: f32,
) -> f32 {
    let surface: i32 = surface.into();
    let exposure: i32 = exposure.into();
    unsafe { sys::TPRSU2(&surface, &tilt, &exposure, &emissivity) }
}

/// [`crate::fabric::u_value`] without checks.
pub fn u_value(
    thickness: &[f32], conductivity: &[f32], surface_resistance_1: f32, surface_resistance_2: f32,
) -> Result<f32, Error> {
    let layers = check::count("fabric::u_value", &[
        ("thickness", thickness.len()), ("conductivity", conductivity.len()),
    ])?;
    let mut result = f32::NAN;
    unsafe { sys::TPUVAL(
        thickness.as_ptr(), conductivity.as_ptr(), &surface_resistance_1, &surface_resistance_2, &layers,
        &mut result,
    ) };
    Ok(result)
}

/// [`crate::fabric::u_value_at_tilt_and_exposure`] without checks.
pub fn u_value_at_tilt_and_exposure(u_value: f32, tilt: f32, exposure: impl Into<i32>) -> f32 {
    let exposure: i32 = exposure.into();
    unsafe { sys::TPUMOD(&u_value, &tilt, &exposure) }
}

/// [`crate::fabric::window_parameters`] without checks.
pub fn window_parameters(
    panes: i32, pane_kind_1: impl Into<i32>, emissivity_1: f32, pane_kind_2: impl Into<i32>,
    emissivity_2: f32, pane_kind_3: impl Into<i32>, emissivity_3: f32, cavity_width_1: f32,
    cavity_width_2: f32, outer_surface: impl Into<i32>, exposure: impl Into<i32>, tilt: f32,
) -> WindowParameters {
    let pane_kind_1: i32 = pane_kind_1.into();
    let pane_kind_2: i32 = pane_kind_2.into();
    let pane_kind_3: i32 = pane_kind_3.into();
    let outer_surface: i32 = outer_surface.into();
    let exposure: i32 = exposure.into();
    let mut results = WindowParameters {
        admittance: f32::NAN, admittance_lead: f32::NAN, decrement_factor: f32::NAN, decrement_lag: f32::NAN,
        surface_factor: f32::NAN, surface_factor_lag: f32::NAN, u_value: f32::NAN,
    };
    unsafe { sys::TPWNDO(
        &panes, &pane_kind_1, &emissivity_1, &pane_kind_2, &emissivity_2, &pane_kind_3, &emissivity_3,
        &cavity_width_1, &cavity_width_2, &outer_surface, &exposure, &tilt, &0.0, &mut results.admittance,
        &mut results.admittance_lead, &mut results.decrement_factor, &mut results.decrement_lag,
        &mut results.surface_factor, &mut results.surface_factor_lag, &mut results.u_value,
    ) };
    results
}

/// Functions of whole arrays.
pub mod arrays {
    use super::*;

    /// [`crate::fabric::vertical_cavity_resistance`] of whole arrays, without checks.
    pub fn vertical_cavity_resistance<'a>(cavity_width: impl Into<Input<'a, f32>>) -> Result<Vec<f32>, Error> {
        let cavity_width = cavity_width.into();
        let lengths = [cavity_width.length("cavity_width")];
        let mut results = elements::results::<f32>("fabric::vertical_cavity_resistance", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_vertical_cavity_resistance(
            count, cavity_width.first(), cavity_width.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::fabric::air_cavity_resistance`] of whole arrays, without checks.
    pub fn air_cavity_resistance<'a>(
        tilt: impl Into<Input<'a, f32>>, cavity_width: impl Into<Input<'a, f32>>,
        emissivity_1: impl Into<Input<'a, f32>>, emissivity_2: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let tilt = tilt.into();
        let cavity_width = cavity_width.into();
        let emissivity_1 = emissivity_1.into();
        let emissivity_2 = emissivity_2.into();
        let lengths = [
            tilt.length("tilt"), cavity_width.length("cavity_width"), emissivity_1.length("emissivity_1"),
            emissivity_2.length("emissivity_2"),
        ];
        let mut results = elements::results::<f32>("fabric::air_cavity_resistance", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_air_cavity_resistance(
            count, tilt.first(), tilt.stride(), cavity_width.first(), cavity_width.stride(),
            emissivity_1.first(), emissivity_1.stride(), emissivity_2.first(), emissivity_2.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::fabric::gas_cavity_resistance`] of whole arrays, without checks.
    pub fn gas_cavity_resistance<'a>(
        tilt: impl Into<Input<'a, f32>>, cavity_width: impl Into<Input<'a, f32>>,
        emissivity_1: impl Into<Input<'a, f32>>, emissivity_2: impl Into<Input<'a, f32>>,
        density: impl Into<Input<'a, f32>>, conductivity: impl Into<Input<'a, f32>>,
        specific_heat: impl Into<Input<'a, f32>>, viscosity: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let tilt = tilt.into();
        let cavity_width = cavity_width.into();
        let emissivity_1 = emissivity_1.into();
        let emissivity_2 = emissivity_2.into();
        let density = density.into();
        let conductivity = conductivity.into();
        let specific_heat = specific_heat.into();
        let viscosity = viscosity.into();
        let lengths = [
            tilt.length("tilt"), cavity_width.length("cavity_width"), emissivity_1.length("emissivity_1"),
            emissivity_2.length("emissivity_2"), density.length("density"), conductivity.length("conductivity"),
            specific_heat.length("specific_heat"), viscosity.length("viscosity"),
        ];
        let mut results = elements::results::<f32>("fabric::gas_cavity_resistance", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_gas_cavity_resistance(
            count, tilt.first(), tilt.stride(), cavity_width.first(), cavity_width.stride(),
            emissivity_1.first(), emissivity_1.stride(), emissivity_2.first(), emissivity_2.stride(),
            density.first(), density.stride(), conductivity.first(), conductivity.stride(),
            specific_heat.first(), specific_heat.stride(), viscosity.first(), viscosity.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::fabric::condenses_within_layer`] of whole arrays, without checks.
    pub fn condenses_within_layer<'a>(
        warm_temperature: impl Into<Input<'a, f32>>, cold_temperature: impl Into<Input<'a, f32>>,
        warm_vapour_pressure: impl Into<Input<'a, f32>>, cold_vapour_pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<i32>, Error> {
        let warm_temperature = warm_temperature.into();
        let cold_temperature = cold_temperature.into();
        let warm_vapour_pressure = warm_vapour_pressure.into();
        let cold_vapour_pressure = cold_vapour_pressure.into();
        let lengths = [
            warm_temperature.length("warm_temperature"), cold_temperature.length("cold_temperature"),
            warm_vapour_pressure.length("warm_vapour_pressure"),
            cold_vapour_pressure.length("cold_vapour_pressure"),
        ];
        let mut results = elements::results::<i32>("fabric::condenses_within_layer", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_condenses_within_layer(
            count, warm_temperature.first(), warm_temperature.stride(),
            cold_temperature.first(), cold_temperature.stride(),
            warm_vapour_pressure.first(), warm_vapour_pressure.stride(),
            cold_vapour_pressure.first(), cold_vapour_pressure.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::fabric::natural_convection_coefficient`] of whole arrays, without checks.
    pub fn natural_convection_coefficient<'a>(
        temperature_difference: impl Into<Input<'a, f32>>, characteristic_length: impl Into<Input<'a, f32>>,
        heat_flow_direction: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<f32>, Error> {
        let temperature_difference = temperature_difference.into();
        let characteristic_length = characteristic_length.into();
        let heat_flow_direction = heat_flow_direction.into();
        let lengths = [
            temperature_difference.length("temperature_difference"),
            characteristic_length.length("characteristic_length"),
            heat_flow_direction.length("heat_flow_direction"),
        ];
        let mut results = elements::results::<f32>("fabric::natural_convection_coefficient", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_natural_convection_coefficient(
            count, temperature_difference.first(), temperature_difference.stride(),
            characteristic_length.first(), characteristic_length.stride(),
            heat_flow_direction.first(), heat_flow_direction.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::fabric::pack_two_fractions`] of whole arrays, without checks.
    pub fn pack_two_fractions<'a>(
        packing: impl Into<Input<'a, i32>>, packed_number: impl Into<Input<'a, f32>>,
        fraction_1: impl Into<Input<'a, f32>>, fraction_2: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<PackTwoFractions>, Error> {
        let packing = packing.into();
        let packed_number = packed_number.into();
        let fraction_1 = fraction_1.into();
        let fraction_2 = fraction_2.into();
        let lengths = [
            packing.length("packing"), packed_number.length("packed_number"), fraction_1.length("fraction_1"),
            fraction_2.length("fraction_2"),
        ];
        let mut results = elements::results::<PackTwoFractions>("fabric::pack_two_fractions", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_pack_two_fractions(
            count, packing.first(), packing.stride(), packed_number.first(), packed_number.stride(),
            fraction_1.first(), fraction_1.stride(), fraction_2.first(), fraction_2.stride(),
            addr_of_mut!((*at).packed_number), stride, addr_of_mut!((*at).fraction_1), stride,
            addr_of_mut!((*at).fraction_2), stride,
        ) });
        Ok(results)
    }

    /// [`crate::fabric::pack_three_fractions`] of whole arrays, without checks.
    pub fn pack_three_fractions<'a>(
        packing: impl Into<Input<'a, i32>>, packed_number: impl Into<Input<'a, f32>>,
        fraction_1: impl Into<Input<'a, f32>>, fraction_2: impl Into<Input<'a, f32>>,
        fraction_3: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<PackThreeFractions>, Error> {
        let packing = packing.into();
        let packed_number = packed_number.into();
        let fraction_1 = fraction_1.into();
        let fraction_2 = fraction_2.into();
        let fraction_3 = fraction_3.into();
        let lengths = [
            packing.length("packing"), packed_number.length("packed_number"), fraction_1.length("fraction_1"),
            fraction_2.length("fraction_2"), fraction_3.length("fraction_3"),
        ];
        let mut results = elements::results::<PackThreeFractions>("fabric::pack_three_fractions", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_pack_three_fractions(
            count, packing.first(), packing.stride(), packed_number.first(), packed_number.stride(),
            fraction_1.first(), fraction_1.stride(), fraction_2.first(), fraction_2.stride(),
            fraction_3.first(), fraction_3.stride(), addr_of_mut!((*at).packed_number), stride,
            addr_of_mut!((*at).fraction_1), stride, addr_of_mut!((*at).fraction_2), stride,
            addr_of_mut!((*at).fraction_3), stride,
        ) });
        Ok(results)
    }

    /// [`crate::fabric::pack_three_fractions_third_first`] of whole arrays, without checks.
    pub fn pack_three_fractions_third_first<'a>(
        packing: impl Into<Input<'a, i32>>, packed_number: impl Into<Input<'a, f32>>,
        fraction_3: impl Into<Input<'a, f32>>, fraction_1: impl Into<Input<'a, f32>>,
        fraction_2: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<PackThreeFractionsThirdFirst>, Error> {
        let packing = packing.into();
        let packed_number = packed_number.into();
        let fraction_3 = fraction_3.into();
        let fraction_1 = fraction_1.into();
        let fraction_2 = fraction_2.into();
        let lengths = [
            packing.length("packing"), packed_number.length("packed_number"), fraction_3.length("fraction_3"),
            fraction_1.length("fraction_1"), fraction_2.length("fraction_2"),
        ];
        let mut results = elements::results::<PackThreeFractionsThirdFirst>(
            "fabric::pack_three_fractions_third_first", &lengths,
        )?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_pack_three_fractions_third_first(
            count, packing.first(), packing.stride(), packed_number.first(), packed_number.stride(),
            fraction_3.first(), fraction_3.stride(), fraction_1.first(), fraction_1.stride(),
            fraction_2.first(), fraction_2.stride(), addr_of_mut!((*at).packed_number), stride,
            addr_of_mut!((*at).fraction_3), stride, addr_of_mut!((*at).fraction_1), stride,
            addr_of_mut!((*at).fraction_2), stride,
        ) });
        Ok(results)
    }

    /// [`crate::fabric::pack_pane`] of whole arrays, without checks.
    pub fn pack_pane<'a>(
        packing: impl Into<Input<'a, i32>>, packed_number: impl Into<Input<'a, f32>>,
        absorptance: impl Into<Input<'a, f32>>, reflectance_1: impl Into<Input<'a, f32>>,
        reflectance_2: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<PackPane>, Error> {
        let packing = packing.into();
        let packed_number = packed_number.into();
        let absorptance = absorptance.into();
        let reflectance_1 = reflectance_1.into();
        let reflectance_2 = reflectance_2.into();
        let lengths = [
            packing.length("packing"), packed_number.length("packed_number"), absorptance.length("absorptance"),
            reflectance_1.length("reflectance_1"), reflectance_2.length("reflectance_2"),
        ];
        let mut results = elements::results::<PackPane>("fabric::pack_pane", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_pack_pane(
            count, packing.first(), packing.stride(), packed_number.first(), packed_number.stride(),
            absorptance.first(), absorptance.stride(), reflectance_1.first(), reflectance_1.stride(),
            reflectance_2.first(), reflectance_2.stride(), addr_of_mut!((*at).packed_number), stride,
            addr_of_mut!((*at).absorptance), stride, addr_of_mut!((*at).reflectance_1), stride,
            addr_of_mut!((*at).reflectance_2), stride,
        ) });
        Ok(results)
    }

    /// [`crate::fabric::surface_resistance`] of whole arrays, without checks.
    pub fn surface_resistance<'a>(
        surface: impl Into<Input<'a, i32>>, tilt: impl Into<Input<'a, f32>>,
        exposure: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<f32>, Error> {
        let surface = surface.into();
        let tilt = tilt.into();
        let exposure = exposure.into();
        let lengths = [surface.length("surface"), tilt.length("tilt"), exposure.length("exposure")];
        let mut results = elements::results::<f32>("fabric::surface_resistance", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_surface_resistance(
            count, surface.first(), surface.stride(), tilt.first(), tilt.stride(),
            exposure.first(), exposure.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::fabric::surface_resistance_at_emissivity`] of whole arrays, without checks.
    pub fn surface_resistance_at_emissivity<'a>(
        surface: impl Into<Input<'a, i32>>, tilt: impl Into<Input<'a, f32>>,
        exposure: impl Into<Input<'a, i32>>, emissivity: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let surface = surface.into();
        let tilt = tilt.into();
        let exposure = exposure.into();
        let emissivity = emissivity.into();
        let lengths = [
            surface.length("surface"), tilt.length("tilt"), exposure.length("exposure"),
            emissivity.length("emissivity"),
        ];
        let mut results = elements::results::<f32>("fabric::surface_resistance_at_emissivity", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_surface_resistance_at_emissivity(
            count, surface.first(), surface.stride(), tilt.first(), tilt.stride(),
            exposure.first(), exposure.stride(), emissivity.first(), emissivity.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::fabric::u_value_at_tilt_and_exposure`] of whole arrays, without checks.
    pub fn u_value_at_tilt_and_exposure<'a>(
        u_value: impl Into<Input<'a, f32>>, tilt: impl Into<Input<'a, f32>>,
        exposure: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<f32>, Error> {
        let u_value = u_value.into();
        let tilt = tilt.into();
        let exposure = exposure.into();
        let lengths = [u_value.length("u_value"), tilt.length("tilt"), exposure.length("exposure")];
        let mut results = elements::results::<f32>("fabric::u_value_at_tilt_and_exposure", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_u_value_at_tilt_and_exposure(
            count, u_value.first(), u_value.stride(), tilt.first(), tilt.stride(),
            exposure.first(), exposure.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::fabric::window_parameters`] of whole arrays, without checks.
    pub fn window_parameters<'a>(
        panes: impl Into<Input<'a, i32>>, pane_kind_1: impl Into<Input<'a, i32>>,
        emissivity_1: impl Into<Input<'a, f32>>, pane_kind_2: impl Into<Input<'a, i32>>,
        emissivity_2: impl Into<Input<'a, f32>>, pane_kind_3: impl Into<Input<'a, i32>>,
        emissivity_3: impl Into<Input<'a, f32>>, cavity_width_1: impl Into<Input<'a, f32>>,
        cavity_width_2: impl Into<Input<'a, f32>>, outer_surface: impl Into<Input<'a, i32>>,
        exposure: impl Into<Input<'a, i32>>, tilt: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<WindowParameters>, Error> {
        let panes = panes.into();
        let pane_kind_1 = pane_kind_1.into();
        let emissivity_1 = emissivity_1.into();
        let pane_kind_2 = pane_kind_2.into();
        let emissivity_2 = emissivity_2.into();
        let pane_kind_3 = pane_kind_3.into();
        let emissivity_3 = emissivity_3.into();
        let cavity_width_1 = cavity_width_1.into();
        let cavity_width_2 = cavity_width_2.into();
        let outer_surface = outer_surface.into();
        let exposure = exposure.into();
        let tilt = tilt.into();
        let lengths = [
            panes.length("panes"), pane_kind_1.length("pane_kind_1"), emissivity_1.length("emissivity_1"),
            pane_kind_2.length("pane_kind_2"), emissivity_2.length("emissivity_2"),
            pane_kind_3.length("pane_kind_3"), emissivity_3.length("emissivity_3"),
            cavity_width_1.length("cavity_width_1"), cavity_width_2.length("cavity_width_2"),
            outer_surface.length("outer_surface"), exposure.length("exposure"), tilt.length("tilt"),
        ];
        let mut results = elements::results::<WindowParameters>("fabric::window_parameters", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_window_parameters(
            count, panes.first(), panes.stride(), pane_kind_1.first(), pane_kind_1.stride(),
            emissivity_1.first(), emissivity_1.stride(), pane_kind_2.first(), pane_kind_2.stride(),
            emissivity_2.first(), emissivity_2.stride(), pane_kind_3.first(), pane_kind_3.stride(),
            emissivity_3.first(), emissivity_3.stride(), cavity_width_1.first(), cavity_width_1.stride(),
            cavity_width_2.first(), cavity_width_2.stride(), outer_surface.first(), outer_surface.stride(),
            exposure.first(), exposure.stride(), tilt.first(), tilt.stride(),
            addr_of_mut!((*at).admittance), stride, addr_of_mut!((*at).admittance_lead), stride,
            addr_of_mut!((*at).decrement_factor), stride, addr_of_mut!((*at).decrement_lag), stride,
            addr_of_mut!((*at).surface_factor), stride, addr_of_mut!((*at).surface_factor_lag), stride,
            addr_of_mut!((*at).u_value), stride,
        ) });
        Ok(results)
    }
}
