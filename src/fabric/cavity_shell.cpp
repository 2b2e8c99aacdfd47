#include "entry/entry.h"
#include "fabric/cavity.h"

using namespace quorvel;

Real TPRCAV(const Real* d) { return fabric::vertical_cavity_resistance(*d); }

Real TPRCA2(const Real* theta, const Real* d, const Real* e1, const Real* e2) {
    return fabric::air_cavity_resistance(*theta, *d, *e1, *e2);
}

Real TPRCAX(const Real* theta, const Real* d, const Real* e1, const Real* e2, const Real* density,
            const Real* conductivity, const Real* specific_heat, const Real* viscosity) {
    return fabric::gas_cavity_resistance(*theta, *d, *e1, *e2,
                                         {*density, *conductivity, *specific_heat, *viscosity});
}
