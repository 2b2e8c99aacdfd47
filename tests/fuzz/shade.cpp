// The input of shade: a window and what shades it.
#include "fuzz/input_file.h"
#include "shade/job.h"
#include "shade/report.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorvel::shade;
    quorvel::fuzz::try_file(data, size, [](const std::string& file) {
        const Job job = read_job(file);
        const Day day = Shading(job).day();
        for (const Hour& hour : day.at)
            quorvel::fuzz::require(!hour.has_sun() || hour.sunlit <= 1,
                                   "no part exceeds the whole");
        report(job, day);
        csv(job, day);
    });
    return 0;
}
