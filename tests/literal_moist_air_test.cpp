// The wet-bulb searches foresee most of their trials, and still give the bits of the literal forms.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>

#include "common/library.h"
#include "literal/moist_air.h"
#include "support/random_arguments.h"

namespace {

using quorvel::test::Random;

float between(float low, float high, Random& random) {
    return low + (high - low) * static_cast<float>(random.unit());
}

// Equal bits; which not-a-number it is does not matter.
bool same(float a, float b) {
    return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b) ||
           (std::isnan(a) && std::isnan(b));
}

struct Air {
    float t, p, mu, g;
    int type;
};

template <class Draw>
void expect_literal_bits(int cases, Draw draw) {
    for (int i = 0; i < cases; ++i) {
        const auto [t, p, mu, g, type] = draw();
        ASSERT_PRED2(same, lib::PSTWB(t, mu, p, type), literal::PSTWB(t, mu, p, type))
            << std::hexfloat << t << ' ' << mu << ' ' << p << ' ' << type;
        ASSERT_PRED2(same, lib::PSWBLB(t, g, p, type), literal::PSWBLB(t, g, p, type))
            << std::hexfloat << t << ' ' << g << ' ' << p << ' ' << type;
        ASSERT_PRED2(same, lib::PSHWET(t, mu, p, type), literal::PSHWET(t, mu, p, type))
            << std::hexfloat << t << ' ' << mu << ' ' << p << ' ' << type;
    }
}

TEST(LiteralForm, WetBulbSearchesFromFrostToBoiling) {
    Random random(1);
    expect_literal_bits(200000, [&] {
        const float t = between(-105.0f, 105.0f, random), p = between(2000.0f, 200000.0f, random);
        const float mu = between(-5.0f, 110.0f, random);
        const float g = mu / 100.0f * literal::PSGS(t, t, p, 1);
        return Air{t, p, mu, g, 1 + random.below(2)};
    });
}

// Wet bulbs about 0 °C, where the bulb's state changes and the equation has two solutions.
TEST(LiteralForm, WetBulbSearchesAcrossTheFreezingPoint) {
    Random random(2);
    expect_literal_bits(200000, [&] {
        const float t = between(-1.0f, 12.0f, random), p = between(60000.0f, 110000.0f, random);
        const int type = 1 + random.below(2);
        const float g = literal::PSGS(t, between(-2.0f, 1.0f, random), p, type);
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
    const auto any = [&] {
        return std::bit_cast<float>(static_cast<std::uint32_t>(random.bits()));
    };
    expect_literal_bits(3000, [&] {
        const float t = random.below(2) ? any() : between(-300.0f, 300.0f, random);
        const float p = random.below(2) ? any() : between(-1000.0f, 150000.0f, random);
        return Air{t, p, any(), random.below(2) ? any() : between(-1.0f, 1.0f, random),
                   1 + random.below(2)};
    });
}

}  // namespace
