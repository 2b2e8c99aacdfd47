// The library's own elementary functions against the platform's, per element: one call after the
// other (scalar), each call waiting for the last one's result (latency), and in a plain loop over
// an array, compiled for three levels of x86-64.
//
// "platform" is the platform's single-precision function, "through_double" its double-precision
// one rounded, which is nearly always correctly rounded too. As the platform's function is called,
// so is ours, although the calculations have it inlined.
#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <random>
#include <string>

#include "math/math.h"

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

using Loop = void (*)(const float* __restrict, float* __restrict);

void loop(benchmark::State& state, const Array& x, Loop evaluate) {
    Array result;
    for (auto _ : state) {
        evaluate(x.data(), result.data());
        benchmark::ClobberMemory();
    }
    set_time_per_element(state);
}

struct Loops {
    Loop v2, v3, v4;
};

// AVX needs a stack alignment that the 64-bit Windows ABI does not give, and GCC does not mend.
#ifdef _WIN32
constexpr bool kHasV3 = false, kHasV4 = false;
#define QUORVEL_TARGET(level) __attribute__((target("arch=x86-64-v2")))
#else
const bool kHasV3 = __builtin_cpu_supports("avx2"), kHasV4 = __builtin_cpu_supports("avx512dq");
#define QUORVEL_TARGET(level) __attribute__((target("arch=x86-64-" level)))
#endif

// A loop over `in` and `out`; three levels of it
#define QUORVEL_LOOP(name, level, ...)                                                   \
    QUORVEL_TARGET(level) void name(const float* __restrict in, float* __restrict out) { \
        namespace own = quorvel::math::loop;                                             \
        __VA_ARGS__                                                                      \
    }
#define QUORVEL_LOOPS(name, ...)               \
    QUORVEL_LOOP(name##_v2, "v2", __VA_ARGS__) \
    QUORVEL_LOOP(name##_v3, "v3", __VA_ARGS__) \
    QUORVEL_LOOP(name##_v4, "v4", __VA_ARGS__) \
    constexpr Loops name##_loops = {name##_v2, name##_v3, name##_v4};
#define QUORVEL_FOR_EACH(result, expression)   \
    for (std::size_t i = 0; i < kCount; ++i) { \
        const float x = in[i];                 \
        result[i] = expression;                \
    }

template <class F>
void add_scalar(const std::string& name, const Array& x, F f) {
    benchmark::RegisterBenchmark(name.c_str(), [&x, f](benchmark::State& s) { scalar(s, x, f); });
}

template <class F>
void add_latency(const std::string& name, const Array& x, F f) {
    benchmark::RegisterBenchmark(name.c_str(), [&x, f](benchmark::State& s) { latency(s, x, f); });
}

void add_loops(const std::string& name, const Array& x, const Loops& loops) {
    const auto add = [&](const char* level, Loop evaluate) {
        benchmark::RegisterBenchmark((name + level).c_str(),
                                     [&x, evaluate](benchmark::State& s) { loop(s, x, evaluate); });
    };
    add("/loop_v2", loops.v2);
    if (kHasV3) add("/loop_v3", loops.v3);
    if (kHasV4) add("/loop_v4", loops.v4);
}

// The calls are expressions in x; the platform's is evaluated with x and Real as float and double.
#define QUORVEL_MATH_CASES(f, low, high, platform_call, own_call)        \
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
        add_loops(name, values, f##_loops);                              \
        return true;                                                     \
    }();
#define QUORVEL_MATH_BENCH(f, low, high, platform_call) \
    QUORVEL_LOOPS(f, QUORVEL_FOR_EACH(out, own::f(x)))  \
    QUORVEL_MATH_CASES(f, low, high, platform_call, own::f(x))
// The second argument is an expression in x and Real.
#define QUORVEL_PAIR_BENCH(f, low, high, second)                                              \
    QUORVEL_LOOPS(f, using Real = float; Array seconds;                                       \
                  QUORVEL_FOR_EACH(seconds, second) own::f(in, seconds.data(), out, kCount);) \
    QUORVEL_MATH_CASES(f, low, high, std::f(x, second), own::f(x, second))

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

// Saturation pressure over water in Pa from 0 to 100 °C, as one loop and as three over blocks that
// stay in the first cache.
QUORVEL_INLINE float saturation_exponent(float T, float log_T) {
    return 0.0024804f * T + 33.59051f - 3142.31f / T - 8.2f * log_T;
}
#define QUORVEL_SATURATION_PRESSURE(t) \
    own::exp10(saturation_exponent(t + 273.15f, own::log10(t + 273.15f)))

float platform_saturation_pressure(float t) {
    return platform_exp10(saturation_exponent(t + 273.15f, std::log10(t + 273.15f)));
}
float saturation_pressure(float t) { return QUORVEL_SATURATION_PRESSURE(t); }

QUORVEL_INLINE void saturation_pressure_in_blocks(const float* __restrict t, float* __restrict ps) {
    namespace own = quorvel::math::loop;
    constexpr std::size_t kBlock = 512;
    float T[kBlock], exponent[kBlock];
    for (std::size_t first = 0; first < kCount; first += kBlock) {
        for (std::size_t i = 0; i < kBlock; ++i) T[i] = t[first + i] + 273.15f;
        for (std::size_t i = 0; i < kBlock; ++i) exponent[i] = own::log10(T[i]);
        for (std::size_t i = 0; i < kBlock; ++i)
            exponent[i] = saturation_exponent(T[i], exponent[i]);
        for (std::size_t i = 0; i < kBlock; ++i) ps[first + i] = own::exp10(exponent[i]);
    }
}

QUORVEL_LOOPS(saturation, QUORVEL_FOR_EACH(out, QUORVEL_SATURATION_PRESSURE(x)))
QUORVEL_TARGET("v2") void blocks_v2(const float* __restrict t, float* __restrict ps) {
    saturation_pressure_in_blocks(t, ps);
}
QUORVEL_TARGET("v3") void blocks_v3(const float* __restrict t, float* __restrict ps) {
    saturation_pressure_in_blocks(t, ps);
}
QUORVEL_TARGET("v4") void blocks_v4(const float* __restrict t, float* __restrict ps) {
    saturation_pressure_in_blocks(t, ps);
}

const bool saturation_added = [] {
    static const Array values = arguments(0.0f, 100.0f);
    add_scalar("Math/saturation_pressure/platform", values, platform_saturation_pressure);
    add_scalar("Math/saturation_pressure/scalar", values, saturation_pressure);
    add_loops("Math/saturation_pressure", values, saturation_loops);
    add_loops("Math/saturation_pressure_in_blocks", values, {blocks_v2, blocks_v3, blocks_v4});
    return true;
}();

}  // namespace
