#include <gtest/gtest.h>

#include "quorvel/library.h"

namespace {

constexpr float p = 101325.0f;

struct Loads {
    float e, latent, convective, exchange;
};

// A pool of 250 m² at 28 °C in a hall at 30 °C.
struct Pool {
    float area = 250.0f, wetted = 50.0f, water = 28.0f, air = 30.0f, reference = 22.0f;
    int bathers = 0;
    float coefficient = 4.0f;

    Loads by_content(float g) const {
        Loads q;
        lib::TPPOOL(area, wetted, water, air, g, reference, bathers, coefficient, p, q.e, q.latent,
                    q.convective, q.exchange);
        return q;
    }
    Loads by_wet_bulb(float twb) const {
        Loads q;
        lib::TPPOOL2(area, wetted, water, air, twb, reference, bathers, coefficient, p, q.e,
                     q.latent, q.convective, q.exchange);
        return q;
    }
};

// Biasin and Krumme 1974 for a calm pool, in kg/(m² h).
TEST(Pool, EvaporatesByThePublishedRegressionWhenCalm) {
    Pool pool;
    for (int nobody : {0, -3}) {
        pool.bathers = nobody;
        for (float twb : {18.0f, 22.0f, 25.0f}) {
            const float dp = lib::PSSVP(28.0f) - lib::PSVAP(30.0f, twb, p, 1);
            EXPECT_NEAR(3600.0f * pool.by_wet_bulb(twb).e, -0.059f + 0.000079f * dp, 5e-4f) << twb;
        }
    }
}

TEST(Pool, EvaporationOfBathersGrowsWithTheirNumberPerArea) {
    const auto rate = [](int bathers, float area) {
        Pool pool;
        pool.bathers = bathers;
        pool.area = area;
        return pool.by_wet_bulb(22.0f).e - 3.28e-5f;
    };
    const float dp = lib::PSSVP(28.0f) - lib::PSVAP(30.0f, 22.0f, p, 1);
    EXPECT_NEAR(rate(250, 250.0f), 4.17e-8f * dp, 1e-9f);
    EXPECT_NEAR(rate(20, 250.0f), 2.0f * rate(10, 250.0f), 1e-10f);
    EXPECT_NEAR(rate(20, 500.0f), rate(10, 250.0f), 1e-10f);
}

TEST(Pool, InEquilibriumWithSaturatedAirKeepsTheOffsetOfTheRegression) {
    Pool pool;
    pool.air = pool.water;
    EXPECT_FLOAT_EQ(pool.by_wet_bulb(pool.air).e, -1.64e-5f);
    EXPECT_LT(pool.by_wet_bulb(pool.air).latent, 0.0f);
    EXPECT_FLOAT_EQ(pool.by_wet_bulb(pool.air + 5.0f).e, -1.64e-5f);
    pool.bathers = 1;
    EXPECT_FLOAT_EQ(pool.by_wet_bulb(pool.air).e, 3.28e-5f);
}

TEST(Pool, HeatFlows) {
    const Pool pool;
    const Loads loads = pool.by_wet_bulb(22.0f);
    // The fixed latent heat is that of water at 21.5 °C.
    EXPECT_NEAR(loads.latent / (loads.e * 300.0f) / (1000.0f * lib::PSHFG(21.5f)), 1.0f, 1e-4f);
    EXPECT_FLOAT_EQ(loads.convective, 10.0f * 250.0f * (28.0f - 30.0f));
    EXPECT_FLOAT_EQ(loads.exchange, 4.0f * 250.0f * (28.0f - 22.0f));
}

TEST(Pool, HumidityCountsAlikeAsMoistureContentAndAsWetBulb) {
    const Pool pool;
    for (float g : {0.006f, 0.011f, 0.016f, 0.03f}) {
        const Loads by_content = pool.by_content(g);
        const Loads by_wet_bulb = pool.by_wet_bulb(lib::PSWBLB(pool.air, g, p, 1));
        EXPECT_EQ(by_content.e, by_wet_bulb.e) << g;
        EXPECT_EQ(by_content.latent, by_wet_bulb.latent) << g;
    }
    // Without a psychrometer between: 0.005 K of its wet bulb are 2 Pa at most here.
    const float g = 0.012f, pv = p * g / (1.0047f * (0.62197f + g));
    EXPECT_NEAR(pool.by_content(g).e, 2.193e-8f * (lib::PSSVP(28.0f) - pv) - 1.64e-5f, 5e-8f);
}

}  // namespace
