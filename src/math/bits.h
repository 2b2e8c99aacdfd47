// Bit patterns and rounding tricks shared by the transcendental functions.
//
// Everything under src/math/ computes in double with + - * / sqrt and integer operations only,
// each correctly rounded by IEEE 754, so that the result depends on neither compiler nor machine.
#pragma once

#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <limits>

#include "base/number.h"

static_assert(FLT_EVAL_METHOD == 0, "float and double must be evaluated in their own precision");
static_assert(std::numeric_limits<double>::is_iec559 && std::numeric_limits<float>::is_iec559);
#ifdef __FAST_MATH__
#error "src/math needs IEEE 754 arithmetic: compile without -ffast-math"
#endif

// Formulas call these functions more than anything else.
#define QUORVEL_INLINE [[gnu::always_inline]] inline

namespace quorvel::math {

// The processor's instruction even without optimisation: some C libraries round twice.
QUORVEL_INLINE float sqrt(float x) noexcept { return __builtin_sqrtf(x); }
QUORVEL_INLINE double sqrt(double x) noexcept { return __builtin_sqrt(x); }

template <class R>
struct SinCosOf {
    R sin, cos;
};
using SinCos = SinCosOf<float>;

namespace detail {

constexpr std::uint64_t kSignBit = std::uint64_t{1} << 63;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Adding and subtracting rounds a double below 2^51 to the nearest integer; in between the integer
// stands, two's complement, in the low bits of the sum.
constexpr double kToInteger = 0x1.8p52;

QUORVEL_INLINE std::uint64_t bits(double x) noexcept { return std::bit_cast<std::uint64_t>(x); }
QUORVEL_INLINE double from_bits(std::uint64_t b) noexcept { return std::bit_cast<double>(b); }
QUORVEL_INLINE double magnitude(double x) noexcept { return __builtin_fabs(x); }
QUORVEL_INLINE std::uint64_t sign(double x) noexcept { return bits(x) & kSignBit; }
QUORVEL_INLINE double flip_sign(double x, std::uint64_t sign_bit) noexcept {
    return from_bits(bits(x) ^ sign_bit);
}

// Functions written for a type D, which is double or a pack of them, need these by the names that
// packs have for them.
QUORVEL_INLINE double square_root(double x) noexcept { return sqrt(x); }
QUORVEL_INLINE double lookup(const double* table, std::uint64_t index) noexcept {
    return table[index];
}

// The exact value of a double sum or product of two terms is a Pair: high is the rounded value.
template <class D>
struct PairOf {
    D high, low;
};
using Pair = PairOf<double>;

// |a| >= |b|, or a = 0
template <class D>
QUORVEL_INLINE PairOf<D> fast_two_sum(D a, D b) noexcept {
    const D s = a + b;
    return {s, (a - s) + b};
}

// Where a sum of doubles, value = rounded(exact), falls on the midpoint of two floats, its rounding
// error tells the side of the exact sum, which is no midpoint itself. Normal floats only.
QUORVEL_INLINE double break_tie(double value, double error) noexcept {
    if ((bits(value) & 0x1fffffff) == 0x10000000) [[unlikely]]
        return from_bits(bits(value) + (sign(value) == sign(error) ? 1 : ~std::uint64_t{0}));
    return value;
}

}  // namespace detail
}  // namespace quorvel::math
