// Produced from the catalogue of routines (catalogue/); do not edit.

//! Glazing, unchecked.

use crate::glazing::*;
use crate::{check, elements, sys, Error, Input};
use std::ptr::addr_of_mut;

/// [`crate::glazing::glass_direct`] without checks.
pub fn glass_direct(normal_transmittance: f32, normal_reflectance: f32, incidence: f32) -> GlassDirect {
    let mut results = GlassDirect {
        parallel_transmittance: f32::NAN, parallel_absorptance: f32::NAN, parallel_reflectance: f32::NAN,
        perpendicular_transmittance: f32::NAN, perpendicular_absorptance: f32::NAN,
        perpendicular_reflectance: f32::NAN,
    };
    unsafe { sys::WNDRGL(
        &normal_transmittance, &normal_reflectance, &incidence, &mut results.parallel_transmittance,
        &mut results.parallel_absorptance, &mut results.parallel_reflectance,
        &mut results.perpendicular_transmittance, &mut results.perpendicular_absorptance,
        &mut results.perpendicular_reflectance,
    ) };
    results
}

/// [`crate::glazing::glass_diffuse`] without checks.
pub fn glass_diffuse(normal_transmittance: f32, normal_reflectance: f32) -> GlassDiffuse {
    let mut results = GlassDiffuse { transmittance: f32::NAN, absorptance: f32::NAN };
    unsafe { sys::WNDFGL(
        &normal_transmittance, &normal_reflectance, &mut results.transmittance, &mut results.absorptance,
    ) };
    results
}

/// [`crate::glazing::stacked_layers`] without checks.
pub fn stacked_layers(
    layer_transmittances: &[f32], layer_reflectances: &[f32],
) -> Result<StackedLayers, Error> {
    let layers = check::count("glazing::stacked_layers", &[
        ("layer_transmittances", layer_transmittances.len()), ("layer_reflectances", layer_reflectances.len()),
    ])?;
    let mut results = StackedLayers { transmittance: f32::NAN, absorptance: f32::NAN, reflectance: f32::NAN };
    unsafe { sys::WNCOM2(
        &layers, layer_transmittances.as_ptr(), &0.0, layer_reflectances.as_ptr(), &mut results.transmittance,
        &mut results.absorptance, &mut results.reflectance,
    ) };
    Ok(results)
}

/// [`crate::glazing::traced_layers`] without checks.
pub fn traced_layers(
    layer_transmittances: &[f32], layer_absorptances: &[f32], layer_reflectances: &[f32],
) -> Result<TracedLayers, Error> {
    let layers = check::count("glazing::traced_layers", &[
        ("layer_transmittances", layer_transmittances.len()), ("layer_absorptances", layer_absorptances.len()),
        ("layer_reflectances", layer_reflectances.len()),
    ])?;
    let mut results = TracedLayers { transmittance: f32::NAN, absorptance: f32::NAN, reflectance: f32::NAN };
    unsafe { sys::WNCOMP(
        &layers, layer_transmittances.as_ptr(), layer_absorptances.as_ptr(), layer_reflectances.as_ptr(),
        &mut results.transmittance, &mut results.absorptance, &mut results.reflectance,
    ) };
    Ok(results)
}

/// [`crate::glazing::roller_blind`] without checks.
pub fn roller_blind(blind_transmittance: f32, blind_reflectance: f32) -> RollerBlind {
    let mut results = RollerBlind { transmittance: f32::NAN, absorptance: f32::NAN, reflectance: f32::NAN };
    unsafe { sys::WNDRRO(
        &blind_transmittance, &blind_reflectance, &0.0, &mut results.transmittance, &mut results.absorptance,
        &mut results.reflectance,
    ) };
    results
}

/// [`crate::glazing::diffuse_roller_blind`] without checks.
pub fn diffuse_roller_blind(blind_transmittance: f32, blind_reflectance: f32) -> DiffuseRollerBlind {
    let mut results = DiffuseRollerBlind {
        transmittance: f32::NAN, absorptance: f32::NAN, reflectance: f32::NAN,
    };
    unsafe { sys::WNDFRO(
        &blind_transmittance, &blind_reflectance, &mut results.transmittance, &mut results.absorptance,
        &mut results.reflectance,
    ) };
    results
}

