#include "climate/sun_position.h"
#include "entry/entry.h"

using namespace quorvel;

// Outside its ranges sunrise and sunset stay as they are.
void CLSNGE(const Real* latitude, const Integer* day, const Real* hour, Real* declination,
            Real* altitude, Real* azimuth, Real* sunrise, Real* sunset) {
    if (!climate::is_solar_moment(*latitude, *day, *hour)) {
        *declination = 0.0f;
        *altitude = 0.0f;
        *azimuth = 0.0f;
        return;
    }
    const auto sun = climate::solar_geometry(*latitude, *day, *hour);
    *declination = sun.declination;
    *altitude = sun.altitude;
    *azimuth = sun.azimuth;
    *sunrise = sun.hours.sunrise;
    *sunset = sun.hours.sunset;
}
