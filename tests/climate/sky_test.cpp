// Sky models on tilted surfaces: Muneer against the integral over his sky, and the others against
// him; Perez against his literal form elsewhere.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "conformance/random_arguments.h"
#include "quorvel/climate.h"

namespace {

using quorvel::conformance::Random;

constexpr double pi = std::numbers::pi;
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float vertical = 1.5707964f;

struct Muneer {
    float beam, diffuse, ground, incidence;

    Muneer(float altitude, float azimuth, float facing, float tilt, float beam_horizontal,
           float diffuse_horizontal, float outside = 1000.0f) {
        lib::CLMUNRAD(altitude, azimuth, facing, tilt, beam_horizontal, diffuse_horizontal, outside,
                      0.2f, beam, diffuse, ground, incidence);
    }
};

// Irradiance of a tilted surface under the sky of radiance 1 + b sin(altitude), by that on the
// horizontal, from the integral over the part of the sky that the surface sees.
double muneer_integral(double b, double tilt) {
    constexpr int n = 400;
    double on_surface = 0.0, on_horizontal = 0.0;
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < 2 * n; ++j) {
            const double h = (i + 0.5) * pi / 2.0 / n, azimuth = (j + 0.5) * pi / n;
            const double radiance = (1.0 + b * std::sin(h)) * std::cos(h);
            const double towards =
                std::sin(h) * std::cos(tilt) + std::cos(h) * std::sin(tilt) * std::cos(azimuth);
            on_horizontal += radiance * std::sin(h);
            on_surface += radiance * std::max(0.0, towards);
        }
    return on_surface / on_horizontal;
}

TEST(Muneer, BackgroundIsTheIntegralOverItsSky) {
    constexpr float altitude = 0.5f, azimuth = 2.0f, opposite = 2.0f + 3.1415927f;
    for (const float tilt : {0.6f, 1.0f, vertical, 2.5f}) {
        const double shaded = muneer_integral(5.73, tilt), overcast = muneer_integral(1.68, tilt),
                     sunny = muneer_integral(-0.62, tilt);
        const auto sunlit = [&](float beam) {
            return Muneer(altitude, azimuth, azimuth, tilt, beam, 100.0f).diffuse / 100.0f;
        };
        EXPECT_NEAR(sunlit(std::nextafter(5.0f, 0.0f)), overcast, 1e-4);
        EXPECT_NEAR(sunlit(5.0f), sunny, 1e-4) << "index of the sunny sky, no circumsolar part";
        const auto mixed = [&](double Kb) {
            const double circumsolar = std::sin(altitude + tilt) / std::sin(altitude);
            return sunny + Kb * (circumsolar - sunny);
        };
        EXPECT_NEAR(sunlit(std::nextafter(5.0f, 9.0f)), mixed(0.005), 1e-4);
        EXPECT_NEAR(sunlit(300.0f), mixed(0.3), 2e-4);

        const Muneer turned(altitude, azimuth, opposite, tilt, 300.0f, 100.0f);
        EXPECT_TRUE(turned.beam == 0.0f && turned.incidence == vertical);
        EXPECT_NEAR(turned.diffuse / 100.0f, shaded, 1e-4);

        const auto factor = [&](float alt, float beam) {
            return lib::CLDIFRAD(100, alt, beam, kNaN, tilt, 0);
        };
        EXPECT_NEAR(factor(0.0f, 300.0f), shaded, 1e-4);
        EXPECT_NEAR(factor(altitude, 4.9f), overcast, 1e-4);
        EXPECT_NEAR(factor(altitude, 5.0f), sunny, 1e-4);
    }
}

TEST(Muneer, BeamGroundAndIncidenceAgreeWithTheDesignSky) {
    Random random(2);
    for (int i = 0; i < 2000; ++i) {
        const float altitude = random.real(0.02, 1.52), azimuth = random.real(0.0, 6.28),
                    facing = random.real(0.0, 6.28);
        const float tilt = random.real(0.0, 3.14), normal = random.real(5.0, 905.0);
        const float horizontal = normal * std::sin(altitude);
        const Muneer surface(altitude, azimuth, facing, tilt, horizontal, 100.0f);
        float direct, diffuse, ground, incidence;
        lib::CLSOR2(altitude, azimuth, facing, tilt, normal, 100.0f, 0.2f, 1.0f, 1.0f, direct,
                    diffuse, ground, incidence);
        EXPECT_NEAR(surface.beam, direct, 2e-3f);
        EXPECT_NEAR(surface.ground, ground, 1e-4f);
        EXPECT_NEAR(surface.incidence, incidence, 1e-3f);
    }
    for (float altitude = 1.0f; altitude < 1.57f; altitude += 0.01f) {
        const auto tilt = static_cast<float>(pi / 2.0 - altitude);
        EXPECT_LT(Muneer(altitude, 2.0f, 2.0f, tilt, 100.0f, 100.0f).incidence, 1e-3f)
            << "rounding takes some of the cosines beyond 1";
    }
}

