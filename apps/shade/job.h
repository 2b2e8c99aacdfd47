// What the user asks for: a window, a day, and what stands between the window and the sun.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quorvel::shade {

inline constexpr int most_obstructions = 20;

struct Site {
    std::string name;
    double latitude;  // degrees, north positive
    double height;    // m above sea level
};

struct Date {
    int month;        // 1 to 12, for its design day; 0: the day is given
    int day_of_year;  // 1 to 365
};

// The glass; left and right are those of someone who looks at it from outside.
struct Window {
    std::string name;
    double width, height;  // m, the height up the slope
    double orientation;    // degrees clockwise from north, the direction it faces
    double tilt;           // degrees from the horizontal, 90 vertical
    double sill;           // m, of the lower edge above the ground
};

// A plate that stands out from the wall beside the window.
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

struct Job {
    Site site;
    Date date;
    Window window;
    std::optional<Fin> left_fin, right_fin;
    std::optional<Overhang> overhang;
    std::vector<Obstruction> obstructions;
};

// Throws host::InputError at the first fault.
Job read_job(const std::string& path);

}  // namespace quorvel::shade
