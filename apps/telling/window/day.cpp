#include <algorithm>
#include <cmath>
#include <functional>

#include "calculation/angle.h"
#include "telling/sun.h"
#include "telling/window/day_chart.h"
#include "telling/window/shadow_chart.h"
#include "telling/window/told.h"
#include "telling/window/words.h"

namespace quorvel::window {
namespace {

using host::DataTable;
using host::Figure;
using host::fixed;
using host::Section;

std::string sun_told(const Day& day) {
    std::string text = host::sun_times(day.sunrise, day.sunset, day.solar_minus_clock) +
                       "; declination " + fixed(day.declination, 1) +
                       "°. Hours are solar time, the sun due south or north at 12";
    if (!std::isnan(day.solar_minus_clock))
        text += ", which is " + host::clock_time(12 - day.solar_minus_clock) + " by the clock";
    return text + ".";
}

std::string air_told(const DesignDay& day) {
    if (day.source.empty()) return "";
    return "Outdoor air from " + day.source + ": " + fixed(day.outdoor_min, 1) + " °C at " +
           host::clock_time(*day.hour_of_min) + ", " + fixed(day.outdoor_max, 1) + " °C at " +
           host::clock_time(day.hour_of_max) + " solar time.";
}

std::string site_told(const DayCase& given) {
    const SiteConstants& site = given.day.constants;
    return "Site class " + std::to_string(given.site.site_class) + ": direct × " +
           fixed(site.beam_factor, 2) + ", diffuse × " + fixed(site.diffuse_factor, 2) +
           ", ground reflectance " + fixed(site.ground_reflectance, 2) + "; " +
           (given.site.sky == 0 ? "clear" : "bright") + " sky, " + sky_told(given.site) + ".";
}

DataTable sun_table(const Day& day) {
    DataTable table{"sun", "The sun", {}, {}};
    table.on_request = true;
    const bool clock = !std::isnan(day.solar_minus_clock);
    table.columns.push_back(hour_of_day());
    if (clock) table.columns.push_back(word("clock", "clock"));
    for (const Quantity& quantity :
         {angle("altitude", "altitude", "Sun"), angle("azimuth", "azimuth", "Sun"),
          per_area("direct_normal", "direct normal", "Irradiance"),
          per_area("diffuse_horizontal", "diffuse horizontal", "Irradiance"),
          celsius("outdoor", "outdoor air")})
        table.columns.push_back(quantity);
    for (const Exposure& exposure : day.exposure) {
        const host::Sun& sun = exposure.sky.sun;
        const bool up = sun.is_up();
        auto& row = table.rows.emplace_back();
        row.emplace_back(exposure.hour);
        if (clock) row.emplace_back(host::clock_time(exposure.hour - day.solar_minus_clock));
        for (const double value :
             {up ? host::degrees(sun.altitude) : none,
              up ? azimuth_told(host::degrees(sun.azimuth)) : none, exposure.sky.direct_normal,
              exposure.sky.diffuse_horizontal, exposure.outdoor})
            row.emplace_back(value);
    }
    return table;
}

// Columns with what they hold at an hour.
struct Column {
    Quantity quantity;
    std::function<double(std::size_t)> at;
};

DataTable table_of(DataTable table, const std::vector<Column>& columns, std::size_t hours) {
    for (const Column& column : columns) table.columns.push_back(column.quantity);
    for (std::size_t i = 0; i < hours; ++i) {
        table.rows.emplace_back();
        for (const Column& column : columns) table.rows.back().emplace_back(column.at(i));
    }
    return table;
}

double rounded_to_nothing(double value) { return std::fabs(value) < 0.5 ? 0 : value; }

// The hours of one window: columns of members of WindowHour.
class Hours {
  public:
    Hours(const Day& day, const WindowDay& window) : day_(day), window_(window) {
        add(hour_of_day(), [&](std::size_t i) { return day_.exposure[i].hour; });
    }

    template <class Work>
    void add(const Quantity& quantity, Work work) {
        columns_.push_back({quantity, work});
    }
    template <class Member>
    void add_member(const Quantity& quantity, Member member, double factor = 1) {
        add(quantity, [this, member, factor](std::size_t i) {
            return factor * std::invoke(member, window_.at[i]);
        });
    }
    // Of the glass, W; whatever rounds to nothing is nothing.
    template <class Member>
    void add_power(const Quantity& quantity, Member member) {
        add(quantity,
            [this, member](std::size_t i) { return rounded_to_nothing(window_.power(i, member)); });
    }
    template <class Member>
    void add_per_area(const Quantity& quantity, Member member) {
        add(quantity, [this, member](std::size_t i) {
            return rounded_to_nothing(std::invoke(member, window_.at[i]));
        });
    }

