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
// A pack waits so long for its slowest; what is still searched for then, in odd air, single numbers
// search for anew.
inline constexpr int longest_wait = 300;

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
        return either(
            rarely(twb >= t_), [&] { return saturation_content(); },
            [&] { return content_at(saturation_pressure(twb) - slope_.at(twb) * (t_ - twb)); });
    }

    // Of the comparison of moisture_content(twb) with a target. Moisture content rises with vapour
    // pressure; the ten or so operations between them, on terms that near the root are no larger
    // than ps, err by 2e-6. Not close to boiling (above 5 kg/kg) or past it, for a target that is
    // not between dry and saturated, or at pressures whose products overflow.
    WetBulbForecast<R> forecast(R target) const noexcept {
        const R p = air_.pressure();
        const R pv = air_.vapour_pressure(enhancement_, target);
        WetBulbForecast<R> forecast(t_, saturation_pressure_, pv, slope_);
        const R saturated = saturation_content();
        const MaskOf<R> holds = is_ordinary(t_) & (p > 0.0f) & (p < 1e9f) & (saturated < 5.0f) &
                                (target >= 0.0f) & (target <= saturated);
        if (any(holds)) {
            forecast.approach_root(2);
            forecast.decide(1e-4f * forecast.saturation_near_root(), holds);
        }
        return forecast;
    }

  private:
    R content_at(R pv) const noexcept { return air_.moisture_content(enhancement_, pv); }

    MoistAir<R> air_;
    R t_, saturation_pressure_, enhancement_;
    PsychrometerSlope<R> slope_;
};

// Air whose wet bulb a psychrometer shows, at relative humidity rh, %.
template <class R>
class PsychrometerReading {
  public:
    static constexpr Real tenth = 0.1f;  // tolerance in K, and step reduction

    // The row is taken by the dry bulb here, by the wet bulb in the inverse: deliberate.
    PsychrometerReading(R t, R rh, R p, IntegerOf<R> type) noexcept
        : PsychrometerReading(t, rh, psychrometer_coefficient<R>(type, t < 0.0f) * p,
                              saturation_pressure(t)) {}

    // The wet bulb that the psychrometer equation gives for the saturation pressure at tw.
    R trial(R tw) const noexcept { return t - (saturation_pressure(tw) - pv_) / Ap_; }

    R t;
    WetBulbForecast<R> forecast;

  private:
    PsychrometerReading(R t, R rh, R Ap, R saturation) noexcept
        : PsychrometerReading(t, Ap, saturation, saturation * limited(rh, 0.0f, 100.0f) / 100.0f,
                              is_ordinary(t) & (Ap >= 10.0f)) {}
    PsychrometerReading(R t, R Ap, R saturation, R pv, MaskOf<R> holds) noexcept
        : t(t), forecast(t, saturation, pv, {Ap, Ap}), Ap_(Ap), pv_(pv) {
        if (!any(holds)) return;
        forecast.approach_root(2);
        // No trial lies above t + 1 K, where ps is below 2 ps(t).
        forecast.decide((tenth + 0.001f) * Ap + 1e-4f * saturation, holds);
    }

    R Ap_, pv_;
};

// What a search has reached, and where it goes on.
template <class R>
struct Searched {
    R value;
    MaskOf<R> unfinished;
};

template <class R>
Searched<R> searched_wet_bulb(const PsychrometerReading<R>& air) noexcept requires is_single<R> {
    const auto& forecast = air.forecast;
    const R whole = forecast.whole_steps(air.t);
    R tw = air.t - whole;
    R tn = air.t;
    R step = 1.0f;
    for (int i = to_integer(whole); i < widest_search; ++i) {
        bool sinks = forecast.above(tw);
        bool rises = forecast.below(tw);
        if (!sinks && !rises) {
            tn = air.trial(tw);
            if (absolute(tw - tn) < air.tenth) break;
            sinks = tw > tn;
            rises = tw <= tn;
        }
        if (sinks) {
            tw -= step;
        } else if (rises) {
            tw += step;
            step *= air.tenth;
        } else {
            break;  // not a number
        }
    }
    return {tn, false};
}

// A pack goes all steps that its forecasts decide before it asks for a trial of those in doubt.
template <class R>
Searched<R> searched_wet_bulb(const PsychrometerReading<R>& air) noexcept {
    R tw = air.t - air.forecast.whole_steps(air.t);
    R tn = air.t;
    R step(1.0f);
    MaskOf<R> searching(true);
    const auto move = [&](MaskOf<R> sinks, MaskOf<R> rises) {
        tw = select(sinks, tw - step, select(rises, tw + step, tw));
        step = select(rises, step * air.tenth, step);
    };
    for (int i = 0; i < longest_wait && any(searching); ++i) {
        const MaskOf<R> sinks = searching & air.forecast.above(tw);
        const MaskOf<R> rises = searching & air.forecast.below(tw);
        if (any(sinks | rises)) {
            move(sinks, rises);
            continue;
        }
        tn = select(searching, air.trial(tw), tn);
        searching = searching & !(absolute(tw - tn) < air.tenth) & (tw == tw) & (tn == tn);
        move(searching & (tw > tn), searching & (tw <= tn));
    }
    return {tn, searching};
}

