// Degrees for people, radians for the library.
#pragma once

#include <cmath>
#include <numbers>
#include <string>

#include "telling/text.h"

namespace quorvel::host {

inline float radians(double degrees) {
    return static_cast<float>(degrees * (std::numbers::pi / 180.0));
}

inline double degrees(double radians) { return radians * (180.0 / std::numbers::pi); }

// The compass point, of 16, nearest to an azimuth in degrees clockwise from north.
inline std::string compass_point(double azimuth) {
    static constexpr const char* points[] = {"N", "NNE", "NE", "ENE", "E", "ESE", "SE", "SSE",
                                             "S", "SSW", "SW", "WSW", "W", "WNW", "NW", "NNW"};
    return points[std::lround(azimuth / 22.5) & 15];
}

// "51.48° N": a latitude or longitude in degrees.
inline std::string on_the_globe(double angle, const char* positive, const char* negative) {
    return fixed(std::fabs(angle), 2) + "° " + (angle < 0 ? negative : positive);
}

// "facing 180° (S), vertical": a surface by its orientation and tilt in degrees.
inline std::string facing(double orientation, double tilt) {
    if (tilt == 0) return "horizontal";
    return "facing " + shortest(orientation) + "° (" + compass_point(orientation) + "), " +
           (tilt == 90 ? "vertical" : "tilted " + shortest(tilt) + "°");
}

}  // namespace quorvel::host
