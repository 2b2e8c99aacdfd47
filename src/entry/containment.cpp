#include "geometry/containment.h"

#include "entry/entry.h"
#include "entry/geometry/containment.h"

using namespace quorvel;
using namespace quorvel::entry;
using geometry::PlanPoint;
using geometry::SpacePoint;

void GECLOS(const Real* x, const Real* y, const Integer* n, const Real* px, const Real* py,
            const Integer* m, Integer* flag, Integer* count) {
    *count = geometry::count_enclosed({x, y, *n}, {px, py, *m}, flag);
}

void GESIDE(const Real* a, const Real* b, const Real* x, const Real* y, const Integer* n, Real* p,
            Integer* k) {
    const auto crossing =
        geometry::boundary_crossing(load<PlanPoint>(a), load<PlanPoint>(b), {x, y, *n});
    store(crossing.point, p);
    store(crossing.vertex, k);
}

void GEINSI(const Real* p, const Real* v, const Integer* n, Integer* inside) {
    *inside = geometry::inside(load<SpacePoint>(p), {v, *n}) ? 1 : 0;
}
