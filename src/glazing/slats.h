// Blinds and louvres of flat, opaque, diffusely reflecting slats, in the plane across the slats.
#pragma once

#include "glazing/pane.h"

namespace quorvel::glazing {

struct SlatBlind {
    Real spacing, width;    // in the same unit
    Real angle;             // degrees from level, positive with the outer edge lowered
    Real struck, opposite;  // absorptance of the face that the beam strikes first, of the other
    Real open;              // share of the radiation that passes beside the slats; none below 0
};

// For a beam at a profile angle [rad], measured from the normal of the blind, positive from above.
Optics slat_direct(const SlatBlind& blind, Real profile) noexcept;

struct SlatDiffuse {
    Real sky_transmittance, ground_transmittance;
    Real sky_absorptance, ground_absorptance;
};

// For the radiation from above and that from below the horizon, each uniform in the profile angle.
SlatDiffuse slat_diffuse(const SlatBlind& blind) noexcept;

}  // namespace quorvel::glazing
