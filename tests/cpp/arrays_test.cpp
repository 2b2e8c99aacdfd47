// What arrays may be in the C++ interface, and what is refused. That they get the right results,
// the examples of the catalogue show.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "quorvel/fabric.hpp"
#include "quorvel/geometry.hpp"
#include "quorvel/glazing.hpp"
#include "quorvel/psychro.hpp"

using namespace quorvel;

namespace {

constexpr std::size_t count = 100;

std::vector<float> temperatures() {
    std::vector<float> t(count);
    for (std::size_t i = 0; i < count; ++i) t[i] = -20.0f + 0.7f * static_cast<float>(i);
    return t;
}

template <class Error, class Call>
std::string refusal(Call call) {
    try {
        call();
    } catch (const Error& error) {
        return error.what();
    }
    return "nothing thrown";
}

TEST(CppArrays, OneValueServesAllElements) {
    const std::vector<float> t = temperatures();
    std::vector<float> together(count), of_ranges(count);
    psychro::vapour_pressure(t, 50, together);
    psychro::vapour_pressure(t, std::array{50.0f}, of_ranges);
    for (std::size_t i = 0; i < count; ++i)
        ASSERT_EQ(together[i], psychro::vapour_pressure(t[i], 50)) << i;
    EXPECT_EQ(of_ranges, together);
}

TEST(CppArrays, AllInputsMayBeOneValue) {
    std::vector<float> constant(count);
    psychro::vapour_pressure(20, 50, constant);
    EXPECT_EQ(constant, std::vector<float>(count, psychro::vapour_pressure(20, 50)));
    psychro::vapour_pressure(20, 50, std::span<float>());
    psychro::vapour_pressure(std::vector<float>(), 50, std::span<float>());
}

TEST(CppArrays, ElementsMayLieApartOrBackwards) {
    struct Hour {
        float temperature, humidity;
    };
    std::vector<Hour> hours;
    for (const float t : temperatures()) hours.push_back({t, 40.0f + t});
    const auto column = [&](float Hour::*number, bool backwards) {
        const auto stride = static_cast<std::ptrdiff_t>(sizeof(Hour));
        const Hour& first = backwards ? hours.back() : hours.front();
        return Input<float>(&(first.*number), count, backwards ? -stride : stride);
    };
    std::vector<float> forwards(count), backwards(count), in_parts(count);
    for (const bool back : {false, true})
        psychro::vapour_pressure(column(&Hour::temperature, back), column(&Hour::humidity, back),
                                 back ? backwards : forwards);
    for (std::size_t i = 0; i < count; ++i)
        ASSERT_EQ(forwards[i], psychro::vapour_pressure(hours[i].temperature, hours[i].humidity));
    std::reverse(backwards.begin(), backwards.end());
    EXPECT_EQ(backwards, forwards);

    const auto t = column(&Hour::temperature, false), rh = column(&Hour::humidity, false);
    for (std::size_t first = 0; first < count; first += 30) {
        const std::size_t n = std::min<std::size_t>(30, count - first);
        psychro::vapour_pressure(t.part(first, n), rh.part(first, n),
                                 std::span(in_parts).subspan(first, n));
    }
    EXPECT_EQ(in_parts, forwards);
}

TEST(CppArrays, ResultsMayReplaceWhatWasGiven) {
    std::vector<float> pressures(count), in_place = temperatures();
    psychro::saturation_pressure(in_place, pressures);
    psychro::saturation_pressure(in_place, in_place);
    EXPECT_EQ(in_place, pressures);
}

// Constructions of one to three layers in rows of three.
TEST(CppArrays, ListsAreRowsOfWhichAsManyNumbersCountAsIsSaid) {
    const std::vector<float> thickness{0.1f, 9, 9, 0.1f, 0.2f, 9, 0.1f, 0.2f, 0.3f};
    const std::vector<float> conductivity{0.5f, 1.0f, 1.5f};
    const std::vector<std::int32_t> layers{1, 2, 3};
    const Table thicknesses(thickness, 3, 3), conductivities(conductivity, 1, 3);
    std::vector<float> u(3), last(2);
    fabric::u_value(thicknesses, conductivities, 0.12f, 0.06f, layers, u);
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(u[i], fabric::u_value(std::span(thicknesses.row(i), i + 1),
                                        std::span(conductivity).first(i + 1), 0.12f, 0.06f));
    fabric::u_value(thicknesses.part(1, 2), conductivities.part(1, 2), 0.12f, 0.06f,
                    std::span(layers).subspan(1), last);
    EXPECT_EQ(last, std::vector<float>(u.begin() + 1, u.end()));
}

TEST(CppArrays, NothingIsLeftUnsaid) {
    const auto none = fabric::u_value({}, {}, NAN, 0.06f);
    EXPECT_TRUE(std::isnan(none));
    const auto enclosed = geometry::count_enclosed(
        std::array{0.0f, 0.0f, 2.0f, 2.0f}, std::array{0.0f, 2.0f, 2.0f, 0.0f},
        std::array{1.0f, 5.0f}, std::array{1.0f, 5.0f}, std::array{7, 8});
    EXPECT_EQ(enclosed.enclosed, (std::vector<std::int32_t>{1, 8}));
}

TEST(CppArrays, NumbersOfElementsThatDoNotAgreeAreRefused) {
    std::vector<float> two(2), three(3);
    const auto call = [&](const Input<float>& t, const Input<float>& rh, std::span<float> pv) {
        return refusal<std::invalid_argument>([&] { psychro::vapour_pressure(t, rh, pv); });
    };
    EXPECT_EQ(call(two, 50, three), "vapour_pressure: dry_bulb has 2 elements and not 3");
    EXPECT_EQ(call(20, two, three), "vapour_pressure: relative_humidity has 2 elements and not 3");
    EXPECT_EQ(call({two.data(), 0}, 50, three),
              "vapour_pressure: dry_bulb has 0 elements and not 3");
    EXPECT_EQ(call(three, 50, std::span(two).first(1)),
              "vapour_pressure: dry_bulb has 3 elements and not 1");
    EXPECT_EQ(call({nullptr, 3}, 50, three), "vapour_pressure: dry_bulb has no address");
    EXPECT_EQ(three, std::vector<float>(3));
    EXPECT_EQ(refusal<std::invalid_argument>([&] {
                  glazing::glass_diffuse(0.8f, 0.1f, {.transmittance = three, .absorptance = two});
              }),
              "glass_diffuse: absorptance has 2 elements and not 3");
}

TEST(CppArrays, OverlapIsRefused) {
    std::vector<float> t = temperatures();
    EXPECT_EQ(refusal<std::invalid_argument>([&] {
                  psychro::vapour_pressure(std::span(t).first(9), 50, std::span(t).subspan(1, 9));
              }),
              "vapour_pressure: result overlaps another argument or itself");
    EXPECT_EQ(t, temperatures());
}

TEST(CppArrays, ListsThatDoNotBelongTogetherAreRefused) {
    const std::vector<float> two(2, 1.0f), three(3, 1.0f), many(21, 1.0f);
    EXPECT_EQ(refusal<std::invalid_argument>([&] { fabric::u_value(two, three, 0.1f, 0.1f); }),
              "u_value: conductivity has 3 elements and thickness 2");
    EXPECT_EQ(refusal<std::out_of_range>([&] { fabric::u_value(many, many, 0.1f, 0.1f); }),
              "u_value: layers must be from 0 to 20, not 21");
    EXPECT_EQ(refusal<std::out_of_range>([&] { geometry::plan_area(two, two); }),
              "plan_area: vertices must be at least 3, not 2");
    EXPECT_EQ(refusal<std::invalid_argument>([&] { Table(two, 2, 3); }),
              "a table of 2 rows and 3 columns cannot have 2 values");

    std::vector<float> u(2);
    const auto rows = [&](const std::vector<float>& values, std::size_t columns,
                          const Input<std::int32_t>& layers) {
        const Table table(values, values.size() / columns, columns);
        fabric::u_value(table, table, 0.1f, 0.1f, layers, u);
    };
    EXPECT_EQ(refusal<std::invalid_argument>([&] {
                  rows(two, 1, std::array<std::int32_t, 2>{1, 2});
              }),
              "u_value: thickness has 1 columns, and element 1 counts 2");
    EXPECT_EQ(refusal<std::invalid_argument>([&] { rows(three, 1, 1); }),
              "u_value: thickness has 3 elements and not 2");
    EXPECT_EQ(refusal<std::out_of_range>([&] { rows(many, 21, 21); }),
              "u_value: layers must be from 0 to 20");
}

}  // namespace
