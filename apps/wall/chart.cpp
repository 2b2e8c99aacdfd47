#include "wall/chart.h"

#include <algorithm>
#include <cmath>

#include "quorvel/psychro.h"
#include "telling/chart.h"
#include "telling/text.h"
#include "wall/drawing.h"
#include "wall/report.h"

namespace quorvel::wall {
namespace {

using host::curve;
using host::fixed;
using host::shortest;
using host::colour::grey;
using host::colour::ink;

constexpr const char* temperature_colour = "#c8452f";
constexpr const char* saturation_colour = "#3c8d5a";
constexpr const char* vapour_colour = "#2b6cb8";

// The places of the panels, in pixels.
constexpr double margin = 24, left = 74, plot_width = 640, right = left + plot_width;
constexpr double legend_left = right + 40, legend_row = 40, legend_width = 340;
constexpr double numbers_row = 160, section_top = 186;
constexpr double temperature_height = 240, pressure_top = 508, pressure_height = 270;
constexpr double width = legend_left + legend_width;
constexpr double height = pressure_top + pressure_height + 64;
constexpr double number_spacing = 17;  // between the numbers of neighbouring layers, at least

constexpr double air = 0.16;           // of the thickness, shown on either side
constexpr int steps_per_segment = 24;  // smooth curves of saturation

class Picture {
  public:
    Picture(const Job& job, const Construction& construction)
        : job_(job),
          construction_(construction),
          profile_(wettest(construction)),
          thickness_(std::max(1000 * construction.thickness, 1.0)),
          chart_(static_cast<int>(width), static_cast<int>(drawn_height())) {
        place_layers();
        trace();
    }

    void draw(const std::string& path) {
        legend();
        numbers();
        section(section_top, temperature_height);
        temperatures();
        section(pressure_top, pressure_height);
        pressures();
        chart_.write(path);
    }

  private:
    double drawn_height() const {  // many layers make a long legend
        return std::max(height,
                        section_top + 24 + legend_row * static_cast<double>(job_.layers.size()));
    }
    double pixel(double x) const {  // across a panel, of a place in mm from the inside surface
        return plot_width * (x / thickness_ + air) / (1 + 2 * air);
    }
    void place_layers();
    void trace();

    void heading();
    void legend();
    void numbers();
    void section(double top, double height);
    void temperatures();
    void pressures();
    void condensing_places();
    std::vector<std::string> begin_panel(double top, double height, const host::Scale& vertical);
    void dots(double Interface::*quantity, const char* colour);

