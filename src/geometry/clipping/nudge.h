// Moving a point off the boundary of a ring.
#pragma once

#include "geometry/clipping/outline.h"

namespace quorvel::geometry::clipping {

struct PlacedPoint {
    Point point;
    View view;  // clear only of points that stayed where they were
};

// A point on a vertex or an edge of the ring, to the tolerance, is moved to the outside of it, so
// that shared edges and vertices of two rings are told as apart by all that follows. Outwards even
// when the other ring lies inside: moved inwards, two equal rings would not overlap cleanly.
//
// One pass over the edges: where two edges meet in a reflex corner sharper than 52 degrees, moving
// off the second can bring the point back across the first.
Point nudged_off(const Outline& ring, Point point) noexcept;

// Most points are far from the ring.
inline PlacedPoint nudged(Point point, const Outline& ring) noexcept {
    const View view = ring.view(point);
    return {view.clear ? point : nudged_off(ring, point), view};
}

}  // namespace quorvel::geometry::clipping
