// Resistances of the inside and outside surfaces of building elements, m²K/W.
//
// tilt of the element, rad: 0 horizontal with heat flowing upwards (a roof or ceiling), pi/2
// vertical, pi horizontal with heat flowing downwards (a floor).
#pragma once

#include "base/numeric.h"

namespace quorvel::fabric {

// Type of surface
inline constexpr Integer outside_surface = 1, inside_surface = 2;

// By wind exposure, sheltered, normal, severe: the convective coefficient, and what a vertical
// surface adds to it; four times that for one facing up. W/m²K
inline constexpr Real exposure_convection[] = {4.3f, 9.1f, 20.7f};
inline constexpr Real exposure_tilt_term[] = {1.3f, 2.8f, 6.1f};

// radiation: coefficient of the long-wave exchange with the surroundings, W/m²K
template <class R>
constexpr R outside_resistance(R radiation, R tilt, IntegerOf<R> exposure) noexcept {
    const IntegerOf<R> row = table_row(exposure, 3);
    const R facing_up = 1.0f - tilt / pi;
    return 1.0f / (radiation + lookup(exposure_convection, row) +
                   4.0f * lookup(exposure_tilt_term, row) * (facing_up * facing_up));
}

// At emissivity 0.9, which is folded into the constants.
template <class R>
constexpr R outside_surface_resistance(R tilt, IntegerOf<R> exposure) noexcept {
    return outside_resistance(R(4.59f), tilt, exposure);
}
template <class R>
constexpr R inside_surface_resistance(R tilt) noexcept {
    return 1.0f / (9.53f - 2.6f * tilt / pi);
}

// A type that is neither inside nor outside has no resistance.
template <class R>
constexpr R surface_resistance(IntegerOf<R> type, R tilt, IntegerOf<R> exposure) noexcept {
    return piecewise(
        type == outside_surface, [&] { return outside_surface_resistance(tilt, exposure); },
        type == inside_surface, [&] { return inside_surface_resistance(tilt); },
        [&] { return R(0.0f); });
}

template <class R>
constexpr R surface_resistance_at_emissivity(IntegerOf<R> type, R tilt, IntegerOf<R> exposure,
                                             R emissivity) noexcept {
    return piecewise(
        type == outside_surface,
        [&] { return outside_resistance(5.1f * emissivity, tilt, exposure); },
        type == inside_surface,
        [&] { return 1.0f / (4.4f - 2.6f * tilt / pi + 5.7f * emissivity); },
        [&] { return R(0.0f); });
}

}  // namespace quorvel::fabric
