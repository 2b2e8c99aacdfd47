// Difference and overlap of two simple rings, in one pass.
//
// The rings may run either way, touch, and share vertices and edges. Ring B is nudged off ring A
// before the two are compared (nudge.h), so contact within the tolerance never decides anything;
// the pieces are made of the points as they were. Then
//   crossings.h       where the rings cross, the crossings are found
//   chain.h           and sorted along either ring;
//   tracing.h         pieces change from one ring to the other at each crossing;
//   classification.h  where they do not, a point tells how the rings lie:
//   hole.h            B within A is cut out along two bridges; else they are apart, or A is in B.
//
// What B is moved by bounds the error: the overlap is exact to about the tolerance times the length
// of the boundaries, and the areas of difference and overlap add up to that of A to rounding.
#pragma once

#include "geometry/clipping/piece_list.h"
#include "geometry/clipping/status.h"

namespace quorvel::geometry::clipping {

// The difference need not be formed where it is not wanted and could not fail.
enum class Wanted { both, overlap };

// Appends the new points to the pool; what a failure leaves in pool and lists stays.
Status clip(const Ring& a, const Ring& b, Integer most_crossings, Pool& pool, PieceList& difference,
            PieceList& overlap, Wanted wanted = Wanted::both) noexcept;

}  // namespace quorvel::geometry::clipping
