#include "climate/surface.h"
#include "entry/entry.h"

using namespace quorvel;

void CLSNSR(const Real* altitude, const Real* azimuth, const Real* surface_azimuth,
            const Real* tilt, Real* incidence, Real* vertical, Real* horizontal) {
    const auto angles = climate::surface_angles({*altitude, *azimuth}, {*surface_azimuth, *tilt});
    *incidence = angles.incidence;
    *vertical = angles.vertical;
    *horizontal = angles.horizontal;
}

void CLSORD(const Real* altitude, const Real* azimuth, const Real* surface_azimuth,
            const Real* tilt, const Real* direct_normal, const Real* diffuse_horizontal,
            const Real* ground_reflectance, const Real* beam_factor, const Real* diffuse_factor,
            Real* direct, Real* diffuse, Real* ground) {
    const auto on_surface = climate::surface_irradiance(
        {*altitude, *azimuth}, {*surface_azimuth, *tilt}, {*direct_normal, *diffuse_horizontal},
        {*ground_reflectance, *beam_factor, *diffuse_factor});
    *direct = on_surface.direct;
    *diffuse = on_surface.diffuse;
    *ground = on_surface.ground_reflected;
}

void CLSOR2(const Real* altitude, const Real* azimuth, const Real* surface_azimuth,
            const Real* tilt, const Real* direct_normal, const Real* diffuse_horizontal,
            const Real* ground_reflectance, const Real* beam_factor, const Real* diffuse_factor,
            Real* direct, Real* diffuse, Real* ground, Real* incidence) {
    const auto on_surface = climate::surface_irradiance(
        {*altitude, *azimuth}, {*surface_azimuth, *tilt}, {*direct_normal, *diffuse_horizontal},
        {*ground_reflectance, *beam_factor, *diffuse_factor});
    *direct = on_surface.direct;
    *diffuse = on_surface.diffuse;
    *ground = on_surface.ground_reflected;
    *incidence = climate::incidence_in_front(on_surface.cos_incidence);
}
