#pragma once

#include <optional>
#include <string>

namespace quorvel::host {

// Runs another program, found on the path, with one argument and waits for it; what it writes on
// standard error goes to a file. Its exit status, or nothing when there is no such program.
std::optional<int> run_program(const char* program, const std::string& argument,
                               const std::string& errors);

}  // namespace quorvel::host
