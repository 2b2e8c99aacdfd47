// Interim: produced from the catalogue.
#include "climate/band_table.h"
#include "climate/calendar.h"
#include "climate/daily_wave.h"
#include "climate/design_sky.h"
#include "climate/extraterrestrial.h"
#include "climate/muneer_sky.h"
#include "climate/perez_sky.h"
#include "climate/site.h"
#include "climate/slope_diffuse.h"
#include "climate/sol_air.h"
#include "climate/solar_time.h"
#include "climate/sun_almanac.h"
#include "climate/sun_position.h"
#include "climate/surface.h"
#include "entry/entry.h"
using namespace quorvel;
using namespace quorvel::entry;

void CLDAY(const Integer* month, Integer* day) {
    store(climate::design_day<Real>(*month), day);
}

void CLDAYEX(const Integer* month, Integer* day, const Integer* option) {
    store(climate::design_day_by_option<Real>(*month, *option), day);
}

Integer ICLDAY(const Integer* month) {
    return climate::design_day<Real>(*month);
}

Integer ICLDAYEX(const Integer* month, const Integer* option) {
    return climate::design_day_by_option<Real>(*month, *option);
}

Integer ICLDA2(const Integer* month) {
    return climate::second_design_day<Real>(*month);
}

Integer ICLDA2EX(const Integer* month, const Integer* option) {
    return climate::second_design_day_by_option<Real>(*month, *option);
}

void CLCONS(const Integer* site_class, const Integer* month, Real* ground_reflectance, Real* beam_factor, Real* diffuse_factor, Real* alternative_diffuse_factor) {
    const auto [ground_reflectance_value, beam_factor_value, diffuse_factor_value, alternative_diffuse_factor_value] = climate::site_constants<Real>(*site_class, *month);
    store(ground_reflectance_value, ground_reflectance);
    store(beam_factor_value, beam_factor);
    store(diffuse_factor_value, diffuse_factor);
    store(alternative_diffuse_factor_value, alternative_diffuse_factor);
}

Real CLTCOR(const Real* offset, const Integer* day, const Real* longitude, const Real* reference_longitude) {
    return climate::solar_time_correction<Real>(*offset, *day, *longitude, *reference_longitude);
}

void CLBAND(const Integer* band, const Integer* month, const Integer* set, Real* percentage, Real* q1, Real* q2, Real* q3, Real* q4, Real* q5, Real* q6, Real* time_a, Real* time_b, Real* q7, Real* q8) {
    const auto [percentage_value, q1_value, q2_value, q3_value, q4_value, q5_value, q6_value, time_a_value, time_b_value, q7_value, q8_value] = climate::band_climate<Real>(*band, *month, *set, *percentage);
    store(percentage_value, percentage);
    store(q1_value, q1);
    store(q2_value, q2);
    store(q3_value, q3);
    store(q4_value, q4);
    store(q5_value, q5);
    store(q6_value, q6);
    store(time_a_value, time_a);
    store(time_b_value, time_b);
    store(q7_value, q7);
    store(q8_value, q8);
}

void CLBAN2(const Integer* base, const Integer* lower, const Integer* upper, const Integer* month, const Real* weight, Real* value) {
    store(climate::interpolate_band_rows<Real>(*base, *lower, *upper, *month, *weight), value);
}

void CLBAN3(const Integer* row, Real* values) {
    store(climate::band_row<Real>(*row), values);
}

void CLSNGE(const Real* latitude, const Integer* day, const Real* hour, Real* declination, Real* altitude, Real* azimuth, Real* sunrise, Real* sunset) {
    const auto [declination_value, altitude_value, azimuth_value, sunrise_value, sunset_value] = climate::solar_geometry<Real>(*latitude, *day, *hour);
    store(declination_value, declination);
    store(altitude_value, altitude);
    store(azimuth_value, azimuth);
    store(sunrise_value, sunrise);
    store(sunset_value, sunset);
}

void CLSNSR(const Real* altitude, const Real* azimuth, const Real* surface_azimuth, const Real* tilt, Real* incidence, Real* vertical, Real* horizontal) {
    const auto [incidence_value, vertical_value, horizontal_value] = climate::surface_angles<Real>(*altitude, *azimuth, *surface_azimuth, *tilt);
    store(incidence_value, incidence);
    store(vertical_value, vertical);
    store(horizontal_value, horizontal);
}

void CLSNNR(const Real* altitude, const Real*, const Real* height, const Integer* sky_kind, Real* direct_normal, Real* diffuse_horizontal) {
    const auto [direct_normal_value, diffuse_horizontal_value] = climate::design_irradiance<Real>(*altitude, *height, *sky_kind);
    store(direct_normal_value, direct_normal);
    store(diffuse_horizontal_value, diffuse_horizontal);
}

Real CLHIGH(const Real* height, const Real* altitude) {
    return climate::height_factor<Real>(*height, *altitude);
}

