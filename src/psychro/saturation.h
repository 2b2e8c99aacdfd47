// Saturation and actual vapour pressure of moist air, in Pa; temperatures in °C.
#pragma once

#include "base/numeric.h"
#include "math/math.h"

namespace quorvel::psychro {

// Over water from 0 °C up, over ice below. One last-bit difference in log10 becomes more than a
// hundred in the result, so every intermediate stays single and in the written order.
template <class R>
inline R saturation_pressure(R t) noexcept {
    const R T = t + zero_celsius;
    return math::exp10(either(
        t >= 0.0f,
        [&] { return 0.0024804f * T + 33.59051f - 3142.31f / T - 8.2f * math::log10(T); },
        [&] { return 12.538099f - 2663.91f / T; }));
}

// At dry-bulb t and relative humidity rh, %, which is limited to 0..100.
template <class R>
R vapour_pressure(R t, R rh) noexcept {
    return saturation_pressure(t) * limited(rh, 0.0f, 100.0f) / 100.0f;
}

// In %, of air with vapour pressure pv.
template <class R>
R relative_humidity(R t, R pv) noexcept {
    return pv * 100.0f / saturation_pressure(t);
}

// Type of psychrometer
inline constexpr Integer sling = 1;

// Psychrometer coefficient, 1/K, by type and state of the bulb.
template <class R>
R psychrometer_coefficient(IntegerOf<R> type, MaskOf<R> iced) noexcept {
    static constexpr Real table[] = {0.000666f, 0.000799f, 0.000594f, 0.00072f};
    return lookup(table, table_row(type, 2) + select(iced, IntegerOf<R>(2), IntegerOf<R>(0)));
}

// From dry bulb t and wet bulb twb at atmospheric pressure p.
template <class R>
R vapour_pressure_from_psychrometer(R t, R twb, R p, IntegerOf<R> type) noexcept {
    return either(
        twb >= t, [&] { return saturation_pressure(t); },
        [&] {
            const R A = psychrometer_coefficient<R>(type, twb < 0.0f);
            return saturation_pressure(twb) - A * p * (t - twb);
        });
}

}  // namespace quorvel::psychro
