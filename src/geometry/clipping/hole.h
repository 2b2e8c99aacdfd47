// A ring within a ring: the difference as two pieces, cut along bridges.
#pragma once

#include "geometry/clipping/piece_list.h"
#include "geometry/clipping/prepared_ring.h"
#include "geometry/clipping/status.h"

namespace quorvel::geometry::clipping {

// Cuts A level from the leftmost and from the rightmost vertex of B, which lies inside, outwards to
// the nearest edge of A. The ends of these bridges are appended to the pool; a negative position in
// a piece marks a vertex from which a bridge leads to the next one.
Status cut_around_hole(const PreparedRing& a, const PreparedRing& b, Pool& pool,
                       PieceList& difference) noexcept;

// Whether it is sure to succeed: around a convex A there are bridges, if there is room for them.
bool can_cut_around_hole(const PreparedRing& a, const PreparedRing& b, const Pool& pool,
                         const PieceList& difference) noexcept;

}  // namespace quorvel::geometry::clipping
