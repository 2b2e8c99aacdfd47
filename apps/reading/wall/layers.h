// Layers of an element, by their properties or by the names of materials.
#pragma once

#include <vector>

#include "calculation/wall/element.h"
#include "reading/library.h"

namespace quorvel::wall {

struct ReadLayers {
    std::vector<Layer> layers;          // as far as a gap through which the wind blows
    std::optional<std::size_t> beyond;  // so many layers, that gap among them, are left out
};

// Throws host::InputError at the first fault.
ReadLayers read_layers(const host::InputTable& root, const host::Library& library);

}  // namespace quorvel::wall
