// Parallel layers one behind the other, and what becomes of radiation between them: of the sun's,
// and of the heat that the layers send each other.
#pragma once

#include <array>
#include <span>

#include "calculation/window/input.h"

namespace quorvel::window {

// One layer for radiation of one kind: a direction and polarisation, diffuse, or thermal. The front
// is the side that faces outdoors. What is not transmitted or reflected is absorbed.
struct Layer {
    double front_transmittance = 0, front_reflectance = 0;
    double back_transmittance = 0, back_reflectance = 0;

    double front_absorptance() const { return 1 - front_transmittance - front_reflectance; }
    double back_absorptance() const { return 1 - back_transmittance - back_reflectance; }
};

// What a layer sends out by itself, W/m².
struct Source {
    double outwards = 0, inwards = 0;
};

// What falls on both sides of every layer, W/m², and what leaves the stack.
struct Fluxes {
    std::array<double, most_layers> on_front{}, on_back{};
    double to_outdoors = 0, to_room = 0;
};

// With all reflections to and fro. Layers stand outermost first; sources may be fewer than layers.
Fluxes fluxes(std::span<const Layer> layers, std::span<const Source> sources, double from_outdoors,
              double from_room = 0);

}  // namespace quorvel::window
