#pragma once

namespace quorvel::wall {

// What --help says after the options: the input file, the method.
extern const char* const help_on_input;

}  // namespace quorvel::wall
