// The sun in the sky of a latitude, by day of the year and solar hour; sunrise and sunset.
#pragma once

#include "base/numeric.h"
#include "climate/angles.h"
#include "climate/solar_time.h"

namespace quorvel::climate {

template <class F>
struct SunHours {
    F sunrise, sunset;  // solar time, h
};

// Sunrise and sunset by p = tan(latitude) tan(declination), which is the cosine of the hour angle
// from midnight to sunrise. Hour 25 stands for an event that does not occur.
template <class F>
inline SunHours<F> sun_hours(F p, F pi) noexcept {
    const MaskOf<F> polar_night = p <= F(-1.0f), polar_day = p >= F(1.0f);
    const F sunrise = piecewise(
        polar_night, [&] { return F(25.0f); },  //
        polar_day, [&] { return F(0.0f); },     //
        [&] { return math::acos(p) * F(12.0f) / pi; });
    return {sunrise, select(polar_night, F(0.0f), select(polar_day, F(25.0f), F(24.0f) - sunrise))};
}

// Sine of the obliquity times sine of the ecliptic longitude, the latter with the annual variation
// of the earth's speed to the first order.
template <class R>
inline R sine_of_declination(IntegerOf<R> day) noexcept {
    const R d = annual_angle<R>(day);
    return 0.398f * math::sin(d - 1.4096f + 0.03347f * math::sin(d));
}

// Azimuth from its acute angle with the north-south line; southness is positive when the sun is
// south of the east-west line.
template <class R>
R azimuth_of_quadrant(R acute, R southness, MaskOf<R> morning) noexcept {
    const R due = select(morning, R(0.5f * pi), R(1.5f * pi));
    const R southern = select(morning, pi - acute, pi + acute);
    const R northern = select(morning, acute, 2.0f * pi - acute);
    return select(southness == 0.0f, due, select(southness > 0.0f, southern, northern));
}

template <class R>
struct SolarGeometry {
    R declination, altitude, azimuth;  // altitude and azimuth 0 below the horizon
    Maybe<R> sunrise, sunset;
};

// Solar noon is 12 h. Outside the ranges of the arguments the angles are 0, and there is neither
// sunrise nor sunset.
template <class R>
inline SolarGeometry<R> solar_geometry(R latitude, IntegerOf<R> day, R hour) noexcept {
    const MaskOf<R> outside = (latitude > right_angle) | (latitude < -right_angle) | (day < 1) |
                              (day > 365) | (hour < 0.0f) | (hour > 24.0f);
    const R sin_dec = sine_of_declination<R>(day);
    const R declination = math::asin(sin_dec);
    const R cos_dec = math::cos(declination);
    const R tan_dec = math::tan(declination);
    const R tan_lat = math::tan(latitude);
    const auto lat = math::sincos(latitude);
    const auto H = math::sincos(absolute(12.0f - hour) * 0.261799395f);
    const SunHours<R> hours = sun_hours(R(tan_lat * tan_dec), R(pi));

    const R sin_alt = sin_dec * lat.sin + cos_dec * lat.cos * H.cos;
    const R altitude = math::asin(limited(sin_alt, -1.0f, 1.0f));
    const MaskOf<R> dark = outside | (altitude < 0.0f);
    const R azimuth = either(
        dark, [&] { return R(0.0f); },
        [&] {
            const R sine = cos_dec * H.sin / math::cos(altitude);
            const R acute = math::asin(limited(sine, -1.0f, 1.0f));
            // Cosine of the hour angle at which the sun stands due east or west; as good as
            // infinite at the equator.
            const R cos_due = select(tan_lat == 0.0f, select(tan_dec < 0.0f, R(-1e32f), R(1e32f)),
                                     tan_dec / tan_lat);
            const R southness = select(lat.sin >= 0.0f, H.cos - cos_due, cos_due - H.cos);
            return azimuth_of_quadrant<R>(acute, southness, hour <= 12.0f);
        });
    return {select(outside, R(0.0f), declination),
            select(dark, R(0.0f), altitude),
            azimuth,
            {hours.sunrise, !outside},
            {hours.sunset, !outside}};
}

}  // namespace quorvel::climate
