// Reduction of an angle by multiples of a quarter or half turn, right for every float.
//
// Below 2^28, n steps are subtracted in three parts: the first two products with n and the
// differences are exact, the third part errs by 2^-75. From 2^28 on, the angle is multiplied by a
// window of the bits of 2/pi: those before it only give multiples of four quarters, those after it
// less than 2^-65 quarters. The window moves once, at 2^78.
//
// Constants: tools/math/coefficients.sollya.
#pragma once

#include "math/bits.h"

namespace quorvel::math::detail {

// x = (count + 4k) steps + r - correction; with half a step on, the same of x + step/2
struct ReducedAngle {
    double r, correction;
    std::uint64_t count;  // meaningful in the lowest two bits
};

// A step is kQuarters quarter turns.
template <int kQuarters>
struct Step {
    static constexpr double kInverse = 0x1.45f306dc9c883p-1 / kQuarters;
    static constexpr double kHead = 0x1.921fb5p0 * kQuarters;
    static constexpr double kMiddle = 0x1.110b46p-26 * kQuarters;
    static constexpr double kTail = 0x1.1a62633145c07p-54 * kQuarters;
    static constexpr double kWhole = 0x1.921fb54442d18p0 * kQuarters;
    // 29, 29, 29 and 53 bits of the two windows of 1/step
    static constexpr double kLower[4] = {0x1.7cc1b7p-7 / kQuarters, 0x1.391054ap-34 / kQuarters,
                                         0x1.fc2757cp-64 / kQuarters,
                                         0x1.1f534ddc0db63p-92 / kQuarters};
    static constexpr double kUpper[4] = {0x1.4a7f09dp-54 / kQuarters, 0x1.7d1f534p-84 / kQuarters,
                                         0x1.bb81b6cp-113 / kQuarters,
                                         0x1.4acc9e21c821p-143 / kQuarters};
};

template <int kQuarters, bool kHalfStepOn>
QUORVEL_INLINE ReducedAngle reduce_moderate(double x) noexcept {
    using S = Step<kQuarters>;
    const double steps = x * S::kInverse;
    const double shifted = (kHalfStepOn ? steps + 0.5 : steps) + kToInteger;
    const double n = kHalfStepOn ? (shifted - kToInteger) - 0.5 : shifted - kToInteger;
    const double head = (x - n * S::kHead) - n * S::kMiddle;
    const double tail = n * S::kTail;
    const double r = head - tail;
    return {r, tail - (head - r), bits(shifted)};
}

// 2^28 <= |x| < 2^128, x a float. The first three products are exact, and so are their sums as far
// as they matter, since the leading bits cancel.
template <int kQuarters, bool kHalfStepOn>
QUORVEL_INLINE ReducedAngle reduce_large(double x) noexcept {
    using S = Step<kQuarters>;
    const bool upper = magnitude(x) >= 0x1p78;
    const double p0 = x * (upper ? S::kUpper[0] : S::kLower[0]);
    const double p1 = x * (upper ? S::kUpper[1] : S::kLower[1]);
    const double p2 = x * (upper ? S::kUpper[2] : S::kLower[2]);
    const double p3 = x * (upper ? S::kUpper[3] : S::kLower[3]);
    const double head = p0 - ((p0 + 0x1.8p76) - 0x1.8p76);
    const double steps = (head + p1) + p2;
    const double shifted = (kHalfStepOn ? steps + 0.5 : steps) + kToInteger;
    const double n = kHalfStepOn ? (shifted - kToInteger) - 0.5 : shifted - kToInteger;
    const double fraction = (((head - n) + p1) + p2) + p3;
    return {fraction * S::kWhole, 0.0, bits(shifted)};
}

template <int kQuarters, bool kHalfStepOn>
QUORVEL_INLINE ReducedAngle reduce(double x) noexcept {
    if (magnitude(x) < 0x1p28) [[likely]]
        return reduce_moderate<kQuarters, kHalfStepOn>(x);
    return reduce_large<kQuarters, kHalfStepOn>(x);
}

}  // namespace quorvel::math::detail
