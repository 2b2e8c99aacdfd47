// Produced from the catalogue of routines (catalogue/); do not edit.

//! Moist air.

use crate::{check, unchecked, Error, Input, Psychrometer};

/// What [`adiabatic_mixing`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct AdiabaticMixing {
    /// Dry-bulb temperature of the mixture (°C)
    pub dry_bulb: f32,
    /// Moisture content of the mixture (kg/kg)
    pub moisture_content: f32,
    /// Specific enthalpy of the mixture, by mass of dry air (kJ/kg)
    pub enthalpy: f32,
}

/// What [`pool_evaporation`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct PoolEvaporation {
    /// Evaporation rate (kg/(m²s))
    pub evaporation_rate: f32,
    /// Latent load, 2.45 MJ per kg evaporated (W)
    pub latent_load: f32,
    /// Convection from the water to the room air at 10 W/m²K (W)
    pub convective_load: f32,
    /// Exchange of the water with the second reference temperature (W)
    pub reference_load: f32,
}

/// What [`pool_evaporation_from_wet_bulb`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct PoolEvaporationFromWetBulb {
    /// Evaporation rate (kg/(m²s))
    pub evaporation_rate: f32,
    /// Latent load, 2.45 MJ per kg evaporated (W)
    pub latent_load: f32,
    /// Convection from the water to the room air at 10 W/m²K (W)
    pub convective_load: f32,
    /// Exchange of the water with the second reference temperature (W)
    pub reference_load: f32,
}

/// Specific enthalpy of dry air.
///
/// # Arguments
/// * `temperature`: temperature (°C); valid -50 to 100
///
/// # Returns
/// Specific enthalpy, 0 at 0 °C (kJ/kg)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: 0.00071035 + 1.0058 t + 1.7139e-5 t^2 - 7.7976e-7 t^3 + 2.2256e-8 t^4 - 1.691e-10 t^5, t =
///   temperature
/// * Within 0.02 kJ/kg of the ASHRAE tables from -20 to 50 °C, but 0.3 above them at -50 °C.
/// * At 0 °C it is 0.0007 kJ/kg: the constant of the fit is deliberate.
///
/// # Source
/// Polynomial fit to tables of dry air; its author is not known.
///
/// `PSHDRY` in quorvel.h.
pub fn dry_air_enthalpy(temperature: f32) -> Result<f32, Error> {
    check::range("psychro::dry_air_enthalpy", "temperature", &temperature, -50.0..=100.0, "°C")?;
    Ok(unchecked::psychro::dry_air_enthalpy(temperature))
}

/// Specific enthalpy of water vapour.
///
/// # Arguments
/// * `temperature`: temperature (°C); valid -50 to 100
///
/// # Returns
/// Specific enthalpy, from liquid water at 0 °C (kJ/kg)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: 2500.9 + 1.8439 t + 2.5285e-5 t^2 - 1.6297e-5 t^3 + 5.8962e-9 t^4 + 1.248e-9 t^5, t = temperature
/// * Within 0.5 kJ/kg of saturated steam from 0 to 60 °C (IAPWS 1995), within 7 at 100 °C.
///
/// # Source
/// Polynomial fit to tables of water vapour; its author is not known.
///
/// `PSHVAP` in quorvel.h.
pub fn water_vapour_enthalpy(temperature: f32) -> Result<f32, Error> {
    check::range("psychro::water_vapour_enthalpy", "temperature", &temperature, -50.0..=100.0, "°C")?;
    Ok(unchecked::psychro::water_vapour_enthalpy(temperature))
}

/// Specific heat of dry air at constant pressure.
///
/// # Arguments
/// * `temperature`: temperature (°C); valid -50 to 100
///
/// # Returns
/// Specific heat (kJ/kgK)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * The pieces meet, but for steps of 0.00004 kJ/kgK up at 40 °C and down at 50 °C, which are deliberate.
///
/// # Source
/// Straight lines between tabulated values for each 10 K; the author of the table is not known.
///
/// `PSCPDR` in quorvel.h.
pub fn dry_air_specific_heat(temperature: f32) -> Result<f32, Error> {
    check::range("psychro::dry_air_specific_heat", "temperature", &temperature, -50.0..=100.0, "°C")?;
    Ok(unchecked::psychro::dry_air_specific_heat(temperature))
}

/// Specific heat of water vapour at constant pressure.
///
/// # Arguments
/// * `temperature`: temperature (°C); valid -50 to 100
///
/// # Returns
/// Specific heat (kJ/kgK)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: 1.7 + 0.01 temperature, at most 1.9
/// * Constant from 20 °C up.
///
/// # Source
/// Rounded engineering values; their author is not known.
///
/// `PSCPVA` in quorvel.h.
pub fn water_vapour_specific_heat(temperature: f32) -> Result<f32, Error> {
    check::range("psychro::water_vapour_specific_heat", "temperature", &temperature, -50.0..=100.0, "°C")?;
    Ok(unchecked::psychro::water_vapour_specific_heat(temperature))
}

/// Latent heat of evaporation of water, of sublimation of ice below 0 °C.
///
/// # Arguments
/// * `temperature`: temperature (°C); valid -50 to 100
///
/// # Returns
/// Latent heat (kJ/kg)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * At exactly 60 °C the result is 0: the table's row for it is empty, which is deliberate. Just below and
///   above, it is 2357.9.
/// * Within 0.5 kJ/kg of the international values (IAPWS 1995) from 0 to 60 °C.
///
/// # Source
/// Straight lines between tabulated values for each 10 K; the author of the table is not known.
///
/// `PSHFG` in quorvel.h.
pub fn latent_heat(temperature: f32) -> Result<f32, Error> {
    check::range("psychro::latent_heat", "temperature", &temperature, -50.0..=100.0, "°C")?;
    Ok(unchecked::psychro::latent_heat(temperature))
}

/// Dry bulb of air with a vapour pressure and relative humidity.
///
/// # Arguments
/// * `vapour_pressure`: vapour pressure (Pa); valid from 0
/// * `relative_humidity`: relative humidity (%); valid 0 to 100
///
/// # Returns
/// Dry-bulb temperature (°C)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: rh / 100 ps(t) = pv
/// * Found from -200 to 400 °C; where there is none, as for arguments out of range, the result is not a number.
/// * Relative humidity is limited to 0 to 100 %, not rejected; 0 % gives not a number.
///
/// # Source
/// The dew point of saturated air of that temperature, by `dew_point`.
pub fn dry_bulb_from_vapour_pressure_and_relative_humidity(
    vapour_pressure: f32, relative_humidity: f32,
) -> Result<f32, Error> {
    check::range(
        "psychro::dry_bulb_from_vapour_pressure_and_relative_humidity", "vapour_pressure", &vapour_pressure,
        0.0..=f32::INFINITY, "Pa",
    )?;
    check::range(
        "psychro::dry_bulb_from_vapour_pressure_and_relative_humidity", "relative_humidity", &relative_humidity,
        0.0..=100.0, "%",
    )?;
    Ok(unchecked::psychro::dry_bulb_from_vapour_pressure_and_relative_humidity(
        vapour_pressure, relative_humidity,
    ))
}

/// Dry bulb of air with a vapour pressure and percentage saturation.
///
/// # Arguments
/// * `vapour_pressure`: vapour pressure (Pa); valid from 0
/// * `percentage_saturation`: percentage saturation (%); valid 0 to 100
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
///
/// # Returns
/// Dry-bulb temperature (°C)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: percentage / 100 gs(t, p) = `moisture_content`(t, pv, p)
/// * Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a number.
/// * Up to where water boils at the atmospheric pressure. The percentage is not limited.
///
/// # Source
/// Newton's method in double precision on the equations of the routines named.
pub fn dry_bulb_from_vapour_pressure_and_percentage_saturation(
    vapour_pressure: f32, percentage_saturation: f32, pressure: f32,
) -> Result<f32, Error> {
    check::range(
        "psychro::dry_bulb_from_vapour_pressure_and_percentage_saturation", "vapour_pressure", &vapour_pressure,
        0.0..=f32::INFINITY, "Pa",
    )?;
    check::range(
        "psychro::dry_bulb_from_vapour_pressure_and_percentage_saturation", "percentage_saturation",
        &percentage_saturation, 0.0..=100.0, "%",
    )?;
    check::range(
        "psychro::dry_bulb_from_vapour_pressure_and_percentage_saturation", "pressure", &pressure,
        50000.0..=110000.0, "Pa",
    )?;
    Ok(unchecked::psychro::dry_bulb_from_vapour_pressure_and_percentage_saturation(
        vapour_pressure, percentage_saturation, pressure,
    ))
}

/// Dry bulb of air with a moisture content and relative humidity.
///
/// # Arguments
/// * `moisture_content`: moisture content, water vapour per dry air (kg/kg); valid 0 to 0.1
/// * `relative_humidity`: relative humidity (%); valid 0 to 100
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
///
/// # Returns
/// Dry-bulb temperature (°C)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: rh / 100 ps(t) = `vapour_pressure_from_moisture_content`(t, g, p)
/// * Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a number.
/// * Relative humidity is limited to 0 to 100 %, not rejected; 0 % gives not a number.
///
/// # Source
/// Newton's method in double precision on the equations of the routines named.
pub fn dry_bulb_from_moisture_content_and_relative_humidity(
    moisture_content: f32, relative_humidity: f32, pressure: f32,
) -> Result<f32, Error> {
    check::range(
        "psychro::dry_bulb_from_moisture_content_and_relative_humidity", "moisture_content", &moisture_content,
        0.0..=0.1, "kg/kg",
    )?;
    check::range(
        "psychro::dry_bulb_from_moisture_content_and_relative_humidity", "relative_humidity",
        &relative_humidity, 0.0..=100.0, "%",
    )?;
    check::range(
        "psychro::dry_bulb_from_moisture_content_and_relative_humidity", "pressure", &pressure,
        50000.0..=110000.0, "Pa",
    )?;
    Ok(unchecked::psychro::dry_bulb_from_moisture_content_and_relative_humidity(
        moisture_content, relative_humidity, pressure,
    ))
}

/// Dry bulb of air with a moisture content and percentage saturation.
///
/// # Arguments
/// * `moisture_content`: moisture content, water vapour per dry air (kg/kg); valid 0 to 0.1
/// * `percentage_saturation`: percentage saturation (%); valid 0 to 100
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
///
/// # Returns
/// Dry-bulb temperature (°C)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: percentage / 100 gs(t, p) = g
/// * Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a number.
/// * Up to where water boils at the atmospheric pressure. The percentage is not limited.
///
/// # Source
/// Newton's method in double precision on the equations of the routines named.
pub fn dry_bulb_from_moisture_content_and_percentage_saturation(
    moisture_content: f32, percentage_saturation: f32, pressure: f32,
) -> Result<f32, Error> {
    check::range(
        "psychro::dry_bulb_from_moisture_content_and_percentage_saturation", "moisture_content",
        &moisture_content, 0.0..=0.1, "kg/kg",
    )?;
    check::range(
        "psychro::dry_bulb_from_moisture_content_and_percentage_saturation", "percentage_saturation",
        &percentage_saturation, 0.0..=100.0, "%",
    )?;
    check::range(
        "psychro::dry_bulb_from_moisture_content_and_percentage_saturation", "pressure", &pressure,
        50000.0..=110000.0, "Pa",
    )?;
    Ok(unchecked::psychro::dry_bulb_from_moisture_content_and_percentage_saturation(
        moisture_content, percentage_saturation, pressure,
    ))
}

/// Dry bulb of air with a specific enthalpy and moisture content.
///
/// # Arguments
/// * `enthalpy`: specific enthalpy, by mass of dry air (kJ/kg); valid -10 to 460
/// * `moisture_content`: moisture content, water vapour per dry air (kg/kg); valid 0 to 0.1
///
/// # Returns
/// Dry-bulb temperature (°C)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: ha(t) + g hv(t) = h
/// * Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a number.
/// * The enthalpies hold from -50 to 100 °C.
///
/// # Source
/// Newton's method in double precision on the equations of the routines named.
pub fn dry_bulb_from_enthalpy_and_moisture_content(
    enthalpy: f32, moisture_content: f32,
) -> Result<f32, Error> {
    check::range(
        "psychro::dry_bulb_from_enthalpy_and_moisture_content", "enthalpy", &enthalpy, -10.0..=460.0, "kJ/kg",
    )?;
    check::range(
        "psychro::dry_bulb_from_enthalpy_and_moisture_content", "moisture_content", &moisture_content,
        0.0..=0.1, "kg/kg",
    )?;
    Ok(unchecked::psychro::dry_bulb_from_enthalpy_and_moisture_content(enthalpy, moisture_content))
}

