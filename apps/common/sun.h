// The sun of a day, and its hours as they are told and drawn.
#pragma once

#include <string>

#include "common/chart.h"
#include "common/text.h"

namespace quorvel::host {

inline constexpr int hours_a_day = 24;

// In the library's units; hours are solar time, angles radians.
struct Sun {
    float altitude, azimuth;  // both 0 while the sun is down
    float declination;
    float sunrise, sunset;  // 25 and 0 without sunrise, 0 and 25 without sunset

    bool is_up() const { return altitude > 0; }
};

Sun sun_at(double latitude, int day_of_year, double hour);  // latitude in degrees

// "sunrise 03:48, sunset 20:12 solar time", by the clock too where that is known.
std::string sun_times(double sunrise, double sunset, double solar_minus_clock = none);

// The hours of daylight and one more on either side.
Scale hours_shown(double sunrise, double sunset, double step);

}  // namespace quorvel::host
