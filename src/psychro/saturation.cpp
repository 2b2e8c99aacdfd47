#include "psychro/saturation.h"

#include <cmath>
#include <limits>

namespace quorvel::psychro {
namespace {

// Convergence tolerance of the wet-bulb search in K, and its step reduction.
constexpr Real tenth = 0.1f;
// The slowest searches that converge take one step per kelvin of wet-bulb depression.
constexpr int most_steps = 20000;

// The psychrometer equation at fixed dry bulb t [°C], vapour pressure pv [Pa] and A p [Pa/K].
struct Psychrometer {
    Real t, pv, Ap;

    // The wet bulb that the equation implies when the bulb's vapour pressure is taken at tw.
    Real implied(Real tw) const noexcept { return t - (saturation_pressure(tw) - pv) / Ap; }
};

// Says without evaluating the equation where the search steps from most of its trial points.
//
// The excess of the trial over the implied wet bulb, h(tw) = tw - implied(tw), rises by at least
// 1 K per K, because saturation pressure rises with temperature. One known value h0 at x0 therefore
// bounds it on both sides: h >= h0 + (tw - x0) above x0, h <= h0 + (tw - x0) below. x0 is taken
// close to the root, so only the trials within a few tenths of a kelvin of it remain in doubt.
//
// Rounding: the exponent of ps, some 34 before cancellation, is good to 7e-6, so ps to 2e-5 of
// itself and h to 2e-5 ps / Ap; no trial lies above t + 1 K, where ps is below 2 ps(t). The margin
// is larger than twice that. Outside the range for which this holds it is infinite: all is in
// doubt.
class Forecast {
  public:
    Forecast(const Psychrometer& equation, Real saturation) noexcept
        : x0_(equation.t), h0_((saturation - equation.pv) / equation.Ap) {
        if (!(std::fabs(equation.t) <= 100.0f && equation.Ap >= 10.0f)) return;
        margin_ = tenth + 0.001f + 1e-4f * saturation / equation.Ap;
        for (int i = 0; i < 2; ++i) approach_root(equation);
    }

    bool sinks(Real tw) const noexcept { return tw >= x0_ && h0_ + (tw - x0_) > margin_; }
    bool rises(Real tw) const noexcept { return tw <= x0_ && h0_ + (tw - x0_) < -margin_; }

  private:
    // Newton's step, with the slope of ps after Clausius and Clapeyron (latent heat over gas
    // constant: about 5340 K); where it ends matters to speed only.
    void approach_root(const Psychrometer& equation) noexcept {
        const Real T = x0_ + zero_celsius;
        const Real ps = equation.pv + (equation.t - x0_ + h0_) * equation.Ap;
        x0_ -= h0_ / (1.0f + ps * (5340.0f / (T * T)) / equation.Ap);
        h0_ = x0_ - equation.implied(x0_);
    }

    Real x0_, h0_;
    Real margin_ = std::numeric_limits<Real>::infinity();
};

}  // namespace

Real psychrometer_wet_bulb(Real t, Real rh, Real p, Integer type) noexcept {
    // The row is taken by the dry bulb here, by the wet bulb in the inverse: kept.
    const Real Ap = psychrometer_coefficient(type, t < 0.0f) * p;
    const Real saturation = saturation_pressure(t);
    const Psychrometer equation{t, saturation * limited(rh, 0.0f, 100.0f) / 100.0f, Ap};
    const Forecast forecast(equation, saturation);

    Real tw = t;
    Real tn = t;
    Real step = 1.0f;
    for (int i = 0; i < most_steps; ++i) {
        bool sinks = forecast.sinks(tw);
        bool rises = forecast.rises(tw);
        if (!sinks && !rises) {
            tn = equation.implied(tw);
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

}  // namespace quorvel::psychro
