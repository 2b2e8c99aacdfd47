// Whether a ring, which is walked edge by edge, runs round a point.
#pragma once

#include "geometry/clipping/half_plane.h"

namespace quorvel::geometry::clipping {

// Counts the edges, with their directions, that a level ray from the point towards greater x meets.
class Winding {
  public:
    Winding(Point point, Orientation ring) noexcept : point_(point), orientation_(ring) {}

    void pass(Edge edge) noexcept {
        const bool start_below = edge.start.y <= point_.y, end_below = edge.end.y <= point_.y;
        if (start_below != end_below)
            pass_level(edge, end_below);
        else if (edge.start.y == point_.y && edge.end.y == point_.y)
            on_ring_ |= (edge.start.x <= point_.x) != (edge.end.x < point_.x);
    }

    // A point on the ring counts as outside, as it does to the edges that cross there.
    bool inside() const noexcept { return !on_ring_ && times_ == 1; }
    bool outside() const noexcept { return on_ring_ || times_ == 0; }

  private:
    void pass_level(Edge edge, bool downwards) noexcept {
        const int side = HalfPlane(edge, orientation_).side(point_);
        const bool inner_side_faces = downwards == (orientation_ == Orientation::clockwise);
        times_ += inner_side_faces ? side > 0 : -(side < 0);
        on_ring_ |= side == 0;
    }

    Point point_;
    Orientation orientation_;
    int times_ = 0;
    bool on_ring_ = false;
};

}  // namespace quorvel::geometry::clipping
