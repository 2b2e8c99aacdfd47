// What the user asks of a wall.
#pragma once

#include <string>
#include <vector>

#include "calculation/wall/assessment.h"
#include "reading/library.h"

namespace quorvel::wall {

struct ReadQuestion {
    std::string name;
    Question question;
    std::string climate;                // where the climate outside comes from; empty: from the input itself
    std::size_t left_out = 0;           // layers in and beyond a well-ventilated gap
    std::vector<std::string> warnings;  // what was replaced or assumed
};

// Files that the input names are looked for beside it. The library must have been loaded. Throws host::InputError
// at the first fault.
ReadQuestion read_question(const host::InputTable& root, const std::string& input, const host::Library& library);

}  // namespace quorvel::wall
