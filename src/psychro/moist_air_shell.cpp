#include "psychro/moist_air.h"

using namespace quorvel;

Real PSGS(const Real* t, const Real* twb, const Real* p, const Integer* type) {
    return psychro::moisture_content_from_psychrometer(*t, *twb, *p, *type);
}

Real PSPCST(const Real* t, const Real* g, const Real* p) {
    return psychro::percentage_saturation(*t, *g, *p);
}

Real PSHWET(const Real* t, const Real* twb, const Real* p, const Integer* type) {
    return psychro::specific_enthalpy_from_psychrometer(*t, *twb, *p, *type);
}

Real PSSPVL(const Real* t, const Real* g, const Real* p) {
    return psychro::specific_volume(*t, *g, *p);
}

Real PSTSAT(const Real* h, const Real* p) {
    return psychro::saturation_temperature_from_enthalpy(*h, *p);
}
