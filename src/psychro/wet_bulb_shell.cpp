#include "psychro/wet_bulb.h"

using namespace quorvel;

Real PSTWET(const Real* t, const Real* rh, const Real* p, const Integer* type) {
    return psychro::psychrometer_wet_bulb(*t, *rh, *p, *type);
}

Real PSTWB(const Real* t, const Real* mu, const Real* p, const Integer* type) {
    return psychro::wet_bulb_from_percentage_saturation(*t, *mu, *p, *type);
}

Real PSWBLB(const Real* t, const Real* g, const Real* p, const Integer* type) {
    return psychro::wet_bulb_from_moisture_content(*t, *g, *p, *type);
}
