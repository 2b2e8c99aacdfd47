// The elementary functions of the core. All arguments of each are verified by tools/verify_math;
// here stand what IEEE 754 lays down, the arguments hardest to round, and identities that hold to
// the last bit because both sides are correctly rounded.
#include "frame/math.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace {

namespace own = quorvel::math;

template <typename T>
bool same(T a, T b) {
    return (a != a && b != b) || (a == b && std::signbit(a) == std::signbit(b));
}

#define EXPECT_SAME(computed, expected) \
    EXPECT_PRED2((same<std::decay_t<decltype(computed)>>), computed, expected)

template <typename T>
class SpecialValues : public testing::Test {
  protected:
    static constexpr T zero = 0, one = 1, two = 2, three = 3, half = T(0.5);
    static constexpr T inf = std::numeric_limits<T>::infinity();
    static constexpr T nan = std::numeric_limits<T>::quiet_NaN();
    static constexpr T tiny = std::numeric_limits<T>::denorm_min();
    static constexpr T huge = std::numeric_limits<T>::max();
};
using Precisions = testing::Types<float, double>;
TYPED_TEST_SUITE(SpecialValues, Precisions);

#define USE_VALUES                                                                      \
    [[maybe_unused]] constexpr auto zero = TestFixture::zero, one = TestFixture::one,   \
                                    two = TestFixture::two, three = TestFixture::three, \
                                    half = TestFixture::half, inf = TestFixture::inf,   \
                                    nan = TestFixture::nan, tiny = TestFixture::tiny,   \
                                    huge = TestFixture::huge

TYPED_TEST(SpecialValues, OfTrigonometricFunctions) {
    USE_VALUES;
    for (const TypeParam sign : {one, -one}) {
        EXPECT_SAME(own::sin(sign * zero), sign * zero);
        EXPECT_SAME(own::tan(sign * zero), sign * zero);
        EXPECT_SAME(own::asin(sign * zero), sign * zero);
        EXPECT_SAME(own::atan(sign * zero), sign * zero);
        EXPECT_SAME(own::cos(sign * zero), one);
        for (const TypeParam small : {tiny, tiny * 12345, std::numeric_limits<TypeParam>::min()}) {
            EXPECT_SAME(own::sin(sign * small), sign * small);
            EXPECT_SAME(own::tan(sign * small), sign * small);
            EXPECT_SAME(own::asin(sign * small), sign * small);
            EXPECT_SAME(own::atan(sign * small), sign * small);
        }
        EXPECT_SAME(own::sin(sign * inf), nan);
        EXPECT_SAME(own::cos(sign * inf), nan);
        EXPECT_SAME(own::tan(sign * inf), nan);
        EXPECT_SAME(own::asin(sign * std::nextafter(one, two)), nan);
        EXPECT_SAME(own::acos(sign * std::nextafter(one, two)), nan);
        EXPECT_SAME(own::asin(sign * inf), nan);
        EXPECT_SAME(own::acos(sign * inf), nan);
        EXPECT_SAME(own::atan(sign * inf), sign * own::asin(one));
    }
    EXPECT_SAME(own::acos(one), zero);
    for (const auto f :
         {+[](TypeParam x) { return own::sin(x); }, +[](TypeParam x) { return own::cos(x); },
          +[](TypeParam x) { return own::tan(x); }, +[](TypeParam x) { return own::asin(x); },
          +[](TypeParam x) { return own::acos(x); }, +[](TypeParam x) { return own::atan(x); },
          +[](TypeParam x) { return own::exp(x); }, +[](TypeParam x) { return own::log(x); }})
        EXPECT_SAME(f(nan), nan);
}

TYPED_TEST(SpecialValues, OfArcTangentOfTwoArguments) {
    USE_VALUES;
    const TypeParam quarter = own::acos(zero), straight = own::acos(-one), eighth = own::atan(one);
    for (const TypeParam sign : {one, -one}) {
        EXPECT_SAME(own::atan2(sign * zero, zero), sign * zero);
        EXPECT_SAME(own::atan2(sign * zero, -zero), sign * straight);
        EXPECT_SAME(own::atan2(sign * zero, tiny), sign * zero);
        EXPECT_SAME(own::atan2(sign * zero, -tiny), sign * straight);
        EXPECT_SAME(own::atan2(sign * tiny, zero), sign * quarter);
        EXPECT_SAME(own::atan2(sign * tiny, -zero), sign * quarter);
        EXPECT_SAME(own::atan2(sign * huge, inf), sign * zero);
        EXPECT_SAME(own::atan2(sign * huge, -inf), sign * straight);
        EXPECT_SAME(own::atan2(sign * inf, huge), sign * quarter);
        EXPECT_SAME(own::atan2(sign * inf, inf), sign * eighth);
        EXPECT_SAME(own::atan2(sign * inf, -inf), sign * own::atan2(one, -one));
        EXPECT_SAME(own::atan2(sign * tiny, huge), sign * zero);
        EXPECT_SAME(own::atan2(sign * huge, -huge), sign * own::atan2(one, -one));
        EXPECT_SAME(own::atan2(sign * inf, nan), nan);
        EXPECT_SAME(own::atan2(nan, sign * inf), nan);
        EXPECT_SAME(own::atan2(nan, sign * zero), nan);
    }
}

