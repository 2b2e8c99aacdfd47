// Wet bulb that belongs to a humidity of the air, by stepping searches on the psychrometer equation
// and the enhancement factor. Where a search would never end, what it has reached is
// returned.
#pragma once

#include "frame/contract.h"

namespace quorvel::psychro {

// At dry bulb t [°C], percentage saturation [%] and pressure p [Pa], to 0.01 K, rounded up.
Real wet_bulb_from_percentage_saturation(Real t, Real saturation, Real p, Integer type) noexcept;

// At dry bulb t [°C], moisture content g [kg/kg] and pressure p [Pa], to 0.005 K.
Real wet_bulb_from_moisture_content(Real t, Real g, Real p, Integer type) noexcept;

}  // namespace quorvel::psychro
