// Diffuse irradiance of the sky on a tilted surface, by day of the year and model of the sky. All
// single precision. Angles in radians, irradiances in W/m².
#pragma once

#include "climate/angles.h"
#include "climate/extraterrestrial.h"
#include "climate/muneer_sky.h"

namespace quorvel::climate {

// The float nearest to pi is used here, not the library's own.
inline constexpr Real slope_pi = 3.1415927f;

// Radiance index by the sun, whatever side of the surface it is on.
template <class R>
R sky_index(R altitude, R beam) noexcept {
    return select(altitude <= 0.0f, R(to_real(shaded_index)),
                  select(beam < 5.0f, R(to_real(overcast_index)), R(to_real(sunny_index))));
}

// Model 0 goes by the radiance index, 1 by the beam clearness Kb as fitted for northern Europe, any
// other by that for southern Europe.
template <class R>
R sky_anisotropy(IntegerOf<R> model, R index, R Kb) noexcept {
    return piecewise(
        model == 0, [&] { return anisotropy(index, R(slope_pi)); },  //
        model == 1, [&] { return 0.00333f - 0.415f * Kb - 0.6987f * (Kb * Kb); },
        [&] { return 0.00263f - 0.712f * Kb - 0.6883f * (Kb * Kb); });
}

template <class R>
struct SlopeSky {
    R Kb;          // beam on the horizontal by that outside the atmosphere
    R background;  // factor on the diffuse horizontal irradiance
};

template <class R>
SlopeSky<R> slope_sky(IntegerOf<R> day, R altitude, R sin_altitude, R beam, R tilt,
                      IntegerOf<R> model) noexcept {
    const R Kb = beam / extraterrestrial_horizontal<R>(day, sin_altitude);
    const R term = sky_anisotropy<R>(model, sky_index(altitude, beam), Kb);
    return {Kb, background_factor(term, tilt, R(slope_pi))};
}

// Diffuse irradiance without circumsolar part, by that on the horizontal.
template <class R>
R diffuse_tilt_factor(IntegerOf<R> day, R altitude, R beam, R tilt, IntegerOf<R> model) noexcept {
    return slope_sky<R>(day, altitude, math::sin(altitude), beam, tilt, model).background;
}

// Share of the diffuse irradiance under a low sun: brightening of the horizon and around the sun
// after R. C. Temps and K. L. Coulson (1977), by the clearness as T. M. Klucher (1979) does.
template <class R>
R low_sun_diffuse(R diffuse, R altitude, R tilt, R cos_incidence, R Kb) noexcept {
    const auto [sin_half, cos_half] = math::sincos(tilt / 2.0f);
    const R sin_zenith = math::sin(right_angle - altitude);
    const R horizon = 1.0f + Kb * (sin_half * sin_half * sin_half);
    const R circumsolar =
        1.0f + Kb * (cos_incidence * cos_incidence) * (sin_zenith * sin_zenith * sin_zenith);
    return diffuse * (cos_half * cos_half) * horizon * circumsolar;
}

template <class R>
R slope_diffuse(IntegerOf<R> day, R altitude, R azimuth, R surface_azimuth, R tilt, R beam,
                R diffuse, IntegerOf<R> model) noexcept {
    const Incidence<R> sun(altitude, azimuth, surface_azimuth, tilt);
    const R cos_incidence = select(sun.cosine > 0.0f, sun.cosine, R(0.0f));
    const auto sky = slope_sky<R>(day, altitude, sun.sin_altitude, beam, tilt, model);
    return either((beam < 5.0f) | (altitude >= 0.1f),
                  [&] {
                      return diffuse * (sky.background * (1.0f - sky.Kb) +
                                        sky.Kb * cos_incidence / sun.sin_altitude);
                  },
                  [&] { return low_sun_diffuse(diffuse, altitude, tilt, cos_incidence, sky.Kb); });
}

}  // namespace quorvel::climate
