// What becomes of the answers: the options that all commands which answer have in common.
#pragma once

#include <string>
#include <vector>

#include "telling/answer.h"

namespace CLI {
class App;
}

namespace quorvel::program {

struct Outputs {
    bool csv = false, json = false, tables = false, strict = false;
    std::string table, output, html;
    std::vector<std::string> charts;  // files of pictures, by their endings
};

void add_output_options(CLI::App& app, Outputs& outputs);

// The answer to an input file; the input is empty where the command takes none.
struct Told {
    std::string input;
    host::Answer answer;
};

// Writes the answers, of one command, as asked. The exit status.
int deliver(const std::string& command, const std::vector<Told>& answers, const Outputs& outputs);

}  // namespace quorvel::program
