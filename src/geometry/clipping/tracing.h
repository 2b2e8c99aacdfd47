// Difference and overlap of two rings that cross, traced along their chains.
#pragma once

#include "geometry/clipping/chain.h"
#include "geometry/clipping/piece_list.h"

namespace quorvel::geometry::clipping {

enum class Operation { difference, overlap };

class Tracer {
  public:
    Tracer(const PreparedRing& a, const PreparedRing& b, Crossings& crossings, const Chain& chain_a,
           const Chain& chain_b) noexcept
        : a_(a),
          b_(b),
          agree_(a.orientation() == b.orientation()),
          crossings_(crossings),
          chain_a_(chain_a),
          chain_b_(chain_b) {}

    // All pieces, or as many as the list has room for.
    void trace(Operation operation, PieceList& list) noexcept;

    // Whether tracing the difference would fill its list neither up nor keep the overlap from
    // anything: entries and exits take turns along A, too, and there is room for the longest list.
    bool can_skip_difference(const PieceList& difference) const noexcept;

  private:
    void trace_piece(Integer start, bool b_forward, PieceList& list) noexcept;

    const PreparedRing &a_, &b_;
    bool agree_;
    Crossings& crossings_;
    const Chain &chain_a_, &chain_b_;
};

}  // namespace quorvel::geometry::clipping
