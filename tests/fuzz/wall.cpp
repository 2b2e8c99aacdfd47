// The input of wall: a construction and its climate.
#include "fuzz/input_file.h"
#include "reading/wall/question.h"
#include "telling/as_text.h"
#include "telling/wall/answer.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorvel;
    fuzz::try_file(data, size, [](const std::string& file) {
        static const host::Library library;
        const host::InputFile input(file);
        const wall::ReadQuestion read = wall::read_question(input.root(), {file}, library);
        const wall::Subject subject{.name = read.name};
        host::as_text(wall::answer(subject, read.question, wall::assess(read.question), {}), true);
    });
    return 0;
}
