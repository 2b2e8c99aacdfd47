#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>
#include <vector>

#include "quorvel/library.h"

namespace {

constexpr float kIndex = 1.52f;
constexpr const float* kUnread = nullptr;
constexpr double kDegree = std::numbers::pi / 180.0;

float radians(double degrees) { return static_cast<float>(degrees * kDegree); }

struct Optics {
    float t = 0.0f, a = 0.0f, r = 0.0f;
};

struct BothPolarisations {
    Optics p, s;
    Optics mean() const { return {0.5f * (p.t + s.t), 0.5f * (p.a + s.a), 0.5f * (p.r + s.r)}; }
};

BothPolarisations glass(float tn, float r0, float theta) {
    BothPolarisations both;
    auto& [p, s] = both;
    lib::WNDRGL(tn, r0, theta, p.t, p.a, p.r, s.t, s.a, s.r);
    return both;
}

Optics diffuse_glass(float tn, float r0) {
    Optics mean;
    lib::WNDFGL(tn, r0, mean.t, mean.a);
    return mean;
}

// The same pane in double precision, from textbook formulas written another way: Fresnel with
// tangents, the slab as the sum of its inter-reflections, the absorption found by bisection.
struct ReferencePane {
    struct Values {
        double t = 0.0, a = 0.0;
        void add(double weight, const Values& other) {
            t += weight * other.t, a += weight * other.a;
        }
    };

    double kl = 0.0;

    explicit ReferencePane(double tn) {
        for (double low = 0.0, high = 20.0; high - low > 1e-12;) {
            kl = 0.5 * (low + high);
            (mean(1e-6).t > tn ? low : high) = kl;
        }
    }

    Values polarised(double tangent_or_sine_ratio, double refracted) const {
        const double r = tangent_or_sine_ratio * tangent_or_sine_ratio;
        const double tau = std::exp(-kl / std::cos(refracted));
        Values pane;
        double reflected = r;
        for (double inside = (1.0 - r) * tau; inside > 1e-15; inside *= r * tau * r * tau) {
            pane.t += inside * (1.0 - r);
            reflected += inside * r * tau * (1.0 - r);
        }
        pane.a = 1.0 - pane.t - reflected;
        return pane;
    }

    Values mean(double theta) const {
        const double refracted = std::asin(std::sin(theta) / kIndex);
        const double difference = theta - refracted, sum = theta + refracted;
        Values both;
        both.add(0.5, polarised(std::tan(difference) / std::tan(sum), refracted));
        both.add(0.5, polarised(std::sin(difference) / std::sin(sum), refracted));
        return both;
    }

    Values diffuse() const {
        constexpr double step = 0.01 * kDegree;
        Values hemisphere;
        for (double theta = 0.5 * step; theta < 90.0 * kDegree; theta += step)
            hemisphere.add(std::sin(2.0 * theta) * step, mean(theta));
        return hemisphere;
    }
};

// Relative error that the cancellation in WNKL, evaluated in single precision, leaves in tn.
double cancellation(double tn) { return 1.6e-5 / (tn * tn); }

TEST(Pane, RefractsAndReflectsByTheLaws) {
    EXPECT_EQ(lib::WNRANG(0.01f, kIndex), 0.01f / kIndex) << "the sine of 0.01 is below 0.01";
    EXPECT_FLOAT_EQ(lib::WNRANG(1.0f, kIndex), std::asin(std::sin(1.0f) / kIndex));

    float rp, rs;
    for (const float theta : {0.0f, 0.01f, -0.01f}) {
        lib::WNREFL(theta, theta / kIndex, kIndex, rp, rs);
        EXPECT_NEAR(rp, 0.04258f, 5e-6f) << theta;
        EXPECT_EQ(rp, rs) << theta;
    }
    lib::WNREFL(0.0101f, 0.0101f / kIndex, kIndex, rp, rs);
    EXPECT_LT(rp, rs) << "Fresnel's branch";
}

TEST(Pane, AbsorptionMultipliesAlongThePath) {
    for (const float kl : {0.0f, 0.05f, 0.7f, 3.0f}) {
        const float once = 1.0f - lib::WNABEN(0.5f, kl, kUnread);
        EXPECT_NEAR(1.0f - lib::WNABEN(0.5f, 2.0f * kl, kUnread), once * once, 2e-7f) << kl;
        EXPECT_NEAR(-std::log(once) * std::cos(0.5f), kl, 2e-6f) << kl;
    }
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
            const auto pane = glass(tn, 0.0f, radians(angle));
            const Optics mean = pane.mean();
            const auto [t, a] = reference.mean(radians(angle));
            for (const Optics& of : {pane.p, pane.s})
                EXPECT_NEAR(of.t + of.a + of.r, 1.0f, 3e-7f) << tn << " at " << angle;
            EXPECT_NEAR(mean.t, t, rounding) << tn << " at " << angle;
            EXPECT_NEAR(mean.a, a, rounding) << tn << " at " << angle;
        }
        const Optics diffuse = diffuse_glass(tn, 0.0f);
        const auto [t, a] = reference.diffuse();
        EXPECT_NEAR(diffuse.t, t, 6e-4) << tn;
        EXPECT_NEAR(diffuse.a, a, 6e-4) << tn;
    }
}

