// The sun by calendar date and clock: low-precision formulas of the astronomical almanacs.
//
// Computed in double, in degrees but for the results; only what is written as Real is single.
#pragma once

#include <cmath>
#include <cstdint>

#include "climate/sun_position.h"

namespace quorvel::climate {

// Pi of these formulas is the float nearest to it, not that of the other routines.
inline constexpr double almanac_pi = static_cast<double>(3.1415927f);
inline constexpr double degree = 0.017453293005625408;
static_assert(degree == almanac_pi / 180.0);

struct Date {
    Integer year, month, day;
};

// Julian centuries from noon of 1 January 2000. Start is the time of day [d] less 8707.5, the days
// from 29 February 1976 to then. Truncation is towards zero, which before March 1976 dates three
// years of four a day late; kept.
inline double julian_centuries(const Date& date, double start) noexcept {
    // The year begins in March, so that the leap day ends it.
    const bool early = date.month <= 2;
    const std::int64_t year = std::int64_t{date.year} - (early ? 1 : 0);
    const std::int64_t month = std::int64_t{date.month} + (early ? 9 : -3);
    const Real year_days = std::trunc(365.25f * static_cast<Real>(year - 1976));
    const Real month_days = std::trunc(30.6f * static_cast<Real>(month) + 0.5f);
    return (start + static_cast<double>(date.day) + static_cast<double>(year_days) +
            static_cast<double>(month_days)) /
           36525.0;
}

// Less the full turns; negative angles stay as they are.
inline double below_full_turn(double angle) noexcept {
    return angle > 360.0 ? angle - 360.0 * std::trunc(angle / 360.0) : angle;
}

inline double mean_anomaly(double T) noexcept { return below_full_turn(357.528 + 35999.05 * T); }

// Equation of the centre at the mean anomaly g. The second term should be 0.02 sin 2g: the degree
// factor landed on its coefficient and 2g is taken as radians. Kept; it costs 0.02 degrees.
template <class Float>
double equation_of_centre(Float g) noexcept {
    return 1.915 * math::sin(static_cast<double>(g) * degree) +
           0.02 * degree * static_cast<double>(math::sin(Float{2} * g));
}

struct ApparentSun {
    double longitude, right_ascension;
    double declination;  // rad
};

// At T Julian centuries with the equation of the centre C.
inline ApparentSun apparent_sun(double T, double C) noexcept {
    const double L = below_full_turn(280.46 + 36000.77 * T + C);
    const double right_ascension =
        L - 2.466 * math::sin(2.0 * L * degree) + 0.053 * math::sin(4.0 * L * degree);
    const double obliquity = 23.4393 - 0.013 * T;
    const double declination =
        math::atan(math::tan(obliquity * degree) * math::sin(right_ascension * degree));
    return {L, right_ascension, declination};
}

struct SunPosition {
    Real altitude, azimuth, declination;
};

// Of a declination [rad] and hour angle at a latitude; afternoon is where the hour angle is
// positive.
inline SunPosition horizontal_position(double declination, double hour_angle,
                                       double latitude) noexcept {
    const double cos_H = -math::cos((180.0 + hour_angle) * degree);
    const double sin_lat = math::sin(latitude), cos_lat = math::cos(latitude);
    const double cos_dec = math::cos(declination);
    const double sin_alt = math::sin(declination) * sin_lat + cos_dec * cos_lat * cos_H;
    const double altitude = math::asin(std::clamp(sin_alt, -1.0, 1.0));
    double x = cos_dec * (cos_lat * math::tan(declination) - sin_lat * cos_H) / math::cos(altitude);
    if (x < -0.999999) x = -1.0;
    if (x > 0.999999) x = 1.0;
    const double from_north = math::acos(x);
    const double azimuth = hour_angle > 0.0 ? 2.0 * almanac_pi - from_north : from_north;
    return {static_cast<Real>(altitude), static_cast<Real>(azimuth),
            static_cast<Real>(declination)};
}

// With by_longitude the hour is of a clock whose meridian is the zone angle [rad], positive west as
// the longitude [rad]; otherwise the hour is solar time, and the zone only dates the declination.
inline SunPosition almanac_position(bool by_longitude, const Date& date, Real hour, Real latitude,
                                    Real longitude, Real zone) noexcept {
    const double clock = static_cast<double>(hour);
    const double t = clock + static_cast<double>(zone) * 12.0 / almanac_pi;
    const double T = julian_centuries(date, t / 24.0 - 8707.5);
    const double C = equation_of_centre(mean_anomaly(T));
    const ApparentSun sun = apparent_sun(T, C);
    const double greenwich =
        below_full_turn(15.0 * t - 180.0 - C + sun.longitude - sun.right_ascension);
    const double hour_angle =
        by_longitude ? greenwich - static_cast<double>(longitude) / degree : (clock - 12.0) * 15.0;
    return horizontal_position(sun.declination, hour_angle, static_cast<double>(latitude));
}

// Sunrise and sunset with the declination of noon, whose mean anomaly is kept in single precision.
inline SunHours almanac_sun_hours(const Date& date, Real latitude) noexcept {
    const double T = julian_centuries(date, -8707.0);
    const double C = equation_of_centre(static_cast<Real>(mean_anomaly(T)));
    const double declination = apparent_sun(T, C).declination;
    return sun_hours(math::tan(declination) * math::tan(static_cast<double>(latitude)), almanac_pi);
}

}  // namespace quorvel::climate
