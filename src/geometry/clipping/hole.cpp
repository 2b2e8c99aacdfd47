#include "geometry/clipping/hole.h"

#include "geometry/clipping/perturbation.h"

namespace quorvel::geometry::clipping {
namespace {

// Directions along x.
constexpr DoubleReal left = -1.0, right = 1.0;

struct Extreme {
    Integer vertex;
    Point point;  // perturbed

    void update(DoubleReal direction, Integer candidate, Point at) noexcept {
        if (direction * at.x > direction * point.x) *this = {candidate, at};
    }
};

struct Extremes {
    Extreme leftmost, rightmost;
};

// The first of equal ones.
Extremes extremes(const PreparedRing& b, const PreparedRing& a) noexcept {
    const Extreme first{0, perturbed(b[0], a).point};
    Extremes extremes{first, first};
    for (Integer i = 1; i < b.size(); ++i) {
        const Point point = perturbed(b[i], a).point;
        extremes.leftmost.update(left, i, point);
        extremes.rightmost.update(right, i, point);
    }
    return extremes;
}

// The point where a bridge meets an edge of A; no edge is -1.
struct Landing {
    Integer edge = -1;
    Point point{};
};

// The nearest edge on a level ray from a vertex of B. An edge spans the level of its lower end and
// not that of its upper end, so that a ray through a vertex meets each boundary once.
Landing landing(DoubleReal direction, Point from, const PreparedRing& a) noexcept {
    Landing nearest;
    for (Integer i = 0; i < a.size(); ++i) {
        const auto [start, end] = a.edge(i);
        if ((start.y <= from.y) == (end.y <= from.y)) continue;
        const DoubleReal x = start.x + (from.y - start.y) / (end.y - start.y) * (end.x - start.x);
        const bool ahead = direction * x >= direction * from.x - a.tolerance();
        if (ahead && (nearest.edge < 0 || direction * x < direction * nearest.point.x))
            nearest = {i, {x, from.y}};
    }
    return nearest;
}

// One end of a bridge on either ring.
struct Bridge {
    Integer vertex;          // of B
    Integer edge, position;  // of A; in the pool
};

// From one bridge along A to the other one, and back along B.
void add_piece(const Bridge& from, const Bridge& to, const PreparedRing& a, const PreparedRing& b,
               PieceList& list) noexcept {
    list.add(-b.position(from.vertex));
    list.add(from.position);
    Integer i = a.after(from.edge);
    for (; i != to.edge; i = a.after(i)) list.add(a.position(i));
    list.add(a.position(i));
    list.add(-to.position);
    const bool backward = a.orientation() == b.orientation();
    for (i = to.vertex; i != from.vertex; i = backward ? b.before(i) : b.after(i))
        list.add(b.position(i));
    list.close_piece();
}

}  // namespace

Status cut_around_hole(const PreparedRing& a, const PreparedRing& b, Pool& pool,
                       PieceList& difference) noexcept {
    const auto [leftmost, rightmost] = extremes(b, a);
    const Landing at_left = landing(left, leftmost.point, a);
    const Landing at_right = landing(right, rightmost.point, a);
    if (at_left.edge < 0 || at_right.edge < 0) return Status::no_bridge;

    const Bridge left_bridge{leftmost.vertex, at_left.edge, pool.append(at_left.point)};
    const Bridge right_bridge{rightmost.vertex, at_right.edge, pool.append(at_right.point)};
    if (left_bridge.position == 0 || right_bridge.position == 0) return Status::pool_full;
    add_piece(left_bridge, right_bridge, a, b, difference);
    add_piece(right_bridge, left_bridge, a, b, difference);
    return Status::done;
}

bool can_cut_around_hole(const PreparedRing& a, const PreparedRing& b, const Pool& pool,
                         const PieceList& difference) noexcept {
    return a.convex() && b.finite() && pool.has_room(2) &&
           difference.has_room(a.size() + b.size() + 8);
}

}  // namespace quorvel::geometry::clipping
