// All exported routines from many threads at once, on the same and on different arguments, give the
// bits that one thread gets. Built for the thread sanitizer, with a library that is built for it.
//
//     quorvel_threads [SETS]    argument sets of each routine
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include "conformance/climate_file.h"
#include "contract/outcome.h"
#include "quorvel/library.h"

using namespace quorvel::test;

namespace {

constexpr int threads = 16;

struct Case {
    const Routine* routine;
    Address function;
    ArgumentSet arguments;
    Outcome expected;
};

std::vector<Case> cases_of(const Routine& routine, int sets) {
    const auto function = reinterpret_cast<Address>(quorvel::host::routine_address(routine.name));
    std::vector<Case> cases;
    Random random(1);
    for (int i = 0; i < sets; ++i) {
        ArgumentSet arguments(routine);
        arguments.draw_any(random);
        Outcome expected = plain_call(routine, function, arguments);
        cases.push_back({&routine, function, std::move(arguments), std::move(expected)});
    }
    return cases;
}

// Goes round all cases, from a place of its own or from that of its neighbour.
void run(const std::vector<Case>& cases, int thread, std::atomic<const Routine*>& differing) {
    const std::size_t start = cases.size() * static_cast<std::size_t>(thread / 2) / (threads / 2);
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const Case& c = cases[(start + i) % cases.size()];
        const Outcome outcome = plain_call(*c.routine, c.function, c.arguments);
        if (outcome != c.expected && !carries_state(*c.routine)) differing = c.routine;
    }
}

}  // namespace

int main(int argc, char** argv) try {
    const int sets = argc > 1 ? std::atoi(argv[1]) : 20;
    quorvel::host::load_library();
    const ExampleFolder folder;
    open_example();
    std::vector<Case> cases;
    for (const Routine& routine : routines())
        for (Case& c : cases_of(routine, sets)) cases.push_back(std::move(c));

    std::atomic<const Routine*> differing = nullptr;
    {
        std::vector<std::jthread> running;
        for (int thread = 0; thread < threads; ++thread)
            running.emplace_back(run, std::cref(cases), thread, std::ref(differing));
    }
    if (!differing) return 0;
    std::fprintf(stderr, "%s gives other results when many threads run\n", differing.load()->name);
    return 1;
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
}
