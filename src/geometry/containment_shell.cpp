#include "entry/entry.h"
#include "geometry/containment.h"

using namespace quorvel;
using geometry::plan_vector;

// Flags of points that do not count stay as they are.
void GECLOS(const Real* x, const Real* y, const Integer* n, const Real* px, const Real* py,
            const Integer* m, Integer* flag, Integer* count) {
    const geometry::PlanPoints polygon(x, y, *n), points(px, py, *m);
    Integer enclosed = 0;
    for (Integer j = 0; j < points.size(); ++j) {
        if (!geometry::encloses(polygon, points[j])) continue;
        flag[j] = 1;
        ++enclosed;
    }
    *count = enclosed;
}

void GESIDE(const Real* a, const Real* b, const Real* x, const Real* y, const Integer* n, Real* p,
            Integer* k) {
    const auto crossing = geometry::boundary_crossing(plan_vector(a), plan_vector(b), {x, y, *n});
    geometry::store(crossing.point, p);
    *k = crossing.vertex;
}

void GEINSI(const Real* p, const Real* v, const Integer* n, Integer* inside) {
    *inside = geometry::inside(geometry::space_vector(p), {v, *n}) ? 1 : 0;
}
