// Produced from the catalogue of routines (catalogue/); do not edit.

//! Glazing.

use crate::{check, unchecked, Error, Input, Radiation};

/// What [`glass_direct`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct GlassDirect {
    /// Transmittance, parallel polarisation.
    pub parallel_transmittance: f32,
    /// Absorptance, parallel.
    pub parallel_absorptance: f32,
    /// Reflectance, parallel.
    pub parallel_reflectance: f32,
    /// Transmittance, perpendicular polarisation.
    pub perpendicular_transmittance: f32,
    /// Absorptance, perpendicular.
    pub perpendicular_absorptance: f32,
    /// Reflectance, perpendicular.
    pub perpendicular_reflectance: f32,
}

/// What [`glass_diffuse`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct GlassDiffuse {
    /// Diffuse transmittance.
    pub transmittance: f32,
    /// Diffuse absorptance.
    pub absorptance: f32,
}

/// What [`stacked_layers`] returns.
#[derive(Clone, Copy, Debug, PartialEq)]
pub struct StackedLayers {
    /// Transmittance of the stack.
    pub transmittance: f32,
    /// Absorptance, 1 - transmittance - reflectance.
    pub absorptance: f32,
    /// Reflectance of the stack.
    pub reflectance: f32,
}

/// What [`traced_layers`] returns.
#[derive(Clone, Copy, Debug, PartialEq)]
pub struct TracedLayers {
    /// Transmittance of the stack.
    pub transmittance: f32,
    /// Absorptance of the stack.
    pub absorptance: f32,
    /// Reflectance of the stack.
    pub reflectance: f32,
}

/// What [`roller_blind`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct RollerBlind {
    /// Transmittance, that of the blind.
    pub transmittance: f32,
    /// Absorptance, the rest.
    pub absorptance: f32,
    /// Reflectance, that of the blind.
    pub reflectance: f32,
}

/// What [`diffuse_roller_blind`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct DiffuseRollerBlind {
    /// Transmittance, that of the blind to rounding.
    pub transmittance: f32,
    /// Absorptance, the rest to rounding.
    pub absorptance: f32,
    /// Reflectance, 1 - transmittance - absorptance.
    pub reflectance: f32,
}

/// What [`surface_reflectance`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct SurfaceReflectance {
    /// Reflectance, polarised parallel to the plane of incidence.
    pub parallel_reflectance: f32,
    /// Reflectance, polarised perpendicular to it.
    pub perpendicular_reflectance: f32,
}

/// What [`slab_optics`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct SlabOptics {
    /// Transmittance.
    pub transmittance: f32,
    /// Absorptance, not below 0.
    pub absorptance: f32,
    /// Reflectance.
    pub reflectance: f32,
}

/// What [`pane_temperatures`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct PaneTemperatures {
    /// Temperature of pane 1, nearest the room (°C); not a number with panes outside 1 to 5.
    pub pane_temperature_1: f32,
    /// Temperature of pane 2 (°C); not a number with panes outside 2 to 5.
    pub pane_temperature_2: f32,
    /// Temperature of pane 3 (°C); not a number with panes outside 3 to 5.
    pub pane_temperature_3: f32,
    /// Temperature of pane 4 (°C); not a number with panes outside 4 to 5.
    pub pane_temperature_4: f32,
    /// Temperature of pane 5 (°C); not a number with panes outside 4 to 5.
    pub pane_temperature_5: f32,
}

/// What [`unit_direct`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct UnitDirect {
    /// Transmittance.
    pub transmittance: f32,
    /// Absorptance.
    pub absorptance: f32,
    /// Reflectance, 1 - transmittance - absorptance, at least 0.01 to rounding.
    pub reflectance: f32,
}

/// What [`unit_diffuse`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct UnitDiffuse {
    /// Diffuse transmittance.
    pub transmittance: f32,
    /// Diffuse absorptance.
    pub absorptance: f32,
    /// Diffuse reflectance, 1 - transmittance - absorptance.
    pub reflectance: f32,
}

/// What [`unit_direct_shares`] returns.
#[derive(Clone, Debug, PartialEq)]
pub struct UnitDirectShares {
    /// Transmittance.
    pub transmittance: f32,
    /// Share of each pane in 1 - transmittance - absorptance.
    pub pane_shares: Vec<f32>,
    /// Absorptance.
    pub absorptance: f32,
}

/// What [`unit_diffuse_shares`] returns.
#[derive(Clone, Debug, PartialEq)]
pub struct UnitDiffuseShares {
    /// Diffuse transmittance.
    pub transmittance: f32,
    /// Share of each pane in 1 - transmittance - absorptance.
    pub pane_shares: Vec<f32>,
    /// Diffuse absorptance.
    pub absorptance: f32,
}

/// What [`unit_shares`] returns.
#[derive(Clone, Debug, PartialEq)]
pub struct UnitShares {
    /// Transmittance.
    pub transmittance: f32,
    /// Share of each pane in 1 - transmittance - absorptance.
    pub pane_shares: Vec<f32>,
    /// Absorptance.
    pub absorptance: f32,
}

/// What [`slat_direct`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct SlatDirect {
    /// Transmittance.
    pub transmittance: f32,
    /// Absorptance.
    pub absorptance: f32,
    /// Reflectance, 1 - transmittance - absorptance.
    pub reflectance: f32,
}

/// What [`two_faced_slat_direct`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct TwoFacedSlatDirect {
    /// Transmittance.
    pub transmittance: f32,
    /// Absorptance.
    pub absorptance: f32,
    /// Reflectance, 1 - transmittance - absorptance, not limited.
    pub reflectance: f32,
}

/// What [`open_slat_direct`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct OpenSlatDirect {
    /// Transmittance, the open share included.
    pub transmittance: f32,
    /// Absorptance.
    pub absorptance: f32,
    /// Reflectance.
    pub reflectance: f32,
}

/// What [`slat_diffuse`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct SlatDiffuse {
    /// Transmittance for radiation from above the horizon.
    pub sky_transmittance: f32,
    /// Transmittance for radiation from below it.
    pub ground_transmittance: f32,
    /// Absorptance for radiation from above the horizon.
    pub sky_absorptance: f32,
    /// Absorptance for radiation from below it.
    pub ground_absorptance: f32,
}

/// What [`two_faced_slat_diffuse`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct TwoFacedSlatDiffuse {
    /// Transmittance for radiation from above the horizon.
    pub sky_transmittance: f32,
    /// Transmittance for radiation from below it.
    pub ground_transmittance: f32,
    /// Absorptance for radiation from above the horizon.
    pub sky_absorptance: f32,
    /// Absorptance for radiation from below it.
    pub ground_absorptance: f32,
}

/// What [`open_slat_diffuse`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct OpenSlatDiffuse {
    /// Transmittance for radiation from above the horizon.
    pub sky_transmittance: f32,
    /// Transmittance for radiation from below it.
    pub ground_transmittance: f32,
    /// Absorptance for radiation from above the horizon.
    pub sky_absorptance: f32,
    /// Absorptance for radiation from below it.
    pub ground_absorptance: f32,
}

/// Transmittance, absorptance and reflectance of a pane for direct radiation, both polarisations.
///
/// # Arguments
/// * `normal_transmittance`: normal transmittance; valid 0 to 0.92
/// * `normal_reflectance`: normal reflectance of coated glass, 0 for uncoated; valid 0 to 0.99
/// * `incidence`: angle of incidence (rad); valid -1.5708 to 1.5708
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * The unpolarised values are the means of the two polarisations.
/// * A normal reflectance in 0.01..0.99 means coated: factors on the normal transmittance and on 1 -
///   `normal_reflectance` are interpolated from a table every 5 degrees, the same for both polarisations;
///   beyond 1.57 rad everything is reflected. Any other means uncoated and is not used.
/// * Uncoated glass has the refractive index 1.52. Below a transmittance of 0.001 it is opaque and reflects
///   everything.
/// * No uncoated glass has a normal transmittance above 0.9184: from there on its absorption would be below 0
///   and is held at 0, so that the three add up to more than 1. At 0.92 their unpolarised sum is 1.0018 at
///   normal incidence, 1.0024 at 1.5 rad and 1.011 at 1.57 rad.
/// * For nearly opaque uncoated glass the difference in [`absorption_product`] cancels: at normal incidence the
///   transmittance comes back to within 4 % from 0.02 on and 34 % from 0.005 on; below that 0.002 gives 0 and
///   0.0025 gives 0.006.
/// * Uncoated, an angle beyond pi/2 is not tested, and the results mean nothing there.
/// * The transmittance of coated glass is not tested: where it exceeds 1 with the reflectance the three do not
///   add up to 1.
///
/// # Source
/// Uncoated glass: [`absorption_product`], [`refraction_angle`], [`surface_reflectance`],
/// [`single_pass_absorption`], [`slab_optics`] in turn. Coated glass: tabulated angular factors whose origin is
/// not recorded.
///
/// `WNDRGL` in quorvel.h.
pub fn glass_direct(
    normal_transmittance: f32, normal_reflectance: f32, incidence: f32,
) -> Result<GlassDirect, Error> {
    check::range("glazing::glass_direct", "normal_transmittance", &normal_transmittance, 0.0..=0.92, "")?;
    check::range("glazing::glass_direct", "normal_reflectance", &normal_reflectance, 0.0..=0.99, "")?;
    check::range("glazing::glass_direct", "incidence", &incidence, -1.5708..=1.5708, "rad")?;
    Ok(unchecked::glazing::glass_direct(normal_transmittance, normal_reflectance, incidence))
}

