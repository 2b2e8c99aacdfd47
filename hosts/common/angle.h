// Degrees for people, radians for the library.
#pragma once

#include <cmath>
#include <numbers>
#include <string>

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

}  // namespace quorvel::host
