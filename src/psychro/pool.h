// Evaporation from an indoor pool and the heat that its water gives to the room.
#pragma once

#include "psychro/wet_bulb.h"

namespace quorvel::psychro {

template <class R>
struct PoolEvaporation {
    R evaporation;                       // kg/(m² s)
    R latent, convective, to_reference;  // W
};

// Room air by its wet bulb, as a sling psychrometer reads it. Areas in m², of which the wetted one
// adds to the latent load only; pressure in Pa, coefficient in W/m²K; fewer than 1 bather:
// unoccupied. Nothing is limited: a calm pool close to equilibrium with the air gathers water by
// the regression.
template <class R>
PoolEvaporation<R> pool_evaporation_from_wet_bulb(R area, R wetted_area, R water, R air, R twb,
                                                  R reference, IntegerOf<R> bathers,
                                                  R reference_coefficient, R p) noexcept {
    const R dp = saturation_pressure(water) - vapour_pressure_from_psychrometer(air, twb, p, sling);
    const R evaporation = select(bathers < 1, 2.193e-8f * dp - 1.64e-5f,
                                 4.17e-8f * dp * to_real(bathers) / area + 3.28e-5f);
    return {evaporation, evaporation * (area + wetted_area) * 2.45e6f, 10.0f * area * (water - air),
            reference_coefficient * area * (water - reference)};
}

// Room air by its moisture content g, kg/kg.
template <class R>
PoolEvaporation<R> pool_evaporation(R area, R wetted_area, R water, R air, R g, R reference,
                                    IntegerOf<R> bathers, R reference_coefficient, R p) noexcept {
    const R twb = wet_bulb_from_moisture_content<R>(air, g, p, sling);
    return pool_evaporation_from_wet_bulb<R>(area, wetted_area, water, air, twb, reference, bathers,
                                             reference_coefficient, p);
}

}  // namespace quorvel::psychro
