// Wet bulb that belongs to a humidity of the air, by stepping searches on the psychrometer
// equation. Where a search would never end, what it has reached is returned.
#pragma once

#include "base/contract.h"

namespace quorvel::psychro {

// All at dry bulb t [°C] and atmospheric pressure p [Pa], for a psychrometer of a type (1, 2).

// What a psychrometer reads at relative humidity rh [%], to 0.1 K.
Real psychrometer_wet_bulb(Real t, Real rh, Real p, Integer type) noexcept;

// At percentage saturation [%], with the enhancement factor, to 0.01 K, rounded up.
Real wet_bulb_from_percentage_saturation(Real t, Real saturation, Real p, Integer type) noexcept;

// At moisture content g [kg/kg], with the enhancement factor, to 0.005 K.
Real wet_bulb_from_moisture_content(Real t, Real g, Real p, Integer type) noexcept;

}  // namespace quorvel::psychro
