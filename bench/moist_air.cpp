// Moist air: the searches and the enthalpy beside their literal forms.
#include <benchmark/benchmark.h>

#include <array>

#include "conformance/random_arguments.h"
#include "literal/moist_air.h"
#include "quorvel/psychro.h"

namespace {

constexpr std::size_t states = 1024;
constexpr float p = 101325.0f;

struct State {
    float t, mu, twb, g, h;
};

// Air from frost to summer at any humidity, by all the quantities that describe it.
const std::array<State, states>& air() {
    static const auto table = [] {
        std::array<State, states> made;
        quorvel::conformance::Random random(1);
        for (State& state : made) {
            state.t = -10.0f + 55.0f * static_cast<float>(random.unit());
            state.mu = 5.0f + 95.0f * static_cast<float>(random.unit());
            state.twb = lib::PSTWB(state.t, state.mu, p, 1);
            state.g = lib::PSGS(state.t, state.twb, p, 1);
            state.h = lib::PSHWET(state.t, state.twb, p, 1);
        }
        return made;
    }();
    return table;
}

template <class Call>
void measure(benchmark::State& state, Call call) {
    const auto& table = air();
    std::size_t i = 0;
    for (auto _ : state) benchmark::DoNotOptimize(call(table[i++ % states]));
}

#define QUORVEL_BENCH(name, expression)                              \
    void name(benchmark::State& state) {                             \
        measure(state, [](const State& air) { return expression; }); \
    }                                                                \
    BENCHMARK(name)->Name("MoistAir/" #name)

QUORVEL_BENCH(PSTWB, lib::PSTWB(air.t, air.mu, p, 1));
QUORVEL_BENCH(PSTWB_literal, literal::PSTWB(air.t, air.mu, p, 1));
QUORVEL_BENCH(PSWBLB, lib::PSWBLB(air.t, air.g, p, 1));
QUORVEL_BENCH(PSWBLB_literal, literal::PSWBLB(air.t, air.g, p, 1));
QUORVEL_BENCH(PSHWET, lib::PSHWET(air.t, air.twb, p, 1));
QUORVEL_BENCH(PSHWET_literal, literal::PSHWET(air.t, air.twb, p, 1));
QUORVEL_BENCH(PSTSAT, lib::PSTSAT(air.h, p));
QUORVEL_BENCH(PSSPVL, lib::PSSPVL(air.t, air.g, p));

}  // namespace
