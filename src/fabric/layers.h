// The plane layers of a construction.
#pragma once

#include <algorithm>
#include <array>

#include "base/contract.h"

namespace quorvel::fabric {

inline constexpr Integer most_layers = 20;

template <class Value>
using PerLayer = std::array<Value, most_layers>;

// One layer. The sign of its thickness says what it is: positive, a body; negative, a layer of
// given thermal resistance (an air gap, say), which takes the conductivity's place; zero, no layer.
// What a calculation does not ask for may be left at zero.
struct Layer {
    Real thickness;           // m
    Real conductivity;        // W/mK, or the given resistance, m²K/W
    Real heat_capacity;       // density times specific heat, J/m³K
    Real vapour_resistivity;  // GN s/(kg m)
};

// Thermal resistance of a layer, m²K/W.
constexpr Real thermal_resistance(const Layer& layer) noexcept {
    if (layer.thickness < 0.0f) return layer.conductivity;
    if (layer.thickness == 0.0f) return 0.0f;
    return layer.thickness / layer.conductivity;
}

// Layers in order from the inside, whatever they are stored in: layer_at(i) gives the i-th by
// value, counted from 0. Fewer than one are none; callers turn away more than most_layers.
template <class LayerAt>
class Layers {
  public:
    constexpr Layers(Integer count, LayerAt layer_at) noexcept
        : size_(std::clamp(count, Integer{0}, most_layers)), layer_at_(layer_at) {}

    constexpr int size() const noexcept { return size_; }
    constexpr Layer operator[](int i) const noexcept { return layer_at_(i); }

  private:
    int size_;
    LayerAt layer_at_;
};

}  // namespace quorvel::fabric
