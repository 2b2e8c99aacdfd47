// The input of wall: a construction and its climate.
#include "fuzz/input_file.h"
#include "wall/job.h"
#include "wall/report.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorvel::wall;
    quorvel::fuzz::try_file(data, size, [](const std::string& file) {
        const Job job = read_job(file);
        const Construction construction = calculate(job);
        report(job, construction);
        csv(job, construction);
    });
    return 0;
}
