// Fractions packed into one real, and the element records that hold them.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <map>
#include <string_view>
#include <vector>

#include "quorvel/fabric.h"

namespace {

constexpr float kUndefined = 1e20f;
constexpr float kUntouched = -7.0f;
constexpr std::int32_t kPack = 1, kUnpack = 2;

using Three = std::array<float, 3>;

template <class Routine>
float packed(const Routine& routine, Three p) {
    float v = kUntouched;
    routine(kPack, v, p[0], p[1], p[2]);
    return v;
}

template <class Routine>
Three unpacked(const Routine& routine, float v, std::int32_t mode = kUnpack) {
    Three p{};
    routine(mode, v, p[0], p[1], p[2]);
    return p;
}

float packed(Three p) { return packed(lib::TPCOLT, p); }
Three unpacked(float v) { return unpacked(lib::TPCOLT, v); }

float decimal(int hundredths) { return static_cast<float>(hundredths / 100.0); }
float returned(int hundredths) { return static_cast<float>(hundredths) * 0.01f; }

// As hundredths times the float 0.01.
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
}

TEST(Packing, EveryPaneThatTransmitsLessThanAllComesBack) {
    for (int a = 0; a < 100; ++a)
        for (int r1 = a == 0; r1 <= 100 - a; ++r1)
            for (int r2 = a == 0; r2 <= 100 - a; r2 += 7) {
                const float v = packed(lib::TPCOSW, {decimal(a), decimal(r1), decimal(r2)});
                ASSERT_EQ(unpacked(lib::TPCOSW, v),
                          (Three{returned(a), returned(r1), returned(r2)}))
                    << a << ' ' << r1 << ' ' << r2;
                const auto [absorbed, t1, t2] = unpacked(v);
                ASSERT_NEAR(absorbed + decimal(r1) + t1, 1.0f, 1e-6f);
                ASSERT_NEAR(absorbed + decimal(r2) + t2, 1.0f, 1e-6f);
            }
}

TEST(Packing, OtherOrdersAndDirections) {
    const Three held = {returned(25), returned(40), returned(7)};
    Three p = {0.25f, 0.40f, 0.07f};
    float v = kUntouched;
    lib::TPCOLW2(kPack, v, p[2], p[0], p[1]);
    EXPECT_EQ(v, 740.25f);
    EXPECT_EQ(p, (Three{0.25f, 0.40f, 0.07f})) << "not written when packing";
    lib::TPCOLW2(kUnpack, v, p[2], p[0], p[1]);
    EXPECT_EQ(p, held);
    lib::TPCOLW(kPack, v, p[0], p[1]);
    EXPECT_EQ(v, 40.25f);
    p = {};
    lib::TPCOLW(kUnpack, v = 740.25f, p[0], p[1]);
    EXPECT_EQ(p, (Three{held[0], held[1], 0.0f}));
    EXPECT_EQ(v, 740.25f) << "not written when unpacking";
    EXPECT_EQ(unpacked(lib::TPCOLT, 740.25f, 0), held) << "any other mode";
}

