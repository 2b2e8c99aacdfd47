// Produced from the catalogue of routines (catalogue/); do not edit.

//! Calendar, sun and sky, unchecked.

use crate::climate::*;
use crate::{check, elements, sys, Error, Input};
use std::path::Path;
use std::ptr::addr_of_mut;

/// [`crate::climate::locate_band`] without checks.
pub fn locate_band(fraction: f32, month: i32, frequencies: &[[f32; 12]; 10]) -> LocateBand {
    let mut results = LocateBand { lower_band: 0, upper_band: 0, band_weight: f32::NAN };
    unsafe { sys::CLBAN1(
        &fraction, &month, frequencies.as_ptr().cast(), &mut results.lower_band, &mut results.upper_band,
        &mut results.band_weight,
    ) };
    results
}

/// [`crate::climate::band_climate`] without checks.
pub fn band_climate(band: i32, month: i32, band_set: impl Into<i32>, percentage: f32) -> BandClimate {
    let band_set: i32 = band_set.into();
    let mut results = BandClimate {
        percentage, q1: f32::NAN, q2: f32::NAN, q3: f32::NAN, q4: f32::NAN, q5: f32::NAN, q6: f32::NAN,
        time_a: f32::NAN, time_b: f32::NAN, q7: f32::NAN, q8: f32::NAN,
    };
    unsafe { sys::CLBAND(
        &band, &month, &band_set, &mut results.percentage, &mut results.q1, &mut results.q2, &mut results.q3,
        &mut results.q4, &mut results.q5, &mut results.q6, &mut results.time_a, &mut results.time_b,
        &mut results.q7, &mut results.q8,
    ) };
    results
}

/// [`crate::climate::interpolate_band_rows`] without checks.
pub fn interpolate_band_rows(
    base_row: i32, lower_band: i32, upper_band: i32, month: i32, band_weight: f32,
) -> f32 {
    let mut result = f32::NAN;
    unsafe { sys::CLBAN2(&base_row, &lower_band, &upper_band, &month, &band_weight, &mut result) };
    result
}

/// [`crate::climate::band_row`] without checks.
pub fn band_row(row: i32) -> [f32; 12] {
    let mut result = [f32::NAN; 12];
    unsafe { sys::CLBAN3(&row, result.as_mut_ptr()) };
    result
}

/// [`crate::climate::store_design_day`] without checks.
pub fn store_design_day(month: i32) -> i32 {
    let mut result = 0;
    unsafe { sys::CLDAY(&month, &mut result) };
    result
}

/// [`crate::climate::store_design_day_by_option`] without checks.
pub fn store_design_day_by_option(month: i32, day_kind: impl Into<i32>) -> i32 {
    let day_kind: i32 = day_kind.into();
    let mut result = 0;
    unsafe { sys::CLDAYEX(&month, &mut result, &day_kind) };
    result
}

/// [`crate::climate::design_day`] without checks.
pub fn design_day(month: i32) -> i32 {
    unsafe { sys::ICLDAY(&month) }
}

/// [`crate::climate::design_day_by_option`] without checks.
pub fn design_day_by_option(month: i32, day_kind: impl Into<i32>) -> i32 {
    let day_kind: i32 = day_kind.into();
    unsafe { sys::ICLDAYEX(&month, &day_kind) }
}

/// [`crate::climate::second_design_day`] without checks.
pub fn second_design_day(month: i32) -> i32 {
    unsafe { sys::ICLDA2(&month) }
}

/// [`crate::climate::second_design_day_by_option`] without checks.
pub fn second_design_day_by_option(month: i32, day_kind: impl Into<i32>) -> i32 {
    let day_kind: i32 = day_kind.into();
    unsafe { sys::ICLDA2EX(&month, &day_kind) }
}

/// [`crate::climate::station_records`] without checks.
pub fn station_records(
    file_name: impl AsRef<Path>, station: i32, month: i32, station_records: &[[f32; 11]; 12],
) -> Result<[[f32; 11]; 12], Error> {
    let file_name = check::text("climate::station_records", "file_name", file_name.as_ref())?;
    let mut result = *station_records;
    unsafe { sys::CLBNF0(file_name.as_ptr(), &station, &month, result.as_mut_ptr().cast()) };
    Ok(result)
}

/// [`crate::climate::station_climate`] without checks.
pub fn station_climate(
    file_unit: impl Into<i32>, station: i32, band: i32, month: i32, band_set: impl Into<i32>,
    percentage: f32,
) -> StationClimate {
    let file_unit: i32 = file_unit.into();
    let band_set: i32 = band_set.into();
    let mut results = StationClimate {
        q1: f32::NAN, q2: f32::NAN, q3: f32::NAN, q4: f32::NAN, q5: f32::NAN, q6: f32::NAN, q7: f32::NAN,
        time_a: f32::NAN, time_b: f32::NAN,
    };
    unsafe { sys::CLBNFI(
        &file_unit, &station, &band, &month, &band_set, &percentage, &mut results.q1, &mut results.q2,
        &mut results.q3, &mut results.q4, &mut results.q5, &mut results.q6, &mut results.q7,
        &mut results.time_a, &mut results.time_b,
    ) };
    results
}

/// [`crate::climate::locate_station_band`] without checks.
pub fn locate_station_band(fraction: f32, month: i32) -> LocateStationBand {
    let mut results = LocateStationBand { lower_band: 0, upper_band: 0, band_weight: f32::NAN };
    unsafe { sys::CLBNF1(
        &fraction, &month, &mut results.lower_band, &mut results.upper_band, &mut results.band_weight,
    ) };
    results
}

/// [`crate::climate::interpolate_station_rows`] without checks.
pub fn interpolate_station_rows(
    base_row: i32, lower_band: i32, upper_band: i32, month: i32, band_weight: f32,
) -> f32 {
    let mut result = f32::NAN;
    unsafe { sys::CLBNF2(&base_row, &lower_band, &upper_band, &month, &band_weight, &mut result) };
    result
}

