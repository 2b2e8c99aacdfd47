// The sun in the sky of a latitude, by day of the year and solar hour; sunrise and sunset.
#pragma once

#include <cmath>

#include "base/numeric.h"
#include "climate/angles.h"
#include "climate/solar_time.h"

namespace quorvel::climate {

struct SunHours {
    Real sunrise, sunset;  // solar time [h]
};

struct SolarGeometry {
    Real declination, altitude, azimuth;
    SunHours hours;
};

constexpr bool is_solar_moment(Real latitude, Integer day, Real hour) noexcept {
    const bool outside = latitude > right_angle || latitude < -right_angle || day < 1 ||
                         day > 365 || hour < 0.0f || hour > 24.0f;
    return !outside;
}

// Sunrise and sunset by p = tan(latitude) tan(declination), which is the cosine of the hour angle
// from midnight to sunrise. Hour 25 stands for an event that does not occur.
template <class Float>
SunHours sun_hours(Float p, Float pi) noexcept {
    if (p <= Float{-1}) return {25.0f, 0.0f};
    if (p >= Float{1}) return {0.0f, 25.0f};
    const Float sunrise = math::acos(p) * Float{12} / pi;
    return {static_cast<Real>(sunrise), static_cast<Real>(Float{24} - sunrise)};
}

// Sine of the obliquity times sine of the ecliptic longitude, the latter with the annual variation
// of the earth's speed to the first order.
inline Real sine_of_declination(Integer day) noexcept {
    const Real d = annual_angle(day);
    return 0.398f * math::sin(d - 1.4096f + 0.03347f * math::sin(d));
}

// Azimuth from its acute angle with the north-south line; southness is positive when the sun is
// south of the east-west line.
inline Real azimuth_of_quadrant(Real acute, Real southness, bool morning) noexcept {
    if (southness == 0.0f) return morning ? 0.5f * pi : 1.5f * pi;
    if (southness > 0.0f) return morning ? pi - acute : pi + acute;
    return morning ? acute : 2.0f * pi - acute;
}

// Within is_solar_moment; solar noon is 12 h. Below the horizon altitude and azimuth are 0.
inline SolarGeometry solar_geometry(Real latitude, Integer day, Real hour) noexcept {
    const Real sin_dec = sine_of_declination(day);
    const Real declination = math::asin(sin_dec);
    const Real cos_dec = math::cos(declination);
    const Real tan_dec = math::tan(declination);
    const auto [sin_lat, cos_lat] = math::sincos(latitude);
    const Real tan_lat = math::tan(latitude);
    const auto [sin_H, cos_H] = math::sincos(std::fabs(12.0f - hour) * 0.261799395f);
    const SunHours hours = sun_hours(tan_lat * tan_dec, pi);

    const Real sin_alt = sin_dec * sin_lat + cos_dec * cos_lat * cos_H;
    const Real altitude = math::asin(limited(sin_alt, -1.0f, 1.0f));
    if (altitude < 0.0f) return {declination, 0.0f, 0.0f, hours};

    const Real acute = math::asin(limited(cos_dec * sin_H / math::cos(altitude), -1.0f, 1.0f));
    // Cosine of the hour angle at which the sun stands due east or west; as good as infinite at
    // the equator.
    const Real cos_due = tan_lat == 0.0f ? (tan_dec < 0.0f ? -1e32f : 1e32f) : tan_dec / tan_lat;
    const Real southness = sin_lat >= 0.0f ? cos_H - cos_due : cos_due - cos_H;
    return {declination, altitude, azimuth_of_quadrant(acute, southness, hour <= 12.0f), hours};
}

}  // namespace quorvel::climate
