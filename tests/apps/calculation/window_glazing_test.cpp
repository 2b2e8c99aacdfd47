// Glazing units and blinds against the standards that rate them.
#include <gtest/gtest.h>

#include "calculation/window/cavity.h"
#include "window_units.h"

namespace quorvel::window {
namespace {

class GlazingTest : public testing::Test {
  protected:
    static void SetUpTestSuite() { host::load_library(); }
};
using UValue = GlazingTest;
using Gains = GlazingTest;
using Blinds = GlazingTest;

const Pane glass = clear(4, 0.82), low_e = coated(0.60, 0.29, 0.24, 0.04);

Gas mixed(const Gas& a, const Gas& b, double share) {
    Gas gas = a;
    for (std::size_t i = 0; i < 4; ++i) {
        gas.conductivity[i] = share * a.conductivity[i] + (1 - share) * b.conductivity[i];
        gas.density[i] = share * a.density[i] + (1 - share) * b.density[i];
        gas.viscosity[i] = share * a.viscosity[i] + (1 - share) * b.viscosity[i];
    }
    gas.specific_heat = share * a.specific_heat + (1 - share) * b.specific_heat;
    return gas;
}

// The table of glazing units in EN ISO 10077-1, worked out by EN 673 and printed with one decimal;
// fillings are nine tenths gas.
TEST_F(UValue, OfUsualUnitsAsTheStandardPrintsThem) {
    const Gas filling = mixed(argon, air, 0.9);
    const Pane low_e = coated(0.60, 0.29, 0.24, 0.05),
               outer_low_e{"", 4, 0.60, {0.24, 0.29}, {plain_emissivity, 0.05}};
    const struct {
        Unit unit;
        double expected;
    } cases[] = {
        {unit({glass}, air, 0), 5.8},
        {unit({glass, glass}, air, 6), 3.3},
        {unit({glass, glass}, air, 8), 3.1},
        {unit({glass, glass}, air, 12), 2.8},
        {unit({glass, glass}, air, 16), 2.7},
        {unit({glass, low_e}, air, 6), 2.5},
        {unit({glass, low_e}, air, 8), 2.1},
        {unit({glass, low_e}, air, 12), 1.7},
        {unit({glass, low_e}, air, 16), 1.4},
        {unit({glass, low_e}, filling, 12), 1.3},
        {unit({glass, low_e}, filling, 16), 1.2},
        {unit({glass, glass, glass}, air, 12), 1.9},
        {unit({outer_low_e, glass, low_e}, filling, 12), 0.7},
    };
    for (const auto& [unit, expected] : cases)
        EXPECT_NEAR(u_value(unit, 90), expected, 0.06) << expected;
}

// Heat that rises through a roof window is carried by the gas too. By hand, with 0.16 Ra^0.28 in
// a level gap, 0.10 Ra^0.31 at 45 degrees and 0.035 Ra^0.38 in an upright one.
TEST_F(UValue, GrowsWithTheSlope) {
    const Unit argon_unit = unit({glass, low_e}, argon, 16);
    for (const auto& [tilt, expected] :
         {std::pair{0, 1.654}, {30, 1.544}, {45, 1.453}, {90, 1.098}})
        EXPECT_NEAR(u_value(argon_unit, tilt), expected, 0.002) << tilt;
    EXPECT_NEAR(u_value(argon_unit, 89.99), u_value(argon_unit, 90), 0.001);
}

// Solar heat gain coefficients at the centre of the glass, ASHRAE Handbook of Fundamentals,
// Fenestration.
TEST_F(Gains, OfUncoatedUnitsAsAshraePrintsThem) {
    const Pane three = clear(3, 0.834), six = clear(6, 0.771), bronze = clear(6, 0.482);
    const struct {
        Unit unit;
        double transmittance, g;
    } cases[] = {
        {unit({three}, air, 0), 0.83, 0.86},
        {unit({six}, air, 0), 0.77, 0.81},
        {unit({bronze}, air, 0), 0.48, 0.62},
        {unit({three, three}, air, 12.7), 0.70, 0.76},
        {unit({six, six}, air, 12.7), 0.61, 0.70},
        {unit({bronze, six}, air, 12.7), 0.38, 0.49},
        {unit({three, three, three}, air, 12.7), 0.60, 0.68},
    };
    for (const auto& [unit, transmittance, g] : cases) {
        const Panes panes(unit, {}, 90);
        const Passage normal = panes.direct(0, 0);
        EXPECT_NEAR(normal.transmitted, transmittance, 0.015);
        EXPECT_NEAR(panes.rated_gain(normal), g, 0.02) << "of transmittance " << transmittance;
    }
}

// EN 410 for two panes: the outer one loses most of what it absorbs.
TEST_F(Gains, OfTwoPanesByTheFormulaOfEn410) {
    for (const double width : {8.0, 16.0}) {
        const Unit pair = unit({glass, low_e}, argon, width);
        const Panes panes(pair, {}, 90);
        const Passage normal = panes.direct(0, 0);
        const double total = u_value(pair, 90);
        const double between = 1 / (1 / total - 1 / 25.0 - 1 / 7.7 - 0.008);
        constexpr double he = 23, hi = 8;
        const double secondary =
            ((normal.absorbed[0] + normal.absorbed[1]) / he + normal.absorbed[1] / between) /
            (1 / hi + 1 / he + 1 / between);
        EXPECT_NEAR(panes.rated_gain(normal), normal.transmitted + secondary, 0.012) << width;
    }
}

// What EN 13363-1 says of a blind outside, inside and between the panes, from the properties of the
// unit and the blind alone, with closed gaps but for the blind inside. Its simplified result lies
// by its own words between 0.02 below and 0.10 above an exact one. Between panes it knows no
// coating.
TEST_F(Blinds, AreWithinWhatTheSimplifiedMethodClaims) {
    constexpr double G1 = 5, G2_outside = 10, G2_inside = 30, G3 = 3;
    const Unit units[] = {unit({clear(4, 0.82)}, air, 0), unit({glass, glass}, air, 16),
                          unit({glass, low_e}, argon, 16)};
    struct Fabrics {
        double transmittance, reflectance;
    };
    for (const Unit& glazing : units) {
        const Panes bare(glazing, {}, 90);
        const double U = u_value(glazing, 90), g = bare.rated_gain(bare.direct(0, 0));
        for (const auto [t, r] :
             {Fabrics{0.1, 0.7}, {0.2, 0.5}, {0.3, 0.6}, {0.05, 0.3}, {0.3, 0.1}}) {
            const double a = 1 - t - r;
            const auto rated = [&](BlindPlace place) {
                Blind blind = roller(place, t, r);
                blind.sealed = place == BlindPlace::outside;
                const Panes panes(glazing, blind, 90);
                return panes.rated_gain(panes.direct(0, 0));
            };
            const auto expect = [&](BlindPlace place, double simplified) {
                const double exact = rated(place);
                EXPECT_GT(simplified, exact - 0.02)
                    << "U " << U << " t " << t << " r " << r << " place " << int(place);
                EXPECT_LT(simplified, exact + 0.10)
                    << "U " << U << " t " << t << " r " << r << " place " << int(place);
            };
            const double G_out = 1 / (1 / U + 1 / G1 + 1 / G2_outside),
                         G_in = 1 / (1 / U + 1 / G2_inside);
            expect(BlindPlace::outside, t * g + a * G_out / G2_outside + t * (1 - g) * G_out / G1);
            expect(BlindPlace::inside, g * (1 - g * r - a * G_in / G2_inside));
            if (glazing.panes.size() < 2 || !glazing.panes[1].is_plain()) continue;
            const double G_between = 1 / (1 / U + 1 / G3);
            expect(BlindPlace::between, g * t + g * (a + (1 - g) * r) * G_between / G3);
        }
    }
}

TEST_F(Blinds, OutsideKeepOutMoreThanBetweenAndThatMoreThanInside) {
    const Unit glazing = unit({glass, low_e}, argon, 16);
    for (const bool slats : {false, true}) {
        const auto g = [&](BlindPlace place) {
            const Panes panes(glazing, slats ? slatted(place, 45, 0.4) : roller(place, 0.1, 0.5),
                              90);
            return panes.rated_gain(panes.direct(0, 0));
        };
        EXPECT_LT(g(BlindPlace::outside), 0.6 * g(BlindPlace::between));
        EXPECT_LT(g(BlindPlace::between), g(BlindPlace::inside));
    }
}

}  // namespace
}  // namespace quorvel::window
