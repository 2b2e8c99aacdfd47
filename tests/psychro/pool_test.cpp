#include <gtest/gtest.h>

#include <array>

#include "quorvel/psychro.h"

namespace {

constexpr float p = 101325.0f;

// Evaporation, latent, convective and exchanged heat of a pool at 28 °C with 50 m² wetted about it.
std::array<float, 4> by_wet_bulb(float twb, float air = 30.0f, int bathers = 0,
                                 float area = 250.0f) {
    std::array<float, 4> q;
    lib::TPPOOL2(area, 50.0f, 28.0f, air, twb, 22.0f, bathers, 4.0f, p, q[0], q[1], q[2], q[3]);
    return q;
}

// Biasin and Krumme 1974 for a calm pool, in kg/(m² h).
TEST(Pool, EvaporatesByThePublishedRegressionWhenCalm) {
    for (int nobody : {0, -3})
        for (float twb : {18.0f, 22.0f, 25.0f}) {
            const float dp = lib::PSSVP(28.0f) - lib::PSVAP(30.0f, twb, p, 1);
            const float rate = by_wet_bulb(twb, 30.0f, nobody)[0];
            EXPECT_NEAR(3600.0f * rate, -0.059f + 0.000079f * dp, 5e-4f) << twb;
        }
}

TEST(Pool, EvaporationOfBathersGrowsWithTheirNumberPerArea) {
    const auto rate = [](int bathers, float area) {
        return by_wet_bulb(22.0f, 30.0f, bathers, area)[0] - 3.28e-5f;
    };
    const float dp = lib::PSSVP(28.0f) - lib::PSVAP(30.0f, 22.0f, p, 1);
    EXPECT_NEAR(rate(250, 250.0f), 4.17e-8f * dp, 1e-9f);
    EXPECT_NEAR(rate(20, 250.0f), 2.0f * rate(10, 250.0f), 1e-10f);
    EXPECT_NEAR(rate(20, 500.0f), rate(10, 250.0f), 1e-10f);
    // In equilibrium with saturated air the offsets of the regressions remain.
    for (float twb : {28.0f, 33.0f}) EXPECT_FLOAT_EQ(by_wet_bulb(twb, 28.0f)[0], -1.64e-5f);
    EXPECT_FLOAT_EQ(by_wet_bulb(28.0f, 28.0f, 1)[0], 3.28e-5f);
}

TEST(Pool, HumidityCountsAlikeAsMoistureContentAndAsWetBulb) {
    for (float g : {0.006f, 0.012f, 0.016f, 0.03f}) {
        std::array<float, 4> q;
        lib::TPPOOL(250.0f, 50.0f, 28.0f, 30.0f, g, 22.0f, 0, 4.0f, p, q[0], q[1], q[2], q[3]);
        EXPECT_EQ(q, by_wet_bulb(lib::PSWBLB(30.0f, g, p, 1))) << g;
        if (g > 0.025f) continue;  // more than the air holds
        // Without a psychrometer between: 0.005 K of its wet bulb are 2 Pa at most here.
        const float pv = p * g / (1.0047f * (0.62197f + g));
        EXPECT_NEAR(q[0], 2.193e-8f * (lib::PSSVP(28.0f) - pv) - 1.64e-5f, 5e-8f) << g;
    }
}

}  // namespace
