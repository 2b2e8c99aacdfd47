#include "reading/wall/climate.h"

#include <algorithm>

#include "calculation/wall/climates.h"
#include "reading/climate/epw.h"

namespace quorvel::wall {
namespace {

using host::InputTable;

constexpr host::Range temperature{-50, 60, "°C"}, humidity{0, 100, "%"};
constexpr std::size_t longest_file_name = 400;
constexpr std::size_t months = 12;

struct Outdoors {
    std::vector<Air> air;
    std::string source = {};
    std::vector<std::string> warnings = {};
};

std::string beside(const std::string& input, const std::string& file) {
    const bool rooted = file[0] == '/' || file[0] == '\\' || file.find(':') != std::string::npos;
    const std::size_t folder = input.find_last_of("/\\");
    return rooted || folder == std::string::npos ? file : input.substr(0, folder + 1) + file;
}

Outdoors of_weather(const InputTable& table, const std::string& input) {
    const auto weather = climatefile::read_epw(beside(input, table.text("weather", longest_file_name)));
    return {monthly_means(weather), "monthly means of the weather of " + weather.place};
}

// Every quantity is a number or a list of twelve; one list is enough to make it twelve cases.
Outdoors of_input(const InputTable& table) {
    bool monthly = false;
    for (const char* key : {"inside_temperature", "inside_humidity", "outside_temperature", "outside_humidity"})
        monthly = monthly || (table.has(key) && table.is_list(key));
    const std::size_t cases = monthly ? months : 1;
    const auto t = table.numbers("outside_temperature", cases, temperature);
    const auto rh = table.numbers("outside_humidity", cases, humidity);
    Outdoors outdoors;
    for (std::size_t i = 0; i < cases; ++i) outdoors.air.push_back({t[i], rh[i]});
    return outdoors;
}

Outdoors read_outdoors(const InputTable& table, const std::string& input) {
    if (table.has("weather")) {
        table.expect({"weather", "inside_temperature"}, {"inside_humidity", "humidity_class"});
        return of_weather(table, input);
    }
    table.expect({"inside_temperature", "outside_temperature", "outside_humidity"}, {"inside_humidity", "humidity_class"});
    return of_input(table);
}

Indoors read_indoors(const InputTable& table, std::size_t cases) {
    if (table.has("inside_humidity") == table.has("humidity_class"))
        throw table.error("", "needs either inside_humidity or humidity_class");
    Indoors indoors{table.numbers("inside_temperature", cases, temperature), {}, {}};
    if (table.has("humidity_class"))
        indoors.humidity_class = table.integer("humidity_class", 1, humidity_classes);
    else
        indoors.humidity = table.numbers("inside_humidity", cases, humidity);
    return indoors;
}

}  // namespace

ReadClimate read_climate(const InputTable& table, const std::string& input) {
    Outdoors outdoors = read_outdoors(table, input);
    const Indoors indoors = read_indoors(table, outdoors.air.size());
    ReadClimate read{climates(indoors, outdoors.air), std::move(outdoors.source), std::move(outdoors.warnings)};
    const bool full = std::ranges::any_of(read.climates, [](const Climate& c) { return c.inside.humidity >= 100; });
    if (indoors.humidity_class && full)
        read.warnings.push_back("The humidity class brings more vapour inside than the air there can hold: 100 % is taken");
    return read;
}

}  // namespace quorvel::wall
