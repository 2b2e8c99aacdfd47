// The input of quorvel window: sites, days, windows and their variants.
#include "fuzz/input_file.h"
#include "reading/window/job.h"
#include "telling/window/told.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorvel;
    fuzz::try_file(data, size, [](const std::string& file) {
        const auto jobs = window::read_jobs(file, {});
        const window::Job& job = jobs.back();
        const window::DesignDay& design = job.days.front();
        const window::DayCase day{{job.variant, job.site, job.windows, job.notes},
                                  design,
                                  window::calculate(job.site, design, job.windows)};
        for (const window::WindowDay& of_window : day.day.windows)
            for (const window::WindowHour& at : of_window.at)
                fuzz::require(
                    !(at.sunlit > 1) && !(at.transmitted() > at.incident() * 1.001 + 0.001),
                    "no part exceeds the whole");
        window::told(day, {});
    });
    return 0;
}
