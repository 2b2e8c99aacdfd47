// The search for saturation inside a layer, step by step from its warm face.
//
// Within the range of temperatures that mean anything every step is looked at. A host may also pass
// millions of degrees; there whole stretches of steps are decided at once, with the same answer.
#include <algorithm>
#include <cmath>
#include <limits>

#include "fabric/condensation.h"
#include "psychro/saturation.h"

namespace quorvel::fabric {
namespace {

constexpr Real step = 0.5f;  // K

// Above the hottest, the saturation formula gives infinity; below the coldest it rises with
// temperature, from 3.45e12 Pa far down.
constexpr Real hottest = 20000.0f, coldest = -274.0f;

// Straight line of vapour pressure over temperature, which rises or falls throughout: so do its
// three roundings.
struct VapourLine {
    Real t1, t2, p1, p2;

    Real pressure(Real t) const noexcept { return p1 - (t1 - t) * (p1 - p2) / (t1 - t2); }
    bool saturated(Real t) const noexcept { return pressure(t) >= psychro::saturation_pressure(t); }
};

// Steps of 0.5 K from `first` on, without rounding.
struct Stretch {
    Real first;
    int steps;

    Real at(int i) const noexcept { return first - step * static_cast<Real>(i); }
    Real last() const noexcept { return at(steps - 1); }
};

// The steps that lead no further down than to `end` and not beyond the cold face. From 2^23 on a
// temperature has no halves, and a step or two is all there is.
Stretch stretch_down_to(Real end, Real first, Real t2) noexcept {
    if (std::fabs(first) >= 0x1p23f) return {first, 1};
    const Real length = first - std::max(end, t2);
    return {first, static_cast<int>(length / step) + 1};
}

// Below absolute zero rounding changes where the magnitude passes a power of two.
Stretch cold_stretch(Real first, Real t2) noexcept {
    Real end = -512.0f;
    while (end >= first && end > -0x1p24f) end *= 2.0f;
    return stretch_down_to(end + step, first, t2);
}

Real highest_pressure(const VapourLine& line, const Stretch& s) noexcept {
    return std::max(line.pressure(s.first), line.pressure(s.last()));
}

bool saturated_in_heat(const VapourLine& line, const Stretch& s) noexcept {
    return highest_pressure(line, s) == std::numeric_limits<Real>::infinity();
}

// Halves the stretch until the highest pressure in it stays below the lowest saturation pressure,
// or one step is left.
bool saturated_in_cold(const VapourLine& line, const Stretch& s) noexcept {
    if (s.steps == 1) return line.saturated(s.first);
    if (!(highest_pressure(line, s) >= psychro::saturation_pressure(s.last()))) return false;
    const int half = s.steps / 2;
    return saturated_in_cold(line, {s.first, half}) ||
           saturated_in_cold(line, {s.at(half), s.steps - half});
}

}  // namespace

Integer condenses_within_layer(Real t1, Real t2, Real p1, Real p2) noexcept {
    if (!(t2 < t1)) return 0;
    const VapourLine line{t1, t2, p1, p2};
    for (Real t = t1 - step; t2 <= t; t -= step) {
        if (t > hottest) {
            const Stretch heat = stretch_down_to(hottest, t, t2);
            if (saturated_in_heat(line, heat)) return 1;
            t = heat.last();
        } else if (t < coldest) {
            const Stretch cold = cold_stretch(t, t2);
            if (saturated_in_cold(line, cold)) return 1;
            t = cold.last();
        } else if (line.saturated(t)) {
            return 1;
        }
        if (t - step == t) break;  // so far from 0 that the step is lost in rounding
    }
    return 0;
}

}  // namespace quorvel::fabric
