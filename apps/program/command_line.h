// From the command line to the command, and to what it answers.
#pragma once

#include <vector>

#include "program/command.h"

namespace quorvel::program {

// Does what the command line asks of one of the commands. The exit status. Throws host::InputError
// for what the user can mend, anything else otherwise.
int run_command_line(int argc, char** argv, const std::vector<Command>& commands);

}  // namespace quorvel::program