/// Transmittance and absorptance of a pane for isotropic diffuse radiation.
///
/// # Arguments
/// * `normal_transmittance`: normal transmittance; valid 0 to 0.92
/// * `normal_reflectance`: normal reflectance of coated glass, 0 for uncoated; valid 0 to 0.99
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * The pane is taken exactly as by [`glass_direct`], coated and opaque glass included.
/// * The bits are those of [`glass_direct`] summed over the bands.
///
/// # Source
/// [`glass_direct`] at the centres of 18 bands of 5 degrees, each weighted with the integral of 2 sin cos over
/// the band.
///
/// `WNDFGL` in quorvel.h.
pub fn glass_diffuse(normal_transmittance: f32, normal_reflectance: f32) -> Result<GlassDiffuse, Error> {
    check::range("glazing::glass_diffuse", "normal_transmittance", &normal_transmittance, 0.0..=0.92, "")?;
    check::range("glazing::glass_diffuse", "normal_reflectance", &normal_reflectance, 0.0..=0.99, "")?;
    Ok(unchecked::glazing::glass_diffuse(normal_transmittance, normal_reflectance))
}

/// Transmittance, absorptance and reflectance of a stack of layers, each reflection counted once.
///
/// # Arguments
/// * `layer_transmittances`: transmittance of each layer; valid 0 to 1
/// * `layer_reflectances`: reflectance of each layer; valid 0 to 1
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * A layer's reflection passes the layers above it once each way; there is no further inter-reflection.
/// * Where transmittance and reflectance exceed 0.99 together, the reflectance is reduced until they do not. It
///   turns negative if the transmittance alone is above 0.99.
/// * The last layer is met first. No layers are an empty stack, which transmits everything.
///
/// # Source
/// First-order combination of the layers.
///
/// `WNCOM2` in quorvel.h.
pub fn stacked_layers(
    layer_transmittances: &[f32], layer_reflectances: &[f32],
) -> Result<StackedLayers, Error> {
    check::range("glazing::stacked_layers", "layer_transmittances", layer_transmittances, 0.0..=1.0, "")?;
    check::range("glazing::stacked_layers", "layer_reflectances", layer_reflectances, 0.0..=1.0, "")?;
    unchecked::glazing::stacked_layers(layer_transmittances, layer_reflectances)
}

/// Transmittance, absorptance and reflectance of a stack of layers with the inter-reflections between all of
/// them.
///
/// # Arguments
/// * `layer_transmittances`: transmittance of each layer, the same from both sides; valid 0 to 1
/// * `layer_absorptances`: absorptance of each layer; valid 0 to 1
/// * `layer_reflectances`: reflectance of each layer, the same from both sides; valid 0 to 1
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * In a pass the flux goes forward through all layers and back by one; nine passes are made. What needs more
///   than eight steps back is missing from all three results: nothing of one layer; of two, the ninth power of
///   the product of their reflectances as a share of the transmittance; of ten and eleven layers all that the
///   last ones reflect.
/// * The last layer is met first. No layers are an empty stack, which transmits everything.
/// * That transmittance, absorptance and reflectance of a layer add up to 1 is left to the caller.
///
/// # Source
/// Tracing of one forward and one backward flux, which tends to the adding method.
///
/// `WNCOMP` in quorvel.h.
pub fn traced_layers(
    layer_transmittances: &[f32], layer_absorptances: &[f32], layer_reflectances: &[f32],
) -> Result<TracedLayers, Error> {
    check::length("glazing::traced_layers", "layer_transmittances", layer_transmittances.len(), 0..=11)?;
    check::range("glazing::traced_layers", "layer_transmittances", layer_transmittances, 0.0..=1.0, "")?;
    check::range("glazing::traced_layers", "layer_absorptances", layer_absorptances, 0.0..=1.0, "")?;
    check::range("glazing::traced_layers", "layer_reflectances", layer_reflectances, 0.0..=1.0, "")?;
    unchecked::glazing::traced_layers(layer_transmittances, layer_absorptances, layer_reflectances)
}

/// Transmittance, absorptance and reflectance of a roller blind, the same at every angle.
///
/// # Arguments
/// * `blind_transmittance`: transmittance of the blind; valid 0 to 1
/// * `blind_reflectance`: reflectance of the blind; valid 0 to 1
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: absorptance = 1 - `blind_transmittance` - `blind_reflectance`
/// * Nothing is limited: a blind that transmits and reflects more than 1 gives a negative absorptance.
///
/// # Source
/// Conservation of energy.
///
/// `WNDRRO` in quorvel.h.
pub fn roller_blind(blind_transmittance: f32, blind_reflectance: f32) -> Result<RollerBlind, Error> {
    check::range("glazing::roller_blind", "blind_transmittance", &blind_transmittance, 0.0..=1.0, "")?;
    check::range("glazing::roller_blind", "blind_reflectance", &blind_reflectance, 0.0..=1.0, "")?;
    Ok(unchecked::glazing::roller_blind(blind_transmittance, blind_reflectance))
}

/// Transmittance, absorptance and reflectance of a roller blind for diffuse radiation.
///
/// # Arguments
/// * `blind_transmittance`: transmittance of the blind; valid 0 to 1
/// * `blind_reflectance`: reflectance of the blind; valid 0 to 1
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * The blind is the same at every angle; the sum of the bands' weights, 0.9999999, remains as a factor.
/// * Nothing is limited: a blind that transmits and reflects more than 1 gives a negative absorptance.
///
/// # Source
/// [`roller_blind`], integrated as in [`slat_diffuse`].
///
/// `WNDFRO` in quorvel.h.
pub fn diffuse_roller_blind(
    blind_transmittance: f32, blind_reflectance: f32,
) -> Result<DiffuseRollerBlind, Error> {
    check::range("glazing::diffuse_roller_blind", "blind_transmittance", &blind_transmittance, 0.0..=1.0, "")?;
    check::range("glazing::diffuse_roller_blind", "blind_reflectance", &blind_reflectance, 0.0..=1.0, "")?;
    Ok(unchecked::glazing::diffuse_roller_blind(blind_transmittance, blind_reflectance))
}

/// Angle of a ray inside the glass, by Snell's law.
///
/// # Arguments
/// * `incidence`: angle of incidence (rad); valid -1.5708 to 1.5708
/// * `refractive_index`: refractive index of the glass; valid 1 to 4
///
/// # Returns
/// Refraction angle (rad)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: asin(sin(incidence) / `refractive_index`)
/// * Where the sine of the incidence is below 0.01 in size the result is incidence / `refractive_index`, the
///   ratio of the angles in place of that of the sines.
/// * An index so far below 1 that the reflection is total gives no number.
///
/// # Source
/// Snell's law.
///
/// `WNRANG` in quorvel.h.
pub fn refraction_angle(incidence: f32, refractive_index: f32) -> Result<f32, Error> {
    check::range("glazing::refraction_angle", "incidence", &incidence, -1.5708..=1.5708, "rad")?;
    check::range("glazing::refraction_angle", "refractive_index", &refractive_index, 1.0..=4.0, "")?;
    Ok(unchecked::glazing::refraction_angle(incidence, refractive_index))
}

