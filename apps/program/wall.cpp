// wall: heat and vapour through an element, through the year.
#include <CLI/CLI.hpp>

#include <memory>

#include "calculation/calendar.h"
#include "program/commands.h"
#include "quorvel/library.h"
#include "reading/wall/question.h"
#include "telling/wall/answer.h"

namespace quorvel::program {
namespace {

struct Given {
    int month = 0;  // 0: that which matters
    std::vector<std::string> libraries;
};

constexpr const char* description =
    "U-value, temperature factor and mould, condensation and drying through the months, and the answer to a daily\n"
    "swing of temperature, of a wall, roof or floor.";

void add_options(CLI::App& app, Given& given) {
    app.add_option("--month", given.month, "Show the profile of this month, 1 to 12, in place of that which matters")
        ->option_text("M")
        ->check(CLI::Range(1, 12));
    app.add_option("--library", given.libraries, "Materials of your own, beside those of the program or in their place")
        ->option_text("FILE")
        ->allow_extra_args(false);
}

host::Library library_of(const Given& given) {
    host::Library library;
    for (const std::string& file : given.libraries) library.add(file);
    return library;
}

host::Answer answer_wall(const std::string& input, const Given& given) {
    const host::Library library = library_of(given);
    host::load_library();
    const host::InputFile file(input);
    const wall::ReadQuestion read = wall::read_question(file.root(), input, library);
    std::optional<std::size_t> month;
    if (given.month > 0 && read.question.climates.size() > 1) month = static_cast<std::size_t>(given.month - 1);
    return wall::answer({read.name, read.climate, read.left_out, read.warnings, ""}, read.question,
                        wall::assess(read.question), month);
}

}  // namespace

Command wall_command() {
    const auto given = std::make_shared<Given>();
    return {
        .name = "wall",
        .purpose = "Heat and vapour through a wall, roof or floor, through the year",
        .description = description,
        .input = "The construction and its climate: see below",
        .options = [given](CLI::App& app) { add_options(app, *given); },
        .answer = [given](const std::string& input) { return answer_wall(input, *given); },
    };
}

}  // namespace quorvel::program
