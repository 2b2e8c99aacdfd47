// Overlap of two plan polygons in single precision.
#pragma once

#include "geometry/points.h"

namespace quorvel::geometry::clipping {

// The caller's storage for the pieces of an overlap.
struct OverlapPieces {
    static constexpr Integer most = 5;
    static constexpr Integer column = 25;         // reals per piece and coordinate
    static constexpr Integer most_vertices = 24;  // the last real of a column stays 0

    Real *x, *y;
    Integer* sizes;
    Real* area;
};

// All of the storage is cleared first, and left so when the overlap fails or does not fit.
void overlap(const PlanPoints& polygon_1, const PlanPoints& polygon_2,
             const OverlapPieces& pieces) noexcept;

}  // namespace quorvel::geometry::clipping
