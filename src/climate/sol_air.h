// Sol-air temperature, and the long-wave radiation that a surface loses to the sky.
#pragma once

#include "base/number.h"
#include "math/math.h"

namespace quorvel::climate {

// Outdoor temperature that gives a surface the heat which sun and sky exchange with it: the base
// with the net gain, W/m², by the heat transfer coefficient, W/m²K.
template <class R>
R sol_air_temperature(R base, R coefficient, R absorptance, R gain, R loss) noexcept {
    return base + absorptance * (gain - loss) / coefficient;
}

// Net loss, W/m², of a surface of this tilt, rad, under a share of cloud, by the cosine between
// 93 - 79 C of horizontal and 21 - 17 C of vertical surfaces; no gain.
template <class R>
R long_wave_loss(R tilt, R cloud) noexcept {
    const R cos_tilt = math::cos(tilt);
    const R loss = (72.0f * cos_tilt + 21.0f) - (62.0f * cos_tilt + 17.0f) * cloud;
    return select(loss < 0.0f, R(0.0f), loss);
}

}  // namespace quorvel::climate
