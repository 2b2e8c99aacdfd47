// The search for the points where rings cross.
//
// Law: on either ring, the crossings where it enters the other one and those where it leaves it
// take turns. So their number is even, and on each edge as well if it starts and ends on the same
// side of the other ring. The law holds because
// 1. all questions about sides, here and in the order along an edge (chain.h), go to one exact
//    predicate (orientation_predicate.h), so that no two answers contradict one another;
// 2. a vertex of B is perturbed once, and is that one point to both of its edges;
// 3. a point on the line of an edge counts as outside, whichever edge asks, and no perturbed vertex
//    of B lies on the boundary of A;
// 4. neither ring crosses itself.
// Only where a ring touches itself, or is narrower than the tolerance, can a perturbed vertex meet
// the boundary again, or perturbed edges cross. So the law is checked before anything is traced
// (clipping.cpp).
#pragma once

#include "geometry/clipping/perturbation.h"
#include "geometry/clipping/status.h"

namespace quorvel::geometry::clipping {

// What a crossing is to one of the rings.
struct Passage {
    Integer edge;
    bool enters;  // the other ring, instead of leaving it
};

struct Crossing {
    Passage a, b;
    Edge edge_b;       // perturbed
    Integer position;  // in the pool
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

    // Whether a vertex of B may have been moved.
    bool perturbed = false;

    // False when the table is full.
    bool append(const Crossing& crossing) noexcept {
        if (size_ >= most_) return false;
        (*this)[size_++] = crossing;
        return true;
    }

  private:
    Integer most_, size_ = 0;
    std::array<Crossing, capacity> table_;
};

bool crosses_itself(const PreparedRing& ring) noexcept;

// Appends every crossing of an edge of B with one of A to the pool and to the table, in the order
// of B's edges and then A's. B counts as perturbed, and the crossings lie on A. The first vertex of
// B is given perturbed.
Status find_crossings(const PreparedRing& a, PreparedRing& b, const PerturbedPoint& first,
                      Pool& pool, Crossings& crossings) noexcept;

}  // namespace quorvel::geometry::clipping
