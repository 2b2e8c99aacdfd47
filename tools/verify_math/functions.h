// The functions under test beside their references.
#pragma once

#include <cstddef>
#include <span>

#include "pack_loops.h"
#include "reference.h"

namespace verify {

// A single-precision function over arrays: call by call, and the member of pack_loops::Functions
// that has its packs
struct FloatFunction {
    Function reference;
    pack_loops::Unary scalar;
    pack_loops::Unary pack_loops::Functions::*packs;
};

struct FloatPairFunction {
    Function reference;
    pack_loops::Binary scalar;
    pack_loops::Binary pack_loops::Functions::*packs;
};

struct DoubleFunction {
    Function reference;
    double (*evaluate)(double x);
    int low, high;  // samples spread over magnitudes from 2^low to 2^high,
    bool near_one;  // or over distances from 1
};

struct DoublePairFunction {
    Function reference;
    double (*evaluate)(double x, double y);
};

std::span<const FloatFunction> float_functions();
std::span<const FloatPairFunction> float_pair_functions();
std::span<const DoubleFunction> double_functions();
std::span<const DoublePairFunction> double_pair_functions();

}  // namespace verify
