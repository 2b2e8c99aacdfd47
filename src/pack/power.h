// x^y of packs.
//
// Algorithm: 2^(y log2 x) as in exp and log. The odd polynomial of degree 11 for log2 m has a
// relative error of 2^-45.0, and so has n + log2 m, since |log2 m| <= 1/2 and n is 0 or at least 1
// in magnitude. For |y log2 x| <= 125 the exponent errs by less than 2^-38, the power relatively by
// log 2 times that and by 2^-40.2 of its own: 2^-38.2 in all. Bases and results that are no normal
// numbers are left to the scalar function.
//
// Coefficients: tools/math/coefficients.sollya.
#pragma once

#include "pack/exp_log.h"

namespace quorvel::math {
namespace detail {

constexpr std::uint32_t kPackPowerError = 0x8000;  // see near_midpoint

QUORVEL_PACK DoubleReals pack_log2(Reals x) noexcept {
    const PackScaled split = split_exponent(x);
    const DoubleReals f = split.excess, s = f / (f + 2.0);
    return fused(s,
                 polynomial(s * s, 0x1.71547652b824fp1, 0x1.ec709dc5405aep-1, 0x1.2776c28e61e6cp-1,
                            0x1.a61a32e6f900dp-2, 0x1.4794a2fa8cf71p-2, 0x1.21bb76ffaeb22p-2),
                 split.exponent);
}

}  // namespace detail

QUORVEL_PACK_CALL pack::Reals pow(pack::Reals x, pack::Reals y) noexcept {
    using namespace detail;
    const DoubleReals exponent = to_double(y) * pack_log2(x);
    const Mask no_normal_power = !(absolute(exponent) <= DoubleReals(125.0));
    return rounded<kPackPowerError>(
        pack_exp2(exponent), no_normal_power | without_normal_logarithm(x),
        [](Real a, Real b) { return math::pow(a, b); }, x, y);
}

}  // namespace quorvel::math
