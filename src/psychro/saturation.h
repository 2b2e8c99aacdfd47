// Saturation and actual vapour pressure of moist air.
#pragma once

#include "base/numeric.h"
#include "math/math.h"

namespace quorvel::psychro {

// Saturation vapour pressure [Pa] at t [°C], over water from 0 °C up, over ice below.
// One last-bit difference in log10 becomes more than a hundred in the result, so every
// intermediate stays single and in the written order.
inline Real saturation_pressure(Real t) noexcept {
    const Real T = t + zero_celsius;
    if (t >= 0.0f) {
        return math::exp10(0.0024804f * T + 33.59051f - 3142.31f / T - 8.2f * math::log10(T));
    }
    return math::exp10(12.538099f - 2663.91f / T);
}

// Vapour pressure [Pa] at dry-bulb t [°C] and relative humidity rh [%], which is limited to 0..100.
inline Real vapour_pressure(Real t, Real rh) noexcept {
    return saturation_pressure(t) * limited(rh, 0.0f, 100.0f) / 100.0f;
}

// Psychrometer coefficient [1/K] by type (1 sling, 2 screen) and state of the bulb.
inline Real psychrometer_coefficient(Integer type, bool iced) noexcept {
    constexpr Real table[2][2] = {{0.000666f, 0.000799f}, {0.000594f, 0.00072f}};
    return table[iced][table_row(type, 2)];
}

// Vapour pressure [Pa] from dry bulb t and wet bulb twb [°C] at atmospheric pressure p [Pa].
inline Real vapour_pressure_from_psychrometer(Real t, Real twb, Real p, Integer type) noexcept {
    if (twb >= t) return saturation_pressure(t);
    const Real A = psychrometer_coefficient(type, twb < 0.0f);
    return saturation_pressure(twb) - A * p * (t - twb);
}

}  // namespace quorvel::psychro
