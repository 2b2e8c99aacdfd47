// Holds every exported routine to its memory contract, with arguments of all kinds: each stands
// directly against an inaccessible page, inputs cannot be written, and what lies beyond the arrays
// has no influence on the results.
//
//     quorvel_contract [--calls N] [--seed N] [NAME...]    N sets of arguments, three calls each
//
// Loaded with a library that counts its steps, it also holds every call to a bound of them.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <cstring>

#include "conformance/climate_file.h"
#include "contract/guarded_memory.h"
#include "contract/outcome.h"
#include "contract/steps.h"
#include "quorvel/library.h"

using namespace quorvel::test;

namespace {

// The call that is running, for the report of a fault.
struct Running {
    const char* routine = "";
    std::uint64_t seed = 0;
    const char* doing = "";
} running;

const char* report_of_running() {
    static char text[200];
    std::snprintf(text, sizeof text, "%s (--seed %" PRIu64 " --calls 1): %s", running.routine,
                  running.seed, running.doing);
    return text;
}

// With every argument directly against an inaccessible page, an array exactly as long as its counts
// say, and inputs that cannot be written.
Outcome guarded_call(const Routine& routine, Address function, const Words& words,
                     std::vector<GuardedMemory>& memory, Against page) {
    std::vector<void*> addresses;
    for (std::size_t i = 0; i < memory.size(); ++i) {
        const std::size_t bytes = named_bytes(routine, i, words);
        addresses.push_back(memory[i].place(bytes, page));
        memory[i].allow_writing(true);
        if (bytes) std::memcpy(addresses[i], words[i].data(), bytes);
        memory[i].allow_writing(routine.arguments[i].direction != Direction::In);
    }
    return call(routine, function, words, addresses);
}

bool agrees(const Routine& routine, Address function, const ArgumentSet& arguments,
            std::vector<GuardedMemory>& memory) {
    const auto prepare = [&] {
        if (carries_state(routine)) open_example();
    };
    running.doing = "a fault in a plain call";
    prepare();
    const std::uint64_t before = steps_taken();
    const Outcome plain = plain_call(routine, function, arguments);
    if (steps_taken() - before > most_steps) {
        running.doing = "takes more steps than any call may";
        return false;
    }
    for (const Against page : {Against::PageAbove, Against::PageBelow}) {
        prepare();
        running.doing = "touches memory outside its arguments or writes an input";
        if (guarded_call(routine, function, arguments.words(), memory, page) == plain) continue;
        running.doing = "what lies beyond an array, or an earlier call, changes the results";
        return false;
    }
    return true;
}

// Counts are drawn from so far below their range, mostly below 0, to as far above it: also more
// than what any routine has room for.
constexpr int most_beyond = 50;

// Calls, every one with a seed of its own, by which it can be repeated alone.
bool holds(const Routine& routine, int calls, std::uint64_t seed) {
    const auto function = reinterpret_cast<Address>(quorvel::host::routine_address(routine.name));
    ArgumentSet arguments(routine, most_beyond);
    std::vector<GuardedMemory> memory;
    for (const auto& block : arguments.words()) memory.emplace_back(4 * block.size());
    running.routine = routine.name;
    for (int i = 0; i < calls; ++i) {
        running.seed = seed + static_cast<std::uint64_t>(i);
        Random random(running.seed);
        arguments.draw_any(random);
        if (random.below(2)) arguments.spoil(random);
        if (!agrees(routine, function, arguments, memory)) {
            std::fprintf(stderr, "%s\n", report_of_running());
            return false;
        }
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) try {
    CLI::App app{"Holds the exported routines to their memory contract."};
    int calls = 1000;
    std::uint64_t seed = 1;
    std::vector<std::string> names;
    app.add_option("--calls", calls, "Sets of arguments for each routine");
    app.add_option("--seed", seed, "Seed of the first call");
    app.add_option("NAME", names, "Routines (all without)");
    CLI11_PARSE(app, argc, argv);

    quorvel::host::load_library();
    const ExampleFolder folder;
    explain_faults(report_of_running);
    bool all_hold = true;
    for (const Routine& routine : routines())
        if (names.empty() || std::find(names.begin(), names.end(), routine.name) != names.end())
            all_hold = holds(routine, calls, seed) && all_hold;
    return all_hold ? 0 : 1;
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
}
