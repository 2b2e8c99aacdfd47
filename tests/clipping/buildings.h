// Pairs of rings as buildings have them: in line with one another but for rounding.
#pragma once

#include "clipping/polygon_pairs.h"

namespace quorvel::test {

const std::vector<PairClass>& building_classes();

// A pair turned by any angle about the origin, set at the offset [m] in any direction, and turned
// about.
RingPair draw_on_site(const PairClass& kind, double offset, Random& random);

}  // namespace quorvel::test
