// Irradiance outside the atmosphere by day of the year, and what of it reaches the ground.
#pragma once

#include "base/number.h"
#include "math/math.h"

namespace quorvel::climate {

// Normal irradiance by that at the mean distance of the sun; the earth is nearest 2.8 degrees of
// its orbit after the year's start.
template <class R>
R eccentricity_factor(IntegerOf<R> day) noexcept {
    const R degrees = to_real(day) * 360.0f / 365.25f - 2.8f;
    return 1.0f + 0.03344f * math::cos(degrees * pi / 180.0f);
}

// Horizontal irradiance, W/m².
template <class R>
R extraterrestrial_horizontal(IntegerOf<R> day, R sin_altitude) noexcept {
    return eccentricity_factor<R>(day) * 1367.0f * sin_altitude;
}

// Global horizontal irradiance, W/m², by that outside the atmosphere.
template <class R>
R clearness_index(IntegerOf<R> day, R altitude, R global_horizontal) noexcept {
    return global_horizontal / extraterrestrial_horizontal<R>(day, math::sin(altitude));
}

}  // namespace quorvel::climate
