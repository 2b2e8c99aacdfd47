// What is asked of a window: the place, the glazing with its blind, and what shades it, as values.
#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace quorvel::window {

inline constexpr std::size_t most_panes = 5;
inline constexpr std::size_t most_layers = most_panes + 1;  // the panes and a blind
inline constexpr std::size_t most_windows = 6;
inline constexpr std::size_t most_obstructions = 20;

enum class SkyModel { design, perez, muneer, muneer_north, muneer_south };

struct Site {
    std::string name;
    double latitude;                   // degrees, north positive
    double longitude;                  // degrees, east positive; NaN where it is not known
    double height;                     // m above sea level
    int site_class;                    // 1 to 6: ground reflectance and clearness of the air
    int sky;                           // 0 clear, 1 bright
    SkyModel sky_model;                // of the diffuse radiation from the sky on a tilted plane
    std::optional<double> utc_offset;  // h, clock time ahead of universal time
    std::optional<double> ground_reflectance;  // in place of that of the site class
};

// A gas at -10, 0, 10 and 20 °C.
struct Gas {
    std::string name;
    std::array<double, 4> conductivity;  // W/mK
    std::array<double, 4> density;       // kg/m³
    std::array<double, 4> viscosity;     // kg/ms
    double specific_heat;                // J/kgK
};

struct Cavity {
    Gas gas;
    double width;  // mm
};

// The faces of a pane: outside, inside.
using Faces = std::array<double, 2>;

// Of soda lime glass, EN 673.
inline constexpr double plain_emissivity = 0.837;  // without a coating
inline constexpr double glass_conductivity = 1;    // W/mK

struct Pane {
    std::string name;
    double thickness;      // mm
    double transmittance;  // at normal incidence
    Faces reflectance;     // at normal incidence of a coated pane; both 0: uncoated
    Faces emissivity;

    bool is_plain() const { return emissivity == Faces{plain_emissivity, plain_emissivity}; }
};

struct Unit {
    std::string name;
    std::vector<Pane> panes;       // outermost first
    std::vector<Cavity> cavities;  // between them
};

// A unit known in terms of a clear single pane only.
struct ShadingCoefficients {
    double short_wave, long_wave;
    int panes;
};

struct Slats {
    double spacing, width;  // mm
    double angle;  // degrees off the normal of the window, positive with the outer edge lowered
    double upper_absorptance, lower_absorptance;
};

struct Fabric {
    double transmittance, reflectance;
    double openness;  // what passes straight, of all that falls on it; part of the transmittance
};

enum class BlindPlace { inside, outside, between };

struct Blind {
    BlindPlace place;
    std::size_t cavity;  // which one, of a blind between panes, from the outermost, from 0
    std::variant<Slats, Fabric> make;
    double emissivity;     // of the slats or the fabric
    Cavity gap;            // to the glass, of a blind outside or inside
    bool sealed;           // no air passes between that gap and its surroundings
    double lowered_above;  // W/m² on the window from which it is lowered; 0: always

    // Where it stands among the layers, from the outermost, of a unit of so many panes.
    std::size_t place_among(std::size_t panes) const {
        if (place == BlindPlace::outside) return 0;
        return place == BlindPlace::inside ? panes : cavity + 1;
    }
};

// A plate that stands out from the wall beside the window. Left and right are those of someone who
// looks at it from outside.
struct Fin {
    double depth;         // m
    double offset;        // m between the edge of the window and the fin
    double above, below;  // m that it goes on beyond the window
};

struct Overhang {
    double depth;        // m
    double offset;       // m between the upper edge of the window and the overhang
    double left, right;  // m that it goes on beyond the window
    double slope;        // degrees by which it falls outwards; 0 perpendicular to the window
};

// A box that stands upright on the ground or above it; a screen where it has no depth. Its front is
// the side towards the window; distance, offset and rotation are those of the middle of the front.
struct Obstruction {
    std::string name;
    double distance;      // m from the lower edge of the window, horizontally, to the front
    double offset;        // m to the right of the middle of the window
    double width, depth;  // m
    double base, top;     // m above the ground
    double rotation;      // degrees clockwise seen from above
};

struct Shades {
    double reveal = 0;  // m by which the glass is set back
    std::optional<Fin> left_fin, right_fin;
    std::optional<Overhang> overhang;
    std::vector<Obstruction> obstructions;

    bool any() const {
        return reveal > 0 || left_fin || right_fin || overhang || !obstructions.empty();
    }
};

using Glazing = std::variant<std::monostate, Unit, ShadingCoefficients>;  // nothing: an opening

struct Window {
    std::string name;
    double orientation;    // degrees clockwise from north, the direction it faces
    double tilt;           // degrees from the horizontal, 90 vertical
    double area;           // of the glass, m²
    double width, height;  // m, the height up the slope; 0 where only the area is known
    double sill;           // m, of the lower edge above the ground
    Glazing glazing;
    std::optional<Blind> blind;  // beside a unit only
    Shades shades;

    bool is_glazed() const { return !std::holds_alternative<std::monostate>(glazing); }
};

inline bool any_glazed(std::span<const Window> windows) {
    return std::ranges::any_of(windows, &Window::is_glazed);
}

// A day of design weather.
struct DesignDay {
    int month;                          // 1 to 12, for its design day and the site's constants
    int day_of_year;                    // 0: the month's design day
    double room;                        // °C
    double outdoor_min, outdoor_max;    // °C; NaN where nobody needs them
    double hour_of_max;                 // solar time
    std::optional<double> hour_of_min;  // solar time; the full hour next to sunrise unless given
    std::string source;                 // of temperatures from a climate data file
};

// An hour of measured or typical weather. Irradiances are means over the hour.
struct WeatherHour {
    int month, day_of_year;
    int hour;                                  // of standard time, 1 to 24; it ends then
    double direct_normal, diffuse_horizontal;  // W/m²
    double outdoor;                            // °C
};

struct Weather {
    std::string place;
    double latitude, longitude, height, zone;  // degrees, m, h ahead of universal time
    double room;                               // °C
    std::vector<WeatherHour> hours;
};

}  // namespace quorvel::window
