// Blinds and sky give the very bits of their literal forms; the blinds also for arguments that no
// blind has.
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>

#include "common/library.h"
#include "literal/blinds.h"
#include "literal/sky.h"
#include "support/random_arguments.h"

namespace {

using quorvel::test::Random;

float between(float low, float high, Random& random) {
    return low + (high - low) * static_cast<float>(random.unit());
}

// One value in ten is an edge or any bits, in half of the cases.
float unusual(float value, bool wild, Random& random) {
    constexpr float edges[] = {0.0f, -0.0f, 1.0f, -1.0f, 1e-30f, 1e30f, INFINITY, NAN};
    if (!wild || random.below(10)) return value;
    if (random.below(2)) return edges[random.below(std::size(edges))];
    return std::bit_cast<float>(static_cast<std::uint32_t>(random.bits()));
}

bool same_bits(float a, float b) {
    return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b) ||
           (std::isnan(a) && std::isnan(b));
}

TEST(LiteralForm, BlindsInBeamAndDiffuseRadiation) {
    Random random(1);
    for (int i = 0; i < 100000; ++i) {
        const bool wild = i % 2 != 0;
        // Whole multiples of 5 degrees put bands into the plane of the slats.
        const float angle = between(-90.0f, 90.0f, random);
        const float beta = unusual(i % 4 ? angle : 5.0f * std::round(angle / 5.0f), wild, random);
        const float s = unusual(between(0.01f, 0.3f, random), wild, random);
        const float w = unusual(between(0.01f, 0.3f, random), wild, random);
        const float phi = unusual(between(-1.5709f, 1.5709f, random), wild, random);
        const float f = unusual(between(-0.5f, 1.0f, random), wild, random);
        const float alpha = unusual(between(0.0f, 1.0f, random), wild, random);
        const float alpha_b = unusual(between(0.0f, 1.0f, random), wild, random);
        std::array<float, 7> ours;
        lib::WNDRS3(s, w, beta, phi, f, alpha, alpha_b, ours[0], ours[1], ours[2]);
        lib::WNDFS3(s, w, beta, f, alpha, alpha_b, ours[3], ours[4], ours[5], ours[6]);
        const auto beam = literal::slat_beam(s, w, beta, phi, f, alpha, alpha_b);
        const auto diffuse = literal::slat_diffuse(s, w, beta, f, alpha, alpha_b);
        const std::array expected = {beam.T,          beam.A,           beam.R,
                                     diffuse.T_sky,   diffuse.T_ground, diffuse.A_sky,
                                     diffuse.A_ground};
        for (std::size_t k = 0; k < ours.size(); ++k)
            ASSERT_TRUE(same_bits(ours[k], expected[k]))
                << k << ": " << s << ' ' << w << ' ' << beta << ' ' << phi << ' ' << f << ' '
                << alpha << ' ' << alpha_b;
    }
}

TEST(LiteralForm, AnisotropicSky) {
    Random random(3);
    for (int i = 0; i < 200000; ++i) {
        const float altitude = between(i % 8 ? 0.0f : -4.0f, i % 8 ? 1.5708f : 4.0f, random);
        const float tilt = between(i % 8 ? 0.0f : -7.0f, i % 8 ? 3.1416f : 7.0f, random);
        const float incidence = between(0.0f, 3.1416f, random);
        const float beam = random.below(8) ? between(0.0f, 1000.0f, random) : 0.0f;
        const float diffuse = between(1.0f, 600.0f, random);
        const float normal = between(1320.0f, 1415.0f, random);
        float ours;
        lib::CLPERSKY(altitude, tilt, beam, diffuse, ours, incidence, normal);
        ASSERT_TRUE(
            same_bits(ours, literal::CLPERSKY(altitude, tilt, beam, diffuse, incidence, normal)))
            << altitude << ' ' << tilt << ' ' << beam << ' ' << diffuse << ' ' << incidence;
    }
}

}  // namespace
