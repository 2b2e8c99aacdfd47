// Slatted blinds against a radiosity balance drawn from the corners of their slats, roller blinds,
// and stacks of layers against the adding method.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "conformance/random_arguments.h"
#include "quorvel/glazing.h"
#include "support/results.h"

namespace {

using quorvel::conformance::Random;

constexpr double kDegree = std::numbers::pi / 180.0;

using quorvel::test::results;

struct Point {
    double x, y;
};

struct Strip {
    Point from, to;
    double length() const { return std::hypot(to.x - from.x, to.y - from.y); }
};

// Crossed strings: share of what leaves strip a diffusely that arrives at strip b.
double exchange(const Strip& a, const Strip& b) {
    const auto string = [](Point p, Point q) { return Strip{p, q}.length(); };
    return std::fabs(string(a.from, b.from) + string(a.to, b.to) - string(a.from, b.to) -
                     string(a.to, b.from)) /
           (2.0 * a.length());
}

// The gap between two slats of width 1: outer edges at x = 0, a beam from above on the lower slat.
struct ReferenceGap {
    double s, beta;  // radians
    Point inner{std::cos(beta), std::sin(beta)};
    Strip lower{{0.0, 0.0}, inner}, upper{{0.0, s}, {inner.x, inner.y + s}};
    Strip outside{lower.from, upper.from}, inside{lower.to, upper.to};

    struct Values {
        double t, a, r;
    };

