// Inverse sine, cosine and tangent in single precision, where tables do not suffice.
//
// Algorithm: asin x by a polynomial for |x| <= 1/2, beyond as pi/2 - 2 asin sqrt((1 - |x|)/2), and
// acos x = pi/2 - asin x likewise. atan x by a polynomial in t = x, (x - 1)/(x + 1) or -1/x,
// |t| <= tan(pi/8), plus 0, pi/4 or pi/2.
//
// Error before the rounding to float, in ulp of double: asin 2.2, acos and atan 1.2. Where acos
// falls on a midpoint of two floats, the rest of its last sum decides; atan has one exception.
//
// Coefficients and constants: tools/math/coefficients.sollya.
#pragma once

#include "math/bits.h"

namespace quorvel::math {
namespace detail {

constexpr double kHalfPi = 0x1.921fb54442d18p0, kHalfPiTail = 0x1.1a62633145c07p-54;

// asin s - s from s and z = s^2, |s| <= 1/2
template <class D>
QUORVEL_INLINE D asin_tail(D s, D z) noexcept {
    const D z2 = z * z, z4 = z2 * z2;
    const D p0 = (0x1.5555555555577p-3 + 0x1.333333332e133p-4 * z) +
                 z2 * (0x1.6db6db721247bp-5 + 0x1.f1c71a95002f6p-6 * z);
    const D p4 = (0x1.6e8bdedebfb72p-6 + 0x1.1c49f077d2818p-6 * z) +
                 z2 * (0x1.ca1f8af264013p-7 + 0x1.75859da822552p-7 * z);
    const D p8 = (0x1.613c1e9096db8p-7 + 0x1.e5fbe63872ca6p-9 * z) +
                 z2 * (0x1.639a8a1bbdd02p-6 - 0x1.57fad21f83513p-6 * z);
    return s * z * (p0 + z4 * (p4 + z4 * (p8 + z4 * 0x1.0b45ea63b1699p-5)));
}

// atan t - t, |t| <= tan(pi/8)
QUORVEL_INLINE double atan_tail(double t) noexcept {
    const double z = t * t, z2 = z * z, z4 = z2 * z2;
    const double p0 = (-0x1.555555555553cp-2 + 0x1.9999999995667p-3 * z) +
                      z2 * (-0x1.24924922a166bp-3 + 0x1.c71c70e1853b5p-4 * z);
    const double p4 = (-0x1.745cf85bf46f1p-4 + 0x1.3b111042be717p-4 * z) +
                      z2 * (-0x1.10eb54182865ep-4 + 0x1.df099b1958869p-5 * z);
    const double p8 =
        (-0x1.9cb9171397c7ap-5 + 0x1.37945779fdc95p-5 * z) - z2 * 0x1.24dae241a6c93p-6;
    return t * z * (p0 + z4 * (p4 + z4 * p8));
}

}  // namespace detail

namespace detail::careful {

QUORVEL_INLINE float asin(float x) noexcept {
    const double t = static_cast<double>(x), a = detail::magnitude(t);
    const bool small = a <= 0.5;
    const double z = small ? a * a : 0.5 - 0.5 * a;
    const double s = small ? a : sqrt(z);
    const double p = s + detail::asin_tail(s, z);
    const double value = small ? p : detail::kHalfPi - (2.0 * p - detail::kHalfPiTail);
    return static_cast<float>(detail::flip_sign(value, detail::sign(t)));
}

QUORVEL_INLINE float acos(float x) noexcept {
    const double t = static_cast<double>(x), a = detail::magnitude(t);
    const bool small = a <= 0.5;
    const double z = small ? a * a : 0.5 - 0.5 * a;
    const double s = small ? a : sqrt(z);
    const double p = s + detail::asin_tail(s, z);
    // acos x = quarters * pi/2 + sign(x) * asin-like part
    const double quarters = small ? 1.0 : t < 0.0 ? 2.0 : 0.0;
    const double part = detail::flip_sign(small ? -p : 2.0 * p, detail::sign(t));
    const detail::Pair value =
        detail::fast_two_sum(quarters * detail::kHalfPi, part + quarters * detail::kHalfPiTail);
    return static_cast<float>(detail::break_tie(value.high, value.low));
}

QUORVEL_INLINE float atan(float x) noexcept {
    const double t = static_cast<double>(x), a = detail::magnitude(t);
    const bool small = a < 0x1.a827999fcef32p-2, medium = a < 0x1.3504f333f9de6p1;
    const double numerator = small ? a : medium ? a - 1.0 : -1.0;
    const double denominator = small ? 1.0 : medium ? a + 1.0 : a;
    const double halves = small ? 0.0 : medium ? 0.5 : 1.0;
    const double q = numerator / denominator;
    const double near =
        halves * detail::kHalfPi + (q + (detail::atan_tail(q) + halves * detail::kHalfPiTail));
    const double value = a == 0x1.1ad646p-4 ? 0x1.1a6386p-4 : near;
    return static_cast<float>(detail::flip_sign(value, detail::sign(t)));
}

}  // namespace detail::careful
}  // namespace quorvel::math
