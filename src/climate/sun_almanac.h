// The sun by calendar date and clock: low-precision formulas of the astronomical almanacs.
//
// Computed in double, in degrees but for the results; only what is R is single. D is the double
// type.
#pragma once

#include "climate/sun_position.h"

namespace quorvel::climate {

// Pi of these formulas is the float nearest to it, not that of the other routines.
inline constexpr double almanac_pi = static_cast<double>(3.1415927f);
inline constexpr double degree = 0.017453293005625408;
static_assert(degree == almanac_pi / 180.0);

// Julian centuries from noon of 1 January 2000. Start is the time of day, d, less 8707.5, the days
// from 29 February 1976 to then. Truncation is towards zero, which before March 1976 dates three
// years of four a day late; deliberate. Any Integer is a year, month and day.
template <class R>
DoubleOf<R> julian_centuries(IntegerOf<R> year, IntegerOf<R> month, IntegerOf<R> day,
                             DoubleOf<R> start) noexcept {
    using D = DoubleOf<R>;
    // The year begins in March, so that the leap day ends it.
    const auto early = month <= 2;
    const R years = to_real(D(to_double(year) - select(early, D(1977.0), D(1976.0))));
    const R months = to_real(D(to_double(month) + select(early, D(9.0), D(-3.0))));
    const R year_days = truncated(365.25f * years);
    const R month_days = truncated(30.6f * months + 0.5f);
    return (start + to_double(day) + to_double(year_days) + to_double(month_days)) / 36525.0;
}

// Less the full turns; negative angles stay as they are.
template <class D>
D below_full_turn(D angle) noexcept {
    return either(
        angle > 360.0, [&] { return D(angle - 360.0 * truncated(D(angle / 360.0))); },
        [&] { return angle; });
}

template <class D>
D mean_anomaly(D T) noexcept {
    return below_full_turn<D>(357.528 + 35999.05 * T);
}

// Equation of the centre at the mean anomaly g. The second term should be 0.02 sin 2g: the degree
// factor landed on its coefficient and 2g is taken as radians. Deliberate; it costs 0.02 degrees.
template <class D>
D equation_of_centre(D g, D sin_2g) noexcept {
    return 1.915 * math::sin(g * degree) + 0.02 * degree * sin_2g;
}

template <class D>
struct ApparentSun {
    D longitude, right_ascension;
    D declination;  // rad
    D tan_declination;
};

// At T Julian centuries with the equation of the centre C.
template <class D>
ApparentSun<D> apparent_sun(D T, D C) noexcept {
    const D L = below_full_turn<D>(280.46 + 36000.77 * T + C);
    const auto [sin_2L, cos_2L] = math::sincos(D(2.0 * L * degree));
    const D sin_4L = 2.0 * sin_2L * cos_2L;
    const D right_ascension = L - 2.466 * sin_2L + 0.053 * sin_4L;
    const D obliquity = 23.4393 - 0.013 * T;
    const D tan_declination = math::tan(obliquity * degree) * math::sin(right_ascension * degree);
    return {L, right_ascension, math::atan(tan_declination), tan_declination};
}

template <class D>
struct HorizontalPosition {
    D altitude, azimuth;
};

// Of the sun at an hour angle and a latitude; afternoon is where the hour angle is positive.
template <class D>
HorizontalPosition<D> horizontal_position(const ApparentSun<D>& sun, D hour_angle,
                                          D latitude) noexcept {
    const D cos_H = -math::cos((180.0 + hour_angle) * degree);
    const auto [sin_lat, cos_lat] = math::sincos(latitude);
    const auto [sin_dec, cos_dec] = math::sincos(sun.declination);
    const D sin_alt = sin_dec * sin_lat + cos_dec * cos_lat * cos_H;
    const D altitude = math::asin(limited(sin_alt, -1.0f, 1.0f));
    const D x = cos_dec * (cos_lat * sun.tan_declination - sin_lat * cos_H) / math::cos(altitude);
    const D cosine = select(x < -0.999999, D(-1.0), select(x > 0.999999, D(1.0), x));
    const D from_north = math::acos(cosine);
    return {altitude, select(hour_angle > 0.0, 2.0 * almanac_pi - from_north, from_north)};
}

template <class R>
struct AlmanacPosition {
    R longitude, zone;  // as given, 0 in mode 1
    R altitude, azimuth, declination;
};

// In mode 2 the hour is of a clock whose meridian is the zone angle, rad, positive west as the
// longitude, rad; otherwise the hour is solar time, and the zone only dates the declination.
template <class R>
AlmanacPosition<R> almanac_position(IntegerOf<R> mode, IntegerOf<R> year, IntegerOf<R> month,
                                    IntegerOf<R> day, R hour, R latitude, R longitude,
                                    R zone) noexcept {
    using D = DoubleOf<R>;
    const R west = select(mode == 1, R(0.0f), longitude);
    const R meridian = select(mode == 1, R(0.0f), zone);
    const D clock = to_double(hour);
    const D t = clock + to_double(meridian) * 12.0 / almanac_pi;
    const D T = julian_centuries<R>(year, month, day, t / 24.0 - 8707.5);
    const D g = mean_anomaly<D>(T);
    const D C = equation_of_centre<D>(g, math::sin(2.0 * g));
    const ApparentSun<D> sun = apparent_sun<D>(T, C);
    const D hour_angle = either(
        mode == 2,
        [&] {
            const D greenwich =
                below_full_turn<D>(15.0 * t - 180.0 - C + sun.longitude - sun.right_ascension);
            return D(greenwich - to_double(west) / degree);
        },
        [&] { return D((clock - 12.0) * 15.0); });
    const auto position = horizontal_position<D>(sun, hour_angle, to_double(latitude));
    return {west, meridian, to_real(position.altitude), to_real(position.azimuth),
            to_real(sun.declination)};
}

// Sunrise and sunset with the declination of noon, whose mean anomaly is taken in single precision.
template <class R>
SunHours<R> almanac_sun_hours(IntegerOf<R> year, IntegerOf<R> month, IntegerOf<R> day,
                              R latitude) noexcept {
    using D = DoubleOf<R>;
    const D T = julian_centuries<R>(year, month, day, D(-8707.0));
    const R g = to_real(mean_anomaly<D>(T));
    const D C = equation_of_centre<D>(to_double(g), to_double(math::sin(2.0f * g)));
    const D tan_declination = apparent_sun<D>(T, C).tan_declination;
    const SunHours<D> hours =
        sun_hours<D>(tan_declination * math::tan(to_double(latitude)), D(almanac_pi));
    return {to_real(hours.sunrise), to_real(hours.sunset)};
}

}  // namespace quorvel::climate
