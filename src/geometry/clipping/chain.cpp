#include "geometry/clipping/chain.h"

namespace quorvel::geometry::clipping {

Edge Chain::other_edge(Integer crossing) const noexcept {
    const Crossing& c = crossings_[crossing];
    return own_ == &Crossing::a ? c.edge_b : other_.edge(c.a.edge);
}

// -1 where the walk along the ring meets the other ring's edge at the crossing before all of its
// edge at the other crossing, +1 where after; 0 where that edge lies on both sides of the first.
int Chain::place_of(Integer crossing, Integer other) const noexcept {
    const HalfPlane half_plane(other_edge(crossing), other_.orientation());
    const int side = half_plane.side(other_edge(other));
    return own(crossing).enters ? -side : side;
}

// Of two edges that do not cross, one lies on one side of the other one's line: so the predicate
// that found the crossings tells their order, also of crossings at one point, where an edge passes
// through a vertex.
bool Chain::comes_before(Integer crossing, Integer other) const noexcept {
    const Integer edge = own(crossing).edge, other_edge = own(other).edge;
    if (edge != other_edge) return edge < other_edge;
    const int place = place_of(crossing, other);
    return place != 0 ? place < 0 : place_of(other, crossing) > 0;
}

void Chain::put(Integer place, Integer crossing) noexcept {
    stops_[place] = crossing;
    places_[crossing] = place;
}

bool Chain::overfull() const noexcept {
    for (Integer place = most_on_edge; place < size_; ++place)
        if (edge(place) == edge(place - most_on_edge)) return true;
    return false;
}

bool Chain::build() noexcept {
    while (size_ < crossings_.size()) {
        const Integer inserted = size_;
        Integer place = size_++;
        for (; place > 0 && comes_before(inserted, crossing(place - 1)); --place)
            put(place, crossing(place - 1));
        put(place, inserted);
    }
    return !overfull();
}

bool Chain::alternates() const noexcept {
    bool last = own(crossing(size_ - 1)).enters;
    for (Integer place = 0; place < size_; ++place) {
        const bool enters = own(crossing(place)).enters;
        if (enters == last) return false;
        last = enters;
    }
    return true;
}

}  // namespace quorvel::geometry::clipping
