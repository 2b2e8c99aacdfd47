#include "glazing/layers.h"

namespace quorvel::glazing {

Optics stacked_layers(Integer n, const Real* transmittance, const Real* reflectance) noexcept {
    if (n < 1) return {1.0f, 0.0f, 0.0f};
    Real T = transmittance[n - 1];
    Real R = reflectance[n - 1];
    for (Integer k = n - 2; k >= 0; --k) {
        R += reflectance[k] * squared(T);
        T *= transmittance[k];
    }
    if (T + R > 0.99f) R = 0.99f - T;
    return {T, 1.0f - T - R, R};
}

}  // namespace quorvel::glazing
