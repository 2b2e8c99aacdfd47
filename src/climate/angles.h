// Directions of the sun and of surfaces, in radians: azimuths from north, clockwise seen from
// above.
#pragma once

#include "base/contract.h"

namespace quorvel::climate {

// Limit of latitudes and altitudes. As the float nearest to pi/2 it lies just beyond 90 degrees,
// and one step below half of the library's pi, which stands for the right angle elsewhere.
inline constexpr Real right_angle = 1.5707964f;

struct SolarAngles {
    Real altitude, azimuth;
};

struct Orientation {
    Real azimuth;  // of the outward normal
    Real tilt;     // 0 horizontal facing up, pi/2 vertical
};

}  // namespace quorvel::climate
