// Irradiance on a tilted surface from that on the horizontal after T. Muneer, Building Services
// Engineering Research and Technology 11 (1990). The radiance of the sky follows 1 + b
// sin(altitude) with b by the kind of sky; a sunlit surface gets a circumsolar part by the
// clearness of the beam. Angles are in radians, irradiances in W/m².
#pragma once

#include <algorithm>

#include "climate/design_sky.h"

namespace quorvel::climate {

struct HorizontalIrradiance {
    Real beam, diffuse;
};

// Radiance index b of a surface in shade, of a sunlit one under overcast and under any other sky.
inline constexpr double shaded_index = 5.73;
inline constexpr double overcast_index = 1.68;
inline constexpr double sunny_index = -0.62;

// How far a sky of radiance index b is from an isotropic one.
template <class Float>
constexpr Float anisotropy(Float b, Float pi) noexcept {
    return Float{2} * b / ((Float{2} * b + Float{3}) * pi);
}

// Irradiance on a surface of tilt beta without circumsolar part, by that on the horizontal.
template <class Float>
Float background_factor(Float anisotropy, Float beta, Float pi) noexcept {
    const Float cos_half = math::cos(beta / Float{2}), sin_half = math::sin(beta / Float{2});
    return cos_half * cos_half +
           anisotropy * (math::sin(beta) - beta * math::cos(beta) - pi * (sin_half * sin_half));
}

struct MuneerSlope {
    Real beam, diffuse, ground_reflected;
    Real incidence;
};

// Of these formulas, which are double between their single arguments and results.
inline constexpr double muneer_pi = 3.141592654;

inline double background_factor(double b, double beta) noexcept {
    return background_factor(anisotropy(b, muneer_pi), beta, muneer_pi);
}

struct Sunlit {
    double sin_altitude, cos_incidence;
    double beam_clearness;
};

// Diffuse irradiance of a sunlit surface.
inline double sunlit_diffuse(const Sunlit& sun, bool low, double beta, double beam,
                             double diffuse) noexcept {
    if (low) {
        const double sin_half = math::sin(beta / 2.0);
        return diffuse * sun.cos_incidence * (1.0 + sin_half * sin_half * sin_half);
    }
    // The two thresholds differ on purpose: a beam of exactly 5 has the index of the sunny sky, but
    // no circumsolar part.
    const double TF = background_factor(beam < 5.0 ? overcast_index : sunny_index, beta);
    if (beam <= 5.0) return diffuse * TF;
    const double Kb = sun.beam_clearness;
    return diffuse * (TF * (1.0 - Kb) + Kb * sun.cos_incidence / sun.sin_altitude);
}

inline MuneerSlope muneer_slope(SolarAngles sun, Orientation surface, HorizontalIrradiance sky,
                                Real extraterrestrial_horizontal,
                                Real ground_reflectance) noexcept {
    const auto altitude = static_cast<double>(sun.altitude);
    const auto beta = static_cast<double>(surface.tilt);
    const auto beam = static_cast<double>(sky.beam), diffuse = static_cast<double>(sky.diffuse);
    const double relative_azimuth =
        static_cast<double>(sun.azimuth) - static_cast<double>(surface.azimuth);
    const double sin_altitude = math::sin(altitude);
    const double cos_incidence =
        math::cos(altitude) * math::sin(beta) * math::cos(relative_azimuth) +
        sin_altitude * math::cos(beta);

    const double sin_half = math::sin(beta / 2.0);
    const double ground =
        (beam + diffuse) * static_cast<double>(ground_reflectance) * (sin_half * sin_half);
    if (cos_incidence <= 0.0)
        return {0.0f, static_cast<Real>(diffuse * background_factor(shaded_index, beta)),
                static_cast<Real>(ground), static_cast<Real>(muneer_pi / 2.0)};

    const Sunlit sunlit = {sin_altitude, cos_incidence,
                           beam / static_cast<double>(extraterrestrial_horizontal)};
    // The altitude is compared in double: 0.1 in single precision is above.
    const bool low = !(altitude > 0.1);
    return {static_cast<Real>(cos_incidence * beam / sin_altitude),
            static_cast<Real>(sunlit_diffuse(sunlit, low, beta, beam, diffuse)),
            static_cast<Real>(ground), static_cast<Real>(math::acos(std::min(cos_incidence, 1.0)))};
}

}  // namespace quorvel::climate
