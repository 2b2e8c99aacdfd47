// quorvel-climate: makes climate data files, and looks into them.
#include <CLI/CLI.hpp>
#include <iostream>

#include "climate/commands.h"
#include "climate/help.h"
#include "climate/station.h"
#include "program/options.h"
#include "program/program.h"

namespace {

using namespace quorvel;

struct Arguments {
    std::string file, output, name;
    std::vector<std::string> inputs;
    std::optional<int> checked, month, set;
    int station = 1;
    bool text = false;
};

class CommandLine {
  public:
    CommandLine() {
        app_.name("quorvel-climate");
        app_.require_subcommand(1);
        app_.footer(climatefile::help_on_program);
        add_pack();
        add_show();
        add_check();
        add_hourly();
    }

    bool parse(int argc, char** argv) { return host::parse(app_, argc, argv); }

    int execute() const {
        if (pack_->parsed()) {
            climatefile::pack(given_.output, given_.inputs);
        } else if (show_->parsed()) {
            std::cout << (given_.text ? climatefile::show_text(given_.file, given_.station)
                                      : climatefile::show(given_.file, given_.station,
                                                          {given_.month, given_.set}));
        } else if (check_->parsed()) {
            const auto [text, clean] = climatefile::check(given_.file, given_.checked);
            std::cout << text;
            return clean ? host::success : host::failure;
        } else {
            climatefile::from_hourly(given_.file, given_.output, given_.station, given_.name);
        }
        return host::success;
    }

  private:
    CLI::App* command(const char* name, const char* purpose, const char* footer) {
        CLI::App* const added = app_.add_subcommand(name, purpose);
        added->footer(footer);
        return added;
    }

    void add_pack() {
        pack_ = command("pack", "Make a climate data file from station files",
                        climatefile::help_on_pack);
        text(*pack_, "OUT", given_.output, "The climate data file, such as europe.climate")
            ->required();
        pack_
            ->add_option("FILE", given_.inputs,
                         "Station files, or folders whose .toml files are all taken")
            ->required()
            ->option_text("...");
    }

    void add_show() {
        show_ = command("show", "Print a station as tables", climatefile::help_on_show);
        text(*show_, "FILE", given_.file, "A climate data file")->required();
        show_->add_option("STATION", given_.station, "Number of the station")
            ->required()
            ->option_text(" ");
        CLI::Option* const month =
            show_->add_option("--month", given_.month, "Only this month, 1 to 12")
                ->check(CLI::Range(1, 12))
                ->option_text("M");
        CLI::Option* const set = show_->add_option("--set", given_.set, "Only this set, 1 or 2")
                                     ->check(CLI::Range(1, 2))
                                     ->option_text("S");
        show_->add_flag("--text", given_.text, "Write the station file that pack takes")
            ->excludes(month)
            ->excludes(set);
    }

    void add_check() {
        check_ = command("check", "Report every violated rule", climatefile::help_on_check);
        text(*check_, "FILE", given_.file, "A climate data file")->required();
        check_->add_option("STATION", given_.checked, "Only this station")->option_text(" ");
    }

    void add_hourly() {
        CLI::App* const hourly =
            command("from-hourly", "Derive a station file from a year of hourly weather",
                    climatefile::help_on_hourly);
        text(*hourly, "YEAR", given_.file, "The weather of a year in the EPW format")->required();
        hourly->add_option("-o,--output", given_.output, "The station file to write")
            ->required()
            ->option_text("STATION.toml");
        hourly->add_option("--station", given_.station, "Number of the station, otherwise 1")
            ->check(CLI::Range(1, climatefile::last_station_number))
            ->option_text("N");
        hourly->add_option("--name", given_.name, "Its name, otherwise that of the place")
            ->option_text("NAME");
    }

    static CLI::Option* text(CLI::App& command, const char* name, std::string& value,
                             const char* meaning) {
        return command.add_option(name, value, meaning)->option_text(" ");
    }

    CLI::App app_{
        "Climate data files: makes them from readable station files, prints and checks them, and\n"
        "derives station files from hourly weather."};
    CLI::App *pack_, *show_, *check_;
    Arguments given_;
};

}  // namespace

int main(int argc, char** argv) {
    return host::run("quorvel-climate", [&] {
        CommandLine command_line;
        return command_line.parse(argc, argv) ? command_line.execute() : int{host::success};
    });
}
