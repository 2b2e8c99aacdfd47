// The elementary functions of packs, in single and double precision, over arrays, compiled for each
// level of x86-64.
#pragma once

#include <cstddef>
#include <span>

namespace pack_loops {

// A multiple of every level's width
constexpr std::size_t kCountUnit = 16;

// Of `count` elements, a multiple of kCountUnit
using Unary = void (*)(const float* x, float* result, std::size_t count);
using Binary = void (*)(const float* x, const float* y, float* result, std::size_t count);

struct Functions {
    Unary sin, cos, sincos_sin, sincos_cos, tan, asin, acos, atan, exp, exp10, log, log10, sqrt;
    Binary atan2, pow;
    Unary sincos_sum, saturation_pressure;  // for the benchmark
};

using DoubleUnary = void (*)(const double* x, double* result, std::size_t count);

struct DoubleFunction {
    const char* name;
    DoubleUnary evaluate;
};

// Every level has these, in this order.
constexpr std::size_t kDoubles = 11;

struct Level {
    const char* name;
    const Functions* functions;
    const DoubleFunction* doubles;
};

// Those that this machine can run, the lowest first
std::span<const Level> levels();

}  // namespace pack_loops
