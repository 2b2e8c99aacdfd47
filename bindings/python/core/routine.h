// What a function of the package knows of its routine: from the array library how it is called,
// from the catalogue what Python makes of its arguments.
#pragma once

#include <quorvel_arrays.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

namespace quorvel::python {

enum class Kind : char { Real, DoubleReal, Integer, Logical };

inline constexpr float any = std::numeric_limits<float>::infinity();

// A core dimension: so many numbers, or as many as the list has that the routine's argument of that
// name counts.
struct Axis {
    int extent;
    const char* counted_by;
};

struct Operand {
    const char* name;
    Kind kind;
    float low, high;  // valid values, ends included
    int axis_count;
    Axis axes[2];  // the last one varies fastest
};

constexpr std::size_t most_operands = 20;

struct Routine {
    const char* name;
    const char* signature;  // of the core dimensions; empty for a function of numbers
    int inputs, outputs;
    Operand operands[most_operands];

    int count() const noexcept { return inputs + outputs; }
    bool has_core() const noexcept { return *signature != '\0'; }
};

std::span<const Routine> routines() noexcept;

// A routine of the array library, and where its arguments come from.
struct Target {
    explicit Target(const Routine& from);

    // A count that a list tells: the core dimension of that number.
    struct Count {
        int argument, dimension;
    };

    const Routine& routine;
    const quorvel_routine* called;
    std::vector<int> argument;  // of each operand
    std::vector<Count> counts;
    std::vector<std::array<int, 2>> dimension;  // of each operand's axes, in NumPy's numbering
};

// In words, what a call returned.
std::array<char, 300> message(const Target& target, std::int32_t status) noexcept;

}  // namespace quorvel::python
