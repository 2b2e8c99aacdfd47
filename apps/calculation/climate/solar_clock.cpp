#include "calculation/climate/solar_clock.h"

#include <cmath>

#include "calculation/angle.h"
#include "quorvel/climate.h"

namespace quorvel::climatefile {

constexpr double degrees_an_hour = 15;

SolarClock::SolarClock(double longitude, double zone)
    : ahead_(std::remainder(longitude / degrees_an_hour - zone, 24.0)) {}

double SolarClock::correction(int day_of_year) const {
    const double west_of_the_meridian = host::radians(-degrees_an_hour * ahead_);
    return lib::solar_time_correction(0, day_of_year, west_of_the_meridian, 0);
}

}  // namespace quorvel::climatefile
