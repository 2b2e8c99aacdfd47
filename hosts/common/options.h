// The command line that the host programs have in common: FILE, --csv, --svg FILE, --help.
#pragma once

#include <optional>
#include <string>

namespace quorvel::host {

struct Options {
    std::string input, svg;
    bool csv = false;
};

// What --help says: of the program, of its input file and its chart, and after the options.
struct Description {
    const char* program;
    const char* purpose;
    const char* input;
    const char* chart;
    const char* footer;
};

// The options, or nothing when help was asked for and given. Throws InputError.
std::optional<Options> read_options(int argc, char** argv, const Description& description);

}  // namespace quorvel::host
