#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "conformance/random_arguments.h"
#include "literal/fabric.h"
#include "quorvel/fabric.h"
#include "quorvel/psychro.h"

namespace {

using quorvel::conformance::Random;

struct Construction {
    std::vector<float> thickness, conductivity, resistivity;
};

Construction draw(Random& random) {
    Construction c;
    for (int n = 1 + random.below(20), i = 0; i < n; ++i) {
        const int kind = random.below(6);
        c.thickness.push_back(kind == 0   ? random.real(-0.1, -0.01)
                              : kind == 1 ? 0.0f
                                          : random.real(0.01, 0.2));
        c.conductivity.push_back(random.real(0.03, 1.5));
        c.resistivity.push_back(kind == 1 ? random.real(0.1, 20.0) : random.real(5.0, 200.0));
    }
    return c;
}

// Resistances to heat and vapour from the inside air and surface to each interface.
struct Passed {
    std::vector<double> heat{0.13}, vapour{0.0};

    explicit Passed(const Construction& c) {
        for (std::size_t i = 0; i < c.thickness.size(); ++i) {
            const double d = c.thickness[i], k = c.conductivity[i], r = c.resistivity[i];
            heat.push_back(heat.back() + (d < 0.0 ? k : d / k));
            vapour.push_back(vapour.back() + (d < 0.0 ? -5e9 * d : 1e9 * r * (d > 0.0 ? d : 1.0)));
        }
    }
};

// Steady diffusion lays the vapour pressure along the lowest convex line y through the two surfaces
// that stays below saturation: vapour may be left at an interface, but none comes from there.
std::vector<double> taut_line(const std::vector<double>& G, const std::vector<double>& y) {
    const std::size_t last = G.size() - 1;
    std::vector<double> line(y.size());
    for (std::size_t from = 0; from < last;) {
        std::size_t to = from + 1;
        const auto slope = [&](std::size_t j) { return (y[j] - y[from]) / (G[j] - G[from]); };
        for (std::size_t j = to; j <= last; ++j)
            if (slope(j) <= slope(to)) to = j;
        for (std::size_t j = from; j <= to; ++j) line[j] = y[from] + slope(to) * (G[j] - G[from]);
        from = to;
    }
    return line;
}

TEST(CondensationProfile, IsTheTautLineBelowSaturation) {
    Random random(1);
    constexpr float untouched = -999.0f;
    int bent = 0;
    for (int i = 0; i < 20000; ++i) {
        const Construction c = draw(random);
        const int n = static_cast<int>(c.thickness.size());
        const auto last = static_cast<std::size_t>(n);
        const float ti = random.real(15.0, 30.0), to = random.real(-20.0, 10.0);
        const float inside = random.real(40.0, 110.0), outside = random.real(50.0, 110.0);
        std::vector<float> T(24, untouched), P = T, Ps = T;
        lib::TPGRAD(c.thickness.data(), c.conductivity.data(), c.resistivity.data(), 0.13f, 0.04f,
                    n, ti, to, inside, outside, T.data(), P.data(), Ps.data());
        const Passed passed(c);
        float G;
        lib::TPDAMP(c.thickness.data(), c.resistivity.data(), n, G);
        ASSERT_NEAR(G, passed.vapour.back(), 2e-6 * passed.vapour.back());
        ASSERT_EQ(P[0], std::min(lib::PSVP(ti, inside), Ps[0]));
        ASSERT_EQ(P[last], std::min(lib::PSVP(to, outside), Ps[last]));

        std::vector<double> bounds(Ps.begin(), Ps.begin() + n + 1);
        bounds.front() = P[0];
        bounds.back() = P[last];
        const auto line = taut_line(passed.vapour, bounds);
        const double flux = double{ti - to} / (passed.heat.back() + 0.04);
        for (std::size_t j = 0; j <= last; ++j) {
            ASSERT_NEAR(T[j], ti - flux * passed.heat[j], 1e-4) << i << ", interface " << j;
            ASSERT_EQ(Ps[j], lib::PSSVP(T[j]));
            ASSERT_LE(P[j], Ps[j]);
            ASSERT_NEAR(P[j], line[j], 2e-5 * line[j] + 0.01) << i << ", interface " << j;
            bent += P[j] == Ps[j];
        }
        for (const auto& values : {T, P, Ps}) ASSERT_EQ(values[last + 1], untouched);
    }
    EXPECT_GT(bent, 20000);
}

// The glass of a window, say: one surface, at which the inside air meets the outside.
TEST(CondensationProfile, OfNoLayersIsThatOfTheOneSurface) {
    constexpr float untouched = -999.0f, none[1] = {};
    std::array<float, 2> T, P, Ps;
    const auto profile = [&](int layers, float rh) {
        for (auto* values : {&T, &P, &Ps}) values->fill(untouched);
        lib::TPGRAD(none, none, none, 0.13f, 0.04f, layers, 20.0f, 0.0f, rh, 80.0f, T, P, Ps);
    };
    profile(0, 50.0f);
    EXPECT_NEAR(T[0], 20.0f * 0.04f / 0.17f, 1e-5f);
    EXPECT_EQ(Ps[0], lib::PSSVP(T[0]));
    EXPECT_EQ(P[0], Ps[0]);
    profile(0, 10.0f);
    EXPECT_EQ(P[0], lib::PSVP(20.0f, 10.0f));
    for (const auto& values : {T, P, Ps}) EXPECT_EQ(values[1], untouched);
    profile(-1, 50.0f);
    EXPECT_EQ(T[0], untouched);
}

// Stretches of steps are decided at once, with the answer of every step.
TEST(CondensationWithinALayer, IsFoundWhereEveryStepEvaluatedFindsIt) {
    Random random(3);
    int condensing = 0;
    for (int i = 0; i < 50000; ++i) {
        // Some layers reach from a furnace to below absolute zero, a few far beyond any meaning,
        // and some pressures too.
        const float reach = random.below(4) ? 40.0f : random.below(100) ? 1500.0f : 1e5f;
        const float p = random.below(8) ? 3000.0f : 1e13f;
        const float t1 = random.real(-reach, reach);
        // Every other cold face falls on a step.
        const float t2 = random.below(2) ? random.real(-reach, reach)
                                         : t1 - 0.5f * static_cast<float>(random.below(20));
        const float p1 = random.real(-0.1f * p, p), p2 = random.real(-0.1f * p, p);
        ASSERT_EQ(lib::ITPCON(t1, t2, p1, p2), literal::ITPCON(t1, t2, p1, p2))
            << t1 << ' ' << t2 << ' ' << p1 << ' ' << p2;
        condensing += literal::ITPCON(t1, t2, p1, p2);
    }
    EXPECT_GT(condensing, 5000);
}

}  // namespace
