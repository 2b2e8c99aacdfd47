#include "entry/entry.h"
#include "geometry/lines.h"

#include "geometry/collinearity.h"

using namespace quorvel;
using geometry::plan_vector;
using geometry::space_vector;

void GEMEET(const Real* a, const Real* b, const Real* c, const Real* d, Real* x) {
    geometry::store(
        geometry::meeting_point(plan_vector(a), plan_vector(b), plan_vector(c), plan_vector(d)), x);
}

void GECROS(const Real* a, const Real* b, const Real* c, const Real* d, Real* x) {
    geometry::store(
        geometry::crossing_point(plan_vector(a), plan_vector(b), plan_vector(c), plan_vector(d)),
        x);
}

Integer IGELIN(const Real* x, const Real* y, const Integer* n) {
    return geometry::collinearity({x, y, *n});
}

Integer GECOIN(const Real* x1, const Real* y1, const Real* x2, const Real* y2) {
    return entry::logical(geometry::coincide({*x1, *y1}, {*x2, *y2}));
}

Integer IGEPNT(const Real* a, const Real* b, const Real* c) {
    return geometry::side_of_line(plan_vector(a), plan_vector(b), plan_vector(c));
}

Real GEINLN(const Real* a, const Real* b, const Real* p) {
    return geometry::in_span(space_vector(a), space_vector(b), space_vector(p)) ? 1.0f : 0.0f;
}

Real GEINLN2(const Real* a, const Real* b, const Real* p) {
    return geometry::ahead_and_nearer(space_vector(a), space_vector(b), space_vector(p)) ? 1.0f
                                                                                         : 0.0f;
}
