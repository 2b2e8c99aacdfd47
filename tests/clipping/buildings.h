// Pairs of rings as buildings have them: in line with one another but for rounding.
#pragma once

#include "clipping/clip_call.h"
#include "support/random_arguments.h"

namespace quorvel::test {

struct RingPair {
    PlanRing a, b;
};

struct BuildingKind {
    const char* name;
    RingPair (*draw)(Random&);
};

const std::vector<BuildingKind>& building_kinds();

// A pair turned by any angle about the origin, and then set at the offset [m] in any direction. The
// rings run either way, from any vertex on, and either one comes first.
RingPair draw_on_site(const BuildingKind& kind, double offset, Random& random);

}  // namespace quorvel::test
