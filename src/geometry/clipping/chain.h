// A ring together with the crossings on it, in the order in which a walk along the ring meets them.
#pragma once

#include "geometry/clipping/crossings.h"

namespace quorvel::geometry::clipping {

// Only the crossings are stored, so that rings may be of any size.
class Chain {
  public:
    static constexpr Integer most_on_edge = 10;

    // The passages are those of the ring.
    Chain(const PreparedRing& ring, Passage Crossing::*own, const PreparedRing& other,
          const Crossings& crossings) noexcept
        : ring_(ring), own_(own), other_(other), crossings_(crossings) {}

    // False when an edge carries too many crossings.
    bool build() noexcept;

    // Whether the ring enters the other one and leaves it by turns; and which of these it does
    // first.
    bool alternates() const noexcept;
    bool enters_first() const noexcept { return own(crossing(0)).enters; }

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

    const Passage& own(Integer crossing) const noexcept { return crossings_[crossing].*own_; }
    Integer edge(Integer place) const noexcept { return own(crossing(place)).edge; }
    Edge other_edge(Integer crossing) const noexcept;
    int place_of(Integer crossing, Integer other) const noexcept;
    bool comes_before(Integer crossing, Integer other) const noexcept;
    void put(Integer place, Integer crossing) noexcept;
    bool overfull() const noexcept;

    const PreparedRing& ring_;
    Passage Crossing::*own_;
    const PreparedRing& other_;
    const Crossings& crossings_;
    Integer size_ = 0;
    Table stops_, places_;  // crossings in order; and where in the order a crossing is
};

}  // namespace quorvel::geometry::clipping
