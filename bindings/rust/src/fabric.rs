// Produced from the catalogue of routines (catalogue/); do not edit.

//! Building fabric.

use crate::{check, unchecked, ElementKind, Error, Exposure, HeatFlowDirection, Input, Packing, PaneKind, Surface};

/// What [`cyclic_response`] returns.
#[derive(Clone, Copy, Debug, PartialEq)]
pub struct CyclicResponse {
    /// Admittance Y (W/m²K)
    pub admittance: f32,
    /// Time lead of the admittance, 0 to 24 / harmonic (h)
    pub admittance_lead: f32,
    /// Decrement factor f, 0 for a partition.
    pub decrement_factor: f32,
    /// Time lag of the decrement factor, 0 to 24 / harmonic, 0 for a partition (h)
    pub decrement_lag: f32,
    /// Surface factor F.
    pub surface_factor: f32,
    /// Time lag of the surface factor, 0 to 24 / harmonic (h)
    pub surface_factor_lag: f32,
    /// U-value, as [`u_value`] gives it (W/m²K)
    pub u_value: f32,
}

/// What [`condensation_profile`] returns.
#[derive(Clone, Copy, Debug, PartialEq)]
pub struct CondensationProfile {
    /// Temperature at the interfaces, from the inside surface to the outside one (°C); not a number beyond element
    /// layers + 1.
    pub interface_temperature: [f32; 21],
    /// Vapour pressure at them (Pa); not a number beyond element layers + 1.
    pub interface_vapour_pressure: [f32; 21],
    /// Saturation pressure at them (Pa); not a number beyond element layers + 1.
    pub interface_saturation_pressure: [f32; 21],
}

/// What [`pack_two_fractions`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct PackTwoFractions {
    /// Packed number; 1e20 where there is none; as given when unpacking.
    pub packed_number: f32,
    /// Fraction behind the point; 1e20 where there is none; as given when packing.
    pub fraction_1: f32,
    /// Fraction held as units and tens; 1e20 where there is none; as given when packing.
    pub fraction_2: f32,
}

/// What [`pack_three_fractions`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct PackThreeFractions {
    /// Packed number; 1e20 where there is none; as given when unpacking.
    pub packed_number: f32,
    /// Fraction behind the point; 1e20 where there is none; as given when packing.
    pub fraction_1: f32,
    /// Fraction held as units and tens; 1e20 where there is none; as given when packing.
    pub fraction_2: f32,
    /// Fraction held as hundreds and thousands; 1e20 where there is none; as given when packing.
    pub fraction_3: f32,
}

/// What [`pack_three_fractions_third_first`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct PackThreeFractionsThirdFirst {
    /// Packed number; 1e20 where there is none; as given when unpacking.
    pub packed_number: f32,
    /// Fraction held as hundreds and thousands; 1e20 where there is none; as given when packing.
    pub fraction_3: f32,
    /// Fraction behind the point; 1e20 where there is none; as given when packing.
    pub fraction_1: f32,
    /// Fraction held as units and tens; 1e20 where there is none; as given when packing.
    pub fraction_2: f32,
}

/// What [`pack_pane`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct PackPane {
    /// Packed number; 1e20 where there is none; as given when unpacking.
    pub packed_number: f32,
    /// Absorptance; 1e20 where there is none; as given when packing.
    pub absorptance: f32,
    /// Reflectance of the first face; 1e20 where there is none; as given when packing.
    pub reflectance_1: f32,
    /// Reflectance of the second face; 1e20 where there is none; as given when packing.
    pub reflectance_2: f32,
}

/// What [`window_parameters`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct WindowParameters {
    /// Admittance, the U-value (W/m²K)
    pub admittance: f32,
    /// Time lead of the admittance, 0 (h)
    pub admittance_lead: f32,
    /// Decrement factor, 1.
    pub decrement_factor: f32,
    /// Time lag of the decrement factor, 0 (h)
    pub decrement_lag: f32,
    /// Surface factor, 1 - Rsi U.
    pub surface_factor: f32,
    /// Time lag of the surface factor, 0 (h)
    pub surface_factor_lag: f32,
    /// U-value (W/m²K)
    pub u_value: f32,
}

