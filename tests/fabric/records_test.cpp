// Fractions packed into one real, and the element records that hold them.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <map>
#include <set>
#include <vector>

#include "quorvel/library.h"

namespace {

constexpr float kUndefined = 1e20f;
constexpr float kUntouched = -7.0f;
constexpr std::int32_t kPack = 1, kUnpack = 2;

using Three = std::array<float, 3>;

float packed(Three p) {
    float v = kUntouched;
    lib::TPCOLT(kPack, v, p[0], p[1], p[2]);
    return v;
}

Three unpacked(float v, std::int32_t mode = kUnpack) {
    Three p;
    lib::TPCOLT(mode, v, p[0], p[1], p[2]);
    return p;
}

float packed_pane(Three p) {
    float v = kUntouched;
    lib::TPCOSW(kPack, v, p[0], p[1], p[2]);
    return v;
}

Three unpacked_pane(float v) {
    Three p;
    lib::TPCOSW(kUnpack, v, p[0], p[1], p[2]);
    return p;
}

float decimal(int hundredths) { return static_cast<float>(hundredths / 100.0); }
float returned(int hundredths) { return static_cast<float>(hundredths) * 0.01f; }

// All triples from 0.00 to 0.99 are held, and come back as hundredths times the float 0.01, which
// is the float nearest to the decimal or the next one.
TEST(Packing, EveryTripleOfTwoDecimalsComesBack) {
    for (int i = 0; i < 100; ++i)
        for (int j = 0; j < 100; ++j)
            for (int k = 0; k < 100; ++k) {
                const float v = packed({decimal(i), decimal(j), decimal(k)});
                ASSERT_NEAR(v, 100.0 * k + j + 0.01 * i, 0.0005);
                const Three back = unpacked(v);
                ASSERT_EQ(back, (Three{returned(i), returned(j), returned(k)})) << v;
                ASSERT_EQ(unpacked(packed(back)), back) << v;
            }
    for (int i = 0; i < 100; ++i)
        EXPECT_LE(std::fabs(returned(i) - decimal(i)),
                  std::nextafter(decimal(i), 1.0f) - decimal(i));
    EXPECT_NE(returned(40), 0.40f);
}

TEST(Packing, TheFourRoutinesHoldTheSameNumber) {
    EXPECT_EQ(packed({0.25f, 0.40f, 0.07f}), 740.25f);
    EXPECT_EQ(unpacked(740.25f), (Three{returned(25), returned(40), returned(7)}));

    Three p = {0.25f, 0.40f, 0.07f};
    float v = kUntouched;
    lib::TPCOLW2(kPack, v, p[2], p[0], p[1]);
    EXPECT_EQ(v, 740.25f);
    EXPECT_EQ(p, (Three{0.25f, 0.40f, 0.07f})) << "not written when packing";
    p = {};
    lib::TPCOLW2(kUnpack, v, p[2], p[0], p[1]);
    EXPECT_EQ(p, (Three{returned(25), returned(40), returned(7)}));

    lib::TPCOLW(kPack, v, p[0], p[1]);
    EXPECT_EQ(v, 40.25f);
    v = 740.25f;
    p = {};
    lib::TPCOLW(kUnpack, v, p[0], p[1]);
    EXPECT_EQ(p, (Three{returned(25), returned(40), 0.0f}));
    EXPECT_EQ(v, 740.25f);

    EXPECT_EQ(packed_pane({0.25f, 0.35f, 0.68f}), 740.25f) << "transmits 0.40 and 0.07";
    EXPECT_EQ(unpacked(740.25f, 0), unpacked(740.25f)) << "any other mode";
}

TEST(Packing, EveryPaneThatTransmitsLessThanAllComesBack) {
    for (int a = 0; a < 100; ++a)
        for (int r1 = a == 0; r1 <= 100 - a; ++r1)
            for (int r2 = a == 0; r2 <= 100 - a; r2 += 7) {
                const float v = packed_pane({decimal(a), decimal(r1), decimal(r2)});
                ASSERT_EQ(unpacked_pane(v), (Three{returned(a), returned(r1), returned(r2)}))
                    << a << ' ' << r1 << ' ' << r2;
                const auto [p1, t1, t2] = unpacked(v);
                ASSERT_NEAR(p1 + decimal(r1) + t1, 1.0f, 1e-6f);
                ASSERT_NEAR(p1 + decimal(r2) + t2, 1.0f, 1e-6f);
            }
}

TEST(Packing, WhatDoesNotFit) {
    EXPECT_EQ(unpacked(packed({0.25f, 1.0f, 0.07f})), (Three{returned(25), 0.0f, returned(8)}))
        << "carried";
    EXPECT_EQ(unpacked(packed({1.0f, 0.4f, 0.07f})), (Three{0.0f, returned(41), returned(7)}))
        << "carried";
    EXPECT_EQ(packed({0.123f, 0.123f, 0.1289f}), 1212.123f) << "the first is kept, the others cut";
    EXPECT_EQ(packed({0.0f, 0.5699f, 0.0f}), 57.0f) << "a tenth of a hundredth to spare";
    EXPECT_EQ(packed({0.0f, 0.5689f, 0.0f}), 56.0f);
    EXPECT_EQ(unpacked(-740.25f), (Three{-returned(24), -returned(40), -returned(7)}))
        << "cut towards zero";
}

TEST(Packing, Undefined) {
    const Three none = {kUndefined, kUndefined, kUndefined};
    const float limit = 1e10f, beyond = std::nextafter(limit, 2e10f);
    EXPECT_EQ(packed({beyond, 0.0f, 0.0f}), kUndefined);
    EXPECT_EQ(packed({limit, 0.0f, 0.0f}), limit);
    EXPECT_EQ(packed({0.0f, 0.0f, kUndefined}), kUndefined);
    EXPECT_EQ(packed_pane({0.0f, -2e10f, 0.0f}), kUndefined) << "by what it would transmit";
    EXPECT_EQ(unpacked(beyond), none);
    EXPECT_EQ(unpacked_pane(kUndefined), none);
    EXPECT_LT(unpacked(limit)[2], kUndefined);
}

// Field f holds 1000 f, but the packed ones.
using Record = std::array<float, 10>;

Record record(float code) {
    return {code, 2000.0f, 3000.0f, 4000.0f, 5000.0f, 6000.0f, 312.11f, 3010.20f, 740.25f, 1e4f};
}

float property(float code, std::int32_t item) {
    return lib::BELDAT(record(code).data(), 1, 1, item);
}

TEST(ElementRecord, PropertiesByClass) {
    const std::set<int> solid = {1}, gap = {3}, boundary = {5}, layers = {1, 3, 4};
    const std::set<int> packed_classes = {0, 1, 2, 4, 5, 7, 8, 9};
    struct Rule {
        std::set<int> classes, subtypes;
        float value;
    };
    std::map<std::int32_t, Rule> rules = {
        {1, {{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}, {}, 0.0f}},
        {2, {layers, {}, 2000.0f}},
        {3, {{1, 4}, {}, 3000.0f}},
        {4, {layers, {}, 4000.0f}},
        {5, {layers, {}, 5000.0f}},
        {6, {{1, 3}, {}, 6000.0f}},
        {7, {gap, {}, 312.11f}},
        {11, {gap, {}, 3000.0f}},
        {12, {{2, 4, 5}, {}, 6000.0f}},
        {21, {boundary, {1, 2}, 2000.0f}},
        {22, {boundary, {1, 2}, 3000.0f}},
        {23, {boundary, {1, 2}, 4000.0f}},
        {61, {gap, {1}, 3010.20f}},
        {62, {gap, {2}, 3010.20f}},
    };
    const std::map<std::int32_t, float> fractions = {
        {31, 0.25f}, {32, 0.40f}, {33, 0.07f}, {34, 0.35f}, {35, 0.68f}, {41, 0.11f}, {42, 0.12f},
        {43, 0.03f}, {44, 0.77f}, {45, 0.86f}, {52, 0.80f}, {53, 0.90f}, {54, 0.20f}, {55, 0.10f},
    };
    for (const auto& [item, value] : fractions) rules[item] = {packed_classes, {}, value};

    for (int code = 50; code <= 999; ++code)
        for (std::int32_t item = -80; item <= 130; ++item) {
            const auto rule = rules.find(item);
            float expected = kUndefined;
            if (rule != rules.end() && rule->second.classes.contains(code / 100) &&
                (rule->second.subtypes.empty() || rule->second.subtypes.contains(code % 100)))
                expected = item == 1 ? static_cast<float>(code) : rule->second.value;
            if ((code == 601 && item == 71) || (code == 602 && item == 72)) expected = 1.0f;
            ASSERT_FLOAT_EQ(property(static_cast<float>(code), item), expected)
                << "item " << item << " of " << code;
        }
}

TEST(ElementRecord, TypeCodesAreRoundedAfterTheLimits) {
    for (const float code : {49.9f, 999.4f, kUndefined})
        for (const std::int32_t item : {1, 2, 31, 71})
            EXPECT_EQ(property(code, item), kUndefined) << code;
    EXPECT_EQ(property(99.5f, 2), 2000.0f) << "class 1";
    EXPECT_EQ(property(99.4f, 2), kUndefined) << "class 0";
    EXPECT_EQ(property(500.5f, 21), 2000.0f) << "subtype 1";
    EXPECT_EQ(property(502.5f, 21), kUndefined) << "subtype 3";
    EXPECT_EQ(property(601.2f, 71), kUndefined) << "the end is compared as it stands";
}

TEST(ElementRecord, TheListIsLookedAtByRecord) {
    std::vector<float> list;
    for (const float code : {501.0f, 110.0f, 1000.0f, 400.0f, 601.0f}) {
        const Record next = record(code);
        list.insert(list.end(), next.begin(), next.end());
    }
    const auto ask = [&](std::int32_t n, std::int32_t i, std::int32_t item) {
        return lib::BELDAT(list.data(), n, i, item);
    };
    EXPECT_EQ(ask(5, 2, 1), 110.0f);
    for (const std::int32_t i : {1, 2, 4, 5}) {
        EXPECT_EQ(ask(5, i, 71), 1.0f) << i;
        EXPECT_EQ(ask(5, i, 72), kUndefined) << i;
    }
    EXPECT_EQ(ask(5, 3, 71), kUndefined) << "not a valid record itself";
    EXPECT_EQ(ask(4, 1, 71), kUndefined) << "the list ends with record 4";
    EXPECT_EQ(ask(3, 1, 1), 501.0f) << "an invalid end does no harm";
    list[40] = 602.0f;
    EXPECT_EQ(ask(5, 1, 72), 1.0f);
    for (const std::int32_t i : {0, 6}) EXPECT_EQ(ask(5, i, 1), kUndefined) << i;
    EXPECT_EQ(ask(0, 1, 1), kUndefined);
}

TEST(ElementRecord, ComplementsOfUndefinedFractions) {
    Record undefined = record(400.0f);
    undefined[6] = undefined[7] = undefined[8] = kUndefined;
    const auto item = [&](std::int32_t number) {
        return lib::BELDAT(undefined.data(), 1, 1, number);
    };
    for (const std::int32_t number : {31, 32, 33, 41, 42, 43, 54, 55})
        EXPECT_EQ(item(number), kUndefined) << number;
    for (const std::int32_t number : {34, 35, 44, 45}) EXPECT_EQ(item(number), -2e20f) << number;
    for (const std::int32_t number : {52, 53}) EXPECT_EQ(item(number), -1e20f) << number;
}

}  // namespace