TYPED_TEST(SpecialValues, OfExponentialAndLogarithm) {
    USE_VALUES;
    EXPECT_SAME(own::exp(zero), one);
    EXPECT_SAME(own::exp(-zero), one);
    EXPECT_SAME(own::exp(inf), inf);
    EXPECT_SAME(own::exp(-inf), zero);
    EXPECT_SAME(own::exp(huge), inf);
    EXPECT_SAME(own::exp(-huge), zero);
    EXPECT_SAME(own::log(zero), -inf);
    EXPECT_SAME(own::log(-zero), -inf);
    EXPECT_SAME(own::log(one), zero);
    EXPECT_SAME(own::log(inf), inf);
    EXPECT_SAME(own::log(-tiny), nan);
    EXPECT_SAME(own::log(-inf), nan);
    EXPECT_GT(own::exp(own::log(huge) - half), huge / 2);
    EXPECT_GT(own::exp(own::log(tiny) + half), zero);
}

TYPED_TEST(SpecialValues, OfPower) {
    USE_VALUES;
    const struct {
        TypeParam x, y, power;
    } cases[] = {
        {nan, zero, one},
        {one, nan, one},
        {one, -inf, one},
        {-one, inf, one},
        {-one, nan, nan},
        {nan, one, nan},
        {two, nan, nan},
        {-two, half, nan},
        {-two, three, -8},
        {-two, two, 4},
        {-two, -three, TypeParam(-0.125)},
        {zero, three, zero},
        {-zero, three, -zero},
        {-zero, two, zero},
        {-zero, half, zero},
        {zero, -one, inf},
        {-zero, -one, -inf},
        {-zero, -two, inf},
        {-zero, -inf, inf},
        {inf, half, inf},
        {inf, -half, zero},
        {-inf, three, -inf},
        {-inf, two, inf},
        {-inf, -three, -zero},
        {-inf, half, inf},
        {half, inf, zero},
        {half, -inf, inf},
        {-two, inf, inf},
        {-two, -inf, zero},
        {two, huge, inf},
        {two, -huge, zero},
        {-two, huge, inf},
        {half, huge, zero},
        {huge, two, inf},
        {-huge, three, -inf},
        {tiny, two, zero},
        {-tiny, three, -zero},
        {tiny, half, own::sqrt(tiny)},
    };
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
}

TEST(CorrectRounding, OfPowersOnMidpointsGoesToEven) {
    EXPECT_EQ(own::pow(4097.0f, 2.0f), 16785408.0f);   // 16785409, down
    EXPECT_EQ(own::pow(259.0f, 3.0f), 17373980.0f);    // 17373979, up
    EXPECT_EQ(own::pow(67081.0f, 1.5f), 17373980.0f);  // 259^2
    EXPECT_EQ(own::pow(0x1p-149f, 1.0f), 0x1p-149f);
    EXPECT_EQ(own::pow(0x1p-75f, 2.0f), 0.0f);         // half the smallest number
    EXPECT_EQ(own::pow(0x1.8p-74f, 2.0f), 0x1p-147f);  // 4.5 times the smallest
    EXPECT_EQ(own::pow(0x1.fffffep0f, 128.0f), 0x1.ffffp127f);
    // a quotient halfway between subnormals has an arc tangent just below
    EXPECT_EQ(own::atan2(3 * 0x1p-149f, 2.0f), 0x1p-149f);
}

TEST(CorrectRounding, OfWholePowersOfTen) {
    float power = 1.0f;
    for (int n = 0; n <= 10; ++n, power *= 10.0f) {
        EXPECT_EQ(own::exp10(static_cast<float>(n)), power);
        EXPECT_EQ(own::log10(power), static_cast<float>(n));
        EXPECT_EQ(own::pow(10.0f, static_cast<float>(n)), power);
    }
}

// A function in its forms for a single value and for loops
struct Forms {
    const char* name;
    float (*single)(float);
    float (*in_loop)(float);
};
#define FORMS(f)                                                                       \
    Forms {                                                                            \
#f, [](float x) { return own::f(x); }, [](float x) { return own::loop::f(x); } \
    }
#define SINCOS_FORMS(f)                                         \
    Forms {                                                     \
        "sincos." #f, [](float x) { return own::sincos(x).f; }, \
            [](float x) { return own::loop::sincos(x).f; }      \
    }
constexpr Forms kForms[] = {
    FORMS(sin),  FORMS(cos),  SINCOS_FORMS(sin), SINCOS_FORMS(cos), FORMS(tan), FORMS(asin),
    FORMS(acos), FORMS(atan), FORMS(exp),        FORMS(exp10),      FORMS(log), FORMS(log10),
};

