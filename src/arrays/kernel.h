// What the array library runs for a routine: `count` elements, the first value of each argument at
// at[k], the following ones every step[k] bytes. The inputs come first, in the order of a call,
// then the outputs: the value of a function, then the others in their order. An argument that is
// both stands in both places. A step of 0 repeats one value.
#pragma once

#include <cstddef>

namespace quorvel::arrays {

using Kernel = void (*)(std::size_t count, char* const* at, const std::ptrdiff_t* step) noexcept;

}  // namespace quorvel::arrays
