#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "quorvel/fabric.h"

namespace {

TEST(UValue, AddsEachKindOfLayer) {
    // Plaster, block, air gap of 0.18 m²K/W, no layer, brick.
    const std::array<float, 5> thickness{0.013f, 0.1f, -1.0f, 0.0f, 0.105f};
    const std::array<float, 5> conductivity{0.5f, 0.19f, 0.18f, 99.0f, 0.84f};
    const double expected[] = {0.18, 0.206, 0.73231579, 0.91231579, 0.91231579, 1.03731579};
    for (int n = 0; n <= 5; ++n) {
        float U;
        lib::TPUVAL(thickness, conductivity, 0.12f, 0.06f, n, U);
        EXPECT_NEAR(1.0 / U, expected[n], 1e-6) << n;
    }
}

TEST(UValueAtTiltAndExposure, ExchangesTheSurfaceResistances) {
    const auto surfaces = [](float tilt, int exposure) {
        return double{lib::TPRSUR(1, tilt, exposure)} + double{lib::TPRSUR(2, tilt, exposure)};
    };
    for (float U : {0.15f, 0.6f, 2.0f, 5.0f})
        for (int exposure : {1, 2, 3})
            for (float tilt : {0.0f, 0.8f, 1.5708f, 3.1416f}) {
                const double body = 1.0 / U - surfaces(1.5708f, 2);
                EXPECT_NEAR(lib::TPUMOD(U, tilt, exposure), 1.0 / (body + surfaces(tilt, exposure)),
                            2e-6 * U);
            }
    for (float U : {0.0f, -2.0f}) EXPECT_EQ(lib::TPUMOD(U, 0.0f, 1), U);
}

// The published correlations: with little to drive it convection is laminar, with much turbulent.
TEST(NaturalConvection, TendsToItsLaminarAndTurbulentForms) {
    const struct {
        int kind;
        float laminar, turbulent;
    } cases[] = {{1, 1.40f, 1.63f}, {2, 1.50f, 1.23f}};
    for (const auto& [kind, laminar, turbulent] : cases) {
        EXPECT_NEAR(lib::TPHCON(0.01f, 0.01f, kind), laminar, 0.001f) << kind;
        EXPECT_NEAR(lib::TPHCON(1000.0f, 1e4f, kind), 10.0f * turbulent, 0.002f) << kind;
        const double both = std::pow(laminar * std::pow(4.0 / 2.5, 0.25), 6.0) +
                            std::pow(turbulent * std::cbrt(4.0), 6.0);
        EXPECT_NEAR(lib::TPHCON(-4.0f, 2.5f, kind), std::pow(both, 1.0 / 6.0), 0.001) << kind;
    }
    for (int kind : {0, 4}) EXPECT_EQ(lib::TPHCON(5.0f, 2.0f, kind), 0.0f);
}

}  // namespace
