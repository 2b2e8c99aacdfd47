#include <algorithm>
#include <filesystem>
#include <map>

#include "program/climate/files.h"
#include "reading/climate/place.h"
#include "reading/climate/station_file.h"
#include "reading/folder.h"
#include "reading/input.h"
#include "telling/climate/files.h"
#include "telling/output_file.h"
#include "telling/progress.h"

namespace quorvel::program {
namespace {

using climatefile::Station;
using host::InputError;

// The station files of a folder. The places of a climate data file that is there too are no
// station.
std::vector<std::string> station_files(const std::string& folder,
                                       const std::vector<std::string>& names) {
    std::vector<std::string> files;
    for (const std::string& name : names) {
        if (!name.ends_with(station_ending)) continue;
        const std::string data_file = name.substr(0, name.size() - station_ending.size());
        if (!std::ranges::binary_search(names, data_file)) files.push_back(folder + '/' + name);
    }
    if (files.empty())
        throw InputError(folder + ": no " + std::string(station_ending) + " file in this folder");
    return files;
}

std::vector<std::string> all_files(const std::vector<std::string>& inputs) {
    std::vector<std::string> files;
    for (const std::string& input : inputs) {
        const auto names = host::names_in(input);
        const auto found = names ? station_files(input, *names) : std::vector{input};
        files.insert(files.end(), found.begin(), found.end());
    }
    return files;
}

}  // namespace

void pack_stations(const std::string& output, const std::vector<std::string>& inputs) {
    if (output.ends_with(station_ending))
        throw InputError(output + ": a station file cannot be the climate data file to write");
    const auto files = all_files(inputs);
    for (const std::string& written : {output, climatefile::file_of_places(output)})
        if (std::ranges::find(files, written) != files.end())
            throw InputError(written + ": is to be read and written");
    host::Progress progress("Packing", files.size());
    std::vector<Station> stations;
    std::map<int, std::string> file_of;
    for (const std::string& file : files) {
        stations.push_back(climatefile::read_station(file));
        const int number = stations.back().number;
        if (const auto [other, added] = file_of.try_emplace(number, file); !added)
            throw InputError(file + ": station " + std::to_string(number) + " is already that of " +
                             other->second);
        progress.advance();
    }
    host::write_file(output, climatefile::data_file(stations));
    if (std::filesystem::is_regular_file(output))  // beside a device there is nothing
        host::write_file(climatefile::file_of_places(output), climatefile::places_file(stations));
}

}  // namespace quorvel::program
