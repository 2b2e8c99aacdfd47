// Outdoor air temperatures from a climate data file.
#pragma once

#include <string>
#include <vector>

#include "calculation/window/input.h"
#include "reading/input.h"

namespace quorvel::window {

// Sets the outdoor temperatures and their hours for the month of the day, and adds a note where
// something had to be assumed. Throws host::InputError.
void read_climate(const host::InputTable& table, DesignDay& day, std::vector<std::string>& notes);

}  // namespace quorvel::window
