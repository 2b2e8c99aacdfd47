// What an argument of the array library is in the call by reference.
#pragma once

#include <cstddef>
#include <cstdint>

#include "conformance/routine_table.h"
#include "quorvel_arrays.h"

namespace quorvel::conformance {

// Which of its arguments; -1 for the value of a function.
int reference_of(const Routine& routine, const quorvel_argument& argument);

// Whether a call by reference left a word of an output as random arguments had it, for which arrays
// have no number.
bool is_left(Type type, std::size_t word, std::uint32_t by_reference, std::uint32_t of_array);

}  // namespace quorvel::conformance
