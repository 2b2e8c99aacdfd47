// Results of the library against the hashes of those that every machine gives.
#pragma once

#include <string>
#include <vector>

namespace quorvel::program {

struct Bits {
    std::size_t routines;
    long long calls;
    std::vector<std::string> differing;
};

// Shows its progress where standard error is a terminal.
Bits compare_bits();

}  // namespace quorvel::program
