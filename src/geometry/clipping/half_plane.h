// The half-plane on the inner side of a ring's edge.
#pragma once

#include <cmath>

#include "geometry/clipping/measures.h"
#include "geometry/orientation_predicate.h"

namespace quorvel::geometry::clipping {

// The way a ring runs: clockwise has the interior on the right.
enum class Orientation { none, clockwise, anticlockwise };

class HalfPlane {
  public:
    HalfPlane(Edge edge, Orientation ring) noexcept
        : line_(edge.start, edge.end), left_(ring == Orientation::clockwise ? -1 : 1) {}

    // +1 inside, -1 outside, 0 on the line.
    int side(Point point) const noexcept { return left_ * line_.orientation(point); }

    // Also of a whole edge, unless it reaches to both sides or lies along the line: then 0.
    int side(Edge edge) const noexcept {
        const int start = side(edge.start), end = side(edge.end);
        return start == -end ? 0 : start != 0 ? start : end;
    }

    // A point on the line counts as outside, so that a touch is no crossing, and a line through a
    // vertex is one, and not two.
    bool contains(Point point) const noexcept { return side(point) > 0; }
    bool parts(Edge edge) const noexcept { return contains(edge.start) != contains(edge.end); }

    // Whether all of a box is clearly on one side.
    bool misses(const CentredBox& box) const noexcept {
        return std::fabs(line_.product(box.middle)) > 1.0001 * box.reach(line_.along());
    }

    // The point where an edge that is parted meets the line. To an edge that hardly leaves the
    // line, any of its points will do.
    Point meeting_point(Edge edge) const noexcept {
        const DoubleReal start = std::fabs(line_.product(edge.start));
        const DoubleReal both = start + std::fabs(line_.product(edge.end));
        return both > 0.0 ? edge.start + (start / both) * edge.along() : edge.start;
    }

  private:
    DirectedLine line_;
    int left_;
};

}  // namespace quorvel::geometry::clipping
