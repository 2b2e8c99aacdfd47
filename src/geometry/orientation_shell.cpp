#include "entry/entry.h"
#include "geometry/orientation.h"

using namespace quorvel;

namespace {

geometry::RotationMatrix rotation_matrix(const Real* at) noexcept {
    geometry::RotationMatrix matrix;
    std::copy_n(at, matrix.elements.size(), matrix.elements.begin());
    return matrix;
}

}  // namespace

Real BORI(const Real* a) { return geometry::back_azimuth(*a); }

void GESUNV(const Real* altitude, const Real* azimuth, Real* s) {
    geometry::store(geometry::direction_to(*altitude, *azimuth), s);
}

void GERSET(const Real* azimuth, const Real* tilt, Real* r, Real* ri) {
    const auto axes = geometry::surface_axes(*azimuth, *tilt);
    std::ranges::copy(axes.elements, r);
    std::ranges::copy(geometry::inverse(axes).elements, ri);
}

void GERAXI(const Real* p, const Real* r, Real* q) {
    geometry::store(geometry::local_to_global(rotation_matrix(r), geometry::space_vector(p)), q);
}

void GERAX2(const Real* p, const Real* r, Real* q) {
    geometry::store(geometry::global_to_local(rotation_matrix(r), geometry::space_vector(p)), q);
}
