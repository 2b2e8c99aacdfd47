// The library linked into the program, not loaded: fuzzers see its branches.
#pragma once

namespace quorvel::fuzz {

// The climate data file's state lasts as long as a process; from here on it is that of a new one.
void forget_climate_file();

}  // namespace quorvel::fuzz
