// The sun on tilted surfaces, the design sky, and the irradiance outside the atmosphere.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "quorvel/climate.h"

namespace {

constexpr float pi = std::numbers::pi_v<float>;

struct Angles {
    float incidence, vertical, horizontal;

    Angles(float altitude, float azimuth, float facing, float tilt) {
        lib::CLSNSR(altitude, azimuth, facing, tilt, incidence, vertical, horizontal);
    }
};

struct Surface {
    float direct, diffuse, ground, incidence;

    // A site with ground reflectance 0.2, beam factor 0.9 and diffuse factor 1.1 under 800 W/m²
    // direct normal and 100 W/m² diffuse horizontal.
    Surface(float altitude, float azimuth, float facing, float tilt) {
        lib::CLSOR2(altitude, azimuth, facing, tilt, 800.0f, 100.0f, 0.2f, 0.9f, 1.1f, direct,
                    diffuse, ground, incidence);
    }
};

TEST(SurfaceAngles, OnAVerticalSurfaceAreWallAzimuthAndProfileAngle) {
    for (const float facing : {0.3f, 1.6f, pi, 5.0f})
        for (float relative = -1.5f; relative <= 1.5f; relative += 0.25f)
            for (const float altitude : {0.05f, 0.4f, 0.8f, 1.2f, 1.5f}) {
                const Angles angles(altitude, facing + relative, facing, 0.5f * pi);
                EXPECT_NEAR(angles.horizontal, relative, 1e-3f);
                EXPECT_NEAR(angles.vertical, std::atan(std::tan(altitude) / std::cos(relative)),
                            1e-3f);
                EXPECT_NEAR(std::cos(angles.incidence), std::cos(altitude) * std::cos(relative),
                            1e-6f);
            }
}

TEST(SurfaceAngles, TogetherGiveBackTheAngleOfIncidence) {
    for (float azimuth = 0.1f; azimuth < 6.2f; azimuth += 0.4f)
        for (float tilt = 0.0f; tilt <= 3.14f; tilt += 0.35f)
            for (const float altitude : {-0.3f, 0.1f, 0.7f, 1.3f}) {
                const Angles angles(altitude, azimuth, 2.0f, tilt);
                const double v = std::tan(angles.vertical), h = std::tan(angles.horizontal);
                const double n = std::cos(angles.incidence);
                EXPECT_NEAR(n * n * (1.0 + v * v + h * h), 1.0, 0.01)
                    << altitude << azimuth << tilt;
                const bool behind = angles.incidence > 0.5f * pi;
                EXPECT_EQ(std::fabs(angles.vertical) > 0.5f * pi, behind);
                EXPECT_EQ(std::fabs(angles.horizontal) > 0.5f * pi, behind);
            }
}

TEST(SurfaceIrradiance, OnLevelSurfacesIsThatOfTheSkyOrTheGround) {
    const float global = 800.0f * 0.9f * std::sin(0.7f) + 100.0f * 1.1f;
    const Surface roof(0.7f, 2.0f, 1.0f, 0.0f), soffit(0.7f, 2.0f, 1.0f, pi);
    EXPECT_NEAR(roof.direct + roof.diffuse, global, 1e-3f);
    EXPECT_EQ(roof.ground, 0.0f);
    EXPECT_NEAR(roof.incidence, 0.5f * pi - 0.7f, 1e-6f);
    EXPECT_NEAR(soffit.ground, 0.2f * global, 1e-3f);
    EXPECT_EQ(soffit.direct, 0.0f);
    EXPECT_NEAR(soffit.diffuse, 0.0f, 1e-4f);
}

// By rounding the cosine exceeds 1 now and then.
TEST(SurfaceIrradiance, OnSurfacesThatFaceTheSunIsNormal) {
    for (float altitude = 0.001f; altitude < 1.57f; altitude += 0.001f) {
        const Surface surface(altitude, 2.0f, 2.0f, 0.5f * pi - altitude);
        EXPECT_LT(surface.incidence, 1e-3f) << altitude;
        EXPECT_NEAR(surface.direct, 720.0f, 1e-3f) << altitude;
        EXPECT_LT(Angles(altitude, 2.0f, 2.0f, 0.5f * pi - altitude).incidence, 1e-3f) << altitude;
        EXPECT_GT(Angles(altitude, 2.0f, 2.0f + pi, 0.5f * pi + altitude).incidence, 3.14f);
    }
}

TEST(SurfaceIrradiance, FollowsTheAngleOfIncidenceAndSeesADarkerNorth) {
    for (float facing = 0.0f; facing < 6.3f; facing += 0.3f)
        for (float tilt = 0.0f; tilt <= 3.14f; tilt += 0.3f) {
            const Surface surface(0.6f, 2.5f, facing, tilt);
            const Angles angles(0.6f, 2.5f, facing, tilt);
            if (angles.incidence < 1.57f) {
                EXPECT_NEAR(surface.incidence, angles.incidence, 1e-3f);
                EXPECT_NEAR(surface.direct, 720.0f * std::cos(angles.incidence), 1e-3f);
            } else if (angles.incidence > 1.5709f) {
                EXPECT_EQ(surface.incidence, 1.5707964f);
                EXPECT_EQ(surface.direct, 0.0f);
            }
            float direct, diffuse, ground;
            lib::CLSORD(0.6f, 2.5f, facing, tilt, 800.0f, 100.0f, 0.2f, 0.9f, 1.1f, direct, diffuse,
                        ground);
            EXPECT_EQ(direct, surface.direct);
            EXPECT_EQ(diffuse, surface.diffuse);
            EXPECT_EQ(ground, surface.ground);
        }
    const auto sky_seen = [](float facing) {
        return Surface(0.6f, 2.5f, facing, 0.5f * pi).diffuse / 55.0f;
    };
    EXPECT_NEAR(sky_seen(0.0f), 0.8f, 1e-5f);
    EXPECT_NEAR(sky_seen(0.5f * pi), 0.9f, 1e-5f);
    EXPECT_NEAR(sky_seen(pi), 1.0f, 1e-5f);
}

struct Sky {
    float direct, diffuse;

