// Whether points in plan lie on one straight line.
//
// Deliberate: slopes are compared as ratios of coordinates and not by a cross product, so that the
// outcome depends on scale.
#pragma once

#include "geometry/points.h"

namespace quorvel::geometry {

inline constexpr Real collinearity_tolerance = 1.0e-5f;

inline constexpr Integer none_apart = 0;

// Index of the first point that one coordinate sets apart from the first point, if any; a
// coordinate that is not a number does.
template <class Coordinate>
Integer first_apart(PlanPoints points, Coordinate of) noexcept {
    for (Integer i = 1; i < points.size(); ++i)
        if (!(absolute(of(points[i]) - of(points[0])) <= collinearity_tolerance)) return i;
    return none_apart;
}

// Whether the line through two points is neither level nor upright.
inline bool slanted(PlanPoint a, PlanPoint b) noexcept {
    return absolute(a.x - b.x) >= collinearity_tolerance &&
           absolute(a.y - b.y) >= collinearity_tolerance;
}

// Whether all points lie on the slanted line through the i-th and the j-th.
inline bool all_on_line(PlanPoints points, Integer i, Integer j) noexcept {
    const PlanPoint end = points[j], run = points[i] - end;
    for (Integer m = 0; m < points.size(); ++m) {
        if (m == i || m == j) continue;
        const PlanPoint offset = points[m] - end;
        if (absolute(offset.x / run.x - offset.y / run.y) > collinearity_tolerance) return false;
    }
    return true;
}

inline bool on_slanted_line(PlanPoints points) noexcept {
    for (Integer i = 0; i < points.size(); ++i)
        for (Integer j = i + 1; j < points.size(); ++j)
            if (slanted(points[i], points[j])) return all_on_line(points, i, j);
    return false;
}

// 1 for points on one line. For others the number (from 2) of the first one whose y differs from
// that of the first point.
inline Integer collinearity(PlanPoints points) noexcept {
    constexpr Integer collinear = 1;
    const Integer apart_in_x = first_apart(points, [](PlanPoint p) { return p.x; });
    const Integer apart_in_y = first_apart(points, [](PlanPoint p) { return p.y; });
    if (apart_in_x == none_apart || apart_in_y == none_apart) return collinear;
    return on_slanted_line(points) ? collinear : apart_in_y + 1;
}

}  // namespace quorvel::geometry
