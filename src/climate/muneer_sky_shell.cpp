#include "climate/muneer_sky.h"
#include "entry/entry.h"

using namespace quorvel;

void CLMUNRAD(const Real* altitude, const Real* azimuth, const Real* surface_azimuth,
              const Real* tilt, const Real* beam, const Real* diffuse,
              const Real* extraterrestrial_horizontal, const Real* ground_reflectance,
              Real* beam_on_surface, Real* sky_diffuse, Real* ground, Real* incidence) {
    const auto slope =
        climate::muneer_slope({*altitude, *azimuth}, {*surface_azimuth, *tilt}, {*beam, *diffuse},
                              *extraterrestrial_horizontal, *ground_reflectance);
    *beam_on_surface = slope.beam;
    *sky_diffuse = slope.diffuse;
    *ground = slope.ground_reflected;
    *incidence = slope.incidence;
}
