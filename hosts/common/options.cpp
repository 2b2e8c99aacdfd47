#include "common/options.h"

#include <CLI/CLI.hpp>

#include <iostream>

#include "common/input.h"

namespace quorvel::host {

std::optional<Options> read_options(int argc, char** argv, const Description& description) {
    CLI::App app{description.purpose};
    Options options;
    app.name(description.program);
    app.add_option("FILE", options.input, description.input)->required()->option_text(" ");
    app.add_flag("--csv", options.csv, "Write comma-separated values instead of tables");
    app.add_option("--svg", options.svg, description.chart)->option_text("FILE");
    app.footer(description.footer);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        std::cout << app.help();
        return std::nullopt;
    } catch (const CLI::ParseError& fault) {
        const std::string program = description.program;
        throw InputError(program + ": " + fault.what() + "; see " + program + " --help");
    }
    return options;
}

}  // namespace quorvel::host
