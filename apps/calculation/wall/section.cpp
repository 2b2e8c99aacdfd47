#include "calculation/wall/section.h"

#include <algorithm>
#include <numbers>
#include <numeric>

#include "quorvel/fabric.h"

namespace quorvel::wall {
namespace {

constexpr int outside_surface = 1, inside_surface = 2;

double tilt(HeatFlow flow) {
    return flow == HeatFlow::up           ? 0
           : flow == HeatFlow::horizontal ? std::numbers::pi / 2
                                          : std::numbers::pi;
}

Slab slab(const Layer& layer, const Part& part, double tilt) {
    if (const auto* solid = std::get_if<Solid>(&part.make))
        return {&part, layer.thickness, layer.thickness / solid->conductivity,
                layer.thickness * solid->vapour_resistivity};
    if (const auto* membrane = std::get_if<Membrane>(&part.make))
        return {&part, 0, 0, membrane->vapour_resistance};
    const auto& [resistance, emissivities] = std::get<Gap>(part.make);
    return {&part, layer.thickness,
            resistance ? *resistance
                       : lib::air_cavity_resistance(tilt, layer.thickness, emissivities[0],
                                                    emissivities[1]),
            layer.thickness * resistivity_of_air};
}

// Which part of each layer a section goes through.
using Choice = std::vector<std::size_t>;

std::vector<Choice> choices(const std::vector<Layer>& layers) {
    std::vector<Choice> result{{}};
    std::optional<std::size_t> inhomogeneous;  // the last one so far
    for (std::size_t i = 0; i < layers.size(); ++i) {
        std::vector<Choice> longer;
        for (const Choice& choice : result) {
            const bool follows = layers[i].in_line && inhomogeneous;
            for (std::size_t part = 0; part < layers[i].parts.size(); ++part) {
                if (follows && part != choice[*inhomogeneous]) continue;
                longer.push_back(choice);
                longer.back().push_back(part);
            }
        }
        result = std::move(longer);
        if (!layers[i].homogeneous()) inhomogeneous = i;
        if (result.size() > most_sections) return {};
    }
    return result;
}

double fraction(const std::vector<Layer>& layers, const Choice& choice) {
    double fraction = 1;
    for (std::size_t i = 0; i < layers.size(); ++i)
        if (!layers[i].in_line) fraction *= layers[i].parts[choice[i]].fraction;
    return fraction;
}

double sum(const Section& section, double Slab::*quantity) {
    return std::accumulate(section.slabs.begin(), section.slabs.end(), 0.0,
                           [&](double sum, const Slab& slab) { return sum + slab.*quantity; });
}

}  // namespace

Surfaces surface_resistances(const Element& element) {
    const auto of = [&](const std::optional<double>& given, int surface) {
        return given ? *given
                     : lib::surface_resistance(surface, tilt(element.heat_flow), element.exposure);
    };
    return {of(element.inside_resistance, inside_surface),
            of(element.outside_resistance,
               element.in_ventilated_gap ? inside_surface : outside_surface)};
}

std::vector<Section> sections(const Element& element) {
    std::vector<Section> result;
    for (const Choice& choice : choices(element.layers)) {
        Section section{fraction(element.layers, choice), {}};
        for (std::size_t i = 0; i < choice.size(); ++i)
            section.slabs.push_back(slab(element.layers[i], element.layers[i].parts[choice[i]],
                                         tilt(element.heat_flow)));
        result.push_back(std::move(section));
    }
    std::ranges::stable_sort(result, std::greater(), &Section::fraction);
    return result;
}

double resistance(const Section& section) { return sum(section, &Slab::resistance); }

double vapour_resistance(const Section& section) { return sum(section, &Slab::vapour_resistance); }

}  // namespace quorvel::wall
