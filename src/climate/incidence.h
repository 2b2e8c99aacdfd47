// The sun's angle of incidence on a tilted surface. Angles in radians.
#pragma once

#include "base/numeric.h"
#include "math/math.h"

namespace quorvel::climate {

// The sun above a tilted surface: sines and cosines of its altitude and of the tilt.
template <class F>
struct Incidence {
    F sin_altitude, cos_altitude, sin_tilt, cos_tilt;
    F cosine;  // of the angle of incidence; negative behind the surface

    Incidence(F altitude, F azimuth, F surface_azimuth, F tilt) noexcept {
        const auto [sin_alt, cos_alt] = math::sincos(altitude);
        const auto [sin_beta, cos_beta] = math::sincos(tilt);
        sin_altitude = sin_alt, cos_altitude = cos_alt;
        sin_tilt = sin_beta, cos_tilt = cos_beta;
        cosine = cos_alt * sin_beta * math::cos(azimuth - surface_azimuth) + sin_alt * cos_beta;
    }

    // Behind the surface the given right angle for all suns; in front rounding takes some of the
    // cosines beyond 1.
    F angle(F behind) const noexcept {
        return either(
            cosine <= F(0.0f), [&] { return behind; },
            [&] { return math::acos(lesser(cosine, F(1.0f))); });
    }
};

}  // namespace quorvel::climate
