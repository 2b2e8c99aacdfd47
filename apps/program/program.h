// What the program does around its work.
#pragma once

#include <functional>

namespace quorvel::host {

enum ExitStatus { success = 0, failure = 1, bad_input = 2 };

// Runs the work of a program. Output is UTF-8 with line feeds on every platform. A fault ends it
// with one line on standard error and status 2 when the input is at fault, 1 otherwise; without
// one the status is that of the work.
int run(const char* program, const std::function<int()>& work);

}  // namespace quorvel::host
