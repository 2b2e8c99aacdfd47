#include "glazing/shading_coefficient.h"

namespace quorvel::glazing {
namespace {

// Absorbed fraction per long-wave coefficient: three times the 0.87 of clear float glass.
constexpr Real absorbed_per_long_wave = 2.61f;

// At least 0.01 is reflected. An absorptance that is no number fails the comparison and gets the
// limit too: the quotient 0/0 of an opaque pane, whose absorption at normal incidence is zero.
constexpr Optics with_limited_absorption(Real T, Real A) noexcept {
    const Real most = 0.99f - T;
    const Real limited = A < most ? A : most;
    return {T, limited, 1.0f - T - limited};
}

}  // namespace

Optics unit_direct(const ShadedUnit& unit, Real theta) noexcept {
    const auto [parallel, perpendicular] = direct(unit.pane, theta);
    const Real T = 0.5f * (perpendicular.transmittance + parallel.transmittance);
    Real A = 0.5f * (perpendicular.absorptance + parallel.absorptance);
    if (unit.rescaled)
        A = absorbed_per_long_wave * unit.long_wave * A / normal(unit.pane).absorptance;
    return with_limited_absorption(T, A);
}

Optics unit_diffuse(const ShadedUnit& unit) noexcept {
    const auto [T, A] = diffuse(unit.pane);
    return with_limited_absorption(T, unit.rescaled ? absorbed_per_long_wave * unit.long_wave : A);
}

void share_among_panes(Real remainder, Integer n, Real* panes) noexcept {
    // The rows for one to five panes, one after the other.
    constexpr Real shares[] = {
        1.0f,                         //
        0.4f,   0.6f,                 //
        0.2f,   0.3f,  0.5f,          //
        0.133f, 0.2f,  0.267f, 0.4f,  //
        0.1f,   0.15f, 0.2f,   0.25f, 0.3f,
    };
    if (n < 1 || n > 5) return;
    const Real* const row = shares + n * (n - 1) / 2;
    for (Integer i = 0; i < n; ++i) panes[i] = row[i] * remainder;
}

}  // namespace quorvel::glazing