/// [`crate::glazing::refraction_angle`] without checks.
pub fn refraction_angle(incidence: f32, refractive_index: f32) -> f32 {
    unsafe { sys::WNRANG(&incidence, &refractive_index) }
}

/// [`crate::glazing::surface_reflectance`] without checks.
pub fn surface_reflectance(
    incidence: f32, refraction_angle: f32, refractive_index: f32,
) -> SurfaceReflectance {
    let mut results = SurfaceReflectance {
        parallel_reflectance: f32::NAN, perpendicular_reflectance: f32::NAN,
    };
    unsafe { sys::WNREFL(
        &incidence, &refraction_angle, &refractive_index, &mut results.parallel_reflectance,
        &mut results.perpendicular_reflectance,
    ) };
    results
}

/// [`crate::glazing::single_pass_absorption`] without checks.
pub fn single_pass_absorption(refraction_angle: f32, absorption_product: f32) -> f32 {
    unsafe { sys::WNABEN(&refraction_angle, &absorption_product, &0.0) }
}

/// [`crate::glazing::slab_optics`] without checks.
pub fn slab_optics(single_pass_absorptance: f32, face_reflectance: f32) -> SlabOptics {
    let mut results = SlabOptics { transmittance: f32::NAN, absorptance: f32::NAN, reflectance: f32::NAN };
    unsafe { sys::WNTAR(
        &single_pass_absorptance, &face_reflectance, &mut results.transmittance, &mut results.absorptance,
        &mut results.reflectance,
    ) };
    results
}

/// [`crate::glazing::absorption_product`] without checks.
pub fn absorption_product(normal_transmittance: f32, refractive_index: f32) -> f32 {
    unsafe { sys::WNKL(&normal_transmittance, &refractive_index) }
}

/// [`crate::glazing::normal_transmittance`] without checks.
pub fn normal_transmittance(absorption_product: f32, normal_reflectance: f32) -> f32 {
    unsafe { sys::WNTNOR(&absorption_product, &normal_reflectance) }
}

/// [`crate::glazing::pane_temperatures`] without checks.
pub fn pane_temperatures(
    inside_temperature: f32, outside_temperature: f32, panes: i32, absorbed_1: f32, absorbed_2: f32,
    absorbed_3: f32, absorbed_4: f32, absorbed_5: f32,
) -> PaneTemperatures {
    let mut results = PaneTemperatures {
        pane_temperature_1: f32::NAN, pane_temperature_2: f32::NAN, pane_temperature_3: f32::NAN,
        pane_temperature_4: f32::NAN, pane_temperature_5: f32::NAN,
    };
    unsafe { sys::WNTEMP(
        &inside_temperature, &outside_temperature, &panes, &absorbed_1, &absorbed_2, &absorbed_3, &absorbed_4,
        &absorbed_5, &mut results.pane_temperature_1, &mut results.pane_temperature_2,
        &mut results.pane_temperature_3, &mut results.pane_temperature_4, &mut results.pane_temperature_5,
    ) };
    results
}

/// [`crate::glazing::unit_direct`] without checks.
pub fn unit_direct(
    shortwave_shading_coefficient: f32, longwave_shading_coefficient: f32, incidence: f32,
) -> UnitDirect {
    let mut results = UnitDirect { transmittance: f32::NAN, absorptance: f32::NAN, reflectance: f32::NAN };
    unsafe { sys::WNDRSC(
        &shortwave_shading_coefficient, &longwave_shading_coefficient, &incidence, &mut results.transmittance,
        &mut results.absorptance, &mut results.reflectance,
    ) };
    results
}

/// [`crate::glazing::unit_diffuse`] without checks.
pub fn unit_diffuse(shortwave_shading_coefficient: f32, longwave_shading_coefficient: f32) -> UnitDiffuse {
    let mut results = UnitDiffuse { transmittance: f32::NAN, absorptance: f32::NAN, reflectance: f32::NAN };
    unsafe { sys::WNDFSC(
        &shortwave_shading_coefficient, &longwave_shading_coefficient, &mut results.transmittance,
        &mut results.absorptance, &mut results.reflectance,
    ) };
    results
}

