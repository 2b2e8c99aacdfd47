#include "entry/entry.h"
#include "geometry/points.h"

using namespace quorvel;
using geometry::space_vector;

Real GEDOTP(const Real* a, const Real* b) {
    return geometry::dot(space_vector(a), space_vector(b));
}

DoubleReal GEDTDP(const DoubleReal* a, const DoubleReal* b) {
    return geometry::dot(space_vector(a), space_vector(b));
}

void GEXPRO(const Real* a, const Real* b, Real* c) {
    geometry::store(geometry::cross(space_vector(a), space_vector(b)), c);
}

void GEXPDP(const DoubleReal* a, const DoubleReal* b, DoubleReal* c) {
    geometry::store(geometry::cross(space_vector(a), space_vector(b)), c);
}

Real GEVMOD(const Real* a) { return geometry::length(space_vector(a)); }

DoubleReal GEVMDP(const DoubleReal* a) { return geometry::length(space_vector(a)); }
