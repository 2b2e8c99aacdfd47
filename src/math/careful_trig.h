// Sine, cosine and tangent in single precision, where tables do not suffice.
//
// Algorithm: sin x = +-sin r with x = n pi + r, |r| <= pi/2, and cos x = sin(x + pi/2) likewise, by
// a polynomial of degree 19. sincos and tan reduce to |r| <= pi/4 and use one polynomial each for
// sin r and cos r, picked by the quadrant.
//
// Error before the rounding to float, in ulp of double: sin and cos 3.4, tan 2.3, tan from 2^28 on
// 4.2. Exceptions: two angles for sine, three for cosine, none for tan.
//
// Coefficients: tools/math/coefficients.sollya.
#pragma once

#include "math/trig_reduction.h"

namespace quorvel::math {

namespace detail {

// sin r, |r| <= pi/2; adding 0 keeps sin -0 = -0
QUORVEL_INLINE double half_turn_sin(double r) noexcept {
    const double z = r * r, z2 = z * z, z4 = z2 * z2;
    const double p0 = (0x1.5555555555555p-3 - 0x1.11111111110dep-7 * z) +
                      z2 * (0x1.a01a01a017278p-13 - 0x1.71de3a5420695p-19 * z);
    const double p4 = (0x1.ae6455d292d7p-26 - 0x1.61242b90a0cb4p-33 * z) +
                      z2 * (0x1.ae6b831d2ba73p-41 - 0x1.912fc59f46d28p-49 * z);
    return r - (0.0 + r * z * (p0 + z4 * (p4 + z4 * 0x1.aace0cacadaf5p-58)));
}

// sin r - small and cos r + small, |r| <= 13/16, as a head and a small tail
QUORVEL_INLINE Pair sin_kernel(double r, double small) noexcept {
    const double z = r * r, z2 = z * z;
    const double p = (0x1.5555555555542p-3 - 0x1.111111110edbcp-7 * z) +
                     z2 * ((0x1.a01a019ab8c96p-13 - 0x1.71de344d1efa8p-19 * z) +
                           z2 * (0x1.ae5d7d7820c65p-26 - 0x1.5d4ff87cbc824p-33 * z));
    return {r, -(small + r * z * p)};
}

QUORVEL_INLINE Pair cos_kernel(double r, double small) noexcept {
    const double z = r * r, z2 = z * z;
    const double p = (0x1.5555555555545p-5 - 0x1.6c16c16c1436bp-10 * z) +
                     z2 * ((0x1.a01a019b59503p-16 - 0x1.27e4f715ee114p-22 * z) +
                           z2 * (0x1.1ee9491febb7bp-29 - 0x1.8f5bd8bcccc63p-37 * z));
    const Pair head = fast_two_sum(1.0, -0.5 * z);
    return {head.high, head.low + (z2 * p + small)};
}

QUORVEL_INLINE Pair flip_sign(Pair x, std::uint64_t sign_bit) noexcept {
    return {flip_sign(x.high, sign_bit), flip_sign(x.low, sign_bit)};
}

struct SinCosPair {
    Pair sin, cos;
};

QUORVEL_INLINE SinCosPair in_quadrant(std::uint64_t count, Pair s, Pair c) noexcept {
    const bool odd = (count & 1) != 0;
    return {flip_sign(odd ? c : s, (count & 2) << 62),
            flip_sign(odd ? s : c, ((count + 1) & 2) << 62)};
}

QUORVEL_INLINE SinCosPair sin_cos(float x) noexcept {
    const auto [r, correction, count] = reduce<1, false>(static_cast<double>(x));
    return in_quadrant(count, sin_kernel(r, correction), cos_kernel(r, r * correction));
}

// Rounded to float, with the angles that misround put right
QUORVEL_INLINE float rounded_sin(double x, double value) noexcept {
    const double a = magnitude(x);
    const double exception = a == 0x1.33333p13 ? -0x1.63f4bap-2 : -0x1.fcf42ep-1;
    const bool exceptional = a == 0x1.33333p13 || a == 0x1.95f654p44;
    return static_cast<float>(exceptional ? flip_sign(exception, sign(x)) : value);
}

QUORVEL_INLINE float rounded_cos(double x, double value) noexcept {
    const double a = magnitude(x);
    const double corrected = a == 0x1.3170fp63     ? 0x1.fe2976p-1
                             : a == 0x1.2b9622p67  ? 0x1.f0285ep-1
                             : a == 0x1.119ae6p115 ? 0x1.f3176ap-1
                                                   : value;
    return static_cast<float>(corrected);
}

}  // namespace detail

namespace detail::careful {

QUORVEL_INLINE float sin(float x) noexcept {
    const double t = static_cast<double>(x);
    const detail::ReducedAngle angle = detail::reduce<2, false>(t);
    return detail::rounded_sin(
        t, detail::flip_sign(detail::half_turn_sin(angle.r), angle.count << 63));
}

QUORVEL_INLINE float cos(float x) noexcept {
    const double t = static_cast<double>(x);
    const detail::ReducedAngle angle = detail::reduce<2, true>(t);
    return detail::rounded_cos(
        t, detail::flip_sign(detail::half_turn_sin(angle.r), angle.count << 63));
}

QUORVEL_INLINE SinCos sincos(float x) noexcept {
    const auto [s, c] = detail::sin_cos(x);
    const double t = static_cast<double>(x);
    return {detail::rounded_sin(t, s.high + s.low), detail::rounded_cos(t, c.high + c.low)};
}

QUORVEL_INLINE float tan(float x) noexcept {
    const auto [s, c] = detail::sin_cos(x);
    return static_cast<float>((s.high + s.low) / (c.high + c.low));
}

}  // namespace detail::careful
}  // namespace quorvel::math
