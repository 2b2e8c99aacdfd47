// wall: heat and vapour through an element, through the year.
#include <CLI/CLI.hpp>

#include <memory>
#include <optional>

#include "calculation/climate/mended_weather.h"
#include "program/commands.h"
#include "program/options.h"
#include "quorvel/library.h"
#include "reading/wall/question.h"
#include "telling/wall/answer.h"

namespace quorvel::program {
namespace {

struct Given {
    int month = 0;  // 0: that which matters
    std::string weather;
    std::vector<std::string> libraries;
};

constexpr const char* description =
    "U-value, temperature factor and mould, condensation and drying through the months, and the "
    "answer to a daily swing of temperature, of a wall, roof or floor.";

void add_options(CLI::App& app, Given& given) {
    app.add_option("--month", given.month,
                   "Show the profile of this month, 1 to 12, in place of that which matters")
        ->option_text("M")
        ->check(CLI::Range(1, 12));
    add_weather_option(app, given.weather, ", in place of the climate outside");
    add_library_option(app, given.libraries, "Own tables of materials; may be repeated");
}

std::vector<std::string> warnings(const wall::ReadClimate& climate) {
    std::vector<std::string> warnings = climatefile::told(climate.replaced);
    if (climate.saturated_inside)
        warnings.push_back(
            "the humidity class puts more vapour inside than the air there can hold: 100 % is "
            "taken");
    return warnings;
}

std::vector<wall::Variation> worked_out(const wall::Request& request) {
    host::load_library();
    std::vector<wall::Variation> variations;
    for (wall::ReadQuestion& read : wall::read_questions(request)) {
        const wall::Subject subject{read.name, read.climate.source, read.left_out,
                                    warnings(read.climate), read.variant};
        variations.push_back({subject, std::move(read.question)});
    }
    for (wall::Variation& variation : variations)  // which from now on stays where it is
        variation.assessment = wall::assess(variation.question);
    return variations;
}

host::Answer answer_wall(const std::string& input, const Given& given) {
    const auto variations = worked_out({input, given.weather, given.libraries});
    if (variations.size() > 1) return wall::comparison(variations);
    const auto& [subject, question, assessment] = variations.front();
    std::optional<std::size_t> month;
    if (given.month > 0 && assessment.year) month = static_cast<std::size_t>(given.month - 1);
    return wall::answer(subject, question, assessment, month);
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
