#include "geometry/collinearity.h"

#include "entry/entry.h"
#include "entry/geometry/collinearity.h"

using namespace quorvel;

Integer IGELIN(const Real* x, const Real* y, const Integer* points) {
    return geometry::collinearity({x, y, *points});
}
