// Where the wet-bulb searches step from most of their trials, said without evaluating them.
//
// Every search compares the vapour pressure that the psychrometer equation implies at a trial wet
// bulb with that of the air, pv: it asks for the sign of
//     excess(twb) = ps(twb) - Ap (t - twb) - pv.
// ps rises with temperature, and ever faster but at 0 °C, where it rises a ninth slower over water
// than over ice. So one known ps(x0) and four fifths of its slope there bound ps from below for
// every twb above x0, and from above for those less than half a kelvin below it; without the slope,
// for all below it. What is left is linear in twb to either side of 0 °C, and steeper above: it
// comes to a margin at one temperature, and two comparisons decide. x0 is taken close to the root,
// so only trials next to it remain in doubt.
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

    // Halley's steps; where they end matters to speed only.
    void approach_root(int steps) noexcept {
        for (int i = 0; i < steps; ++i) {
            const R rise = relative_rise(), slope = ps_ * rise + slope_.at(x0_);
            const R bend = 0.45f * ps_ * rise * rise;  // half the second derivative
            const R newton = excess(x0_) / slope;
            x0_ -= newton / (1.0f - newton * bend / slope);
            ps_ = saturation_pressure(x0_);
        }
    }

    R saturation_near_root() const noexcept { return ps_; }

    // Decides from now on, by a margin in Pa, where `holds`.
    void decide(R margin, MaskOf<R> holds) noexcept {
        const R gap = ps_ - pv_;
        const R rise = select(absolute(x0_) <= 100.0f, 0.8f * ps_ * relative_rise(), R(0.0f));
        above_ = select(holds, greater(certain_above(gap - margin, rise), x0_), above_);
        below_ = select(holds, lesser(certain_below(gap + margin, rise), x0_), below_);
    }

    // Whether the excess at a trial is certainly positive, certainly negative.
    MaskOf<R> above(R twb) const noexcept { return twb > above_; }
    MaskOf<R> below(R twb) const noexcept { return twb < below_; }

    // How many steps of 1 K down from twb lead past nothing but trials that are certainly above.
    // They may be made at once: as long as what is left is not negative, each of them is exact.
    R whole_steps(R twb) const noexcept {
        const R steps = truncated(lesser(twb, twb - above_)) - 1.0f;
        return select(above(twb) & (steps > 0.0f), steps, R(0.0f));
    }

  private:
    R excess(R twb) const noexcept { return ps_ - slope_.at(twb) * (t_ - twb) - pv_; }

    // d ln ps / dT at x0, 1/K, to a hundredth between -100 and 100 °C: by Clausius and Clapeyron,
    // latent heat over the gas constant and T squared.
    R relative_rise() const noexcept {
        const R T = x0_ + zero_celsius;
        return select(x0_ < 0.0f, R(6134.0f), 5422.0f - 4.5f * x0_) / (T * T);
    }

    // The twb at which gap + rise (twb - x0) - slope (t - twb) comes to 0, gap being what ps(x0)
    // exceeds pv by; with room for the rounding on the side of `towards`.
    R bound(R gap, R rise, R slope, Real towards) const noexcept {
        const R depression = (gap + rise * (t_ - x0_)) / (slope + rise);
        return (t_ - depression) + towards * (1e-3f + 1e-6f * absolute(depression));
    }

    R certain_above(R gap, R rise) const noexcept {
        const R dry = bound(gap, rise, slope_.wet, 1.0f);
        return either(
            dry >= 0.0f, [&] { return dry; }, [&] { return bound(gap, rise, slope_.iced, 1.0f); });
    }

    // With the slope where what it says is all within half a kelvin, on one side of 0 °C.
    R certain_below(R gap, R rise) const noexcept {
        const R damp = bound(gap, R(0.0f), slope_.iced, -1.0f);
        const R near = bound(gap, rise, slope_.at(x0_), -1.0f);
        const MaskOf<R> one_sided = (x0_ < 0.0f) | ((x0_ >= 0.5f) & (damp >= 0.0f));
        return either(
            one_sided & (near > x0_ - 0.5f), [&] { return near; },
            [&] {
                const R wet = greater(bound(gap, R(0.0f), slope_.wet, -1.0f), R(0.0f));
                return select(damp < 0.0f, damp, wet);
            });
    }

    R t_, pv_;
    PsychrometerSlope<R> slope_;
    R x0_, ps_;  // °C, Pa
    R above_ = std::numeric_limits<Real>::infinity();
    R below_ = -std::numeric_limits<Real>::infinity();
};

}  // namespace quorvel::psychro
