// How an element answers a daily swing of temperature (EN ISO 13786).
#pragma once

#include <vector>

#include "calculation/none.h"
#include "calculation/wall/section.h"

namespace quorvel::wall {

using host::none;

// With the surface resistances. Shifts in hours, 0 to 24: of an admittance its lead, of the others
// their lag. None of it where the element is so heavy that the swing is lost in it.
struct Periodic {
    double admittance = none, admittance_lead = none;  // |Y11|, at the inside, W/m²K
    double outside_admittance = none, outside_admittance_lead = none;  // |Y22|, W/m²K
    double transmittance = none;                                       // |Y12|, W/m²K
    double decrement_factor = none, decrement_lag = none;              // |Y12| / U
    double surface_factor = none, surface_lag = none;
    double inside_capacity = none, outside_capacity = none;  // areal heat capacities, J/m²K
};

// An inhomogeneous layer counts with its mean conductivity and its mean heat capacity.
Periodic periodic(const Element& element, const std::vector<Section>& sections,
                  const Surfaces& surfaces);

}  // namespace quorvel::wall
