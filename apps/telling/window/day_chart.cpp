#include "telling/window/day_chart.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "telling/sun.h"
#include "telling/window/colours.h"
#include "telling/window/times.h"
#include "telling/window/words.h"
#include "text/text.h"

namespace quorvel::window {
namespace {

using host::area;
using host::curve;
using host::fixed;
using host::Key;
using host::colour::grey;
using host::colour::ink;

using Rows = std::vector<std::vector<double>>;

constexpr double lowest_smooth = 25;  // degrees of the sun's altitude, see drawn_of
// The sky of Perez has small steps at any height of the sun, which these do not tell from a curve.
// Every number written is one of the hourly table.
constexpr int steps_per_hour = 2;

// The places of the panels, in pixels.
constexpr double left = 74, right = 30, between = 28;
constexpr double irradiance_top = 216, irradiance_height = 170;
constexpr double heat_top = irradiance_top + irradiance_height + 112, heat_height = 170;
constexpr double temperature_top = heat_top + heat_height + 88, temperature_height = 150;
constexpr double all_top = temperature_top + temperature_height + 92, all_height = 150;
constexpr int height_of_one = int(temperature_top + temperature_height + 58),
              height_of_all = int(all_top + all_height + 58);

double column_width(std::size_t windows) { return windows == 1 ? 860 : windows == 2 ? 480 : 356; }

class Picture {
  public:
    explicit Picture(const DayCase& given)
        : given_(given),
          hourly_(given.day),
          day_(calculate(given.site, given.design, given.windows, steps_per_hour)),
          drawn_(drawn_of(day_, lowest_smooth)),
          column_(column_width(count())),
          width_(column_left(count()) - between + right),
          chart_(static_cast<int>(width_), count() > 1 ? height_of_all : height_of_one) {}

    host::Chart drawn() {
        for (std::size_t i = 0; i < count(); ++i) irradiance(i);
        for (std::size_t i = 0; i < count(); ++i) heat(i);
        for (std::size_t i = 0; i < count(); ++i) temperatures(i);
        if (count() > 1) all_windows();
        return std::move(chart_);
    }

  private:
    std::size_t count() const { return hourly_.windows.size(); }
    double column_left(std::size_t i) const {
        return left + static_cast<double>(i) * (column_ + between);
    }
    void begin(double x, double y, double width, double height, const host::Scale& scale,
               bool labelled);
    void say_the_hour(double bottom);

    void heading();
    void column_title(std::size_t i);
    void irradiance(std::size_t i);
    void heat(std::size_t i);
    host::Scale heat_scale() const;
    void temperatures(std::size_t i);
    host::Scale temperature_scale() const;
    std::vector<Key> temperature_keys() const;
    const char* layer_colour(const WindowDay& window, std::size_t layer) const;
    void all_windows();

    template <class Member>
    double greatest(Member member) const {
        double most = 0;
        for (const WindowDay& window : day_.windows)
            for (const WindowHour& at : window.at) most = std::max(most, std::invoke(member, at));
        return most;
    }

