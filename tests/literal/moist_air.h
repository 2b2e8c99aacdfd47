// Literal form of the moist-air routines: every trial of the searches evaluated, nothing carried
// over.
#pragma once

#include <cmath>

#include "literal/psychro.h"

namespace literal {

inline float enhancement(float t, float p) {
    const float T = t + 273.15f;
    float a = 1.00386f + 3.73e-7f * p;
    float b = 3.71175e-5f + 2.22785e-9f * p;
    float c = 8.89475e-8f + 3.69995e-12f * p;
    if (t > 0.0f) {
        a = 1.01147f + 3.4963e-7f * p;
        b = 9.9564e-5f + 2.03553e-9f * p;
        c = 2.171568e-7f + 3.286831e-12f * p;
    }
    return T * (c * T - b) + a;
}

inline float moisture_content(float t, float pv, float p) {
    const float f = enhancement(t, p);
    return 0.62197f * f * pv / (p - f * pv);
}

inline float PSVAP(float t, float twb, float p, int type) {
    if (twb >= t) return PSSVP(t);
    const float at_or_above[] = {0.000666f, 0.000799f};
    const float below[] = {0.000594f, 0.00072f};
    const float A = twb < 0.0f ? below[type - 1] : at_or_above[type - 1];
    return PSSVP(twb) - A * p * (t - twb);
}

inline float PSGS(float t, float twb, float p, int type) {
    return moisture_content(t, PSVAP(t, twb, p, type), p);
}

inline float PSHWET(float t, float twb, float p, int type) {
    const float t2 = t * t, t3 = t * t * t, t4 = t * t * t * t;
    const float ha = (1.0058f - 1.691e-10f * t4) * t +
                     (1.7139e-5f * t2 + 0.00071035f - 7.7976e-7f * t3 + 2.2256e-8f * t4);
    const float hv = (1.248e-9f * t4 + 1.8439f) * t +
                     (2.5285e-5f * t2 + 2500.9f - 1.6297e-5f * t3 + 5.8962e-9f * t4);
    return ha + PSGS(t, twb, p, type) * hv;
}

inline float PSTWB(float t, float mu, float p, int type) {
    float twb = t;
    float step = 1.0f;
    for (int trials = 0; trials < 20000; ++trials) {
        const float gs = moisture_content(t, PSSVP(t), p);
        twb -= step;
        const float trial = 100.0f * PSGS(t, twb, p, type) / gs;
        if (trial > mu) continue;
        if (trial == mu) return twb;
        twb += step;
        step /= 10.0f;
        if (step < 0.005f) return twb;
    }
    return twb;
}

inline float PSWBLB(float t, float g, float p, int type) {
    if (g >= moisture_content(t, PSSVP(t), p)) return t;
    if (t > 10000.0f) return -100.0f;
    if (std::isnan(t)) return -200.0f;
    float twb = t - 5.0f;
    float step = 5.0f;
    for (int trials = 0; trials < 4000; ++trials) {
        if (PSGS(t, twb, p, type) < g) {
            twb += step;
            step /= 10.0f;
        }
        twb -= step;
        if (step < 0.005f) return twb;
    }
    return twb;
}

}  // namespace literal