/// Admittance, decrement factor and surface factor of a construction with their time shifts, and its U-value.
///
/// # Arguments
/// * `thickness`: thickness of each layer, from the room outwards; below 0: a layer of given resistance, 0: no
///   layer (m)
/// * `conductivity`: conductivity of each layer; its resistance in m²K/W where the thickness is below 0 (W/mK);
///   valid from 0
/// * `density`: density of each layer (kg/m³); valid from 0
/// * `specific_heat`: specific heat of each layer (J/kgK); valid from 0
/// * `inside_resistance`: resistance of the surface at the room (m²K/W); valid from 0
/// * `outside_resistance`: resistance of the far surface (m²K/W); valid from 0
/// * `harmonic`: cycles in 24 hours; valid from 0
/// * `element_kind`: kind of element
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: M = Msi M1 ... Mn Mso; Y = m22 / m12, of a partition (m22 - 1) / m12; f = 1 / (`u_value` m12); F
///   = 1 - `inside_resistance` Y
/// * Without layers the two surfaces are left.
/// * Any kind but 2 counts as 1. A harmonic of 0 is a steady temperature: the admittance is U, the time shifts
///   are not numbers. One below 0 gives no numbers.
/// * A layer without heat capacity acts as its resistance. One with very little is the less accurate the
///   smaller x is, its thickness over the depth at which the swing has sunk to 1/e (0.1 to 0.2 m in masonry):
///   the relative error of its resistance is about 1e-7 / x, since sinh is formed as a difference in single
///   precision.
/// * Shifts near 0 can come out near a whole cycle: rounding decides on which side of 0 an angle falls. One
///   that is exactly 0 may be -0, as both lags of layers without heat capacity are.
/// * The moduli of all three factors are formed so that no square under- or overflows: a decrement factor of
///   2.8e-24 (four layers of 0.6 m of concrete under harmonic 12) is one.
/// * Where the x of all layers add up to about 87 the elements of the matrix overflow: the admittance is
///   infinite or not a number, and from 89 on nothing but U is a number. That is 12.3 m of concrete of 1.75
///   W/mK, 2400 kg/m³ and 1000 J/kgK under the daily cycle; of 2 W/mK, 2000 kg/m³ and 880 J/kgK 15 m still have
///   numbers.
/// * Density and specific heat enter as their product only.
/// * The formula's M is the product of the transmission matrices of the surfaces and the layers. Its complex Y,
///   f and F are the admittance, the decrement factor and the surface factor with their time shifts.
///
/// # Source
/// Pipes, Matrix analysis of heat transfer problems, Journal of the Franklin Institute 263, 1957; Milbank and
/// Harrington-Lynn, Thermal response and the admittance procedure, Building Research Establishment CP 61/74,
/// 1974; ISO 13786.
///
/// `TPADMT` in quorvel.h.
pub fn cyclic_response(
    thickness: &[f32], conductivity: &[f32], density: &[f32], specific_heat: &[f32], inside_resistance: f32,
    outside_resistance: f32, harmonic: i32, element_kind: ElementKind,
) -> Result<CyclicResponse, Error> {
    check::length("fabric::cyclic_response", "thickness", thickness.len(), 0..=20)?;
    check::range("fabric::cyclic_response", "thickness", thickness, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("fabric::cyclic_response", "conductivity", conductivity, 0.0..=f32::INFINITY, "W/mK")?;
    check::range("fabric::cyclic_response", "density", density, 0.0..=f32::INFINITY, "kg/m³")?;
    check::range("fabric::cyclic_response", "specific_heat", specific_heat, 0.0..=f32::INFINITY, "J/kgK")?;
    check::range(
        "fabric::cyclic_response", "inside_resistance", &inside_resistance, 0.0..=f32::INFINITY, "m²K/W",
    )?;
    check::range(
        "fabric::cyclic_response", "outside_resistance", &outside_resistance, 0.0..=f32::INFINITY, "m²K/W",
    )?;
    check::range("fabric::cyclic_response", "harmonic", &harmonic, 0..=i32::MAX, "")?;
    unchecked::fabric::cyclic_response(
        thickness, conductivity, density, specific_heat, inside_resistance, outside_resistance, harmonic,
        element_kind,
    )
}

/// Thermal resistance of a sealed vertical air cavity between ordinary building surfaces.
///
/// # Arguments
/// * `cavity_width`: width (m); valid from 0.001
///
/// # Returns
/// Cavity resistance, not below 0.1 (m²K/W)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + 0.025 Nu / width), at least 0.1; Nu = 0.035 Ra^0.38, at
///   least 1; Ra = 793.00165 width^3 / 4.4e-7
/// * A width below 0.001 gives 0.1, where [`air_cavity_resistance`] and [`gas_cavity_resistance`] give 0:
///   deliberate. Not a number stays so.
/// * The emissivities e1 and e2 of the faces are 0.85 and 0.86.
///
/// # Source
/// As [`air_cavity_resistance`].
///
/// `TPRCAV` in quorvel.h.
pub fn vertical_cavity_resistance(cavity_width: f32) -> Result<f32, Error> {
    check::range(
        "fabric::vertical_cavity_resistance", "cavity_width", &cavity_width, 0.001..=f32::INFINITY, "m",
    )?;
    Ok(unchecked::fabric::vertical_cavity_resistance(cavity_width))
}

/// Thermal resistance of a sealed air cavity by convection and long-wave radiation.
///
/// # Arguments
/// * `tilt`: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down (rad); valid 0 to 3.1416
/// * `cavity_width`: width (m); valid from 0.001
/// * `emissivity_1`: long-wave emissivity of one face; valid 0 to 1
/// * `emissivity_2`: long-wave emissivity of the other face; valid 0 to 1
///
/// # Returns
/// Cavity resistance (m²K/W)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + 0.025 Nu / width); Nu = C Ra^n, at least 1; Ra = 793.00165
///   width^3 / 4.4e-7
/// * A tilt outside 0..3.1416 and a width below 0.001 give 0.
/// * C and n of the Nusselt number C Ra^n, which is at least 1, are interpolated over the tilt between 0, 0.785
///   and 1.57, and carried on as far as 1.59. From there the air rests and only conducts: the resistance jumps.
/// * Two faces of emissivity 0 leave the exchange undefined (0/0).
///
/// # Source
/// EN 673, Glass in building - Determination of thermal transmittance: C and n for vertical, inclined and
/// horizontal cavities, and air at 10 °C with 15 K between the faces.
///
/// `TPRCA2` in quorvel.h.
pub fn air_cavity_resistance(
    tilt: f32, cavity_width: f32, emissivity_1: f32, emissivity_2: f32,
) -> Result<f32, Error> {
    check::range("fabric::air_cavity_resistance", "tilt", &tilt, 0.0..=3.1416, "rad")?;
    check::range("fabric::air_cavity_resistance", "cavity_width", &cavity_width, 0.001..=f32::INFINITY, "m")?;
    check::range("fabric::air_cavity_resistance", "emissivity_1", &emissivity_1, 0.0..=1.0, "")?;
    check::range("fabric::air_cavity_resistance", "emissivity_2", &emissivity_2, 0.0..=1.0, "")?;
    Ok(unchecked::fabric::air_cavity_resistance(tilt, cavity_width, emissivity_1, emissivity_2))
}

/// Thermal resistance of a sealed cavity filled with any gas.
///
/// # Arguments
/// * `tilt`: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down (rad); valid 0 to 3.1416
/// * `cavity_width`: width (m); valid from 0.001
/// * `emissivity_1`: long-wave emissivity of one face; valid 0 to 1
/// * `emissivity_2`: long-wave emissivity of the other face; valid 0 to 1
/// * `density`: density of the gas (kg/m³); valid from 0
/// * `conductivity`: thermal conductivity of the gas (W/mK); valid from 0
/// * `specific_heat`: specific heat of the gas at constant pressure (J/kgK); valid from 0
/// * `viscosity`: dynamic viscosity of the gas (Pa s); valid from 0
///
/// # Returns
/// Cavity resistance (m²K/W)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + conductivity Nu / width); Nu = C Ra^n, at least 1; Ra =
///   0.52 `specific_heat` density^2 width^3 / (viscosity conductivity)
/// * Guards and correlation as in [`air_cavity_resistance`].
/// * The Rayleigh number has a factor of 0.52 m/s² for gravity times expansion times temperature difference,
///   whatever the gas and its temperature.
/// * A negative Rayleigh number has no power: not a number.
///
/// # Source
/// As [`air_cavity_resistance`].
///
/// `TPRCAX` in quorvel.h.
pub fn gas_cavity_resistance(
    tilt: f32, cavity_width: f32, emissivity_1: f32, emissivity_2: f32, density: f32, conductivity: f32,
    specific_heat: f32, viscosity: f32,
) -> Result<f32, Error> {
    check::range("fabric::gas_cavity_resistance", "tilt", &tilt, 0.0..=3.1416, "rad")?;
    check::range("fabric::gas_cavity_resistance", "cavity_width", &cavity_width, 0.001..=f32::INFINITY, "m")?;
    check::range("fabric::gas_cavity_resistance", "emissivity_1", &emissivity_1, 0.0..=1.0, "")?;
    check::range("fabric::gas_cavity_resistance", "emissivity_2", &emissivity_2, 0.0..=1.0, "")?;
    check::range("fabric::gas_cavity_resistance", "density", &density, 0.0..=f32::INFINITY, "kg/m³")?;
    check::range("fabric::gas_cavity_resistance", "conductivity", &conductivity, 0.0..=f32::INFINITY, "W/mK")?;
    check::range(
        "fabric::gas_cavity_resistance", "specific_heat", &specific_heat, 0.0..=f32::INFINITY, "J/kgK",
    )?;
    check::range("fabric::gas_cavity_resistance", "viscosity", &viscosity, 0.0..=f32::INFINITY, "Pa s")?;
    Ok(unchecked::fabric::gas_cavity_resistance(
        tilt, cavity_width, emissivity_1, emissivity_2, density, conductivity, specific_heat, viscosity,
    ))
}

/// Vapour resistance of a construction.
///
/// # Arguments
/// * `thickness`: thickness of each layer; below 0: a layer of given thermal resistance, 0: a membrane (m)
/// * `vapour_resistivity`: vapour resistivity of each layer; of a membrane its vapour resistance in GN s/kg (GN
///   s/(kg m)); valid from 0
///
/// # Returns
/// Total vapour resistance (N s/kg)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: sum of 1e9 thickness `vapour_resistivity`
/// * A layer of given thermal resistance has 5 GN s/kg for each metre of its negative thickness, whatever its
///   resistivity: an air gap 0.05 m wide is entered as -0.05, not as -1.
/// * Without layers it is 0.
/// * Results are in N s/kg, resistivities in GN s/(kg m).
///
/// # Source
/// Vapour resistances in series; 5 GN s/(kg m) is the customary resistivity of still air.
///
/// `TPDAMP` in quorvel.h.
pub fn total_vapour_resistance(thickness: &[f32], vapour_resistivity: &[f32]) -> Result<f32, Error> {
    check::length("fabric::total_vapour_resistance", "thickness", thickness.len(), 0..=20)?;
    check::range(
        "fabric::total_vapour_resistance", "thickness", thickness, f32::NEG_INFINITY..=f32::INFINITY, "m",
    )?;
    check::range(
        "fabric::total_vapour_resistance", "vapour_resistivity", vapour_resistivity, 0.0..=f32::INFINITY,
        "GN s/(kg m)",
    )?;
    unchecked::fabric::total_vapour_resistance(thickness, vapour_resistivity)
}

/// Steady temperature, vapour pressure and saturation pressure at the interfaces of a construction; the vapour
/// pressure is held down to saturation where it would exceed it.
///
/// # Arguments
/// * `thickness`: thickness of each layer from the inside; below 0: a layer of given thermal resistance, 0: a
///   membrane (m)
/// * `conductivity`: conductivity of each layer; its resistance in m²K/W where the thickness is below 0 (W/mK);
///   valid from 0
/// * `vapour_resistivity`: vapour resistivity of each layer; of a membrane its vapour resistance in GN s/kg (GN
///   s/(kg m)); valid from 0
/// * `inside_resistance`: resistance of the inside surface (m²K/W); valid from 0
/// * `outside_resistance`: resistance of the outside surface (m²K/W); valid from 0
/// * `inside_temperature`: inside air temperature (°C); valid -100 to 200
/// * `outside_temperature`: outside air temperature (°C); valid -100 to 200
/// * `inside_humidity`: inside relative humidity (%); valid 0 to 100
/// * `outside_humidity`: outside relative humidity (%); valid 0 to 100
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * The first and the last interface are the surfaces. Without layers there is one surface, with the
///   temperature and the vapour pressure of its inside.
/// * Vapour condenses at an interface where the vapour pressure equals the saturation pressure.
/// * Relative humidities are limited to 0 to 100 %, the vapour pressures at the two surfaces to saturation
///   there. Between two surfaces without any vapour resistance the vapour pressure is no number.
/// * A layer of given thermal resistance has 5 GN s/kg for each metre of its negative thickness, as in
///   [`total_vapour_resistance`].
/// * Saturation inside a layer, between its interfaces, is not looked for: see [`condenses_within_layer`].
///
/// # Source
/// Glaser's method in the stepwise form of ISO 13788: the vapour line is straight over the vapour resistance
/// between the interfaces at which it is held to saturation.
///
/// `TPGRAD` in quorvel.h.
pub fn condensation_profile(
    thickness: &[f32], conductivity: &[f32], vapour_resistivity: &[f32], inside_resistance: f32,
    outside_resistance: f32, inside_temperature: f32, outside_temperature: f32, inside_humidity: f32,
    outside_humidity: f32,
) -> Result<CondensationProfile, Error> {
    check::length("fabric::condensation_profile", "thickness", thickness.len(), 0..=20)?;
    check::range(
        "fabric::condensation_profile", "thickness", thickness, f32::NEG_INFINITY..=f32::INFINITY, "m",
    )?;
    check::range("fabric::condensation_profile", "conductivity", conductivity, 0.0..=f32::INFINITY, "W/mK")?;
    check::range(
        "fabric::condensation_profile", "vapour_resistivity", vapour_resistivity, 0.0..=f32::INFINITY,
        "GN s/(kg m)",
    )?;
    check::range(
        "fabric::condensation_profile", "inside_resistance", &inside_resistance, 0.0..=f32::INFINITY, "m²K/W",
    )?;
    check::range(
        "fabric::condensation_profile", "outside_resistance", &outside_resistance, 0.0..=f32::INFINITY, "m²K/W",
    )?;
    check::range(
        "fabric::condensation_profile", "inside_temperature", &inside_temperature, -100.0..=200.0, "°C",
    )?;
    check::range(
        "fabric::condensation_profile", "outside_temperature", &outside_temperature, -100.0..=200.0, "°C",
    )?;
    check::range("fabric::condensation_profile", "inside_humidity", &inside_humidity, 0.0..=100.0, "%")?;
    check::range("fabric::condensation_profile", "outside_humidity", &outside_humidity, 0.0..=100.0, "%")?;
    unchecked::fabric::condensation_profile(
        thickness, conductivity, vapour_resistivity, inside_resistance, outside_resistance, inside_temperature,
        outside_temperature, inside_humidity, outside_humidity,
    )
}

/// Whether vapour condenses inside a layer, from the temperatures and vapour pressures of its two faces.
///
/// # Arguments
/// * `warm_temperature`: temperature of the warm face (°C); valid -100 to 200
/// * `cold_temperature`: temperature of the cold face (°C); valid -100 to 200
/// * `warm_vapour_pressure`: vapour pressure at the warm face (Pa); valid from 0
/// * `cold_vapour_pressure`: vapour pressure at the cold face (Pa); valid from 0
///
/// # Returns
/// 1 if vapour condenses, 0 if not.
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * The layer is looked at in steps of 0.5 K from the warm face: the warm face itself is not, the cold face
///   only if a step falls on it. Faces less than 0.5 K apart give 0.
/// * A cold face that is not below the warm one, or a temperature that is no number, gives 0.
/// * Where the temperature is so large that a step of 0.5 K is lost in its rounding (8.4 million °C), the
///   search ends there with 0.
///
/// # Source
/// Straight lines of temperature and vapour pressure through a homogeneous layer, against the saturation
/// pressure of [`psychro::saturation_pressure`](crate::psychro::saturation_pressure).
///
/// `ITPCON` in quorvel.h.
pub fn condenses_within_layer(
    warm_temperature: f32, cold_temperature: f32, warm_vapour_pressure: f32, cold_vapour_pressure: f32,
) -> Result<i32, Error> {
    check::range(
        "fabric::condenses_within_layer", "warm_temperature", &warm_temperature, -100.0..=200.0, "°C",
    )?;
    check::range(
        "fabric::condenses_within_layer", "cold_temperature", &cold_temperature, -100.0..=200.0, "°C",
    )?;
    check::range(
        "fabric::condenses_within_layer", "warm_vapour_pressure", &warm_vapour_pressure, 0.0..=f32::INFINITY,
        "Pa",
    )?;
    check::range(
        "fabric::condenses_within_layer", "cold_vapour_pressure", &cold_vapour_pressure, 0.0..=f32::INFINITY,
        "Pa",
    )?;
    Ok(unchecked::fabric::condenses_within_layer(
        warm_temperature, cold_temperature, warm_vapour_pressure, cold_vapour_pressure,
    ))
}

/// One property of one record of a construction, a list of elements from face to face.
///
/// # Arguments
/// * `element_records`: ten fields of each record, counted from 1; the first is its type code (by field)
/// * `record_number`: record asked about, counted from 1; valid from 1
/// * `item`: property asked for; valid 1 to 72
///
/// # Returns
/// The property (by item); 1e20 where there is none.
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * The type code, 50 to 999, is 100 times the class plus the subtype: class 1 solid layer, 2 another layer, 3
///   gap (300 of given resistance, 302 filled with gas), 4 translucent layer, 5 boundary, 6 end marker; other
///   classes have no meaning. It is rounded after the limits are tested: 149.6 is class 1, subtype 50; 49.6 and
///   what is no number are no codes.
/// * Items of every class: 1 type code.
/// * Items of classes 1, 3 and 4: 2 thickness in mm; 4 and 5 fields 4 and 5, of a layer the two factors of its
///   volumetric heat capacity, of a gas specific heat and density. Of 1 and 4: 3 conductivity in W/mK. Of 1 and
///   3: 6 field 6.
/// * Items of class 3: 7 viscosity of the gas; 11 resistance in m²K/W, or conductivity of the gas; 61 and 62
///   field 8, with subtype 1 and 2.
/// * Items of classes 2, 4 and 5: 12 field 6. Of class 5 with subtype 1 or 2: 21 to 23 fields 2 to 4.
/// * Items of packed fields ([`pack_three_fractions`]), all classes but 3 and 6: 31 solar transmittance, 32
///   front and 33 back reflectance, 34 and 35 front and back absorptance, from field 9; 41 to 45 the same from
///   field 7; 54 and 55 the long-wave fractions of the two faces, 52 and 53 one less these, from field 8.
/// * Items of every class: 71 and 72 are 1 if the list ends with a record of code 601 and 602, whichever valid
///   record is asked about.
/// * The complements of an undefined packed field, items 34, 35, 44, 45, 52 and 53, are -1e20 or -2e20, not
///   1e20: deliberate.
///
/// # Source
/// Layout of the element records.
///
/// `BELDAT` in quorvel.h.
pub fn element_property(element_records: &[[f32; 10]], record_number: i32, item: i32) -> Result<f32, Error> {
    check::length("fabric::element_property", "element_records", element_records.len(), 1..=i32::MAX)?;
    check::range(
        "fabric::element_property", "element_records", element_records, f32::NEG_INFINITY..=f32::INFINITY,
        "by field",
    )?;
    check::range("fabric::element_property", "record_number", &record_number, 1..=i32::MAX, "")?;
    check::range("fabric::element_property", "item", &item, 1..=72, "")?;
    unchecked::fabric::element_property(element_records, record_number, item)
}

/// Coefficient of natural convection at a surface of a room.
///
/// # Arguments
/// * `temperature_difference`: difference between surface and air temperature; its sign makes no difference (K)
/// * `characteristic_length`: characteristic length: height of a vertical surface, four times the area over the
///   perimeter of a horizontal one (m); valid from 0
/// * `heat_flow_direction`: direction of the heat flow
///
/// # Returns
/// Convective coefficient (W/m²K)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: ((1.63 dT^(1/3))^6 + (1.40 (dT / L)^(1/4))^6)^(1/6) upwards, 1.23 and 1.50 for 1.63 and 1.40 at a
///   vertical surface, 0.6 (dT / L^2)^(1/5) downwards; dT = |`temperature_difference`|, L =
///   `characteristic_length`
/// * Any other direction gives 0.
/// * The coefficients 1.23 and 1.50 of a vertical surface have the laminar term larger than the turbulent one,
///   with an upward flow it is the other way round; both are as published.
/// * A length of 0 gives an infinite coefficient, one below 0 no number but for a downward flow.
///
/// # Source
/// Alamdari and Hammond, Improved data correlations for buoyancy-driven convection in rooms, Building Services
/// Engineering Research and Technology 4, 1983.
///
/// `TPHCON` in quorvel.h.
pub fn natural_convection_coefficient(
    temperature_difference: f32, characteristic_length: f32, heat_flow_direction: HeatFlowDirection,
) -> Result<f32, Error> {
    check::range(
        "fabric::natural_convection_coefficient", "temperature_difference", &temperature_difference,
        f32::NEG_INFINITY..=f32::INFINITY, "K",
    )?;
    check::range(
        "fabric::natural_convection_coefficient", "characteristic_length", &characteristic_length,
        0.0..=f32::INFINITY, "m",
    )?;
    Ok(unchecked::fabric::natural_convection_coefficient(
        temperature_difference, characteristic_length, heat_flow_direction,
    ))
}

/// Packs two fractions of two decimals into one real, or unpacks them.
///
/// # Arguments
/// * `packing`: direction
/// * `packed_number`: packed number; valid 0 to 9999.99
/// * `fraction_1`: fraction behind the point; valid 0 to 0.99
/// * `fraction_2`: fraction held as units and tens; valid 0 to 0.99
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * As [`pack_three_fractions`] with a third fraction of 0, which is not returned: what stands above 100 is
///   ignored.
///
/// # Source
/// As [`pack_three_fractions`].
///
/// `TPCOLW` in quorvel.h.
pub fn pack_two_fractions(
    packing: Packing, packed_number: f32, fraction_1: f32, fraction_2: f32,
) -> Result<PackTwoFractions, Error> {
    check::range("fabric::pack_two_fractions", "packed_number", &packed_number, 0.0..=9999.99, "")?;
    check::range("fabric::pack_two_fractions", "fraction_1", &fraction_1, 0.0..=0.99, "")?;
    check::range("fabric::pack_two_fractions", "fraction_2", &fraction_2, 0.0..=0.99, "")?;
    Ok(unchecked::fabric::pack_two_fractions(packing, packed_number, fraction_1, fraction_2))
}

/// Packs three fractions of two decimals into one real, or unpacks them.
///
/// # Arguments
/// * `packing`: direction
/// * `packed_number`: packed number; valid 0 to 9999.99
/// * `fraction_1`: fraction behind the point; valid 0 to 0.99
/// * `fraction_2`: fraction held as units and tens; valid 0 to 0.99
/// * `fraction_3`: fraction held as hundreds and thousands; valid 0 to 0.99
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * 0.25, 0.40, 0.07 are packed as 740.25.
/// * Fractions that add up to more than 1e10, and a packed number above 1e10, are undefined and give 1e20.
/// * Fractions 2 and 3 are cut to two decimals, with a tenth of a hundredth to spare; fraction 1 is added as it
///   stands and cut when unpacked.
/// * All triples from 0.00 to 0.99 come back, as hundredths times the float 0.01: for 29 of the hundred
///   fractions, 0.40 among them, that is the float next to the nearest.
/// * A fraction of 1.00 is carried into the next one, 1 into 2 and 2 into 3.
///
/// # Source
/// Format of the packed property numbers of element records ([`element_property`]).
///
/// `TPCOLT` in quorvel.h.
pub fn pack_three_fractions(
    packing: Packing, packed_number: f32, fraction_1: f32, fraction_2: f32, fraction_3: f32,
) -> Result<PackThreeFractions, Error> {
    check::range("fabric::pack_three_fractions", "packed_number", &packed_number, 0.0..=9999.99, "")?;
    check::range("fabric::pack_three_fractions", "fraction_1", &fraction_1, 0.0..=0.99, "")?;
    check::range("fabric::pack_three_fractions", "fraction_2", &fraction_2, 0.0..=0.99, "")?;
    check::range("fabric::pack_three_fractions", "fraction_3", &fraction_3, 0.0..=0.99, "")?;
    Ok(unchecked::fabric::pack_three_fractions(packing, packed_number, fraction_1, fraction_2, fraction_3))
}

/// [`pack_three_fractions`] with its arguments in another order.
///
/// # Arguments
/// * `packing`: direction
/// * `packed_number`: packed number; valid 0 to 9999.99
/// * `fraction_3`: fraction held as hundreds and thousands; valid 0 to 0.99
/// * `fraction_1`: fraction behind the point; valid 0 to 0.99
/// * `fraction_2`: fraction held as units and tens; valid 0 to 0.99
///
/// # Errors
/// Where an argument is not valid.
///
/// # Source
/// As [`pack_three_fractions`].
///
/// `TPCOLW2` in quorvel.h.
pub fn pack_three_fractions_third_first(
    packing: Packing, packed_number: f32, fraction_3: f32, fraction_1: f32, fraction_2: f32,
) -> Result<PackThreeFractionsThirdFirst, Error> {
    check::range(
        "fabric::pack_three_fractions_third_first", "packed_number", &packed_number, 0.0..=9999.99, "",
    )?;
    check::range("fabric::pack_three_fractions_third_first", "fraction_3", &fraction_3, 0.0..=0.99, "")?;
    check::range("fabric::pack_three_fractions_third_first", "fraction_1", &fraction_1, 0.0..=0.99, "")?;
    check::range("fabric::pack_three_fractions_third_first", "fraction_2", &fraction_2, 0.0..=0.99, "")?;
    Ok(unchecked::fabric::pack_three_fractions_third_first(
        packing, packed_number, fraction_3, fraction_1, fraction_2,
    ))
}

/// Packs the solar absorptance of a pane and the reflectances of its faces into one real, as absorptance and
/// transmittances, or unpacks them.
///
/// # Arguments
/// * `packing`: direction
/// * `packed_number`: packed number; valid 0 to 9999.99
/// * `absorptance`: absorptance; valid 0 to 1
/// * `reflectance_1`: reflectance of the first face; valid 0 to 1
/// * `reflectance_2`: reflectance of the second face; valid 0 to 1
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Packed as [`pack_three_fractions`] packs the absorptance and the transmittances 1 - absorptance -
///   reflectance of the two faces. Undefined values as there.
/// * A face that neither absorbs nor reflects transmits 1.00, which is carried into the next position.
/// * Absorptance and reflectance of a face that exceed 1 together do not come back.
///
/// # Source
/// As [`pack_three_fractions`].
///
/// `TPCOSW` in quorvel.h.
pub fn pack_pane(
    packing: Packing, packed_number: f32, absorptance: f32, reflectance_1: f32, reflectance_2: f32,
) -> Result<PackPane, Error> {
    check::range("fabric::pack_pane", "packed_number", &packed_number, 0.0..=9999.99, "")?;
    check::range("fabric::pack_pane", "absorptance", &absorptance, 0.0..=1.0, "")?;
    check::range("fabric::pack_pane", "reflectance_1", &reflectance_1, 0.0..=1.0, "")?;
    check::range("fabric::pack_pane", "reflectance_2", &reflectance_2, 0.0..=1.0, "")?;
    Ok(unchecked::fabric::pack_pane(packing, packed_number, absorptance, reflectance_1, reflectance_2))
}

/// Thermal resistance of the inside or outside surface of an element, for an emissivity of 0.9.
///
/// # Arguments
/// * `surface`: surface
/// * `tilt`: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down (rad); valid 0 to 3.1416
/// * `exposure`: exposure of an outside surface to the wind
///
/// # Returns
/// Surface resistance (m²K/W)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: inside 1 / (9.53 - 2.6 tilt / pi), outside 1 / (4.59 + a + 4 b (1 - tilt / pi)^2)
/// * Another surface type gives 0. Another exposure counts as the nearest one.
/// * An inside vertical surface has 1 / 8.23 = 0.12 m²K/W.
/// * The tilt is not tested.
/// * a is 4.3, 9.1 and 20.7 W/m²K by exposure, b is 1.3, 2.8 and 6.1.
///
/// # Source
/// Radiation and convection side by side. The customary values of inside surfaces (0.10 up, 0.12 horizontal,
/// 0.14 down) and of outside ones in normal and severe exposure (walls 0.06 and 0.03, roofs 0.04 and 0.02) are
/// met to two decimals; the origin of the convective coefficients is not recorded.
///
/// `TPRSUR` in quorvel.h.
pub fn surface_resistance(surface: Surface, tilt: f32, exposure: Exposure) -> Result<f32, Error> {
    check::range("fabric::surface_resistance", "tilt", &tilt, 0.0..=3.1416, "rad")?;
    Ok(unchecked::fabric::surface_resistance(surface, tilt, exposure))
}

/// Thermal resistance of the inside or outside surface of an element of any emissivity.
///
/// # Arguments
/// * `surface`: surface
/// * `tilt`: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down (rad); valid 0 to 3.1416
/// * `exposure`: exposure of an outside surface to the wind
/// * `emissivity`: long-wave emissivity of the surface; valid 0 to 1
///
/// # Returns
/// Surface resistance (m²K/W)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: inside 1 / (4.4 - 2.6 tilt / pi + 5.7 emissivity), outside 1 / (5.1 emissivity + a + 4 b (1 -
///   tilt / pi)^2)
/// * Another surface type gives 0. Another exposure counts as the nearest one.
/// * At an emissivity of 0.9 it is [`surface_resistance`] to rounding.
/// * Tilt and emissivity are not tested.
/// * a and b are those of [`surface_resistance`].
///
/// # Source
/// As [`surface_resistance`], with black-body coefficients of 5.1 W/m²K outside and 5.7 W/m²K inside.
///
/// `TPRSU2` in quorvel.h.
pub fn surface_resistance_at_emissivity(
    surface: Surface, tilt: f32, exposure: Exposure, emissivity: f32,
) -> Result<f32, Error> {
    check::range("fabric::surface_resistance_at_emissivity", "tilt", &tilt, 0.0..=3.1416, "rad")?;
    check::range("fabric::surface_resistance_at_emissivity", "emissivity", &emissivity, 0.0..=1.0, "")?;
    Ok(unchecked::fabric::surface_resistance_at_emissivity(surface, tilt, exposure, emissivity))
}

/// U-value of a construction of plane layers between two surface resistances.
///
/// # Arguments
/// * `thickness`: thickness of each layer; below 0: a layer of given resistance, 0: no layer (m)
/// * `conductivity`: conductivity of each layer; its resistance in m²K/W where the thickness is below 0 (W/mK);
///   valid from 0
/// * `surface_resistance_1`: resistance of one surface (m²K/W); valid from 0
/// * `surface_resistance_2`: resistance of the other (m²K/W); valid from 0
///
/// # Returns
/// U-value (W/m²K)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: 1 / (`surface_resistance_1` + `surface_resistance_2` + sum of thickness / conductivity)
/// * Without layers the two surfaces are left.
/// * How far below 0 a thickness is makes no difference here; it does in [`total_vapour_resistance`] and
///   [`condensation_profile`].
/// * A thickness that is no number gives no number.
///
/// # Source
/// Resistances in series; ISO 6946.
///
/// `TPUVAL` in quorvel.h.
pub fn u_value(
    thickness: &[f32], conductivity: &[f32], surface_resistance_1: f32, surface_resistance_2: f32,
) -> Result<f32, Error> {
    check::length("fabric::u_value", "thickness", thickness.len(), 0..=20)?;
    check::range("fabric::u_value", "thickness", thickness, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("fabric::u_value", "conductivity", conductivity, 0.0..=f32::INFINITY, "W/mK")?;
    check::range(
        "fabric::u_value", "surface_resistance_1", &surface_resistance_1, 0.0..=f32::INFINITY, "m²K/W",
    )?;
    check::range(
        "fabric::u_value", "surface_resistance_2", &surface_resistance_2, 0.0..=f32::INFINITY, "m²K/W",
    )?;
    unchecked::fabric::u_value(thickness, conductivity, surface_resistance_1, surface_resistance_2)
}

/// U-value of a construction at another tilt and exposure, from its U-value as a vertical wall in normal
/// exposure.
///
/// # Arguments
/// * `u_value`: U-value with the surface resistances of a vertical wall at exposure 2 (W/m²K); valid from 0
/// * `tilt`: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down (rad); valid 0 to 3.1416
/// * `exposure`: wind exposure of the outside surface
///
/// # Returns
/// U-value at that tilt and exposure (W/m²K)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: 1 / (1 / `u_value` - Rso - Rsi + Rso(tilt, exposure) + Rsi(tilt)), Rso and Rsi of a vertical
///   surface in normal exposure where nothing else is said
/// * A U-value that is not above 0, or no number, comes back as it is.
/// * Above 5.49 W/m²K, what the two surfaces of the wall let through by themselves, the layers would have a
///   negative resistance; the result is formed with it all the same.
/// * An exposure below 1 counts as 1, above 3 as 3. The tilt is not limited.
///
/// # Source
/// Surface resistances of [`surface_resistance`], exchanged.
///
/// `TPUMOD` in quorvel.h.
pub fn u_value_at_tilt_and_exposure(u_value: f32, tilt: f32, exposure: Exposure) -> Result<f32, Error> {
    check::range("fabric::u_value_at_tilt_and_exposure", "u_value", &u_value, 0.0..=f32::INFINITY, "W/m²K")?;
    check::range("fabric::u_value_at_tilt_and_exposure", "tilt", &tilt, 0.0..=3.1416, "rad")?;
    Ok(unchecked::fabric::u_value_at_tilt_and_exposure(u_value, tilt, exposure))
}

/// U-value, admittance, decrement factor and surface factor of a glazing of one to three panes.
///
/// # Arguments
/// * `panes`: number of panes, pane 1 nearest the room; valid 1 to 3
/// * `pane_kind_1`: kind of pane 1
/// * `emissivity_1`: long-wave emissivity of pane 1; valid 0 to 1
/// * `pane_kind_2`: kind of pane 2
/// * `emissivity_2`: long-wave emissivity of pane 2; valid 0 to 1
/// * `pane_kind_3`: kind of pane 3
/// * `emissivity_3`: long-wave emissivity of pane 3; valid 0 to 1
/// * `cavity_width_1`: width of the cavity between panes 1 and 2 (m); valid from 0.001
/// * `cavity_width_2`: width of the cavity between panes 2 and 3 (m); valid from 0.001
/// * `outer_surface`: surface type of the outer face, normally 1
/// * `exposure`: exposure of the outer face to the wind
/// * `tilt`: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down (rad); valid 0 to 3.1416
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: `u_value` = 1 / (Rso + Rsi + the resistances of the cavities), `surface_factor` = 1 - Rsi
///   `u_value`
/// * The resistance of the glass is neglected and nothing is stored in it.
/// * Of three panes one may be open: the middle one leaves a single cavity as wide as both. With two open
///   panes, and with one open pane of two, there is no cavity.
/// * The kinds of the panes are told by their sum: 0, 1, 2 count as three closed panes.
/// * Another number of panes counts as one pane, with the emissivity of pane 3 outside.
/// * Cavities as [`air_cavity_resistance`]: one that it rejects has no resistance.
/// * Rsi and Rso are the resistances of the inner and the outer surface.
///
/// # Source
/// Surface resistances of [`surface_resistance_at_emissivity`] and cavities of [`air_cavity_resistance`] in
/// series.
///
/// `TPWNDO` in quorvel.h.
pub fn window_parameters(
    panes: i32, pane_kind_1: PaneKind, emissivity_1: f32, pane_kind_2: PaneKind, emissivity_2: f32,
    pane_kind_3: PaneKind, emissivity_3: f32, cavity_width_1: f32, cavity_width_2: f32,
    outer_surface: Surface, exposure: Exposure, tilt: f32,
) -> Result<WindowParameters, Error> {
    check::range("fabric::window_parameters", "panes", &panes, 1..=3, "")?;
    check::range("fabric::window_parameters", "emissivity_1", &emissivity_1, 0.0..=1.0, "")?;
    check::range("fabric::window_parameters", "emissivity_2", &emissivity_2, 0.0..=1.0, "")?;
    check::range("fabric::window_parameters", "emissivity_3", &emissivity_3, 0.0..=1.0, "")?;
    check::range("fabric::window_parameters", "cavity_width_1", &cavity_width_1, 0.001..=f32::INFINITY, "m")?;
    check::range("fabric::window_parameters", "cavity_width_2", &cavity_width_2, 0.001..=f32::INFINITY, "m")?;
    check::range("fabric::window_parameters", "tilt", &tilt, 0.0..=3.1416, "rad")?;
    Ok(unchecked::fabric::window_parameters(
        panes, pane_kind_1, emissivity_1, pane_kind_2, emissivity_2, pane_kind_3, emissivity_3, cavity_width_1,
        cavity_width_2, outer_surface, exposure, tilt,
    ))
}

/// Functions of whole arrays.
pub mod arrays {
    use super::*;

    /// [`crate::fabric::vertical_cavity_resistance`] of whole arrays.
    pub fn vertical_cavity_resistance<'a>(cavity_width: impl Into<Input<'a, f32>>) -> Result<Vec<f32>, Error> {
        let cavity_width = cavity_width.into();
        check::range(
            "fabric::vertical_cavity_resistance", "cavity_width", &cavity_width, 0.001..=f32::INFINITY, "m",
        )?;
        unchecked::fabric::arrays::vertical_cavity_resistance(cavity_width)
    }

    /// [`crate::fabric::air_cavity_resistance`] of whole arrays.
    pub fn air_cavity_resistance<'a>(
        tilt: impl Into<Input<'a, f32>>, cavity_width: impl Into<Input<'a, f32>>,
        emissivity_1: impl Into<Input<'a, f32>>, emissivity_2: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let tilt = tilt.into();
        let cavity_width = cavity_width.into();
        let emissivity_1 = emissivity_1.into();
        let emissivity_2 = emissivity_2.into();
        check::range("fabric::air_cavity_resistance", "tilt", &tilt, 0.0..=3.1416, "rad")?;
        check::range("fabric::air_cavity_resistance", "cavity_width", &cavity_width, 0.001..=f32::INFINITY, "m")?;
        check::range("fabric::air_cavity_resistance", "emissivity_1", &emissivity_1, 0.0..=1.0, "")?;
        check::range("fabric::air_cavity_resistance", "emissivity_2", &emissivity_2, 0.0..=1.0, "")?;
        unchecked::fabric::arrays::air_cavity_resistance(tilt, cavity_width, emissivity_1, emissivity_2)
    }

    /// [`crate::fabric::gas_cavity_resistance`] of whole arrays.
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
        check::range("fabric::gas_cavity_resistance", "tilt", &tilt, 0.0..=3.1416, "rad")?;
        check::range("fabric::gas_cavity_resistance", "cavity_width", &cavity_width, 0.001..=f32::INFINITY, "m")?;
        check::range("fabric::gas_cavity_resistance", "emissivity_1", &emissivity_1, 0.0..=1.0, "")?;
        check::range("fabric::gas_cavity_resistance", "emissivity_2", &emissivity_2, 0.0..=1.0, "")?;
        check::range("fabric::gas_cavity_resistance", "density", &density, 0.0..=f32::INFINITY, "kg/m³")?;
        check::range("fabric::gas_cavity_resistance", "conductivity", &conductivity, 0.0..=f32::INFINITY, "W/mK")?;
        check::range(
            "fabric::gas_cavity_resistance", "specific_heat", &specific_heat, 0.0..=f32::INFINITY, "J/kgK",
        )?;
        check::range("fabric::gas_cavity_resistance", "viscosity", &viscosity, 0.0..=f32::INFINITY, "Pa s")?;
        unchecked::fabric::arrays::gas_cavity_resistance(
            tilt, cavity_width, emissivity_1, emissivity_2, density, conductivity, specific_heat, viscosity,
        )
    }

    /// [`crate::fabric::condenses_within_layer`] of whole arrays.
    pub fn condenses_within_layer<'a>(
        warm_temperature: impl Into<Input<'a, f32>>, cold_temperature: impl Into<Input<'a, f32>>,
        warm_vapour_pressure: impl Into<Input<'a, f32>>, cold_vapour_pressure: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<i32>, Error> {
        let warm_temperature = warm_temperature.into();
        let cold_temperature = cold_temperature.into();
        let warm_vapour_pressure = warm_vapour_pressure.into();
        let cold_vapour_pressure = cold_vapour_pressure.into();
        check::range(
            "fabric::condenses_within_layer", "warm_temperature", &warm_temperature, -100.0..=200.0, "°C",
        )?;
        check::range(
            "fabric::condenses_within_layer", "cold_temperature", &cold_temperature, -100.0..=200.0, "°C",
        )?;
        check::range(
            "fabric::condenses_within_layer", "warm_vapour_pressure", &warm_vapour_pressure, 0.0..=f32::INFINITY,
            "Pa",
        )?;
        check::range(
            "fabric::condenses_within_layer", "cold_vapour_pressure", &cold_vapour_pressure, 0.0..=f32::INFINITY,
            "Pa",
        )?;
        unchecked::fabric::arrays::condenses_within_layer(
            warm_temperature, cold_temperature, warm_vapour_pressure, cold_vapour_pressure,
        )
    }

    /// [`crate::fabric::natural_convection_coefficient`] of whole arrays.
    pub fn natural_convection_coefficient<'a>(
        temperature_difference: impl Into<Input<'a, f32>>, characteristic_length: impl Into<Input<'a, f32>>,
        heat_flow_direction: impl Into<Input<'a, HeatFlowDirection>>,
    ) -> Result<Vec<f32>, Error> {
        let temperature_difference = temperature_difference.into();
        let characteristic_length = characteristic_length.into();
        let heat_flow_direction = heat_flow_direction.into();
        check::range(
            "fabric::natural_convection_coefficient", "temperature_difference", &temperature_difference,
            f32::NEG_INFINITY..=f32::INFINITY, "K",
        )?;
        check::range(
            "fabric::natural_convection_coefficient", "characteristic_length", &characteristic_length,
            0.0..=f32::INFINITY, "m",
        )?;
        let heat_flow_direction = heat_flow_direction.numbers();
        unchecked::fabric::arrays::natural_convection_coefficient(
            temperature_difference, characteristic_length, heat_flow_direction,
        )
    }

    /// [`crate::fabric::pack_two_fractions`] of whole arrays.
    pub fn pack_two_fractions<'a>(
        packing: impl Into<Input<'a, Packing>>, packed_number: impl Into<Input<'a, f32>>,
        fraction_1: impl Into<Input<'a, f32>>, fraction_2: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<PackTwoFractions>, Error> {
        let packing = packing.into();
        let packed_number = packed_number.into();
        let fraction_1 = fraction_1.into();
        let fraction_2 = fraction_2.into();
        check::range("fabric::pack_two_fractions", "packed_number", &packed_number, 0.0..=9999.99, "")?;
        check::range("fabric::pack_two_fractions", "fraction_1", &fraction_1, 0.0..=0.99, "")?;
        check::range("fabric::pack_two_fractions", "fraction_2", &fraction_2, 0.0..=0.99, "")?;
        let packing = packing.numbers();
        unchecked::fabric::arrays::pack_two_fractions(packing, packed_number, fraction_1, fraction_2)
    }

    /// [`crate::fabric::pack_three_fractions`] of whole arrays.
    pub fn pack_three_fractions<'a>(
        packing: impl Into<Input<'a, Packing>>, packed_number: impl Into<Input<'a, f32>>,
        fraction_1: impl Into<Input<'a, f32>>, fraction_2: impl Into<Input<'a, f32>>,
        fraction_3: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<PackThreeFractions>, Error> {
        let packing = packing.into();
        let packed_number = packed_number.into();
        let fraction_1 = fraction_1.into();
        let fraction_2 = fraction_2.into();
        let fraction_3 = fraction_3.into();
        check::range("fabric::pack_three_fractions", "packed_number", &packed_number, 0.0..=9999.99, "")?;
        check::range("fabric::pack_three_fractions", "fraction_1", &fraction_1, 0.0..=0.99, "")?;
        check::range("fabric::pack_three_fractions", "fraction_2", &fraction_2, 0.0..=0.99, "")?;
        check::range("fabric::pack_three_fractions", "fraction_3", &fraction_3, 0.0..=0.99, "")?;
        let packing = packing.numbers();
        unchecked::fabric::arrays::pack_three_fractions(packing, packed_number, fraction_1, fraction_2, fraction_3)
    }

    /// [`crate::fabric::pack_three_fractions_third_first`] of whole arrays.
    pub fn pack_three_fractions_third_first<'a>(
        packing: impl Into<Input<'a, Packing>>, packed_number: impl Into<Input<'a, f32>>,
        fraction_3: impl Into<Input<'a, f32>>, fraction_1: impl Into<Input<'a, f32>>,
        fraction_2: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<PackThreeFractionsThirdFirst>, Error> {
        let packing = packing.into();
        let packed_number = packed_number.into();
        let fraction_3 = fraction_3.into();
        let fraction_1 = fraction_1.into();
        let fraction_2 = fraction_2.into();
        check::range(
            "fabric::pack_three_fractions_third_first", "packed_number", &packed_number, 0.0..=9999.99, "",
        )?;
        check::range("fabric::pack_three_fractions_third_first", "fraction_3", &fraction_3, 0.0..=0.99, "")?;
        check::range("fabric::pack_three_fractions_third_first", "fraction_1", &fraction_1, 0.0..=0.99, "")?;
        check::range("fabric::pack_three_fractions_third_first", "fraction_2", &fraction_2, 0.0..=0.99, "")?;
        let packing = packing.numbers();
        unchecked::fabric::arrays::pack_three_fractions_third_first(
            packing, packed_number, fraction_3, fraction_1, fraction_2,
        )
    }

    /// [`crate::fabric::pack_pane`] of whole arrays.
    pub fn pack_pane<'a>(
        packing: impl Into<Input<'a, Packing>>, packed_number: impl Into<Input<'a, f32>>,
        absorptance: impl Into<Input<'a, f32>>, reflectance_1: impl Into<Input<'a, f32>>,
        reflectance_2: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<PackPane>, Error> {
        let packing = packing.into();
        let packed_number = packed_number.into();
        let absorptance = absorptance.into();
        let reflectance_1 = reflectance_1.into();
        let reflectance_2 = reflectance_2.into();
        check::range("fabric::pack_pane", "packed_number", &packed_number, 0.0..=9999.99, "")?;
        check::range("fabric::pack_pane", "absorptance", &absorptance, 0.0..=1.0, "")?;
        check::range("fabric::pack_pane", "reflectance_1", &reflectance_1, 0.0..=1.0, "")?;
        check::range("fabric::pack_pane", "reflectance_2", &reflectance_2, 0.0..=1.0, "")?;
        let packing = packing.numbers();
        unchecked::fabric::arrays::pack_pane(packing, packed_number, absorptance, reflectance_1, reflectance_2)
    }

    /// [`crate::fabric::surface_resistance`] of whole arrays.
    pub fn surface_resistance<'a>(
        surface: impl Into<Input<'a, Surface>>, tilt: impl Into<Input<'a, f32>>,
        exposure: impl Into<Input<'a, Exposure>>,
    ) -> Result<Vec<f32>, Error> {
        let surface = surface.into();
        let tilt = tilt.into();
        let exposure = exposure.into();
        check::range("fabric::surface_resistance", "tilt", &tilt, 0.0..=3.1416, "rad")?;
        let surface = surface.numbers();
        let exposure = exposure.numbers();
        unchecked::fabric::arrays::surface_resistance(surface, tilt, exposure)
    }

    /// [`crate::fabric::surface_resistance_at_emissivity`] of whole arrays.
    pub fn surface_resistance_at_emissivity<'a>(
        surface: impl Into<Input<'a, Surface>>, tilt: impl Into<Input<'a, f32>>,
        exposure: impl Into<Input<'a, Exposure>>, emissivity: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let surface = surface.into();
        let tilt = tilt.into();
        let exposure = exposure.into();
        let emissivity = emissivity.into();
        check::range("fabric::surface_resistance_at_emissivity", "tilt", &tilt, 0.0..=3.1416, "rad")?;
        check::range("fabric::surface_resistance_at_emissivity", "emissivity", &emissivity, 0.0..=1.0, "")?;
        let surface = surface.numbers();
        let exposure = exposure.numbers();
        unchecked::fabric::arrays::surface_resistance_at_emissivity(surface, tilt, exposure, emissivity)
    }

    /// [`crate::fabric::u_value_at_tilt_and_exposure`] of whole arrays.
    pub fn u_value_at_tilt_and_exposure<'a>(
        u_value: impl Into<Input<'a, f32>>, tilt: impl Into<Input<'a, f32>>,
        exposure: impl Into<Input<'a, Exposure>>,
    ) -> Result<Vec<f32>, Error> {
        let u_value = u_value.into();
        let tilt = tilt.into();
        let exposure = exposure.into();
        check::range("fabric::u_value_at_tilt_and_exposure", "u_value", &u_value, 0.0..=f32::INFINITY, "W/m²K")?;
        check::range("fabric::u_value_at_tilt_and_exposure", "tilt", &tilt, 0.0..=3.1416, "rad")?;
        let exposure = exposure.numbers();
        unchecked::fabric::arrays::u_value_at_tilt_and_exposure(u_value, tilt, exposure)
    }

    /// [`crate::fabric::window_parameters`] of whole arrays.
    pub fn window_parameters<'a>(
        panes: impl Into<Input<'a, i32>>, pane_kind_1: impl Into<Input<'a, PaneKind>>,
        emissivity_1: impl Into<Input<'a, f32>>, pane_kind_2: impl Into<Input<'a, PaneKind>>,
        emissivity_2: impl Into<Input<'a, f32>>, pane_kind_3: impl Into<Input<'a, PaneKind>>,
        emissivity_3: impl Into<Input<'a, f32>>, cavity_width_1: impl Into<Input<'a, f32>>,
        cavity_width_2: impl Into<Input<'a, f32>>, outer_surface: impl Into<Input<'a, Surface>>,
        exposure: impl Into<Input<'a, Exposure>>, tilt: impl Into<Input<'a, f32>>,
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
        check::range("fabric::window_parameters", "panes", &panes, 1..=3, "")?;
        check::range("fabric::window_parameters", "emissivity_1", &emissivity_1, 0.0..=1.0, "")?;
        check::range("fabric::window_parameters", "emissivity_2", &emissivity_2, 0.0..=1.0, "")?;
        check::range("fabric::window_parameters", "emissivity_3", &emissivity_3, 0.0..=1.0, "")?;
        check::range("fabric::window_parameters", "cavity_width_1", &cavity_width_1, 0.001..=f32::INFINITY, "m")?;
        check::range("fabric::window_parameters", "cavity_width_2", &cavity_width_2, 0.001..=f32::INFINITY, "m")?;
        check::range("fabric::window_parameters", "tilt", &tilt, 0.0..=3.1416, "rad")?;
        let pane_kind_1 = pane_kind_1.numbers();
        let pane_kind_2 = pane_kind_2.numbers();
        let pane_kind_3 = pane_kind_3.numbers();
        let outer_surface = outer_surface.numbers();
        let exposure = exposure.numbers();
        unchecked::fabric::arrays::window_parameters(
            panes, pane_kind_1, emissivity_1, pane_kind_2, emissivity_2, pane_kind_3, emissivity_3, cavity_width_1,
            cavity_width_2, outer_surface, exposure, tilt,
        )
    }
}
