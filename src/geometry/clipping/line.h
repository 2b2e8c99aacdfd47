// The two sides of an edge's line.
#pragma once

#include <cmath>

#include "geometry/clipping/measures.h"

namespace quorvel::geometry::clipping {

// A point on the line counts as lying on its negative side, so that a touch is no crossing and a
// line through a vertex is one, and not two. What lies within 1e-11 of the tolerance of the line is
// on it; without that, edges in line with one another cross by their rounding errors.
class Line {
  public:
    // The negative side is the left one for left = +1, the right one for left = -1.
    Line(Edge edge, DoubleReal left, DoubleReal tolerance) noexcept
        : start_(edge.start),
          along_(edge.along()),
          left_(left),
          width_(1.0e-11 * tolerance),
          clear_(width_ * (std::fabs(along_.x) + std::fabs(along_.y))) {}

    // In proportion to the distance from the line, negative on the negative side.
    DoubleReal side(Point point) const noexcept {
        const DoubleReal product = cross(along_, point - start_);
        return holds(std::fabs(product)) ? 0.0 : -left_ * product;
    }

    bool parts(Edge edge) const noexcept { return differ(side(edge.start), side(edge.end)); }

    // Whether all of a box is clearly on one side.
    bool misses(const Box& box) const noexcept {
        return std::fabs(cross(along_, box.middle() - start_)) > 1.0001 * box.reach(along_);
    }

    static constexpr bool differ(DoubleReal side, DoubleReal other) noexcept {
        return (side > 0.0) != (other > 0.0);
    }

  private:
    // Mostly the sum of the two sides tells, which is not below the length.
    bool holds(DoubleReal product) const noexcept {
        return product <= clear_ && product <= width_ * length(along_);
    }

    Point start_, along_;
    DoubleReal left_, width_, clear_;
};

}  // namespace quorvel::geometry::clipping
