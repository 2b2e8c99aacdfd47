#include "geometry/polygon_area.h"

#include "entry/entry.h"
#include "entry/geometry/polygon_area.h"

using namespace quorvel;
using namespace quorvel::entry;

Real GEAPOL(const Real* x, const Real* y, const Integer* vertices) {
    return geometry::plan_area({x, y, *vertices});
}

Real GEAPO2(const Real* x, const Real* y, const Integer* vertices) {
    return geometry::signed_plan_area({x, y, *vertices});
}

Real GEAPO3(const Real* x, const Real* y, const Real* z, const Integer* vertices) {
    return geometry::area_in_space({x, y, z, *vertices});
}

void GEASO(const Integer* vertices, const Real* polygon, Real* area, Real* tilt,
           Real* back_azimuth) {
    const auto lie = geometry::polygon_orientation({polygon, *vertices});
    store(lie.area, area);
    store(lie.tilt, tilt);
    store(lie.orientation, back_azimuth);
}
