// The double-precision functions against the platform's: one call after the other (scalar), and
// packs over an array, compiled for three levels of x86-64.
#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <random>
#include <string>

#include "math/math.h"
#include "pack_loops.h"

namespace {

namespace own = quorvel::math;

constexpr std::size_t kCount = 2048;
using Array = std::array<double, kCount>;

void set_time_per_element(benchmark::State& state) {
    using benchmark::Counter;
    state.counters["element"] =
        Counter(kCount, Counter::kIsIterationInvariantRate | Counter::kInvert);
}

template <class F>
void scalar(benchmark::State& state, const Array& x, F f) {
    for (auto _ : state)
        for (const double value : x) benchmark::DoNotOptimize(f(value));
    set_time_per_element(state);
}

void array(benchmark::State& state, const Array& x, pack_loops::DoubleUnary evaluate) {
    Array result;
    for (auto _ : state) {
        evaluate(x.data(), result.data(), kCount);
        benchmark::ClobberMemory();
    }
    set_time_per_element(state);
}

template <class Platform, class Own>
bool add(const std::string& function, double low, double high, Platform platform, Own ours) {
    auto* x = new Array;  // for as long as the benchmarks
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> uniform(low, high);
    for (double& value : *x) value = uniform(random);
    const std::string name = "DoubleMath/" + function;
    const auto add_scalar = [&](const char* kind, auto f) {
        benchmark::RegisterBenchmark((name + kind).c_str(),
                                     [x, f](benchmark::State& s) { scalar(s, *x, f); });
    };
    add_scalar("/platform", platform);
    add_scalar("/scalar", ours);
    for (const auto& level : pack_loops::levels())
        for (std::size_t i = 0; i < pack_loops::kDoubles; ++i)
            if (const auto& [its_name, evaluate] = level.doubles[i]; its_name == function)
                benchmark::RegisterBenchmark(
                    (name + "/pack_" + level.name).c_str(),
                    [x, run = evaluate](benchmark::State& s) { array(s, *x, run); });
    return true;
}

#define QUORVEL_DOUBLE_BENCH(f, low, high)                              \
    [[gnu::noinline]] double f##_scalar(double x) { return own::f(x); } \
    const bool f##_added = add(                                         \
        #f, low, high, [](double x) { return std::f(x); }, f##_scalar);
QUORVEL_DOUBLE_BENCH(sin, -3.2, 3.2)
QUORVEL_DOUBLE_BENCH(cos, -3.2, 3.2)
QUORVEL_DOUBLE_BENCH(tan, -1.5, 1.5)
QUORVEL_DOUBLE_BENCH(asin, -1.0, 1.0)
QUORVEL_DOUBLE_BENCH(acos, -1.0, 1.0)
QUORVEL_DOUBLE_BENCH(atan, -5.0, 5.0)
QUORVEL_DOUBLE_BENCH(exp, -30.0, 30.0)
QUORVEL_DOUBLE_BENCH(log, 0.01, 1000.0)

}  // namespace
