// Literal form of the slatted blinds: every beam from scratch, 18 of them for diffuse radiation.
#pragma once

#include <cmath>

#include "math/math.h"

namespace literal {

namespace math = quorvel::math;

struct Blind {
    float T, A, R;
};

inline Blind slat_beam(float s, float w, float degrees, float phi, float f, float alpha,
                       float alpha_b) {
    const float open = f > 0.0f ? f : 0.0f;
    if (std::fabs(math::cos(phi)) < 1e-6f || std::fabs(phi) >= 1.570796f)
        return {open, alpha, 1.0f - open - alpha};
    float beta = 0.017453294f * degrees;
    if (std::fabs(phi + beta) < 0.01f) return {1.0f, 0.0f, 0.0f};
    if (phi + beta <= 0.0f) beta = -beta, phi = -phi;

    const float rho_a = 1.0f - alpha, rho_b = 1.0f - alpha_b;
    const float sb = math::sin(beta), ss = math::sin(phi + beta), cosine = math::cos(phi);
    const float L = s * cosine / ss, x = s / w, y = s / L, z = (w - L) / L;
    const float F1 = math::sqrt(1.0f + 2.0f * x * sb + x * x);
    const float F2 = math::sqrt(1.0f - 2.0f * x * sb + x * x);
    const float E1 = (1.0f - F1 + x) / 2.0f, E2 = (F1 + F2 - 2.0f * x) / 2.0f;
    const float G1 = math::sqrt(z * z + y * y + 2.0f * z * s * sb / L);
    const float G2 = math::sqrt((w / L) * (w / L) + 2.0f * y * w * sb / L + y * y);
    const float K = ((1.0f - F2 + x) / 2.0f + E1 * E2 * rho_b) * rho_a * rho_b /
                    (1.0f - (E2 * E2) * rho_a * rho_b);
    float T, A;
    if (L > w) {
        T = 1.0f - (1.0f - E1 * rho_a - K * E2) * ss / (x * cosine);
        A = ss * alpha / (x * (1.0f - E2 * rho_b) * cosine);
    } else {
        const float E3 = (G2 - G1 - y + math::sqrt(1.0f - 2.0f * y * sb + y * y)) / 2.0f;
        T = 0.5f * (G1 + 1.0f - G2) * rho_a + K * E3;
        A = (1.0f + E3 * rho_b / (1.0f - E2 * rho_b)) * alpha;
    }
    const float R = 1.0f - T - A;
    if (f > 0.0f) return {f + (1.0f - f) * T, (1.0f - f) * A, (1.0f - f) * R};
    return {T, A, R};
}

struct SlatDiffuse {
    float T_sky = 0.0f, T_ground = 0.0f, A_sky = 0.0f, A_ground = 0.0f;
};

inline SlatDiffuse slat_diffuse(float s, float w, float degrees, float f, float alpha,
                                float alpha_b) {
    constexpr float half = 0.08726646f;
    SlatDiffuse sum;
    for (int k = 1; k <= 9; ++k) {
        const float phi = static_cast<float>(2 * k - 1) * half;
        const float weight = math::sin(phi + half) - math::sin(phi - half);
        const Blind sky = slat_beam(s, w, degrees, phi, f, alpha, alpha_b);
        const Blind ground = slat_beam(s, w, degrees, -phi, f, alpha, alpha_b);
        sum.T_sky += weight * sky.T, sum.A_sky += weight * sky.A;
        sum.T_ground += weight * ground.T, sum.A_ground += weight * ground.A;
    }
    return sum;
}

}  // namespace literal
