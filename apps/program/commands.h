// The commands of the program.
#pragma once

#include <vector>

#include "program/command.h"

namespace quorvel::program {

Command window_command();
Command check_command();
Command climate_command();
Command materials_command();
Command wall_command();

// All of them, in the order in which the help names them.
std::vector<Command> commands();

}  // namespace quorvel::program
