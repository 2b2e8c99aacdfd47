// designday: the design day of windows, hour by hour, worked out with the Quorvel library.
#include <CLI/CLI.hpp>

#include <iostream>
#include <optional>
#include <string>

#include "common/input.h"
#include "common/library.h"
#include "common/program.h"
#include "designday/chart.h"
#include "designday/help.h"
#include "designday/job.h"
#include "designday/report.h"

namespace {

using namespace quorvel;

struct Options {
    std::string input, svg;
    bool csv = false;
};

// The options, or nothing when help was asked for and given.
std::optional<Options> read_options(int argc, char** argv) {
    CLI::App app{
        "The sun on windows over a design day, hour by hour: irradiance on the plane of each\n"
        "window, what its glazing transmits and absorbs, and the temperatures of its panes."};
    Options options;
    app.name("designday");
    app.add_option("FILE", options.input, "The site, the day and the windows: see below")
        ->required()
        ->option_text(" ");
    app.add_flag("--csv", options.csv, "Write comma-separated values instead of tables");
    app.add_option("--svg", options.svg, "Draw a chart of the day into this file (needs gnuplot)")
        ->option_text("FILE");
    app.footer(designday::help_on_input);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        std::cout << app.help();
        return std::nullopt;
    } catch (const CLI::ParseError& fault) {
        throw host::InputError(std::string("designday: ") + fault.what() +
                               "; see designday --help");
    }
    return options;
}

void design_day(int argc, char** argv) {
    const auto options = read_options(argc, argv);
    if (!options) return;
    const designday::Job job = designday::read_job(options->input);
    host::load_library();
    const designday::DesignDay day = designday::calculate(job);
    std::cout << (options->csv ? designday::csv(day) : designday::report(job, day));
    if (!options->svg.empty()) designday::draw_chart(job, day, options->svg);
}

}  // namespace

int main(int argc, char** argv) {
    return host::run("designday", [&] { design_day(argc, argv); });
}
