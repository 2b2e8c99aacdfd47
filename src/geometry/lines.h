// Lines and segments: where two meet in plan, what lies on one, and on which side of it.
//
// The tolerances are lengths, not ratios: results depend on the unit of the coordinates.
#pragma once

#include <cmath>

#include "geometry/points.h"

namespace quorvel::geometry {

// Where the lines AB and CD meet; far away when they are parallel.
inline PlanPoint meeting_point(PlanPoint a, PlanPoint b, PlanPoint c, PlanPoint d) noexcept {
    const PlanPoint along = b - a;
    const PlanPoint normal{d.y - c.y, c.x - d.x};
    const Real divergence = dot(along, normal);
    if (std::fabs(divergence) < 1.0e-10f) return far_point_in_plan;
    return a + dot(c - a, normal) / divergence * along;
}

constexpr bool in_box_of_segment(PlanPoint x, PlanPoint a, PlanPoint b) noexcept {
    const auto between = [](Real v, Real end, Real other_end) {
        constexpr Real slack = -1.0e-4f;
        return std::max(end, other_end) - v > slack && v - std::min(end, other_end) > slack;
    };
    return between(x.x, a.x, b.x) && between(x.y, a.y, b.y);
}

// Where the segments AB and CD cross or touch, else far away.
inline PlanPoint crossing_point(PlanPoint a, PlanPoint b, PlanPoint c, PlanPoint d) noexcept {
    const PlanPoint x = meeting_point(a, b, c, d);
    return in_box_of_segment(x, a, b) && in_box_of_segment(x, c, d) ? x : far_point_in_plan;
}

inline constexpr Real coincidence = 1.0e-5f;

inline bool coincide(PlanPoint a, PlanPoint b) noexcept {
    return std::fabs(a.x - b.x) < coincidence && std::fabs(a.y - b.y) < coincidence;
}

// Side of the directed line AB on which C lies: 1 right, -1 left, 0 on the line.
inline Integer side_of_line(PlanPoint a, PlanPoint b, PlanPoint c) noexcept {
    const auto [sin, cos] = math::sincos(math::atan2(b.x - a.x, b.y - a.y));
    const Real to_right = (c.x - a.x) * cos - (c.y - a.y) * sin;
    if (std::fabs(to_right) < coincidence) return 0;
    return (to_right > 0.0f) - (to_right < 0.0f);
}

// Whether P, known to lie on the line AB, lies between the two. Only the test of x asks for it; y
// and z merely object to points beyond both ends.
constexpr bool in_span(SpacePoint a, SpacePoint b, SpacePoint p) noexcept {
    const auto beyond = [](Real v, Real end, Real other_end) {
        return (v > end && v > other_end) || (v < end && v < other_end);
    };
    const bool x_between = (a.x <= p.x && p.x <= b.x) || (b.x <= p.x && p.x <= a.x);
    return x_between && !beyond(p.y, a.y, b.y) && !beyond(p.z, a.z, b.z);
}

// Whether P lies on B's side of A and nearer to A than B is.
constexpr bool ahead_and_nearer(SpacePoint a, SpacePoint b, SpacePoint p) noexcept {
    const SpacePoint u = b - a, w = p - a;
    return !(dot(w, u) < 0.0f || squared_length(u) <= squared_length(w));
}

}  // namespace quorvel::geometry
