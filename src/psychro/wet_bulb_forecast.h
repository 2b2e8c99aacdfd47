// Where the wet-bulb searches step from most of their trials, said without evaluating them.
//
// Every search compares the vapour pressure that the psychrometer equation implies at a trial wet
// bulb with that of the air, pv: it asks for the sign of
//     excess(twb) = ps(twb) - Ap (t - twb) - pv.
// ps rises with temperature. So one known ps(x0) in place of ps(twb) bounds the excess from below
// for every twb above x0, from above for every twb below it. What is left is linear in twb to
// either side of 0 °C, and steeper above: it comes to a margin at one temperature, and two
// comparisons decide. x0 is taken close to the root, so only trials next to it remain in doubt.
//
// Rounding: the exponent of ps, some 34 before cancellation, is good to 7e-6, so ps to 2e-5 of
// itself. Callers choose a margin of more than twice what this and their own comparison err by, and
// leave it infinite, all being in doubt, where they cannot.
#pragma once

#include <limits>

#include "psychro/saturation.h"

namespace quorvel::psychro {

// Psychrometer coefficient times atmospheric pressure, Pa/K.
template <class R>
struct PsychrometerSlope {
    R wet, iced;

    R at(R twb) const noexcept { return select(twb < 0.0f, iced, wet); }
};

template <class R>
class WetBulbForecast {
  public:
    // For air at t, °C, with vapour pressure pv, Pa; saturation is ps(t).
    WetBulbForecast(R t, R saturation, R pv, const PsychrometerSlope<R>& slope) noexcept
        : t_(t), pv_(pv), slope_(slope), x0_(t), ps_(saturation) {}

    // Newton's steps, with the slope of ps after Clausius and Clapeyron (latent heat over gas
    // constant: about 5340 K); where they end matters to speed only.
    void approach_root(int steps) noexcept {
        for (int i = 0; i < steps; ++i) {
            const R T = x0_ + zero_celsius;
            x0_ -= excess(x0_) / (ps_ * (5340.0f / (T * T)) + slope_.at(x0_));
            ps_ = saturation_pressure(x0_);
        }
    }

    R saturation_near_root() const noexcept { return ps_; }

    // Decides from now on, by a margin in Pa, where `holds`.
    void decide(R margin, MaskOf<R> holds) noexcept {
        const R gap = ps_ - pv_;
        const R dry = bound(gap - margin, slope_.wet, 1.0f);
        const R damp = bound(gap + margin, slope_.iced, -1.0f);
        const R sinks = either(
            dry >= 0.0f, [&] { return dry; },
            [&] { return bound(gap - margin, slope_.iced, 1.0f); });
        const R rises = either(
            damp < 0.0f, [&] { return damp; },
            [&] { return greater(bound(gap + margin, slope_.wet, -1.0f), R(0.0f)); });
        above_ = select(holds, greater(sinks, x0_), above_);
        below_ = select(holds, lesser(rises, x0_), below_);
    }

    // Whether the excess at a trial is certainly positive, certainly negative.
    MaskOf<R> above(R twb) const noexcept { return twb > above_; }
    MaskOf<R> below(R twb) const noexcept { return twb < below_; }

  private:
    R excess(R twb) const noexcept { return ps_ - slope_.at(twb) * (t_ - twb) - pv_; }

    // Where slope (t - twb) comes to `gap`, with room for the rounding on the side of `towards`.
    R bound(R gap, R slope, Real towards) const noexcept {
        const R depression = gap / slope;
        return (t_ - depression) + towards * (1e-3f + 1e-6f * absolute(depression));
    }

    R t_, pv_;
    PsychrometerSlope<R> slope_;
    R x0_, ps_;  // °C, Pa
    R above_ = std::numeric_limits<Real>::infinity();
    R below_ = -std::numeric_limits<Real>::infinity();
};

}  // namespace quorvel::psychro
