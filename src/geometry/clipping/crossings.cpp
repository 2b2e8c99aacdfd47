#include "geometry/clipping/crossings.h"

namespace quorvel::geometry::clipping {
namespace {

// The crossings of one edge of B.
class EdgeSearch {
  public:
    EdgeSearch(Integer j, Edge edge, const PreparedRing& a, const PreparedRing& b, Pool& pool,
               Crossings& crossings) noexcept
        : j_(j),
          edge_(edge),
          half_plane_(edge, b.orientation()),
          a_(a),
          agree_(a.orientation() == b.orientation()),
          pool_(pool),
          crossings_(crossings) {}

    bool hopeless() const noexcept { return half_plane_.misses(a_.centred_box()); }

    // With the edges of A whose bits are set, the lines of which part the edge of B.
    Status among(std::uint64_t edges) noexcept {
        Status status = Status::done;
        for (; edges != 0 && status == Status::done; edges &= edges - 1)
            status = record_crossing(std::countr_zero(edges));
        return status;
    }

    Status among_all() noexcept {
        Status status = Status::done;
        for (Integer i = 0; i < a_.size() && status == Status::done; ++i)
            if (a_.half_plane(i).parts(edge_)) status = record_crossing(i);
        return status;
    }

  private:
    // If the line of the edge of B parts edge i of A, too.
    Status record_crossing(Integer i) noexcept {
        const Edge edge = a_.edge(i);
        const bool leaves = half_plane_.contains(edge.start);
        if (half_plane_.contains(edge.end) == leaves) return Status::done;
        const Integer position = pool_.append(half_plane_.meeting_point(edge));
        if (position == 0) return Status::pool_full;
        const Passage a{i, !leaves}, b{j_, leaves == agree_};
        return crossings_.append({a, b, edge_, position, false}) ? Status::done
                                                                 : Status::too_many_crossings;
    }

    Integer j_;
    Edge edge_;
    HalfPlane half_plane_;
    const PreparedRing& a_;
    bool agree_;
    Pool& pool_;
    Crossings& crossings_;
};

Status search_edge(Integer j, const PerturbedPoint& start, const PerturbedPoint& end,
                   const PreparedRing& a, const PreparedRing& b, Pool& pool,
                   Crossings& crossings) noexcept {
    const std::uint64_t parting = start.sides.right ^ end.sides.right;
    const bool clear = start.sides.clear && end.sides.clear;
    if (clear && parting == 0) return Status::done;
    EdgeSearch search(j, {start.point, end.point}, a, b, pool, crossings);
    if (search.hopeless()) return Status::done;
    return clear ? search.among(parting) : search.among_all();
}

// Whether one of the rings lies clear of all lines of the other. If it is B, its vertices need no
// perturbation either; nor do they if it is A, which is then far from them.
bool cannot_cross(const PreparedRing& a, PreparedRing& b) noexcept {
    if (a.box().holds(b.box())) return a.sides(b.centred_box()).clear;
    if (!b.box().holds(a.box())) return false;
    b.prepare_half_planes();
    return b.sides(a.centred_box()).clear;
}

}  // namespace

bool crosses_itself(const PreparedRing& ring) noexcept {
    if (ring.convex() || ring.star_shaped()) return false;
    for (Integer i = 0; i + 2 < ring.size(); ++i) {
        const Edge edge = ring.edge(i);
        const HalfPlane half_plane(edge, Orientation::clockwise);
        bool start = half_plane.contains(ring[i + 2]);
        const Integer beyond = ring.size() - (i == 0);  // the last edge is a neighbour of the first
        for (Integer j = i + 2; j < beyond; ++j) {
            const bool end = half_plane.contains(ring[ring.after(j)]);
            if (start != end && HalfPlane(ring.edge(j), Orientation::clockwise).parts(edge) &&
                !neighbours(ring, i, j))
                return true;
            start = end;
        }
    }
    return false;
}

Status find_crossings(const PreparedRing& a, PreparedRing& b, const PerturbedPoint& first,
                      Pool& pool, Crossings& crossings) noexcept {
    if (cannot_cross(a, b)) return Status::done;
    PerturbedPoint start = first;
    for (Integer j = 0; j < b.size(); ++j) {
        const Integer next = b.after(j);
        const PerturbedPoint end = next == 0 ? first : perturbed(b[next], a);
        const Status status = search_edge(j, start, end, a, b, pool, crossings);
        if (status != Status::done) return status;
        crossings.perturbed |= !end.sides.clear;
        start = end;
    }
    return Status::done;
}

}  // namespace quorvel::geometry::clipping
