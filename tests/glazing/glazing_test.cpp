#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>
#include <vector>

#include "quorvel/glazing.h"
#include "support/results.h"

namespace {

using quorvel::test::results;

constexpr float kIndex = 1.52f;
constexpr const float* kUnread = nullptr;
constexpr double kDegree = std::numbers::pi / 180.0;

float radians(double degrees) { return static_cast<float>(degrees * kDegree); }

// Transmittance, absorptance and reflectance, parallel and perpendicular.
std::array<float, 6> glass(float tn, float r0, float theta) {
    return results<6>(lib::WNDRGL, tn, r0, theta);
}

std::array<float, 3> mean_glass(float tn, float r0, float theta) {
    const auto [tp, ap, rp, ts, as, rs] = glass(tn, r0, theta);
    return {0.5f * (tp + ts), 0.5f * (ap + as), 0.5f * (rp + rs)};
}

// The same pane in double precision, from textbook formulas written another way: Fresnel with
// tangents, the slab as the sum of its inter-reflections, the absorption found by bisection.
struct ReferencePane {
    struct Values {
        double t = 0.0, a = 0.0;
    };

    double kl = 0.0;

    explicit ReferencePane(double tn) {
        for (double low = 0.0, high = 20.0; high - low > 1e-12;) {
            kl = 0.5 * (low + high);
            (mean(1e-6).t > tn ? low : high) = kl;
        }
    }

    Values mean(double theta) const {
        const double refracted = std::asin(std::sin(theta) / kIndex);
        const double difference = theta - refracted, sum = theta + refracted;
        const double tau = std::exp(-kl / std::cos(refracted));
        Values both;
        for (const double ratio :
             {std::tan(difference) / std::tan(sum), std::sin(difference) / std::sin(sum)}) {
            const double r = ratio * ratio;
            double t = 0.0, reflected = r;
            for (double inside = (1.0 - r) * tau; inside > 1e-15; inside *= r * tau * r * tau) {
                t += inside * (1.0 - r);
                reflected += inside * r * tau * (1.0 - r);
            }
            both.t += 0.5 * t;
            both.a += 0.5 * (1.0 - t - reflected);
        }
        return both;
    }

