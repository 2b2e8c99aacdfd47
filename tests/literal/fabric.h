// Literal form of the layer calculations: working tables of 20 rows, every exponential with its own
// sine and cosine, every search step evaluated.
#pragma once

#include <cmath>

#include "literal/psychro.h"
#include "math/math.h"

namespace literal {

// Up to 20 layers; the rows beyond them are cleared.
struct LayerTables {
    float thickness[20], conductivity[20], resistance[20], density[20], specific_heat[20];
};

inline void fill(float (&rows)[20], const float* values, int n) {
    for (int i = 0; i < 20; ++i) rows[i] = i < n ? values[i] : 0.0f;
}

inline float TPUVAL(const float* thickness, const float* conductivity, float R1, float R2, int n,
                    LayerTables& table) {
    fill(table.thickness, thickness, n);
    fill(table.conductivity, conductivity, n);
    if (n < 1) return 1.0f / (R1 + R2);
    float sum = R1 + R2;
    for (int i = 0; i < n; ++i) {
        if (table.thickness[i] == 0.0f)
            table.resistance[i] = 0.0f;
        else if (table.thickness[i] < 0.0f)
            table.resistance[i] = table.conductivity[i];
        else
            table.resistance[i] = table.thickness[i] / table.conductivity[i];
        sum += table.resistance[i];
    }
    return 1.0f / sum;
}

struct C {
    float re, im;
};

inline C plus(C a, C b) { return {a.re + b.re, a.im + b.im}; }
inline C minus(C a, C b) { return {a.re - b.re, a.im - b.im}; }
inline C times(float r, C a) { return {r * a.re, r * a.im}; }
inline C times(C a, C b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }
inline C over(C a, float r) { return {a.re / r, a.im / r}; }
inline C over(C a, C b) {
    const double ar = static_cast<double>(a.re), ai = static_cast<double>(a.im);
    const double br = static_cast<double>(b.re), bi = static_cast<double>(b.im);
    const double square = br * br + bi * bi;
    return {static_cast<float>((ar * br + ai * bi) / square),
            static_cast<float>((ai * br - ar * bi) / square)};
}
inline C exponential(C z) {
    return {math::exp(z.re) * math::cos(z.im), math::exp(z.re) * math::sin(z.im)};
}
inline float absolute(C z) {
    const double re = z.re, im = z.im;
    return static_cast<float>(math::sqrt(re * re + im * im));
}

struct CyclicResponse {
    float Y, omega, f, phi, F, psi, U;
};

struct Matrix {
    C m11, m12, m21, m22;
};

inline void add_resistance(Matrix& m, float R) {
    m.m12 = plus(m.m12, times(R, m.m11));
    m.m22 = plus(m.m22, times(R, m.m21));
}

inline void add_layer(Matrix& m, const LayerTables& table, int i, float harmonic) {
    const float R = table.resistance[i];
    const float x =
        table.thickness[i] * math::sqrt(table.density[i] * table.specific_heat[i] * harmonic *
                                        3.6361027e-05f / table.conductivity[i]);
    if (x == 0.0f) return add_resistance(m, R);
    const C gamma{x, x}, grown = exponential(gamma), decayed = exponential({-x, -x});
    const C cosh = over(plus(grown, decayed), 2.0f), sinh = over(minus(grown, decayed), 2.0f);
    const C l12 = over(times(R, sinh), gamma), l21 = over(times(gamma, sinh), R);
    m = {plus(times(m.m11, cosh), times(m.m12, l21)), plus(times(m.m11, l12), times(m.m12, cosh)),
         plus(times(m.m21, cosh), times(m.m22, l21)), plus(times(m.m21, l12), times(m.m22, cosh))};
}

inline CyclicResponse TPADMT(const float* thickness, const float* conductivity,
                             const float* density, const float* specific_heat, float Rsi, float Rso,
                             int n, int harmonic, int kind) {
    LayerTables table;
    fill(table.density, density, n);
    fill(table.specific_heat, specific_heat, n);
    CyclicResponse out;
    out.U = TPUVAL(thickness, conductivity, Rsi, Rso, n, table);
    const float h = static_cast<float>(harmonic);
    Matrix m{{1.0f, 0.0f}, {Rsi, 0.0f}, {0.0f, 0.0f}, {1.0f, 0.0f}};
    for (int i = 0; i < n; ++i) {
        if (table.thickness[i] == 0.0f) continue;
        if (table.thickness[i] < 0.0f)
            add_resistance(m, table.resistance[i]);
        else
            add_layer(m, table, i, h);
    }
    add_resistance(m, Rso);

    const C Yc = over(minus(m.m22, {kind == 2 ? 1.0f : 0.0f, 0.0f}), m.m12);
    out.Y = absolute(Yc);
    float a = math::atan2(Yc.im, Yc.re);
    if (a < 0.0f) a += 6.2831855f;
    out.omega = a * 3.81972f / h;
    out.f = out.phi = 0.0f;
    if (kind != 2) {
        const C fc = over({1.0f, 0.0f}, times(out.U, m.m12));
        out.f = absolute(fc);
        float b = math::atan2(fc.im, fc.re);
        if (b > 0.0f) b -= 6.2831855f;
        out.phi = b * 3.81972f / -h;
    }
    const C Fc = minus({1.0f, 0.0f}, times(Rsi, Yc));
    out.F = absolute(Fc);
    float c = math::atan2(Fc.im, Fc.re);
    if (c > 0.0f) c -= 6.2831855f;
    out.psi = c * 3.81972f / -h;
    return out;
}

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
