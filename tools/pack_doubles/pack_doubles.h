// The double-precision functions of packs over arrays, compiled for each level of x86-64.
#pragma once

#include <cstddef>
#include <span>

namespace pack_doubles {

// A multiple of every level's width
constexpr std::size_t kCountUnit = 16;

// Of `count` elements, a multiple of kCountUnit
using Unary = void (*)(const double* x, double* result, std::size_t count);

struct Function {
    const char* name;
    Unary evaluate;
};

struct Level {
    const char* name;
    const Function* functions;
};

// Every level has these, in this order.
constexpr std::size_t kFunctions = 11;

// Those that this machine can run, the lowest first
std::span<const Level> levels();

}  // namespace pack_doubles
