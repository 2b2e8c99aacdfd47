#include "telling/wall/year_chart.h"

#include <algorithm>

#include "telling/value.h"
#include "telling/wall/heading.h"
#include "text/text.h"

namespace quorvel::wall {
namespace {

using host::colour::ink;
using Rows = std::vector<std::vector<double>>;

constexpr double left = 74, plot_width = 900, width = left + plot_width + 40;
constexpr double top = 190;   // of the first panel
constexpr double below = 80;  // each panel, for names and the next title
constexpr double water_height = 270, surface_height = 180;

// From the inside outwards; further places take the last.
constexpr const char* water_colours[] = {"#2b6cb8", "#7fb2e5", "#1f9e89",
                                         "#95d5b2", "#7b5ea7", "#c3b1e1"};
constexpr const char* demand_colour = "#d98e04";

const char* water_colour(std::size_t i) {
    return water_colours[std::min(i, std::size(water_colours) - 1)];
}

// Where the m-th of the months in a row begins; their names stand at the whole numbers.
double beginning(std::size_t m) { return static_cast<double>(m) - 0.5; }

// The sums of the water at the end of each month, from the innermost place to each: 0, then a row a
// month.
Rows stacked(const Year& year) {
    Rows rows;
    for (std::size_t m = 0; m <= months_of_year; ++m) {
        std::vector<double> row{beginning(m)};
        double sum = 0;
        for (const Deposit& deposit : year.deposits)
            row.push_back(sum += m == 0 ? 0 : deposit.content[m - 1]);
        rows.push_back(std::move(row));
    }
    return rows;
}

void draw_water(host::Chart& chart, const Question& question, const Year& year) {
    chart.panel({left, top, plot_width, water_height});
    chart.horizontal_names(host::short_month_names(year.months.front().month));
    chart.vertical_scale(host::round_scale(0, year.peak()));
    std::vector<host::Key> keys;
    std::vector<std::string> parts;
    const std::string rows = chart.data(stacked(year));
    for (std::size_t i = 0; i < year.deposits.size(); ++i) {
        const std::string name = deposit_name(year.deposits[i], question.element.layers.size());
        keys.push_back({"■", water_colour(i), name});
        parts.insert(parts.begin(), host::area(rows, i + 2, water_colour(i)));
    }
    chart.title(top - 30, "Water, g/m², stacked by interface", keys);
    chart.mark(beginning(year.wettest + 1), year.peak(), "");
    chart.plot(parts);
}

// Where the climate of a month asks for something.
Rows demands(const SurfaceYear& surface, std::size_t first) {
    Rows rows;
    for (std::size_t m = 0; m < months_of_year; ++m) {
        const double required = surface.months[(first + m) % months_of_year].required;
        if (required > 0) rows.push_back({static_cast<double>(m), required});
    }
    return rows;
}

void draw_surface(host::Chart& chart, double top, const SurfaceYear& surface, std::size_t first) {
    chart.panel({left, top, plot_width, surface_height});
    chart.horizontal_names(host::short_month_names(first));
    chart.vertical_scale({0, 1, 0.2});
    chart.title(top - 30, "Temperature factor of the inside surface",
                {{"━", ink, "f_Rsi " + host::told(temperature_factor, surface.factor)},
                 {"■", demand_colour, "needed against mould"}});
    const Rows required = demands(surface, first);
    std::vector<std::string> parts;
    if (!required.empty()) parts.push_back(host::bars(chart.data(required), 2, demand_colour, 0.6));
    const Rows factor{{beginning(0), surface.factor}, {beginning(months_of_year), surface.factor}};
    parts.push_back(host::curve(chart.data(factor), 2, ink, 2.5));
    chart.plot(parts);
}

// At the ends of the months from `first`; where the year itself begins, dry, the line is broken.
Rows water_of(const Year& year, std::size_t first) {
    Rows rows;
    for (std::size_t m = 0; m < months_of_year; ++m) {
        const std::size_t month = (first + m) % months_of_year;
        const double x = beginning(m);
        if (month == year.months.front().month) {
            rows.push_back({x, host::none});
            rows.push_back({x, 0});
        } else if (m == 0) {
            rows.push_back({x, year.of((month + months_of_year - 1) % months_of_year).content});
        }
        rows.push_back({x + 1, year.of(month).content});
    }
    return rows;
}

}  // namespace

host::Chart year_chart(const Subject& subject, const Question& question,
                       const Assessment& assessment) {
    const Year& year = *assessment.year;
    const double surface_top = year.dry() ? top : top + water_height + below;
    host::Chart chart(static_cast<int>(width),
                      static_cast<int>(surface_top + surface_height + below));
    const std::size_t first = year.months.front().month;
    chart.canvas({left, 0, plot_width, top});
    draw_heading(chart, subject, question, assessment, "twelve months from " + month_name(first));
    chart.plot({host::curve(chart.data({{-9, -9}}), 2, ink, 1)});  // out of sight
    if (!year.dry()) draw_water(chart, question, year);
    draw_surface(chart, surface_top, assessment.surface, first);
    return chart;
}

host::Chart comparison_chart(const std::vector<Variation>& variations) {
    constexpr double top = 100, keys_top = top + water_height + 72;
    const double keys_height = host::key_spacing * static_cast<double>(variations.size());
    host::Chart chart(static_cast<int>(width), static_cast<int>(keys_top + keys_height));
    double most = 0;
    const Variation* wettest = &variations.front();
    for (const Variation& v : variations) {
        if (v.assessment.year->peak() > most) wettest = &v;
        most = std::max(most, v.assessment.year->peak());
    }
    const std::size_t first = wettest->assessment.year->months.front().month;
    chart.panel({left, top, plot_width, water_height});
    chart.horizontal_names(host::short_month_names(first));
    chart.vertical_scale(host::round_scale(0, most));
    chart.heading(variations.front().subject.name,
                  "Water in the element at the end of the month, g/m²");
    std::vector<host::Key> keys;
    std::vector<std::string> curves;
    for (std::size_t i = 0; i < variations.size(); ++i) {
        keys.push_back({"━", host::series_colour(i), variations[i].subject.variant_name()});
        curves.push_back(host::curve(chart.data(water_of(*variations[i].assessment.year, first)), 2,
                                     host::series_colour(i), 2.5));
    }
    chart.key_list(left, keys_top, keys);
    chart.plot(curves);
    return chart;
}

}  // namespace quorvel::wall
