#include "geometry/clipping/classification.h"

#include <cmath>
#include <limits>

namespace quorvel::geometry::clipping {
namespace {

// The distance from an edge is positive on its left.
struct Nearest {
    Integer index = 0;
    DoubleReal distance = std::numeric_limits<DoubleReal>::infinity();
};

Nearest nearest_vertex(Point point, const Ring& ring) noexcept {
    Nearest nearest;
    for (Integer i = 0; i < ring.size(); ++i) {
        const DoubleReal squared = squared_length(point - ring[i]);
        if (squared < nearest.distance) nearest = {i, squared};
    }
    nearest.distance = math::sqrt(nearest.distance);
    return nearest;
}

// Among the edges that the foot of the perpendicular lies on; an edge without length has none. The
// ends are taken generously: beside a vertex within a straight side, rounding could else find the
// foot beyond the ends of both edges, and the turn there, which is rounding too, would decide.
Nearest nearest_edge(Point point, const Ring& ring) noexcept {
    Nearest nearest;
    for (Integer i = 0; i < ring.size(); ++i) {
        const Edge edge = ring.edge(i);
        const Point along = edge.along(), offset = point - edge.start;
        const DoubleReal foot = dot_product(along, offset), squared = squared_length(along);
        const DoubleReal slack = 1.0e-9 * squared;
        if (!(foot >= -slack && foot <= squared + slack && squared > 0.0)) continue;
        const DoubleReal distance = cross_product(along, offset) / math::sqrt(squared);
        if (std::fabs(distance) < std::fabs(nearest.distance)) nearest = {i, distance};
    }
    return nearest;
}

// At a corner that turns left, points beyond both edges lie on the right.
bool turns_left(const Ring& ring, Integer corner) noexcept {
    const Point vertex = ring[corner];
    Integer a = ring.before(corner), b = ring.after(corner);
    while (a != corner && same(ring[a], vertex)) a = ring.before(a);
    while (b != corner && same(ring[b], vertex)) b = ring.after(b);
    return cross_product(vertex - ring[a], ring[b] - vertex) > 0.0;
}

}  // namespace

DoubleReal distance_to_the_left(Point point, const Ring& ring) noexcept {
    const Nearest vertex = nearest_vertex(point, ring), edge = nearest_edge(point, ring);
    const bool meet = edge.index == vertex.index || ring.after(edge.index) == vertex.index;
    // Where the foot falls on the vertex itself, rounding must not hide the edge.
    const DoubleReal limit = meet ? 1.0001 * vertex.distance : vertex.distance;
    if (std::fabs(edge.distance) <= limit) return edge.distance;
    return turns_left(ring, vertex.index) ? -vertex.distance : vertex.distance;
}

Location locate_by_distance(Point point, const PreparedRing& ring) noexcept {
    const DoubleReal left = distance_to_the_left(point, ring);
    return {ring.orientation() == Orientation::clockwise ? left < 0.0 : left >= 0.0,
            !(std::fabs(left) > 2.1 * ring.tolerance())};
}

}  // namespace quorvel::geometry::clipping
