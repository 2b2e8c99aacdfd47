// A blind as a layer beside the panes.
#pragma once

#include "designday/layers.h"

namespace quorvel::designday {

// For the sun at a profile angle [rad]: its angle off the window's normal in the plane across the
// slats, positive from above.
Layer in_direct_sun(const Blind& blind, float profile);

// For diffuse radiation from the upper and from the lower half of what the window faces.
struct DiffuseLayers {
    Layer upper, lower;
};
DiffuseLayers in_diffuse_radiation(const Blind& blind);

}  // namespace quorvel::designday
