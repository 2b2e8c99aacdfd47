// Interim: produced from the catalogue.
#include "geometry/corners.h"
#include "geometry/lines.h"
#include "geometry/orientation.h"
#include "geometry/projection.h"
#include "entry/entry.h"
using namespace quorvel;
using namespace quorvel::entry;

Real GEDOTP(const Real* a, const Real* b) {
    return geometry::dot<Real>(load<geometry::SpaceVector<Real>>(a), load<geometry::SpaceVector<Real>>(b));
}

DoubleReal GEDTDP(const DoubleReal* a, const DoubleReal* b) {
    return geometry::dot<DoubleReal>(load<geometry::SpaceVector<DoubleReal>>(a), load<geometry::SpaceVector<DoubleReal>>(b));
}

void GEXPRO(const Real* a, const Real* b, Real* c) {
    store(geometry::cross<Real>(load<geometry::SpaceVector<Real>>(a), load<geometry::SpaceVector<Real>>(b)), c);
}

void GEXPDP(const DoubleReal* a, const DoubleReal* b, DoubleReal* c) {
    store(geometry::cross<DoubleReal>(load<geometry::SpaceVector<DoubleReal>>(a), load<geometry::SpaceVector<DoubleReal>>(b)), c);
}

Real GEVMOD(const Real* a) {
    return geometry::length<Real>(load<geometry::SpaceVector<Real>>(a));
}

DoubleReal GEVMDP(const DoubleReal* a) {
    return geometry::length<DoubleReal>(load<geometry::SpaceVector<DoubleReal>>(a));
}

void GEMEET(const Real* a, const Real* b, const Real* c, const Real* d, Real* x) {
    store(geometry::meeting_point<Real>(load<geometry::PlanVector<Real>>(a), load<geometry::PlanVector<Real>>(b), load<geometry::PlanVector<Real>>(c), load<geometry::PlanVector<Real>>(d)), x);
}

void GECROS(const Real* a, const Real* b, const Real* c, const Real* d, Real* x) {
    store(geometry::crossing_point<Real>(load<geometry::PlanVector<Real>>(a), load<geometry::PlanVector<Real>>(b), load<geometry::PlanVector<Real>>(c), load<geometry::PlanVector<Real>>(d)), x);
}

Real BORI(const Real* a) {
    return geometry::back_azimuth<Real>(*a);
}

void GEPROJ(const Real* p0, const Real* normal, const Real* p, const Real* d, Real* x) {
    store(geometry::projection<Real>(load<geometry::SpaceVector<Real>>(p0), load<geometry::SpaceVector<Real>>(normal), load<geometry::SpaceVector<Real>>(p), load<geometry::SpaceVector<Real>>(d)), x);
}

void GEPROJ2(const Real* p0, const Real* normal, const Real* p, const Real* d, Real* x) {
    store(geometry::forward_projection<Real>(load<geometry::SpaceVector<Real>>(p0), load<geometry::SpaceVector<Real>>(normal), load<geometry::SpaceVector<Real>>(p), load<geometry::SpaceVector<Real>>(d)), x);
}

void GEPROJ3(const Real* p0, const Real* normal, const Real* p, const Real* d, Real* x) {
    store(geometry::forward_projection_or_start<Real>(load<geometry::SpaceVector<Real>>(p0), load<geometry::SpaceVector<Real>>(normal), load<geometry::SpaceVector<Real>>(p), load<geometry::SpaceVector<Real>>(d)), x);
}

void GESUNV(const Real* h, const Real* a, Real* s) {
    store(geometry::direction_to<Real>(*h, *a), s);
}

void GERSET(const Real* a, const Real* b, Real* r, Real* ri) {
    const auto [r_value, ri_value] = geometry::surface_axes<Real>(*a, *b);
    store(r_value, r);
    store(ri_value, ri);
}

void GERAXI(const Real* p, const Real* r, Real* q) {
    store(geometry::local_to_global<Real>(load<geometry::SpaceVector<Real>>(p), load<geometry::Columns<Real, 3>>(r)), q);
}

void GERAX2(const Real* p, const Real* r, Real* q) {
    store(geometry::global_to_local<Real>(load<geometry::SpaceVector<Real>>(p), load<geometry::Columns<Real, 3>>(r)), q);
}

Real GEINLN(const Real* a, const Real* b, const Real* p) {
    return geometry::in_span<Real>(load<geometry::SpaceVector<Real>>(a), load<geometry::SpaceVector<Real>>(b), load<geometry::SpaceVector<Real>>(p));
}

Real GEINLN2(const Real* a, const Real* b, const Real* p) {
    return geometry::ahead_and_nearer<Real>(load<geometry::SpaceVector<Real>>(a), load<geometry::SpaceVector<Real>>(b), load<geometry::SpaceVector<Real>>(p));
}

Integer GEPLEL(const DoubleReal* t1, const DoubleReal* t2) {
    return logical(geometry::parallel_planes<DoubleReal>(load<geometry::Columns<DoubleReal, 3>>(t1), load<geometry::Columns<DoubleReal, 3>>(t2)));
}

Integer GEPSID(const DoubleReal* t1, const DoubleReal* t2, Integer* i, Integer* j) {
    const auto [result, i_value, j_value] = geometry::parallel_sides<DoubleReal>(load<geometry::Columns<DoubleReal, 3>>(t1), load<geometry::Columns<DoubleReal, 3>>(t2));
    store(i_value, i);
    store(j_value, j);
    return logical(result);
}

Integer GERECT(const DoubleReal* q) {
    return logical(geometry::rectangular<DoubleReal>(load<geometry::Columns<DoubleReal, 4>>(q)));
}

void GETILT(const DoubleReal* t, DoubleReal* az, DoubleReal* tilt) {
    const auto [az_value, tilt_value] = geometry::facing<DoubleReal>(load<geometry::Columns<DoubleReal, 3>>(t), *az);
    store(az_value, az);
    store(tilt_value, tilt);
}

void GELCAL(const DoubleReal* q, const DoubleReal* q2, DoubleReal* ql, DoubleReal* q2l) {
    const auto [ql_value, q2l_value] = geometry::local_coordinates<DoubleReal>(load<geometry::Columns<DoubleReal, 4>>(q), load<geometry::Columns<DoubleReal, 4>>(q2));
    store(ql_value, ql);
    store(q2l_value, q2l);
}

void GETRNS(DoubleReal* p, const DoubleReal* u, const DoubleReal* v, const DoubleReal* w) {
    store(geometry::to_local<DoubleReal>(load<geometry::Columns<DoubleReal, 4>>(p), load<geometry::SpaceVector<DoubleReal>>(u), load<geometry::SpaceVector<DoubleReal>>(v), load<geometry::SpaceVector<DoubleReal>>(w)), p);
}

Integer GECOIN(const Real* x1, const Real* y1, const Real* x2, const Real* y2) {
    return logical(geometry::coincide<Real>(*x1, *y1, *x2, *y2));
}

Integer IGEPNT(const Real* a, const Real* b, const Real* c) {
    return geometry::side_of_line<Real>(load<geometry::PlanVector<Real>>(a), load<geometry::PlanVector<Real>>(b), load<geometry::PlanVector<Real>>(c));
}
