// Steady temperatures of the panes of a glazing, by fixed coefficients.
#pragma once

#include <array>

#include "base/contract.h"

namespace quorvel::glazing {

inline constexpr int most_panes_with_temperature = 5;

// Panes that are calculated for a glazing of n panes: four are treated as five; 0 outside 1..5.
constexpr int calculated_panes(Integer n) noexcept {
    if (n < 1 || n > most_panes_with_temperature) return 0;
    return n == 4 ? 5 : n;
}

using PaneValues = std::array<Real, most_panes_with_temperature>;

// Temperatures [°C] of the first `panes` panes, counted from the room, which is at tR; outdoors tO.
// absorbed: solar radiation that each pane absorbs [W/m²].
PaneValues pane_temperatures(Real tR, Real tO, int panes, const PaneValues& absorbed) noexcept;

}  // namespace quorvel::glazing