/// [`crate::glazing::unit_direct_shares`] without checks.
pub fn unit_direct_shares(
    shortwave_shading_coefficient: f32, longwave_shading_coefficient: f32, incidence: f32, panes: i32,
) -> Result<UnitDirectShares, Error> {
    let room_of_panes = check::room("glazing::unit_direct_shares", "panes", panes)?;
    let mut results = UnitDirectShares {
        transmittance: f32::NAN, pane_shares: vec![f32::NAN; room_of_panes], absorptance: f32::NAN,
    };
    unsafe { sys::WNDRSM(
        &shortwave_shading_coefficient, &longwave_shading_coefficient, &incidence, &panes,
        &mut results.transmittance, results.pane_shares.as_mut_ptr(), &mut results.absorptance,
    ) };
    Ok(results)
}

/// [`crate::glazing::unit_diffuse_shares`] without checks.
pub fn unit_diffuse_shares(
    shortwave_shading_coefficient: f32, longwave_shading_coefficient: f32, panes: i32,
) -> Result<UnitDiffuseShares, Error> {
    let room_of_panes = check::room("glazing::unit_diffuse_shares", "panes", panes)?;
    let mut results = UnitDiffuseShares {
        transmittance: f32::NAN, pane_shares: vec![f32::NAN; room_of_panes], absorptance: f32::NAN,
    };
    unsafe { sys::WNDFSM(
        &shortwave_shading_coefficient, &longwave_shading_coefficient, &panes, &mut results.transmittance,
        results.pane_shares.as_mut_ptr(), &mut results.absorptance,
    ) };
    Ok(results)
}

/// [`crate::glazing::unit_shares`] without checks.
pub fn unit_shares(
    radiation: impl Into<i32>, shortwave_shading_coefficient: f32, longwave_shading_coefficient: f32,
    incidence: f32, panes: i32,
) -> Result<UnitShares, Error> {
    let room_of_panes = check::room("glazing::unit_shares", "panes", panes)?;
    let radiation: i32 = radiation.into();
    let mut results = UnitShares {
        transmittance: f32::NAN, pane_shares: vec![f32::NAN; room_of_panes], absorptance: f32::NAN,
    };
    unsafe { sys::WNDRS0(
        &radiation, &shortwave_shading_coefficient, &longwave_shading_coefficient, &incidence, &panes,
        &mut results.transmittance, results.pane_shares.as_mut_ptr(), &mut results.absorptance,
    ) };
    Ok(results)
}

/// [`crate::glazing::slat_direct`] without checks.
pub fn slat_direct(
    slat_spacing: f32, slat_width: f32, slat_angle: f32, profile_angle: f32, slat_absorptance: f32,
) -> SlatDirect {
    let mut results = SlatDirect { transmittance: f32::NAN, absorptance: f32::NAN, reflectance: f32::NAN };
    unsafe { sys::WNDRSL(
        &slat_spacing, &slat_width, &slat_angle, &profile_angle, &slat_absorptance, &mut results.transmittance,
        &mut results.absorptance, &mut results.reflectance,
    ) };
    results
}

/// [`crate::glazing::two_faced_slat_direct`] without checks.
pub fn two_faced_slat_direct(
    slat_spacing: f32, slat_width: f32, slat_angle: f32, profile_angle: f32, struck_absorptance: f32,
    opposite_absorptance: f32,
) -> TwoFacedSlatDirect {
    let mut results = TwoFacedSlatDirect {
        transmittance: f32::NAN, absorptance: f32::NAN, reflectance: f32::NAN,
    };
    unsafe { sys::WNDRS2(
        &slat_spacing, &slat_width, &slat_angle, &profile_angle, &struck_absorptance, &opposite_absorptance,
        &mut results.transmittance, &mut results.absorptance, &mut results.reflectance,
    ) };
    results
}

/// [`crate::glazing::open_slat_direct`] without checks.
pub fn open_slat_direct(
    slat_spacing: f32, slat_width: f32, slat_angle: f32, profile_angle: f32, open_share: f32,
    struck_absorptance: f32, opposite_absorptance: f32,
) -> OpenSlatDirect {
    let mut results = OpenSlatDirect { transmittance: f32::NAN, absorptance: f32::NAN, reflectance: f32::NAN };
    unsafe { sys::WNDRS3(
        &slat_spacing, &slat_width, &slat_angle, &profile_angle, &open_share, &struck_absorptance,
        &opposite_absorptance, &mut results.transmittance, &mut results.absorptance, &mut results.reflectance,
    ) };
    results
}

