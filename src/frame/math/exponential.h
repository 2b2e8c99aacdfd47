// e^x and 10^x in single precision.
//
// Algorithm: x = n log 2 + r (10^x: x = n log10 2 + r / log 10), |r| <= log(2)/2; the result is 2^n
// times a polynomial of degree 11 in r. Arguments are clamped where the result has long overflowed
// or vanished, so that 2^n stays a normal double; rounding to float makes infinities, subnormals
// and zeros.
//
// Error before the rounding to float, in ulp of double: exp 1.0, exp10 1.2. No exceptions.
//
// Coefficients and constants: tools/math/coefficients.sollya.
#pragma once

#include "frame/math/bits.h"

namespace quorvel::math {
namespace detail {

// Added to n it leaves n + 1023, the exponent field of 2^n, in the lowest bits.
constexpr double kToExponent = kToInteger + 1023.0;

QUORVEL_INLINE double power_of_two(double shifted_exponent) noexcept {
    return from_bits(bits(shifted_exponent) << 52);
}

// e^r - 1 - r, |r| <= 0.347
QUORVEL_INLINE double exp_tail(double r) noexcept {
    const double r2 = r * r, r4 = r2 * r2;
    const double p0 = (0x1.000000000000ap-1 + 0x1.55555555554fcp-3 * r) +
                      r2 * (0x1.5555555550689p-5 + 0x1.111111112725dp-7 * r);
    const double p4 = (0x1.6c16c18488a72p-10 + 0x1.a01a012dcb967p-13 * r) +
                      r2 * (0x1.a01999231b6f2p-16 + 0x1.71df1d1476a07p-19 * r);
    const double p8 = 0x1.28ae3c99e5f09p-22 + 0x1.ad8d55a45b3dcp-26 * r;
    return r2 * (p0 + r4 * (p4 + r4 * p8));
}

QUORVEL_INLINE double exp_kernel(double r) noexcept { return 1.0 + (r + exp_tail(r)); }

QUORVEL_INLINE double clamp(double x, double limit) noexcept {
    const double above = x < -limit ? -limit : x;
    return above > limit ? limit : above;
}

}  // namespace detail

QUORVEL_INLINE float exp(float x) noexcept {
    const double t = detail::clamp(static_cast<double>(x), 128.0);
    const double shifted = t * 0x1.71547652b82fep0 + detail::kToExponent;
    const double n = shifted - detail::kToExponent;
    const double r = (t - n * 0x1.62e42fefa4p-1) + n * 0x1.8432a1b0e2634p-43;
    return static_cast<float>(detail::exp_kernel(r) * detail::power_of_two(shifted));
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

}  // namespace quorvel::math
