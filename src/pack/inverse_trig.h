// Inverse sine, cosine and tangent of packs, and the angle of points.
//
// Algorithm: asin x by a polynomial of degree 17 for |x| <= 1/2, beyond as pi/2 - 2 asin
// sqrt((1 - |x|)/2), and acos x = pi/2 - asin x likewise. The angle of the point (x, y) by the
// smaller over the larger of |x| and |y|, or (smaller - larger)/(smaller + larger) and pi/4, so
// that atan t has |t| <= tan(pi/8): a polynomial of degree 15. Non-numbers, subnormal angles and
// points that have no angle of their own are left to the scalar functions.
//
// Relative error of the double: acos 2^-39.9, asin twice that beyond 1/2; atan and atan2
// 2^-40.1.
//
// Coefficients: tools/math/coefficients.sollya.
#pragma once

#include "pack/rounding.h"

namespace quorvel::math {
namespace detail {

constexpr std::uint32_t kPackArcSineError = 0x4000, kPackArcTangentError = 0x2000;

// asin x, or asin sqrt((1 - x)/2) where x > 1/2. The square of a float is exact, and so is its
// root.
struct PackArcSine {
    WideMask small;
    DoubleReals angle;
};
QUORVEL_PACK PackArcSine arc_sine(DoubleReals x) noexcept {
    const WideMask small = x <= DoubleReals(0.5);
    const DoubleReals z = smaller(x * x, fused(x, -0.5, 0.5)), s = square_root(z);
    const DoubleReals p = polynomial(
        z, 0x1.55555547de741p-3, 0x1.3333408753c87p-4, 0x1.6db25ce71bad6p-5, 0x1.f2819ea6909e4p-6,
        0x1.6643de02afed9p-6, 0x1.522e99e9ade8ap-6, 0x1.054658628603dp-9, 0x1.0d7ce49571b87p-5);
    return {small, fused(s * z, p, s)};
}
QUORVEL_PACK DoubleReals asin_in_double(DoubleReals x) noexcept {
    const PackArcSine a = arc_sine(absolute(x));
    return flip_sign(select(a.small, a.angle, fused(a.angle, -2.0, kHalfPi)), sign(x));
}
QUORVEL_PACK DoubleReals acos_in_double(DoubleReals x) noexcept {
    const PackArcSine a = arc_sine(absolute(x));
    const DoubleReals nearest = select(x < DoubleReals(0.0), DoubleReals(2.0 * kHalfPi), 0.0);
    return select(a.small, DoubleReals(kHalfPi), nearest) +
           flip_sign(select(a.small, -a.angle, a.angle + a.angle), sign(x));
}

// The angle of (x, y), both positive: within half a quarter of the axis x, and whether from that of
// y instead
struct PackArcTangent {
    WideMask steep;
    DoubleReals angle;
};
QUORVEL_PACK PackArcTangent arc_tangent(DoubleReals y, DoubleReals x) noexcept {
    const WideMask steep = y > x;
    // in this order one of them is not a number if x or y is none
    const DoubleReals small = smaller(x, y), large = larger(y, x);
    const WideMask diagonal = small > large * 0x1.a827999fcef32p-2;
    // what is added where the point is nearer to the diagonal
    const DoubleReals to_small = select(diagonal, large, 0.0),
                      to_large = select(diagonal, small, 0.0),
                      to_angle = select(diagonal, DoubleReals(0.5 * kHalfPi), 0.0);
    const DoubleReals t = (small - to_small) / (large + to_large);
    const DoubleReals z = t * t;
    const DoubleReals p = polynomial(
        z, -0x1.5555554eca9b1p-2, 0x1.999991e7797cp-3, -0x1.2490bfa310bddp-3, 0x1.c6d16a6570ddep-4,
        -0x1.707de36a833bap-4, 0x1.1e45bb0bcbbfp-4, -0x1.365b63f366ce5p-5);
    return {steep, to_angle + fused(t * z, p, t)};
}
QUORVEL_PACK DoubleReals atan_in_double(DoubleReals x) noexcept {
    const PackArcTangent a = arc_tangent(absolute(x), 1.0);
    return flip_sign(select(a.steep, kHalfPi - a.angle, a.angle), sign(x));
}
QUORVEL_PACK DoubleReals atan2_in_double(DoubleReals y, DoubleReals x) noexcept {
    const PackArcTangent a = arc_tangent(absolute(y), absolute(x));
    const DoubleReals right = select(a.steep, kHalfPi - a.angle, a.angle);
    return flip_sign(select(x < DoubleReals(0.0), 2.0 * kHalfPi - right, right), sign(y));
}

}  // namespace detail

QUORVEL_PACK_CALL pack::Reals asin(pack::Reals x) noexcept {
    using namespace detail;
    return rounded<kPackArcSineError>(
        asin_in_double(to_double(x)), !(absolute(x) <= Reals(1.0f)),
        [](Real a) { return math::asin(a); }, x);
}

QUORVEL_PACK_CALL pack::Reals acos(pack::Reals x) noexcept {
    using namespace detail;
    return rounded<kPackArcSineError>(
        acos_in_double(to_double(x)), !(absolute(x) <= Reals(1.0f)),
        [](Real a) { return math::acos(a); }, x);
}

QUORVEL_PACK_CALL pack::Reals atan(pack::Reals x) noexcept {
    using namespace detail;
    return rounded<kPackArcTangentError>(
        atan_in_double(to_double(x)), x != x, [](Real a) { return math::atan(a); }, x);
}

QUORVEL_PACK_CALL pack::Reals atan2(pack::Reals y, pack::Reals x) noexcept {
    using namespace detail;
    const DoubleReals angle = atan2_in_double(to_double(y), to_double(x));
    const Mask no_normal_angle = !(absolute(angle) >= DoubleReals(0x1p-126));
    return rounded<kPackArcTangentError>(
        angle, no_normal_angle, [](Real b, Real a) { return math::atan2(b, a); }, y, x);
}

}  // namespace quorvel::math
