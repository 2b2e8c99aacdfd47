#include "telling/wall/tables.h"

#include <algorithm>

#include "calculation/calendar.h"
#include "telling/value.h"
#include "text/text.h"

namespace quorvel::wall {
namespace {

using host::as_given;
using host::DataTable;
using host::none;
using host::Quantity;
using host::Value;
using Row = std::vector<Value>;

const Quantity month_column{"month", "month"};
const Quantity interface_column{"interface", "interface"};

Row layer_row(const std::string& number, const std::string& name, double thickness,
              const Part* part, double resistance, double vapour_resistance) {
    const auto* solid = part ? std::get_if<Solid>(&part->make) : nullptr;
    return {number,
            name,
            thickness > 0 ? 1000 * thickness : none,
            solid ? solid->conductivity : none,
            solid ? solid->density : none,
            solid ? solid->specific_heat : none,
            thickness > 0 ? resistance : none,
            vapour_resistance,
            vapour_resistance / resistivity_of_air};
}

// The slab that a part of a layer is in some section.
const Slab& slab_of(const Assessment& assessment, std::size_t layer, const Part& part) {
    return std::ranges::find_if(assessment.sections,
                                [&](const Section& s) { return s.slabs[layer].part == &part; })
        ->slabs[layer];
}

// Interfaces, and other places where water comes or goes.
bool worth_showing(const Place& place, double gain) {
    return !place.within || std::abs(gain) >= least_water;
}

std::vector<Quantity> profile_columns() {
    return {interface_column,
            {"behind", "behind"},
            {"position", "at", "mm", 1},
            {"temperature", "temp.", "°C", 1},
            {"saturation", "p_sat", "Pa", 0},
            {"vapour_pressure", "p", "Pa", 0},
            {"relative_humidity", "RH", "%", 0},
            water_gain};
}

std::vector<Row> profile_rows(const Question& question, const Path& path, const Profile& profile) {
    const auto& layers = question.element.layers;
    const auto behind = [&](const Place& place) -> std::string {
        if (place.within || place.index == layers.size()) return "";
        return place.index == 0 ? "" : layers[place.index - 1].name;
    };
    std::vector<Row> rows;
    for (std::size_t i = 0; i < path.places.size(); ++i) {
        const Place& place = path.places[i];
        if (!worth_showing(place, profile.gain[i])) continue;
        rows.push_back({place_name(place, layers.size()), behind(place), 1000 * place.position,
                        profile.temperature[i], profile.saturation[i], profile.pressure[i],
                        profile.relative_humidity(i), profile.gain[i]});
    }
    return rows;
}

}  // namespace

DataTable layer_table(const Question& question, const Assessment& assessment) {
    DataTable table{.key = "layers",
                    .title = "",
                    .columns = {{"number", ""},
                                {"layer", "layer, from the inside"},
                                layer_thickness,
                                layer_conductivity,
                                {"density", "ρ", "kg/m³", as_given},
                                {"specific_heat", "c", "J/kgK", as_given},
                                resistance_to_heat,
                                resistance_to_vapour,
                                {"s_d", "s_d", "m", 2}},
                    .rows = {}};
    for (std::size_t i = 0; i < question.element.layers.size(); ++i) {
        const Layer& layer = question.element.layers[i];
        const Slab& slab = slab_of(assessment, i, layer.parts.front());
        if (layer.homogeneous()) {
            table.rows.push_back(layer_row(std::to_string(i + 1), layer.name, layer.thickness,
                                           &layer.parts.front(), slab.resistance,
                                           slab.vapour_resistance));
            continue;
        }
        Row whole = layer_row(std::to_string(i + 1), layer.name, layer.thickness, nullptr,
                              assessment.layer_resistances[i], none);
        table.rows.push_back(std::move(whole));
        for (const Part& part : layer.parts) {
            const Slab& of = slab_of(assessment, i, part);
            table.rows.push_back(
                layer_row("", host::shortest(100 * part.fraction) + " % " + part.name,
                          layer.thickness, &part, of.resistance, of.vapour_resistance));
        }
    }
    table.remarks = {
        "Together " + told_with_unit(layer_thickness, 1000 * assessment.thickness) + ", " +
        host::fixed(assessment.mass, 0) + " kg/m², vapour resistance " +
        told_with_unit(resistance_to_vapour, assessment.path.places.back().vapour_resistance)};
    return table;
}

DataTable profile_table(const Question& question, const Assessment& assessment, std::size_t month) {
    const Climate& climate = question.climates[month];
    const bool monthly = question.climates.size() > 1;
    return {.key = "profile",
            .title = (monthly ? month_name(month) + ": " : "") + told(climate),
            .columns = profile_columns(),
            .rows = profile_rows(question, assessment.path, profile_of(assessment, month))};
}

DataTable profiles_table(const Question& question, const Assessment& assessment) {
    DataTable table{.key = "profiles",
                    .title = "Profiles of the months",
                    .columns = profile_columns(),
                    .rows = {},
                    .on_request = true,
                    .main = true};
    table.columns.insert(table.columns.begin(), month_column);
    for (std::size_t m = 0; m < question.climates.size(); ++m) {
        for (Row& row : profile_rows(question, assessment.path, profile_of(assessment, m))) {
            row.insert(row.begin(), question.climates.size() > 1 ? month_name(m) : "");
            table.rows.push_back(std::move(row));
        }
    }
    return table;
}

DataTable month_table(const Question& question, const Assessment& assessment) {
    DataTable table{.key = "months",
                    .title = "The months",
                    .columns = {month_column,
                                {"inside_temperature", "temp.", "°C", 1, "Inside"},
                                {"inside_humidity", "RH", "%", 0, "Inside"},
                                {"outside_temperature", "temp.", "°C", 1, "Outside"},
                                {"outside_humidity", "RH", "%", 0, "Outside"},
                                {"surface_humidity", "RH", "%", 0, "Inside surface"},
                                {"required_f_rsi", "f_Rsi needed", "", 3, "Inside surface"},
                                {"condensed", "condenses", "g/m²", 1, "Water", true},
                                {"evaporated", "dries", "g/m²", 1, "Water", true},
                                {"content", "at the end", "g/m²", 1, "Water", true}},
                    .rows = {},
                    .on_request = true};
    for (std::size_t m = 0; m < question.climates.size(); ++m) {
        const auto& [inside, outside] = question.climates[m];
        const SurfaceOfMonth& surface = assessment.surface.months[m];
        const MonthOfYear& month = assessment.year->of(m);
        table.rows.push_back({month_name(m), inside.temperature, inside.humidity,
                              outside.temperature, outside.humidity, surface.humidity,
                              surface.required, month.condensed, month.evaporated, month.content});
    }
    return table;
}

DataTable water_table(const Question& question, const Assessment& assessment) {
    const Year& year = *assessment.year;
    DataTable table{.key = "water",
                    .title = "Water at the end of the month, by interface",
                    .columns = {month_column},
                    .rows = {},
                    .on_request = true};
    for (const Deposit& deposit : year.deposits) {
        const std::string name = deposit_name(deposit, question.element.layers.size());
        table.columns.push_back({"content_" + name, name, "g/m²", 1, "", true});
    }
    for (std::size_t m = 0; m < year.months.size(); ++m) {
        table.rows.push_back({month_name(year.months[m].month)});
        for (const Deposit& deposit : year.deposits)
            table.rows.back().emplace_back(deposit.content[m]);
    }
    return table;
}

}  // namespace quorvel::wall
