// What the functions of single values share: a quick double, a test whether it determines the
// rounding, and the careful form for the few arguments where it does not.
#pragma once

#include <algorithm>

#include "math/bits.h"

namespace quorvel::math::detail {

QUORVEL_INLINE std::uint32_t magnitude_bits(float x) noexcept {
    return std::bit_cast<std::uint32_t>(x) & 0x7fffffff;
}

// Bit patterns of floats
constexpr std::uint32_t kLeastNormal = 0x00800000, kOne = 0x3f800000, kLargest = 0x7f7fffff;

// Whether |x| lies between two floats of these bit patterns, inclusive
template <std::uint32_t kLow, std::uint32_t kHigh>
QUORVEL_INLINE bool magnitude_within(float x) noexcept {
    return 2 * std::bit_cast<std::uint32_t>(x) - 2 * kLow <= 2 * (kHigh - kLow);
}

// Added to a small x it leaves 64 x, rounded, in the lowest bits.
constexpr double kTo64ths = kToInteger / 64.0;

// Whether a midpoint of two floats lies within kError units in the last place of `value`, which is
// in the range of normal floats or 0. A relative error of 2^-n is up to 2^(53-n) units.
template <std::uint32_t kError>
QUORVEL_INLINE bool near_midpoint(double value) noexcept {
    return (static_cast<std::uint32_t>(bits(value)) << 3) + (0x80000000 + 8 * kError) <=
           16 * kError;
}

// f, where it is seldom called
template <auto f, typename... T>
[[gnu::cold, gnu::noinline]] auto outlined(T... x) noexcept {
    return f(x...);
}

// quick(x), of error kError as above, rounded; careful_form(x) where that is in doubt or x not
// ordinary
template <auto careful_form, std::uint32_t kError, typename Quick>
QUORVEL_INLINE float rounded(float x, bool ordinary, Quick quick) noexcept {
    if (ordinary) [[likely]] {
        const double value = quick(static_cast<double>(x));
        if (!near_midpoint<kError>(value)) [[likely]]
            return static_cast<float>(value);
    }
    return outlined<careful_form>(x);
}

}  // namespace quorvel::math::detail
