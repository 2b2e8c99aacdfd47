// Sun and sky give the very bits of their literal forms.
#include <algorithm>

#include "literal/climate.h"
#include "literal/compare.h"
#include "literal/sky.h"
#include "quorvel/library.h"

using namespace quorvel::conformance;
using namespace quorvel::test;

namespace {

TEST(LiteralForm, SunOfTheDesignDay) {
    Random random(3);
    for (int i = 0; i < 200000; ++i) {
        const int day = 1 + random.below(365);
        const float declination = literal::CLSNGE(0.0f, day, 12.0f).declination;
        const float polar_circle = 1.5707964f - std::fabs(declination);
        const float noted[] = {about(declination, random), about(polar_circle, random)};
        const float latitude =
            random.below(4) ? random.real(-1.5707964f, 1.5707964f) : noted[random.below(2)];
        const float hour =
            random.below(4) ? random.real(0.0f, 24.0f) : static_cast<float>(random.below(25));
        std::array<float, 5> ours;
        lib::CLSNGE(latitude, day, hour, ours[0], ours[1], ours[2], ours[3], ours[4]);
        const literal::Sun sun = literal::CLSNGE(latitude, day, hour);
        ASSERT_TRUE(same_bits<5>(
            ours, {sun.declination, sun.altitude, sun.azimuth, sun.sunrise, sun.sunset}))
            << latitude << ' ' << day << ' ' << hour;
    }
}

TEST(LiteralForm, RadiationOnASurface) {
    Random random(4);
    for (int i = 0; i < 200000; ++i) {
        const float altitude =
            random.below(8) ? random.real(0.0f, 1.5707964f) : about(0.080085576f, random);
        const float azimuth = random.real(0.0f, 6.2831855f);
        const struct {
            float gamma, tilt;
        } surfaces[] = {
            {about(azimuth, random), about(1.5707964f - altitude, random)},
            {about(azimuth + 3.1415927f, random), about(1.5707964f + altitude, random)},
            {random.real(0.0f, 6.2831855f), random.real(0.0f, 3.1415927f)},
        };
        // Towards the sun, away from it, and mostly anywhere.
        const auto [gamma, tilt] = surfaces[std::min(random.below(16), 2)];
        const float height = random.below(8) ? random.real(0.0f, 3000.0f) : about(300.0f, random);
        const int sky = random.below(2);
        std::array<float, 8> ours;
        lib::CLSNSR(altitude, azimuth, gamma, tilt, ours[0], ours[1], ours[2]);
        lib::CLSNNR(altitude, azimuth, height, sky, ours[3], ours[4]);
        lib::CLSORD(altitude, azimuth, gamma, tilt, ours[3], ours[4], 0.2f, 0.88f, 1.29f, ours[5],
                    ours[6], ours[7]);
        const auto angles = literal::CLSNSR(altitude, azimuth, gamma, tilt);
        const auto design = literal::CLSNNR(altitude, height, sky);
        const auto plane = literal::CLSORD(altitude, azimuth, gamma, tilt, design.direct,
                                           design.diffuse, 0.2f, 0.88f, 1.29f);
        ASSERT_TRUE(
            same_bits<8>(ours, {angles.incidence, angles.vertical, angles.horizontal, design.direct,
                                design.diffuse, plane.direct, plane.diffuse, plane.reflected}))
            << altitude << ' ' << azimuth << ' ' << gamma << ' ' << tilt << ' ' << height;
    }
}

TEST(LiteralForm, AnisotropicSky) {
    Random random(3);
    for (int i = 0; i < 200000; ++i) {
        const float altitude = random.real(i % 8 ? 0.0f : -4.0f, i % 8 ? 1.5708f : 4.0f);
        const float tilt = random.real(i % 8 ? 0.0f : -7.0f, i % 8 ? 3.1416f : 7.0f);
        const float incidence = random.real(0.0f, 3.1416f);
        const float beam = random.below(8) ? random.real(0.0f, 1000.0f) : 0.0f;
        const float diffuse = random.real(1.0f, 600.0f);
        const float normal = random.real(1320.0f, 1415.0f);
        float ours;
        lib::CLPERSKY(altitude, tilt, beam, diffuse, ours, incidence, normal);
        ASSERT_TRUE(same_bits<1>(
            {ours}, {literal::CLPERSKY(altitude, tilt, beam, diffuse, incidence, normal)}))
            << altitude << ' ' << tilt << ' ' << beam << ' ' << diffuse << ' ' << incidence;
    }
}

}  // namespace