TEST(Muneer, LowSunsHaveFormsOfTheirOwn) {
    const auto slope = [](float altitude, float beam) {
        return lib::CLDIFSLO(100, altitude, 2.0f, 1.5f, 1.2f, beam, 100.0f, 0);
    };
    const float below = std::nextafter(0.1f, 0.0f), outside = 1367.0f * lib::CLETAJ(100);
    const double cosine =
        std::sin(0.1) * std::cos(1.2) + std::cos(0.1) * std::sin(1.2) * std::cos(0.5);
    const double sky = std::pow(std::cos(0.6), 2), horizon = std::pow(std::sin(0.6), 3);

    // 0.1 in single precision is above the limit in double.
    EXPECT_NEAR(Muneer(below, 2.0f, 1.5f, 1.2f, 20.0f, 100.0f).diffuse,
                100.0 * cosine * (1.0 + horizon), 1e-3);
    const double factor = lib::CLDIFRAD(100, 0.1f, 20.0f, kNaN, 1.2f, 0);
    EXPECT_NEAR(Muneer(0.1f, 2.0f, 1.5f, 1.2f, 20.0f, 100.0f).diffuse,
                100.0 * (factor * 0.98 + 0.02 * cosine / std::sin(0.1)), 1e-3);

    const double Kb = 20.0 / (outside * std::sin(0.1));
    EXPECT_NEAR(slope(below, 20.0f),
                100.0 * sky * (1.0 + Kb * horizon) *
                    (1.0 + Kb * cosine * cosine * std::pow(std::cos(0.1), 3)),
                1e-3);
    EXPECT_NEAR(slope(0.1f, 20.0f), 100.0 * (factor * (1.0 - Kb) + Kb * cosine / std::sin(0.1)),
                1e-3);
    const float still = std::nextafter(5.0f, 0.0f);
    EXPECT_NEAR(slope(below, still), slope(0.1f, still), 1e-3f) << "but not under overcast";
    EXPECT_GT(std::fabs(slope(below, 5.0f) - slope(0.1f, 5.0f)), 1.0f);
}

TEST(SlopeDiffuse, IsMuneersForASunnySkyAndFollowsTheClearness) {
    Random random(3);
    const auto difference = [](double tilt) {
        return std::sin(tilt) - tilt * std::cos(tilt) - pi * std::pow(std::sin(tilt / 2.0), 2);
    };
    for (int i = 0; i < 2000; ++i) {
        const float altitude = random.real(0.11, 1.51), azimuth = random.real(0.0, 6.28),
                    facing = random.real(0.0, 6.28);
        const float tilt = random.real(0.0, 1.6), beam = random.real(6.0, 606.0);
        const int day = 1 + random.below(365);
        const float outside = 1367.0f * lib::CLETAJ(day) * std::sin(altitude);
        const Muneer surface(altitude, azimuth, facing, tilt, beam, 100.0f, outside);
        const float slope = lib::CLDIFSLO(day, altitude, azimuth, facing, tilt, beam, 100.0f, 0);
        const double Kb = beam / outside, half = std::pow(std::cos(tilt / 2.0), 2);
        const auto factor = [&](int model) {
            return lib::CLDIFRAD(day, altitude, beam, kNaN, tilt, model);
        };
        const bool behind = surface.beam == 0.0f;
        EXPECT_NEAR(slope, behind ? 100.0 * factor(0) * (1.0 - Kb) : surface.diffuse, 2e-3);
        EXPECT_NEAR(factor(1), half + (0.00333 - 0.415 * Kb - 0.6987 * Kb * Kb) * difference(tilt),
                    2e-6 * (1.0 + Kb * Kb));
        EXPECT_NEAR(factor(2), half + (0.00263 - 0.712 * Kb - 0.6883 * Kb * Kb) * difference(tilt),
                    2e-6 * (1.0 + Kb * Kb));
        EXPECT_EQ(lib::CLDIFRAD(day, altitude, beam, kNaN, 0.0f, i % 3), 1.0f);
    }
}

}  // namespace
