#include "telling/wall/section_chart.h"

#include <algorithm>
#include <cmath>

#include "quorvel/psychro.h"
#include "telling/value.h"
#include "telling/wall/hatching.h"
#include "telling/wall/heading.h"
#include "text/text.h"

namespace quorvel::wall {
namespace {

using host::curve;
using host::colour::grey;
using host::colour::ink;

constexpr const char* temperature_colour = "#c8452f";
constexpr const char* saturation_colour = "#3c8d5a";
constexpr const char* vapour_colour = "#2b6cb8";

// The places of the panels, in pixels.
constexpr double left = 74, plot_width = 640, right = left + plot_width;
constexpr double legend_left = right + 40, legend_row = 40, legend_width = 420;
constexpr double numbers_row = 190, section_top = 216;
constexpr double temperature_height = 240, pressure_top = 556, pressure_height = 270;
constexpr double width = legend_left + legend_width;
constexpr double height = pressure_top + pressure_height + 64;
constexpr double number_spacing = 17, rate_spacing = 52;  // between neighbouring texts, at least

constexpr double air = 0.16;           // of the thickness, shown on either side
constexpr int steps_per_segment = 12;  // smooth curves of saturation

// Texts at these places, moved apart to so much and kept within the plot.
std::vector<double> moved_apart(const std::vector<double>& middles, double spacing) {
    std::vector<double> places;
    for (const double middle : middles)
        places.push_back(places.empty() ? middle : std::max(middle, places.back() + spacing));
    double limit = plot_width;
    for (std::size_t i = places.size(); i-- > 0; limit = places[i] - spacing)
        places[i] = std::min(places[i], limit);
    return places;
}

class Picture {
  public:
    Picture(const Subject& subject, const Question& question, const Assessment& assessment,
            std::size_t month)
        : subject_(subject),
          question_(question),
          assessment_(assessment),
          month_(month),
          climate_(question.climates[month]),
          path_(assessment.path),
          profile_(profile_of(assessment, month)),
          section_(assessment.sections[question.section]),
          thickness_(std::max(1000 * assessment.thickness, 1.0)),
          chart_(static_cast<int>(width), static_cast<int>(drawn_height())) {
        place_layers();
        trace();
    }

    host::Chart drawn() {
        legend();
        numbers();
        section(section_top, temperature_height);
        temperatures();
        section(pressure_top, pressure_height);
        pressures();
        return chart_;
    }

  private:
    double drawn_height() const {  // many layers make a long legend
        return std::max(
            height,
            section_top + 24 + legend_row * static_cast<double>(question_.element.layers.size()));
    }
    double pixel(double x) const {  // across a panel, of a place in mm from the inside surface
        return plot_width * (x / thickness_ + air) / (1 + 2 * air);
    }
    double millimetres(std::size_t place) const { return 1000 * path_.places[place].position; }
    bool gains(std::size_t place) const { return profile_.gain[place] >= least_water; }

    void place_layers();
    void trace();
    void legend();
    void numbers();
    void section(double top, double height);
    void temperatures();
    void pressures();
    void rates();
    std::vector<std::string> begin_panel(double top, double height, const host::Scale& vertical);
    void dots(const std::vector<double>& quantity, const char* colour);

