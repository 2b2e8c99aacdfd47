// Heat transfer by natural convection at a surface of a room.
#pragma once

#include "base/numeric.h"
#include "math/math.h"

namespace quorvel::fabric {

// Natural-convection coefficient, W/m²K, at a difference of surface and air temperature, K, for a
// characteristic length, m; kind 1: heat flow upwards, 2: vertical surface, 3: downwards.
//
// Laminar and turbulent convection of the first two are blended so that the larger prevails
// (Churchill and Usagi): (laminar (dT/L)^(1/4))^6 + (turbulent dT^(1/3))^6 to the power of 1/6.
template <class R>
R natural_convection_coefficient(R difference, R length, IntegerOf<R> kind) noexcept {
    // Sixth powers of 1.63 and 1.40 upwards; of 1.23 and 1.50 at the vertical, where the larger one
    // is the laminar.
    static constexpr Real turbulent[] = {18.75f, 3.463f}, laminar[] = {7.5295f, 11.391f};
    const R x = absolute(difference);
    return piecewise(
        kind == 3, [&] { return 0.6f * math::pow(x / (length * length), 0.2f); },
        (kind == 1) | (kind == 2),
        [&] {
            const IntegerOf<R> row = table_row(kind, 2);
            return math::pow(lookup(turbulent, row) * (x * x) +
                                 lookup(laminar, row) * math::pow(x / length, 1.5f),
                             0.1666667f);
        },
        [&] { return R(0.0f); });
}

}  // namespace quorvel::fabric
