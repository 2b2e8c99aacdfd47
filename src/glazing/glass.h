// Panes of the library's glass, index 1.52: uncoated ones by the optics of a slab, coated ones by
// tables of angular factors; at one angle of incidence and under isotropic diffuse radiation.
#pragma once

#include "glazing/pane.h"

namespace quorvel::glazing {

inline constexpr Real glass_index = 1.52f;

// Means over the hemisphere and both polarisations.
struct Diffuse {
    Real transmittance, absorptance;
};

// Uncoated pane. Below a normal transmittance of 0.001 it is opaque and reflects everything.
struct ClearPane {
    bool opaque;
    Real KL;
};

inline ClearPane clear_pane(Real Tn) noexcept {
    const bool opaque = Tn < 0.001f;
    return {opaque, opaque ? 0.0f : absorption_product(Tn, glass_index)};
}

// At the angle of incidence theta [rad].
Polarised<Optics> direct(const ClearPane& pane, Real theta) noexcept;

// At normal incidence, where the polarisations do not differ.
Optics normal(const ClearPane& pane) noexcept;

Diffuse diffuse(const ClearPane& pane) noexcept;

// Pane by its normal transmittance Tn and normal reflectance R0; R0 in 0.01..0.99 means coated.
Polarised<Optics> glass_direct(Real Tn, Real R0, Real theta) noexcept;
Diffuse glass_diffuse(Real Tn, Real R0) noexcept;

}  // namespace quorvel::glazing
