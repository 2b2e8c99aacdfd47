// Pairs of simple polygons in every kind of contact, drawn at random.
#pragma once

#include "clipping/clip_call.h"
#include "conformance/random_arguments.h"

namespace quorvel::test {

using conformance::Random;

// Vertices lie on a grid, so that single and double precision hold the very same polygons, and
// points can be put on edges exactly.
inline constexpr double grid = 0x1p-18;  // m

struct RingPair {
    PlanRing a, b;
};

struct PairClass {
    const char* name;
    RingPair (*draw)(Random&);
};

// Rings either way round, from any vertex on, and either one first.
void turn_about(RingPair& pair, Random& random);

// Polygons of few vertices within 5 m of the origin, turned about.
const std::vector<PairClass>& pair_classes();
RingPair draw_pair(const PairClass& kind, Random& random);

// Least distance of a vertex from an edge [m].
double distance(const PlanRing& vertices, const PlanRing& edges);

}  // namespace quorvel::test
