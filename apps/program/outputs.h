// What becomes of answers: the options that all commands which answer have in common.
#pragma once

#include <span>
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
    std::vector<std::string> pictures;  // files, whose endings say what they are
};

void add_output_options(CLI::App& app, Outputs& outputs, bool pictures);

// Writes the answers of a command as asked: all files, then standard output. The exit status.
// Throws host::InputError when what was asked for cannot be, before anything is written.
int deliver(const std::string& command, std::span<const host::Answered> answers,
            const Outputs& outputs);

}  // namespace quorvel::program
