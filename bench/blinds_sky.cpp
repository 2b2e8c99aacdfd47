// Blinds and sky: diffuse radiation through slats beside 18 beams from scratch, the anisotropic sky
// beside its literal form, and the rest of both families.
#include <benchmark/benchmark.h>

#include <array>

#include "conformance/random_arguments.h"
#include "literal/blinds.h"
#include "literal/sky.h"
#include "quorvel/climate.h"
#include "quorvel/glazing.h"

namespace {

struct Case {
    float s, angle, alpha, phi;                            // blind with slats of width 1
    float altitude, azimuth, facing, tilt, beam, diffuse;  // sun and sky
    float incidence;
};

constexpr float extraterrestrial = 1367.0f;

const std::array<Case, 1024>& cases() {
    static const auto table = [] {
        std::array<Case, 1024> made;
        quorvel::conformance::Random random(1);
        const auto draw = [&](float low, float high) {
            return low + (high - low) * static_cast<float>(random.unit());
        };
        for (Case& c : made)
            c = {draw(0.3f, 1.2f),   draw(-80.0f, 80.0f), draw(0.1f, 0.9f), draw(-1.4f, 1.4f),
                 draw(0.05f, 1.4f),  draw(0.0f, 6.2f),    draw(0.0f, 6.2f), draw(0.0f, 1.58f),
                 draw(0.0f, 800.0f), draw(20.0f, 400.0f), draw(0.0f, 1.57f)};
        return made;
    }();
    return table;
}

template <class Call>
void measure(benchmark::State& state, Call call) {
    const auto& table = cases();
    std::size_t i = 0;
    for (auto _ : state) benchmark::DoNotOptimize(call(table[i++ % table.size()]));
}

std::array<float, 3> wndrsl(const Case& c) {
    std::array<float, 3> out;
    lib::WNDRSL(c.s, 1.0f, c.angle, c.phi, c.alpha, out[0], out[1], out[2]);
    return out;
}
std::array<float, 4> wndfsl(const Case& c) {
    std::array<float, 4> out;
    lib::WNDFSL(c.s, 1.0f, c.angle, c.alpha, out[0], out[1], out[2], out[3]);
    return out;
}
// 18 calls for single beams, without finding the weights.
float wndfsl_by_beams(const Case& c) {
    float sum = 0.0f;
    for (int k = -9; k < 9; ++k) {
        float t, a, r;
        const float phi = static_cast<float>(2 * k + 1) * 0.08726646f;
        lib::WNDRSL(c.s, 1.0f, c.angle, phi, c.alpha, t, a, r);
        sum += t + a;
    }
    return sum;
}
std::array<float, 3> wncomp(const Case& c) {
    const std::array t = {0.8f, c.alpha * 0.5f, 0.7f}, r = {0.1f, 0.4f, 0.1f},
                     a = {0.1f, 0.6f - c.alpha * 0.5f, 0.2f};
    std::array<float, 3> out;
    lib::WNCOMP(3, t, a, r, out[0], out[1], out[2]);
    return out;
}
float clpersky(const Case& c) {
    float sky;
    lib::CLPERSKY(c.altitude, c.tilt, c.beam, c.diffuse, sky, c.incidence, extraterrestrial);
    return sky;
}
std::array<float, 4> clmunrad(const Case& c) {
    std::array<float, 4> out;
    lib::CLMUNRAD(c.altitude, c.azimuth, c.facing, c.tilt, c.beam, c.diffuse, extraterrestrial,
                  0.2f, out[0], out[1], out[2], out[3]);
    return out;
}

#define QUORVEL_BENCH(family, name, expression)                   \
    void name(benchmark::State& state) {                          \
        measure(state, [](const Case& c) { return expression; }); \
    }                                                             \
    BENCHMARK(name)->Name(family "/" #name)

QUORVEL_BENCH("Blinds", WNDRSL, wndrsl(c));
QUORVEL_BENCH("Blinds", WNDFSL, wndfsl(c));
QUORVEL_BENCH("Blinds", WNDFSL_by_beams, wndfsl_by_beams(c));
QUORVEL_BENCH("Blinds", WNDFSL_literal,
              literal::slat_diffuse(c.s, 1.0f, c.angle, 0.0f, c.alpha, c.alpha));
QUORVEL_BENCH("Blinds", WNCOMP, wncomp(c));
QUORVEL_BENCH("Sky", CLPERSKY, clpersky(c));
QUORVEL_BENCH("Sky", CLPERSKY_literal,
              literal::CLPERSKY(c.altitude, c.tilt, c.beam, c.diffuse, c.incidence,
                                extraterrestrial));
QUORVEL_BENCH("Sky", CLMUNRAD, clmunrad(c));
QUORVEL_BENCH("Sky", CLDIFSLO,
              lib::CLDIFSLO(172, c.altitude, c.azimuth, c.facing, c.tilt, c.beam, c.diffuse, 0));
QUORVEL_BENCH("Sky", CLTAO, lib::CLTAO(c.altitude * 16.0f, 25.0f, 12.0f, 15.0f, 5.0f));

}  // namespace
