// A chart of several panels, drawn by gnuplot.
//
//     Chart chart(900, 600);
//     chart.panel({60, 40, 500, 300});
//     chart.vertical_scale(round_scale(0, 730));
//     const std::string rows = chart.data({{8, 120}, {9, 340}});
//     chart.plot({area(rows, 2, "#f5b041"), curve(rows, 2, colour::ink, 2.5)});
//     write_file("day.svg", chart.draw(Format::svg));
#pragma once

#include <string>
#include <vector>

#include "telling/gnuplot.h"

namespace quorvel::host {

namespace colour {
inline constexpr const char* ink = "#1f2a44";   // titles, main curves
inline constexpr const char* grey = "#6b7280";  // secondary text
}  // namespace colour

// Of windows and variants, in turn: as many as an input can have.
const char* series_colour(std::size_t i);

inline constexpr double chart_margin = 24;  // pixels, of what stands above the panels
inline constexpr double key_spacing = 22;   // of a list of keys

// The plotting area inside the axes, in pixels from the upper left corner of the picture.
struct Panel {
    double left, top, width, height;
};

struct Scale {
    double low, high, step;
};

// About five round steps that cover a range.
Scale round_scale(double low, double high);

// How a line of text is set.
struct Style {
    const char* colour = colour::ink;
    int size = 13;
    bool bold = false;
    const char* side = "left";  // of the text that stands at the given place: left, center, right
    bool backed = false;        // on white, where lines run through the place
};

// An entry of a row of keys: a mark in the colour of the curve, then its name.
struct Key {
    const char* mark;
    const char* colour;
    std::string name;
};

// What can be plotted from the rows of Chart::data, whose first column is the horizontal coordinate
// and whose columns count from 1.
std::string curve(const std::string& rows, std::size_t column, const char* colour, double width,
                  const char* dashes = "solid");

// Down to zero; so stacked areas are plotted from the uppermost sum down.
std::string area(const std::string& rows, std::size_t column, const char* colour);

// Upright bars about the horizontal coordinate.
std::string bars(const std::string& rows, std::size_t column, const char* colour, double width);

// The inside of a ring of corners x and y, the first of which comes again at the end.
std::string polygon(const std::string& rows, const char* colour);

class Chart {
  public:
    Chart(int width, int height);

    // Stores rows of numbers (NaN: a gap) and gives the name by which they are plotted.
    std::string data(const std::vector<std::vector<double>>& rows);

    // Begins the next panel. The scales stay as they are, titles and marks are forgotten.
    void panel(const Panel& panel);

    // Begins a panel without axes, measured in pixels from its upper left corner: for what is drawn
    // rather than plotted. A panel that follows sets its scales anew.
    void canvas(const Panel& panel);
    void horizontal_scale(const Scale& scale);
    void vertical_scale(const Scale& scale, bool labelled = true);

    // In place of a horizontal scale: names at 0, 1, 2 ... with half a step more at either end.
    void horizontal_names(const std::vector<std::string>& names);

    // At a place of the picture, in pixels.
    void text(double x, double y, const std::string& text, const Style& style);

    // In a row, their names shortened where they would run out of the picture.
    void keys(double x, double y, const std::vector<Key>& keys);

    // One below the other.
    void key_list(double x, double y, const std::vector<Key>& keys);

    // What stands above all panels, in the first that is begun. A long title is set smaller.
    void heading(const std::string& title, const std::string& subtitle);

    // The title of a row of panels, with keys behind it.
    void title(double y, const std::string& title, const std::vector<Key>& keys);

    // A dot at a point of the panel, with a text on white above it.
    void mark(double x, double y, const std::string& text, const char* colour = colour::ink);

    // Ends the panel.
    void plot(const std::vector<std::string>& parts);

    // The bytes of the picture. Throws std::runtime_error when gnuplot is missing or fails, and
    // says why.
    std::string draw(Format format) const;

    int width() const { return width_; }
    int height() const { return height_; }

  private:
    std::string across(double x) const;
    std::string up(double y) const;

    int width_, height_;
    int tables_ = 0;
    std::string data_, commands_;
};

}  // namespace quorvel::host
