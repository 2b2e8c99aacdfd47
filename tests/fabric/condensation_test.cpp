#include <gtest/gtest.h>

#include <vector>

#include "conformance/random_arguments.h"
#include "quorvel/library.h"

namespace {

struct Construction {
    std::vector<float> thickness, conductivity, resistivity;
    int size() const { return static_cast<int>(thickness.size()); }
};

struct Profile {
    std::vector<float> T, P, Ps;
};

constexpr float untouched = -999.0f;

Profile profile(const Construction& c, float ti, float to, float rhi, float rho) {
    Profile p;
    p.T = p.P = p.Ps = std::vector<float>(24, untouched);
    lib::TPGRAD(c.thickness.data(), c.conductivity.data(), c.resistivity.data(), 0.13f, 0.04f,
                c.size(), ti, to, rhi, rho, p.T.data(), p.P.data(), p.Ps.data());
    return p;
}

// Vapour resistance from the inside surface to each interface.
std::vector<double> passed(const Construction& c) {
    std::vector<double> passed{0.0};
    for (std::size_t i = 0; i < c.thickness.size(); ++i) {
        float G;
        lib::TPDAMP(&c.thickness[i], &c.resistivity[i], 1, G);
        passed.push_back(passed.back() + G);
    }
    return passed;
}

// Steady diffusion lays the vapour pressure along the lowest convex line through the two surfaces
// that stays below saturation: vapour may be left at an interface, but none comes from there.
std::vector<double> taut_line(const std::vector<double>& G, const Profile& p) {
    const std::size_t last = G.size() - 1;
    std::vector<double> y(p.Ps.begin(), p.Ps.begin() + static_cast<std::ptrdiff_t>(G.size()));
    y[0] = p.P[0];
    y[last] = p.P[last];
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

Construction draw(quorvel::conformance::Random& random) {
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

TEST(VapourResistance, ThreeRules) {
    const Construction c{{0.1f, -0.05f, 0.0f}, {}, {50.0f, 1e6f, 4.0f}};
    const float expected[] = {0.0f, 5e9f, 5.25e9f, 9.25e9f};
    for (int n = 0; n <= 3; ++n) {
        float G;
        lib::TPDAMP(c.thickness.data(), c.resistivity.data(), n, G);
        EXPECT_FLOAT_EQ(G, expected[n]);
    }
}

TEST(CondensationProfile, TemperatureFallsWithTheHeatFlow) {
    const Construction c{{0.013f, 0.1f, -0.05f, 0.0f, 0.105f},
                         {0.5f, 0.19f, 0.18f, 9.0f, 0.84f},
                         {50.0f, 50.0f, 0.0f, 0.1f, 50.0f}};
    const Profile p = profile(c, 20.0f, -2.0f, 50.0f, 90.0f);
    const double R[] = {0.13, 0.026, 0.1 / 0.19, 0.18, 0.0, 0.125, 0.04};
    double total = 0.0, sum = 0.0;
    for (double r : R) total += r;
    for (std::size_t i = 0; i < 6; ++i) {
        sum += R[i];
        EXPECT_NEAR(p.T[i], 20.0 - 22.0 * sum / total, 1e-4) << i;
        EXPECT_EQ(p.Ps[i], lib::PSSVP(p.T[i]));
    }
    EXPECT_EQ(p.P[0], lib::PSVP(20.0f, 50.0f));
    EXPECT_EQ(p.P[5], lib::PSVP(-2.0f, 90.0f));
}

TEST(CondensationProfile, IsTheTautLineBelowSaturation) {
    quorvel::conformance::Random random(1);
    int bent = 0;
    for (int i = 0; i < 20000; ++i) {
        const Construction c = draw(random);
        const Profile p = profile(c, random.real(15.0, 30.0), random.real(-20.0, 10.0),
                                  random.real(40.0, 110.0), random.real(50.0, 110.0));
        const auto line = taut_line(passed(c), p);
        for (std::size_t j = 0; j < line.size(); ++j) {
            ASSERT_LE(p.P[j], p.Ps[j]);
            ASSERT_NEAR(p.P[j], line[j], 2e-5 * line[j] + 0.01) << i << ", interface " << j;
            bent += p.P[j] == p.Ps[j];
        }
        ASSERT_EQ(p.P[line.size()], untouched);
    }
    EXPECT_GT(bent, 20000);
}

TEST(CondensationProfile, OfOneLayer) {
    const Profile one = profile({{0.1f}, {0.5f}, {0.0f}}, 20.0f, 0.0f, 150.0f, 50.0f);
    EXPECT_EQ(one.P[0], one.Ps[0]);
    EXPECT_EQ(one.P[1], lib::PSVP(0.0f, 50.0f));
    EXPECT_EQ(one.P[2], untouched);
}

// The glass of a window, say: one surface, at which the inside air meets the outside.
TEST(CondensationProfile, OfNoLayersIsThatOfTheOneSurface) {
    Profile p = profile({}, 20.0f, 0.0f, 50.0f, 80.0f);
    EXPECT_NEAR(p.T[0], 20.0f * 0.04f / 0.17f, 1e-5f);
    EXPECT_EQ(p.Ps[0], lib::PSSVP(p.T[0]));
    EXPECT_EQ(p.P[0], p.Ps[0]);
    p = profile({}, 20.0f, 0.0f, 10.0f, 80.0f);
    EXPECT_EQ(p.P[0], lib::PSVP(20.0f, 10.0f));
    EXPECT_EQ(p.T[1], untouched);
    EXPECT_EQ(p.P[1], untouched);
    lib::TPGRAD(&p.T[2], &p.T[2], &p.T[2], 0.1f, 0.1f, -1, 20.0f, 0.0f, 50.0f, 80.0f, &p.T[2],
                &p.P[2], &p.Ps[2]);
    EXPECT_EQ(p.T[2], untouched);
}

TEST(CondensationWithinALayer, LooksEveryHalfKelvin) {
    const struct {
        float t1, t2, p1, p2;
        int condenses;
        const char* why;
    } cases[] = {
        {20.0f, 0.0f, 1170.0f, 550.0f, 0, "half saturated throughout"},
        {20.0f, 0.0f, 2100.0f, 600.0f, 1, "dry at both faces, saturated between"},
        {20.0f, 19.5f, 1000.0f, 2300.0f, 1, "the cold face falls on a step"},
        {20.0f, 19.4f, 1000.0f, 3000.0f, 1, "a step short of the cold face"},
        {20.0f, 19.5f, 9000.0f, 1000.0f, 0, "the warm face is not looked at"},
        {0.0f, 20.0f, 9000.0f, 9000.0f, 0, "the wrong way round"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(lib::ITPCON(c.t1, c.t2, c.p1, c.p2), c.condenses) << c.why;
}

}  // namespace
