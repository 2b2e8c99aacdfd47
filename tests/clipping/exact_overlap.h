// The overlap of two polygons as an independent library finds it (Boost.Geometry).
#pragma once

#include "clipping/polygon_pairs.h"

namespace quorvel::test {

double exact_overlap(const GridPolygon& a, const GridPolygon& b);  // m2

}  // namespace quorvel::test
