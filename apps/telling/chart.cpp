#include "telling/chart.h"

#include <algorithm>
#include <cmath>

#include "telling/gnuplot.h"
#include "telling/svg.h"
#include "text/text.h"

namespace quorvel::host {
namespace {

constexpr const char* setup = R"(
set encoding utf8
set grid xtics ytics back linetype 1 linewidth 1 linecolor rgb '#e9ecf1' dashtype solid
set key off
set style fill solid 1 noborder
set style textbox opaque noborder fillcolor rgb '#ffffff' margins 0.4,0.2
set multiplot
)";

// Quiet axes: a grey frame at the left and bottom only. Set for each panel, as a canvas has none.
constexpr const char* axes =
    "set border 3 linecolor rgb '#8a8f98' linewidth 1\n"
    "set tics nomirror out scale 0.6 textcolor rgb '#4b5160'\n";

std::string font(const Style& style) {
    return std::string(" textcolor rgb '") + style.colour + "' font 'Arial" +
           (style.bold ? " Bold," : ",") + std::to_string(style.size) + "' ";
}

// PDF has a point for each pixel of SVG, PNG two pixels; its letters are measured at 96 a inch.
std::string terminal(Format format, int width, int height) {
    const auto size = [&](double unit, const char* name) {
        return " size " + shortest(width * unit) + name + ',' + shortest(height * unit) + name;
    };
    const std::string look = " noenhanced font 'Arial,13' background rgb '#ffffff' rounded";
    switch (format) {
        case Format::pdf:
            return "set terminal pdfcairo" + size(1.0 / 72, "in") +
                   " fontscale 0.75 linewidth 2 pointscale 1.4" + look;
        case Format::png:
            return "set terminal pngcairo" + size(2, "") +
                   " fontscale 1.5 linewidth 2 pointscale 2.8" + look;
        case Format::svg:
            break;
    }
    return "set terminal svg dynamic" + size(1, "") + look;
}

// Letters are reckoned as wide as in the widest of the fonts that stand in for Arial.
constexpr double letter = 7.0, around_name = 44;

// How many letters of each name there is room for.
std::size_t longest_name(double room, const std::vector<Key>& keys) {
    std::size_t longest = 0;
    for (const Key& key : keys) longest = std::max(longest, character_count(key.name));
    for (;; --longest) {
        double needed = 0;
        for (const Key& key : keys)
            needed += around_name +
                      letter * static_cast<double>(std::min(longest, character_count(key.name)));
        if (needed <= room || longest <= 4) return longest;
    }
}

}  // namespace

Scale round_scale(double low, double high) {
    const double raw = std::max(high - low, 1.0) / 5.0;
    double unit = 1;
    while (unit * 10 <= raw) unit *= 10;
    const double step = unit * (raw <= unit ? 1 : raw <= 2 * unit ? 2 : raw <= 5 * unit ? 5 : 10);
    const double bottom = std::floor(low / step) * step;
    return {bottom, std::max(std::ceil(high / step) * step, bottom + step), step};
}

const char* series_colour(std::size_t i) {
    static constexpr const char* colours[] = {"#3f72af", "#e08e45", "#6aa07a", "#9a6fb0", "#c9a93a",
                                              "#6f7d8c", "#c0504d", "#4bacc6", "#8c6d46", "#7f9f3f",
                                              "#d184a8", "#455a8c", "#a0a0a0"};
    return colours[i % std::size(colours)];
}

std::string curve(const std::string& rows, std::size_t column, const char* colour, double width,
                  const char* dashes) {
    return rows + " using 1:" + std::to_string(column) + " with lines linewidth " +
           shortest(width) + " linecolor rgb '" + colour + "' dashtype " + dashes;
}

// The edge is drawn once more as a line, since gnuplot has only lines smoothed.
std::string area(const std::string& rows, std::size_t column, const char* colour) {
    return rows + " using 1:" + std::to_string(column) + " with filledcurves y1=0 linecolor rgb '" +
           colour + "', " + curve(rows, column, colour, 1);
}

std::string bars(const std::string& rows, std::size_t column, const char* colour, double width) {
    const std::string at = "using 1:" + std::to_string(column) + ":(" + shortest(width) + ")";
    return rows + ' ' + at + " with boxes fillstyle solid 1 noborder linecolor rgb '" + colour +
           '\'';
}

// Its border is drawn as a line for the same reason.
std::string polygon(const std::string& rows, const char* colour) {
    return rows + " using 1:2 with filledcurves closed linecolor rgb '" + colour +
           "' fillstyle solid 1 border rgb '" + colour + '\'';
}

Chart::Chart(int width, int height) : width_(width), height_(height) {}

