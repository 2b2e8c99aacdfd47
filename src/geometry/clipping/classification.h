// Where a point lies with respect to a ring.
#pragma once

#include "geometry/clipping/nudge.h"

namespace quorvel::geometry::clipping {

// Distance from the nearest part of the ring, positive on the left of it.
DoubleReal distance_to_the_left(Point point, const Ring& ring) noexcept;

struct Location {
    bool inside;  // on the ring itself: inside of an anticlockwise one only
    bool touching;
};

// A vertex on another ring that has been nudged off it is found up to two tolerances away; within
// 2.1 tolerances a point counts as touching.
Location locate_by_distance(Point point, const Outline& ring) noexcept;

// Of a convex ring, the sides of its lines tell the same.
inline Location locate(const PlacedPoint& placed, const Outline& ring) noexcept {
    const bool by_sides = placed.view.clear && ring.convex();
    if (by_sides) return {ring.encloses(placed.view), false};
    return locate_by_distance(placed.point, ring);
}
inline Location locate(Point point, const Outline& ring) noexcept {
    return locate({point, ring.view(point)}, ring);
}

}  // namespace quorvel::geometry::clipping
