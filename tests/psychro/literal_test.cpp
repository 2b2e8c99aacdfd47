// The wet-bulb searches foresee most of their trials, and still give the bits of the literal forms.
#include "literal/compare.h"
#include "literal/moist_air.h"
#include "literal/psychro.h"
#include "quorvel/psychro.h"

using namespace quorvel::conformance;
using namespace quorvel::test;

namespace {

struct Air {
    float t, p, mu, g;
    int type;
};

template <class Draw>
void expect_literal_bits(int cases, Draw draw) {
    for (int i = 0; i < cases; ++i) {
        const auto [t, p, mu, g, type] = draw();
        ASSERT_TRUE(same_bits<3>(
            {lib::PSTWB(t, mu, p, type), lib::PSWBLB(t, g, p, type), lib::PSHWET(t, mu, p, type)},
            {literal::PSTWB(t, mu, p, type), literal::PSWBLB(t, g, p, type),
             literal::PSHWET(t, mu, p, type)}))
            << std::hexfloat << t << ' ' << mu << ' ' << g << ' ' << p << ' ' << type;
    }
}

TEST(LiteralForm, WetBulbSearchesFromFrostToBoiling) {
    Random random(1);
    expect_literal_bits(200000, [&] {
        const float t = random.real(-105.0f, 105.0f), p = random.real(2000.0f, 200000.0f);
        const float mu = random.real(-5.0f, 110.0f);
        const float g = mu / 100.0f * literal::PSGS(t, t, p, 1);
        return Air{t, p, mu, g, 1 + random.below(2)};
    });
}

// Wet bulbs about 0 °C, where the bulb's state changes and the equation has two solutions.
TEST(LiteralForm, WetBulbSearchesAcrossTheFreezingPoint) {
    Random random(2);
    expect_literal_bits(200000, [&] {
        const float t = random.real(-1.0f, 12.0f), p = random.real(60000.0f, 110000.0f);
        const int type = 1 + random.below(2);
        const float g = literal::PSGS(t, random.real(-2.0f, 1.0f), p, type);
        return Air{t, p, 100.0f * g / literal::PSGS(t, t, p, type), g, type};
    });
}

// Tabulated wet bulbs and round humidities: the trials meet the solution, or its very neighbours.
TEST(LiteralForm, WetBulbSearchesThatMeetTheSolution) {
    Random random(3);
    expect_literal_bits(100000, [&] {
        const float t = static_cast<float>(random.below(60) - 10), p = 101325.0f;
        float twb = t;
        for (int k = random.below(20); k > 0; --k) twb -= 1.0f;
        for (int k = random.below(10); k > 0; --k) twb -= 0.1f;
        const int type = 1 + random.below(2);
        const float g =
            std::nextafter(literal::PSGS(t, twb, p, type), static_cast<float>(random.below(3) - 1));
        return Air{t, p, 100.0f * g / literal::PSGS(t, t, p, type), g, type};
    });
}

TEST(LiteralForm, WetBulbSearchesOfAnyBits) {
    Random random(4);
    const auto any = [&] { return any_bits(random); };
    expect_literal_bits(3000, [&] {
        const float limit = about(10000.0f, random);
        const float temperatures[] = {limit, any(), any(), random.real(-300.0f, 300.0f)};
        const float t = temperatures[random.below(4)];
        const float p = random.below(2) ? any() : random.real(-1000.0f, 150000.0f);
        return Air{t, p, any(), random.below(2) ? any() : random.real(-1.0f, 1.0f),
                   1 + random.below(2)};
    });
}

TEST(LiteralForm, WetBulbOfPsychrometer) {
    Random random(1);
    for (int i = 0; i < 200000; ++i) {
        const float t = random.real(-60.0f, 110.0f), rh = random.real(-5.0f, 110.0f);
        const float p = random.real(5000.0f, 120000.0f);
        const int type = 1 + random.below(2);
        ASSERT_TRUE(same_bits<1>({lib::PSTWET(t, rh, p, type)}, {literal::PSTWET(t, rh, p, type)}))
            << t << ' ' << rh << ' ' << p << ' ' << type;
    }
}

}  // namespace
