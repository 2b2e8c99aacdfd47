// Diffuse irradiance of the sky on a tilted surface, by day of the year and model of the sky. All
// single precision. Angles are in radians, irradiances in W/m².
#pragma once

#include "climate/muneer_sky.h"

namespace quorvel::climate {

// The float nearest to pi is used here, not the library's own.
inline constexpr Real slope_pi = 3.1415927f;

// Beam on the horizontal by that outside the atmosphere.
inline Real beam_clearness(Integer day, Real sin_altitude, Real beam) noexcept {
    return beam / (1367.0f * eccentricity_factor(day) * sin_altitude);
}

// Radiance index by the sun, whatever side of the surface it is on.
constexpr Real sky_index(Real altitude, Real beam) noexcept {
    if (altitude <= 0.0f) return static_cast<Real>(shaded_index);
    return static_cast<Real>(beam < 5.0f ? overcast_index : sunny_index);
}

// Model 0 goes by the radiance index, 1 by the beam clearness Kb as fitted for northern Europe, any
// other by that for southern Europe.
constexpr Real sky_anisotropy(Integer model, Real index, Real Kb) noexcept {
    if (model == 0) return anisotropy(index, slope_pi);
    if (model == 1) return 0.00333f - 0.415f * Kb - 0.6987f * (Kb * Kb);
    return 0.00263f - 0.712f * Kb - 0.6883f * (Kb * Kb);
}

struct SlopeSky {
    Real Kb;
    Real background;  // factor on the diffuse horizontal irradiance
};

inline SlopeSky slope_sky(Integer day, Real altitude, Real sin_altitude, Real beam, Real tilt,
                          Integer model) noexcept {
    const Real Kb = beam_clearness(day, sin_altitude, beam);
    const Real term = sky_anisotropy(model, sky_index(altitude, beam), Kb);
    return {Kb, background_factor(term, tilt, slope_pi)};
}

// Diffuse irradiance without circumsolar part, by that on the horizontal.
inline Real diffuse_tilt_factor(Integer day, Real altitude, Real beam, Real tilt,
                                Integer model) noexcept {
    return slope_sky(day, altitude, math::sin(altitude), beam, tilt, model).background;
}

inline Real slope_diffuse(Integer day, SolarAngles sun, Orientation surface,
                          HorizontalIrradiance sky, Integer model) noexcept {
    const auto [sin_alt, cos_alt] = math::sincos(sun.altitude);
    const auto [sin_tilt, cos_tilt] = math::sincos(surface.tilt);
    const Real towards_sun =
        sin_alt * cos_tilt + cos_alt * sin_tilt * math::cos(sun.azimuth - surface.azimuth);
    const Real cos_incidence = towards_sun > 0.0f ? towards_sun : 0.0f;
    const auto [Kb, TF] = slope_sky(day, sun.altitude, sin_alt, sky.beam, surface.tilt, model);
    if (sky.beam < 5.0f || sun.altitude >= 0.1f)
        return sky.diffuse * (TF * (1.0f - Kb) + Kb * cos_incidence / sin_alt);

    // Low sun: brightening of the horizon and around the sun after R. C. Temps and K. L. Coulson
    // (1977), by the clearness as T. M. Klucher (1979) does.
    const auto [sin_half, cos_half] = math::sincos(surface.tilt / 2.0f);
    const Real sin_zenith = math::sin(right_angle - sun.altitude);
    const Real horizon = 1.0f + Kb * (sin_half * sin_half * sin_half);
    const Real circumsolar =
        1.0f + Kb * (cos_incidence * cos_incidence) * (sin_zenith * sin_zenith * sin_zenith);
    return sky.diffuse * (cos_half * cos_half) * horizon * circumsolar;
}

}  // namespace quorvel::climate
