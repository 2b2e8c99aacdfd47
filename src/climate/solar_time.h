// The annual cycle of the earth and the difference between solar time and the clock.
#pragma once

#include "base/number.h"
#include "math/math.h"

namespace quorvel::climate {

// Angle, rad, that the annual cycle has reached on a day of the year; rounded from 2 pi / 365.
template <class R>
R annual_angle(IntegerOf<R> day) noexcept {
    return to_real(day) * 0.01721f;
}

// Equation of time, min, sundial minus clock, at an annual angle x.
template <class R>
R equation_of_time(R x) noexcept {
    const auto [sin1, cos1] = math::sincos(x);
    const auto [sin2, cos2] = math::sincos(2.0f * x);
    const auto [sin3, cos3] = math::sincos(3.0f * x);
    return 0.00037f + 0.43177f * cos1 - 7.3764f * sin1 - 3.165f * cos2 - 9.3893f * sin2 +
           0.07272f * cos3 - 0.24498f * sin3;
}

// Hours to be added to clock time to get solar time; offset is how far the clock is put forward, h,
// the longitudes, rad, grow westwards.
template <class R>
R solar_time_correction(R offset, IntegerOf<R> day, R longitude, R reference_longitude) noexcept {
    // Radians in an hour, rounded; deliberate: the sun's position is computed with a finer value.
    constexpr Real hour = 0.2618f;
    return equation_of_time(annual_angle<R>(day)) / 60.0f - offset -
           (longitude - reference_longitude) / hour;
}

}  // namespace quorvel::climate
