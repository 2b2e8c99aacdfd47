#include "calculation/sun.h"

#include "calculation/angle.h"
#include "quorvel/climate.h"

namespace quorvel::host {

Sun sun_at(double latitude, int day_of_year, double hour) {
    Sun sun{};
    lib::CLSNGE(radians(latitude), day_of_year, static_cast<float>(hour), sun.declination,
                sun.altitude, sun.azimuth, sun.sunrise, sun.sunset);
    return sun;
}

}  // namespace quorvel::host
