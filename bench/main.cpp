// Benchmarks of the library as a host meets it: loaded at run time, called by reference.
//
// Names read Group/What; compare figures of one run with one another, since machines differ.
#include <benchmark/benchmark.h>

#include "conformance/climate_file.h"
#include "quorvel/library.h"

using namespace quorvel::conformance;

namespace {

// Nanoseconds per call of one exported routine, over arguments drawn from their valid ranges.
void call_by_reference(benchmark::State& state, const Routine& routine) {
    open_example();
    const auto function = reinterpret_cast<Address>(quorvel::host::routine_address(routine.name));
    Random random(1);
    std::vector<ArgumentSet> sets;
    for (int i = 0; i < 64; ++i) sets.emplace_back(routine).draw_valid(random);
    std::uint64_t result = 0;
    std::size_t i = 0;
    for (auto _ : state) {
        routine.call(function, sets[i++ % sets.size()].addresses(), &result);
        benchmark::DoNotOptimize(result);
        benchmark::ClobberMemory();
    }
}

}  // namespace

int main(int argc, char** argv) {
    quorvel::host::load_library();
    const ExampleFolder folder;
    for (const Routine& routine : routines())
        benchmark::RegisterBenchmark((std::string("Routine/") + routine.name).c_str(),
                                     call_by_reference, routine);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
