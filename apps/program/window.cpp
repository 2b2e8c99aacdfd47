// quorvel window: what comes into a room through its windows, when, and how hot the panes get.
#include <CLI/CLI.hpp>

#include <memory>

#include "program/commands.h"
#include "program/options.h"
#include "quorvel/library.h"
#include "reading/window/job.h"
#include "telling/window/told.h"

namespace quorvel::program {
namespace {

struct Given {
    window::Request request;
    bool months = false;
    std::vector<double> hours;
};

void add_options(CLI::App& app, Given& given) {
    auto* const weather = add_weather_option(app, given.request.weather);
    app.add_flag("--months", given.months, "The twelve design days in place of one day")
        ->excludes(weather);
    add_library_option(app, given.request.libraries,
                       "Own tables of glass, gases and units; may be repeated");
    app.add_option("--hours", given.hours,
                   "Hours whose shadows are drawn, such as 9,12,15.5; else some with sun")
        ->option_text("H,H,...")
        ->delimiter(',')
        ->allow_extra_args(false)
        ->check([](const std::string& text) -> std::string {
            double hour;
            const bool good = CLI::detail::lexical_cast(text, hour) && hour >= 0 && hour <= 24;
            return good ? "" : "value " + text + "; allowed 0 to 24 h solar time";
        });
}

template <class AnyCase, class Calculate>
std::vector<AnyCase> cases(const std::vector<window::Job>& jobs, Calculate calculate) {
    std::vector<AnyCase> result;
    for (const window::Job& job : jobs) result.push_back(calculate(job));
    return result;
}

window::DayCase day_of(const window::Job& job) {
    const window::DesignDay& design = job.days.front();
    return {{job.variant, job.site, job.windows, job.notes},
            design,
            window::calculate(job.site, design, job.windows)};
}

window::YearCase year_of(const window::Job& job) {
    return {{job.variant, job.site, job.windows, job.notes},
            job.weather.has_value(),
            job.weather ? window::calculate(job.site, *job.weather, job.windows)
                        : window::calculate(job.site, job.days, job.windows)};
}

host::Answer answer(const std::string& input, const Given& given) {
    host::load_library();
    window::Request request = given.request;
    request.span = given.months               ? window::Span::months
                   : !request.weather.empty() ? window::Span::year
                                              : window::Span::day;
    const std::vector<window::Job> jobs = window::read_jobs(input, request);
    if (request.span == window::Span::day) {
        const auto days = cases<window::DayCase>(jobs, day_of);
        return jobs.size() > 1 ? window::compared(days) : window::told(days.front(), given.hours);
    }
    const auto years = cases<window::YearCase>(jobs, year_of);
    return jobs.size() > 1 ? window::compared(years) : window::told(years.front());
}

}  // namespace

Command window_command() {
    const auto given = std::make_shared<Given>();
    return {
        .name = "window",
        .purpose = "What comes in through windows, when, and how hot the panes get",
        .input = "The site, the day and the windows",
        .options = [given](CLI::App& app) { add_options(app, *given); },
        .answer = [given](const std::string& input) { return answer(input, *given); },
    };
}

}  // namespace quorvel::program
