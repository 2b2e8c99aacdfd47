// What the user asks for: a place, a day of the year, windows.
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace quorvel::designday {

inline constexpr int most_panes = 5;
inline constexpr int most_windows = 6;

enum class SkyModel { design, perez, muneer, muneer_north, muneer_south };

struct Site {
    std::string name;
    double latitude;                   // degrees, north positive
    double longitude;                  // degrees, east positive
    double height;                     // m above sea level
    int site_class;                    // 1 to 6: ground reflectance and clearness of the air
    int sky;                           // 0 clear, 1 bright
    SkyModel sky_model;                // of the diffuse radiation from the sky on a tilted plane
    std::optional<double> utc_offset;  // h, clock time ahead of universal time
};

struct Day {
    int month;
    double room;                        // °C
    double outdoor_min;                 // °C
    double outdoor_max;                 // °C
    double hour_of_max;                 // solar time
    std::optional<double> hour_of_min;  // solar time; the full hour next to sunrise unless given
    std::string source;  // of temperatures from a climate data file, told to the user
};

struct Pane {
    double transmittance;  // at normal incidence
    double reflectance;    // at normal incidence of a coated pane; 0: uncoated
};

using Panes = std::vector<Pane>;  // outermost first

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
};

struct Blind {
    bool outside;
    std::variant<Slats, Fabric> make;
};

struct Window {
    std::string name;
    double orientation;  // degrees clockwise from north, the direction it faces
    double tilt;         // degrees from the horizontal, 90 vertical
    double area;         // of the glass, m²
    std::variant<Panes, ShadingCoefficients> glazing;
    std::optional<Blind> blind;  // beside panes only
};

struct Job {
    Site site;
    Day day;
    std::vector<Window> windows;
};

// Throws host::InputError at the first fault. A climate data file is read by the library, which
// must have been loaded.
Job read_job(const std::string& path);

}  // namespace quorvel::designday
