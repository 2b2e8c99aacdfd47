// What the user asks of a wall.
#pragma once

#include <string>

#include "calculation/wall/assessment.h"
#include "reading/library.h"
#include "reading/wall/climate.h"

namespace quorvel::wall {

struct ReadQuestion {
    std::string name;
    Question question;
    ReadClimate climate;
    std::size_t left_out = 0;  // layers in and beyond a well-ventilated gap
};

// What the input is read with.
struct Request {
    std::string input;         // beside which the files are that it names
    std::string weather = {};  // in place of its climate outside
};

// The library of materials is one of tables, that of calculations must have been loaded. Throws
// host::InputError at the first fault.
ReadQuestion read_question(const host::InputTable& root, const Request& request,
                           const host::Library& materials);

}  // namespace quorvel::wall
