// For the shells: transmittance, absorptance and reflectance into the caller's variables.
#pragma once

#include "glazing/pane.h"

namespace quorvel::glazing {

inline void store(const Optics& optics, Real* t, Real* a, Real* r) noexcept {
    *t = optics.transmittance;
    *a = optics.absorptance;
    *r = optics.reflectance;
}

}  // namespace quorvel::glazing
