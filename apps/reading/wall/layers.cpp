#include "reading/wall/layers.h"

#include <algorithm>
#include <cmath>

#include "reading/wall/material.h"
#include "text/text.h"

namespace quorvel::wall {
namespace {

using host::InputTable;
using host::Library;

constexpr std::size_t most_parts = 4;
constexpr host::Range thickness_of_solid{0.1, 1000, "mm"}, thickness_of_gap{1, 500, "mm"};

double thickness(const InputTable& table, const host::Range& range) {
    return table.number("thickness", range) / 1000;
}

void read_extras(const InputTable& table, Layer& layer) {
    if (table.has("air_voids")) layer.air_voids = table.integer("air_voids", 0, 2);
    if (!table.has("fasteners")) return;
    const InputTable fasteners = table.table("fasteners");
    fasteners.expect({"conductivity", "area", "number"});
    layer.fasteners = {fasteners.number("conductivity", {0.1, 500, "W/mK"}),
                       fasteners.number("area", {0.1, 1000, "mm²"}) / 1e6,
                       fasteners.number("number", {0.1, 100, "per m²"})};
}

Layer read_homogeneous(const InputTable& table, const Library& library) {
    const Properties properties(table, library);
    Layer layer{properties.name(), 0, {}};
    if (properties.membrane() && !properties.gap()) {
        layer.parts = {properties.part(1, 0, {"omit"})};
        return layer;
    }
    layer.thickness = thickness(table, properties.gap() ? thickness_of_gap : thickness_of_solid);
    layer.parts = {properties.part(1, layer.thickness,
                                   {"thickness", "fasteners", "air_voids", "ventilated", "omit"})};
    read_extras(table, layer);
    return layer;
}

Part read_part(const InputTable& table, double thickness, const Library& library) {
    const Properties properties(table, library);
    const double fraction = table.number("fraction", {0.001, 0.999, "of the area"});
    if (properties.membrane() && !properties.gap())
        throw table.error("", "a part of a layer needs a conductivity or a resistance");
    return properties.part(fraction, thickness, {"fraction"});
}

Layer read_inhomogeneous(const InputTable& table, const Library& library) {
    table.expect({"name", "thickness", "parts"}, {"in_line", "fasteners", "air_voids", "omit"});
    Layer layer{table.text("name"), thickness(table, thickness_of_solid), {}};
    double sum = 0;
    for (const InputTable& part : table.tables("parts", 2, most_parts)) {
        layer.parts.push_back(read_part(part, layer.thickness, library));
        sum += layer.parts.back().fraction;
    }
    if (std::fabs(sum - 1) > 1e-6)
        throw table.error("parts", "fractions that make " + host::shortest(sum) + "; allowed 1");
    layer.in_line = table.flag("in_line", false);
    read_extras(table, layer);
    return layer;
}

// It has as many parts of the same fractions as the inhomogeneous layer before it.
void check_line(const InputTable& table, const std::vector<Layer>& before, const Layer& layer) {
    const auto same = [](const Part& one, const Part& other) {
        return std::fabs(one.fraction - other.fraction) < 1e-6;
    };
    const auto found = std::find_if(before.rbegin(), before.rend(),
                                    [](const Layer& l) { return !l.homogeneous(); });
    if (found == before.rend() || !std::ranges::equal(found->parts, layer.parts, same))
        throw table.error(
            "in_line",
            "needs a layer before it with parts of the same fractions in the same order");
}

}  // namespace

ReadLayers read_layers(const InputTable& root, const Library& library) {
    ReadLayers read;
    std::vector<Layer>& layers = read.layers;
    std::optional<std::size_t> inside;
    for (const InputTable& table : root.tables("layer", 1, most_layers)) {
        const bool ventilated = table.flag("ventilated", false);
        if (ventilated && layers.empty())
            throw table.error("ventilated", "the innermost layer cannot be a ventilated gap");
        Layer layer = table.has("parts") ? read_inhomogeneous(table, library)
                                         : read_homogeneous(table, library);
        if (table.flag("omit", false)) continue;
        if (ventilated && !inside) inside = layers.size();
        layers.push_back(std::move(layer));
        if (layers.back().in_line)
            check_line(table, {layers.begin(), layers.end() - 1}, layers.back());
    }
    if (layers.empty()) throw root.error("layer", "all layers are omitted; needed is one");
    if (inside) {
        read.beyond = layers.size() - *inside;
        layers.resize(*inside);
    }
    return read;
}

}  // namespace quorvel::wall
