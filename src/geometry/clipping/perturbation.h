// Moving a point off the boundary of a ring.
#pragma once

#include "geometry/clipping/prepared_ring.h"

namespace quorvel::geometry::clipping {

struct PerturbedPoint {
    Point point;
    Sides sides;  // clear only of points that stayed where they were
};

// A point on a vertex or an edge of the ring, to the tolerance, is moved to the outside of it, so
// that shared edges and vertices of two rings are told as apart by all that follows. Outwards even
// when the other ring lies inside: moved inwards, two equal rings would not overlap cleanly.
//
// One pass over the edges: where two edges meet in a reflex corner sharper than 52 degrees, moving
// off the second can bring the point back across the first. It stays within a few tolerances all
// the same, and what follows takes it where it is.
Point moved_off(const PreparedRing& ring, Point point) noexcept;

// Most points are far from the ring.
inline PerturbedPoint perturbed(Point point, const PreparedRing& ring) noexcept {
    const Sides sides = ring.sides(point);
    return {sides.clear ? point : moved_off(ring, point), sides};
}

}  // namespace quorvel::geometry::clipping