    // Of a beam with phi + beta > 0. The strip that the beam lights sends on to the other slat and
    // the openings; from there on both slats are evenly lit, and reflection follows reflection.
    Values beam(double phi, double rho, double rho_b) const {
        const double lit = s * std::cos(phi) / std::sin(phi + beta);
        const double end = std::min(lit, 1.0), struck = std::min(1.0, 1.0 / lit);
        const Strip strip{lower.from, {inner.x * end, inner.y * end}};
        Values sum = {1.0 - struck + struck * rho * exchange(strip, inside), struck * (1.0 - rho),
                      struck * rho * exchange(strip, outside)};
        double on_upper = struck * rho * exchange(strip, upper), on_lower = 0.0;
        for (int i = 0; i < 3000 && on_upper + on_lower > 1e-12; ++i) {
            sum.a += on_upper * (1.0 - rho_b) + on_lower * (1.0 - rho);
            sum.t += on_upper * rho_b * exchange(upper, inside);
            sum.t += on_lower * rho * exchange(lower, inside);
            sum.r += on_upper * rho_b * exchange(upper, outside);
            sum.r += on_lower * rho * exchange(lower, outside);
            const double back = on_upper * rho_b * exchange(upper, lower);
            on_upper = on_lower * rho * exchange(lower, upper);
            on_lower = back;
        }
        return sum;
    }
};

TEST(Slats, FollowTheRadiosityBalanceOfTheirGap) {
    Random random(1);
    for (int i = 0; i < 20000; ++i) {
        const double s = random.between(0.2, 2.0), beta = random.between(-85.0, 85.0),
                     phi = random.between(-1.5, 1.5);
        const float alpha = random.real(0.05, 1.0);
        // A black opposite face too leaves the transmittance exact, but not the absorptance.
        const bool equal_faces = i % 4 != 0;
        const float alpha_b = equal_faces ? alpha : 1.0f;
        if (std::fabs(phi + beta * kDegree) < 0.011) continue;
        const double side = phi + beta * kDegree > 0.0 ? 1.0 : -1.0;
        const auto expected =
            ReferenceGap{s, side * beta * kDegree}.beam(side * phi, 1.0 - alpha, 1.0 - alpha_b);
        const auto [t, a, r] =
            results<3>(lib::WNDRS2, static_cast<float>(s), 1.0f, static_cast<float>(beta),
                       static_cast<float>(phi), alpha, alpha_b);
        EXPECT_NEAR(t, expected.t, 5e-5) << s << ' ' << beta << ' ' << phi << ' ' << alpha;
        if (equal_faces) {
            EXPECT_NEAR(a, expected.a, 5e-5) << s << ' ' << beta << ' ' << phi;
            EXPECT_NEAR(r, expected.r, 5e-5) << s << ' ' << beta << ' ' << phi;
        }
    }
}

TEST(Slats, ThreeRoutinesAreOneModel) {
    Random random(2);
    for (int i = 0; i < 3000; ++i) {
        const float s = random.real(0.2, 1.2), beta = random.real(-90.0, 90.0);
        const float phi = random.real(-1.55, 1.55);
        const float a = random.real(0.0, 1.0), b = random.real(0.0, 1.0);
        const auto two = results<3>(lib::WNDRS2, s, 1.0f, beta, phi, a, b);
        EXPECT_EQ(results<3>(lib::WNDRSL, s, 1.0f, beta, phi, a),
                  results<3>(lib::WNDRS2, s, 1.0f, beta, phi, a, a));
        EXPECT_EQ(results<3>(lib::WNDRS3, s, 1.0f, beta, phi, 0.0f, a, b), two);
        const auto open = results<3>(lib::WNDRS3, s, 1.0f, beta, phi, 0.2f, a, b);
        for (std::size_t k = 0; k < 3; ++k)
            EXPECT_FLOAT_EQ(open[k], (k == 0 ? 0.2f : 0.0f) + 0.8f * two[k]);

        const auto both_sides = results<4>(lib::WNDFS2, s, 1.0f, beta, a, b);
        EXPECT_EQ(results<4>(lib::WNDFSL, s, 1.0f, beta, a),
                  results<4>(lib::WNDFS2, s, 1.0f, beta, a, a));
        const auto open_sides = results<4>(lib::WNDFS3, s, 1.0f, beta, 0.2f, a, b);
        for (std::size_t k = 0; k < 4; ++k)
            EXPECT_NEAR(open_sides[k], (k < 2 ? 0.2f : 0.0f) + 0.8f * both_sides[k], 2e-6f);
    }
    EXPECT_LT(results<3>(lib::WNDRS2, 0.1f, 1.0f, 0.0f, 1.0f, 0.9f, 0.1f)[2], -1.0f)
        << "documented overshoot";
}

TEST(DiffuseSlats, OfBlackSlatsPassWhatTheOpeningsSeeOfEachOther) {
    for (const float s : {0.5f, 0.8f, 1.0f, 2.0f})
        for (float beta = -71.0f; beta <= 71.0f; beta += 3.0f) {
            const auto [t_sky, t_ground, a_sky, a_ground] =
                results<4>(lib::WNDFSL, s, 1.0f, beta, 1.0f);
            const ReferenceGap gap{s, beta * kDegree};
            EXPECT_NEAR(0.5f * (t_sky + t_ground), exchange(gap.outside, gap.inside), 0.02)
                << s << ' ' << beta;
            EXPECT_NEAR(t_sky + a_sky, 1.0f, 1e-6f);
        }
}

TEST(DiffuseSlats, SwapSkyAndGroundWithTheSlats) {
    for (float beta = 0.0f; beta <= 90.0f; beta += 2.5f) {
        const auto lowered = results<4>(lib::WNDFSL, 0.7f, 1.0f, beta, 0.4f);
        const auto raised = results<4>(lib::WNDFSL, 0.7f, 1.0f, -beta, 0.4f);
        EXPECT_EQ(lowered, (std::array{raised[1], raised[0], raised[3], raised[2]}));
        EXPECT_TRUE(lowered[0] < lowered[1] || beta < 10.0f || beta > 70.0f) << beta;
    }
}

TEST(RollerBlind, IsTheSameInDiffuseRadiation) {
    for (float tau = 0.0f; tau <= 1.0f; tau += 0.05f)
        for (float rho = 0.0f; tau + rho <= 1.0f; rho += 0.05f) {
            const auto direct =
                results<3>(lib::WNDRRO, tau, rho, static_cast<const float*>(nullptr));
            EXPECT_EQ(direct, (std::array{tau, 1.0f - tau - rho, rho}));
            const auto diffuse = results<3>(lib::WNDFRO, tau, rho);
            for (std::size_t k = 0; k < 3; ++k) EXPECT_NEAR(diffuse[k], direct[k], 3e-7f);
        }
}

// Each pass sends on 0.7 x 0.9 of what the one before it had between the two layers.
TEST(Stack, FollowsTheFluxThroughNinePasses) {
    const std::array<float, 2> t{0.1f, 0.2f}, a{0.0f, 0.1f}, r{0.9f, 0.7f};
    const double lost = std::pow(0.63, 9.0);
    const auto [through, absorbed, back] = results<3>(lib::WNCOMP, 2, t, a, r);
    EXPECT_NEAR(through, 0.02 / 0.37 * (1.0 - lost), 1e-6);
    EXPECT_NEAR(back, 0.7 + 0.04 * 0.9 / 0.37 * (1.0 - lost / 0.63), 1e-6);
    EXPECT_NEAR(absorbed, 0.1 + 0.2 * 0.9 * 0.1 / 0.37 * (1.0 - lost / 0.63), 1e-6);
}

// Of weakly reflecting layers nothing is left after nine passes: the adding method, which puts one
// layer after the other in front of the stack, has all inter-reflections in closed form.
TEST(Stack, AgreesWithTheAddingMethod) {
    Random random(3);
    for (int i = 0; i < 5000; ++i) {
        std::array<float, 4> t, a, r;
        const int n = random.below(5);
        double T = 1.0, R = 0.0;
        for (std::size_t j = 0; j < static_cast<std::size_t>(n); ++j) {
            r[j] = random.real(0.0, 0.1);
            t[j] = random.real(0.0, 1.0 - r[j]);
            a[j] = 1.0f - t[j] - r[j];
            const double repeated = 1.0 / (1.0 - r[j] * R);
            R = r[j] + t[j] * t[j] * R * repeated;
            T *= t[j] * repeated;
        }
        const auto [through, absorbed, back] = results<3>(lib::WNCOMP, n, t, a, r);
        EXPECT_NEAR(through, T, 1e-5) << n;
        EXPECT_NEAR(back, R, 1e-5) << n;
        EXPECT_NEAR(through + absorbed + back, 1.0, 1e-5) << n;
    }
    const std::array<float, 12> many{};
    EXPECT_EQ(results<3>(lib::WNCOMP, 12, many, many, many)[0], quorvel::test::unwritten);
}

}  // namespace