    Sky(float altitude, float height, int kind) {
        lib::CLSNNR(altitude, 1.0f, height, kind, direct, diffuse);
    }
};

TEST(DesignSky, BrightensWithHeight) {
    for (float altitude = 0.01f; altitude < 1.57f; altitude += 0.02f) {
        const Sky sky(altitude, 0.0f, 1), mountain(altitude, 1000.0f, 1);
        const float factor = lib::CLHIGH(1000.0f, altitude);
        EXPECT_EQ(factor > 1.0f, std::sin(altitude) >= 0.08f);
        EXPECT_EQ(mountain.direct, sky.direct * factor);
        EXPECT_EQ(mountain.diffuse, sky.diffuse * factor);
    }
    EXPECT_EQ(lib::CLHIGH(299.0f, pi / 6.0f), 1.0f);
    EXPECT_NEAR(lib::CLHIGH(300.0f, pi / 6.0f), 1.056f, 1e-6f);
}

// Worked by hand where the powers are simple: slopes over 16, w = 10, sums of coefficients.
TEST(DesignSky, IsProportionalForLowSunsAndAPolynomialAbove) {
    EXPECT_NEAR(Sky(0.0625f, 0.0f, 0).direct, 149.82875f, 2e-5f);
    EXPECT_NEAR(Sky(0.0625f, 0.0f, 0).diffuse, 16.6856875f, 2e-6f);
    EXPECT_NEAR(Sky(-0.0625f, 0.0f, 1).diffuse, -17.9559375f, 2e-6f);
    EXPECT_NEAR(Sky(0.1f, 0.0f, 1).direct, 307.437f, 4e-4f);
    EXPECT_NEAR(Sky(1.0f, 0.0f, 0).diffuse, 97.15459f, 4e-5f);
    EXPECT_NEAR(Sky(1.0f, 0.0f, 1).diffuse, 287.852422f, 4e-5f);
    EXPECT_NEAR(Sky(1.5f, 0.0f, 0).diffuse, 113.73775f, 4e-5f);
    EXPECT_NEAR(Sky(0.5f, 0.0f, 1).diffuse, 142.9866f, 4e-5f);
    for (const int kind : {0, 1})
        EXPECT_NEAR(Sky(0.0871f, 0.0f, kind).diffuse, Sky(0.087f, 0.0f, kind).diffuse, 0.05f);
    EXPECT_NEAR(Sky(0.087f, 0.0f, 0).direct, 208.5616f, 1e-3f);
    EXPECT_LT(Sky(std::nextafter(0.087f, 1.0f), 0.0f, 0).direct, 207.0f);
    EXPECT_GT(Sky(1.5707964f, 0.0f, 0).direct, 930.0f);
    EXPECT_EQ(Sky(1.5707966f, 0.0f, 0).direct, 0.0f) << "beyond the zenith";
    EXPECT_EQ(Sky(0.8f, 0.0f, 7).diffuse, Sky(0.8f, 0.0f, 1).diffuse);
    EXPECT_EQ(Sky(0.8f, 0.0f, -7).diffuse, Sky(0.8f, 0.0f, 0).diffuse);
}

TEST(Extraterrestrial, FollowsTheInverseSquareOfTheDistance) {
    double mean = 0.0;
    for (int day = 1; day <= 365; ++day) {
        // Distance of the sun [AU] as the Astronomical Almanac gives it to low precision.
        const double g = (357.528 + 0.9856003 * (day - 1)) * std::numbers::pi / 180.0;
        const double distance = 1.00014 - 0.01671 * std::cos(g) - 0.00014 * std::cos(2.0 * g);
        EXPECT_NEAR(lib::CLETAJ(day), 1.0 / (distance * distance), 0.0015) << day;
        mean += static_cast<double>(lib::CLETAJ(day)) / 365.0;
    }
    EXPECT_NEAR(mean, 1.0, 1e-4);
}

TEST(Extraterrestrial, ClearnessIsOneOutsideTheAtmosphere) {
    for (const float altitude : {0.1f, 0.7f, 1.5f}) {
        const float outside = 1367.0f * lib::CLETAJ(100) * std::sin(altitude);
        EXPECT_NEAR(lib::CLMODUL(100, altitude, outside), 1.0f, 1e-6f);
        EXPECT_NEAR(lib::CLMODUL(100, altitude, 0.3f * outside), 0.3f, 1e-6f);
    }
}

}  // namespace
