// The elementary functions of the core. tools/verify_math compares all arguments of each with MPFR,
// of which every run of the tests takes a sample; here stand what a sample misses: what IEEE 754
// lays down, and the arguments hardest to round.
#include "math/math.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>

namespace {

namespace own = quorvel::math;

template <typename T>
bool same(T a, T b) {
    return (a != a && b != b) || (a == b && std::signbit(a) == std::signbit(b));
}

#define EXPECT_SAME(computed, expected) \
    EXPECT_PRED2((same<std::decay_t<decltype(computed)>>), computed, expected)

template <typename T>
class SpecialValues : public testing::Test {};
using Precisions = testing::Types<float, double>;
TYPED_TEST_SUITE(SpecialValues, Precisions);

#define USE_VALUES                                                                            \
    using Limits = std::numeric_limits<TypeParam>;                                            \
    [[maybe_unused]] constexpr TypeParam zero = 0, one = 1, two = 2, three = 3, half = 0.5f,  \
                                         inf = Limits::infinity(), nan = Limits::quiet_NaN(), \
                                         tiny = Limits::denorm_min(), huge = Limits::max()

TYPED_TEST(SpecialValues, OfFunctionsOfOneArgument) {
    USE_VALUES;
    using Function = TypeParam (*)(TypeParam);
    const Function sin = own::sin, cos = own::cos, tan = own::tan, asin = own::asin,
                   acos = own::acos, atan = own::atan, exp = own::exp, log = own::log;
    for (const TypeParam sign : {one, -one}) {
        for (const Function f : {sin, tan, asin, atan})
            for (const TypeParam small : {zero, tiny, tiny * 12345, Limits::min()})
                EXPECT_SAME(f(sign * small), sign * small);
        EXPECT_SAME(cos(sign * zero), one);
        EXPECT_SAME(exp(sign * zero), one);
        EXPECT_SAME(log(sign * zero), -inf);
        for (const Function f : {sin, cos, tan, asin, acos}) EXPECT_SAME(f(sign * inf), nan);
        for (const Function f : {asin, acos}) EXPECT_SAME(f(sign * std::nextafter(one, two)), nan);
        EXPECT_SAME(atan(sign * inf), sign * asin(one));
    }
    EXPECT_SAME(acos(one), zero);
    for (const TypeParam large : {huge, inf}) {
        EXPECT_SAME(exp(large), inf);
        EXPECT_SAME(exp(-large), zero);
    }
    EXPECT_SAME(log(one), zero);
    EXPECT_SAME(log(inf), inf);
    for (const TypeParam negative : {-tiny, -inf}) EXPECT_SAME(log(negative), nan);
    EXPECT_GT(exp(log(huge) - half), huge / 2);
    EXPECT_GT(exp(log(tiny) + half), zero);
    for (const Function f : {sin, cos, tan, asin, acos, atan, exp, log}) EXPECT_SAME(f(nan), nan);
}

TYPED_TEST(SpecialValues, OfArcTangentOfTwoArguments) {
    USE_VALUES;
    const TypeParam quarter = own::acos(zero), straight = own::acos(-one), eighth = own::atan(one),
                    three_eighths = own::atan2(one, -one);
    const struct {
        TypeParam y, x, angle;
    } cases[] = {{zero, zero, zero},
                 {zero, -zero, straight},
                 {zero, tiny, zero},
                 {zero, -tiny, straight},
                 {tiny, zero, quarter},
                 {tiny, -zero, quarter},
                 {huge, inf, zero},
                 {huge, -inf, straight},
                 {inf, huge, quarter},
                 {inf, inf, eighth},
                 {inf, -inf, three_eighths},
                 {tiny, huge, zero},
                 {huge, -huge, three_eighths},
                 {inf, nan, nan}};
    for (const auto& [y, x, angle] : cases) {
        EXPECT_PRED2(same<TypeParam>, own::atan2(y, x), angle) << y << ", " << x;
        EXPECT_PRED2(same<TypeParam>, own::atan2(-y, x), -angle) << -y << ", " << x;
    }
    EXPECT_SAME(own::atan2(nan, zero), nan);
}

TYPED_TEST(SpecialValues, OfPower) {
    USE_VALUES;
    const struct {
        TypeParam x, y, power;
    } cases[] = {{nan, zero, one},
                 {one, nan, one},
                 {one, -inf, one},
                 {-one, inf, one},
                 {-one, nan, nan},
                 {nan, one, nan},
                 {-two, half, nan},
                 {-two, three, -8},
                 {-two, -three, TypeParam(-0.125)},
                 {zero, three, zero},
                 {-zero, three, -zero},
                 {-zero, two, zero},
                 {zero, -one, inf},
                 {-zero, -one, -inf},
                 {-zero, -two, inf},
                 {inf, half, inf},
                 {inf, -half, zero},
                 {-inf, three, -inf},
                 {-inf, -three, -zero},
                 {half, inf, zero},
                 {half, -inf, inf},
                 {two, huge, inf},
                 {two, -huge, zero},
                 {-huge, three, -inf},
                 {-tiny, three, -zero},
                 {tiny, half, own::sqrt(tiny)}};
    for (const auto& c : cases)
        EXPECT_PRED2(same<TypeParam>, own::pow(c.x, c.y), c.power) << c.x << "^" << c.y;
}

// Values from MPFR. Within 2^-53 of a midpoint of two floats, or huge.
TEST(CorrectRounding, OfHardArguments) {
    EXPECT_EQ(own::sin(0x1.33333p13f), -0x1.63f4bap-2f);
    EXPECT_EQ(own::sin(-0x1.33333p13f), 0x1.63f4bap-2f);
    EXPECT_EQ(own::sin(0x1.95f654p44f), -0x1.fcf42ep-1f);
    EXPECT_EQ(own::cos(0x1.3170fp63f), 0x1.fe2976p-1f);
    EXPECT_EQ(own::cos(-0x1.2b9622p67f), 0x1.f0285ep-1f);
    EXPECT_EQ(own::cos(0x1.119ae6p115f), 0x1.f3176ap-1f);
    EXPECT_EQ(own::sin(0x1.fffffep127f), -0x1.0b3366p-1f);
    EXPECT_EQ(own::cos(0x1.fffffep127f), 0x1.b4bf2cp-1f);
    EXPECT_EQ(own::tan(0x1.fffffep127f), -0x1.393d94p-1f);
    EXPECT_EQ(own::acos(0x1.04c444p-12f), 0x1.920f6ap0f);
    EXPECT_EQ(own::acos(0x1.110b46p-26f), 0x1.921fb6p0f);
    EXPECT_EQ(own::atan(0x1.1ad646p-4f), 0x1.1a6386p-4f);
    EXPECT_EQ(own::log(0x1.827a74p-7f), -0x1.1c2b1ep2f);
    EXPECT_EQ(own::log(0x1.2f1fd6p3f), 0x1.1fcbcep1f);
    EXPECT_EQ(own::log(0x1.bacb4ap25f), 0x1.1e0696p4f);
    EXPECT_EQ(own::log(0x1.b121a6p76f), 0x1.a9a3f2p5f);
    EXPECT_EQ(own::log(0x1.6351d8p95f), 0x1.08b512p6f);
    EXPECT_EQ(own::log10(0x1.fddcf4p-98f), -0x1.d33a46p4f);
    float power = 1.0f;
    for (int n = 0; n <= 10; ++n, power *= 10.0f) {
        EXPECT_EQ(own::exp10(static_cast<float>(n)), power);
        EXPECT_EQ(own::log10(power), static_cast<float>(n));
    }
}

// Values from MPFR; the functions promise less than one unit in the last place.
TEST(DoublePrecision, AgreesWithKnownValues) {
    const struct {
        double computed, known;
    } values[] = {
        {own::sin(1e22), -0.85220084976718880177},
        {own::cos(1e22), 0.52321478539513894550},
        {own::tan(1e22), -1.62877822560689887855},
        {own::sin(0x1.6ac5b262ca1ffp849), 1.0},
        {own::cos(0x1.6ac5b262ca1ffp849), -4.68716592425462761112e-19},
        {own::exp(1.0), 2.71828182845904523536},
        {own::exp(-745.0), 0x1p-1074},
        {own::log(10.0), 2.30258509299404568402},
        {own::log(0x1p-1074), -744.44007192138126231410},
        {own::atan(1.0), 0.78539816339744830962},
        {own::asin(0.75), 0.84806207898148100805},
        {own::acos(-0.75), 2.41885840577637762728},
        {own::atan2(-3.0, -4.0), -2.49809154479650885166},
        {own::pow(1.0000000001, 1e10), 2.71828205323478738164},
        {own::pow(10.0, 308.0), 1e308},
        {own::pow(10.0, -320.0), 1e-320},
    };
    for (const auto& [computed, known] : values)
        EXPECT_TRUE(computed == known || computed == std::nextafter(known, computed))
            << std::hexfloat << computed << " for " << known;
}

}  // namespace
