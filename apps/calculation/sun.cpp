#include "calculation/sun.h"

#include <algorithm>

#include "calculation/angle.h"
#include "quorvel/climate.h"

namespace quorvel::host {
namespace {

// In single precision a right angle is just beyond the pole, where day and night change places.
constexpr double nearest_to_pole = 89.9999;

}  // namespace

Sun sun_at(double latitude, int day_of_year, double hour) {
    const double clear_of_poles = std::clamp(latitude, -nearest_to_pole, nearest_to_pole);
    const auto sun = lib::solar_geometry(radians(clear_of_poles), day_of_year, hour);
    return {sun.solar_altitude, sun.solar_azimuth, sun.declination, sun.sunrise, sun.sunset};
}

}  // namespace quorvel::host