    Values diffuse() const {
        constexpr double step = 0.01 * kDegree;
        Values hemisphere;
        for (double theta = 0.5 * step; theta < 90.0 * kDegree; theta += step) {
            const Values beam = mean(theta);
            hemisphere.t += std::sin(2.0 * theta) * step * beam.t;
            hemisphere.a += std::sin(2.0 * theta) * step * beam.a;
        }
        return hemisphere;
    }
};

// Relative error that the cancellation in WNKL, evaluated in single precision, leaves in tn.
double cancellation(double tn) { return 1.6e-5 / (tn * tn); }

TEST(Pane, RefractsAndReflectsByTheLaws) {
    EXPECT_EQ(lib::WNRANG(0.01f, kIndex), 0.01f / kIndex) << "the sine of 0.01 is below 0.01";
    for (const float theta : {0.0101f, 1.0f})
        EXPECT_FLOAT_EQ(lib::WNRANG(theta, kIndex), std::asin(std::sin(theta) / kIndex));

    for (const float theta : {0.0f, 0.01f, -0.01f}) {
        const auto [rp, rs] = results<2>(lib::WNREFL, theta, theta / kIndex, kIndex);
        EXPECT_NEAR(rp, 0.04258f, 5e-6f) << theta;
        EXPECT_EQ(rp, rs) << theta;
    }
    const auto [rp, rs] = results<2>(lib::WNREFL, 0.0101f, 0.0101f / kIndex, kIndex);
    EXPECT_LT(rp, rs) << "Fresnel's branch";
    const float brewster = std::atan(kIndex), refracted = lib::WNRANG(brewster, kIndex);
    EXPECT_NEAR(results<2>(lib::WNREFL, brewster, refracted, kIndex)[0], 0.0f, 1e-12f);
}

TEST(Pane, NormalTransmittanceRoundTrip) {
    const float rho = std::pow((kIndex - 1.0f) / (kIndex + 1.0f), 2.0f);
    for (float tn = 0.05f; tn < 0.92f; tn += 0.001f)
        EXPECT_NEAR(lib::WNTNOR(lib::WNKL(tn, kIndex), rho), tn, cancellation(tn) * tn) << tn;
    EXPECT_EQ(lib::WNKL(0.001f, kIndex), std::numeric_limits<float>::infinity());
}

TEST(Glass, AgreesWithTextbookFormulasInDoublePrecision) {
    for (const float tn : {0.2f, 0.6f, 0.83f, 0.9f}) {
        const ReferencePane reference(tn);
        const double rounding = cancellation(tn) * tn + 1e-6;
        for (double angle = 2.5; angle < 90.0; angle += 2.5) {
            const auto [tp, ap, rp, ts, as, rs] = glass(tn, 0.0f, radians(angle));
            const auto [t, a] = reference.mean(radians(angle));
            EXPECT_NEAR(tp + ap + rp, 1.0f, 3e-7f) << tn << " at " << angle;
            EXPECT_NEAR(ts + as + rs, 1.0f, 3e-7f) << tn << " at " << angle;
            EXPECT_NEAR(0.5f * (tp + ts), t, rounding) << tn << " at " << angle;
            EXPECT_NEAR(0.5f * (ap + as), a, rounding) << tn << " at " << angle;
            EXPECT_TRUE(rp < rs || angle < 3.0) << angle;
        }
        const auto [diffuse_t, diffuse_a] = results<2>(lib::WNDFGL, tn, 0.0f);
        const auto [t, a] = reference.diffuse();
        EXPECT_NEAR(diffuse_t, t, 6e-4) << tn;
        EXPECT_NEAR(diffuse_a, a, 6e-4) << tn;
    }
}

TEST(Glass, CoatedAndOpaquePanes) {
    struct {
        float tn, r0;
        double angle;
        float t, r;
        const char* why;
    } const cases[] = {
        {0.4f, 0.1f, 60.0, 0.4f, 0.1f, "last node with factors of 1"},
        {0.4f, 0.1f, -62.5, 0.4f * 0.97725f, 1.0f - 0.9f * 0.9953f, "sign of the angle"},
        {0.4f, 0.1f, 82.5, 0.4f * 0.61365f, 1.0f - 0.9f * 0.5755f, "between two nodes"},
        {0.4f, 0.1f, 87.5, 0.4f * 0.25f, 1.0f - 0.9f * 0.217f, "last interval"},
        {0.4f, 0.1f, 89.96, 0.0f, 1.0f, "beyond 1.57 rad"},
        {0.4f, 0.01f, 60.0, 0.4f, 0.01f, "coated from 0.01"},
        {0.9f, 0.99f, 60.0, 0.9f, 0.99f, "coated up to 0.99, more than all"},
        {0.0009f, 0.0f, 30.0, 0.0f, 1.0f, "opaque"},
        {0.0009f, 0.1f, 30.0, 0.0009f, 0.1f, "coated glass is never opaque"},
    };
    for (const auto& row : cases) {
        const auto [tp, ap, rp, ts, as, rs] = glass(row.tn, row.r0, radians(row.angle));
        EXPECT_NEAR(tp, row.t, 2e-6f) << row.why;
        EXPECT_NEAR(rp, row.r, 2e-6f) << row.why;
        EXPECT_NEAR(ap, std::fmax(0.0f, 1.0f - row.t - row.r), 2e-6f) << row.why;
        EXPECT_TRUE(tp == ts && ap == as && rp == rs) << row.why;
    }
    for (const float r0 : {0.0099f, 0.9901f})
        EXPECT_NE(glass(0.4f, r0, 1.0f)[0], glass(0.4f, r0, 1.0f)[3]) << "uncoated";
}

TEST(ShadingCoefficients, AbsorptionFollowsTheLongWaveCoefficient) {
    const auto direct = [](float sc, float scl, float theta) {
        return results<3>(lib::WNDRSC, sc, scl, theta);
    };
    // Both coefficients together at most 1: a third of what is absorbed enters as heat.
    for (const float theta : {0.0f, radians(40), radians(75)}) {
        const auto unit = direct(0.5f, 0.2f, theta), pane = mean_glass(0.435f, 0.0f, theta);
        EXPECT_EQ(unit[0], pane[0]);
        EXPECT_FLOAT_EQ(unit[1] / pane[1], 3.0f * 0.87f * 0.2f / mean_glass(0.435f, 0.0f, 0.0f)[1]);
    }
    EXPECT_FLOAT_EQ(direct(0.5f, 0.5f, 0.0f)[1], 0.99f - direct(0.5f, 0.5f, 0.0f)[0]);

    // More than 1: the pane's own absorption.
    EXPECT_EQ(direct(0.7f, 0.5f, 0.6f)[1], mean_glass(0.87f * 0.7f, 0.0f, 0.6f)[1]);
    EXPECT_EQ(results<3>(lib::WNDFSC, 0.7f, 0.5f)[1],
              results<2>(lib::WNDFGL, 0.87f * 0.7f, 0.0f)[1]);

    // No long-wave coefficient: nine to one. 1 - 0.9 reaches 0.1 in single precision only.
    const auto split = direct(1.0f, 0.0f, 0.0f);
    EXPECT_NEAR(split[0], 0.783f, cancellation(0.783));
    EXPECT_FLOAT_EQ(split[1], 0.99f - split[0]);
    EXPECT_EQ(direct(0.6f, 0.00009f, 1.1f)[1], direct(0.9f * 0.6f, 0.1f * 0.6f, 1.1f)[1]);
    EXPECT_EQ(direct(0.6f, 0.0001f, 1.1f)[0], mean_glass(0.87f * 0.6f, 0.0f, 1.1f)[0]);
}

TEST(ShadingCoefficients, AtLeastAHundredthIsReflected) {
    for (const float sc : {0.0f, 0.3f, 0.8f, 1.0f})
        for (const float scl : {0.0f, 0.05f, 0.4f, 0.9f})
            for (double angle = 0.0; angle <= 90.0; angle += 7.5) {
                const auto [t, a, r] = results<3>(lib::WNDRSC, sc, scl, radians(angle));
                EXPECT_GE(r, 0.01f - 1e-6f) << sc << ' ' << scl << ' ' << angle;
                EXPECT_NEAR(t + a + r, 1.0f, 2e-7f);
            }
}

TEST(ShadingCoefficients, TheRemainderIsSharedAmongThePanes) {
    const std::vector<std::vector<float>> shares = {{},
                                                    {1.0f},
                                                    {0.4f, 0.6f},
                                                    {0.2f, 0.3f, 0.5f},
                                                    {0.133f, 0.2f, 0.267f, 0.4f},
                                                    {0.1f, 0.15f, 0.2f, 0.25f, 0.3f},
                                                    {}};
    constexpr float sc = 0.6f, scl = 0.15f, theta = 0.8f, untouched = -7.0f;
    for (std::int32_t n = 0; n <= 6; ++n) {
        const auto check = [&](const std::array<float, 3>& expected, const auto& call) {
            float t, a;
            std::array<float, 8> panes, shared;
            panes.fill(untouched);
            shared.fill(untouched);
            const std::vector<float>& row = shares[static_cast<std::size_t>(n)];
            for (std::size_t i = 0; i < row.size(); ++i) shared[i] = row[i] * expected[2];
            call(t, panes, a);
            EXPECT_EQ(t, expected[0]) << n;
            EXPECT_FLOAT_EQ(a, expected[1]) << n;
            EXPECT_EQ(panes, shared) << n;
        };
        const auto direct = results<3>(lib::WNDRSC, sc, scl, theta);
        const auto diffuse = results<3>(lib::WNDFSC, sc, scl);
        check(direct, [&](auto&... out) { lib::WNDRSM(sc, scl, theta, n, out...); });
        check(diffuse, [&](auto&... out) { lib::WNDFSM(sc, scl, n, out...); });
        check(direct, [&](auto&... out) { lib::WNDRS0(1, sc, scl, theta, n, out...); });
        check(diffuse, [&](auto&... out) { lib::WNDRS0(0, sc, scl, kUnread, n, out...); });
    }
}

}  // namespace
