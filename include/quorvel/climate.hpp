// Calendar, sun and sky: see quorvel/quorvel.hpp.
// Produced from the catalogue of routines (catalogue/); do not edit.
#pragma once

#include <quorvel.h>
#include <quorvel_arrays.h>

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "quorvel/call.hpp"
#include "quorvel/input.hpp"
#include "quorvel/selectors.hpp"

// The inner names keep what an application compiles apart from the library's own functions.
namespace quorvel::climate {
inline namespace v0 {

/// What locate_band returns.
struct LocateBand {
    /// lower band, 1 to 9
    std::int32_t lower_band = detail::none<std::int32_t>;
    /// upper band, 2 to 10
    std::int32_t upper_band = detail::none<std::int32_t>;
    /// (fraction - F(lower)) / (F(upper) - F(lower)), limited to -1 to 1
    float band_weight = detail::none<float>;
};

/// Arrays for what locate_band returns.
struct LocateBandArrays {
    std::span<std::int32_t> lower_band;
    std::span<std::int32_t> upper_band;
    std::span<float> band_weight;
};

/// Where a cumulative fraction of days lies among the ten bands of a month, in frequencies of the
/// caller.
///
/// @note Fractions, where CLBAND takes a percentage.
///
/// @note At or below the first band's frequency the weight is 0 or negative. Bands of equal
/// frequency are skipped upwards, to band 10 at most; for a fraction equal to the frequencies of
/// all the rest the weight is not a number.
///
/// @note A month outside 1 to 12 counts as the nearest. A fraction that is not a number gives bands
/// 9 and 10 and a weight that is not a number.
///
/// @param fraction  0 .. 1: cumulative fraction of days
/// @param month  1 .. 12: month
/// @param frequencies  0 .. 1: cumulative frequencies of each band in each month, not falling with
///     the band [12, 10]
/// Source: Search for linear interpolation.
/// (CLBAN1 of quorvel.h)
inline LocateBand locate_band(float fraction, std::int32_t month,
        const std::array<std::array<float, 12>, 10>& frequencies) {
    LocateBand out;
    CLBAN1(&fraction, &month, detail::numbers(frequencies), &out.lower_band, &out.upper_band,
        &out.band_weight);
    return out;
}

/// locate_band for whole arrays.
inline void locate_band(const Input<float>& fraction, const Input<std::int32_t>& month,
        const Input<std::array<std::array<float, 12>, 10>>& frequencies,
        const LocateBandArrays& out) {
    detail::call_arrays("locate_band", quorvel_locate_band,
        detail::given("fraction", fraction),
        detail::given("month", month),
        detail::given("frequencies", frequencies),
        detail::returned("lower_band", out.lower_band),
        detail::returned("upper_band", out.upper_band),
        detail::returned("band_weight", out.band_weight));
}

/// What band_climate returns.
struct BandClimate {
    /// %: cumulative percentage of days: given with band 0, otherwise returned; as given with band
    /// 0
    float percentage = detail::none<float>;
    /// quantity Q1: beam factor
    float q1 = detail::none<float>;
    /// quantity Q2: diffuse factor
    float q2 = detail::none<float>;
    /// °C: quantity Q3: air temperature at time A
    float q3 = detail::none<float>;
    /// °C: quantity Q4: air temperature at time B
    float q4 = detail::none<float>;
    /// °C: quantity Q5: wet-bulb temperature at time A
    float q5 = detail::none<float>;
    /// °C: quantity Q6: wet-bulb temperature at time B
    float q6 = detail::none<float>;
    /// h: time A, in the afternoon
    float time_a = detail::none<float>;
    /// h: time B, about sunrise
    float time_b = detail::none<float>;
    /// %: quantity Q7: cloud-free share of the sky
    float q7 = detail::none<float>;
    /// m/s: quantity Q8: wind speed
    float q8 = detail::none<float>;
};

/// Arrays for what band_climate returns.
struct BandClimateArrays {
    std::span<float> percentage;
    std::span<float> q1;
    std::span<float> q2;
    std::span<float> q3;
    std::span<float> q4;
    std::span<float> q5;
    std::span<float> q6;
    std::span<float> time_a;
    std::span<float> time_b;
    std::span<float> q7;
    std::span<float> q8;
};

/// Monthly climate of one of ten bands of days, or interpolated at a cumulative percentage of days.
///
/// @note A percentage below band 1 extrapolates backwards from it, by the step to band 2 at most;
/// one above 100 gives band 10.
///
/// @note A band below 0 counts as 1 and above 10 as 10, a month outside 1 to 12 as the nearest, a
/// set other than 2 as 1. A percentage that is not a number makes Q1 to Q8 not numbers.
///
/// @note The table built in is representative and not measured; data/bands tells how it was made
/// and how to build with data of your own. Q1 to Q8 mean what the table's maker says; the meanings
/// here are those of the table built in.
///
/// @param band  0 .. 10: band, or 0 to interpolate at the percentage
/// @param month  1 .. 12: month
/// @param band_set  set of bands: 1 bands from the warmest to the coldest days, 2 bands from the
///     highest to the lowest Q1
/// @param percentage  %, 0 .. 100: cumulative percentage of days: given with band 0, otherwise
///     returned
/// Source: Linear interpolation in the band table.
/// (CLBAND of quorvel.h)
inline BandClimate band_climate(std::int32_t band, std::int32_t month, std::int32_t band_set,
        float percentage) {
    BandClimate out;
    out.percentage = percentage;
    CLBAND(&band, &month, &band_set, &out.percentage, &out.q1, &out.q2, &out.q3, &out.q4, &out.q5,
        &out.q6, &out.time_a, &out.time_b, &out.q7, &out.q8);
    return out;
}

/// band_climate for whole arrays.
inline void band_climate(const Input<std::int32_t>& band, const Input<std::int32_t>& month,
        const Input<std::int32_t>& band_set, const Input<float>& percentage,
        const BandClimateArrays& out) {
    detail::call_arrays("band_climate", quorvel_band_climate,
        detail::given("band", band),
        detail::given("month", month),
        detail::given("band_set", band_set),
        detail::given("percentage", percentage),
        detail::returned("percentage", out.percentage),
        detail::returned("q1", out.q1),
        detail::returned("q2", out.q2),
        detail::returned("q3", out.q3),
        detail::returned("q4", out.q4),
        detail::returned("q5", out.q5),
        detail::returned("q6", out.q6),
        detail::returned("time_a", out.time_a),
        detail::returned("time_b", out.time_b),
        detail::returned("q7", out.q7),
        detail::returned("q8", out.q8));
}

/// Value between two rows of the band table.
///
/// @note Rows base_row + lower_band and base_row + upper_band outside 1 to 184 count as the nearest
/// row, a month outside 1 to 12 as the nearest month.
///
/// @param base_row  0 .. 174: row before the quantity's band 1: 2 for F, 12 for Q1, 22 for Q2 and
///     so on in set 1; 92 more in set 2
/// @param lower_band  1 .. 10: lower band
/// @param upper_band  1 .. 10: upper band
/// @param month  1 .. 12: month
/// @param band_weight  -1 .. 1: share of the step from the lower to the upper row
/// @return value, in the quantity's unit
/// Source: Linear interpolation in the band table.
/// (CLBAN2 of quorvel.h)
inline float interpolate_band_rows(std::int32_t base_row, std::int32_t lower_band,
        std::int32_t upper_band, std::int32_t month, float band_weight) {
    float out = detail::none<float>;
    CLBAN2(&base_row, &lower_band, &upper_band, &month, &band_weight, &out);
    return out;
}

/// interpolate_band_rows for whole arrays.
inline void interpolate_band_rows(const Input<std::int32_t>& base_row,
        const Input<std::int32_t>& lower_band, const Input<std::int32_t>& upper_band,
        const Input<std::int32_t>& month, const Input<float>& band_weight, std::span<float> value) {
    detail::call_arrays("interpolate_band_rows", quorvel_interpolate_band_rows,
        detail::given("base_row", base_row),
        detail::given("lower_band", lower_band),
        detail::given("upper_band", upper_band),
        detail::given("month", month),
        detail::given("band_weight", band_weight),
        detail::returned("value", value));
}

/// One row of the band table, a value per month.
///
/// @note Rows of a set: 1 time A, 2 time B, 3 to 12 cumulative frequency F of bands 1 to 10, 13 to
/// 22 Q1, 23 to 32 Q2 and so on to Q8.
///
/// @note A row below 1 counts as 1, above 184 as 184.
///
/// @param row  1 .. 184: row: 1 to 92 in set 1, 93 to 184 in set 2
/// @return values from January to December, in the row's unit [12]
/// Source: The band table; see data/bands.
/// (CLBAN3 of quorvel.h)
inline std::array<float, 12> band_row(std::int32_t row) {
    std::array<float, 12> out = detail::none<std::array<float, 12>>;
    CLBAN3(&row, detail::numbers(out));
    return out;
}

/// band_row for whole arrays.
inline void band_row(const Input<std::int32_t>& row, std::span<std::array<float, 12>> values) {
    detail::call_arrays("band_row", quorvel_band_row,
        detail::given("row", row),
        detail::returned("values", values));
}

/// Design day of a month as a day of the year, as ICLDAY gives it.
///
/// @note A month outside 1 to 12 gives 0.
///
/// @note The year has 365 days.
///
/// @param month  1 .. 12: month
/// @return design day of the year
/// Source: Table of customary design days, close to the 21st of each month.
/// (CLDAY of quorvel.h)
inline std::int32_t store_design_day(std::int32_t month) {
    std::int32_t out = detail::none<std::int32_t>;
    CLDAY(&month, &out);
    return out;
}

/// store_design_day for whole arrays.
inline void store_design_day(const Input<std::int32_t>& month, std::span<std::int32_t> day) {
    detail::call_arrays("store_design_day", quorvel_store_design_day,
        detail::given("month", month),
        detail::returned("day", day));
}

/// Design day of a month as a day of the year or of the month, as ICLDAYEX gives it.
///
/// @note The two counts are separate sets and not the same date: in February day 52 of the year
/// (the 21st) stands beside the 20th.
///
/// @note A month outside 1 to 12 gives 0; another way of counting counts as 2.
///
/// @param month  1 .. 12: month
/// @param day_kind  how the day is counted: 1 day of the month, 2 day of the year
/// @return design day
/// Source: Table of customary design days, close to the 21st of each month.
/// (CLDAYEX of quorvel.h)
inline std::int32_t store_design_day_by_option(std::int32_t month, std::int32_t day_kind) {
    std::int32_t out = detail::none<std::int32_t>;
    CLDAYEX(&month, &out, &day_kind);
    return out;
}

/// store_design_day_by_option for whole arrays.
inline void store_design_day_by_option(const Input<std::int32_t>& month,
        const Input<std::int32_t>& day_kind, std::span<std::int32_t> day) {
    detail::call_arrays("store_design_day_by_option", quorvel_store_design_day_by_option,
        detail::given("month", month),
        detail::given("day_kind", day_kind),
        detail::returned("day", day));
}

/// Design day of a month as a day of the year.
///
/// @note A month outside 1 to 12 gives 0.
///
/// @note The year has 365 days.
///
/// @param month  1 .. 12: month
/// @return design day of the year
/// Source: Table of customary design days, close to the 21st of each month.
/// (ICLDAY of quorvel.h)
inline std::int32_t design_day(std::int32_t month) {
    return ICLDAY(&month);
}

/// design_day for whole arrays.
inline void design_day(const Input<std::int32_t>& month, std::span<std::int32_t> result) {
    detail::call_arrays("design_day", quorvel_design_day,
        detail::given("month", month),
        detail::returned("result", result));
}

/// Design day of a month as a day of the year or of the month.
///
/// @note The two counts are separate sets and not the same date: in February day 52 of the year
/// (the 21st) stands beside the 20th.
///
/// @note A month outside 1 to 12 gives 0; another way of counting counts as 2.
///
/// @param month  1 .. 12: month
/// @param day_kind  how the day is counted: 1 day of the month, 2 day of the year
/// @return design day
/// Source: Table of customary design days, close to the 21st of each month.
/// (ICLDAYEX of quorvel.h)
inline std::int32_t design_day_by_option(std::int32_t month, std::int32_t day_kind) {
    return ICLDAYEX(&month, &day_kind);
}

/// design_day_by_option for whole arrays.
inline void design_day_by_option(const Input<std::int32_t>& month,
        const Input<std::int32_t>& day_kind, std::span<std::int32_t> result) {
    detail::call_arrays("design_day_by_option", quorvel_design_day_by_option,
        detail::given("month", month),
        detail::given("day_kind", day_kind),
        detail::returned("result", result));
}

/// Second design day of a month as a day of the year.
///
/// @note A month outside 1 to 12 gives 0.
///
/// @note The year has 365 days.
///
/// @param month  1 .. 12: month
/// @return second design day of the year
/// Source: Table of design days: about the 29th until May, 21 June, the 4th from July.
/// (ICLDA2 of quorvel.h)
inline std::int32_t second_design_day(std::int32_t month) {
    return ICLDA2(&month);
}

/// second_design_day for whole arrays.
inline void second_design_day(const Input<std::int32_t>& month, std::span<std::int32_t> result) {
    detail::call_arrays("second_design_day", quorvel_second_design_day,
        detail::given("month", month),
        detail::returned("result", result));
}

/// Second design day of a month as a day of the year or of the month.
///
/// @note Both counts are the same date here.
///
/// @note A month outside 1 to 12 gives 0; another way of counting counts as 2.
///
/// @param month  1 .. 12: month
/// @param day_kind  how the day is counted: 1 day of the month, 2 day of the year
/// @return second design day
/// Source: Table of design days: about the 29th until May, 21 June, the 4th from July.
/// (ICLDA2EX of quorvel.h)
inline std::int32_t second_design_day_by_option(std::int32_t month, std::int32_t day_kind) {
    return ICLDA2EX(&month, &day_kind);
}

/// second_design_day_by_option for whole arrays.
inline void second_design_day_by_option(const Input<std::int32_t>& month,
        const Input<std::int32_t>& day_kind, std::span<std::int32_t> result) {
    detail::call_arrays("second_design_day_by_option", quorvel_second_design_day_by_option,
        detail::given("month", month),
        detail::given("day_kind", day_kind),
        detail::returned("result", result));
}

/// Temperature at an hour of a day, by half cosine waves between its highest and its lowest.
///
/// Formula: m + a cos(pi h / L) after the highest, m - a cos(pi h / L) after the lowest; m = mean
/// of both, a = half their difference, h = hours since the one passed last, L = hours from it to
/// the other
///
/// @note The same before and after midnight if the next day is like this one.
///
/// @note Hours of the extremes that coincide give the mean at every hour. With one at 0 and the
/// other at 24 the wave through midnight has no length: at the later of the two the result is no
/// number.
///
/// @note Pi is 3.141593 here, a step above the float nearest to it, so the extremes are met to
/// rounding.
///
/// @param hour  h, 0 .. 24: hour
/// @param highest_temperature  °C, -100 .. 200: highest temperature of the day
/// @param lowest_temperature  °C, -100 .. 200: lowest temperature of the day
/// @param hour_of_highest  h, 0 .. 24: hour of the highest
/// @param hour_of_lowest  h, 0 .. 24: hour of the lowest
/// @return °C: temperature
/// Source: Two half cosine waves.
/// (CLTAO of quorvel.h)
inline float daily_temperature(float hour, float highest_temperature, float lowest_temperature,
        float hour_of_highest, float hour_of_lowest) {
    return CLTAO(&hour, &highest_temperature, &lowest_temperature, &hour_of_highest,
        &hour_of_lowest);
}

/// daily_temperature for whole arrays.
inline void daily_temperature(const Input<float>& hour, const Input<float>& highest_temperature,
        const Input<float>& lowest_temperature, const Input<float>& hour_of_highest,
        const Input<float>& hour_of_lowest, std::span<float> result) {
    detail::call_arrays("daily_temperature", quorvel_daily_temperature,
        detail::given("hour", hour),
        detail::given("highest_temperature", highest_temperature),
        detail::given("lowest_temperature", lowest_temperature),
        detail::given("hour_of_highest", hour_of_highest),
        detail::given("hour_of_lowest", hour_of_lowest),
        detail::returned("result", result));
}

/// Value at an hour of a day that swings about its mean by half cosine waves between two hours.
///
/// Formula: mean + a cos(pi (hour - first_hour) / (second_hour - first_hour)) between the two
/// hours, mean - a cos(pi h / (first_hour + 24 - second_hour)) h hours after the second; a =
/// amplitude_factor amplitude
///
/// @note The order of the hours is not checked: with the second before the first, the wave that
/// should go through midnight runs beyond its extreme.
///
/// @note Pi as in CLTAO.
///
/// @param hour  h, 0 .. 24: hour
/// @param mean  mean, in the unit of the result
/// @param amplitude  half the difference of the extremes, in the same unit
/// @param first_hour  h, 0 .. 24: hour of the first extreme, the highest if amplitude times
///     amplitude_factor is positive
/// @param second_hour  h, 0 .. 24: hour of the second extreme, after the first
/// @param amplitude_factor  factor on the amplitude
/// @return value
/// Source: Two half cosine waves.
/// (CLTAOX of quorvel.h)
inline float daily_value(float hour, float mean, float amplitude, float first_hour,
        float second_hour, float amplitude_factor) {
    return CLTAOX(&hour, &mean, &amplitude, &first_hour, &second_hour, &amplitude_factor);
}

/// daily_value for whole arrays.
inline void daily_value(const Input<float>& hour, const Input<float>& mean,
        const Input<float>& amplitude, const Input<float>& first_hour,
        const Input<float>& second_hour, const Input<float>& amplitude_factor,
        std::span<float> result) {
    detail::call_arrays("daily_value", quorvel_daily_value,
        detail::given("hour", hour),
        detail::given("mean", mean),
        detail::given("amplitude", amplitude),
        detail::given("first_hour", first_hour),
        detail::given("second_hour", second_hour),
        detail::given("amplitude_factor", amplitude_factor),
        detail::returned("result", result));
}

/// What design_irradiance returns.
struct DesignIrradiance {
    /// W/m²: direct normal irradiance, the same for both skies
    float direct_normal = detail::none<float>;
    /// W/m²: diffuse irradiance on the horizontal
    float diffuse_horizontal = detail::none<float>;
};

/// Arrays for what design_irradiance returns.
struct DesignIrradianceArrays {
    std::span<float> direct_normal;
    std::span<float> diffuse_horizontal;
};

/// Design irradiance by solar altitude: direct normal and diffuse horizontal.
///
/// Formula: direct_normal = 1035.49 - 156.13 / a - 1.91863 / a^2 + 2.51353 / a^3 - 0.148842 / a^4;
/// diffuse_horizontal = 1.52269 + 280.358 a - 375.111 a^2 + 253.716 a^3 - 63.3311 a^4 of the clear
/// sky, 0.331322 + 283.1 a + 4.42111 a^2 of the cloudy one; a = solar_altitude above 0.087
///
/// @note Both grow with the height by the factor of CLHIGH.
///
/// @note Up to 0.087 rad both are proportional to the altitude, also below 0, where they are
/// negative. The direct irradiance falls by 2 W/m² where the polynomial takes over.
///
/// @note An altitude beyond 1.5707964 in size gives two zeros. A sky kind below 0 counts as 0,
/// above 1 as 1.
///
/// @param solar_altitude  rad, 0 .. 1.5707964: solar altitude
/// @param site_height  m, 0 .. 4000: height of the site above sea level
/// @param sky_kind  kind of sky: 0 clear, 1 cloudy: the larger diffuse irradiance
/// Source: Polynomials through the design irradiances of a clear and a cloudy sky that building
///     services guides print.
/// (CLSNNR of quorvel.h)
inline DesignIrradiance design_irradiance(float solar_altitude, float site_height,
        std::int32_t sky_kind) {
    DesignIrradiance out;
    CLSNNR(&solar_altitude, &detail::unread<float>, &site_height, &sky_kind, &out.direct_normal,
        &out.diffuse_horizontal);
    return out;
}

/// design_irradiance for whole arrays.
inline void design_irradiance(const Input<float>& solar_altitude, const Input<float>& site_height,
        const Input<std::int32_t>& sky_kind, const DesignIrradianceArrays& out) {
    detail::call_arrays("design_irradiance", quorvel_design_irradiance,
        detail::given("solar_altitude", solar_altitude),
        detail::given("site_height", site_height),
        detail::given("sky_kind", sky_kind),
        detail::returned("direct_normal", out.direct_normal),
        detail::returned("diffuse_horizontal", out.diffuse_horizontal));
}

/// Factor by which irradiance grows with the height of the site.
///
/// Formula: 1.02 + site_height (0.00002 + 0.00005 / sin(solar_altitude))
///
/// @note 1 below 300 m, and for suns whose sine of altitude is below 0.08; the factor jumps from 1
/// to 1.041 or more at 300 m.
///
/// @param site_height  m, 0 .. 4000: height of the site above sea level
/// @param solar_altitude  rad, 0 .. 1.5707964: solar altitude
/// @return factor
/// Source: Linear fit to height corrections of design irradiance.
/// (CLHIGH of quorvel.h)
inline float height_factor(float site_height, float solar_altitude) {
    return CLHIGH(&site_height, &solar_altitude);
}

/// height_factor for whole arrays.
inline void height_factor(const Input<float>& site_height, const Input<float>& solar_altitude,
        std::span<float> result) {
    detail::call_arrays("height_factor", quorvel_height_factor,
        detail::given("site_height", site_height),
        detail::given("solar_altitude", solar_altitude),
        detail::returned("result", result));
}

/// Irradiance outside the atmosphere on a day, by that at the mean distance of the sun.
///
/// Formula: 1 + 0.03344 cos((360 day / 365.25 - 2.8) pi / 180)
///
/// @note 0.967 to 1.033; greatest in the first days of January.
///
/// @param day  1 .. 366: day of the year
/// @return factor
/// Source: Correction of the European Solar Radiation Atlas, 1 + 0.03344 cos(day angle - 2.8
///     degrees).
/// (CLETAJ of quorvel.h)
inline float eccentricity_factor(std::int32_t day) {
    return CLETAJ(&day);
}

/// eccentricity_factor for whole arrays.
inline void eccentricity_factor(const Input<std::int32_t>& day, std::span<float> result) {
    detail::call_arrays("eccentricity_factor", quorvel_eccentricity_factor,
        detail::given("day", day),
        detail::returned("result", result));
}

/// Global horizontal irradiance by that outside the atmosphere.
///
/// Formula: global_horizontal / (1367 CLETAJ(day) sin(solar_altitude))
///
/// @note An altitude of 0 divides by zero: infinite, or not a number for an irradiance of 0.
///
/// @param day  1 .. 366: day of the year
/// @param solar_altitude  rad, 0 .. 1.5707964: solar altitude
/// @param global_horizontal  W/m², from 0: global horizontal irradiance
/// @return clearness index
/// Source: B. Y. H. Liu and R. C. Jordan, Solar Energy 4 (1960), with a solar constant of 1367 W/m²
///     and the eccentricity of CLETAJ.
/// (CLMODUL of quorvel.h)
inline float clearness_index(std::int32_t day, float solar_altitude, float global_horizontal) {
    return CLMODUL(&day, &solar_altitude, &global_horizontal);
}

/// clearness_index for whole arrays.
inline void clearness_index(const Input<std::int32_t>& day, const Input<float>& solar_altitude,
        const Input<float>& global_horizontal, std::span<float> result) {
    detail::call_arrays("clearness_index", quorvel_clearness_index,
        detail::given("day", day),
        detail::given("solar_altitude", solar_altitude),
        detail::given("global_horizontal", global_horizontal),
        detail::returned("result", result));
}

/// What muneer_slope returns.
struct MuneerSlope {
    /// W/m²: beam irradiance on the surface, 0 with the sun behind it
    float surface_beam = detail::none<float>;
    /// W/m²: diffuse irradiance of the sky on the surface
    float surface_diffuse = detail::none<float>;
    /// W/m²: ground-reflected irradiance on the surface
    float ground_reflected = detail::none<float>;
    /// rad: angle of incidence, 1.5707964 with the sun behind the surface
    float incidence = detail::none<float>;
};

/// Arrays for what muneer_slope returns.
struct MuneerSlopeArrays {
    std::span<float> surface_beam;
    std::span<float> surface_diffuse;
    std::span<float> ground_reflected;
    std::span<float> incidence;
};

/// Irradiance on a tilted surface by Muneer's sky: beam, sky diffuse and ground-reflected.
///
/// Formula: surface_beam = beam_horizontal cos(i) / sin(h); surface_diffuse = diffuse_horizontal (f
/// (1 - K) + K cos(i) / sin(h)); ground_reflected = ground_reflectance (beam_horizontal +
/// diffuse_horizontal) sin(b / 2)^2; f = cos(b / 2)^2 + 2 r / (pi (2 r + 3)) (sin(b) - b cos(b) -
/// pi sin(b / 2)^2), K = beam_horizontal / extraterrestrial_horizontal, h = solar_altitude, b =
/// tilt, i = angle of incidence
///
/// @note Radiance index r = 5.73 with the sun behind the surface; else 1.68 for a beam below 5 W/m²
/// and -0.62 from there on. The circumsolar part starts above 5: exactly 5 takes -0.62 without it:
/// deliberate.
///
/// @note With the sun behind the surface cos(i) counts as 0; there, and up to a beam of 5 W/m², K
/// does too.
///
/// @note A sun up to 0.1 rad above the horizon has a form of its own: the diffuse irradiance times
/// the cosine of the angle of incidence, brightened with the tilt. The result jumps there and at
/// the thresholds of the beam.
///
/// @note That form does not become the diffuse irradiance on the horizontal, as it does above 0.1
/// rad: there it is the diffuse irradiance times the sine of the altitude, 10 of 100 W/m² at 0.0999
/// rad and 1 at 0.01 rad, and on a wall that faces the sun 135.
///
/// @note Computed in double precision: 0.1 as a single-precision altitude lies above the limit.
///
/// @note The beam is divided by the sine of the altitude: an altitude of 0 gives an infinite beam
/// on the surface, or no number.
///
/// @param solar_altitude  rad, 0 .. 1.5707964: solar altitude
/// @param solar_azimuth  rad, 0 .. 6.2832: solar azimuth
/// @param surface_azimuth  rad, 0 .. 6.2832: azimuth of the surface's outward normal
/// @param tilt  rad, 0 .. 3.1416: tilt from the horizontal
/// @param beam_horizontal  W/m², from 0: beam irradiance on the horizontal
/// @param diffuse_horizontal  W/m², from 0: diffuse irradiance on the horizontal
/// @param extraterrestrial_horizontal  W/m², 0 .. 1415: irradiance on the horizontal outside the
///     atmosphere
/// @param ground_reflectance  0 .. 1: reflectance of the ground
/// Source: T. Muneer, Solar radiation model for Europe, Building Services Engineering Research and
///     Technology 11 (1990); radiance of the sky after P. Moon and D. E. Spencer (1942).
/// (CLMUNRAD of quorvel.h)
inline MuneerSlope muneer_slope(float solar_altitude, float solar_azimuth, float surface_azimuth,
        float tilt, float beam_horizontal, float diffuse_horizontal,
        float extraterrestrial_horizontal, float ground_reflectance) {
    MuneerSlope out;
    CLMUNRAD(&solar_altitude, &solar_azimuth, &surface_azimuth, &tilt, &beam_horizontal,
        &diffuse_horizontal, &extraterrestrial_horizontal, &ground_reflectance, &out.surface_beam,
        &out.surface_diffuse, &out.ground_reflected, &out.incidence);
    return out;
}

/// muneer_slope for whole arrays.
inline void muneer_slope(const Input<float>& solar_altitude, const Input<float>& solar_azimuth,
        const Input<float>& surface_azimuth, const Input<float>& tilt,
        const Input<float>& beam_horizontal, const Input<float>& diffuse_horizontal,
        const Input<float>& extraterrestrial_horizontal, const Input<float>& ground_reflectance,
        const MuneerSlopeArrays& out) {
    detail::call_arrays("muneer_slope", quorvel_muneer_slope,
        detail::given("solar_altitude", solar_altitude),
        detail::given("solar_azimuth", solar_azimuth),
        detail::given("surface_azimuth", surface_azimuth),
        detail::given("tilt", tilt),
        detail::given("beam_horizontal", beam_horizontal),
        detail::given("diffuse_horizontal", diffuse_horizontal),
        detail::given("extraterrestrial_horizontal", extraterrestrial_horizontal),
        detail::given("ground_reflectance", ground_reflectance),
        detail::returned("surface_beam", out.surface_beam),
        detail::returned("surface_diffuse", out.surface_diffuse),
        detail::returned("ground_reflected", out.ground_reflected),
        detail::returned("incidence", out.incidence));
}

/// Diffuse irradiance of the sky on a tilted surface by the anisotropic sky of Perez.
///
/// Formula: diffuse_horizontal ((1 - F1) cos(tilt / 2)^2 + F1 a / b + F2 sin(tilt)); a =
/// cos(incidence), at least 0, b = sin(solar_altitude), at least 0.0871557; F1 = f11 + f12 D + f13
/// Z, at least 0, F2 = f21 + f22 D + f23 Z
///
/// @note The air mass is that of Kasten and Young with the altitude in radians in place of degrees:
/// 16 % too small for the sun at 2.5 degrees, 4 % at 30 and 2 % in the zenith: deliberate.
///
/// @note The circumsolar part is not below 0, the horizon's part may be; the sum is not limited.
///
/// @note Computed in double precision, coefficients and limits included; a clearness on the limit
/// of two rows of coefficients belongs to the lower. The result jumps between rows, as the
/// published model does.
///
/// @note Altitude, diffuse and extraterrestrial irradiance of 0 divide by zero.
///
/// @note The formula's Z is the sun's angle from the zenith, D the brightness: the air mass times
/// diffuse_horizontal / extraterrestrial_normal. The coefficients f are those of the row of the
/// clearness.
///
/// @param solar_altitude  rad, 0 .. 1.5707964: solar altitude
/// @param tilt  rad, 0 .. 3.1416: tilt from the horizontal
/// @param beam_horizontal  W/m², from 0: beam irradiance on the horizontal
/// @param diffuse_horizontal  W/m², from 0: diffuse irradiance on the horizontal
/// @param incidence  rad, 0 .. 3.1416: angle of incidence of the sun on the surface
/// @param extraterrestrial_normal  W/m², 1320 .. 1415: normal irradiance outside the atmosphere
/// @return W/m²: diffuse irradiance of the sky on the surface
/// Source: R. Perez, P. Ineichen, R. Seals, J. Michalsky and R. Stewart, Modeling daylight
///     availability and irradiance components from direct and global irradiance, Solar Energy 44
///     (1990): composite of all sites, coefficients with all their places. Air mass: F. Kasten and
///     A. T. Young, Applied Optics 28 (1989).
/// (CLPERSKY of quorvel.h)
inline float perez_diffuse(float solar_altitude, float tilt, float beam_horizontal,
        float diffuse_horizontal, float incidence, float extraterrestrial_normal) {
    float out = detail::none<float>;
    CLPERSKY(&solar_altitude, &tilt, &beam_horizontal, &diffuse_horizontal, &out, &incidence,
        &extraterrestrial_normal);
    return out;
}

/// perez_diffuse for whole arrays.
inline void perez_diffuse(const Input<float>& solar_altitude, const Input<float>& tilt,
        const Input<float>& beam_horizontal, const Input<float>& diffuse_horizontal,
        const Input<float>& incidence, const Input<float>& extraterrestrial_normal,
        std::span<float> surface_diffuse) {
    detail::call_arrays("perez_diffuse", quorvel_perez_diffuse,
        detail::given("solar_altitude", solar_altitude),
        detail::given("tilt", tilt),
        detail::given("beam_horizontal", beam_horizontal),
        detail::given("diffuse_horizontal", diffuse_horizontal),
        detail::given("incidence", incidence),
        detail::given("extraterrestrial_normal", extraterrestrial_normal),
        detail::returned("surface_diffuse", surface_diffuse));
}

/// What site_constants returns.
struct SiteConstants {
    /// reflectance of the ground
    float ground_reflectance = detail::none<float>;
    /// factor on the direct normal irradiance
    float beam_factor = detail::none<float>;
    /// factor on the diffuse horizontal irradiance
    float diffuse_factor = detail::none<float>;
    /// factor that takes its place where it is 0
    float alternative_diffuse_factor = detail::none<float>;
};

/// Arrays for what site_constants returns.
struct SiteConstantsArrays {
    std::span<float> ground_reflectance;
    std::span<float> beam_factor;
    std::span<float> diffuse_factor;
    std::span<float> alternative_diffuse_factor;
};

/// Radiation constants of a site class in a month.
///
/// @note Only class 1 varies over the year. Classes 4 and 6 have a diffuse factor of 0 and the
/// alternative one in its place; the caller chooses.
///
/// @note A site class outside 1 to 6 or a month outside 1 to 12 gives four zeros.
///
/// @param site_class  1 .. 6: site class
/// @param month  1 .. 12: month
/// Source: Table of design constants of the library.
/// (CLCONS of quorvel.h)
inline SiteConstants site_constants(std::int32_t site_class, std::int32_t month) {
    SiteConstants out;
    CLCONS(&site_class, &month, &out.ground_reflectance, &out.beam_factor, &out.diffuse_factor,
        &out.alternative_diffuse_factor);
    return out;
}

/// site_constants for whole arrays.
inline void site_constants(const Input<std::int32_t>& site_class, const Input<std::int32_t>& month,
        const SiteConstantsArrays& out) {
    detail::call_arrays("site_constants", quorvel_site_constants,
        detail::given("site_class", site_class),
        detail::given("month", month),
        detail::returned("ground_reflectance", out.ground_reflectance),
        detail::returned("beam_factor", out.beam_factor),
        detail::returned("diffuse_factor", out.diffuse_factor),
        detail::returned("alternative_diffuse_factor", out.alternative_diffuse_factor));
}

/// Diffuse irradiance of the sky on a tilted surface without circumsolar part, by that on the
/// horizontal.
///
/// Formula: cos(b / 2)^2 + a (sin(b) - b cos(b) - pi sin(b / 2)^2), b = tilt; model 0: a = 2 r /
/// (pi (2 r + 3)), model 1: 0.00333 - 0.415 K - 0.6987 K^2, model 2: 0.00263 - 0.712 K - 0.6883
/// K^2; K = beam_horizontal / (1367 CLETAJ(day) sin(solar_altitude))
///
/// @note Model 0 takes the radiance index r = 5.73 up to an altitude of 0, 1.68 for a beam below 5
/// W/m² and -0.62 otherwise; the side of the surface does not matter here.
///
/// @note Models 1 and 2 divide by the sine of the altitude: at 0 the factor is infinite or no
/// number.
///
/// @param day  1 .. 366: day of the year
/// @param solar_altitude  rad, 0 .. 1.5707964: solar altitude
/// @param beam_horizontal  W/m², from 0: beam irradiance on the horizontal
/// @param tilt  rad, 0 .. 3.1416: tilt from the horizontal
/// @param sky_model  model of the sky: 0 radiance index by the kind of sky, 1 clearness, northern
///     Europe, 2 clearness, southern Europe, as any other value
/// @return factor, 1 for a horizontal surface
/// Source: T. Muneer, Solar radiation model for Europe, Building Services Engineering Research and
///     Technology 11 (1990), with a solar constant of 1367 W/m² and the eccentricity of CLETAJ.
/// (CLDIFRAD of quorvel.h)
inline float diffuse_tilt_factor(std::int32_t day, float solar_altitude, float beam_horizontal,
        float tilt, std::int32_t sky_model) {
    return CLDIFRAD(&day, &solar_altitude, &beam_horizontal, &detail::unread<float>, &tilt,
        &sky_model);
}

/// diffuse_tilt_factor for whole arrays.
inline void diffuse_tilt_factor(const Input<std::int32_t>& day, const Input<float>& solar_altitude,
        const Input<float>& beam_horizontal, const Input<float>& tilt,
        const Input<std::int32_t>& sky_model, std::span<float> result) {
    detail::call_arrays("diffuse_tilt_factor", quorvel_diffuse_tilt_factor,
        detail::given("day", day),
        detail::given("solar_altitude", solar_altitude),
        detail::given("beam_horizontal", beam_horizontal),
        detail::given("tilt", tilt),
        detail::given("sky_model", sky_model),
        detail::returned("result", result));
}

/// Diffuse irradiance of the sky on a tilted surface by day of the year and model of the sky.
///
/// Formula: diffuse_horizontal (f (1 - K) + K cos(i) / sin(solar_altitude)); f = CLDIFRAD, i =
/// angle of incidence
///
/// @note The factor of CLDIFRAD and a circumsolar part, weighted by the clearness of the beam. A
/// sun behind the surface has no circumsolar part, as one whose direction is not a number.
///
/// @note From a beam of 5 W/m² on, a sun below 0.1 rad has a form of its own, which follows the
/// clearness but not the model. The result jumps there.
///
/// @note On the horizontal the result is the diffuse irradiance, but for that form, which brightens
/// it around the sun: at 0.0999 rad by 0.4 % for a beam of 50 W/m² and by 4.5 % for 600.
///
/// @note Divides by the sine of the altitude: at 0 the result is infinite or no number.
///
/// @note K is that of CLDIFRAD.
///
/// @param day  1 .. 366: day of the year
/// @param solar_altitude  rad, 0 .. 1.5707964: solar altitude
/// @param solar_azimuth  rad, 0 .. 6.2832: solar azimuth
/// @param surface_azimuth  rad, 0 .. 6.2832: azimuth of the surface's outward normal
/// @param tilt  rad, 0 .. 3.1416: tilt from the horizontal
/// @param beam_horizontal  W/m², from 0: beam irradiance on the horizontal
/// @param diffuse_horizontal  W/m², from 0: diffuse irradiance on the horizontal
/// @param sky_model  model of the sky: 0 radiance index by the kind of sky, 1 clearness, northern
///     Europe, 2 clearness, southern Europe, as any other value
/// @return W/m²: diffuse irradiance of the sky on the surface
/// Source: As CLDIFRAD. Low sun: the clear sky of R. C. Temps and K. L. Coulson (Solar Energy 19,
///     1977) with the modulation by T. M. Klucher (Solar Energy 23, 1979), the beam clearness in
///     place of his factor.
/// (CLDIFSLO of quorvel.h)
inline float slope_diffuse(std::int32_t day, float solar_altitude, float solar_azimuth,
        float surface_azimuth, float tilt, float beam_horizontal, float diffuse_horizontal,
        std::int32_t sky_model) {
    return CLDIFSLO(&day, &solar_altitude, &solar_azimuth, &surface_azimuth, &tilt,
        &beam_horizontal, &diffuse_horizontal, &sky_model);
}

/// slope_diffuse for whole arrays.
inline void slope_diffuse(const Input<std::int32_t>& day, const Input<float>& solar_altitude,
        const Input<float>& solar_azimuth, const Input<float>& surface_azimuth,
        const Input<float>& tilt, const Input<float>& beam_horizontal,
        const Input<float>& diffuse_horizontal, const Input<std::int32_t>& sky_model,
        std::span<float> result) {
    detail::call_arrays("slope_diffuse", quorvel_slope_diffuse,
        detail::given("day", day),
        detail::given("solar_altitude", solar_altitude),
        detail::given("solar_azimuth", solar_azimuth),
        detail::given("surface_azimuth", surface_azimuth),
        detail::given("tilt", tilt),
        detail::given("beam_horizontal", beam_horizontal),
        detail::given("diffuse_horizontal", diffuse_horizontal),
        detail::given("sky_model", sky_model),
        detail::returned("result", result));
}

/// Temperature of the sol-air kind: a base temperature raised by a net gain of heat.
///
/// Formula: base_temperature + absorptance (irradiance - long_wave_loss) / surface_coefficient
///
/// @note The absorptance weighs the long-wave loss as it does the irradiance.
///
/// @note A coefficient of 0 divides by zero.
///
/// @param base_temperature  °C, -100 .. 200: base temperature, as of the air outdoors
/// @param surface_coefficient  W/m²K, from 0: heat transfer coefficient of the surface
/// @param absorptance  0 .. 1: absorptance
/// @param irradiance  W/m², from 0: solar irradiance on the surface
/// @param long_wave_loss  W/m², from 0: net loss
/// @return °C: sol-air temperature
/// Source: Heat balance of an outer surface.
/// (CLTEO of quorvel.h)
inline float sol_air_temperature(float base_temperature, float surface_coefficient,
        float absorptance, float irradiance, float long_wave_loss) {
    return CLTEO(&base_temperature, &surface_coefficient, &absorptance, &detail::unread<float>,
        &detail::unread<float>, &irradiance, &long_wave_loss);
}

/// sol_air_temperature for whole arrays.
inline void sol_air_temperature(const Input<float>& base_temperature,
        const Input<float>& surface_coefficient, const Input<float>& absorptance,
        const Input<float>& irradiance, const Input<float>& long_wave_loss,
        std::span<float> result) {
    detail::call_arrays("sol_air_temperature", quorvel_sol_air_temperature,
        detail::given("base_temperature", base_temperature),
        detail::given("surface_coefficient", surface_coefficient),
        detail::given("absorptance", absorptance),
        detail::given("irradiance", irradiance),
        detail::given("long_wave_loss", long_wave_loss),
        detail::returned("result", result));
}

/// Net long-wave radiation that a surface loses to its surroundings, never negative.
///
/// Formula: 72 cos(tilt) + 21 - (62 cos(tilt) + 17) cloud_cover, at least 0
///
/// @note Horizontal 93 - 79 cloud_cover, vertical 21 - 17 cloud_cover, between them by the cosine
/// of the tilt. Less than nothing is 0; not a number stays so.
///
/// @param tilt  rad, 0 .. 3.1416: tilt from the horizontal
/// @param cloud_cover  0 .. 1: share of the sky that is covered by cloud
/// @return W/m²: net loss
/// Source: Net long-wave losses of horizontal and vertical surfaces by cloud cover, as building
///     services guides print them; meaning of the arguments inferred from these values.
/// (CLRERD of quorvel.h)
inline float long_wave_loss(float tilt, float cloud_cover) {
    return CLRERD(&tilt, &cloud_cover);
}

/// long_wave_loss for whole arrays.
inline void long_wave_loss(const Input<float>& tilt, const Input<float>& cloud_cover,
        std::span<float> result) {
    detail::call_arrays("long_wave_loss", quorvel_long_wave_loss,
        detail::given("tilt", tilt),
        detail::given("cloud_cover", cloud_cover),
        detail::returned("result", result));
}

/// What is to be added to clock time to get solar time.
///
/// Formula: equation of time - clock_offset - (longitude - reference_longitude) / 0.2618
///
/// @note Only the difference of the longitudes counts. Given positive east instead, it enters with
/// the wrong sign.
///
/// @note The equation of time stays within 0.7 min of the true one.
///
/// @note The hour is rounded to 0.2618 rad here and not in CLSNGE: deliberate.
///
/// @param clock_offset  h: hours by which the clock is put forward, as in summer time
/// @param day  1 .. 366: day of the year
/// @param longitude  rad, -3.1416 .. 3.1416: longitude of the site, positive west
/// @param reference_longitude  rad, -3.1416 .. 3.1416: longitude of the clock's meridian, positive
///     west
/// @return h: correction
/// Source: Fourier series of the equation of time to the third harmonic, of the kind given by J. W.
///     Spencer, Search 2 (1971); coefficients refitted.
/// (CLTCOR of quorvel.h)
inline float solar_time_correction(float clock_offset, std::int32_t day, float longitude,
        float reference_longitude) {
    return CLTCOR(&clock_offset, &day, &longitude, &reference_longitude);
}

/// solar_time_correction for whole arrays.
inline void solar_time_correction(const Input<float>& clock_offset, const Input<std::int32_t>& day,
        const Input<float>& longitude, const Input<float>& reference_longitude,
        std::span<float> result) {
    detail::call_arrays("solar_time_correction", quorvel_solar_time_correction,
        detail::given("clock_offset", clock_offset),
        detail::given("day", day),
        detail::given("longitude", longitude),
        detail::given("reference_longitude", reference_longitude),
        detail::returned("result", result));
}

/// What almanac_position returns.
struct AlmanacPosition {
    /// rad: longitude, positive west; as given except with solar time
    float longitude = detail::none<float>;
    /// rad: longitude of the clock's meridian, positive west; as given except with solar time
    float zone_meridian = detail::none<float>;
    /// rad: altitude, negative below the horizon; no refraction
    float solar_altitude = detail::none<float>;
    /// rad: azimuth
    float solar_azimuth = detail::none<float>;
    /// rad: declination
    float declination = detail::none<float>;
};

/// Arrays for what almanac_position returns.
struct AlmanacPositionArrays {
    std::span<float> longitude;
    std::span<float> zone_meridian;
    std::span<float> solar_altitude;
    std::span<float> solar_azimuth;
    std::span<float> declination;
};

/// Altitude, azimuth and declination of the sun by calendar date and clock.
///
/// @note Within 0.03 degrees, and of the azimuth 0.1 degrees where the sun is near due south or
/// north, since a cosine of azimuth beyond 0.999999 in size counts as 1. Of this 0.02 degrees come
/// from a misplaced degree factor in the equation of the centre: deliberate.
///
/// @note The hour angle is not brought into -180 to 180 degrees. Its sign decides between morning
/// and afternoon, so within an hour of midnight the azimuth may be the mirror image.
///
/// @note A kind of time other than 1 and 2 counts as 3. Date and hour are not checked: a day beyond
/// the month's end counts on into the next month. Before March 1976 three years of four are a day
/// late; 2100 is given a leap day.
///
/// @param time_kind  what the time is: 1 solar time; longitude and zone meridian are set to 0, 2
///     clock of the zone, at the longitude, 3 solar time; the zone meridian only dates the
///     declination
/// @param year  1976 .. 2099: year
/// @param month  1 .. 12: month
/// @param day_of_month  1 .. 31: day of the month
/// @param clock_time  h, 0 .. 24: clock hour
/// @param latitude  rad, -1.5707964 .. 1.5707964: latitude, positive north
/// @param longitude  rad, -3.1416 .. 3.1416: longitude, positive west
/// @param zone_meridian  rad, -3.1416 .. 3.1416: longitude of the clock's meridian, positive west
/// Source: Low-precision formulas of B. D. Yallop for the sun, as printed in T. Muneer, Solar
///     Radiation and Daylight Models for the Energy Efficient Design of Buildings, 1997.
/// (CLYALLOP of quorvel.h)
inline AlmanacPosition almanac_position(std::int32_t time_kind, std::int32_t year,
        std::int32_t month, std::int32_t day_of_month, float clock_time, float latitude,
        float longitude, float zone_meridian) {
    AlmanacPosition out;
    out.longitude = longitude;
    out.zone_meridian = zone_meridian;
    CLYALLOP(&time_kind, &year, &month, &day_of_month, &clock_time, &latitude, &out.longitude,
        &out.zone_meridian, &out.solar_altitude, &out.solar_azimuth, &out.declination);
    return out;
}

/// almanac_position for whole arrays.
inline void almanac_position(const Input<std::int32_t>& time_kind, const Input<std::int32_t>& year,
        const Input<std::int32_t>& month, const Input<std::int32_t>& day_of_month,
        const Input<float>& clock_time, const Input<float>& latitude, const Input<float>& longitude,
        const Input<float>& zone_meridian, const AlmanacPositionArrays& out) {
    detail::call_arrays("almanac_position", quorvel_almanac_position,
        detail::given("time_kind", time_kind),
        detail::given("year", year),
        detail::given("month", month),
        detail::given("day_of_month", day_of_month),
        detail::given("clock_time", clock_time),
        detail::given("latitude", latitude),
        detail::given("longitude", longitude),
        detail::given("zone_meridian", zone_meridian),
        detail::returned("longitude", out.longitude),
        detail::returned("zone_meridian", out.zone_meridian),
        detail::returned("solar_altitude", out.solar_altitude),
        detail::returned("solar_azimuth", out.solar_azimuth),
        detail::returned("declination", out.declination));
}

/// What almanac_sun_hours returns.
struct AlmanacSunHours {
    /// h: sunrise; 25 when the sun does not rise, 0 when it does not set
    float sunrise = detail::none<float>;
    /// h: sunset; 25 when the sun does not set, 0 when it does not rise
    float sunset = detail::none<float>;
};

/// Arrays for what almanac_sun_hours returns.
struct AlmanacSunHoursArrays {
    std::span<float> sunrise;
    std::span<float> sunset;
};

/// Sunrise and sunset in solar time by calendar date.
///
/// @note The centre of the sun on a level horizon without refraction, with the declination of noon
/// at Greenwich.
///
/// @note Dates as in CLYALLOP. A latitude of 1.5707964, or its negative, is by rounding just beyond
/// the pole: midnight sun and polar night change places there.
///
/// @param year  1976 .. 2099: year
/// @param month  1 .. 12: month
/// @param day_of_month  1 .. 31: day of the month
/// @param latitude  rad, -1.5707964 .. 1.5707964: latitude, positive north
/// Source: Declination as CLYALLOP; sunrise equation.
/// (CLRISESET of quorvel.h)
inline AlmanacSunHours almanac_sun_hours(std::int32_t year, std::int32_t month,
        std::int32_t day_of_month, float latitude) {
    AlmanacSunHours out;
    CLRISESET(&year, &month, &day_of_month, &latitude, &out.sunrise, &out.sunset);
    return out;
}

/// almanac_sun_hours for whole arrays.
inline void almanac_sun_hours(const Input<std::int32_t>& year, const Input<std::int32_t>& month,
        const Input<std::int32_t>& day_of_month, const Input<float>& latitude,
        const AlmanacSunHoursArrays& out) {
    detail::call_arrays("almanac_sun_hours", quorvel_almanac_sun_hours,
        detail::given("year", year),
        detail::given("month", month),
        detail::given("day_of_month", day_of_month),
        detail::given("latitude", latitude),
        detail::returned("sunrise", out.sunrise),
        detail::returned("sunset", out.sunset));
}

/// What solar_geometry returns.
struct SolarGeometry {
    /// rad: declination
    float declination = detail::none<float>;
    /// rad: altitude, 0 when the sun is below the horizon
    float solar_altitude = detail::none<float>;
    /// rad: azimuth, 0 when the sun is below the horizon
    float solar_azimuth = detail::none<float>;
    /// h: sunrise; 25 when the sun does not rise, 0 when it does not set; not a number with
    /// latitude, day or hour outside its range
    float sunrise = detail::none<float>;
    /// h: sunset; 25 when the sun does not set, 0 when it does not rise; not a number with
    /// latitude, day or hour outside its range
    float sunset = detail::none<float>;
};

/// Arrays for what solar_geometry returns.
struct SolarGeometryArrays {
    std::span<float> declination;
    std::span<float> solar_altitude;
    std::span<float> solar_azimuth;
    std::span<float> sunrise;
    std::span<float> sunset;
};

/// Declination, altitude and azimuth of the sun, sunrise and sunset, by latitude, day of the year
/// and solar hour.
///
/// Formula: sin(declination) = 0.398 sin(d - 1.4096 + 0.03347 sin(d)), d = 0.01721 day;
/// sin(altitude) = sin(declination) sin(latitude) + cos(declination) cos(latitude) cos(H), H =
/// 0.261799395 (12 - solar_time); sunrise = 12 / pi acos(tan(latitude) tan(declination)), sunset =
/// 24 - sunrise
///
/// @note Latitude, day or hour outside its range (day 366 too) gives a declination, altitude and
/// azimuth of 0.
///
/// @note Within 0.5 degrees of the true position; no leap years, no refraction, the sun a point.
///
/// @note Noon counts as morning. With the sun in the zenith the azimuth is arbitrary.
///
/// @note A latitude of 1.5707964, or its negative, is by rounding just beyond the pole: midnight
/// sun and polar night change places there.
///
/// @note Not a number for the latitude or the hour makes what depends on it not a number.
///
/// @param latitude  rad, -1.5707964 .. 1.5707964: latitude, positive north
/// @param day  1 .. 365: day of the year
/// @param solar_time  h, 0 .. 24: solar time, noon at 12
/// Source: Spherical astronomy; sine of the declination as 0.398 times the sine of the sun's
///     ecliptic longitude, with the first-order equation of the centre.
/// (CLSNGE of quorvel.h)
inline SolarGeometry solar_geometry(float latitude, std::int32_t day, float solar_time) {
    SolarGeometry out;
    CLSNGE(&latitude, &day, &solar_time, &out.declination, &out.solar_altitude, &out.solar_azimuth,
        &out.sunrise, &out.sunset);
    return out;
}

/// solar_geometry for whole arrays.
inline void solar_geometry(const Input<float>& latitude, const Input<std::int32_t>& day,
        const Input<float>& solar_time, const SolarGeometryArrays& out) {
    detail::call_arrays("solar_geometry", quorvel_solar_geometry,
        detail::given("latitude", latitude),
        detail::given("day", day),
        detail::given("solar_time", solar_time),
        detail::returned("declination", out.declination),
        detail::returned("solar_altitude", out.solar_altitude),
        detail::returned("solar_azimuth", out.solar_azimuth),
        detail::returned("sunrise", out.sunrise),
        detail::returned("sunset", out.sunset));
}

/// What surface_angles returns.
struct SurfaceAngles {
    /// rad: angle of incidence, 0 to pi; above pi/2 the sun is behind the surface
    float incidence = detail::none<float>;
    /// rad: angle off the normal in the plane of normal and slope, positive up the slope; the
    /// profile angle of a vertical surface
    float vertical_shadow_angle = detail::none<float>;
    /// rad: angle off the normal in the plane of normal and level line, positive clockwise seen
    /// from above
    float horizontal_shadow_angle = detail::none<float>;
};

/// Arrays for what surface_angles returns.
struct SurfaceAnglesArrays {
    std::span<float> incidence;
    std::span<float> vertical_shadow_angle;
    std::span<float> horizontal_shadow_angle;
};

/// Angle of incidence of the sun on a surface, and its angles in the vertical and the horizontal
/// sense.
///
/// Formula: cos(incidence) = cos(solar_altitude) sin(tilt) cos(solar_azimuth - surface_azimuth) +
/// sin(solar_altitude) cos(tilt)
///
/// @note With the sun behind the surface the two angles exceed pi/2 in size.
///
/// @note With the sun along the level line the vertical angle is pi/2, with the sun along the slope
/// line the horizontal angle is -pi/2: exactly so only where the components vanish, anything by
/// rounding otherwise.
///
/// @note The components are rounded, so angles below 0.0005 rad are not resolved.
///
/// @param solar_altitude  rad, -1.5707964 .. 1.5707964: solar altitude
/// @param solar_azimuth  rad, 0 .. 6.2832: solar azimuth
/// @param surface_azimuth  rad, 0 .. 6.2832: azimuth of the surface's outward normal
/// @param tilt  rad, 0 .. 3.1416: tilt from the horizontal
/// Source: Vector algebra: the sun's direction in the frame of level line, slope line and outward
///     normal.
/// (CLSNSR of quorvel.h)
inline SurfaceAngles surface_angles(float solar_altitude, float solar_azimuth,
        float surface_azimuth, float tilt) {
    SurfaceAngles out;
    CLSNSR(&solar_altitude, &solar_azimuth, &surface_azimuth, &tilt, &out.incidence,
        &out.vertical_shadow_angle, &out.horizontal_shadow_angle);
    return out;
}

/// surface_angles for whole arrays.
inline void surface_angles(const Input<float>& solar_altitude, const Input<float>& solar_azimuth,
        const Input<float>& surface_azimuth, const Input<float>& tilt,
        const SurfaceAnglesArrays& out) {
    detail::call_arrays("surface_angles", quorvel_surface_angles,
        detail::given("solar_altitude", solar_altitude),
        detail::given("solar_azimuth", solar_azimuth),
        detail::given("surface_azimuth", surface_azimuth),
        detail::given("tilt", tilt),
        detail::returned("incidence", out.incidence),
        detail::returned("vertical_shadow_angle", out.vertical_shadow_angle),
        detail::returned("horizontal_shadow_angle", out.horizontal_shadow_angle));
}

/// What surface_irradiance returns.
struct SurfaceIrradiance {
    /// W/m²: beam irradiance on the surface, 0 with the sun behind it
    float surface_beam = detail::none<float>;
    /// W/m²: diffuse irradiance of the sky on the surface
    float surface_diffuse = detail::none<float>;
    /// W/m²: ground-reflected irradiance on the surface
    float ground_reflected = detail::none<float>;
};

/// Arrays for what surface_irradiance returns.
struct SurfaceIrradianceArrays {
    std::span<float> surface_beam;
    std::span<float> surface_diffuse;
    std::span<float> ground_reflected;
};

/// Irradiance on the plane of a surface: direct from the sun, diffuse from the sky, reflected from
/// the ground.
///
/// Formula: surface_beam = direct_normal beam_factor cos(i); surface_diffuse = d (1 + cos(tilt)) /
/// 2 (1 - 0.1 sin(tilt) (1 + cos(surface_azimuth))); ground_reflected = ground_reflectance (1 -
/// cos(tilt)) / 2 (d + direct_normal beam_factor sin(solar_altitude)); d = diffuse_horizontal
/// diffuse_factor, i = angle of incidence, the beam 0 behind the surface
///
/// @note A vertical surface gets up to 20 % less diffuse irradiance the more it faces north,
/// whatever the hemisphere.
///
/// @note Nothing is limited: a negative altitude or irradiance gives negative parts. An angle that
/// is not a number gives a direct irradiance of 0.
///
/// @param solar_altitude  rad, 0 .. 1.5707964: solar altitude
/// @param solar_azimuth  rad, 0 .. 6.2832: solar azimuth
/// @param surface_azimuth  rad, 0 .. 6.2832: azimuth of the surface's outward normal
/// @param tilt  rad, 0 .. 3.1416: tilt from the horizontal
/// @param direct_normal  W/m², from 0: direct normal irradiance
/// @param diffuse_horizontal  W/m², from 0: diffuse irradiance on the horizontal
/// @param ground_reflectance  0 .. 1: reflectance of the ground
/// @param beam_factor  from 0: factor on the direct normal irradiance
/// @param diffuse_factor  from 0: factor on the diffuse horizontal irradiance
/// Source: Cosine law; isotropic sky and ground by view factors (B. Y. H. Liu and R. C. Jordan,
///     Solar Energy 4, 1960), with an empirical darkening to the north.
/// (CLSORD of quorvel.h)
inline SurfaceIrradiance surface_irradiance(float solar_altitude, float solar_azimuth,
        float surface_azimuth, float tilt, float direct_normal, float diffuse_horizontal,
        float ground_reflectance, float beam_factor, float diffuse_factor) {
    SurfaceIrradiance out;
    CLSORD(&solar_altitude, &solar_azimuth, &surface_azimuth, &tilt, &direct_normal,
        &diffuse_horizontal, &ground_reflectance, &beam_factor, &diffuse_factor, &out.surface_beam,
        &out.surface_diffuse, &out.ground_reflected);
    return out;
}

/// surface_irradiance for whole arrays.
inline void surface_irradiance(const Input<float>& solar_altitude,
        const Input<float>& solar_azimuth, const Input<float>& surface_azimuth,
        const Input<float>& tilt, const Input<float>& direct_normal,
        const Input<float>& diffuse_horizontal, const Input<float>& ground_reflectance,
        const Input<float>& beam_factor, const Input<float>& diffuse_factor,
        const SurfaceIrradianceArrays& out) {
    detail::call_arrays("surface_irradiance", quorvel_surface_irradiance,
        detail::given("solar_altitude", solar_altitude),
        detail::given("solar_azimuth", solar_azimuth),
        detail::given("surface_azimuth", surface_azimuth),
        detail::given("tilt", tilt),
        detail::given("direct_normal", direct_normal),
        detail::given("diffuse_horizontal", diffuse_horizontal),
        detail::given("ground_reflectance", ground_reflectance),
        detail::given("beam_factor", beam_factor),
        detail::given("diffuse_factor", diffuse_factor),
        detail::returned("surface_beam", out.surface_beam),
        detail::returned("surface_diffuse", out.surface_diffuse),
        detail::returned("ground_reflected", out.ground_reflected));
}

/// What surface_irradiance_and_incidence returns.
struct SurfaceIrradianceAndIncidence {
    /// W/m²: beam irradiance on the surface, 0 with the sun behind it
    float surface_beam = detail::none<float>;
    /// W/m²: diffuse irradiance of the sky on the surface
    float surface_diffuse = detail::none<float>;
    /// W/m²: ground-reflected irradiance on the surface
    float ground_reflected = detail::none<float>;
    /// rad: angle of incidence, 1.5707964 with the sun behind the surface
    float incidence = detail::none<float>;
};

/// Arrays for what surface_irradiance_and_incidence returns.
struct SurfaceIrradianceAndIncidenceArrays {
    std::span<float> surface_beam;
    std::span<float> surface_diffuse;
    std::span<float> ground_reflected;
    std::span<float> incidence;
};

/// Irradiance on the plane of a surface as CLSORD, and the angle of incidence.
///
/// @note The irradiances are those of CLSORD, bit for bit; see there.
///
/// @note CLSNSR gives the angle of incidence behind the surface too.
///
/// @param solar_altitude  rad, 0 .. 1.5707964: solar altitude
/// @param solar_azimuth  rad, 0 .. 6.2832: solar azimuth
/// @param surface_azimuth  rad, 0 .. 6.2832: azimuth of the surface's outward normal
/// @param tilt  rad, 0 .. 3.1416: tilt from the horizontal
/// @param direct_normal  W/m², from 0: direct normal irradiance
/// @param diffuse_horizontal  W/m², from 0: diffuse irradiance on the horizontal
/// @param ground_reflectance  0 .. 1: reflectance of the ground
/// @param beam_factor  from 0: factor on the direct normal irradiance
/// @param diffuse_factor  from 0: factor on the diffuse horizontal irradiance
/// Source: As CLSORD.
/// (CLSOR2 of quorvel.h)
inline SurfaceIrradianceAndIncidence surface_irradiance_and_incidence(float solar_altitude,
        float solar_azimuth, float surface_azimuth, float tilt, float direct_normal,
        float diffuse_horizontal, float ground_reflectance, float beam_factor,
        float diffuse_factor) {
    SurfaceIrradianceAndIncidence out;
    CLSOR2(&solar_altitude, &solar_azimuth, &surface_azimuth, &tilt, &direct_normal,
        &diffuse_horizontal, &ground_reflectance, &beam_factor, &diffuse_factor, &out.surface_beam,
        &out.surface_diffuse, &out.ground_reflected, &out.incidence);
    return out;
}

/// surface_irradiance_and_incidence for whole arrays.
inline void surface_irradiance_and_incidence(const Input<float>& solar_altitude,
        const Input<float>& solar_azimuth, const Input<float>& surface_azimuth,
        const Input<float>& tilt, const Input<float>& direct_normal,
        const Input<float>& diffuse_horizontal, const Input<float>& ground_reflectance,
        const Input<float>& beam_factor, const Input<float>& diffuse_factor,
        const SurfaceIrradianceAndIncidenceArrays& out) {
    detail::call_arrays("surface_irradiance_and_incidence",
        quorvel_surface_irradiance_and_incidence,
        detail::given("solar_altitude", solar_altitude),
        detail::given("solar_azimuth", solar_azimuth),
        detail::given("surface_azimuth", surface_azimuth),
        detail::given("tilt", tilt),
        detail::given("direct_normal", direct_normal),
        detail::given("diffuse_horizontal", diffuse_horizontal),
        detail::given("ground_reflectance", ground_reflectance),
        detail::given("beam_factor", beam_factor),
        detail::given("diffuse_factor", diffuse_factor),
        detail::returned("surface_beam", out.surface_beam),
        detail::returned("surface_diffuse", out.surface_diffuse),
        detail::returned("ground_reflected", out.ground_reflected),
        detail::returned("incidence", out.incidence));
}

}  // namespace v0
}  // namespace quorvel::climate
