#include "calculation/window/layers.h"

#include <algorithm>

namespace quorvel::window {
namespace {

// Between two perfect mirrors nothing is ever lost, and nothing is told of what stays there.
constexpr double least_loss = 1e-9;

// All from one layer on inwards: what it reflects of 1, and what it sends outwards by itself.
struct Rest {
    double reflectance = 0, emission = 0;
};

// What passes inwards behind a layer: a share of what falls on its front, and what comes in
// between.
struct Step {
    double passed, added;
};

Step step(const Layer& layer, const Source& source, const Rest& behind) {
    const double loss = std::max(1 - layer.back_reflectance * behind.reflectance, least_loss);
    return {layer.front_transmittance / loss,
            (layer.back_reflectance * behind.emission + source.inwards) / loss};
}

}  // namespace

Fluxes fluxes(std::span<const Layer> layers, std::span<const Source> sources, double from_outdoors,
              double from_room) {
    const std::size_t n = layers.size();
    std::array<Rest, most_layers + 1> rest{};
    std::array<Step, most_layers> steps{};
    rest[n].emission = from_room;
    for (std::size_t k = n; k-- > 0;) {
        const Layer& layer = layers[k];
        const Source source = k < sources.size() ? sources[k] : Source{};
        const Rest& behind = rest[k + 1];
        steps[k] = step(layer, source, behind);
        rest[k] = {layer.front_reflectance +
                       layer.back_transmittance * behind.reflectance * steps[k].passed,
                   source.outwards + layer.back_transmittance *
                                         (behind.reflectance * steps[k].added + behind.emission)};
    }
    Fluxes result;
    double inwards = from_outdoors;
    result.to_outdoors = rest[0].reflectance * inwards + rest[0].emission;
    for (std::size_t k = 0; k < n; ++k) {
        result.on_front[k] = inwards;
        inwards = steps[k].passed * inwards + steps[k].added;
        result.on_back[k] = rest[k + 1].reflectance * inwards + rest[k + 1].emission;
    }
    result.to_room = inwards;
    return result;
}

}  // namespace quorvel::window
