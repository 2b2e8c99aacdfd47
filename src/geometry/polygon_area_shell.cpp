#include "entry/entry.h"
#include "geometry/polygon_area.h"

using namespace quorvel;

Real GEAPOL(const Real* x, const Real* y, const Integer* n) {
    return geometry::plan_area({x, y, *n});
}

Real GEAPO2(const Real* x, const Real* y, const Integer* n) {
    return geometry::signed_plan_area({x, y, *n});
}

Real GEAPO3(const Real* x, const Real* y, const Real* z, const Integer* n) {
    return geometry::area_in_space({x, y, z, *n});
}

// Without vertices only the area is written.
void GEASO(const Integer* n, const Real* v, Real* area, Real* tilt, Real* orientation) {
    *area = 0.0f;
    const geometry::SpacePoints polygon(v, *n);
    if (polygon.size() < 1) return;
    const auto plane = geometry::plane_of(polygon);
    *area = geometry::signed_area(polygon, plane);
    *tilt = geometry::tilt(plane);
    *orientation = geometry::back_azimuth(plane);
}
