// Projection of a point along a direction onto a plane.
#pragma once

#include <cmath>

#include "geometry/points.h"

namespace quorvel::geometry {

struct Plane {
    SpacePoint point, normal;
};

struct Ray {
    SpacePoint start, direction;
};

inline bool parallel(const Plane& plane, const Ray& ray) noexcept {
    return !(std::fabs(dot(ray.direction, plane.normal)) > 1.0e-15f);
}

// Where the line of the ray, ahead or behind, meets the plane; infinite or not a number when it is
// parallel to it.
constexpr SpacePoint intersection(const Plane& plane, const Ray& ray) noexcept {
    const Real t = dot(plane.point - ray.start, plane.normal) / dot(ray.direction, plane.normal);
    return ray.start + t * ray.direction;
}

// Whether the direction to a point on the line of the ray is that of the ray. The start itself, to
// which there is no direction, does not count.
inline bool ahead(const Ray& ray, SpacePoint point) noexcept {
    const SpacePoint deviation =
        direction_if_any(point - ray.start) - direction_if_any(ray.direction);
    constexpr Real tolerance = 1.0e-6f;
    return std::fabs(deviation.x) <= tolerance && std::fabs(deviation.y) <= tolerance &&
           std::fabs(deviation.z) <= tolerance;
}

inline SpacePoint projection(const Plane& plane, const Ray& ray) noexcept {
    return parallel(plane, ray) ? far_point : intersection(plane, ray);
}

inline SpacePoint forward_projection(const Plane& plane, const Ray& ray) noexcept {
    if (parallel(plane, ray)) return far_point;
    const SpacePoint point = intersection(plane, ray);
    return ahead(ray, point) ? point : far_point;
}

// Without the limit for parallel rays: only what a division by zero makes is left as it is, and
// meant so.
inline SpacePoint forward_projection_or_start(const Plane& plane, const Ray& ray) noexcept {
    const SpacePoint point = intersection(plane, ray);
    return dot(ray.direction, plane.normal) == 0.0f || ahead(ray, point) ? point : ray.start;
}

}  // namespace quorvel::geometry
