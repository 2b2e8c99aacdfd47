// The search for the points where rings cross.
#pragma once

#include "geometry/clipping/nudge.h"
#include "geometry/clipping/status.h"

namespace quorvel::geometry::clipping {

struct Crossing {
    Integer edge_a, edge_b;
    Integer position;  // in the pool
    bool entry;        // ring B, walked in the sense of ring A, enters A here
    bool used;         // ring A has been walked from here
};

// Storage is left alone until it is used.
class Crossings {
  public:
    static constexpr Integer capacity = 1024;

    explicit Crossings(Integer most) noexcept : most_(std::min(most, capacity)) {}

    Integer size() const noexcept { return size_; }
    Crossing& operator[](Integer i) noexcept { return table_[i]; }
    const Crossing& operator[](Integer i) const noexcept { return table_[i]; }

    // False when the table is full.
    bool append(Integer edge_a, Integer edge_b, Integer position) noexcept {
        if (size_ >= most_) return false;
        (*this)[size_++] = {edge_a, edge_b, position, false, false};
        return true;
    }

  private:
    Integer most_, size_ = 0;
    std::array<Crossing, capacity> table_;
};

bool crosses_itself(const Outline& ring) noexcept;

// Appends every crossing of an edge of B with one of A to the pool and to the table, in the order
// of B's edges and then A's. B counts as nudged off A, and the crossings lie on A. The first vertex
// of B is given nudged.
Status find_crossings(const Outline& a, Outline& b, const PlacedPoint& first, Pool& pool,
                      Crossings& crossings) noexcept;

}  // namespace quorvel::geometry::clipping
