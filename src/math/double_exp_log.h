// e^x, natural logarithm and x^y in double precision.
//
// Algorithm: exp and log with the polynomials of the single-precision functions; x^y = e^(y log x),
// the logarithm and the product in 106 bits with a relative error of 2^-65.
//
// Error in ulp: exp 0.75, log 0.7, pow 0.85.
//
// Coefficients and constants: tools/math/coefficients.sollya.
#pragma once

#include "math/power.h"

namespace quorvel::math {
namespace detail {

// e^(x.high + x.low)
template <class D>
QUORVEL_INLINE D exp_of(PairOf<D> x) noexcept {
    const D t = clamp(x.high, 1000.0);
    const D n = (t * 0x1.71547652b82fep0 + kToInteger) - kToInteger;
    const D head = t - n * 0x1.62e42fefa4p-1;
    const D tail = n * 0x1.8432a1b0e2634p-43 + select(t == x.high, x.low, D(0.0));
    const PairOf<D> r = fast_two_sum(head, tail);
    const PairOf<D> sum = fast_two_sum(D(1.0), r.high);
    const D p = sum.high + (sum.low + (r.low + exp_tail(r.high)));
    // in two steps, since 2^n may not be a double where the result still is one
    const D first = (0.5 * n + kToExponent) - kToExponent;
    return p * power_of_two(D(first + kToExponent)) * power_of_two(D((n - first) + kToExponent));
}

template <class D>
QUORVEL_INLINE Scaled<D> split_exponent_or_subnormal(D x) noexcept {
    const auto subnormal = x < 0x1p-1022;
    const auto [n, mantissa] = split_exponent(select(subnormal, D(x * 0x1p54), x));
    return {select(subnormal, D(n - 54.0), n), mantissa};
}

template <class D>
QUORVEL_INLINE D log_of(D x) noexcept {
    const auto [n, mantissa] = split_exponent_or_subnormal(x);
    return log_or_limit(x, log_sum(n, mantissa).high);
}

// log x for finite x > 0 to 2^-65: 2 s + s^3 (2/3 + s^2 P(s^2)), s = (m - 1)/(m + 1)
inline Pair log_for_pow(double x) noexcept {
    const auto [n, mantissa] = split_exponent_or_subnormal(x);
    const Pair s = Pair{mantissa - 1.0, 0.0} / two_sum(mantissa, 1.0);
    const Pair square = s * s;
    const double z = square.high, z2 = z * z;
    const double p = ((0x1.9999999999995p-2 + 0x1.2492492493154p-2 * z) +
                      z2 * (0x1.c71c71c56361ap-3 + 0x1.745d183e84101p-3 * z)) +
                     z2 * z2 *
                         ((0x1.3b135fcd871f7p-3 + 0x1.11211b633b897p-3 * z) +
                          z2 * (0x1.de2494718bd8bp-4 + 0x1.eb843d5138796p-4 * z));
    const Pair factor = fast_two_sum(0x1.5555555555555p-1, 0x1.5555555555555p-55 + z * p);
    const Pair cube = s * square * factor;
    const Pair exponent_part = {n * 0x1.62e42fefa4p-1, -n * 0x1.8432a1b0e2634p-43};
    return exponent_part + (Pair{2.0 * s.high, 2.0 * s.low} + cube);
}

}  // namespace detail

inline double exp(double x) noexcept { return detail::exp_of<double>({x, 0.0}); }

inline double log(double x) noexcept { return detail::log_of(x); }

inline double pow(double x, double y) noexcept {
    if (!(x > 0.0 && x < detail::kInfinity && y - y == 0.0)) return detail::pow_of_special(x, y);
    // far outside the range of a result, where the splitting of y would overflow
    const double limit = 0x1p70;
    return detail::exp_of(detail::Pair{detail::clamp(y, limit), 0.0} * detail::log_for_pow(x));
}

}  // namespace quorvel::math
