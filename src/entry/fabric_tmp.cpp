// Interim: produced from the catalogue.
#include "entry/entry.h"
#include "fabric/condensation.h"
#include "fabric/heat_transfer_coefficient.h"
#include "fabric/packing.h"
#include "fabric/u_value.h"
#include "fabric/window_parameters.h"
using namespace quorvel;
using namespace quorvel::entry;

Real TPRSUR(const Integer* type, const Real* theta, const Integer* exposure) {
    return fabric::surface_resistance<Real>(*type, *theta, *exposure);
}

Real TPRSU2(const Integer* type, const Real* theta, const Integer* exposure,
            const Real* emissivity) {
    return fabric::surface_resistance_at_emissivity<Real>(*type, *theta, *exposure, *emissivity);
}

Real TPRCAV(const Real* d) { return fabric::vertical_cavity_resistance<Real>(*d); }

Real TPRCA2(const Real* theta, const Real* d, const Real* e1, const Real* e2) {
    return fabric::air_cavity_resistance<Real>(*theta, *d, *e1, *e2);
}

Real TPRCAX(const Real* theta, const Real* d, const Real* e1, const Real* e2, const Real* density,
            const Real* conductivity, const Real* specific_heat, const Real* viscosity) {
    return fabric::gas_cavity_resistance<Real>(*theta, *d, *e1, *e2, *density, *conductivity,
                                               *specific_heat, *viscosity);
}

void TPCOLW(const Integer* mode, Real* packed, Real* p1, Real* p2) {
    const auto [packed_value, p1_value, p2_value] =
        fabric::pack_two_fractions<Real>(*mode, *packed, *p1, *p2);
    store(packed_value, packed);
    store(p1_value, p1);
    store(p2_value, p2);
}

void TPCOLT(const Integer* mode, Real* packed, Real* p1, Real* p2, Real* p3) {
    const auto [packed_value, p1_value, p2_value, p3_value] =
        fabric::pack_three_fractions<Real>(*mode, *packed, *p1, *p2, *p3);
    store(packed_value, packed);
    store(p1_value, p1);
    store(p2_value, p2);
    store(p3_value, p3);
}

void TPCOLW2(const Integer* mode, Real* packed, Real* p3, Real* p1, Real* p2) {
    const auto [packed_value, p3_value, p1_value, p2_value] =
        fabric::pack_three_fractions_third_first<Real>(*mode, *packed, *p3, *p1, *p2);
    store(packed_value, packed);
    store(p3_value, p3);
    store(p1_value, p1);
    store(p2_value, p2);
}

void TPCOSW(const Integer* mode, Real* packed, Real* a, Real* r1, Real* r2) {
    const auto [packed_value, a_value, r1_value, r2_value] =
        fabric::pack_pane<Real>(*mode, *packed, *a, *r1, *r2);
    store(packed_value, packed);
    store(a_value, a);
    store(r1_value, r1);
    store(r2_value, r2);
}

void TPWNDO(const Integer* n, const Integer* kind1, const Real* e1, const Integer* kind2,
            const Real* e2, const Integer* kind3, const Real* e3, const Real* d1, const Real* d2,
            const Integer* outer_type, const Integer* exposure, const Real* theta, const Real*,
            Real* admittance, Real* admittance_lead, Real* decrement, Real* decrement_lag,
            Real* surface_factor, Real* surface_factor_lag, Real* u) {
    const auto [admittance_value, admittance_lead_value, decrement_value, decrement_lag_value,
                surface_factor_value, surface_factor_lag_value, u_value] =
        fabric::window_parameters<Real>(*n, *kind1, *e1, *kind2, *e2, *kind3, *e3, *d1, *d2,
                                        *outer_type, *exposure, *theta);
    store(admittance_value, admittance);
    store(admittance_lead_value, admittance_lead);
    store(decrement_value, decrement);
    store(decrement_lag_value, decrement_lag);
    store(surface_factor_value, surface_factor);
    store(surface_factor_lag_value, surface_factor_lag);
    store(u_value, u);
}

Real TPUMOD(const Real* u, const Real* tilt, const Integer* exposure) {
    return fabric::u_value_at_tilt_and_exposure<Real>(*u, *tilt, *exposure);
}

Real TPHCON(const Real* dt, const Real* length, const Integer* kind) {
    return fabric::natural_convection_coefficient<Real>(*dt, *length, *kind);
}

Integer ITPCON(const Real* t1, const Real* t2, const Real* p1, const Real* p2) {
    return fabric::condenses_within_layer<Real>(*t1, *t2, *p1, *p2);
}
