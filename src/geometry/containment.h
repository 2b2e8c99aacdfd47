// Points and segments against polygons.
#pragma once

#include <optional>

#include "geometry/lines.h"
#include "geometry/points.h"

namespace quorvel::geometry {

// Whether a point lies inside a convex polygon with clockwise vertices or on its boundary.
inline bool encloses(PlanPoints polygon, PlanPoint p) noexcept {
    for (Integer i = 0; i < polygon.size(); ++i) {
        const PlanPoint start = polygon[i];
        if (coincide(p, start)) return true;
        if (side_of_line(start, polygon[polygon.after(i)], p) < 0) return false;
    }
    return polygon.size() > 0;
}

// Number of points that a polygon encloses; their flags are set to 1, others stay as they are.
inline Integer count_enclosed(PlanPoints polygon, PlanPoints points, Integer* flags) noexcept {
    Integer enclosed = 0;
    for (Integer j = 0; j < points.size(); ++j) {
        if (!encloses(polygon, points[j])) continue;
        flags[j] = 1;
        ++enclosed;
    }
    return enclosed;
}

// Where a segment meets the boundary of a polygon. The vertex is, counted from 1, the end of the
// edge that is crossed; 999 more than the end of the last edge through the start of the segment;
// minus the vertex at which the segment starts; or 0.
struct BoundaryCrossing {
    PlanPoint point;
    Integer vertex;
};

// 999 + the number of the vertex at an index, modulo 2^32: no count of vertices is out of bounds.
constexpr Integer boundary_code(Integer index) noexcept {
    return static_cast<Integer>(static_cast<std::uint32_t>(index) + 1000u);
}

inline bool within_reach(PlanPoint p) noexcept {
    constexpr Real farthest = 100000.0f;
    return absolute(p.x) <= farthest && absolute(p.y) <= farthest;
}

inline BoundaryCrossing boundary_crossing(PlanPoint a, PlanPoint b, PlanPoints polygon) noexcept {
    PlanPoint crossing = far_point_in_plan<Real>();
    std::optional<Integer> end_of_edge_through_a;
    for (Integer i = 0; i < polygon.size(); ++i) {
        const Integer end = polygon.after(i);
        crossing = crossing_point(a, b, polygon[i], polygon[end]);
        if (coincide(crossing, a))
            end_of_edge_through_a = end;
        else if (within_reach(crossing))
            return {crossing, end + 1};
    }
    for (Integer i = 0; i < polygon.size(); ++i)
        if (coincide(a, polygon[i])) return {crossing, -(i + 1)};
    if (!end_of_edge_through_a) return {crossing, 0};
    return {polygon[*end_of_edge_through_a], boundary_code(*end_of_edge_through_a)};
}

// Angle between a and b, of which q is the cross product.
inline Real angle_between(SpacePoint a, SpacePoint b, SpacePoint q) noexcept {
    const auto pulled_inside = [](Real x) { return absolute(x) > 1.0f ? x * 0.999f : x; };
    const Real lengths = length(a) * length(b);
    const Real angle = math::asin(pulled_inside(length(q) / lengths));
    return dot_product(a, b) / lengths > 0.0f ? angle : pi - angle;
}

// Whether a point in the plane of a closed polygon, the last vertex of which repeats the first,
// lies inside: whether the angles under which it sees the edges add up to a turn. The first edge
// with whose line the point is in line decides alone.
inline bool inside(SpacePoint p, SpacePoints polygon) noexcept {
    constexpr Real degenerate = 1.0e-6f;
    SpacePoint normal{};
    Real turn = 0.0f;
    for (Integer i = 0; i + 1 < polygon.size(); ++i) {
        const SpacePoint a = polygon[i] - p, b = polygon[i + 1] - p, q = cross_product(a, b);
        if (length(q) <= degenerate) return spans(polygon[i], polygon[i + 1], p);
        if (length(a) <= degenerate || length(b) <= degenerate) return false;
        if (i == 0) normal = q / length(q);
        const Real angle = angle_between(a, b, q);
        turn += i == 0 || dot_product(normal, q) > -1.0e-5f ? angle : -angle;
    }
    return absolute(turn) >= pi;
}

}  // namespace quorvel::geometry
