// shade: how much of a window the sun reaches through a day, worked out with the Quorvel library.
#include <iostream>

#include "program/options.h"
#include "program/program.h"
#include "quorvel/library.h"
#include "shade/chart.h"
#include "shade/help.h"
#include "shade/job.h"
#include "shade/report.h"

namespace {

using namespace quorvel;

const host::Description description{
    "shade",
    "The sunlit part of a window through a design day, shaded by fins, an overhang and buildings\n"
    "around it.",
    "The site, the day, the window and what shades it: see below",
    "Draw the window with its shadow into this file (needs gnuplot)",
    shade::help_on_input,
    "Hours to draw, such as 9,12,15.5; else some of those with sun",
};

void shaded_day(int argc, char** argv) {
    const auto options = host::read_options(argc, argv, description);
    if (!options) return;
    const shade::Job job = shade::read_job(options->input);
    host::load_library();
    const shade::Shading shading(job);
    const shade::Day day = shading.day();
    std::cout << (options->csv ? shade::csv(job, day) : shade::report(job, day));
    if (!options->svg.empty()) shade::draw_chart(job, shading, options->hours, options->svg);
}

}  // namespace

int main(int argc, char** argv) {
    return host::run("shade", [&] {
        shaded_day(argc, argv);
        return host::success;
    });
}
