// Literal form of a pane's optics: 18 bands evaluated from scratch, each by the whole chain.
#pragma once

#include <cmath>

#include "math/math.h"

namespace literal {

namespace math = quorvel::math;

struct Pane {
    float Tp, Ap, Rp, Ts, As, Rs;
};

inline float WNKL(float Tn, float n) {
    const float q = (n - 1.0f) / (n + 1.0f);
    const float rho = q * q;
    const float P = (1.0f - rho) * (1.0f - rho);
    const float Q = 2.0f * rho * Tn;
    const float tau = (math::sqrt(P * P + Q * Q) - P) / (2.0f * Tn * (rho * rho));
    return -math::log(tau);
}

inline float WNRANG(float theta, float n) {
    const float s = math::sin(theta);
    return std::fabs(s) < 0.01f ? theta / n : math::asin(s / n);
}

inline void WNREFL(float theta, float refracted, float n, float& Rp, float& Rs) {
    if (std::fabs(theta) > 0.01f) {
        const float s = math::sin(theta - refracted) / math::sin(theta + refracted);
        const float c = math::cos(theta + refracted) / math::cos(theta - refracted);
        Rs = s * s;
        Rp = Rs * (c * c);
    } else {
        const float q = (1.0f - n) / (1.0f + n);
        Rs = Rp = q * q;
    }
}

inline void WNTAR(float a, float r, float& T, float& A, float& R) {
    const float tau = 1.0f - a;
    const float D = 1.0f - (r * r) * (tau * tau);
    T = (1.0f - r) * (1.0f - r) * tau / D;
    R = r + r * ((1.0f - r) * (1.0f - r)) * (tau * tau) / D;
    A = 1.0f - T - R;
    if (A < 0.0f) A = 0.0f;
}

inline Pane clear_pane(float Tn, float theta) {
    const float n = 1.52f;
    const float KL = WNKL(Tn, n);
    const float refracted = WNRANG(theta, n);
    Pane pane;
    float Rp, Rs;
    WNREFL(theta, refracted, n, Rp, Rs);
    const float a = 1.0f - math::exp(-KL / math::cos(refracted));
    WNTAR(a, Rs, pane.Ts, pane.As, pane.Rs);
    WNTAR(a, Rp, pane.Tp, pane.Ap, pane.Rp);
    return pane;
}

inline Pane coated_pane(float Tn, float R0, float theta) {
    const float gT[19] = {1, 1, 1, 1,       1,       1,       1,       1,    1, 1,
                          1, 1, 1, 0.9545f, 0.9091f, 0.8636f, 0.7273f, 0.5f, 0};
    const float gR[19] = {1, 1, 1, 1,       1,       1,       1,      1,      1, 1,
                          1, 1, 1, 0.9906f, 0.9434f, 0.8491f, 0.717f, 0.434f, 0};
    if (std::fabs(theta) > 1.57f) return {0, 0, 1, 0, 0, 1};
    const float x = std::fabs(theta) / 0.08726646f;
    const int i = static_cast<int>(x);
    const float f = x - static_cast<float>(i);
    const float T = (gT[i] + (gT[i + 1] - gT[i]) * f) * Tn;
    const float R = 1.0f - (1.0f - R0) * (gR[i] + (gR[i + 1] - gR[i]) * f);
    float A = 1.0f - T - R;
    if (A < 0.0f) A = 0.0f;
    return {T, A, R, T, A, R};
}

inline Pane WNDRGL(float Tn, float R0, float theta) {
    if (R0 >= 0.01f && R0 <= 0.99f) return coated_pane(Tn, R0, theta);
    if (Tn < 0.001f) return {0, 0, 1, 0, 0, 1};
    return clear_pane(Tn, theta);
}

inline void WNDFGL(float Tn, float R0, float& T, float& A) {
    const float half = 0.04363323f;
    T = A = 0.0f;
    for (int k = 1; k <= 18; ++k) {
        const float theta = half + static_cast<float>(k - 1) * 0.08726646f;
        const float upper = math::sin(theta + half);
        const float lower = math::sin(theta - half);
        const float w = upper * upper - lower * lower;
        const Pane pane = WNDRGL(Tn, R0, theta);
        T += w * (pane.Ts + pane.Tp);
        A += w * (pane.As + pane.Ap);
    }
    T *= 0.5f;
    A *= 0.5f;
}

}  // namespace literal
