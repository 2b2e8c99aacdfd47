// Directions of the sun and of surfaces, in radians: azimuths from north, clockwise seen from
// above; tilts 0 for horizontal facing up, pi/2 for vertical.
#pragma once

#include "base/contract.h"

namespace quorvel::climate {

// Limit of latitudes and altitudes. As the float nearest to pi/2 it lies just beyond 90 degrees,
// and one step below half of the library's pi, which stands for the right angle elsewhere.
inline constexpr Real right_angle = 1.5707964f;

}  // namespace quorvel::climate
