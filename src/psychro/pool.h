// Evaporation from an indoor pool and the heat that its water gives to the room.
#pragma once

#include "psychro/saturation.h"
#include "psychro/wet_bulb.h"

namespace quorvel::psychro {

struct Pool {
    Real area, wetted_area;      // m²; the second adds to the latent load only
    Real water, air, reference;  // °C
    Integer bathers;             // below 1: unoccupied
    Real reference_coefficient;  // W/m²K
};

struct PoolLoads {
    Real evaporation;                       // kg/(m² s)
    Real latent, convective, to_reference;  // W
};

// pv: vapour pressure of the room air [Pa]. Nothing is clamped: a calm pool close to equilibrium
// with the air gathers water by the regression.
inline PoolLoads pool_loads(const Pool& pool, Real pv) noexcept {
    const Real dp = saturation_pressure(pool.water) - pv;
    const Real evaporation =
        pool.bathers < 1 ? 2.193e-8f * dp - 1.64e-5f
                         : 4.17e-8f * dp * static_cast<Real>(pool.bathers) / pool.area + 3.28e-5f;
    return {evaporation, evaporation * (pool.area + pool.wetted_area) * 2.45e6f,
            10.0f * pool.area * (pool.water - pool.air),
            pool.reference_coefficient * pool.area * (pool.water - pool.reference)};
}

inline constexpr Integer sling = 1;  // psychrometer type

// Room air by its wet bulb, as a sling psychrometer reads it, at pressure p [Pa].
inline PoolLoads pool_evaporation_from_wet_bulb(const Pool& pool, Real twb, Real p) noexcept {
    return pool_loads(pool, vapour_pressure_from_psychrometer(pool.air, twb, p, sling));
}

// Room air by its moisture content g [kg/kg].
inline PoolLoads pool_evaporation(const Pool& pool, Real g, Real p) noexcept {
    return pool_evaporation_from_wet_bulb(pool,
                                          wet_bulb_from_moisture_content(pool.air, g, p, sling), p);
}

}  // namespace quorvel::psychro
