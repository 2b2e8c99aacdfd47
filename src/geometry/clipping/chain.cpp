#include "geometry/clipping/chain.h"

namespace quorvel::geometry::clipping {
namespace {

// The cotangent of the angle, 0 to 180 degrees, between two directions.
DoubleReal cotangent(Point u, Point v) noexcept { return dot(u, v) / std::fabs(cross(u, v)); }

}  // namespace

DoubleReal Chain::distance_along_edge(Integer crossing) const noexcept {
    const Edge edge = ring_.edge(crossings_[crossing].*edge_);
    return dot(edge.along(), point(crossing) - edge.start) / length(edge.along());
}

bool Chain::comes_before(Integer crossing, Integer other) const noexcept {
    const Integer edge = crossings_[crossing].*edge_, other_edge = crossings_[other].*edge_;
    if (edge != other_edge) return edge < other_edge;
    return distance_along_edge(crossing) < distance_along_edge(other);
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
        if (squared_length(ring_.edge(crossings_[inserted].*edge_).along()) == 0.0) return false;
        Integer place = size_++;
        for (; place > 0 && comes_before(inserted, crossing(place - 1)); --place)
            put(place, crossing(place - 1));
        put(place, inserted);
    }
    return !overfull();
}

void Chain::order_ties(const Ring& a, DoubleReal tolerance) noexcept {
    for (Integer place = 1; place < size_; ++place) {
        if (edge(place) != edge(place - 1)) continue;
        const Integer first = crossing(place - 1), second = crossing(place);
        const DoubleReal gap = distance_along_edge(second) - distance_along_edge(first);
        if (gap > 1.0e-6 * tolerance) continue;
        const Integer i = crossings_[first].edge_a, j = crossings_[second].edge_a;
        const bool in_turn = follows(a, i, j);
        if (!in_turn && !follows(a, j, i)) continue;
        const Point far_end_i = in_turn ? a.edge(i).start : a.edge(i).end;
        const Point far_end_j = in_turn ? a.edge(j).end : a.edge(j).start;
        const Point along = ring_.edge(edge(place)).along();
        if (cotangent(along, far_end_j - point(second)) <
            cotangent(along, far_end_i - point(first))) {
            put(place - 1, second);
            put(place, first);
        }
    }
}

}  // namespace quorvel::geometry::clipping
