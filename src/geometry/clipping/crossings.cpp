#include "geometry/clipping/crossings.h"

#include "geometry/clipping/line.h"

namespace quorvel::geometry::clipping {
namespace {

// Whether the boxes round two edges are apart. By rounding alone, edges in line with one another
// may seem to cross that do not even meet.
bool apart(Edge edge, Edge other, DoubleReal tolerance) noexcept {
    const Point doubled_offset = (edge.start - other.start) + (edge.end - other.end);
    const Point along = edge.along(), other_along = other.along();
    const auto parted = [&](DoubleReal offset, DoubleReal width, DoubleReal other_width) {
        return std::fabs(offset) > std::fabs(width) + std::fabs(other_width) + 1.0e-6 * tolerance;
    };
    return parted(doubled_offset.x, along.x, other_along.x) ||
           parted(doubled_offset.y, along.y, other_along.y);
}

// The crossings of one edge of B.
class EdgeSearch {
  public:
    EdgeSearch(Integer j, Edge edge, const Outline& a, const Outline& b, Pool& pool,
               Crossings& crossings) noexcept
        : j_(j),
          edge_(edge),
          line_(edge, b.outside(), b.tolerance()),
          a_(a),
          pool_(pool),
          crossings_(crossings) {}

    bool hopeless() const noexcept { return line_.misses(a_.box()); }

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
            if (Line(a_.edge(i), a_.outside(), a_.tolerance()).parts(edge_))
                status = record_crossing(i);
        return status;
    }

  private:
    // If the line of the edge of B parts edge i of A, too.
    Status record_crossing(Integer i) noexcept {
        const Edge edge = a_.edge(i);
        const DoubleReal start = line_.side(edge.start), end = line_.side(edge.end);
        if (!Line::differ(start, end) || apart(edge, edge_, a_.tolerance())) return Status::done;
        const Point point = edge.start + (start / (start - end)) * edge.along();
        const Integer position = pool_.append(point);
        if (position == 0) return Status::pool_full;
        return crossings_.append(i, j_, position) ? Status::done : Status::too_many_crossings;
    }

    Integer j_;
    Edge edge_;
    Line line_;
    const Outline& a_;
    Pool& pool_;
    Crossings& crossings_;
};

Status search_edge(Integer j, const PlacedPoint& start, const PlacedPoint& end, const Outline& a,
                   const Outline& b, Pool& pool, Crossings& crossings) noexcept {
    const std::uint64_t parting = start.view.right ^ end.view.right;
    const bool clear = start.view.clear && end.view.clear;
    if (clear && parting == 0) return Status::done;
    EdgeSearch search(j, {start.point, end.point}, a, b, pool, crossings);
    if (search.hopeless()) return Status::done;
    return clear ? search.among(parting) : search.among_all();
}

// Whether one of the rings lies clear of all lines of the other. If it is B, its vertices need no
// nudge either; nor do they if it is A, which is then far from them.
bool cannot_cross(const Outline& a, Outline& b) noexcept {
    if (a.box().holds(b.box())) return a.view(b.box()).clear;
    if (!b.box().holds(a.box())) return false;
    b.survey();
    return b.view(a.box()).clear;
}

}  // namespace

// Which side is the negative one does not matter here, if it is the same for all.
bool crosses_itself(const Outline& ring) noexcept {
    if (ring.convex()) return false;
    constexpr DoubleReal left = 1.0;
    for (Integer i = 0; i + 2 < ring.size(); ++i) {
        const Edge edge = ring.edge(i);
        const Line line(edge, left, ring.tolerance());
        DoubleReal start = line.side(ring[i + 2]);
        for (Integer j = i + 2; j < ring.size(); ++j) {
            const DoubleReal end = line.side(ring[ring.after(j)]);
            if (Line::differ(start, end) &&
                Line(ring.edge(j), left, ring.tolerance()).parts(edge) && !neighbours(ring, i, j) &&
                !apart(edge, ring.edge(j), ring.tolerance()))
                return true;
            start = end;
        }
    }
    return false;
}

Status find_crossings(const Outline& a, Outline& b, const PlacedPoint& first, Pool& pool,
                      Crossings& crossings) noexcept {
    if (cannot_cross(a, b)) return Status::done;
    PlacedPoint start = first;
    for (Integer j = 0; j < b.size(); ++j) {
        const Integer next = b.after(j);
        const PlacedPoint end = next == 0 ? first : nudged(b[next], a);
        const Status status = search_edge(j, start, end, a, b, pool, crossings);
        if (status != Status::done) return status;
        start = end;
    }
    return Status::done;
}

}  // namespace quorvel::geometry::clipping
