// Single panes, uncoated and coated, by their normal transmittance Tn and normal reflectance R0; R0
// in 0.01..0.99 means coated, and then both polarisations follow tables of angular factors.
#pragma once

#include "glazing/clear_pane.h"

namespace quorvel::glazing {

// Factors of a coated pane on its normal transmittance and on 1 - its normal reflectance, every 5
// degrees from 0 to 90.
// clang-format off
inline constexpr Real coated_transmitted[] = {
    1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f,
    0.9545f, 0.9091f, 0.8636f, 0.7273f, 0.5f, 0.0f};
inline constexpr Real coated_entered[] = {
    1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f,
    0.9906f, 0.9434f, 0.8491f, 0.717f, 0.434f, 0.0f};
// clang-format on

template <class R>
struct CoatedFactors {
    R transmitted, entered;
};

inline constexpr Real right_angle = 1.57f;

// Interpolated at an angle of 0 to 1.57 rad; not a number gives no numbers.
template <class R>
constexpr CoatedFactors<R> coated_factors(R theta) noexcept {
    const R x = theta / band_width;
    const IntegerOf<R> i = to_integer(select(theta <= right_angle, x, R(0.0f)));
    const R f = x - to_real(i);
    const auto at = [&](const Real* factors) {
        const R low = lookup(factors, i), high = lookup(factors, i + 1);
        return low + (high - low) * f;
    };
    return {at(coated_transmitted), at(coated_entered)};
}

inline constexpr auto coated_band_factors = [] {
    std::array<CoatedFactors<Real>, incidence_band_count> factors{};
    for (int k = 0; k < incidence_band_count; ++k)
        factors[k] = coated_factors(incidence_band_centre(k));
    return factors;
}();

template <class R>
constexpr Optics<R> coated_optics(const CoatedFactors<R>& factors, R Tn, R R0) noexcept {
    const R T = factors.transmitted * Tn;
    const R reflected = 1.0f - (1.0f - R0) * factors.entered;
    return {T, absorbed_remainder(T, reflected), reflected};
}

template <class R>
Optics<R> coated_direct(R Tn, R R0, R theta) noexcept {
    const R angle = absolute(theta);
    return either(
        rarely(angle > right_angle), [&] { return opaque_optics<R>(); },
        [&] { return coated_optics(coated_factors(angle), Tn, R0); });
}

template <class R>
MaskOf<R> is_coated(R R0) noexcept {
    return (R0 >= 0.01f) & (R0 <= 0.99f);
}

template <class R>
struct GlassOptics {
    R parallel_transmittance, parallel_absorptance, parallel_reflectance;
    R perpendicular_transmittance, perpendicular_absorptance, perpendicular_reflectance;
};

// At the angle of incidence theta, rad.
template <class R>
GlassOptics<R> glass_direct(R Tn, R R0, R theta) noexcept {
    const Polarised<Optics<R>> pane = either(
        is_coated(R0),
        [&] {
            const Optics<R> both = coated_direct(Tn, R0, theta);
            return Polarised<Optics<R>>{both, both};
        },
        [&] { return ClearPane<R>(Tn).direct(theta); });
    const Optics<R>&p = pane.parallel, &s = pane.perpendicular;
    return {p.transmittance, p.absorptance, p.reflectance,
            s.transmittance, s.absorptance, s.reflectance};
}

template <class R>
Diffuse<R> glass_diffuse(R Tn, R R0) noexcept {
    return either(
        is_coated(R0),
        [&] {
            return integrated<R>([&](int k) {
                const CoatedFactors<Real>& factors = coated_band_factors[k];
                const Optics<R> both =
                    coated_optics<R>({R(factors.transmitted), R(factors.entered)}, Tn, R0);
                return Polarised<Optics<R>>{both, both};
            });
        },
        [&] { return ClearPane<R>(Tn).diffuse(); });
}

}  // namespace quorvel::glazing
