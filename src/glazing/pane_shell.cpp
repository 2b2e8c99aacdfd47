#include "entry/entry.h"
#include "glazing/pane.h"

#include "glazing/store_optics.h"

using namespace quorvel;

Real WNRANG(const Real* theta, const Real* n) { return glazing::refraction_angle(*theta, *n); }

void WNREFL(const Real* theta, const Real* refracted, const Real* n, Real* rp, Real* rs) {
    const auto [parallel, perpendicular] = glazing::surface_reflectance(*theta, *refracted, *n);
    *rs = perpendicular;
    *rp = parallel;
}

Real WNABEN(const Real* refracted, const Real* kl, const Real*) {
    return glazing::single_pass_absorption(math::cos(*refracted), *kl);
}

void WNTAR(const Real* absorbed, const Real* reflected, Real* t, Real* a, Real* r) {
    store(glazing::slab_optics(*absorbed, *reflected), t, a, r);
}

Real WNKL(const Real* tn, const Real* n) { return glazing::absorption_product(*tn, *n); }

Real WNTNOR(const Real* kl, const Real* rho) { return glazing::normal_transmittance(*kl, *rho); }
