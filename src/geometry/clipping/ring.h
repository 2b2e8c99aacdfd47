// Rings of vertices: lists of positions in the caller's pool of points.
#pragma once

#include <algorithm>
#include <cstddef>

#include "geometry/vector.h"

namespace quorvel::geometry::clipping {

using Point = PlanVector<DoubleReal>;

constexpr bool same(Point a, Point b) noexcept { return a.x == b.x && a.y == b.y; }

// Positions in the pool count from 1.
class Pool {
  public:
    constexpr Pool(DoubleReal* x, DoubleReal* y, Integer capacity, Integer used) noexcept
        : x_(x), y_(y), capacity_(capacity), used_(used) {}

    constexpr Point operator[](Integer position) const noexcept {
        const std::ptrdiff_t i = std::ptrdiff_t{position} - 1;
        return {x_[i], y_[i]};
    }
    constexpr bool has(Integer position) const noexcept {
        return position >= 1 && position <= std::min(used_, capacity_);
    }
    constexpr Integer used() const noexcept { return used_; }

    constexpr bool has_room(Integer points) const noexcept { return points <= capacity_ - used_; }

    // Position of the new point, 0 when the pool is full.
    constexpr Integer append(Point point) noexcept {
        if (used_ >= capacity_) return 0;
        x_[used_] = point.x;
        y_[used_] = point.y;
        return ++used_;
    }

  private:
    DoubleReal *x_, *y_;
    Integer capacity_, used_;
};

struct Edge {
    Point start, end;

    constexpr Point along() const noexcept { return end - start; }
};

// Vertices count from 0, and edge i starts at vertex i.
class Ring {
  public:
    constexpr Ring(const Pool& pool, const Integer* positions, Integer size) noexcept
        : pool_(pool), positions_(positions), size_(size) {}

    constexpr Integer size() const noexcept { return size_; }
    constexpr Integer after(Integer i) const noexcept { return i + 1 < size_ ? i + 1 : 0; }
    constexpr Integer before(Integer i) const noexcept { return i > 0 ? i - 1 : size_ - 1; }

    constexpr Integer position(Integer i) const noexcept { return positions_[i]; }
    constexpr Point operator[](Integer i) const noexcept { return pool_[positions_[i]]; }
    constexpr Edge edge(Integer i) const noexcept { return {(*this)[i], (*this)[after(i)]}; }

    constexpr bool usable() const noexcept {
        return size_ >= 3 && std::all_of(positions_, positions_ + size_,
                                         [&](Integer position) { return pool_.has(position); });
    }

  private:
    const Pool& pool_;
    const Integer* positions_;
    Integer size_;
};

// Edges are neighbours also when only repeated vertices lie between them.
constexpr bool follows(const Ring& ring, Integer edge, Integer next) noexcept {
    for (Integer i = ring.after(edge); i != next; i = ring.after(i))
        if (!same(ring[i], ring[next])) return false;
    return true;
}
constexpr bool neighbours(const Ring& ring, Integer edge, Integer other) noexcept {
    return follows(ring, edge, other) || follows(ring, other, edge);
}

}  // namespace quorvel::geometry::clipping
