#include "psychro/wet_bulb.h"

using namespace quorvel;

Real PSTWB(const Real* t, const Real* mu, const Real* p, const Integer* type) {
    return psychro::wet_bulb_from_percentage_saturation(*t, *mu, *p, *type);
}

Real PSWBLB(const Real* t, const Real* g, const Real* p, const Integer* type) {
    return psychro::wet_bulb_from_moisture_content(*t, *g, *p, *type);
}