/// Dry bulb of air with a specific enthalpy and vapour pressure.
///
/// # Arguments
/// * `enthalpy`: specific enthalpy, by mass of dry air (kJ/kg); valid -10 to 460
/// * `vapour_pressure`: vapour pressure (Pa); valid from 0
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
///
/// # Returns
/// Dry-bulb temperature (°C)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: `moisture_content_from_enthalpy`(t, h) = `moisture_content`(t, pv, p)
/// * Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a number.
/// * The enthalpies hold from -50 to 100 °C.
///
/// # Source
/// Newton's method in double precision on the equations of the routines named.
pub fn dry_bulb_from_enthalpy_and_vapour_pressure(
    enthalpy: f32, vapour_pressure: f32, pressure: f32,
) -> Result<f32, Error> {
    check::range(
        "psychro::dry_bulb_from_enthalpy_and_vapour_pressure", "enthalpy", &enthalpy, -10.0..=460.0, "kJ/kg",
    )?;
    check::range(
        "psychro::dry_bulb_from_enthalpy_and_vapour_pressure", "vapour_pressure", &vapour_pressure,
        0.0..=f32::INFINITY, "Pa",
    )?;
    check::range(
        "psychro::dry_bulb_from_enthalpy_and_vapour_pressure", "pressure", &pressure, 50000.0..=110000.0, "Pa",
    )?;
    Ok(unchecked::psychro::dry_bulb_from_enthalpy_and_vapour_pressure(enthalpy, vapour_pressure, pressure))
}

/// Dry bulb of air with a specific enthalpy and relative humidity.
///
/// # Arguments
/// * `enthalpy`: specific enthalpy, by mass of dry air (kJ/kg); valid -10 to 460
/// * `relative_humidity`: relative humidity (%); valid 0 to 100
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
///
/// # Returns
/// Dry-bulb temperature (°C)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: `moisture_content_from_enthalpy`(t, h) = `moisture_content`(t, rh / 100 ps(t), p)
/// * Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a number.
/// * The enthalpies hold from -50 to 100 °C.
/// * Relative humidity is limited to 0 to 100 %, not rejected.
///
/// # Source
/// Newton's method in double precision on the equations of the routines named.
pub fn dry_bulb_from_enthalpy_and_relative_humidity(
    enthalpy: f32, relative_humidity: f32, pressure: f32,
) -> Result<f32, Error> {
    check::range(
        "psychro::dry_bulb_from_enthalpy_and_relative_humidity", "enthalpy", &enthalpy, -10.0..=460.0, "kJ/kg",
    )?;
    check::range(
        "psychro::dry_bulb_from_enthalpy_and_relative_humidity", "relative_humidity", &relative_humidity,
        0.0..=100.0, "%",
    )?;
    check::range(
        "psychro::dry_bulb_from_enthalpy_and_relative_humidity", "pressure", &pressure, 50000.0..=110000.0,
        "Pa",
    )?;
    Ok(unchecked::psychro::dry_bulb_from_enthalpy_and_relative_humidity(enthalpy, relative_humidity, pressure))
}

/// Dry bulb of air with a specific enthalpy and percentage saturation.
///
/// # Arguments
/// * `enthalpy`: specific enthalpy, by mass of dry air (kJ/kg); valid -10 to 460
/// * `percentage_saturation`: percentage saturation (%); valid 0 to 100
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
///
/// # Returns
/// Dry-bulb temperature (°C)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: `moisture_content_from_enthalpy`(t, h) = percentage / 100 gs(t, p)
/// * Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a number.
/// * The enthalpies hold from -50 to 100 °C.
/// * Up to where water boils at the atmospheric pressure. The percentage is not limited.
///
/// # Source
/// Newton's method in double precision on the equations of the routines named.
pub fn dry_bulb_from_enthalpy_and_percentage_saturation(
    enthalpy: f32, percentage_saturation: f32, pressure: f32,
) -> Result<f32, Error> {
    check::range(
        "psychro::dry_bulb_from_enthalpy_and_percentage_saturation", "enthalpy", &enthalpy, -10.0..=460.0,
        "kJ/kg",
    )?;
    check::range(
        "psychro::dry_bulb_from_enthalpy_and_percentage_saturation", "percentage_saturation",
        &percentage_saturation, 0.0..=100.0, "%",
    )?;
    check::range(
        "psychro::dry_bulb_from_enthalpy_and_percentage_saturation", "pressure", &pressure, 50000.0..=110000.0,
        "Pa",
    )?;
    Ok(unchecked::psychro::dry_bulb_from_enthalpy_and_percentage_saturation(
        enthalpy, percentage_saturation, pressure,
    ))
}

/// Dry bulb of air with a wet bulb and vapour pressure.
///
/// # Arguments
/// * `wet_bulb`: wet-bulb temperature (°C); valid -100 to 200
/// * `vapour_pressure`: vapour pressure (Pa); valid from 0
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
/// * `psychrometer`: psychrometer type
///
/// # Returns
/// Dry-bulb temperature (°C)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: t = twb + (ps(twb) - pv) / (A p)
/// * A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
/// * A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// # Source
/// Psychrometer equation of `vapour_pressure_from_psychrometer`, solved for the dry bulb.
pub fn dry_bulb_from_wet_bulb_and_vapour_pressure(
    wet_bulb: f32, vapour_pressure: f32, pressure: f32, psychrometer: Psychrometer,
) -> Result<f32, Error> {
    check::range(
        "psychro::dry_bulb_from_wet_bulb_and_vapour_pressure", "wet_bulb", &wet_bulb, -100.0..=200.0, "°C",
    )?;
    check::range(
        "psychro::dry_bulb_from_wet_bulb_and_vapour_pressure", "vapour_pressure", &vapour_pressure,
        0.0..=f32::INFINITY, "Pa",
    )?;
    check::range(
        "psychro::dry_bulb_from_wet_bulb_and_vapour_pressure", "pressure", &pressure, 50000.0..=110000.0, "Pa",
    )?;
    Ok(unchecked::psychro::dry_bulb_from_wet_bulb_and_vapour_pressure(
        wet_bulb, vapour_pressure, pressure, psychrometer,
    ))
}

/// Dry bulb of air with a wet bulb and moisture content.
///
/// # Arguments
/// * `wet_bulb`: wet-bulb temperature (°C); valid -100 to 200
/// * `moisture_content`: moisture content, water vapour per dry air (kg/kg); valid 0 to 0.1
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
/// * `psychrometer`: psychrometer type
///
/// # Returns
/// Dry-bulb temperature (°C)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: `vapour_pressure_from_psychrometer`(t, twb, p) = `vapour_pressure_from_moisture_content`(t, g, p)
/// * Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a number.
/// * A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
/// * A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// # Source
/// Newton's method in double precision on the equations of the routines named.
pub fn dry_bulb_from_wet_bulb_and_moisture_content(
    wet_bulb: f32, moisture_content: f32, pressure: f32, psychrometer: Psychrometer,
) -> Result<f32, Error> {
    check::range(
        "psychro::dry_bulb_from_wet_bulb_and_moisture_content", "wet_bulb", &wet_bulb, -100.0..=200.0, "°C",
    )?;
    check::range(
        "psychro::dry_bulb_from_wet_bulb_and_moisture_content", "moisture_content", &moisture_content,
        0.0..=0.1, "kg/kg",
    )?;
    check::range(
        "psychro::dry_bulb_from_wet_bulb_and_moisture_content", "pressure", &pressure, 50000.0..=110000.0, "Pa",
    )?;
    Ok(unchecked::psychro::dry_bulb_from_wet_bulb_and_moisture_content(
        wet_bulb, moisture_content, pressure, psychrometer,
    ))
}

/// Dry bulb of air with a wet bulb and relative humidity.
///
/// # Arguments
/// * `wet_bulb`: wet-bulb temperature (°C); valid -100 to 200
/// * `relative_humidity`: relative humidity (%); valid 0 to 100
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
/// * `psychrometer`: psychrometer type
///
/// # Returns
/// Dry-bulb temperature (°C)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: `vapour_pressure_from_psychrometer`(t, twb, p) = rh / 100 ps(t)
/// * Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a number.
/// * Relative humidity is limited to 0 to 100 %, not rejected.
/// * A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
/// * A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// # Source
/// Newton's method in double precision on the equations of the routines named.
pub fn dry_bulb_from_wet_bulb_and_relative_humidity(
    wet_bulb: f32, relative_humidity: f32, pressure: f32, psychrometer: Psychrometer,
) -> Result<f32, Error> {
    check::range(
        "psychro::dry_bulb_from_wet_bulb_and_relative_humidity", "wet_bulb", &wet_bulb, -100.0..=200.0, "°C",
    )?;
    check::range(
        "psychro::dry_bulb_from_wet_bulb_and_relative_humidity", "relative_humidity", &relative_humidity,
        0.0..=100.0, "%",
    )?;
    check::range(
        "psychro::dry_bulb_from_wet_bulb_and_relative_humidity", "pressure", &pressure, 50000.0..=110000.0,
        "Pa",
    )?;
    Ok(unchecked::psychro::dry_bulb_from_wet_bulb_and_relative_humidity(
        wet_bulb, relative_humidity, pressure, psychrometer,
    ))
}

/// Dry bulb of air with a wet bulb and percentage saturation.
///
/// # Arguments
/// * `wet_bulb`: wet-bulb temperature (°C); valid -100 to 200
/// * `percentage_saturation`: percentage saturation (%); valid 0 to 100
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
/// * `psychrometer`: psychrometer type
///
/// # Returns
/// Dry-bulb temperature (°C)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: `moisture_content_from_psychrometer`(t, twb, p) = percentage / 100 gs(t, p)
/// * Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a number.
/// * Up to where water boils at the atmospheric pressure. The percentage is not limited.
/// * A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
/// * A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// # Source
/// Newton's method in double precision on the equations of the routines named.
pub fn dry_bulb_from_wet_bulb_and_percentage_saturation(
    wet_bulb: f32, percentage_saturation: f32, pressure: f32, psychrometer: Psychrometer,
) -> Result<f32, Error> {
    check::range(
        "psychro::dry_bulb_from_wet_bulb_and_percentage_saturation", "wet_bulb", &wet_bulb, -100.0..=200.0,
        "°C",
    )?;
    check::range(
        "psychro::dry_bulb_from_wet_bulb_and_percentage_saturation", "percentage_saturation",
        &percentage_saturation, 0.0..=100.0, "%",
    )?;
    check::range(
        "psychro::dry_bulb_from_wet_bulb_and_percentage_saturation", "pressure", &pressure, 50000.0..=110000.0,
        "Pa",
    )?;
    Ok(unchecked::psychro::dry_bulb_from_wet_bulb_and_percentage_saturation(
        wet_bulb, percentage_saturation, pressure, psychrometer,
    ))
}

/// Dry bulb of air with a wet bulb and specific enthalpy.
///
/// # Arguments
/// * `wet_bulb`: wet-bulb temperature (°C); valid -100 to 200
/// * `enthalpy`: specific enthalpy, by mass of dry air (kJ/kg); valid -10 to 460
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
/// * `psychrometer`: psychrometer type
///
/// # Returns
/// Dry-bulb temperature (°C)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: `specific_enthalpy_from_psychrometer`(t, twb, p) = h
/// * Badly conditioned, since the enthalpy hardly changes along a wet bulb: 0.01 kJ/kg of enthalpy can be 0.25
///   K of dry bulb. For wet bulbs from -50 to 55 °C, above which the enthalpy turns.
/// * An enthalpy that no air of that wet bulb has, between saturated and dry, gives not a number; 1 K beyond
///   saturation is allowed for, and gives the wet bulb.
/// * A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// # Source
/// Newton's method in double precision on the equations of the routines named.
pub fn dry_bulb_from_wet_bulb_and_enthalpy(
    wet_bulb: f32, enthalpy: f32, pressure: f32, psychrometer: Psychrometer,
) -> Result<f32, Error> {
    check::range("psychro::dry_bulb_from_wet_bulb_and_enthalpy", "wet_bulb", &wet_bulb, -100.0..=200.0, "°C")?;
    check::range(
        "psychro::dry_bulb_from_wet_bulb_and_enthalpy", "enthalpy", &enthalpy, -10.0..=460.0, "kJ/kg",
    )?;
    check::range(
        "psychro::dry_bulb_from_wet_bulb_and_enthalpy", "pressure", &pressure, 50000.0..=110000.0, "Pa",
    )?;
    Ok(unchecked::psychro::dry_bulb_from_wet_bulb_and_enthalpy(wet_bulb, enthalpy, pressure, psychrometer))
}

