// Verifies the rounding of the single-precision functions, over all arguments where there is one,
// and measures the error of the double-precision ones; or compares the single-precision functions
// of packs with those of single numbers. Prints a Markdown table; fails if any result is misrounded
// or a double-precision error reaches one unit in the last place.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "check.h"

namespace {

using namespace verify;

struct Options {
    std::uint64_t sample = std::uint64_t{1} << 32;
    std::string only;
    std::string packs;
};

constexpr std::uint64_t kFloats = std::uint64_t{1} << 32, kPairs = std::uint64_t{1} << 30,
                        kDoubles = std::uint64_t{1} << 21;

// One line of the table: check(count) of a function, unless it was not asked for; whether all is
// well
template <class F, class Check>
bool verify_one(const F& function, const char* kind, std::uint64_t all, const Options& options,
                Check check_function) {
    const std::string name(function.reference.name);
    if (!options.only.empty() && options.only != name) return true;
    const auto start = std::chrono::steady_clock::now();
    const Outcome outcome = check_function(std::min(all, options.sample));
    const double seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    const bool by_rounding = outcome.error == 0.0;
    std::printf("| %-10s | %-6s | %13llu |", name.c_str(), kind,
                static_cast<unsigned long long>(outcome.inputs));
    if (by_rounding)
        std::printf(" %10llu |       |", static_cast<unsigned long long>(outcome.misrounded));
    else
        std::printf("            | %.3f |", outcome.error);
    std::printf(" %7.1f |\n", seconds);
    std::fflush(stdout);
    return outcome.misrounded == 0 && outcome.error < 1.0;
}

template <class Functions>
bool verify_all(const Functions& functions, const char* precision, std::uint64_t all,
                const Options& options) {
    bool good = true;
    for (const auto& f : functions)
        good &= verify_one(f, precision, all, options,
                           [&](std::uint64_t count) { return check(f, count); });
    return good;
}

template <class Functions>
bool verify_packs(const Functions& functions, Levels levels, std::uint64_t all,
                  const Options& options) {
    bool good = true;
    for (const auto& f : functions)
        good &= verify_one(f, "packs", all, options,
                           [&](std::uint64_t count) { return check_packs(f, levels, count); });
    return good;
}

int usage() {
    std::fputs(
        "usage: verify_math [--sample N] [--only FUNCTION] [--packs LEVEL]\n"
        "  --sample N     N stratified arguments of each function instead of all\n"
        "  --packs LEVEL  packs against single numbers: v2, v3, v4, or all that this machine has\n",
        stderr);
    return 2;
}

bool parse(int argc, char** argv, Options& options) {
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string option = argv[i];
        if (option == "--sample")
            options.sample = std::strtoull(argv[i + 1], nullptr, 10);
        else if (option == "--only")
            options.only = argv[i + 1];
        else if (option == "--packs")
            options.packs = argv[i + 1];
        else
            return false;
    }
    return argc % 2 == 1 && options.sample > 0;
}

// of all levels that this machine has, or of one
bool verify_packs(const Options& options) {
    std::vector<pack_loops::Level> levels;
    for (const pack_loops::Level& level : pack_loops::levels())
        if (options.packs == "all" || options.packs == level.name) levels.push_back(level);
    if (levels.empty()) std::fputs("this machine has no such level\n", stderr);
    return !levels.empty() && verify_packs(float_functions(), levels, kFloats, options) &
                                  verify_packs(float_pair_functions(), levels, kPairs, options);
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    if (!parse(argc, argv, options)) return usage();
    std::puts(
        "| function   | type   |        inputs | misrounded | ulp   | seconds |\n"
        "|------------|--------|--------------:|-----------:|------:|--------:|");
    if (!options.packs.empty()) return verify_packs(options) ? 0 : 1;
    const bool rounded = verify_all(float_functions(), "float", kFloats, options) &
                         verify_all(float_pair_functions(), "float", kPairs, options);
    const bool accurate = verify_all(double_functions(), "double", kDoubles, options) &
                          verify_all(double_pair_functions(), "double", kDoubles, options);
    return rounded && accurate ? 0 : 1;
}
