// Irradiance on a tilted surface from that on the horizontal after T. Muneer, Building Services
// Engineering Research and Technology 11 (1990). The radiance of the sky follows 1 + b
// sin(altitude) with b by the kind of sky; a sunlit surface gets a circumsolar part by the
// clearness of the beam. Angles in radians, irradiances in W/m².
#pragma once

#include "climate/incidence.h"

namespace quorvel::climate {

// Radiance index b of a surface in shade, of a sunlit one under overcast and under any other sky.
inline constexpr double shaded_index = 5.73;
inline constexpr double overcast_index = 1.68;
inline constexpr double sunny_index = -0.62;

// How far a sky of radiance index b is from an isotropic one.
template <class F>
F anisotropy(F b, F pi) noexcept {
    return F(2.0f) * b / ((F(2.0f) * b + F(3.0f)) * pi);
}

// Irradiance on a surface of tilt beta without circumsolar part, by that on the horizontal.
template <class F>
F background_factor(F anisotropy, F beta, F pi) noexcept {
    const auto [sin_half, cos_half] = math::sincos(beta / F(2.0f));
    const auto [sin_beta, cos_beta] = math::sincos(beta);
    return cos_half * cos_half +
           anisotropy * (sin_beta - beta * cos_beta - pi * (sin_half * sin_half));
}

// Of these formulas, which are double between their single arguments and results.
inline constexpr double muneer_pi = 3.141592654;

// Diffuse irradiance of a sunlit surface. The altitude is compared in double: 0.1 in single
// precision is above. The two thresholds of the beam differ deliberately: at exactly 5 it has the
// index of the sunny sky, but no circumsolar part.
template <class D>
D sunlit_diffuse(const Incidence<D>& sun, D altitude, D tilt, D beam, D diffuse,
                 D extraterrestrial_horizontal) noexcept {
    return either(
        altitude > 0.1,
        [&] {
            const D b = select(beam < 5.0, D(overcast_index), D(sunny_index));
            const D TF = background_factor(anisotropy(b, D(muneer_pi)), tilt, D(muneer_pi));
            const D Kb = beam / extraterrestrial_horizontal;
            const D mixed = TF * (1.0 - Kb) + Kb * sun.cosine / sun.sin_altitude;
            return diffuse * select(beam <= 5.0, TF, mixed);
        },
        [&] {
            const D sin_half = math::sin(tilt / 2.0);
            return diffuse * sun.cosine * (1.0 + sin_half * sin_half * sin_half);
        });
}

template <class R>
struct MuneerSlope {
    R beam, diffuse, ground_reflected;
    R incidence;
};

template <class R>
MuneerSlope<R> muneer_slope(R altitude, R azimuth, R surface_azimuth, R tilt, R beam, R diffuse,
                            R extraterrestrial_horizontal, R ground_reflectance) noexcept {
    using D = DoubleOf<R>;
    const D alpha = to_double(altitude), beta = to_double(tilt);
    const D beam_d = to_double(beam), diffuse_d = to_double(diffuse);
    const Incidence<D> sun(alpha, to_double(azimuth), to_double(surface_azimuth), beta);
    const MaskOf<D> behind = sun.cosine <= 0.0;

    const D sky_diffuse = either(
        behind,
        [&] {
            const D term = anisotropy(D(shaded_index), D(muneer_pi));
            return diffuse_d * background_factor(term, beta, D(muneer_pi));
        },
        [&] {
            return sunlit_diffuse<D>(sun, alpha, beta, beam_d, diffuse_d,
                                     to_double(extraterrestrial_horizontal));
        });
    const D direct = select(behind, D(0.0), sun.cosine * beam_d / sun.sin_altitude);
    const D sin_half = math::sin(beta / 2.0);
    const D ground = (beam_d + diffuse_d) * to_double(ground_reflectance) * (sin_half * sin_half);
    return {to_real(direct), to_real(sky_diffuse), to_real(ground),
            to_real(sun.angle(D(muneer_pi / 2.0)))};
}

}  // namespace quorvel::climate
