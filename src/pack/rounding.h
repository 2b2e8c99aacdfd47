// What the elementary functions of packs share: polynomials in double, the test whether such a
// double determines the correctly rounded float, and the scalar function where it does not.
#pragma once

#include "math/math.h"
#include "pack/pack.h"

namespace quorvel::math::detail {

using pack::DoubleReals;
using pack::Mask;
using pack::Reals;
using pack::WideMask;
using pack::Words;

// 32-bit patterns that wrap around
using Patterns = std::uint32_t __attribute__((vector_size(sizeof(pack::Ints))));

QUORVEL_PACK Words sign(DoubleReals x) noexcept { return bits(x) & Words(kSignBit); }
QUORVEL_PACK DoubleReals flip_sign(DoubleReals x, Words sign_bit) noexcept {
    return from_bits(bits(x) ^ sign_bit);
}

// c0 + c1 z + c2 z^2 + ..., two terms at a time
QUORVEL_PACK DoubleReals sum_of_powers(DoubleReals, DoubleReals, double c0) noexcept { return c0; }
QUORVEL_PACK DoubleReals sum_of_powers(DoubleReals z, DoubleReals, double c0, double c1) noexcept {
    return fused(z, c1, c0);
}
template <class... C>
QUORVEL_PACK DoubleReals sum_of_powers(DoubleReals z, DoubleReals square, double c0, double c1,
                                       C... c) noexcept {
    return fused(square, sum_of_powers(z, square, c...), fused(z, c1, c0));
}
template <class... C>
QUORVEL_PACK DoubleReals polynomial(DoubleReals z, C... c) noexcept {
    return sum_of_powers(z, z * z, c...);
}

// Whether a midpoint of two floats lies within kError units in the last place of `value`, which is
// in the range of normal floats, 0 or not a number. A relative error of 2^-n is up to 2^(53-n)
// units; kError is a power of 2.
template <std::uint32_t kError>
QUORVEL_PACK Mask near_midpoint(DoubleReals value) noexcept {
    static_assert((kError & (kError - 1)) == 0);
    constexpr std::uint32_t kHalf = 0x10000000, kDistance = 2 * (kHalf - kError);
    const auto low = Patterns(low_words(bits(value).v));
    const auto distance = (low + (kHalf + kError)) & kDistance;
    return pack::Integers(pack::Ints(distance)) == pack::Integers(0);
}

// `value`, of error kError as above, rounded; scalar(x...) where that is in doubt or x out of the
// ordinary
template <std::uint32_t kError, class F, class... N>
QUORVEL_PACK Reals rounded(DoubleReals value, Mask extraordinary, F scalar, N... x) noexcept {
    return replaced(near_midpoint<kError>(value) | extraordinary, to_real(value), scalar, x...);
}

}  // namespace quorvel::math::detail
