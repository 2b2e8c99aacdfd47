// Points and directions, in plan (x east, y north) and in space (z up), in single or double
// precision. Sums run from x to z, as written.
#pragma once

#include "base/contract.h"
#include "math/math.h"

namespace quorvel::geometry {

template <class T, int dimensions>
struct Vector;

template <class T>
struct Vector<T, 2> {
    T x, y;
};

template <class T>
struct Vector<T, 3> {
    T x, y, z;
};

template <class T>
using PlanVector = Vector<T, 2>;
template <class T>
using SpaceVector = Vector<T, 3>;

template <class T>
constexpr PlanVector<T> operator+(PlanVector<T> a, PlanVector<T> b) noexcept {
    return {a.x + b.x, a.y + b.y};
}
template <class T>
constexpr SpaceVector<T> operator+(SpaceVector<T> a, SpaceVector<T> b) noexcept {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

template <class T>
constexpr PlanVector<T> operator-(PlanVector<T> a, PlanVector<T> b) noexcept {
    return {a.x - b.x, a.y - b.y};
}
template <class T>
constexpr SpaceVector<T> operator-(SpaceVector<T> a, SpaceVector<T> b) noexcept {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

template <class T>
constexpr PlanVector<T> operator*(T factor, PlanVector<T> v) noexcept {
    return {factor * v.x, factor * v.y};
}
template <class T>
constexpr SpaceVector<T> operator*(T factor, SpaceVector<T> v) noexcept {
    return {factor * v.x, factor * v.y, factor * v.z};
}

template <class T>
constexpr PlanVector<T> operator/(PlanVector<T> v, T divisor) noexcept {
    return {v.x / divisor, v.y / divisor};
}
template <class T>
constexpr SpaceVector<T> operator/(SpaceVector<T> v, T divisor) noexcept {
    return {v.x / divisor, v.y / divisor, v.z / divisor};
}

template <class T>
constexpr T dot(PlanVector<T> a, PlanVector<T> b) noexcept {
    return a.x * b.x + a.y * b.y;
}
template <class T>
constexpr T dot(SpaceVector<T> a, SpaceVector<T> b) noexcept {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

// The z of the cross product of two directions in plan: positive when b points to the left of a.
template <class T>
constexpr T cross(PlanVector<T> a, PlanVector<T> b) noexcept {
    return a.x * b.y - a.y * b.x;
}
template <class T>
constexpr SpaceVector<T> cross(SpaceVector<T> a, SpaceVector<T> b) noexcept {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

template <class T, int dimensions>
constexpr T squared_length(Vector<T, dimensions> v) noexcept {
    return dot(v, v);
}

template <class T, int dimensions>
inline T length(Vector<T, dimensions> v) noexcept {
    return math::sqrt(squared_length(v));
}

// The direction of v, which has a length; not a number where it has none.
template <class T>
inline SpaceVector<T> direction(SpaceVector<T> v) noexcept {
    return v / length(v);
}

// The direction of v; a vector too short to have one stays as it is, so that zero stays zero.
inline SpaceVector<Real> direction_if_any(SpaceVector<Real> v) noexcept {
    constexpr Real shortest = 1.0e-8f;
    return length(v) >= shortest ? direction(v) : v;
}

}  // namespace quorvel::geometry
