// State of moist air: moisture content, percentage saturation, enthalpy and volume, all per kg of
// dry air. Temperatures in °C, pressures in Pa, moisture contents in kg/kg, enthalpies in kJ/kg.
#pragma once

#include "psychro/components.h"
#include "psychro/saturation.h"

namespace quorvel::psychro {

inline constexpr Real molar_mass_ratio = 0.62197f;  // water to dry air

// Air at one atmospheric pressure, which fixes the coefficients of the enhancement factor f: the
// saturation pressure of water in air exceeds that of water alone by it.
template <class R>
class MoistAir {
  public:
    explicit MoistAir(R p) noexcept
        : p_(p),
          water_{1.01147f + 3.4963e-7f * p, 9.9564e-5f + 2.03553e-9f * p,
                 2.171568e-7f + 3.286831e-12f * p},
          ice_{1.00386f + 3.73e-7f * p, 3.71175e-5f + 2.22785e-9f * p,
               8.89475e-8f + 3.69995e-12f * p} {}

    R pressure() const noexcept { return p_; }

    // Deliberate: exactly 0 °C is ice here, but water in saturation_pressure.
    R enhancement(R t) const noexcept {
        const R T = t + zero_celsius;
        return either(
            t > 0.0f, [&] { return water_.at(T); }, [&] { return ice_.at(T); });
    }

    // Moisture content at vapour pressure pv, f being the enhancement factor at the dry bulb.
    R moisture_content(R f, R pv) const noexcept {
        return molar_mass_ratio * f * pv / (p_ - f * pv);
    }

    // The inverse.
    R vapour_pressure(R f, R g) const noexcept { return p_ * g / (f * (molar_mass_ratio + g)); }

    R saturation_content(R t) const noexcept {
        return moisture_content(enhancement(t), saturation_pressure(t));
    }

  private:
    struct Quadratic {
        R a, b, c;

        R at(R T) const noexcept { return T * (c * T - b) + a; }
    };

    R p_;
    Quadratic water_, ice_;
};

template <class R>
R moisture_content_from_psychrometer(R t, R twb, R p, IntegerOf<R> type) noexcept {
    const MoistAir<R> air(p);
    return air.moisture_content(air.enhancement(t),
                                vapour_pressure_from_psychrometer(t, twb, p, type));
}

template <class R>
R moisture_content(R t, R pv, R p) noexcept {
    const MoistAir<R> air(p);
    return air.moisture_content(air.enhancement(t), pv);
}

template <class R>
R moisture_content_from_percentage_saturation(R t, R saturation, R p) noexcept {
    return saturation * MoistAir<R>(p).saturation_content(t) / 100.0f;
}

template <class R>
R vapour_pressure_from_moisture_content(R t, R g, R p) noexcept {
    const MoistAir<R> air(p);
    return air.vapour_pressure(air.enhancement(t), g);
}

template <class R>
R percentage_saturation(R t, R g, R p) noexcept {
    return g * 100.0f / MoistAir<R>(p).saturation_content(t);
}

template <class R>
R specific_enthalpy(R t, R g) noexcept {
    return dry_air_enthalpy(t) + g * water_vapour_enthalpy(t);
}

template <class R>
R moisture_content_from_enthalpy(R t, R h) noexcept {
    return (h - dry_air_enthalpy(t)) / water_vapour_enthalpy(t);
}

template <class R>
R specific_enthalpy_from_psychrometer(R t, R twb, R p, IntegerOf<R> type) noexcept {
    return specific_enthalpy(t, moisture_content_from_psychrometer(t, twb, p, type));
}

// Second virial coefficient of water vapour, (D0 - D1 t) / 100: one row below 0 °C, one for each
// 10 K above, the last one from 50 °C.
template <class R>
R vapour_virial(R t) noexcept {
    static constexpr Real D0[] = {6.318f, 6.318f, 6.076f, 5.634f, 5.262f, 4.862f, 4.462f};
    static constexpr Real D1[] = {0.1622f, 0.1105f, 0.0863f, 0.0642f, 0.0518f, 0.0418f, 0.0338f};
    using I = IntegerOf<R>;
    const MaskOf<R> in_tens = (t >= 0.0f) & (t <= 50.0f);
    const I ten = to_integer(select(in_tens, t, R(0.0f)) / 10.0f) + 1;
    const I row = select(in_tens, ten, select(t < 0.0f, I(0), I(6)));
    return (lookup(D0, row) - lookup(D1, row) * t) / 100.0f;
}

// Specific volume, m³/kg; a moisture content above saturation counts as saturation.
template <class R>
R specific_volume(R t, R g, R p) noexcept {
    const R content = lesser(g, MoistAir<R>(p).saturation_content(t));
    const R xa = molar_mass_ratio / (molar_mass_ratio + content);
    const R xv = 1.0f - xa;
    const R pa = p - content * p / ((molar_mass_ratio + content) * 1.0045f);
    const R ideal = (t + zero_celsius) * 287.04f / pa;
    const R hundreds = t / 100.0f;
    const R B = (((0.0004353f - 2.1418e-6f * t) * t - 0.082785f) * t + 4.542f) / 10000.0f;
    const R C = (1.45f - 0.0097f * t + 0.32f * (hundreds * hundreds)) / 1000.0f;
    return ideal - xv * xv * vapour_virial(t) - xa * (B * xa + 2.0f * C * xv);
}

// Of the mixture, kg/m³; what is above saturation neither takes room nor weighs.
template <class R>
R moist_air_density(R t, R g, R p) noexcept {
    const R content = lesser(g, MoistAir<R>(p).saturation_content(t));
    return (1.0f + content) / specific_volume(t, g, p);
}

// Temperature at which saturated air has the specific enthalpy h, by a search that climbs by 10 K
// and refines; where none is found, what it has reached. From some 15 700 °C the saturation
// pressure is infinite and the enthalpy no number, so that it finds nothing beyond.
template <class R>
R saturation_temperature_from_enthalpy(R h, R p) noexcept {
    constexpr int most_steps = 4000;
    const MaskOf<R> colder = h<-10.0f, hotter = h> 460.0f;
    const R without_search = select(colder, R(-13.4f), R(60.0f));
    MaskOf<R> searching = !(colder | hotter);
    if (!any(searching)) return without_search;
    const MoistAir<R> air(p);
    const auto beyond = [&](R t) { return specific_enthalpy(t, air.saturation_content(t)) > h; };
    R t(-20.0f);
    R step(10.0f);
    if constexpr (is_single<R>) {
        for (int i = 0; i < most_steps; ++i) {
            if (beyond(t)) {
                t = (t - step) + step / 10.0f;
                step /= 10.0f;
                if (step < 0.005f) return t;
            } else {
                t += step;
            }
        }
        return t;
    } else {
        const MaskOf<R> searched = searching;
        for (int i = 0; i < most_steps && any(searching); ++i) {
            const MaskOf<R> refines = searching & beyond(t);
            t = select(refines, (t - step) + step / 10.0f, select(searching, t + step, t));
            step = select(refines, step / 10.0f, step);
            searching = searching & !(step < 0.005f);
        }
        return select(searched, t, without_search);
    }
}

}  // namespace quorvel::psychro
