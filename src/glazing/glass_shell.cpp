#include "entry/entry.h"
#include "glazing/glass.h"
#include "glazing/store_optics.h"

using namespace quorvel;

void WNDRGL(const Real* tn, const Real* r0, const Real* theta, Real* t_p, Real* a_p, Real* r_p,
            Real* t_s, Real* a_s, Real* r_s) {
    const auto [parallel, perpendicular] = glazing::glass_direct(*tn, *r0, *theta);
    store(parallel, t_p, a_p, r_p);
    store(perpendicular, t_s, a_s, r_s);
}

void WNDFGL(const Real* tn, const Real* r0, Real* t, Real* a) {
    const auto [transmittance, absorptance] = glazing::glass_diffuse(*tn, *r0);
    *t = transmittance;
    *a = absorptance;
}
