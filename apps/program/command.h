// A command of the program, `quorvel NAME ...`. Help, man page and shell completion are made from
// this description; options, inputs and outputs that all commands have are the frame's, so that a
// command is a thin skin over reading, calculation and telling:
//
//     Command wall_command() {
//         const auto given = std::make_shared<Given>();
//         return {
//             .name = "wall",
//             .purpose = "Heat and vapour through a wall or roof",
//             .options = [given](CLI::App& app) { app.add_option("--month", given->month); },
//             .answer = [given](const std::string& input) { return answer(input, *given); },
//         };
//     }
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "telling/answer.h"

namespace CLI {
class App;
}

namespace quorvel::program {

struct Command {
    std::string name;
    std::string purpose;           // one line, without a full stop
    std::string description = {};  // paragraphs of the help ahead of the options
    std::string input = {};        // what its files hold: "The construction and its climate"

    // Adds what only this command has.
    std::function<void(CLI::App&)> options = {};

    // One of these does the work, after all options have been read; the first on each input file,
    // "-" for standard input. All throw host::InputError for what the user can mend.
    std::function<host::Answer(const std::string& input)> answer = {};
    std::function<host::Answer()> report = {};  // without input files
    std::function<void()> act = {};             // what writes files and tells nothing
    std::vector<Command> commands = {};         // or it has commands of its own

    // Paragraphs of the help after the options. docs/input/NAME.md, where there is one, stands
    // ahead of them.
    std::string details = {};
};

}  // namespace quorvel::program
