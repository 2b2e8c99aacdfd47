#include "wall/job.h"

#include <string_view>

#include "calculation/calendar.h"
#include "reading/input.h"

namespace quorvel::wall {
namespace {

using host::InputTable;
using host::Range;

constexpr std::string_view heat_flows[] = {"up", "horizontal", "down"};
constexpr std::string_view exposures[] = {"sheltered", "normal", "severe"};
constexpr std::string_view drawings[] = {"plain",  "masonry", "concrete", "insulation",
                                         "timber", "plaster", "bitumen"};

constexpr Range surface_resistance{0.01, 1, "m²K/W"};
constexpr Range vapour_resistance{0.01, 1e6, "GN s/kg"};
constexpr Range temperature{-50, 60, "°C"};
constexpr Range humidity{0, 100, "%"};
constexpr double insulates = 0.07;  // W/mK: below, a layer is drawn as insulation unless told

Solid read_solid(const InputTable& table) {
    table.expect(
        {"name", "thickness", "conductivity", "density", "specific_heat", "vapour_resistivity"},
        {"drawing"});
    Solid solid{};
    solid.thickness = table.number("thickness", {0.1, 1000, "mm"}) / 1000;
    solid.conductivity = table.number("conductivity", {0.005, 500, "W/mK"});
    solid.density = table.number("density", {0.5, 12000, "kg/m³"});
    solid.specific_heat = table.number("specific_heat", {100, 5000, "J/kgK"});
    solid.vapour_resistivity = table.number("vapour_resistivity", {1, 1e6, "GN s/(kg m)"});
    if (table.has("drawing"))
        solid.drawing = static_cast<Drawing>(table.choice("drawing", drawings, 0));
    else
        solid.drawing = solid.conductivity < insulates ? Drawing::insulation : Drawing::plain;
    return solid;
}

Gap read_gap(const InputTable& table) {
    table.expect({"name", "thickness"}, {"resistance", "emissivities"});
    if (table.has("resistance") && table.has("emissivities"))
        throw table.error("", "an air gap needs either resistance or emissivities, and not both");
    Gap gap{};
    gap.thickness = table.number("thickness", {1, 500, "mm"}) / 1000;
    if (table.has("resistance")) {
        gap.resistance = table.number("resistance", {0.01, 10, "m²K/W"});
    } else {
        const auto faces = table.numbers("emissivities", 2, {0.01, 1, "of the faces"});
        gap.emissivities = {faces[0], faces[1]};
    }
    return gap;
}

Membrane read_membrane(const InputTable& table) {
    table.expect({"name", "vapour_resistance"});
    return {table.number("vapour_resistance", vapour_resistance)};
}

// The keys tell what a layer is.
Layer read_layer(const InputTable& table) {
    const bool gap = table.has("resistance") || table.has("emissivities");
    const bool membrane = table.has("vapour_resistance");
    Layer layer{"", Membrane{}};
    if (gap)
        layer.make = read_gap(table);
    else if (membrane)
        layer.make = read_membrane(table);
    else
        layer.make = read_solid(table);
    layer.name = table.text("name");
    return layer;
}

// Every quantity is a number or a list of twelve; one list is enough to make it twelve cases.
std::vector<Climate> read_climates(const InputTable& table) {
    table.expect(
        {"inside_temperature", "inside_humidity", "outside_temperature", "outside_humidity"});
    bool monthly = false;
    for (const char* key :
         {"inside_temperature", "inside_humidity", "outside_temperature", "outside_humidity"})
        monthly = monthly || table.is_list(key);
    const std::size_t cases = monthly ? host::month_names.size() : 1;

    const auto inside_t = table.numbers("inside_temperature", cases, temperature);
    const auto inside_rh = table.numbers("inside_humidity", cases, humidity);
    const auto outside_t = table.numbers("outside_temperature", cases, temperature);
    const auto outside_rh = table.numbers("outside_humidity", cases, humidity);
    std::vector<Climate> climates;
    for (std::size_t i = 0; i < cases; ++i)
        climates.push_back({monthly ? std::string(host::month_names[i]) : "",
                            {inside_t[i], inside_rh[i]},
                            {outside_t[i], outside_rh[i]}});
    return climates;
}

std::optional<double> surface(const InputTable& table, std::string_view key) {
    if (!table.has(key)) return std::nullopt;
    return table.number(key, surface_resistance);
}

}  // namespace

double Layer::thickness() const {
    if (const auto* solid = std::get_if<Solid>(&make)) return solid->thickness;
    if (const auto* gap = std::get_if<Gap>(&make)) return gap->thickness;
    return 0;
}

Job read_job(const std::string& path) {
    const host::InputFile file(path);
    const InputTable root = file.root();
    root.expect({"wall", "layer", "climate"});
    const InputTable wall = root.table("wall");
    wall.expect({"name"}, {"heat_flow", "exposure", "inside_resistance", "outside_resistance"});
    Job job{};
    job.name = wall.text("name");
    job.heat_flow = HeatFlow::horizontal;
    if (wall.has("heat_flow"))
        job.heat_flow = static_cast<HeatFlow>(wall.choice("heat_flow", heat_flows, 0));
    job.exposure = wall.has("exposure") ? wall.choice("exposure", exposures, 1) : 2;
    job.inside_resistance = surface(wall, "inside_resistance");
    job.outside_resistance = surface(wall, "outside_resistance");
    for (const InputTable& table : root.tables("layer", 1, most_layers))
        job.layers.push_back(read_layer(table));
    job.climates = read_climates(root.table("climate"));
    return job;
}

}  // namespace quorvel::wall
