// The routines that were made fast give the very bits of their literal forms.

#include "literal/compare.h"
#include "literal/glazing.h"
#include "literal/psychro.h"
#include "quorvel/library.h"

using namespace quorvel::test;

namespace {

constexpr int cases = 200000;

TEST(LiteralForm, WetBulbOfPsychrometer) {
    Random random(1);
    for (int i = 0; i < cases; ++i) {
        const float t = random.real(-60.0f, 110.0f), rh = random.real(-5.0f, 110.0f);
        const float p = random.real(5000.0f, 120000.0f);
        const int type = 1 + random.below(2);
        ASSERT_TRUE(same_bits<1>({lib::PSTWET(t, rh, p, type)}, {literal::PSTWET(t, rh, p, type)}))
            << t << ' ' << rh << ' ' << p << ' ' << type;
    }
}

TEST(LiteralForm, GlassInBeamAndDiffuseRadiation) {
    Random random(2);
    for (int i = 0; i < cases / 4; ++i) {
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
