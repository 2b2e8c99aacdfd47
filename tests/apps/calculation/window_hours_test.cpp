// Windows through days and years.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "calculation/angle.h"
#include "calculation/calendar.h"
#include "calculation/window/hours.h"
#include "quorvel/climate.h"
#include "quorvel/glazing.h"
#include "window_units.h"

namespace quorvel::window {
namespace {

class HoursTest : public testing::Test {
  protected:
    static void SetUpTestSuite() { host::load_library(); }
};
using SkyOnPlane = HoursTest;
using Days = HoursTest;
using Years = HoursTest;
using Temperatures = HoursTest;

const Site london{"London", 51.5, -0.3, 6, 5, 0, SkyModel::perez, 1, {}};
const DesignDay june{6, 0, 24, 13, 25, 15, {}, ""};

Window window(double orientation, double tilt = 90,
              const Glazing& glazing = unit({clear(4, 0.82), clear(4, 0.82)}, air, 16)) {
    Window w{};
    w.name = "W";
    w.orientation = orientation;
    w.tilt = tilt;
    w.area = w.width = w.height = 1;
    w.glazing = glazing;
    return w;
}

// The published formula with its coefficients for the clearest skies.
TEST_F(SkyOnPlane, OfPerezIsItsFormulaPartByPart) {
    constexpr double direct = 900, diffuse = 70;
    for (const double altitude : {0.6, 0.9, 1.1}) {
        const Sky sky{{altitude, std::numbers::pi, 0, 0, 0}, 172, direct, diffuse};
        const double zenith = std::numbers::pi / 2 - altitude, kappa = 1.041 * std::pow(zenith, 3);
        ASSERT_GT(((diffuse + direct) / diffuse + kappa) / (1 + kappa), 6.2);
        const double brightness = diffuse / std::sin(altitude) / 1325;
        const double f1 = 0.678 - 0.327 * brightness - 0.250 * zenith,
                     f2 = 0.156 - 1.377 * brightness + 0.251 * zenith;
        for (const double tilt : {0.0, 40.0, 90.0, 130.0}) {
            const double slope = host::radians(tilt);
            const double towards =
                std::cos(altitude) * std::sin(slope) + std::sin(altitude) * std::cos(slope);
            const OnPlane plane = on_plane(london, 0.2, sky, 180, tilt, std::acos(towards));
            EXPECT_NEAR(plane.sky, diffuse * (1 - f1) * (1 + std::cos(slope)) / 2, 0.6);
            EXPECT_NEAR(plane.circumsolar,
                        diffuse * f1 * std::max(towards, 0.0) / std::sin(altitude), 0.6);
            EXPECT_NEAR(plane.horizon, diffuse * f2 * std::sin(slope), 0.6);
            EXPECT_NEAR(plane.direct, direct * std::max(towards, 0.0), 0.1);
            EXPECT_NEAR(plane.ground,
                        0.2 * (direct * std::sin(altitude) + diffuse) * (1 - std::cos(slope)) / 2,
                        0.1);
        }
    }
}

TEST_F(SkyOnPlane, OfEveryModelIsWholeOnLevelPlanes) {
    for (const SkyModel model :
         {SkyModel::design, SkyModel::perez, SkyModel::muneer, SkyModel::muneer_north}) {
        Site site = london;
        site.sky_model = model;
        const Sky sky = design_sky(site, site_constants(site, 6), 172, 10);
        const auto diffuse = [&](double tilt) {
            const OnPlane plane = on_plane(site, 0.2, sky, 180, tilt,
                                           tilt == 0 ? std::numbers::pi / 2 - sky.sun.altitude : 3);
            return plane.sky + plane.circumsolar + plane.horizon;
        };
        EXPECT_NEAR(diffuse(0), sky.diffuse_horizontal, 0.3);
        EXPECT_NEAR(diffuse(180), 0, 0.05);
    }
}

// At a high site nothing jumps where the sun is low.
TEST_F(SkyOnPlane, OfTheDesignSkyHasNoStepByHeight) {
    Site alpine = london;
    alpine.height = 1600;
    const SiteConstants constants = site_constants(alpine, 6);
    double before = 0;
    for (double hour = 3.8; hour < 4.6; hour += 0.005) {
        const Sky sky = design_sky(alpine, constants, 172, hour);
        if (host::degrees(sky.sun.altitude) > 4.9) break;
        EXPECT_LT(std::fabs(sky.direct_normal - before), 15);
        before = sky.direct_normal;
    }
    EXPECT_GT(before, 300);
}

TEST_F(Days, MirrorEachOtherEastAndWest) {
    const Window windows[] = {window(90), window(270)};
    const Day day = calculate(london, june, windows);
    for (std::size_t i = 0; i < 23; ++i) {
        const WindowHour &east = day.windows[0].at[i], &west = day.windows[1].at[22 - i];
        EXPECT_NEAR(east.incident(), west.incident(), 0.2);
        EXPECT_NEAR(east.transmitted(), west.transmitted(), 0.2);
    }
    EXPECT_NEAR(day.solar_minus_clock, -1.05, 0.05);
}

// By its declination of 23.4° the sun neither sets nor rises at a pole.
TEST_F(Days, AtThePolesAreDayOrNight) {
    Site pole = london;
    for (const double latitude : {90.0, -90.0}) {
        pole.latitude = latitude;
        const Window south = window(180);
        const Day day = calculate(pole, june, {&south, 1});
        const bool light = latitude > 0;
        EXPECT_EQ(day.sunset > 24, light) << latitude;
        EXPECT_EQ(day.sunrise > 24, !light) << latitude;
        EXPECT_EQ(daily_sum(day.windows[0], &WindowHour::incident) > 0, light);
    }
}

// A blind outside keeps out what one inside has let in; the transmitted light alone would say
// otherwise.
TEST_F(Days, TellWhatABlindInsideLetsIn) {
    Window windows[] = {window(180), window(180), window(180)};
    windows[1].blind = roller(BlindPlace::outside, 0.12, 0.5);
    windows[2].blind = roller(BlindPlace::inside, 0.1, 0.5);
    const Day day = calculate(london, june, windows);
    const auto sum = [&](std::size_t i, double (WindowHour::*member)() const) {
        return daily_sum(day.windows[i], member);
    };
    EXPECT_LT(sum(1, &WindowHour::solar_gain), 0.5 * sum(2, &WindowHour::solar_gain));
    EXPECT_LT(sum(2, &WindowHour::transmitted), sum(1, &WindowHour::transmitted) * 1.05);
    for (std::size_t i = 0; i < 24; ++i) {
        const WindowHour& bare = day.windows[0].at[i];
        EXPECT_DOUBLE_EQ(day.windows[1].at[i].solar_gain_without_blind(), bare.solar_gain());
        for (std::size_t k = 0; k < 3; ++k) {
            const WindowHour& at = day.windows[k].at[i];
            EXPECT_LE(at.solar_gain(), at.incident() + 1e-9);
            EXPECT_GE(at.solar_gain(), at.transmitted() - 1e-9);
            EXPECT_LE(at.transmitted() + at.absorbed, at.incident() + 1e-6);
        }
    }
}

TEST_F(Days, LowerABlindOnlyInTheSun) {
    Window windows[] = {window(180), window(180)};
    windows[1].blind = slatted(BlindPlace::outside, 45, 0.5);
    windows[1].blind->lowered_above = 300;
    const Day day = calculate(london, june, windows);
    for (std::size_t i = 0; i < 24; ++i) {
        const WindowHour &bare = day.windows[0].at[i], &at = day.windows[1].at[i];
        EXPECT_EQ(at.blind_down, bare.incident() >= 300);
        EXPECT_EQ(std::isnan(at.gain.temperature[0]), !at.blind_down);
        if (!at.blind_down) {
            EXPECT_DOUBLE_EQ(at.net(), bare.net());
        }
    }
}

TEST_F(Days, ShadeTheSunTheSkyAndTheGround) {
    Window windows[] = {window(180), window(180)};
    windows[1].shades.obstructions.push_back({"House", 6, 0, 40, 10, 0, 8, 0});
    const Day day = calculate(london, june, windows);
    const Openness& open = day.windows[1].open;
    EXPECT_LT(open.sky, 0.5);
    for (std::size_t i = 0; i < 24; ++i) {
        const WindowHour &free = day.windows[0].at[i], &at = day.windows[1].at[i];
        EXPECT_NEAR(at.ground, open.ground * free.ground, 1e-9);
        EXPECT_LE(at.diffuse, free.diffuse + 1e-9);
        if (at.sunlit >= 0) {
            EXPECT_NEAR(at.direct, at.sunlit * free.direct, 1e-9);
        }
    }
}

// The library's resistances are those of the balance: its own temperatures, worked out anew, are
// rounded to hundredths of a coefficient.
TEST_F(Temperatures, OfPlainPanesAreThoseOfTheLibrary) {
    for (const std::size_t panes : {1u, 2u, 3u}) {
        const Unit plain = unit(std::vector<Pane>(panes, clear(4, 0.82)), air, 6.8);
        EXPECT_EQ(Panes(plain, {}, 90).method(), Method::pane_temperatures);
        const HeatBalance balance(plain, {}, 90, design_surfaces);
        for (const double sun : {0.0, 60.0}) {
            PerLayer absorbed{};
            for (std::size_t k = 0; k < panes; ++k) absorbed[k] = sun;
            const double s[] = {sun, panes > 1 ? sun : 0, panes > 2 ? sun : 0};
            const auto library =
                lib::pane_temperatures(22, 8, static_cast<int>(panes), s[0], s[1], s[2], 0, 0);
            const HeatFlow flow = balance(22, 8, absorbed);
            EXPECT_NEAR(flow.temperature[panes - 1], library.pane_temperature_1, 0.8)
                << panes << " panes, sun " << sun;
            if (panes > 1) {
                EXPECT_NEAR(flow.temperature[0],
                            panes == 2 ? library.pane_temperature_2 : library.pane_temperature_3,
                            0.8);
            }
        }
    }
    EXPECT_EQ(Panes(unit({clear(4, 0.82), clear(4, 0.82)}, air, 16), {}, 90).method(),
              Method::heat_balance);
}

// What the layers absorb between equal temperatures leaves to both sides, in all; a mirror image
// swaps the sides.
TEST_F(Temperatures, KeepTheBalanceOfHeat) {
    const Pane low_e = coated(0.6, 0.29, 0.24, 0.04),
               turned{"", 4, 0.6, {0.24, 0.29}, {plain_emissivity, 0.04}};
    constexpr Surfaces same{5, 5, 4};
    const Blind inside = roller(BlindPlace::inside, 0.1, 0.5),
                outside = roller(BlindPlace::outside, 0.1, 0.5);
    const HeatBalance one(unit({clear(4, 0.82), low_e}, argon, 14), inside, 90, same);
    const HeatBalance other(unit({turned, clear(4, 0.82)}, argon, 14), outside, 90, same);
    for (const double each : {5.0, 100.0, 400.0}) {
        const double inwards = one(20, 20, {each, 2 * each, each}).inwards,
                     outwards = other(20, 20, {each, 2 * each, each}).inwards;
        EXPECT_NEAR(inwards + outwards, 4 * each, 0.002 * each + 0.01);
    }
    EXPECT_NEAR(one(20, 20, {}).inwards, 0, 1e-6);
    EXPECT_NEAR(one(25, 0, {}).inwards, -other(0, 25, {}).inwards, 0.05);
}

Weather weather(double longitude, double zone) {
    Weather all{"", 48, longitude, 0, zone, 20, {}};
    for (int day = 1; day <= 365; ++day) {
        const int month = static_cast<int>(host::date_of(day).month) + 1;
        for (int hour = 1; hour <= 24; ++hour) all.hours.push_back({month, day, hour, 0, 0, 5});
    }
    return all;
}

TEST_F(Years, OfDarknessLoseByTheHeatBalance) {
    const Window south = window(180);
    const Weather dark = weather(0, 0);
    const Year year = calculate(london, dark, {&south, 1});
    const double loss = -Panes(std::get<Unit>(south.glazing), {}, 90).gain(20, 5, {}).conduction;
    EXPECT_NEAR(year.windows[0].year.conduction_out, loss * 8.76, 0.01);
    EXPECT_EQ(year.windows[0].year.solar_gain, 0);
    EXPECT_NEAR(loss, 2.7 * 15, 2.5);
}

// Sun in the hours that are morning by the sun alone: at this place noon comes at half past one by
// the clock.
TEST_F(Years, StandTheSunByLongitudeAndZone) {
    Weather mornings = weather(-22.5, 0);
    Site site = london;
    site.latitude = 48;
    for (WeatherHour& hour : mornings.hours) {
        hour.direct_normal = hour.hour > 8 && hour.hour <= 13 ? 600 : 0;
        hour.diffuse_horizontal = hour.direct_normal / 100;
    }
    const Window windows[] = {window(90), window(270)};
    const Year year = calculate(site, mornings, windows);
    EXPECT_GT(year.windows[0].year.incident, 250);
    // The west has the ground and the diffuse sky.
    EXPECT_LT(year.windows[1].year.incident, 0.25 * year.windows[0].year.incident);
    const Window level = window(0, 0);
    const Year horizontal = calculate(site, mornings, {&level, 1});
    double expected = 0;
    for (const WeatherHour& hour : mornings.hours) {
        if (hour.direct_normal == 0) continue;
        const double solar =
            hour.hour - 0.5 - 1.5 + lib::solar_time_correction(0, hour.day_of_year, 0, 0);
        const double sine = std::sin(host::sun_at(48, hour.day_of_year, solar).altitude);
        expected += (600 * sine + (sine > 0 ? 6 : 0)) / 1000;
    }
    EXPECT_NEAR(horizontal.windows[0].year.incident, expected, 0.01 * expected);
}

TEST_F(Years, OfDesignDaysAreTheirMonths) {
    const Window south = window(180);
    std::vector<DesignDay> days;
    for (int month = 1; month <= 12; ++month) days.push_back({month, 0, 20, 5, 15, 15, {}, ""});
    const Year year = calculate(london, days, {&south, 1});
    const Day march = calculate(london, days[2], {&south, 1});
    EXPECT_NEAR(year.windows[0].months[2].solar_gain,
                31 * daily_sum(march.windows[0], &WindowHour::solar_gain) / 1000, 1e-9);
    EXPECT_GT(year.windows[0].peak.power, 0);
}

}  // namespace
}  // namespace quorvel::window
