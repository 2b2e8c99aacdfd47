#include "geometry/clipping/perturbation.h"

namespace quorvel::geometry::clipping {
namespace {

Point snapped_to_vertices(Point point, const PreparedRing& ring) noexcept {
    for (Integer i = 0; i < ring.size(); ++i)
        if (length(point - ring[i]) < ring.tolerance()) point = ring[i];
    return point;
}

// By the way to the left, which is negative when the outside is on the right.
Point moved_off(Edge edge, Point point, DoubleReal left, DoubleReal tolerance) noexcept {
    const Point along = edge.along(), offset = point - edge.start;
    const DoubleReal edge_length = length(along);
    const DoubleReal distance = cross_product(along, offset) / edge_length;
    const DoubleReal station = dot_product(along, offset) / edge_length;
    const bool near = std::fabs(distance) <= 1.001 * tolerance && station >= -tolerance &&
                      station <= edge_length + tolerance;
    if (!near) return point;
    const Point direction = along / edge_length;
    return edge.start + station * direction + left * Point{-direction.y, direction.x};
}

}  // namespace

Point moved_off(const PreparedRing& ring, Point point) noexcept {
    const bool clockwise = ring.orientation() == Orientation::clockwise;
    const DoubleReal left = clockwise ? ring.tolerance() : -ring.tolerance();
    point = snapped_to_vertices(point, ring);
    for (Integer i = 0; i < ring.size(); ++i)
        point = moved_off(ring.edge(i), point, left, ring.tolerance());
    return point;
}

}  // namespace quorvel::geometry::clipping
