// A blind as a layer beside the panes.
#pragma once

#include "calculation/window/layers.h"

namespace quorvel::window {

// For radiation of one kind: what passes straight, and what is scattered or absorbed.
struct Screen {
    double straight = 0, straight_back = 0;  // from outdoors; once reflected, from the room's side
    Layer scattered = {};                    // without what passes straight
};

// For the sun at a profile angle [rad]: its angle off the window's normal in the plane across the
// slats, positive from above.
Screen in_direct_sun(const Blind& blind, double profile);

// For diffuse radiation from the upper and from the lower half of what the window faces. All of it
// is scattered.
struct DiffuseScreens {
    Screen upper, lower;
};
DiffuseScreens in_diffuse_radiation(const Blind& blind);

// For diffuse radiation from everywhere, such as has been scattered before.
Layer in_scattered_radiation(const Blind& blind);

// For the heat that panes and room radiate.
Layer in_thermal_radiation(const Blind& blind);

}  // namespace quorvel::window
