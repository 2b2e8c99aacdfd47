// Inverse sine, cosine and tangent in double precision.
//
// Algorithm: asin and acos as in single precision, with the rounding error of the square root made
// good; atan2 with the reduced tangent in 106 bits and the polynomial of the single-precision atan.
// atan takes the nearest of 26 tangents T with few bits, four an octave, whose angles stand in a
// table with a low part, and a polynomial of (x - T)/(1 + x T). That is at most an eighth of x, so
// that its three roundings are 0.2 ulp of the result. D is double or a pack of doubles.
//
// Error in ulp: 0.7.
#pragma once

#include "base/number.h"
#include "math/atan2.h"
#include "math/tables.h"

namespace quorvel::math {
namespace detail {

// asin sqrt((1 - a)/2), 1/2 < a
template <class D>
QUORVEL_INLINE PairOf<D> asin_of_half_complement(D a) noexcept {
    const D z = 0.5 - 0.5 * a, s = square_root(z);
    const PairOf<D> square = two_product(s, s);
    const D s_error = select(s > 0.0, D(((z - square.high) - square.low) / (2.0 * s)), D(0.0));
    return {s, s_error + asin_tail(s, z)};
}

// quarters pi/2 - 2 half
template <class D>
QUORVEL_INLINE D quarters_less_double(double quarters, PairOf<D> half) noexcept {
    const PairOf<D> head = fast_two_sum(D(quarters * kHalfPi), D(-2.0 * half.high));
    return head.high + (head.low + (quarters * kHalfPiTail - 2.0 * half.low));
}

template <class D>
QUORVEL_INLINE D asin_of(D x) noexcept {
    const D a = absolute(x);
    return either(
        a <= 0.5, [&] { return D(x + asin_tail(x, D(x * x))); },
        [&] {
            const D angle = quarters_less_double(1.0, asin_of_half_complement(a));
            return from_bits(bits(angle) ^ (bits(x) & kSignBit));
        });
}

template <class D>
QUORVEL_INLINE D acos_of(D x) noexcept {
    const D a = absolute(x);
    return either(
        a <= 0.5,
        [&] {
            const PairOf<D> head = fast_two_sum(D(kHalfPi), D(-x));
            return D(head.high + (head.low + (kHalfPiTail - asin_tail(x, D(x * x)))));
        },
        [&] {
            const PairOf<D> half = asin_of_half_complement(a);
            return either(
                x < 0.0, [&] { return quarters_less_double(2.0, half); },
                [&] { return D(2.0 * (half.high + half.low)); });
        });
}

}  // namespace detail

inline double asin(double x) noexcept { return detail::asin_of(x); }

inline double acos(double x) noexcept { return detail::acos_of(x); }

namespace detail {

// atan(small / large), 0 <= small <= large, both finite, large > 0
inline Pair atan_of_quotient(double small, double large) noexcept {
    if (small < large * 0x1p-30) return {small / large, 0.0};
    const double scale = large > 0x1p900 ? 0x1p-200 : large < 0x1p-900 ? 0x1p200 : 1.0;
    const double s = small * scale, l = large * scale;
    if (s < l * 0x1.a827999fcef32p-2) {
        const Pair t = Pair{s, 0.0} / Pair{l, 0.0};
        return fast_two_sum(t.high, t.low + atan_tail(t.high));
    }
    const Pair t = two_sum(s, -l) / two_sum(s, l);
    const Pair sum = fast_two_sum(0.5 * kHalfPi, t.high);
    return fast_two_sum(sum.high, sum.low + (t.low + atan_tail(t.high) + 0.5 * kHalfPiTail));
}

}  // namespace detail

inline double atan2(double y, double x) noexcept {
    if (x != x || y != y) return x + y;
    const double ay = detail::magnitude(y), ax = detail::magnitude(x);
    const bool steep = ay > ax, left = detail::sign(x) != 0;
    double small = steep ? ax : ay, large = steep ? ay : ax;
    if (large == 0.0) large = 1.0;
    if (large == detail::kInfinity) {
        small = small == large ? 1.0 : 0.0;
        large = 1.0;
    }
    const detail::Pair angle = detail::atan_of_quotient(small, large);
    const double quarters = steep ? 1.0 : left ? 2.0 : 0.0;
    const detail::Pair quadrant = {quarters * detail::kHalfPi, quarters * detail::kHalfPiTail};
    const detail::Pair sum = quadrant + (steep != left ? -angle : angle);
    return detail::flip_sign(sum.high, detail::sign(y));
}

namespace detail {

// Of a number in two's complement; without a branch, as which half it is in is not foreseeable.
template <class Words>
QUORVEL_INLINE Words positive_part(Words n) noexcept {
    return n & ((n >> 63) - 1);
}

// atan x = angle of the step + atan((|x| - T)/(1 + |x| T)), T the tangent of the step
template <class D>
QUORVEL_INLINE D atan_of(D x) noexcept {
    const D a = absolute(x);
    // quarter octaves from 1/8 to 8, of which the 26th ends at infinity
    const auto k = positive_part(25 - positive_part(4104 - (bits(a) >> 50)));
    const D T = lookup(kTangentSteps.tangent, k);
    const D finite = select(a > 0x1p60, D(0x1p60), D(a));
    const D t = (finite - T) / (1.0 + finite * T), z = t * t, z2 = z * z;
    const D p = (0x1.55555555554ccp-2 - 0x1.9999999945f32p-3 * z) +
                z2 * ((0x1.2492489cd7b1bp-3 - 0x1.c71ba72093f37p-4 * z) +
                      z2 * (0x1.741077b0efd1bp-4 - 0x1.2cc1d054f9e91p-4 * z));
    const D angle =
        lookup(kTangentSteps.angle, k) + (t - (t * z * p - lookup(kTangentSteps.angle_low, k)));
    return from_bits(bits(angle) ^ (bits(x) & kSignBit));
}

}  // namespace detail

inline double atan(double x) noexcept { return detail::atan_of(x); }

}  // namespace quorvel::math
