#include "entry/entry.h"
#include "fabric/window_parameters.h"

using namespace quorvel;

void TPWNDO(const Integer* n, const Integer* kind1, const Real* e1, const Integer* kind2,
            const Real* e2, const Integer* kind3, const Real* e3, const Real* d1, const Real* d2,
            const Integer* outer_type, const Integer* exposure, const Real* theta, const Real*,
            Real* admittance, Real* admittance_lead, Real* decrement, Real* decrement_lag,
            Real* surface_factor, Real* surface_factor_lag, Real* u) {
    const fabric::Glazing glazing = {*n, {{*kind1, *e1}, {*kind2, *e2}, {*kind3, *e3}}, {*d1, *d2}};
    const auto window = fabric::window_parameters(glazing, *outer_type, *exposure, *theta);
    *admittance = window.admittance;
    *admittance_lead = window.admittance_lead;
    *decrement = window.decrement;
    *decrement_lag = window.decrement_lag;
    *surface_factor = window.surface_factor;
    *surface_factor_lag = window.surface_factor_lag;
    *u = window.U;
}
