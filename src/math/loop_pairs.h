// atan2 and pow of arrays in single precision.
//
// A plain loop over math::atan2 or math::pow does not vectorise, since they decide by a branch
// whether the double determines the rounding. Here blocks of doubles are calculated and rounded
// without branches; a block with a pair in doubt, one in 2^14 at most, or with special values is
// repeated one pair after the other.
//
// Algorithm: the first step of atan2 and the second one of pow for a single pair.
#pragma once

#include "math/atan2.h"
#include "math/power.h"

namespace quorvel::math {
namespace detail {

QUORVEL_INLINE double atan2_for_loop(float y, float x) noexcept {
    return atan2_in_double(static_cast<double>(y), static_cast<double>(x));
}

template <auto in_double, auto single>
QUORVEL_INLINE void by_blocks(const float* __restrict a, const float* __restrict b,
                              float* __restrict result, std::size_t count, double error) noexcept {
    constexpr std::size_t kBlock = 64;
    for (std::size_t first = 0; first < count; first += kBlock) {
        const std::size_t end = std::min(first + kBlock, count);
        unsigned in_doubt = 0;
        for (std::size_t i = first; i < end; ++i) {
            const double value = in_double(a[i], b[i]);
            result[i] = static_cast<float>(value);
            in_doubt |= rounds_safely(value, error) ? 0u : 1u;
        }
        if (in_doubt != 0)
            for (std::size_t i = first; i < end; ++i) result[i] = single(a[i], b[i]);
    }
}

}  // namespace detail

namespace loop {

// The result overlaps neither argument.
QUORVEL_INLINE void atan2(const float* y, const float* x, float* angle,
                          std::size_t count) noexcept {
    using namespace detail;
    by_blocks<atan2_for_loop, [](float b, float a) { return math::atan2(b, a); }>(
        y, x, angle, count, kAtan2Error);
}

QUORVEL_INLINE void pow(const float* x, const float* y, float* power, std::size_t count) noexcept {
    using namespace detail;
    by_blocks<power_by_log, [](float a, float b) { return math::pow(a, b); }>(x, y, power, count,
                                                                              kPowerErrorByLog);
}

}  // namespace loop
}  // namespace quorvel::math
