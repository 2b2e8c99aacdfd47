// Quadrature over the profile angle, between the horizon and the zenith or the nadir: 9 bands of 10
// degrees, for radiance that is uniform in the profile angle and weighted with its cosine.
#pragma once

#include <array>

#include "base/contract.h"

namespace quorvel::glazing {

struct ProfileBand {
    Real cosine;  // at the centre
    Real weight;  // sine of the upper less that of the lower limit
};

inline constexpr int profile_band_count = 9;
inline constexpr Real half_profile_band = 0.08726646f;  // rad, 5 degrees

// Profile angle, rad, at the centre of a band, counted from 0.
constexpr Real profile_band_centre(int band) noexcept {
    return static_cast<Real>(2 * band + 1) * half_profile_band;
}

// Constants, so that no call evaluates 27 functions for them. They are the very numbers that the
// single-precision functions give, which the tests check bit for bit.
inline constexpr std::array<ProfileBand, profile_band_count> profile_bands{{
    {0.9961947f, 0.17364818f},
    {0.9659258f, 0.16837193f},
    {0.9063078f, 0.15797985f},
    {0.81915206f, 0.14278758f},
    {0.7071068f, 0.1232568f},
    {0.57357645f, 0.09998101f},
    {0.42261824f, 0.07366717f},
    {0.25881907f, 0.045115113f},
    {0.087155804f, 0.01519227f},
}};

// 1 but for rounding: what a result that is the same at every angle is multiplied with.
inline constexpr Real profile_weight_sum = [] {
    Real sum = 0.0f;
    for (const ProfileBand& band : profile_bands) sum += band.weight;
    return sum;
}();

}  // namespace quorvel::glazing
