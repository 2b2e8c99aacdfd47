// What the user asks of a wall.
#pragma once

#include <string>
#include <vector>

#include "calculation/wall/assessment.h"
#include "reading/wall/climate.h"

namespace quorvel::wall {

struct Request {
    std::string input;                        // a file, beside which those are that it names
    std::string weather = {};                 // a file, in place of the input's climate outside
    std::vector<std::string> libraries = {};  // own tables of materials
};

struct ReadQuestion {
    std::string name;
    Question question = {};
    ReadClimate climate = {};
    std::size_t left_out = 0;  // layers in and beyond a well-ventilated gap
    std::string variant = {};  // empty: the input as it is
};

// The input as it is, and its variants. Throws host::InputError at the first fault.
std::vector<ReadQuestion> read_questions(const Request& request);

}  // namespace quorvel::wall
