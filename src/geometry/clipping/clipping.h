// Difference and overlap of two simple rings in one pass, by tracing boundaries from crossing to
// crossing: K. Weiler, P. Atherton, Hidden surface removal using polygon area sorting, 1977.
//
// 1. prepared_ring.h    Either ring is measured: box, orientation, convexity. It must not cross
//                       itself.
// 2. perturbation.h     The vertices of B that touch A are moved off it, outwards, by the
//                       tolerance, so that contact never decides anything. Pieces get the vertices
//                       as given.
// 3. crossings.h        The crossings of their edges are found, each as an entry or an exit, by the
//                       one predicate that decides on which side of a line a point lies, exactly
//                       (half_plane.h, orientation_predicate.h).
// 4. chain.h            They are sorted along either ring. Entries and exits take turns there; if
//                       they do not, the operation fails.
// 5. tracing.h          A piece of the overlap runs along A from where A enters B to where it
//                       leaves, goes on along B to where B leaves A, and so forth until it closes;
//                       a piece of the difference starts where A leaves B, and takes B backwards.
// 6. classification.h   Without crossings, a point tells how the rings lie: apart, A in B, or B in
//    hole.h             A, which is then cut along two bridges.
//
// The rings may run either way, touch, and share vertices and edges. What B is moved by bounds the
// error: the overlap is exact to about the tolerance times the length of the boundaries, and the
// areas of difference and overlap add up to that of A to rounding.
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
