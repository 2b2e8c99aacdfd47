#include "entry/entry.h"
#include "fabric/surfaces.h"

using namespace quorvel;

Real TPRSUR(const Integer* type, const Real* theta, const Integer* exposure) {
    return fabric::surface_resistance(*type, *theta, *exposure);
}

Real TPRSU2(const Integer* type, const Real* theta, const Integer* exposure,
            const Real* emissivity) {
    return fabric::surface_resistance_at_emissivity(*type, *theta, *exposure, *emissivity);
}
