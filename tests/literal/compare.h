// What comparisons with the literal forms share: how arguments are drawn, and which bits are equal.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>

#include "conformance/random_arguments.h"

namespace quorvel::test {

using namespace conformance;

inline float any_bits(Random& random) {
    return std::bit_cast<float>(static_cast<std::uint32_t>(random.bits()));
}

// One value in `rarity` is special: an edge, or any bits.
inline float unusual(float value, int rarity, Random& random) {
    constexpr float edges[] = {0.0f,  -0.0f, 1.0f,   -1.0f,    1e-30f,
                               1e30f, 1e20f, -1e20f, INFINITY, NAN};
    const int kind = random.below(2 * rarity);
    if (kind == 0) return edges[random.below(std::size(edges))];
    return kind == 1 ? any_bits(random) : value;
}

// A limit of the formulas, or a neighbour of it: which side it belongs to shows in nothing else.
inline float about(float limit, Random& random) {
    return std::bit_cast<float>(std::bit_cast<std::int32_t>(limit) + random.below(7) - 3);
}

// Which not-a-number it is does not matter.
template <std::size_t n>
testing::AssertionResult same_bits(const std::array<float, n>& ours,
                                   const std::array<float, n>& literal) {
    for (std::size_t i = 0; i < n; ++i)
        if (std::bit_cast<std::uint32_t>(ours[i]) != std::bit_cast<std::uint32_t>(literal[i]) &&
            !(std::isnan(ours[i]) && std::isnan(literal[i])))
            return testing::AssertionFailure()
                   << "result " << i << ": " << ours[i] << " against " << literal[i];
    return testing::AssertionSuccess();
}

}  // namespace quorvel::test
