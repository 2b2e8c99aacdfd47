// What becomes of the sun's radiation between panes and blind, against single photons that are
// followed one by one.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

#include "calculation/angle.h"
#include "quorvel/glazing.h"
#include "window_units.h"

namespace quorvel::window {
namespace {

class Optics : public testing::Test {
  protected:
    static void SetUpTestSuite() { host::load_library(); }
};

constexpr int photons = 200000;
constexpr double four_sigma = 4 * 0.5 / 447;  // of a share of so many

struct Sheet {
    Layer direct[2], diffuse;  // by polarisation; scattering sheets are met in `blind`
    const Screen* blind = nullptr;
};

Layer pane_layer(double t, double front, double back) { return {t, front, t, back}; }

Sheet sheet(const Pane& pane, double incidence) {
    const auto outside = lib::glass_direct(pane.transmittance, pane.reflectance[0], incidence);
    const auto inside = lib::glass_direct(pane.transmittance, pane.reflectance[1], incidence);
    const auto scattered = lib::glass_diffuse(pane.transmittance, pane.reflectance[0]);
    const auto scattered_back = lib::glass_diffuse(pane.transmittance, pane.reflectance[1]);
    return {{pane_layer(outside.parallel_transmittance, outside.parallel_reflectance,
                        inside.parallel_reflectance),
             pane_layer(outside.perpendicular_transmittance, outside.perpendicular_reflectance,
                        inside.perpendicular_reflectance)},
            {scattered.transmittance, 1 - scattered.transmittance - scattered.absorptance,
             scattered_back.transmittance,
             1 - scattered_back.transmittance - scattered_back.absorptance}};
}

Passage followed(const std::vector<Sheet>& sheets) {
    std::mt19937 source(1);
    std::uniform_real_distribution<double> chance;
    std::vector<int> absorbed(sheets.size());
    int through = 0;
    for (int i = 0; i < photons; ++i) {
        const int polarisation = i % 2;
        bool inwards = true, scattered = false;
        int gap = 0;  // before the sheet of this number
        while (gap > 0 || inwards) {
            if (gap == static_cast<int>(sheets.size()) && inwards) break;
            const int k = inwards ? gap : gap - 1;
            const Sheet& met = sheets[static_cast<std::size_t>(k)];
            double dice = chance(source);
            const bool at_blind = met.blind && !scattered;
            if (at_blind) {
                const double straight = inwards ? met.blind->straight : met.blind->straight_back;
                if (dice < straight) {
                    gap += inwards ? 1 : -1;
                    continue;
                }
                dice -= straight;
                scattered = true;
            }
            const Layer& layer = at_blind    ? met.blind->scattered
                                 : scattered ? met.diffuse
                                             : met.direct[polarisation];
            const double t = inwards ? layer.front_transmittance : layer.back_transmittance;
            const double r = inwards ? layer.front_reflectance : layer.back_reflectance;
            if (dice < t) {
                gap += inwards ? 1 : -1;
            } else if (dice < t + r) {
                inwards = !inwards;
            } else {
                ++absorbed[static_cast<std::size_t>(k)];
                gap = -1;
                inwards = false;
                break;
            }
        }
        through += gap == static_cast<int>(sheets.size());
    }
    Passage passage;
    passage.transmitted = static_cast<double>(through) / photons;
    for (std::size_t k = 0; k < sheets.size(); ++k)
        passage.absorbed[k] = static_cast<double>(absorbed[k]) / photons;
    return passage;
}

TEST_F(Optics, IsThatOfSinglePhotons) {
    const Pane glass = clear(4, 0.82), mirror = coated(0.37, 0.40, 0.30, 0.03),
               low_e = coated(0.60, 0.29, 0.24, 0.04);
    const Unit units[] = {unit({glass}, air, 0), unit({glass, low_e}, argon, 16),
                          unit({mirror, glass, low_e}, argon, 12)};
    Blind dense = roller(BlindPlace::inside, 0.3, 0.5);
    std::get<Fabric>(dense.make).openness = 0.1;
    for (const Unit& glazing : units)
        for (const BlindPlace place :
             {BlindPlace::outside, BlindPlace::inside, BlindPlace::between})
            for (Blind blind : {dense, slatted(place, 30, 0.4), slatted(place, -20, 0.1, 15)}) {
                blind.place = place;
                if (place == BlindPlace::between && glazing.panes.size() < 2) continue;
                constexpr double incidence = 0.9, profile = 0.6;
                std::vector<Sheet> sheets;
                for (const Pane& pane : glazing.panes) sheets.push_back(sheet(pane, incidence));
                const Screen screen = in_direct_sun(blind, profile);
                const Layer scattered = in_scattered_radiation(blind);
                sheets.insert(sheets.begin() + static_cast<std::ptrdiff_t>(
                                                   blind.place_among(glazing.panes.size())),
                              {{}, scattered, &screen});
                const Passage expected = followed(sheets),
                              got = Panes(glazing, blind, 90).direct(incidence, profile);
                EXPECT_NEAR(got.transmitted, expected.transmitted, four_sigma);
                for (std::size_t k = 0; k < sheets.size(); ++k)
                    EXPECT_NEAR(got.absorbed[k], expected.absorbed[k], four_sigma) << "layer " << k;
            }
}

// Black slats send nothing back: what passes is the gap between them.
TEST_F(Optics, OfBlackSlatsIsGeometry) {
    for (const double angle : {0.0, 40.0, -35.0})
        for (const double profile : {0.1, 0.5, 0.9}) {
            const Screen screen = in_direct_sun(slatted(BlindPlace::outside, angle, 1), profile);
            const double turned = profile + host::radians(angle);
            const double gap =
                std::max(0.0, 1 - 25 * std::fabs(std::sin(turned)) / (20 * std::cos(profile)));
            EXPECT_NEAR(screen.straight, gap, 1e-3);
            EXPECT_NEAR(screen.scattered.front_transmittance, 0, 2e-3);
            EXPECT_NEAR(screen.scattered.front_absorptance() - screen.straight, 1 - gap, 2e-3);
        }
}

// Lowered outer edges bar the sky and let the ground in, raised ones the other way; a level window
// has sky on either side of its slats.
TEST_F(Optics, OfSlatsTellsSkyFromGround) {
    const Unit glazing = unit({clear(4, 0.82)}, air, 0);
    const auto panes = [&](double angle, double tilt) {
        return Panes(glazing, slatted(BlindPlace::outside, angle, 0.5), tilt);
    };
    EXPECT_LT(panes(50, 90).from_sky().transmitted, 0.7 * panes(50, 90).from_ground().transmitted);
    EXPECT_NEAR(panes(50, 90).from_sky().transmitted, panes(-50, 90).from_ground().transmitted,
                1e-3);
    EXPECT_NEAR(panes(50, 0).from_sky().transmitted, panes(-50, 0).from_sky().transmitted, 1e-3);
}

// No more leaves than arrives, whatever the layers; bright mirrors and slats with unlike faces
// included.
TEST_F(Optics, KeepsTheBalance) {
    const Pane mirror = coated(0.5, 0.5, 0.5, 0.9);
    Blind unlike = slatted(BlindPlace::outside, 0, 0.9, 80);
    unlike.make = Slats{10, 80, 60, 0.9, 0.1};
    for (const Blind& blind :
         {roller(BlindPlace::inside, 0, 1), roller(BlindPlace::outside, 0.9, 0.1), unlike,
          slatted(BlindPlace::between, 0, 0)})
        for (const double incidence : {0.0, 0.7, 1.4, host::right_angle})
            for (const double profile : {-0.8, 0.0, 0.8}) {
                const Panes panes(unit({mirror, mirror}, air, 40), blind, 90);
                const Passage all = panes.direct(incidence, profile);
                EXPECT_LE(all.transmitted + all.absorbed_total(), 1 + 1e-6);
                for (const double part : all.absorbed) EXPECT_GE(part, 0);
            }
}

}  // namespace
}  // namespace quorvel::window
