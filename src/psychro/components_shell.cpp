#include "psychro/components.h"

using namespace quorvel;

Real PSHDRY(const Real* t) { return psychro::dry_air_enthalpy(*t); }

Real PSHVAP(const Real* t) { return psychro::water_vapour_enthalpy(*t); }

Real PSCPDR(const Real* t) { return psychro::dry_air_specific_heat(*t); }

Real PSCPVA(const Real* t) { return psychro::water_vapour_specific_heat(*t); }

Real PSHFG(const Real* t) { return psychro::latent_heat(*t); }

Real PSTEFF(const Real* t1, const Real* t2) { return psychro::weighted_temperature(*t1, *t2); }
