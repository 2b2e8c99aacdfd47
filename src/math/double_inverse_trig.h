// Inverse sine, cosine and tangent in double precision.
//
// Algorithm: asin and acos as in single precision, with the rounding error of the square root made
// good; atan2 with the reduced tangent in 106 bits and the polynomial of the single-precision atan.
//
// Error in ulp: 0.7.
#pragma once

#include "math/atan2.h"

namespace quorvel::math {
namespace detail {

// asin sqrt((1 - a)/2), 1/2 < a
inline Pair asin_of_half_complement(double a) noexcept {
    const double z = 0.5 - 0.5 * a, s = sqrt(z);
    const Pair square = two_product(s, s);
    const double s_error = s > 0.0 ? ((z - square.high) - square.low) / (2.0 * s) : 0.0;
    return {s, s_error + asin_tail(s, z)};
}

}  // namespace detail

inline double asin(double x) noexcept {
    const double a = detail::magnitude(x);
    if (a <= 0.5) return x + detail::asin_tail(x, x * x);
    const auto [s, tail] = detail::asin_of_half_complement(a);
    const detail::Pair head = detail::fast_two_sum(detail::kHalfPi, -2.0 * s);
    return detail::flip_sign(head.high + (head.low + (detail::kHalfPiTail - 2.0 * tail)),
                             detail::sign(x));
}

inline double acos(double x) noexcept {
    const double a = detail::magnitude(x);
    if (a <= 0.5) {
        const detail::Pair head = detail::fast_two_sum(detail::kHalfPi, -x);
        return head.high + (head.low + (detail::kHalfPiTail - detail::asin_tail(x, x * x)));
    }
    const auto [s, tail] = detail::asin_of_half_complement(a);
    if (detail::sign(x) == 0) return 2.0 * (s + tail);
    const detail::Pair head = detail::fast_two_sum(2.0 * detail::kHalfPi, -2.0 * s);
    return head.high + (head.low + 2.0 * (detail::kHalfPiTail - tail));
}

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

inline double atan(double x) noexcept { return atan2(x, 1.0); }

}  // namespace quorvel::math
