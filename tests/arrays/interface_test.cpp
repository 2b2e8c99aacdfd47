// The C interface of the array library: what is computed where, and what is refused in which words.
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <numeric>
#include <string>
#include <vector>

#include "quorvel/psychro.h"
#include "quorvel_arrays.h"

namespace {

using Reals = std::vector<float>;

constexpr std::ptrdiff_t next = sizeof(float);

std::string words(const char* routine, std::int32_t status) {
    char text[120];
    quorvel_message(quorvel_find_routine(routine), status, text, sizeof text);
    return text;
}

Reals temperatures(std::size_t count) {
    Reals t(count);
    for (std::size_t i = 0; i < count; ++i) t[i] = -30.0f + 0.37f * static_cast<float>(i);
    return t;
}

Reals saturation_pressures(const Reals& t) {
    Reals ps(t.size());
    for (std::size_t i = 0; i < t.size(); ++i) ps[i] = lib::PSSVP(t[i]);
    return ps;
}

class EveryLevel : public testing::TestWithParam<const char*> {
  protected:
    void SetUp() override {
        if (!quorvel_choose_level(GetParam())) GTEST_SKIP() << "not on this processor";
    }
    void TearDown() override { quorvel_choose_level(nullptr); }
};
INSTANTIATE_TEST_SUITE_P(Arrays, EveryLevel, testing::Values("scalar", "v2", "v3", "v4"),
                         [](const auto& level) { return std::string(level.param); });

TEST_P(EveryLevel, WorksInPlaceForwardsAndBackwards) {
    for (const std::size_t count : {1u, 2u, 3u, 15u, 16u, 17u, 255u, 256u, 257u, 1000u}) {
        Reals t = temperatures(count);
        const Reals expected = saturation_pressures(t);
        EXPECT_EQ(quorvel_saturation_pressure(count, t.data(), next, t.data(), next), QUORVEL_OK);
        EXPECT_EQ(t, expected) << count;

        t = temperatures(count);
        float* const last = t.data() + count - 1;
        EXPECT_EQ(quorvel_saturation_pressure(count, last, -next, last, -next), QUORVEL_OK);
        EXPECT_EQ(t, expected) << count;
    }
}

// Columns of one table, as rows of records hold them.
TEST_P(EveryLevel, ReadsAndWritesColumnsOfATable) {
    constexpr std::size_t rows = 100, columns = 3;
    Reals table(rows * columns, 7.0f);
    const Reals t = temperatures(rows);
    for (std::size_t i = 0; i < rows; ++i) table[columns * i] = t[i];
    const float relative_humidity = 50.0f;
    EXPECT_EQ(quorvel_vapour_pressure(rows, table.data(), columns * next, &relative_humidity, 0,
                                      table.data() + 2, columns * next),
              QUORVEL_OK);
    for (std::size_t i = 0; i < rows; ++i) {
        EXPECT_EQ(table[columns * i], t[i]);
        EXPECT_EQ(table[columns * i + 1], 7.0f);
        EXPECT_EQ(table[columns * i + 2], lib::PSVP(t[i], relative_humidity));
    }
}

// An arm of a branch that an element does not take must not reach into its result, nor into memory
// outside a table.
TEST_P(EveryLevel, ElementsOfAPackDoNotSeeOneAnother) {
    constexpr float none = std::numeric_limits<float>::quiet_NaN();
    const Reals odd = {none, 3e38f, -3e38f, -273.15f,
                       0.0f, -0.0f, 1e-45f, std::numeric_limits<float>::infinity()};
    for (std::size_t at = 0; at < 64; ++at) {
        Reals t = temperatures(64), ps(64);
        t[at] = odd[at % odd.size()];
        quorvel_saturation_pressure(64, t.data(), next, ps.data(), next);
        for (std::size_t i = 0; i < 64; ++i) {
            const float single = lib::PSSVP(t[i]);
            EXPECT_TRUE(ps[i] == single || (std::isnan(ps[i]) && std::isnan(single))) << t[i];
        }
    }
}

TEST(Arrays, RefusesOverlapsButThoseThatAreSafe) {
    Reals memory(64, 20.0f);
    float* const t = memory.data();
    const auto call = [&](const float* in, std::ptrdiff_t in_stride, float* out,
                          std::ptrdiff_t out_stride) {
        return quorvel_saturation_pressure(8, in, in_stride, out, out_stride) & 255;
    };
    EXPECT_EQ(call(t, next, t + 8, next), QUORVEL_OK) << "side by side";
    EXPECT_EQ(call(t, 2 * next, t + 1, 2 * next), QUORVEL_OK) << "every other one";
    EXPECT_EQ(call(t + 20, 0, t, next), QUORVEL_OK) << "one for all, elsewhere";
    EXPECT_EQ(call(t, next, t + 1, next), QUORVEL_OVERLAP) << "shifted by an element";
    EXPECT_EQ(call(t + 1, next, t, next), QUORVEL_OVERLAP) << "shifted the other way";
    EXPECT_EQ(call(t + 7, -next, t, next), QUORVEL_OVERLAP) << "in opposite directions";
    EXPECT_EQ(call(t + 3, 0, t, next), QUORVEL_OVERLAP) << "one for all, which is overwritten";
    EXPECT_EQ(call(t, next, t + 8, 0), QUORVEL_OVERLAP) << "all results in one place";
    EXPECT_EQ(call(t, next, t + 8, 2), QUORVEL_OVERLAP) << "results in one another";
    EXPECT_EQ(memory.back(), 20.0f);
    const auto many = static_cast<std::size_t>(-1);  // as languages pass it that have signed counts
    EXPECT_EQ(quorvel_saturation_pressure(many, t, 0, t + 8, next) & 255, QUORVEL_OVERLAP);
    EXPECT_EQ(quorvel_saturation_pressure(3, t, PTRDIFF_MIN, t + 8, next) & 255, QUORVEL_OVERLAP);
    EXPECT_EQ(quorvel_saturation_pressure(1, t, PTRDIFF_MIN, t, next), QUORVEL_OK) << "no step";
}

TEST(Arrays, NamesTheArgumentAndItsRange) {
    const float x[2] = {};
    float out[2] = {5.0f, 5.0f};
    const std::int32_t layers[2] = {1, 21};
    const std::int32_t status = quorvel_u_value(2, x, 0, x, 0, x, 0, x, 0, layers, 4, out, next);
    EXPECT_EQ(words("u_value", status), "u_value: layers must be from 0 to 20");
    EXPECT_EQ(out[0], 5.0f) << "found before anything is written";
    EXPECT_EQ(
        words("TPUVAL", quorvel_u_value(2, x, 0, nullptr, 0, x, 0, x, 0, layers, 0, out, next)),
        "u_value: conductivity has no address");
    EXPECT_EQ(words("u_value", quorvel_saturation_pressure(2, x, next, out, 0)),
              "u_value: conductivity overlaps another argument or itself");
    EXPECT_EQ(words("station_row",
                    quorvel_call(quorvel_find_routine("station_row"), 1, nullptr, nullptr)),
              "station_row: keeps a state or takes a text; call CLBNF3");
    char text[8];
    EXPECT_EQ(quorvel_message(quorvel_find_routine("u_value"), status, text, sizeof text), 36u);
    EXPECT_STREQ(text, "u_value") << "as much as there is room for";
}

TEST(Arrays, NoElementsAreNoCalculation) {
    EXPECT_EQ(quorvel_saturation_pressure(0, nullptr, 0, nullptr, 0), QUORVEL_OK);
}

TEST(Arrays, FindsRoutinesByEitherName) {
    std::size_t count = 0;
    const quorvel_routine* const routines = quorvel_routines(&count);
    for (std::size_t i = 0; i < count; ++i) {
        EXPECT_EQ(quorvel_find_routine(routines[i].name), &routines[i]);
        if (const char* const exported = routines[i].exported_name) {
            EXPECT_EQ(quorvel_find_routine(exported), &routines[i]);
        }
    }
    EXPECT_EQ(quorvel_find_routine("no such routine"), nullptr);
    EXPECT_EQ(quorvel_call(quorvel_find_routine(nullptr), 1, nullptr, nullptr), QUORVEL_NO_ARRAY);
}

// Run once as it is, once with a level in the environment.
TEST(Level, IsTheBestOrTheOneInTheEnvironment) {
    const char* const wanted = std::getenv("QUORVEL_LEVEL");
    const std::string first = quorvel_level();
    ASSERT_TRUE(quorvel_choose_level(nullptr));
    const std::string best = quorvel_level();
    EXPECT_EQ(first, wanted != nullptr ? wanted : best);
    EXPECT_FALSE(quorvel_choose_level("v9"));
    EXPECT_EQ(quorvel_level(), best);
}

}  // namespace
