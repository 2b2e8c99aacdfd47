// From the command line to the command, and to what it answers.
#pragma once

namespace quorvel::program {

// The exit status. Throws host::InputError for what the user can mend, anything else otherwise.
int run_command_line(int argc, char** argv);

}  // namespace quorvel::program
