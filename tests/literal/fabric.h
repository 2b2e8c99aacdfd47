// Literal form of the search for condensation within a layer: every step evaluated.
#pragma once

#include "literal/psychro.h"

namespace literal {

// Finite temperatures only.
inline int ITPCON(float t1, float t2, float p1, float p2) {
    if (t2 >= t1) return 0;
    for (float t = t1;;) {
        t = t - 0.5f;
        if (t2 > t) return 0;
        const float pv = p1 - (t1 - t) * (p1 - p2) / (t1 - t2);
        if (pv >= PSSVP(t)) return 1;
    }
}

}  // namespace literal
