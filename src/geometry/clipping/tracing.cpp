#include "geometry/clipping/tracing.h"

namespace quorvel::geometry::clipping {

void Tracer::mark_entries(bool starts_inside) noexcept {
    bool inside = starts_inside;
    for (Integer place = 0; place < chain_b_.size(); ++place) {
        inside = !inside;
        crossings_[chain_b_.crossing(place)].entry = inside == agree_;
    }
}

// The difference starts where B enters A, the overlap where it leaves. Both go on along A; B is
// then walked against the sense of A for the difference, with it for the overlap.
void Tracer::trace(Operation operation, PieceList& list) noexcept {
    const bool at_entries = operation == Operation::difference;
    for (Integer place = 0; place < chain_a_.size() && !list.full(); ++place) {
        const Integer start = chain_a_.crossing(place);
        if (crossings_[start].entry == at_entries && !crossings_[start].used)
            trace_piece(start, agree_ != at_entries, list);
    }
}

// Ends for any chains: each turn uses up a crossing.
void Tracer::trace_piece(Integer start, bool b_forward, PieceList& list) noexcept {
    const auto list_a = [&](Integer vertex) { list.add(a_.position(vertex)); };
    const auto list_b = [&](Integer vertex) { list.add(b_.position(vertex)); };
    Integer at = start;
    do {
        crossings_[at].used = true;
        list.add(crossings_[at].position);
        at = chain_a_.walk_forward(at, list_a);
        if (at == start) break;
        list.add(crossings_[at].position);
        at = b_forward ? chain_b_.walk_forward(at, list_b) : chain_b_.walk_backward(at, list_b);
    } while (!crossings_[at].used);
    list.close_piece();
}

bool Tracer::can_skip_difference(const PieceList& difference) const noexcept {
    const Integer count = chain_a_.size();
    for (Integer place = 0; place < count; ++place) {
        const Integer next = place + 1 < count ? place + 1 : 0;
        if (crossings_[chain_a_.crossing(place)].entry == crossings_[chain_a_.crossing(next)].entry)
            return false;
    }
    return difference.has_room(a_.size() + b_.size() + 3 * count);
}

}  // namespace quorvel::geometry::clipping
