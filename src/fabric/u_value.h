// Steady thermal transmittance (U-value) of layered constructions, W/m²K.
#pragma once

#include "fabric/layers.h"
#include "fabric/surfaces.h"

namespace quorvel::fabric {

// Of layers between two surface resistances, m²K/W.
template <class LayerAt>
Real u_value(const Layers<LayerAt>& layers, Real R1, Real R2) noexcept {
    Real resistance = R1 + R2;
    for (int i = 0; i < layers.size(); ++i) resistance += thermal_resistance(layers[i]);
    return 1.0f / resistance;
}

// A U-value that holds for a vertical wall in normal exposure, at another tilt, rad, and exposure.
// One that is not above zero comes back as it is.
template <class R>
R u_value_at_tilt_and_exposure(R U, R tilt, IntegerOf<R> exposure) noexcept {
    constexpr Real vertical = 1.5708f;
    constexpr Integer normal = 2;
    constexpr Real outside = outside_surface_resistance(vertical, normal);
    constexpr Real inside = inside_surface_resistance(vertical);
    return either(
        U > 0.0f,
        [&] {
            const R body = 1.0f / U - outside - inside;
            return 1.0f / (body + outside_surface_resistance(tilt, exposure) +
                           inside_surface_resistance(tilt));
        },
        [&] { return U; });
}

}  // namespace quorvel::fabric