/// [`crate::glazing::slat_diffuse`] without checks.
pub fn slat_diffuse(
    slat_spacing: f32, slat_width: f32, slat_angle: f32, slat_absorptance: f32,
) -> SlatDiffuse {
    let mut results = SlatDiffuse {
        sky_transmittance: f32::NAN, ground_transmittance: f32::NAN, sky_absorptance: f32::NAN,
        ground_absorptance: f32::NAN,
    };
    unsafe { sys::WNDFSL(
        &slat_spacing, &slat_width, &slat_angle, &slat_absorptance, &mut results.sky_transmittance,
        &mut results.ground_transmittance, &mut results.sky_absorptance, &mut results.ground_absorptance,
    ) };
    results
}

/// [`crate::glazing::two_faced_slat_diffuse`] without checks.
pub fn two_faced_slat_diffuse(
    slat_spacing: f32, slat_width: f32, slat_angle: f32, struck_absorptance: f32, opposite_absorptance: f32,
) -> TwoFacedSlatDiffuse {
    let mut results = TwoFacedSlatDiffuse {
        sky_transmittance: f32::NAN, ground_transmittance: f32::NAN, sky_absorptance: f32::NAN,
        ground_absorptance: f32::NAN,
    };
    unsafe { sys::WNDFS2(
        &slat_spacing, &slat_width, &slat_angle, &struck_absorptance, &opposite_absorptance,
        &mut results.sky_transmittance, &mut results.ground_transmittance, &mut results.sky_absorptance,
        &mut results.ground_absorptance,
    ) };
    results
}

/// [`crate::glazing::open_slat_diffuse`] without checks.
pub fn open_slat_diffuse(
    slat_spacing: f32, slat_width: f32, slat_angle: f32, open_share: f32, struck_absorptance: f32,
    opposite_absorptance: f32,
) -> OpenSlatDiffuse {
    let mut results = OpenSlatDiffuse {
        sky_transmittance: f32::NAN, ground_transmittance: f32::NAN, sky_absorptance: f32::NAN,
        ground_absorptance: f32::NAN,
    };
    unsafe { sys::WNDFS3(
        &slat_spacing, &slat_width, &slat_angle, &open_share, &struck_absorptance, &opposite_absorptance,
        &mut results.sky_transmittance, &mut results.ground_transmittance, &mut results.sky_absorptance,
        &mut results.ground_absorptance,
    ) };
    results
}

/// Functions of whole arrays.
pub mod arrays {
    use super::*;

