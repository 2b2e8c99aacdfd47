#include "designday/report.h"

#include <cmath>

#include "calculation/angle.h"
#include "calculation/calendar.h"
#include "telling/sun.h"
#include "telling/table.h"
#include "telling/text.h"

namespace quorvel::designday {
namespace {

using host::absent;
using host::clock_time;
using host::Column;
using host::fixed;
using host::shortest;

std::string watts(double value) {
    const std::string text = fixed(value, 0);
    return text == "0" ? host::nothing : text;
}

// The models' authors; the design sky's own goes without saying.
std::string told(SkyModel model) {
    switch (model) {
        case SkyModel::design:
            return "";
        case SkyModel::perez:
            return ", its diffuse part after Perez";
        case SkyModel::muneer:
            return ", its diffuse part after Muneer";
        case SkyModel::muneer_north:
            return ", its diffuse part after Muneer for northern Europe";
        case SkyModel::muneer_south:
            return ", its diffuse part after Muneer for southern Europe";
    }
    return "";
}

std::string told_of_climate(const Day& day) {
    if (day.source.empty()) return "";
    return "outdoor air from " + day.source + ": " + fixed(day.outdoor_min, 1) + " °C at " +
           clock_time(*day.hour_of_min) + ", " + fixed(day.outdoor_max, 1) + " °C at " +
           clock_time(day.hour_of_max) + " solar time\n";
}

std::string heading(const Job& job, const DesignDay& day) {
    const SiteConstants& site = day.constants;
    std::string text =
        job.site.name + ", " + host::date(day.day_of_year) + '\n' + place(job.site) + '\n';
    text += "site class " + std::to_string(job.site.site_class) + ": direct × " +
            fixed(site.beam_factor, 2) + ", diffuse × " + fixed(site.diffuse_factor, 2) +
            ", ground reflectance " + fixed(site.ground_reflectance, 2) + "; " +
            (job.site.sky == 0 ? "clear" : "bright") + " sky" + told(job.site.sky_model) + '\n';
    text += told_of_climate(job.day);
    text += sun_times(day) + "; declination " + fixed(day.declination, 1) + "°\n";
    text += "hours are solar time, the sun due south or north at 12";
    if (!std::isnan(day.solar_minus_clock))
        text += ", which is " + clock_time(12 - day.solar_minus_clock) + " by the clock";
    return text + '\n';
}

std::string sun_table(const DesignDay& day) {
    host::Table table({{"", "hour"},
                       {"Sun, °", "altitude"},
                       {"Sun, °", "azimuth"},
                       {"Irradiance, W/m²", "direct normal"},
                       {"Irradiance, W/m²", "diffuse horizontal"},
                       {"Outdoor air", "°C"}});
    for (const SunHour& sun : day.sun) {
        table.add({fixed(sun.hour, 0), fixed(sun.altitude, 1), fixed(sun.azimuth, 1),
                   watts(sun.direct_normal), watts(sun.diffuse_horizontal), fixed(sun.outdoor, 1)});
    }
    return table.text();
}

std::vector<Column> window_columns(int panes, bool blind) {
    std::vector<Column> columns{
        {"", "hour"},
        {"", "incidence °"},
        {"On the plane, W/m²", "direct"},
        {"On the plane, W/m²", "diffuse"},
        {"On the plane, W/m²", "ground"},
        {"On the plane, W/m²", "total"},
        {"Transmitted", "fraction"},
        {"Transmitted", "W"},
        {"Absorbed", "fraction"},
        {"Absorbed", "W"},
    };
    if (blind) columns.push_back({"Absorbed", "by blind W"});
    for (int pane = 1; pane <= panes; ++pane) {
        const char* side = pane == 1 ? " (room)" : "";
        columns.push_back({"Pane, °C", std::to_string(pane) + side});
    }
    return columns;
}

std::string window_table(const WindowDay& window) {
    const bool blind = window.window->blind.has_value();
    host::Table table(window_columns(window.panes, blind));
    for (std::size_t i = 0; i < window.at.size(); ++i) {
        const WindowHour& at = window.at[i];
        std::vector<std::string> cells{
            std::to_string(i + 1),
            at.incidence <= 90 ? fixed(at.incidence, 1) : absent,
            watts(at.direct),
            watts(at.diffuse),
            watts(at.ground),
            watts(at.incident()),
            fixed(at.transmitted_fraction(), 2),
            watts(window.transmitted_power(i)),
            fixed(at.absorbed_fraction(), 2),
            watts(window.window->area * at.absorbed),
        };
        if (blind) cells.push_back(watts(window.window->area * at.absorbed_by_blind));
        for (const double temperature : window.panes_at(i)) cells.push_back(fixed(temperature, 1));
        table.add(std::move(cells));
    }
    return table.text();
}

std::string kilowatt_hours(double watt_hours) { return fixed(watt_hours / 1000, 2) + " kWh"; }

std::string told(const Peak& peak) {
    if (peak.hour == 0) return "\n";
    return "; peak " + fixed(peak.power, 0) + " W at hour " + std::to_string(peak.hour) + '\n';
}

std::string totals(const WindowDay& window) {
    const double absorbed = window.window->area * daily_sum(window, &WindowHour::absorbed);
    return "  Day: " + kilowatt_hours(daily_sum(window, &WindowHour::incident)) +
           "/m² on the plane, " + kilowatt_hours(absorbed) + " absorbed, " +
           kilowatt_hours(transmitted_energy(window)) + " transmitted" + told(peak_of(window));
}

std::string told(const std::optional<Blind>& blind) {
    if (!blind) return "";
    const bool slatted = std::holds_alternative<Slats>(blind->make);
    return std::string(slatted ? ", slatted" : ", roller") + " blind " +
           (blind->outside ? "outside" : "inside");
}

std::string window_heading(const WindowDay& window) {
    const std::string panes =
        std::to_string(window.panes) + (window.panes == 1 ? " pane" : " panes");
    return window.window->name + ": " + size_and_facing(*window.window) + ", " + panes +
           told(window.window->blind) + '\n';
}

std::string all_windows(const DesignDay& day) {
    double energy = 0;
    for (const WindowDay& window : day.windows) energy += transmitted_energy(window);
    return "All windows: " + kilowatt_hours(energy) + " transmitted" + told(peak_of_all(day));
}

}  // namespace

std::string place(const Site& site) {
    return host::on_the_globe(site.latitude, "N", "S") + ", " +
           host::on_the_globe(site.longitude, "E", "W") + ", " + shortest(site.height) +
           " m above sea level";
}

std::string size_and_facing(const Window& window) {
    return shortest(window.area) + " m² " + host::facing(window.orientation, window.tilt);
}

std::string sun_times(const DesignDay& day) {
    return host::sun_times(day.sunrise, day.sunset, day.solar_minus_clock);
}

std::string report(const Job& job, const DesignDay& day) {
    std::string text = heading(job, day) + '\n' + sun_table(day);
    for (const WindowDay& window : day.windows)
        text += '\n' + window_heading(window) + '\n' + window_table(window) + '\n' + totals(window);
    if (day.windows.size() > 1) text += '\n' + all_windows(day);
    return text;
}

}  // namespace quorvel::designday
