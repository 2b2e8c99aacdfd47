#include "reading/wall/question.h"

#include <algorithm>

#include "reading/variants.h"
#include "reading/wall/layers.h"

namespace quorvel::wall {
namespace {

using host::InputTable;

constexpr std::string_view heat_flows[] = {"up", "horizontal", "down"};
constexpr std::string_view exposures[] = {"sheltered", "normal", "severe"};
constexpr host::Range surface_resistance{0.01, 1, "m²K/W"};

// Of which a variant's own takes the place of the others.
const host::Alternatives alternatives = {{"vapour_resistivity", "mu", "s_d", "vapour_resistance"},
                                         {"resistance", "emissivities", "ventilated"},
                                         {"inside_humidity", "humidity_class"},
                                         {"weather", "file", "outside_temperature"},
                                         {"weather", "station", "outside_humidity"},
                                         {"material", "conductivity"},
                                         {"material", "density"},
                                         {"material", "specific_heat"}};

std::optional<double> surface(const InputTable& table, std::string_view key) {
    if (!table.has(key)) return std::nullopt;
    return table.number(key, surface_resistance);
}

Element read_element(const InputTable& wall, ReadLayers layers) {
    Element element;
    if (wall.has("heat_flow"))
        element.heat_flow = static_cast<HeatFlow>(wall.choice("heat_flow", heat_flows, 0));
    if (wall.has("exposure")) element.exposure = wall.choice("exposure", exposures, 1);
    element.inside_resistance = surface(wall, "inside_resistance");
    element.outside_resistance = surface(wall, "outside_resistance");
    element.in_ventilated_gap = layers.beyond.has_value();
    element.layers = std::move(layers.layers);
    return element;
}

SurfaceDemand read_demand(const InputTable& root) {
    SurfaceDemand demand;
    if (!root.has("mould")) return demand;
    const InputTable mould = root.table("mould");
    mould.expect({}, {"inside_resistance", "surface_humidity"});
    demand.inside_resistance =
        mould.number("inside_resistance", surface_resistance, demand.inside_resistance);
    demand.humidity = mould.number("surface_humidity", {50, 100, "%"}, demand.humidity);
    return demand;
}

bool goes_through(const Section& section, std::string_view part) {
    return std::ranges::any_of(section.slabs,
                               [&](const Slab& slab) { return slab.part->name == part; });
}

// The largest section, or the largest through the part that is named.
std::size_t chosen_section(const InputTable& wall, const Element& element) {
    const auto all = sections(element);
    if (all.empty())
        throw wall.error("", "the parts of the layers cross in more than " +
                                 std::to_string(most_sections) +
                                 " ways; set in_line where they do not cross");
    if (!wall.has("section")) return 0;
    const std::string part = wall.text("section", 60);
    const auto found =
        std::ranges::find_if(all, [&](const Section& s) { return goes_through(s, part); });
    if (found == all.end()) throw wall.error("section", "no layer has a part \"" + part + '"');
    return static_cast<std::size_t>(found - all.begin());
}

ReadQuestion read_question(const InputTable& root, const Request& request,
                           const host::Library& materials) {
    root.expect({"wall", "layer", "climate"}, {"mould", "variant"});
    const InputTable wall = root.table("wall");
    wall.expect({"name"},
                {"heat_flow", "exposure", "inside_resistance", "outside_resistance", "section"});
    ReadQuestion read{};
    read.name = wall.text("name");
    ReadLayers layers = read_layers(root, materials);
    read.left_out = layers.beyond.value_or(0);
    read.question.element = read_element(wall, std::move(layers));
    read.question.demand = read_demand(root);
    read.question.section = chosen_section(wall, read.question.element);
    read.climate = read_climate(root.table("climate"), request.weather);
    read.question.climates = read.climate.climates;
    return read;
}

}  // namespace

std::vector<ReadQuestion> read_questions(const Request& request) {
    const host::Library materials(request.libraries);
    std::vector<ReadQuestion> questions;
    for (const host::Variant& variant : host::read_variants(request.input, alternatives)) {
        questions.push_back(read_question(variant.input->root(), request, materials));
        questions.back().variant = variant.name;
    }
    return questions;
}

}  // namespace quorvel::wall
