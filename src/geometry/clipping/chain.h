// A ring together with the crossings on it, in the order in which a walk along the ring meets them.
#pragma once

#include "geometry/clipping/crossings.h"

namespace quorvel::geometry::clipping {

// Only the crossings are stored, so that rings may be of any size.
class Chain {
  public:
    static constexpr Integer most_on_edge = 10;

    // The edge of the ring is that of the two edges of a crossing.
    Chain(const Ring& ring, Integer Crossing::*edge, const Crossings& crossings,
          const Pool& pool) noexcept
        : ring_(ring), edge_(edge), crossings_(crossings), pool_(pool) {}

    // False when an edge carries too many crossings, or has no length to sort them along.
    bool build() noexcept;

    // Where an edge of B passes through a vertex of A, it crosses two edges of A at one point, and
    // their order decides what is inside. Crossings so close are put in the order in which an edge
    // of B beside the vertex would meet them: first the edge of A that points back the most.
    void order_ties(const Ring& a, DoubleReal tolerance) noexcept;

    Integer size() const noexcept { return size_; }
    Integer crossing(Integer place) const noexcept { return stops_[place]; }

    // Passes the vertices from a crossing to the next one, which is returned.
    template <class Visit>
    Integer walk_forward(Integer from, Visit visit) const noexcept {
        const Integer place = places_[from], next = place + 1 < size_ ? place + 1 : 0;
        Integer vertex = edge(place);
        Integer passed = edge(next) - vertex + (next > place ? 0 : ring_.size());
        for (; passed > 0; --passed) visit(vertex = ring_.after(vertex));
        return crossing(next);
    }
    template <class Visit>
    Integer walk_backward(Integer from, Visit visit) const noexcept {
        const Integer place = places_[from], next = place > 0 ? place - 1 : size_ - 1;
        Integer vertex = edge(place);
        Integer passed = vertex - edge(next) + (next < place ? 0 : ring_.size());
        for (; passed > 0; --passed, vertex = ring_.before(vertex)) visit(vertex);
        return crossing(next);
    }

  private:
    using Table = std::array<Integer, Crossings::capacity>;

    Integer edge(Integer place) const noexcept { return crossings_[crossing(place)].*edge_; }
    Point point(Integer crossing) const noexcept { return pool_[crossings_[crossing].position]; }
    DoubleReal distance_along_edge(Integer crossing) const noexcept;
    bool comes_before(Integer crossing, Integer other) const noexcept;
    void put(Integer place, Integer crossing) noexcept;
    bool overfull() const noexcept;

    const Ring& ring_;
    Integer Crossing::*edge_;
    const Crossings& crossings_;
    const Pool& pool_;
    Integer size_ = 0;
    Table stops_, places_;  // crossings in order; and where in the order a crossing is
};

}  // namespace quorvel::geometry::clipping
