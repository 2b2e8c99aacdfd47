// Directions and places on the globe in words; angles in degrees.
#pragma once

#include <cmath>
#include <string>

#include "text/text.h"

namespace quorvel::host {

// The compass point, of 16, nearest to an azimuth clockwise from north.
inline std::string compass_point(double azimuth) {
    static constexpr const char* points[] = {"N", "NNE", "NE", "ENE", "E", "ESE", "SE", "SSE",
                                             "S", "SSW", "SW", "WSW", "W", "WNW", "NW", "NNW"};
    return points[std::lround(azimuth / 22.5) & 15];
}

// "51.48° N": a latitude or longitude.
inline std::string on_the_globe(double angle, const char* positive, const char* negative) {
    return fixed(std::fabs(angle), 2) + "° " + (angle < 0 ? negative : positive);
}

// "facing 180° (S), vertical": a surface by its orientation and tilt.
inline std::string facing(double orientation, double tilt) {
    if (tilt == 0) return "horizontal";
    return "facing " + shortest(orientation) + "° (" + compass_point(orientation) + "), " +
           (tilt == 90 ? "vertical" : "tilted " + shortest(tilt) + "°");
}

}  // namespace quorvel::host