std::string Chart::data(const std::vector<std::vector<double>>& rows) {
    std::string name = "$rows" + std::to_string(++tables_);
    data_ += name + " << END\n";
    for (const auto& row : rows) {
        for (const double value : row) data_ += (std::isnan(value) ? "NaN" : fixed(value, 4)) + ' ';
        data_ += '\n';
    }
    data_ += "END\n";
    return name;
}

void Chart::panel(const Panel& panel) {
    commands_ += axes + std::string("unset label\nset lmargin at screen ") + across(panel.left) +
                 "\nset rmargin at screen " + across(panel.left + panel.width) +
                 "\nset tmargin at screen " + up(panel.top) + "\nset bmargin at screen " +
                 up(panel.top + panel.height) + '\n';
}

void Chart::canvas(const Panel& place) {
    panel(place);
    commands_ += "unset border\nunset xtics\nunset ytics\nset xrange [0:" + shortest(place.width) +
                 "]\nset yrange [" + shortest(place.height) + ":0]\n";
}

void Chart::horizontal_scale(const Scale& scale) {
    commands_ += "set xrange [" + shortest(scale.low) + ':' + shortest(scale.high) +
                 "]\nset xtics nomirror 0," + shortest(scale.step) + '\n';
}

void Chart::vertical_scale(const Scale& scale, bool labelled) {
    commands_ += "set yrange [" + shortest(scale.low) + ':' + shortest(scale.high) +
                 "]\nset ytics nomirror " + shortest(scale.step) + "\nset format y " +
                 (labelled ? "'%g'" : "''") + '\n';
}

void Chart::horizontal_names(const std::vector<std::string>& names) {
    std::string places;
    for (std::size_t i = 0; i < names.size(); ++i)
        places += (i > 0 ? ", " : "") + quoted(names[i]) + ' ' + std::to_string(i);
    commands_ += "set xrange [-0.5:" + shortest(static_cast<double>(names.size()) - 0.5) +
                 "]\nset xtics nomirror (" + places + ")\n";
}

void Chart::text(double x, double y, const std::string& text, const Style& style) {
    commands_ += "set label " + quoted(text) + " at screen " + across(x) + ", screen " + up(y) +
                 " front " + style.side + (style.backed ? " boxed" : "") + font(style) + '\n';
}

void Chart::keys(double x, double y, const std::vector<Key>& keys) {
    const std::size_t longest = longest_name(width_ - x, keys);
    for (const Key& key : keys) {
        const std::string name = shortened(key.name, longest);
        text(x, y, key.mark, {key.colour, 15, true});
        text(x + 20, y, name, {colour::grey, 12});
        x += around_name + letter * static_cast<double>(character_count(name));
    }
}

void Chart::key_list(double x, double y, const std::vector<Key>& keys) {
    for (const Key& key : keys) {
        text(x, y, key.mark, {key.colour, 15, true});
        text(x + 26, y, key.name, {colour::grey, 13});
        y += key_spacing;
    }
}

void Chart::heading(const std::string& title, const std::string& subtitle) {
    constexpr double wide = 0.72;  // a bold letter, of the size of its font
    const double fitting =
        (width_ - 2 * chart_margin) / (wide * static_cast<double>(character_count(title)));
    text(chart_margin, 38, title, {colour::ink, static_cast<int>(std::min(24.0, fitting)), true});
    text(chart_margin, 68, subtitle, {colour::grey, 12});
}

void Chart::title(double y, const std::string& title, const std::vector<Key>& keys) {
    text(chart_margin, y, title, {colour::ink, 14, true});
    this->keys(chart_margin + 30 + 8.8 * static_cast<double>(character_count(title)), y, keys);
}

void Chart::mark(double x, double y, const std::string& text, const char* colour) {
    commands_ +=
        "set label " + quoted(text) + " at " + shortest(x) + ',' + shortest(y) +
        " center offset 0,0.9 front boxed point pointtype 7 pointsize 0.6 linecolor rgb '" +
        colour + '\'' + font({.colour = colour, .bold = true}) + '\n';
}

void Chart::plot(const std::vector<std::string>& parts) {
    commands_ += "plot ";
    for (const std::string& part : parts)
        commands_ += part + (&part == &parts.back() ? "\n" : ", ");
}

std::string Chart::draw(Format format) const {
    std::string picture =
        draw_with_gnuplot(terminal(format, width_, height_), setup + data_ + commands_, format);
    return format == Format::svg ? svg_without_names(std::move(picture)) : picture;
}

std::string Chart::across(double x) const { return shortest(x / width_); }

std::string Chart::up(double y) const { return shortest(1.0 - y / height_); }

}  // namespace quorvel::host
