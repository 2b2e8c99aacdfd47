// e^x, 10^x, natural and decimal logarithm in single precision, where tables do not suffice.
//
// Algorithm: x = n log 2 + r (10^x: x = n log10 2 + r / log 10), |r| <= log(2)/2; the result is 2^n
// times a polynomial of degree 11 in r. Arguments are clamped where the result has long overflowed
// or vanished, so that 2^n stays a normal double; rounding to float makes infinities, subnormals
// and zeros. x = 2^n (1 + f), 1/sqrt 2 <= 1 + f < sqrt 2; with s = f / (2 + f),
// log(1 + f) = f - f^2/2 + s (f^2/2 + s^2 P(s^2)), P a polynomial of degree 6.
//
// Error before the rounding to float, in ulp of double: exp 1.0, exp10 1.2, log 0.6, log10 1.7. exp
// and exp10 have no exceptions. Where log falls on a midpoint of two floats, which it does for five
// arguments, the rest of its last sum decides; log10 has one exception.
//
// Coefficients and constants: tools/math/coefficients.sollya.
#pragma once

#include "math/bits.h"

namespace quorvel::math {
namespace detail {

// Added to n it leaves n + 1023, the exponent field of 2^n, in the lowest bits.
constexpr double kToExponent = kToInteger + 1023.0;

template <class D>
QUORVEL_INLINE D power_of_two(D shifted_exponent) noexcept {
    return from_bits(bits(shifted_exponent) << 52);
}

// e^r - 1 - r, |r| <= 0.347
template <class D>
QUORVEL_INLINE D exp_tail(D r) noexcept {
    const D r2 = r * r, r4 = r2 * r2;
    const D p0 = (0x1.000000000000ap-1 + 0x1.55555555554fcp-3 * r) +
                 r2 * (0x1.5555555550689p-5 + 0x1.111111112725dp-7 * r);
    const D p4 = (0x1.6c16c18488a72p-10 + 0x1.a01a012dcb967p-13 * r) +
                 r2 * (0x1.a01999231b6f2p-16 + 0x1.71df1d1476a07p-19 * r);
    const D p8 = 0x1.28ae3c99e5f09p-22 + 0x1.ad8d55a45b3dcp-26 * r;
    return r2 * (p0 + r4 * (p4 + r4 * p8));
}

QUORVEL_INLINE double exp_kernel(double r) noexcept { return 1.0 + (r + exp_tail(r)); }

// e^x, |x| <= 700
QUORVEL_INLINE double exp_in_double(double x) noexcept {
    const double shifted = x * 0x1.71547652b82fep0 + kToExponent;
    const double n = shifted - kToExponent;
    const double r = (x - n * 0x1.62e42fefa4p-1) + n * 0x1.8432a1b0e2634p-43;
    return exp_kernel(r) * power_of_two(shifted);
}

template <class D>
QUORVEL_INLINE D clamp(D x, double limit) noexcept {
    const D above = select(x < -limit, D(-limit), x);
    return select(above > limit, D(limit), above);
}

// x = 2^exponent * mantissa, 1/sqrt 2 <= mantissa < sqrt 2, for a positive normal x
template <class D>
struct Scaled {
    D exponent, mantissa;
};

template <class D>
QUORVEL_INLINE Scaled<D> split_exponent(D x) noexcept {
    constexpr std::uint64_t kRootHalf = 0x3fe6a09e667f3bcd, kOne = 0x3ff0000000000000,
                            kFraction = 0x000fffffffffffff, kTwo52 = 0x4330000000000000;
    const auto b = bits(x) + (kOne - kRootHalf);
    return {from_bits((b >> 52) | kTwo52) - (0x1p52 + 1023.0),
            from_bits((b & kFraction) + kRootHalf)};
}

// log(1 + f) for the mantissa of a float: f and f^2 are exact.
template <class D>
QUORVEL_INLINE PairOf<D> log_kernel(D f) noexcept {
    const D s = f / (2.0 + f), half_square = 0.5 * f * f;
    const D z = s * s, z2 = z * z;
    const D p =
        (0x1.5555555555593p-1 + 0x1.999999997f9dep-2 * z) +
        z2 * ((0x1.249249422d42ep-2 + 0x1.c71c51d420fep-3 * z) +
              z2 * ((0x1.74664ab095832p-3 + 0x1.39a07573de8e8p-3 * z) + z2 * 0x1.2f12fe9e025dcp-3));
    const PairOf<D> head = fast_two_sum(f, D(-half_square));
    return {head.high, head.low + s * (half_square + z * p)};
}

// n log 2 + log mantissa, with the error of the sum
template <class D>
QUORVEL_INLINE PairOf<D> log_sum(D n, D mantissa) noexcept {
    const PairOf<D> log_mantissa = log_kernel(D(mantissa - 1.0));
    const PairOf<D> head = fast_two_sum(D(n * 0x1.62e42fefa4p-1), log_mantissa.high);
    return fast_two_sum(head.high, D(head.low + (log_mantissa.low - n * 0x1.8432a1b0e2634p-43)));
}

// `value` where 0 < x < infinity, else the logarithm's limit or NaN
template <class D>
QUORVEL_INLINE D log_or_limit(D x, D value) noexcept {
    const D below = select(x == 0.0, D(-kInfinity), D(std::numeric_limits<double>::quiet_NaN()));
    return select(x > 0.0, select(x < kInfinity, value, D(kInfinity)), below);
}

}  // namespace detail

namespace detail::careful {

QUORVEL_INLINE float exp(float x) noexcept {
    return static_cast<float>(detail::exp_in_double(detail::clamp(static_cast<double>(x), 128.0)));
}

QUORVEL_INLINE float exp10(float x) noexcept {
    const double t = detail::clamp(static_cast<double>(x), 64.0);
    const double shifted = t * 0x1.a934f0979a371p1 + detail::kToExponent;
    const double n = shifted - detail::kToExponent;
    const double r = t - n * 0x1.34413509f8p-2;
    const double tail = n * 0x1.ba66111603c15p-43 - r * 0x1.f48ad494ea3e9p-53;
    return static_cast<float>(detail::exp_kernel(r * 0x1.26bb1bbb55516p1 + tail) *
                              detail::power_of_two(shifted));
}

QUORVEL_INLINE float log(float x) noexcept {
    const double t = static_cast<double>(x);
    const auto [n, mantissa] = detail::split_exponent(t);
    const detail::Pair value = detail::log_sum(n, mantissa);
    return static_cast<float>(detail::log_or_limit(t, detail::break_tie(value.high, value.low)));
}

QUORVEL_INLINE float log10(float x) noexcept {
    const double t = static_cast<double>(x);
    const auto [n, mantissa] = detail::split_exponent(t);
    const detail::Pair log_mantissa = detail::log_kernel(mantissa - 1.0);
    const double scaled = (log_mantissa.high + log_mantissa.low) * 0x1.bcb7b1526e50ep-2;
    const double near = n * 0x1.34413509f8p-2 + (scaled - n * 0x1.80433b83b532ap-44);
    const double value = t == 0x1.fddcf4p-98 ? -0x1.d33a46p4 : near;
    return static_cast<float>(detail::log_or_limit(t, value));
}

}  // namespace detail::careful
}  // namespace quorvel::math
