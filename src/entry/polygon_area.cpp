#include "geometry/polygon_area.h"

#include "entry/entry.h"
#include "entry/geometry/polygon_area.h"

using namespace quorvel;
using namespace quorvel::entry;

Real GEAPOL(const Real* x, const Real* y, const Integer* n) {
    return geometry::plan_area({x, y, *n});
}

Real GEAPO2(const Real* x, const Real* y, const Integer* n) {
    return geometry::signed_plan_area({x, y, *n});
}

Real GEAPO3(const Real* x, const Real* y, const Real* z, const Integer* n) {
    return geometry::area_in_space({x, y, z, *n});
}

void GEASO(const Integer* n, const Real* v, Real* area, Real* tilt, Real* orientation) {
    const auto lie = geometry::polygon_orientation({v, *n});
    store(lie.area, area);
    store(lie.tilt, tilt);
    store(lie.orientation, orientation);
}
