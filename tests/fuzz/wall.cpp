// The input of wall: a construction and its climate, and variants of both.
#include "fuzz/input_file.h"
#include "reading/wall/question.h"
#include "telling/as_text.h"
#include "telling/wall/answer.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorvel;
    fuzz::try_file(data, size, [](const std::string& file) {
        for (const wall::ReadQuestion& read : wall::read_questions({file})) {
            const wall::Subject subject{.name = read.name};
            const wall::Assessment assessment = wall::assess(read.question);
            host::as_text(wall::answer(subject, read.question, assessment, {}), true);
        }
    });
    return 0;
}
