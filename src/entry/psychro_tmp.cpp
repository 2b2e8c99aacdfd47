// Interim: produced from the catalogue.
#include "psychro/pool.h"
#include "psychro/weighted_temperature.h"
#include "entry/entry.h"
using namespace quorvel;
using namespace quorvel::entry;

Real PSSVP(const Real* t) {
    return psychro::saturation_pressure<Real>(*t);
}

Real PSVP(const Real* t, const Real* rh) {
    return psychro::vapour_pressure<Real>(*t, *rh);
}

Real PSVAP(const Real* t, const Real* twb, const Real* p, const Integer* type) {
    return psychro::vapour_pressure_from_psychrometer<Real>(*t, *twb, *p, *type);
}

Real PSTWET(const Real* t, const Real* rh, const Real* p, const Integer* type) {
    return psychro::psychrometer_wet_bulb<Real>(*t, *rh, *p, *type);
}

Real PSGS(const Real* t, const Real* twb, const Real* p, const Integer* type) {
    return psychro::moisture_content_from_psychrometer<Real>(*t, *twb, *p, *type);
}

Real PSPCST(const Real* t, const Real* g, const Real* p) {
    return psychro::percentage_saturation<Real>(*t, *g, *p);
}

Real PSHWET(const Real* t, const Real* twb, const Real* p, const Integer* type) {
    return psychro::specific_enthalpy_from_psychrometer<Real>(*t, *twb, *p, *type);
}

Real PSSPVL(const Real* t, const Real* g, const Real* p) {
    return psychro::specific_volume<Real>(*t, *g, *p);
}

Real PSTWB(const Real* t, const Real* mu, const Real* p, const Integer* type) {
    return psychro::wet_bulb_from_percentage_saturation<Real>(*t, *mu, *p, *type);
}

Real PSWBLB(const Real* t, const Real* g, const Real* p, const Integer* type) {
    return psychro::wet_bulb_from_moisture_content<Real>(*t, *g, *p, *type);
}

Real PSTSAT(const Real* h, const Real* p) {
    return psychro::saturation_temperature_from_enthalpy<Real>(*h, *p);
}

Real PSHDRY(const Real* t) {
    return psychro::dry_air_enthalpy<Real>(*t);
}

Real PSHVAP(const Real* t) {
    return psychro::water_vapour_enthalpy<Real>(*t);
}

Real PSCPDR(const Real* t) {
    return psychro::dry_air_specific_heat<Real>(*t);
}

Real PSCPVA(const Real* t) {
    return psychro::water_vapour_specific_heat<Real>(*t);
}

Real PSHFG(const Real* t) {
    return psychro::latent_heat<Real>(*t);
}

Real PSTEFF(const Real* t1, const Real* t2) {
    return psychro::weighted_temperature<Real>(*t1, *t2);
}

void TPPOOL(const Real* a, const Real* a2, const Real* tw, const Real* ta, const Real* g, const Real* t2, const Integer* nb, const Real* h2, const Real* p, Real* e, Real* q_lat, Real* q_conv, Real* q2) {
    const auto [e_value, q_lat_value, q_conv_value, q2_value] = psychro::pool_evaporation<Real>(*a, *a2, *tw, *ta, *g, *t2, *nb, *h2, *p);
    store(e_value, e);
    store(q_lat_value, q_lat);
    store(q_conv_value, q_conv);
    store(q2_value, q2);
}

void TPPOOL2(const Real* a, const Real* a2, const Real* tw, const Real* ta, const Real* twb, const Real* t2, const Integer* nb, const Real* h2, const Real* p, Real* e, Real* q_lat, Real* q_conv, Real* q2) {
    const auto [e_value, q_lat_value, q_conv_value, q2_value] = psychro::pool_evaporation_from_wet_bulb<Real>(*a, *a2, *tw, *ta, *twb, *t2, *nb, *h2, *p);
    store(e_value, e);
    store(q_lat_value, q_lat);
    store(q_conv_value, q_conv);
    store(q2_value, q2);
}
