#include "geometry/clipping/clipping.h"

#include "geometry/clipping/classification.h"
#include "geometry/clipping/hole.h"
#include "geometry/clipping/nudge.h"
#include "geometry/clipping/outline.h"
#include "geometry/clipping/tracing.h"

namespace quorvel::geometry::clipping {
namespace {

struct Pieces {
    PieceList &difference, &overlap;
    Wanted wanted;

    Status status() const noexcept {
        if (difference.full()) return Status::difference_full;
        return overlap.full() ? Status::overlap_full : Status::done;
    }
};

Status clip_crossing(const Outline& a, const Outline& b, bool starts_inside, const Pool& pool,
                     Crossings& crossings, Pieces pieces) noexcept {
    Chain chain_a(a, &Crossing::edge_a, crossings, pool);
    Chain chain_b(b, &Crossing::edge_b, crossings, pool);
    if (!chain_a.build()) return Status::chain_a_overfull;
    if (!chain_b.build()) return Status::chain_b_overfull;
    chain_b.order_ties(a, a.tolerance());

    Tracer tracer(a, b, crossings, chain_a, chain_b);
    tracer.mark_entries(starts_inside);
    const bool skipped =
        pieces.wanted == Wanted::overlap && tracer.can_skip_difference(pieces.difference);
    if (!skipped) tracer.trace(Operation::difference, pieces.difference);
    if (!pieces.difference.full()) tracer.trace(Operation::overlap, pieces.overlap);
    return pieces.status();
}

bool lies_apart(Location location) noexcept { return !location.inside && !location.touching; }

// For rings that do not cross, and A not around B. Where all vertices of A touch B, the middles of
// its edges tell.
bool apart(const Outline& a, const Outline& b) noexcept {
    const View whole = b.view(a.box());
    if (whole.clear && b.convex() && a.finite()) return !b.encloses(whole);
    bool touching = true;
    for (Integer i = 0; i < a.size(); ++i) {
        const Location vertex = locate(a[i], b);
        if (lies_apart(vertex)) return true;
        touching = touching && vertex.touching;
    }
    for (Integer i = 0; touching && i < a.size(); ++i)
        if (lies_apart(locate(0.5 * (a[i] + a[a.after(i)]), b))) return true;
    return false;
}

Status clip_not_crossing(const Outline& a, Outline& b, bool starts_inside, Pool& pool,
                         Pieces pieces) noexcept {
    if (starts_inside) {
        const bool skipped =
            pieces.wanted == Wanted::overlap && can_cut_around_hole(a, b, pool, pieces.difference);
        const Status status =
            skipped ? Status::done : cut_around_hole(a, b, pool, pieces.difference);
        if (status != Status::done) return status;
        if (pieces.difference.full()) return pieces.status();
        if (a.sense() == b.sense())
            pieces.overlap.add_whole(b);
        else
            pieces.overlap.add_whole_reversed(b);
    } else {
        b.survey();
        (apart(a, b) ? pieces.difference : pieces.overlap).add_whole(a);
    }
    return pieces.status();
}

}  // namespace

Status clip(const Ring& ring_a, const Ring& ring_b, Integer most_crossings, Pool& pool,
            PieceList& difference, PieceList& overlap, Wanted wanted) noexcept {
    if (!ring_a.usable()) return Status::ring_a_unusable;
    if (!ring_b.usable()) return Status::ring_b_unusable;
    const Measures measures_a(ring_a), measures_b(ring_b);
    const DoubleReal tol = tolerance(measures_a, measures_b);
    const bool disjoint = far_apart(measures_a, measures_b, tol);
    if (disjoint && wanted == Wanted::overlap) return Status::done;

    Outline a(ring_a, measures_a, tol), b(ring_b, measures_b, tol);
    const Pieces pieces{difference, overlap, wanted};
    if (crosses_itself(a)) return Status::ring_a_crosses_itself;
    if (crosses_itself(b)) return Status::ring_b_crosses_itself;
    if (a.sense() == Sense::none) return Status::ring_a_without_area;
    if (b.sense() == Sense::none || disjoint) {
        difference.add_whole(ring_a);
        return pieces.status();
    }
    a.survey();
    const PlacedPoint first = nudged(b[0], a);
    Crossings crossings(most_crossings);
    const Status status = find_crossings(a, b, first, pool, crossings);
    if (status != Status::done) return status;
    const bool starts_inside = locate(first, a).inside;
    return crossings.size() > 0 ? clip_crossing(a, b, starts_inside, pool, crossings, pieces)
                                : clip_not_crossing(a, b, starts_inside, pool, pieces);
}

}  // namespace quorvel::geometry::clipping