/// [`crate::climate::station_row`] without checks.
pub fn station_row(row: i32) -> [f32; 12] {
    let mut result = [f32::NAN; 12];
    unsafe { sys::CLBNF3(&row, result.as_mut_ptr()) };
    result
}

/// [`crate::climate::daily_temperature`] without checks.
pub fn daily_temperature(
    hour: f32, highest_temperature: f32, lowest_temperature: f32, hour_of_highest: f32, hour_of_lowest: f32,
) -> f32 {
    unsafe { sys::CLTAO(&hour, &highest_temperature, &lowest_temperature, &hour_of_highest, &hour_of_lowest) }
}

/// [`crate::climate::daily_value`] without checks.
pub fn daily_value(
    hour: f32, mean: f32, amplitude: f32, first_hour: f32, second_hour: f32, amplitude_factor: f32,
) -> f32 {
    unsafe { sys::CLTAOX(&hour, &mean, &amplitude, &first_hour, &second_hour, &amplitude_factor) }
}

/// [`crate::climate::design_irradiance`] without checks.
pub fn design_irradiance(
    solar_altitude: f32, site_height: f32, sky_kind: impl Into<i32>,
) -> DesignIrradiance {
    let sky_kind: i32 = sky_kind.into();
    let mut results = DesignIrradiance { direct_normal: f32::NAN, diffuse_horizontal: f32::NAN };
    unsafe { sys::CLSNNR(
        &solar_altitude, &0.0, &site_height, &sky_kind, &mut results.direct_normal,
        &mut results.diffuse_horizontal,
    ) };
    results
}

/// [`crate::climate::height_factor`] without checks.
pub fn height_factor(site_height: f32, solar_altitude: f32) -> f32 {
    unsafe { sys::CLHIGH(&site_height, &solar_altitude) }
}

/// [`crate::climate::eccentricity_factor`] without checks.
pub fn eccentricity_factor(day: i32) -> f32 {
    unsafe { sys::CLETAJ(&day) }
}

/// [`crate::climate::clearness_index`] without checks.
pub fn clearness_index(day: i32, solar_altitude: f32, global_horizontal: f32) -> f32 {
    unsafe { sys::CLMODUL(&day, &solar_altitude, &global_horizontal) }
}

/// [`crate::climate::muneer_slope`] without checks.
pub fn muneer_slope(
    solar_altitude: f32, solar_azimuth: f32, surface_azimuth: f32, tilt: f32, beam_horizontal: f32,
    diffuse_horizontal: f32, extraterrestrial_horizontal: f32, ground_reflectance: f32,
) -> MuneerSlope {
    let mut results = MuneerSlope {
        surface_beam: f32::NAN, surface_diffuse: f32::NAN, ground_reflected: f32::NAN, incidence: f32::NAN,
    };
    unsafe { sys::CLMUNRAD(
        &solar_altitude, &solar_azimuth, &surface_azimuth, &tilt, &beam_horizontal, &diffuse_horizontal,
        &extraterrestrial_horizontal, &ground_reflectance, &mut results.surface_beam,
        &mut results.surface_diffuse, &mut results.ground_reflected, &mut results.incidence,
    ) };
    results
}

/// [`crate::climate::perez_diffuse`] without checks.
pub fn perez_diffuse(
    solar_altitude: f32, tilt: f32, beam_horizontal: f32, diffuse_horizontal: f32, incidence: f32,
    extraterrestrial_normal: f32,
) -> f32 {
    let mut result = f32::NAN;
    unsafe { sys::CLPERSKY(
        &solar_altitude, &tilt, &beam_horizontal, &diffuse_horizontal, &mut result, &incidence,
        &extraterrestrial_normal,
    ) };
    result
}

/// [`crate::climate::site_constants`] without checks.
pub fn site_constants(site_class: i32, month: i32) -> SiteConstants {
    let mut results = SiteConstants {
        ground_reflectance: f32::NAN, beam_factor: f32::NAN, diffuse_factor: f32::NAN,
        alternative_diffuse_factor: f32::NAN,
    };
    unsafe { sys::CLCONS(
        &site_class, &month, &mut results.ground_reflectance, &mut results.beam_factor,
        &mut results.diffuse_factor, &mut results.alternative_diffuse_factor,
    ) };
    results
}

/// [`crate::climate::diffuse_tilt_factor`] without checks.
pub fn diffuse_tilt_factor(
    day: i32, solar_altitude: f32, beam_horizontal: f32, tilt: f32, sky_model: impl Into<i32>,
) -> f32 {
    let sky_model: i32 = sky_model.into();
    unsafe { sys::CLDIFRAD(&day, &solar_altitude, &beam_horizontal, &0.0, &tilt, &sky_model) }
}

/// [`crate::climate::slope_diffuse`] without checks.
pub fn slope_diffuse(
    day: i32, solar_altitude: f32, solar_azimuth: f32, surface_azimuth: f32, tilt: f32,
    beam_horizontal: f32, diffuse_horizontal: f32, sky_model: impl Into<i32>,
) -> f32 {
    let sky_model: i32 = sky_model.into();
    unsafe { sys::CLDIFSLO(
        &day, &solar_altitude, &solar_azimuth, &surface_azimuth, &tilt, &beam_horizontal, &diffuse_horizontal,
        &sky_model,
    ) }
}

/// [`crate::climate::sol_air_temperature`] without checks.
pub fn sol_air_temperature(
    base_temperature: f32, surface_coefficient: f32, absorptance: f32, irradiance: f32, long_wave_loss: f32,
) -> f32 {
    unsafe { sys::CLTEO(
        &base_temperature, &surface_coefficient, &absorptance, &0.0, &0.0, &irradiance, &long_wave_loss,
    ) }
}

/// [`crate::climate::long_wave_loss`] without checks.
pub fn long_wave_loss(tilt: f32, cloud_cover: f32) -> f32 {
    unsafe { sys::CLRERD(&tilt, &cloud_cover) }
}

