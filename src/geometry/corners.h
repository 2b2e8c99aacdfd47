// Triangles and quadrilaterals by their corners, in double precision.
//
// The tolerances are absolute: products of sides are compared that are not scaled to unit length.
#pragma once

#include "geometry/vector.h"

namespace quorvel::geometry {

template <class R>
using Triangle = Columns<R, 3>;
template <class R>
using Quadrilateral = Columns<R, 4>;

template <class R>
MaskOf<R> parallel(SpaceVector<R> a, SpaceVector<R> b) noexcept {
    return length(cross_product(a, b)) < 0.001;
}

template <class R>
MaskOf<R> parallel_planes(const Triangle<R>& s, const Triangle<R>& t) noexcept {
    return parallel(cross_product(s[0] - s[1], s[0] - s[2]),
                    cross_product(t[0] - t[1], t[0] - t[2]));
}

// A side of each of two triangles, numbered from 1 by the corner at which it starts; 3 for none.
template <class R>
struct ParallelSides {
    MaskOf<R> exist;
    IntegerOf<R> first, second;
};

// The first two sides that are parallel. Deliberate: the third side of either triangle is never
// tried.
template <class R>
ParallelSides<R> parallel_sides(const Triangle<R>& s, const Triangle<R>& t) noexcept {
    for (std::size_t i = 0; i < 2; ++i)
        for (std::size_t j = 0; j < 2; ++j)
            if (parallel(s[i] - s[i + 1], t[j] - t[j + 1]))
                return {true, static_cast<Integer>(i + 1), static_cast<Integer>(j + 1)};
    return {false, 3, 3};
}

// Corner 1 is right when the other three are.
template <class R>
MaskOf<R> rectangular(const Quadrilateral<R>& q) noexcept {
    const auto right_angle = [](SpaceVector<R> back, SpaceVector<R> ahead) {
        return absolute(dot_product(back, ahead)) <= 1.0e-6;
    };
    return both(right_angle(q[1] - q[0], q[1] - q[2]), [&] {
        return right_angle(q[2] - q[1], q[2] - q[3]) & right_angle(q[3] - q[2], q[3] - q[0]);
    });
}

template <class R>
struct Facing {
    R azimuth, tilt;  // degrees
};

// How a triangle whose corners run clockwise seen from outside faces. Deliberate: a level one,
// which has no azimuth, gets the given one multiplied by 180/pi, as though that were in radians.
template <class R>
inline Facing<R> facing(const Triangle<R>& t, R level_azimuth) noexcept {
    constexpr DoubleReal triangle_pi = 3.1415926537, two_pi = 6.2831853074;
    const SpaceVector<R> inward = cross_product(t[1] - t[0], t[2] - t[0]);
    const R from_vertical = math::acos(inward.z / length(inward));
    const R level = length(PlanVector<R>{inward.x, inward.y});
    const R bearing = either(
        rarely(level < 1.0e-10), [&] { return level_azimuth; },
        [&] {
            const R from_north = math::acos(inward.y / level);
            return select(inward.x < 0.0, two_pi - from_north, from_north) + triangle_pi;
        });
    const R turned = 180.0 * bearing / triangle_pi;
    const R azimuth = select(turned >= 360.0, turned - 360.0, turned);
    return {select(azimuth >= 359.99, R(0.0), azimuth),
            (1.0 - from_vertical / triangle_pi) * 180.0};
}

template <class R>
constexpr Quadrilateral<R> to_local(Quadrilateral<R> q, SpaceVector<R> x, SpaceVector<R> y,
                                    SpaceVector<R> z) noexcept {
    for (SpaceVector<R>& corner : q) corner = along<R>({x, y, z}, corner);
    return q;
}

template <class R>
struct LocalQuadrilaterals {
    Quadrilateral<R> first, second;
};

// Two quadrilaterals seen from corner 1 of the first, with axes along its two sides there and
// normal to the plane of its first three corners.
template <class R>
inline LocalQuadrilaterals<R> local_coordinates(const Quadrilateral<R>& q,
                                                const Quadrilateral<R>& other) noexcept {
    const SpaceVector<R> origin = q[0], side = q[1] - origin;
    const Columns<R, 3> axes{direction(side), direction(q[3] - origin),
                             direction(cross_product(side, q[2] - origin))};
    const auto seen = [&](SpaceVector<R> corner) { return along(axes, corner - origin); };
    return {{seen(q[0]), seen(q[1]), seen(q[2]), seen(q[3])},
            {seen(other[0]), seen(other[1]), seen(other[2]), seen(other[3])}};
}

}  // namespace quorvel::geometry
