// Steady and periodic parameters of a whole glazing of up to three panes.
//
// Panes are counted from the room. Glass stores no heat, so that the glazing responds at once.
#pragma once

#include <cstdint>

#include "fabric/cavity.h"
#include "fabric/surfaces.h"

namespace quorvel::fabric {

// kind: 1 closes the cavity on either side of the pane, 2 (a blind, say) does not.
struct GlazingPane {
    Integer kind;
    Real emissivity;
};

struct Glazing {
    Integer n;
    GlazingPane panes[3];
    Real cavity_widths[2];  // m
};

struct GlazingCavities {
    Real first = 0.0f, second = 0.0f;  // m²K/W
};

// Told by the sum of the kinds: kinds other than 1 and 2 count as what they add up to. Without a
// cavity for any number of panes but two and three.
inline GlazingCavities glazing_cavities(const Glazing& glazing, Real theta) noexcept {
    const auto& [p1, p2, p3] = glazing.panes;
    const auto [d1, d2] = glazing.cavity_widths;
    const auto between = [theta](const GlazingPane& in, const GlazingPane& out, Real d) {
        return air_cavity_resistance(theta, d, in.emissivity, out.emissivity);
    };
    std::int64_t kinds = std::int64_t{p1.kind} + p2.kind;
    if (glazing.n == 2 && kinds == 2) return {between(p1, p2, d1)};
    if (glazing.n != 3) return {};
    kinds += p3.kind;
    if (kinds == 3) return {between(p1, p2, d1), between(p2, p3, d2)};
    if (kinds != 4) return {};
    if (p1.kind == 2) return {between(p2, p3, d2)};
    if (p2.kind == 2) return {between(p1, p3, d1 + d2)};
    return {between(p1, p2, d1)};
}

// Any number of panes but one and two has its outer face on the third.
constexpr const GlazingPane& outermost(const Glazing& glazing) noexcept {
    return glazing.panes[glazing.n == 1 || glazing.n == 2 ? glazing.n - 1 : 2];
}

struct WindowParameters {
    Real admittance;  // W/m²K
    Real admittance_lead = 0.0f;
    Real decrement = 1.0f;
    Real decrement_lag = 0.0f;
    Real surface_factor;
    Real surface_factor_lag = 0.0f;
    Real U;  // W/m²K
};

inline WindowParameters window_parameters(const Glazing& glazing, Integer outer_type,
                                          Integer exposure, Real theta) noexcept {
    const Real inside = surface_resistance_at_emissivity(inside_surface, theta, exposure,
                                                         glazing.panes[0].emissivity);
    const Real outside = surface_resistance_at_emissivity(outer_type, theta, exposure,
                                                          outermost(glazing).emissivity);
    const GlazingCavities cavities = glazing_cavities(glazing, theta);
    const Real U = 1.0f / (outside + inside + cavities.first + cavities.second);
    return {.admittance = U, .surface_factor = 1.0f - inside * U, .U = U};
}

}  // namespace quorvel::fabric
