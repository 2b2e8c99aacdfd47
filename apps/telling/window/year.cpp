#include "calculation/calendar.h"
#include "telling/window/told.h"
#include "telling/window/words.h"
#include "telling/window/year_chart.h"
#include "text/text.h"

namespace quorvel::window {
namespace {

using host::DataTable;
using host::Section;

std::string when(const PeakOfYear& peak, bool of_weather) {
    if (!(peak.power > 0)) return "";
    return host::date(peak.day_of_year) + ", hour " + std::to_string(peak.hour) +
           (of_weather ? " standard time" : " solar time");
}

Quantity kilowatt_hours(std::string key, std::string name, std::string group = "") {
    return {std::move(key), std::move(name), "kWh", 1, std::move(group)};
}

DataTable month_table(const WindowYear& window) {
    const bool glazed = window.window->is_glazed(), blind = window.window->blind.has_value();
    DataTable table{"months",
                    "By the month",
                    {word("month", "month"), {"irradiation", "on the glass", "kWh/m²", 1}},
                    {}};
    table.main = true;
    if (glazed) {
        table.columns.push_back(kilowatt_hours("transmitted", "transmitted", "Into the room"));
        table.columns.push_back(kilowatt_hours("solar_gain", "solar gain", "Into the room"));
        table.columns.push_back(kilowatt_hours("conduction_in", "conduction in", "Into the room"));
        table.columns.push_back(
            kilowatt_hours("conduction_out", "conduction out", "Into the room"));
        table.columns.push_back(kilowatt_hours("net", "net", "Into the room"));
    }
    if (blind) {
        table.columns.push_back(
            kilowatt_hours("solar_gain_without_blind", "gain without it", "Blind"));
        table.columns.push_back({"hours_blind_down", "lowered", "h", 0, "Blind"});
    }
    const auto add = [&](const std::string& name, const Sums& sums) {
        auto& row = table.rows.emplace_back();
        row.emplace_back(name);
        row.emplace_back(sums.incident);
        if (glazed)
            for (const double value : {sums.transmitted, sums.solar_gain, sums.conduction_in,
                                       sums.conduction_out, sums.net()})
                row.emplace_back(value);
        if (blind) {
            row.emplace_back(sums.solar_gain_without_blind);
            row.emplace_back(sums.hours_blind_down);
        }
    };
    for (std::size_t month = 0; month < 12; ++month)
        add(std::string(host::month_names[month]), window.months[month]);
    add("year", window.year);
    return table;
}

Section window_section(const YearCase& given, const WindowYear& window) {
    Section section{window.window->name, window.window->name};
    section.paragraphs.push_back(described(*window.window));
    section.figures = unit_figures_told(*window.window);
    section.figures.push_back(
        {{"irradiation", "Irradiation of the glass", "kWh/m²", 1}, window.year.incident});
    if (window.window->shades.any()) add_openness(window.open, section.figures);
    if (window.window->is_glazed()) {
        section.figures.push_back(
            {kilowatt_hours("solar_gain", "Solar heat gain"), window.year.solar_gain});
        if (window.window->blind)
            section.figures.push_back(
                {kilowatt_hours("solar_gain_without_blind", "without the blind"),
                 window.year.solar_gain_without_blind});
        section.figures.push_back(
            {kilowatt_hours("net", "Net heat into the room"), window.year.net()});
        section.figures.push_back({watts("peak_gain", "Greatest solar heat gain"),
                                   window.peak.power, when(window.peak, given.of_weather)});
        section.figures.push_back(
            {celsius("warmest_pane", "Warmest pane at the room"), window.warmest});
        section.figures.push_back(
            {celsius("coldest_pane", "Coldest pane at the room"), window.coldest});
    }
    section.tables.push_back(month_table(window));
    if (window.window->is_glazed())
        section.tables.back().remarks.push_back(method_told(window.method));
    return section;
}

}  // namespace

host::Answer told(const YearCase& given) {
    host::Answer answer{given.title(), place(given.site)};
    Section summary;
    summary.paragraphs.push_back(
        given.of_weather
            ? "Every hour of the weather file with the sun in the middle of its sunlit part; " +
                  sky_told(given.site) + "."
            : "The design day of every month, counted as often as the month has days; sunny all "
              "the year, so a limit rather than an expectation; " +
                  sky_told(given.site) + ".");
    summary.pictures.push_back({"year", "The year", year_chart(given)});
    answer.sections.push_back(std::move(summary));
    for (const WindowYear& window : given.year.windows)
        answer.sections.push_back(window_section(given, window));
    answer.method = method();
    answer.warnings = given.notes;
    return answer;
}

}  // namespace quorvel::window
