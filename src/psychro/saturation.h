// Saturation and actual vapour pressure of moist air, in Pa; temperatures in °C.
#pragma once

#include "base/numeric.h"
#include "base/root.h"
#include "math/with_slope.h"

namespace quorvel::psychro {

// The common logarithm of the saturation pressure, over water from 0 °C up, over ice below. One
// last-bit difference in log10 becomes more than a hundred in the pressure, so every intermediate
// stays single, of a single number, and in the written order.
template <class R>
inline R saturation_exponent(R t) noexcept {
    const R T = t + zero_celsius;
    return either(
        t >= 0.0f,
        [&] { return 0.0024804f * T + 33.59051f - 3142.31f / T - 8.2f * math::log10(T); },
        [&] { return 12.538099f - 2663.91f / T; });
}

template <class R>
inline R saturation_pressure(R t) noexcept {
    return math::exp10(saturation_exponent(t));
}

// A number type for searches, in which what is solved for has the slope 1.
template <class R>
using Unknown = WithSlope<DoubleOf<R>>;

// Where vapour pressure pv saturates air. In double precision, free of the steps that the
// saturation pressure makes in single.
template <class R>
R dew_point(R pv) noexcept {
    using D = DoubleOf<R>;
    const Unknown<R> exponent = math::log10(Unknown<R>(to_double(pv)));
    const auto excess = [&](Unknown<R> t) { return saturation_exponent(t) - exponent; };
    const D over_ice =
        D(2664.0) / (D(12.54) - exponent.value) - D(273.15);  // near enough for water
    return to_real(root(D(-200.0), D(400.0), over_ice, excess));
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
        rarely(twb >= t), [&] { return saturation_pressure(t); },
        [&] {
            const R A = psychrometer_coefficient<R>(type, twb < 0.0f);
            return saturation_pressure(twb) - A * p * (t - twb);
        });
}

}  // namespace quorvel::psychro
