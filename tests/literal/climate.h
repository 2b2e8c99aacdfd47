// Literal form of the design-day chain: every sine and cosine where the formula has it.
#pragma once

#include <cmath>

#include "math/math.h"

namespace literal {

namespace math = quorvel::math;

constexpr float pi = 3.141593f;

inline float clamped_to_one(float x) { return x > 1.0f ? 1.0f : x < -1.0f ? -1.0f : x; }

struct Sun {
    float declination, altitude, azimuth, sunrise, sunset;
};

inline float azimuth(float acute, float difference, bool morning) {
    if (difference > 0.0f) return morning ? pi - acute : pi + acute;
    if (difference < 0.0f) return morning ? acute : 2.0f * pi - acute;
    return morning ? 0.5f * pi : 1.5f * pi;
}

// Within the valid ranges of its arguments.
inline Sun CLSNGE(float latitude, int day, float hour) {
    const float d = static_cast<float>(day) * 0.01721f;
    const float s = clamped_to_one(0.398f * math::sin(d - 1.4096f + 0.03347f * math::sin(d)));
    const float delta = math::asin(s);
    const float H = std::fabs(12.0f - hour) * 0.261799395f;
    float alpha = math::asin(clamped_to_one(s * math::sin(latitude) +
                                            math::cos(delta) * math::cos(latitude) * math::cos(H)));
    float azi = 0.0f;
    if (alpha < 0.0f) {
        alpha = 0.0f;
    } else {
        const float acute =
            math::asin(clamped_to_one(math::cos(delta) * math::sin(H) / math::cos(alpha)));
        const float tan_lat = math::tan(latitude);
        const float r = tan_lat == 0.0f ? (math::tan(delta) < 0.0f ? -1e32f : 1e32f)
                                        : math::tan(delta) / tan_lat;
        const float difference = math::sin(latitude) >= 0.0f ? math::cos(H) - r : r - math::cos(H);
        azi = azimuth(acute, difference, hour <= 12.0f);
    }
    const float p = math::tan(latitude) * math::tan(delta);
    if (p <= -1.0f) return {delta, alpha, azi, 25.0f, 0.0f};
    if (p >= 1.0f) return {delta, alpha, azi, 0.0f, 25.0f};
    const float sunrise = math::acos(p) * 12.0f / pi;
    return {delta, alpha, azi, sunrise, 24.0f - sunrise};
}

struct SurfaceAngles {
    float incidence, vertical, horizontal;
};

inline float off_normal(float s, float n) {
    if (s == 0.0f && n == 0.0f) return 0.5f * pi;
    return math::acos(clamped_to_one(n / math::sqrt(s * s + n * n)));
}

inline SurfaceAngles CLSNSR(float alpha, float A, float gamma, float beta) {
    using math::cos;
    using math::sin;
    const float S[3] = {cos(alpha) * sin(A), cos(alpha) * cos(A), sin(alpha)};
    const float U[3] = {-cos(gamma), sin(gamma), 0.0f};
    const float V[3] = {-sin(gamma) * cos(beta), -cos(gamma) * cos(beta), sin(beta)};
    const float N[3] = {sin(gamma) * sin(beta), cos(gamma) * sin(beta), cos(beta)};
    const float u = U[0] * S[0] + U[1] * S[1] + U[2] * S[2];
    const float v = V[0] * S[0] + V[1] * S[1] + V[2] * S[2];
    const float n = N[0] * S[0] + N[1] * S[1] + N[2] * S[2];
    const float a = off_normal(v, n), b = off_normal(u, n);
    return {math::acos(clamped_to_one(n)), v < 0.0f ? -a : a, u < 0.0f ? b : -b};
}

struct Irradiance {
    float direct, diffuse, reflected;
};

inline float CLHIGH(float height, float alpha) {
    if (math::sin(alpha) >= 0.08f && height >= 300.0f)
        return height * (5e-05f / math::sin(alpha) + 2e-05f) + 1.02f;
    return 1.0f;
}

inline Irradiance CLSNNR(float alpha, float height, int sky) {
    const float slope[2] = {266.971f, 287.295f};
    const float c[2][5] = {{1.52269f, 280.358f, -375.111f, 253.716f, -63.3311f},
                           {0.331322f, 283.1f, 4.42111f, 0.0f, 0.0f}};
    if (std::fabs(alpha) > 1.5707964f) return {0.0f, 0.0f, 0.0f};
    const float f = CLHIGH(height, alpha);
    if (alpha <= 0.087f) return {2397.26f * alpha * f, slope[sky] * alpha * f, 0.0f};
    const float w = 1.0f / alpha;
    const float direct = 1035.49f - 156.13f * w - 1.91863f * (w * w) + 2.51353f * (w * w * w) -
                         0.148842f * (w * w * w * w);
    const float a2 = alpha * alpha, a3 = a2 * alpha, a4 = a3 * alpha;
    const float diffuse =
        c[sky][0] + c[sky][1] * alpha + c[sky][2] * a2 + c[sky][3] * a3 + c[sky][4] * a4;
    return {direct * f, diffuse * f, 0.0f};
}

inline Irradiance CLSORD(float alpha, float A, float gamma, float beta, float direct, float diffuse,
                         float ground, float beam_factor, float diffuse_factor) {
    using math::cos;
    using math::sin;
    const float c = cos(alpha) * sin(beta) * cos(A - gamma) + sin(alpha) * cos(beta);
    return {c > 0.0f ? c * direct * beam_factor : 0.0f,
            diffuse * diffuse_factor * (1.0f + cos(beta)) / 2.0f *
                (1.0f - sin(beta) * (0.1f * cos(gamma) + 0.100000024f)),
            (diffuse * diffuse_factor + direct * beam_factor * sin(alpha)) * 0.5f * ground *
                (1.0f - cos(beta))};
}

}  // namespace literal
