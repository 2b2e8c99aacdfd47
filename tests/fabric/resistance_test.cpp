// Surface and cavity resistances, and the glazings made of them.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "conformance/random_arguments.h"
#include "quorvel/library.h"

namespace {

constexpr std::int32_t kOutside = 1, kInside = 2;
constexpr float kUp = 0.0f, kVertical = 1.5707964f, kDown = 3.1415927f;

TEST(Surface, OfCustomaryEmissivity) {
    for (const std::int32_t type : {kOutside, kInside})
        for (const std::int32_t exposure : {1, 2, 3})
            for (const float tilt : {kUp, kVertical, kDown})
                EXPECT_NEAR(lib::TPRSU2(type, tilt, exposure, 0.9f),
                            lib::TPRSUR(type, tilt, exposure), 2e-8f);
    EXPECT_FLOAT_EQ(lib::TPRSUR(kInside, kVertical, 1), 1.0f / 8.23f);
}

// Each of radiation, wind and the tilt of an outside surface adds its own coefficient.
TEST(Surface, CoefficientsAddUp) {
    const auto coefficient = [](std::int32_t exposure, float theta, float emissivity) {
        return 1.0 / double{lib::TPRSU2(kOutside, theta, exposure, emissivity)};
    };
    struct {
        std::int32_t exposure;
        double wind, tilt;
    } const exposures[] = {{1, 4.3, 1.3}, {2, 9.1, 2.8}, {3, 20.7, 6.1}};
    for (const auto& [exposure, wind, tilt] : exposures)
        for (const float emissivity : {0.0f, 0.05f, 0.9f, 1.0f}) {
            const double sheltered_side = wind + 5.1 * double{emissivity};
            EXPECT_NEAR(coefficient(exposure, kDown, emissivity), sheltered_side, 1e-5);
            EXPECT_NEAR(coefficient(exposure, kVertical, emissivity), sheltered_side + tilt, 1e-5);
            EXPECT_NEAR(coefficient(exposure, kUp, emissivity), sheltered_side + 4.0 * tilt, 1e-5);
            EXPECT_NEAR(1.0 / double{lib::TPRSU2(kInside, kDown, exposure, emissivity)},
                        1.8 + 5.7 * double{emissivity}, 2e-6);
        }
}

TEST(Surface, SelectorsOutsideTheirRange) {
    EXPECT_EQ(lib::TPRSUR(3, kVertical, 2), 0.0f);
    EXPECT_EQ(lib::TPRSU2(0, kVertical, 2, 0.9f), 0.0f);
    for (const std::int32_t exposure : {0, 4})
        EXPECT_EQ(lib::TPRSUR(kOutside, kUp, exposure),
                  lib::TPRSUR(kOutside, kUp, exposure < 1 ? 1 : 3));
}

struct Gas {
    float density, conductivity, specific_heat, viscosity;
};

// EN 673, gases at 10 °C
constexpr Gas kAir = {1.232f, 0.02496f, 1008.0f, 1.761e-5f};
constexpr Gas kArgon = {1.699f, 0.01684f, 519.0f, 2.164e-5f};

float filled(float theta, float d, float e1, float e2, const Gas& gas) {
    return lib::TPRCAX(theta, d, e1, e2, gas.density, gas.conductivity, gas.specific_heat,
                       gas.viscosity);
}

// The same cavity in double precision from Grashof and Prandtl numbers, its radiation as the
// exchange between parallel planes, its exponents as lines through the published points.
double reference(double theta, double d, double e1, double e2, const Gas& gas) {
    const double k = double{gas.conductivity}, mu = double{gas.viscosity};
    const double kinematic = mu / double{gas.density};
    const double grashof = 0.52 * d * d * d / (kinematic * kinematic);
    const double prandtl = mu * double{gas.specific_heat} / k;
    double nusselt = 1.0;
    if (theta < 1.59) {
        const double steep = std::max(0.0, theta - 0.785), flat = std::min(theta, 0.785);
        const double C = 0.16 - 0.06 * flat / 0.785 - 0.065 * steep / 0.785;
        const double n = 0.28 + 0.03 * flat / 0.785 + 0.07 * steep / 0.785;
        nusselt = std::max(1.0, C * std::pow(grashof * prandtl, n));
    }
    return 1.0 / (5.14 / (1.0 / e1 + 1.0 / e2 - 1.0) + nusselt * k / d);
}

TEST(Cavity, AgreesWithTheCorrelationInDoublePrecision) {
    quorvel::conformance::Random random(41);
    constexpr Gas assumed = {1.23f, 0.025f, 1008.0f, 1.76e-5f};
    for (int i = 0; i < 20000; ++i) {
        const float theta = random.real(0.0, 3.1416), d = random.real(0.001, 0.3);
        const float e1 = random.real(0.02, 1.0), e2 = random.real(0.02, 1.0);
        const Gas gas = {random.real(0.2, 4.0), random.real(0.005, 0.1), random.real(200.0, 5000.0),
                         random.real(1e-5, 3e-5)};
        const double in_gas = reference(theta, d, e1, e2, gas);
        const double in_air = reference(theta, d, e1, e2, assumed);
        ASSERT_NEAR(filled(theta, d, e1, e2, gas), in_gas, 2e-6 * in_gas) << theta << ' ' << d;
        ASSERT_NEAR(lib::TPRCA2(theta, d, e1, e2), in_air, 2e-6 * in_air) << theta << ' ' << d;
    }
}

// Glazing units of 4 mm panes as their makers publish them to EN 673: clear glass has an emissivity
// of 0.837, the surfaces 0.13 and 0.04 m²K/W, each pane 0.004.
TEST(Cavity, AgreesWithPublishedGlazingUnits) {
    constexpr float clear = 0.837f, coated = 0.03f;
    struct {
        int cavities;
        float width, emissivity;
        Gas gas;
        float u;
        const char* unit;
    } const published[] = {
        {1, 0.012f, clear, kAir, 2.9f, "4-12-4"},
        {1, 0.016f, clear, kAir, 2.7f, "4-16-4"},
        {1, 0.016f, clear, kArgon, 2.6f, "4-16 argon-4"},
        {1, 0.016f, coated, kArgon, 1.1f, "4-16 argon-4 coated"},
        {2, 0.012f, coated, kArgon, 0.7f, "4-12 argon-4-12 argon-4 coated twice"},
    };
    for (const auto& row : published) {
        const auto n = static_cast<float>(row.cavities);
        const float cavity = filled(kVertical, row.width, row.emissivity, clear, row.gas);
        EXPECT_NEAR(1.0f / (0.17f + 0.004f * (n + 1.0f) + n * cavity), row.u, 0.06f) << row.unit;
    }
}

TEST(Cavity, GuardsAndTheJumpToRestingAir) {
    for (const float theta : {-0.01f, 3.1417f})
        EXPECT_EQ(lib::TPRCA2(theta, 0.02f, 0.9f, 0.9f), 0.0f) << theta;
    EXPECT_EQ(lib::TPRCA2(1.0f, 0.00099f, 0.9f, 0.9f), 0.0f);
    EXPECT_EQ(filled(1.0f, 0.00099f, 0.9f, 0.9f, kArgon), 0.0f);
    EXPECT_GT(lib::TPRCA2(3.1416f, 0.001f, 0.9f, 0.9f), 0.0f);

    const float convecting = lib::TPRCA2(std::nextafter(1.59f, 0.0f), 0.3f, 0.9f, 0.9f);
    const float resting = lib::TPRCA2(1.59f, 0.3f, 0.9f, 0.9f);
    EXPECT_FLOAT_EQ(resting, lib::TPRCA2(2.0f, 0.3f, 0.9f, 0.9f));
    EXPECT_GT(resting, 1.4f * convecting);
    const float below = lib::TPRCA2(0.785f, 0.3f, 0.9f, 0.9f);
    EXPECT_NEAR(lib::TPRCA2(std::nextafter(0.785f, 1.0f), 0.3f, 0.9f, 0.9f), below, 1e-7f);
}

TEST(Cavity, TheVerticalOneHasAFloor) {
    for (float d = 0.001f; d < 0.2f; d += 0.0005f)
        EXPECT_NEAR(lib::TPRCAV(d), std::fmax(0.1f, lib::TPRCA2(1.57f, d, 0.85f, 0.86f)), 5e-8f)
            << d;
    EXPECT_EQ(lib::TPRCAV(0.002f), 0.1f);
    EXPECT_GT(lib::TPRCAV(0.02f), 0.15f);
}

struct Window {
    std::int32_t n = 3;
    std::array<std::int32_t, 3> kind = {1, 1, 1};
    std::array<float, 3> e = {0.9f, 0.5f, 0.2f};
    float d1 = 0.012f, d2 = 0.02f;
    std::int32_t outer_type = kOutside;
};

// Admittance and its lead, decrement factor and its lag, surface factor and its lag, U.
std::array<float, 7> parameters(const Window& window) {
    std::array<float, 7> out;
    const auto& [n, kind, e, d1, d2, outer_type] = window;
    lib::TPWNDO(n, kind[0], e[0], kind[1], e[1], kind[2], e[2], d1, d2, outer_type, 3, kVertical,
                static_cast<const float*>(nullptr), out[0], out[1], out[2], out[3], out[4], out[5],
                out[6]);
    return out;
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
    for (const auto& row : cases) {
        const float outside = lib::TPRSU2(kOutside, kVertical, 3, w.e[row.outermost - 1]);
        const auto [y, lead, f, f_lag, s, s_lag, u] = parameters({.n = row.n, .kind = row.kinds});
        EXPECT_FLOAT_EQ(1.0f / u, inside + outside + row.cavities) << row.n << ' ' << row.why;
        EXPECT_EQ(y, u) << row.why;
        EXPECT_TRUE(f == 1.0f && lead == 0.0f && f_lag == 0.0f && s_lag == 0.0f) << row.why;
        EXPECT_FLOAT_EQ(s, (outside + row.cavities) * u) << row.n << ' ' << row.why;
    }
}

TEST(Window, OuterFaceAndCavitiesThatAreNone) {
    const Window plain = {.n = 1, .e = {0.9f, 0.9f, 0.9f}};
    EXPECT_NEAR(parameters(plain).back(), 6.7f, 0.2f) << "single glazing, severe exposure";
    Window indoors = plain;
    indoors.outer_type = kInside;
    EXPECT_FLOAT_EQ(parameters(indoors).back(), 8.23f / 2.0f);
    indoors.outer_type = 3;
    EXPECT_FLOAT_EQ(parameters(indoors).back(), 8.23f);
    EXPECT_EQ(parameters(indoors)[4], 0.0f) << "all of it across the inside surface";
    const Window touching = {.n = 3, .e = plain.e, .d1 = 0.0f, .d2 = 0.0005f};
    EXPECT_EQ(parameters(touching), parameters(plain));
}

}  // namespace
