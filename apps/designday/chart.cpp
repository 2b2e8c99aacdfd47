#include "designday/chart.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "calculation/calendar.h"
#include "designday/report.h"
#include "telling/chart.h"
#include "telling/sun.h"
#include "telling/text.h"

namespace quorvel::designday {
namespace {

using host::area;
using host::curve;
using host::fixed;
using host::Key;
using host::colour::grey;
using host::colour::ink;

using Rows = std::vector<std::vector<double>>;

constexpr int steps_per_hour =
    12;  // smooth curves; every number written is one of the hourly table

constexpr const char* direct_colour = "#f5b041";
constexpr const char* sky_colour = "#8ec1ea";
constexpr const char* ground_colour = "#b5c99a";
constexpr const char* outdoor_colour = "#3b82c4";
constexpr const char* room_colour = "#9aa1ad";
constexpr const char* inner_colour = "#b3322b";
constexpr const char* middle_colour = "#d9764a";
constexpr const char* outer_colour = "#eda63a";
constexpr const char* window_colours[most_windows] = {"#3f72af", "#e08e45", "#6aa07a",
                                                      "#9a6fb0", "#c9a93a", "#6f7d8c"};

// The places of the panels, in pixels.
constexpr double margin = 24, left = 74, right = 30, between = 28;
constexpr double first_row = 190, first_height = 220;
constexpr double second_row = 500, second_height = 150;
constexpr double third_row = 752, third_height = 170;
constexpr int height = 978;

double column_width(std::size_t windows) { return windows == 1 ? 760 : windows == 2 ? 480 : 356; }

class Picture {
  public:
    Picture(const Job& job, const DesignDay& hourly)
        : job_(job),
          hourly_(hourly),
          day_(calculate(job, steps_per_hour)),
          column_(column_width(hourly.windows.size())),
          width_(column_left(hourly.windows.size()) - between + right),
          chart_(static_cast<int>(width_), height) {}

    void draw(const std::string& path) {
        const std::size_t windows = hourly_.windows.size();
        chart_.horizontal_scale(hours_shown(windows > 2 ? 3 : 2));
        for (std::size_t i = 0; i < windows; ++i) irradiance(i);
        for (std::size_t i = 0; i < windows; ++i) temperatures(i);
        chart_.horizontal_scale(hours_shown(1));
        gain();
        chart_.write(path);
    }

  private:
    double column_left(std::size_t i) const {
        return left + static_cast<double>(i) * (column_ + between);
    }
    host::Scale hours_shown(double step) const {
        return host::hours_shown(hourly_.sunrise, hourly_.sunset, step);
    }

    void heading();
    void column_title(std::size_t i);

    void irradiance(std::size_t i);
    double largest_irradiance() const;

    void temperatures(std::size_t i);
    host::Scale temperature_scale() const;
    std::vector<Key> temperature_keys() const;

    void gain();
    std::vector<Key> window_keys() const;

