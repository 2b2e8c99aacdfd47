// The hashes of quorvel_corpus, of the same calls made through the array library.
//
//     quorvel_array_corpus         prints "NAME HASH" for every routine that arrays have
//     quorvel_array_corpus NAME    the same for one routine
//
// QUORVEL_LEVEL names the level of instructions.
#include <cstdio>
#include <exception>
#include <string_view>

#include "conformance/array_caller.h"
#include "conformance/climate_file.h"
#include "quorvel/library.h"
#include "quorvel_arrays.h"

using namespace quorvel::conformance;

int main(int argc, char** argv) try {
    const std::string_view wanted = argc > 1 ? argv[1] : "";
    quorvel::host::load_library();
    const ExampleFolder folder;
    for (const Routine& routine : routines())
        if (quorvel_find_routine(routine.name)->elementwise &&
            (wanted.empty() || wanted == routine.name))
            std::printf("%s %s\n", routine.name, corpus_hash(routine, by_arrays).c_str());
    std::fprintf(stderr, "level: %s\n", quorvel_level());
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
}
