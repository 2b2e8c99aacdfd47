// Optics of one uncoated pane: refraction, Fresnel reflection, absorption in the body, and the slab
// with all inter-reflections between its two faces.
//
// Angles are in radians from the normal; n is the refractive index; KL is the absorption
// coefficient times the thickness (a pure number); reflectances, transmittances and absorptances
// are fractions.
#pragma once

#include "base/numeric.h"
#include "math/math.h"

namespace quorvel::glazing {

template <class R>
struct Optics {
    R transmittance, absorptance, reflectance;
};

template <class Value>
struct Polarised {
    Value parallel, perpendicular;
};

template <class R>
constexpr R squared(R x) noexcept {
    return x * x;
}

// What is neither transmitted nor reflected, less the rounding below zero.
template <class R>
constexpr R absorbed_remainder(R T, R reflectance) noexcept {
    return greater(1.0f - T - reflectance, R(0.0f));
}

template <class R>
constexpr Optics<R> reflecting_the_rest(R T, R A) noexcept {
    return {T, A, 1.0f - T - A};
}

// Angle of the ray inside the glass, by Snell's law. Near the normal the ratio of the angles stands
// in for the ratio of the sines.
template <class R>
R refraction_angle(R theta, R n) noexcept {
    const R s = math::sin(theta);
    return either(
        rarely(absolute(s) < 0.01f), [&] { return theta / n; }, [&] { return math::asin(s / n); });
}

// Reflectance of one face, by Fresnel's equations. The parallel one is formed with a ratio of
// cosines, not as a quotient of tangents, so that nothing is divided by zero at Brewster's angle.
template <class R>
Polarised<R> surface_reflectance(R theta, R refracted, R n) noexcept {
    // Deliberate: tested on the angle here, on its sine for the refraction.
    return either(
        absolute(theta) > 0.01f,
        [&] {
            const auto sum = math::sincos(theta + refracted);
            const auto difference = math::sincos(theta - refracted);
            const R perpendicular = squared(difference.sin / sum.sin);
            return Polarised<R>{perpendicular * squared(sum.cos / difference.cos), perpendicular};
        },
        [&] {
            const R normal = squared((1.0f - n) / (1.0f + n));
            return Polarised<R>{normal, normal};
        });
}

// Share absorbed in one pass through the body, along a ray by the cosine of its refraction angle.
template <class R>
R absorption_along(R cos_refraction, R KL) noexcept {
    return 1.0f - math::exp(-KL / cos_refraction);
}

template <class R>
R single_pass_absorption(R refracted, R KL) noexcept {
    return absorption_along(math::cos(refracted), KL);
}

// The whole pane for one polarisation: single-pass absorption a, reflectance r of either face.
template <class R>
constexpr Optics<R> slab_optics(R a, R r) noexcept {
    const R tau = 1.0f - a;
    const R entered = squared(1.0f - r);
    const R D = 1.0f - squared(r) * squared(tau);
    const R T = entered * tau / D;
    const R reflected = r + r * entered * squared(tau) / D;
    return {T, absorbed_remainder(T, reflected), reflected};
}

// KL of a pane with normal transmittance Tn: the positive root tau of
// rho^2 Tn tau^2 + (1 - rho)^2 tau - Tn = 0 is exp(-KL). The difference cancels for nearly opaque
// glass: in single precision it leaves a relative error of 1.5e-5 / Tn^2, and infinity below 0.002.
template <class R>
R absorption_product(R Tn, R n) noexcept {
    const R rho = squared((n - 1.0f) / (n + 1.0f));
    const R P = squared(1.0f - rho);
    const R Q = 2.0f * rho * Tn;
    const R tau = (math::sqrt(squared(P) + squared(Q)) - P) / (2.0f * Tn * squared(rho));
    return -math::log(tau);
}

// Normal transmittance of a pane with body KL and normal reflectance rho of either face.
template <class R>
R normal_transmittance(R KL, R rho) noexcept {
    const R tau = math::exp(-KL);
    return squared(1.0f - rho) * tau / (1.0f - squared(rho * tau));
}

}  // namespace quorvel::glazing
