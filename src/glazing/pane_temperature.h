// Steady temperatures of the panes of a glazing, by fixed coefficients.
#pragma once

#include <array>

#include "base/contract.h"

namespace quorvel::glazing {

using PaneValues = std::array<Real, 5>;

// Panes that are calculated for a glazing of n panes: four are treated as five; 0 outside 1..5.
constexpr int calculated_panes(Integer n) noexcept {
    if (n < 1 || n > 5) return 0;
    return n == 4 ? 5 : n;
}

// Temperatures of the calculated panes, °C, counted from the room. absorbed: solar radiation that
// each of them absorbs, W/m².
PaneValues pane_temperatures(Real t_room, Real t_out, Integer n,
                             const PaneValues& absorbed) noexcept;

}  // namespace quorvel::glazing
