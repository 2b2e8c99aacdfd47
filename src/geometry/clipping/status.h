#pragma once

#include "base/contract.h"

namespace quorvel::geometry::clipping {

// What HOHOLEDP answers. 105 and 106 tell that the law of the crossings (crossings.h) does not
// hold. Further codes are set aside for faults that cannot occur here: 107 and 108 for a crossing
// that is missing from a chain (both chains are the one table of crossings, sorted) and 111 for the
// crossing point of parallel edges (an edge that is parted by a line is not parallel to it).
enum class Status : Integer {
    done = 0,
    ring_a_unusable = 1,
    ring_b_unusable = 2,
    ring_a_crosses_itself = 3,
    ring_b_crosses_itself = 4,
    ring_a_without_area = 5,
    too_many_crossings = 6,
    pool_full = 7,
    chain_a_overfull = 8,
    chain_b_overfull = 9,
    difference_full = 10,
    overlap_full = 11,
    chain_a_inconsistent = 105,
    chain_b_inconsistent = 106,
    no_bridge = 109,
};

}  // namespace quorvel::geometry::clipping
