// Surface and cavity resistances, and the glazings made of them.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "conformance/random_arguments.h"
#include "quorvel/fabric.h"
#include "support/results.h"

namespace {

constexpr std::int32_t kOutside = 1, kInside = 2;
constexpr float kUp = 0.0f, kVertical = 1.5707964f, kDown = 3.1415927f;

// Each of radiation, wind and tilt adds its own coefficient. With an emissivity of 0.9 they are
// the customary resistances.
TEST(Surface, CoefficientsAddUp) {
    constexpr double wind[] = {4.3, 9.1, 20.7}, tilted[] = {1.3, 2.8, 6.1};
    for (const float tilt : {kUp, kVertical, kDown})
        for (const std::int32_t exposure : {0, 1, 2, 3, 4}) {
            const int row = std::clamp(exposure, 1, 3) - 1;
            const double up = 1.0 - tilt / 3.14159265;
            for (const float emissivity : {0.0f, 0.05f, 0.9f, 1.0f}) {
                EXPECT_NEAR(1.0 / lib::TPRSU2(kOutside, tilt, exposure, emissivity),
                            5.1 * emissivity + wind[row] + 4.0 * tilted[row] * up * up, 1e-5);
                EXPECT_NEAR(1.0 / lib::TPRSU2(kInside, tilt, exposure, emissivity),
                            1.8 + 2.6 * up + 5.7 * emissivity, 2e-6);
            }
            for (const std::int32_t type : {kOutside, kInside, 0, 3})
                EXPECT_NEAR(lib::TPRSUR(type, tilt, exposure),
                            lib::TPRSU2(type, tilt, exposure, 0.9f), 2e-8f);
        }
    for (const std::int32_t type : {0, 3}) EXPECT_EQ(lib::TPRSUR(type, kVertical, 2), 0.0f);
}

struct Gas {
    float density, conductivity, specific_heat, viscosity;
};

float filled(float tilt, float d, float e1, float e2, const Gas& gas) {
    return lib::TPRCAX(tilt, d, e1, e2, gas.density, gas.conductivity, gas.specific_heat,
                       gas.viscosity);
}

// The same cavity in double precision from Grashof and Prandtl numbers, its radiation as the
// exchange between parallel planes, its exponents as lines through the published points.
double reference(double tilt, double d, double e1, double e2, const Gas& gas) {
    const double k = double{gas.conductivity}, mu = double{gas.viscosity};
    const double kinematic = mu / double{gas.density};
    const double grashof = 0.52 * d * d * d / (kinematic * kinematic);
    const double prandtl = mu * double{gas.specific_heat} / k;
    double nusselt = 1.0;
    if (tilt < 1.59) {
        const double steep = std::max(0.0, tilt - 0.785), flat = std::min(tilt, 0.785);
        const double C = 0.16 - 0.06 * flat / 0.785 - 0.065 * steep / 0.785;
        const double n = 0.28 + 0.03 * flat / 0.785 + 0.07 * steep / 0.785;
        nusselt = std::max(1.0, C * std::pow(grashof * prandtl, n));
    }
    return 1.0 / (5.14 / (1.0 / e1 + 1.0 / e2 - 1.0) + nusselt * k / d);
}

TEST(Cavity, AgreesWithTheCorrelationInDoublePrecision) {
    quorvel::conformance::Random random(41);
    constexpr Gas air = {1.23f, 0.025f, 1008.0f, 1.76e-5f};
    for (int i = 0; i < 20000; ++i) {
        const float tilt = random.real(0.0, 3.1416), d = random.real(0.001, 0.3);
        const float e1 = random.real(0.02, 1.0), e2 = random.real(0.02, 1.0);
        const Gas gas = {random.real(0.2, 4.0), random.real(0.005, 0.1), random.real(200.0, 5000.0),
                         random.real(1e-5, 3e-5)};
        const double in_gas = reference(tilt, d, e1, e2, gas);
        const double in_air = reference(tilt, d, e1, e2, air);
        const double of_wall = std::max(0.1, reference(1.57, d, 0.85, 0.86, air));
        ASSERT_NEAR(filled(tilt, d, e1, e2, gas), in_gas, 2e-6 * in_gas) << tilt << ' ' << d;
        ASSERT_NEAR(lib::TPRCA2(tilt, d, e1, e2), in_air, 2e-6 * in_air) << tilt << ' ' << d;
        ASSERT_NEAR(lib::TPRCAV(d), of_wall, 2e-6 * of_wall) << d;
    }
}

TEST(Cavity, GuardsAndTheJumpToRestingAir) {
    for (const float tilt : {-0.01f, 3.1417f})
        EXPECT_EQ(lib::TPRCA2(tilt, 0.02f, 0.9f, 0.9f), 0.0f) << tilt;
    EXPECT_EQ(lib::TPRCA2(1.0f, 0.00099f, 0.9f, 0.9f), 0.0f);
    EXPECT_EQ(lib::TPRCAV(0.00099f), 0.1f) << "the floor, for a missing cavity too";
    EXPECT_GT(lib::TPRCA2(3.1416f, 0.001f, 0.9f, 0.9f), 0.0f);
    EXPECT_GT(lib::TPRCA2(1.59f, 0.3f, 0.9f, 0.9f),
              1.4f * lib::TPRCA2(std::nextafter(1.59f, 0.0f), 0.3f, 0.9f, 0.9f));
}

struct Window {
    std::int32_t n = 3;
    std::array<std::int32_t, 3> kind = {1, 1, 1};
    std::array<float, 3> e = {0.9f, 0.5f, 0.2f};
    float d1 = 0.012f, d2 = 0.02f;
    std::int32_t outer_type = kOutside;
};

// Admittance and its lead, decrement factor and its lag, surface factor and its lag, U.
std::array<float, 7> parameters(const Window& w) {
    return quorvel::test::results<7>(lib::TPWNDO, w.n, w.kind[0], w.e[0], w.kind[1], w.e[1],
                                     w.kind[2], w.e[2], w.d1, w.d2, w.outer_type, 3, kVertical,
                                     static_cast<const float*>(nullptr));
}

TEST(Window, CavitiesByNumberAndKindOfPanes) {
    const Window w;
    const auto between = [&](std::size_t in, std::size_t out, float d) {
        return lib::TPRCA2(kVertical, d, w.e[in - 1], w.e[out - 1]);
    };
    const float first = between(1, 2, w.d1), second = between(2, 3, w.d2);
    struct {
        std::int32_t n;
        std::array<std::int32_t, 3> kinds;
        std::size_t outermost;
        float cavities;
        const char* why;
    } const cases[] = {
        {1, {1, 1, 1}, 1, 0.0f, "single"},
        {2, {1, 1, 1}, 2, first, "double; the third kind is not looked at"},
        {2, {1, 2, 1}, 2, 0.0f, "double with an open pane"},
        {3, {1, 1, 1}, 3, first + second, "triple"},
        {3, {2, 1, 1}, 3, second, "inner pane open"},
        {3, {1, 2, 1}, 3, between(1, 3, w.d1 + w.d2), "middle pane open: one wide cavity"},
        {3, {1, 1, 2}, 3, first, "outer pane open"},
        {3, {2, 2, 1}, 3, 0.0f, "two open panes"},
        {3, {0, 2, 1}, 3, first + second, "kinds enter by their sum"},
        {0, {1, 1, 1}, 3, 0.0f, "no such number of panes"},
    };
    const float inside = lib::TPRSU2(kInside, kVertical, 3, w.e[0]);
    for (const auto& row : cases)
        for (const std::int32_t outer_type : {kOutside, kInside, 3}) {
            const float outside = lib::TPRSU2(outer_type, kVertical, 3, w.e[row.outermost - 1]);
            const auto [y, lead, f, f_lag, s, s_lag, u] =
                parameters({.n = row.n, .kind = row.kinds, .outer_type = outer_type});
            EXPECT_FLOAT_EQ(1.0f / u, inside + outside + row.cavities) << row.why;
            EXPECT_TRUE(y == u && f == 1.0f && lead == 0.0f && f_lag == 0.0f && s_lag == 0.0f);
            EXPECT_NEAR(s, (outside + row.cavities) * u, 2e-7f) << row.why;
        }
    EXPECT_EQ(parameters({.e = {0.9f, 0.9f, 0.9f}, .d1 = 0.0f, .d2 = 0.0005f}),
              parameters({.n = 1, .e = {0.9f, 0.9f, 0.9f}}))
        << "panes that touch";
}

}  // namespace
