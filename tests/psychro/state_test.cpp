// The state of moist air from any two of its quantities, through the C++ interface.
#include <gtest/gtest.h>

#include <cmath>

#include "conformance/random_arguments.h"
#include "quorvel/psychro.hpp"

using namespace quorvel::psychro;
using quorvel::conformance::Random;

namespace {

struct State {
    float t, pv, p;
    int type;
    float rh, g, mu, h, tdp, twb;

    State(float t, float pv, float p, int type)
        : t(t),
          pv(pv),
          p(p),
          type(type),
          rh(relative_humidity(t, pv)),
          g(moisture_content(t, pv, p)),
          mu(percentage_saturation(t, g, p)),
          h(specific_enthalpy(t, g)),
          tdp(dew_point(pv)),
          twb(wet_bulb(t, pv, p, type)) {}
};

State random_state(Random& random) {
    const float t = random.real(-40.0, 60.0);
    const float pv = saturation_pressure(t) * random.real(0.05, 0.9999);
    return {t, pv, random.real(60000.0, 110000.0), 1 + random.below(2)};
}

// To the rounding of the saturation pressure, 2e-5 of it, or of the enthalpy, 1e-4 kJ/kg.
TEST(MoistAirState, VapourPressureComesBackFromEachQuantity) {
    Random random(1);
    for (int i = 0; i < 20000; ++i) {
        const State s = random_state(random);
        const auto from_content = [&](float g) {
            return vapour_pressure_from_moisture_content(s.t, g, s.p);
        };
        const float back[] = {
            vapour_pressure(s.t, s.rh),
            saturation_pressure(s.tdp),
            from_content(s.g),
            from_content(moisture_content_from_percentage_saturation(s.t, s.mu, s.p)),
            vapour_pressure_from_psychrometer(s.t, s.twb, s.p, s.type),
        };
        for (const float pv : back)
            ASSERT_NEAR(pv, s.pv, 3e-5f * saturation_pressure(s.t)) << &pv - back << ' ' << s.t;
        ASSERT_NEAR(from_content(moisture_content_from_enthalpy(s.t, s.h)), s.pv, 1e-2f) << s.t;
    }
}

// The single saturation pressure errs by 2e-5 of itself, which is 0.0003 K; divided by A p, up to
// 0.005 K of dry bulb. Enthalpies err by 1e-4 kJ/kg; along a wet bulb they change by 0.04 a kelvin.
struct Pair {
    const char* name;
    float within;  // K
    float (*dry_bulb)(const State&);
};
constexpr Pair pairs[] = {
    {"pv rh", 1e-3f,
     [](const State& s) {
         return dry_bulb_from_vapour_pressure_and_relative_humidity(s.pv, s.rh);
     }},
    {"pv mu", 1e-3f,
     [](const State& s) {
         return dry_bulb_from_vapour_pressure_and_percentage_saturation(s.pv, s.mu, s.p);
     }},
    {"g rh", 1e-3f,
     [](const State& s) {
         return dry_bulb_from_moisture_content_and_relative_humidity(s.g, s.rh, s.p);
     }},
    {"g mu", 1e-3f,
     [](const State& s) {
         return dry_bulb_from_moisture_content_and_percentage_saturation(s.g, s.mu, s.p);
     }},
    {"h g", 2e-4f,
     [](const State& s) { return dry_bulb_from_enthalpy_and_moisture_content(s.h, s.g); }},
    {"h pv", 2e-4f,
     [](const State& s) { return dry_bulb_from_enthalpy_and_vapour_pressure(s.h, s.pv, s.p); }},
    {"h rh", 1e-3f,
     [](const State& s) { return dry_bulb_from_enthalpy_and_relative_humidity(s.h, s.rh, s.p); }},
    {"h mu", 1e-3f,
     [](const State& s) {
         return dry_bulb_from_enthalpy_and_percentage_saturation(s.h, s.mu, s.p);
     }},
    {"twb pv", 1e-2f,
     [](const State& s) {
         return dry_bulb_from_wet_bulb_and_vapour_pressure(s.twb, s.pv, s.p, s.type);
     }},
    {"twb g", 1e-2f,
     [](const State& s) {
         return dry_bulb_from_wet_bulb_and_moisture_content(s.twb, s.g, s.p, s.type);
     }},
    {"twb rh", 1e-3f,
     [](const State& s) {
         return dry_bulb_from_wet_bulb_and_relative_humidity(s.twb, s.rh, s.p, s.type);
     }},
    {"twb mu", 1e-3f,
     [](const State& s) {
         return dry_bulb_from_wet_bulb_and_percentage_saturation(s.twb, s.mu, s.p, s.type);
     }},
    {"twb h", 5e-2f,
     [](const State& s) {
         return s.twb > 55.0f ? s.t : dry_bulb_from_wet_bulb_and_enthalpy(s.twb, s.h, s.p, s.type);
     }},
    {"h tdp", 1e-2f,
     [](const State& s) {
         return dry_bulb_from_enthalpy_and_vapour_pressure(s.h, saturation_pressure(s.tdp), s.p);
     }},
};

TEST(MoistAirState, DryBulbComesBackFromEachPair) {
    for (const Pair& pair : pairs) {
        Random random(2);
        for (int i = 0; i < 20000; ++i) {
            const State s = random_state(random);
            const float off = std::fabs(pair.dry_bulb(s) - s.t);
            ASSERT_TRUE(off < pair.within)
                << pair.name << ' ' << off << " K at " << s.t << ' ' << s.rh << ' ' << s.twb;
        }
    }
}

// About 0 °C a liquid and an iced bulb can belong to the same air, of which the liquid one is
// found.
TEST(MoistAirState, WetBulbComesBackUnlessALiquidOneBelongsToTheSameAir) {
    Random random(3);
    for (int i = 0; i < 20000; ++i) {
        const float t = random.real(-30.0, 50.0), twb = t - random.real(0.0, 15.0);
        const float p = random.real(60000.0, 110000.0);
        const int type = 1 + random.below(2);
        const float pv = vapour_pressure_from_psychrometer(t, twb, p, type);
        if (pv < 0.0f) continue;
        const float found = wet_bulb(t, pv, p, type);
        const bool liquid = pv >= vapour_pressure_from_psychrometer(t, 0.0f, p, type) && t > 0.0f;
        if (twb >= 0.0f || !liquid) {
            ASSERT_NEAR(found, twb, 5e-4f) << t << ' ' << pv;
        } else {
            ASSERT_GE(found, 0.0f) << t << ' ' << pv;
        }
        ASSERT_NEAR(vapour_pressure_from_psychrometer(t, found, p, type), pv,
                    3e-5f * saturation_pressure(t));
    }
}

TEST(MoistAirState, DewPointAndWetBulbNeverFallAsVapourIsAdded) {
    Random random(4);
    for (int i = 0; i < 20000; ++i) {
        const float t = random.real(-40.0, 60.0), p = random.real(60000.0, 110000.0);
        const float pv = saturation_pressure(t) * random.real(0.0, 1.0);
        const float more = std::nextafter(pv, 1e9f), far_more = 1.001f * pv;
        ASSERT_LE(dew_point(pv), dew_point(more)) << pv;
        ASSERT_LT(dew_point(pv), dew_point(far_more)) << pv;
        ASSERT_LE(wet_bulb(t, pv, p, 1), wet_bulb(t, more, p, 1)) << t << ' ' << pv;
        ASSERT_LE(dew_point(pv), wet_bulb(t, pv, p, 1) + 1e-3f) << t << ' ' << pv;
    }
}

// ASHRAE Handbook Fundamentals 2017, chapter 1, table 2: saturated air at 101325 Pa.
TEST(MoistAirState, FollowsThePublishedTableOfSaturatedAir) {
    constexpr struct {
        float t, g, h;
    } rows[] = {{-20, 0.0006373f, -18.542f},
                {-5, 0.0024863f, 1.164f},
                {5, 0.005425f, 18.639f},
                {25, 0.020173f, 76.504f},
                {50, 0.086863f, 275.353f}};
    constexpr float p = 101325.0f, within = 0.06f;
    for (const auto& [t, g, h] : rows) {
        const float pv = vapour_pressure_from_moisture_content(t, g, p);
        EXPECT_NEAR(dew_point(pv), t, within);
        EXPECT_NEAR(dry_bulb_from_moisture_content_and_percentage_saturation(g, 100, p), t, within);
        EXPECT_NEAR(dry_bulb_from_enthalpy_and_relative_humidity(h, 100, p), t, within);
        EXPECT_NEAR(dry_bulb_from_enthalpy_and_moisture_content(h, g), t, 0.15f);
        EXPECT_NEAR(moisture_content_from_enthalpy(t, h), g, 0.004f * g + 3e-5f);
    }
}

TEST(MoistAirState, IsNotANumberWhereThereIsNone) {
    constexpr float p = 101325.0f;
    const float none[] = {
        dew_point(0.0f),
        dew_point(-1.0f),
        dew_point(INFINITY),
        wet_bulb(20.0f, NAN, p, 1),
        dry_bulb_from_vapour_pressure_and_relative_humidity(1000.0f, 0.0f),
        dry_bulb_from_moisture_content_and_relative_humidity(0.0f, 50.0f, p),
        dry_bulb_from_enthalpy_and_moisture_content(1000.0f, 0.01f),
        dry_bulb_from_wet_bulb_and_enthalpy(20.0f, 70.0f, p, 1),
        dry_bulb_from_wet_bulb_and_relative_humidity(20.0f, NAN, p, 1),
    };
    for (const float t : none) EXPECT_TRUE(std::isnan(t)) << &t - none;
    EXPECT_EQ(wet_bulb(20.0f, 5000.0f, p, 1), 20.0f);
    EXPECT_EQ(dry_bulb_from_wet_bulb_and_vapour_pressure(20.0f, 5000.0f, p, 1), 20.0f);
    EXPECT_NEAR(dry_bulb_from_wet_bulb_and_relative_humidity(20.0f, 500.0f, p, 1), 20.0f, 1e-3f);
}

// Above freezing: where ice turns to water the curve of saturation bends the other way.
TEST(Mixing, KeepsWaterAndEnthalpyAndMakesFogOfSaturatedAir) {
    Random random(5);
    constexpr float p = 101325.0f;
    for (int i = 0; i < 2000; ++i) {
        const float t1 = random.real(0.0, 50.0), t2 = t1 + random.real(3.0, 10.0);
        const float m1 = random.real(1.0, 9.0), m2 = random.real(1.0, 9.0), m = m1 + m2;
        const float g1 = moisture_content_from_percentage_saturation(t1, 100, p);
        const float g2 = moisture_content_from_percentage_saturation(t2, 100, p);
        const auto air = adiabatic_mixing(m1, t1, g1, m2, t2, g2);
        const float h1 = specific_enthalpy(t1, g1), h2 = specific_enthalpy(t2, g2);
        ASSERT_NEAR(m * air.moisture_content, m1 * g1 + m2 * g2, 1e-6f * m);
        ASSERT_NEAR(m * air.enthalpy, m1 * h1 + m2 * h2, 2e-4f * m);
        ASSERT_NEAR(specific_enthalpy(air.dry_bulb, air.moisture_content), air.enthalpy, 2e-4f);
        ASSERT_TRUE(t1 < air.dry_bulb && air.dry_bulb < t2);
        ASSERT_GT(percentage_saturation(air.dry_bulb, air.moisture_content, p), 100.0f);
    }
}

}  // namespace
