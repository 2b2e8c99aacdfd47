#include "psychro/saturation.h"

using namespace quorvel;

Real PSSVP(const Real* t) { return psychro::saturation_pressure(*t); }

Real PSVP(const Real* t, const Real* rh) { return psychro::vapour_pressure(*t, *rh); }

Real PSVAP(const Real* t, const Real* twb, const Real* p, const Integer* type) {
    return psychro::vapour_pressure_from_psychrometer(*t, *twb, *p, *type);
}
