// The climate data file, in the page cache, beside its literal form with a single record buffer.
#include <benchmark/benchmark.h>

#include <array>

#include "conformance/climate_file.h"
#include "literal/climate_file.h"
#include "quorvel/climate.h"

namespace {

using Records = std::array<float, 132>;

// Set 1 at a percentage that changes from month to month and from call to call.
Records request(int call) {
    Records records;
    for (std::size_t month = 0; month < 12; ++month) {
        records[11 * month + 9] = 1.0f;
        records[11 * month + 10] =
            static_cast<float>((7 * call + 31 * static_cast<int>(month)) % 100);
    }
    return records;
}

const std::string file(quorvel::conformance::example_file);

void clbnf0(benchmark::State& state) {
    const auto month = static_cast<int>(state.range(0));
    int call = 0;
    for (auto _ : state) {
        Records records = request(++call);
        lib::CLBNF0(file, 1 + call % 100, month, records);
        benchmark::DoNotOptimize(records);
    }
}
BENCHMARK(clbnf0)->Name("ClimateFile/CLBNF0")->ArgName("month")->Arg(0)->Arg(5);

void clbnf0_literal(benchmark::State& state) {
    literal::ClimateFile<literal::StdioFile> climate;
    const auto month = static_cast<int>(state.range(0));
    int call = 0;
    for (auto _ : state) {
        Records records = request(++call);
        climate.CLBNF0(file, 1 + call % 100, month, records.data());
        benchmark::DoNotOptimize(records);
    }
}
BENCHMARK(clbnf0_literal)->Name("ClimateFile/CLBNF0_literal")->ArgName("month")->Arg(0)->Arg(5);

// What no reader can go below: the ten records of a set, opened for the call.
void ten_records(benchmark::State& state) {
    literal::ClimateRecord record;
    std::int64_t number = 1;
    for (auto _ : state) {
        literal::StdioFile stations;
        stations.open(file.c_str());
        for (int i = 0; i < 10; ++i) stations.read(number = 1 + number % 1900, record);
        benchmark::DoNotOptimize(record);
    }
}
BENCHMARK(ten_records)->Name("ClimateFile/ten_records");

void clbnf3(benchmark::State& state) {
    quorvel::conformance::open_example();
    const auto step = static_cast<int>(state.range(0));
    std::array<float, 12> values;
    int row = 0;
    for (auto _ : state) {
        row = (row + step) % 9;
        lib::CLBNF3(1 + 10 * row, values);
        benchmark::DoNotOptimize(values);
    }
}
BENCHMARK(clbnf3)->Name("ClimateFile/CLBNF3")->ArgName("step")->Arg(0)->Arg(1);

}  // namespace
