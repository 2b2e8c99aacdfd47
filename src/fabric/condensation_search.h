// The search for saturation inside a layer, step by step from its warm face.
//
// Within the range of temperatures that mean anything every step is looked at. A host may also pass
// millions of degrees; there whole stretches of steps are decided at once, with the same answer.
#pragma once

#include <limits>

#include "psychro/saturation.h"

namespace quorvel::fabric {

inline constexpr Real search_step = 0.5f;  // K

// Above the hottest, the saturation formula gives infinity; below the coldest it rises with
// temperature, from 3.45e12 Pa far down.
inline constexpr Real hottest_searched = 20000.0f, coldest_searched = -274.0f;

// Straight line of vapour pressure over temperature, which rises or falls throughout: so do its
// three roundings.
template <class R>
struct VapourLine {
    R t1, t2, p1, p2;

    R pressure(R t) const noexcept { return p1 - (t1 - t) * (p1 - p2) / (t1 - t2); }
    bool saturated(R t) const noexcept { return pressure(t) >= psychro::saturation_pressure(t); }
};

// Steps of the search from `first` on, without rounding.
template <class R>
struct SearchStretch {
    R first;
    int steps;

    R at(int i) const noexcept { return first - search_step * to_real(i); }
    R last() const noexcept { return at(steps - 1); }
};

// The steps that lead no further down than to `end` and not beyond the cold face. From 2^23 on a
// temperature has no halves, and a step or two is all there is.
template <class R>
inline SearchStretch<R> stretch_down_to(R end, R first, R t2) noexcept {
    if (absolute(first) >= 0x1p23f) return {first, 1};
    const R length = first - greater(end, t2);
    return {first, to_integer(length / search_step) + 1};
}

// Below absolute zero rounding changes where the magnitude passes a power of two.
template <class R>
inline SearchStretch<R> cold_stretch(R first, R t2) noexcept {
    R end = -512.0f;
    while (end >= first && end > -0x1p24f) end *= 2.0f;
    return stretch_down_to(end + search_step, first, t2);
}

template <class R>
R highest_pressure(const VapourLine<R>& line, const SearchStretch<R>& s) noexcept {
    return greater(line.pressure(s.first), line.pressure(s.last()));
}

template <class R>
inline bool saturated_in_heat(const VapourLine<R>& line, const SearchStretch<R>& s) noexcept {
    return highest_pressure(line, s) == std::numeric_limits<R>::infinity();
}

// Halves the stretch until the highest pressure in it stays below the lowest saturation pressure,
// or one step is left.
template <class R>
bool saturated_in_cold(const VapourLine<R>& line, const SearchStretch<R>& s) noexcept {
    if (s.steps == 1) return line.saturated(s.first);
    if (!(highest_pressure(line, s) >= psychro::saturation_pressure(s.last()))) return false;
    const int half = s.steps / 2;
    return saturated_in_cold(line, {s.first, half}) ||
           saturated_in_cold(line, {s.at(half), s.steps - half});
}

// Whether vapour condenses between a warm face at t1, °C, and a colder one at t2, with vapour
// pressures p1 and p2, Pa, on them, looked at every 0.5 K from the warm face. 1 or 0.
template <class R>
Integer condenses_within_layer(R t1, R t2, R p1, R p2) noexcept {
    if (!(t2 < t1)) return 0;
    const VapourLine<R> line{t1, t2, p1, p2};
    for (R t = t1 - search_step; t2 <= t; t -= search_step) {
        if (t > hottest_searched) {
            const SearchStretch<R> heat = stretch_down_to<R>(hottest_searched, t, t2);
            if (saturated_in_heat(line, heat)) return 1;
            t = heat.last();
        } else if (t < coldest_searched) {
            const SearchStretch<R> cold = cold_stretch(t, t2);
            if (saturated_in_cold(line, cold)) return 1;
            t = cold.last();
        } else if (line.saturated(t)) {
            return 1;
        }
        if (t - search_step == t) break;  // so far from 0 that the step is lost in rounding
    }
    return 0;
}

}  // namespace quorvel::fabric
