// Verifies the rounding of both forms of every single-precision function, over all arguments where
// it has one, and measures the error of the double-precision ones. Prints a Markdown table; fails
// if any result is misrounded or a double-precision error reaches one unit in the last place.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "check.h"

namespace {

using namespace verify;

struct Options {
    std::uint64_t sample = std::uint64_t{1} << 32;
    std::string only;
};

constexpr std::uint64_t kFloats = std::uint64_t{1} << 32, kPairs = std::uint64_t{1} << 30,
                        kDoubles = std::uint64_t{1} << 21;

// One line of the table; whether all is well
template <class F>
bool verify_one(const F& function, const char* precision, std::uint64_t count,
                const Options& options) {
    const std::string name(function.reference.name);
    if (!options.only.empty() && options.only != name) return true;
    const auto start = std::chrono::steady_clock::now();
    const Outcome outcome = check(function, std::min(count, options.sample));
    const double seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    const bool by_rounding = outcome.error == 0.0;
    std::printf("| %-10s | %-6s | %13llu |", name.c_str(), precision,
                static_cast<unsigned long long>(outcome.inputs));
    if (by_rounding)
        std::printf(" %10llu |       |", static_cast<unsigned long long>(outcome.misrounded));
    else
        std::printf("            | %.3f |", outcome.error);
    std::printf(" %7.1f |\n", seconds);
    std::fflush(stdout);
    return outcome.misrounded == 0 && outcome.error < 1.0;
}

int usage() {
    std::fputs(
        "usage: verify_math [--sample N] [--only FUNCTION]\n"
        "  --sample N    N stratified arguments of each function instead of all\n",
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
        else
            return false;
    }
    return argc % 2 == 1 && options.sample > 0;
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    if (!parse(argc, argv, options)) return usage();
    std::puts(
        "| function   | type   |        inputs | misrounded | ulp   | seconds |\n"
        "|------------|--------|--------------:|-----------:|------:|--------:|");
    bool good = true;
    for (const auto& f : float_functions()) good &= verify_one(f, "float", kFloats, options);
    for (const auto& f : float_pair_functions()) good &= verify_one(f, "float", kPairs, options);
    for (const auto& f : double_functions()) good &= verify_one(f, "double", kDoubles, options);
    for (const auto& f : double_pair_functions())
        good &= verify_one(f, "double", kDoubles, options);
    return good ? 0 : 1;
}
