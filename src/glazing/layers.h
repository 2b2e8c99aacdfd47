// Layers in front of and between panes, combined into one.
#pragma once

#include "glazing/pane.h"
#include "glazing/profile_bands.h"

namespace quorvel::glazing {

// Stack of n layers: radiation meets layer n first, and what a layer reflects is seen through the
// layers above it twice, without further inter-reflection. At least 0.01 is taken as absorbed,
// at the cost of the reflectance. No layers at all transmit everything.
Optics<Real> stacked_layers(Integer n, const Real* transmittance, const Real* reflectance) noexcept;

inline constexpr Integer most_traced_layers = 11;

// Stack of n layers, at most most_traced_layers, with their inter-reflections: the flux is followed
// through nine passes, and what is still on its way then is lost. Radiation meets layer n first;
// both sides of a layer are alike. No layers at all transmit everything.
Optics<Real> traced_layers(Integer n, const Real* transmittance, const Real* absorptance,
                           const Real* reflectance) noexcept;

// Roller blind, the same at every angle.
template <class R>
constexpr Optics<R> roller_blind(R transmittance, R reflectance) noexcept {
    return {transmittance, 1.0f - transmittance - reflectance, reflectance};
}

// The same in diffuse radiation. The weights of the bands leave their rounding in the result.
template <class R>
constexpr Optics<R> diffuse_roller_blind(R transmittance, R reflectance) noexcept {
    const R T = transmittance * profile_weight_sum;
    return reflecting_the_rest(T, (1.0f - transmittance - reflectance) * profile_weight_sum);
}

}  // namespace quorvel::glazing
