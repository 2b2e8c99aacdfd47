// Holds the array library to the routines by reference, or to the formula where there is none, at
// every level that this processor has:
//     quorvel_array_bits [ELEMENTS [ROUTINE...]]
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "conformance/array_batch.h"
#include "conformance/arrays_only.h"
#include "quorvel/library.h"

using namespace quorvel;
using namespace quorvel::conformance;

namespace {

constexpr Oddness kinds[] = {{0.0, 0.0}, {0.05, 0.0}, {0.5, 0.0}, {0.5, 0.5}};
constexpr const char* levels[] = {"scalar", "v2", "v3", "v4"};

// All kinds and levels; the number of batches that differ somewhere.
int differing_batches(const Routine& routine, std::size_t elements) {
    int differing = 0;
    Random random(2026);
    for (const Oddness& oddness : kinds) {
        for (std::size_t done = 0; done < elements;) {
            const auto size =
                static_cast<std::size_t>(1 + random.below(random.below(2) ? 40 : 3000));
            ArrayBatch batch(routine, size, oddness, random);
            done += size;
            for (const char* level : levels) {
                if (!quorvel_choose_level(level)) continue;
                const std::string difference = batch.difference();
                if (difference.empty()) continue;
                if (differing++ < 3)
                    std::printf("%s %s: %s\n", routine.name, level, difference.c_str());
            }
        }
    }
    return differing;
}

bool asked_for(const char* name, int count, char** names) {
    for (int i = 2; i < count; ++i)
        if (std::strcmp(names[i], name) == 0) return true;
    return count <= 2;
}

}  // namespace

int main(int argc, char** argv) {
    host::load_library();
    const std::size_t elements = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 5000;
    int differing = 0, compared = 0;
    for (const auto* const table : {&routines(), &arrays_only()})
        for (const Routine& routine : *table) {
            if (!quorvel_find_routine(routine.name)->elementwise) continue;
            if (!asked_for(routine.name, argc, argv)) continue;
            differing += differing_batches(routine, elements);
            ++compared;
        }
    std::printf("%d routines, %zu elements of each kind, levels:", compared, elements);
    for (const char* level : levels)
        if (quorvel_choose_level(level)) std::printf(" %s", level);
    std::printf("; batches that differ: %d\n", differing);
    return differing != 0;
}
