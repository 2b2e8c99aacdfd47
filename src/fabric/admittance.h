// Response of a construction to a sinusoidal temperature swing, by transmission matrices.
#pragma once

#include "fabric/transmission_matrix.h"
#include "fabric/u_value.h"

namespace quorvel::fabric {

// Matrix of layers between their surface resistances, m²K/W, the first layer at the room, under
// `harmonic` cycles in 24 hours.
//
// It is formed in stages over all layers: the chain of divisions, root, exponentials and divisions
// of one layer is too long for a processor to take up the next layer meanwhile.
template <class LayerAt>
TransmissionMatrix construction_matrix(const Layers<LayerAt>& layers, Real Rsi, Real Rso,
                                       Integer harmonic) noexcept {
    const int n = layers.size();
    const Real cycles = static_cast<Real>(harmonic);
    Real R[most_layers], x[most_layers], growth[most_layers], decay[most_layers];
    math::SinCos angle[most_layers];
    TransmissionMatrix of_layer[most_layers];
    for (int i = 0; i < n; ++i) {
        R[i] = thermal_resistance(layers[i]);
        x[i] = relative_thickness(layers[i], cycles);
    }
    for (int i = 0; i < n; ++i) angle[i] = math::sincos(x[i]);
    for (int i = 0; i < n; ++i) {
        growth[i] = math::exp(x[i]);
        decay[i] = math::exp(-x[i]);
    }
    for (int i = 0; i < n; ++i)
        of_layer[i] = layer_matrix(R[i], x[i], {growth[i], decay[i], angle[i]});

    TransmissionMatrix matrix = resistance_matrix(Rsi);
    for (int i = 0; i < n; ++i) {
        if (stores_heat(layers[i], x[i]))
            matrix = matrix * of_layer[i];
        else if (layers[i].thickness != 0.0f)
            matrix = with_resistance(matrix, R[i]);
    }
    return with_resistance(matrix, Rso);
}

// Kind of construction with the same swing on both sides; any other separates two environments.
inline constexpr Integer partition = 2;

// Coefficients in W/m²K, time shifts in h.
struct CyclicResponse {
    Real admittance, admittance_lead;
    Real decrement_factor, decrement_lag;
    Real surface_factor, surface_lag;
    Real U;
};

// The response behind a matrix that runs from the room's air to the far air. Rsi is the resistance
// of the room-side surface, m²K/W, U the steady transmittance.
CyclicResponse response_of(const TransmissionMatrix& matrix, Real Rsi, Real U, Integer harmonic,
                           Integer kind) noexcept;

template <class LayerAt>
CyclicResponse cyclic_response(const Layers<LayerAt>& layers, Real Rsi, Real Rso, Integer harmonic,
                               Integer kind) noexcept {
    return response_of(construction_matrix(layers, Rsi, Rso, harmonic), Rsi,
                       u_value(layers, Rsi, Rso), harmonic, kind);
}

}  // namespace quorvel::fabric
