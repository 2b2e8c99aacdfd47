// Wet bulb that belongs to a humidity of the air, by stepping searches on the psychrometer
// equation. Where a search would never end, what it has reached is returned.
//
// All at dry bulb t, °C, and atmospheric pressure p, Pa, for a psychrometer of a type.
#pragma once

#include "psychro/moist_air.h"
#include "psychro/wet_bulb_forecast.h"

namespace quorvel::psychro {

// Finest step of the searches with the enhancement factor, K.
inline constexpr Real finest_step = 0.005f;
// Above some 15 700 °C saturation pressure overflows, and below absolute zero its formula does: no
// search that ends goes further than this, K.
inline constexpr int widest_search = 20000;

// Where the forecasts' error bounds hold; near 0 °C as well, since ps rises from ice to water.
template <class R>
MaskOf<R> is_ordinary(R t) noexcept {
    return (t >= -100.0f) & (t <= 100.0f);
}

template <class R>
PsychrometerSlope<R> psychrometer_slope(R p, IntegerOf<R> type) noexcept {
    return {psychrometer_coefficient<R>(type, false) * p,
            psychrometer_coefficient<R>(type, true) * p};
}

// Air at a dry bulb: what stays the same from trial to trial of one search.
template <class R>
class MoistAirAt {
  public:
    MoistAirAt(R t, R p, IntegerOf<R> type) noexcept
        : air_(p),
          t_(t),
          saturation_pressure_(saturation_pressure(t)),
          enhancement_(air_.enhancement(t)),
          slope_(psychrometer_slope<R>(p, type)) {}

    R saturation_content() const noexcept { return content_at(saturation_pressure_); }

    R moisture_content(R twb) const noexcept {
        if (twb >= t_) return saturation_content();
        return content_at(saturation_pressure(twb) - slope_.at(twb) * (t_ - twb));
    }

    // Of the comparison of moisture_content(twb) with a target. Moisture content rises with vapour
    // pressure; the ten or so operations between them, on terms that near the root are no larger
    // than ps, err by 2e-6. Not close to boiling (above 5 kg/kg) or past it, for a target that is
    // not between dry and saturated, or at pressures whose products overflow.
    WetBulbForecast<R> forecast(R target) const noexcept {
        const R p = air_.pressure();
        const R pv = p * target / (enhancement_ * (molar_mass_ratio + target));
        WetBulbForecast<R> forecast(t_, saturation_pressure_, pv, slope_);
        const R saturated = saturation_content();
        const bool holds = is_ordinary(t_) && p > 0.0f && p < 1e9f && saturated < 5.0f &&
                           target >= 0.0f && target <= saturated;
        if (holds) {
            forecast.approach_root(3);
            forecast.set_margin(1e-4f * forecast.saturation_near_root());
        }
        return forecast;
    }

  private:
    R content_at(R pv) const noexcept { return air_.moisture_content(enhancement_, pv); }

    MoistAir<R> air_;
    R t_, saturation_pressure_, enhancement_;
    PsychrometerSlope<R> slope_;
};

// What a psychrometer reads at relative humidity rh, %, to 0.1 K.
template <class R>
R psychrometer_wet_bulb(R t, R rh, R p, IntegerOf<R> type) noexcept {
    constexpr R tenth = 0.1f;  // tolerance in K, and step reduction

    // The row is taken by the dry bulb here, by the wet bulb in the inverse: deliberate.
    const R Ap = psychrometer_coefficient<R>(type, t < 0.0f) * p;
    const R saturation = saturation_pressure(t);
    const R pv = saturation * limited(rh, 0.0f, 100.0f) / 100.0f;
    WetBulbForecast<R> forecast(t, saturation, pv, {Ap, Ap});
    if (is_ordinary(t) && Ap >= 10.0f) {
        forecast.approach_root(2);
        // No trial lies above t + 1 K, where ps is below 2 ps(t).
        forecast.set_margin((tenth + 0.001f) * Ap + 1e-4f * saturation);
    }

    R tw = t;
    R tn = t;
    R step = 1.0f;
    for (int i = 0; i < widest_search; ++i) {
        bool sinks = forecast.above(tw);
        bool rises = forecast.below(tw);
        if (!sinks && !rises) {
            tn = t - (saturation_pressure(tw) - pv) / Ap;
            if (absolute(tw - tn) < tenth) break;
            sinks = tw > tn;
            rises = tw <= tn;
        }
        if (sinks) {
            tw -= step;
        } else if (rises) {
            tw += step;
            step *= tenth;
        } else {
            break;  // not a number
        }
    }
    return t < tn ? t : tn;
}

// At percentage saturation with the enhancement factor, to 0.01 K, rounded up.
template <class R>
R wet_bulb_from_percentage_saturation(R t, R saturation, R p, IntegerOf<R> type) noexcept {
    const MoistAirAt<R> air(t, p, type);
    const R saturated = air.saturation_content();
    const WetBulbForecast<R> forecast = air.forecast(saturation * saturated / 100.0f);

    R twb = t;
    R step = 1.0f;
    for (int i = 0; i < widest_search; ++i) {
        twb -= step;
        if (forecast.above(twb)) continue;
        if (!forecast.below(twb)) {
            const R trial = 100.0f * air.moisture_content(twb) / saturated;
            if (trial > saturation) continue;
            if (trial == saturation) return twb;
        }
        twb += step;
        step /= 10.0f;
        if (step < finest_step) return twb;
    }
    return twb;
}

// At moisture content g, kg/kg, with the enhancement factor, to 0.005 K.
template <class R>
R wet_bulb_from_moisture_content(R t, R g, R p, IntegerOf<R> type) noexcept {
    const MoistAirAt<R> air(t, p, type);
    if (g >= air.saturation_content()) return t;
    if (t > 10000.0f) return -100.0f;
    if (t != t) return -200.0f;
    const WetBulbForecast<R> forecast = air.forecast(g);

    R step = 5.0f;
    R twb = t - step;
    for (int i = 0; i < widest_search / 5; ++i) {
        if (forecast.below(twb) || (!forecast.above(twb) && air.moisture_content(twb) < g)) {
            twb += step;
            step /= 10.0f;
        }
        twb -= step;
        if (step < finest_step) return twb;
    }
    return twb;
}

}  // namespace quorvel::psychro