/// Two streams of moist air that become one, without heat from outside.
///
/// # Arguments
/// * `first_air_flow`: mass flow of dry air in the first stream, or its share in any unit (kg/s); valid from 0
/// * `first_dry_bulb`: dry-bulb temperature of the first stream (°C); valid -100 to 200
/// * `first_moisture_content`: moisture content of the first stream (kg/kg); valid 0 to 0.1
/// * `second_air_flow`: mass flow of dry air in the second stream, in the same unit (kg/s); valid from 0
/// * `second_dry_bulb`: dry-bulb temperature of the second stream (°C); valid -100 to 200
/// * `second_moisture_content`: moisture content of the second stream (kg/kg); valid 0 to 0.1
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: g = (m1 g1 + m2 g2) / (m1 + m2), h likewise; t from h and g
/// * All moisture counts as vapour: `percentage_saturation` says whether the mixture is above saturation and
///   would form fog.
/// * The enthalpies hold from -50 to 100 °C. Where no dry bulb from -100 to 200 °C belongs to the mixture, it
///   is not a number; nor is anything without flow.
///
/// # Source
/// Balances of enthalpy, water and dry air: ASHRAE Handbook Fundamentals 2017, chapter 1, adiabatic mixing of
/// two moist airstreams.
pub fn adiabatic_mixing(
    first_air_flow: f32, first_dry_bulb: f32, first_moisture_content: f32, second_air_flow: f32,
    second_dry_bulb: f32, second_moisture_content: f32,
) -> Result<AdiabaticMixing, Error> {
    check::range("psychro::adiabatic_mixing", "first_air_flow", &first_air_flow, 0.0..=f32::INFINITY, "kg/s")?;
    check::range("psychro::adiabatic_mixing", "first_dry_bulb", &first_dry_bulb, -100.0..=200.0, "°C")?;
    check::range(
        "psychro::adiabatic_mixing", "first_moisture_content", &first_moisture_content, 0.0..=0.1, "kg/kg",
    )?;
    check::range(
        "psychro::adiabatic_mixing", "second_air_flow", &second_air_flow, 0.0..=f32::INFINITY, "kg/s",
    )?;
    check::range("psychro::adiabatic_mixing", "second_dry_bulb", &second_dry_bulb, -100.0..=200.0, "°C")?;
    check::range(
        "psychro::adiabatic_mixing", "second_moisture_content", &second_moisture_content, 0.0..=0.1, "kg/kg",
    )?;
    Ok(unchecked::psychro::adiabatic_mixing(
        first_air_flow, first_dry_bulb, first_moisture_content, second_air_flow, second_dry_bulb,
        second_moisture_content,
    ))
}

