#include <gtest/gtest.h>

#include <cmath>

#include "quorvel/psychro.h"

namespace {

constexpr float standard_pressure = 101325.0f;

TEST(SaturationPressure, ChangesFromIceToWaterAtExactlyZero) {
    EXPECT_NEAR(lib::PSSVP(0.0f), 610.34f, 0.02f);
    EXPECT_NEAR(lib::PSSVP(std::nextafter(0.0f, -1.0f)), 610.30f, 0.02f);
}

TEST(SaturationPressure, RisesByTheClausiusClapeyronSlope) {
    // d ln ps / dT = L / (R T^2), with the latent heat falling linearly and R of water vapour.
    for (float t = 5.0f; t < 95.0f; t += 5.0f) {
        const double kelvin = t + 273.15, latent = 2501.0e3 - 2380.0 * t;
        const double slope = std::log(double{lib::PSSVP(t + 1.0f)} / lib::PSSVP(t - 1.0f)) / 2.0;
        EXPECT_NEAR(slope / (latent / (461.5 * kelvin * kelvin)), 1.0, 0.02) << t;
    }
}

TEST(VapourPressure, IsLinearInHumidityAndLimitsIt) {
    for (float t : {-15.0f, 0.0f, 21.5f, 60.0f}) {
        const float ps = lib::PSSVP(t);
        EXPECT_FLOAT_EQ(lib::PSVP(t, 100.0f), ps);
        EXPECT_FLOAT_EQ(lib::PSVP(t, 150.0f), ps);
        EXPECT_FLOAT_EQ(lib::PSVP(t, 25.0f), ps / 4.0f);
        EXPECT_EQ(lib::PSVP(t, -5.0f), 0.0f);
    }
}

TEST(Psychrometer, FollowsItsEquationWithTheCoefficientOfTheWetBulb) {
    const auto coefficient = [](float t, float twb, int type) {
        return (lib::PSSVP(twb) - lib::PSVAP(t, twb, standard_pressure, type)) /
               (standard_pressure * (t - twb));
    };
    EXPECT_NEAR(coefficient(30.0f, 20.0f, 1), 0.000666, 1e-7);
    EXPECT_NEAR(coefficient(30.0f, 20.0f, 2), 0.000799, 1e-7);
    EXPECT_NEAR(coefficient(10.0f, 0.0f, 1), 0.000666, 1e-7);
    EXPECT_NEAR(coefficient(10.0f, -1.0f, 1), 0.000594, 1e-7);
    EXPECT_NEAR(coefficient(10.0f, -1.0f, 2), 0.00072, 1e-7);
    for (float twb : {25.0f, 26.0f})
        EXPECT_EQ(lib::PSVAP(25.0f, twb, standard_pressure, 1), lib::PSSVP(25.0f));
    EXPECT_LT(lib::PSVAP(40.0f, 5.0f, standard_pressure, 1), 0.0f);
}

TEST(Psychrometer, WetBulbReadsBackTheHumidity) {
    for (int type : {1, 2})
        for (float p : {85000.0f, standard_pressure})
            for (float t = 2.0f; t <= 50.0f; t += 1.5f)
                for (float rh = 10.0f; rh <= 100.0f; rh += 7.5f) {
                    const float twb = lib::PSTWET(t, rh, p, type);
                    EXPECT_LE(twb, t);
                    if (twb < 0.1f) continue;  // the two directions take different rows there
                    // The search stops within 0.1 K, which the slope of saturation turns into Pa.
                    const float slope = lib::PSSVP(twb + 0.5f) - lib::PSSVP(twb - 0.5f);
                    EXPECT_NEAR(lib::PSVAP(t, twb, p, type), lib::PSVP(t, rh), 0.1f * slope + 0.1f)
                        << t << ' ' << rh;
                }
}

}  // namespace
