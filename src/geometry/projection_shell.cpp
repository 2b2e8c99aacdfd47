#include "entry/entry.h"
#include "geometry/projection.h"

using namespace quorvel;
using geometry::space_vector;

void GEPROJ(const Real* p0, const Real* n, const Real* p, const Real* d, Real* x) {
    geometry::store(geometry::projection({space_vector(p0), space_vector(n)},
                                         {space_vector(p), space_vector(d)}),
                    x);
}

void GEPROJ2(const Real* p0, const Real* n, const Real* p, const Real* d, Real* x) {
    geometry::store(geometry::forward_projection({space_vector(p0), space_vector(n)},
                                                 {space_vector(p), space_vector(d)}),
                    x);
}

void GEPROJ3(const Real* p0, const Real* n, const Real* p, const Real* d, Real* x) {
    geometry::store(geometry::forward_projection_or_start({space_vector(p0), space_vector(n)},
                                                          {space_vector(p), space_vector(d)}),
                    x);
}
