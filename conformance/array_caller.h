// The calls of the corpus through the array library, at the level of instructions that it is at.
#pragma once

#include "conformance/corpus.h"

namespace quorvel::conformance {

// By reference are made only those that arrays refuse, whose counts are out of range; and where an
// element has no number, a second call says whether the routine leaves it as it was.
void call_by_arrays(const Routine& routine, std::span<Case> cases);
inline constexpr Caller by_arrays = {1000, call_by_arrays};

}  // namespace quorvel::conformance
