// The climate on the two sides of an element, from the input, from weather or from a climate data file.
#pragma once

#include <string>
#include <vector>

#include "calculation/wall/air.h"
#include "reading/input.h"

namespace quorvel::wall {

struct ReadClimate {
    std::vector<Climate> climates;      // one, or those of the months from January
    std::string source;                 // where that outside comes from; empty: from the input itself
    std::vector<std::string> warnings;  // what was replaced or assumed
};

// Files are looked for beside the input. The library must have been loaded. Throws host::InputError.
ReadClimate read_climate(const host::InputTable& table, const std::string& input);

}  // namespace quorvel::wall