// Where IEEE 754 lays down the result, and where the quick calculation of a single value begins or
// ends
TEST(BothForms, AgreeAtTheLimits) {
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    for (const Forms& f : kForms)
        for (const float limit : {0.0f,      0x1p-149f,
                                  0x1p-126f, 0x1p-7f,
                                  0.125f,    1.0f,
                                  2.0f,      8.0f,
                                  37.75f,    38.5f,
                                  45.0f,     87.0f,
                                  88.75f,    104.0f,
                                  0x1p14f,   0x1p28f,
                                  0x1p78f,   std::numeric_limits<float>::max(),
                                  kInfinity, std::numeric_limits<float>::quiet_NaN()})
            for (const float x :
                 {std::nextafter(limit, 0.0f), limit, std::nextafter(limit, kInfinity)})
                for (const float signed_x : {x, -x})
                    EXPECT_PRED2(same<float>, f.single(signed_x), f.in_loop(signed_x))
                        << f.name << "(" << std::hexfloat << signed_x << ")";
}

class Identities : public testing::Test {
  protected:
    float any() { return std::bit_cast<float>(static_cast<std::uint32_t>(random_())); }
    float between(float low, float high) {
        return std::uniform_real_distribution<float>(low, high)(random_);
    }

    static constexpr int kSamples = 100000;

  private:
    std::mt19937 random_{1};
};

TEST_F(Identities, HoldForEveryBitPattern) {
    for (int i = 0; i < kSamples; ++i) {
        const float x = any(), a = std::abs(x);
        const own::SinCos both = own::sincos(x);
        ASSERT_PRED2(same<float>, both.sin, own::sin(x)) << x;
        ASSERT_PRED2(same<float>, both.cos, own::cos(x)) << x;
        for (const Forms& f : kForms)
            ASSERT_PRED2(same<float>, f.single(x), f.in_loop(x)) << f.name << "(" << x << ")";
        ASSERT_PRED2(same<float>, own::sin(-x), -own::sin(x)) << x;
        ASSERT_PRED2(same<float>, own::cos(-x), own::cos(x)) << x;
        ASSERT_PRED2(same<float>, own::tan(-x), -own::tan(x)) << x;
        ASSERT_PRED2(same<float>, own::atan(-x), -own::atan(x)) << x;
        ASSERT_PRED2(same<float>, own::atan2(x, 1.0f), own::atan(x)) << x;
        ASSERT_PRED2(same<float>, own::pow(x, 1.0f), x) << x;
        ASSERT_PRED2(same<float>, own::pow(x, 2.0f), x * x) << x;
        ASSERT_PRED2(same<float>, own::pow(x, -1.0f), 1.0f / x) << x;
        ASSERT_PRED2(same<float>, own::pow(a, 0.5f), own::sqrt(a)) << x;
        ASSERT_PRED2(same<float>, own::pow(10.0f, x), own::exp10(x)) << x;
    }
}

TEST_F(Identities, HoldForArraysOfPairs) {
    constexpr std::size_t kCount = 20011;
    std::vector<float> x(kCount), y(kCount), angle(kCount), power(kCount);
    for (std::size_t i = 0; i < kCount; ++i) {
        x[i] = i % 64 == 0 ? any() : between(0.0f, 10.0f);
        y[i] = i % 256 < 128 ? any() : between(-10.0f, 10.0f);
    }
    own::loop::atan2(y.data(), x.data(), angle.data(), kCount);
    own::loop::pow(x.data(), y.data(), power.data(), kCount);
    for (std::size_t i = 0; i < kCount; ++i) {
        ASSERT_PRED2(same<float>, angle[i], own::atan2(y[i], x[i])) << y[i] << ", " << x[i];
        ASSERT_PRED2(same<float>, power[i], own::pow(x[i], y[i])) << x[i] << ", " << y[i];
    }
}

TEST_F(Identities, HoldBetweenDirections) {
    for (int i = 0; i < kSamples; ++i) {
        const float y = between(0.0f, 10.0f), x = between(-10.0f, 10.0f);
        const float angle = own::atan2(y, x);
        ASSERT_PRED2(same<float>, own::atan2(-y, x), -angle) << y << ", " << x;
        ASSERT_PRED2(same<float>, own::atan2(y * 0x1p60f, x * 0x1p60f), angle) << y << ", " << x;
        ASSERT_NEAR(angle + own::atan2(x, y), own::acos(0.0f), 3e-7f) << y << ", " << x;
        const float radius = own::sqrt(x * x + y * y);
        ASSERT_NEAR(radius * own::sin(angle), y, 5e-7f * radius) << y << ", " << x;
        ASSERT_NEAR(radius * own::cos(angle), x, 5e-7f * radius) << y << ", " << x;
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
