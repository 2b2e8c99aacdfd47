// The sun seen from a tilted surface: angles in the surface's frame and irradiance on its plane.
//
// Angles are in radians, irradiances in W/m².
#pragma once

#include "base/numeric.h"
#include "climate/angles.h"
#include "math/math.h"

namespace quorvel::climate {

struct SurfaceAngles {
    Real incidence;
    Real vertical;    // in the plane of the slope and the normal, positive up the slope
    Real horizontal;  // in the plane of the level line and the normal, positive clockwise
};

// Angle off the normal of a direction whose components are n along the normal and s beside it.
inline Real angle_off_normal(Real s, Real n) noexcept {
    if (s == 0.0f && n == 0.0f) return 0.5f * pi;
    return math::acos(limited(n / math::sqrt(s * s + n * n), -1.0f, 1.0f));
}

inline SurfaceAngles surface_angles(SolarAngles sun, Orientation surface) noexcept {
    const auto [sin_alt, cos_alt] = math::sincos(sun.altitude);
    const auto [sin_azi, cos_azi] = math::sincos(sun.azimuth);
    const auto [sin_surf, cos_surf] = math::sincos(surface.azimuth);
    const auto [sin_tilt, cos_tilt] = math::sincos(surface.tilt);

    // Towards the sun, in east, north and up.
    const Real east = cos_alt * sin_azi;
    const Real north = cos_alt * cos_azi;
    const Real up = sin_alt;

    // In the surface's frame: to the left seen looking out, up the slope, along the outward normal.
    const Real u = -cos_surf * east + sin_surf * north;
    const Real v = -sin_surf * cos_tilt * east + -cos_surf * cos_tilt * north + sin_tilt * up;
    const Real n = sin_surf * sin_tilt * east + cos_surf * sin_tilt * north + cos_tilt * up;

    const Real vertical = angle_off_normal(v, n);
    const Real horizontal = angle_off_normal(u, n);
    return {math::acos(limited(n, -1.0f, 1.0f)), v < 0.0f ? -vertical : vertical,
            u < 0.0f ? horizontal : -horizontal};
}

struct Irradiance {
    Real direct_normal, diffuse_horizontal;
};

struct SiteFactors {
    Real ground_reflectance, beam, diffuse;
};

struct SurfaceIrradiance {
    Real cos_incidence;
    Real direct, diffuse, ground_reflected;
};

inline SurfaceIrradiance surface_irradiance(SolarAngles sun, Orientation surface, Irradiance sky,
                                            SiteFactors site) noexcept {
    const auto [sin_alt, cos_alt] = math::sincos(sun.altitude);
    const auto [sin_tilt, cos_tilt] = math::sincos(surface.tilt);
    const Real cos_incidence =
        cos_alt * sin_tilt * math::cos(sun.azimuth - surface.azimuth) + sin_alt * cos_tilt;
    const Real direct = cos_incidence > 0.0f ? cos_incidence * sky.direct_normal * site.beam : 0.0f;

    // The sky is up to 20 % darker to the north; the two constants do differ in the last digits.
    const Real darkening = sin_tilt * (0.1f * math::cos(surface.azimuth) + 0.100000024f);
    const Real diffuse =
        sky.diffuse_horizontal * site.diffuse * (1.0f + cos_tilt) / 2.0f * (1.0f - darkening);

    const Real horizontal =
        sky.diffuse_horizontal * site.diffuse + sky.direct_normal * site.beam * sin_alt;
    const Real ground = horizontal * 0.5f * site.ground_reflectance * (1.0f - cos_tilt);
    return {cos_incidence, direct, diffuse, ground};
}

// Angle of incidence; a right angle for all suns behind the surface.
inline Real incidence_in_front(Real cos_incidence) noexcept {
    if (cos_incidence <= 0.0f) return right_angle;
    return math::acos(limited(cos_incidence, -1.0f, 1.0f));
}

}  // namespace quorvel::climate
