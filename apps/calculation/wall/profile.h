// Temperature and vapour pressure through a section in a steady state (Glaser's method, EN ISO
// 13788).
#pragma once

#include <vector>

#include "calculation/wall/air.h"
#include "calculation/wall/section.h"

namespace quorvel::wall {

// Where a profile is known. Layers of more than 0.25 m²K/W are divided, since saturation falls in a
// curve there.
struct Place {
    std::size_t index;  // of the interface, 0 at the inside surface; or of the layer around it
    bool within;        // a layer
    double position;    // m from the inside surface
    double resistance;  // m²K/W from the air inside
    double vapour_resistance;  // GN s/kg from the inside surface; the air has none
};

struct Path {
    std::vector<Place> places;  // the first is the inside surface, the last the outside one
    double resistance;          // m²K/W from air to air
};

Path path(const Section& section, const Surfaces& surfaces);

// At the places of a path.
struct Profile {
    std::vector<double> temperature;  // °C
    std::vector<double> saturation;   // Pa
    std::vector<double> pressure;     // of vapour, Pa
    std::vector<double> gain;  // of water, g/m² a day; 0 at the surfaces, below it if it dries
    bool inside_wet;           // vapour of the room condenses on the surface

    double relative_humidity(std::size_t i) const { return 100 * pressure[i] / saturation[i]; }
};

// Vapour pressure does not exceed saturation anywhere, and is held to it at places that are wet,
// where there is water from before. What arrives at a place and does not pass on condenses there.
Profile profile(const Path& path, const Climate& climate, const std::vector<bool>& wet);

// Where nothing is wet from before.
Profile profile(const Path& path, const Climate& climate);

// The pressures and gains anew, in the same climate with other places wet.
void settle(Profile& profile, const Path& path, const std::vector<bool>& wet);

}  // namespace quorvel::wall
