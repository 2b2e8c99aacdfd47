// On which side of a directed line a point lies: the one predicate behind every side question of
// the clipping.
//
// Laws, for points of any size:
// 1. Exact: the answer is the sign of (b - a) x (c - a) in real arithmetic, +1 when c lies on the
//    left of the line from a to b, -1 on the right, 0 on the line.
// 2. Antisymmetric: points in another cyclic order get the same answer, in reversed order the
//    opposite one. Two questions about the same three points never disagree.
// 3. A line without length has all points on it, and so has every line when a coordinate is
//    infinite or not a number.
// 4. The same everywhere: only sums, differences and products of doubles, each rounded as IEEE 754
//    says, and powers of two.
// The first two end where, beside the greatest x of the three points or the greatest y, another one
// that is not 0 is smaller than by 2^-960 (1e-289): it may count as 0 or not.
//
// Source: J. R. Shewchuk, Adaptive precision floating-point arithmetic and fast robust geometric
// predicates, 1997.
#pragma once

#include <cmath>

#include "geometry/vector.h"

namespace quorvel::geometry {

using PlanPosition = PlanVector<DoubleReal>;

// The predicate without its filter, a hundred times as slow.
[[gnu::const, gnu::cold]] int exact_orientation(PlanPosition a, PlanPosition b,
                                                PlanPosition c) noexcept;

// A line of which the predicate is asked more than once.
class DirectedLine {
  public:
    constexpr DirectedLine(PlanPosition start, PlanPosition end) noexcept
        : start_(start), end_(end), along_(end - start) {}

    constexpr PlanPosition start() const noexcept { return start_; }
    constexpr PlanPosition along() const noexcept { return along_; }

    // The cross product with the way to a point, rounded: in proportion to the distance.
    constexpr DoubleReal product(PlanPosition point) const noexcept {
        return cross_product(along_, point - start_);
    }

    // What is beyond the bound cannot be due to rounding; its second part covers underflow.
    int orientation(PlanPosition point) const noexcept {
        constexpr DoubleReal rounding = (3.0 + 0x1p-49) * 0x1p-53, underflow = 0x1p-1000;
        const PlanPosition offset = point - start_;
        const DoubleReal left = along_.x * offset.y, right = along_.y * offset.x;
        const DoubleReal product = left - right;
        const DoubleReal bound = rounding * (std::fabs(left) + std::fabs(right)) + underflow;
        if (std::fabs(product) > bound) return (product > 0.0) - (product < 0.0);
        return exact_orientation(start_, end_, point);
    }

  private:
    PlanPosition start_, end_, along_;
};

inline int orientation(PlanPosition a, PlanPosition b, PlanPosition c) noexcept {
    return DirectedLine(a, b).orientation(c);
}

}  // namespace quorvel::geometry
