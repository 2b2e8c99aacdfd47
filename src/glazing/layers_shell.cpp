#include "entry/entry.h"
#include "glazing/layers.h"
#include "glazing/store_optics.h"

using namespace quorvel;

void WNCOM2(const Integer* n, const Real* t, const Real*, const Real* r, Real* t_total,
            Real* a_total, Real* r_total) {
    store(glazing::stacked_layers(*n, t, r), t_total, a_total, r_total);
}

void WNDRRO(const Real* tau, const Real* rho, const Real*, Real* t, Real* a, Real* r) {
    store(glazing::roller_blind(*tau, *rho), t, a, r);
}

void WNDFRO(const Real* tau, const Real* rho, Real* t, Real* a, Real* r) {
    store(glazing::diffuse_roller_blind(*tau, *rho), t, a, r);
}

void WNCOMP(const Integer* n, const Real* t, const Real* a, const Real* r, Real* t_total,
            Real* a_total, Real* r_total) {
    if (*n > glazing::most_traced_layers) return;
    store(glazing::traced_layers(*n, t, a, r), t_total, a_total, r_total);
}
