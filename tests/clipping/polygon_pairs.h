// Pairs of simple polygons in every kind of contact, drawn at random.
#pragma once

#include <cstdint>
#include <vector>

#include "clipping/clip_call.h"
#include "support/random_arguments.h"

namespace quorvel::test {

// Vertices lie on a grid, so that single and double precision and whole numbers all hold the very
// same polygons, and points can be put on edges exactly.
inline constexpr double grid = 0x1p-18;  // m

struct GridPoint {
    std::int64_t x, y;

    friend bool operator==(const GridPoint&, const GridPoint&) = default;
};
using GridPolygon = std::vector<GridPoint>;

struct PolygonPair {
    GridPolygon a, b;
};

struct PairClass {
    const char* name;
    PolygonPair (*draw)(Random&);
};

// Polygons of 3 to 12 vertices within 8 m of the origin, either way round, from any vertex on.
const std::vector<PairClass>& pair_classes();
PolygonPair draw_pair(const PairClass& kind, Random& random);

PlanRing in_metres(const GridPolygon& polygon);

// Least distance of a vertex from an edge: of the same polygon, but not at the vertex; or of
// another. In metres, too.
double narrowest(const GridPolygon& polygon);
double distance(const GridPolygon& vertices, const GridPolygon& edges);

}  // namespace quorvel::test