    const Job& job_;
    const DesignDay& hourly_;
    const DesignDay day_;
    double column_, width_;
    host::Chart chart_;
};

void Picture::heading() {
    chart_.text(margin, 38, job_.site.name + ", " + host::date(hourly_.day_of_year),
                {ink, 24, true});
    chart_.text(margin, 68, place(job_.site) + "  ·  " + sun_times(hourly_), {grey, 12});
}

void Picture::column_title(std::size_t i) {
    const WindowDay& window = hourly_.windows[i];
    const double incident = daily_sum(window, &WindowHour::incident);
    const double transmitted = daily_sum(window, &WindowHour::transmitted);
    std::string sun = "no sun in the day";
    if (incident > 0)
        sun = fixed(incident / 1000, 2) + " kWh/m² in the day, " +
              fixed(100 * transmitted / incident, 0) + " % transmitted";
    const double x = column_left(i);
    chart_.text(x, first_row - 46, window.window->name, {ink, 14, true});
    chart_.text(x, first_row - 28, size_and_facing(*window.window), {grey, 12});
    chart_.text(x, first_row - 12, sun, {grey, 12});
}

void Picture::irradiance(std::size_t i) {
    Rows rows;
    for (std::size_t k = 0; k < day_.sun.size(); ++k) {
        const WindowHour& at = day_.windows[i].at[k];
        const double transmitted = at.incident() > 0 ? at.transmitted : none;
        rows.push_back(
            {day_.sun[k].hour, at.ground, at.ground + at.diffuse, at.incident(), transmitted});
    }
    const std::string data = chart_.data(rows);

    chart_.panel({column_left(i), first_row, column_, first_height});
    chart_.vertical_scale(host::round_scale(0, largest_irradiance()), i == 0);
    if (i == 0) {
        heading();
        chart_.title(margin, 112, "Irradiance on the plane of the window, W/m²",
                     {{"■", direct_colour, "direct sun"},
                      {"■", sky_colour, "from the sky"},
                      {"■", ground_colour, "from the ground"},
                      {"━", ink, "transmitted"}});
    }
    column_title(i);
    chart_.plot({area(data, 4, direct_colour), area(data, 3, sky_colour),
                 area(data, 2, ground_colour), curve(data, 5, ink, 2.5)});
}

double Picture::largest_irradiance() const {
    double most = 0;
    for (const WindowDay& window : day_.windows)
        for (const WindowHour& at : window.at) most = std::max(most, at.incident());
    return most;
}

void Picture::temperatures(std::size_t i) {
    const WindowDay& window = day_.windows[i];
    Rows rows;
    for (std::size_t k = 0; k < day_.sun.size(); ++k) {
        const auto panes = window.panes_at(k);
        rows.push_back({day_.sun[k].hour, day_.sun[k].outdoor, job_.day.room});
        rows.back().insert(rows.back().end(), panes.begin(), panes.end());
    }
    const std::string data = chart_.data(rows);

    chart_.panel({column_left(i), second_row, column_, second_height});
    chart_.vertical_scale(temperature_scale(), i == 0);
    if (i == 0) chart_.title(margin, second_row - 26, "Temperatures, °C", temperature_keys());
    std::vector<std::string> curves{curve(data, 3, room_colour, 1.5, "2"),
                                    curve(data, 2, outdoor_colour, 1.5, "2")};
    const auto outermost = static_cast<std::size_t>(window.panes);
    for (std::size_t pane = outermost; pane >= 1; --pane) {
        const char* hue = pane == 1           ? inner_colour
                          : pane == outermost ? outer_colour
                                              : middle_colour;
        curves.push_back(curve(data, 3 + pane, hue, 2));
    }
    chart_.plot(curves);
}

host::Scale Picture::temperature_scale() const {
    double low = std::min(job_.day.room, job_.day.outdoor_min);
    double high = std::max(job_.day.room, job_.day.outdoor_max);
    for (const WindowDay& window : day_.windows) {
        for (std::size_t k = 0; k < window.at.size(); ++k) {
            const auto [least, most] = std::ranges::minmax(window.panes_at(k));
            low = std::min(low, least);
            high = std::max(high, most);
        }
    }
    return host::round_scale(low, high);
}

std::vector<Key> Picture::temperature_keys() const {
    const int panes = std::ranges::max(day_.windows, {}, &WindowDay::panes).panes;
    std::vector<Key> keys{{"━", inner_colour, "pane at the room"}};
    if (panes > 2) keys.push_back({"━", middle_colour, "panes between"});
    if (panes > 1) keys.push_back({"━", outer_colour, "outermost pane"});
    keys.push_back({"╍", outdoor_colour, "outdoor air"});
    keys.push_back({"╍", room_colour, "room"});
    return keys;
}

void Picture::gain() {
    const std::size_t windows = day_.windows.size();
    Rows rows;
    double most = 0;
    for (std::size_t k = 0; k < day_.sun.size(); ++k) {
        rows.push_back({day_.sun[k].hour});
        double sum = 0;
        for (const WindowDay& window : day_.windows)
            rows.back().push_back(sum += window.transmitted_power(k));
        rows.back().push_back(sum > 0 ? sum : none);
        most = std::max(most, sum);
    }
    const std::string data = chart_.data(rows);

    chart_.panel({left, third_row, width_ - left - right, third_height});
    chart_.vertical_scale(host::round_scale(0, 1.2 * most));
    chart_.title(margin, third_row - 26, "Solar gain through the windows, W", window_keys());
    chart_.text(width_ - right, third_row + third_height + 42, "hour, solar time",
                {grey, 12, false, "right"});
    if (const Peak peak = peak_of_all(hourly_); peak.hour > 0)
        chart_.mark(peak.hour, peak.power,
                    fixed(peak.power, 0) + " W at hour " + std::to_string(peak.hour));

    std::vector<std::string> areas;
    for (std::size_t i = windows; i-- > 0;) areas.push_back(area(data, i + 2, window_colours[i]));
    areas.push_back(curve(data, windows + 2, ink, 2.5));
    chart_.plot(areas);
}

std::vector<Key> Picture::window_keys() const {
    std::vector<Key> keys;
    for (const WindowDay& window : hourly_.windows) {
        const double energy = transmitted_energy(window);
        keys.push_back({"■", window_colours[keys.size()],
                        window.window->name + ' ' + fixed(energy / 1000, 2) + " kWh"});
    }
    return keys;
}

}  // namespace

void draw_chart(const Job& job, const DesignDay& day, const std::string& path) {
    Picture(job, day).draw(path);
}

}  // namespace quorvel::designday
