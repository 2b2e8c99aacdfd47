#include <gtest/gtest.h>

#include <climits>
#include <complex>
#include <numbers>
#include <vector>

#include "common/library.h"
#include "support/random_arguments.h"

namespace {

using Complex = std::complex<double>;

struct Layer {
    double thickness, conductivity, density, specific_heat;
};
using Wall = std::vector<Layer>;

// Admittance, decrement factor and surface factor as phasors: a lead turns forwards, a lag back.
struct Response {
    Complex admittance, decrement, surface;
    double U;
};

constexpr double Rsi = 0.12, Rso = 0.06;

struct Outputs {
    float Y = -1, lead = -1, f = -1, f_lag = -1, F = -1, F_lag = -1, U = -1;
};

Outputs call(const Wall& wall, int n, int harmonic, int kind, double inside = Rsi,
             double outside = Rso) {
    std::vector<float> d, k, rho, c;
    for (const Layer& layer : wall) {
        d.push_back(static_cast<float>(layer.thickness));
        k.push_back(static_cast<float>(layer.conductivity));
        rho.push_back(static_cast<float>(layer.density));
        c.push_back(static_cast<float>(layer.specific_heat));
    }
    Outputs o;
    lib::TPADMT(d.data(), k.data(), rho.data(), c.data(), static_cast<float>(inside),
                static_cast<float>(outside), n, harmonic, kind, o.Y, o.lead, o.f, o.f_lag, o.F,
                o.F_lag, o.U);
    return o;
}

Response response(const Wall& wall, int harmonic = 1, int kind = 1) {
    const Outputs o = call(wall, static_cast<int>(wall.size()), harmonic, kind);
    const double turn = harmonic * std::numbers::pi / 12.0;  // per hour
    const double day = 24.0 / harmonic * (1.0 + 1e-6);
    for (float hours : {o.lead, o.f_lag, o.F_lag}) EXPECT_TRUE(hours >= 0.0f && hours <= day);
    return {std::polar<double>(o.Y, turn * o.lead), std::polar<double>(o.f, -turn * o.f_lag),
            std::polar<double>(o.F, -turn * o.F_lag), o.U};
}

// The same from temperature and flux followed from the far air towards the room, in double.
Response expected(const Wall& wall, int harmonic, int kind) {
    // Columns of the matrix of all layers, started behind the far surface.
    Complex t[2] = {1.0, Rso}, q[2] = {0.0, 1.0};
    double resistance = Rsi + Rso;
    for (auto layer = wall.rbegin(); layer != wall.rend(); ++layer) {
        const double R =
            layer->thickness < 0.0 ? layer->conductivity : layer->thickness / layer->conductivity;
        resistance += R;
        const double stored = layer->thickness < 0.0 ? 0.0 : layer->density * layer->specific_heat;
        const double omega = 2.0 * std::numbers::pi * harmonic / 86400.0;
        const Complex z =
            layer->thickness * std::sqrt(Complex(0.0, omega * stored / layer->conductivity));
        const Complex ratio = stored == 0.0 ? Complex(1.0) : std::sinh(z) / z;
        for (int column : {0, 1}) {
            const Complex outer = t[column];
            t[column] = std::cosh(z) * outer + R * ratio * q[column];
            q[column] = z * z * ratio / R * outer + std::cosh(z) * q[column];
        }
    }
    const Complex m12 = t[1] + Rsi * q[1], Y = (q[1] - (kind == 2 ? 1.0 : 0.0)) / m12;
    return {Y, kind == 2 ? 0.0 : resistance / m12, 1.0 - Rsi * Y, 1.0 / resistance};
}

// Relative to the size of each; a decrement factor spans many powers of ten.
double deviation(const Response& a, const Response& b) {
    return std::max({std::abs(a.admittance - b.admittance) / std::abs(b.admittance),
                     std::abs(a.decrement - b.decrement) / std::max(std::abs(b.decrement), 1e-30),
                     std::abs(a.surface - b.surface), std::abs(a.U - b.U) / b.U});
}

Wall draw_wall(quorvel::test::Random& random, int layers) {
    const auto between = [&](double low, double high) {
        return low + (high - low) * random.unit();
    };
    Wall wall;
    for (int i = 0; i < layers; ++i) switch (random.below(4)) {
            case 0:
                wall.push_back({-1.0, between(0.05, 0.3), 0.0, 0.0});
                break;
            case 1:
                wall.push_back({between(0.02, 0.1), between(0.03, 0.06), 20.0, 1000.0});
                break;
            default:
                wall.push_back({between(0.01, 0.15), between(0.3, 2.0), between(600.0, 2400.0),
                                between(700.0, 1600.0)});
        }
    return wall;
}

TEST(Admittance, AgreesWithDoublePrecision) {
    quorvel::test::Random random(1);
    double worst = 0.0;
    for (int i = 0; i < 20000; ++i) {
        const Wall wall = draw_wall(random, random.below(21));
        const int harmonic = 1 + random.below(4), kind = 1 + random.below(2);
        const Response ours = response(wall, harmonic, kind);
        // Beyond that the square of the decrement factor is no normal number in single precision.
        const Response exact = expected(wall, harmonic, kind);
        if (kind == 1 && std::abs(exact.decrement) < 1e-18) continue;
        worst = std::max(worst, deviation(ours, exact));
    }
    EXPECT_LT(worst, 1e-5);
}

// Solid brickwork without plaster as tabulated in the CIBSE Guide, section A3, Thermal properties
// of building structures, 1980, to about a unit in the last printed digit.
TEST(Admittance, OfPublishedBrickWalls) {
    const struct {
        double thickness;
        float U, Y, lead, f, f_lag, F, F_lag;
    } walls[] = {{0.105, 3.3f, 4.2f, 1, 0.88f, 3, 0.54f, 1},
                 {0.220, 2.3f, 4.6f, 1, 0.54f, 6, 0.52f, 2},
                 {0.335, 1.7f, 4.7f, 1, 0.29f, 9, 0.51f, 2}};
    for (const auto& wall : walls) {
        const Outputs o = call({{wall.thickness, 0.84, 1700.0, 800.0}}, 1, 1, 1);
        EXPECT_NEAR(o.U, wall.U, 0.06f);
        EXPECT_NEAR(o.Y, wall.Y, 0.12f);
        EXPECT_NEAR(o.f, wall.f, 0.012f);
        EXPECT_NEAR(o.F, wall.F, 0.012f);
        EXPECT_NEAR(o.lead, wall.lead, 0.51f);
        EXPECT_NEAR(o.f_lag, wall.f_lag, 0.51f);
        EXPECT_NEAR(o.F_lag, wall.F_lag, 0.51f);
    }
}

// Behind no surface resistance a very thick layer is a half-space: its admittance is the root of
// omega k rho c, an eighth of a cycle ahead.
TEST(Admittance, OfAHalfSpace) {
    for (int harmonic : {1, 2, 3, 6}) {
        const Outputs o = call({{2.0, 1.4, 2100.0, 840.0}}, 1, harmonic, 1, 0.0);
        const double omega = 2.0 * std::numbers::pi * harmonic / 86400.0;
        EXPECT_NEAR(o.Y / std::sqrt(omega * 1.4 * 2100.0 * 840.0), 1.0, 2e-6);
        EXPECT_NEAR(o.lead, 3.0 / harmonic, 1e-5);
        EXPECT_EQ(o.F, 1.0f);
        EXPECT_LT(o.f, 1e-4f);
    }
}

TEST(Admittance, DoesNotSeeWhereALayerIsCut) {
    quorvel::test::Random random(2);
    for (int i = 0; i < 2000; ++i) {
        const Wall wall = draw_wall(random, 1 + random.below(5));
        const auto where = random.below(static_cast<int>(wall.size()));
        const double share = 0.2 + 0.6 * random.unit();
        Wall cut = wall;
        Layer& near = cut[static_cast<std::size_t>(where)];
        if (near.thickness < 0.0) continue;
        Layer far = near;
        near.thickness *= share;
        far.thickness *= 1.0 - share;
        const Layer nothing{};
        cut.insert(cut.begin() + where + 1, {nothing, far});
        EXPECT_LT(deviation(response(cut), response(wall)), 1e-5) << i;
    }
}

// What passes a wall does not depend on the side from which it comes.
TEST(Admittance, DecrementIsTheSameFromBothSides) {
    quorvel::test::Random random(3);
    for (int i = 0; i < 2000; ++i) {
        const Wall wall = draw_wall(random, 1 + random.below(6));
        const int n = static_cast<int>(wall.size());
        const Outputs there = call(wall, n, 1, 1, Rsi, Rso);
        const Outputs back = call({wall.rbegin(), wall.rend()}, n, 1, 1, Rso, Rsi);
        const auto phasor = [](const Outputs& o) {
            return std::polar<double>(o.f, -o.f_lag * std::numbers::pi / 12.0);
        };
        EXPECT_LT(std::abs(phasor(there) - phasor(back)), 1e-5 * there.f) << i;
    }
}

TEST(Admittance, TwiceAsFastIsTwiceAsHeavyInHalfTheTime) {
    const Wall wall{
        {0.013, 0.5, 1300.0, 1000.0}, {-1.0, 0.18, 0.0, 0.0}, {0.2, 1.1, 1900.0, 900.0}};
    Wall heavy = wall;
    for (Layer& layer : heavy) layer.density *= 2.0;
    const Outputs fast = call(wall, 3, 2, 1), slow = call(heavy, 3, 1, 1);
    EXPECT_EQ(fast.Y, slow.Y);
    EXPECT_EQ(fast.f, slow.f);
    EXPECT_EQ(fast.F, slow.F);
    EXPECT_EQ(fast.lead, slow.lead / 2.0f);
    EXPECT_EQ(fast.f_lag, slow.f_lag / 2.0f);
    EXPECT_EQ(fast.F_lag, slow.F_lag / 2.0f);
}

TEST(Admittance, WithoutHeatCapacityIsSteady) {
    const Wall walls[] = {
        {},
        {{-1.0, 0.2, 500.0, 500.0}, {-0.3, 0.5, 0.0, 0.0}},
        {{0.1, 0.04, 0.0, 1000.0}, {0.1, 0.2, 1000.0, 0.0}, {0.0, 1.0, 9e9, 1.0}}};
    for (const Wall& wall : walls) {
        const int n = static_cast<int>(wall.size());
        const Outputs o = call(wall, n, 1, 1), partition = call(wall, n, 1, 2);
        EXPECT_NEAR(o.U, expected(wall, 1, 1).U, 1e-6);
        EXPECT_FLOAT_EQ(o.Y, o.U);
        EXPECT_FLOAT_EQ(o.f, 1.0f);
        EXPECT_FLOAT_EQ(o.F, 1.0f - 0.12f * o.U);
        EXPECT_TRUE(o.lead == 0.0f && o.f_lag == 0.0f && o.F_lag == 0.0f);
        EXPECT_TRUE(partition.Y == 0.0f && partition.F == 1.0f && partition.U == o.U);
        EXPECT_TRUE(partition.f == 0.0f && partition.f_lag == 0.0f);
    }
}

// A square of a matrix element that does not fit single precision is met in walls like this one.
TEST(Admittance, OfAVeryHeavyWall) {
    const Wall wall{{2.8, 0.8, 2400.0, 1600.0}, {2.8, 0.8, 2400.0, 1600.0}};
    const Response exact = expected(wall, 1, 1), ours = response(wall);
    ASSERT_LT(std::abs(exact.decrement), 1e-19);
    EXPECT_LT(std::abs(ours.admittance - exact.admittance), 1e-5 * std::abs(exact.admittance));
    EXPECT_LT(std::abs(ours.surface - exact.surface), 1e-6);
}

TEST(Admittance, CountsOutsideTheRange) {
    for (int n : {21, INT_MAX}) {
        const Outputs o = call({}, n, 1, 1);
        for (float untouched : {o.Y, o.lead, o.f, o.f_lag, o.F, o.F_lag, o.U})
            EXPECT_EQ(untouched, -1.0f);
    }
    for (int n : {-1, INT_MIN}) {
        const Outputs o = call({}, n, 1, 1), none = call({}, 0, 1, 1);
        EXPECT_TRUE(o.Y == none.Y && o.F == none.F && o.U == none.U);
    }
}

}  // namespace