// Clear 3 mm glass as the ASHRAE Handbook of Fundamentals tabulates it, to two decimals.
TEST(Glass, AgreesWithPublishedClearGlass) {
    struct {
        double angle;
        float t, a, r;
    } const published[] = {
        {0, 0.83f, 0.09f, 0.08f},  {40, 0.82f, 0.10f, 0.08f}, {50, 0.80f, 0.10f, 0.10f},
        {60, 0.75f, 0.11f, 0.14f}, {70, 0.64f, 0.11f, 0.25f}, {80, 0.39f, 0.11f, 0.51f},
    };
    for (const auto& row : published) {
        const Optics mean = glass(0.83f, 0.0f, radians(row.angle)).mean();
        EXPECT_NEAR(mean.t, row.t, 0.01f) << row.angle;
        EXPECT_NEAR(mean.a, row.a, 0.01f) << row.angle;
        EXPECT_NEAR(mean.r, row.r, 0.01f) << row.angle;
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
        {0.4f, 0.1f, 62.5, 0.4f * 0.97725f, 1.0f - 0.9f * 0.9953f, "between two nodes"},
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
        const auto [p, s] = glass(row.tn, row.r0, radians(row.angle));
        EXPECT_NEAR(p.t, row.t, 2e-6f) << row.why;
        EXPECT_NEAR(p.r, row.r, 2e-6f) << row.why;
        EXPECT_NEAR(p.a, std::fmax(0.0f, 1.0f - row.t - row.r), 2e-6f) << row.why;
        EXPECT_TRUE(p.t == s.t && p.a == s.a && p.r == s.r) << row.why;
    }
    EXPECT_NE(glass(0.4f, 0.0099f, 1.0f).p.t, glass(0.4f, 0.0099f, 1.0f).s.t) << "uncoated";
    EXPECT_NE(glass(0.4f, 0.9901f, 1.0f).p.t, glass(0.4f, 0.9901f, 1.0f).s.t) << "uncoated";
}

Optics unit_direct(float sc, float scl, float theta) {
    Optics unit;
    lib::WNDRSC(sc, scl, theta, unit.t, unit.a, unit.r);
    return unit;
}

Optics unit_diffuse(float sc, float scl) {
    Optics unit;
    lib::WNDFSC(sc, scl, unit.t, unit.a, unit.r);
    return unit;
}

