#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>

#include "calculation/calendar.h"
#include "calculation/climate/band_climate.h"
#include "calculation/climate/mended_weather.h"
#include "program/climate/files.h"
#include "quorvel/library.h"
#include "reading/climate/epw.h"
#include "reading/folder.h"
#include "reading/input.h"
#include "telling/climate/files.h"
#include "telling/output_file.h"
#include "telling/progress.h"
#include "text/text.h"

namespace quorvel::program {
namespace {

using climatefile::Station;
using climatefile::WeatherYear;
using host::InputError;

constexpr std::size_t longest_name = 40;  // characters that a station file takes

// The first characters of a text in UTF-8.
std::string shortened(std::string name) {
    while (host::character_count(name) > longest_name) name.pop_back();
    return name;
}

std::string file_name(const std::string& path) { return path.substr(path.find_last_of("/\\") + 1); }

std::string without_ending(const std::string& name) { return name.substr(0, name.rfind('.')); }

std::string one_line(std::string text) {
    std::ranges::replace_if(
        text, [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, '?');
    return text;
}

std::string comment(const std::string& year, const std::vector<std::string>& notes) {
    std::string text =
        "# Band climate of a station, derived by quorvel climate from the hourly weather of\n# " +
        one_line(file_name(year)) +
        ".\n# Set 1: bands from the warmest to the coldest days; set 2: from the highest to the "
        "lowest Q1.\n";
    for (const std::string& note : notes) text += "# " + note + '\n';
    return text + '\n';
}

// What was mended in the weather, and assumed of it.
std::vector<std::string> notes_on(const std::vector<climatefile::Replacement>& replaced,
                                  const std::vector<std::size_t>& flat_months) {
    auto notes = climatefile::told(replaced);
    if (flat_months.empty()) return notes;
    std::vector<std::string_view> names;
    for (const std::size_t month : flat_months) names.push_back(host::month_names[month]);
    notes.push_back(host::joined(names) +
                    ": the mean day never warms, times A and B taken at about 15 and 5 h");
    return notes;
}

// Gives what was mended and assumed.
std::vector<std::string> derive(const Derivation& derivation, std::size_t i,
                                const std::string& output) {
    const std::string& file = derivation.years[i];
    const WeatherYear year = climatefile::read_epw(file);
    auto [station, flat_months] = climatefile::band_climate(year);
    const auto notes = notes_on(year.replaced, flat_months);
    if (derivation.strict && !notes.empty())
        throw InputError(file + ": " + notes.front() + "; refused by --strict");
    const std::string name = derivation.name.empty() ? year.place : derivation.name;
    station.place = {shortened(name.empty() ? "Station" : name), year.latitude, year.longitude,
                     year.height, year.zone};
    station.number = derivation.first_number + static_cast<int>(i);
    host::write_file(output, climatefile::station_file(station, comment(file, notes)));
    return notes;
}

// The station file of each year.
std::vector<std::string> outputs_of(const Derivation& derivation) {
    const auto& [years, output, name, first_number, strict] = derivation;
    if (output.ends_with(station_ending)) {
        if (years.size() > 1)
            throw InputError(output + ": one station file for several years; name a folder");
        return {output};
    }
    const bool is_folder = host::names_in(output).has_value();
    if (!is_folder && std::ifstream(output))
        throw InputError(output + ": a station file's name must end in " +
                         std::string(station_ending));
    std::vector<std::string> outputs;
    std::set<std::string> names;
    for (const std::string& year : years) {
        const std::string stem = without_ending(file_name(year));
        if (!names.insert(stem).second)
            throw InputError(year + ": another year is named " + stem + " too");
        outputs.push_back(output + '/' + stem + std::string(station_ending));
    }
    if (!is_folder) std::filesystem::create_directories(output);
    return outputs;
}

}  // namespace

void derive_stations(const Derivation& derivation) {
    const std::size_t count = derivation.years.size();
    const auto outputs = outputs_of(derivation);
    if (derivation.first_number + count - 1 > climatefile::last_station_number)
        throw InputError("--station: " + std::to_string(count) + " stations from " +
                         std::to_string(derivation.first_number) + " on; the last number is " +
                         std::to_string(climatefile::last_station_number));
    host::load_library();
    host::Progress progress("Deriving", count);
    std::size_t refused = 0;
    for (std::size_t i = 0; i < count; ++i) {
        try {
            for (const std::string& note : derive(derivation, i, outputs[i]))
                std::cerr << derivation.years[i] << ": " << note << '\n';
        } catch (const InputError& fault) {
            if (count == 1) throw;
            std::cerr << fault.what() << '\n';
            ++refused;
        }
        progress.advance();
    }
    if (refused > 0)
        throw InputError(std::to_string(refused) + " of " + std::to_string(count) +
                         " years refused, as told above");
}

}  // namespace quorvel::program
