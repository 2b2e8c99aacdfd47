// Where a point lies with respect to a ring.
#pragma once

#include "geometry/clipping/perturbation.h"

namespace quorvel::geometry::clipping {

// Distance from the nearest part of the ring, positive on the left of it.
DoubleReal distance_to_the_left(Point point, const Ring& ring) noexcept;

struct Location {
    bool inside;  // on the ring itself: inside of an anticlockwise one only
    bool touching;
};

// A vertex on another ring that has been moved off it is found up to two tolerances away; within
// 2.1 tolerances a point counts as touching.
Location locate_by_distance(Point point, const PreparedRing& ring) noexcept;

// Of a convex ring, the sides of its lines tell the same.
inline Location locate(const PerturbedPoint& perturbed, const PreparedRing& ring) noexcept {
    const bool by_sides = perturbed.sides.clear && ring.convex();
    if (by_sides) return {ring.encloses(perturbed.sides), false};
    return locate_by_distance(perturbed.point, ring);
}
inline Location locate(Point point, const PreparedRing& ring) noexcept {
    return locate({point, ring.sides(point)}, ring);
}

}  // namespace quorvel::geometry::clipping
