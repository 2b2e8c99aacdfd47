// Produced from the catalogue of routines (catalogue/); do not edit.

//! Moist air, unchecked.

use crate::psychro::*;
use crate::{elements, sys, Error, Input};
use std::ptr::addr_of_mut;

/// [`crate::psychro::dry_air_enthalpy`] without checks.
pub fn dry_air_enthalpy(temperature: f32) -> f32 {
    unsafe { sys::PSHDRY(&temperature) }
}

/// [`crate::psychro::water_vapour_enthalpy`] without checks.
pub fn water_vapour_enthalpy(temperature: f32) -> f32 {
    unsafe { sys::PSHVAP(&temperature) }
}

/// [`crate::psychro::dry_air_specific_heat`] without checks.
pub fn dry_air_specific_heat(temperature: f32) -> f32 {
    unsafe { sys::PSCPDR(&temperature) }
}

/// [`crate::psychro::water_vapour_specific_heat`] without checks.
pub fn water_vapour_specific_heat(temperature: f32) -> f32 {
    unsafe { sys::PSCPVA(&temperature) }
}

/// [`crate::psychro::latent_heat`] without checks.
pub fn latent_heat(temperature: f32) -> f32 {
    unsafe { sys::PSHFG(&temperature) }
}

/// [`crate::psychro::dry_bulb_from_vapour_pressure_and_relative_humidity`] without checks.
pub fn dry_bulb_from_vapour_pressure_and_relative_humidity(
    vapour_pressure: f32, relative_humidity: f32,
) -> f32 {
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_dry_bulb_from_vapour_pressure_and_relative_humidity(
        1, &vapour_pressure, 0, &relative_humidity, 0, &mut result, 0,
    ) });
    result
}

/// [`crate::psychro::dry_bulb_from_vapour_pressure_and_percentage_saturation`] without checks.
pub fn dry_bulb_from_vapour_pressure_and_percentage_saturation(
    vapour_pressure: f32, percentage_saturation: f32, pressure: f32,
) -> f32 {
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_dry_bulb_from_vapour_pressure_and_percentage_saturation(
        1, &vapour_pressure, 0, &percentage_saturation, 0, &pressure, 0, &mut result, 0,
    ) });
    result
}

/// [`crate::psychro::dry_bulb_from_moisture_content_and_relative_humidity`] without checks.
pub fn dry_bulb_from_moisture_content_and_relative_humidity(
    moisture_content: f32, relative_humidity: f32, pressure: f32,
) -> f32 {
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_dry_bulb_from_moisture_content_and_relative_humidity(
        1, &moisture_content, 0, &relative_humidity, 0, &pressure, 0, &mut result, 0,
    ) });
    result
}

/// [`crate::psychro::dry_bulb_from_moisture_content_and_percentage_saturation`] without checks.
pub fn dry_bulb_from_moisture_content_and_percentage_saturation(
    moisture_content: f32, percentage_saturation: f32, pressure: f32,
) -> f32 {
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_dry_bulb_from_moisture_content_and_percentage_saturation(
        1, &moisture_content, 0, &percentage_saturation, 0, &pressure, 0, &mut result, 0,
    ) });
    result
}

/// [`crate::psychro::dry_bulb_from_enthalpy_and_moisture_content`] without checks.
pub fn dry_bulb_from_enthalpy_and_moisture_content(enthalpy: f32, moisture_content: f32) -> f32 {
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_dry_bulb_from_enthalpy_and_moisture_content(
        1, &enthalpy, 0, &moisture_content, 0, &mut result, 0,
    ) });
    result
}

/// [`crate::psychro::dry_bulb_from_enthalpy_and_vapour_pressure`] without checks.
pub fn dry_bulb_from_enthalpy_and_vapour_pressure(enthalpy: f32, vapour_pressure: f32, pressure: f32) -> f32 {
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_dry_bulb_from_enthalpy_and_vapour_pressure(
        1, &enthalpy, 0, &vapour_pressure, 0, &pressure, 0, &mut result, 0,
    ) });
    result
}

/// [`crate::psychro::dry_bulb_from_enthalpy_and_relative_humidity`] without checks.
pub fn dry_bulb_from_enthalpy_and_relative_humidity(
    enthalpy: f32, relative_humidity: f32, pressure: f32,
) -> f32 {
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_dry_bulb_from_enthalpy_and_relative_humidity(
        1, &enthalpy, 0, &relative_humidity, 0, &pressure, 0, &mut result, 0,
    ) });
    result
}

/// [`crate::psychro::dry_bulb_from_enthalpy_and_percentage_saturation`] without checks.
pub fn dry_bulb_from_enthalpy_and_percentage_saturation(
    enthalpy: f32, percentage_saturation: f32, pressure: f32,
) -> f32 {
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_dry_bulb_from_enthalpy_and_percentage_saturation(
        1, &enthalpy, 0, &percentage_saturation, 0, &pressure, 0, &mut result, 0,
    ) });
    result
}

/// [`crate::psychro::dry_bulb_from_wet_bulb_and_vapour_pressure`] without checks.
pub fn dry_bulb_from_wet_bulb_and_vapour_pressure(
    wet_bulb: f32, vapour_pressure: f32, pressure: f32, psychrometer: impl Into<i32>,
) -> f32 {
    let psychrometer: i32 = psychrometer.into();
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_dry_bulb_from_wet_bulb_and_vapour_pressure(
        1, &wet_bulb, 0, &vapour_pressure, 0, &pressure, 0, &psychrometer, 0, &mut result, 0,
    ) });
    result
}

/// [`crate::psychro::dry_bulb_from_wet_bulb_and_moisture_content`] without checks.
pub fn dry_bulb_from_wet_bulb_and_moisture_content(
    wet_bulb: f32, moisture_content: f32, pressure: f32, psychrometer: impl Into<i32>,
) -> f32 {
    let psychrometer: i32 = psychrometer.into();
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_dry_bulb_from_wet_bulb_and_moisture_content(
        1, &wet_bulb, 0, &moisture_content, 0, &pressure, 0, &psychrometer, 0, &mut result, 0,
    ) });
    result
}

