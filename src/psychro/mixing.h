// Two streams of moist air that become one without heat from outside.
#pragma once

#include "psychro/dry_bulb.h"

namespace quorvel::psychro {

template <class R>
struct MixedAir {
    R t, g, h;  // °C, kg/kg, kJ/kg
};

// Mass flows of dry air in any one unit. Fog, where the mixture is above saturation, counts as
// vapour.
template <class R>
MixedAir<R> adiabatic_mixing(R m1, R t1, R g1, R m2, R t2, R g2) noexcept {
    const R share = m2 / (m1 + m2);
    const auto mixed = [&](R a, R b) { return a + share * (b - a); };
    const R g = mixed(g1, g2);
    const R h = mixed(specific_enthalpy(t1, g1), specific_enthalpy(t2, g2));
    return {dry_bulb_from_enthalpy_and_moisture_content(h, g), g, h};
}

}  // namespace quorvel::psychro
