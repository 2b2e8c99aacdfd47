// The library's own elementary functions against the platform's, per element: one call after the
// other (scalar), each call waiting for the last one's result (latency), and over an array as packs
// of each level of x86-64 that the machine has.
//
// "platform" is the platform's single-precision function, "through_double" its double-precision
// one rounded, which is nearly always correctly rounded too. As the platform's function is called,
// so is ours, although the calculations have it inlined.
#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <random>
#include <string>

#include "base/contract.h"
#include "math/math.h"
#include "pack_loops.h"
#include "psychro/saturation.h"

namespace {

namespace own = quorvel::math;

constexpr std::size_t kCount = 4096;
using Array = std::array<float, kCount>;

Array arguments(float low, float high) {
    std::mt19937 random(1);
    std::uniform_real_distribution<float> uniform(low, high);
    Array x;
    for (float& value : x) value = uniform(random);
    return x;
}

template <class F>
Array second_arguments(const Array& x, F second) {
    Array y;
    for (std::size_t i = 0; i < kCount; ++i) y[i] = second(x[i]);
    return y;
}

void set_time_per_element(benchmark::State& state) {
    using benchmark::Counter;
    state.counters["element"] =
        Counter(kCount, Counter::kIsIterationInvariantRate | Counter::kInvert);
}

template <class F>
void scalar(benchmark::State& state, const Array& x, F f) {
    for (auto _ : state)
        for (const float value : x) benchmark::DoNotOptimize(f(value));
    set_time_per_element(state);
}

template <class F>
void latency(benchmark::State& state, const Array& x, F f) {
    for (auto _ : state) {
        float last = 0.0f;
        for (const float value : x) last = f(value + 0.0f * last);
        benchmark::DoNotOptimize(last);
    }
    set_time_per_element(state);
}

void packs(benchmark::State& state, const Array& x, pack_loops::Unary evaluate) {
    Array result;
    for (auto _ : state) {
        evaluate(x.data(), result.data(), kCount);
        benchmark::ClobberMemory();
    }
    set_time_per_element(state);
}

void packs(benchmark::State& state, const Array& x, const Array& y, pack_loops::Binary evaluate) {
    Array result;
    for (auto _ : state) {
        evaluate(x.data(), y.data(), result.data(), kCount);
        benchmark::ClobberMemory();
    }
    set_time_per_element(state);
}

template <class F>
void add_scalar(const std::string& name, const Array& x, F f) {
    benchmark::RegisterBenchmark(name.c_str(), [&x, f](benchmark::State& s) { scalar(s, x, f); });
}

template <class F>
void add_latency(const std::string& name, const Array& x, F f) {
    benchmark::RegisterBenchmark(name.c_str(), [&x, f](benchmark::State& s) { latency(s, x, f); });
}

// `function` is a member of pack_loops::Functions; it takes the arrays.
template <class F, class... Arrays>
void add_packs(const std::string& name, F function, const Arrays&... arrays) {
    for (const pack_loops::Level& level : pack_loops::levels())
        benchmark::RegisterBenchmark((name + "/packs_" + level.name).c_str(),
                                     [&arrays..., evaluate = level.functions->*function](
                                         benchmark::State& s) { packs(s, arrays..., evaluate); });
}

// The calls are expressions in x; the platform's is evaluated with x and Real as float and double.
#define QUORVEL_MATH_CASES(f, low, high, platform_call, own_call, ...)   \
    [[gnu::noinline]] float f##_scalar(float x) {                        \
        using Real [[maybe_unused]] = float;                             \
        return own_call;                                                 \
    }                                                                    \
    const bool f##_added = [] {                                          \
        static const Array values = arguments(low, high);                \
        const std::string name = "Math/" #f;                             \
        const auto platform = [](float x) {                              \
            using Real [[maybe_unused]] = float;                         \
            return platform_call;                                        \
        };                                                               \
        add_scalar(name + "/platform", values, platform);                \
        add_scalar(name + "/through_double", values, [](float rounded) { \
            using Real [[maybe_unused]] = double;                        \
            const Real x = static_cast<Real>(rounded);                   \
            return static_cast<float>(platform_call);                    \
        });                                                              \
        add_scalar(name + "/scalar", values, f##_scalar);                \
        add_latency(name + "/platform_latency", values, platform);       \
        add_latency(name + "/scalar_latency", values, f##_scalar);       \
        __VA_ARGS__                                                      \
        return true;                                                     \
    }();
#define QUORVEL_MATH_BENCH(f, low, high, platform_call)        \
    QUORVEL_MATH_CASES(f, low, high, platform_call, own::f(x), \
                       add_packs(name, &pack_loops::Functions::f, values);)
// The second argument is an expression in x and Real.
#define QUORVEL_PAIR_BENCH(f, low, high, second)                                             \
    QUORVEL_MATH_CASES(f, low, high, std::f(x, second), own::f(x, second),                   \
                       static const Array seconds = second_arguments(values,                 \
                                                                     [](float x) {           \
                                                                         using Real = float; \
                                                                         return second;      \
                                                                     });                     \
                       add_packs(name, &pack_loops::Functions::f, values, seconds);)

#ifdef __GLIBC__
float platform_exp10(float x) { return ::exp10f(x); }
double platform_exp10(double x) { return ::exp10(x); }
#else
template <class Real>
Real platform_exp10(Real x) {
    return std::pow(Real(10), x);
}
#endif

QUORVEL_MATH_BENCH(sin, -3.2f, 3.2f, std::sin(x))
QUORVEL_MATH_BENCH(cos, -3.2f, 3.2f, std::cos(x))
QUORVEL_MATH_BENCH(tan, -1.5f, 1.5f, std::tan(x))
QUORVEL_MATH_BENCH(asin, -1.0f, 1.0f, std::asin(x))
QUORVEL_MATH_BENCH(acos, -1.0f, 1.0f, std::acos(x))
QUORVEL_MATH_BENCH(atan, -5.0f, 5.0f, std::atan(x))
QUORVEL_MATH_BENCH(exp, -30.0f, 30.0f, std::exp(x))
QUORVEL_MATH_BENCH(exp10, -10.0f, 10.0f, platform_exp10(x))
QUORVEL_MATH_BENCH(log, 0.01f, 1000.0f, std::log(x))
QUORVEL_MATH_BENCH(log10, 0.01f, 1000.0f, std::log10(x))
QUORVEL_PAIR_BENCH(atan2, -5.0f, 5.0f, Real(1.25) - x)
QUORVEL_PAIR_BENCH(pow, 0.01f, 100.0f, Real(1.7) - Real(0.01) * x)

float platform_sincos_sum(float x) { return std::sin(x) + std::cos(x); }
double platform_sincos_sum(double x) { return std::sin(x) + std::cos(x); }
float sum(own::SinCos angle) { return angle.sin + angle.cos; }
QUORVEL_MATH_CASES(sincos, -3.2f, 3.2f, platform_sincos_sum(x), sum(own::sincos(x)),
                   add_packs(name, &pack_loops::Functions::sincos_sum, values);)

// over water
template <class Real>
Real platform_saturation_pressure(Real t) {
    const Real T = t + Real(273.15);
    return platform_exp10(Real(0.0024804) * T + Real(33.59051) - Real(3142.31) / T -
                          Real(8.2) * std::log10(T));
}
QUORVEL_MATH_CASES(saturation_pressure, 0.0f, 100.0f, platform_saturation_pressure(x),
                   quorvel::psychro::saturation_pressure(x),
                   add_packs(name, &pack_loops::Functions::saturation_pressure, values);)

}  // namespace
