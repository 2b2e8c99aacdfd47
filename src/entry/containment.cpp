#include "geometry/containment.h"

#include "entry/entry.h"
#include "entry/geometry/containment.h"

using namespace quorvel;
using namespace quorvel::entry;
using geometry::PlanPoint;
using geometry::SpacePoint;

void GECLOS(const Real* x, const Real* y, const Integer* vertices, const Real* point_x,
            const Real* point_y, const Integer* points, Integer* enclosed,
            Integer* enclosed_points) {
    *enclosed_points =
        geometry::count_enclosed({x, y, *vertices}, {point_x, point_y, *points}, enclosed);
}

void GESIDE(const Real* segment_start, const Real* segment_end, const Real* x, const Real* y,
            const Integer* vertices, Real* crossing_point, Integer* crossing_code) {
    const auto crossing = geometry::boundary_crossing(
        load<PlanPoint>(segment_start), load<PlanPoint>(segment_end), {x, y, *vertices});
    store(crossing.point, crossing_point);
    store(crossing.vertex, crossing_code);
}

void GEINSI(const Real* point, const Real* polygon, const Integer* vertices, Integer* inside) {
    *inside = geometry::inside(load<SpacePoint>(point), {polygon, *vertices}) ? 1 : 0;
}
