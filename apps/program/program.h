// What every host program does around its work.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace quorvel::host {

enum ExitStatus { success = 0, failure = 1, bad_input = 2 };

// Runs the work of a program. Output is UTF-8 with line feeds on every platform. A fault ends it
// with one line on standard error and status 2 when the input is at fault, 1 otherwise.
int run(const char* program, const std::function<void()>& work);

// Runs another program, found on the path, with one argument and waits for it: its exit status, or
// nothing when there is no such program.
std::optional<int> run_program(const char* program, const std::string& argument);

}  // namespace quorvel::host
