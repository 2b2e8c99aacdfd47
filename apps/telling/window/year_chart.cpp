#include "telling/window/year_chart.h"

#include <algorithm>

#include "calculation/calendar.h"
#include "telling/window/colours.h"
#include "telling/window/words.h"
#include "text/text.h"

namespace quorvel::window {
namespace {

using host::bars;
using host::colour::grey;
using host::colour::ink;

constexpr double left = 84, right = 30, width = 900;
constexpr double first_top = 190, row_height = 170, between = 96;

host::Scale scale_of(const Year& year) {
    double low = 0, high = 1;
    for (const WindowYear& window : year.windows)
        for (const Sums& month : window.months) {
            low = std::min(low, month.net());
            high = std::max({high, month.solar_gain, month.solar_gain_without_blind, month.net()});
        }
    return host::round_scale(low, high);
}

void draw(host::Chart& chart, const WindowYear& window, double top) {
    std::vector<std::vector<double>> rows;
    for (std::size_t month = 0; month < 12; ++month) {
        const Sums& sums = window.months[month];
        const auto x = static_cast<double>(month);
        rows.push_back(
            {x, sums.solar_gain_without_blind, sums.solar_gain, sums.transmitted, sums.net()});
    }
    const std::string data = chart.data(rows);
    std::vector<std::string> parts;
    if (window.window->blind) parts.push_back(bars(data, 2, pale_blind_colour, 0.66));
    parts.push_back(bars(data, 3, gain_colour, 0.5));
    parts.push_back(bars(data, 4, direct_colour, 0.5));
    parts.push_back(
        data + " using 1:5 with linespoints linewidth 2 pointtype 7 pointsize 0.6 linecolor rgb '" +
        ink + "'");
    chart.text(left, top - 34, window.window->name, {ink, 14, true});
    const std::string blind = blind_told(*window.window);
    const std::string described = size_and_facing(*window.window) + "  ·  " +
                                  glazing_told(*window.window) +
                                  (blind.empty() ? "" : "  ·  " + blind);
    chart.text(left, top - 16, host::shortened(described, 108), {grey, 12});
    chart.text(width - right, top - 34,
               "solar gain " + host::fixed(window.year.solar_gain, 1) + " kWh, net " +
                   host::fixed(window.year.net(), 1) + " kWh",
               {grey, 12, false, "right"});
    chart.plot(parts);
}

}  // namespace

host::Chart year_chart(const YearCase& given) {
    const auto count = static_cast<double>(given.year.windows.size());
    host::Chart chart(static_cast<int>(width),
                      static_cast<int>(first_top + count * (row_height + between) - 40));
    const host::Scale scale = scale_of(given.year);
    double top = first_top;
    for (const WindowYear& window : given.year.windows) {
        chart.panel({left, top, width - left - right, row_height});
        chart.horizontal_names(host::short_month_names());
        chart.vertical_scale(scale);
        if (top == first_top) {
            chart.heading(given.title(), place(given.site));
            std::vector<host::Key> keys{{"■", gain_colour, "solar heat gain"},
                                        {"■", direct_colour, "of it transmitted"},
                                        {"●", ink, "net"}};
            if (std::ranges::any_of(given.windows,
                                    [](const Window& w) { return w.blind.has_value(); }))
                keys.push_back({"■", pale_blind_colour, "without blind"});
            chart.title(112, "Heat into the room, kWh a month", keys);
        }
        draw(chart, window, top);
        top += row_height + between;
    }
    return chart;
}

}  // namespace quorvel::window