/// [`crate::psychro::dry_bulb_from_wet_bulb_and_relative_humidity`] without checks.
pub fn dry_bulb_from_wet_bulb_and_relative_humidity(
    wet_bulb: f32, relative_humidity: f32, pressure: f32, psychrometer: impl Into<i32>,
) -> f32 {
    let psychrometer: i32 = psychrometer.into();
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_dry_bulb_from_wet_bulb_and_relative_humidity(
        1, &wet_bulb, 0, &relative_humidity, 0, &pressure, 0, &psychrometer, 0, &mut result, 0,
    ) });
    result
}

/// [`crate::psychro::dry_bulb_from_wet_bulb_and_percentage_saturation`] without checks.
pub fn dry_bulb_from_wet_bulb_and_percentage_saturation(
    wet_bulb: f32, percentage_saturation: f32, pressure: f32, psychrometer: impl Into<i32>,
) -> f32 {
    let psychrometer: i32 = psychrometer.into();
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_dry_bulb_from_wet_bulb_and_percentage_saturation(
        1, &wet_bulb, 0, &percentage_saturation, 0, &pressure, 0, &psychrometer, 0, &mut result, 0,
    ) });
    result
}

/// [`crate::psychro::dry_bulb_from_wet_bulb_and_enthalpy`] without checks.
pub fn dry_bulb_from_wet_bulb_and_enthalpy(
    wet_bulb: f32, enthalpy: f32, pressure: f32, psychrometer: impl Into<i32>,
) -> f32 {
    let psychrometer: i32 = psychrometer.into();
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_dry_bulb_from_wet_bulb_and_enthalpy(
        1, &wet_bulb, 0, &enthalpy, 0, &pressure, 0, &psychrometer, 0, &mut result, 0,
    ) });
    result
}

/// [`crate::psychro::adiabatic_mixing`] without checks.
pub fn adiabatic_mixing(
    first_air_flow: f32, first_dry_bulb: f32, first_moisture_content: f32, second_air_flow: f32,
    second_dry_bulb: f32, second_moisture_content: f32,
) -> AdiabaticMixing {
    let mut results = AdiabaticMixing { dry_bulb: f32::NAN, moisture_content: f32::NAN, enthalpy: f32::NAN };
    elements::done(unsafe { sys::quorvel_adiabatic_mixing(
        1, &first_air_flow, 0, &first_dry_bulb, 0, &first_moisture_content, 0, &second_air_flow, 0,
        &second_dry_bulb, 0, &second_moisture_content, 0, &mut results.dry_bulb, 0,
        &mut results.moisture_content, 0, &mut results.enthalpy, 0,
    ) });
    results
}

/// [`crate::psychro::moisture_content_from_psychrometer`] without checks.
pub fn moisture_content_from_psychrometer(
    dry_bulb: f32, wet_bulb: f32, pressure: f32, psychrometer: impl Into<i32>,
) -> f32 {
    let psychrometer: i32 = psychrometer.into();
    unsafe { sys::PSGS(&dry_bulb, &wet_bulb, &pressure, &psychrometer) }
}

/// [`crate::psychro::moisture_content`] without checks.
pub fn moisture_content(dry_bulb: f32, vapour_pressure: f32, pressure: f32) -> f32 {
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_moisture_content(
        1, &dry_bulb, 0, &vapour_pressure, 0, &pressure, 0, &mut result, 0,
    ) });
    result
}

/// [`crate::psychro::vapour_pressure_from_moisture_content`] without checks.
pub fn vapour_pressure_from_moisture_content(dry_bulb: f32, moisture_content: f32, pressure: f32) -> f32 {
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_vapour_pressure_from_moisture_content(
        1, &dry_bulb, 0, &moisture_content, 0, &pressure, 0, &mut result, 0,
    ) });
    result
}

/// [`crate::psychro::moisture_content_from_percentage_saturation`] without checks.
pub fn moisture_content_from_percentage_saturation(
    dry_bulb: f32, percentage_saturation: f32, pressure: f32,
) -> f32 {
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_moisture_content_from_percentage_saturation(
        1, &dry_bulb, 0, &percentage_saturation, 0, &pressure, 0, &mut result, 0,
    ) });
    result
}

/// [`crate::psychro::moisture_content_from_enthalpy`] without checks.
pub fn moisture_content_from_enthalpy(dry_bulb: f32, enthalpy: f32) -> f32 {
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_moisture_content_from_enthalpy(
        1, &dry_bulb, 0, &enthalpy, 0, &mut result, 0,
    ) });
    result
}

/// [`crate::psychro::moist_air_density`] without checks.
pub fn moist_air_density(dry_bulb: f32, moisture_content: f32, pressure: f32) -> f32 {
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_moist_air_density(
        1, &dry_bulb, 0, &moisture_content, 0, &pressure, 0, &mut result, 0,
    ) });
    result
}

/// [`crate::psychro::percentage_saturation`] without checks.
pub fn percentage_saturation(dry_bulb: f32, moisture_content: f32, pressure: f32) -> f32 {
    unsafe { sys::PSPCST(&dry_bulb, &moisture_content, &pressure) }
}

/// [`crate::psychro::specific_enthalpy`] without checks.
pub fn specific_enthalpy(dry_bulb: f32, moisture_content: f32) -> f32 {
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_specific_enthalpy(
        1, &dry_bulb, 0, &moisture_content, 0, &mut result, 0,
    ) });
    result
}

/// [`crate::psychro::specific_enthalpy_from_psychrometer`] without checks.
pub fn specific_enthalpy_from_psychrometer(
    dry_bulb: f32, wet_bulb: f32, pressure: f32, psychrometer: impl Into<i32>,
) -> f32 {
    let psychrometer: i32 = psychrometer.into();
    unsafe { sys::PSHWET(&dry_bulb, &wet_bulb, &pressure, &psychrometer) }
}

/// [`crate::psychro::specific_volume`] without checks.
pub fn specific_volume(dry_bulb: f32, moisture_content: f32, pressure: f32) -> f32 {
    unsafe { sys::PSSPVL(&dry_bulb, &moisture_content, &pressure) }
}

/// [`crate::psychro::saturation_temperature_from_enthalpy`] without checks.
pub fn saturation_temperature_from_enthalpy(enthalpy: f32, pressure: f32) -> f32 {
    unsafe { sys::PSTSAT(&enthalpy, &pressure) }
}

