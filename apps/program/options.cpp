#include "program/options.h"

#include <CLI/CLI.hpp>

#include <iostream>

#include "reading/input.h"

namespace quorvel::host {
namespace {

constexpr const char* exit_status = R"(

Exit status
  0 done; 2 bad input, with one line that says where and what is allowed; 1 anything else, such
  as a missing library. The library, quorvel.dll or libquorvel.so, is looked for beside the
  program, or is the file that the environment variable QUORVEL_LIBRARY names.)";

CLI::Option* add_hours(CLI::App& app, std::vector<double>& hours, const char* meaning) {
    return app.add_option("--hours", hours, meaning)
        ->option_text("H,H,...")
        ->delimiter(',')
        ->allow_extra_args(false)
        ->check([](const std::string& text) -> std::string {
            double hour;
            const bool good = CLI::detail::lexical_cast(text, hour) && hour >= 0 && hour <= 24;
            return good ? "" : "value " + text + "; allowed 0 to 24 h solar time";
        });
}

}  // namespace

bool parse(CLI::App& app, int argc, char** argv) {
    app.allow_windows_style_options(false);
    for (CLI::App* command : app.get_subcommands({})) command->allow_windows_style_options(false);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        std::cout << app.help();
        return false;
    } catch (const CLI::ParseError& fault) {
        throw InputError(app.get_name() + ": " + fault.what() + "; see " + app.get_name() +
                         " --help");
    }
    return true;
}

std::optional<Options> read_options(int argc, char** argv, const Description& description) {
    CLI::App app{description.purpose};
    Options options;
    app.name(description.program);
    app.add_option("FILE", options.input, description.input)->required()->option_text(" ");
    app.add_flag("--csv", options.csv, "Write comma-separated values instead of tables");
    auto* svg = app.add_option("--svg", options.svg, description.chart)->option_text("FILE");
    if (description.hours) add_hours(app, options.hours, description.hours)->needs(svg);
    app.footer(std::string(description.footer) + exit_status);
    if (!parse(app, argc, argv)) return std::nullopt;
    return options;
}

}  // namespace quorvel::host