TEST(ShadingCoefficients, AbsorptionFollowsTheLongWaveCoefficient) {
    // Both coefficients together at most 1: a third of what is absorbed enters as heat.
    for (const float theta : {0.0f, radians(40), radians(75)}) {
        const Optics unit = unit_direct(0.5f, 0.2f, theta);
        const Optics pane = glass(0.87f * 0.5f, 0.0f, theta).mean();
        const float normal = glass(0.87f * 0.5f, 0.0f, 0.0f).mean().a;
        EXPECT_EQ(unit.t, pane.t);
        EXPECT_FLOAT_EQ(unit.a / pane.a, 3.0f * 0.87f * 0.2f / normal) << theta;
    }
    EXPECT_FLOAT_EQ(unit_diffuse(0.5f, 0.1f).a, 0.261f);

    // More than 1: the pane's own absorption.
    EXPECT_EQ(unit_direct(0.7f, 0.5f, 0.6f).a, glass(0.87f * 0.7f, 0.0f, 0.6f).mean().a);
    EXPECT_EQ(unit_diffuse(0.7f, 0.5f).a, diffuse_glass(0.87f * 0.7f, 0.0f).a);

    // No long-wave coefficient: nine to one. 1 - 0.9 reaches 0.1 in single precision only.
    EXPECT_NEAR(unit_direct(1.0f, 0.0f, 0.0f).t, 0.783f, cancellation(0.783));
    EXPECT_FLOAT_EQ(unit_direct(1.0f, 0.0f, 0.0f).a, 0.99f - unit_direct(1.0f, 0.0f, 0.0f).t);
    EXPECT_EQ(unit_direct(0.6f, 0.00009f, 1.1f).a, unit_direct(0.9f * 0.6f, 0.1f * 0.6f, 1.1f).a);
    EXPECT_EQ(unit_direct(0.6f, 0.0001f, 1.1f).t, glass(0.87f * 0.6f, 0.0f, 1.1f).mean().t);
}

TEST(ShadingCoefficients, AtLeastAHundredthIsReflected) {
    for (const float sc : {0.0f, 0.3f, 0.8f, 1.0f})
        for (const float scl : {0.0f, 0.05f, 0.4f, 0.9f})
            for (double angle = 0.0; angle <= 90.0; angle += 7.5) {
                const Optics unit = unit_direct(sc, scl, radians(angle));
                EXPECT_GE(unit.r, 0.01f - 1e-6f) << sc << ' ' << scl << ' ' << angle;
                EXPECT_NEAR(unit.t + unit.a + unit.r, 1.0f, 2e-7f);
            }
}

TEST(ShadingCoefficients, TheRemainderIsSharedAmongThePanes) {
    const std::vector<std::vector<float>> shares = {
        {},
        {1.0f},
        {0.4f, 0.6f},
        {0.2f, 0.3f, 0.5f},
        {0.133f, 0.2f, 0.267f, 0.4f},
        {0.1f, 0.15f, 0.2f, 0.25f, 0.3f},
    };
    constexpr float sc = 0.6f, scl = 0.15f, theta = 0.8f, untouched = -7.0f;
    const Optics direct = unit_direct(sc, scl, theta), diffuse = unit_diffuse(sc, scl);
    for (const std::int32_t n : {1, 2, 3, 4, 5, 0, 6}) {
        const std::size_t filled = n >= 1 && n <= 5 ? static_cast<std::size_t>(n) : 0;
        const auto check = [&](const Optics& expected, const auto& call) {
            float t, a;
            std::array<float, 8> panes;
            panes.fill(untouched);
            call(t, panes, a);
            EXPECT_EQ(t, expected.t) << n;
            EXPECT_FLOAT_EQ(a, expected.a) << n;
            for (std::size_t i = 0; i < panes.size(); ++i)
                EXPECT_EQ(panes[i], i < filled ? shares[filled][i] * expected.r : untouched) << n;
        };
        check(direct, [&](auto&... out) { lib::WNDRSM(sc, scl, theta, n, out...); });
        check(diffuse, [&](auto&... out) { lib::WNDFSM(sc, scl, n, out...); });
        check(direct, [&](auto&... out) { lib::WNDRS0(1, sc, scl, theta, n, out...); });
        check(diffuse, [&](auto&... out) { lib::WNDRS0(0, sc, scl, kUnread, n, out...); });
    }
}

}  // namespace
