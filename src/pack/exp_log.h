// e^x, 10^x and the logarithms of packs.
//
// Algorithm: 2^x = 2^n 2^r, |r| <= 1/2, by a polynomial of degree 8; e^x and 10^x from it.
// log x = n log 2 + log m for x = 2^n m, 1/sqrt 2 <= m < sqrt 2; log m = 2 atanh s, s = (m - 1) /
// (m + 1), by an odd polynomial of degree 9; log10 x from it. Outside the range of normal floats
// the scalar functions answer.
//
// Relative error of the double: exp and exp10 2^-40.2; log and log10 2^-37.5.
//
// Coefficients: tools/math/coefficients.sollya.
#pragma once

#include "pack/rounding.h"

namespace quorvel::math {
namespace detail {

constexpr std::uint32_t kPackExpError = 0x2000, kPackLogError = 0x10000;  // see near_midpoint

// 2^x, |x| <= 1000
QUORVEL_PACK DoubleReals pack_exp2(DoubleReals x) noexcept {
    const DoubleReals shifted = x + kToInteger, r = x - (shifted - kToInteger);
    const DoubleReals p =
        polynomial(r, 0x1.ffffffffff78ep-1, 0x1.62e42fef85db3p-1, 0x1.ebfbdff933af2p-3,
                   0x1.c6b08dd502ad2p-5, 0x1.3b2ab5c351e78p-7, 0x1.5d874782ddb23p-10,
                   0x1.430ace63d97adp-13, 0x1.00db4c46215f1p-16, 0x1.61af4097ba05fp-20);
    return from_bits(bits(p) + (bits(shifted) << 52));
}

// x = 2^exponent (1 + excess), 1/sqrt 2 <= 1 + excess < sqrt 2, for a positive normal x
struct PackScaled {
    DoubleReals exponent, excess;
};
QUORVEL_PACK PackScaled split_exponent(Reals x) noexcept {
    constexpr std::uint32_t kRootHalf = 0x3f3504f3, kFraction = 0x007fffff;
    const Patterns b = Patterns(x.v) - kRootHalf;
    const Reals mantissa{pack::Floats((b & kFraction) + kRootHalf)};
    return {to_double(pack::Integers(pack::Ints(b) >> 23)), to_double(mantissa - 1.0f)};
}

// (n + log2 m) log2_scaled, a logarithm to any base, from log m scaled
QUORVEL_PACK DoubleReals log_of_normal(Reals x, double scale, double log2_scaled) noexcept {
    const PackScaled split = split_exponent(x);
    const DoubleReals f = split.excess, s = f / (f + 2.0);
    const DoubleReals log_m = s * polynomial(s * s, 2.0, 0x1.555554fd3063ap-1, 0x1.999a7b72d24edp-2,
                                             0x1.2438956750f5bp-2, 0x1.e301562767e8dp-3);
    return fused(split.exponent, log2_scaled, scale == 1.0 ? log_m : log_m * scale);
}

QUORVEL_PACK Mask without_normal_logarithm(Reals x) noexcept {
    return !((x >= Reals(std::numeric_limits<float>::min())) &
             (x <= Reals(std::numeric_limits<float>::max())));
}

}  // namespace detail

QUORVEL_PACK_CALL pack::Reals exp(pack::Reals x) noexcept {
    using namespace detail;
    return rounded<kPackExpError>(
        pack_exp2(to_double(x) * 0x1.71547652b82fep0), !(absolute(x) <= Reals(87.0f)),
        [](Real a) { return math::exp(a); }, x);
}

QUORVEL_PACK_CALL pack::Reals exp10(pack::Reals x) noexcept {
    using namespace detail;
    return rounded<kPackExpError>(
        pack_exp2(to_double(x) * 0x1.a934f0979a371p1), !(absolute(x) <= Reals(37.75f)),
        [](Real a) { return math::exp10(a); }, x);
}

QUORVEL_PACK_CALL pack::Reals log(pack::Reals x) noexcept {
    using namespace detail;
    return rounded<kPackLogError>(
        log_of_normal(x, 1.0, 0x1.62e42fefa39efp-1), without_normal_logarithm(x),
        [](Real a) { return math::log(a); }, x);
}

QUORVEL_PACK_CALL pack::Reals log10(pack::Reals x) noexcept {
    using namespace detail;
    return rounded<kPackLogError>(
        log_of_normal(x, 0x1.bcb7b1526e50ep-2, 0x1.34413509f79ffp-2), without_normal_logarithm(x),
        [](Real a) { return math::log10(a); }, x);
}

}  // namespace quorvel::math