/// Reflectance of one face of the glass for the two polarisations, by Fresnel's equations.
///
/// # Arguments
/// * `incidence`: angle of incidence (rad); valid -1.5708 to 1.5708
/// * `refraction_angle`: refraction angle, of the sign of the incidence (rad); valid -1.5708 to 1.5708
/// * `refractive_index`: refractive index, used at normal incidence only; valid 1 to 4
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: perpendicular (sin(i - r) / sin(i + r))^2, parallel (tan(i - r) / tan(i + r))^2; i = incidence, r
///   = `refraction_angle`
/// * Up to an angle of 0.01 in size, and for an incidence that is no number, both are the value at normal
///   incidence, ((1 - n) / (1 + n))^2 with the refractive index n. [`refraction_angle`] tests the sine of the
///   angle instead; the two limits differ deliberately.
///
/// # Source
/// Fresnel's equations; Duffie and Beckman, Solar Engineering of Thermal Processes, chapter 5.
///
/// `WNREFL` in quorvel.h.
pub fn surface_reflectance(
    incidence: f32, refraction_angle: f32, refractive_index: f32,
) -> Result<SurfaceReflectance, Error> {
    check::range("glazing::surface_reflectance", "incidence", &incidence, -1.5708..=1.5708, "rad")?;
    check::range(
        "glazing::surface_reflectance", "refraction_angle", &refraction_angle, -1.5708..=1.5708, "rad",
    )?;
    check::range("glazing::surface_reflectance", "refractive_index", &refractive_index, 1.0..=4.0, "")?;
    Ok(unchecked::glazing::surface_reflectance(incidence, refraction_angle, refractive_index))
}

/// Share of a ray that is absorbed in one pass through the body of a pane.
///
/// # Arguments
/// * `refraction_angle`: refraction angle (rad); valid -1.5708 to 1.5708
/// * `absorption_product`: absorption coefficient times thickness; valid 0 to 20
///
/// # Returns
/// Absorbed share.
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: 1 - exp(-`absorption_product` / cos(`refraction_angle`))
///
/// # Source
/// Bouguer's law of absorption.
///
/// `WNABEN` in quorvel.h.
pub fn single_pass_absorption(refraction_angle: f32, absorption_product: f32) -> Result<f32, Error> {
    check::range(
        "glazing::single_pass_absorption", "refraction_angle", &refraction_angle, -1.5708..=1.5708, "rad",
    )?;
    check::range("glazing::single_pass_absorption", "absorption_product", &absorption_product, 0.0..=20.0, "")?;
    Ok(unchecked::glazing::single_pass_absorption(refraction_angle, absorption_product))
}

