// The functions under test beside their references.
#pragma once

#include <cstddef>
#include <span>

#include "reference.h"

namespace verify {

// Both forms of a single-precision function, evaluated over arrays
struct FloatFunction {
    using Evaluate = void (*)(const float* x, float* result, std::size_t count);
    Function reference;
    Evaluate single, in_loop;
};

struct FloatPairFunction {
    using Evaluate = void (*)(const float* x, const float* y, float* result, std::size_t count);
    Function reference;
    Evaluate single, in_loop;
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
