#include "geometry/clipping/clipping.h"

#include "geometry/clipping/classification.h"
#include "geometry/clipping/hole.h"
#include "geometry/clipping/tracing.h"
#include "geometry/clipping/winding.h"

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

// Whether A starts on that side of B which its crossings tell. It does as long as B has not been
// moved; perturbed, B may be turned inside out where it is narrower than the tolerance.
bool starts_right(const PreparedRing& a, const PreparedRing& b, bool outside) noexcept {
    Winding winding(a[0], b.orientation());
    Point start = perturbed(b[0], a).point;
    for (Integer i = b.size() - 1; i >= 0; --i) {
        const Point end = start;
        start = perturbed(b[i], a).point;
        winding.pass({start, end});
    }
    return outside ? winding.outside() : winding.inside();
}

Status clip_crossing(const PreparedRing& a, const PreparedRing& b, Crossings& crossings,
                     Pieces pieces) noexcept {
    Chain chain_a(a, &Crossing::a, b, crossings);
    Chain chain_b(b, &Crossing::b, a, crossings);
    if (!chain_a.build()) return Status::chain_a_overfull;
    if (!chain_b.build()) return Status::chain_b_overfull;
    if (!chain_a.alternates()) return Status::chain_a_inconsistent;
    if (!chain_b.alternates()) return Status::chain_b_inconsistent;
    if (crossings.perturbed && !starts_right(a, b, chain_a.enters_first()))
        return Status::chain_a_inconsistent;

    Tracer tracer(a, b, crossings, chain_a, chain_b);
    const bool skipped =
        pieces.wanted == Wanted::overlap && tracer.can_skip_difference(pieces.difference);
    if (!skipped) tracer.trace(Operation::difference, pieces.difference);
    if (!pieces.difference.full()) tracer.trace(Operation::overlap, pieces.overlap);
    return pieces.status();
}

bool lies_apart(Location location) noexcept { return !location.inside && !location.touching; }

// For rings that do not cross, and A not around B. Where all vertices of A touch B, the middles of
// its edges tell.
bool apart(const PreparedRing& a, const PreparedRing& b) noexcept {
    const Sides whole = b.sides(a.centred_box());
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

Status clip_not_crossing(const PreparedRing& a, PreparedRing& b, bool starts_inside, Pool& pool,
                         Pieces pieces) noexcept {
    if (starts_inside) {
        const bool skipped =
            pieces.wanted == Wanted::overlap && can_cut_around_hole(a, b, pool, pieces.difference);
        const Status status =
            skipped ? Status::done : cut_around_hole(a, b, pool, pieces.difference);
        if (status != Status::done) return status;
        if (pieces.difference.full()) return pieces.status();
        if (a.orientation() == b.orientation())
            pieces.overlap.add_whole(b);
        else
            pieces.overlap.add_whole_reversed(b);
    } else {
        b.prepare_half_planes();
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

    PreparedRing a(ring_a, measures_a, tol), b(ring_b, measures_b, tol);
    const Pieces pieces{difference, overlap, wanted};
    if (crosses_itself(a)) return Status::ring_a_crosses_itself;
    if (crosses_itself(b)) return Status::ring_b_crosses_itself;
    if (a.orientation() == Orientation::none) return Status::ring_a_without_area;
    if (b.orientation() == Orientation::none || disjoint) {
        difference.add_whole(ring_a);
        return pieces.status();
    }
    a.prepare_half_planes();
    const PerturbedPoint first = perturbed(b[0], a);
    Crossings crossings(most_crossings);
    const Status status = find_crossings(a, b, first, pool, crossings);
    if (status != Status::done) return status;
    return crossings.size() > 0 ? clip_crossing(a, b, crossings, pieces)
                                : clip_not_crossing(a, b, locate(first, a).inside, pool, pieces);
}

}  // namespace quorvel::geometry::clipping