/// Transmittance, absorptance and reflectance of a pane for one polarisation, with all inter-reflections
/// between its two faces.
///
/// # Arguments
/// * `single_pass_absorptance`: share absorbed in a single pass; valid 0 to 1
/// * `face_reflectance`: reflectance of either face; valid 0 to 1
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: transmittance = (1 - r)^2 tau / (1 - r^2 tau^2), reflectance = r + r (1 - r)^2 tau^2 / (1 - r^2
///   tau^2), absorptance = 1 - transmittance - reflectance; tau = 1 - `single_pass_absorptance`, r =
///   `face_reflectance`
/// * Faces that reflect everything around a body that absorbs nothing leave the result undefined (0/0).
/// * What is no number stays so; the limit at 0 touches only numbers.
///
/// # Source
/// Stokes, On the intensity of the light reflected from or transmitted through a pile of plates, 1862; Duffie
/// and Beckman, Solar Engineering of Thermal Processes, chapter 5.
///
/// `WNTAR` in quorvel.h.
pub fn slab_optics(single_pass_absorptance: f32, face_reflectance: f32) -> Result<SlabOptics, Error> {
    check::range("glazing::slab_optics", "single_pass_absorptance", &single_pass_absorptance, 0.0..=1.0, "")?;
    check::range("glazing::slab_optics", "face_reflectance", &face_reflectance, 0.0..=1.0, "")?;
    Ok(unchecked::glazing::slab_optics(single_pass_absorptance, face_reflectance))
}

/// Absorption coefficient times thickness of a pane, from its transmittance at normal incidence.
///
/// # Arguments
/// * `normal_transmittance`: normal transmittance of the pane; valid 0 to 0.92
/// * `refractive_index`: refractive index; valid 1 to 4
///
/// # Returns
/// Absorption coefficient times thickness.
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: -ln((sqrt((1 - r)^4 + 4 r^2 T^2) - (1 - r)^2) / (2 T r^2)); T = `normal_transmittance`, r =
///   ((`refractive_index` - 1) / (`refractive_index` + 1))^2
/// * Evaluated as written in single precision, where a difference of roots cancels for nearly opaque glass: the
///   relative error of the transmittance T, given back by [`normal_transmittance`], is up to 1.5e-5 / T^2,
///   which is 0.02 % at 0.3, 0.15 % at 0.1 and 0.6 % at 0.05; at 0.002 and less the result is infinite.
/// * Above the transmittance of glass that absorbs nothing, 0.918 for an index of 1.52, the result is negative.
/// * A transmittance of 0 and an index of 1 divide by zero and give no finite number.
///
/// # Source
/// The slab of [`slab_optics`] at normal incidence, solved for the absorption.
///
/// `WNKL` in quorvel.h.
pub fn absorption_product(normal_transmittance: f32, refractive_index: f32) -> Result<f32, Error> {
    check::range("glazing::absorption_product", "normal_transmittance", &normal_transmittance, 0.0..=0.92, "")?;
    check::range("glazing::absorption_product", "refractive_index", &refractive_index, 1.0..=4.0, "")?;
    Ok(unchecked::glazing::absorption_product(normal_transmittance, refractive_index))
}

/// Transmittance of a pane at normal incidence: the inverse of [`absorption_product`].
///
/// # Arguments
/// * `absorption_product`: absorption coefficient times thickness; valid 0 to 20
/// * `normal_reflectance`: normal reflectance of one face; valid 0 to 0.99
///
/// # Returns
/// Normal transmittance of the pane.
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: (1 - r)^2 tau / (1 - r^2 tau^2); tau = exp(-`absorption_product`), r = `normal_reflectance`
/// * The second argument is a reflectance, ((n - 1) / (n + 1))^2, where [`absorption_product`] takes the
///   refractive index.
///
/// # Source
/// The slab of [`slab_optics`] at normal incidence.
///
/// `WNTNOR` in quorvel.h.
pub fn normal_transmittance(absorption_product: f32, normal_reflectance: f32) -> Result<f32, Error> {
    check::range("glazing::normal_transmittance", "absorption_product", &absorption_product, 0.0..=20.0, "")?;
    check::range("glazing::normal_transmittance", "normal_reflectance", &normal_reflectance, 0.0..=0.99, "")?;
    Ok(unchecked::glazing::normal_transmittance(absorption_product, normal_reflectance))
}

/// Steady temperatures of the panes of a glazing from the air temperatures on both sides and the solar
/// radiation that each pane absorbs.
///
/// # Arguments
/// * `inside_temperature`: air temperature in the room (°C); valid -100 to 200
/// * `outside_temperature`: air temperature outdoors (°C); valid -100 to 200
/// * `panes`: number of panes; valid 1 to 5
/// * `absorbed_1`: absorbed in pane 1, nearest the room (W/m²); valid from 0
/// * `absorbed_2`: absorbed in pane 2 (W/m²); valid from 0
/// * `absorbed_3`: absorbed in pane 3 (W/m²); valid from 0
/// * `absorbed_4`: absorbed in pane 4 (W/m²); valid from 0
/// * `absorbed_5`: absorbed in pane 5 (W/m²); valid from 0
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * What is given as absorbed in panes that are not there has no influence. Four panes are calculated as five:
///   what the fifth absorbs counts (give 0 for it), and it has a temperature.
///
/// # Source
/// Heat balance of the panes with fixed resistances: 0.12 m²K/W at the room side, 0.06 m²K/W outdoors;
/// coefficients rounded to two decimals.
///
/// `WNTEMP` in quorvel.h.
pub fn pane_temperatures(
    inside_temperature: f32, outside_temperature: f32, panes: i32, absorbed_1: f32, absorbed_2: f32,
    absorbed_3: f32, absorbed_4: f32, absorbed_5: f32,
) -> Result<PaneTemperatures, Error> {
    check::range(
        "glazing::pane_temperatures", "inside_temperature", &inside_temperature, -100.0..=200.0, "°C",
    )?;
    check::range(
        "glazing::pane_temperatures", "outside_temperature", &outside_temperature, -100.0..=200.0, "°C",
    )?;
    check::range("glazing::pane_temperatures", "panes", &panes, 1..=5, "")?;
    check::range("glazing::pane_temperatures", "absorbed_1", &absorbed_1, 0.0..=f32::INFINITY, "W/m²")?;
    check::range("glazing::pane_temperatures", "absorbed_2", &absorbed_2, 0.0..=f32::INFINITY, "W/m²")?;
    check::range("glazing::pane_temperatures", "absorbed_3", &absorbed_3, 0.0..=f32::INFINITY, "W/m²")?;
    check::range("glazing::pane_temperatures", "absorbed_4", &absorbed_4, 0.0..=f32::INFINITY, "W/m²")?;
    check::range("glazing::pane_temperatures", "absorbed_5", &absorbed_5, 0.0..=f32::INFINITY, "W/m²")?;
    Ok(unchecked::glazing::pane_temperatures(
        inside_temperature, outside_temperature, panes, absorbed_1, absorbed_2, absorbed_3, absorbed_4,
        absorbed_5,
    ))
}

/// Transmittance, absorptance and reflectance for direct radiation of a glazing unit known only by its shading
/// coefficients.
///
/// # Arguments
/// * `shortwave_shading_coefficient`: short-wave shading coefficient; the total one if the long-wave one is
///   missing; valid 0 to 1.05
/// * `longwave_shading_coefficient`: long-wave shading coefficient, 0 if missing; valid 0 to 1
/// * `incidence`: angle of incidence (rad); valid -1.5708 to 1.5708
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * A long-wave coefficient below 0.0001 counts as missing: the other is then split into 0.9 short-wave and
///   0.1 long-wave.
/// * An uncoated pane of index 1.52 and normal transmittance 0.87 times the short-wave coefficient carries the
///   angular behaviour.
/// * If the two coefficients add up to at most 1, the absorptance is 2.61 times the long-wave one at normal
///   incidence and follows the pane over the angle; otherwise it is that of the pane. A total of 1 belongs to
///   the former, but only as single precision rounds.
/// * The absorptance is at most 0.99 - transmittance. An opaque unit, whose equivalent pane absorbs nothing,
///   gets just that: coefficients of 0 give an absorptance of 0.99.
/// * An angle beyond pi/2 is not tested, and the results mean nothing there: coefficients of 0.9 and 0.05 give
///   a transmittance of -0.54 at 1.6 rad.
///
/// # Source
/// Shading coefficients relative to clear float glass of total transmittance 0.87, of whose absorbed part a
/// third flows inwards.
///
/// `WNDRSC` in quorvel.h.
pub fn unit_direct(
    shortwave_shading_coefficient: f32, longwave_shading_coefficient: f32, incidence: f32,
) -> Result<UnitDirect, Error> {
    check::range(
        "glazing::unit_direct", "shortwave_shading_coefficient", &shortwave_shading_coefficient, 0.0..=1.05, "",
    )?;
    check::range(
        "glazing::unit_direct", "longwave_shading_coefficient", &longwave_shading_coefficient, 0.0..=1.0, "",
    )?;
    check::range("glazing::unit_direct", "incidence", &incidence, -1.5708..=1.5708, "rad")?;
    Ok(unchecked::glazing::unit_direct(shortwave_shading_coefficient, longwave_shading_coefficient, incidence))
}

/// Transmittance, absorptance and reflectance for isotropic diffuse radiation of a glazing unit known only by
/// its shading coefficients.
///
/// # Arguments
/// * `shortwave_shading_coefficient`: short-wave shading coefficient; the total one if the long-wave one is
///   missing; valid 0 to 1.05
/// * `longwave_shading_coefficient`: long-wave shading coefficient, 0 if missing; valid 0 to 1
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Coefficients as in [`unit_direct`]. If they add up to at most 1 the absorptance is 2.61 times the
///   long-wave one, otherwise that of the equivalent pane.
/// * The absorptance is at most 0.99 - transmittance. Unlike [`unit_direct`], coefficients of 0 give a
///   reflectance of 1.
///
/// # Source
/// [`unit_direct`], with the equivalent pane integrated as in [`glass_diffuse`].
///
/// `WNDFSC` in quorvel.h.
pub fn unit_diffuse(
    shortwave_shading_coefficient: f32, longwave_shading_coefficient: f32,
) -> Result<UnitDiffuse, Error> {
    check::range(
        "glazing::unit_diffuse", "shortwave_shading_coefficient", &shortwave_shading_coefficient, 0.0..=1.05,
        "",
    )?;
    check::range(
        "glazing::unit_diffuse", "longwave_shading_coefficient", &longwave_shading_coefficient, 0.0..=1.0, "",
    )?;
    Ok(unchecked::glazing::unit_diffuse(shortwave_shading_coefficient, longwave_shading_coefficient))
}

/// [`unit_direct`], with the remainder that is neither transmitted nor absorbed split among the panes of the
/// unit.
///
/// # Arguments
/// * `shortwave_shading_coefficient`: short-wave shading coefficient; the total one if the long-wave one is
///   missing; valid 0 to 1.05
/// * `longwave_shading_coefficient`: long-wave shading coefficient, 0 if missing; valid 0 to 1
/// * `incidence`: angle of incidence (rad); valid -1.5708 to 1.5708
/// * `panes`: number of panes; valid 1 to 5
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * What is split is the remainder, not the absorptance.
///
/// # Source
/// [`unit_direct`]; the shares by number of panes are fixed, 0.4 and 0.6 for two, their origin is not recorded.
///
/// `WNDRSM` in quorvel.h.
pub fn unit_direct_shares(
    shortwave_shading_coefficient: f32, longwave_shading_coefficient: f32, incidence: f32, panes: i32,
) -> Result<UnitDirectShares, Error> {
    check::range("glazing::unit_direct_shares", "panes", &panes, 1..=5, "")?;
    check::range(
        "glazing::unit_direct_shares", "shortwave_shading_coefficient", &shortwave_shading_coefficient,
        0.0..=1.05, "",
    )?;
    check::range(
        "glazing::unit_direct_shares", "longwave_shading_coefficient", &longwave_shading_coefficient, 0.0..=1.0,
        "",
    )?;
    check::range("glazing::unit_direct_shares", "incidence", &incidence, -1.5708..=1.5708, "rad")?;
    unchecked::glazing::unit_direct_shares(
        shortwave_shading_coefficient, longwave_shading_coefficient, incidence, panes,
    )
}

/// [`unit_diffuse`], with the remainder that is neither transmitted nor absorbed split among the panes of the
/// unit.
///
/// # Arguments
/// * `shortwave_shading_coefficient`: short-wave shading coefficient; the total one if the long-wave one is
///   missing; valid 0 to 1.05
/// * `longwave_shading_coefficient`: long-wave shading coefficient, 0 if missing; valid 0 to 1
/// * `panes`: number of panes; valid 1 to 5
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * The remainder is split as in [`unit_direct_shares`].
///
/// # Source
/// [`unit_diffuse`], with the shares of [`unit_direct_shares`].
///
/// `WNDFSM` in quorvel.h.
pub fn unit_diffuse_shares(
    shortwave_shading_coefficient: f32, longwave_shading_coefficient: f32, panes: i32,
) -> Result<UnitDiffuseShares, Error> {
    check::range("glazing::unit_diffuse_shares", "panes", &panes, 1..=5, "")?;
    check::range(
        "glazing::unit_diffuse_shares", "shortwave_shading_coefficient", &shortwave_shading_coefficient,
        0.0..=1.05, "",
    )?;
    check::range(
        "glazing::unit_diffuse_shares", "longwave_shading_coefficient", &longwave_shading_coefficient,
        0.0..=1.0, "",
    )?;
    unchecked::glazing::unit_diffuse_shares(shortwave_shading_coefficient, longwave_shading_coefficient, panes)
}

/// [`unit_direct_shares`] or [`unit_diffuse_shares`], by a selector.
///
/// # Arguments
/// * `radiation`: kind of radiation
/// * `shortwave_shading_coefficient`: short-wave shading coefficient; the total one if the long-wave one is
///   missing; valid 0 to 1.05
/// * `longwave_shading_coefficient`: long-wave shading coefficient, 0 if missing; valid 0 to 1
/// * `incidence`: angle of incidence, read for direct radiation only (rad); valid -1.5708 to 1.5708
/// * `panes`: number of panes; valid 1 to 5
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * The remainder is split as in [`unit_direct_shares`].
///
/// # Source
/// [`unit_direct_shares`] and [`unit_diffuse_shares`].
///
/// `WNDRS0` in quorvel.h.
pub fn unit_shares(
    radiation: Radiation, shortwave_shading_coefficient: f32, longwave_shading_coefficient: f32,
    incidence: f32, panes: i32,
) -> Result<UnitShares, Error> {
    check::range("glazing::unit_shares", "panes", &panes, 1..=5, "")?;
    check::range(
        "glazing::unit_shares", "shortwave_shading_coefficient", &shortwave_shading_coefficient, 0.0..=1.05, "",
    )?;
    check::range(
        "glazing::unit_shares", "longwave_shading_coefficient", &longwave_shading_coefficient, 0.0..=1.0, "",
    )?;
    check::range("glazing::unit_shares", "incidence", &incidence, -1.5708..=1.5708, "rad")?;
    unchecked::glazing::unit_shares(
        radiation, shortwave_shading_coefficient, longwave_shading_coefficient, incidence, panes,
    )
}

/// Transmittance, absorptance and reflectance of a slatted blind for a beam, both faces of the slats alike.
///
/// # Arguments
/// * `slat_spacing`: spacing of the slats; only its ratio to their width matters, in whatever unit (m); valid
///   from 0
/// * `slat_width`: width of a slat (m); valid from 0
/// * `slat_angle`: slat angle in degrees, 0 for level slats, positive with the outer edge lowered (°); valid
///   -90 to 90
/// * `profile_angle`: profile angle of the beam, positive from above (rad); valid -1.5708 to 1.5708
/// * `slat_absorptance`: absorptance of the slats; valid 0 to 1
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * The slats are flat, thin, opaque and diffusely reflecting. After the first reflection each slat is taken
///   as evenly lit.
/// * For slat angles up to 90 degrees and an absorptance in 0..1 all three are in 0..1, but for the rounding of
///   single precision: 1e-4 for slats that are nearly closed, 4e-7 over the cosine of the profile angle for
///   grazing beams.
/// * A beam within 0.01 rad of the slats' plane passes whole. A beam along the blind (cosine of the profile
///   angle below 1e-6, or the angle 1.570796 or more in size) meets an opaque sheet with the absorptance of the
///   slats.
/// * The mirror image, with both angles negative, gives the same bits.
///
/// # Source
/// Exchange factors by H. C. Hottel's crossed strings, and the inter-reflection between two neighbouring slats.
///
/// `WNDRSL` in quorvel.h.
pub fn slat_direct(
    slat_spacing: f32, slat_width: f32, slat_angle: f32, profile_angle: f32, slat_absorptance: f32,
) -> Result<SlatDirect, Error> {
    check::range("glazing::slat_direct", "slat_spacing", &slat_spacing, 0.0..=f32::INFINITY, "m")?;
    check::range("glazing::slat_direct", "slat_width", &slat_width, 0.0..=f32::INFINITY, "m")?;
    check::range("glazing::slat_direct", "slat_angle", &slat_angle, -90.0..=90.0, "°")?;
    check::range("glazing::slat_direct", "profile_angle", &profile_angle, -1.5708..=1.5708, "rad")?;
    check::range("glazing::slat_direct", "slat_absorptance", &slat_absorptance, 0.0..=1.0, "")?;
    Ok(unchecked::glazing::slat_direct(slat_spacing, slat_width, slat_angle, profile_angle, slat_absorptance))
}

/// Transmittance, absorptance and reflectance of a blind for a beam, whose slats have two different faces.
///
/// # Arguments
/// * `slat_spacing`: spacing of the slats; only its ratio to their width matters, in whatever unit (m); valid
///   from 0
/// * `slat_width`: width of a slat (m); valid from 0
/// * `slat_angle`: slat angle in degrees, 0 for level slats, positive with the outer edge lowered (°); valid
///   -90 to 90
/// * `profile_angle`: profile angle of the beam, positive from above (rad); valid -1.5708 to 1.5708
/// * `struck_absorptance`: absorptance of the face that the beam strikes first; valid 0 to 1
/// * `opposite_absorptance`: absorptance of the opposite face; valid 0 to 1
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Equal faces give the bits of [`slat_direct`] and keep the balance.
/// * Unequal faces do not: whatever is absorbed after the first reflection counts with that of the face struck,
///   as if both faces absorbed like the one struck and reflected like the opposite one. A bright face opposite
///   a dark one absorbs too little, and the reflectance holds the rest; a dark face opposite a bright one
///   absorbs too much, in dense blinds many times what arrives, and the reflectance is negative by as much.
///   Where the face struck absorbs at most what the opposite one does, all three stay in 0..1.
/// * The face struck first is the upper one where profile angle and slat angle have a positive sum and the
///   lower one else; the absorptances are to be chosen accordingly.
///
/// # Source
/// As [`slat_direct`].
///
/// `WNDRS2` in quorvel.h.
pub fn two_faced_slat_direct(
    slat_spacing: f32, slat_width: f32, slat_angle: f32, profile_angle: f32, struck_absorptance: f32,
    opposite_absorptance: f32,
) -> Result<TwoFacedSlatDirect, Error> {
    check::range("glazing::two_faced_slat_direct", "slat_spacing", &slat_spacing, 0.0..=f32::INFINITY, "m")?;
    check::range("glazing::two_faced_slat_direct", "slat_width", &slat_width, 0.0..=f32::INFINITY, "m")?;
    check::range("glazing::two_faced_slat_direct", "slat_angle", &slat_angle, -90.0..=90.0, "°")?;
    check::range("glazing::two_faced_slat_direct", "profile_angle", &profile_angle, -1.5708..=1.5708, "rad")?;
    check::range("glazing::two_faced_slat_direct", "struck_absorptance", &struck_absorptance, 0.0..=1.0, "")?;
    check::range(
        "glazing::two_faced_slat_direct", "opposite_absorptance", &opposite_absorptance, 0.0..=1.0, "",
    )?;
    Ok(unchecked::glazing::two_faced_slat_direct(
        slat_spacing, slat_width, slat_angle, profile_angle, struck_absorptance, opposite_absorptance,
    ))
}

/// [`two_faced_slat_direct`] for a blind that leaves a share of the radiation to pass untouched.
///
/// # Arguments
/// * `slat_spacing`: spacing of the slats; only its ratio to their width matters, in whatever unit (m); valid
///   from 0
/// * `slat_width`: width of a slat (m); valid from 0
/// * `slat_angle`: slat angle in degrees, 0 for level slats, positive with the outer edge lowered (°); valid
///   -90 to 90
/// * `profile_angle`: profile angle of the beam, positive from above (rad); valid -1.5708 to 1.5708
/// * `open_share`: open share of the blind; 0 or less for none; valid 0 to 1
/// * `struck_absorptance`: absorptance of the face that the beam strikes first; valid 0 to 1
/// * `opposite_absorptance`: absorptance of the opposite face; valid 0 to 1
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Without an open share these are the bits of [`two_faced_slat_direct`]; a share that is not a number is
///   none.
/// * A beam along the blind is transmitted by the open share and absorbed as by the face struck: the share does
///   not reduce the absorptance there, and the reflectance, 1 less both, may be negative: deliberate.
///
/// # Source
/// As [`slat_direct`].
///
/// `WNDRS3` in quorvel.h.
pub fn open_slat_direct(
    slat_spacing: f32, slat_width: f32, slat_angle: f32, profile_angle: f32, open_share: f32,
    struck_absorptance: f32, opposite_absorptance: f32,
) -> Result<OpenSlatDirect, Error> {
    check::range("glazing::open_slat_direct", "slat_spacing", &slat_spacing, 0.0..=f32::INFINITY, "m")?;
    check::range("glazing::open_slat_direct", "slat_width", &slat_width, 0.0..=f32::INFINITY, "m")?;
    check::range("glazing::open_slat_direct", "slat_angle", &slat_angle, -90.0..=90.0, "°")?;
    check::range("glazing::open_slat_direct", "profile_angle", &profile_angle, -1.5708..=1.5708, "rad")?;
    check::range("glazing::open_slat_direct", "open_share", &open_share, 0.0..=1.0, "")?;
    check::range("glazing::open_slat_direct", "struck_absorptance", &struck_absorptance, 0.0..=1.0, "")?;
    check::range("glazing::open_slat_direct", "opposite_absorptance", &opposite_absorptance, 0.0..=1.0, "")?;
    Ok(unchecked::glazing::open_slat_direct(
        slat_spacing, slat_width, slat_angle, profile_angle, open_share, struck_absorptance,
        opposite_absorptance,
    ))
}

/// Transmittance and absorptance of a slatted blind for the diffuse radiation from the sky's and from the
/// ground's side, both faces of the slats alike.
///
/// # Arguments
/// * `slat_spacing`: spacing of the slats; only its ratio to their width matters, in whatever unit (m); valid
///   from 0
/// * `slat_width`: width of a slat (m); valid from 0
/// * `slat_angle`: slat angle in degrees, 0 for level slats, positive with the outer edge lowered (°); valid
///   -90 to 90
/// * `slat_absorptance`: absorptance of the slats; valid 0 to 1
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * The bits are those of [`slat_direct`] summed over the bands.
/// * Slats at an angle of 5, 15, ... 85 degrees have a band within 0.01 rad of their plane, which passes whole.
/// * The opposite angle swaps sky and ground.
///
/// # Source
/// [`slat_direct`] at the centres of nine bands of 10 degrees on either side of the horizon, each weighted with
/// the integral of the cosine over the band: radiance uniform in the profile angle.
///
/// `WNDFSL` in quorvel.h.
pub fn slat_diffuse(
    slat_spacing: f32, slat_width: f32, slat_angle: f32, slat_absorptance: f32,
) -> Result<SlatDiffuse, Error> {
    check::range("glazing::slat_diffuse", "slat_spacing", &slat_spacing, 0.0..=f32::INFINITY, "m")?;
    check::range("glazing::slat_diffuse", "slat_width", &slat_width, 0.0..=f32::INFINITY, "m")?;
    check::range("glazing::slat_diffuse", "slat_angle", &slat_angle, -90.0..=90.0, "°")?;
    check::range("glazing::slat_diffuse", "slat_absorptance", &slat_absorptance, 0.0..=1.0, "")?;
    Ok(unchecked::glazing::slat_diffuse(slat_spacing, slat_width, slat_angle, slat_absorptance))
}

/// [`slat_diffuse`] for slats with two different faces.
///
/// # Arguments
/// * `slat_spacing`: spacing of the slats; only its ratio to their width matters, in whatever unit (m); valid
///   from 0
/// * `slat_width`: width of a slat (m); valid from 0
/// * `slat_angle`: slat angle in degrees, 0 for level slats, positive with the outer edge lowered (°); valid
///   -90 to 90
/// * `struck_absorptance`: absorptance of the face that the beam strikes first; valid 0 to 1
/// * `opposite_absorptance`: absorptance of the opposite face; valid 0 to 1
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * The absorptances belong to whichever face a beam strikes first. Slats with different upper and lower faces
///   need two calls: with the upper face struck for the results of the sky, with the lower face for those of
///   the ground. Beams between the horizon and the plane of the slats strike the other face all the same.
/// * Unequal faces as in [`two_faced_slat_direct`].
///
/// # Source
/// [`two_faced_slat_direct`], integrated as in [`slat_diffuse`].
///
/// `WNDFS2` in quorvel.h.
pub fn two_faced_slat_diffuse(
    slat_spacing: f32, slat_width: f32, slat_angle: f32, struck_absorptance: f32, opposite_absorptance: f32,
) -> Result<TwoFacedSlatDiffuse, Error> {
    check::range("glazing::two_faced_slat_diffuse", "slat_spacing", &slat_spacing, 0.0..=f32::INFINITY, "m")?;
    check::range("glazing::two_faced_slat_diffuse", "slat_width", &slat_width, 0.0..=f32::INFINITY, "m")?;
    check::range("glazing::two_faced_slat_diffuse", "slat_angle", &slat_angle, -90.0..=90.0, "°")?;
    check::range("glazing::two_faced_slat_diffuse", "struck_absorptance", &struck_absorptance, 0.0..=1.0, "")?;
    check::range(
        "glazing::two_faced_slat_diffuse", "opposite_absorptance", &opposite_absorptance, 0.0..=1.0, "",
    )?;
    Ok(unchecked::glazing::two_faced_slat_diffuse(
        slat_spacing, slat_width, slat_angle, struck_absorptance, opposite_absorptance,
    ))
}

/// [`two_faced_slat_diffuse`] for a blind that leaves a share of the radiation to pass untouched.
///
/// # Arguments
/// * `slat_spacing`: spacing of the slats; only its ratio to their width matters, in whatever unit (m); valid
///   from 0
/// * `slat_width`: width of a slat (m); valid from 0
/// * `slat_angle`: slat angle in degrees, 0 for level slats, positive with the outer edge lowered (°); valid
///   -90 to 90
/// * `open_share`: open share of the blind; 0 or less for none; valid 0 to 1
/// * `struck_absorptance`: absorptance of the face that the beam strikes first; valid 0 to 1
/// * `opposite_absorptance`: absorptance of the opposite face; valid 0 to 1
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Faces as in [`two_faced_slat_diffuse`], the open share as in [`open_slat_direct`].
///
/// # Source
/// [`open_slat_direct`], integrated as in [`slat_diffuse`].
///
/// `WNDFS3` in quorvel.h.
pub fn open_slat_diffuse(
    slat_spacing: f32, slat_width: f32, slat_angle: f32, open_share: f32, struck_absorptance: f32,
    opposite_absorptance: f32,
) -> Result<OpenSlatDiffuse, Error> {
    check::range("glazing::open_slat_diffuse", "slat_spacing", &slat_spacing, 0.0..=f32::INFINITY, "m")?;
    check::range("glazing::open_slat_diffuse", "slat_width", &slat_width, 0.0..=f32::INFINITY, "m")?;
    check::range("glazing::open_slat_diffuse", "slat_angle", &slat_angle, -90.0..=90.0, "°")?;
    check::range("glazing::open_slat_diffuse", "open_share", &open_share, 0.0..=1.0, "")?;
    check::range("glazing::open_slat_diffuse", "struck_absorptance", &struck_absorptance, 0.0..=1.0, "")?;
    check::range("glazing::open_slat_diffuse", "opposite_absorptance", &opposite_absorptance, 0.0..=1.0, "")?;
    Ok(unchecked::glazing::open_slat_diffuse(
        slat_spacing, slat_width, slat_angle, open_share, struck_absorptance, opposite_absorptance,
    ))
}

/// Functions of whole arrays.
pub mod arrays {
    use super::*;

    /// [`crate::glazing::glass_direct`] of whole arrays.
    pub fn glass_direct<'a>(
        normal_transmittance: impl Into<Input<'a, f32>>, normal_reflectance: impl Into<Input<'a, f32>>,
        incidence: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<GlassDirect>, Error> {
        let normal_transmittance = normal_transmittance.into();
        let normal_reflectance = normal_reflectance.into();
        let incidence = incidence.into();
        check::range("glazing::glass_direct", "normal_transmittance", &normal_transmittance, 0.0..=0.92, "")?;
        check::range("glazing::glass_direct", "normal_reflectance", &normal_reflectance, 0.0..=0.99, "")?;
        check::range("glazing::glass_direct", "incidence", &incidence, -1.5708..=1.5708, "rad")?;
        unchecked::glazing::arrays::glass_direct(normal_transmittance, normal_reflectance, incidence)
    }

    /// [`crate::glazing::glass_diffuse`] of whole arrays.
    pub fn glass_diffuse<'a>(
        normal_transmittance: impl Into<Input<'a, f32>>, normal_reflectance: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<GlassDiffuse>, Error> {
        let normal_transmittance = normal_transmittance.into();
        let normal_reflectance = normal_reflectance.into();
        check::range("glazing::glass_diffuse", "normal_transmittance", &normal_transmittance, 0.0..=0.92, "")?;
        check::range("glazing::glass_diffuse", "normal_reflectance", &normal_reflectance, 0.0..=0.99, "")?;
        unchecked::glazing::arrays::glass_diffuse(normal_transmittance, normal_reflectance)
    }

    /// [`crate::glazing::roller_blind`] of whole arrays.
    pub fn roller_blind<'a>(
        blind_transmittance: impl Into<Input<'a, f32>>, blind_reflectance: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<RollerBlind>, Error> {
        let blind_transmittance = blind_transmittance.into();
        let blind_reflectance = blind_reflectance.into();
        check::range("glazing::roller_blind", "blind_transmittance", &blind_transmittance, 0.0..=1.0, "")?;
        check::range("glazing::roller_blind", "blind_reflectance", &blind_reflectance, 0.0..=1.0, "")?;
        unchecked::glazing::arrays::roller_blind(blind_transmittance, blind_reflectance)
    }

    /// [`crate::glazing::diffuse_roller_blind`] of whole arrays.
    pub fn diffuse_roller_blind<'a>(
        blind_transmittance: impl Into<Input<'a, f32>>, blind_reflectance: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<DiffuseRollerBlind>, Error> {
        let blind_transmittance = blind_transmittance.into();
        let blind_reflectance = blind_reflectance.into();
        check::range("glazing::diffuse_roller_blind", "blind_transmittance", &blind_transmittance, 0.0..=1.0, "")?;
        check::range("glazing::diffuse_roller_blind", "blind_reflectance", &blind_reflectance, 0.0..=1.0, "")?;
        unchecked::glazing::arrays::diffuse_roller_blind(blind_transmittance, blind_reflectance)
    }

    /// [`crate::glazing::refraction_angle`] of whole arrays.
    pub fn refraction_angle<'a>(
        incidence: impl Into<Input<'a, f32>>, refractive_index: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let incidence = incidence.into();
        let refractive_index = refractive_index.into();
        check::range("glazing::refraction_angle", "incidence", &incidence, -1.5708..=1.5708, "rad")?;
        check::range("glazing::refraction_angle", "refractive_index", &refractive_index, 1.0..=4.0, "")?;
        unchecked::glazing::arrays::refraction_angle(incidence, refractive_index)
    }

    /// [`crate::glazing::surface_reflectance`] of whole arrays.
    pub fn surface_reflectance<'a>(
        incidence: impl Into<Input<'a, f32>>, refraction_angle: impl Into<Input<'a, f32>>,
        refractive_index: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<SurfaceReflectance>, Error> {
        let incidence = incidence.into();
        let refraction_angle = refraction_angle.into();
        let refractive_index = refractive_index.into();
        check::range("glazing::surface_reflectance", "incidence", &incidence, -1.5708..=1.5708, "rad")?;
        check::range(
            "glazing::surface_reflectance", "refraction_angle", &refraction_angle, -1.5708..=1.5708, "rad",
        )?;
        check::range("glazing::surface_reflectance", "refractive_index", &refractive_index, 1.0..=4.0, "")?;
        unchecked::glazing::arrays::surface_reflectance(incidence, refraction_angle, refractive_index)
    }

    /// [`crate::glazing::single_pass_absorption`] of whole arrays.
    pub fn single_pass_absorption<'a>(
        refraction_angle: impl Into<Input<'a, f32>>, absorption_product: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let refraction_angle = refraction_angle.into();
        let absorption_product = absorption_product.into();
        check::range(
            "glazing::single_pass_absorption", "refraction_angle", &refraction_angle, -1.5708..=1.5708, "rad",
        )?;
        check::range("glazing::single_pass_absorption", "absorption_product", &absorption_product, 0.0..=20.0, "")?;
        unchecked::glazing::arrays::single_pass_absorption(refraction_angle, absorption_product)
    }

    /// [`crate::glazing::slab_optics`] of whole arrays.
    pub fn slab_optics<'a>(
        single_pass_absorptance: impl Into<Input<'a, f32>>, face_reflectance: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<SlabOptics>, Error> {
        let single_pass_absorptance = single_pass_absorptance.into();
        let face_reflectance = face_reflectance.into();
        check::range("glazing::slab_optics", "single_pass_absorptance", &single_pass_absorptance, 0.0..=1.0, "")?;
        check::range("glazing::slab_optics", "face_reflectance", &face_reflectance, 0.0..=1.0, "")?;
        unchecked::glazing::arrays::slab_optics(single_pass_absorptance, face_reflectance)
    }

    /// [`crate::glazing::absorption_product`] of whole arrays.
    pub fn absorption_product<'a>(
        normal_transmittance: impl Into<Input<'a, f32>>, refractive_index: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let normal_transmittance = normal_transmittance.into();
        let refractive_index = refractive_index.into();
        check::range("glazing::absorption_product", "normal_transmittance", &normal_transmittance, 0.0..=0.92, "")?;
        check::range("glazing::absorption_product", "refractive_index", &refractive_index, 1.0..=4.0, "")?;
        unchecked::glazing::arrays::absorption_product(normal_transmittance, refractive_index)
    }

    /// [`crate::glazing::normal_transmittance`] of whole arrays.
    pub fn normal_transmittance<'a>(
        absorption_product: impl Into<Input<'a, f32>>, normal_reflectance: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let absorption_product = absorption_product.into();
        let normal_reflectance = normal_reflectance.into();
        check::range("glazing::normal_transmittance", "absorption_product", &absorption_product, 0.0..=20.0, "")?;
        check::range("glazing::normal_transmittance", "normal_reflectance", &normal_reflectance, 0.0..=0.99, "")?;
        unchecked::glazing::arrays::normal_transmittance(absorption_product, normal_reflectance)
    }

    /// [`crate::glazing::pane_temperatures`] of whole arrays.
    pub fn pane_temperatures<'a>(
        inside_temperature: impl Into<Input<'a, f32>>, outside_temperature: impl Into<Input<'a, f32>>,
        panes: impl Into<Input<'a, i32>>, absorbed_1: impl Into<Input<'a, f32>>,
        absorbed_2: impl Into<Input<'a, f32>>, absorbed_3: impl Into<Input<'a, f32>>,
        absorbed_4: impl Into<Input<'a, f32>>, absorbed_5: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<PaneTemperatures>, Error> {
        let inside_temperature = inside_temperature.into();
        let outside_temperature = outside_temperature.into();
        let panes = panes.into();
        let absorbed_1 = absorbed_1.into();
        let absorbed_2 = absorbed_2.into();
        let absorbed_3 = absorbed_3.into();
        let absorbed_4 = absorbed_4.into();
        let absorbed_5 = absorbed_5.into();
        check::range(
            "glazing::pane_temperatures", "inside_temperature", &inside_temperature, -100.0..=200.0, "°C",
        )?;
        check::range(
            "glazing::pane_temperatures", "outside_temperature", &outside_temperature, -100.0..=200.0, "°C",
        )?;
        check::range("glazing::pane_temperatures", "panes", &panes, 1..=5, "")?;
        check::range("glazing::pane_temperatures", "absorbed_1", &absorbed_1, 0.0..=f32::INFINITY, "W/m²")?;
        check::range("glazing::pane_temperatures", "absorbed_2", &absorbed_2, 0.0..=f32::INFINITY, "W/m²")?;
        check::range("glazing::pane_temperatures", "absorbed_3", &absorbed_3, 0.0..=f32::INFINITY, "W/m²")?;
        check::range("glazing::pane_temperatures", "absorbed_4", &absorbed_4, 0.0..=f32::INFINITY, "W/m²")?;
        check::range("glazing::pane_temperatures", "absorbed_5", &absorbed_5, 0.0..=f32::INFINITY, "W/m²")?;
        unchecked::glazing::arrays::pane_temperatures(
            inside_temperature, outside_temperature, panes, absorbed_1, absorbed_2, absorbed_3, absorbed_4,
            absorbed_5,
        )
    }

    /// [`crate::glazing::unit_direct`] of whole arrays.
    pub fn unit_direct<'a>(
        shortwave_shading_coefficient: impl Into<Input<'a, f32>>,
        longwave_shading_coefficient: impl Into<Input<'a, f32>>, incidence: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<UnitDirect>, Error> {
        let shortwave_shading_coefficient = shortwave_shading_coefficient.into();
        let longwave_shading_coefficient = longwave_shading_coefficient.into();
        let incidence = incidence.into();
        check::range(
            "glazing::unit_direct", "shortwave_shading_coefficient", &shortwave_shading_coefficient, 0.0..=1.05, "",
        )?;
        check::range(
            "glazing::unit_direct", "longwave_shading_coefficient", &longwave_shading_coefficient, 0.0..=1.0, "",
        )?;
        check::range("glazing::unit_direct", "incidence", &incidence, -1.5708..=1.5708, "rad")?;
        unchecked::glazing::arrays::unit_direct(
            shortwave_shading_coefficient, longwave_shading_coefficient, incidence,
        )
    }

    /// [`crate::glazing::unit_diffuse`] of whole arrays.
    pub fn unit_diffuse<'a>(
        shortwave_shading_coefficient: impl Into<Input<'a, f32>>,
        longwave_shading_coefficient: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<UnitDiffuse>, Error> {
        let shortwave_shading_coefficient = shortwave_shading_coefficient.into();
        let longwave_shading_coefficient = longwave_shading_coefficient.into();
        check::range(
            "glazing::unit_diffuse", "shortwave_shading_coefficient", &shortwave_shading_coefficient, 0.0..=1.05,
            "",
        )?;
        check::range(
            "glazing::unit_diffuse", "longwave_shading_coefficient", &longwave_shading_coefficient, 0.0..=1.0, "",
        )?;
        unchecked::glazing::arrays::unit_diffuse(shortwave_shading_coefficient, longwave_shading_coefficient)
    }

    /// [`crate::glazing::slat_direct`] of whole arrays.
    pub fn slat_direct<'a>(
        slat_spacing: impl Into<Input<'a, f32>>, slat_width: impl Into<Input<'a, f32>>,
        slat_angle: impl Into<Input<'a, f32>>, profile_angle: impl Into<Input<'a, f32>>,
        slat_absorptance: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<SlatDirect>, Error> {
        let slat_spacing = slat_spacing.into();
        let slat_width = slat_width.into();
        let slat_angle = slat_angle.into();
        let profile_angle = profile_angle.into();
        let slat_absorptance = slat_absorptance.into();
        check::range("glazing::slat_direct", "slat_spacing", &slat_spacing, 0.0..=f32::INFINITY, "m")?;
        check::range("glazing::slat_direct", "slat_width", &slat_width, 0.0..=f32::INFINITY, "m")?;
        check::range("glazing::slat_direct", "slat_angle", &slat_angle, -90.0..=90.0, "°")?;
        check::range("glazing::slat_direct", "profile_angle", &profile_angle, -1.5708..=1.5708, "rad")?;
        check::range("glazing::slat_direct", "slat_absorptance", &slat_absorptance, 0.0..=1.0, "")?;
        unchecked::glazing::arrays::slat_direct(
            slat_spacing, slat_width, slat_angle, profile_angle, slat_absorptance,
        )
    }

    /// [`crate::glazing::two_faced_slat_direct`] of whole arrays.
    pub fn two_faced_slat_direct<'a>(
        slat_spacing: impl Into<Input<'a, f32>>, slat_width: impl Into<Input<'a, f32>>,
        slat_angle: impl Into<Input<'a, f32>>, profile_angle: impl Into<Input<'a, f32>>,
        struck_absorptance: impl Into<Input<'a, f32>>, opposite_absorptance: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<TwoFacedSlatDirect>, Error> {
        let slat_spacing = slat_spacing.into();
        let slat_width = slat_width.into();
        let slat_angle = slat_angle.into();
        let profile_angle = profile_angle.into();
        let struck_absorptance = struck_absorptance.into();
        let opposite_absorptance = opposite_absorptance.into();
        check::range("glazing::two_faced_slat_direct", "slat_spacing", &slat_spacing, 0.0..=f32::INFINITY, "m")?;
        check::range("glazing::two_faced_slat_direct", "slat_width", &slat_width, 0.0..=f32::INFINITY, "m")?;
        check::range("glazing::two_faced_slat_direct", "slat_angle", &slat_angle, -90.0..=90.0, "°")?;
        check::range("glazing::two_faced_slat_direct", "profile_angle", &profile_angle, -1.5708..=1.5708, "rad")?;
        check::range("glazing::two_faced_slat_direct", "struck_absorptance", &struck_absorptance, 0.0..=1.0, "")?;
        check::range(
            "glazing::two_faced_slat_direct", "opposite_absorptance", &opposite_absorptance, 0.0..=1.0, "",
        )?;
        unchecked::glazing::arrays::two_faced_slat_direct(
            slat_spacing, slat_width, slat_angle, profile_angle, struck_absorptance, opposite_absorptance,
        )
    }

    /// [`crate::glazing::open_slat_direct`] of whole arrays.
    pub fn open_slat_direct<'a>(
        slat_spacing: impl Into<Input<'a, f32>>, slat_width: impl Into<Input<'a, f32>>,
        slat_angle: impl Into<Input<'a, f32>>, profile_angle: impl Into<Input<'a, f32>>,
        open_share: impl Into<Input<'a, f32>>, struck_absorptance: impl Into<Input<'a, f32>>,
        opposite_absorptance: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<OpenSlatDirect>, Error> {
        let slat_spacing = slat_spacing.into();
        let slat_width = slat_width.into();
        let slat_angle = slat_angle.into();
        let profile_angle = profile_angle.into();
        let open_share = open_share.into();
        let struck_absorptance = struck_absorptance.into();
        let opposite_absorptance = opposite_absorptance.into();
        check::range("glazing::open_slat_direct", "slat_spacing", &slat_spacing, 0.0..=f32::INFINITY, "m")?;
        check::range("glazing::open_slat_direct", "slat_width", &slat_width, 0.0..=f32::INFINITY, "m")?;
        check::range("glazing::open_slat_direct", "slat_angle", &slat_angle, -90.0..=90.0, "°")?;
        check::range("glazing::open_slat_direct", "profile_angle", &profile_angle, -1.5708..=1.5708, "rad")?;
        check::range("glazing::open_slat_direct", "open_share", &open_share, 0.0..=1.0, "")?;
        check::range("glazing::open_slat_direct", "struck_absorptance", &struck_absorptance, 0.0..=1.0, "")?;
        check::range("glazing::open_slat_direct", "opposite_absorptance", &opposite_absorptance, 0.0..=1.0, "")?;
        unchecked::glazing::arrays::open_slat_direct(
            slat_spacing, slat_width, slat_angle, profile_angle, open_share, struck_absorptance,
            opposite_absorptance,
        )
    }

    /// [`crate::glazing::slat_diffuse`] of whole arrays.
    pub fn slat_diffuse<'a>(
        slat_spacing: impl Into<Input<'a, f32>>, slat_width: impl Into<Input<'a, f32>>,
        slat_angle: impl Into<Input<'a, f32>>, slat_absorptance: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<SlatDiffuse>, Error> {
        let slat_spacing = slat_spacing.into();
        let slat_width = slat_width.into();
        let slat_angle = slat_angle.into();
        let slat_absorptance = slat_absorptance.into();
        check::range("glazing::slat_diffuse", "slat_spacing", &slat_spacing, 0.0..=f32::INFINITY, "m")?;
        check::range("glazing::slat_diffuse", "slat_width", &slat_width, 0.0..=f32::INFINITY, "m")?;
        check::range("glazing::slat_diffuse", "slat_angle", &slat_angle, -90.0..=90.0, "°")?;
        check::range("glazing::slat_diffuse", "slat_absorptance", &slat_absorptance, 0.0..=1.0, "")?;
        unchecked::glazing::arrays::slat_diffuse(slat_spacing, slat_width, slat_angle, slat_absorptance)
    }

    /// [`crate::glazing::two_faced_slat_diffuse`] of whole arrays.
    pub fn two_faced_slat_diffuse<'a>(
        slat_spacing: impl Into<Input<'a, f32>>, slat_width: impl Into<Input<'a, f32>>,
        slat_angle: impl Into<Input<'a, f32>>, struck_absorptance: impl Into<Input<'a, f32>>,
        opposite_absorptance: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<TwoFacedSlatDiffuse>, Error> {
        let slat_spacing = slat_spacing.into();
        let slat_width = slat_width.into();
        let slat_angle = slat_angle.into();
        let struck_absorptance = struck_absorptance.into();
        let opposite_absorptance = opposite_absorptance.into();
        check::range("glazing::two_faced_slat_diffuse", "slat_spacing", &slat_spacing, 0.0..=f32::INFINITY, "m")?;
        check::range("glazing::two_faced_slat_diffuse", "slat_width", &slat_width, 0.0..=f32::INFINITY, "m")?;
        check::range("glazing::two_faced_slat_diffuse", "slat_angle", &slat_angle, -90.0..=90.0, "°")?;
        check::range("glazing::two_faced_slat_diffuse", "struck_absorptance", &struck_absorptance, 0.0..=1.0, "")?;
        check::range(
            "glazing::two_faced_slat_diffuse", "opposite_absorptance", &opposite_absorptance, 0.0..=1.0, "",
        )?;
        unchecked::glazing::arrays::two_faced_slat_diffuse(
            slat_spacing, slat_width, slat_angle, struck_absorptance, opposite_absorptance,
        )
    }

    /// [`crate::glazing::open_slat_diffuse`] of whole arrays.
    pub fn open_slat_diffuse<'a>(
        slat_spacing: impl Into<Input<'a, f32>>, slat_width: impl Into<Input<'a, f32>>,
        slat_angle: impl Into<Input<'a, f32>>, open_share: impl Into<Input<'a, f32>>,
        struck_absorptance: impl Into<Input<'a, f32>>, opposite_absorptance: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<OpenSlatDiffuse>, Error> {
        let slat_spacing = slat_spacing.into();
        let slat_width = slat_width.into();
        let slat_angle = slat_angle.into();
        let open_share = open_share.into();
        let struck_absorptance = struck_absorptance.into();
        let opposite_absorptance = opposite_absorptance.into();
        check::range("glazing::open_slat_diffuse", "slat_spacing", &slat_spacing, 0.0..=f32::INFINITY, "m")?;
        check::range("glazing::open_slat_diffuse", "slat_width", &slat_width, 0.0..=f32::INFINITY, "m")?;
        check::range("glazing::open_slat_diffuse", "slat_angle", &slat_angle, -90.0..=90.0, "°")?;
        check::range("glazing::open_slat_diffuse", "open_share", &open_share, 0.0..=1.0, "")?;
        check::range("glazing::open_slat_diffuse", "struck_absorptance", &struck_absorptance, 0.0..=1.0, "")?;
        check::range("glazing::open_slat_diffuse", "opposite_absorptance", &opposite_absorptance, 0.0..=1.0, "")?;
        unchecked::glazing::arrays::open_slat_diffuse(
            slat_spacing, slat_width, slat_angle, open_share, struck_absorptance, opposite_absorptance,
        )
    }
}
