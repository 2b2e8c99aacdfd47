// The sun seen from a tilted surface: angles in the surface's frame and irradiance on its plane.
//
// Angles in radians, irradiances in W/m².
#pragma once

#include "climate/angles.h"
#include "climate/incidence.h"

namespace quorvel::climate {

template <class R>
struct SurfaceAngles {
    R incidence;
    R vertical;    // in the plane of the slope and the normal, positive up the slope
    R horizontal;  // in the plane of the level line and the normal, positive clockwise
};

// Angle off the normal of a direction whose components are n along the normal and s beside it.
template <class R>
R angle_off_normal(R s, R n) noexcept {
    return either(
        rarely((s == 0.0f) & (n == 0.0f)), [&] { return R(0.5f * pi); },
        [&] { return math::acos(limited(n / math::sqrt(s * s + n * n), -1.0f, 1.0f)); });
}

template <class R>
SurfaceAngles<R> surface_angles(R altitude, R azimuth, R surface_azimuth, R tilt) noexcept {
    const auto [sin_alt, cos_alt] = math::sincos(altitude);
    const auto [sin_azi, cos_azi] = math::sincos(azimuth);
    const auto [sin_surf, cos_surf] = math::sincos(surface_azimuth);
    const auto [sin_tilt, cos_tilt] = math::sincos(tilt);

    // Towards the sun, in east, north and up.
    const R east = cos_alt * sin_azi;
    const R north = cos_alt * cos_azi;
    const R up = sin_alt;

    // In the surface's frame: to the left seen looking out, up the slope, along the outward normal.
    const R u = -cos_surf * east + sin_surf * north;
    const R v = -sin_surf * cos_tilt * east + -cos_surf * cos_tilt * north + sin_tilt * up;
    const R n = sin_surf * sin_tilt * east + cos_surf * sin_tilt * north + cos_tilt * up;

    const R vertical = angle_off_normal(v, n);
    const R horizontal = angle_off_normal(u, n);
    return {math::acos(limited(n, -1.0f, 1.0f)), select(v < 0.0f, -vertical, vertical),
            select(u < 0.0f, horizontal, -horizontal)};
}

template <class R>
struct SurfaceIrradiance {
    R direct, diffuse, ground_reflected;
};

template <class R>
SurfaceIrradiance<R> surface_irradiance(const Incidence<R>& sun, R surface_azimuth, R direct_normal,
                                        R diffuse_horizontal, R ground_reflectance, R beam_factor,
                                        R diffuse_factor) noexcept {
    const R direct = select(sun.cosine > 0.0f, sun.cosine * direct_normal * beam_factor, R(0.0f));

    // The sky is up to 20 % darker to the north; the two constants differ deliberately.
    const R darkening = sun.sin_tilt * (0.1f * math::cos(surface_azimuth) + 0.100000024f);
    const R diffuse =
        diffuse_horizontal * diffuse_factor * (1.0f + sun.cos_tilt) / 2.0f * (1.0f - darkening);

    const R horizontal =
        diffuse_horizontal * diffuse_factor + direct_normal * beam_factor * sun.sin_altitude;
    return {direct, diffuse, horizontal * 0.5f * ground_reflectance * (1.0f - sun.cos_tilt)};
}

template <class R>
SurfaceIrradiance<R> surface_irradiance(R altitude, R azimuth, R surface_azimuth, R tilt,
                                        R direct_normal, R diffuse_horizontal, R ground_reflectance,
                                        R beam_factor, R diffuse_factor) noexcept {
    const Incidence<R> sun(altitude, azimuth, surface_azimuth, tilt);
    return surface_irradiance<R>(sun, surface_azimuth, direct_normal, diffuse_horizontal,
                                 ground_reflectance, beam_factor, diffuse_factor);
}

template <class R>
struct SurfaceIrradianceAndIncidence {
    R direct, diffuse, ground_reflected;
    R incidence;  // a right angle for all suns behind the surface
};

template <class R>
SurfaceIrradianceAndIncidence<R> surface_irradiance_and_incidence(
    R altitude, R azimuth, R surface_azimuth, R tilt, R direct_normal, R diffuse_horizontal,
    R ground_reflectance, R beam_factor, R diffuse_factor) noexcept {
    const Incidence<R> sun(altitude, azimuth, surface_azimuth, tilt);
    const auto on_surface =
        surface_irradiance<R>(sun, surface_azimuth, direct_normal, diffuse_horizontal,
                              ground_reflectance, beam_factor, diffuse_factor);
    return {on_surface.direct, on_surface.diffuse, on_surface.ground_reflected,
            sun.angle(R(right_angle))};
}

}  // namespace quorvel::climate
