// Steady and periodic parameters of a whole glazing of up to three panes.
//
// Panes are counted from the room. Glass stores no heat, so that the glazing responds at once.
#pragma once

#include "fabric/cavity.h"
#include "fabric/surfaces.h"

namespace quorvel::fabric {

// Kind of pane that closes no cavity (a blind, say); one of kind 1 closes those on either side.
inline constexpr Integer open_pane = 2;

template <class R>
struct GlazingCavities {
    R first, second;  // m²K/W
};

// Told by the sum of the kinds, which as a real cannot overflow: kinds other than 1 and 2 count as
// what they add up to. An open pane among three leaves one cavity. Without a cavity for any number
// of panes but two and three.
template <class R>
inline GlazingCavities<R> glazing_cavities(IntegerOf<R> panes, IntegerOf<R> kind1, R e1,
                                           IntegerOf<R> kind2, R e2, IntegerOf<R> kind3, R e3,
                                           R width1, R width2, R tilt) noexcept {
    const R of_two = to_real(kind1) + to_real(kind2), of_three = of_two + to_real(kind3);
    const MaskOf<R> two_closed = (panes == 2) & (of_two == 2.0f);
    const MaskOf<R> all_closed = (panes == 3) & (of_three == 3.0f);
    const MaskOf<R> one_open = (panes == 3) & (of_three == 4.0f);
    const MaskOf<R> inner_open = one_open & (kind1 == open_pane);
    const MaskOf<R> middle_open = one_open & !inner_open & (kind2 == open_pane);
    const auto cavity = [&](MaskOf<R> exists, R width, R inside, R outside) {
        return either(
            exists, [&] { return air_cavity_resistance(tilt, width, inside, outside); },
            [&] { return R(0.0f); });
    };
    const R width = select(inner_open, width2, select(middle_open, width1 + width2, width1));
    return {cavity(two_closed | all_closed | one_open, width, select(inner_open, e2, e1),
                   select(inner_open | middle_open, e3, e2)),
            cavity(all_closed, width2, e2, e3)};
}

template <class R>
struct WindowParameters {
    R admittance, admittance_lead;  // W/m²K, h
    R decrement, decrement_lag;
    R surface_factor, surface_factor_lag;
    R U;  // W/m²K
};

// Any number of panes but one and two has its outer face on the third.
template <class R>
WindowParameters<R> window_parameters(IntegerOf<R> panes, IntegerOf<R> kind1, R e1,
                                      IntegerOf<R> kind2, R e2, IntegerOf<R> kind3, R e3, R width1,
                                      R width2, IntegerOf<R> outer_type, IntegerOf<R> exposure,
                                      R tilt) noexcept {
    const R outer_emissivity = select(panes == 1, e1, select(panes == 2, e2, e3));
    const R inside = surface_resistance_at_emissivity<R>(inside_surface, tilt, exposure, e1);
    const R outside =
        surface_resistance_at_emissivity(outer_type, tilt, exposure, outer_emissivity);
    const GlazingCavities<R> cavities =
        glazing_cavities(panes, kind1, e1, kind2, e2, kind3, e3, width1, width2, tilt);
    const R U = 1.0f / (outside + inside + cavities.first + cavities.second);
    return {U, R(0.0f), R(1.0f), R(0.0f), 1.0f - inside * U, R(0.0f), U};
}

}  // namespace quorvel::fabric
