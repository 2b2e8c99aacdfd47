// Design irradiance of the sky by solar altitude. Irradiances in W/m², angles in radians.
#pragma once

#include "base/numeric.h"
#include "climate/angles.h"
#include "math/math.h"

namespace quorvel::climate {

// Increase of irradiance with the height of the site, m. Lower sites and low suns get none, so the
// factor jumps by 4 % or more at 300 m.
template <class R>
inline R height_factor(R height, R altitude) noexcept {
    const R sin_alt = math::sin(altitude);
    return either((sin_alt >= 0.08f) & (height >= 300.0f),
                  [&] { return height * (5e-05f / sin_alt + 2e-05f) + 1.02f; },
                  [&] { return R(1.0f); });
}

// The clear sky, then the cloudy one.
inline constexpr Real low_sun_slopes[] = {266.971f, 287.295f};  // W/m² per rad
inline constexpr int diffuse_terms = 5;                         // per power of the altitude, from 0
inline constexpr Real diffuse_series[] = {1.52269f,  280.358f, -375.111f, 253.716f, -63.3311f,
                                          0.331322f, 283.1f,   4.42111f,  0.0f,     0.0f};

template <class R>
inline R high_sun_direct(R altitude) noexcept {
    const R w = 1.0f / altitude;
    const R w2 = w * w;
    const R w3 = w2 * w;
    const R w4 = w3 * w;
    return 1035.49f - 156.13f * w - 1.91863f * w2 + 2.51353f * w3 - 0.148842f * w4;
}

template <class R>
inline R high_sun_diffuse(R altitude, IntegerOf<R> sky) noexcept {
    R diffuse = R(0.0f);
    R power = R(1.0f);
    for (int i = 0; i < diffuse_terms; ++i) {
        diffuse += lookup(diffuse_series, sky * diffuse_terms + i) * power;
        power *= altitude;
    }
    return diffuse;
}

template <class R>
struct DesignIrradiance {
    R direct_normal, diffuse_horizontal;
};

template <class R>
inline DesignIrradiance<R> design_irradiance(R altitude, R height, IntegerOf<R> sky_kind) noexcept {
    const IntegerOf<R> sky = select(sky_kind < 1, IntegerOf<R>(0), IntegerOf<R>(1));
    const MaskOf<R> beyond = absolute(altitude) > right_angle;
    const MaskOf<R> low = altitude <= 0.087f;
    const R factor = height_factor(height, altitude);
    const R direct = either(
        rarely(low), [&] { return 2397.26f * altitude; },
        [&] { return high_sun_direct(altitude); });
    const R diffuse = either(
        rarely(low), [&] { return lookup(low_sun_slopes, sky) * altitude; },
        [&] { return high_sun_diffuse<R>(altitude, sky); });
    return {select(beyond, R(0.0f), direct * factor), select(beyond, R(0.0f), diffuse * factor)};
}

}  // namespace quorvel::climate
