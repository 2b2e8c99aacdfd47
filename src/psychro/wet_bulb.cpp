#include "psychro/wet_bulb.h"

#include <cmath>

#include "psychro/moist_air.h"
#include "psychro/wet_bulb_forecast.h"

namespace quorvel::psychro {
namespace {

// Finest step of the searches with the enhancement factor, K.
constexpr Real finest_step = 0.005f;
// Above some 15 700 °C saturation pressure overflows, and below absolute zero its formula does: no
// search that ends goes further than this, K.
constexpr int widest_search = 20000;

// Where the forecasts' error bounds hold; near 0 °C as well, since ps rises from ice to water.
constexpr bool is_ordinary(Real t) noexcept { return t >= -100.0f && t <= 100.0f; }

PsychrometerSlope psychrometer_slope(Real p, Integer type) noexcept {
    return {psychrometer_coefficient(type, false) * p, psychrometer_coefficient(type, true) * p};
}

// Air at a dry bulb: what stays the same from trial to trial of one search.
class MoistAirAt {
  public:
    MoistAirAt(Real t, Real p, Integer type) noexcept
        : air_(p),
          t_(t),
          saturation_pressure_(saturation_pressure(t)),
          enhancement_(air_.enhancement(t)),
          slope_(psychrometer_slope(p, type)) {}

    Real saturation_content() const noexcept { return content_at(saturation_pressure_); }

    Real moisture_content(Real twb) const noexcept {
        if (twb >= t_) return saturation_content();
        return content_at(saturation_pressure(twb) - slope_.at(twb) * (t_ - twb));
    }

    // Of the comparison of moisture_content(twb) with a target. Moisture content rises with vapour
    // pressure; the ten or so operations between them, on terms that near the root are no larger
    // than ps, err by 2e-6. Not close to boiling (above 5 kg/kg) or past it, for a target that is
    // not between dry and saturated, or at pressures whose products overflow.
    WetBulbForecast forecast(Real target) const noexcept {
        const Real p = air_.pressure();
        const Real pv = p * target / (enhancement_ * (molar_mass_ratio + target));
        WetBulbForecast forecast(t_, saturation_pressure_, pv, slope_);
        const Real saturated = saturation_content();
        const bool holds = is_ordinary(t_) && p > 0.0f && p < 1e9f && saturated < 5.0f &&
                           target >= 0.0f && target <= saturated;
        if (holds) {
            forecast.approach_root(3);
            forecast.set_margin(1e-4f * forecast.saturation_near_root());
        }
        return forecast;
    }

  private:
    Real content_at(Real pv) const noexcept { return air_.moisture_content(enhancement_, pv); }

    MoistAir air_;
    Real t_, saturation_pressure_, enhancement_;
    PsychrometerSlope slope_;
};

}  // namespace

Real psychrometer_wet_bulb(Real t, Real rh, Real p, Integer type) noexcept {
    constexpr Real tenth = 0.1f;  // tolerance in K, and step reduction

    // The row is taken by the dry bulb here, by the wet bulb in the inverse: kept.
    const Real Ap = psychrometer_coefficient(type, t < 0.0f) * p;
    const Real saturation = saturation_pressure(t);
    const Real pv = saturation * limited(rh, 0.0f, 100.0f) / 100.0f;
    WetBulbForecast forecast(t, saturation, pv, {Ap, Ap});
    if (is_ordinary(t) && Ap >= 10.0f) {
        forecast.approach_root(2);
        // No trial lies above t + 1 K, where ps is below 2 ps(t).
        forecast.set_margin((tenth + 0.001f) * Ap + 1e-4f * saturation);
    }

    Real tw = t;
    Real tn = t;
    Real step = 1.0f;
    for (int i = 0; i < widest_search; ++i) {
        bool sinks = forecast.above(tw);
        bool rises = forecast.below(tw);
        if (!sinks && !rises) {
            tn = t - (saturation_pressure(tw) - pv) / Ap;
            if (std::fabs(tw - tn) < tenth) break;
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

Real wet_bulb_from_percentage_saturation(Real t, Real saturation, Real p, Integer type) noexcept {
    const MoistAirAt air(t, p, type);
    const Real saturated = air.saturation_content();
    const WetBulbForecast forecast = air.forecast(saturation * saturated / 100.0f);

    Real twb = t;
    Real step = 1.0f;
    for (int i = 0; i < widest_search; ++i) {
        twb -= step;
        if (forecast.above(twb)) continue;
        if (!forecast.below(twb)) {
            const Real trial = 100.0f * air.moisture_content(twb) / saturated;
            if (trial > saturation) continue;
            if (trial == saturation) return twb;
        }
        twb += step;
        step /= 10.0f;
        if (step < finest_step) return twb;
    }
    return twb;
}

Real wet_bulb_from_moisture_content(Real t, Real g, Real p, Integer type) noexcept {
    const MoistAirAt air(t, p, type);
    if (g >= air.saturation_content()) return t;
    if (t > 10000.0f) return -100.0f;
    if (t != t) return -200.0f;
    const WetBulbForecast forecast = air.forecast(g);

    Real step = 5.0f;
    Real twb = t - step;
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
