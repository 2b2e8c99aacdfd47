// The state of the processor's arithmetic, which belongs to the host: the library computes in the
// one it is called in, and gives its bits in the standard one only.
#pragma once

#include <string>

namespace quorvel::program {

// What is not as it should be; nothing if subnormal numbers are kept, results rounded to nearest,
// and no exception ends the process.
std::string fault_of_arithmetic();

// From now on, no floating-point exception ends the process.
void mask_exceptions();

}  // namespace quorvel::program
