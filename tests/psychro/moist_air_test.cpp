#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "conformance/random_arguments.h"
#include "quorvel/psychro.h"

namespace {

using quorvel::conformance::Random;

constexpr float standard_pressure = 101325.0f;

float saturation_content(float t, float p) { return lib::PSGS(t, t, p, 1); }

TEST(DryAir, SpecificHeatIsTheSlopeOfTheEnthalpy) {
    for (float t = -17.5f; t <= 60.0f; t += 2.5f) {
        const float slope = (lib::PSHDRY(t + 2.0f) - lib::PSHDRY(t - 2.0f)) / 4.0f;
        EXPECT_NEAR(lib::PSCPDR(t), slope, 0.0025f) << t;
    }
    EXPECT_NEAR(lib::PSHDRY(0.0f), 0.00071f, 1e-5f);
}

// The rows of the tables meet, except where latent heat turns to that of sublimation at 0 °C, and
// for 0.00004 kJ/kgK of dry air at 40 and 50 °C.
TEST(PropertyTables, MeetAtTheirRows) {
    const auto step = [](const auto& routine, float t, auto... others) {
        return std::fabs(routine(std::nextafter(t, 1e3f), others...) -
                         routine(std::nextafter(t, -1e3f), others...));
    };
    for (float t : {0.0f, 10.0f, 20.0f, 30.0f, 40.0f, 50.0f}) {
        EXPECT_NEAR(step(lib::PSCPDR, t), t < 40.0f ? 0.0f : 4e-5f, 3e-7f) << t;
        EXPECT_LT(step(lib::PSSPVL, t, 0.01f, standard_pressure), 3e-7f) << t;
    }
    for (float t : {-5.0f, 30.0f, 40.0f, 50.0f, 60.0f}) EXPECT_LT(step(lib::PSHFG, t), 1e-3f) << t;
    EXPECT_NEAR(lib::PSCPDR(10.0f), 1.00582f, 1e-6f);
    EXPECT_NEAR(lib::PSCPDR(-20.0f), 1.0056f - 20.0f * 1.3e-5f, 1e-6f);
    EXPECT_NEAR(lib::PSCPDR(70.0f), 1.00745f + 20.0f * 6.1e-5f, 1e-6f);
    EXPECT_EQ(lib::PSCPVA(20.0f), 1.9f);
    EXPECT_EQ(lib::PSCPVA(35.0f), 1.9f);
    EXPECT_NEAR(lib::PSCPVA(5.0f), 1.75f, 1e-6f);
}

TEST(LatentHeat, OfIceAndAtExactlySixty) {
    EXPECT_EQ(lib::PSHFG(0.0f), 2500.8f);
    EXPECT_NEAR(lib::PSHFG(-0.01f), 2834.37f, 0.01f);
    EXPECT_NEAR(lib::PSHFG(-10.0f), 2836.67f, 0.01f);
    EXPECT_EQ(lib::PSHFG(60.0f), 0.0f);
}

TEST(EnhancementFactor, TakesIceAtExactlyZero) {
    const auto factor = [](float t) {
        const float g = saturation_content(t, standard_pressure);
        return standard_pressure * g / ((0.62197f + g) * lib::PSSVP(t));
    };
    EXPECT_NEAR(factor(20.0f), 1.0045f, 5e-5f);
    EXPECT_NEAR(factor(0.0f), 1.00446f, 1e-5f);
    EXPECT_NEAR(factor(std::nextafter(0.0f, 1.0f)), 1.00441f, 1e-5f);
}

TEST(PercentageSaturation, IsOneHundredAtSaturation) {
    for (float p : {60000.0f, standard_pressure})
        for (float t = -40.0f; t <= 80.0f; t += 3.7f) {
            const float gs = saturation_content(t, p);
            EXPECT_FLOAT_EQ(lib::PSPCST(t, gs, p), 100.0f) << t;
            EXPECT_FLOAT_EQ(lib::PSPCST(t, 0.25f * gs, p), 25.0f) << t;
        }
}

// The searches stop where a trial one last step lower is too dry, and the wet bulb itself is not.
TEST(WetBulb, EnclosesTheHumidity) {
    Random random(1);
    for (int i = 0; i < 20000; ++i) {
        const float t = random.real(-40.0, 80.0), p = random.real(60000.0, 110000.0);
        const float mu = random.real(0.0, 99.0), gs = saturation_content(t, p);
        const int type = 1 + random.below(2);
        const auto content = [&](float twb) { return lib::PSGS(t, twb, p, type); };

        const float of_mu = lib::PSTWB(t, mu, p, type);
        EXPECT_GE(lib::PSPCST(t, content(of_mu), p), mu - 2e-3f) << t << ' ' << mu;
        EXPECT_LE(lib::PSPCST(t, content(of_mu - 0.01f), p), mu + 2e-3f) << t << ' ' << mu;

        const float g = mu / 100.0f * gs, of_g = lib::PSWBLB(t, g, p, type);
        EXPECT_GE(content(of_g + 0.0005f), g - 2e-5f * gs) << t << ' ' << g;
        EXPECT_LE(content(of_g - 0.0045f), g + 2e-5f * gs) << t << ' ' << g;
        // About 0 °C two wet bulbs can belong to one humidity.
        const auto [low, high] = std::minmax(of_mu, of_g);
        if (low > 0.0f || high < -2.0f) {
            EXPECT_LT(high - low, 0.011f) << t << ' ' << mu;
        }
    }
}

TEST(SaturationTemperature, InvertsTheEnthalpyWithinItsStep) {
    Random random(2);
    for (int i = 0; i < 5000; ++i) {
        const float t = random.real(-12.0, 59.0), p = random.real(70000.0, 110000.0);
        const float h = lib::PSHWET(t, t, p, 1);
        if (h < -10.0f || h > 460.0f) continue;
        const float below = t - lib::PSTSAT(h, p);
        EXPECT_GT(below, -0.0015f) << t << ' ' << p;
        EXPECT_LT(below, 0.0095f) << t << ' ' << p;
    }
}

TEST(SaturationTemperature, IsFixedOutsideTheRangeOfTheSearch) {
    EXPECT_EQ(lib::PSTSAT(-10.001f, standard_pressure), -13.4f);
    EXPECT_EQ(lib::PSTSAT(460.01f, standard_pressure), 60.0f);
    EXPECT_NEAR(lib::PSTSAT(-10.0f, standard_pressure), -12.98f, 0.01f);
    EXPECT_NEAR(lib::PSTSAT(460.0f, standard_pressure), 59.98f, 0.01f);
}

// The virial equation in double precision, the vapour's coefficient interpolated between its values
// at whole tens.
double virial_volume(double t, double g, double p) {
    constexpr double D[] = {6.318, 5.213, 4.35, 3.708, 3.19, 2.772};
    const int k = std::clamp(static_cast<int>(t / 10.0), 0, 4);
    const double beyond = t < 0.0 ? -0.1622 * t : t > 50.0 ? -0.0338 * (t - 50.0) : 0.0;
    const double inside = std::clamp(t, 0.0, 50.0) / 10.0 - k;
    const double vapour = (D[k] + (D[k + 1] - D[k]) * inside + beyond) / 100.0;
    const double xv = g / (0.62197 + g), xa = 1.0 - xv;
    const double air = 1e-4 * (4.542 - 0.082785 * t + 0.0004353 * t * t - 2.1418e-6 * t * t * t);
    const double mixed = 1e-3 * (1.45 - 0.0097 * t + 3.2e-5 * t * t);
    return 287.04 * (t + 273.15) / (p * (1.0 - xv / 1.0045)) - xv * xv * vapour -
           xa * (xa * air + 2.0 * xv * mixed);
}

TEST(SpecificVolume, FollowsTheVirialEquationCloseToTheIdealGas) {
    Random random(3);
    for (int i = 0; i < 20000; ++i) {
        const float t = random.real(-50.0, 70.0), p = random.real(50000.0, 110000.0);
        const float g = saturation_content(t, p) * random.real(0.0, 1.0);
        const double v = lib::PSSPVL(t, g, p);
        EXPECT_NEAR(v / virial_volume(t, g, p), 1.0, 2e-6) << t << ' ' << g << ' ' << p;
        const double ideal = 287.04 * (t + 273.15) / p * (1.0 + g / 0.62197);
        EXPECT_NEAR(v / ideal, 1.0, 0.01) << t << ' ' << g << ' ' << p;
    }
}

TEST(SpecificVolume, CountsSupersaturationAsSaturation) {
    for (float t : {-10.0f, 15.0f, 45.0f}) {
        const float gs = saturation_content(t, standard_pressure);
        const float v = lib::PSSPVL(t, gs, standard_pressure);
        EXPECT_EQ(lib::PSSPVL(t, 1.5f * gs, standard_pressure), v);
        EXPECT_LT(lib::PSSPVL(t, 0.9f * gs, standard_pressure), v);
    }
}

TEST(WeightedTemperature, OfEqualTemperaturesIsTheirs) {
    for (float t : {-10.0f, 0.0f, 23.7f}) EXPECT_NEAR(lib::PSTEFF(t, t), t, 1e-5f);
}

}  // namespace
