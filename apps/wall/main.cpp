// wall: heat and vapour through a construction, worked out with the Quorvel library.
#include <iostream>

#include "program/options.h"
#include "program/program.h"
#include "quorvel/library.h"
#include "wall/chart.h"
#include "wall/construction.h"
#include "wall/help.h"
#include "wall/job.h"
#include "wall/report.h"

namespace {

using namespace quorvel;

const host::Description description{
    "wall",
    "Heat and vapour through a wall or roof: U-value, admittance, decrement and surface factor, "
    "and\n"
    "where vapour condenses, in one climate or through the months of a year.",
    "The construction and the climate: see below",
    "Draw the construction and its profile into this file (needs gnuplot)",
    wall::help_on_input,
};

void wall_through_the_year(int argc, char** argv) {
    const auto options = host::read_options(argc, argv, description);
    if (!options) return;
    const wall::Job job = wall::read_job(options->input);
    host::load_library();
    const wall::Construction construction = wall::calculate(job);
    std::cout << (options->csv ? wall::csv(job, construction) : wall::report(job, construction));
    if (!options->svg.empty()) wall::draw_chart(job, construction, options->svg);
}

}  // namespace

int main(int argc, char** argv) {
    return host::run("wall", [&] {
        wall_through_the_year(argc, argv);
        return host::success;
    });
}
