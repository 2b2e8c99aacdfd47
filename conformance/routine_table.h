// Every exported routine as data, from the catalogue: what it takes and how to call it by address.
#pragma once

#include <cstddef>
#include <vector>

namespace quorvel::conformance {

enum class Type { None, Real, DoubleReal, Integer, Text };
enum class Direction { In, Out, Inout };

// Extent of an array: a number, or the value of the Integer argument with that index.
struct Extent {
    int fixed;
    int argument;
};

struct Argument {
    const char* name;
    Type type;
    Direction direction;
    double low, high;           // what an input is drawn from, ends included
    std::vector<Extent> shape;  // empty for a scalar
};

using Address = void (*)();

struct Routine {
    const char* name;
    const char* family;
    Type result;
    std::vector<Argument> arguments;
    // Calls the routine at an address with the addresses of its arguments and of the result.
    void (*call)(Address function, void* const* arguments, void* result);
};

// Bytes of a value, or of the room for a text with its NUL.
constexpr std::size_t size_of(Type type) {
    return type == Type::Text ? 64 : type == Type::DoubleReal ? 8 : 4;
}

const std::vector<Routine>& routines();

}  // namespace quorvel::conformance
