// The routines that were made fast give the very bits of their literal forms.
#include <gtest/gtest.h>

#include <bit>

#include "common/library.h"
#include "literal/climate.h"
#include "literal/glazing.h"
#include "literal/psychro.h"
#include "support/random_arguments.h"

namespace {

using quorvel::test::Random;

constexpr int cases = 200000;

float between(float low, float high, Random& random) {
    return low + (high - low) * static_cast<float>(random.unit());
}

template <std::size_t n>
::testing::AssertionResult same_bits(const float (&ours)[n], const float (&literal)[n]) {
    for (std::size_t i = 0; i < n; ++i)
        if (std::bit_cast<std::uint32_t>(ours[i]) != std::bit_cast<std::uint32_t>(literal[i]))
            return ::testing::AssertionFailure()
                   << "result " << i << ": " << ours[i] << " against " << literal[i];
    return ::testing::AssertionSuccess();
}

TEST(LiteralForm, WetBulbOfPsychrometer) {
    Random random(1);
    for (int i = 0; i < cases; ++i) {
        const float t = between(-60.0f, 110.0f, random), rh = between(-5.0f, 110.0f, random);
        const float p = between(5000.0f, 120000.0f, random);
        const int type = 1 + random.below(2);
        ASSERT_TRUE(same_bits({lib::PSTWET(t, rh, p, type)}, {literal::PSTWET(t, rh, p, type)}))
            << t << ' ' << rh << ' ' << p << ' ' << type;
    }
}

TEST(LiteralForm, GlassInBeamAndDiffuseRadiation) {
    Random random(2);
    for (int i = 0; i < cases / 4; ++i) {
        const float Tn = between(-0.01f, 0.92f, random), theta = between(-1.6f, 1.6f, random);
        const float R0 = random.below(2) ? 0.0f : between(0.0f, 1.0f, random);
        float ours[8], expected[8];
        lib::WNDRGL(Tn, R0, theta, ours[0], ours[1], ours[2], ours[3], ours[4], ours[5]);
        lib::WNDFGL(Tn, R0, ours[6], ours[7]);
        const literal::Pane pane = literal::WNDRGL(Tn, R0, theta);
        literal::WNDFGL(Tn, R0, expected[6], expected[7]);
        const float of_pane[] = {pane.Tp, pane.Ap, pane.Rp, pane.Ts, pane.As, pane.Rs};
        std::copy(std::begin(of_pane), std::end(of_pane), expected);
        ASSERT_TRUE(same_bits(ours, expected)) << Tn << ' ' << R0 << ' ' << theta;
    }
}

TEST(LiteralForm, SunOfTheDesignDay) {
    Random random(3);
    for (int i = 0; i < cases; ++i) {
        const float latitude = between(-1.5707964f, 1.5707964f, random);
        const float hour =
            random.below(4) ? between(0.0f, 24.0f, random) : static_cast<float>(random.below(25));
        const int day = 1 + random.below(365);
        float ours[5];
        lib::CLSNGE(latitude, day, hour, ours[0], ours[1], ours[2], ours[3], ours[4]);
        const literal::Sun sun = literal::CLSNGE(latitude, day, hour);
        ASSERT_TRUE(
            same_bits(ours, {sun.declination, sun.altitude, sun.azimuth, sun.sunrise, sun.sunset}))
            << latitude << ' ' << day << ' ' << hour;
    }
}

TEST(LiteralForm, RadiationOnASurface) {
    Random random(4);
    for (int i = 0; i < cases; ++i) {
        const float altitude = between(0.0f, 1.5707964f, random),
                    azimuth = between(0.0f, 6.2831855f, random);
        const float gamma = between(0.0f, 6.2831855f, random),
                    tilt = between(0.0f, 3.1415927f, random);
        const float height = between(0.0f, 3000.0f, random);
        const int sky = random.below(2);
        float ours[8];
        lib::CLSNSR(altitude, azimuth, gamma, tilt, ours[0], ours[1], ours[2]);
        lib::CLSNNR(altitude, azimuth, height, sky, ours[3], ours[4]);
        lib::CLSORD(altitude, azimuth, gamma, tilt, ours[3], ours[4], 0.2f, 0.88f, 1.29f, ours[5],
                    ours[6], ours[7]);
        const auto angles = literal::CLSNSR(altitude, azimuth, gamma, tilt);
        const auto design = literal::CLSNNR(altitude, height, sky);
        const auto plane = literal::CLSORD(altitude, azimuth, gamma, tilt, design.direct,
                                           design.diffuse, 0.2f, 0.88f, 1.29f);
        ASSERT_TRUE(
            same_bits(ours, {angles.incidence, angles.vertical, angles.horizontal, design.direct,
                             design.diffuse, plane.direct, plane.diffuse, plane.reflected}))
            << altitude << ' ' << azimuth << ' ' << gamma << ' ' << tilt << ' ' << height;
    }
}

}  // namespace
