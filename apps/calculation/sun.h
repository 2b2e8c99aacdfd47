// The sun of a day.
#pragma once

namespace quorvel::host {

inline constexpr int hours_a_day = 24;

// In the library's units; hours are solar time, angles radians.
struct Sun {
    double altitude, azimuth;  // both 0 while the sun is down
    double declination;
    double sunrise, sunset;  // 25 and 0 without sunrise, 0 and 25 without sunset

    bool is_up() const { return altitude > 0; }
};

Sun sun_at(double latitude, int day_of_year, double hour);  // latitude in degrees

}  // namespace quorvel::host
