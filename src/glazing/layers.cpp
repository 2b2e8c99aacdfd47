#include "glazing/layers.h"

namespace quorvel::glazing {

Optics<Real> stacked_layers(Integer n, const Real* transmittance,
                            const Real* reflectance) noexcept {
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

Optics<Real> traced_layers(Integer n, const Real* transmittance, const Real* absorptance,
                           const Real* reflectance) noexcept {
    if (n < 1) return {1.0f, 0.0f, 0.0f};
    // Fluxes back from layer j, counted from 0, as the previous pass left them until this pass
    // comes by; none comes back from beyond layer 0.
    std::array<Real, most_traced_layers> back{}, absorbed{};
    Real T = 0.0f, R = 0.0f;
    for (int pass = 0; pass < 9; ++pass) {
        Real forward = pass == 0 ? 1.0f : 0.0f;
        for (Integer j = n - 1; j >= 0; --j) {
            const Real returned = j > 0 ? back[j - 1] : 0.0f;
            absorbed[j] += (forward + returned) * absorptance[j];
            back[j] = forward * reflectance[j] + returned * transmittance[j];
            forward = forward * transmittance[j] + returned * reflectance[j];
        }
        T += forward;
        R += back[n - 1];
    }
    Real A = 0.0f;
    for (Integer j = 0; j < n; ++j) A += absorbed[j];
    return {T, A, R};
}

}  // namespace quorvel::glazing
