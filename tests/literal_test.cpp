// The routines that were made fast give the very bits of their literal forms.
#include <algorithm>

#include "literal/climate.h"
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

TEST(LiteralForm, SunOfTheDesignDay) {
    Random random(3);
    for (int i = 0; i < cases; ++i) {
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
    for (int i = 0; i < cases; ++i) {
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

}  // namespace
