// Design irradiance of the sky by solar altitude, and the irradiance outside the atmosphere.
// Irradiances are in W/m², angles in radians.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>

#include "climate/surface.h"

namespace quorvel::climate {

// Increase of irradiance with the height [m] of the site. Lower sites and low suns get none, so the
// factor jumps by 4 % or more at 300 m.
inline Real height_factor(Real height, Real altitude) noexcept {
    const Real sin_alt = math::sin(altitude);
    if (sin_alt >= 0.08f && height >= 300.0f) return height * (5e-05f / sin_alt + 2e-05f) + 1.02f;
    return 1.0f;
}

struct DesignSky {
    Real low_sun_slope;                  // per rad
    std::array<Real, 5> diffuse_series;  // per power of the altitude, from 0
};

// Clear and cloudy.
inline constexpr DesignSky design_skies[2] = {
    {266.971f, {1.52269f, 280.358f, -375.111f, 253.716f, -63.3311f}},
    {287.295f, {0.331322f, 283.1f, 4.42111f}},
};

inline Irradiance design_irradiance(Real altitude, Real height, Integer sky_kind) noexcept {
    if (std::fabs(altitude) > right_angle) return {0.0f, 0.0f};
    const Real factor = height_factor(height, altitude);
    const DesignSky& sky = design_skies[std::clamp(sky_kind, Integer{0}, Integer{1})];
    if (altitude <= 0.087f)
        return {2397.26f * altitude * factor, sky.low_sun_slope * altitude * factor};

    const Real w = 1.0f / altitude;
    const Real w2 = w * w;
    const Real w3 = w2 * w;
    const Real w4 = w3 * w;
    const Real direct = 1035.49f - 156.13f * w - 1.91863f * w2 + 2.51353f * w3 - 0.148842f * w4;
    Real diffuse = 0.0f;
    Real power = 1.0f;
    for (const Real c : sky.diffuse_series) {
        diffuse += c * power;
        power *= altitude;
    }
    return {direct * factor, diffuse * factor};
}

// Irradiance outside the atmosphere by that at the mean distance of the sun; the earth is nearest
// 2.8 degrees of its orbit after the year's start.
inline Real eccentricity_factor(Integer day) noexcept {
    const Real degrees = static_cast<Real>(day) * 360.0f / 365.25f - 2.8f;
    return 1.0f + 0.03344f * math::cos(degrees * pi / 180.0f);
}

// Global horizontal irradiance by that outside the atmosphere, whose mean normal value is 1367
// W/m².
inline Real clearness_index(Integer day, Real altitude, Real global_horizontal) noexcept {
    return global_horizontal / (eccentricity_factor(day) * 1367.0f * math::sin(altitude));
}

}  // namespace quorvel::climate
