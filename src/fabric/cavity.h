// Resistance of a sealed air cavity, m²K/W: convection and long-wave radiation side by side.
//
// theta is the tilt of the cavity, rad: 0 horizontal with heat flowing upwards, pi/2 vertical, pi
// horizontal with heat flowing downwards.
#pragma once

#include <algorithm>

#include "base/contract.h"
#include "math/math.h"

namespace quorvel::fabric {

// Nu = C Ra^n, but not below 1. C = 0, which makes it 1: conduction through still air.
struct CavityConvection {
    Real C, n;
};

inline constexpr CavityConvection horizontal_cavity = {0.16f, 0.28f};  // tilt 0
inline constexpr CavityConvection inclined_cavity = {0.1f, 0.31f};     // tilt 0.785
inline constexpr CavityConvection vertical_cavity = {0.035f, 0.38f};   // tilt 1.57
inline constexpr CavityConvection still_air = {0.0f, 0.0f};

constexpr CavityConvection interpolated(CavityConvection low, CavityConvection high,
                                        Real s) noexcept {
    return {low.C + (high.C - low.C) * s, low.n + (high.n - low.n) * s};
}

// Air rests from 1.59 on, not from pi/2: kept, so that however a vertical cavity is rounded it
// convects, by a correlation carried on a little beyond the vertical.
constexpr CavityConvection cavity_convection(Real theta) noexcept {
    constexpr Real breakpoint = 0.785f;
    if (theta <= breakpoint)
        return interpolated(horizontal_cavity, inclined_cavity, theta / breakpoint);
    if (theta >= 1.59f) return still_air;
    return interpolated(inclined_cavity, vertical_cavity, theta / breakpoint - 1.0f);
}

inline constexpr Real black_body_coefficient = 5.14f;  // W/m²K

// Between faces of these emissivities, W/m²K
constexpr Real cavity_radiation(Real e1, Real e2) noexcept {
    return black_body_coefficient * e1 * e2 / (e1 + e2 - e1 * e2);
}

// d: width, m; k: conductivity of the gas, W/mK. What is no number is not lifted to Nu = 1.
inline Real cavity_resistance(CavityConvection convection, Real rayleigh, Real radiation, Real k,
                              Real d) noexcept {
    const Real nusselt = std::max(convection.C * math::pow(rayleigh, convection.n), 1.0f);
    return 1.0f / (radiation + nusselt * k / d);
}

struct CavityGas {
    Real density, conductivity, specific_heat, viscosity;  // kg/m³, W/mK, J/kgK, Pa s
};

inline constexpr Real air_conductivity = 0.025f;

// 0.52 m/s² is gravity times expansion times a design temperature difference.
constexpr Real rayleigh_number(Real d, const CavityGas& gas) noexcept {
    return 0.52f * gas.specific_heat * (gas.density * gas.density) * (d * d * d) /
           (gas.viscosity * gas.conductivity);
}

// Of air: 1.23 kg/m³, 1008 J/kgK, 1.76e-5 Pa s
constexpr Real air_rayleigh_number(Real d) noexcept { return d * d * d * 793.00165f / 4.4e-7f; }

inline constexpr Real least_cavity_width = 0.001f;  // m

// The rounded 3.1416 admits a horizontal cavity entered as any float near pi.
constexpr bool is_cavity(Real theta, Real d) noexcept {
    return !(theta < 0.0f || theta > 3.1416f || d < least_cavity_width);
}

// 0 where there is no cavity.
inline Real gas_cavity_resistance(Real theta, Real d, Real e1, Real e2,
                                  const CavityGas& gas) noexcept {
    if (!is_cavity(theta, d)) return 0.0f;
    return cavity_resistance(cavity_convection(theta), rayleigh_number(d, gas),
                             cavity_radiation(e1, e2), gas.conductivity, d);
}

inline Real air_cavity_resistance(Real theta, Real d, Real e1, Real e2) noexcept {
    if (!is_cavity(theta, d)) return 0.0f;
    return cavity_resistance(cavity_convection(theta), air_rayleigh_number(d),
                             cavity_radiation(e1, e2), air_conductivity, d);
}

// Between faces of emissivity 0.85 and 0.86. Unlike the others it has a floor, which a missing
// cavity gets too.
inline Real vertical_cavity_resistance(Real d) noexcept {
    constexpr Real radiation = black_body_coefficient * 0.85f * 0.86f / 0.979f;
    constexpr Real floor = 0.1f;
    if (d < least_cavity_width) return floor;
    return std::max(
        cavity_resistance(vertical_cavity, air_rayleigh_number(d), radiation, air_conductivity, d),
        floor);
}

}  // namespace quorvel::fabric
