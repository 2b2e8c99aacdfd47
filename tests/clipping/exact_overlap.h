// The overlap of two polygons by an independent formula.
#pragma once

#include "clipping/clip_call.h"

namespace quorvel::test {

// By rational arithmetic, of any simple polygons [m2].
double exact_overlap(const PlanRing& a, const PlanRing& b);

// Rounded: to 1e-12 m2 within some metres of the origin, and much faster.
double rounded_overlap(const PlanRing& a, const PlanRing& b);

// The sign of (b - a) x (c - a), likewise by rational arithmetic.
int exact_side(PlanPoint a, PlanPoint b, PlanPoint c);

}  // namespace quorvel::test