// What a psychrometer reads at relative humidity rh, %, to 0.1 K.
template <class R>
R psychrometer_wet_bulb(R t, R rh, R p, IntegerOf<R> type) noexcept {
    const auto [tn, unfinished] = searched_wet_bulb(PsychrometerReading<R>(t, rh, p, type));
    return replaced(unfinished, select(t < tn, t, tn), psychrometer_wet_bulb<Real>, t, rh, p, type);
}

// At percentage saturation with the enhancement factor, to 0.01 K, rounded up.
template <class R>
R wet_bulb_from_percentage_saturation(R t, R saturation, R p, IntegerOf<R> type) noexcept {
    const MoistAirAt<R> air(t, p, type);
    const R saturated = air.saturation_content();
    const WetBulbForecast<R> forecast = air.forecast(saturation * saturated / 100.0f);
    const auto trial = [&](R twb) { return 100.0f * air.moisture_content(twb) / saturated; };

    const R whole = forecast.whole_steps(t);
    R twb = t - whole;
    R step(1.0f);
    if constexpr (is_single<R>) {
        for (int i = to_integer(whole); i < widest_search; ++i) {
            twb -= step;
            if (forecast.above(twb)) continue;
            if (!forecast.below(twb)) {
                const R found = trial(twb);
                if (found > saturation) continue;
                if (found == saturation) return twb;
            }
            twb += step;
            step /= 10.0f;
            if (step < finest_step) return twb;
        }
        return twb;
    } else {
        MaskOf<R> searching(true), trying(false);  // trying: where twb waits for a trial
        for (int i = 0; i < longest_wait && any(searching); ++i) {
            const MaskOf<R> stepping = searching & !trying;
            twb = select(stepping, twb - step, twb);
            const MaskOf<R> moister = stepping & forecast.above(twb);
            MaskOf<R> drier = stepping & forecast.below(twb);
            trying = trying | (stepping & !(moister | drier));
            if (!any(stepping)) {
                const R found = trial(twb);
                searching = searching & !(found == saturation);
                drier = searching & !(found > saturation);
                trying = MaskOf<R>(false);
            }
            twb = select(drier, twb + step, twb);
            step = select(drier, step / 10.0f, step);
            searching = searching & !(drier & (step < finest_step));
        }
        return replaced(searching, twb, wet_bulb_from_percentage_saturation<Real>, t, saturation, p,
                        type);
    }
}

// At moisture content g, kg/kg, with the enhancement factor, to 0.005 K.
template <class R>
R wet_bulb_from_moisture_content(R t, R g, R p, IntegerOf<R> type) noexcept {
    const MoistAirAt<R> air(t, p, type);
    const MaskOf<R> saturated = g >= air.saturation_content();
    const R without_search =
        select(saturated, t, select(t > 10000.0f, R(-100.0f), R(-200.0f)));  // the last: no number
    MaskOf<R> searching = !(saturated | !(t <= 10000.0f));
    if (!any(searching)) return without_search;
    const WetBulbForecast<R> forecast = air.forecast(g);

    R step(5.0f);
    R twb = t - step;
    if constexpr (is_single<R>) {
        for (int i = 0; i < widest_search / 5; ++i) {
            if (forecast.below(twb) || (!forecast.above(twb) && air.moisture_content(twb) < g)) {
                twb += step;
                step /= 10.0f;
            }
            twb -= step;
            if (step < finest_step) return twb;
        }
        return twb;
    } else {
        const MaskOf<R> searched = searching;
        const auto move = [&](MaskOf<R> decided, MaskOf<R> drier) {
            twb = select(drier, twb + step, twb);
            step = select(drier, step / 10.0f, step);
            twb = select(decided, twb - step, twb);
            searching = searching & !(step < finest_step);
        };
        for (int i = 0; i < longest_wait && any(searching); ++i) {
            const MaskOf<R> drier = searching & forecast.below(twb);
            const MaskOf<R> decided = drier | (searching & forecast.above(twb));
            if (any(decided))
                move(decided, drier);
            else
                move(searching, searching & (air.moisture_content(twb) < g));
        }
        return replaced(searching, select(searched, twb, without_search),
                        wet_bulb_from_moisture_content<Real>, t, g, p, type);
    }
}

// Of air with vapour pressure pv, the exact solution, in double precision. Where a bulb with liquid
// water and an iced one both belong to the air it is the liquid one.
template <class R>
R wet_bulb(R t, R pv, R p, IntegerOf<R> type) noexcept {
    using D = DoubleOf<R>;
    const PsychrometerSlope<R> slope = psychrometer_slope<R>(p, type);
    const auto excess = [&](Unknown<R> twb, R Ap) {
        const Unknown<R> depression = Unknown<R>(to_double(t)) - twb;
        return saturation_pressure(twb) - Unknown<R>(to_double(Ap)) * depression -
               Unknown<R>(to_double(pv));
    };
    const MaskOf<R> saturated = excess(Unknown<R>(to_double(t)), slope.wet).value <= D(0.0);
    const MaskOf<R> liquid = excess(Unknown<R>(D(0.0)), slope.wet).value <= D(0.0);
    const R Ap = select(liquid, slope.wet, slope.iced);
    const D low = select(liquid, D(0.0), D(-200.0));
    const D high = to_double(select(liquid, t, lesser(t, R(0.0f))));
    const D found = root(low, high, high, [&](Unknown<R> twb) { return excess(twb, Ap); });
    return select(saturated, t, to_real(found));
}

}  // namespace quorvel::psychro