/// [`crate::psychro::pool_evaporation`] without checks.
pub fn pool_evaporation(
    water_area: f32, wetted_area: f32, water_temperature: f32, dry_bulb: f32, moisture_content: f32,
    reference_temperature: f32, bathers: i32, reference_coefficient: f32, pressure: f32,
) -> PoolEvaporation {
    let mut results = PoolEvaporation {
        evaporation_rate: f32::NAN, latent_load: f32::NAN, convective_load: f32::NAN, reference_load: f32::NAN,
    };
    unsafe { sys::TPPOOL(
        &water_area, &wetted_area, &water_temperature, &dry_bulb, &moisture_content, &reference_temperature,
        &bathers, &reference_coefficient, &pressure, &mut results.evaporation_rate, &mut results.latent_load,
        &mut results.convective_load, &mut results.reference_load,
    ) };
    results
}

/// [`crate::psychro::pool_evaporation_from_wet_bulb`] without checks.
pub fn pool_evaporation_from_wet_bulb(
    water_area: f32, wetted_area: f32, water_temperature: f32, dry_bulb: f32, wet_bulb: f32,
    reference_temperature: f32, bathers: i32, reference_coefficient: f32, pressure: f32,
) -> PoolEvaporationFromWetBulb {
    let mut results = PoolEvaporationFromWetBulb {
        evaporation_rate: f32::NAN, latent_load: f32::NAN, convective_load: f32::NAN, reference_load: f32::NAN,
    };
    unsafe { sys::TPPOOL2(
        &water_area, &wetted_area, &water_temperature, &dry_bulb, &wet_bulb, &reference_temperature, &bathers,
        &reference_coefficient, &pressure, &mut results.evaporation_rate, &mut results.latent_load,
        &mut results.convective_load, &mut results.reference_load,
    ) };
    results
}

/// [`crate::psychro::saturation_pressure`] without checks.
pub fn saturation_pressure(temperature: f32) -> f32 {
    unsafe { sys::PSSVP(&temperature) }
}

/// [`crate::psychro::dew_point`] without checks.
pub fn dew_point(vapour_pressure: f32) -> f32 {
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_dew_point(1, &vapour_pressure, 0, &mut result, 0) });
    result
}

/// [`crate::psychro::vapour_pressure`] without checks.
pub fn vapour_pressure(dry_bulb: f32, relative_humidity: f32) -> f32 {
    unsafe { sys::PSVP(&dry_bulb, &relative_humidity) }
}

/// [`crate::psychro::relative_humidity`] without checks.
pub fn relative_humidity(dry_bulb: f32, vapour_pressure: f32) -> f32 {
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_relative_humidity(
        1, &dry_bulb, 0, &vapour_pressure, 0, &mut result, 0,
    ) });
    result
}

/// [`crate::psychro::vapour_pressure_from_psychrometer`] without checks.
pub fn vapour_pressure_from_psychrometer(
    dry_bulb: f32, wet_bulb: f32, pressure: f32, psychrometer: impl Into<i32>,
) -> f32 {
    let psychrometer: i32 = psychrometer.into();
    unsafe { sys::PSVAP(&dry_bulb, &wet_bulb, &pressure, &psychrometer) }
}

/// [`crate::psychro::weighted_temperature`] without checks.
pub fn weighted_temperature(first_temperature: f32, second_temperature: f32) -> f32 {
    unsafe { sys::PSTEFF(&first_temperature, &second_temperature) }
}

/// [`crate::psychro::psychrometer_wet_bulb`] without checks.
pub fn psychrometer_wet_bulb(
    dry_bulb: f32, relative_humidity: f32, pressure: f32, psychrometer: impl Into<i32>,
) -> f32 {
    let psychrometer: i32 = psychrometer.into();
    unsafe { sys::PSTWET(&dry_bulb, &relative_humidity, &pressure, &psychrometer) }
}

/// [`crate::psychro::wet_bulb_from_percentage_saturation`] without checks.
pub fn wet_bulb_from_percentage_saturation(
    dry_bulb: f32, percentage_saturation: f32, pressure: f32, psychrometer: impl Into<i32>,
) -> f32 {
    let psychrometer: i32 = psychrometer.into();
    unsafe { sys::PSTWB(&dry_bulb, &percentage_saturation, &pressure, &psychrometer) }
}

/// [`crate::psychro::wet_bulb_from_moisture_content`] without checks.
pub fn wet_bulb_from_moisture_content(
    dry_bulb: f32, moisture_content: f32, pressure: f32, psychrometer: impl Into<i32>,
) -> f32 {
    let psychrometer: i32 = psychrometer.into();
    unsafe { sys::PSWBLB(&dry_bulb, &moisture_content, &pressure, &psychrometer) }
}

/// [`crate::psychro::wet_bulb`] without checks.
pub fn wet_bulb(dry_bulb: f32, vapour_pressure: f32, pressure: f32, psychrometer: impl Into<i32>) -> f32 {
    let psychrometer: i32 = psychrometer.into();
    let mut result = f32::NAN;
    elements::done(unsafe { sys::quorvel_wet_bulb(
        1, &dry_bulb, 0, &vapour_pressure, 0, &pressure, 0, &psychrometer, 0, &mut result, 0,
    ) });
    result
}

/// Functions of whole arrays.
pub mod arrays {
    use super::*;