    /// [`crate::glazing::glass_direct`] of whole arrays, without checks.
    pub fn glass_direct<'a>(
        normal_transmittance: impl Into<Input<'a, f32>>, normal_reflectance: impl Into<Input<'a, f32>>,
        incidence: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<GlassDirect>, Error> {
        let normal_transmittance = normal_transmittance.into();
        let normal_reflectance = normal_reflectance.into();
        let incidence = incidence.into();
        let lengths = [
            normal_transmittance.length("normal_transmittance"), normal_reflectance.length("normal_reflectance"),
            incidence.length("incidence"),
        ];
        let mut results = elements::results::<GlassDirect>("glazing::glass_direct", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_glass_direct(
            count, normal_transmittance.first(), normal_transmittance.stride(),
            normal_reflectance.first(), normal_reflectance.stride(), incidence.first(), incidence.stride(),
            addr_of_mut!((*at).parallel_transmittance), stride, addr_of_mut!((*at).parallel_absorptance), stride,
            addr_of_mut!((*at).parallel_reflectance), stride,
            addr_of_mut!((*at).perpendicular_transmittance), stride,
            addr_of_mut!((*at).perpendicular_absorptance), stride,
            addr_of_mut!((*at).perpendicular_reflectance), stride,
        ) });
        Ok(results)
    }

    /// [`crate::glazing::glass_diffuse`] of whole arrays, without checks.
    pub fn glass_diffuse<'a>(
        normal_transmittance: impl Into<Input<'a, f32>>, normal_reflectance: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<GlassDiffuse>, Error> {
        let normal_transmittance = normal_transmittance.into();
        let normal_reflectance = normal_reflectance.into();
        let lengths = [
            normal_transmittance.length("normal_transmittance"), normal_reflectance.length("normal_reflectance"),
        ];
        let mut results = elements::results::<GlassDiffuse>("glazing::glass_diffuse", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_glass_diffuse(
            count, normal_transmittance.first(), normal_transmittance.stride(),
            normal_reflectance.first(), normal_reflectance.stride(), addr_of_mut!((*at).transmittance), stride,
            addr_of_mut!((*at).absorptance), stride,
        ) });
        Ok(results)
    }

    /// [`crate::glazing::roller_blind`] of whole arrays, without checks.
    pub fn roller_blind<'a>(
        blind_transmittance: impl Into<Input<'a, f32>>, blind_reflectance: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<RollerBlind>, Error> {
        let blind_transmittance = blind_transmittance.into();
        let blind_reflectance = blind_reflectance.into();
        let lengths = [
            blind_transmittance.length("blind_transmittance"), blind_reflectance.length("blind_reflectance"),
        ];
        let mut results = elements::results::<RollerBlind>("glazing::roller_blind", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_roller_blind(
            count, blind_transmittance.first(), blind_transmittance.stride(),
            blind_reflectance.first(), blind_reflectance.stride(), addr_of_mut!((*at).transmittance), stride,
            addr_of_mut!((*at).absorptance), stride, addr_of_mut!((*at).reflectance), stride,
        ) });
        Ok(results)
    }

    /// [`crate::glazing::diffuse_roller_blind`] of whole arrays, without checks.
    pub fn diffuse_roller_blind<'a>(
        blind_transmittance: impl Into<Input<'a, f32>>, blind_reflectance: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<DiffuseRollerBlind>, Error> {
        let blind_transmittance = blind_transmittance.into();
        let blind_reflectance = blind_reflectance.into();
        let lengths = [
            blind_transmittance.length("blind_transmittance"), blind_reflectance.length("blind_reflectance"),
        ];
        let mut results = elements::results::<DiffuseRollerBlind>("glazing::diffuse_roller_blind", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_diffuse_roller_blind(
            count, blind_transmittance.first(), blind_transmittance.stride(),
            blind_reflectance.first(), blind_reflectance.stride(), addr_of_mut!((*at).transmittance), stride,
            addr_of_mut!((*at).absorptance), stride, addr_of_mut!((*at).reflectance), stride,
        ) });
        Ok(results)
    }

    /// [`crate::glazing::refraction_angle`] of whole arrays, without checks.
    pub fn refraction_angle<'a>(
        incidence: impl Into<Input<'a, f32>>, refractive_index: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let incidence = incidence.into();
        let refractive_index = refractive_index.into();
        let lengths = [incidence.length("incidence"), refractive_index.length("refractive_index")];
        let mut results = elements::results::<f32>("glazing::refraction_angle", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_refraction_angle(
            count, incidence.first(), incidence.stride(), refractive_index.first(), refractive_index.stride(),
            at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::glazing::surface_reflectance`] of whole arrays, without checks.
    pub fn surface_reflectance<'a>(
        incidence: impl Into<Input<'a, f32>>, refraction_angle: impl Into<Input<'a, f32>>,
        refractive_index: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<SurfaceReflectance>, Error> {
        let incidence = incidence.into();
        let refraction_angle = refraction_angle.into();
        let refractive_index = refractive_index.into();
        let lengths = [
            incidence.length("incidence"), refraction_angle.length("refraction_angle"),
            refractive_index.length("refractive_index"),
        ];
        let mut results = elements::results::<SurfaceReflectance>("glazing::surface_reflectance", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_surface_reflectance(
            count, incidence.first(), incidence.stride(), refraction_angle.first(), refraction_angle.stride(),
            refractive_index.first(), refractive_index.stride(), addr_of_mut!((*at).parallel_reflectance), stride,
            addr_of_mut!((*at).perpendicular_reflectance), stride,
        ) });
        Ok(results)
    }

    /// [`crate::glazing::single_pass_absorption`] of whole arrays, without checks.
    pub fn single_pass_absorption<'a>(
        refraction_angle: impl Into<Input<'a, f32>>, absorption_product: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let refraction_angle = refraction_angle.into();
        let absorption_product = absorption_product.into();
        let lengths = [
            refraction_angle.length("refraction_angle"), absorption_product.length("absorption_product"),
        ];
        let mut results = elements::results::<f32>("glazing::single_pass_absorption", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_single_pass_absorption(
            count, refraction_angle.first(), refraction_angle.stride(),
            absorption_product.first(), absorption_product.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::glazing::slab_optics`] of whole arrays, without checks.
    pub fn slab_optics<'a>(
        single_pass_absorptance: impl Into<Input<'a, f32>>, face_reflectance: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<SlabOptics>, Error> {
        let single_pass_absorptance = single_pass_absorptance.into();
        let face_reflectance = face_reflectance.into();
        let lengths = [
            single_pass_absorptance.length("single_pass_absorptance"), face_reflectance.length("face_reflectance"),
        ];
        let mut results = elements::results::<SlabOptics>("glazing::slab_optics", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_slab_optics(
            count, single_pass_absorptance.first(), single_pass_absorptance.stride(),
            face_reflectance.first(), face_reflectance.stride(), addr_of_mut!((*at).transmittance), stride,
            addr_of_mut!((*at).absorptance), stride, addr_of_mut!((*at).reflectance), stride,
        ) });
        Ok(results)
    }

    /// [`crate::glazing::absorption_product`] of whole arrays, without checks.
    pub fn absorption_product<'a>(
        normal_transmittance: impl Into<Input<'a, f32>>, refractive_index: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let normal_transmittance = normal_transmittance.into();
        let refractive_index = refractive_index.into();
        let lengths = [
            normal_transmittance.length("normal_transmittance"), refractive_index.length("refractive_index"),
        ];
        let mut results = elements::results::<f32>("glazing::absorption_product", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_absorption_product(
            count, normal_transmittance.first(), normal_transmittance.stride(),
            refractive_index.first(), refractive_index.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::glazing::normal_transmittance`] of whole arrays, without checks.
    pub fn normal_transmittance<'a>(
        absorption_product: impl Into<Input<'a, f32>>, normal_reflectance: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let absorption_product = absorption_product.into();
        let normal_reflectance = normal_reflectance.into();
        let lengths = [
            absorption_product.length("absorption_product"), normal_reflectance.length("normal_reflectance"),
        ];
        let mut results = elements::results::<f32>("glazing::normal_transmittance", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_normal_transmittance(
            count, absorption_product.first(), absorption_product.stride(),
            normal_reflectance.first(), normal_reflectance.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::glazing::pane_temperatures`] of whole arrays, without checks.
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
        let lengths = [
            inside_temperature.length("inside_temperature"), outside_temperature.length("outside_temperature"),
            panes.length("panes"), absorbed_1.length("absorbed_1"), absorbed_2.length("absorbed_2"),
            absorbed_3.length("absorbed_3"), absorbed_4.length("absorbed_4"), absorbed_5.length("absorbed_5"),
        ];
        let mut results = elements::results::<PaneTemperatures>("glazing::pane_temperatures", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_pane_temperatures(
            count, inside_temperature.first(), inside_temperature.stride(),
            outside_temperature.first(), outside_temperature.stride(), panes.first(), panes.stride(),
            absorbed_1.first(), absorbed_1.stride(), absorbed_2.first(), absorbed_2.stride(),
            absorbed_3.first(), absorbed_3.stride(), absorbed_4.first(), absorbed_4.stride(),
            absorbed_5.first(), absorbed_5.stride(), addr_of_mut!((*at).pane_temperature_1), stride,
            addr_of_mut!((*at).pane_temperature_2), stride, addr_of_mut!((*at).pane_temperature_3), stride,
            addr_of_mut!((*at).pane_temperature_4), stride, addr_of_mut!((*at).pane_temperature_5), stride,
        ) });
        Ok(results)
    }

    /// [`crate::glazing::unit_direct`] of whole arrays, without checks.
    pub fn unit_direct<'a>(
        shortwave_shading_coefficient: impl Into<Input<'a, f32>>,
        longwave_shading_coefficient: impl Into<Input<'a, f32>>, incidence: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<UnitDirect>, Error> {
        let shortwave_shading_coefficient = shortwave_shading_coefficient.into();
        let longwave_shading_coefficient = longwave_shading_coefficient.into();
        let incidence = incidence.into();
        let lengths = [
            shortwave_shading_coefficient.length("shortwave_shading_coefficient"),
            longwave_shading_coefficient.length("longwave_shading_coefficient"), incidence.length("incidence"),
        ];
        let mut results = elements::results::<UnitDirect>("glazing::unit_direct", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_unit_direct(
            count, shortwave_shading_coefficient.first(), shortwave_shading_coefficient.stride(),
            longwave_shading_coefficient.first(), longwave_shading_coefficient.stride(),
            incidence.first(), incidence.stride(), addr_of_mut!((*at).transmittance), stride,
            addr_of_mut!((*at).absorptance), stride, addr_of_mut!((*at).reflectance), stride,
        ) });
        Ok(results)
    }

    /// [`crate::glazing::unit_diffuse`] of whole arrays, without checks.
    pub fn unit_diffuse<'a>(
        shortwave_shading_coefficient: impl Into<Input<'a, f32>>,
        longwave_shading_coefficient: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<UnitDiffuse>, Error> {
        let shortwave_shading_coefficient = shortwave_shading_coefficient.into();
        let longwave_shading_coefficient = longwave_shading_coefficient.into();
        let lengths = [
            shortwave_shading_coefficient.length("shortwave_shading_coefficient"),
            longwave_shading_coefficient.length("longwave_shading_coefficient"),
        ];
        let mut results = elements::results::<UnitDiffuse>("glazing::unit_diffuse", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_unit_diffuse(
            count, shortwave_shading_coefficient.first(), shortwave_shading_coefficient.stride(),
            longwave_shading_coefficient.first(), longwave_shading_coefficient.stride(),
            addr_of_mut!((*at).transmittance), stride, addr_of_mut!((*at).absorptance), stride,
            addr_of_mut!((*at).reflectance), stride,
        ) });
        Ok(results)
    }

    /// [`crate::glazing::slat_direct`] of whole arrays, without checks.
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
        let lengths = [
            slat_spacing.length("slat_spacing"), slat_width.length("slat_width"), slat_angle.length("slat_angle"),
            profile_angle.length("profile_angle"), slat_absorptance.length("slat_absorptance"),
        ];
        let mut results = elements::results::<SlatDirect>("glazing::slat_direct", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_slat_direct(
            count, slat_spacing.first(), slat_spacing.stride(), slat_width.first(), slat_width.stride(),
            slat_angle.first(), slat_angle.stride(), profile_angle.first(), profile_angle.stride(),
            slat_absorptance.first(), slat_absorptance.stride(), addr_of_mut!((*at).transmittance), stride,
            addr_of_mut!((*at).absorptance), stride, addr_of_mut!((*at).reflectance), stride,
        ) });
        Ok(results)
    }

    /// [`crate::glazing::two_faced_slat_direct`] of whole arrays, without checks.
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
        let lengths = [
            slat_spacing.length("slat_spacing"), slat_width.length("slat_width"), slat_angle.length("slat_angle"),
            profile_angle.length("profile_angle"), struck_absorptance.length("struck_absorptance"),
            opposite_absorptance.length("opposite_absorptance"),
        ];
        let mut results = elements::results::<TwoFacedSlatDirect>("glazing::two_faced_slat_direct", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_two_faced_slat_direct(
            count, slat_spacing.first(), slat_spacing.stride(), slat_width.first(), slat_width.stride(),
            slat_angle.first(), slat_angle.stride(), profile_angle.first(), profile_angle.stride(),
            struck_absorptance.first(), struck_absorptance.stride(),
            opposite_absorptance.first(), opposite_absorptance.stride(), addr_of_mut!((*at).transmittance), stride,
            addr_of_mut!((*at).absorptance), stride, addr_of_mut!((*at).reflectance), stride,
        ) });
        Ok(results)
    }

    /// [`crate::glazing::open_slat_direct`] of whole arrays, without checks.
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
        let lengths = [
            slat_spacing.length("slat_spacing"), slat_width.length("slat_width"), slat_angle.length("slat_angle"),
            profile_angle.length("profile_angle"), open_share.length("open_share"),
            struck_absorptance.length("struck_absorptance"), opposite_absorptance.length("opposite_absorptance"),
        ];
        let mut results = elements::results::<OpenSlatDirect>("glazing::open_slat_direct", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_open_slat_direct(
            count, slat_spacing.first(), slat_spacing.stride(), slat_width.first(), slat_width.stride(),
            slat_angle.first(), slat_angle.stride(), profile_angle.first(), profile_angle.stride(),
            open_share.first(), open_share.stride(), struck_absorptance.first(), struck_absorptance.stride(),
            opposite_absorptance.first(), opposite_absorptance.stride(), addr_of_mut!((*at).transmittance), stride,
            addr_of_mut!((*at).absorptance), stride, addr_of_mut!((*at).reflectance), stride,
        ) });
        Ok(results)
    }

    /// [`crate::glazing::slat_diffuse`] of whole arrays, without checks.
    pub fn slat_diffuse<'a>(
        slat_spacing: impl Into<Input<'a, f32>>, slat_width: impl Into<Input<'a, f32>>,
        slat_angle: impl Into<Input<'a, f32>>, slat_absorptance: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<SlatDiffuse>, Error> {
        let slat_spacing = slat_spacing.into();
        let slat_width = slat_width.into();
        let slat_angle = slat_angle.into();
        let slat_absorptance = slat_absorptance.into();
        let lengths = [
            slat_spacing.length("slat_spacing"), slat_width.length("slat_width"), slat_angle.length("slat_angle"),
            slat_absorptance.length("slat_absorptance"),
        ];
        let mut results = elements::results::<SlatDiffuse>("glazing::slat_diffuse", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_slat_diffuse(
            count, slat_spacing.first(), slat_spacing.stride(), slat_width.first(), slat_width.stride(),
            slat_angle.first(), slat_angle.stride(), slat_absorptance.first(), slat_absorptance.stride(),
            addr_of_mut!((*at).sky_transmittance), stride, addr_of_mut!((*at).ground_transmittance), stride,
            addr_of_mut!((*at).sky_absorptance), stride, addr_of_mut!((*at).ground_absorptance), stride,
        ) });
        Ok(results)
    }

    /// [`crate::glazing::two_faced_slat_diffuse`] of whole arrays, without checks.
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
        let lengths = [
            slat_spacing.length("slat_spacing"), slat_width.length("slat_width"), slat_angle.length("slat_angle"),
            struck_absorptance.length("struck_absorptance"), opposite_absorptance.length("opposite_absorptance"),
        ];
        let mut results = elements::results::<TwoFacedSlatDiffuse>("glazing::two_faced_slat_diffuse", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_two_faced_slat_diffuse(
            count, slat_spacing.first(), slat_spacing.stride(), slat_width.first(), slat_width.stride(),
            slat_angle.first(), slat_angle.stride(), struck_absorptance.first(), struck_absorptance.stride(),
            opposite_absorptance.first(), opposite_absorptance.stride(),
            addr_of_mut!((*at).sky_transmittance), stride, addr_of_mut!((*at).ground_transmittance), stride,
            addr_of_mut!((*at).sky_absorptance), stride, addr_of_mut!((*at).ground_absorptance), stride,
        ) });
        Ok(results)
    }

    /// [`crate::glazing::open_slat_diffuse`] of whole arrays, without checks.
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
        let lengths = [
            slat_spacing.length("slat_spacing"), slat_width.length("slat_width"), slat_angle.length("slat_angle"),
            open_share.length("open_share"), struck_absorptance.length("struck_absorptance"),
            opposite_absorptance.length("opposite_absorptance"),
        ];
        let mut results = elements::results::<OpenSlatDiffuse>("glazing::open_slat_diffuse", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_open_slat_diffuse(
            count, slat_spacing.first(), slat_spacing.stride(), slat_width.first(), slat_width.stride(),
            slat_angle.first(), slat_angle.stride(), open_share.first(), open_share.stride(),
            struck_absorptance.first(), struck_absorptance.stride(),
            opposite_absorptance.first(), opposite_absorptance.stride(),
            addr_of_mut!((*at).sky_transmittance), stride, addr_of_mut!((*at).ground_transmittance), stride,
            addr_of_mut!((*at).sky_absorptance), stride, addr_of_mut!((*at).ground_absorptance), stride,
        ) });
        Ok(results)
    }
}
