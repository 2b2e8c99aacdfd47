// Lists of points as callers store them: one after the other, or an array per coordinate.
#pragma once

#include <algorithm>
#include <cstddef>

#include "geometry/vector.h"

namespace quorvel::geometry {

using PlanPoint = PlanVector<Real>;
using SpacePoint = SpaceVector<Real>;

// The caller's points in plan, counted from 0; a count below one is none.
class PlanPoints {
  public:
    constexpr PlanPoints(const Real* x, const Real* y, Integer count) noexcept
        : x_(x), y_(y), size_(std::max(count, Integer{0})) {}

    constexpr Integer size() const noexcept { return size_; }
    constexpr PlanPoint operator[](Integer i) const noexcept { return {x_[i], y_[i]}; }

    // The vertex after the i-th of a closed ring.
    constexpr Integer after(Integer i) const noexcept { return i + 1 < size_ ? i + 1 : 0; }

  private:
    const Real *x_, *y_;
    Integer size_;
};

// The caller's points in space, likewise.
class SpacePoints {
  public:
    constexpr SpacePoints(const Real* x, const Real* y, const Real* z, Integer count) noexcept
        : SpacePoints(x, y, z, 1, count) {}
    constexpr SpacePoints(const Real* xyz, Integer count) noexcept
        : SpacePoints(xyz, xyz + 1, xyz + 2, 3, count) {}

    constexpr Integer size() const noexcept { return size_; }
    constexpr SpacePoint operator[](Integer i) const noexcept {
        const std::ptrdiff_t at = step_ * i;
        return {x_[at], y_[at], z_[at]};
    }

    constexpr Integer after(Integer i) const noexcept { return i + 1 < size_ ? i + 1 : 0; }

  private:
    constexpr SpacePoints(const Real* x, const Real* y, const Real* z, std::ptrdiff_t step,
                          Integer count) noexcept
        : x_(x), y_(y), z_(z), step_(step), size_(std::max(count, Integer{0})) {}

    const Real *x_, *y_, *z_;
    std::ptrdiff_t step_;
    Integer size_;
};

}  // namespace quorvel::geometry
