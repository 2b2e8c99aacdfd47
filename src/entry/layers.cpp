#include "glazing/layers.h"

#include "entry/entry.h"
#include "entry/glazing/layers.h"

using namespace quorvel;

namespace {

void store_optics(const glazing::Optics<Real>& optics, Real* t, Real* a, Real* r) noexcept {
    *t = optics.transmittance;
    *a = optics.absorptance;
    *r = optics.reflectance;
}

}  // namespace

void WNCOM2(const Integer* n, const Real* t, const Real*, const Real* r, Real* t_total,
            Real* a_total, Real* r_total) {
    store_optics(glazing::stacked_layers(*n, t, r), t_total, a_total, r_total);
}

void WNCOMP(const Integer* n, const Real* t, const Real* a, const Real* r, Real* t_total,
            Real* a_total, Real* r_total) {
    if (*n > glazing::most_traced_layers) return;
    store_optics(glazing::traced_layers(*n, t, a, r), t_total, a_total, r_total);
}
