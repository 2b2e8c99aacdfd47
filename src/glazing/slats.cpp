#include "glazing/slats.h"

#include "glazing/profile_bands.h"

namespace quorvel::glazing {
namespace {

constexpr Real degree = 0.017453294f;

// Below this angle [rad] between them the beam counts as parallel to the slats.
constexpr Real parallel_angle = 0.01f;

// The gap between two slats as a beam from one side of the slats meets it. Lengths are by the width
// of a slat; exchange factors are found by crossed strings.
struct Gap {
    Real x;             // spacing of the slats
    Real sine;          // of the slat angle, positive where the slats are turned against the beam
    Real rho_a, rho_b;  // reflectance of the face that the beam strikes, of the opposite one
    Real onwards;       // exchange factor of a slat with the opening where the beam would leave
    Real across;        // and with the other slat
    Real repeated;      // passes after reflection at both slats, by what the second one receives
};

Gap gap_between(const SlatBlind& blind, Real sine) noexcept {
    const Real x = blind.spacing / blind.width;
    const Real rho_a = 1.0f - blind.struck;
    const Real rho_b = 1.0f - blind.opposite;
    const Real F1 = math::sqrt(1.0f + 2.0f * x * sine + x * x);
    const Real F2 = math::sqrt(1.0f - 2.0f * x * sine + x * x);
    const Real onwards = (1.0f - F1 + x) / 2.0f;
    const Real backwards = (1.0f - F2 + x) / 2.0f;
    const Real across = (F1 + F2 - 2.0f * x) / 2.0f;
    // In the sum the balance of unequal faces would have rho_a: kept.
    const Real repeated = (backwards + onwards * across * rho_b) * rho_a * rho_b /
                          (1.0f - across * across * rho_a * rho_b);
    return {x, sine, rho_a, rho_b, onwards, across, repeated};
}

// A beam by the sine of its angle to the slats and the cosine of its angle to the blind's normal.
// Both faces absorb as the struck one does: kept, the balance is exact for equal faces only.
Optics beam_through_slats(const SlatBlind& blind, const Gap& gap, Real sine, Real cosine) noexcept {
    const auto [x, sb, rho_a, rho_b, E1, E2, K] = gap;
    const Real s = blind.spacing, w = blind.width, alpha = blind.struck;
    const Real L = s * cosine / sine;  // of the slat that is lit through one gap
    if (L > w) {
        const Real T = 1.0f - (1.0f - E1 * rho_a - K * E2) * sine / (x * cosine);
        const Real A = sine * alpha / (x * (1.0f - E2 * rho_b) * cosine);
        return {T, A, 1.0f - T - A};
    }
    // Only the outer part of the slat is lit; its exchange factors, with lengths by that part.
    const Real y = s / L;
    const Real z = (w - L) / L;
    const Real G1 = math::sqrt(z * z + y * y + 2.0f * z * s * sb / L);
    const Real G2 = math::sqrt(squared(w / L) + 2.0f * y * w * sb / L + y * y);
    const Real E3 = (G2 - G1 - y + math::sqrt(1.0f - 2.0f * y * sb + y * y)) / 2.0f;
    const Real T = 0.5f * (G1 + 1.0f - G2) * rho_a + K * E3;
    const Real A = (1.0f + E3 * rho_b / (1.0f - E2 * rho_b)) * alpha;
    return {T, A, 1.0f - T - A};
}

constexpr Optics beside_open_share(Real open, const Optics& slats) noexcept {
    if (!(open > 0.0f)) return slats;
    const Real closed = 1.0f - open;
    return {open + closed * slats.transmittance, closed * slats.absorptance,
            closed * slats.reflectance};
}

// A beam at the angle to_slats, whose sine is given without its sign, through the gap as a beam
// from that side meets it.
Optics beam_through_blind(const SlatBlind& blind, const Gap& gap, Real to_slats, Real sine,
                          Real cosine) noexcept {
    if (std::fabs(to_slats) < parallel_angle) return {1.0f, 0.0f, 0.0f};
    return beside_open_share(blind.open, beam_through_slats(blind, gap, sine, cosine));
}

}  // namespace

Optics slat_direct(const SlatBlind& blind, Real profile) noexcept {
    const Real cosine = math::cos(profile);
    if (std::fabs(cosine) < 1e-6f || std::fabs(profile) >= 1.570796f) {
        // Along the blind, which then is an opaque sheet. Its absorptance is not reduced by the
        // open share: kept.
        const Real open = blind.open > 0.0f ? blind.open : 0.0f;
        return {open, blind.struck, 1.0f - open - blind.struck};
    }
    const Real angle = degree * blind.angle;
    const Real to_slats = profile + angle;
    const Gap gap = gap_between(blind, math::sin(to_slats <= 0.0f ? -angle : angle));
    return beam_through_blind(blind, gap, to_slats, math::sin(std::fabs(to_slats)), cosine);
}

SlatDiffuse slat_diffuse(const SlatBlind& blind) noexcept {
    // What the beams share is found once. Their sines are taken in a loop of their own, which the
    // compiler vectorises.
    const Real angle = degree * blind.angle;
    const Real slat_sine = math::sin(angle);
    const Gap gap = gap_between(blind, slat_sine), mirrored = gap_between(blind, -slat_sine);
    constexpr int beams = 2 * profile_band_count;  // from the sky, then from the ground
    std::array<Real, beams> to_slats, sines;
    for (int k = 0; k < profile_band_count; ++k) {
        to_slats[k] = profile_band_centre(k) + angle;
        to_slats[k + profile_band_count] = -profile_band_centre(k) + angle;
    }
    for (int i = 0; i < beams; ++i) sines[i] = math::sin(std::fabs(to_slats[i]));

    const auto beam = [&](int i, Real cosine) {
        return beam_through_blind(blind, to_slats[i] <= 0.0f ? mirrored : gap, to_slats[i],
                                  sines[i], cosine);
    };
    SlatDiffuse sum{};
    for (int k = 0; k < profile_band_count; ++k) {
        const auto [cosine, weight] = profile_bands[k];
        const Optics sky = beam(k, cosine), ground = beam(k + profile_band_count, cosine);
        sum.sky_transmittance += weight * sky.transmittance;
        sum.ground_transmittance += weight * ground.transmittance;
        sum.sky_absorptance += weight * sky.absorptance;
        sum.ground_absorptance += weight * ground.absorptance;
    }
    return sum;
}

}  // namespace quorvel::glazing
