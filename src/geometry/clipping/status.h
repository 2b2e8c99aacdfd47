// Produced from the catalogue of routines (catalogue/); do not edit.
#pragma once

#include "base/contract.h"

namespace quorvel::geometry::clipping {

// What HOHOLEDP answers. The law of the crossings, of which two statuses tell: crossings.h.
enum class Status : Integer {
    // success
    done = 0,
    // A has fewer than 3 vertices, or one that is not in the pool (up to used_points and
    // point_capacity)
    ring_a_unusable = 1,
    // B has fewer than 3 vertices, or one that is not in the pool
    ring_b_unusable = 2,
    // A crosses itself
    ring_a_crosses_itself = 3,
    // B crosses itself
    ring_b_crosses_itself = 4,
    // A has no area to speak of (25 square tolerances)
    ring_a_without_area = 5,
    // A and B cross more than crossing_capacity times
    too_many_crossings = 6,
    // the pool is full
    pool_full = 7,
    // an edge of A carries more than 10 crossings
    chain_a_overfull = 8,
    // an edge of B carries more than 10 crossings
    chain_b_overfull = 9,
    // difference_pieces is full
    difference_full = 10,
    // overlap_pieces is full
    overlap_full = 11,
    // the edges of A do not enter and leave B by turns, as can happen where a polygon is narrower
    // than the tolerance, or touches itself
    chain_a_inconsistent = 105,
    // the edges of B do not enter and leave A by turns, likewise
    chain_b_inconsistent = 106,
    // no bridge from B to A, for polygons with coordinates that are not numbers
    no_bridge = 109,
};

}  // namespace quorvel::geometry::clipping
