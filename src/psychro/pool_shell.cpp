#include "psychro/pool.h"

using namespace quorvel;

namespace {

void store(const psychro::PoolLoads& loads, Real* e, Real* q_lat, Real* q_conv, Real* q2) {
    *e = loads.evaporation;
    *q_lat = loads.latent;
    *q_conv = loads.convective;
    *q2 = loads.to_reference;
}

}  // namespace

void TPPOOL(const Real* a, const Real* a2, const Real* tw, const Real* ta, const Real* g,
            const Real* t2, const Integer* nb, const Real* h2, const Real* p, Real* e, Real* q_lat,
            Real* q_conv, Real* q2) {
    const psychro::Pool pool{*a, *a2, *tw, *ta, *t2, *nb, *h2};
    store(psychro::pool_evaporation(pool, *g, *p), e, q_lat, q_conv, q2);
}

void TPPOOL2(const Real* a, const Real* a2, const Real* tw, const Real* ta, const Real* twb,
             const Real* t2, const Integer* nb, const Real* h2, const Real* p, Real* e, Real* q_lat,
             Real* q_conv, Real* q2) {
    const psychro::Pool pool{*a, *a2, *tw, *ta, *t2, *nb, *h2};
    store(psychro::pool_evaporation_from_wet_bulb(pool, *twb, *p), e, q_lat, q_conv, q2);
}
