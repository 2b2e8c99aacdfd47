#include "glazing/glass.h"

#include "glazing/bands.h"

namespace quorvel::glazing {
namespace {

constexpr Optics opaque_optics{0.0f, 0.0f, 1.0f};

constexpr bool is_coated(Real R0) noexcept { return R0 >= 0.01f && R0 <= 0.99f; }

// Factors of a coated pane on its normal transmittance and on 1 - its normal reflectance.
struct CoatedFactors {
    Real transmitted, entered;
};

// Every 5 degrees from 0 to 90.
constexpr std::array<CoatedFactors, 19> coated_factors{{
    {1.0f, 1.0f},       {1.0f, 1.0f},      {1.0f, 1.0f},   {1.0f, 1.0f},       {1.0f, 1.0f},
    {1.0f, 1.0f},       {1.0f, 1.0f},      {1.0f, 1.0f},   {1.0f, 1.0f},       {1.0f, 1.0f},
    {1.0f, 1.0f},       {1.0f, 1.0f},      {1.0f, 1.0f},   {0.9545f, 0.9906f}, {0.9091f, 0.9434f},
    {0.8636f, 0.8491f}, {0.7273f, 0.717f}, {0.5f, 0.434f}, {0.0f, 0.0f},
}};

// Interpolated at an angle of 0 to 1.57 rad; not a number gives no numbers.
constexpr CoatedFactors coated_factors_at(Real theta) noexcept {
    const Real x = theta / band_width;
    const int i = x >= 1.0f ? static_cast<int>(x) : 0;
    const Real f = x - static_cast<Real>(i);
    const CoatedFactors &low = coated_factors[i], &high = coated_factors[i + 1];
    return {low.transmitted + (high.transmitted - low.transmitted) * f,
            low.entered + (high.entered - low.entered) * f};
}

constexpr Optics coated(const CoatedFactors& factors, Real Tn, Real R0) noexcept {
    const Real T = factors.transmitted * Tn;
    const Real R = 1.0f - (1.0f - R0) * factors.entered;
    return {T, absorbed_remainder(T, R), R};
}

Optics coated_direct(Real Tn, Real R0, Real theta) noexcept {
    const Real angle = std::fabs(theta);
    return angle > 1.57f ? opaque_optics : coated(coated_factors_at(angle), Tn, R0);
}

// Hemispherical means of a pane whose two polarisations a function gives at each band.
template <class Evaluate>
Diffuse integrated(Evaluate evaluate) noexcept {
    std::array<Real, band_count> transmitted, absorbed;
    for (int k = 0; k < band_count; ++k) {
        const Polarised<Optics> optics = evaluate(k);
        transmitted[k] = optics.perpendicular.transmittance + optics.parallel.transmittance;
        absorbed[k] = optics.perpendicular.absorptance + optics.parallel.absorptance;
    }
    return {hemispherical_mean(transmitted), hemispherical_mean(absorbed)};
}

constexpr std::array<CoatedFactors, band_count> coated_band_factors = [] {
    std::array<CoatedFactors, band_count> factors{};
    for (int k = 0; k < band_count; ++k) factors[k] = coated_factors_at(band_centre(k));
    return factors;
}();

}  // namespace

Polarised<Optics> direct(const ClearPane& pane, Real theta) noexcept {
    if (pane.opaque) return {opaque_optics, opaque_optics};
    const Real refracted = refraction_angle(theta, glass_index);
    const auto [parallel, perpendicular] = surface_reflectance(theta, refracted, glass_index);
    const Real a = single_pass_absorption(math::cos(refracted), pane.KL);
    return {slab_optics(a, parallel), slab_optics(a, perpendicular)};
}

Optics normal(const ClearPane& pane) noexcept {
    if (pane.opaque) return opaque_optics;
    const Real reflectance = surface_reflectance(0.0f, 0.0f, glass_index).parallel;
    return slab_optics(single_pass_absorption(1.0f, pane.KL), reflectance);
}

Diffuse diffuse(const ClearPane& pane) noexcept {
    if (pane.opaque) return {0.0f, 0.0f};
    return integrated([KL = pane.KL](int k) -> Polarised<Optics> {
        const Real a = single_pass_absorption(bands[k].cos_refraction, KL);
        return {slab_optics(a, bands[k].parallel), slab_optics(a, bands[k].perpendicular)};
    });
}

Polarised<Optics> glass_direct(Real Tn, Real R0, Real theta) noexcept {
    if (!is_coated(R0)) return direct(clear_pane(Tn), theta);
    const Optics both = coated_direct(Tn, R0, theta);
    return {both, both};
}

Diffuse glass_diffuse(Real Tn, Real R0) noexcept {
    if (!is_coated(R0)) return diffuse(clear_pane(Tn));
    return integrated([Tn, R0](int k) -> Polarised<Optics> {
        const Optics both = coated(coated_band_factors[k], Tn, R0);
        return {both, both};
    });
}

}  // namespace quorvel::glazing
