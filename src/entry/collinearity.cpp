#include "geometry/collinearity.h"

#include "entry/entry.h"
#include "entry/geometry/collinearity.h"

using namespace quorvel;

Integer IGELIN(const Real* x, const Real* y, const Integer* n) {
    return geometry::collinearity({x, y, *n});
}
