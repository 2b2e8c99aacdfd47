// Outdoor air temperatures from a climate data file.
#pragma once

#include <string>

#include "calculation/window/input.h"
#include "reading/input.h"

namespace quorvel::window {

// Sets the outdoor temperatures and their hours for the month of the day. A file name without a
// root is taken from the folder of the input file. Throws host::InputError.
void read_climate(const host::InputTable& table, const std::string& input, DesignDay& day);

}  // namespace quorvel::window
