#include "wall/report.h"

#include "telling/table.h"
#include "telling/text.h"

namespace quorvel::wall {
namespace {

using host::absent;
using host::fixed;
using host::shortest;

constexpr const char* dry = host::nothing;

std::string heading(const Job& job, const Construction& construction) {
    static constexpr const char* flows[] = {"upwards", "horizontally", "downwards"};
    static constexpr const char* exposures[] = {"sheltered", "normal", "severe"};
    const std::string exposure = exposures[job.exposure - 1];
    return job.name + "\nheat flows " + flows[static_cast<int>(job.heat_flow)] +
           (job.outside_resistance ? "" : ", exposure " + exposure) + "; surface resistances " +
           fixed(construction.inside_resistance, 3) + " inside, " +
           fixed(construction.outside_resistance, 3) + " m²K/W outside\n";
}

std::string layer_table(const Job& job, const Construction& construction) {
    host::Table table({{"", ""},
                       {"", "layer, from the inside", true},
                       {"", "mm"},
                       {"", "W/mK"},
                       {"", "kg/m³"},
                       {"", "J/kgK"},
                       {"Resistance to", "heat, m²K/W"},
                       {"Resistance to", "vapour, GN s/kg"}});
    for (std::size_t i = 0; i < job.layers.size(); ++i) {
        const Layer& layer = job.layers[i];
        const auto* solid = std::get_if<Solid>(&layer.make);
        const bool membrane = std::holds_alternative<Membrane>(layer.make);
        table.add({std::to_string(i + 1), layer.name,
                   membrane ? absent : fixed(1000 * layer.thickness(), 1),
                   solid ? shortest(solid->conductivity) : absent,
                   solid ? shortest(solid->density) : absent,
                   solid ? shortest(solid->specific_heat) : absent,
                   membrane ? absent : fixed(construction.resistance[i], 3),
                   fixed(construction.vapour_resistance[i], 2)});
    }
    return table.text() + "  Together " + fixed(1000 * construction.thickness, 1) + " mm, " +
           fixed(construction.mass, 0) + " kg/m², vapour resistance " +
           fixed(construction.total_vapour_resistance, 2) + " GN s/kg\n";
}

std::string properties(const Construction& construction) {
    const CyclicResponse& cyclic = construction.cyclic;
    host::Table table({{"", "", true}, {"", ""}, {"", "", true}});
    table.add({"U-value", fixed(construction.u_value, 3), "W/m²K"});
    table.add({"Admittance", fixed(cyclic.admittance, 2),
               "W/m²K, leads by " + fixed(cyclic.admittance_lead, 1) + " h"});
    table.add({"Decrement factor", fixed(cyclic.decrement_factor, 3),
               "lags by " + fixed(cyclic.decrement_lag, 1) + " h"});
    table.add({"Surface factor", fixed(cyclic.surface_factor, 2),
               "lags by " + fixed(cyclic.surface_lag, 1) + " h"});
    return table.text();
}

std::vector<std::string> wet_places(const Profile& profile) {
    std::vector<std::string> places;
    for (std::size_t i = 0; i < profile.at.size(); ++i)
        if (profile.at[i].condenses) places.push_back(interface_name(i, profile.at.size() - 1));
    return places;
}

std::string told(const std::vector<std::string>& places) {
    const std::vector<std::string_view> names(places.begin(), places.end());
    return host::joined(names);
}

std::string month_table(const Construction& construction) {
    host::Table table({{"", "month", true},
                       {"Inside", "°C"},
                       {"Inside", "%"},
                       {"Outside", "°C"},
                       {"Outside", "%"},
                       {"Condensing", "at", true},
                       {"Condensing", "g/m² a day"}});
    for (const Profile& profile : construction.profiles) {
        const Climate& climate = *profile.climate;
        const auto places = wet_places(profile);
        table.add({climate.name, shortest(climate.inside.temperature),
                   shortest(climate.inside.humidity), shortest(climate.outside.temperature),
                   shortest(climate.outside.humidity), places.empty() ? dry : told(places),
                   profile.condensate() > 0 ? fixed(profile.condensate(), 2) : dry});
    }
    return table.text();
}

std::string profile_table(const Job& job, const Profile& profile) {
    host::Table table({{"", "interface", true},
                       {"", "", true},
                       {"", "°C"},
                       {"Pressure, Pa", "saturation"},
                       {"Pressure, Pa", "vapour"},
                       {"", "%"},
                       {"Condensing", "g/m² a day"}});
    const std::size_t layers = job.layers.size();
    for (std::size_t i = 0; i <= layers; ++i) {
        const Interface& at = profile.at[i];
        const bool surface = i == 0 || i == layers;
        table.add({interface_name(i, layers),
                   surface ? "surface" : "behind " + job.layers[i - 1].name,
                   fixed(at.temperature, 1), fixed(at.saturation, 0), fixed(at.vapour_pressure, 0),
                   fixed(at.relative_humidity(), 0),
                   !at.condenses ? dry
                   : surface     ? "condenses"
                                 : "condenses " + fixed(at.condensate, 2)});
    }
    return table.text();
}

std::string profile_text(const Job& job, const Profile& profile) {
    const Climate& climate = *profile.climate;
    const std::string month = climate.name.empty() ? "" : climate.name + ": ";
    return month + both_climates(climate) + "\n\n" + profile_table(job, profile) + "  " +
           verdict(profile) + '\n';
}

}  // namespace

std::string interface_name(std::size_t i, std::size_t layers) {
    if (i == 0) return "inside";
    return i == layers ? "outside" : std::to_string(i) + '|' + std::to_string(i + 1);
}

std::string both_climates(const Climate& climate) {
    const auto told = [](const Air& air) {
        return shortest(air.temperature) + " °C " + shortest(air.humidity) + " %";
    };
    return "inside " + told(climate.inside) + ", outside " + told(climate.outside);
}

std::string verdict(const Profile& profile) {
    if (!profile.condenses()) return "No vapour condenses.";
    const auto places = wet_places(profile);
    std::vector<std::string> layers;
    for (const std::size_t i : profile.wet_layers) layers.push_back(std::to_string(i + 1));
    std::string text = "Vapour condenses";
    if (!places.empty()) text += " at " + told(places);
    if (layers.empty()) return text + '.';
    return text + (places.empty() ? "" : " and") + " within layer" +
           (layers.size() > 1 ? "s " : " ") + told(layers) + '.';
}

std::string report(const Job& job, const Construction& construction) {
    std::string text = heading(job, construction) + '\n' + layer_table(job, construction) + '\n' +
                       properties(construction) + '\n';
    if (construction.profiles.size() > 1) text += month_table(construction) + '\n';
    for (const Profile& profile : construction.profiles) {
        text += profile_text(job, profile);
        if (&profile != &construction.profiles.back()) text += '\n';
    }
    return text;
}

}  // namespace quorvel::wall
