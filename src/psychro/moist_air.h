// State of moist air: moisture content, percentage saturation, enthalpy and volume, all per kg of
// dry air. Temperatures in °C, pressures in Pa, moisture contents in kg/kg, enthalpies in kJ/kg.
#pragma once

#include <algorithm>

#include "psychro/components.h"
#include "psychro/saturation.h"

namespace quorvel::psychro {

inline constexpr Real molar_mass_ratio = 0.62197f;  // water to dry air

// Air at one atmospheric pressure, which fixes the coefficients of the enhancement factor f: the
// saturation pressure of water in air exceeds that of water alone by it.
class MoistAir {
  public:
    explicit MoistAir(Real p) noexcept
        : p_(p),
          water_{1.01147f + 3.4963e-7f * p, 9.9564e-5f + 2.03553e-9f * p,
                 2.171568e-7f + 3.286831e-12f * p},
          ice_{1.00386f + 3.73e-7f * p, 3.71175e-5f + 2.22785e-9f * p,
               8.89475e-8f + 3.69995e-12f * p} {}

    Real pressure() const noexcept { return p_; }

    // Exactly 0 °C is ice here, but water in saturation_pressure: kept.
    Real enhancement(Real t) const noexcept {
        const Coefficients& k = t > 0.0f ? water_ : ice_;
        const Real T = t + zero_celsius;
        return T * (k.c * T - k.b) + k.a;
    }

    // Moisture content at vapour pressure pv, f being the enhancement factor at the dry bulb.
    Real moisture_content(Real f, Real pv) const noexcept {
        return molar_mass_ratio * f * pv / (p_ - f * pv);
    }

    Real saturation_content(Real t) const noexcept {
        return moisture_content(enhancement(t), saturation_pressure(t));
    }

  private:
    struct Coefficients {
        Real a, b, c;
    };

    Real p_;
    Coefficients water_, ice_;
};

inline Real moisture_content_from_psychrometer(Real t, Real twb, Real p, Integer type) noexcept {
    const MoistAir air(p);
    return air.moisture_content(air.enhancement(t),
                                vapour_pressure_from_psychrometer(t, twb, p, type));
}

inline Real percentage_saturation(Real t, Real g, Real p) noexcept {
    return g * 100.0f / MoistAir(p).saturation_content(t);
}

inline Real specific_enthalpy(Real t, Real g) noexcept {
    return dry_air_enthalpy(t) + g * water_vapour_enthalpy(t);
}

inline Real specific_enthalpy_from_psychrometer(Real t, Real twb, Real p, Integer type) noexcept {
    return specific_enthalpy(t, moisture_content_from_psychrometer(t, twb, p, type));
}

// Specific volume [m³/kg]; a moisture content above saturation counts as saturation.
Real specific_volume(Real t, Real g, Real p) noexcept;

// Temperature at which saturated air has the specific enthalpy h; where none is found, what the
// search has reached.
Real saturation_temperature_from_enthalpy(Real h, Real p) noexcept;

}  // namespace quorvel::psychro
