// Sine, cosine and tangent of packs.
//
// Algorithm: sin x = +-sin r with x = n pi + r, |r| <= pi/2, and cos x = sin(x + pi/2) likewise, by
// a polynomial of degree 13. sincos and tan reduce to |r| <= pi/4 and use one polynomial each for
// sin r and cos r, picked by the quadrant. From 2^14 on the scalar functions answer.
//
// Relative error of the double: 2^-43, for tan 2^-42.9.
//
// Coefficients: tools/math/coefficients.sollya.
#pragma once

#include "pack/rounding.h"

namespace quorvel::math {
namespace detail {

constexpr std::uint32_t kPackSineError = 0x800;  // see near_midpoint

// x = n step + r, |x| < 2^14: n times the first part of a step is exact.
struct PackAngle {
    DoubleReals r;
    Words count;  // n, meaningful in the lowest two bits
};
template <int kQuarters>
QUORVEL_PACK DoubleReals less_steps(DoubleReals x, DoubleReals n) noexcept {
    return fused(n, -0x1.0b4611a626331p-34 * kQuarters, fused(n, -0x1.921fb544p0 * kQuarters, x));
}
template <int kQuarters>
QUORVEL_PACK PackAngle nearest_step(DoubleReals x) noexcept {
    const DoubleReals shifted = fused(x, 0x1.45f306dc9c883p-1 / kQuarters, kToInteger);
    return {less_steps<kQuarters>(x, shifted - kToInteger), bits(shifted)};
}
// of x + step/2
template <int kQuarters>
QUORVEL_PACK PackAngle nearest_half_step(DoubleReals x) noexcept {
    const DoubleReals shifted = fused(x, 0x1.45f306dc9c883p-1 / kQuarters, 0.5) + kToInteger;
    return {less_steps<kQuarters>(x, (shifted - kToInteger) - 0.5), bits(shifted)};
}

// sin r from z = r^2; adding 0 keeps sin -0 = -0
template <class... C>
QUORVEL_PACK DoubleReals sine(DoubleReals r, DoubleReals z, C... c) noexcept {
    return r - fused(r * z, polynomial(z, c...), 0.0);
}
// +-sin r, |r| <= pi/2
QUORVEL_PACK DoubleReals half_turn_sin(PackAngle a) noexcept {
    const DoubleReals s =
        sine(a.r, a.r * a.r, 0x1.555555554416ap-3, -0x1.111111092ea04p-7, 0x1.a019fcc6761a8p-13,
             -0x1.71dcd88d0230bp-19, 0x1.adfdc4de1da38p-26, -0x1.5269127a25308p-33);
    return flip_sign(s, a.count << 63);
}

// sin r and cos r, |r| <= pi/4, exchanged in every other quarter
struct PackDirection {
    DoubleReals sin, cos;
};
QUORVEL_PACK PackDirection eighth_turn(PackAngle a) noexcept {
    const DoubleReals z = a.r * a.r;
    const DoubleReals s =
        sine(a.r, z, 0x1.555555555199ap-3, -0x1.1111110bed1e4p-7, 0x1.a019f86727ca2p-13,
             -0x1.71d6fd8dc798bp-19, 0x1.a939489ba955ep-26);
    const DoubleReals c =
        polynomial(z, 1.0, -0x1.ffffffffe5ae1p-2, 0x1.55555543abde6p-5, -0x1.6c16b1e1cb467p-10,
                   0x1.a00dfe609fc48p-16, -0x1.23a80f81d4d4ep-22);
    const WideMask odd = (a.count & Words(1)) != Words(0);
    return {select(odd, c, s), select(odd, s, c)};
}

QUORVEL_PACK Mask far_angle(Reals x) noexcept { return !(absolute(x) < Reals(0x1p14f)); }

}  // namespace detail

QUORVEL_PACK_CALL pack::Reals sin(pack::Reals x) noexcept {
    using namespace detail;
    return rounded<kPackSineError>(
        half_turn_sin(nearest_step<2>(to_double(x))), far_angle(x),
        [](Real a) { return math::sin(a); }, x);
}

QUORVEL_PACK_CALL pack::Reals cos(pack::Reals x) noexcept {
    using namespace detail;
    return rounded<kPackSineError>(
        half_turn_sin(nearest_half_step<2>(to_double(x))), far_angle(x),
        [](Real a) { return math::cos(a); }, x);
}

QUORVEL_PACK_CALL SinCosOf<pack::Reals> sincos(pack::Reals x) noexcept {
    using namespace detail;
    const PackAngle a = nearest_step<1>(to_double(x));
    const PackDirection d = eighth_turn(a);
    const Mask far = far_angle(x);
    return {rounded<kPackSineError>(
                flip_sign(d.sin, (a.count & Words(2)) << 62), far,
                [](Real b) { return math::sin(b); }, x),
            rounded<kPackSineError>(
                flip_sign(d.cos, ((a.count + Words(1)) & Words(2)) << 62), far,
                [](Real b) { return math::cos(b); }, x)};
}

QUORVEL_PACK_CALL pack::Reals tan(pack::Reals x) noexcept {
    using namespace detail;
    const PackAngle a = nearest_step<1>(to_double(x));
    const PackDirection d = eighth_turn(a);
    return rounded<kPackSineError>(
        flip_sign(d.sin / d.cos, a.count << 63), far_angle(x), [](Real b) { return math::tan(b); },
        x);
}

}  // namespace quorvel::math
