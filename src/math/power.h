// x^y in single precision.
//
// Algorithm: 2^(y log2 x) in double, log2 x by the table of log and a quintic, the power of two as
// in exp; relative error below 2^-36. Where that leaves the rounding in doubt (one call in 2^11)
// and outside the range of normal floats, e^(y log x) by the careful polynomials, of relative
// error below 2^-45. Where that still does (one in 2^20), log x by its series in atanh and e^(y log
// x) by Taylor's in 106 bits, of relative error below 2^-92. No power is expected nearer than 2^-86
// to a midpoint of two floats without being one, so what is nearer than 2^-88 is taken for the
// midpoint itself.
//
// Coefficients: tools/math/coefficients.sollya.
#pragma once

#include "math/double_double.h"
#include "math/scalar_exp_log.h"

namespace quorvel::math {
namespace detail {

constexpr Pair kLog2 = {0x1.62e42fefa39efp-1, 0x1.abc9e3b39803fp-56};

// log x = n log 2 + 2 atanh s, s = (m - 1)/(m + 1)
inline Pair log_pair(double x) noexcept {
    const auto [n, mantissa] = split_exponent(x);
    const Pair s = Pair{mantissa - 1.0, 0.0} / two_sum(mantissa, 1.0);
    const Pair z = s * s;
    Pair sum = {0.0, 0.0};
    for (int k = 43; k >= 1; k -= 2)
        sum = sum * z + Pair{1.0, 0.0} / Pair{static_cast<double>(k), 0.0};
    return Pair{n, 0.0} * kLog2 + Pair{2.0 * s.high, 2.0 * s.low} * sum;
}

// e^x = 2^n e^r for |x| < 180
inline Pair exp_pair(Pair x) noexcept {
    const double shifted = x.high * 0x1.71547652b82fep0 + kToExponent;
    const Pair r = x - Pair{shifted - kToExponent, 0.0} * kLog2;
    Pair sum = {1.0, 0.0};
    for (int k = 28; k >= 1; --k)
        sum = Pair{1.0, 0.0} + sum * r / Pair{static_cast<double>(k), 0.0};
    const double scale = power_of_two(shifted);
    return {sum.high * scale, sum.low * scale};
}

inline float pow_accurate(double x, double y) noexcept {
    Pair value = exp_pair(Pair{y, 0.0} * log_pair(x));
    if (std::abs(value.low) < 0x1p-88 * value.high) value.low = 0.0;
    return round_to_float(value);
}

// Zeros, infinities, NaN and negative bases
template <typename T>
T pow_of_special(T x, T y) noexcept;

}  // namespace detail

inline double pow(double x, double y) noexcept;  // see double_exp_log.h

namespace detail {

constexpr std::uint32_t kPowerError = 0x20000;  // see near_midpoint

// y log2 x; the quintic is split into factors.
QUORVEL_INLINE double exponent_of_power(float x, double y) noexcept {
    const auto [whole, r] = log_step(x);
    const double p = (r * (r - 0x1.35ff0694f121fp1) + 0x1.2ab3aeddd47c8p1) *
                     (r * (r + 0x1.2963fefb97fa2p0) + 0x1.147b77e64d224p1);
    return y * whole + (y * 0x1.2514fd90d97c2p-2) * r * p;
}

// In the terms of table_exp2, so that the compiler calculates the sum once
QUORVEL_INLINE bool within_normal_powers(double exponent) noexcept {
    return bits(exponent + kTo64ths) - (bits(kTo64ths) - 125 * 64) <= 2 * 125 * 64;
}

constexpr double kPowerErrorByLog = 0x1p-45;

// Not a number for a base that has no logarithm
QUORVEL_INLINE double power_by_log(float x, float y) noexcept {
    const double base = static_cast<double>(x);
    const auto [n, mantissa] = split_exponent(base);
    const double log_power = static_cast<double>(y) * log_sum(n, mantissa).high;
    const double power = exp_in_double(clamp(log_power, 128.0));
    const bool has_logarithm = (base > 0.0) & (base < kInfinity);
    return has_logarithm ? power : std::numeric_limits<double>::quiet_NaN();
}

inline float pow_of_any(float x, float y) noexcept {
    const double power = power_by_log(x, y);
    if (rounds_safely(power, kPowerErrorByLog)) return static_cast<float>(power);
    if (!(x > 0.0f && x - x == 0.0f && y - y == 0.0f)) return pow_of_special(x, y);
    return pow_accurate(static_cast<double>(x), static_cast<double>(y));
}

}  // namespace detail

QUORVEL_INLINE float pow(float x, float y) noexcept {
    using namespace detail;
    if (normal_and_positive(x)) [[likely]] {
        const double exponent = exponent_of_power(x, static_cast<double>(y));
        const double value = table_exp2(exponent);
        if (within_normal_powers(exponent) && !near_midpoint<kPowerError>(value)) [[likely]]
            return static_cast<float>(value);
    }
    return outlined<pow_of_any>(x, y);
}

namespace detail {

enum class Parity { not_an_integer, even, odd };

// A number of magnitude 2^53 or more is an even integer, which covers infinity.
inline Parity parity(double y) noexcept {
    const double a = std::abs(y);
    if (a >= 0x1p53) return Parity::even;
    const auto whole = static_cast<std::int64_t>(a);
    if (static_cast<double>(whole) != a) return Parity::not_an_integer;
    return (whole & 1) != 0 ? Parity::odd : Parity::even;
}

template <typename T>
T pow_of_special(T x, T y) noexcept {
    constexpr T kLimit = std::numeric_limits<T>::infinity();
    if (y == T{0} || x == T{1}) return T{1};
    if (x != x || y != y) return x + y;
    const T base = std::abs(x);
    const Parity kind = parity(static_cast<double>(y));
    // for a zero or infinite x or y
    T value = base == T{1} ? T{1} : (base > T{1}) == (y > T{0}) ? kLimit : T{0};
    if (base > T{0} && base < kLimit && std::abs(y) < kLimit) {
        if (kind == Parity::not_an_integer) return std::numeric_limits<T>::quiet_NaN();
        value = pow(base, y);
    }
    return std::signbit(x) && kind == Parity::odd ? -value : value;
}

}  // namespace detail
}  // namespace quorvel::math
