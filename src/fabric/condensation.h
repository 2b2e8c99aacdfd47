// Steady check of a construction for interstitial condensation.
#pragma once

#include <array>

#include "fabric/u_value.h"

namespace quorvel::fabric {

// Vapour resistance of a layer, N s/kg. A layer of given thermal resistance has 5 GN s/kg for each
// metre of its negative thickness, whatever its resistivity; one without thickness is a membrane,
// whose vapour resistance, GN s/kg, stands in place of the resistivity.
constexpr Real vapour_resistance(const Layer& layer) noexcept {
    if (layer.thickness < 0.0f) return -5e9f * layer.thickness;
    if (layer.thickness == 0.0f) return 1e9f * layer.vapour_resistivity;
    return 1e9f * layer.vapour_resistivity * layer.thickness;
}

template <class LayerAt>
Real total_vapour_resistance(const Layers<LayerAt>& layers) noexcept {
    Real total = 0.0f;
    for (int i = 0; i < layers.size(); ++i) total += vapour_resistance(layers[i]);
    return total;
}

// What a construction borders on at one side.
struct Environment {
    Real surface_resistance;  // m²K/W
    Real temperature;         // °C
    Real relative_humidity;   // %
};

using InterfaceValues = std::array<Real, most_layers + 1>;

// Values at the interfaces, from the inside surface to the outside one.
struct CondensationProfile {
    InterfaceValues temperature;          // °C
    InterfaceValues vapour_pressure;      // Pa
    InterfaceValues saturation_pressure;  // Pa
};

// The layers as steady flows of heat and vapour meet them.
struct LayerResistances {
    int size;
    PerLayer<Real> thermal;  // m²K/W
    PerLayer<Real> vapour;   // N s/kg
};

// U is the steady transmittance, W/m²K. Only the interfaces of the layers are filled in.
CondensationProfile condensation_profile(const LayerResistances& layers, Real U,
                                         const Environment& inside,
                                         const Environment& outside) noexcept;

template <class LayerAt>
CondensationProfile condensation_profile(const Layers<LayerAt>& layers, const Environment& inside,
                                         const Environment& outside) noexcept {
    LayerResistances resistances;
    resistances.size = layers.size();
    for (int i = 0; i < layers.size(); ++i) {
        resistances.thermal[i] = thermal_resistance(layers[i]);
        resistances.vapour[i] = vapour_resistance(layers[i]);
    }
    const Real U = u_value(layers, inside.surface_resistance, outside.surface_resistance);
    return condensation_profile(resistances, U, inside, outside);
}

}  // namespace quorvel::fabric
