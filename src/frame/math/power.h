// x^y in single precision.
//
// Algorithm: 2^(y log2 x) in double, log2 x and the power of two each by a table and a short
// polynomial, of relative error below 2^-42. Where that leaves the rounding in doubt (one call in
// 2^16), log x by its series in atanh and e^(y log x) by Taylor's in 106 bits, of relative error
// below 2^-92. No power is expected nearer than 2^-86 to a midpoint of two floats without being
// one, so what is nearer than 2^-88 is taken for the midpoint itself.
//
// The second step is a branch, and with it a plain loop does not vectorise.
//
// Coefficients: tools/math/coefficients.sollya; tables: tools/math/power_tables.py.
#pragma once

#include "frame/math/double_double.h"
#include "frame/math/exponential.h"
#include "frame/math/logarithm.h"
#include "frame/math/power_tables.h"

namespace quorvel::math {
namespace detail {

constexpr Pair kLog2 = {0x1.62e42fefa39efp-1, 0x1.abc9e3b39803fp-56};

// log2 x, x > 0 a float; relative error below 2^-49
inline double log2_in_double(double x) noexcept {
    const std::uint64_t offset = bits(x) - kLogOrigin;
    const LogStep step = kLogSteps[offset >> 46 & 63];
    const auto n = static_cast<double>(static_cast<std::int64_t>(offset) >> 52);
    const double r = from_bits(bits(x) - (offset & 0xfff0000000000000)) * step.inverse - 1.0;
    const double r2 = r * r;
    const double p = (0x1.71547652b8306p0 - 0x1.71547652b8328p-1 * r) +
                     r2 * ((0x1.ec709dbb651cbp-2 - 0x1.7154764828e1bp-2 * r) +
                           r2 * (0x1.277bf87560265p-2 - 0x1.ec7b001902f3ap-3 * r));
    return (n + step.log2) + r * p;
}

// 2^exponent, |exponent| <= 256; relative error below 2^-43
inline double exp2_in_double(double exponent) noexcept {
    constexpr double kTo32nds = kToInteger / 32.0;
    const double shifted = exponent + kTo32nds;
    const double r = exponent - (shifted - kTo32nds);
    const std::uint64_t steps = bits(shifted);
    const double scale = from_bits(bits(kExpSteps[steps & 31]) + (steps >> 5 << 52));
    const double p = (0x1.62e42fef6d2cap-1 + 0x1.ebfbdff89d7dap-3 * r) +
                     r * r * (0x1.c6b167b28a6e5p-5 + 0x1.3b2a783aad0fap-7 * r);
    return scale + scale * r * p;
}

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

[[gnu::cold, gnu::noinline]] inline float pow_accurate(double x, double y) noexcept {
    Pair value = exp_pair(Pair{y, 0.0} * log_pair(x));
    if (std::abs(value.low) < 0x1p-88 * value.high) value.low = 0.0;
    return round_to_float(value);
}

// Zeros, infinities, NaN and negative bases
template <typename T>
T pow_of_special(T x, T y) noexcept;

}  // namespace detail

inline double pow(double x, double y) noexcept;  // see double_exp_log.h

inline float pow(float x, float y) noexcept {
    const auto x_bits = std::bit_cast<std::uint32_t>(x), y_bits = std::bit_cast<std::uint32_t>(y);
    const bool x_positive = x_bits - 1 < 0x7f7fffff, y_finite = (y_bits & 0x7fffffff) < 0x7f800000;
    if (!x_positive || !y_finite) [[unlikely]]
        return detail::pow_of_special(x, y);
    const double base = static_cast<double>(x), power = static_cast<double>(y);
    const double exponent = power * detail::log2_in_double(base);
    if (detail::magnitude(exponent) < 126.0) [[likely]] {
        const double value = detail::exp2_in_double(exponent);
        if (detail::far_from_midpoint(value, 12)) [[likely]]
            return static_cast<float>(value);
    } else {
        const double value = detail::exp2_in_double(detail::clamp(exponent, 256.0));
        if (detail::rounds_safely(value, 0x1p-41)) return static_cast<float>(value);
    }
    return detail::pow_accurate(base, power);
}

namespace detail {

enum class Parity { kNotAnInteger, kEven, kOdd };

// A number of magnitude 2^53 or more is an even integer, which covers infinity.
inline Parity parity(double y) noexcept {
    const double a = std::abs(y);
    if (a >= 0x1p53) return Parity::kEven;
    const auto whole = static_cast<std::int64_t>(a);
    if (static_cast<double>(whole) != a) return Parity::kNotAnInteger;
    return (whole & 1) != 0 ? Parity::kOdd : Parity::kEven;
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
        if (kind == Parity::kNotAnInteger) return std::numeric_limits<T>::quiet_NaN();
        value = pow(base, y);
    }
    return std::signbit(x) && kind == Parity::kOdd ? -value : value;
}

}  // namespace detail
}  // namespace quorvel::math
