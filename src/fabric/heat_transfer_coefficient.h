// Heat transfer by natural convection at a surface of a room.
#pragma once

#include <array>
#include <cmath>

#include "base/contract.h"
#include "math/math.h"

namespace quorvel::fabric {

// Laminar and turbulent convection, blended so that the larger prevails (Churchill and Usagi):
// (laminar (dT/L)^(1/4))^6 + (turbulent dT^(1/3))^6 to the power of 1/6.
struct BlendedConvection {
    Real turbulent_6th, laminar_6th;  // sixth powers of the two coefficients
};

// Natural-convection coefficient [W/m²K] at a difference of surface and air temperature [K], for a
// characteristic length [m]; kind 1: heat flow upwards, 2: vertical surface, 3: downwards.
inline Real natural_convection_coefficient(Real difference, Real length, Integer kind) noexcept {
    // 1.63 and 1.40 upwards; 1.23 and 1.50 at the vertical, where the larger one is the laminar.
    constexpr std::array<BlendedConvection, 2> blends{{{18.75f, 7.5295f}, {3.463f, 11.391f}}};
    const Real x = std::fabs(difference);
    if (kind == 3) return 0.6f * math::pow(x / (length * length), 0.2f);
    if (kind != 1 && kind != 2) return 0.0f;
    const auto [turbulent, laminar] = blends[kind - 1];
    const Real sixth_power = turbulent * (x * x) + laminar * math::pow(x / length, 1.5f);
    return math::pow(sixth_power, 0.1666667f);
}

}  // namespace quorvel::fabric
