#include "calculation/wall/periodic.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "calculation/wall/transmittance.h"
#include "quorvel/fabric.h"

namespace quorvel::wall {
namespace {

constexpr int daily = 1, between_two_environments = 1, partition = 2;
constexpr double angular_frequency = 2 * std::numbers::pi / 86400;  // 1/s

// As the library takes them: a layer that stores no heat by a negative thickness and its
// resistance.
struct Layers {
    std::vector<double> thickness, conductivity, density, specific_heat;

    void add(double thickness, double conductivity, double density, double specific_heat) {
        this->thickness.push_back(thickness);
        this->conductivity.push_back(conductivity);
        this->density.push_back(density);
        this->specific_heat.push_back(specific_heat);
    }
    void turn_round() {
        for (auto* quantity : {&thickness, &conductivity, &density, &specific_heat})
            std::ranges::reverse(*quantity);
    }
    lib::CyclicResponse response(double near, double far, int kind) const {
        return lib::cyclic_response(thickness, conductivity, density, specific_heat, near, far,
                                    daily, kind);
    }
};

double capacity(const Layer& layer) {  // J/m³K
    double sum = 0;
    for (const Part& part : layer.parts)
        if (const auto* solid = std::get_if<Solid>(&part.make))
            sum += part.fraction * solid->density * solid->specific_heat;
    return sum;
}

Layers as_lists(const Element& element, const std::vector<Section>& sections) {
    Layers layers;
    const auto resistances = layer_resistances(element, sections);
    for (std::size_t i = 0; i < resistances.size(); ++i) {
        const Layer& layer = element.layers[i];
        const double stored = capacity(layer);
        if (layer.thickness == 0) continue;
        if (stored > 0)
            layers.add(layer.thickness, layer.thickness / resistances[i], stored, 1);
        else
            layers.add(-layer.thickness, resistances[i], 0, 0);
    }
    return layers;
}

// Rounding can put a shift of 0 at the other end of the day.
double hours(double shift) { return shift > 23.95 ? 0.0 : shift; }

}  // namespace

Periodic periodic(const Element& element, const std::vector<Section>& sections,
                  const Surfaces& surfaces) {
    Layers layers = as_lists(element, sections);
    const auto inside =
        layers.response(surfaces.inside, surfaces.outside, between_two_environments);
    const auto inside_swing = layers.response(surfaces.inside, surfaces.outside, partition);
    layers.turn_round();
    const auto outside =
        layers.response(surfaces.outside, surfaces.inside, between_two_environments);
    const auto outside_swing = layers.response(surfaces.outside, surfaces.inside, partition);
    if (!std::isfinite(inside.decrement_factor) || !std::isfinite(outside.decrement_factor))
        return {};
    return {.admittance = inside.admittance,
            .admittance_lead = hours(inside.admittance_lead),
            .outside_admittance = outside.admittance,
            .outside_admittance_lead = hours(outside.admittance_lead),
            .transmittance = inside.decrement_factor * inside.u_value,
            .decrement_factor = inside.decrement_factor,
            .decrement_lag = hours(inside.decrement_lag),
            .surface_factor = inside.surface_factor,
            .surface_lag = hours(inside.surface_factor_lag),
            .inside_capacity = inside_swing.admittance / angular_frequency,
            .outside_capacity = outside_swing.admittance / angular_frequency};
}

}  // namespace quorvel::wall