    const Job& job_;
    const Construction& construction_;
    const Profile& profile_;
    double thickness_;                       // mm
    std::vector<double> faces_;              // mm from the inside surface, of every interface
    std::vector<Band> bands_;                // across a panel
    std::vector<std::vector<double>> rows_;  // mm, °C, saturation and vapour pressure in Pa
    host::Chart chart_;
};

void Picture::place_layers() {
    double x = 0;
    faces_.push_back(x);
    for (const Layer& layer : job_.layers) {
        const double next = x + 1000 * layer.thickness();
        bands_.push_back({&layer, pixel(x), pixel(next)});
        faces_.push_back(x = next);
    }
}

// From air to air. Through the film of air at a surface, drawn half as thick as the air shown, the
// temperature falls in a straight line.
void Picture::trace() {
    struct Node {
        double x, temperature, vapour_pressure;
    };
    const auto of_air = [](double x, const Air& air) {
        const auto t = static_cast<float>(air.temperature), rh = static_cast<float>(air.humidity);
        return Node{x, air.temperature, lib::PSVP(t, rh)};
    };
    const Climate& climate = *profile_.climate;
    const double film = air / 2 * thickness_;
    std::vector<Node> nodes{of_air(-2 * film, climate.inside), of_air(-film, climate.inside)};
    for (std::size_t i = 0; i < faces_.size(); ++i)
        nodes.push_back({faces_[i], profile_.at[i].temperature, profile_.at[i].vapour_pressure});
    nodes.push_back(of_air(thickness_ + film, climate.outside));
    nodes.push_back(of_air(thickness_ + 2 * film, climate.outside));

    for (std::size_t i = 0; i + 1 < nodes.size(); ++i) {
        for (int step = 0; step <= steps_per_segment; ++step) {
            const double s = static_cast<double>(step) / steps_per_segment;
            const double t = std::lerp(nodes[i].temperature, nodes[i + 1].temperature, s);
            rows_.push_back({std::lerp(nodes[i].x, nodes[i + 1].x, s), t,
                             lib::PSSVP(static_cast<float>(t)),
                             std::lerp(nodes[i].vapour_pressure, nodes[i + 1].vapour_pressure, s)});
        }
    }
}

void Picture::heading() {
    const CyclicResponse& cyclic = construction_.cyclic;
    const Climate& climate = *profile_.climate;
    const bool monthly = construction_.profiles.size() > 1;
    chart_.text(margin, 38, job_.name, {ink, 24, true});
    chart_.text(margin, 68,
                "U-value " + fixed(construction_.u_value, 2) + " W/m²K  ·  admittance " +
                    fixed(cyclic.admittance, 2) + " W/m²K, leads " +
                    fixed(cyclic.admittance_lead, 1) + " h  ·  decrement factor " +
                    fixed(cyclic.decrement_factor, 2) + ", lags " + fixed(cyclic.decrement_lag, 1) +
                    " h  ·  surface factor " + fixed(cyclic.surface_factor, 2) + ", lags " +
                    fixed(cyclic.surface_lag, 1) + " h",
                {grey, 12});
    chart_.text(
        margin, 92,
        (monthly ? climate.name + ": " : "") + both_climates(climate) + ".  " + verdict(profile_),
        {profile_.condenses() ? vapour_colour : ink, 13, true});
}

std::string told(const Layer& layer, double resistance, double vapour_resistance) {
    if (const auto* membrane = std::get_if<Membrane>(&layer.make))
        return "vapour resistance " + shortest(membrane->vapour_resistance) + " GN s/kg";
    const auto* solid = std::get_if<Solid>(&layer.make);
    return fixed(1000 * layer.thickness(), 1) + " mm" +
           (solid ? ", " + shortest(solid->conductivity) + " W/mK" : ", air") + ", " +
           fixed(resistance, 2) + " m²K/W, " + fixed(vapour_resistance, 2) + " GN s/kg";
}

// A sample of each layer with its number and what it is made of.
void Picture::legend() {
    constexpr double sample_width = 30, sample_height = 26;
    for (std::size_t i = 0; i < job_.layers.size(); ++i) {
        const Layer& layer = job_.layers[i];
        const double y = section_top + legend_row * static_cast<double>(i);
        chart_.canvas({legend_left + 24, y, sample_width, sample_height});
        chart_.text(legend_left, y + 13, std::to_string(i + 1), {ink, 13, true});
        chart_.text(legend_left + 66, y + 5, layer.name, {ink, 13});
        chart_.text(legend_left + 66, y + 21,
                    told(layer, construction_.resistance[i], construction_.vapour_resistance[i]),
                    {grey, 11});
        chart_.plot(draw_section(chart_, {{&layer, 0, sample_width}}, sample_height));
    }
}

// The numbers of the layers above the section; those of thin layers are moved apart.
void Picture::numbers() {
    const double below = section_top - numbers_row;
    chart_.canvas({left, numbers_row, plot_width, below});
    heading();
    chart_.text(left + pixel(0) - 14, numbers_row + 4, "inside", {grey, 12, false, "right"});
    chart_.text(left + pixel(thickness_) + 14, numbers_row + 4, "outside", {grey, 12});

    std::vector<double> middles, places;
    for (const Band& band : bands_) middles.push_back((band.left + band.right) / 2);
    for (const double middle : middles)
        places.push_back(places.empty() ? middle
                                        : std::max(middle, places.back() + number_spacing));
    double limit = plot_width;
    for (std::size_t i = places.size(); i-- > 0; limit = places[i] - number_spacing)
        places[i] = std::min(places[i], limit);

    std::vector<std::string> leaders;
    for (std::size_t i = 0; i < places.size(); ++i) {
        chart_.text(left + places[i], numbers_row, std::to_string(i + 1),
                    {ink, 13, true, "center"});
        leaders.push_back(curve(chart_.data({{places[i], 10}, {middles[i], below}}), 2, grey, 1));
    }
    chart_.plot(leaders);
}

void Picture::section(double top, double height) {
    chart_.canvas({left, top, plot_width, height});
    auto parts = draw_section(chart_, bands_, height);
    for (std::size_t i = 0; i < faces_.size(); ++i) {
        const double x = pixel(faces_[i]);
        if (profile_.at[i].condenses)
            parts.push_back(curve(chart_.data({{x, 0}, {x, height}}), 2, vapour_colour, 2, "2"));
    }
    chart_.plot(parts);
}

// Gives what is plotted first: the two surfaces of the construction.
std::vector<std::string> Picture::begin_panel(double top, double height,
                                              const host::Scale& vertical) {
    chart_.panel({left, top, plot_width, height});
    host::Scale across = host::round_scale(0, thickness_);
    across.low = -air * thickness_;
    across.high = (1 + air) * thickness_;
    chart_.horizontal_scale(across);
    chart_.vertical_scale(vertical);
    std::vector<std::string> parts;
    for (const double x : {faces_.front(), faces_.back()})
        parts.push_back(curve(chart_.data({{x, vertical.low}, {x, vertical.high}}), 2, ink, 1.5));
    return parts;
}

void Picture::dots(double Interface::*quantity, const char* colour) {
    for (std::size_t i = 0; i < faces_.size(); ++i)
        chart_.mark(faces_[i], profile_.at[i].*quantity, "", colour);
}

void Picture::temperatures() {
    const auto [least, most] =
        std::ranges::minmax(rows_, {}, [](const auto& row) { return row[1]; });
    auto parts = begin_panel(section_top, temperature_height, host::round_scale(least[1], most[1]));
    chart_.title(margin, section_top - 56, "Temperature, °C", {});
    dots(&Interface::temperature, temperature_colour);
    parts.push_back(curve(chart_.data(rows_), 2, temperature_colour, 2.5));
    chart_.plot(parts);
}

void Picture::pressures() {
    double most = 0;
    for (const auto& row : rows_) most = std::max({most, row[2], row[3]});
    auto parts = begin_panel(pressure_top, pressure_height, host::round_scale(0, most));
    chart_.title(margin, pressure_top - 26, "Pressure of vapour, Pa",
                 {{"━", saturation_colour, "at saturation"}, {"━", vapour_colour, "in the wall"}});
    chart_.text(right, pressure_top + pressure_height + 42, "mm from the inside surface",
                {grey, 12, false, "right"});
    dots(&Interface::vapour_pressure, vapour_colour);
    condensing_places();
    const std::string rows = chart_.data(rows_);
    parts.push_back(curve(rows, 3, saturation_colour, 2.5));
    parts.push_back(curve(rows, 4, vapour_colour, 2.5));
    chart_.plot(parts);
}

// Beside their lines at the top of the panel, one below the other.
void Picture::condensing_places() {
    double y = pressure_top + 14;
    for (std::size_t i = 0; i < faces_.size(); ++i) {
        const Interface& at = profile_.at[i];
        if (!at.condenses) continue;
        const bool at_right = pixel(faces_[i]) > 0.7 * plot_width;
        const std::string rate =
            std::isnan(at.condensate) ? "" : ", " + fixed(at.condensate, 1) + " g/m² a day";
        chart_.text(left + pixel(faces_[i]) + (at_right ? -8 : 8), y, "condenses" + rate,
                    {vapour_colour, 12, true, at_right ? "right" : "left"});
        y += 18;
    }
}

}  // namespace

void draw_chart(const Job& job, const Construction& construction, const std::string& path) {
    Picture(job, construction).draw(path);
}

}  // namespace quorvel::wall
