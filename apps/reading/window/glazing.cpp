#include "reading/window/glazing.h"

#include <cmath>

#include "calculation/angle.h"

namespace quorvel::window {
namespace {

using host::InputItem;
using host::InputTable;
using host::Library;

constexpr double usual_thickness = 4, usual_gap = 12, usual_blind_gap = 50;  // mm
constexpr const char* usual_gas = "air";
constexpr double usual_blind_emissivity = 0.9;

constexpr std::string_view blinds[] = {"slatted", "roller"};
constexpr std::string_view places[] = {"inside", "outside", "between"};
constexpr std::string_view faces[] = {"outside", "inside"};

// What is left for the reflectance, without the last places of binary fractions.
double rest_of(double transmittance) { return std::round(1000 * (1 - transmittance)) / 1000; }

// A pane as it is made, before anyone turns it.
struct Glass {
    double thickness, transmittance;
    double reflectance, coated_reflectance;  // 0: plain glass, as its transmittance tells
    double emissivity;                       // of the coated face
    bool has_emissivity;
};

// An uncoated pane cannot transmit more than its two surfaces let through (0.918); below 0.05 the
// thickness can no longer be told from the transmittance in single precision.
Glass read_glass(const InputTable& table) {
    Glass glass{};
    glass.thickness = table.number("thickness", {1, 50, "mm"}, usual_thickness);
    glass.transmittance = table.number("transmittance", {0.05, 0.91, "at normal incidence"});
    const host::Range reflectance{0.01, rest_of(glass.transmittance), "beside this transmittance"};
    glass.reflectance = table.number("reflectance", reflectance, 0);
    glass.coated_reflectance = table.number("coated_reflectance", reflectance, glass.reflectance);
    glass.emissivity = table.number("emissivity", {0.01, 0.95, ""}, plain_emissivity);
    glass.has_emissivity = table.has("emissivity");
    return glass;
}

Pane as_pane(const Glass& glass, const std::string& name, bool coated_inside) {
    Pane pane{name,
              glass.thickness,
              glass.transmittance,
              {glass.reflectance, glass.reflectance},
              {plain_emissivity, plain_emissivity}};
    pane.reflectance[coated_inside] = glass.coated_reflectance;
    pane.emissivity[coated_inside] = glass.emissivity;
    return pane;
}

Glass read_entry(const InputTable& entry) {
    entry.expect({"transmittance"},
                 {"thickness", "reflectance", "coated_reflectance", "emissivity", "source"});
    return read_glass(entry);
}

// A coated pane says which of its faces has the coating where that matters.
bool coated_inside(const InputTable& table, const Glass& glass) {
    if (table.has("coating")) return table.choice("coating", faces, 0) == 1;
    if (glass.has_emissivity || glass.coated_reflectance != glass.reflectance)
        throw table.error(
            "", "missing coating; allowed outside, inside: the face of the pane that has it");
    return false;
}

Pane read_pane(const InputTable& table, const Library& library) {
    if (table.has("glass")) {
        table.expect({"glass"}, {"coating"});
        const Glass glass = read_entry(library.named(table, "glass", "glass"));
        return as_pane(glass, table.text("glass", 60), coated_inside(table, glass));
    }
    table.expect({"transmittance"},
                 {"reflectance", "coated_reflectance", "emissivity", "thickness", "coating"});
    const Glass glass = read_glass(table);
    return as_pane(glass, "", coated_inside(table, glass));
}

Pane read_pane(const InputTable& place, const InputItem& item, const Library& library) {
    if (const auto* table = std::get_if<InputTable>(&item)) return read_pane(*table, library);
    const auto& name = std::get<std::string>(item);
    const Glass glass = read_entry(library.named(place, "panes", "glass", name));
    if (glass.has_emissivity)
        throw place.error("panes",
                          "\"" + name + "\" has a coating; write { glass = \"" + name +
                              "\", coating = \"outside\" } or \"inside\", the face that has it");
    return as_pane(glass, name, false);
}

std::vector<std::string> gases(const InputTable& table, std::size_t count) {
    if (!table.has("gas")) return std::vector<std::string>(count, usual_gas);
    if (!table.is_list("gas")) return std::vector<std::string>(count, table.text("gas"));
    return table.texts("gas", count);
}

// Of a window's table or of a unit's in the tables of things by name.
Unit read_unit(const InputTable& table, const Library& library) {
    Unit unit;
    for (const InputItem& item : table.items("panes", 1, most_panes))
        unit.panes.push_back(read_pane(table, item, library));
    const std::size_t cavities = unit.panes.size() - 1;
    const std::vector<double> widths = table.has("gap")
                                           ? table.numbers("gap", cavities, {3, 500, "mm"})
                                           : std::vector<double>(cavities, usual_gap);
    const auto names = gases(table, cavities);
    for (std::size_t k = 0; k < cavities; ++k)
        unit.cavities.push_back({read_gas(library, table, "gas", names[k]), widths[k]});
    return unit;
}

void note_what_is_assumed(const InputTable& window, const Unit& unit,
                          std::vector<std::string>& notes) {
    const std::string name = window.text("name");
    if (unit.panes.size() > 1 && !window.has("gap"))
        notes.push_back(name + ": no gap between the panes is given; taken as " +
                        std::to_string(int(usual_gap)) + " mm of " +
                        (window.has("gas") ? "its gas" : usual_gas));
    for (const Pane& pane : unit.panes)
        if (pane.is_plain() && pane.reflectance[0] > 0 && pane.name.empty()) {
            notes.push_back(name +
                            ": the emissivity of a coated pane is not given; taken as that of "
                            "plain glass, 0.84");
            break;
        }
}

ShadingCoefficients read_shading(const InputTable& table) {
    table.expect({"short_wave", "long_wave", "panes"});
    return {table.number("short_wave", {0.05, 1, "of clear single glass"}),
            table.number("long_wave", {0, 1, "of clear single glass"}),
            table.integer("panes", 1, static_cast<int>(most_panes))};
}

Slats read_slats(const InputTable& table) {
    table.expect({"kind", "side", "spacing", "width", "angle", "absorptance"},
                 {"emissivity", "gap", "sealed", "lowered_above", "cavity"});
    const auto absorptance = table.numbers("absorptance", 2, {0, 1, "of the slats"});
    return {table.number("spacing", {5, 500, "mm"}), table.number("width", {5, 500, "mm"}),
            table.number("angle", {-90, 90, "degrees off the normal"}), absorptance[0],
            absorptance[1]};
}

Fabric read_fabric(const InputTable& table) {
    table.expect({"kind", "side", "transmittance", "reflectance"},
                 {"openness", "emissivity", "gap", "sealed", "lowered_above", "cavity"});
    const double transmittance = table.number("transmittance", {0, 1, "of the fabric"});
    return {transmittance,
            table.number("reflectance", {0, rest_of(transmittance), "beside this transmittance"}),
            table.number("openness", {0, transmittance, "of the fabric, part of its transmittance"},
                         0)};
}

// Slats need room to turn, a fabric a place.
void place_between(const InputTable& table, const Glazing& glazing, Blind& blind) {
    const auto& cavities = std::get<Unit>(glazing).cavities;
    if (cavities.empty()) throw table.error("side", "between needs two panes or more");
    if (table.has("gap")) throw table.error("gap", "is that of a blind inside or outside");
    if (table.has("cavity"))
        blind.cavity = static_cast<std::size_t>(
                           table.integer("cavity", 1, static_cast<int>(cavities.size()))) -
                       1;
    const auto* slats = std::get_if<Slats>(&blind.make);
    const double width = cavities[blind.cavity].width;
    if (slats && slats->width * std::cos(host::radians(slats->angle)) > width)
        throw table.error("width", "the slats are wider than the gap between the panes");
}

}  // namespace

Gas read_gas(const Library& library, const InputTable& place, std::string_view key,
             const std::string& name) {
    const InputTable entry = library.named(place, key, "gas", name);
    Gas gas{};
    gas.name = name;
    if (!entry.has("mixture")) {
        entry.expect({"conductivity", "density", "viscosity", "specific_heat"}, {"source"});
        const auto read = [&](std::string_view quantity, const host::Range& range) {
            const auto values = entry.numbers(quantity, 4, range);
            return std::array<double, 4>{values[0], values[1], values[2], values[3]};
        };
        gas.conductivity = read("conductivity", {0.001, 1, "W/mK"});
        gas.density = read("density", {0.01, 100, "kg/m³"});
        gas.viscosity = read("viscosity", {1e-6, 1e-3, "kg/ms"});
        gas.specific_heat = entry.number("specific_heat", {50, 20000, "J/kgK"});
        return gas;
    }
    entry.expect({"mixture"}, {"source"});
    const InputTable mixture = entry.table("mixture");
    for (const std::string& part : mixture.keys()) {
        const double share = mixture.number(part, {0, 1, "of the volume"});
        const InputTable of_part = library.named(entry, "mixture", "gas", part);
        if (of_part.has("mixture"))
            throw entry.error("mixture", "\"" + part + "\" is itself a mixture");
        const Gas one = read_gas(library, entry, "mixture", part);
        for (std::size_t i = 0; i < 4; ++i) {
            gas.conductivity[i] += share * one.conductivity[i];
            gas.density[i] += share * one.density[i];
            gas.viscosity[i] += share * one.viscosity[i];
        }
        gas.specific_heat += share * one.specific_heat;
    }
    if (!(gas.conductivity[0] > 0)) throw entry.error("mixture", "has nothing in it");
    return gas;
}

Glazing read_glazing(const InputTable& window, const Library& library,
                     std::vector<std::string>& notes) {
    const int given = window.has("panes") + window.has("unit") + window.has("shading");
    if (given > 1) throw window.error("", "needs one of unit, panes and shading, and not more");
    const bool has_cavity = window.has("gas") || window.has("gap");
    if (has_cavity && !window.has("panes")) throw window.error("", "gas and gap go with panes");
    if (window.has("panes")) {
        const Unit unit = read_unit(window, library);
        note_what_is_assumed(window, unit, notes);
        return unit;
    }
    if (window.has("shading")) return read_shading(window.table("shading"));
    if (!window.has("unit")) return {};
    const InputTable entry = library.named(window, "unit", "unit");
    entry.expect({"panes"}, {"gas", "gap", "source"});
    Unit unit = read_unit(entry, library);
    unit.name = window.text("unit", 60);
    return unit;
}

Blind read_blind(const InputTable& table, const Glazing& glazing, const Library& library) {
    if (!table.has("kind") || !table.has("side"))
        throw table.error("", "needs kind (slatted, roller) and side (inside, outside, between)");
    Blind blind{};
    if (table.choice("kind", blinds, 0) == 0)
        blind.make = read_slats(table);
    else
        blind.make = read_fabric(table);
    constexpr BlindPlace place[] = {BlindPlace::inside, BlindPlace::outside, BlindPlace::between};
    blind.place = place[table.choice("side", places, 0)];
    blind.emissivity = table.number("emissivity", {0.05, 0.95, ""}, usual_blind_emissivity);
    blind.gap = {read_gas(library, table, "gap", usual_gas),
                 table.number("gap", {5, 500, "mm"}, usual_blind_gap)};
    blind.sealed = table.flag("sealed", false);
    blind.lowered_above = table.number("lowered_above", {0, 1500, "W/m² on the glass"}, 0);
    if (blind.place == BlindPlace::between)
        place_between(table, glazing, blind);
    else if (table.has("cavity"))
        throw table.error("cavity", "is that of a blind between panes");
    return blind;
}

}  // namespace quorvel::window
