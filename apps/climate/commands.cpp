#include "climate/commands.h"

#include <dirent.h>

#include <algorithm>
#include <limits>
#include <map>
#include <numeric>

#include "climate/band_climate.h"
#include "climate/data_file.h"
#include "climate/output_file.h"
#include "climate/report.h"
#include "climate/rules.h"
#include "climate/station_text.h"
#include "quorvel/library.h"
#include "reading/climate/epw.h"
#include "reading/input.h"
#include "telling/progress.h"
#include "telling/text.h"

namespace quorvel::climatefile {
namespace {

using host::InputError;

constexpr const char* station_ending = ".toml";
constexpr std::size_t longest_name = 40;  // that a station file may have

// The station files of a folder, in the order of their names; nothing if it is no folder. Through
// dirent, since its names are those by which the library opens files, on Windows too.
std::optional<std::vector<std::string>> station_files(const std::string& path) {
    DIR* const folder = opendir(path.c_str());
    if (!folder) return std::nullopt;
    std::vector<std::string> files;
    while (const dirent* const entry = readdir(folder)) {
        const std::string name = entry->d_name;
        if (name.ends_with(station_ending)) files.push_back(path + '/' + name);
    }
    closedir(folder);
    if (files.empty()) throw InputError(path + ": no " + station_ending + " file in this folder");
    std::ranges::sort(files);
    return files;
}

std::vector<std::string> all_files(const std::vector<std::string>& inputs) {
    std::vector<std::string> files;
    for (const std::string& input : inputs) {
        const auto found = station_files(input).value_or(std::vector{input});
        files.insert(files.end(), found.begin(), found.end());
    }
    return files;
}

// The one asked for, counted from 1, or all.
std::vector<std::size_t> chosen(std::optional<int> one, std::size_t count) {
    if (one) return {static_cast<std::size_t>(*one - 1)};
    std::vector<std::size_t> all(count);
    std::iota(all.begin(), all.end(), std::size_t{0});
    return all;
}

Station station_shown(const DataFile& file, int number) {
    const Station station = file.station(number);
    if (station.empty())
        throw InputError(file.path() + ": station " + std::to_string(number) +
                         ": all its values are 0, the file leaves this number out");
    return station;
}

// The rules that concern the file as a whole.
std::vector<std::string> file_violations(const DataFile& file) {
    std::vector<std::string> found;
    const std::int64_t first = first_record(1, file.H()), last = file.last_station();
    const std::string begins = "header: H = " + std::to_string(file.H()) +
                               " lets station 1 begin at record " + std::to_string(first);
    if (file.bytes() % record_bytes != 0)
        found.push_back("file length: " + std::to_string(file.bytes()) +
                        " bytes are no whole number of records of " + std::to_string(record_bytes));
    if (file.records() == 0)
        found.push_back("file length: no room for the header");
    else if (first < 2)
        found.push_back(begins + ", ahead of record 2");
    else if (last < 1)
        found.push_back(begins + ", behind the " + std::to_string(file.records()) +
                        " records of the file");
    else if (!file.holds(last))
        found.push_back("file length: station " + std::to_string(last) + " has only " +
                        std::to_string(file.records() + 1 - first_record(last, file.H())) +
                        " of its " + std::to_string(station_records) + " records");
    return found;
}

// All that are in the file as a whole. With an H far below 0 the first of them is one of millions.
std::vector<int> whole_stations(const DataFile& file) {
    std::vector<int> numbers;
    const std::int64_t first = (1 - first_record(0, file.H())) / station_records + 1;
    const auto last = std::min<std::int64_t>(file.last_station(), std::numeric_limits<int>::max());
    for (std::int64_t number = std::max<std::int64_t>(first, 1); number <= last; ++number)
        if (file.holds(number)) numbers.push_back(static_cast<int>(number));
    return numbers;
}

std::string counted(std::size_t n, const std::string& what) {
    return std::to_string(n) + ' ' + what + (n == 1 ? "" : "s");
}

// A name that a station file may have: printable, of ASCII, not too long. An EPW file may be in any
// encoding.
std::string station_name(std::string name) {
    std::ranges::replace_if(
        name, [](char c) { return c < 0x20 || c > 0x7E; }, '?');
    name = name.substr(0, longest_name);
    return name.empty() ? "Station" : name;
}

std::string origin(const WeatherYear& year, const std::string& epw) {
    const auto slash = epw.find_last_of("/\\");
    return "# Band climate of a station, derived by quorvel-climate from the hourly weather "
           "of\n# " +
           station_name(slash == epw.npos ? epw : epw.substr(slash + 1)) + " (latitude " +
           host::shortest(year.latitude) + ", longitude " + host::shortest(year.longitude) + ", " +
           host::shortest(year.height) +
           " m).\n# Set 1: bands from the warmest to the coldest days; "
           "set 2: from the highest to the lowest Q1.\n\n";
}

}  // namespace

void pack(const std::string& output, const std::vector<std::string>& inputs) {
    if (output.ends_with(station_ending))
        throw InputError(output + ": a station file cannot be the climate data file to write");
    const auto files = all_files(inputs);
    if (std::ranges::find(files, output) != files.end())
        throw InputError(output + ": is to be read and written");
    host::Progress progress("Packing", files.size());
    std::vector<Station> stations;
    std::map<int, std::string> file_of;
    for (const std::string& file : files) {
        stations.push_back(read_station(file));
        const int number = stations.back().number;
        if (const auto [other, added] = file_of.try_emplace(number, file); !added)
            throw InputError(file + ": station " + std::to_string(number) + " is already that of " +
                             other->second);
        progress.advance();
    }
    write_file(output, data_file(stations));
}

std::string show(const std::string& path, int station, const Selection& selection) {
    const DataFile file(path);
    host::load_library();
    return report(station_shown(file, station), chosen(selection.set, set_count),
                  chosen(selection.month, month_count));
}

std::string show_text(const std::string& path, int station) {
    const DataFile file(path);
    host::load_library();
    return station_text(station_shown(file, station), "");
}

Verdict check(const std::string& path, std::optional<int> station) {
    const DataFile file(path);
    host::load_library();
    auto found = file_violations(file);
    auto numbers = whole_stations(file);
    if (station) numbers = {*station};
    if (station && !file.holds(*station) && !found.empty()) numbers.clear();
    host::Progress progress("Checking", numbers.size());
    std::size_t checked = 0;
    for (const int number : numbers) {
        const Station values = station ? station_shown(file, number) : file.station(number);
        progress.advance();
        if (values.empty()) continue;
        ++checked;
        for (const std::string& violation : violations(values))
            found.push_back("station " + std::to_string(number) + ", " + violation);
    }
    if (found.empty() && checked == 0) found.push_back("no station has any values");
    std::string text;
    for (const std::string& violation : found) text += path + ": " + violation + '\n';
    text += counted(checked, "station") + " checked, " +
            (found.empty() ? "no rule violated" : counted(found.size(), "violation")) + '\n';
    return {text, found.empty()};
}

void from_hourly(const std::string& epw, const std::string& output, int station,
                 const std::string& name) {
    if (!output.ends_with(station_ending))
        throw InputError(output + ": a station file's name must end in " + station_ending);
    const WeatherYear year = read_epw(epw);
    host::load_library();
    Station bands = band_climate(year, epw);
    bands.number = station;
    bands.name = station_name(name.empty() ? year.place : name);
    write_file(output, station_text(bands, origin(year, epw)));
}

}  // namespace quorvel::climatefile
