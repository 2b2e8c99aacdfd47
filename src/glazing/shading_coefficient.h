// Whole glazing units that are described only by their shading coefficients: an equivalent clear
// pane carries the dependence on angle, the long-wave coefficient sets the absorbed fraction.
#pragma once

#include "glazing/glass.h"

namespace quorvel::glazing {

struct ShadedUnit {
    ClearPane pane;
    Real long_wave;  // shading coefficient LW
    bool rescaled;   // absorption follows LW, not the pane
};

// SC short-wave, SCL long-wave shading coefficient; without the latter SC is split 9 to 1.
inline ShadedUnit shaded_unit(Real SC, Real SCL) noexcept {
    const bool split = SCL < 0.0001f;
    const Real SW = split ? 0.9f * SC : SC;
    const Real LW = split ? 0.1f * SC : SCL;
    // For SC = 1 without SCL the two sides are 0.1: equal to rounding, on the right side in single
    // precision and on the wrong one in double.
    return {clear_pane(0.87f * SW), LW, 1.0f - SW >= LW};
}

// At the angle of incidence theta [rad], mean of both polarisations.
Optics unit_direct(const ShadedUnit& unit, Real theta) noexcept;

Optics unit_diffuse(const ShadedUnit& unit) noexcept;

// Splits a remainder among the panes 1..n of a unit; n outside 1..5 writes nothing.
void share_among_panes(Real remainder, Integer n, Real* panes) noexcept;

}  // namespace quorvel::glazing
