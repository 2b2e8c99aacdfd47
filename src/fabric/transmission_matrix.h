// Transmission matrices of plane layers under a sinusoidal temperature swing.
//
// A matrix takes temperature and heat flux at one face to those at the other; elements are complex
// amplitudes in single precision. std::complex is no use here: its products give infinities a
// meaning of their own, in a function of the platform.
#pragma once

#include "fabric/layers.h"
#include "math/math.h"

namespace quorvel::fabric {

struct Complex {
    Real re, im;
};

constexpr Complex operator+(Complex a, Complex b) noexcept { return {a.re + b.re, a.im + b.im}; }
constexpr Complex operator-(Complex a, Complex b) noexcept { return {a.re - b.re, a.im - b.im}; }
constexpr Complex operator*(Real factor, Complex z) noexcept {
    return {factor * z.re, factor * z.im};
}
constexpr Complex operator*(Complex a, Complex b) noexcept {
    return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}
constexpr Complex operator/(Complex z, Real divisor) noexcept {
    return {z.re / divisor, z.im / divisor};
}

// Products are double in the quotient and the moduli: elements beyond 1e19 are common in heavy
// walls, and so are their reciprocals, the decrement factors. No single has a square beyond double.
constexpr DoubleReal squared_modulus(Complex z) noexcept {
    const auto re = static_cast<DoubleReal>(z.re), im = static_cast<DoubleReal>(z.im);
    return re * re + im * im;
}

constexpr Complex operator/(Complex a, Complex b) noexcept {
    const auto a_re = static_cast<DoubleReal>(a.re), a_im = static_cast<DoubleReal>(a.im);
    const auto b_re = static_cast<DoubleReal>(b.re), b_im = static_cast<DoubleReal>(b.im);
    const DoubleReal square = squared_modulus(b);
    return {static_cast<Real>((a_re * b_re + a_im * b_im) / square),
            static_cast<Real>((a_im * b_re - a_re * b_im) / square)};
}

inline Real modulus(Complex z) noexcept {
    return static_cast<Real>(math::sqrt(squared_modulus(z)));
}
inline Real phase(Complex z) noexcept { return math::atan2(z.im, z.re); }

struct TransmissionMatrix {
    Complex m11, m12, m21, m22;
};

constexpr TransmissionMatrix operator*(const TransmissionMatrix& a,
                                       const TransmissionMatrix& b) noexcept {
    return {a.m11 * b.m11 + a.m12 * b.m21, a.m11 * b.m12 + a.m12 * b.m22,
            a.m21 * b.m11 + a.m22 * b.m21, a.m21 * b.m12 + a.m22 * b.m22};
}

// A resistance, m²K/W, without heat capacity, such as a surface or an air gap.
constexpr TransmissionMatrix resistance_matrix(Real resistance) noexcept {
    return {{1.0f, 0.0f}, {resistance, 0.0f}, {0.0f, 0.0f}, {1.0f, 0.0f}};
}

// The product of a matrix with that of a resistance, of which two elements are one and zero.
constexpr TransmissionMatrix with_resistance(const TransmissionMatrix& a,
                                             Real resistance) noexcept {
    return {a.m11, a.m12 + resistance * a.m11, a.m21, a.m22 + resistance * a.m21};
}

// Whether a swing of temperature leaves heat in a layer of this relative thickness. Without heat
// capacity, or under a steady temperature, it is a mere resistance: the limit to which the matrix
// of a layer tends.
constexpr bool stores_heat(const Layer& layer, Real relative_thickness) noexcept {
    return layer.thickness > 0.0f && relative_thickness != 0.0f;
}

// Thickness over the depth at which a swing of `cycles` in 24 hours has sunk to 1/e.
inline Real relative_thickness(const Layer& layer, Real cycles) noexcept {
    constexpr Real half_daily_frequency = 3.6361027e-05f;  // pi / 86400 s
    return layer.thickness *
           math::sqrt(layer.heat_capacity * cycles * half_daily_frequency / layer.conductivity);
}

// What e^z and e^-z of z = x + ix are made of: they have one sine and one cosine in common.
struct Exponentials {
    Real growth, decay;
    math::SinCos angle;
};

// The matrix of a layer of relative thickness x that stores heat.
constexpr TransmissionMatrix layer_matrix(Real resistance, Real x, const Exponentials& e) noexcept {
    const Complex up{e.growth * e.angle.cos, e.growth * e.angle.sin};
    const Complex down{e.decay * e.angle.cos, -(e.decay * e.angle.sin)};
    const Complex z{x, x}, cosh = 0.5f * (up + down), sinh = 0.5f * (up - down);
    return {cosh, resistance * sinh / z, z * sinh / resistance, cosh};
}

}  // namespace quorvel::fabric
