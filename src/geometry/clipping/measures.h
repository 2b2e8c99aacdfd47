// What one walk round a ring tells about it.
#pragma once

#include <cmath>
#include <limits>

#include "geometry/clipping/ring.h"

namespace quorvel::geometry::clipping {

struct Box {
    Point low{1.0e38, 1.0e38}, high{-1.0e38, -1.0e38};

    constexpr bool holds(const Box& box) const noexcept {
        return low.x <= box.low.x && box.high.x <= high.x && low.y <= box.low.y &&
               box.high.y <= high.y;
    }
    constexpr void include(Point p) noexcept {
        low = {std::min(low.x, p.x), std::min(low.y, p.y)};
        high = {std::max(high.x, p.x), std::max(high.y, p.y)};
    }
    constexpr void include(const Box& box) noexcept {
        low = {std::min(low.x, box.low.x), std::min(low.y, box.low.y)};
        high = {std::max(high.x, box.high.x), std::max(high.y, box.high.y)};
    }
};

// A box by its middle, which is rounded, and what the sides are away from it at most.
struct CentredBox {
    Point middle, half;

    explicit constexpr CentredBox(const Box& box) noexcept
        : middle(0.5 * (box.low + box.high)),
          half{std::max(box.high.x - middle.x, middle.x - box.low.x),
               std::max(box.high.y - middle.y, middle.y - box.low.y)} {}

    // The most that the cross product of a direction with the way to a point of the box differs
    // from that with the way to its middle.
    DoubleReal reach(Point direction) const noexcept {
        return std::fabs(direction.x) * half.y + std::fabs(direction.y) * half.x;
    }
};

// How a sequence of directions turns.
class Turning {
  public:
    explicit constexpr Turning(Point first) noexcept : last_(first) {}

    constexpr void add(Point direction) noexcept {
        const DoubleReal turn = cross_product(last_, direction);
        least_ = std::min(least_, turn);
        greatest_ = std::max(greatest_, turn);
        half_turns_ += (last_.y > 0.0) != (direction.y > 0.0);
        last_ = direction;
    }

    // Of directions that end with the first: always the same way, clearly, and once in all.
    constexpr bool once_round(DoubleReal clear) const noexcept {
        return (least_ > clear || greatest_ < -clear) && half_turns_ == 2;
    }

  private:
    Point last_;
    DoubleReal least_ = std::numeric_limits<DoubleReal>::infinity(), greatest_ = -least_;
    Integer half_turns_ = 0;
};

struct Measures {
    Box box;
    DoubleReal area;  // positive when clockwise; not finite if a coordinate is not
    Turning turning;  // of the edges

    explicit Measures(const Ring& ring) noexcept;

    bool finite() const noexcept { return area - area == 0.0; }
};

// Length below which points count as one: a ten-thousandth of the diagonal of the box round both.
inline DoubleReal tolerance(const Measures& a, const Measures& b) noexcept {
    Box box = a.box;
    box.include(b.box);
    return 0.0001 * length(box.high - box.low);
}

// Much farther from one another than anything within the tolerance matters.
inline bool far_apart(const Measures& a, const Measures& b, DoubleReal tolerance) noexcept {
    const DoubleReal x = std::max(a.box.low.x - b.box.high.x, b.box.low.x - a.box.high.x);
    const DoubleReal y = std::max(a.box.low.y - b.box.high.y, b.box.low.y - a.box.high.y);
    return std::max(x, y) > 10.0 * tolerance && a.finite() && b.finite();
}

}  // namespace quorvel::geometry::clipping
