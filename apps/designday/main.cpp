// designday: the design day of windows, hour by hour, worked out with the Quorvel library.
#include <iostream>

#include "designday/chart.h"
#include "designday/help.h"
#include "designday/job.h"
#include "designday/report.h"
#include "program/options.h"
#include "program/program.h"
#include "quorvel/library.h"

namespace {

using namespace quorvel;

const host::Description description{
    "designday",
    "The sun on windows over a design day, hour by hour: irradiance on the plane of each\n"
    "window, what its glazing transmits and absorbs, and the temperatures of its panes.",
    "The site, the day and the windows: see below",
    "Draw a chart of the day into this file (needs gnuplot)",
    designday::help_on_input,
};

void design_day(int argc, char** argv) {
    const auto options = host::read_options(argc, argv, description);
    if (!options) return;
    host::load_library();
    const designday::Job job = designday::read_job(options->input);
    const designday::DesignDay day = designday::calculate(job);
    std::cout << (options->csv ? designday::csv(day) : designday::report(job, day));
    if (!options->svg.empty()) designday::draw_chart(job, day, options->svg);
}

}  // namespace

int main(int argc, char** argv) {
    return host::run("designday", [&] {
        design_day(argc, argv);
        return host::success;
    });
}
