#include "calculation/wall/transmittance.h"

#include <numeric>

namespace quorvel::wall {
namespace {

// Of mechanical fasteners that go right through the insulation, EN ISO 6946.
constexpr double alpha = 0.8;
// W/m²K, of air voids of the levels 0 to 2, EN ISO 6946.
constexpr double of_air_voids[] = {0, 0.01, 0.04};

double upper_limit(const std::vector<Section>& sections, const Surfaces& surfaces) {
    double conductance = 0;
    for (const Section& section : sections)
        conductance +=
            section.fraction / (surfaces.inside + resistance(section) + surfaces.outside);
    return 1 / conductance;
}

}  // namespace

std::vector<double> layer_resistances(const Element& element,
                                      const std::vector<Section>& sections) {
    std::vector<double> result;
    for (std::size_t i = 0; i < element.layers.size(); ++i) {
        double conductance = 0;
        for (const Section& section : sections)
            conductance += section.fraction / section.slabs[i].resistance;
        result.push_back(1 / conductance);  // 0 of a membrane
    }
    return result;
}

Transmittance transmittance(const Element& element, const std::vector<Section>& sections,
                            const Surfaces& surfaces) {
    const std::vector<double> layers = layer_resistances(element, sections);
    Transmittance result{};
    result.upper = upper_limit(sections, surfaces);
    result.lower =
        std::accumulate(layers.begin(), layers.end(), surfaces.inside + surfaces.outside);
    result.resistance = (result.upper + result.lower) / 2;
    result.error = 100 * (result.upper - result.lower) / (2 * result.resistance);
    for (std::size_t i = 0; i < layers.size(); ++i) {
        const Layer& layer = element.layers[i];
        const double share = layers[i] / result.resistance;
        result.air_voids += of_air_voids[layer.air_voids] * share * share;
        if (const auto& f = layer.fasteners)
            result.fasteners +=
                alpha * f->conductivity * f->area * f->number / layer.thickness * share * share;
    }
    result.u_value = 1 / result.resistance + result.air_voids + result.fasteners;
    return result;
}

}  // namespace quorvel::wall
