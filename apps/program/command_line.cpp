#include "program/command_line.h"

#include <CLI/CLI.hpp>

#include <iostream>

#include "program/commands.h"
#include "program/outputs.h"
#include "program/program.h"
#include "reading/input.h"

namespace quorvel::program {
namespace {

class CommandLine {
  public:
    CommandLine() : commands_(commands()) {
        app_.name("quorvel");
        app_.require_subcommand(1);
        for (const Command& command : commands_) add(app_, command);
    }

    int run(int argc, char** argv) {
        try {
            app_.parse(argc, argv);
        } catch (const CLI::CallForHelp&) {
            std::cout << app_.help();
            return host::success;
        } catch (const CLI::ParseError& fault) {
            throw host::InputError("quorvel: " + std::string(fault.what()) +
                                   "; see quorvel --help");
        }
        return execute();
    }

  private:
    void add(CLI::App& parent, const Command& command) {
        CLI::App& app = *parent.add_subcommand(command.name, command.purpose);
        app.allow_windows_style_options(false);
        for (const Command& part : command.commands) add(app, part);
        if (!command.commands.empty()) app.require_subcommand(1);
        if (command.options) command.options(app);
        if (command.answer)
            app.add_option("FILE", inputs_, command.input)->required()->option_text("...");
        if (command.answer || command.report) add_output_options(app, outputs_);
        if (command.commands.empty()) app.callback([this, &command] { chosen_ = &command; });
    }

    int execute() const {
        if (chosen_->act) {
            chosen_->act();
            return host::success;
        }
        std::vector<Told> answers;
        if (chosen_->report) answers.push_back({"", chosen_->report()});
        for (const std::string& input : inputs_) answers.push_back({input, chosen_->answer(input)});
        return deliver(chosen_->name, answers, outputs_);
    }

    CLI::App app_{"Answers of building physics, worked out with the Quorvel library."};
    std::vector<Command> commands_;
    const Command* chosen_ = nullptr;
    std::vector<std::string> inputs_;
    Outputs outputs_;
};

}  // namespace

int run_command_line(int argc, char** argv) { return CommandLine().run(argc, argv); }

}  // namespace quorvel::program