    DataTable table(DataTable table) const {
        return table_of(std::move(table), columns_, window_.at.size());
    }

  private:
    const Day& day_;
    const WindowDay& window_;
    std::vector<Column> columns_;
};

double incidence_told(const WindowHour& at) { return at.incidence <= 90 ? at.incidence : none; }

// pane_2 of "pane 2 (room)".
std::string key_of(const std::string& layer) {
    std::string key = layer.substr(0, layer.find(" ("));
    std::ranges::replace(key, ' ', '_');
    return key;
}

void add_temperatures(Hours& hours, const WindowDay& window) {
    for (std::size_t k = window.layers; k-- > 0;) {
        const std::string name = layer_name(*window.window, k);
        hours.add(celsius(key_of(name), name, "Temperature"),
                  [&window, k](std::size_t i) { return window.at[i].gain.temperature[k]; });
    }
}

DataTable hour_table(const Day& day, const WindowDay& window) {
    Hours hours(day, window);
    if (window.window->shades.any())
        hours.add_member(percent("sunlit", "sunlit", "On the glass"), &WindowHour::sunlit, 100);
    hours.add_per_area(per_area("direct", "direct", "On the glass"), &WindowHour::direct);
    hours.add_per_area(per_area("diffuse", "diffuse", "On the glass"), &WindowHour::diffuse);
    hours.add_per_area(per_area("ground", "ground", "On the glass"), &WindowHour::ground);
    hours.add_per_area(per_area("incident", "total", "On the glass"), &WindowHour::incident);
    if (window.window->is_glazed()) {
        hours.add_power(watts("transmitted", "transmitted", "Into the room"),
                        &WindowHour::transmitted);
        hours.add_power(watts("solar_gain", "solar gain", "Into the room"),
                        &WindowHour::solar_gain);
        hours.add_power(watts("conduction", "conduction", "Into the room"),
                        &WindowHour::conduction);
        hours.add_power(watts("net", "net", "Into the room"), &WindowHour::net);
        add_temperatures(hours, window);
    }
    DataTable table{"hours", "By the hour", {}, {}};
    table.main = true;
    return hours.table(table);
}

DataTable detail_table(const Day& day, const WindowDay& window) {
    Hours hours(day, window);
    hours.add(angle("incidence", "incidence", "Sun on the window"),
              [&](std::size_t i) { return incidence_told(window.at[i]); });
    hours.add_member(angle("vertical_profile", "vertical", "Sun on the window"),
                     &WindowHour::vertical);
    hours.add_member(angle("horizontal_profile", "horizontal", "Sun on the window"),
                     &WindowHour::horizontal);
    if (window.window->shades.any()) {
        hours.add_member({"sunlit_area", "sunlit", "m²", 3}, &WindowHour::sunlit,
                         window.window->area);
        hours.add_per_area(per_area("direct_unshaded", "direct, unshaded"),
                           &WindowHour::direct_unshaded);
    }
    if (window.window->is_glazed()) {
        hours.add_member({"direct_transmittance", "transmitted", "", 4, "Share of the direct sun"},
                         &WindowHour::direct_transmittance);
        hours.add_member({"direct_absorptance", "absorbed", "", 4, "Share of the direct sun"},
                         &WindowHour::direct_absorptance);
        hours.add_power(watts("absorbed", "absorbed"), &WindowHour::absorbed);
        if (window.blind)
            hours.add_power(watts("blind_absorbed", "by the blind"),
                            &WindowHour::absorbed_by_blind);
        if (window.blind)
            hours.add_power(watts("solar_gain_without_blind", "gain without blind"),
                            &WindowHour::solar_gain_without_blind);
    }
    DataTable table{"details", "More by the hour", {}, {}};
    table.on_request = true;
    return hours.table(table);
}

std::string at_hour(const Peak& peak) {
    return peak.hour > 0 ? "at hour " + std::to_string(peak.hour) : "";
}

std::string of_unshaded(const WindowDay& window) {
    const double all = daily_sum(window, &WindowHour::direct_unshaded);
    return all > 0 ? fixed(100 * daily_sum(window, &WindowHour::direct) / all, 0) +
                         " % of the direct sun reaches the glass"
                   : "";
}

void add_day_figures(const WindowDay& window, std::vector<Figure>& figures) {
    const bool shaded = window.window->shades.any();
    figures.push_back({{"irradiation", "Irradiation of the glass", "kWh/m²", 2},
                       daily_sum(window, &WindowHour::incident) / 1000,
                       shaded ? of_unshaded(window) : ""});
    if (shaded) add_openness(window.open, figures);
    if (!window.window->is_glazed()) return;
    const Peak peak = peak_of(window, &WindowHour::solar_gain);
    figures.push_back({energy("solar_gain", "Solar heat gain of the day"),
                       daily_energy(window, &WindowHour::solar_gain)});
    figures.push_back({energy("transmitted", "of this transmitted"),
                       daily_energy(window, &WindowHour::transmitted)});
    if (window.blind)
        figures.push_back({energy("solar_gain_without_blind", "without the blind"),
                           daily_energy(window, &WindowHour::solar_gain_without_blind)});
    figures.push_back(
        {energy("conduction", "Conduction"), daily_energy(window, &WindowHour::conduction)});
    figures.push_back(
        {energy("net", "Net heat into the room"), daily_energy(window, &WindowHour::net)});
    figures.push_back({watts("peak_gain", "Greatest solar heat gain"), peak.power, at_hour(peak)});
    const Peak net = peak_of(window, &WindowHour::net);
    figures.push_back({watts("peak_net", "Greatest net heat flow"), net.power, at_hour(net)});
}

// The pane at the room, the blind and the panes beside it. The first has the same key whatever the
// number of panes.
void add_warmest(const WindowDay& window, std::vector<Figure>& figures) {
    const std::size_t innermost = window.layers - (window.blind == window.layers - 1 ? 2 : 1);
    for (std::size_t k = window.layers; k-- > 0;) {
        const bool told = k == innermost || window.blind == k || window.blind == k + 1;
        if (!told) continue;
        double most = none;
        for (const WindowHour& at : window.at) most = std::fmax(most, at.gain.temperature[k]);
        const std::string name = layer_name(*window.window, k);
        figures.push_back({k == innermost ? celsius("warmest_pane", "Warmest pane at the room")
                                          : celsius("warmest_" + key_of(name), "Warmest: " + name),
                           most});
    }
}

Section window_section(const DayCase& given, const WindowDay& window) {
    Section section{window.window->name, window.window->name};
    section.paragraphs.push_back(described(*window.window));
    section.figures = unit_figures_told(*window.window);
    add_day_figures(window, section.figures);
    if (window.window->is_glazed()) {
        add_warmest(window, section.figures);
        section.tables.push_back(hour_table(given.day, window));
        section.tables.back().remarks.push_back(method_told(window.method));
    } else {
        section.tables.push_back(hour_table(given.day, window));
    }
    section.tables.push_back(detail_table(given.day, window));
    return section;
}

Section all_windows(const DayCase& given) {
    Section section{"All windows", "all"};
    double gain = 0, net = 0;
    for (const WindowDay& window : given.day.windows) {
        gain += daily_energy(window, &WindowHour::solar_gain);
        net += daily_energy(window, &WindowHour::net);
    }
    const Peak peak = peak_of(given.day.windows, &WindowHour::solar_gain);
    section.figures = {{energy("solar_gain", "Solar heat gain of the day"), gain},
                       {energy("net", "Net heat into the room"), net},
                       {watts("peak_gain", "Greatest solar heat gain"), peak.power, at_hour(peak)}};
    return section;
}

void add_pictures(const DayCase& given, const std::vector<double>& shadow_hours,
                  std::vector<host::Picture>& pictures) {
    const bool glazed = any_glazed(given.windows);
    if (glazed) pictures.push_back({"day", "The day", day_chart(given)});
    for (const WindowDay& window : given.day.windows) {
        if (glazed && !window.window->shades.any()) continue;
        const auto number = std::to_string(&window - given.day.windows.data() + 1);
        pictures.push_back({"shadows-" + number, "Shadows on " + window.window->name,
                            shadow_chart(given, window, shadow_hours)});
    }
}

}  // namespace

host::Answer told(const DayCase& given, const std::vector<double>& shadow_hours) {
    host::Answer answer{given.title(), place(given.site)};
    Section summary;
    for (const std::string& line : {site_told(given), air_told(given.design), sun_told(given.day)})
        if (!line.empty()) summary.paragraphs.push_back(line);
    summary.tables.push_back(sun_table(given.day));
    add_pictures(given, shadow_hours, summary.pictures);
    answer.sections.push_back(std::move(summary));
    for (const WindowDay& window : given.day.windows)
        answer.sections.push_back(window_section(given, window));
    if (given.windows.size() > 1 && any_glazed(given.windows))
        answer.sections.push_back(all_windows(given));
    answer.method = method();
    answer.warnings = given.notes;
    return answer;
}

}  // namespace quorvel::window