/// [`crate::climate::solar_time_correction`] without checks.
pub fn solar_time_correction(clock_offset: f32, day: i32, longitude: f32, reference_longitude: f32) -> f32 {
    unsafe { sys::CLTCOR(&clock_offset, &day, &longitude, &reference_longitude) }
}

/// [`crate::climate::almanac_position`] without checks.
pub fn almanac_position(
    time_kind: impl Into<i32>, year: i32, month: i32, day_of_month: i32, clock_time: f32, latitude: f32,
    longitude: f32, zone_meridian: f32,
) -> AlmanacPosition {
    let time_kind: i32 = time_kind.into();
    let mut results = AlmanacPosition {
        longitude, zone_meridian, solar_altitude: f32::NAN, solar_azimuth: f32::NAN, declination: f32::NAN,
    };
    unsafe { sys::CLYALLOP(
        &time_kind, &year, &month, &day_of_month, &clock_time, &latitude, &mut results.longitude,
        &mut results.zone_meridian, &mut results.solar_altitude, &mut results.solar_azimuth,
        &mut results.declination,
    ) };
    results
}

/// [`crate::climate::almanac_sun_hours`] without checks.
pub fn almanac_sun_hours(year: i32, month: i32, day_of_month: i32, latitude: f32) -> AlmanacSunHours {
    let mut results = AlmanacSunHours { sunrise: f32::NAN, sunset: f32::NAN };
    unsafe { sys::CLRISESET(
        &year, &month, &day_of_month, &latitude, &mut results.sunrise, &mut results.sunset,
    ) };
    results
}

/// [`crate::climate::solar_geometry`] without checks.
pub fn solar_geometry(latitude: f32, day: i32, solar_time: f32) -> SolarGeometry {
    let mut results = SolarGeometry {
        declination: f32::NAN, solar_altitude: f32::NAN, solar_azimuth: f32::NAN, sunrise: f32::NAN,
        sunset: f32::NAN,
    };
    unsafe { sys::CLSNGE(
        &latitude, &day, &solar_time, &mut results.declination, &mut results.solar_altitude,
        &mut results.solar_azimuth, &mut results.sunrise, &mut results.sunset,
    ) };
    results
}

/// [`crate::climate::surface_angles`] without checks.
pub fn surface_angles(
    solar_altitude: f32, solar_azimuth: f32, surface_azimuth: f32, tilt: f32,
) -> SurfaceAngles {
    let mut results = SurfaceAngles {
        incidence: f32::NAN, vertical_shadow_angle: f32::NAN, horizontal_shadow_angle: f32::NAN,
    };
    unsafe { sys::CLSNSR(
        &solar_altitude, &solar_azimuth, &surface_azimuth, &tilt, &mut results.incidence,
        &mut results.vertical_shadow_angle, &mut results.horizontal_shadow_angle,
    ) };
    results
}

/// [`crate::climate::surface_irradiance`] without checks.
pub fn surface_irradiance(
    solar_altitude: f32, solar_azimuth: f32, surface_azimuth: f32, tilt: f32, direct_normal: f32,
    diffuse_horizontal: f32, ground_reflectance: f32, beam_factor: f32, diffuse_factor: f32,
) -> SurfaceIrradiance {
    let mut results = SurfaceIrradiance {
        surface_beam: f32::NAN, surface_diffuse: f32::NAN, ground_reflected: f32::NAN,
    };
    unsafe { sys::CLSORD(
        &solar_altitude, &solar_azimuth, &surface_azimuth, &tilt, &direct_normal, &diffuse_horizontal,
        &ground_reflectance, &beam_factor, &diffuse_factor, &mut results.surface_beam,
        &mut results.surface_diffuse, &mut results.ground_reflected,
    ) };
    results
}

/// [`crate::climate::surface_irradiance_and_incidence`] without checks.
pub fn surface_irradiance_and_incidence(
    solar_altitude: f32, solar_azimuth: f32, surface_azimuth: f32, tilt: f32, direct_normal: f32,
    diffuse_horizontal: f32, ground_reflectance: f32, beam_factor: f32, diffuse_factor: f32,
) -> SurfaceIrradianceAndIncidence {
    let mut results = SurfaceIrradianceAndIncidence {
        surface_beam: f32::NAN, surface_diffuse: f32::NAN, ground_reflected: f32::NAN, incidence: f32::NAN,
    };
    unsafe { sys::CLSOR2(
        &solar_altitude, &solar_azimuth, &surface_azimuth, &tilt, &direct_normal, &diffuse_horizontal,
        &ground_reflectance, &beam_factor, &diffuse_factor, &mut results.surface_beam,
        &mut results.surface_diffuse, &mut results.ground_reflected, &mut results.incidence,
    ) };
    results
}

/// Functions of whole arrays.
pub mod arrays {
    use super::*;

