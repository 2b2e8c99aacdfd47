// Blinds and louvres of flat, opaque, diffusely reflecting slats, in the plane across the slats.
//
// Spacing and width of the slats are in the same unit. The slat angle is in degrees from level,
// positive with the outer edge lowered; the profile angle of a beam in radians from the normal of
// the blind, positive from above. struck and opposite are the absorptances of the face that the
// beam strikes first and of the other. open is a share of the radiation that passes beside the
// slats; none below 0.
#pragma once

#include "glazing/pane.h"
#include "glazing/profile_bands.h"

namespace quorvel::glazing {

inline constexpr Real degree = 0.017453294f;

// Below this angle, rad, between them the beam counts as parallel to the slats.
inline constexpr Real parallel_angle = 0.01f;

// Slats whatever side the beam comes from. Exchange factors are found by crossed strings, with
// lengths by the width of a slat.
template <class R>
struct Slats {
    R spacing, width;
    R struck;         // absorptance
    R rho_a, rho_b;   // reflectance of the struck face, of the opposite one
    R sine;           // of the slat angle
    R ahead, behind;  // exchange factors of a slat with the openings, for a beam from above
    R across;         // and with the other slat
};

template <class R>
Slats<R> slats_of(R spacing, R width, R angle, R struck, R opposite) noexcept {
    const R x = spacing / width, sine = math::sin(angle);
    const R F1 = math::sqrt(1.0f + 2.0f * x * sine + x * x);
    const R F2 = math::sqrt(1.0f - 2.0f * x * sine + x * x);
    return {spacing,
            width,
            struck,
            1.0f - struck,
            1.0f - opposite,
            sine,
            (1.0f - F1 + x) / 2.0f,
            (1.0f - F2 + x) / 2.0f,
            (F1 + F2 - 2.0f * x) / 2.0f};
}

// The gap between two slats as a beam from one side of the slats meets it.
template <class R>
struct Gap {
    R sine;      // of the slat angle, positive where the slats are turned against the beam
    R onwards;   // exchange factor of a slat with the opening where the beam would leave
    R repeated;  // passes after reflection at both slats, by what the second one receives
};

// Mirrored for a beam with a negative angle to the slats.
template <class R>
Gap<R> gap_between(const Slats<R>& slats, MaskOf<R> mirrored) noexcept {
    const R onwards = select(mirrored, slats.behind, slats.ahead);
    const R backwards = select(mirrored, slats.ahead, slats.behind);
    const R across = slats.across, rho_a = slats.rho_a, rho_b = slats.rho_b;
    // Deliberate: in the sum the balance of unequal faces would have rho_a.
    const R repeated = (backwards + onwards * across * rho_b) * rho_a * rho_b /
                       (1.0f - across * across * rho_a * rho_b);
    return {select(mirrored, -slats.sine, slats.sine), onwards, repeated};
}

// A beam by the sine of its angle to the slats and the cosine of its angle to the blind's normal.
// Deliberate: both faces absorb as the struck one does; the balance is exact for equal faces only.
template <class R>
Optics<R> beam_through_slats(const Slats<R>& slats, const Gap<R>& gap, R sine, R cosine) noexcept {
    const R s = slats.spacing, w = slats.width, alpha = slats.struck;
    const R rho_a = slats.rho_a, rho_b = slats.rho_b, sb = gap.sine;
    const R E1 = gap.onwards, E2 = slats.across, K = gap.repeated;
    const R L = s * cosine / sine;  // of the slat that is lit through one gap
    return either(
        L > w,
        [&] {
            const R x = s / w;
            const R T = 1.0f - (1.0f - E1 * rho_a - K * E2) * sine / (x * cosine);
            return reflecting_the_rest(T, sine * alpha / (x * (1.0f - E2 * rho_b) * cosine));
        },
        [&] {
            // Only the outer part of the slat is lit; its exchange factors, with lengths by it.
            const R y = s / L;
            const R z = (w - L) / L;
            const R G1 = math::sqrt(z * z + y * y + 2.0f * z * s * sb / L);
            const R G2 = math::sqrt(squared(w / L) + 2.0f * y * w * sb / L + y * y);
            const R E3 = (G2 - G1 - y + math::sqrt(1.0f - 2.0f * y * sb + y * y)) / 2.0f;
            return reflecting_the_rest(0.5f * (G1 + 1.0f - G2) * rho_a + K * E3,
                                       (1.0f + E3 * rho_b / (1.0f - E2 * rho_b)) * alpha);
        });
}

// A beam at the angle to_slats, whose sine is given without its sign.
template <class R>
Optics<R> beam_through_blind(const Slats<R>& slats, const Gap<R>& gap, R open, R to_slats, R sine,
                             R cosine) noexcept {
    return either(
        rarely(absolute(to_slats) < parallel_angle),
        [&] {
            return Optics<R>{R(1.0f), R(0.0f), R(0.0f)};
        },
        [&] {
            const Optics<R> closed = beam_through_slats(slats, gap, sine, cosine);
            return either(
                open > 0.0f,
                [&] {
                    const R share = 1.0f - open;
                    return Optics<R>{open + share * closed.transmittance,
                                     share * closed.absorptance, share * closed.reflectance};
                },
                [&] { return closed; });
        });
}

template <class R>
Optics<R> open_slat_direct(R spacing, R width, R slat_angle, R profile, R open, R struck,
                           R opposite) noexcept {
    const R cosine = math::cos(profile), from_normal = absolute(profile);
    return either(
        rarely((absolute(cosine) < 1e-6f) | (from_normal >= 1.570796f)),
        [&] {
            // Along the blind, which then is an opaque sheet. Deliberate: its absorptance
            // is not reduced by the open share.
            return reflecting_the_rest(greater(R(0.0f), open), struck);
        },
        [&] {
            const R angle = degree * slat_angle, to_slats = profile + angle;
            const Slats<R> slats = slats_of(spacing, width, angle, struck, opposite);
            const Gap<R> gap = gap_between(slats, to_slats <= 0.0f);
            const R sine = math::sin(absolute(to_slats));
            return beam_through_blind(slats, gap, open, to_slats, sine, cosine);
        });
}

template <class R>
Optics<R> two_faced_slat_direct(R spacing, R width, R slat_angle, R profile, R struck,
                                R opposite) noexcept {
    return open_slat_direct(spacing, width, slat_angle, profile, R(0.0f), struck, opposite);
}

template <class R>
Optics<R> slat_direct(R spacing, R width, R slat_angle, R profile, R absorptance) noexcept {
    return two_faced_slat_direct(spacing, width, slat_angle, profile, absorptance, absorptance);
}

// For the radiation from above and that from below the horizon, each uniform in the profile angle.
template <class R>
struct SlatDiffuse {
    R sky_transmittance, ground_transmittance;
    R sky_absorptance, ground_absorptance;
};

template <class R>
SlatDiffuse<R> open_slat_diffuse(R spacing, R width, R slat_angle, R open, R struck,
                                 R opposite) noexcept {
    // What the beams share is found once. Their sines are taken in a loop of their own, which the
    // compiler vectorises.
    const R angle = degree * slat_angle;
    const Slats<R> slats = slats_of(spacing, width, angle, struck, opposite);
    const Gap<R> gap = gap_between(slats, MaskOf<R>(false));
    const Gap<R> mirrored = gap_between(slats, MaskOf<R>(true));
    constexpr int beams = 2 * profile_band_count;  // from the sky, then from the ground
    std::array<R, beams> to_slats, sines;
    for (int k = 0; k < profile_band_count; ++k) {
        to_slats[k] = profile_band_centre(k) + angle;
        to_slats[k + profile_band_count] = -profile_band_centre(k) + angle;
    }
    for (int i = 0; i < beams; ++i) sines[i] = math::sin(absolute(to_slats[i]));

    const auto beam = [&](int i, Real cosine) {
        return beam_through_blind(slats, select(to_slats[i] <= 0.0f, mirrored, gap), open,
                                  to_slats[i], sines[i], R(cosine));
    };
    SlatDiffuse<R> sum = {R(0.0f), R(0.0f), R(0.0f), R(0.0f)};
    for (int k = 0; k < profile_band_count; ++k) {
        const ProfileBand& band = profile_bands[k];
        const Optics<R> sky = beam(k, band.cosine);
        const Optics<R> ground = beam(k + profile_band_count, band.cosine);
        sum.sky_transmittance += band.weight * sky.transmittance;
        sum.ground_transmittance += band.weight * ground.transmittance;
        sum.sky_absorptance += band.weight * sky.absorptance;
        sum.ground_absorptance += band.weight * ground.absorptance;
    }
    return sum;
}

template <class R>
SlatDiffuse<R> two_faced_slat_diffuse(R spacing, R width, R slat_angle, R struck,
                                      R opposite) noexcept {
    return open_slat_diffuse(spacing, width, slat_angle, R(0.0f), struck, opposite);
}

template <class R>
SlatDiffuse<R> slat_diffuse(R spacing, R width, R slat_angle, R absorptance) noexcept {
    return two_faced_slat_diffuse(spacing, width, slat_angle, absorptance, absorptance);
}

}  // namespace quorvel::glazing
