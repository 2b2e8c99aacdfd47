#include "entry/entry.h"
#include "fabric/heat_transfer_coefficient.h"

using namespace quorvel;

Real TPHCON(const Real* difference, const Real* length, const Integer* kind) {
    return fabric::natural_convection_coefficient(*difference, *length, *kind);
}
