#include "telling/wall/hatching.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <random>

namespace quorvel::wall {
namespace {

using Rows = std::vector<std::vector<double>>;  // x and y; a row of NaN lifts the pen

constexpr const char* edge_colour = "#7c8494";
constexpr const char* membrane_colour = "#1f2a44";
constexpr const char* gap_colour = "#f7fafc";

struct Look {
    const char* fill;
    const char* ink;
};

Look look(Hatching hatching) {
    switch (hatching) {
        case Hatching::masonry:
            return {"#f8e3da", "#d8a18b"};
        case Hatching::concrete:
            return {"#ebecee", "#a3a8b0"};
        case Hatching::insulation:
            return {"#fdf6d8", "#dcc25e"};
        case Hatching::timber:
            return {"#f5e8cf", "#c9a572"};
        case Hatching::plaster:
            return {"#f3f0ea", "#b9b0a2"};
        case Hatching::bitumen:
            return {"#c3c6cc", "#6d7380"};
        case Hatching::plain:
            break;
    }
    return {"#eef1f5", "#eef1f5"};
}

class Hatch {
  public:
    Hatch(const Band& band, double height)
        : left_(band.left), width_(band.right - band.left), height_(height) {}

    Rows of(Hatching hatching) {
        switch (hatching) {
            case Hatching::masonry:
                diagonals(10);
                break;
            case Hatching::concrete:
                scattered(190, &Hatch::pebble);
                break;
            case Hatching::insulation:
                wave();
                break;
            case Hatching::timber:
                grain();
                break;
            case Hatching::plaster:
                scattered(26, &Hatch::dot);
                break;
            case Hatching::bitumen:
                diagonals(4);
                break;
            case Hatching::plain:
                break;
        }
        return std::move(rows_);
    }

  private:
    void point(double x, double y) { rows_.push_back({left_ + x, y}); }
    void lift() {
        constexpr double nan = std::numeric_limits<double>::quiet_NaN();
        rows_.push_back({nan, nan});
    }

    // Rising to the right at 45°.
    void diagonals(double spacing) {
        for (double sum = spacing; sum < width_ + height_; sum += spacing) {
            point(std::max(0.0, sum - height_), std::min(sum, height_));
            point(std::min(sum, width_), std::max(0.0, sum - width_));
            lift();
        }
    }

    // The quilt of soft insulation: to and fro between the faces.
    void wave() {
        const double pitch = std::clamp(0.5 * width_, 5.0, 40.0);
        for (double y = 0; y <= height_; y += 1) {
            const double swing = std::cos(2 * std::numbers::pi * y / pitch);
            point(width_ / 2 * (1 + 0.94 * swing), y);
        }
    }

    void grain() {
        for (double x = 3; x < width_; x += 6) {
            for (double y = 0; y <= height_; y += 4) point(x + 1.2 * std::sin(y / 17 + x), y);
            lift();
        }
    }

    // One to so many square pixels: spread evenly by a golden section of the plane, then shaken out
    // of its rows.
    void scattered(double area, void (Hatch::*piece)(double, double, double)) {
        constexpr double plastic = 1.32471795724474602596;
        const auto fraction = [](double value) { return value - std::floor(value); };
        const auto shaken = [&](double place, double size) {
            const double random = static_cast<double>(random_()) / std::minstd_rand::max();
            return std::clamp(place * size + (random - 0.5) * std::sqrt(area), 1.0, size - 1.0);
        };
        const int pieces = static_cast<int>(width_ * height_ / area);
        for (int i = 1; i <= pieces && width_ > 2; ++i) {
            const double x = shaken(fraction(i / plastic), width_);
            const double y = shaken(fraction(i / (plastic * plastic)), height_);
            (this->*piece)(x, y, i);
        }
    }

    void dot(double x, double y, double) {
        point(x, y);
        point(x, std::min(y + 0.7, height_));
        lift();
    }

    // Every third piece of aggregate a triangle, the rest grains of sand.
    void pebble(double x, double y, double number) {
        constexpr double size = 3.2;
        const bool fits = x > size && x < width_ - size && y > size && y < height_ - size;
        if (!fits || std::fmod(number, 3) != 0) return dot(x, y, number);
        for (int corner = 0; corner <= 3; ++corner) {
            const double angle = number + corner * 2 * std::numbers::pi / 3;
            point(x + size * std::cos(angle), y + size * std::sin(angle));
        }
        lift();
    }

    double left_, width_, height_;
    std::minstd_rand random_;  // whose sequence is the same everywhere
    Rows rows_;
};

// From the upper edge of the canvas, where y is 0, to the lower one.
std::string filled(host::Chart& chart, const Band& band, double height, const char* colour) {
    return host::area(chart.data({{band.left, height}, {band.right, height}}), 2, colour);
}

std::string upright(host::Chart& chart, double x, double height, const char* colour, double width) {
    return host::curve(chart.data({{x, 0}, {x, height}}), 2, colour, width);
}

}  // namespace

std::vector<std::string> draw_section(host::Chart& chart, const std::vector<Band>& bands,
                                      double height) {
    std::vector<std::string> parts, lines;
    for (const Band& band : bands) {
        if (std::holds_alternative<Membrane>(band.part->make)) {
            const double middle = (band.left + band.right) / 2;
            lines.push_back(upright(chart, middle, height, membrane_colour, 3));
            continue;
        }
        const auto* solid = std::get_if<Solid>(&band.part->make);
        const Look colours = solid ? look(band.part->hatching) : Look{gap_colour, gap_colour};
        parts.push_back(filled(chart, band, height, colours.fill));
        const Rows hatch = Hatch(band, height).of(solid ? band.part->hatching : Hatching::plain);
        if (!hatch.empty()) parts.push_back(host::curve(chart.data(hatch), 2, colours.ink, 1));
        for (const double x : {band.left, band.right})
            lines.insert(lines.begin(), upright(chart, x, height, edge_colour, 1));
    }
    parts.insert(parts.end(), lines.begin(), lines.end());
    return parts;
}

}  // namespace quorvel::wall
