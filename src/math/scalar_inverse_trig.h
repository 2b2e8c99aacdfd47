// Inverse sine, cosine and tangent of single values in single precision.
//
// Algorithm: with s = k/64 nearest to x, asin x = asin s + asin d, d = x sqrt(1 - s^2) -
// s sqrt(1 - x^2), |d| <= 1/8; acos x = pi/2 - asin x. With an angle a from a table near atan x,
// atan x = a + atan t, t = (x cos a - sin a) / (cos a + x sin a), |t| <= 1/8. asin d and atan t by
// polynomials of degree 7. Where the error of the double leaves the rounding in doubt, for -0,
// subnormals and non-numbers the careful forms decide.
//
// Relative error of the double: asin and acos 2^-35.5, which leaves one argument in 1400 in doubt;
// atan 2^-33.9, one in 500.
//
// Coefficients: tools/math/coefficients.sollya.
#pragma once

#include "math/careful_inverse_trig.h"
#include "math/scalar.h"
#include "math/tables.h"

namespace quorvel::math {
namespace detail {

constexpr std::uint32_t kArcSineError = 0x2e000, kArcTangentError = 0x8c000;  // see near_midpoint

// asin x = angle + rest, |x| <= 1
struct ArcSine {
    double angle, rest;
};
QUORVEL_INLINE ArcSine table_asin(double x) noexcept {
    const double shifted = x + kTo64ths, s = shifted - kTo64ths;
    const ArcSineStep& step = kArcSineSteps[64 + static_cast<std::int32_t>(bits(shifted))];
    const double d = x * step.cosine - s * sqrt(1.0 - x * x), z = d * d;
    const double p =
        (0x1.555558548b8cap-3 + z * 0x1.332a34d76458ap-4) + z * z * 0x1.755e00da6d29bp-5;
    return {step.angle, d + d * z * p};
}

// The steps are half octaves of |x|, the first and the last open.
QUORVEL_INLINE double table_atan(double x, std::uint32_t half_octave) noexcept {
    constexpr int kFirst = 2 * (127 - 3) - 1;
    const int k = std::clamp(static_cast<int>(half_octave) - kFirst, 0, 13);
    const auto [cosine, sine, angle] = kArcTangentSteps[k];
    const double a = magnitude(x), t = (a * cosine - sine) / (cosine + a * sine), z = t * t;
    const double p =
        (0x1.555550401cf0dp-2 - z * 0x1.998a21483eb19p-3) + z * z * 0x1.1ddc271582724p-3;
    return flip_sign(angle + (t - t * z * p), sign(x));
}

}  // namespace detail

QUORVEL_INLINE float asin(float x) noexcept {
    using namespace detail;
    return rounded<careful::asin, kArcSineError>(x, magnitude_within<kLeastNormal, kOne>(x),
                                                 [](double t) {
                                                     const auto [angle, rest] = table_asin(t);
                                                     return angle + rest;
                                                 });
}

QUORVEL_INLINE float acos(float x) noexcept {
    using namespace detail;
    return rounded<careful::acos, kArcSineError>(x, magnitude_within<0, kOne>(x), [](double t) {
        const auto [angle, rest] = table_asin(t);
        return (kHalfPi - angle) - rest;
    });
}

QUORVEL_INLINE float atan(float x) noexcept {
    using namespace detail;
    return rounded<careful::atan, kArcTangentError>(
        x, magnitude_within<kLeastNormal, kLargest>(x),
        [x](double t) { return table_atan(t, magnitude_bits(x) >> 22); });
}

}  // namespace quorvel::math
