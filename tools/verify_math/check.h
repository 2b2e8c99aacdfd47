// Compares a function with its reference, or its packs with single calls, on all processors, with a
// progress display on a terminal. Misrounded results and the worst errors are named on stderr.
#pragma once

#include <cstdint>

#include "functions.h"

namespace verify {

struct Outcome {
    std::uint64_t inputs = 0;
    std::uint64_t misrounded = 0;
    double error = 0.0;  // largest, in units of the last place
};

// `count` arguments, or all of them for a function of one float if `count` is 2^32
Outcome check(const FloatFunction& function, std::uint64_t count);
Outcome check(const FloatPairFunction& function, std::uint64_t count);
Outcome check(const DoubleFunction& function, std::uint64_t count);
Outcome check(const DoublePairFunction& function, std::uint64_t count);

// The packs of some levels: `count` arguments in order, then mixed ones; pairs mixed or sorted by
// kind. Each level counts as an input.
using Levels = std::span<const pack_loops::Level>;
Outcome check_packs(const FloatFunction& function, Levels levels, std::uint64_t count);
Outcome check_packs(const FloatPairFunction& function, Levels levels, std::uint64_t count);

}  // namespace verify
