// Areas of polygons in plan and in space, and how a plane polygon in space lies.
#pragma once

#include "base/number.h"
#include "geometry/orientation.h"
#include "geometry/points.h"

namespace quorvel::geometry {

// Twice the area, positive for clockwise vertices.
constexpr Real shoelace_sum(PlanPoints polygon) noexcept {
    const Integer n = polygon.size();
    if (n < 1) return 0.0f;
    Real sum = cross_product(polygon[0], polygon[n - 1]);
    for (Integer i = 1; i < n; ++i) sum += cross_product(polygon[i], polygon[i - 1]);
    return sum;
}

constexpr Real signed_plan_area(PlanPoints polygon) noexcept {
    return shoelace_sum(polygon) * 0.5f;
}

inline Real plan_area(PlanPoints polygon) noexcept {
    return absolute(shoelace_sum(polygon)) * 0.5f;
}

constexpr SpacePoint mean(SpacePoints points) noexcept {
    SpacePoint sum{};
    for (Integer i = 0; i < points.size(); ++i) sum = sum + points[i];
    return sum / static_cast<Real>(points.size());
}

// By triangles from the mean of the vertices. Deliberate: all count as positive, which is too much
// for a polygon that is not seen whole from there.
inline Real area_in_space(SpacePoints polygon) noexcept {
    const SpacePoint centre = mean(polygon);
    Real sum = 0.0f;
    for (Integer i = 0; i < polygon.size(); ++i) {
        const SpacePoint a = polygon[i] - centre, b = polygon[polygon.after(i)] - centre;
        sum += length(cross_product(a, b)) * 0.5f;
    }
    return sum;
}

// The plane of a polygon at its first vertex. Seen from the side to which the normal points, the
// corner there turns anticlockwise.
struct PolygonPlane {
    SpacePoint origin, along, across, normal;
};

// Vertices that a polygon of fewer than three lacks are the first one.
inline PolygonPlane plane_of(SpacePoints polygon) noexcept {
    const Integer last = polygon.size() - 1;
    const SpacePoint origin = polygon[0];
    const SpacePoint along = direction_if_any(polygon[std::min(Integer{1}, last)] - origin);
    const SpacePoint normal = direction_if_any(cross_product(along, polygon[last] - origin));
    return {origin, along, cross_product(normal, along), normal};
}

// Positive for vertices that run anticlockwise about the normal; 0 for fewer than three vertices,
// whatever they are.
constexpr Real signed_area(SpacePoints polygon, const PolygonPlane& plane) noexcept {
    if (polygon.size() < 3) return 0.0f;
    PlanPoint previous{};
    Real sum = 0.0f;
    for (Integer k = 1; k < polygon.size(); ++k) {
        const SpacePoint offset = polygon[k] - plane.origin;
        const PlanPoint vertex{dot_product(offset, plane.along), dot_product(offset, plane.across)};
        sum += cross_product(previous, vertex);
        previous = vertex;
    }
    return 0.5f * sum;
}

constexpr Real degrees(Real radians) noexcept { return 180.0f * radians / pi; }

// Azimuth opposite to the normal; of a nearly level polygon, which has none to speak of, that of
// its first side, turned by 180 degrees.
inline Real back_azimuth(const PolygonPlane& plane) noexcept {
    constexpr SpacePoint up{0.0f, 0.0f, 1.0f};
    const bool nearly_level = !(absolute(plane.normal.z) <= 0.999f);
    const SpacePoint level = cross_product(nearly_level ? plane.across : plane.normal, up);
    const Real from_east = degrees(math::atan2(level.y, level.x));
    const Real angle = nearly_level ? from_east : from_east + 90.0f;
    return back_azimuth(angle < 0.0f ? angle + 360.0f : angle);
}

struct PolygonOrientation {
    Real area;
    Maybe<Real> tilt, orientation;  // degrees: of the normal from the vertical, opposite to it
};

// Without vertices there is an area only.
inline PolygonOrientation polygon_orientation(SpacePoints polygon) noexcept {
    if (polygon.size() < 1) return {};
    const PolygonPlane plane = plane_of(polygon);
    return {signed_area(polygon, plane),
            {degrees(math::acos(plane.normal.z)), true},
            {back_azimuth(plane), true}};
}

}  // namespace quorvel::geometry
