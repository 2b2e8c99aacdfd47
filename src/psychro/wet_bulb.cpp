#include "psychro/wet_bulb.h"

#include <cmath>
#include <limits>

#include "psychro/moist_air.h"

namespace quorvel::psychro {
namespace {

// Finest step of the searches, K.
constexpr Real finest_step = 0.005f;
// Above some 15 700 °C saturation pressure overflows, and below absolute zero its formula does: no
// search that ends goes further than this, K.
constexpr int widest_search = 20000;

// What stays the same from trial to trial of one search.
class Psychrometer {
  public:
    Psychrometer(Real t, Real p, Integer type) noexcept
        : air_(p),
          t_(t),
          saturation_pressure_(saturation_pressure(t)),
          enhancement_(air_.enhancement(t)),
          wet_Ap_(psychrometer_coefficient(type, false) * p),
          iced_Ap_(psychrometer_coefficient(type, true) * p) {}

    Real dry_bulb() const noexcept { return t_; }
    Real pressure() const noexcept { return air_.pressure(); }
    Real dry_bulb_saturation_pressure() const noexcept { return saturation_pressure_; }
    Real saturation_content() const noexcept { return content_at(saturation_pressure_); }

    Real Ap(Real twb) const noexcept { return twb < 0.0f ? iced_Ap_ : wet_Ap_; }  // Pa/K
    // Vapour pressure of the air below saturation at the wet bulb, Pa.
    Real deficit(Real twb) const noexcept { return Ap(twb) * (t_ - twb); }

    Real moisture_content(Real twb) const noexcept {
        if (twb >= t_) return saturation_content();
        return content_at(saturation_pressure(twb) - deficit(twb));
    }
    // The vapour pressure at which the air holds the moisture content g.
    Real vapour_pressure_at(Real g) const noexcept {
        return pressure() * g / (enhancement_ * (molar_mass_ratio + g));
    }

  private:
    Real content_at(Real pv) const noexcept { return air_.moisture_content(enhancement_, pv); }

    MoistAir air_;
    Real t_, saturation_pressure_, enhancement_, wet_Ap_, iced_Ap_;
};

// Says without evaluating the moisture content on which side of the one sought most trials lie.
//
// Moisture content rises with the vapour pressure pv = ps(twb) - deficit(twb), and ps with twb. So
// one known ps(x0) in place of ps(twb) bounds pv from below for every twb above x0, from above for
// every twb below it. x0 is taken close to the root, so only trials within some thousandths of a
// kelvin of it remain in doubt.
//
// Rounding: the exponent of ps, some 34 before cancellation, is good to 7e-6, so ps to 2e-5 of
// itself; the ten or so operations from it to the comparison, on terms that near the root are no
// larger than ps, add 2e-6. With such errors in both ps(x0) and the trial, the margin is more than
// twice their sum. It is infinite, all being in doubt, where this would not hold: beyond ±100 °C,
// close to boiling (moisture content above 5 kg/kg) or past it, for a target that is not between
// dry and saturated, at pressures whose products overflow.
class Forecast {
  public:
    Forecast(const Psychrometer& psychrometer, Real target_content) noexcept
        : psychrometer_(psychrometer),
          target_(psychrometer.vapour_pressure_at(target_content)),
          x0_(psychrometer.dry_bulb()),
          ps_(psychrometer.dry_bulb_saturation_pressure()) {
        const Real saturated = psychrometer.saturation_content();
        const bool holds = std::fabs(x0_) <= 100.0f && psychrometer.pressure() > 0.0f &&
                           psychrometer.pressure() < 1e9f && saturated < 5.0f &&
                           target_content >= 0.0f && target_content <= saturated;
        if (!holds) return;
        for (int i = 0; i < 3; ++i) approach_root();
        margin_ = 1e-4f * ps_;
    }

    bool wetter(Real twb) const noexcept { return twb >= x0_ && excess(twb) > margin_; }
    bool drier(Real twb) const noexcept { return twb <= x0_ && excess(twb) < -margin_; }

  private:
    Real excess(Real twb) const noexcept { return ps_ - psychrometer_.deficit(twb) - target_; }

    // Newton's step, with the slope of ps after Clausius and Clapeyron (latent heat over gas
    // constant: about 5340 K); where it ends matters to speed only.
    void approach_root() noexcept {
        const Real T = x0_ + zero_celsius;
        x0_ -= excess(x0_) / (ps_ * (5340.0f / (T * T)) + psychrometer_.Ap(x0_));
        ps_ = saturation_pressure(x0_);
    }

    const Psychrometer& psychrometer_;
    Real target_;   // vapour pressure, Pa
    Real x0_, ps_;  // °C, Pa
    Real margin_ = std::numeric_limits<Real>::infinity();
};

}  // namespace

Real wet_bulb_from_percentage_saturation(Real t, Real saturation, Real p, Integer type) noexcept {
    const Psychrometer psychrometer(t, p, type);
    const Real saturated = psychrometer.saturation_content();
    const Forecast forecast(psychrometer, saturation * saturated / 100.0f);

    Real twb = t;
    Real step = 1.0f;
    for (int i = 0; i < widest_search; ++i) {
        twb -= step;
        if (forecast.wetter(twb)) continue;
        if (!forecast.drier(twb)) {
            const Real trial = 100.0f * psychrometer.moisture_content(twb) / saturated;
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
    const Psychrometer psychrometer(t, p, type);
    if (g >= psychrometer.saturation_content()) return t;
    if (t > 10000.0f) return -100.0f;
    if (t != t) return -200.0f;
    const Forecast forecast(psychrometer, g);

    Real step = 5.0f;
    Real twb = t - step;
    for (int i = 0; i < widest_search / 5; ++i) {
        if (forecast.drier(twb) ||
            (!forecast.wetter(twb) && psychrometer.moisture_content(twb) < g)) {
            twb += step;
            step /= 10.0f;
        }
        twb -= step;
        if (step < finest_step) return twb;
    }
    return twb;
}

}  // namespace quorvel::psychro
