// Constructions: U-value, admittance, condensation.
#include <benchmark/benchmark.h>

#include <array>

#include "conformance/random_arguments.h"
#include "quorvel/fabric.h"

namespace {

// Constructions of 20 layers that change from call to call; a calculation may take fewer.
struct Construction {
    std::array<float, 20> thickness, conductivity, density, specific_heat, resistivity;
    float Rsi, Rso;
    int harmonic, kind;
};

std::array<Construction, 256> draw() {
    quorvel::conformance::Random random(1);
    const auto between = [&](float low, float high) {
        return low + (high - low) * static_cast<float>(random.unit());
    };
    std::array<Construction, 256> drawn;
    for (Construction& c : drawn) {
        c.Rsi = between(0.1f, 0.13f);
        c.Rso = between(0.04f, 0.06f);
        c.harmonic = c.kind = 1;
        for (std::size_t i = 0; i < 20; ++i) {
            c.thickness[i] = between(0.01f, 0.1f);
            c.conductivity[i] = between(0.03f, 1.5f);
            c.density[i] = between(20.0f, 2400.0f);
            c.specific_heat[i] = between(800.0f, 1600.0f);
            c.resistivity[i] = between(10.0f, 200.0f);
        }
    }
    return drawn;
}

const std::array<Construction, 256> constructions = draw();

float tpuval(const Construction& c, int n) {
    float U;
    lib::TPUVAL(c.thickness, c.conductivity, c.Rsi, c.Rso, n, U);
    return U;
}
std::array<float, 7> tpadmt(const Construction& c, int n) {
    std::array<float, 7> out;
    lib::TPADMT(c.thickness, c.conductivity, c.density, c.specific_heat, c.Rsi, c.Rso, n,
                c.harmonic, c.kind, out[0], out[1], out[2], out[3], out[4], out[5], out[6]);
    return out;
}
std::array<float, 63> tpgrad(const Construction& c, int n) {
    std::array<float, 63> out;
    lib::TPGRAD(c.thickness, c.conductivity, c.resistivity, c.Rsi, c.Rso, n, 20.0f, 0.0f, 60.0f,
                90.0f, &out[0], &out[21], &out[42]);
    return out;
}

template <class Calculation>
void measure(benchmark::State& state, Calculation calculation) {
    const auto layers = static_cast<int>(state.range(0));
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(calculation(constructions[i++ % constructions.size()], layers));
}

#define QUORVEL_BENCH(calculation, name) \
    BENCHMARK_CAPTURE(measure, calculation, calculation)->Name("Fabric/" name)->ArgName("layers")

QUORVEL_BENCH(tpuval, "TPUVAL")->Arg(5)->Arg(20);
QUORVEL_BENCH(tpadmt, "TPADMT")->Arg(3)->Arg(20);
QUORVEL_BENCH(tpgrad, "TPGRAD")->Arg(5)->Arg(20);

}  // namespace
