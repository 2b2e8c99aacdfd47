#include <cmath>

#include "designday/report.h"
#include "telling/text.h"

namespace quorvel::designday {
namespace {

using host::csv_number;

constexpr const char* header =
    "window,hour,clock,outdoor_C,sun_altitude_deg,sun_azimuth_deg,direct_normal_W_m2,"
    "diffuse_horizontal_W_m2,incidence_deg,direct_W_m2,diffuse_W_m2,ground_W_m2,incident_W_m2,"
    "direct_transmittance,direct_absorptance,transmitted_fraction,transmitted_W,"
    "absorbed_fraction,absorbed_W,pane1_C,pane2_C,pane3_C,pane4_C,pane5_C,"
    "profile_deg,blind_absorbed_W\n";

std::string clock(double hour, double solar_minus_clock) {
    return std::isnan(solar_minus_clock) ? "" : host::clock_time(hour - solar_minus_clock);
}

std::vector<std::string> fields(const WindowDay& window, std::size_t i, const DesignDay& day) {
    const WindowHour& at = window.at[i];
    const SunHour& sun = day.sun[i];
    std::vector<std::string> fields{
        window.window->name,
        csv_number(sun.hour, 0),
        clock(sun.hour, day.solar_minus_clock),
        csv_number(sun.outdoor, 2),
        csv_number(sun.altitude, 3),
        csv_number(sun.azimuth, 3),
        csv_number(sun.direct_normal, 2),
        csv_number(sun.diffuse_horizontal, 2),
        csv_number(at.incidence, 3),
        csv_number(at.direct, 2),
        csv_number(at.diffuse, 2),
        csv_number(at.ground, 2),
        csv_number(at.incident(), 2),
        csv_number(at.direct_transmittance, 4),
        csv_number(at.direct_absorptance, 4),
        csv_number(at.transmitted_fraction(), 4),
        csv_number(window.transmitted_power(i), 2),
        csv_number(at.absorbed_fraction(), 4),
        csv_number(window.window->area * at.absorbed, 2),
    };
    for (const double temperature : window.panes_at(i))
        fields.push_back(csv_number(temperature, 2));
    for (int pane = window.panes; pane < most_panes; ++pane) fields.push_back("");
    fields.push_back(csv_number(at.profile, 3));
    fields.push_back(csv_number(window.window->area * at.absorbed_by_blind, 2));
    return fields;
}

}  // namespace

std::string csv(const DesignDay& day) {
    std::string text = header;
    for (const WindowDay& window : day.windows)
        for (std::size_t i = 0; i < window.at.size(); ++i)
            text += host::csv_line(fields(window, i, day));
    return text;
}

}  // namespace quorvel::designday
