// Triangles and quadrilaterals by their corners, in double precision.
//
// The tolerances are absolute: products of sides are compared that are not scaled to unit length.
#pragma once

#include <array>
#include <cmath>

#include "geometry/vector.h"

namespace quorvel::geometry {

using Corner = SpaceVector<DoubleReal>;
using Triangle = std::array<Corner, 3>;
using Quadrilateral = std::array<Corner, 4>;

inline bool parallel(Corner a, Corner b) noexcept { return length(cross(a, b)) < 0.001; }

inline bool parallel_planes(const Triangle& s, const Triangle& t) noexcept {
    return parallel(cross(s[0] - s[1], s[0] - s[2]), cross(t[0] - t[1], t[0] - t[2]));
}

// A side of each of two triangles, numbered from 1 by the corner at which it starts.
struct SidePair {
    Integer first, second;
};

inline constexpr SidePair no_sides{3, 3};

// The first two sides that are parallel. The third side of either triangle is never tried: meant
// so.
inline SidePair parallel_sides(const Triangle& s, const Triangle& t) noexcept {
    for (std::size_t i = 0; i < 2; ++i)
        for (std::size_t j = 0; j < 2; ++j)
            if (parallel(s[i] - s[i + 1], t[j] - t[j + 1]))
                return {static_cast<Integer>(i + 1), static_cast<Integer>(j + 1)};
    return no_sides;
}

// Corner 1 is right when the other three are.
inline bool rectangular(const Quadrilateral& q) noexcept {
    const auto right_angle_at = [&](std::size_t k) {
        const Corner back = q[k] - q[k - 1], ahead = q[k] - q[(k + 1) % 4];
        return std::fabs(dot(back, ahead)) <= 1.0e-6;
    };
    return right_angle_at(1) && right_angle_at(2) && right_angle_at(3);
}

struct Facing {
    DoubleReal azimuth, tilt;  // degrees
};

// How a triangle whose corners run clockwise seen from outside faces. A level one has no azimuth:
// it gets the given one multiplied by 180/pi, as though that were in radians: meant so.
inline Facing facing(const Triangle& t, DoubleReal level_azimuth) noexcept {
    constexpr DoubleReal triangle_pi = 3.1415926537, two_pi = 6.2831853074;
    const Corner inward = cross(t[1] - t[0], t[2] - t[0]);
    const DoubleReal from_vertical = math::acos(inward.z / length(inward));
    const DoubleReal level = length(PlanVector<DoubleReal>{inward.x, inward.y});

    DoubleReal bearing = level_azimuth;
    if (!(level < 1.0e-10)) {
        const DoubleReal from_north = math::acos(inward.y / level);
        bearing = (inward.x < 0.0 ? two_pi - from_north : from_north) + triangle_pi;
    }
    DoubleReal azimuth = 180.0 * bearing / triangle_pi;
    if (azimuth >= 360.0) azimuth -= 360.0;
    if (azimuth >= 359.99) azimuth = 0.0;
    return {azimuth, (1.0 - from_vertical / triangle_pi) * 180.0};
}

struct Axes {
    Corner x, y, z;
};

constexpr Corner to_local(const Axes& axes, Corner p) noexcept {
    return {dot(axes.x, p), dot(axes.y, p), dot(axes.z, p)};
}

// Along the two sides at corner 1, and normal to the plane of the first three corners.
inline Axes axes_of(const Quadrilateral& q) noexcept {
    return {direction(q[1] - q[0]), direction(q[3] - q[0]),
            direction(cross(q[1] - q[0], q[2] - q[0]))};
}

constexpr Quadrilateral to_local(const Axes& axes, Quadrilateral q, Corner origin) noexcept {
    for (Corner& corner : q) corner = to_local(axes, corner - origin);
    return q;
}

}  // namespace quorvel::geometry
