#include "designday/layers.h"

#include <cstddef>

namespace quorvel::designday {

// Seen from the outside inwards, every gap passes on the sum of a geometric series.
Passage through(std::span<const Layer> layers) {
    const std::size_t n = layers.size();
    std::array<double, most_layers + 1> behind{};  // reflectance of layer k and all behind it
    const auto passed = [&](std::size_t k) {  // reaching layer k + 1 for 1 that reaches layer k
        const double t = layers[k].transmittance;
        return t > 0 ? t / (1.0 - layers[k].reflectance() * behind[k + 1]) : 0.0;
    };
    for (std::size_t k = n; k-- > 0;)
        behind[k] = layers[k].reflectance() + layers[k].transmittance * behind[k + 1] * passed(k);

    Passage passage;
    double arriving = 1.0;
    for (std::size_t k = 0; k < n; ++k) {
        const double next = arriving * passed(k);
        passage.absorbed[k] = layers[k].absorptance * (arriving + next * behind[k + 1]);
        arriving = next;
    }
    passage.transmitted = arriving;
    return passage;
}

}  // namespace quorvel::designday
