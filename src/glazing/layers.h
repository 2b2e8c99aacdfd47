// Layers in front of and between panes, combined into one.
#pragma once

#include "glazing/pane.h"

namespace quorvel::glazing {

// Stack of n layers: radiation meets layer n first, and what a layer reflects is seen through the
// layers above it twice, without further inter-reflection. At least 0.01 is taken as absorbed,
// at the cost of the reflectance. No layers at all transmit everything.
Optics stacked_layers(Integer n, const Real* transmittance, const Real* reflectance) noexcept;

// Roller blind, the same at every angle.
constexpr Optics roller_blind(Real transmittance, Real reflectance) noexcept {
    return {transmittance, 1.0f - transmittance - reflectance, reflectance};
}

}  // namespace quorvel::glazing
