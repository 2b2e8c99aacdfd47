// What a call left behind.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "conformance/random_arguments.h"

namespace quorvel::test {

using namespace conformance;

using Words = std::vector<std::vector<std::uint32_t>>;

// The words of the result, and of every argument those that the counts name.
using Outcome = Words;

// Bytes of an argument that belong to the call.
std::size_t named_bytes(const Routine& routine, std::size_t argument, const Words& words);

// Calls a routine on arguments that stand at the addresses; `words` are those before the call.
Outcome call(const Routine& routine, Address function, const Words& words,
             std::span<void* const> addresses);

// With storage that goes on beyond the arrays that the counts name.
Outcome plain_call(const Routine& routine, Address function, const ArgumentSet& arguments);

// Whether the results depend on an earlier call: the open climate data file.
bool carries_state(const Routine& routine);

}  // namespace quorvel::test
