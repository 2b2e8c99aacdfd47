// The input of designday: sites, days and windows.
#include "designday/job.h"
#include "designday/report.h"
#include "fuzz/input_file.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorvel::designday;
    quorvel::fuzz::try_file(data, size, [](const std::string& file) {
        const Job job = read_job(file);
        const DesignDay day = calculate(job);
        report(job, day);
        csv(day);
    });
    return 0;
}
