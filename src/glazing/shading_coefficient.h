// Whole glazing units that are described only by their shading coefficients: an equivalent clear
// pane carries the dependence on angle, the long-wave coefficient sets the absorbed fraction.
//
// SC short-wave, SCL long-wave shading coefficient; without the latter SC is split 9 to 1.
#pragma once

#include "glazing/clear_pane.h"

namespace quorvel::glazing {

// Absorbed fraction per long-wave coefficient: three times the 0.87 of clear float glass.
inline constexpr Real absorbed_per_long_wave = 2.61f;

// At least 0.01 is reflected. An absorptance that is no number fails the comparison and gets the
// limit too: the quotient 0/0 of an opaque pane, whose absorption at normal incidence is zero.
template <class R>
Optics<R> with_limited_absorption(R T, R A) noexcept {
    return reflecting_the_rest(T, lesser(0.99f - T, A));
}

template <class R>
struct ShadedUnit {
    ClearPane<R> pane;
    R long_wave;         // shading coefficient LW
    MaskOf<R> rescaled;  // absorption follows LW, not the pane
};

template <class R>
ShadedUnit<R> shaded_unit(R SC, R SCL) noexcept {
    const MaskOf<R> split = SCL < 0.0001f;
    const R SW = select(split, 0.9f * SC, SC);
    const R LW = select(split, 0.1f * SC, SCL);
    // For SC = 1 without SCL the two sides are 0.1: equal to rounding, on the right side in single
    // precision and on the wrong one in double.
    return {ClearPane<R>(0.87f * SW), LW, 1.0f - SW >= LW};
}

// At the angle of incidence theta, rad, mean of both polarisations.
template <class R>
Optics<R> unit_direct(R SC, R SCL, R theta) noexcept {
    const ShadedUnit<R> unit = shaded_unit(SC, SCL);
    const Polarised<Optics<R>> optics = unit.pane.direct(theta);
    const Optics<R>&p = optics.parallel, &s = optics.perpendicular;
    const R absorbed = 0.5f * (s.absorptance + p.absorptance);
    const R A = either(
        unit.rescaled,
        [&] {
            const R at_normal = unit.pane.normal().absorptance;
            return absorbed_per_long_wave * unit.long_wave * absorbed / at_normal;
        },
        [&] { return absorbed; });
    return with_limited_absorption(0.5f * (s.transmittance + p.transmittance), A);
}

template <class R>
Optics<R> unit_diffuse(R SC, R SCL) noexcept {
    const ShadedUnit<R> unit = shaded_unit(SC, SCL);
    const Diffuse<R> pane = unit.pane.diffuse();
    return with_limited_absorption(
        pane.transmittance,
        select(unit.rescaled, absorbed_per_long_wave * unit.long_wave, pane.absorptance));
}

inline constexpr Integer most_sharing_panes = 5;

// A unit of n panes, the first n of which share what is neither transmitted nor absorbed;
// deliberately not the absorbed part. The absorptance is recovered from that remainder.
struct UnitShares {
    Real transmittance;
    Integer n;  // 0 outside 1..5
    std::array<Real, most_sharing_panes> panes;
    Real absorptance;
};

inline UnitShares shared_among(Integer n, const Optics<Real>& unit) noexcept {
    // The rows for one to five panes, one after the other.
    static constexpr Real shares[] = {
        1.0f,                         //
        0.4f,   0.6f,                 //
        0.2f,   0.3f,  0.5f,          //
        0.133f, 0.2f,  0.267f, 0.4f,  //
        0.1f,   0.15f, 0.2f,   0.25f, 0.3f,
    };
    const auto [T, A, remainder] = unit;
    UnitShares result = {T, n < 1 || n > most_sharing_panes ? 0 : n, {}, 1.0f - T - remainder};
    const Real* const row = shares + result.n * (result.n - 1) / 2;
    for (Integer i = 0; i < result.n; ++i) result.panes[i] = row[i] * remainder;
    return result;
}

inline UnitShares unit_direct_shares(Real SC, Real SCL, Real theta, Integer n) noexcept {
    return shared_among(n, unit_direct(SC, SCL, theta));
}
inline UnitShares unit_diffuse_shares(Real SC, Real SCL, Integer n) noexcept {
    return shared_among(n, unit_diffuse(SC, SCL));
}

}  // namespace quorvel::glazing