    /// [`crate::psychro::dry_air_enthalpy`] of whole arrays, without checks.
    pub fn dry_air_enthalpy<'a>(temperature: impl Into<Input<'a, f32>>) -> Result<Vec<f32>, Error> {
        let temperature = temperature.into();
        let lengths = [temperature.length("temperature")];
        let mut results = elements::results::<f32>("psychro::dry_air_enthalpy", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_dry_air_enthalpy(
            count, temperature.first(), temperature.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::water_vapour_enthalpy`] of whole arrays, without checks.
    pub fn water_vapour_enthalpy<'a>(temperature: impl Into<Input<'a, f32>>) -> Result<Vec<f32>, Error> {
        let temperature = temperature.into();
        let lengths = [temperature.length("temperature")];
        let mut results = elements::results::<f32>("psychro::water_vapour_enthalpy", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_water_vapour_enthalpy(
            count, temperature.first(), temperature.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::dry_air_specific_heat`] of whole arrays, without checks.
    pub fn dry_air_specific_heat<'a>(temperature: impl Into<Input<'a, f32>>) -> Result<Vec<f32>, Error> {
        let temperature = temperature.into();
        let lengths = [temperature.length("temperature")];
        let mut results = elements::results::<f32>("psychro::dry_air_specific_heat", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_dry_air_specific_heat(
            count, temperature.first(), temperature.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::water_vapour_specific_heat`] of whole arrays, without checks.
    pub fn water_vapour_specific_heat<'a>(temperature: impl Into<Input<'a, f32>>) -> Result<Vec<f32>, Error> {
        let temperature = temperature.into();
        let lengths = [temperature.length("temperature")];
        let mut results = elements::results::<f32>("psychro::water_vapour_specific_heat", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_water_vapour_specific_heat(
            count, temperature.first(), temperature.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::latent_heat`] of whole arrays, without checks.
    pub fn latent_heat<'a>(temperature: impl Into<Input<'a, f32>>) -> Result<Vec<f32>, Error> {
        let temperature = temperature.into();
        let lengths = [temperature.length("temperature")];
        let mut results = elements::results::<f32>("psychro::latent_heat", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_latent_heat(
            count, temperature.first(), temperature.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::dry_bulb_from_vapour_pressure_and_relative_humidity`] of whole arrays, without checks.
    pub fn dry_bulb_from_vapour_pressure_and_relative_humidity<'a>(
        vapour_pressure: impl Into<Input<'a, f32>>, relative_humidity: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let vapour_pressure = vapour_pressure.into();
        let relative_humidity = relative_humidity.into();
        let lengths = [vapour_pressure.length("vapour_pressure"), relative_humidity.length("relative_humidity")];
        let mut results = elements::results::<f32>(
            "psychro::dry_bulb_from_vapour_pressure_and_relative_humidity", &lengths,
        )?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_dry_bulb_from_vapour_pressure_and_relative_humidity(
            count, vapour_pressure.first(), vapour_pressure.stride(),
            relative_humidity.first(), relative_humidity.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::dry_bulb_from_vapour_pressure_and_percentage_saturation`] of whole arrays, without checks.
    pub fn dry_bulb_from_vapour_pressure_and_percentage_saturation<'a>(
        vapour_pressure: impl Into<Input<'a, f32>>, percentage_saturation: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let vapour_pressure = vapour_pressure.into();
        let percentage_saturation = percentage_saturation.into();
        let pressure = pressure.into();
        let lengths = [
            vapour_pressure.length("vapour_pressure"), percentage_saturation.length("percentage_saturation"),
            pressure.length("pressure"),
        ];
        let mut results = elements::results::<f32>(
            "psychro::dry_bulb_from_vapour_pressure_and_percentage_saturation", &lengths,
        )?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_dry_bulb_from_vapour_pressure_and_percentage_saturation(
            count, vapour_pressure.first(), vapour_pressure.stride(),
            percentage_saturation.first(), percentage_saturation.stride(), pressure.first(), pressure.stride(),
            at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::dry_bulb_from_moisture_content_and_relative_humidity`] of whole arrays, without checks.
    pub fn dry_bulb_from_moisture_content_and_relative_humidity<'a>(
        moisture_content: impl Into<Input<'a, f32>>, relative_humidity: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let moisture_content = moisture_content.into();
        let relative_humidity = relative_humidity.into();
        let pressure = pressure.into();
        let lengths = [
            moisture_content.length("moisture_content"), relative_humidity.length("relative_humidity"),
            pressure.length("pressure"),
        ];
        let mut results = elements::results::<f32>(
            "psychro::dry_bulb_from_moisture_content_and_relative_humidity", &lengths,
        )?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_dry_bulb_from_moisture_content_and_relative_humidity(
            count, moisture_content.first(), moisture_content.stride(),
            relative_humidity.first(), relative_humidity.stride(), pressure.first(), pressure.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::dry_bulb_from_moisture_content_and_percentage_saturation`] of whole arrays, without checks.
    pub fn dry_bulb_from_moisture_content_and_percentage_saturation<'a>(
        moisture_content: impl Into<Input<'a, f32>>, percentage_saturation: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let moisture_content = moisture_content.into();
        let percentage_saturation = percentage_saturation.into();
        let pressure = pressure.into();
        let lengths = [
            moisture_content.length("moisture_content"), percentage_saturation.length("percentage_saturation"),
            pressure.length("pressure"),
        ];
        let mut results = elements::results::<f32>(
            "psychro::dry_bulb_from_moisture_content_and_percentage_saturation", &lengths,
        )?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_dry_bulb_from_moisture_content_and_percentage_saturation(
            count, moisture_content.first(), moisture_content.stride(),
            percentage_saturation.first(), percentage_saturation.stride(), pressure.first(), pressure.stride(),
            at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::dry_bulb_from_enthalpy_and_moisture_content`] of whole arrays, without checks.
    pub fn dry_bulb_from_enthalpy_and_moisture_content<'a>(
        enthalpy: impl Into<Input<'a, f32>>, moisture_content: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let enthalpy = enthalpy.into();
        let moisture_content = moisture_content.into();
        let lengths = [enthalpy.length("enthalpy"), moisture_content.length("moisture_content")];
        let mut results = elements::results::<f32>(
            "psychro::dry_bulb_from_enthalpy_and_moisture_content", &lengths,
        )?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_dry_bulb_from_enthalpy_and_moisture_content(
            count, enthalpy.first(), enthalpy.stride(), moisture_content.first(), moisture_content.stride(),
            at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::dry_bulb_from_enthalpy_and_vapour_pressure`] of whole arrays, without checks.
    pub fn dry_bulb_from_enthalpy_and_vapour_pressure<'a>(
        enthalpy: impl Into<Input<'a, f32>>, vapour_pressure: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let enthalpy = enthalpy.into();
        let vapour_pressure = vapour_pressure.into();
        let pressure = pressure.into();
        let lengths = [
            enthalpy.length("enthalpy"), vapour_pressure.length("vapour_pressure"), pressure.length("pressure"),
        ];
        let mut results = elements::results::<f32>(
            "psychro::dry_bulb_from_enthalpy_and_vapour_pressure", &lengths,
        )?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_dry_bulb_from_enthalpy_and_vapour_pressure(
            count, enthalpy.first(), enthalpy.stride(), vapour_pressure.first(), vapour_pressure.stride(),
            pressure.first(), pressure.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::dry_bulb_from_enthalpy_and_relative_humidity`] of whole arrays, without checks.
    pub fn dry_bulb_from_enthalpy_and_relative_humidity<'a>(
        enthalpy: impl Into<Input<'a, f32>>, relative_humidity: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let enthalpy = enthalpy.into();
        let relative_humidity = relative_humidity.into();
        let pressure = pressure.into();
        let lengths = [
            enthalpy.length("enthalpy"), relative_humidity.length("relative_humidity"), pressure.length("pressure"),
        ];
        let mut results = elements::results::<f32>(
            "psychro::dry_bulb_from_enthalpy_and_relative_humidity", &lengths,
        )?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_dry_bulb_from_enthalpy_and_relative_humidity(
            count, enthalpy.first(), enthalpy.stride(), relative_humidity.first(), relative_humidity.stride(),
            pressure.first(), pressure.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::dry_bulb_from_enthalpy_and_percentage_saturation`] of whole arrays, without checks.
    pub fn dry_bulb_from_enthalpy_and_percentage_saturation<'a>(
        enthalpy: impl Into<Input<'a, f32>>, percentage_saturation: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let enthalpy = enthalpy.into();
        let percentage_saturation = percentage_saturation.into();
        let pressure = pressure.into();
        let lengths = [
            enthalpy.length("enthalpy"), percentage_saturation.length("percentage_saturation"),
            pressure.length("pressure"),
        ];
        let mut results = elements::results::<f32>(
            "psychro::dry_bulb_from_enthalpy_and_percentage_saturation", &lengths,
        )?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_dry_bulb_from_enthalpy_and_percentage_saturation(
            count, enthalpy.first(), enthalpy.stride(),
            percentage_saturation.first(), percentage_saturation.stride(), pressure.first(), pressure.stride(),
            at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::dry_bulb_from_wet_bulb_and_vapour_pressure`] of whole arrays, without checks.
    pub fn dry_bulb_from_wet_bulb_and_vapour_pressure<'a>(
        wet_bulb: impl Into<Input<'a, f32>>, vapour_pressure: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<f32>, Error> {
        let wet_bulb = wet_bulb.into();
        let vapour_pressure = vapour_pressure.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        let lengths = [
            wet_bulb.length("wet_bulb"), vapour_pressure.length("vapour_pressure"), pressure.length("pressure"),
            psychrometer.length("psychrometer"),
        ];
        let mut results = elements::results::<f32>(
            "psychro::dry_bulb_from_wet_bulb_and_vapour_pressure", &lengths,
        )?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_dry_bulb_from_wet_bulb_and_vapour_pressure(
            count, wet_bulb.first(), wet_bulb.stride(), vapour_pressure.first(), vapour_pressure.stride(),
            pressure.first(), pressure.stride(), psychrometer.first(), psychrometer.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::dry_bulb_from_wet_bulb_and_moisture_content`] of whole arrays, without checks.
    pub fn dry_bulb_from_wet_bulb_and_moisture_content<'a>(
        wet_bulb: impl Into<Input<'a, f32>>, moisture_content: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<f32>, Error> {
        let wet_bulb = wet_bulb.into();
        let moisture_content = moisture_content.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        let lengths = [
            wet_bulb.length("wet_bulb"), moisture_content.length("moisture_content"), pressure.length("pressure"),
            psychrometer.length("psychrometer"),
        ];
        let mut results = elements::results::<f32>(
            "psychro::dry_bulb_from_wet_bulb_and_moisture_content", &lengths,
        )?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_dry_bulb_from_wet_bulb_and_moisture_content(
            count, wet_bulb.first(), wet_bulb.stride(), moisture_content.first(), moisture_content.stride(),
            pressure.first(), pressure.stride(), psychrometer.first(), psychrometer.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::dry_bulb_from_wet_bulb_and_relative_humidity`] of whole arrays, without checks.
    pub fn dry_bulb_from_wet_bulb_and_relative_humidity<'a>(
        wet_bulb: impl Into<Input<'a, f32>>, relative_humidity: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<f32>, Error> {
        let wet_bulb = wet_bulb.into();
        let relative_humidity = relative_humidity.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        let lengths = [
            wet_bulb.length("wet_bulb"), relative_humidity.length("relative_humidity"), pressure.length("pressure"),
            psychrometer.length("psychrometer"),
        ];
        let mut results = elements::results::<f32>(
            "psychro::dry_bulb_from_wet_bulb_and_relative_humidity", &lengths,
        )?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_dry_bulb_from_wet_bulb_and_relative_humidity(
            count, wet_bulb.first(), wet_bulb.stride(), relative_humidity.first(), relative_humidity.stride(),
            pressure.first(), pressure.stride(), psychrometer.first(), psychrometer.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::dry_bulb_from_wet_bulb_and_percentage_saturation`] of whole arrays, without checks.
    pub fn dry_bulb_from_wet_bulb_and_percentage_saturation<'a>(
        wet_bulb: impl Into<Input<'a, f32>>, percentage_saturation: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<f32>, Error> {
        let wet_bulb = wet_bulb.into();
        let percentage_saturation = percentage_saturation.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        let lengths = [
            wet_bulb.length("wet_bulb"), percentage_saturation.length("percentage_saturation"),
            pressure.length("pressure"), psychrometer.length("psychrometer"),
        ];
        let mut results = elements::results::<f32>(
            "psychro::dry_bulb_from_wet_bulb_and_percentage_saturation", &lengths,
        )?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_dry_bulb_from_wet_bulb_and_percentage_saturation(
            count, wet_bulb.first(), wet_bulb.stride(),
            percentage_saturation.first(), percentage_saturation.stride(), pressure.first(), pressure.stride(),
            psychrometer.first(), psychrometer.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::dry_bulb_from_wet_bulb_and_enthalpy`] of whole arrays, without checks.
    pub fn dry_bulb_from_wet_bulb_and_enthalpy<'a>(
        wet_bulb: impl Into<Input<'a, f32>>, enthalpy: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<f32>, Error> {
        let wet_bulb = wet_bulb.into();
        let enthalpy = enthalpy.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        let lengths = [
            wet_bulb.length("wet_bulb"), enthalpy.length("enthalpy"), pressure.length("pressure"),
            psychrometer.length("psychrometer"),
        ];
        let mut results = elements::results::<f32>("psychro::dry_bulb_from_wet_bulb_and_enthalpy", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_dry_bulb_from_wet_bulb_and_enthalpy(
            count, wet_bulb.first(), wet_bulb.stride(), enthalpy.first(), enthalpy.stride(),
            pressure.first(), pressure.stride(), psychrometer.first(), psychrometer.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::adiabatic_mixing`] of whole arrays, without checks.
    pub fn adiabatic_mixing<'a>(
        first_air_flow: impl Into<Input<'a, f32>>, first_dry_bulb: impl Into<Input<'a, f32>>,
        first_moisture_content: impl Into<Input<'a, f32>>, second_air_flow: impl Into<Input<'a, f32>>,
        second_dry_bulb: impl Into<Input<'a, f32>>, second_moisture_content: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<AdiabaticMixing>, Error> {
        let first_air_flow = first_air_flow.into();
        let first_dry_bulb = first_dry_bulb.into();
        let first_moisture_content = first_moisture_content.into();
        let second_air_flow = second_air_flow.into();
        let second_dry_bulb = second_dry_bulb.into();
        let second_moisture_content = second_moisture_content.into();
        let lengths = [
            first_air_flow.length("first_air_flow"), first_dry_bulb.length("first_dry_bulb"),
            first_moisture_content.length("first_moisture_content"), second_air_flow.length("second_air_flow"),
            second_dry_bulb.length("second_dry_bulb"), second_moisture_content.length("second_moisture_content"),
        ];
        let mut results = elements::results::<AdiabaticMixing>("psychro::adiabatic_mixing", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_adiabatic_mixing(
            count, first_air_flow.first(), first_air_flow.stride(), first_dry_bulb.first(), first_dry_bulb.stride(),
            first_moisture_content.first(), first_moisture_content.stride(),
            second_air_flow.first(), second_air_flow.stride(), second_dry_bulb.first(), second_dry_bulb.stride(),
            second_moisture_content.first(), second_moisture_content.stride(), addr_of_mut!((*at).dry_bulb), stride,
            addr_of_mut!((*at).moisture_content), stride, addr_of_mut!((*at).enthalpy), stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::moisture_content_from_psychrometer`] of whole arrays, without checks.
    pub fn moisture_content_from_psychrometer<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, wet_bulb: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let wet_bulb = wet_bulb.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        let lengths = [
            dry_bulb.length("dry_bulb"), wet_bulb.length("wet_bulb"), pressure.length("pressure"),
            psychrometer.length("psychrometer"),
        ];
        let mut results = elements::results::<f32>("psychro::moisture_content_from_psychrometer", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_moisture_content_from_psychrometer(
            count, dry_bulb.first(), dry_bulb.stride(), wet_bulb.first(), wet_bulb.stride(),
            pressure.first(), pressure.stride(), psychrometer.first(), psychrometer.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::moisture_content`] of whole arrays, without checks.
    pub fn moisture_content<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, vapour_pressure: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let vapour_pressure = vapour_pressure.into();
        let pressure = pressure.into();
        let lengths = [
            dry_bulb.length("dry_bulb"), vapour_pressure.length("vapour_pressure"), pressure.length("pressure"),
        ];
        let mut results = elements::results::<f32>("psychro::moisture_content", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_moisture_content(
            count, dry_bulb.first(), dry_bulb.stride(), vapour_pressure.first(), vapour_pressure.stride(),
            pressure.first(), pressure.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::vapour_pressure_from_moisture_content`] of whole arrays, without checks.
    pub fn vapour_pressure_from_moisture_content<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, moisture_content: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let moisture_content = moisture_content.into();
        let pressure = pressure.into();
        let lengths = [
            dry_bulb.length("dry_bulb"), moisture_content.length("moisture_content"), pressure.length("pressure"),
        ];
        let mut results = elements::results::<f32>("psychro::vapour_pressure_from_moisture_content", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_vapour_pressure_from_moisture_content(
            count, dry_bulb.first(), dry_bulb.stride(), moisture_content.first(), moisture_content.stride(),
            pressure.first(), pressure.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::moisture_content_from_percentage_saturation`] of whole arrays, without checks.
    pub fn moisture_content_from_percentage_saturation<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, percentage_saturation: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let percentage_saturation = percentage_saturation.into();
        let pressure = pressure.into();
        let lengths = [
            dry_bulb.length("dry_bulb"), percentage_saturation.length("percentage_saturation"),
            pressure.length("pressure"),
        ];
        let mut results = elements::results::<f32>(
            "psychro::moisture_content_from_percentage_saturation", &lengths,
        )?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_moisture_content_from_percentage_saturation(
            count, dry_bulb.first(), dry_bulb.stride(),
            percentage_saturation.first(), percentage_saturation.stride(), pressure.first(), pressure.stride(),
            at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::moisture_content_from_enthalpy`] of whole arrays, without checks.
    pub fn moisture_content_from_enthalpy<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, enthalpy: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let enthalpy = enthalpy.into();
        let lengths = [dry_bulb.length("dry_bulb"), enthalpy.length("enthalpy")];
        let mut results = elements::results::<f32>("psychro::moisture_content_from_enthalpy", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_moisture_content_from_enthalpy(
            count, dry_bulb.first(), dry_bulb.stride(), enthalpy.first(), enthalpy.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::moist_air_density`] of whole arrays, without checks.
    pub fn moist_air_density<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, moisture_content: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let moisture_content = moisture_content.into();
        let pressure = pressure.into();
        let lengths = [
            dry_bulb.length("dry_bulb"), moisture_content.length("moisture_content"), pressure.length("pressure"),
        ];
        let mut results = elements::results::<f32>("psychro::moist_air_density", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_moist_air_density(
            count, dry_bulb.first(), dry_bulb.stride(), moisture_content.first(), moisture_content.stride(),
            pressure.first(), pressure.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::percentage_saturation`] of whole arrays, without checks.
    pub fn percentage_saturation<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, moisture_content: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let moisture_content = moisture_content.into();
        let pressure = pressure.into();
        let lengths = [
            dry_bulb.length("dry_bulb"), moisture_content.length("moisture_content"), pressure.length("pressure"),
        ];
        let mut results = elements::results::<f32>("psychro::percentage_saturation", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_percentage_saturation(
            count, dry_bulb.first(), dry_bulb.stride(), moisture_content.first(), moisture_content.stride(),
            pressure.first(), pressure.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::specific_enthalpy`] of whole arrays, without checks.
    pub fn specific_enthalpy<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, moisture_content: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let moisture_content = moisture_content.into();
        let lengths = [dry_bulb.length("dry_bulb"), moisture_content.length("moisture_content")];
        let mut results = elements::results::<f32>("psychro::specific_enthalpy", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_specific_enthalpy(
            count, dry_bulb.first(), dry_bulb.stride(), moisture_content.first(), moisture_content.stride(),
            at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::specific_enthalpy_from_psychrometer`] of whole arrays, without checks.
    pub fn specific_enthalpy_from_psychrometer<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, wet_bulb: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let wet_bulb = wet_bulb.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        let lengths = [
            dry_bulb.length("dry_bulb"), wet_bulb.length("wet_bulb"), pressure.length("pressure"),
            psychrometer.length("psychrometer"),
        ];
        let mut results = elements::results::<f32>("psychro::specific_enthalpy_from_psychrometer", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_specific_enthalpy_from_psychrometer(
            count, dry_bulb.first(), dry_bulb.stride(), wet_bulb.first(), wet_bulb.stride(),
            pressure.first(), pressure.stride(), psychrometer.first(), psychrometer.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::specific_volume`] of whole arrays, without checks.
    pub fn specific_volume<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, moisture_content: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let moisture_content = moisture_content.into();
        let pressure = pressure.into();
        let lengths = [
            dry_bulb.length("dry_bulb"), moisture_content.length("moisture_content"), pressure.length("pressure"),
        ];
        let mut results = elements::results::<f32>("psychro::specific_volume", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_specific_volume(
            count, dry_bulb.first(), dry_bulb.stride(), moisture_content.first(), moisture_content.stride(),
            pressure.first(), pressure.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::saturation_temperature_from_enthalpy`] of whole arrays, without checks.
    pub fn saturation_temperature_from_enthalpy<'a>(
        enthalpy: impl Into<Input<'a, f32>>, pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let enthalpy = enthalpy.into();
        let pressure = pressure.into();
        let lengths = [enthalpy.length("enthalpy"), pressure.length("pressure")];
        let mut results = elements::results::<f32>("psychro::saturation_temperature_from_enthalpy", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_saturation_temperature_from_enthalpy(
            count, enthalpy.first(), enthalpy.stride(), pressure.first(), pressure.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::pool_evaporation`] of whole arrays, without checks.
    pub fn pool_evaporation<'a>(
        water_area: impl Into<Input<'a, f32>>, wetted_area: impl Into<Input<'a, f32>>,
        water_temperature: impl Into<Input<'a, f32>>, dry_bulb: impl Into<Input<'a, f32>>,
        moisture_content: impl Into<Input<'a, f32>>, reference_temperature: impl Into<Input<'a, f32>>,
        bathers: impl Into<Input<'a, i32>>, reference_coefficient: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<PoolEvaporation>, Error> {
        let water_area = water_area.into();
        let wetted_area = wetted_area.into();
        let water_temperature = water_temperature.into();
        let dry_bulb = dry_bulb.into();
        let moisture_content = moisture_content.into();
        let reference_temperature = reference_temperature.into();
        let bathers = bathers.into();
        let reference_coefficient = reference_coefficient.into();
        let pressure = pressure.into();
        let lengths = [
            water_area.length("water_area"), wetted_area.length("wetted_area"),
            water_temperature.length("water_temperature"), dry_bulb.length("dry_bulb"),
            moisture_content.length("moisture_content"), reference_temperature.length("reference_temperature"),
            bathers.length("bathers"), reference_coefficient.length("reference_coefficient"),
            pressure.length("pressure"),
        ];
        let mut results = elements::results::<PoolEvaporation>("psychro::pool_evaporation", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_pool_evaporation(
            count, water_area.first(), water_area.stride(), wetted_area.first(), wetted_area.stride(),
            water_temperature.first(), water_temperature.stride(), dry_bulb.first(), dry_bulb.stride(),
            moisture_content.first(), moisture_content.stride(),
            reference_temperature.first(), reference_temperature.stride(), bathers.first(), bathers.stride(),
            reference_coefficient.first(), reference_coefficient.stride(), pressure.first(), pressure.stride(),
            addr_of_mut!((*at).evaporation_rate), stride, addr_of_mut!((*at).latent_load), stride,
            addr_of_mut!((*at).convective_load), stride, addr_of_mut!((*at).reference_load), stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::pool_evaporation_from_wet_bulb`] of whole arrays, without checks.
    pub fn pool_evaporation_from_wet_bulb<'a>(
        water_area: impl Into<Input<'a, f32>>, wetted_area: impl Into<Input<'a, f32>>,
        water_temperature: impl Into<Input<'a, f32>>, dry_bulb: impl Into<Input<'a, f32>>,
        wet_bulb: impl Into<Input<'a, f32>>, reference_temperature: impl Into<Input<'a, f32>>,
        bathers: impl Into<Input<'a, i32>>, reference_coefficient: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<PoolEvaporationFromWetBulb>, Error> {
        let water_area = water_area.into();
        let wetted_area = wetted_area.into();
        let water_temperature = water_temperature.into();
        let dry_bulb = dry_bulb.into();
        let wet_bulb = wet_bulb.into();
        let reference_temperature = reference_temperature.into();
        let bathers = bathers.into();
        let reference_coefficient = reference_coefficient.into();
        let pressure = pressure.into();
        let lengths = [
            water_area.length("water_area"), wetted_area.length("wetted_area"),
            water_temperature.length("water_temperature"), dry_bulb.length("dry_bulb"), wet_bulb.length("wet_bulb"),
            reference_temperature.length("reference_temperature"), bathers.length("bathers"),
            reference_coefficient.length("reference_coefficient"), pressure.length("pressure"),
        ];
        let mut results = elements::results::<PoolEvaporationFromWetBulb>(
            "psychro::pool_evaporation_from_wet_bulb", &lengths,
        )?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_pool_evaporation_from_wet_bulb(
            count, water_area.first(), water_area.stride(), wetted_area.first(), wetted_area.stride(),
            water_temperature.first(), water_temperature.stride(), dry_bulb.first(), dry_bulb.stride(),
            wet_bulb.first(), wet_bulb.stride(), reference_temperature.first(), reference_temperature.stride(),
            bathers.first(), bathers.stride(), reference_coefficient.first(), reference_coefficient.stride(),
            pressure.first(), pressure.stride(), addr_of_mut!((*at).evaporation_rate), stride,
            addr_of_mut!((*at).latent_load), stride, addr_of_mut!((*at).convective_load), stride,
            addr_of_mut!((*at).reference_load), stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::saturation_pressure`] of whole arrays, without checks.
    pub fn saturation_pressure<'a>(temperature: impl Into<Input<'a, f32>>) -> Result<Vec<f32>, Error> {
        let temperature = temperature.into();
        let lengths = [temperature.length("temperature")];
        let mut results = elements::results::<f32>("psychro::saturation_pressure", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_saturation_pressure(
            count, temperature.first(), temperature.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::dew_point`] of whole arrays, without checks.
    pub fn dew_point<'a>(vapour_pressure: impl Into<Input<'a, f32>>) -> Result<Vec<f32>, Error> {
        let vapour_pressure = vapour_pressure.into();
        let lengths = [vapour_pressure.length("vapour_pressure")];
        let mut results = elements::results::<f32>("psychro::dew_point", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_dew_point(
            count, vapour_pressure.first(), vapour_pressure.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::vapour_pressure`] of whole arrays, without checks.
    pub fn vapour_pressure<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, relative_humidity: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let relative_humidity = relative_humidity.into();
        let lengths = [dry_bulb.length("dry_bulb"), relative_humidity.length("relative_humidity")];
        let mut results = elements::results::<f32>("psychro::vapour_pressure", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_vapour_pressure(
            count, dry_bulb.first(), dry_bulb.stride(), relative_humidity.first(), relative_humidity.stride(),
            at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::relative_humidity`] of whole arrays, without checks.
    pub fn relative_humidity<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, vapour_pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let vapour_pressure = vapour_pressure.into();
        let lengths = [dry_bulb.length("dry_bulb"), vapour_pressure.length("vapour_pressure")];
        let mut results = elements::results::<f32>("psychro::relative_humidity", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_relative_humidity(
            count, dry_bulb.first(), dry_bulb.stride(), vapour_pressure.first(), vapour_pressure.stride(),
            at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::vapour_pressure_from_psychrometer`] of whole arrays, without checks.
    pub fn vapour_pressure_from_psychrometer<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, wet_bulb: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let wet_bulb = wet_bulb.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        let lengths = [
            dry_bulb.length("dry_bulb"), wet_bulb.length("wet_bulb"), pressure.length("pressure"),
            psychrometer.length("psychrometer"),
        ];
        let mut results = elements::results::<f32>("psychro::vapour_pressure_from_psychrometer", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_vapour_pressure_from_psychrometer(
            count, dry_bulb.first(), dry_bulb.stride(), wet_bulb.first(), wet_bulb.stride(),
            pressure.first(), pressure.stride(), psychrometer.first(), psychrometer.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::weighted_temperature`] of whole arrays, without checks.
    pub fn weighted_temperature<'a>(
        first_temperature: impl Into<Input<'a, f32>>, second_temperature: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let first_temperature = first_temperature.into();
        let second_temperature = second_temperature.into();
        let lengths = [
            first_temperature.length("first_temperature"), second_temperature.length("second_temperature"),
        ];
        let mut results = elements::results::<f32>("psychro::weighted_temperature", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_weighted_temperature(
            count, first_temperature.first(), first_temperature.stride(),
            second_temperature.first(), second_temperature.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::psychrometer_wet_bulb`] of whole arrays, without checks.
    pub fn psychrometer_wet_bulb<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, relative_humidity: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let relative_humidity = relative_humidity.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        let lengths = [
            dry_bulb.length("dry_bulb"), relative_humidity.length("relative_humidity"), pressure.length("pressure"),
            psychrometer.length("psychrometer"),
        ];
        let mut results = elements::results::<f32>("psychro::psychrometer_wet_bulb", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_psychrometer_wet_bulb(
            count, dry_bulb.first(), dry_bulb.stride(), relative_humidity.first(), relative_humidity.stride(),
            pressure.first(), pressure.stride(), psychrometer.first(), psychrometer.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::wet_bulb_from_percentage_saturation`] of whole arrays, without checks.
    pub fn wet_bulb_from_percentage_saturation<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, percentage_saturation: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let percentage_saturation = percentage_saturation.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        let lengths = [
            dry_bulb.length("dry_bulb"), percentage_saturation.length("percentage_saturation"),
            pressure.length("pressure"), psychrometer.length("psychrometer"),
        ];
        let mut results = elements::results::<f32>("psychro::wet_bulb_from_percentage_saturation", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_wet_bulb_from_percentage_saturation(
            count, dry_bulb.first(), dry_bulb.stride(),
            percentage_saturation.first(), percentage_saturation.stride(), pressure.first(), pressure.stride(),
            psychrometer.first(), psychrometer.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::wet_bulb_from_moisture_content`] of whole arrays, without checks.
    pub fn wet_bulb_from_moisture_content<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, moisture_content: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let moisture_content = moisture_content.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        let lengths = [
            dry_bulb.length("dry_bulb"), moisture_content.length("moisture_content"), pressure.length("pressure"),
            psychrometer.length("psychrometer"),
        ];
        let mut results = elements::results::<f32>("psychro::wet_bulb_from_moisture_content", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_wet_bulb_from_moisture_content(
            count, dry_bulb.first(), dry_bulb.stride(), moisture_content.first(), moisture_content.stride(),
            pressure.first(), pressure.stride(), psychrometer.first(), psychrometer.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::psychro::wet_bulb`] of whole arrays, without checks.
    pub fn wet_bulb<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, vapour_pressure: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let vapour_pressure = vapour_pressure.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        let lengths = [
            dry_bulb.length("dry_bulb"), vapour_pressure.length("vapour_pressure"), pressure.length("pressure"),
            psychrometer.length("psychrometer"),
        ];
        let mut results = elements::results::<f32>("psychro::wet_bulb", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_wet_bulb(
            count, dry_bulb.first(), dry_bulb.stride(), vapour_pressure.first(), vapour_pressure.stride(),
            pressure.first(), pressure.stride(), psychrometer.first(), psychrometer.stride(), at, stride,
        ) });
        Ok(results)
    }
}
