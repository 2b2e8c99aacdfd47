// Literal form of the wet-bulb search: every step evaluated, nothing carried over.
//
// The forms in this folder were written out independently of the library and stay slow and obvious.
// Tests demand the same bits from the library; benchmarks measure it against them.
#pragma once

#include <cmath>

#include "math/math.h"

namespace literal {

namespace math = quorvel::math;

inline float PSSVP(float t) {
    const float T = t + 273.15f;
    if (t >= 0.0f)
        return math::exp10(0.0024804f * T + 33.59051f - 3142.31f / T - 8.2f * math::log10(T));
    return math::exp10(12.538099f - 2663.91f / T);
}

inline float PSTWET(float t, float rh, float p, int type) {
    if (rh > 100.0f) rh = 100.0f;
    if (rh < 0.0f) rh = 0.0f;
    const float at_or_above[] = {0.000666f, 0.000799f};
    const float below[] = {0.000594f, 0.00072f};
    const float A = t < 0.0f ? below[type - 1] : at_or_above[type - 1];
    float tw = t;
    float step = 1.0f;
    for (int steps = 1;; ++steps) {
        const float pv = PSSVP(t) * rh / 100.0f;
        const float tn = t - (PSSVP(tw) - pv) / (A * p);
        if (std::fabs(tw - tn) < 0.1f || steps == 20000) return tn < t ? tn : t;
        if (tw > tn) {
            tw -= step;
        } else {
            tw += step;
            step *= 0.1f;
        }
    }
}

}  // namespace literal
