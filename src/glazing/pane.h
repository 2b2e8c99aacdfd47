// Optics of one uncoated pane: refraction, Fresnel reflection, absorption in the body, and the slab
// with all inter-reflections between its two faces.
//
// Angles are in radians from the normal; n is the refractive index; KL is the absorption
// coefficient times the thickness (a pure number); reflectances, transmittances and absorptances
// are fractions.
#pragma once

#include <cmath>

#include "base/contract.h"
#include "math/math.h"

namespace quorvel::glazing {

struct Optics {
    Real transmittance, absorptance, reflectance;
};

template <class Value>
struct Polarised {
    Value parallel, perpendicular;
};

constexpr Real squared(Real x) noexcept { return x * x; }

// What is neither transmitted nor reflected, less the rounding below zero.
constexpr Real absorbed_remainder(Real T, Real R) noexcept {
    const Real A = 1.0f - T - R;
    return A < 0.0f ? 0.0f : A;
}

// Angle of the ray inside the glass, by Snell's law. Near the normal the ratio of the angles stands
// in for the ratio of the sines.
inline Real refraction_angle(Real theta, Real n) noexcept {
    const Real s = math::sin(theta);
    return std::fabs(s) < 0.01f ? theta / n : math::asin(s / n);
}

// Reflectance of one face, by Fresnel's equations. The parallel one is formed with a ratio of
// cosines, not as a quotient of tangents, so that nothing is divided by zero at Brewster's angle.
inline Polarised<Real> surface_reflectance(Real theta, Real refracted, Real n) noexcept {
    // Tested on the angle here, on its sine for the refraction: kept.
    if (std::fabs(theta) > 0.01f) {
        const auto [sin_sum, cos_sum] = math::sincos(theta + refracted);
        const auto [sin_difference, cos_difference] = math::sincos(theta - refracted);
        const Real perpendicular = squared(sin_difference / sin_sum);
        return {perpendicular * squared(cos_sum / cos_difference), perpendicular};
    }
    const Real normal = squared((1.0f - n) / (1.0f + n));
    return {normal, normal};
}

// Share absorbed in one pass through the body, along a ray with this cosine of the refraction
// angle.
inline Real single_pass_absorption(Real cos_refraction, Real KL) noexcept {
    return 1.0f - math::exp(-KL / cos_refraction);
}

// The whole pane for one polarisation: single-pass absorption a, reflectance r of either face.
constexpr Optics slab_optics(Real a, Real r) noexcept {
    const Real tau = 1.0f - a;
    const Real entered = squared(1.0f - r);
    const Real D = 1.0f - squared(r) * squared(tau);
    const Real T = entered * tau / D;
    const Real R = r + r * entered * squared(tau) / D;
    return {T, absorbed_remainder(T, R), R};
}

// KL of a pane with normal transmittance Tn: the positive root tau of
// rho^2 Tn tau^2 + (1 - rho)^2 tau - Tn = 0 is exp(-KL). The difference cancels for nearly opaque
// glass: in single precision it leaves a relative error of 1.5e-5 / Tn^2, and infinity below 0.002.
inline Real absorption_product(Real Tn, Real n) noexcept {
    const Real rho = squared((n - 1.0f) / (n + 1.0f));
    const Real P = squared(1.0f - rho);
    const Real Q = 2.0f * rho * Tn;
    const Real tau = (math::sqrt(squared(P) + squared(Q)) - P) / (2.0f * Tn * squared(rho));
    return -math::log(tau);
}

// Normal transmittance of a pane with body KL and normal reflectance rho of either face.
inline Real normal_transmittance(Real KL, Real rho) noexcept {
    const Real tau = math::exp(-KL);
    return squared(1.0f - rho) * tau / (1.0f - squared(rho * tau));
}

}  // namespace quorvel::glazing
