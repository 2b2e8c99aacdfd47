// Projection of a point p along a direction d onto the plane through a point p0.
#pragma once

#include "geometry/vector.h"

namespace quorvel::geometry {

template <class R>
MaskOf<R> parallel_to_plane(SpaceVector<R> normal, SpaceVector<R> d) noexcept {
    return !(absolute(dot_product(d, normal)) > 1.0e-15f);
}

// Where the line through p along d, ahead or behind, meets the plane; infinite or not a number when
// it is parallel to it.
template <class R>
SpaceVector<R> intersection(SpaceVector<R> p0, SpaceVector<R> normal, SpaceVector<R> p,
                            SpaceVector<R> d) noexcept {
    const R t = dot_product(p0 - p, normal) / dot_product(d, normal);
    return p + t * d;
}

// Whether the direction from p to a point on its line along d is d. p itself, to which there is no
// direction, does not count.
template <class R>
inline MaskOf<R> ahead(SpaceVector<R> p, SpaceVector<R> d, SpaceVector<R> point) noexcept {
    const SpaceVector<R> deviation = direction_if_any(point - p) - direction_if_any(d);
    constexpr Real tolerance = 1.0e-6f;
    return both(absolute(deviation.x) <= tolerance, [&] {
        return both(absolute(deviation.y) <= tolerance,
                    [&] { return absolute(deviation.z) <= tolerance; });
    });
}

template <class R>
SpaceVector<R> projection(SpaceVector<R> p0, SpaceVector<R> normal, SpaceVector<R> p,
                          SpaceVector<R> d) noexcept {
    return select(parallel_to_plane(normal, d), far_point<R>(), intersection(p0, normal, p, d));
}

template <class R>
SpaceVector<R> forward_projection(SpaceVector<R> p0, SpaceVector<R> normal, SpaceVector<R> p,
                                  SpaceVector<R> d) noexcept {
    const SpaceVector<R> point = intersection(p0, normal, p, d);
    return select((!parallel_to_plane(normal, d)) & ahead(p, d, point), point, far_point<R>());
}

// Without the limit for parallel directions: only what a division by zero makes is left as it is,
// which is deliberate.
template <class R>
SpaceVector<R> forward_projection_or_start(SpaceVector<R> p0, SpaceVector<R> normal,
                                           SpaceVector<R> p, SpaceVector<R> d) noexcept {
    const SpaceVector<R> point = intersection(p0, normal, p, d);
    return select((dot_product(d, normal) == 0.0f) | ahead(p, d, point), point, p);
}

}  // namespace quorvel::geometry
