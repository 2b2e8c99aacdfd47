// The dry bulb from any two other quantities of moist air: where the vapour pressures that the two
// stand for at a dry bulb are the same. With it, the rest of the state follows directly.
//
// In °C, Pa, kg/kg, kJ/kg and %, at atmospheric pressure p, Pa, for a psychrometer of a type. The
// searches are in double precision, and find nothing (not a number) below -100 or above 200 °C.
#pragma once

#include "psychro/wet_bulb.h"

namespace quorvel::psychro {

// A quantity that is known.
template <class R>
Unknown<R> known(R x) noexcept {
    return Unknown<R>(to_double(x));
}

template <class R, class Excess>
R dry_bulb_where(Excess excess) noexcept {
    using D = DoubleOf<R>;
    return to_real(root(D(-100.0), D(200.0), D(20.0), excess));
}

// The vapour pressure of air with one more quantity known, by dry bulb.
template <class R>
class VapourPressures {
    using N = Unknown<R>;

  public:
    explicit VapourPressures(R p) noexcept : air_(known(p)) {}

    N at_moisture_content(N t, R g) const noexcept {
        return air_.vapour_pressure(air_.enhancement(t), known(g));
    }
    // Where water is about to boil, saturation has no moisture content: it is kept off that.
    N at_percentage_saturation(N t, R saturation) const noexcept {
        const N f = air_.enhancement(t), p = air_.pressure();
        const N ps = lesser(f * psychro::saturation_pressure(t), 0.9999f * p) / f;
        return air_.vapour_pressure(f, known(saturation) * air_.moisture_content(f, ps) / 100.0f);
    }
    N at_enthalpy(N t, R h) const noexcept {
        return air_.vapour_pressure(air_.enhancement(t),
                                    moisture_content_from_enthalpy(t, known(h)));
    }

  private:
    MoistAir<N> air_;
};

// The psychrometer equation at one wet bulb, a straight line over dry bulbs. The saturation
// pressure is the single one, as in vapour_pressure_from_psychrometer.
template <class R>
class PsychrometerLine {
  public:
    PsychrometerLine(R twb, R p, IntegerOf<R> type) noexcept
        : twb_(twb), ps_(saturation_pressure(twb)), Ap_(psychrometer_slope<R>(p, type).at(twb)) {}

    Unknown<R> at(Unknown<R> t) const noexcept {
        return known(ps_) - known(Ap_) * (t - known(twb_));
    }
    R dry_bulb(R pv) const noexcept { return not_below(twb_ + (ps_ - pv) / Ap_); }

    // A dry bulb below the wet one counts as saturation.
    R not_below(R t) const noexcept { return greater(t, twb_); }

  private:
    R twb_, ps_, Ap_;
};

// ---- From relative humidity or percentage saturation, and vapour pressure or moisture content:
// by logarithms, which are nearly straight ----

template <class R>
R dry_bulb_from_vapour_pressure_and_relative_humidity(R pv, R rh) noexcept {
    return dew_point(pv / limited(rh, 0.0f, 100.0f) * 100.0f);
}

template <class R>
R dry_bulb_from_vapour_pressure_and_percentage_saturation(R pv, R saturation, R p) noexcept {
    const VapourPressures<R> air(p);
    return dry_bulb_where<R>([&](Unknown<R> t) {
        return math::log10(air.at_percentage_saturation(t, saturation) / known(pv));
    });
}

template <class R>
R dry_bulb_from_moisture_content_and_relative_humidity(R g, R rh, R p) noexcept {
    const VapourPressures<R> air(p);
    const Unknown<R> share = known(limited(rh, 0.0f, 100.0f)) / 100.0f;
    return dry_bulb_where<R>([&](Unknown<R> t) {
        return saturation_exponent(t) - math::log10(air.at_moisture_content(t, g) / share);
    });
}

template <class R>
R dry_bulb_from_moisture_content_and_percentage_saturation(R g, R saturation, R p) noexcept {
    const VapourPressures<R> air(p);
    return dry_bulb_where<R>([&](Unknown<R> t) {
        return math::log10(air.at_percentage_saturation(t, saturation) /
                           air.at_moisture_content(t, g));
    });
}

// ---- From enthalpy ----

template <class R>
R dry_bulb_from_enthalpy_and_moisture_content(R h, R g) noexcept {
    return dry_bulb_where<R>(
        [&](Unknown<R> t) { return specific_enthalpy(t, known(g)) - known(h); });
}

template <class R>
R dry_bulb_from_enthalpy_and_vapour_pressure(R h, R pv, R p) noexcept {
    const VapourPressures<R> air(p);
    return dry_bulb_where<R>([&](Unknown<R> t) { return known(pv) - air.at_enthalpy(t, h); });
}

template <class R>
R dry_bulb_from_enthalpy_and_relative_humidity(R h, R rh, R p) noexcept {
    const VapourPressures<R> air(p);
    return dry_bulb_where<R>(
        [&](Unknown<R> t) { return vapour_pressure(t, known(rh)) - air.at_enthalpy(t, h); });
}

template <class R>
R dry_bulb_from_enthalpy_and_percentage_saturation(R h, R saturation, R p) noexcept {
    const VapourPressures<R> air(p);
    return dry_bulb_where<R>([&](Unknown<R> t) {
        return air.at_percentage_saturation(t, saturation) - air.at_enthalpy(t, h);
    });
}

// ---- From a wet bulb ----

template <class R>
R dry_bulb_from_wet_bulb_and_vapour_pressure(R twb, R pv, R p, IntegerOf<R> type) noexcept {
    return PsychrometerLine<R>(twb, p, type).dry_bulb(pv);
}

template <class R>
R dry_bulb_from_wet_bulb_and_moisture_content(R twb, R g, R p, IntegerOf<R> type) noexcept {
    const VapourPressures<R> air(p);
    const PsychrometerLine<R> line(twb, p, type);
    return line.not_below(dry_bulb_where<R>(
        [&](Unknown<R> t) { return air.at_moisture_content(t, g) - line.at(t); }));
}

template <class R>
R dry_bulb_from_wet_bulb_and_relative_humidity(R twb, R rh, R p, IntegerOf<R> type) noexcept {
    const PsychrometerLine<R> line(twb, p, type);
    return line.not_below(dry_bulb_where<R>(
        [&](Unknown<R> t) { return vapour_pressure(t, known(rh)) - line.at(t); }));
}

template <class R>
R dry_bulb_from_wet_bulb_and_percentage_saturation(R twb, R saturation, R p,
                                                   IntegerOf<R> type) noexcept {
    const VapourPressures<R> air(p);
    const PsychrometerLine<R> line(twb, p, type);
    return line.not_below(dry_bulb_where<R>(
        [&](Unknown<R> t) { return air.at_percentage_saturation(t, saturation) - line.at(t); }));
}

// Along the line of a wet bulb the enthalpy hardly changes, and does so in one direction from
// saturated to dry air only: 1 K beyond either is allowed for rounding.
template <class R>
R dry_bulb_from_wet_bulb_and_enthalpy(R twb, R h, R p, IntegerOf<R> type) noexcept {
    const VapourPressures<R> air(p);
    const PsychrometerLine<R> line(twb, p, type);
    const auto excess = [&](Unknown<R> t) { return air.at_enthalpy(t, h) - line.at(t); };
    const R low = twb - 1.0f, high = lesser(line.dry_bulb(R(0.0f)) + 1.0f, R(200.0f));
    return line.not_below(to_real(root(to_double(low), to_double(high), to_double(twb), excess)));
}

}  // namespace quorvel::psychro