    const DayCase& given_;
    const Day& hourly_;
    const Day day_;
    const std::vector<std::size_t> drawn_;  // of its times
    double column_, width_;
    host::Chart chart_;
};

void Picture::begin(double x, double y, double width, double height, const host::Scale& scale,
                    bool labelled) {
    chart_.panel({x, y, width, height});
    const double step = width > 700 ? 1 : width > 400 ? 2 : 3;
    chart_.horizontal_scale(host::hours_shown(hourly_.sunrise, hourly_.sunset, step));
    chart_.vertical_scale(scale, labelled);
}

void Picture::say_the_hour(double bottom) {
    chart_.text(width_ - right, bottom + 44, "hour, solar time", {grey, 12, false, "right"});
}

void Picture::heading() {
    chart_.heading(given_.title(),
                   place(given_.site) + "  ·  " +
                       host::sun_times(hourly_.sunrise, hourly_.sunset, hourly_.solar_minus_clock));
    std::vector<Key> keys{{"■", direct_colour, "direct sun"},
                          {"■", sky_colour, "from the sky"},
                          {"■", ground_colour, "from the ground"}};
    if (std::ranges::any_of(given_.windows, [](const Window& w) { return w.shades.any(); }))
        keys.push_back({"╍", grey, "unshaded"});
    chart_.title(112, "Irradiance on the glass, W/m²", keys);
}

void Picture::column_title(std::size_t i) {
    const WindowDay& window = hourly_.windows[i];
    const double x = column_left(i);
    const auto fitting = [&](const std::string& text) {
        return host::shortened(text, static_cast<std::size_t>(column_ / 7.2));
    };
    chart_.text(x, irradiance_top - 68, window.window->name, {ink, 14, true});
    chart_.text(x, irradiance_top - 50, size_and_facing(*window.window), {grey, 12});
    chart_.text(x, irradiance_top - 34, fitting(glazing_told(*window.window)), {grey, 12});
    chart_.text(x, irradiance_top - 18, fitting(blind_told(*window.window)), {grey, 12});
}

void Picture::irradiance(std::size_t i) {
    const WindowDay& window = day_.windows[i];
    const bool shaded = window.window->shades.any();
    Rows rows;
    for (const std::size_t k : drawn_) {
        const WindowHour& at = window.at[k];
        rows.push_back({day_.exposure[k].hour, at.ground, at.ground + at.diffuse, at.incident(),
                        at.incident() + at.direct_unshaded - at.direct});
    }
    begin(column_left(i), irradiance_top, column_, irradiance_height,
          host::round_scale(0, greatest([](const WindowHour& at) {
                                return at.incident() + at.direct_unshaded - at.direct;
                            })),
          i == 0);
    if (i == 0) heading();
    column_title(i);
    const std::string data = chart_.data(rows);
    std::vector<std::string> parts{area(data, 4, direct_colour), area(data, 3, sky_colour),
                                   area(data, 2, ground_colour)};
    if (shaded) parts.push_back(curve(data, 5, grey, 1.5, "2"));
    chart_.plot(parts);
}

host::Scale Picture::heat_scale() const {
    double low = 0, high = 1;
    for (const WindowDay& window : day_.windows)
        for (const WindowHour& at : window.at) {
            low = std::min({low, at.net(), at.conduction()});
            high = std::max({high, at.net(), at.solar_gain(), at.solar_gain_without_blind()});
        }
    return host::round_scale(low, 1.12 * high);
}

void Picture::heat(std::size_t i) {
    const WindowDay& window = day_.windows[i];
    Rows rows;
    for (const std::size_t k : drawn_) {
        const WindowHour& at = window.at[k];
        rows.push_back({day_.exposure[k].hour, at.solar_gain(), at.transmitted(), at.net(),
                        at.solar_gain_without_blind()});
    }
    begin(column_left(i), heat_top, column_, heat_height, heat_scale(), i == 0);
    if (i == 0) {
        std::vector<Key> keys{{"■", gain_colour, "solar heat gain"},
                              {"■", direct_colour, "of it transmitted"},
                              {"━", ink, "net"}};
        if (std::ranges::any_of(day_.windows,
                                [](const WindowDay& w) { return w.blind.has_value(); }))
            keys.push_back({"╍", blind_colour, "without blind"});
        chart_.title(heat_top - 50, "Heat into the room, W/m²", keys);
    }
    const WindowDay& hourly = hourly_.windows[i];
    if (const Peak peak = peak_of(hourly, &WindowHour::solar_gain); peak.hour > 0) {
        chart_.mark(peak.hour, peak.power / hourly.window->area, "");
        chart_.text(column_left(i), heat_top - 24,
                    "peak " + fixed(peak.power, 0) + " W at hour " + std::to_string(peak.hour) +
                        "  ·  day " + fixed(daily_energy(hourly, &WindowHour::solar_gain), 2) +
                        " kWh",
                    {grey, 12});
    }
    const std::string data = chart_.data(rows);
    std::vector<std::string> parts{area(data, 2, gain_colour), area(data, 3, direct_colour),
                                   curve(data, 4, ink, 2)};
    if (window.blind) parts.push_back(curve(data, 5, blind_colour, 2, "2"));
    chart_.plot(parts);
}

const char* Picture::layer_colour(const WindowDay& window, std::size_t layer) const {
    if (window.blind == layer) return blind_colour;
    const std::size_t first = window.blind == 0 ? 1 : 0;
    const std::size_t last = window.layers - (window.blind == window.layers - 1 ? 2 : 1);
    return layer == last ? inner_colour : layer == first ? outer_colour : middle_colour;
}

void Picture::temperatures(std::size_t i) {
    const WindowDay& window = day_.windows[i];
    Rows rows;
    for (const std::size_t k : drawn_) {
        rows.push_back({day_.exposure[k].hour, day_.exposure[k].outdoor, day_.exposure[k].room});
        for (std::size_t layer = 0; layer < window.layers; ++layer)
            rows.back().push_back(window.at[k].gain.temperature[layer]);
    }
    begin(column_left(i), temperature_top, column_, temperature_height, temperature_scale(),
          i == 0);
    if (i == 0) chart_.title(temperature_top - 26, "Temperatures, °C", temperature_keys());
    if (count() == 1) say_the_hour(temperature_top + temperature_height);
    const std::string data = chart_.data(rows);
    std::vector<std::string> curves{curve(data, 3, room_colour, 1.5, "2"),
                                    curve(data, 2, outdoor_colour, 1.5, "2")};
    for (std::size_t layer = 0; layer < window.layers; ++layer)
        curves.push_back(curve(data, 4 + layer, layer_colour(window, layer), 2));
    chart_.plot(curves);
}

host::Scale Picture::temperature_scale() const {
    double low = given_.design.room, high = low;
    for (const Exposure& exposure : day_.exposure) {
        low = std::min(low, exposure.outdoor);
        high = std::max(high, exposure.outdoor);
    }
    for (const WindowDay& window : day_.windows)
        for (const WindowHour& at : window.at)
            for (std::size_t k = 0; k < window.layers; ++k) {
                low = std::fmin(low, at.gain.temperature[k]);
                high = std::fmax(high, at.gain.temperature[k]);
            }
    return host::round_scale(low, high);
}

std::vector<Key> Picture::temperature_keys() const {
    bool several = false, between_panes = false, blind = false;
    for (const WindowDay& window : day_.windows) {
        const std::size_t panes = window.layers - (window.blind ? 1 : 0);
        several = several || panes > 1;
        between_panes = between_panes || panes > 2;
        blind = blind || window.blind.has_value();
    }
    std::vector<Key> keys{{"━", inner_colour, "pane at the room"}};
    if (between_panes) keys.push_back({"━", middle_colour, "panes between"});
    if (several) keys.push_back({"━", outer_colour, "outermost pane"});
    if (blind) keys.push_back({"━", blind_colour, "blind"});
    keys.push_back({"╍", outdoor_colour, "outdoor air"});
    keys.push_back({"╍", room_colour, "room"});
    return keys;
}

void Picture::all_windows() {
    Rows rows;
    double most = 1;
    for (const std::size_t k : drawn_) {
        rows.push_back({day_.exposure[k].hour});
        double sum = 0;
        for (const WindowDay& window : day_.windows)
            rows.back().push_back(sum += window.power(k, &WindowHour::solar_gain));
        rows.back().push_back(sum);
        most = std::max(most, sum);
    }
    begin(left, all_top, width_ - left - right, all_height, host::round_scale(0, 1.2 * most), true);
    std::vector<Key> keys;
    for (const WindowDay& window : hourly_.windows)
        keys.push_back({"■", series_colour(keys.size()),
                        host::shortened(window.window->name, 26) + ' ' +
                            fixed(daily_energy(window, &WindowHour::solar_gain), 2) + " kWh"});
    chart_.title(all_top - 26, "Solar heat gain of all windows, W", keys);
    say_the_hour(all_top + all_height);
    if (const Peak peak = peak_of(hourly_.windows, &WindowHour::solar_gain); peak.hour > 0)
        chart_.mark(peak.hour, peak.power,
                    fixed(peak.power, 0) + " W at hour " + std::to_string(peak.hour));
    const std::string data = chart_.data(rows);
    std::vector<std::string> areas;
    for (std::size_t i = count(); i-- > 0;) areas.push_back(area(data, i + 2, series_colour(i)));
    areas.push_back(curve(data, count() + 2, ink, 2.5));
    chart_.plot(areas);
}

}  // namespace

host::Chart day_chart(const DayCase& day) { return Picture(day).drawn(); }

}  // namespace quorvel::window
