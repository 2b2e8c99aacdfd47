#include "telling/window/shadow_chart.h"

#include <algorithm>
#include <cmath>

#include "calculation/angle.h"
#include "telling/direction.h"
#include "telling/sun.h"
#include "telling/window/times.h"
#include "telling/window/words.h"
#include "text/text.h"

namespace quorvel::window {
namespace {

using host::curve;
using host::fixed;
using host::colour::grey;
using host::colour::ink;

using Rows = std::vector<std::vector<double>>;

constexpr int steps_per_hour = 12;  // of the curves
constexpr std::size_t most_chosen = 6;

constexpr const char* wall_colour = "#f1eee8";
constexpr const char* wall_shadow_colour = "#dcd8d0";
constexpr const char* sun_colour = "#fbd26a";
constexpr const char* shadow_colour = "#8296b3";
constexpr const char* no_sun_colour = "#c5cedb";
constexpr const char* frame_colour = "#4b5160";

// The places of the panels, in pixels.
constexpr double margin = host::chart_margin, left = 74, right = 30, width = 900;
constexpr double first_row = 160, row_gap = 66, column_gap = 28, highest_view = 280;
constexpr double below_views = 70, curve_height = 130, between_curves = 80;
constexpr std::size_t most_columns = 4;

// What is seen of the wall on each side of the window, of its larger measure.
constexpr double least_wall = 0.08, most_wall = 0.4;

// The glass, and of the wall as much as the fins and the overhang need.
Rectangle view_of(const Window& window) {
    const Shades& shades = window.shades;
    const double size = std::max(window.width, window.height);
    double sides[] = {0, 0, 0, 0};  // left, below, right, above
    const auto reach = [&](int side, double far) { sides[side] = std::max(sides[side], far); };
    const auto reach_fin = [&](const Fin& fin, int side) {
        reach(side, fin.offset);
        reach(1, fin.below);
        reach(3, fin.above);
    };
    if (shades.left_fin) reach_fin(*shades.left_fin, 0);
    if (shades.right_fin) reach_fin(*shades.right_fin, 2);
    if (shades.overhang) {
        reach(0, shades.overhang->left);
        reach(2, shades.overhang->right);
        reach(3, shades.overhang->offset);
    }
    for (double& side : sides) side = std::min(side + least_wall * size, most_wall * size);
    return {-sides[0], -sides[1], window.width + sides[2], window.height + sides[3]};
}

bool has_sun(const WindowHour& at) { return at.sunlit >= 0; }

// Evenly spread over those with sun on the window.
std::vector<double> chosen_hours(const Day& day, const WindowDay& window) {
    std::vector<double> sunny, chosen;
    for (std::size_t i = 0; i < window.at.size(); ++i)
        if (has_sun(window.at[i])) sunny.push_back(day.exposure[i].hour);
    if (sunny.empty()) return {9, 12, 15};
    const std::size_t step = (sunny.size() + most_chosen - 1) / most_chosen;
    for (std::size_t i = (sunny.size() - 1) % step / 2; i < sunny.size(); i += step)
        chosen.push_back(sunny[i]);
    return chosen;
}

class Picture {
  public:
    Picture(const DayCase& given, const WindowDay& window, std::vector<double> hours)
        : given_(given),
          window_(*window.window),
          hourly_(window),
          model_(window_, given.site),
          day_(calculate(given.site, given.design, {&window_, 1}, steps_per_hour)),
          hours_(hours.empty() ? chosen_hours(given.day, window) : std::move(hours)),
          view_(view_of(window_)),
          rows_((hours_.size() + most_columns - 1) / most_columns),
          columns_((hours_.size() + rows_ - 1) / rows_),
          scale_(std::min(column_width() / (view_.right - view_.left),
                          highest_view / (view_.top - view_.bottom))),
          chart_(static_cast<int>(width),
                 static_cast<int>(curves_top() + 2 * curve_height + between_curves + 64)) {}

    host::Chart drawn() {
        for (std::size_t i = 0; i < hours_.size(); ++i) view(i);
        sunlit();
        direct_sun();
        return std::move(chart_);
    }

