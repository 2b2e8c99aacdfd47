// Points and directions, in plan (x east, y north) and in space (z up). Sums run from x to z, as
// written.
#pragma once

#include <array>
#include <cstddef>

#include "base/number.h"
#include "math/math.h"

namespace quorvel::geometry {

template <class R, int dimensions>
struct Vector;

template <class R>
struct Vector<R, 2> {
    R x, y;
};

template <class R>
struct Vector<R, 3> {
    R x, y, z;
};

template <class R>
using PlanVector = Vector<R, 2>;
template <class R>
using SpaceVector = Vector<R, 3>;

// Vectors one after the other: corners, or the columns of a matrix.
template <class R, std::size_t n>
using Columns = std::array<SpaceVector<R>, n>;

// Stand for a point that does not exist.
template <class R>
constexpr PlanVector<R> far_point_in_plan() noexcept {
    return {R(undefined), R(undefined)};
}
template <class R>
constexpr SpaceVector<R> far_point() noexcept {
    return {R(undefined), R(undefined), R(undefined)};
}

template <class R>
constexpr PlanVector<R> operator+(PlanVector<R> a, PlanVector<R> b) noexcept {
    return {a.x + b.x, a.y + b.y};
}
template <class R>
constexpr SpaceVector<R> operator+(SpaceVector<R> a, SpaceVector<R> b) noexcept {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

template <class R>
constexpr PlanVector<R> operator-(PlanVector<R> a, PlanVector<R> b) noexcept {
    return {a.x - b.x, a.y - b.y};
}
template <class R>
constexpr SpaceVector<R> operator-(SpaceVector<R> a, SpaceVector<R> b) noexcept {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

template <class R>
constexpr PlanVector<R> operator*(R factor, PlanVector<R> v) noexcept {
    return {factor * v.x, factor * v.y};
}
template <class R>
constexpr SpaceVector<R> operator*(R factor, SpaceVector<R> v) noexcept {
    return {factor * v.x, factor * v.y, factor * v.z};
}

template <class R>
constexpr PlanVector<R> operator/(PlanVector<R> v, R divisor) noexcept {
    return {v.x / divisor, v.y / divisor};
}
template <class R>
constexpr SpaceVector<R> operator/(SpaceVector<R> v, R divisor) noexcept {
    return {v.x / divisor, v.y / divisor, v.z / divisor};
}

template <class R>
constexpr R dot_product(PlanVector<R> a, PlanVector<R> b) noexcept {
    return a.x * b.x + a.y * b.y;
}
template <class R>
constexpr R dot_product(SpaceVector<R> a, SpaceVector<R> b) noexcept {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

// The z of the cross product of two directions in plan: positive when b points to the left of a.
template <class R>
constexpr R cross_product(PlanVector<R> a, PlanVector<R> b) noexcept {
    return a.x * b.y - a.y * b.x;
}
template <class R>
constexpr SpaceVector<R> cross_product(SpaceVector<R> a, SpaceVector<R> b) noexcept {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

template <class R, int dimensions>
constexpr R squared_length(Vector<R, dimensions> v) noexcept {
    return dot_product(v, v);
}

template <class R, int dimensions>
R length(Vector<R, dimensions> v) noexcept {
    return math::sqrt(squared_length(v));
}

// The direction of v, which has a length; not a number where it has none.
template <class R>
inline SpaceVector<R> direction(SpaceVector<R> v) noexcept {
    return v / length(v);
}

// The direction of v; a vector too short to have one stays as it is, so that zero stays zero.
template <class R>
inline SpaceVector<R> direction_if_any(SpaceVector<R> v) noexcept {
    constexpr Real shortest = 1.0e-8f;
    return either(
        length(v) >= shortest, [&] { return direction(v); }, [&] { return v; });
}

// Coordinates of p along each of three axes.
template <class R>
constexpr SpaceVector<R> along(const Columns<R, 3>& axes, SpaceVector<R> p) noexcept {
    return {dot_product(axes[0], p), dot_product(axes[1], p), dot_product(axes[2], p)};
}

}  // namespace quorvel::geometry