/// Moisture content of air from the reading of a wet-and-dry-bulb psychrometer.
///
/// # Arguments
/// * `dry_bulb`: dry-bulb temperature (°C); valid -100 to 200
/// * `wet_bulb`: wet-bulb temperature (°C); valid -100 to 200
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
/// * `psychrometer`: psychrometer type
///
/// # Returns
/// Moisture content, water vapour per dry air (kg/kg)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: g = 0.62197 f pv / (p - f pv)
/// * A wet bulb at or above the dry bulb counts as saturation; the coefficient of an iced bulb is taken when
///   the wet bulb is below 0 °C.
/// * The enhancement factor takes its ice coefficients at 0 °C and below, where the saturation pressure counts
///   exactly 0 °C as water; the difference is deliberate.
/// * Not limited: a reading drier than any air gives a negative content, a vapour pressure above the
///   atmospheric too.
/// * A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// # Source
/// Vapour pressure of [`vapour_pressure_from_psychrometer`]; the enhancement factor f is a quadratic in
/// absolute temperature whose coefficients are linear in pressure.
///
/// `PSGS` in quorvel.h.
pub fn moisture_content_from_psychrometer(
    dry_bulb: f32, wet_bulb: f32, pressure: f32, psychrometer: Psychrometer,
) -> Result<f32, Error> {
    check::range("psychro::moisture_content_from_psychrometer", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
    check::range("psychro::moisture_content_from_psychrometer", "wet_bulb", &wet_bulb, -100.0..=200.0, "°C")?;
    check::range(
        "psychro::moisture_content_from_psychrometer", "pressure", &pressure, 50000.0..=110000.0, "Pa",
    )?;
    Ok(unchecked::psychro::moisture_content_from_psychrometer(dry_bulb, wet_bulb, pressure, psychrometer))
}

/// Moisture content of air with a vapour pressure.
///
/// # Arguments
/// * `dry_bulb`: dry-bulb temperature (°C); valid -100 to 200
/// * `vapour_pressure`: vapour pressure (Pa); valid from 0
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
///
/// # Returns
/// Moisture content, water vapour per dry air (kg/kg)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: g = 0.62197 f pv / (p - f pv)
/// * Enhancement factor f of `moisture_content_from_psychrometer`, at the dry bulb.
/// * Not limited: neither to saturation, nor to vapour pressures below the atmospheric.
///
/// # Source
/// Definition for a mixture of ideal gases, ASHRAE Handbook Fundamentals 2017, chapter 1, with the enhancement
/// factor of `moisture_content_from_psychrometer`.
pub fn moisture_content(dry_bulb: f32, vapour_pressure: f32, pressure: f32) -> Result<f32, Error> {
    check::range("psychro::moisture_content", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
    check::range("psychro::moisture_content", "vapour_pressure", &vapour_pressure, 0.0..=f32::INFINITY, "Pa")?;
    check::range("psychro::moisture_content", "pressure", &pressure, 50000.0..=110000.0, "Pa")?;
    Ok(unchecked::psychro::moisture_content(dry_bulb, vapour_pressure, pressure))
}

/// Vapour pressure of air with a moisture content, the inverse of `moisture_content`.
///
/// # Arguments
/// * `dry_bulb`: dry-bulb temperature (°C); valid -100 to 200
/// * `moisture_content`: moisture content, water vapour per dry air (kg/kg); valid 0 to 0.1
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
///
/// # Returns
/// Vapour pressure (Pa)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: pv = p g / (f (0.62197 + g))
/// * Not limited to saturation.
///
/// # Source
/// As `moisture_content`.
pub fn vapour_pressure_from_moisture_content(
    dry_bulb: f32, moisture_content: f32, pressure: f32,
) -> Result<f32, Error> {
    check::range(
        "psychro::vapour_pressure_from_moisture_content", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C",
    )?;
    check::range(
        "psychro::vapour_pressure_from_moisture_content", "moisture_content", &moisture_content, 0.0..=0.1,
        "kg/kg",
    )?;
    check::range(
        "psychro::vapour_pressure_from_moisture_content", "pressure", &pressure, 50000.0..=110000.0, "Pa",
    )?;
    Ok(unchecked::psychro::vapour_pressure_from_moisture_content(dry_bulb, moisture_content, pressure))
}

/// Moisture content of air with a percentage saturation, the inverse of `percentage_saturation`.
///
/// # Arguments
/// * `dry_bulb`: dry-bulb temperature (°C); valid -100 to 200
/// * `percentage_saturation`: percentage saturation (%); valid 0 to 100
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
///
/// # Returns
/// Moisture content, water vapour per dry air (kg/kg)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: g = percentage / 100 gs(t, p)
/// * Not limited. From boiling on, where the saturation pressure is above the atmospheric, it means nothing.
///
/// # Source
/// Definition, with the saturation moisture content of `moisture_content_from_psychrometer`.
pub fn moisture_content_from_percentage_saturation(
    dry_bulb: f32, percentage_saturation: f32, pressure: f32,
) -> Result<f32, Error> {
    check::range(
        "psychro::moisture_content_from_percentage_saturation", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C",
    )?;
    check::range(
        "psychro::moisture_content_from_percentage_saturation", "percentage_saturation", &percentage_saturation,
        0.0..=100.0, "%",
    )?;
    check::range(
        "psychro::moisture_content_from_percentage_saturation", "pressure", &pressure, 50000.0..=110000.0, "Pa",
    )?;
    Ok(unchecked::psychro::moisture_content_from_percentage_saturation(
        dry_bulb, percentage_saturation, pressure,
    ))
}

/// Moisture content of air with a specific enthalpy, the inverse of `specific_enthalpy`.
///
/// # Arguments
/// * `dry_bulb`: dry-bulb temperature (°C); valid -50 to 100
/// * `enthalpy`: specific enthalpy, by mass of dry air (kJ/kg); valid -10 to 460
///
/// # Returns
/// Moisture content, water vapour per dry air (kg/kg)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: g = (h - ha(t)) / hv(t)
/// * Not limited: negative where dry air alone has more, and neither to saturation.
///
/// # Source
/// As `specific_enthalpy`.
pub fn moisture_content_from_enthalpy(dry_bulb: f32, enthalpy: f32) -> Result<f32, Error> {
    check::range("psychro::moisture_content_from_enthalpy", "dry_bulb", &dry_bulb, -50.0..=100.0, "°C")?;
    check::range("psychro::moisture_content_from_enthalpy", "enthalpy", &enthalpy, -10.0..=460.0, "kJ/kg")?;
    Ok(unchecked::psychro::moisture_content_from_enthalpy(dry_bulb, enthalpy))
}

/// Density of moist air.
///
/// # Arguments
/// * `dry_bulb`: dry-bulb temperature (°C); valid -100 to 200
/// * `moisture_content`: moisture content, water vapour per dry air (kg/kg); valid 0 to 0.1
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
///
/// # Returns
/// Density of the moist air (kg/m³)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: (1 + g) / v, by `specific_volume`
/// * A moisture content above saturation counts as saturation.
///
/// # Source
/// Definition: ASHRAE Handbook Fundamentals 2017, chapter 1.
pub fn moist_air_density(dry_bulb: f32, moisture_content: f32, pressure: f32) -> Result<f32, Error> {
    check::range("psychro::moist_air_density", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
    check::range("psychro::moist_air_density", "moisture_content", &moisture_content, 0.0..=0.1, "kg/kg")?;
    check::range("psychro::moist_air_density", "pressure", &pressure, 50000.0..=110000.0, "Pa")?;
    Ok(unchecked::psychro::moist_air_density(dry_bulb, moisture_content, pressure))
}

/// Percentage saturation: moisture content by that of saturated air at the same temperature and pressure.
///
/// # Arguments
/// * `dry_bulb`: dry-bulb temperature (°C); valid -100 to 200
/// * `moisture_content`: moisture content, water vapour per dry air (kg/kg); valid 0 to 0.1
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
///
/// # Returns
/// Percentage saturation (%)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: 100 g / gs(t, p)
/// * Not limited: supersaturated air gives more than 100.
/// * Percentage saturation is not relative humidity, the ratio of vapour pressures, and is the lower of the
///   two.
///
/// # Source
/// Definition, with the saturation moisture content of [`moisture_content_from_psychrometer`].
///
/// `PSPCST` in quorvel.h.
pub fn percentage_saturation(dry_bulb: f32, moisture_content: f32, pressure: f32) -> Result<f32, Error> {
    check::range("psychro::percentage_saturation", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
    check::range("psychro::percentage_saturation", "moisture_content", &moisture_content, 0.0..=0.1, "kg/kg")?;
    check::range("psychro::percentage_saturation", "pressure", &pressure, 50000.0..=110000.0, "Pa")?;
    Ok(unchecked::psychro::percentage_saturation(dry_bulb, moisture_content, pressure))
}

/// Specific enthalpy of moist air.
///
/// # Arguments
/// * `dry_bulb`: dry-bulb temperature (°C); valid -50 to 100
/// * `moisture_content`: moisture content, water vapour per dry air (kg/kg); valid 0 to 0.1
///
/// # Returns
/// Specific enthalpy, by mass of dry air (kJ/kg)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: h = ha(t) + g hv(t), by `dry_air_enthalpy` and `water_vapour_enthalpy`
/// * Per kilogram of dry air, from dry air and liquid water at 0 °C.
/// * All moisture counts as vapour: the moisture content is not limited to that of saturated air.
///
/// # Source
/// Sum over dry air and vapour, as for mixtures of ideal gases: ASHRAE Handbook Fundamentals 2017, chapter 1.
pub fn specific_enthalpy(dry_bulb: f32, moisture_content: f32) -> Result<f32, Error> {
    check::range("psychro::specific_enthalpy", "dry_bulb", &dry_bulb, -50.0..=100.0, "°C")?;
    check::range("psychro::specific_enthalpy", "moisture_content", &moisture_content, 0.0..=0.1, "kg/kg")?;
    Ok(unchecked::psychro::specific_enthalpy(dry_bulb, moisture_content))
}

/// Specific enthalpy of moist air from the reading of a wet-and-dry-bulb psychrometer.
///
/// # Arguments
/// * `dry_bulb`: dry-bulb temperature (°C); valid -100 to 200
/// * `wet_bulb`: wet-bulb temperature (°C); valid -100 to 200
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
/// * `psychrometer`: psychrometer type
///
/// # Returns
/// Specific enthalpy, by mass of dry air (kJ/kg)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: h = [`dry_air_enthalpy`]\(t) + g [`water_vapour_enthalpy`]\(t), g =
///   [`moisture_content_from_psychrometer`]\(t, twb, p)
/// * A wet bulb at or above the dry bulb counts as saturation; the coefficient of an iced bulb is taken when
///   the wet bulb is below 0 °C.
/// * Per kilogram of dry air, from dry air and liquid water at 0 °C.
/// * Saturated air at 101325 Pa is within 0.07 kJ/kg of the ASHRAE tables from -20 to 30 °C, within 0.2 % up to
///   50 °C.
/// * A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// # Source
/// Enthalpies of [`dry_air_enthalpy`] and [`water_vapour_enthalpy`], moisture content of
/// [`moisture_content_from_psychrometer`].
///
/// `PSHWET` in quorvel.h.
pub fn specific_enthalpy_from_psychrometer(
    dry_bulb: f32, wet_bulb: f32, pressure: f32, psychrometer: Psychrometer,
) -> Result<f32, Error> {
    check::range("psychro::specific_enthalpy_from_psychrometer", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
    check::range("psychro::specific_enthalpy_from_psychrometer", "wet_bulb", &wet_bulb, -100.0..=200.0, "°C")?;
    check::range(
        "psychro::specific_enthalpy_from_psychrometer", "pressure", &pressure, 50000.0..=110000.0, "Pa",
    )?;
    Ok(unchecked::psychro::specific_enthalpy_from_psychrometer(dry_bulb, wet_bulb, pressure, psychrometer))
}

/// Specific volume of moist air.
///
/// # Arguments
/// * `dry_bulb`: dry-bulb temperature (°C); valid -100 to 200
/// * `moisture_content`: moisture content, water vapour per dry air (kg/kg); valid 0 to 0.1
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
///
/// # Returns
/// Specific volume, by mass of dry air (m³/kg)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: v = 287.04 (t + 273.15) / pa - xa^2 B - 2 xa xv C - xv^2 D; xa = 0.62197 / (0.62197 + g), xv = 1
///   \- xa, pa = p - p g / (1.0045 (0.62197 + g))
/// * A moisture content above saturation counts as saturation.
/// * Per kilogram of dry air: the reciprocal is not the density of the moist air.
/// * Virial coefficients of air, B = (4.542 - 0.082785 t + 0.0004353 t^2 - 2.1418e-6 t^3) / 10000, and of air
///   with vapour, C = (1.45 - 0.0097 t + 0.32 (t / 100)^2) / 1000; that of vapour, D, follows straight lines,
///   one below 0 °C and one for each 10 K up to 50 °C and beyond.
///
/// # Source
/// Virial equation of the mixture, written for 101325 Pa (1.0045 is the enhancement factor there); its author
/// is not known.
///
/// `PSSPVL` in quorvel.h.
pub fn specific_volume(dry_bulb: f32, moisture_content: f32, pressure: f32) -> Result<f32, Error> {
    check::range("psychro::specific_volume", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
    check::range("psychro::specific_volume", "moisture_content", &moisture_content, 0.0..=0.1, "kg/kg")?;
    check::range("psychro::specific_volume", "pressure", &pressure, 50000.0..=110000.0, "Pa")?;
    Ok(unchecked::psychro::specific_volume(dry_bulb, moisture_content, pressure))
}

/// Temperature at which saturated air has a specific enthalpy.
///
/// # Arguments
/// * `enthalpy`: specific enthalpy, by mass of dry air (kJ/kg); valid -10 to 460
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
///
/// # Returns
/// Saturation temperature (°C)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * An enthalpy below -10 gives -13.4, above 460 it gives 60, whatever the pressure; at 101325 Pa the search
///   itself gives -12.98 and 59.98 there.
/// * A stepping search with steps down to 0.01 K: the result is below the exact temperature by less than that,
///   or above it by 0.001 K at most.
/// * Where the search would never end (a pressure so low that the water boils, an argument that is not a
///   number), the value it has reached is returned: some ten thousand degrees.
///
/// # Source
/// Enthalpy of [`specific_enthalpy_from_psychrometer`], solved by a step-and-refine search.
///
/// `PSTSAT` in quorvel.h.
pub fn saturation_temperature_from_enthalpy(enthalpy: f32, pressure: f32) -> Result<f32, Error> {
    check::range(
        "psychro::saturation_temperature_from_enthalpy", "enthalpy", &enthalpy, -10.0..=460.0, "kJ/kg",
    )?;
    check::range(
        "psychro::saturation_temperature_from_enthalpy", "pressure", &pressure, 50000.0..=110000.0, "Pa",
    )?;
    Ok(unchecked::psychro::saturation_temperature_from_enthalpy(enthalpy, pressure))
}

/// Evaporation from an indoor pool and its heat flows, for room air given by its moisture content.
///
/// # Arguments
/// * `water_area`: area of the water surface (m²); valid from 0
/// * `wetted_area`: further wetted area, which adds to the latent load only (m²); valid from 0
/// * `water_temperature`: water temperature (°C); valid -100 to 200
/// * `dry_bulb`: dry-bulb temperature of the room air (°C); valid -100 to 200
/// * `moisture_content`: moisture content of the room air (kg/kg); valid 0 to 0.1
/// * `reference_temperature`: second reference temperature (°C); valid -100 to 200
/// * `bathers`: number of bathers, below 1 unoccupied; valid from 0
/// * `reference_coefficient`: coefficient of the exchange with the second reference temperature (W/m²K); valid
///   from 0
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: dp = ps(`water_temperature`) - pv; `evaporation_rate` = 2.193e-8 dp - 1.64e-5 without bathers,
///   4.17e-8 dp bathers / `water_area` + 3.28e-5 with them; `latent_load` = 2.45e6 `evaporation_rate`
///   (`water_area` + `wetted_area`)
/// * The vapour pressure is that of a sling psychrometer at the wet bulb of [`wet_bulb_from_moisture_content`],
///   and good to the step of that search.
/// * Nothing is limited: a calm pool close to equilibrium with the air has a negative rate.
/// * With bathers the rate per area falls as the pool grows, and an area of 0 divides by zero.
///
/// # Source
/// Regressions of the kind that Biasin and Krumme gave in 1974 (unoccupied -0.059 + 0.000079 dp in kg/(m²h)),
/// turned to kg/(m²s); fixed latent heat and convective coefficient.
///
/// `TPPOOL` in quorvel.h.
pub fn pool_evaporation(
    water_area: f32, wetted_area: f32, water_temperature: f32, dry_bulb: f32, moisture_content: f32,
    reference_temperature: f32, bathers: i32, reference_coefficient: f32, pressure: f32,
) -> Result<PoolEvaporation, Error> {
    check::range("psychro::pool_evaporation", "water_area", &water_area, 0.0..=f32::INFINITY, "m²")?;
    check::range("psychro::pool_evaporation", "wetted_area", &wetted_area, 0.0..=f32::INFINITY, "m²")?;
    check::range("psychro::pool_evaporation", "water_temperature", &water_temperature, -100.0..=200.0, "°C")?;
    check::range("psychro::pool_evaporation", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
    check::range("psychro::pool_evaporation", "moisture_content", &moisture_content, 0.0..=0.1, "kg/kg")?;
    check::range(
        "psychro::pool_evaporation", "reference_temperature", &reference_temperature, -100.0..=200.0, "°C",
    )?;
    check::range("psychro::pool_evaporation", "bathers", &bathers, 0..=i32::MAX, "")?;
    check::range(
        "psychro::pool_evaporation", "reference_coefficient", &reference_coefficient, 0.0..=f32::INFINITY,
        "W/m²K",
    )?;
    check::range("psychro::pool_evaporation", "pressure", &pressure, 50000.0..=110000.0, "Pa")?;
    Ok(unchecked::psychro::pool_evaporation(
        water_area, wetted_area, water_temperature, dry_bulb, moisture_content, reference_temperature, bathers,
        reference_coefficient, pressure,
    ))
}

/// Evaporation from an indoor pool and its heat flows, for room air given by its wet bulb.
///
/// # Arguments
/// * `water_area`: area of the water surface (m²); valid from 0
/// * `wetted_area`: further wetted area, which adds to the latent load only (m²); valid from 0
/// * `water_temperature`: water temperature (°C); valid -100 to 200
/// * `dry_bulb`: dry-bulb temperature of the room air (°C); valid -100 to 200
/// * `wet_bulb`: wet-bulb temperature of the room air, sling psychrometer (°C); valid -100 to 200
/// * `reference_temperature`: second reference temperature (°C); valid -100 to 200
/// * `bathers`: number of bathers, below 1 unoccupied; valid from 0
/// * `reference_coefficient`: coefficient of the exchange with the second reference temperature (W/m²K); valid
///   from 0
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: dp = ps(`water_temperature`) - pv; `evaporation_rate` = 2.193e-8 dp - 1.64e-5 without bathers,
///   4.17e-8 dp bathers / `water_area` + 3.28e-5 with them; `latent_load` = 2.45e6 `evaporation_rate`
///   (`water_area` + `wetted_area`)
/// * A wet bulb at or above the dry bulb counts as saturated air.
/// * Nothing is limited: a calm pool close to equilibrium with the air has a negative rate.
/// * With bathers the rate per area falls as the pool grows, and an area of 0 divides by zero.
///
/// # Source
/// Regressions of the kind that Biasin and Krumme gave in 1974 (unoccupied -0.059 + 0.000079 dp in kg/(m²h)),
/// turned to kg/(m²s); fixed latent heat and convective coefficient.
///
/// `TPPOOL2` in quorvel.h.
pub fn pool_evaporation_from_wet_bulb(
    water_area: f32, wetted_area: f32, water_temperature: f32, dry_bulb: f32, wet_bulb: f32,
    reference_temperature: f32, bathers: i32, reference_coefficient: f32, pressure: f32,
) -> Result<PoolEvaporationFromWetBulb, Error> {
    check::range(
        "psychro::pool_evaporation_from_wet_bulb", "water_area", &water_area, 0.0..=f32::INFINITY, "m²",
    )?;
    check::range(
        "psychro::pool_evaporation_from_wet_bulb", "wetted_area", &wetted_area, 0.0..=f32::INFINITY, "m²",
    )?;
    check::range(
        "psychro::pool_evaporation_from_wet_bulb", "water_temperature", &water_temperature, -100.0..=200.0,
        "°C",
    )?;
    check::range("psychro::pool_evaporation_from_wet_bulb", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
    check::range("psychro::pool_evaporation_from_wet_bulb", "wet_bulb", &wet_bulb, -100.0..=200.0, "°C")?;
    check::range(
        "psychro::pool_evaporation_from_wet_bulb", "reference_temperature", &reference_temperature,
        -100.0..=200.0, "°C",
    )?;
    check::range("psychro::pool_evaporation_from_wet_bulb", "bathers", &bathers, 0..=i32::MAX, "")?;
    check::range(
        "psychro::pool_evaporation_from_wet_bulb", "reference_coefficient", &reference_coefficient,
        0.0..=f32::INFINITY, "W/m²K",
    )?;
    check::range("psychro::pool_evaporation_from_wet_bulb", "pressure", &pressure, 50000.0..=110000.0, "Pa")?;
    Ok(unchecked::psychro::pool_evaporation_from_wet_bulb(
        water_area, wetted_area, water_temperature, dry_bulb, wet_bulb, reference_temperature, bathers,
        reference_coefficient, pressure,
    ))
}

/// Saturation vapour pressure over a plane surface of water, or of ice below 0 °C.
///
/// # Arguments
/// * `temperature`: temperature (°C); valid -100 to 200
///
/// # Returns
/// Saturation vapour pressure (Pa)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: log10(ps) = 33.59051 - 3142.31 / T - 8.2 log10(T) + 0.0024804 T over water, 12.538099 - 2663.91 /
///   T over ice; T = temperature + 273.15
/// * Exactly 0 °C counts as water. The two branches meet there only to 0.04 Pa (610.34 over water, 610.30 over
///   ice); the step is deliberate.
/// * Within 0.4 % of the international formulation from -20 to 150 °C, within 1 % down to -40 °C.
///
/// # Source
/// National Engineering Laboratory, Steam Tables 1964, in the reduced form that building services guides print.
///
/// `PSSVP` in quorvel.h.
pub fn saturation_pressure(temperature: f32) -> Result<f32, Error> {
    check::range("psychro::saturation_pressure", "temperature", &temperature, -100.0..=200.0, "°C")?;
    Ok(unchecked::psychro::saturation_pressure(temperature))
}

/// Dew point of air with a vapour pressure, the inverse of the saturation pressure; below 0 °C the frost point.
///
/// # Arguments
/// * `vapour_pressure`: vapour pressure (Pa); valid from 0
///
/// # Returns
/// Dew-point temperature, of frost below 0 °C (°C)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: ps(`dew_point`) = pv
/// * Solved in double precision; `saturation_pressure`, in single precision, returns the vapour pressure to
///   0.002 %, and `dew_point` the temperature that was given to it to 0.001 K up to 100 °C.
/// * The vapour pressures between ice and water at 0 °C, 610.30 to 610.34 Pa, give 0 °C to 0.0001 K.
/// * Found from -200 to 400 °C. A pressure of 0 or less, or beyond those of this range, gives not a number.
///
/// # Source
/// Saturation pressure of `saturation_pressure` (National Engineering Laboratory, Steam Tables 1964), solved by
/// Newton's method.
pub fn dew_point(vapour_pressure: f32) -> Result<f32, Error> {
    check::range("psychro::dew_point", "vapour_pressure", &vapour_pressure, 0.0..=f32::INFINITY, "Pa")?;
    Ok(unchecked::psychro::dew_point(vapour_pressure))
}

/// Vapour pressure of air at a dry-bulb temperature and relative humidity.
///
/// # Arguments
/// * `dry_bulb`: dry-bulb temperature (°C); valid -100 to 200
/// * `relative_humidity`: relative humidity (%); valid 0 to 100
///
/// # Returns
/// Vapour pressure (Pa)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: pv = rh / 100 ps(t)
/// * Relative humidity is limited to 0 to 100 %, not rejected.
///
/// # Source
/// Definition of relative humidity, with the saturation pressure of [`saturation_pressure`].
///
/// `PSVP` in quorvel.h.
pub fn vapour_pressure(dry_bulb: f32, relative_humidity: f32) -> Result<f32, Error> {
    check::range("psychro::vapour_pressure", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
    check::range("psychro::vapour_pressure", "relative_humidity", &relative_humidity, 0.0..=100.0, "%")?;
    Ok(unchecked::psychro::vapour_pressure(dry_bulb, relative_humidity))
}

/// Relative humidity of air with a vapour pressure.
///
/// # Arguments
/// * `dry_bulb`: dry-bulb temperature (°C); valid -100 to 200
/// * `vapour_pressure`: vapour pressure (Pa); valid from 0
///
/// # Returns
/// Relative humidity (%)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: rh = 100 pv / ps(t)
/// * Not limited: supersaturated air gives more than 100.
///
/// # Source
/// Definition of relative humidity, the ratio of vapour pressures, with `saturation_pressure`.
pub fn relative_humidity(dry_bulb: f32, vapour_pressure: f32) -> Result<f32, Error> {
    check::range("psychro::relative_humidity", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
    check::range("psychro::relative_humidity", "vapour_pressure", &vapour_pressure, 0.0..=f32::INFINITY, "Pa")?;
    Ok(unchecked::psychro::relative_humidity(dry_bulb, vapour_pressure))
}

/// Vapour pressure from the reading of a wet-and-dry-bulb psychrometer.
///
/// # Arguments
/// * `dry_bulb`: dry-bulb temperature (°C); valid -100 to 200
/// * `wet_bulb`: wet-bulb temperature (°C); valid -100 to 200
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
/// * `psychrometer`: psychrometer type
///
/// # Returns
/// Vapour pressure (Pa)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: pv = ps(twb) - A p (t - twb)
/// * The coefficient of an iced bulb is taken when the wet bulb is below 0 °C.
/// * A wet bulb at or above the dry bulb gives the saturation pressure at the dry-bulb temperature.
/// * The result is not limited: a reading drier than any air gives a negative pressure.
/// * A psychrometer type below 1 counts as 1, above 2 as 2.
/// * A is 0.000666 1/K for a sling psychrometer and 0.000799 for a screen one, 0.000594 and 0.00072 with an
///   iced bulb.
///
/// # Source
/// Psychrometer equation with the customary coefficients A.
///
/// `PSVAP` in quorvel.h.
pub fn vapour_pressure_from_psychrometer(
    dry_bulb: f32, wet_bulb: f32, pressure: f32, psychrometer: Psychrometer,
) -> Result<f32, Error> {
    check::range("psychro::vapour_pressure_from_psychrometer", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
    check::range("psychro::vapour_pressure_from_psychrometer", "wet_bulb", &wet_bulb, -100.0..=200.0, "°C")?;
    check::range(
        "psychro::vapour_pressure_from_psychrometer", "pressure", &pressure, 50000.0..=110000.0, "Pa",
    )?;
    Ok(unchecked::psychro::vapour_pressure_from_psychrometer(dry_bulb, wet_bulb, pressure, psychrometer))
}

/// Weighted temperature of two air temperatures.
///
/// # Arguments
/// * `first_temperature`: temperature with the greater weight (°C); valid -100 to 200
/// * `second_temperature`: temperature with the lesser, negative weight (°C); valid -100 to 200
///
/// # Returns
/// Weighted temperature (°C)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: (41.94 t1 - 7.33 t2) / (34.61 + t1 - t2)
/// * Two equal temperatures give that temperature. Infinite where the second is above the first by 34.61 K.
///
/// # Source
/// The derivation is not known, so the second temperature has no other meaning than the formula's.
///
/// `PSTEFF` in quorvel.h.
pub fn weighted_temperature(first_temperature: f32, second_temperature: f32) -> Result<f32, Error> {
    check::range(
        "psychro::weighted_temperature", "first_temperature", &first_temperature, -100.0..=200.0, "°C",
    )?;
    check::range(
        "psychro::weighted_temperature", "second_temperature", &second_temperature, -100.0..=200.0, "°C",
    )?;
    Ok(unchecked::psychro::weighted_temperature(first_temperature, second_temperature))
}

/// Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and relative humidity.
///
/// # Arguments
/// * `dry_bulb`: dry-bulb temperature (°C); valid -100 to 200
/// * `relative_humidity`: relative humidity (%); valid 0 to 100
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
/// * `psychrometer`: psychrometer type
///
/// # Returns
/// Wet-bulb temperature, never above the dry bulb (°C)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * The coefficient of an iced bulb is taken when the dry bulb is below 0 °C, where
///   [`vapour_pressure_from_psychrometer`] looks at the wet bulb; the asymmetry is deliberate.
/// * A stepping search that ends within 0.1 K: the result moves in small jumps with its arguments.
/// * Relative humidity is limited to 0 to 100 %. Where the search would never end (a pressure of zero or below,
///   say), the value it has reached is returned.
/// * A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// # Source
/// Psychrometer equation of [`vapour_pressure_from_psychrometer`], solved by a step-and-refine search.
///
/// `PSTWET` in quorvel.h.
pub fn psychrometer_wet_bulb(
    dry_bulb: f32, relative_humidity: f32, pressure: f32, psychrometer: Psychrometer,
) -> Result<f32, Error> {
    check::range("psychro::psychrometer_wet_bulb", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
    check::range("psychro::psychrometer_wet_bulb", "relative_humidity", &relative_humidity, 0.0..=100.0, "%")?;
    check::range("psychro::psychrometer_wet_bulb", "pressure", &pressure, 50000.0..=110000.0, "Pa")?;
    Ok(unchecked::psychro::psychrometer_wet_bulb(dry_bulb, relative_humidity, pressure, psychrometer))
}

/// Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and percentage saturation.
///
/// # Arguments
/// * `dry_bulb`: dry-bulb temperature (°C); valid -100 to 200
/// * `percentage_saturation`: percentage saturation (%); valid 0 to 100
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
/// * `psychrometer`: psychrometer type
///
/// # Returns
/// Wet-bulb temperature (°C)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * A stepping search with steps down to 0.01 K: the result is above the exact wet bulb by less than that and
///   moves in small jumps with its arguments.
/// * The percentage is not limited: 100 and more give the dry bulb.
/// * About 0 °C, where the coefficient changes to that of an iced bulb, two wet bulbs can belong to one
///   percentage; which of them is found depends on the steps.
/// * Where the search would never end (below absolute zero, say), the value it has reached is returned.
/// * A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// # Source
/// Psychrometer equation of [`vapour_pressure_from_psychrometer`] with the moisture content of
/// [`moisture_content_from_psychrometer`], solved by a step-and-refine search.
///
/// `PSTWB` in quorvel.h.
pub fn wet_bulb_from_percentage_saturation(
    dry_bulb: f32, percentage_saturation: f32, pressure: f32, psychrometer: Psychrometer,
) -> Result<f32, Error> {
    check::range("psychro::wet_bulb_from_percentage_saturation", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
    check::range(
        "psychro::wet_bulb_from_percentage_saturation", "percentage_saturation", &percentage_saturation,
        0.0..=100.0, "%",
    )?;
    check::range(
        "psychro::wet_bulb_from_percentage_saturation", "pressure", &pressure, 50000.0..=110000.0, "Pa",
    )?;
    Ok(unchecked::psychro::wet_bulb_from_percentage_saturation(
        dry_bulb, percentage_saturation, pressure, psychrometer,
    ))
}

/// Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and moisture content.
///
/// # Arguments
/// * `dry_bulb`: dry-bulb temperature (°C); valid -100 to 200
/// * `moisture_content`: moisture content, water vapour per dry air (kg/kg); valid 0 to 0.1
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
/// * `psychrometer`: psychrometer type
///
/// # Returns
/// Wet-bulb temperature (°C)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * A stepping search with steps of 5 K down to 0.005 K and a last one of 0.0005 K: the result is within 0.005
///   K of the exact wet bulb.
/// * At saturation or above the result is the dry bulb, whatever that is. Otherwise a dry bulb above 10000 °C
///   gives -100, one that is not a number -200.
/// * Where the search would never end (a moisture content that is not a number, or far below 0), the value it
///   has reached is returned.
/// * A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// # Source
/// Psychrometer equation of [`vapour_pressure_from_psychrometer`] with the moisture content of
/// [`moisture_content_from_psychrometer`], solved by a step-and-refine search.
///
/// `PSWBLB` in quorvel.h.
pub fn wet_bulb_from_moisture_content(
    dry_bulb: f32, moisture_content: f32, pressure: f32, psychrometer: Psychrometer,
) -> Result<f32, Error> {
    check::range("psychro::wet_bulb_from_moisture_content", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
    check::range(
        "psychro::wet_bulb_from_moisture_content", "moisture_content", &moisture_content, 0.0..=0.1, "kg/kg",
    )?;
    check::range("psychro::wet_bulb_from_moisture_content", "pressure", &pressure, 50000.0..=110000.0, "Pa")?;
    Ok(unchecked::psychro::wet_bulb_from_moisture_content(dry_bulb, moisture_content, pressure, psychrometer))
}

/// Wet-bulb temperature that a psychrometer reads in air with a vapour pressure.
///
/// # Arguments
/// * `dry_bulb`: dry-bulb temperature (°C); valid -100 to 200
/// * `vapour_pressure`: vapour pressure (Pa); valid from 0
/// * `pressure`: atmospheric pressure (Pa); valid 50000 to 110000
/// * `psychrometer`: psychrometer type
///
/// # Returns
/// Wet-bulb temperature (°C)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: ps(twb) - A p (t - twb) = pv
/// * The exact solution, in double precision; `vapour_pressure_from_psychrometer` gives the vapour pressure
///   back to 0.002 % of saturation.
/// * About 0 °C an iced wet bulb and one that is not can belong to the same air: that which is not iced is
///   found.
/// * At saturation or above the result is the dry bulb. A vapour pressure too far below 0 gives not a number.
/// * A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// # Source
/// Psychrometer equation of `vapour_pressure_from_psychrometer`, solved by Newton's method.
pub fn wet_bulb(
    dry_bulb: f32, vapour_pressure: f32, pressure: f32, psychrometer: Psychrometer,
) -> Result<f32, Error> {
    check::range("psychro::wet_bulb", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
    check::range("psychro::wet_bulb", "vapour_pressure", &vapour_pressure, 0.0..=f32::INFINITY, "Pa")?;
    check::range("psychro::wet_bulb", "pressure", &pressure, 50000.0..=110000.0, "Pa")?;
    Ok(unchecked::psychro::wet_bulb(dry_bulb, vapour_pressure, pressure, psychrometer))
}

/// Functions of whole arrays.
pub mod arrays {
    use super::*;

    /// [`crate::psychro::dry_air_enthalpy`] of whole arrays.
    pub fn dry_air_enthalpy<'a>(temperature: impl Into<Input<'a, f32>>) -> Result<Vec<f32>, Error> {
        let temperature = temperature.into();
        check::range("psychro::dry_air_enthalpy", "temperature", &temperature, -50.0..=100.0, "°C")?;
        unchecked::psychro::arrays::dry_air_enthalpy(temperature)
    }

    /// [`crate::psychro::water_vapour_enthalpy`] of whole arrays.
    pub fn water_vapour_enthalpy<'a>(temperature: impl Into<Input<'a, f32>>) -> Result<Vec<f32>, Error> {
        let temperature = temperature.into();
        check::range("psychro::water_vapour_enthalpy", "temperature", &temperature, -50.0..=100.0, "°C")?;
        unchecked::psychro::arrays::water_vapour_enthalpy(temperature)
    }

    /// [`crate::psychro::dry_air_specific_heat`] of whole arrays.
    pub fn dry_air_specific_heat<'a>(temperature: impl Into<Input<'a, f32>>) -> Result<Vec<f32>, Error> {
        let temperature = temperature.into();
        check::range("psychro::dry_air_specific_heat", "temperature", &temperature, -50.0..=100.0, "°C")?;
        unchecked::psychro::arrays::dry_air_specific_heat(temperature)
    }

    /// [`crate::psychro::water_vapour_specific_heat`] of whole arrays.
    pub fn water_vapour_specific_heat<'a>(temperature: impl Into<Input<'a, f32>>) -> Result<Vec<f32>, Error> {
        let temperature = temperature.into();
        check::range("psychro::water_vapour_specific_heat", "temperature", &temperature, -50.0..=100.0, "°C")?;
        unchecked::psychro::arrays::water_vapour_specific_heat(temperature)
    }

    /// [`crate::psychro::latent_heat`] of whole arrays.
    pub fn latent_heat<'a>(temperature: impl Into<Input<'a, f32>>) -> Result<Vec<f32>, Error> {
        let temperature = temperature.into();
        check::range("psychro::latent_heat", "temperature", &temperature, -50.0..=100.0, "°C")?;
        unchecked::psychro::arrays::latent_heat(temperature)
    }

    /// [`crate::psychro::dry_bulb_from_vapour_pressure_and_relative_humidity`] of whole arrays.
    pub fn dry_bulb_from_vapour_pressure_and_relative_humidity<'a>(
        vapour_pressure: impl Into<Input<'a, f32>>, relative_humidity: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let vapour_pressure = vapour_pressure.into();
        let relative_humidity = relative_humidity.into();
        check::range(
            "psychro::dry_bulb_from_vapour_pressure_and_relative_humidity", "vapour_pressure", &vapour_pressure,
            0.0..=f32::INFINITY, "Pa",
        )?;
        check::range(
            "psychro::dry_bulb_from_vapour_pressure_and_relative_humidity", "relative_humidity", &relative_humidity,
            0.0..=100.0, "%",
        )?;
        unchecked::psychro::arrays::dry_bulb_from_vapour_pressure_and_relative_humidity(
            vapour_pressure, relative_humidity,
        )
    }

    /// [`crate::psychro::dry_bulb_from_vapour_pressure_and_percentage_saturation`] of whole arrays.
    pub fn dry_bulb_from_vapour_pressure_and_percentage_saturation<'a>(
        vapour_pressure: impl Into<Input<'a, f32>>, percentage_saturation: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let vapour_pressure = vapour_pressure.into();
        let percentage_saturation = percentage_saturation.into();
        let pressure = pressure.into();
        check::range(
            "psychro::dry_bulb_from_vapour_pressure_and_percentage_saturation", "vapour_pressure", &vapour_pressure,
            0.0..=f32::INFINITY, "Pa",
        )?;
        check::range(
            "psychro::dry_bulb_from_vapour_pressure_and_percentage_saturation", "percentage_saturation",
            &percentage_saturation, 0.0..=100.0, "%",
        )?;
        check::range(
            "psychro::dry_bulb_from_vapour_pressure_and_percentage_saturation", "pressure", &pressure,
            50000.0..=110000.0, "Pa",
        )?;
        unchecked::psychro::arrays::dry_bulb_from_vapour_pressure_and_percentage_saturation(
            vapour_pressure, percentage_saturation, pressure,
        )
    }

    /// [`crate::psychro::dry_bulb_from_moisture_content_and_relative_humidity`] of whole arrays.
    pub fn dry_bulb_from_moisture_content_and_relative_humidity<'a>(
        moisture_content: impl Into<Input<'a, f32>>, relative_humidity: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let moisture_content = moisture_content.into();
        let relative_humidity = relative_humidity.into();
        let pressure = pressure.into();
        check::range(
            "psychro::dry_bulb_from_moisture_content_and_relative_humidity", "moisture_content", &moisture_content,
            0.0..=0.1, "kg/kg",
        )?;
        check::range(
            "psychro::dry_bulb_from_moisture_content_and_relative_humidity", "relative_humidity",
            &relative_humidity, 0.0..=100.0, "%",
        )?;
        check::range(
            "psychro::dry_bulb_from_moisture_content_and_relative_humidity", "pressure", &pressure,
            50000.0..=110000.0, "Pa",
        )?;
        unchecked::psychro::arrays::dry_bulb_from_moisture_content_and_relative_humidity(
            moisture_content, relative_humidity, pressure,
        )
    }

    /// [`crate::psychro::dry_bulb_from_moisture_content_and_percentage_saturation`] of whole arrays.
    pub fn dry_bulb_from_moisture_content_and_percentage_saturation<'a>(
        moisture_content: impl Into<Input<'a, f32>>, percentage_saturation: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let moisture_content = moisture_content.into();
        let percentage_saturation = percentage_saturation.into();
        let pressure = pressure.into();
        check::range(
            "psychro::dry_bulb_from_moisture_content_and_percentage_saturation", "moisture_content",
            &moisture_content, 0.0..=0.1, "kg/kg",
        )?;
        check::range(
            "psychro::dry_bulb_from_moisture_content_and_percentage_saturation", "percentage_saturation",
            &percentage_saturation, 0.0..=100.0, "%",
        )?;
        check::range(
            "psychro::dry_bulb_from_moisture_content_and_percentage_saturation", "pressure", &pressure,
            50000.0..=110000.0, "Pa",
        )?;
        unchecked::psychro::arrays::dry_bulb_from_moisture_content_and_percentage_saturation(
            moisture_content, percentage_saturation, pressure,
        )
    }

    /// [`crate::psychro::dry_bulb_from_enthalpy_and_moisture_content`] of whole arrays.
    pub fn dry_bulb_from_enthalpy_and_moisture_content<'a>(
        enthalpy: impl Into<Input<'a, f32>>, moisture_content: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let enthalpy = enthalpy.into();
        let moisture_content = moisture_content.into();
        check::range(
            "psychro::dry_bulb_from_enthalpy_and_moisture_content", "enthalpy", &enthalpy, -10.0..=460.0, "kJ/kg",
        )?;
        check::range(
            "psychro::dry_bulb_from_enthalpy_and_moisture_content", "moisture_content", &moisture_content,
            0.0..=0.1, "kg/kg",
        )?;
        unchecked::psychro::arrays::dry_bulb_from_enthalpy_and_moisture_content(enthalpy, moisture_content)
    }

    /// [`crate::psychro::dry_bulb_from_enthalpy_and_vapour_pressure`] of whole arrays.
    pub fn dry_bulb_from_enthalpy_and_vapour_pressure<'a>(
        enthalpy: impl Into<Input<'a, f32>>, vapour_pressure: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let enthalpy = enthalpy.into();
        let vapour_pressure = vapour_pressure.into();
        let pressure = pressure.into();
        check::range(
            "psychro::dry_bulb_from_enthalpy_and_vapour_pressure", "enthalpy", &enthalpy, -10.0..=460.0, "kJ/kg",
        )?;
        check::range(
            "psychro::dry_bulb_from_enthalpy_and_vapour_pressure", "vapour_pressure", &vapour_pressure,
            0.0..=f32::INFINITY, "Pa",
        )?;
        check::range(
            "psychro::dry_bulb_from_enthalpy_and_vapour_pressure", "pressure", &pressure, 50000.0..=110000.0, "Pa",
        )?;
        unchecked::psychro::arrays::dry_bulb_from_enthalpy_and_vapour_pressure(enthalpy, vapour_pressure, pressure)
    }

    /// [`crate::psychro::dry_bulb_from_enthalpy_and_relative_humidity`] of whole arrays.
    pub fn dry_bulb_from_enthalpy_and_relative_humidity<'a>(
        enthalpy: impl Into<Input<'a, f32>>, relative_humidity: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let enthalpy = enthalpy.into();
        let relative_humidity = relative_humidity.into();
        let pressure = pressure.into();
        check::range(
            "psychro::dry_bulb_from_enthalpy_and_relative_humidity", "enthalpy", &enthalpy, -10.0..=460.0, "kJ/kg",
        )?;
        check::range(
            "psychro::dry_bulb_from_enthalpy_and_relative_humidity", "relative_humidity", &relative_humidity,
            0.0..=100.0, "%",
        )?;
        check::range(
            "psychro::dry_bulb_from_enthalpy_and_relative_humidity", "pressure", &pressure, 50000.0..=110000.0,
            "Pa",
        )?;
        unchecked::psychro::arrays::dry_bulb_from_enthalpy_and_relative_humidity(
            enthalpy, relative_humidity, pressure,
        )
    }

    /// [`crate::psychro::dry_bulb_from_enthalpy_and_percentage_saturation`] of whole arrays.
    pub fn dry_bulb_from_enthalpy_and_percentage_saturation<'a>(
        enthalpy: impl Into<Input<'a, f32>>, percentage_saturation: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let enthalpy = enthalpy.into();
        let percentage_saturation = percentage_saturation.into();
        let pressure = pressure.into();
        check::range(
            "psychro::dry_bulb_from_enthalpy_and_percentage_saturation", "enthalpy", &enthalpy, -10.0..=460.0,
            "kJ/kg",
        )?;
        check::range(
            "psychro::dry_bulb_from_enthalpy_and_percentage_saturation", "percentage_saturation",
            &percentage_saturation, 0.0..=100.0, "%",
        )?;
        check::range(
            "psychro::dry_bulb_from_enthalpy_and_percentage_saturation", "pressure", &pressure, 50000.0..=110000.0,
            "Pa",
        )?;
        unchecked::psychro::arrays::dry_bulb_from_enthalpy_and_percentage_saturation(
            enthalpy, percentage_saturation, pressure,
        )
    }

    /// [`crate::psychro::dry_bulb_from_wet_bulb_and_vapour_pressure`] of whole arrays.
    pub fn dry_bulb_from_wet_bulb_and_vapour_pressure<'a>(
        wet_bulb: impl Into<Input<'a, f32>>, vapour_pressure: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, Psychrometer>>,
    ) -> Result<Vec<f32>, Error> {
        let wet_bulb = wet_bulb.into();
        let vapour_pressure = vapour_pressure.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        check::range(
            "psychro::dry_bulb_from_wet_bulb_and_vapour_pressure", "wet_bulb", &wet_bulb, -100.0..=200.0, "°C",
        )?;
        check::range(
            "psychro::dry_bulb_from_wet_bulb_and_vapour_pressure", "vapour_pressure", &vapour_pressure,
            0.0..=f32::INFINITY, "Pa",
        )?;
        check::range(
            "psychro::dry_bulb_from_wet_bulb_and_vapour_pressure", "pressure", &pressure, 50000.0..=110000.0, "Pa",
        )?;
        let psychrometer = psychrometer.numbers();
        unchecked::psychro::arrays::dry_bulb_from_wet_bulb_and_vapour_pressure(
            wet_bulb, vapour_pressure, pressure, psychrometer,
        )
    }

    /// [`crate::psychro::dry_bulb_from_wet_bulb_and_moisture_content`] of whole arrays.
    pub fn dry_bulb_from_wet_bulb_and_moisture_content<'a>(
        wet_bulb: impl Into<Input<'a, f32>>, moisture_content: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, Psychrometer>>,
    ) -> Result<Vec<f32>, Error> {
        let wet_bulb = wet_bulb.into();
        let moisture_content = moisture_content.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        check::range(
            "psychro::dry_bulb_from_wet_bulb_and_moisture_content", "wet_bulb", &wet_bulb, -100.0..=200.0, "°C",
        )?;
        check::range(
            "psychro::dry_bulb_from_wet_bulb_and_moisture_content", "moisture_content", &moisture_content,
            0.0..=0.1, "kg/kg",
        )?;
        check::range(
            "psychro::dry_bulb_from_wet_bulb_and_moisture_content", "pressure", &pressure, 50000.0..=110000.0, "Pa",
        )?;
        let psychrometer = psychrometer.numbers();
        unchecked::psychro::arrays::dry_bulb_from_wet_bulb_and_moisture_content(
            wet_bulb, moisture_content, pressure, psychrometer,
        )
    }

    /// [`crate::psychro::dry_bulb_from_wet_bulb_and_relative_humidity`] of whole arrays.
    pub fn dry_bulb_from_wet_bulb_and_relative_humidity<'a>(
        wet_bulb: impl Into<Input<'a, f32>>, relative_humidity: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, Psychrometer>>,
    ) -> Result<Vec<f32>, Error> {
        let wet_bulb = wet_bulb.into();
        let relative_humidity = relative_humidity.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        check::range(
            "psychro::dry_bulb_from_wet_bulb_and_relative_humidity", "wet_bulb", &wet_bulb, -100.0..=200.0, "°C",
        )?;
        check::range(
            "psychro::dry_bulb_from_wet_bulb_and_relative_humidity", "relative_humidity", &relative_humidity,
            0.0..=100.0, "%",
        )?;
        check::range(
            "psychro::dry_bulb_from_wet_bulb_and_relative_humidity", "pressure", &pressure, 50000.0..=110000.0,
            "Pa",
        )?;
        let psychrometer = psychrometer.numbers();
        unchecked::psychro::arrays::dry_bulb_from_wet_bulb_and_relative_humidity(
            wet_bulb, relative_humidity, pressure, psychrometer,
        )
    }

    /// [`crate::psychro::dry_bulb_from_wet_bulb_and_percentage_saturation`] of whole arrays.
    pub fn dry_bulb_from_wet_bulb_and_percentage_saturation<'a>(
        wet_bulb: impl Into<Input<'a, f32>>, percentage_saturation: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, Psychrometer>>,
    ) -> Result<Vec<f32>, Error> {
        let wet_bulb = wet_bulb.into();
        let percentage_saturation = percentage_saturation.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        check::range(
            "psychro::dry_bulb_from_wet_bulb_and_percentage_saturation", "wet_bulb", &wet_bulb, -100.0..=200.0,
            "°C",
        )?;
        check::range(
            "psychro::dry_bulb_from_wet_bulb_and_percentage_saturation", "percentage_saturation",
            &percentage_saturation, 0.0..=100.0, "%",
        )?;
        check::range(
            "psychro::dry_bulb_from_wet_bulb_and_percentage_saturation", "pressure", &pressure, 50000.0..=110000.0,
            "Pa",
        )?;
        let psychrometer = psychrometer.numbers();
        unchecked::psychro::arrays::dry_bulb_from_wet_bulb_and_percentage_saturation(
            wet_bulb, percentage_saturation, pressure, psychrometer,
        )
    }

    /// [`crate::psychro::dry_bulb_from_wet_bulb_and_enthalpy`] of whole arrays.
    pub fn dry_bulb_from_wet_bulb_and_enthalpy<'a>(
        wet_bulb: impl Into<Input<'a, f32>>, enthalpy: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, Psychrometer>>,
    ) -> Result<Vec<f32>, Error> {
        let wet_bulb = wet_bulb.into();
        let enthalpy = enthalpy.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        check::range("psychro::dry_bulb_from_wet_bulb_and_enthalpy", "wet_bulb", &wet_bulb, -100.0..=200.0, "°C")?;
        check::range(
            "psychro::dry_bulb_from_wet_bulb_and_enthalpy", "enthalpy", &enthalpy, -10.0..=460.0, "kJ/kg",
        )?;
        check::range(
            "psychro::dry_bulb_from_wet_bulb_and_enthalpy", "pressure", &pressure, 50000.0..=110000.0, "Pa",
        )?;
        let psychrometer = psychrometer.numbers();
        unchecked::psychro::arrays::dry_bulb_from_wet_bulb_and_enthalpy(wet_bulb, enthalpy, pressure, psychrometer)
    }

    /// [`crate::psychro::adiabatic_mixing`] of whole arrays.
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
        check::range("psychro::adiabatic_mixing", "first_air_flow", &first_air_flow, 0.0..=f32::INFINITY, "kg/s")?;
        check::range("psychro::adiabatic_mixing", "first_dry_bulb", &first_dry_bulb, -100.0..=200.0, "°C")?;
        check::range(
            "psychro::adiabatic_mixing", "first_moisture_content", &first_moisture_content, 0.0..=0.1, "kg/kg",
        )?;
        check::range(
            "psychro::adiabatic_mixing", "second_air_flow", &second_air_flow, 0.0..=f32::INFINITY, "kg/s",
        )?;
        check::range("psychro::adiabatic_mixing", "second_dry_bulb", &second_dry_bulb, -100.0..=200.0, "°C")?;
        check::range(
            "psychro::adiabatic_mixing", "second_moisture_content", &second_moisture_content, 0.0..=0.1, "kg/kg",
        )?;
        unchecked::psychro::arrays::adiabatic_mixing(
            first_air_flow, first_dry_bulb, first_moisture_content, second_air_flow, second_dry_bulb,
            second_moisture_content,
        )
    }

    /// [`crate::psychro::moisture_content_from_psychrometer`] of whole arrays.
    pub fn moisture_content_from_psychrometer<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, wet_bulb: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, Psychrometer>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let wet_bulb = wet_bulb.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        check::range("psychro::moisture_content_from_psychrometer", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
        check::range("psychro::moisture_content_from_psychrometer", "wet_bulb", &wet_bulb, -100.0..=200.0, "°C")?;
        check::range(
            "psychro::moisture_content_from_psychrometer", "pressure", &pressure, 50000.0..=110000.0, "Pa",
        )?;
        let psychrometer = psychrometer.numbers();
        unchecked::psychro::arrays::moisture_content_from_psychrometer(dry_bulb, wet_bulb, pressure, psychrometer)
    }

    /// [`crate::psychro::moisture_content`] of whole arrays.
    pub fn moisture_content<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, vapour_pressure: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let vapour_pressure = vapour_pressure.into();
        let pressure = pressure.into();
        check::range("psychro::moisture_content", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
        check::range("psychro::moisture_content", "vapour_pressure", &vapour_pressure, 0.0..=f32::INFINITY, "Pa")?;
        check::range("psychro::moisture_content", "pressure", &pressure, 50000.0..=110000.0, "Pa")?;
        unchecked::psychro::arrays::moisture_content(dry_bulb, vapour_pressure, pressure)
    }

    /// [`crate::psychro::vapour_pressure_from_moisture_content`] of whole arrays.
    pub fn vapour_pressure_from_moisture_content<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, moisture_content: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let moisture_content = moisture_content.into();
        let pressure = pressure.into();
        check::range(
            "psychro::vapour_pressure_from_moisture_content", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C",
        )?;
        check::range(
            "psychro::vapour_pressure_from_moisture_content", "moisture_content", &moisture_content, 0.0..=0.1,
            "kg/kg",
        )?;
        check::range(
            "psychro::vapour_pressure_from_moisture_content", "pressure", &pressure, 50000.0..=110000.0, "Pa",
        )?;
        unchecked::psychro::arrays::vapour_pressure_from_moisture_content(dry_bulb, moisture_content, pressure)
    }

    /// [`crate::psychro::moisture_content_from_percentage_saturation`] of whole arrays.
    pub fn moisture_content_from_percentage_saturation<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, percentage_saturation: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let percentage_saturation = percentage_saturation.into();
        let pressure = pressure.into();
        check::range(
            "psychro::moisture_content_from_percentage_saturation", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C",
        )?;
        check::range(
            "psychro::moisture_content_from_percentage_saturation", "percentage_saturation", &percentage_saturation,
            0.0..=100.0, "%",
        )?;
        check::range(
            "psychro::moisture_content_from_percentage_saturation", "pressure", &pressure, 50000.0..=110000.0, "Pa",
        )?;
        unchecked::psychro::arrays::moisture_content_from_percentage_saturation(
            dry_bulb, percentage_saturation, pressure,
        )
    }

    /// [`crate::psychro::moisture_content_from_enthalpy`] of whole arrays.
    pub fn moisture_content_from_enthalpy<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, enthalpy: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let enthalpy = enthalpy.into();
        check::range("psychro::moisture_content_from_enthalpy", "dry_bulb", &dry_bulb, -50.0..=100.0, "°C")?;
        check::range("psychro::moisture_content_from_enthalpy", "enthalpy", &enthalpy, -10.0..=460.0, "kJ/kg")?;
        unchecked::psychro::arrays::moisture_content_from_enthalpy(dry_bulb, enthalpy)
    }

    /// [`crate::psychro::moist_air_density`] of whole arrays.
    pub fn moist_air_density<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, moisture_content: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let moisture_content = moisture_content.into();
        let pressure = pressure.into();
        check::range("psychro::moist_air_density", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
        check::range("psychro::moist_air_density", "moisture_content", &moisture_content, 0.0..=0.1, "kg/kg")?;
        check::range("psychro::moist_air_density", "pressure", &pressure, 50000.0..=110000.0, "Pa")?;
        unchecked::psychro::arrays::moist_air_density(dry_bulb, moisture_content, pressure)
    }

    /// [`crate::psychro::percentage_saturation`] of whole arrays.
    pub fn percentage_saturation<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, moisture_content: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let moisture_content = moisture_content.into();
        let pressure = pressure.into();
        check::range("psychro::percentage_saturation", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
        check::range("psychro::percentage_saturation", "moisture_content", &moisture_content, 0.0..=0.1, "kg/kg")?;
        check::range("psychro::percentage_saturation", "pressure", &pressure, 50000.0..=110000.0, "Pa")?;
        unchecked::psychro::arrays::percentage_saturation(dry_bulb, moisture_content, pressure)
    }

    /// [`crate::psychro::specific_enthalpy`] of whole arrays.
    pub fn specific_enthalpy<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, moisture_content: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let moisture_content = moisture_content.into();
        check::range("psychro::specific_enthalpy", "dry_bulb", &dry_bulb, -50.0..=100.0, "°C")?;
        check::range("psychro::specific_enthalpy", "moisture_content", &moisture_content, 0.0..=0.1, "kg/kg")?;
        unchecked::psychro::arrays::specific_enthalpy(dry_bulb, moisture_content)
    }

    /// [`crate::psychro::specific_enthalpy_from_psychrometer`] of whole arrays.
    pub fn specific_enthalpy_from_psychrometer<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, wet_bulb: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, Psychrometer>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let wet_bulb = wet_bulb.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        check::range("psychro::specific_enthalpy_from_psychrometer", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
        check::range("psychro::specific_enthalpy_from_psychrometer", "wet_bulb", &wet_bulb, -100.0..=200.0, "°C")?;
        check::range(
            "psychro::specific_enthalpy_from_psychrometer", "pressure", &pressure, 50000.0..=110000.0, "Pa",
        )?;
        let psychrometer = psychrometer.numbers();
        unchecked::psychro::arrays::specific_enthalpy_from_psychrometer(dry_bulb, wet_bulb, pressure, psychrometer)
    }

    /// [`crate::psychro::specific_volume`] of whole arrays.
    pub fn specific_volume<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, moisture_content: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let moisture_content = moisture_content.into();
        let pressure = pressure.into();
        check::range("psychro::specific_volume", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
        check::range("psychro::specific_volume", "moisture_content", &moisture_content, 0.0..=0.1, "kg/kg")?;
        check::range("psychro::specific_volume", "pressure", &pressure, 50000.0..=110000.0, "Pa")?;
        unchecked::psychro::arrays::specific_volume(dry_bulb, moisture_content, pressure)
    }

    /// [`crate::psychro::saturation_temperature_from_enthalpy`] of whole arrays.
    pub fn saturation_temperature_from_enthalpy<'a>(
        enthalpy: impl Into<Input<'a, f32>>, pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let enthalpy = enthalpy.into();
        let pressure = pressure.into();
        check::range(
            "psychro::saturation_temperature_from_enthalpy", "enthalpy", &enthalpy, -10.0..=460.0, "kJ/kg",
        )?;
        check::range(
            "psychro::saturation_temperature_from_enthalpy", "pressure", &pressure, 50000.0..=110000.0, "Pa",
        )?;
        unchecked::psychro::arrays::saturation_temperature_from_enthalpy(enthalpy, pressure)
    }

    /// [`crate::psychro::pool_evaporation`] of whole arrays.
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
        check::range("psychro::pool_evaporation", "water_area", &water_area, 0.0..=f32::INFINITY, "m²")?;
        check::range("psychro::pool_evaporation", "wetted_area", &wetted_area, 0.0..=f32::INFINITY, "m²")?;
        check::range("psychro::pool_evaporation", "water_temperature", &water_temperature, -100.0..=200.0, "°C")?;
        check::range("psychro::pool_evaporation", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
        check::range("psychro::pool_evaporation", "moisture_content", &moisture_content, 0.0..=0.1, "kg/kg")?;
        check::range(
            "psychro::pool_evaporation", "reference_temperature", &reference_temperature, -100.0..=200.0, "°C",
        )?;
        check::range("psychro::pool_evaporation", "bathers", &bathers, 0..=i32::MAX, "")?;
        check::range(
            "psychro::pool_evaporation", "reference_coefficient", &reference_coefficient, 0.0..=f32::INFINITY,
            "W/m²K",
        )?;
        check::range("psychro::pool_evaporation", "pressure", &pressure, 50000.0..=110000.0, "Pa")?;
        unchecked::psychro::arrays::pool_evaporation(
            water_area, wetted_area, water_temperature, dry_bulb, moisture_content, reference_temperature, bathers,
            reference_coefficient, pressure,
        )
    }

    /// [`crate::psychro::pool_evaporation_from_wet_bulb`] of whole arrays.
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
        check::range(
            "psychro::pool_evaporation_from_wet_bulb", "water_area", &water_area, 0.0..=f32::INFINITY, "m²",
        )?;
        check::range(
            "psychro::pool_evaporation_from_wet_bulb", "wetted_area", &wetted_area, 0.0..=f32::INFINITY, "m²",
        )?;
        check::range(
            "psychro::pool_evaporation_from_wet_bulb", "water_temperature", &water_temperature, -100.0..=200.0,
            "°C",
        )?;
        check::range("psychro::pool_evaporation_from_wet_bulb", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
        check::range("psychro::pool_evaporation_from_wet_bulb", "wet_bulb", &wet_bulb, -100.0..=200.0, "°C")?;
        check::range(
            "psychro::pool_evaporation_from_wet_bulb", "reference_temperature", &reference_temperature,
            -100.0..=200.0, "°C",
        )?;
        check::range("psychro::pool_evaporation_from_wet_bulb", "bathers", &bathers, 0..=i32::MAX, "")?;
        check::range(
            "psychro::pool_evaporation_from_wet_bulb", "reference_coefficient", &reference_coefficient,
            0.0..=f32::INFINITY, "W/m²K",
        )?;
        check::range("psychro::pool_evaporation_from_wet_bulb", "pressure", &pressure, 50000.0..=110000.0, "Pa")?;
        unchecked::psychro::arrays::pool_evaporation_from_wet_bulb(
            water_area, wetted_area, water_temperature, dry_bulb, wet_bulb, reference_temperature, bathers,
            reference_coefficient, pressure,
        )
    }

    /// [`crate::psychro::saturation_pressure`] of whole arrays.
    pub fn saturation_pressure<'a>(temperature: impl Into<Input<'a, f32>>) -> Result<Vec<f32>, Error> {
        let temperature = temperature.into();
        check::range("psychro::saturation_pressure", "temperature", &temperature, -100.0..=200.0, "°C")?;
        unchecked::psychro::arrays::saturation_pressure(temperature)
    }

    /// [`crate::psychro::dew_point`] of whole arrays.
    pub fn dew_point<'a>(vapour_pressure: impl Into<Input<'a, f32>>) -> Result<Vec<f32>, Error> {
        let vapour_pressure = vapour_pressure.into();
        check::range("psychro::dew_point", "vapour_pressure", &vapour_pressure, 0.0..=f32::INFINITY, "Pa")?;
        unchecked::psychro::arrays::dew_point(vapour_pressure)
    }

    /// [`crate::psychro::vapour_pressure`] of whole arrays.
    pub fn vapour_pressure<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, relative_humidity: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let relative_humidity = relative_humidity.into();
        check::range("psychro::vapour_pressure", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
        check::range("psychro::vapour_pressure", "relative_humidity", &relative_humidity, 0.0..=100.0, "%")?;
        unchecked::psychro::arrays::vapour_pressure(dry_bulb, relative_humidity)
    }

    /// [`crate::psychro::relative_humidity`] of whole arrays.
    pub fn relative_humidity<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, vapour_pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let vapour_pressure = vapour_pressure.into();
        check::range("psychro::relative_humidity", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
        check::range("psychro::relative_humidity", "vapour_pressure", &vapour_pressure, 0.0..=f32::INFINITY, "Pa")?;
        unchecked::psychro::arrays::relative_humidity(dry_bulb, vapour_pressure)
    }

    /// [`crate::psychro::vapour_pressure_from_psychrometer`] of whole arrays.
    pub fn vapour_pressure_from_psychrometer<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, wet_bulb: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, Psychrometer>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let wet_bulb = wet_bulb.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        check::range("psychro::vapour_pressure_from_psychrometer", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
        check::range("psychro::vapour_pressure_from_psychrometer", "wet_bulb", &wet_bulb, -100.0..=200.0, "°C")?;
        check::range(
            "psychro::vapour_pressure_from_psychrometer", "pressure", &pressure, 50000.0..=110000.0, "Pa",
        )?;
        let psychrometer = psychrometer.numbers();
        unchecked::psychro::arrays::vapour_pressure_from_psychrometer(dry_bulb, wet_bulb, pressure, psychrometer)
    }

    /// [`crate::psychro::weighted_temperature`] of whole arrays.
    pub fn weighted_temperature<'a>(
        first_temperature: impl Into<Input<'a, f32>>, second_temperature: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let first_temperature = first_temperature.into();
        let second_temperature = second_temperature.into();
        check::range(
            "psychro::weighted_temperature", "first_temperature", &first_temperature, -100.0..=200.0, "°C",
        )?;
        check::range(
            "psychro::weighted_temperature", "second_temperature", &second_temperature, -100.0..=200.0, "°C",
        )?;
        unchecked::psychro::arrays::weighted_temperature(first_temperature, second_temperature)
    }

    /// [`crate::psychro::psychrometer_wet_bulb`] of whole arrays.
    pub fn psychrometer_wet_bulb<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, relative_humidity: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, Psychrometer>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let relative_humidity = relative_humidity.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        check::range("psychro::psychrometer_wet_bulb", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
        check::range("psychro::psychrometer_wet_bulb", "relative_humidity", &relative_humidity, 0.0..=100.0, "%")?;
        check::range("psychro::psychrometer_wet_bulb", "pressure", &pressure, 50000.0..=110000.0, "Pa")?;
        let psychrometer = psychrometer.numbers();
        unchecked::psychro::arrays::psychrometer_wet_bulb(dry_bulb, relative_humidity, pressure, psychrometer)
    }

    /// [`crate::psychro::wet_bulb_from_percentage_saturation`] of whole arrays.
    pub fn wet_bulb_from_percentage_saturation<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, percentage_saturation: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, Psychrometer>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let percentage_saturation = percentage_saturation.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        check::range("psychro::wet_bulb_from_percentage_saturation", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
        check::range(
            "psychro::wet_bulb_from_percentage_saturation", "percentage_saturation", &percentage_saturation,
            0.0..=100.0, "%",
        )?;
        check::range(
            "psychro::wet_bulb_from_percentage_saturation", "pressure", &pressure, 50000.0..=110000.0, "Pa",
        )?;
        let psychrometer = psychrometer.numbers();
        unchecked::psychro::arrays::wet_bulb_from_percentage_saturation(
            dry_bulb, percentage_saturation, pressure, psychrometer,
        )
    }

    /// [`crate::psychro::wet_bulb_from_moisture_content`] of whole arrays.
    pub fn wet_bulb_from_moisture_content<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, moisture_content: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, Psychrometer>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let moisture_content = moisture_content.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        check::range("psychro::wet_bulb_from_moisture_content", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
        check::range(
            "psychro::wet_bulb_from_moisture_content", "moisture_content", &moisture_content, 0.0..=0.1, "kg/kg",
        )?;
        check::range("psychro::wet_bulb_from_moisture_content", "pressure", &pressure, 50000.0..=110000.0, "Pa")?;
        let psychrometer = psychrometer.numbers();
        unchecked::psychro::arrays::wet_bulb_from_moisture_content(
            dry_bulb, moisture_content, pressure, psychrometer,
        )
    }

    /// [`crate::psychro::wet_bulb`] of whole arrays.
    pub fn wet_bulb<'a>(
        dry_bulb: impl Into<Input<'a, f32>>, vapour_pressure: impl Into<Input<'a, f32>>,
        pressure: impl Into<Input<'a, f32>>, psychrometer: impl Into<Input<'a, Psychrometer>>,
    ) -> Result<Vec<f32>, Error> {
        let dry_bulb = dry_bulb.into();
        let vapour_pressure = vapour_pressure.into();
        let pressure = pressure.into();
        let psychrometer = psychrometer.into();
        check::range("psychro::wet_bulb", "dry_bulb", &dry_bulb, -100.0..=200.0, "°C")?;
        check::range("psychro::wet_bulb", "vapour_pressure", &vapour_pressure, 0.0..=f32::INFINITY, "Pa")?;
        check::range("psychro::wet_bulb", "pressure", &pressure, 50000.0..=110000.0, "Pa")?;
        let psychrometer = psychrometer.numbers();
        unchecked::psychro::arrays::wet_bulb(dry_bulb, vapour_pressure, pressure, psychrometer)
    }
}