    const Subject& subject_;
    const Question& question_;
    const Assessment& assessment_;
    std::size_t month_;
    const Climate& climate_;
    const Path& path_;
    const Profile& profile_;
    const Section& section_;
    double thickness_;                       // mm
    std::vector<Band> bands_;                // across a panel
    std::vector<std::vector<double>> rows_;  // mm, °C, saturation and vapour pressure in Pa
    host::Chart chart_;
};

void Picture::place_layers() {
    double x = 0;
    for (const Slab& slab : section_.slabs) {
        const double next = x + 1000 * slab.thickness;
        bands_.push_back({slab.part, pixel(x), pixel(next)});
        x = next;
    }
}

// From air to air. Through the film of air at a surface, drawn half as thick as the air shown, the
// temperature falls in a straight line.
void Picture::trace() {
    struct Node {
        double x, temperature, vapour_pressure;
    };
    const auto of_air = [](double x, const Air& air) {
        return Node{x, air.temperature, air.vapour_pressure()};
    };
    const double film = air / 2 * thickness_;
    std::vector<Node> nodes{of_air(-2 * film, climate_.inside), of_air(-film, climate_.inside)};
    for (std::size_t i = 0; i < path_.places.size(); ++i)
        nodes.push_back({millimetres(i), profile_.temperature[i], profile_.pressure[i]});
    nodes.push_back(of_air(thickness_ + film, climate_.outside));
    nodes.push_back(of_air(thickness_ + 2 * film, climate_.outside));

    for (std::size_t i = 0; i + 1 < nodes.size(); ++i) {
        for (int step = 0; step <= steps_per_segment; ++step) {
            const double s = static_cast<double>(step) / steps_per_segment;
            const double t = std::lerp(nodes[i].temperature, nodes[i + 1].temperature, s);
            rows_.push_back({std::lerp(nodes[i].x, nodes[i + 1].x, s), t,
                             lib::saturation_pressure(t),
                             std::lerp(nodes[i].vapour_pressure, nodes[i + 1].vapour_pressure, s)});
        }
    }
}

std::string told(const Slab& slab) {
    if (slab.thickness == 0)
        return "vapour resistance " + told_with_unit(resistance_to_vapour, slab.vapour_resistance);
    const auto* solid = std::get_if<Solid>(&slab.part->make);
    return told_with_unit(layer_thickness, 1000 * slab.thickness) +
           (solid ? ", " + told_with_unit(layer_conductivity, solid->conductivity) : ", air") +
           ", " + told_with_unit(resistance_to_heat, slab.resistance) + ", " +
           told_with_unit(resistance_to_vapour, slab.vapour_resistance);
}

// A sample of each layer with its number and what it is made of.
void Picture::legend() {
    constexpr double sample_width = 30, sample_height = 26;
    for (std::size_t i = 0; i < section_.slabs.size(); ++i) {
        const Slab& slab = section_.slabs[i];
        const double y = section_top + legend_row * static_cast<double>(i);
        chart_.canvas({legend_left + 24, y, sample_width, sample_height});
        chart_.text(legend_left, y + 13, std::to_string(i + 1), {ink, 13, true});
        chart_.text(legend_left + 66, y + 5, slab.part->name, {ink, 13});
        chart_.text(legend_left + 66, y + 21, told(slab), {grey, 11});
        chart_.plot(draw_section(chart_, {{slab.part, 0, sample_width}}, sample_height));
    }
}

// The numbers of the layers above the section; those of thin layers are moved apart.
void Picture::numbers() {
    const double below = section_top - numbers_row;
    chart_.canvas({left, numbers_row, plot_width, below});
    const bool monthly = question_.climates.size() > 1;
    draw_heading(chart_, subject_, question_, assessment_,
                 (monthly ? month_name(month_) + ": " : "") + wall::told(climate_));
    chart_.title(numbers_row - 30, "Temperature, °C", {});
    chart_.text(left + pixel(0) - 14, numbers_row + 4, "inside", {grey, 12, false, "right"});

    std::vector<double> middles;
    for (const Band& band : bands_) middles.push_back((band.left + band.right) / 2);
    const auto places = moved_apart(middles, number_spacing);
    const double beyond = std::max(pixel(thickness_), places.back()) + 14;
    chart_.text(left + beyond, numbers_row + 4, "outside", {grey, 12});
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
    for (std::size_t i = 0; i < path_.places.size(); ++i) {
        const double x = pixel(millimetres(i));
        if (gains(i))
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
    for (const double x : {0.0, 1000 * path_.places.back().position})
        parts.push_back(curve(chart_.data({{x, vertical.low}, {x, vertical.high}}), 2, ink, 1.5));
    return parts;
}

void Picture::dots(const std::vector<double>& quantity, const char* colour) {
    for (std::size_t i = 0; i < path_.places.size(); ++i)
        if (!path_.places[i].within) chart_.mark(millimetres(i), quantity[i], "", colour);
}

void Picture::temperatures() {
    const auto [least, most] =
        std::ranges::minmax(rows_, {}, [](const auto& row) { return row[1]; });
    auto parts = begin_panel(section_top, temperature_height, host::round_scale(least[1], most[1]));
    dots(profile_.temperature, temperature_colour);
    parts.push_back(curve(chart_.data(rows_), 2, temperature_colour, 2.5));
    chart_.plot(parts);
}

// What condenses, between the panels where no line runs; a layer that is wet within tells its sum
// in its middle.
void Picture::rates() {
    struct Rate {
        double gain = 0, first = 0, last = 0;  // g/m² a day; the pixels between which it gathers
    };
    std::vector<Rate> rates;
    std::size_t last = 0;
    for (std::size_t i = 0; i < path_.places.size(); ++i) {
        if (!gains(i)) continue;
        const double x = pixel(millimetres(i));
        const bool same = !rates.empty() && path_.places[i].within && path_.places[last].within &&
                          path_.places[i].index == path_.places[last].index;
        if (!same) rates.push_back({0, x, x});
        rates.back().gain += profile_.gain[i];
        rates.back().last = x;
        last = i;
    }
    std::vector<double> middles;
    for (const Rate& rate : rates) middles.push_back((rate.first + rate.last) / 2);
    const auto places = moved_apart(middles, rate_spacing);
    for (std::size_t i = 0; i < rates.size(); ++i)
        chart_.text(left + places[i], pressure_top - 16, host::told(water_gain, rates[i].gain),
                    {vapour_colour, 12, true, "center"});
}

void Picture::pressures() {
    double most = 0;
    for (const auto& row : rows_) most = std::max({most, row[2], row[3]});
    auto parts = begin_panel(pressure_top, pressure_height, host::round_scale(0, most));
    std::vector<host::Key> keys{{"━", saturation_colour, "at saturation"},
                                {"━", vapour_colour, "in the wall"}};
    if (std::ranges::any_of(profile_.gain, [](double gain) { return gain >= least_water; }))
        keys.push_back({"╎", vapour_colour, "condenses, " + water_gain.unit});
    chart_.title(pressure_top - 46, "Pressure of vapour, Pa", keys);
    chart_.text(right, pressure_top + pressure_height + 42, "mm from the inside surface",
                {grey, 12, false, "right"});
    rates();
    dots(profile_.pressure, vapour_colour);
    const std::string rows = chart_.data(rows_);
    parts.push_back(curve(rows, 3, saturation_colour, 2.5));
    parts.push_back(curve(rows, 4, vapour_colour, 2.5));
    chart_.plot(parts);
}

}  // namespace

host::Chart section_chart(const Subject& subject, const Question& question,
                          const Assessment& assessment, std::size_t month) {
    return Picture(subject, question, assessment, month).drawn();
}

}  // namespace quorvel::wall