  private:
    double column_width() const {
        const auto n = static_cast<double>(columns_);
        return (width - margin - right - (n - 1) * column_gap) / n;
    }
    double view_height() const { return scale_ * (view_.top - view_.bottom); }
    double curves_top() const {
        return first_row + static_cast<double>(rows_) * (view_height() + row_gap) - row_gap +
               below_views;
    }

    void heading();
    void view(std::size_t i);
    void view_title(double hour, const WindowHour& at, double x, double y);
    Exposure exposure(double hour) const;
    WindowHour at(double hour) const;
    std::string data(const Polygon& polygon);
    std::string outline(const Rectangle& shape, double line_width);
    void add_plates(std::vector<std::string>& parts);
    void begin_curves(double top, const std::string& title, const std::vector<host::Key>& keys,
                      const host::Scale& vertical);
    void sunlit();
    void direct_sun();

    const DayCase& given_;
    const Window& window_;
    const WindowDay& hourly_;
    const Model model_;
    const Day day_;
    const std::vector<double> hours_;
    const Rectangle view_;
    const std::size_t rows_, columns_;
    const double scale_;  // pixels per metre
    host::Chart chart_;
};

Exposure Picture::exposure(double hour) const {
    const Day& day = given_.day;
    return {design_sky(given_.site, day.constants, day.day_of_year, hour), hour, given_.design.room,
            given_.design.outdoor_max};
}

WindowHour Picture::at(double hour) const {
    return model_.at(exposure(hour), given_.day.constants.ground_reflectance);
}

std::string totals(const WindowDay& window) {
    double unshaded = 0, reaching = 0, sunlit = 0;
    int hours = 0;
    for (const WindowHour& at : window.at) {
        if (!has_sun(at)) continue;
        ++hours;
        sunlit += at.sunlit;
        unshaded += at.direct_unshaded;
        reaching += at.direct;
    }
    if (hours == 0 || !(unshaded > 0)) return "no sun on the window";
    return "sun at " + std::to_string(hours) + (hours == 1 ? " full hour" : " full hours") + ", " +
           fixed(100 * sunlit / hours, 0) + " % sunlit on average; " + fixed(reaching / 1000, 2) +
           " of " + fixed(unshaded / 1000, 2) + " kWh/m² direct sun reach it, " +
           fixed(100 * reaching / unshaded, 0) + " %";
}

void Picture::heading() {
    const Day& day = given_.day;
    chart_.heading(window_.name + ", " + given_.title(),
                   size_and_facing(window_) + "  ·  " +
                       host::on_the_globe(given_.site.latitude, "N", "S") + ", " +
                       host::sun_times(day.sunrise, day.sunset));
    chart_.text(margin, 92, "Day: " + totals(hourly_), {ink, 12, true});
}

void Picture::view_title(double hour, const WindowHour& at, double x, double y) {
    const host::Sun sun = exposure(hour).sky.sun;
    const std::string sunlit = has_sun(at) ? fixed(100 * at.sunlit, 0) + " % sunlit" : "no sun";
    chart_.text(x, y - 28, host::clock_time(hour) + "  ·  " + sunlit, {ink, 14, true});
    if (!sun.is_up()) return chart_.text(x, y - 11, "the sun is down", {grey, 12});
    chart_.text(x, y - 11,
                "sun " + fixed(host::degrees(sun.altitude), 0) + "° high, " +
                    host::compass_point(host::degrees(sun.azimuth)),
                {grey, 12});
}

// The corners in pixels, round to the first again.
std::string Picture::data(const Polygon& polygon) {
    Rows rows;
    for (std::size_t i = 0; i <= polygon.size(); ++i) {
        const Vector& corner = polygon[i % polygon.size()];
        rows.push_back({scale_ * (corner[0] - view_.left), scale_ * (view_.top - corner[1])});
    }
    return chart_.data(rows);
}

std::string Picture::outline(const Rectangle& shape, double line_width) {
    return curve(data(shape.polygon()), 2, frame_colour, line_width);
}

// The fins and the overhang as they are seen from the front.
void Picture::add_plates(std::vector<std::string>& parts) {
    const Window& window = window_;
    const Shades& shades = window.shades;
    const auto add_fin = [&](const Fin& fin, double x) {
        parts.push_back(outline({x, -fin.below, x, window.height + fin.above}, 4));
    };
    if (shades.left_fin) add_fin(*shades.left_fin, -shades.left_fin->offset);
    if (shades.right_fin) add_fin(*shades.right_fin, window.width + shades.right_fin->offset);
    if (!shades.overhang) return;
    const double root = window.height + shades.overhang->offset;
    const double edge =
        root - shades.overhang->depth * std::sin(host::radians(shades.overhang->slope));
    parts.push_back(
        outline({-shades.overhang->left, edge, window.width + shades.overhang->right, root}, 4));
}

// The wall and the glass, with the shadows on both.
void Picture::view(std::size_t i) {
    const double hour = hours_[i];
    const WindowHour at = this->at(hour);
    const host::Sun sun = exposure(hour).sky.sun;
    const Shading& shading = model_.shading();
    const std::size_t row = i / columns_, column = i % columns_;
    const double x = margin + static_cast<double>(column) * (column_width() + column_gap);
    const double y = first_row + static_cast<double>(row) * (view_height() + row_gap);
    chart_.canvas({x, y, scale_ * (view_.right - view_.left), view_height()});
    if (i == 0) heading();
    view_title(hour, at, x, y);

    std::vector<std::string> parts{host::polygon(data(view_.polygon()), wall_colour)};
    for (const Polygon& shadow : shading.shadows(sun, view_))
        parts.push_back(host::polygon(data(shadow), wall_shadow_colour));
    const Rectangle glass = shading.glass();
    parts.push_back(host::polygon(data(glass.polygon()), has_sun(at) ? sun_colour : no_sun_colour));
    for (const Polygon& shadow : shading.shadows(sun, glass))
        parts.push_back(host::polygon(data(shadow), shadow_colour));
    parts.push_back(outline(glass, 1.5));
    add_plates(parts);
    chart_.plot(parts);
}

void Picture::begin_curves(double top, const std::string& title, const std::vector<host::Key>& keys,
                           const host::Scale& vertical) {
    chart_.panel({left, top, width - left - right, curve_height});
    chart_.horizontal_scale(host::hours_shown(day_.sunrise, day_.sunset, 1));
    chart_.vertical_scale(vertical);
    chart_.title(top - 22, title, keys);
}

void Picture::sunlit() {
    Rows rows;
    const auto& at = day_.windows[0].at;
    for (std::size_t i = 0; i < at.size(); ++i)
        rows.push_back({day_.exposure[i].hour, 100 * at[i].sunlit});
    begin_curves(curves_top(), "Sunlit part of the window, %", {}, {0, 100, 25});
    for (const double hour : hours_)
        if (const WindowHour then = this->at(hour); has_sun(then))
            chart_.mark(hour, 100 * then.sunlit, "");
    chart_.plot({curve(chart_.data(rows), 2, ink, 2.5)});
}

void Picture::direct_sun() {
    Rows rows;
    double most = 0;
    for (const std::size_t i : drawn_of(day_, 10)) {
        const WindowHour& at = day_.windows[0].at[i];
        rows.push_back({day_.exposure[i].hour, at.direct_unshaded, at.direct});
        most = std::max(most, at.direct_unshaded);
    }
    const double top = curves_top() + curve_height + between_curves;
    begin_curves(top, "Direct sun on the plane of the window, W/m²",
                 {{"■", sun_colour, "on the glass"}, {"■", shadow_colour, "kept off by shading"}},
                 host::round_scale(0, most));
    chart_.text(width - right, top + curve_height + 42, "hour, solar time",
                {grey, 12, false, "right"});
    const std::string data = chart_.data(rows);
    chart_.plot({host::area(data, 2, shadow_colour), host::area(data, 3, sun_colour)});
}

}  // namespace

host::Chart shadow_chart(const DayCase& day, const WindowDay& window,
                         const std::vector<double>& hours) {
    return Picture(day, window, hours).drawn();
}

}  // namespace quorvel::window
