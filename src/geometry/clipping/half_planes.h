// Quick answers about the points that are clear of a ring, as most are.
#pragma once

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>

#include "geometry/clipping/measures.h"

namespace quorvel::geometry::clipping {

// On which sides of the lines of a ring's edges a point lies.
struct Sides {
    // Whether the point is farther from all of the lines than anything within the tolerance
    // matters, and so much farther than rounding that every predicate would answer the same.
    bool clear;
    // If so, a bit for each edge that has the point on its right.
    std::uint64_t right;
};

// The lines of a ring's edges, which bound half-planes. Of a ring that has not been prepared, or
// has more edges than there are bits, no point is clear.
class HalfPlanes {
  public:
    void prepare(const Ring& ring, DoubleReal tolerance) noexcept {
        if (ring.size() > most_lines) return;
        for (; size_ < ring.size(); ++size_) {
            const auto [start, end] = ring.edge(size_);
            lines_[size_] = {start, end - start, margin(end - start, tolerance)};
        }
    }

    Sides sides(Point point) const noexcept {
        return sides(point, [](const Line& line) { return line.margin; });
    }

    // Of all points of a box at once. The share added covers rounding.
    Sides sides(const CentredBox& box) const noexcept {
        return sides(box.middle, [&](const Line& line) {
            return line.margin + 1.0001 * box.reach(line.along);
        });
    }

    // As all edges of a clockwise ring have its inside.
    std::uint64_t all_edges() const noexcept { return ~std::uint64_t{0} >> (most_lines - size_); }

  private:
    struct Line {
        Point start, along;
        DoubleReal margin;
    };
    static constexpr Integer most_lines = 64;

    // A clear point's cross product with an edge is beyond the margin. The most that matters is 2.1
    // tolerances from the edge, and the sum of the edge's two sides is not below its length. An
    // edge without length is no bar.
    static DoubleReal margin(Point along, DoubleReal tolerance) noexcept {
        const DoubleReal sum = std::fabs(along.x) + std::fabs(along.y);
        return sum == 0.0 ? -1.0 : 2.2 * tolerance * sum;
    }

    template <class Margin>
    Sides sides(Point point, Margin margin) const noexcept {
        bool clear = size_ > 0;
        std::uint64_t right = 0;
        for (Integer i = size_ - 1; i >= 0; --i) {
            const DoubleReal product = cross_product(lines_[i].along, point - lines_[i].start);
            clear &= std::fabs(product) > margin(lines_[i]);
            right = right << 1 | std::bit_cast<std::uint64_t>(product) >> 63;
        }
        return {clear, right};
    }

    Integer size_ = 0;
    std::array<Line, most_lines> lines_;
};

}  // namespace quorvel::geometry::clipping
