// Whole arrays on one thread and on several, beside what the memory needs for the same numbers.
#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

#include "conformance/random_arguments.h"
#include "quorvel/climate.hpp"
#include "quorvel/fabric.hpp"
#include "quorvel/parallel.hpp"
#include "quorvel/psychro.hpp"

namespace {

constexpr std::size_t elements = std::size_t{1} << 22;  // beyond the caches

std::vector<float> numbers(double low, double high) {
    quorvel::conformance::Random random(1);
    std::vector<float> values(elements);
    for (float& value : values) value = random.real(low, high);
    return values;
}

// calculate(first, count) on as many threads as the argument says; `streams` arrays are read or
// written once.
template <class F>
void share_out(benchmark::State& state, int streams, F calculate) {
    for (auto _ : state) {
        quorvel::parallel(elements, calculate, static_cast<unsigned>(state.range(0)));
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(elements));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(4 * streams * elements));
}

template <class T>
auto part(std::vector<T>& values, std::size_t first, std::size_t count) {
    return std::span(values).subspan(first, count);
}

void copy(benchmark::State& state) {
    auto from = numbers(0, 1), to = from;
    share_out(state, 2, [&](std::size_t first, std::size_t count) {
        std::memcpy(&to[first], &from[first], 4 * count);
    });
}

void surface_resistance(benchmark::State& state) {
    auto tilt = numbers(0, 3.1), result = tilt;
    share_out(state, 2, [&](std::size_t first, std::size_t count) {
        quorvel::fabric::surface_resistance(2, part(tilt, first, count), 2,
                                            part(result, first, count));
    });
}

void saturation_pressure(benchmark::State& state) {
    auto t = numbers(-20, 40), result = t;
    share_out(state, 2, [&](std::size_t first, std::size_t count) {
        quorvel::psychro::saturation_pressure(part(t, first, count), part(result, first, count));
    });
}

void solar_geometry(benchmark::State& state) {
    auto latitude = numbers(-1.1, 1.1), hour = numbers(0, 24);
    std::vector<std::int32_t> day(elements);
    for (std::size_t i = 0; i < elements; ++i) day[i] = static_cast<std::int32_t>(1 + i % 365);
    auto a = hour, b = hour, c = hour, d = hour, e = hour;
    share_out(state, 8, [&](std::size_t first, std::size_t count) {
        quorvel::climate::solar_geometry(
            part(latitude, first, count), part(day, first, count), part(hour, first, count),
            {part(a, first, count), part(b, first, count), part(c, first, count),
             part(d, first, count), part(e, first, count)});
    });
}

#define QUORVEL_BENCH(function) \
    BENCHMARK(function)->Name("Threads/" #function)->Arg(1)->Arg(2)->UseRealTime()

QUORVEL_BENCH(copy);
QUORVEL_BENCH(surface_resistance);
QUORVEL_BENCH(saturation_pressure);
QUORVEL_BENCH(solar_geometry);

}  // namespace
