// Panes and blinds give the very bits of their literal forms; the blinds also for arguments that no
// blind has.
#include "literal/blinds.h"
#include "literal/compare.h"
#include "literal/glazing.h"
#include "quorvel/glazing.h"

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

TEST(LiteralForm, GlassInBeamAndDiffuseRadiation) {
    Random random(2);
    for (int i = 0; i < 50000; ++i) {
        const float Tn = random.real(-0.01f, 0.92f);
        const float theta = random.below(8)
                                ? random.real(-1.6f, 1.6f)
                                : about(random.below(2) ? 0.01f : -0.010000167f, random);
        const float R0 = random.below(2) ? 0.0f : random.real(0.0f, 1.0f);
        std::array<float, 8> ours, expected;
        lib::WNDRGL(Tn, R0, theta, ours[0], ours[1], ours[2], ours[3], ours[4], ours[5]);
        lib::WNDFGL(Tn, R0, ours[6], ours[7]);
        const literal::Pane pane = literal::WNDRGL(Tn, R0, theta);
        literal::WNDFGL(Tn, R0, expected[6], expected[7]);
        expected = {pane.Tp, pane.Ap, pane.Rp, pane.Ts, pane.As, pane.Rs, expected[6], expected[7]};
        ASSERT_TRUE(same_bits(ours, expected)) << Tn << ' ' << R0 << ' ' << theta;
    }
}

}  // namespace
