#include "geometry/clipping/tracing.h"

namespace quorvel::geometry::clipping {

// The overlap starts where A enters B, the difference where it leaves. Both go on along A; B is
// then walked in the sense of A for the overlap, against it for the difference.
void Tracer::trace(Operation operation, PieceList& list) noexcept {
    const bool at_entries = operation == Operation::overlap;
    for (Integer place = 0; place < chain_a_.size() && !list.full(); ++place) {
        const Integer start = chain_a_.crossing(place);
        if (crossings_[start].a.enters == at_entries && !crossings_[start].used)
            trace_piece(start, agree_ == at_entries, list);
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
    return difference.has_room(a_.size() + b_.size() + 3 * chain_a_.size());
}

}  // namespace quorvel::geometry::clipping
