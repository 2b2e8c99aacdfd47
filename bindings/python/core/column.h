// One operand in a call of the inner loop: NumPy's elements, and their numbers along the core
// dimensions.
#pragma once

#include <cstring>
#include <limits>

#include "routine.h"

namespace quorvel::python {

struct Column {
    char* at;
    std::ptrdiff_t step;
    std::ptrdiff_t extent[2] = {1, 1}, stride[2] = {0, 0};  // of the core dimensions
    std::ptrdiff_t numbers = 1;
    bool direct = true;  // the array library takes it as it lies
};

template <class To, class From>
To converted(From value) noexcept {
    if constexpr (std::is_same_v<From, std::int64_t>) {
        using Limits =
            std::numeric_limits<To>;  // what is beyond stays outside of every valid range
        return static_cast<To>(value < Limits::min()   ? Limits::min()
                               : value > Limits::max() ? Limits::max()
                                                       : value);
    } else if constexpr (std::is_same_v<To, bool>) {
        return value != 0;
    } else {
        return static_cast<To>(value);
    }
}

// Calls function(place in the array, number of the element) for each number of `count` elements.
template <class Function>
void for_each_number(const Column& column, std::ptrdiff_t first, std::ptrdiff_t count,
                     Function function) noexcept {
    for (std::ptrdiff_t i = 0, n = 0; i < count; ++i)
        for (std::ptrdiff_t j = 0; j < column.extent[0]; ++j)
            for (std::ptrdiff_t k = 0; k < column.extent[1]; ++k, ++n)
                function(column.at + (first + i) * column.step + j * column.stride[0] +
                             k * column.stride[1],
                         n);
}

template <class From, class To>
void gather(const Column& column, std::ptrdiff_t first, std::ptrdiff_t count, To* to) noexcept {
    if (column.numbers == 1 &&
        column.step == sizeof(From)) {  // a loop that the compiler makes into packs
        const From* from = reinterpret_cast<const From*>(column.at) + first;
        for (std::ptrdiff_t i = 0; i < count; ++i) to[i] = converted<To>(from[i]);
        return;
    }
    for_each_number(column, first, count, [&](const char* at, std::ptrdiff_t n) {
        From value;
        std::memcpy(&value, at, sizeof value);
        to[n] = converted<To>(value);
    });
}

template <class To, class From>
void scatter(const Column& column, std::ptrdiff_t first, std::ptrdiff_t count,
             const From* from) noexcept {
    for_each_number(column, first, count, [&](char* at, std::ptrdiff_t n) {
        const To value = converted<To>(from[n]);
        std::memcpy(at, &value, sizeof value);
    });
}

}  // namespace quorvel::python
