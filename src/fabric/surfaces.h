// Resistances of the inside and outside surfaces of building elements, m²K/W.
//
// theta is the tilt of the element, rad: 0 horizontal with heat flowing upwards (a roof or
// ceiling), pi/2 vertical, pi horizontal with heat flowing downwards (a floor).
#pragma once

#include "base/numeric.h"

namespace quorvel::fabric {

enum SurfaceType : Integer { outside_surface = 1, inside_surface = 2 };

struct WindExposure {
    Real convection;  // W/m²K
    Real tilt;        // W/m²K, what a vertical surface adds; four times that for one facing up
};

inline constexpr WindExposure wind_exposures[3] = {
    {4.3f, 1.3f},   // sheltered
    {9.1f, 2.8f},   // normal
    {20.7f, 6.1f},  // severe
};

// radiation: coefficient of the long-wave exchange with the surroundings, W/m²K
constexpr Real outside_resistance(Real radiation, Real theta, Integer exposure) noexcept {
    const auto [convection, tilt] = wind_exposures[table_row(exposure, 3)];
    const Real facing_up = 1.0f - theta / pi;
    return 1.0f / (radiation + convection + 4.0f * tilt * (facing_up * facing_up));
}

// At emissivity 0.9, which is folded into the constants.
constexpr Real outside_surface_resistance(Real theta, Integer exposure) noexcept {
    return outside_resistance(4.59f, theta, exposure);
}
constexpr Real inside_surface_resistance(Real theta) noexcept {
    return 1.0f / (9.53f - 2.6f * theta / pi);
}

// A type that is neither inside nor outside has no resistance.
constexpr Real surface_resistance(Integer type, Real theta, Integer exposure) noexcept {
    if (type == outside_surface) return outside_surface_resistance(theta, exposure);
    return type == inside_surface ? inside_surface_resistance(theta) : 0.0f;
}

constexpr Real surface_resistance_at_emissivity(Integer type, Real theta, Integer exposure,
                                                Real emissivity) noexcept {
    if (type == outside_surface) return outside_resistance(5.1f * emissivity, theta, exposure);
    if (type == inside_surface) return 1.0f / (4.4f - 2.6f * theta / pi + 5.7f * emissivity);
    return 0.0f;
}

}  // namespace quorvel::fabric
