// Command lines. Most host programs have one in common: FILE, --csv, --svg FILE, --help, and
// --hours where a program draws pictures of chosen hours.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace quorvel::host {

// Parses the command line alike on every platform: on Windows too, /jobs/london.toml is a file and
// no option. False when help was asked for and given. Throws InputError.
bool parse(CLI::App& app, int argc, char** argv);

struct Options {
    std::string input, svg;
    bool csv = false;
    std::vector<double> hours;  // 0 to 24
};

// What --help says: of the program, of its input file and its chart, after the options, and of the
// hours where there is that option.
struct Description {
    const char* program;
    const char* purpose;
    const char* input;
    const char* chart;
    const char* footer;
    const char* hours = nullptr;
};

// The options, or nothing when help was asked for and given. Throws InputError.
std::optional<Options> read_options(int argc, char** argv, const Description& description);

}  // namespace quorvel::host