TEST(Packing, WhatDoesNotFit) {
    EXPECT_EQ(unpacked(packed({0.25f, 1.0f, 0.07f})), (Three{returned(25), 0.0f, returned(8)}))
        << "carried";
    EXPECT_EQ(packed({0.123f, 0.123f, 0.1289f}), 1212.123f) << "the first is kept, the others cut";
    EXPECT_EQ(packed({0.0f, 0.5699f, 0.0f}), 57.0f) << "a tenth of a hundredth to spare";
    EXPECT_EQ(packed({0.0f, 0.5689f, 0.0f}), 56.0f);
    EXPECT_EQ(unpacked(-740.25f), (Three{-returned(24), -returned(40), -returned(7)}))
        << "cut towards zero";

    const Three none = {kUndefined, kUndefined, kUndefined};
    const float limit = 1e10f, beyond = std::nextafter(limit, 2e10f);
    EXPECT_EQ(packed({beyond, 0.0f, 0.0f}), kUndefined);
    EXPECT_EQ(packed({limit, 0.0f, 0.0f}), limit);
    EXPECT_EQ(packed(lib::TPCOSW, {0.0f, -2e10f, 0.0f}), kUndefined) << "by what it transmits";
    EXPECT_EQ(packed(lib::TPCOSW, {kUndefined, 0.0f, 0.0f}), kUndefined);
    EXPECT_EQ(unpacked(beyond), none);
    EXPECT_EQ(unpacked(lib::TPCOSW, kUndefined), none);
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
    struct Rule {
        std::string_view classes;
        float value;
        int first_subtype = 0, last_subtype = 99;
    };
    constexpr std::string_view any = "0123456789", optical = "01245789";
    const std::map<std::int32_t, Rule> rules = {
        {2, {"134", 2000.0f}},      {3, {"14", 3000.0f}},       {4, {"134", 4000.0f}},
        {5, {"134", 5000.0f}},      {6, {"13", 6000.0f}},       {7, {"3", 312.11f}},
        {11, {"3", 3000.0f}},       {12, {"245", 6000.0f}},     {21, {"5", 2000.0f, 1, 2}},
        {22, {"5", 3000.0f, 1, 2}}, {23, {"5", 4000.0f, 1, 2}}, {61, {"3", 3010.20f, 1, 1}},
        {31, {optical, 0.25f}},     {32, {optical, 0.40f}},     {33, {optical, 0.07f}},
        {34, {optical, 0.35f}},     {35, {optical, 0.68f}},     {41, {optical, 0.11f}},
        {42, {optical, 0.12f}},     {43, {optical, 0.03f}},     {44, {optical, 0.77f}},
        {45, {optical, 0.86f}},     {52, {optical, 0.80f}},     {53, {optical, 0.90f}},
        {54, {optical, 0.20f}},     {55, {optical, 0.10f}},     {62, {"3", 3010.20f, 2, 2}},
        {71, {"6", 1.0f, 1, 1}},    {72, {"6", 1.0f, 2, 2}},
    };
    for (int code = 50; code <= 999; ++code)
        for (std::int32_t item = -80; item <= 130; ++item) {
            const auto found = rules.find(item);
            const Rule rule = item == 1              ? Rule{any, static_cast<float>(code)}
                              : found != rules.end() ? found->second
                                                     : Rule{};
            const int subtype = code % 100;
            const bool applies =
                rule.classes.find(static_cast<char>('0' + code / 100)) != rule.classes.npos &&
                subtype >= rule.first_subtype && subtype <= rule.last_subtype;
            ASSERT_FLOAT_EQ(property(static_cast<float>(code), item),
                            applies ? rule.value : kUndefined)
                << "item " << item << " of " << code;
        }
}

TEST(ElementRecord, TypeCodesAreRoundedAfterTheLimits) {
    for (const float code : {49.9f, 999.4f, kUndefined})
        for (const std::int32_t item : {1, 31, 71}) EXPECT_EQ(property(code, item), kUndefined);
    EXPECT_EQ(property(99.5f, 2), 2000.0f) << "class 1";
    EXPECT_EQ(property(99.4f, 2), kUndefined) << "class 0";
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
    for (const std::int32_t i : {1, 2, 4, 5}) EXPECT_EQ(ask(5, i, 71), 1.0f) << i;
    EXPECT_EQ(ask(5, 3, 71), kUndefined) << "not a valid record itself";
    EXPECT_EQ(ask(4, 1, 71), kUndefined) << "the list ends with record 4";
    EXPECT_EQ(ask(3, 1, 1), 501.0f) << "an invalid end does no harm";
    for (const std::int32_t i : {0, 6}) EXPECT_EQ(ask(5, i, 1), kUndefined) << i;
}

TEST(ElementRecord, ComplementsOfUndefinedFractions) {
    Record none = record(400.0f);
    none[6] = none[7] = none[8] = kUndefined;
    for (const std::int32_t item : {31, 32, 33, 34, 35, 41, 42, 43, 44, 45, 52, 53, 54, 55}) {
        const float expected =
            item < 50 ? (item % 10 < 4 ? 1e20f : -2e20f) : (item < 54 ? -1e20f : 1e20f);
        EXPECT_EQ(lib::BELDAT(none.data(), 1, 1, item), expected) << item;
    }
}

}  // namespace
