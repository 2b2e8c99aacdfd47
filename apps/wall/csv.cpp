#include "telling/text.h"
#include "wall/report.h"

namespace quorvel::wall {
namespace {

using host::csv_number;

constexpr const char* header =
    "wall,case,inside_C,inside_pct,outside_C,outside_pct,interface,position_mm,temperature_C,"
    "saturation_Pa,vapour_Pa,relative_humidity_pct,condenses,condensate_g_m2_day,"
    "u_value_W_m2K,admittance_W_m2K,admittance_lead_h,decrement_factor,decrement_lag_h,"
    "surface_factor,surface_lag_h\n";

// Those of the whole construction stand in every line.
std::vector<std::string> fields_of_construction(const Construction& construction) {
    const CyclicResponse& cyclic = construction.cyclic;
    return {csv_number(construction.u_value, 4),   csv_number(cyclic.admittance, 4),
            csv_number(cyclic.admittance_lead, 3), csv_number(cyclic.decrement_factor, 5),
            csv_number(cyclic.decrement_lag, 3),   csv_number(cyclic.surface_factor, 4),
            csv_number(cyclic.surface_lag, 3)};
}

std::vector<std::string> fields_of_interface(const Interface& at) {
    return {csv_number(at.temperature, 3),     csv_number(at.saturation, 2),
            csv_number(at.vapour_pressure, 2), csv_number(at.relative_humidity(), 2),
            at.condenses ? "1" : "0",          csv_number(at.condensate, 4)};
}

std::vector<std::string> fields_of_climate(const Climate& climate) {
    return {climate.name, host::shortest(climate.inside.temperature),
            host::shortest(climate.inside.humidity), host::shortest(climate.outside.temperature),
            host::shortest(climate.outside.humidity)};
}

}  // namespace

std::string csv(const Job& job, const Construction& construction) {
    std::string text = header;
    for (const Profile& profile : construction.profiles) {
        double position = 0;
        for (std::size_t i = 0; i < profile.at.size(); ++i) {
            std::vector<std::string> fields{job.name};
            const auto append = [&](const std::vector<std::string>& more) {
                fields.insert(fields.end(), more.begin(), more.end());
            };
            append(fields_of_climate(*profile.climate));
            append({interface_name(i, job.layers.size()), csv_number(position, 2)});
            append(fields_of_interface(profile.at[i]));
            append(fields_of_construction(construction));
            text += host::csv_line(fields);
            if (i < job.layers.size()) position += 1000 * job.layers[i].thickness();
        }
    }
    return text;
}

}  // namespace quorvel::wall