void CLSORD(const Real* altitude, const Real* azimuth, const Real* surface_azimuth, const Real* tilt, const Real* direct_normal, const Real* diffuse_horizontal, const Real* ground_reflectance, const Real* beam_factor, const Real* diffuse_factor, Real* direct, Real* diffuse, Real* ground) {
    const auto [direct_value, diffuse_value, ground_value] = climate::surface_irradiance<Real>(*altitude, *azimuth, *surface_azimuth, *tilt, *direct_normal, *diffuse_horizontal, *ground_reflectance, *beam_factor, *diffuse_factor);
    store(direct_value, direct);
    store(diffuse_value, diffuse);
    store(ground_value, ground);
}

void CLSOR2(const Real* altitude, const Real* azimuth, const Real* surface_azimuth, const Real* tilt, const Real* direct_normal, const Real* diffuse_horizontal, const Real* ground_reflectance, const Real* beam_factor, const Real* diffuse_factor, Real* direct, Real* diffuse, Real* ground, Real* incidence) {
    const auto [direct_value, diffuse_value, ground_value, incidence_value] = climate::surface_irradiance_and_incidence<Real>(*altitude, *azimuth, *surface_azimuth, *tilt, *direct_normal, *diffuse_horizontal, *ground_reflectance, *beam_factor, *diffuse_factor);
    store(direct_value, direct);
    store(diffuse_value, diffuse);
    store(ground_value, ground);
    store(incidence_value, incidence);
}

void CLYALLOP(const Integer* mode, const Integer* year, const Integer* month, const Integer* day, const Real* hour, const Real* latitude, Real* longitude, Real* zone, Real* altitude, Real* azimuth, Real* declination) {
    const auto [longitude_value, zone_value, altitude_value, azimuth_value, declination_value] = climate::almanac_position<Real>(*mode, *year, *month, *day, *hour, *latitude, *longitude, *zone);
    store(longitude_value, longitude);
    store(zone_value, zone);
    store(altitude_value, altitude);
    store(azimuth_value, azimuth);
    store(declination_value, declination);
}

void CLRISESET(const Integer* year, const Integer* month, const Integer* day, const Real* latitude, Real* sunrise, Real* sunset) {
    const auto [sunrise_value, sunset_value] = climate::almanac_sun_hours<Real>(*year, *month, *day, *latitude);
    store(sunrise_value, sunrise);
    store(sunset_value, sunset);
}

Real CLETAJ(const Integer* day) {
    return climate::eccentricity_factor<Real>(*day);
}

Real CLMODUL(const Integer* day, const Real* altitude, const Real* global_horizontal) {
    return climate::clearness_index<Real>(*day, *altitude, *global_horizontal);
}

void CLPERSKY(const Real* altitude, const Real* tilt, const Real* beam, const Real* diffuse, Real* sky_diffuse, const Real* incidence, const Real* extraterrestrial_normal) {
    store(climate::perez_diffuse<Real>(*altitude, *tilt, *beam, *diffuse, *incidence, *extraterrestrial_normal), sky_diffuse);
}

void CLMUNRAD(const Real* altitude, const Real* azimuth, const Real* surface_azimuth, const Real* tilt, const Real* beam, const Real* diffuse, const Real* extraterrestrial_horizontal, const Real* ground_reflectance, Real* beam_on_surface, Real* sky_diffuse, Real* ground, Real* incidence) {
    const auto [beam_on_surface_value, sky_diffuse_value, ground_value, incidence_value] = climate::muneer_slope<Real>(*altitude, *azimuth, *surface_azimuth, *tilt, *beam, *diffuse, *extraterrestrial_horizontal, *ground_reflectance);
    store(beam_on_surface_value, beam_on_surface);
    store(sky_diffuse_value, sky_diffuse);
    store(ground_value, ground);
    store(incidence_value, incidence);
}

Real CLDIFRAD(const Integer* day, const Real* altitude, const Real* beam, const Real*, const Real* tilt, const Integer* model) {
    return climate::diffuse_tilt_factor<Real>(*day, *altitude, *beam, *tilt, *model);
}

Real CLDIFSLO(const Integer* day, const Real* altitude, const Real* azimuth, const Real* surface_azimuth, const Real* tilt, const Real* beam, const Real* diffuse, const Integer* model) {
    return climate::slope_diffuse<Real>(*day, *altitude, *azimuth, *surface_azimuth, *tilt, *beam, *diffuse, *model);
}

Real CLTAO(const Real* hour, const Real* highest, const Real* lowest, const Real* hour_of_highest, const Real* hour_of_lowest) {
    return climate::daily_temperature<Real>(*hour, *highest, *lowest, *hour_of_highest, *hour_of_lowest);
}

Real CLTAOX(const Real* hour, const Real* mean, const Real* amplitude, const Real* first, const Real* second, const Real* factor) {
    return climate::daily_value<Real>(*hour, *mean, *amplitude, *first, *second, *factor);
}

Real CLTEO(const Real* base, const Real* divisor, const Real* multiplier, const Real*, const Real*, const Real* gain, const Real* loss) {
    return climate::sol_air_temperature<Real>(*base, *divisor, *multiplier, *gain, *loss);
}

Real CLRERD(const Real* angle, const Real* factor) {
    return climate::long_wave_loss<Real>(*angle, *factor);
}
