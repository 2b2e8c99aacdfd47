// One 64-bit hash per exported routine over a fixed corpus of arguments: equal hashes mean equal
// bits.
//
//     quorvel_corpus               prints "NAME HASH" for every routine
//     quorvel_corpus FAMILY        the same for the routines of one family
//     quorvel_corpus NAME          the same for one routine
//     quorvel_corpus --shuffled    the same with the routines in random order, in the user's locale
//     quorvel_corpus --cases NAME  prints every case of one: arguments before, results after
//     quorvel_corpus --words NAME [CASES]
//                              writes the same words as they are in memory, 32 bits each, of all
//                              cases or of the first ones
//     quorvel_corpus --climate-file PATH
//                              saves the climate data file that the cases read
//
// The library under test is the one that library.h loads (QUORVEL_LIBRARY names another one).
#include "conformance/corpus.h"

#include <algorithm>
#include <cinttypes>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <iterator>
#include <string_view>
#include <utility>
#include <vector>

#include "conformance/climate_file.h"
#include "quorvel/library.h"

using namespace quorvel::conformance;

namespace {

void print_cases(const Routine& routine) {
    bool given = false;
    const auto print = [&](const char* separator, std::uint32_t word) {
        std::fputs(separator, stdout);
        std::printf(" %08" PRIx32, word);
    };
    run_corpus(
        routine,
        [&](std::uint32_t word) {
            print(given ? "" : "\n", word);
            given = true;
        },
        [&](std::uint32_t word) {
            print(given ? " :" : "", word);
            given = false;
        });
    std::puts("");
}

void write_words(const Routine& routine, int count) {
    std::vector<std::uint32_t> words;
    const auto keep = [&](std::uint32_t word) { words.push_back(word); };
    run_corpus(routine, keep, keep, by_reference, count);
    std::fwrite(words.data(), sizeof words[0], words.size(), stdout);
}

void print_hashes(const std::vector<Routine>& routines) {
    for (const Routine& routine : routines)
        std::printf("%s %s\n", routine.name, corpus_hash(routine).c_str());
}

std::vector<Routine> shuffled(std::vector<Routine> routines) {
    Random random(static_cast<std::uint64_t>(std::time(nullptr)));
    for (int i = static_cast<int>(routines.size()); i > 1; --i)
        std::swap(routines[static_cast<std::size_t>(i - 1)],
                  routines[static_cast<std::size_t>(random.below(i))]);
    return routines;
}

}  // namespace

int main(int argc, char** argv) try {
    const std::string_view wanted = argc > 1 ? argv[1] : "", routine_name = argc > 2 ? argv[2] : "";
    if (wanted == "--climate-file" && argc > 2) return save_example(argv[2]), 0;
    quorvel::host::load_library();
    const ExampleFolder folder;
    if (wanted.empty()) return print_hashes(routines()), 0;
    if (wanted == "--shuffled") {
        std::setlocale(LC_ALL, "");
        return print_hashes(shuffled(routines())), 0;
    }
    const bool words = wanted == "--words", cases = words || wanted == "--cases";
    std::vector<Routine> selected;
    std::ranges::copy_if(routines(), std::back_inserter(selected), [&](const Routine& routine) {
        return (cases ? routine_name : wanted) == routine.name || wanted == routine.family;
    });
    if (!selected.empty()) {
        if (!cases) return print_hashes(selected), 0;
        const int count = argc > 3 ? std::atoi(argv[3]) : corpus_cases;
        return words ? write_words(selected[0], count) : print_cases(selected[0]), 0;
    }
    std::fprintf(stderr, "no exported routine and no family is called %s\n",
                 argv[cases && argc > 2 ? 2 : 1]);
    return 2;
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
}
