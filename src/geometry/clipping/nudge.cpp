#include "geometry/clipping/nudge.h"

namespace quorvel::geometry::clipping {
namespace {

Point snapped_to_vertices(Point point, const Outline& ring) noexcept {
    for (Integer i = 0; i < ring.size(); ++i)
        if (length(point - ring[i]) < ring.tolerance()) point = ring[i];
    return point;
}

Point moved_off(Edge edge, Point point, DoubleReal outside, DoubleReal tolerance) noexcept {
    const Point along = edge.along(), offset = point - edge.start;
    const DoubleReal edge_length = length(along);
    const DoubleReal distance = cross(along, offset) / edge_length;
    const DoubleReal station = dot(along, offset) / edge_length;
    const bool near = std::fabs(distance) <= 1.001 * tolerance && station >= -tolerance &&
                      station <= edge_length + tolerance;
    if (!near) return point;
    const Point direction = along / edge_length, left{-direction.y, direction.x};
    return edge.start + station * direction + (outside * tolerance) * left;
}

}  // namespace

Point nudged_off(const Outline& ring, Point point) noexcept {
    point = snapped_to_vertices(point, ring);
    for (Integer i = 0; i < ring.size(); ++i)
        point = moved_off(ring.edge(i), point, ring.outside(), ring.tolerance());
    return point;
}

}  // namespace quorvel::geometry::clipping
