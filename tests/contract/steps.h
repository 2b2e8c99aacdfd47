// A measure of work that is the same on every machine: the branches that a library built with
// -fsanitize-coverage=trace-pc has passed. Any other library counts none.
#pragma once

#include <cstdint>

namespace quorvel::test {

// About 5 ms at the speed of today's machines.
inline constexpr std::uint64_t most_steps = 2'000'000;

std::uint64_t steps_taken();

}  // namespace quorvel::test
