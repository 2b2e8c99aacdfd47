// What must hold of an element whatever it is worked out with.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>
#include <numeric>
#include <random>

#include "calculation/wall/assessment.h"
#include "quorvel/library.h"

namespace quorvel::wall {
namespace {

class Walls : public testing::Test {
  protected:
    static void SetUpTestSuite() { host::load_library(); }
};
using Transmittances = Walls;
using DailySwing = Walls;
using WetYear = Walls;
using InsideSurface = Walls;

Layer homogeneous(double thickness, const Make& make) { return {"", thickness, {{"", 1, make}}}; }
Layer membrane(double vapour_resistance) { return homogeneous(0, Membrane{vapour_resistance}); }

Layer brick(double thickness) { return homogeneous(thickness, Solid{0.77, 1700, 1000, 50}); }
Layer wool(double thickness) { return homogeneous(thickness, Solid{0.04, 20, 1030, 5}); }
Layer board(double thickness) { return homogeneous(thickness, Solid{0.25, 900, 1000, 50}); }
Layer felt(double thickness) { return homogeneous(thickness, Solid{0.23, 1100, 1000, 250000}); }

Element element(std::vector<Layer> layers) {
    Element element;
    element.inside_resistance = 0.13;
    element.outside_resistance = 0.04;
    element.layers = std::move(layers);
    return element;
}

std::vector<Climate> temperate(double inside_humidity) {
    std::vector<Climate> year;
    for (int m = 0; m < 12; ++m) {
        const double season = std::cos(2 * std::numbers::pi * m / 12);
        year.push_back({{20, inside_humidity}, {9 - 10 * season, 77 + 8 * season}});
    }
    return year;
}

Year year_of(const Element& element, const std::vector<Climate>& climates) {
    return year(path(sections(element).front(), surface_resistances(element)), climates);
}

std::vector<Element> random_elements(int count) {
    std::minstd_rand random(5);
    const auto between = [&](double low, double high) {
        return std::lerp(low, high, static_cast<double>(random()) / std::minstd_rand::max());
    };
    std::vector<Element> elements;
    while (count-- > 0) {
        std::vector<Layer> layers;
        for (int i = 0; i < 5; ++i)
            layers.push_back(
                i == 2 ? membrane(between(0.5, 200))
                       : homogeneous(between(0.01, 0.2), Solid{between(0.03, 2), between(20, 2400),
                                                               1000, 5 * std::exp(between(0, 6))}));
        elements.push_back(element(layers));
    }
    return elements;
}

TEST_F(Transmittances, TimberFrameByHand) {
    Layer frame{
        "",
        0.14,
        {{"stud", 0.15, Solid{0.13, 500, 1600, 250}}, {"wool", 0.85, Solid{0.038, 20, 1030, 5}}}};
    const Element wall =
        element({board(0.0125), frame, homogeneous(0.009, Solid{0.13, 650, 1700, 250}),
                 homogeneous(0.05, Gap{0.18, {}}), brick(0.1025)});
    const Transmittance t = transmittance(wall, sections(wall), surface_resistances(wall));
    EXPECT_NEAR(t.upper, 3.4767, 5e-4);  // 1 / (0.85 / 4.2865 + 0.15 / 1.6792)
    EXPECT_NEAR(t.lower, 3.3050, 5e-4);  // 0.6023 + 1 / (0.85 / 3.6842 + 0.15 / 1.0769)
    EXPECT_NEAR(t.u_value, 0.2949, 5e-5);
    EXPECT_NEAR(t.error, 2.53, 0.01);
}

TEST_F(Transmittances, CorrectionsByHand) {
    Element wall = element({brick(0.2), wool(0.1)});
    const double plain = 1 / (0.17 + 0.2 / 0.77 + 2.5);
    wall.layers[1].fasteners = Fasteners{50, 12.6e-6, 5};
    wall.layers[1].air_voids = 1;
    const double share = std::pow(2.5 * plain, 2);
    const Transmittance t = transmittance(wall, sections(wall), surface_resistances(wall));
    EXPECT_NEAR(t.u_value, plain + 0.01 * share + 0.8 * 50 * 12.6e-6 * 5 / 0.1 * share, 1e-12);
}

TEST_F(Transmittances, SectionsCrossUnlessInLine) {
    const Layer frame{
        "",
        0.1,
        {{"stud", 0.1, Solid{0.13, 500, 1600, 250}}, {"wool", 0.9, Solid{0.04, 20, 1030, 5}}}};
    Element wall = element({frame, board(0.01), frame});
    const auto fractions = [&] {
        std::vector<double> result;
        for (const Section& section : sections(wall))
            result.push_back(std::round(section.fraction * 1e6) / 1e6);
        return result;
    };
    EXPECT_EQ(fractions(), (std::vector{0.81, 0.09, 0.09, 0.01}));
    const double crossed = transmittance(wall, sections(wall), surface_resistances(wall)).u_value;
    wall.layers[2].in_line = true;
    EXPECT_EQ(fractions(), (std::vector{0.9, 0.1}));
    EXPECT_GT(transmittance(wall, sections(wall), surface_resistances(wall)).u_value, crossed);
    wall.layers.assign(7, frame);
    EXPECT_TRUE(sections(wall).empty());  // 2 to the 7th are too many
}

// The heat balance of thin slices, each with its capacity, under a swing of 1 K in 24 hours on one
// side: the flows into the element at both surfaces.
std::array<std::complex<double>, 2> swing(const Element& element, double near, double far) {
    constexpr int slices = 400;  // a layer
    std::vector<double> resistance{near}, capacity;
    for (const Layer& layer : element.layers) {
        const auto& solid = std::get<Solid>(layer.parts[0].make);
        const double r = layer.thickness / solid.conductivity / slices;
        for (int i = 0; i < slices; ++i) {
            resistance.back() += r / 2;
            resistance.push_back(r / 2);
            capacity.push_back(solid.density * solid.specific_heat * layer.thickness / slices);
        }
    }
    resistance.back() += far;
    // From the far side: the admittance of all that lies behind a slice.
    std::complex<double> behind = 1 / resistance.back(), through = behind;
    for (std::size_t i = capacity.size(); i-- > 0;) {
        const std::complex<double> at =
            behind + std::complex(0.0, 2 * std::numbers::pi / 86400 * capacity[i]);
        behind = 1.0 / (resistance[i] + 1.0 / at);
        through *= behind / at;
    }
    return {behind, -through};
}

TEST_F(DailySwing, HeatBalanceOfThinSlices) {
    for (const Element& wall :
         {element({brick(0.22)}), element({board(0.0125), wool(0.1), brick(0.1)}),
          element({felt(0.005), wool(0.15), homogeneous(0.2, Solid{2.3, 2400, 1000, 400})})}) {
        Element turned = wall;
        std::ranges::reverse(turned.layers);
        const auto inside = swing(wall, 0.13, 0.04), outside = swing(turned, 0.04, 0.13);
        const Periodic p = periodic(wall, sections(wall), surface_resistances(wall));
        const double angular = 2 * std::numbers::pi / 86400;
        EXPECT_NEAR(p.admittance, std::abs(inside[0]), 2e-3);
        EXPECT_NEAR(p.outside_admittance, std::abs(outside[0]), 5e-3);
        EXPECT_NEAR(p.transmittance, std::abs(inside[1]), 2e-4);
        EXPECT_NEAR(std::abs(inside[1]), std::abs(outside[1]), 1e-9);
        EXPECT_NEAR(p.decrement_lag,
                    std::remainder(12 - std::arg(inside[1]) * 12 / std::numbers::pi, 24), 0.02);
        EXPECT_NEAR(p.inside_capacity / (std::abs(inside[0] + inside[1]) / angular), 1, 1e-3);
        EXPECT_NEAR(p.outside_capacity / (std::abs(outside[0] + outside[1]) / angular), 1, 1e-3);
    }
}

// Implicit steps of a quarter of a day, in each of which every place is either not wet or at
// saturation: an iteration that knows of no strings and no events.
std::vector<double> relaxed_year(const Path& path, const std::vector<Climate>& months,
                                 std::size_t first) {
    constexpr double day = 86400e3 / 1e9, step = 0.25;
    const std::size_t n = path.places.size();
    std::vector<double> content(n), told;
    for (std::size_t m = 0; m < 12; ++m) {
        const std::size_t month = (first + m) % 12;
        const Profile steady = profile(path, months[month]);
        std::vector<double> p = steady.pressure, conductance(n);
        for (std::size_t i = 1; i < n; ++i)
            conductance[i] =
                day / (path.places[i].vapour_resistance - path.places[i - 1].vapour_resistance);
        for (int s = 0; s < host::days_of_month[month] / step; ++s) {
            for (double change = 1; change > 1e-7;) {
                change = 0;
                for (std::size_t i = 1; i + 1 < n; ++i) {
                    const double free = (conductance[i] * p[i - 1] + conductance[i + 1] * p[i + 1] +
                                         content[i] / step) /
                                        (conductance[i] + conductance[i + 1]);
                    const double relaxed =
                        std::min(steady.saturation[i], p[i] + 1.6 * (free - p[i]));
                    change = std::max(change, std::fabs(relaxed - p[i]));
                    p[i] = relaxed;
                }
            }
            for (std::size_t i = 1; i + 1 < n; ++i)
                content[i] =
                    std::max(0.0, content[i] + step * (conductance[i] * (p[i - 1] - p[i]) -
                                                       conductance[i + 1] * (p[i] - p[i + 1])));
        }
        told.push_back(std::accumulate(content.begin(), content.end(), 0.0));
    }
    return told;
}

TEST_F(WetYear, AgreesWithRelaxationInShortSteps) {
    std::vector<Element> elements = random_elements(40);
    elements.push_back(element({board(0.0125), wool(0.06), brick(0.22)}));
    elements.push_back(element({board(0.0125), wool(0.05), membrane(20), wool(0.05), felt(0.005)}));
    int wet = 0;
    for (const Element& wall : elements) {
        const Path way = path(sections(wall).front(), surface_resistances(wall));
        const Year year = quorvel::wall::year(way, temperate(65));
        const auto expected = relaxed_year(way, temperate(65), year.months.front().month);
        for (std::size_t m = 0; m < 12; ++m)
            EXPECT_NEAR(year.months[m].content, expected[m], 0.1 + 0.002 * year.peak())
                << "month " << m;
        wet += !year.dry();
    }
    EXPECT_GE(wet, 20);
}

TEST_F(WetYear, WaterIsNeitherMadeNorLostNorNegative) {
    for (const Element& wall : random_elements(60)) {
        const Year year = year_of(wall, temperate(70));
        double balance = 0;
        for (std::size_t m = 0; m < 12; ++m) {
            const MonthOfYear& month = year.months[m];
            balance += month.condensed - month.evaporated;
            EXPECT_NEAR(balance, month.content, 1e-9 * (1 + month.content));
            EXPECT_TRUE(month.condensed >= 0 && month.evaporated >= 0 && month.content >= 0);
            for (const Deposit& deposit : year.deposits) EXPECT_GE(deposit.content[m], 0);
        }
        EXPECT_LE(year.left(), year.peak());
    }
}

TEST_F(WetYear, TurnedRoundInATurnedClimateItIsTheSame) {
    for (Element wall : random_elements(20)) {
        std::vector<Climate> climates = temperate(70);
        const Year one = year_of(wall, climates);
        const double u = transmittance(wall, sections(wall), surface_resistances(wall)).u_value;
        std::ranges::reverse(wall.layers);
        std::swap(wall.inside_resistance, wall.outside_resistance);
        for (Climate& climate : climates) std::swap(climate.inside, climate.outside);
        const Year other = year_of(wall, climates);
        EXPECT_NEAR(transmittance(wall, sections(wall), surface_resistances(wall)).u_value, u,
                    1e-12);
        EXPECT_NEAR(one.peak(), other.peak(), 0.02 + 1e-4 * one.peak());
        EXPECT_NEAR(one.left(), other.left(), 0.02 + 1e-4 * one.peak());
        EXPECT_EQ(one.deposits.size(), other.deposits.size());
    }
}

TEST_F(WetYear, DryAirWetsNothingAndATightRoofKeepsWhatItGets) {
    EXPECT_TRUE(year_of(element({wool(0.2), felt(0.01)}), temperate(20)).dry());
    const Year roof = year_of(element({board(0.01), wool(0.2), felt(0.01)}), temperate(60));
    EXPECT_FALSE(roof.dry());
    const Year tight = year_of(element({felt(0.01), wool(0.2), felt(0.01)}), temperate(90));
    EXPECT_FALSE(tight.dries());
    EXPECT_EQ(tight.dry_from, 12u);
    const Year wall = year_of(element({board(0.0125), wool(0.06), brick(0.22)}), temperate(60));
    EXPECT_TRUE(wall.dries() && wall.peak() > 100 && wall.dry_from < 12);
    EXPECT_GE(wall.months.front().month, 8u);  // begins in autumn
}

// One interface, out of EN ISO 13788's formulae by hand: brickwork behind wool, 1 °C and 85 %
// outside.
TEST_F(WetYear, OneMonthOfOneInterfaceByHand) {
    const Element wall = element({board(0.0125), wool(0.05), brick(0.22)});
    const Profile got =
        profile(path(sections(wall).front(), surface_resistances(wall)), {{20, 60}, {1, 85}});
    const auto magnus = [](double t) { return 610.5 * std::exp(17.269 * t / (237.3 + t)); };
    const double outer = 0.22 / 0.77 + 0.04, all = 0.13 + 0.05 + 1.25 + outer;
    const double at = magnus(1 + 19 * outer / all), sd_inside = 0.0125 * 10 + 0.05,
                 sd_outside = 0.22 * 10;
    const double rate = 2e-10 * ((0.6 * magnus(20) - at) / sd_inside -
                                 (at - 0.85 * magnus(1)) / sd_outside);  // kg/m²s
    EXPECT_NEAR(std::accumulate(got.gain.begin(), got.gain.end(), 0.0), rate * 86400e3,
                0.003 * rate * 86400e3);
}

TEST_F(InsideSurface, DemandOfTheUsualRoom) {
    const Element wall = element({brick(0.22)});
    const std::vector<Climate> cold{{{20, 50}, {-5, 80}}};
    const SurfaceYear year = surface_year(sections(wall), surface_resistances(wall), cold, {});
    EXPECT_NEAR(year.months[0].least_temperature, 12.6, 0.05);  // DIN 4108-2: 12.6 °C and 0.70
    EXPECT_NEAR(year.required, 0.70, 0.006);
    EXPECT_NEAR(year.factor, 1 - 0.25 / (0.25 + 0.22 / 0.77 + 0.04), 1e-12);
    EXPECT_TRUE(year.mould());
    EXPECT_GT(year.months[0].humidity, 80);
    const std::vector<Climate> warm{{{20, 50}, {25, 50}}};
    EXPECT_FALSE(surface_year(sections(wall), surface_resistances(wall), warm, {}).mould());
}

TEST_F(InsideSurface, HumidityClasses) {
    EXPECT_EQ(vapour_excess(3, -10), 810);
    EXPECT_EQ(vapour_excess(3, 0), 810);
    EXPECT_EQ(vapour_excess(2, 10), 270);
    EXPECT_EQ(vapour_excess(5, 20), 0);
    EXPECT_EQ(vapour_excess(1, 30), 0);
    EXPECT_NEAR(saturation_temperature(Air{12.6, 100}.vapour_pressure()), 12.6, 1e-4);
    EXPECT_EQ(air_of_pressure(10, 5000).humidity, 100);
}

}  // namespace
}  // namespace quorvel::wall