    /// [`crate::climate::locate_band`] of whole arrays, without checks.
    pub fn locate_band<'a>(
        fraction: impl Into<Input<'a, f32>>, month: impl Into<Input<'a, i32>>,
        frequencies: impl Into<Input<'a, [[f32; 12]; 10]>>,
    ) -> Result<Vec<LocateBand>, Error> {
        let fraction = fraction.into();
        let month = month.into();
        let frequencies = frequencies.into();
        let lengths = [fraction.length("fraction"), month.length("month"), frequencies.length("frequencies")];
        let mut results = elements::results::<LocateBand>("climate::locate_band", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_locate_band(
            count, fraction.first(), fraction.stride(), month.first(), month.stride(),
            frequencies.first().cast(), frequencies.stride(), addr_of_mut!((*at).lower_band), stride,
            addr_of_mut!((*at).upper_band), stride, addr_of_mut!((*at).band_weight), stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::band_climate`] of whole arrays, without checks.
    pub fn band_climate<'a>(
        band: impl Into<Input<'a, i32>>, month: impl Into<Input<'a, i32>>, band_set: impl Into<Input<'a, i32>>,
        percentage: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<BandClimate>, Error> {
        let band = band.into();
        let month = month.into();
        let band_set = band_set.into();
        let percentage = percentage.into();
        let lengths = [
            band.length("band"), month.length("month"), band_set.length("band_set"),
            percentage.length("percentage"),
        ];
        let mut results = elements::results::<BandClimate>("climate::band_climate", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_band_climate(
            count, band.first(), band.stride(), month.first(), month.stride(), band_set.first(), band_set.stride(),
            percentage.first(), percentage.stride(), addr_of_mut!((*at).percentage), stride,
            addr_of_mut!((*at).q1), stride, addr_of_mut!((*at).q2), stride, addr_of_mut!((*at).q3), stride,
            addr_of_mut!((*at).q4), stride, addr_of_mut!((*at).q5), stride, addr_of_mut!((*at).q6), stride,
            addr_of_mut!((*at).time_a), stride, addr_of_mut!((*at).time_b), stride, addr_of_mut!((*at).q7), stride,
            addr_of_mut!((*at).q8), stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::interpolate_band_rows`] of whole arrays, without checks.
    pub fn interpolate_band_rows<'a>(
        base_row: impl Into<Input<'a, i32>>, lower_band: impl Into<Input<'a, i32>>,
        upper_band: impl Into<Input<'a, i32>>, month: impl Into<Input<'a, i32>>,
        band_weight: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let base_row = base_row.into();
        let lower_band = lower_band.into();
        let upper_band = upper_band.into();
        let month = month.into();
        let band_weight = band_weight.into();
        let lengths = [
            base_row.length("base_row"), lower_band.length("lower_band"), upper_band.length("upper_band"),
            month.length("month"), band_weight.length("band_weight"),
        ];
        let mut results = elements::results::<f32>("climate::interpolate_band_rows", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_interpolate_band_rows(
            count, base_row.first(), base_row.stride(), lower_band.first(), lower_band.stride(),
            upper_band.first(), upper_band.stride(), month.first(), month.stride(),
            band_weight.first(), band_weight.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::band_row`] of whole arrays, without checks.
    pub fn band_row<'a>(row: impl Into<Input<'a, i32>>) -> Result<Vec<[f32; 12]>, Error> {
        let row = row.into();
        let lengths = [row.length("row")];
        let mut results = elements::results::<[f32; 12]>("climate::band_row", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_band_row(count, row.first(), row.stride(), at.cast(), stride) });
        Ok(results)
    }

    /// [`crate::climate::store_design_day`] of whole arrays, without checks.
    pub fn store_design_day<'a>(month: impl Into<Input<'a, i32>>) -> Result<Vec<i32>, Error> {
        let month = month.into();
        let lengths = [month.length("month")];
        let mut results = elements::results::<i32>("climate::store_design_day", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_store_design_day(count, month.first(), month.stride(), at, stride) });
        Ok(results)
    }

    /// [`crate::climate::store_design_day_by_option`] of whole arrays, without checks.
    pub fn store_design_day_by_option<'a>(
        month: impl Into<Input<'a, i32>>, day_kind: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<i32>, Error> {
        let month = month.into();
        let day_kind = day_kind.into();
        let lengths = [month.length("month"), day_kind.length("day_kind")];
        let mut results = elements::results::<i32>("climate::store_design_day_by_option", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_store_design_day_by_option(
            count, month.first(), month.stride(), day_kind.first(), day_kind.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::design_day`] of whole arrays, without checks.
    pub fn design_day<'a>(month: impl Into<Input<'a, i32>>) -> Result<Vec<i32>, Error> {
        let month = month.into();
        let lengths = [month.length("month")];
        let mut results = elements::results::<i32>("climate::design_day", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_design_day(count, month.first(), month.stride(), at, stride) });
        Ok(results)
    }

    /// [`crate::climate::design_day_by_option`] of whole arrays, without checks.
    pub fn design_day_by_option<'a>(
        month: impl Into<Input<'a, i32>>, day_kind: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<i32>, Error> {
        let month = month.into();
        let day_kind = day_kind.into();
        let lengths = [month.length("month"), day_kind.length("day_kind")];
        let mut results = elements::results::<i32>("climate::design_day_by_option", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_design_day_by_option(
            count, month.first(), month.stride(), day_kind.first(), day_kind.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::second_design_day`] of whole arrays, without checks.
    pub fn second_design_day<'a>(month: impl Into<Input<'a, i32>>) -> Result<Vec<i32>, Error> {
        let month = month.into();
        let lengths = [month.length("month")];
        let mut results = elements::results::<i32>("climate::second_design_day", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_second_design_day(count, month.first(), month.stride(), at, stride) });
        Ok(results)
    }

    /// [`crate::climate::second_design_day_by_option`] of whole arrays, without checks.
    pub fn second_design_day_by_option<'a>(
        month: impl Into<Input<'a, i32>>, day_kind: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<i32>, Error> {
        let month = month.into();
        let day_kind = day_kind.into();
        let lengths = [month.length("month"), day_kind.length("day_kind")];
        let mut results = elements::results::<i32>("climate::second_design_day_by_option", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_second_design_day_by_option(
            count, month.first(), month.stride(), day_kind.first(), day_kind.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::daily_temperature`] of whole arrays, without checks.
    pub fn daily_temperature<'a>(
        hour: impl Into<Input<'a, f32>>, highest_temperature: impl Into<Input<'a, f32>>,
        lowest_temperature: impl Into<Input<'a, f32>>, hour_of_highest: impl Into<Input<'a, f32>>,
        hour_of_lowest: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let hour = hour.into();
        let highest_temperature = highest_temperature.into();
        let lowest_temperature = lowest_temperature.into();
        let hour_of_highest = hour_of_highest.into();
        let hour_of_lowest = hour_of_lowest.into();
        let lengths = [
            hour.length("hour"), highest_temperature.length("highest_temperature"),
            lowest_temperature.length("lowest_temperature"), hour_of_highest.length("hour_of_highest"),
            hour_of_lowest.length("hour_of_lowest"),
        ];
        let mut results = elements::results::<f32>("climate::daily_temperature", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_daily_temperature(
            count, hour.first(), hour.stride(), highest_temperature.first(), highest_temperature.stride(),
            lowest_temperature.first(), lowest_temperature.stride(),
            hour_of_highest.first(), hour_of_highest.stride(), hour_of_lowest.first(), hour_of_lowest.stride(),
            at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::daily_value`] of whole arrays, without checks.
    pub fn daily_value<'a>(
        hour: impl Into<Input<'a, f32>>, mean: impl Into<Input<'a, f32>>, amplitude: impl Into<Input<'a, f32>>,
        first_hour: impl Into<Input<'a, f32>>, second_hour: impl Into<Input<'a, f32>>,
        amplitude_factor: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let hour = hour.into();
        let mean = mean.into();
        let amplitude = amplitude.into();
        let first_hour = first_hour.into();
        let second_hour = second_hour.into();
        let amplitude_factor = amplitude_factor.into();
        let lengths = [
            hour.length("hour"), mean.length("mean"), amplitude.length("amplitude"),
            first_hour.length("first_hour"), second_hour.length("second_hour"),
            amplitude_factor.length("amplitude_factor"),
        ];
        let mut results = elements::results::<f32>("climate::daily_value", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_daily_value(
            count, hour.first(), hour.stride(), mean.first(), mean.stride(), amplitude.first(), amplitude.stride(),
            first_hour.first(), first_hour.stride(), second_hour.first(), second_hour.stride(),
            amplitude_factor.first(), amplitude_factor.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::design_irradiance`] of whole arrays, without checks.
    pub fn design_irradiance<'a>(
        solar_altitude: impl Into<Input<'a, f32>>, site_height: impl Into<Input<'a, f32>>,
        sky_kind: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<DesignIrradiance>, Error> {
        let solar_altitude = solar_altitude.into();
        let site_height = site_height.into();
        let sky_kind = sky_kind.into();
        let lengths = [
            solar_altitude.length("solar_altitude"), site_height.length("site_height"), sky_kind.length("sky_kind"),
        ];
        let mut results = elements::results::<DesignIrradiance>("climate::design_irradiance", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_design_irradiance(
            count, solar_altitude.first(), solar_altitude.stride(), site_height.first(), site_height.stride(),
            sky_kind.first(), sky_kind.stride(), addr_of_mut!((*at).direct_normal), stride,
            addr_of_mut!((*at).diffuse_horizontal), stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::height_factor`] of whole arrays, without checks.
    pub fn height_factor<'a>(
        site_height: impl Into<Input<'a, f32>>, solar_altitude: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let site_height = site_height.into();
        let solar_altitude = solar_altitude.into();
        let lengths = [site_height.length("site_height"), solar_altitude.length("solar_altitude")];
        let mut results = elements::results::<f32>("climate::height_factor", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_height_factor(
            count, site_height.first(), site_height.stride(), solar_altitude.first(), solar_altitude.stride(),
            at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::eccentricity_factor`] of whole arrays, without checks.
    pub fn eccentricity_factor<'a>(day: impl Into<Input<'a, i32>>) -> Result<Vec<f32>, Error> {
        let day = day.into();
        let lengths = [day.length("day")];
        let mut results = elements::results::<f32>("climate::eccentricity_factor", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_eccentricity_factor(count, day.first(), day.stride(), at, stride) });
        Ok(results)
    }

    /// [`crate::climate::clearness_index`] of whole arrays, without checks.
    pub fn clearness_index<'a>(
        day: impl Into<Input<'a, i32>>, solar_altitude: impl Into<Input<'a, f32>>,
        global_horizontal: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let day = day.into();
        let solar_altitude = solar_altitude.into();
        let global_horizontal = global_horizontal.into();
        let lengths = [
            day.length("day"), solar_altitude.length("solar_altitude"),
            global_horizontal.length("global_horizontal"),
        ];
        let mut results = elements::results::<f32>("climate::clearness_index", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_clearness_index(
            count, day.first(), day.stride(), solar_altitude.first(), solar_altitude.stride(),
            global_horizontal.first(), global_horizontal.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::muneer_slope`] of whole arrays, without checks.
    pub fn muneer_slope<'a>(
        solar_altitude: impl Into<Input<'a, f32>>, solar_azimuth: impl Into<Input<'a, f32>>,
        surface_azimuth: impl Into<Input<'a, f32>>, tilt: impl Into<Input<'a, f32>>,
        beam_horizontal: impl Into<Input<'a, f32>>, diffuse_horizontal: impl Into<Input<'a, f32>>,
        extraterrestrial_horizontal: impl Into<Input<'a, f32>>, ground_reflectance: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<MuneerSlope>, Error> {
        let solar_altitude = solar_altitude.into();
        let solar_azimuth = solar_azimuth.into();
        let surface_azimuth = surface_azimuth.into();
        let tilt = tilt.into();
        let beam_horizontal = beam_horizontal.into();
        let diffuse_horizontal = diffuse_horizontal.into();
        let extraterrestrial_horizontal = extraterrestrial_horizontal.into();
        let ground_reflectance = ground_reflectance.into();
        let lengths = [
            solar_altitude.length("solar_altitude"), solar_azimuth.length("solar_azimuth"),
            surface_azimuth.length("surface_azimuth"), tilt.length("tilt"),
            beam_horizontal.length("beam_horizontal"), diffuse_horizontal.length("diffuse_horizontal"),
            extraterrestrial_horizontal.length("extraterrestrial_horizontal"),
            ground_reflectance.length("ground_reflectance"),
        ];
        let mut results = elements::results::<MuneerSlope>("climate::muneer_slope", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_muneer_slope(
            count, solar_altitude.first(), solar_altitude.stride(), solar_azimuth.first(), solar_azimuth.stride(),
            surface_azimuth.first(), surface_azimuth.stride(), tilt.first(), tilt.stride(),
            beam_horizontal.first(), beam_horizontal.stride(),
            diffuse_horizontal.first(), diffuse_horizontal.stride(),
            extraterrestrial_horizontal.first(), extraterrestrial_horizontal.stride(),
            ground_reflectance.first(), ground_reflectance.stride(), addr_of_mut!((*at).surface_beam), stride,
            addr_of_mut!((*at).surface_diffuse), stride, addr_of_mut!((*at).ground_reflected), stride,
            addr_of_mut!((*at).incidence), stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::perez_diffuse`] of whole arrays, without checks.
    pub fn perez_diffuse<'a>(
        solar_altitude: impl Into<Input<'a, f32>>, tilt: impl Into<Input<'a, f32>>,
        beam_horizontal: impl Into<Input<'a, f32>>, diffuse_horizontal: impl Into<Input<'a, f32>>,
        incidence: impl Into<Input<'a, f32>>, extraterrestrial_normal: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let solar_altitude = solar_altitude.into();
        let tilt = tilt.into();
        let beam_horizontal = beam_horizontal.into();
        let diffuse_horizontal = diffuse_horizontal.into();
        let incidence = incidence.into();
        let extraterrestrial_normal = extraterrestrial_normal.into();
        let lengths = [
            solar_altitude.length("solar_altitude"), tilt.length("tilt"), beam_horizontal.length("beam_horizontal"),
            diffuse_horizontal.length("diffuse_horizontal"), incidence.length("incidence"),
            extraterrestrial_normal.length("extraterrestrial_normal"),
        ];
        let mut results = elements::results::<f32>("climate::perez_diffuse", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_perez_diffuse(
            count, solar_altitude.first(), solar_altitude.stride(), tilt.first(), tilt.stride(),
            beam_horizontal.first(), beam_horizontal.stride(),
            diffuse_horizontal.first(), diffuse_horizontal.stride(), incidence.first(), incidence.stride(),
            extraterrestrial_normal.first(), extraterrestrial_normal.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::site_constants`] of whole arrays, without checks.
    pub fn site_constants<'a>(
        site_class: impl Into<Input<'a, i32>>, month: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<SiteConstants>, Error> {
        let site_class = site_class.into();
        let month = month.into();
        let lengths = [site_class.length("site_class"), month.length("month")];
        let mut results = elements::results::<SiteConstants>("climate::site_constants", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_site_constants(
            count, site_class.first(), site_class.stride(), month.first(), month.stride(),
            addr_of_mut!((*at).ground_reflectance), stride, addr_of_mut!((*at).beam_factor), stride,
            addr_of_mut!((*at).diffuse_factor), stride, addr_of_mut!((*at).alternative_diffuse_factor), stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::diffuse_tilt_factor`] of whole arrays, without checks.
    pub fn diffuse_tilt_factor<'a>(
        day: impl Into<Input<'a, i32>>, solar_altitude: impl Into<Input<'a, f32>>,
        beam_horizontal: impl Into<Input<'a, f32>>, tilt: impl Into<Input<'a, f32>>,
        sky_model: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<f32>, Error> {
        let day = day.into();
        let solar_altitude = solar_altitude.into();
        let beam_horizontal = beam_horizontal.into();
        let tilt = tilt.into();
        let sky_model = sky_model.into();
        let lengths = [
            day.length("day"), solar_altitude.length("solar_altitude"), beam_horizontal.length("beam_horizontal"),
            tilt.length("tilt"), sky_model.length("sky_model"),
        ];
        let mut results = elements::results::<f32>("climate::diffuse_tilt_factor", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_diffuse_tilt_factor(
            count, day.first(), day.stride(), solar_altitude.first(), solar_altitude.stride(),
            beam_horizontal.first(), beam_horizontal.stride(), tilt.first(), tilt.stride(),
            sky_model.first(), sky_model.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::slope_diffuse`] of whole arrays, without checks.
    pub fn slope_diffuse<'a>(
        day: impl Into<Input<'a, i32>>, solar_altitude: impl Into<Input<'a, f32>>,
        solar_azimuth: impl Into<Input<'a, f32>>, surface_azimuth: impl Into<Input<'a, f32>>,
        tilt: impl Into<Input<'a, f32>>, beam_horizontal: impl Into<Input<'a, f32>>,
        diffuse_horizontal: impl Into<Input<'a, f32>>, sky_model: impl Into<Input<'a, i32>>,
    ) -> Result<Vec<f32>, Error> {
        let day = day.into();
        let solar_altitude = solar_altitude.into();
        let solar_azimuth = solar_azimuth.into();
        let surface_azimuth = surface_azimuth.into();
        let tilt = tilt.into();
        let beam_horizontal = beam_horizontal.into();
        let diffuse_horizontal = diffuse_horizontal.into();
        let sky_model = sky_model.into();
        let lengths = [
            day.length("day"), solar_altitude.length("solar_altitude"), solar_azimuth.length("solar_azimuth"),
            surface_azimuth.length("surface_azimuth"), tilt.length("tilt"),
            beam_horizontal.length("beam_horizontal"), diffuse_horizontal.length("diffuse_horizontal"),
            sky_model.length("sky_model"),
        ];
        let mut results = elements::results::<f32>("climate::slope_diffuse", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_slope_diffuse(
            count, day.first(), day.stride(), solar_altitude.first(), solar_altitude.stride(),
            solar_azimuth.first(), solar_azimuth.stride(), surface_azimuth.first(), surface_azimuth.stride(),
            tilt.first(), tilt.stride(), beam_horizontal.first(), beam_horizontal.stride(),
            diffuse_horizontal.first(), diffuse_horizontal.stride(), sky_model.first(), sky_model.stride(),
            at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::sol_air_temperature`] of whole arrays, without checks.
    pub fn sol_air_temperature<'a>(
        base_temperature: impl Into<Input<'a, f32>>, surface_coefficient: impl Into<Input<'a, f32>>,
        absorptance: impl Into<Input<'a, f32>>, irradiance: impl Into<Input<'a, f32>>,
        long_wave_loss: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let base_temperature = base_temperature.into();
        let surface_coefficient = surface_coefficient.into();
        let absorptance = absorptance.into();
        let irradiance = irradiance.into();
        let long_wave_loss = long_wave_loss.into();
        let lengths = [
            base_temperature.length("base_temperature"), surface_coefficient.length("surface_coefficient"),
            absorptance.length("absorptance"), irradiance.length("irradiance"),
            long_wave_loss.length("long_wave_loss"),
        ];
        let mut results = elements::results::<f32>("climate::sol_air_temperature", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_sol_air_temperature(
            count, base_temperature.first(), base_temperature.stride(),
            surface_coefficient.first(), surface_coefficient.stride(), absorptance.first(), absorptance.stride(),
            irradiance.first(), irradiance.stride(), long_wave_loss.first(), long_wave_loss.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::long_wave_loss`] of whole arrays, without checks.
    pub fn long_wave_loss<'a>(
        tilt: impl Into<Input<'a, f32>>, cloud_cover: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let tilt = tilt.into();
        let cloud_cover = cloud_cover.into();
        let lengths = [tilt.length("tilt"), cloud_cover.length("cloud_cover")];
        let mut results = elements::results::<f32>("climate::long_wave_loss", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_long_wave_loss(
            count, tilt.first(), tilt.stride(), cloud_cover.first(), cloud_cover.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::solar_time_correction`] of whole arrays, without checks.
    pub fn solar_time_correction<'a>(
        clock_offset: impl Into<Input<'a, f32>>, day: impl Into<Input<'a, i32>>,
        longitude: impl Into<Input<'a, f32>>, reference_longitude: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<f32>, Error> {
        let clock_offset = clock_offset.into();
        let day = day.into();
        let longitude = longitude.into();
        let reference_longitude = reference_longitude.into();
        let lengths = [
            clock_offset.length("clock_offset"), day.length("day"), longitude.length("longitude"),
            reference_longitude.length("reference_longitude"),
        ];
        let mut results = elements::results::<f32>("climate::solar_time_correction", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_solar_time_correction(
            count, clock_offset.first(), clock_offset.stride(), day.first(), day.stride(),
            longitude.first(), longitude.stride(), reference_longitude.first(), reference_longitude.stride(),
            at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::almanac_position`] of whole arrays, without checks.
    pub fn almanac_position<'a>(
        time_kind: impl Into<Input<'a, i32>>, year: impl Into<Input<'a, i32>>, month: impl Into<Input<'a, i32>>,
        day_of_month: impl Into<Input<'a, i32>>, clock_time: impl Into<Input<'a, f32>>,
        latitude: impl Into<Input<'a, f32>>, longitude: impl Into<Input<'a, f32>>,
        zone_meridian: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<AlmanacPosition>, Error> {
        let time_kind = time_kind.into();
        let year = year.into();
        let month = month.into();
        let day_of_month = day_of_month.into();
        let clock_time = clock_time.into();
        let latitude = latitude.into();
        let longitude = longitude.into();
        let zone_meridian = zone_meridian.into();
        let lengths = [
            time_kind.length("time_kind"), year.length("year"), month.length("month"),
            day_of_month.length("day_of_month"), clock_time.length("clock_time"), latitude.length("latitude"),
            longitude.length("longitude"), zone_meridian.length("zone_meridian"),
        ];
        let mut results = elements::results::<AlmanacPosition>("climate::almanac_position", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_almanac_position(
            count, time_kind.first(), time_kind.stride(), year.first(), year.stride(),
            month.first(), month.stride(), day_of_month.first(), day_of_month.stride(),
            clock_time.first(), clock_time.stride(), latitude.first(), latitude.stride(),
            longitude.first(), longitude.stride(), zone_meridian.first(), zone_meridian.stride(),
            addr_of_mut!((*at).longitude), stride, addr_of_mut!((*at).zone_meridian), stride,
            addr_of_mut!((*at).solar_altitude), stride, addr_of_mut!((*at).solar_azimuth), stride,
            addr_of_mut!((*at).declination), stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::almanac_sun_hours`] of whole arrays, without checks.
    pub fn almanac_sun_hours<'a>(
        year: impl Into<Input<'a, i32>>, month: impl Into<Input<'a, i32>>,
        day_of_month: impl Into<Input<'a, i32>>, latitude: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<AlmanacSunHours>, Error> {
        let year = year.into();
        let month = month.into();
        let day_of_month = day_of_month.into();
        let latitude = latitude.into();
        let lengths = [
            year.length("year"), month.length("month"), day_of_month.length("day_of_month"),
            latitude.length("latitude"),
        ];
        let mut results = elements::results::<AlmanacSunHours>("climate::almanac_sun_hours", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_almanac_sun_hours(
            count, year.first(), year.stride(), month.first(), month.stride(),
            day_of_month.first(), day_of_month.stride(), latitude.first(), latitude.stride(),
            addr_of_mut!((*at).sunrise), stride, addr_of_mut!((*at).sunset), stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::solar_geometry`] of whole arrays, without checks.
    pub fn solar_geometry<'a>(
        latitude: impl Into<Input<'a, f32>>, day: impl Into<Input<'a, i32>>,
        solar_time: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<SolarGeometry>, Error> {
        let latitude = latitude.into();
        let day = day.into();
        let solar_time = solar_time.into();
        let lengths = [latitude.length("latitude"), day.length("day"), solar_time.length("solar_time")];
        let mut results = elements::results::<SolarGeometry>("climate::solar_geometry", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_solar_geometry(
            count, latitude.first(), latitude.stride(), day.first(), day.stride(),
            solar_time.first(), solar_time.stride(), addr_of_mut!((*at).declination), stride,
            addr_of_mut!((*at).solar_altitude), stride, addr_of_mut!((*at).solar_azimuth), stride,
            addr_of_mut!((*at).sunrise), stride, addr_of_mut!((*at).sunset), stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::surface_angles`] of whole arrays, without checks.
    pub fn surface_angles<'a>(
        solar_altitude: impl Into<Input<'a, f32>>, solar_azimuth: impl Into<Input<'a, f32>>,
        surface_azimuth: impl Into<Input<'a, f32>>, tilt: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<SurfaceAngles>, Error> {
        let solar_altitude = solar_altitude.into();
        let solar_azimuth = solar_azimuth.into();
        let surface_azimuth = surface_azimuth.into();
        let tilt = tilt.into();
        let lengths = [
            solar_altitude.length("solar_altitude"), solar_azimuth.length("solar_azimuth"),
            surface_azimuth.length("surface_azimuth"), tilt.length("tilt"),
        ];
        let mut results = elements::results::<SurfaceAngles>("climate::surface_angles", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_surface_angles(
            count, solar_altitude.first(), solar_altitude.stride(), solar_azimuth.first(), solar_azimuth.stride(),
            surface_azimuth.first(), surface_azimuth.stride(), tilt.first(), tilt.stride(),
            addr_of_mut!((*at).incidence), stride, addr_of_mut!((*at).vertical_shadow_angle), stride,
            addr_of_mut!((*at).horizontal_shadow_angle), stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::surface_irradiance`] of whole arrays, without checks.
    pub fn surface_irradiance<'a>(
        solar_altitude: impl Into<Input<'a, f32>>, solar_azimuth: impl Into<Input<'a, f32>>,
        surface_azimuth: impl Into<Input<'a, f32>>, tilt: impl Into<Input<'a, f32>>,
        direct_normal: impl Into<Input<'a, f32>>, diffuse_horizontal: impl Into<Input<'a, f32>>,
        ground_reflectance: impl Into<Input<'a, f32>>, beam_factor: impl Into<Input<'a, f32>>,
        diffuse_factor: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<SurfaceIrradiance>, Error> {
        let solar_altitude = solar_altitude.into();
        let solar_azimuth = solar_azimuth.into();
        let surface_azimuth = surface_azimuth.into();
        let tilt = tilt.into();
        let direct_normal = direct_normal.into();
        let diffuse_horizontal = diffuse_horizontal.into();
        let ground_reflectance = ground_reflectance.into();
        let beam_factor = beam_factor.into();
        let diffuse_factor = diffuse_factor.into();
        let lengths = [
            solar_altitude.length("solar_altitude"), solar_azimuth.length("solar_azimuth"),
            surface_azimuth.length("surface_azimuth"), tilt.length("tilt"), direct_normal.length("direct_normal"),
            diffuse_horizontal.length("diffuse_horizontal"), ground_reflectance.length("ground_reflectance"),
            beam_factor.length("beam_factor"), diffuse_factor.length("diffuse_factor"),
        ];
        let mut results = elements::results::<SurfaceIrradiance>("climate::surface_irradiance", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_surface_irradiance(
            count, solar_altitude.first(), solar_altitude.stride(), solar_azimuth.first(), solar_azimuth.stride(),
            surface_azimuth.first(), surface_azimuth.stride(), tilt.first(), tilt.stride(),
            direct_normal.first(), direct_normal.stride(), diffuse_horizontal.first(), diffuse_horizontal.stride(),
            ground_reflectance.first(), ground_reflectance.stride(), beam_factor.first(), beam_factor.stride(),
            diffuse_factor.first(), diffuse_factor.stride(), addr_of_mut!((*at).surface_beam), stride,
            addr_of_mut!((*at).surface_diffuse), stride, addr_of_mut!((*at).ground_reflected), stride,
        ) });
        Ok(results)
    }

    /// [`crate::climate::surface_irradiance_and_incidence`] of whole arrays, without checks.
    pub fn surface_irradiance_and_incidence<'a>(
        solar_altitude: impl Into<Input<'a, f32>>, solar_azimuth: impl Into<Input<'a, f32>>,
        surface_azimuth: impl Into<Input<'a, f32>>, tilt: impl Into<Input<'a, f32>>,
        direct_normal: impl Into<Input<'a, f32>>, diffuse_horizontal: impl Into<Input<'a, f32>>,
        ground_reflectance: impl Into<Input<'a, f32>>, beam_factor: impl Into<Input<'a, f32>>,
        diffuse_factor: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<SurfaceIrradianceAndIncidence>, Error> {
        let solar_altitude = solar_altitude.into();
        let solar_azimuth = solar_azimuth.into();
        let surface_azimuth = surface_azimuth.into();
        let tilt = tilt.into();
        let direct_normal = direct_normal.into();
        let diffuse_horizontal = diffuse_horizontal.into();
        let ground_reflectance = ground_reflectance.into();
        let beam_factor = beam_factor.into();
        let diffuse_factor = diffuse_factor.into();
        let lengths = [
            solar_altitude.length("solar_altitude"), solar_azimuth.length("solar_azimuth"),
            surface_azimuth.length("surface_azimuth"), tilt.length("tilt"), direct_normal.length("direct_normal"),
            diffuse_horizontal.length("diffuse_horizontal"), ground_reflectance.length("ground_reflectance"),
            beam_factor.length("beam_factor"), diffuse_factor.length("diffuse_factor"),
        ];
        let mut results = elements::results::<SurfaceIrradianceAndIncidence>(
            "climate::surface_irradiance_and_incidence", &lengths,
        )?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_surface_irradiance_and_incidence(
            count, solar_altitude.first(), solar_altitude.stride(), solar_azimuth.first(), solar_azimuth.stride(),
            surface_azimuth.first(), surface_azimuth.stride(), tilt.first(), tilt.stride(),
            direct_normal.first(), direct_normal.stride(), diffuse_horizontal.first(), diffuse_horizontal.stride(),
            ground_reflectance.first(), ground_reflectance.stride(), beam_factor.first(), beam_factor.stride(),
            diffuse_factor.first(), diffuse_factor.stride(), addr_of_mut!((*at).surface_beam), stride,
            addr_of_mut!((*at).surface_diffuse), stride, addr_of_mut!((*at).ground_reflected), stride,
            addr_of_mut!((*at).incidence), stride,
        ) });
        Ok(results)
    }
}
