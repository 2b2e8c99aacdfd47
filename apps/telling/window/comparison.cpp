// Variants beside each other.
#include <algorithm>

#include "calculation/calendar.h"
#include "telling/sun.h"
#include "telling/window/colours.h"
#include "telling/window/times.h"
#include "telling/window/told.h"
#include "telling/window/words.h"
#include "text/text.h"

namespace quorvel::window {
namespace {

using host::DataTable;
using host::Section;
using host::colour::grey;
using host::colour::ink;

constexpr double left = 84, right = 30, width = 900, top = 130, height = 300;

std::string name_of(const Case& given) {
    return given.variant.empty() ? "as given" : given.variant;
}

Quantity kilowatt_hours(std::string key, std::string name, int decimals, std::string group) {
    return {std::move(key), std::move(name), "kWh", decimals, std::move(group)};
}

// What a window comes to over the day or the year.
struct Result {
    const Window* window;
    double solar_gain, conduction, net;  // kWh
    double peak;                         // W
    std::string when;
};

std::vector<Result> results(const DayCase& given) {
    std::vector<Result> all;
    for (const WindowDay& window : given.day.windows) {
        const Peak peak = peak_of(window, &WindowHour::solar_gain);
        all.push_back({window.window, daily_energy(window, &WindowHour::solar_gain),
                       daily_energy(window, &WindowHour::conduction),
                       daily_energy(window, &WindowHour::net), peak.power,
                       peak.hour > 0 ? "hour " + std::to_string(peak.hour) : ""});
    }
    return all;
}

std::vector<Result> results(const YearCase& given) {
    std::vector<Result> all;
    for (const WindowYear& window : given.year.windows)
        all.push_back({window.window, window.year.solar_gain,
                       window.year.conduction_in - window.year.conduction_out, window.year.net(),
                       window.peak.power,
                       window.peak.power > 0 ? host::date(window.peak.day_of_year) + ", hour " +
                                                   std::to_string(window.peak.hour)
                                             : ""});
    return all;
}

template <class AnyCase>
DataTable comparison(std::span<const AnyCase> cases, int decimals) {
    DataTable table{"variants", "", {}, {}};
    table.main = true;
    const bool several = cases.front().windows.size() > 1;
    table.columns = {word("variant", "variant")};
    if (several) table.columns.push_back(word("window", "window"));
    for (const Quantity& quantity :
         {Quantity{"u_value", "U", "W/m²K", 2}, fraction("g", "g"),
          fraction("g_with_blind", "with blind"),
          kilowatt_hours("solar_gain", "solar gain", decimals, "Into the room"),
          kilowatt_hours("conduction", "conduction", decimals, "Into the room"),
          kilowatt_hours("net", "net", decimals, "Into the room"),
          watts("peak_gain", "gain", "Peak"), Quantity{"peak_at", "at", "", 0, "Peak"}})
        table.columns.push_back(quantity);
    for (const AnyCase& given : cases)
        for (const Result& result : results(given)) {
            const Window& window = *result.window;
            const UnitFigures unit = unit_figures(window);
            table.rows.emplace_back();
            table.rows.back().emplace_back(name_of(given));
            if (several) table.rows.back().emplace_back(window.name);
            for (const double value : {unit.u_value, unit.g, unit.g_with_blind, result.solar_gain,
                                       result.conduction, result.net, result.peak})
                table.rows.back().emplace_back(value);
            table.rows.back().emplace_back(result.when);
        }
    return table;
}

// Room for the keys, one below the other, beside the total that each stands for.
template <class AnyCase>
host::Chart empty_chart(std::span<const AnyCase> cases) {
    return {static_cast<int>(width),
            static_cast<int>(top + height + 80 +
                             host::key_spacing * static_cast<double>(cases.size()))};
}

template <class AnyCase>
void head(host::Chart& chart, std::span<const AnyCase> cases, const std::string& panel,
          int decimals) {
    chart.heading(cases.front().title(), place(cases.front().site));
    chart.text(host::chart_margin, top - 24, panel, {ink, 14, true});
    std::vector<host::Key> keys;
    for (const AnyCase& given : cases) {
        double gain = 0, peak = 0;
        for (const Result& result : results(given)) {
            gain += result.solar_gain;
            peak = std::max(peak, result.peak);
        }
        keys.push_back(
            {"━", series_colour(keys.size()),
             name_of(given) + ": solar heat gain " + host::fixed(gain, decimals) + " kWh" +
                 (given.windows.size() > 1 ? "" : ", at most " + host::fixed(peak, 0) + " W")});
    }
    chart.key_list(left, top + height + 72, keys);
}

host::Chart chart_of(std::span<const DayCase> cases) {
    const DayCase& first = cases.front();
    host::Chart chart = empty_chart(cases);
    std::vector<Day> days;
    double most = 1;
    std::vector<std::vector<double>> rows;
    for (const DayCase& given : cases)
        days.push_back(calculate(given.site, given.design, given.windows, 2));
    for (const std::size_t k : drawn_of(days.front(), 25)) {
        rows.push_back({days.front().exposure[k].hour});
        for (const Day& day : days) {
            double sum = 0;
            for (const WindowDay& window : day.windows)
                sum += window.power(k, &WindowHour::solar_gain);
            rows.back().push_back(sum);
            most = std::max(most, sum);
        }
    }
    chart.panel({left, top, width - left - right, height});
    chart.horizontal_scale(host::hours_shown(first.day.sunrise, first.day.sunset, 1));
    chart.vertical_scale(host::round_scale(0, most));
    head(chart, cases, "Solar heat gain into the room, W", 2);
    chart.text(width - right, top + height + 44, "hour, solar time", {grey, 12, false, "right"});
    const std::string data = chart.data(rows);
    std::vector<std::string> curves;
    for (std::size_t i = 0; i < cases.size(); ++i)
        curves.push_back(host::curve(data, i + 2, series_colour(i), 2.5));
    chart.plot(curves);
    return chart;
}

host::Chart chart_of(std::span<const YearCase> cases) {
    host::Chart chart = empty_chart(cases);
    const auto count = static_cast<double>(cases.size());
    const double bar = 0.8 / count;
    double most = 1;
    std::vector<std::string> data;
    for (std::size_t i = 0; i < cases.size(); ++i) {
        std::vector<std::vector<double>> rows;
        for (std::size_t month = 0; month < 12; ++month) {
            double sum = 0;
            for (const WindowYear& window : cases[i].year.windows)
                sum += window.months[month].solar_gain;
            rows.push_back(
                {static_cast<double>(month) + (static_cast<double>(i) - (count - 1) / 2) * bar,
                 sum});
            most = std::max(most, sum);
        }
        data.push_back(chart.data(rows));
    }
    chart.panel({left, top, width - left - right, height});
    chart.horizontal_names(host::short_month_names());
    chart.vertical_scale(host::round_scale(0, most));
    head(chart, cases, "Solar heat gain into the room, kWh a month", 1);
    std::vector<std::string> parts;
    for (std::size_t i = 0; i < cases.size(); ++i)
        parts.push_back(host::bars(data[i], 2, series_colour(i), bar));
    chart.plot(parts);
    return chart;
}

template <class AnyCase>
host::Answer answer_of(std::span<const AnyCase> cases, int decimals) {
    host::Answer answer{cases.front().title(), place(cases.front().site)};
    Section section;
    section.paragraphs.push_back(std::to_string(cases.size() - 1) +
                                 (cases.size() == 2 ? " variant" : " variants") +
                                 " beside the input as it is.");
    section.tables.push_back(comparison(cases, decimals));
    section.pictures.push_back({"variants", "Variants", chart_of(cases)});
    answer.sections.push_back(std::move(section));
    answer.method = method();
    for (const AnyCase& given : cases)
        for (const std::string& note : given.notes)
            if (std::ranges::find(answer.warnings, note) == answer.warnings.end())
                answer.warnings.push_back(note);
    return answer;
}

}  // namespace

host::Answer compared(std::span<const DayCase> days) { return answer_of(days, 2); }

host::Answer compared(std::span<const YearCase> years) { return answer_of(years, 1); }

}  // namespace quorvel::window
