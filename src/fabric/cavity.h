// Resistance of a sealed air cavity, m²K/W: convection and long-wave radiation side by side.
//
// tilt of the cavity, rad: 0 horizontal with heat flowing upwards, pi/2 vertical, pi horizontal
// with heat flowing downwards. Widths in m, conductivities in W/mK, coefficients in W/m²K.
#pragma once

#include "base/numeric.h"
#include "math/math.h"

namespace quorvel::fabric {

// Nu = C Ra^n, but not below 1. C = 0, which makes it 1: conduction through still air.
template <class R>
struct CavityConvection {
    R C, n;
};

inline constexpr CavityConvection<Real> horizontal_cavity = {0.16f, 0.28f};  // tilt 0
inline constexpr CavityConvection<Real> inclined_cavity = {0.1f, 0.31f};     // tilt 0.785
inline constexpr CavityConvection<Real> vertical_cavity = {0.035f, 0.38f};   // tilt 1.57

template <class R>
CavityConvection<R> interpolated(const CavityConvection<Real>& low,
                                 const CavityConvection<Real>& high, R s) noexcept {
    return {low.C + (high.C - low.C) * s, low.n + (high.n - low.n) * s};
}

// Air rests from 1.59 on, not from pi/2: deliberate, so that however a vertical cavity is rounded
// it convects, by a correlation carried on a little beyond the vertical.
template <class R>
inline CavityConvection<R> cavity_convection(R tilt) noexcept {
    const R s = tilt / 0.785f;
    return piecewise(
        tilt <= 0.785f, [&] { return interpolated(horizontal_cavity, inclined_cavity, s); },
        tilt >= 1.59f,
        [&] {
            return CavityConvection<R>{R(0.0f), R(0.0f)};
        },
        [&] { return interpolated(inclined_cavity, vertical_cavity, s - 1.0f); });
}

inline constexpr Real black_body_coefficient = 5.14f;

// k: conductivity of the gas. What is no number is not lifted to Nu = 1.
template <class R>
inline R cavity_resistance(const CavityConvection<R>& convection, R rayleigh, R radiation, R k,
                           R width) noexcept {
    const R nusselt = greater(convection.C * math::pow(rayleigh, convection.n), R(1.0f));
    return 1.0f / (radiation + nusselt * k / width);
}

inline constexpr Real least_cavity_width = 0.001f;

// Between faces of emissivities e1 and e2; 0 where there is no cavity. The rounded 3.1416 admits a
// horizontal cavity entered as any float near pi.
template <class R>
inline R tilted_cavity_resistance(R tilt, R width, R e1, R e2, R rayleigh, R k) noexcept {
    const MaskOf<R> none = (tilt < 0.0f) | (tilt > 3.1416f) | (width < least_cavity_width);
    return either(
        rarely(none), [&] { return R(0.0f); },
        [&] {
            const R radiation = black_body_coefficient * e1 * e2 / (e1 + e2 - e1 * e2);
            return cavity_resistance(cavity_convection(tilt), rayleigh, radiation, k, width);
        });
}

// Of a gas by its density, kg/m³, conductivity, specific heat, J/kgK, and viscosity, Pa s. 0.52
// m/s² is gravity times expansion times a design temperature difference.
template <class R>
R gas_cavity_resistance(R tilt, R width, R e1, R e2, R density, R conductivity, R specific_heat,
                        R viscosity) noexcept {
    const R rayleigh = 0.52f * specific_heat * (density * density) * (width * width * width) /
                       (viscosity * conductivity);
    return tilted_cavity_resistance(tilt, width, e1, e2, rayleigh, conductivity);
}

inline constexpr Real air_conductivity = 0.025f;

// Of air: 1.23 kg/m³, 1008 J/kgK, 1.76e-5 Pa s
template <class R>
R air_rayleigh_number(R width) noexcept {
    return width * width * width * 793.00165f / 4.4e-7f;
}

template <class R>
R air_cavity_resistance(R tilt, R width, R e1, R e2) noexcept {
    return tilted_cavity_resistance(tilt, width, e1, e2, air_rayleigh_number(width),
                                    R(air_conductivity));
}

// Between faces of emissivity 0.85 and 0.86. Unlike the others it has a floor, which a missing
// cavity gets too.
template <class R>
R vertical_cavity_resistance(R width) noexcept {
    constexpr Real radiation = black_body_coefficient * 0.85f * 0.86f / 0.979f;
    constexpr Real floor = 0.1f;
    return either(
        rarely(width < least_cavity_width), [&] { return R(floor); },
        [&] {
            const CavityConvection<R> vertical = {R(vertical_cavity.C), R(vertical_cavity.n)};
            return greater(cavity_resistance(vertical, air_rayleigh_number(width), R(radiation),
                                             R(air_conductivity), width),
                           R(floor));
        });
}

}  // namespace quorvel::fabric
