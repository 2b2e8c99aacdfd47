// Blinds and sky give the very bits of their literal forms; the blinds also for arguments that no
// blind has.
#include "literal/blinds.h"
#include "literal/compare.h"
#include "literal/sky.h"
#include "quorvel/library.h"

using namespace quorvel::conformance;
using namespace quorvel::test;

namespace {

TEST(LiteralForm, BlindsInBeamAndDiffuseRadiation) {
    Random random(1);
    for (int i = 0; i < 100000; ++i) {
        const int rarity = i % 2 ? 10 : 1000000;
        // Whole multiples of 5 degrees put bands into the plane of the slats.
        const float angle = random.real(-90.0f, 90.0f);
        const float beta = unusual(i % 4 ? angle : 5.0f * std::round(angle / 5.0f), rarity, random);
        const float s = unusual(random.real(0.01f, 0.3f), rarity, random);
        const float w = unusual(random.real(0.01f, 0.3f), rarity, random);
        const float along_blind = about(random.below(2) ? 1.5707953f : -1.570796f, random);
        const float phi = unusual(random.below(16) ? random.real(-1.5709f, 1.5709f) : along_blind,
                                  rarity, random);
        const float f = unusual(random.real(-0.5f, 1.0f), rarity, random);
        const float alpha = unusual(random.real(0.0f, 1.0f), rarity, random);
        const float alpha_b = unusual(random.real(0.0f, 1.0f), rarity, random);
        std::array<float, 7> ours;
        lib::WNDRS3(s, w, beta, phi, f, alpha, alpha_b, ours[0], ours[1], ours[2]);
        lib::WNDFS3(s, w, beta, f, alpha, alpha_b, ours[3], ours[4], ours[5], ours[6]);
        const auto beam = literal::slat_beam(s, w, beta, phi, f, alpha, alpha_b);
        const auto diffuse = literal::slat_diffuse(s, w, beta, f, alpha, alpha_b);
        const std::array expected = {beam.T,          beam.A,           beam.R,
                                     diffuse.T_sky,   diffuse.T_ground, diffuse.A_sky,
                                     diffuse.A_ground};
        ASSERT_TRUE(same_bits(ours, expected)) << s << ' ' << w << ' ' << beta << ' ' << phi << ' '
                                               << f << ' ' << alpha << ' ' << alpha_b;
    }
}

TEST(LiteralForm, AnisotropicSky) {
    Random random(3);
    for (int i = 0; i < 200000; ++i) {
        const float altitude = random.real(i % 8 ? 0.0f : -4.0f, i % 8 ? 1.5708f : 4.0f);
        const float tilt = random.real(i % 8 ? 0.0f : -7.0f, i % 8 ? 3.1416f : 7.0f);
        const float incidence = random.real(0.0f, 3.1416f);
        const float beam = random.below(8) ? random.real(0.0f, 1000.0f) : 0.0f;
        const float diffuse = random.real(1.0f, 600.0f);
        const float normal = random.real(1320.0f, 1415.0f);
        float ours;
        lib::CLPERSKY(altitude, tilt, beam, diffuse, ours, incidence, normal);
        ASSERT_TRUE(same_bits<1>(
            {ours}, {literal::CLPERSKY(altitude, tilt, beam, diffuse, incidence, normal)}))
            << altitude << ' ' << tilt << ' ' << beam << ' ' << diffuse << ' ' << incidence;
    }
}

}  // namespace
