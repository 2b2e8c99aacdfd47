#include "climate/sun_almanac.h"
#include "entry/entry.h"

using namespace quorvel;

// Mode 1 writes 0 to the longitude and the zone angle, which are otherwise inputs only.
void CLYALLOP(const Integer* mode, const Integer* year, const Integer* month, const Integer* day,
              const Real* hour, const Real* latitude, Real* longitude, Real* zone, Real* altitude,
              Real* azimuth, Real* declination) {
    if (*mode == 1) {
        *longitude = 0.0f;
        *zone = 0.0f;
    }
    const auto sun = climate::almanac_position(*mode == 2, {*year, *month, *day}, *hour, *latitude,
                                               *longitude, *zone);
    *altitude = sun.altitude;
    *azimuth = sun.azimuth;
    *declination = sun.declination;
}

void CLRISESET(const Integer* year, const Integer* month, const Integer* day, const Real* latitude,
               Real* sunrise, Real* sunset) {
    const auto hours = climate::almanac_sun_hours({*year, *month, *day}, *latitude);
    *sunrise = hours.sunrise;
    *sunset = hours.sunset;
}
