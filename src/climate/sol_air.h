// Sol-air temperature, and the long-wave radiation that a surface loses to the sky.
#pragma once

#include "base/contract.h"
#include "math/math.h"

namespace quorvel::climate {

// Outdoor temperature that gives a surface the heat which sun and sky exchange with it: the base
// with the net gain [W/m²] by the heat transfer coefficient [W/m²K].
constexpr Real sol_air_temperature(Real base, Real coefficient, Real absorptance, Real gain,
                                   Real loss) noexcept {
    return base + absorptance * (gain - loss) / coefficient;
}

// Net loss [W/m²] of a surface of this tilt [rad] under a share of cloud, by the cosine between
// 93 - 79 C of horizontal and 21 - 17 C of vertical surfaces; no gain.
inline Real long_wave_loss(Real tilt, Real cloud) noexcept {
    const Real cos_tilt = math::cos(tilt);
    const Real loss = (72.0f * cos_tilt + 21.0f) - (62.0f * cos_tilt + 17.0f) * cloud;
    return loss < 0.0f ? 0.0f : loss;
}

}  // namespace quorvel::climate
