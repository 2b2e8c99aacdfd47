// Parallel layers one behind the other, and what becomes of the radiation between them.
#pragma once

#include <array>
#include <span>

#include "designday/job.h"

namespace quorvel::designday {

inline constexpr int most_layers = most_panes + 1;  // the panes and a blind

// One layer for radiation of one kind (a direction and polarisation, or diffuse). Both sides are
// taken to reflect alike; what is not transmitted or absorbed is reflected.
struct Layer {
    double transmittance, absorptance;

    double reflectance() const { return 1.0 - transmittance - absorptance; }
};

// Fractions of the incident radiation.
struct Passage {
    double transmitted = 0;
    std::array<double, most_layers> absorbed{};  // outermost layer first
};

// The balance with all reflections to and fro; layers outermost first.
Passage through(std::span<const Layer> layers);

}  // namespace quorvel::designday
