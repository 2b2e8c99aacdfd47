// What writes the files of the climate commands.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvel::program {

inline constexpr std::string_view station_ending = ".toml";  // of station files

// Station files, and folders of them, into a climate data file with its places beside it. Throws
// host::InputError.
void pack_stations(const std::string& output, const std::vector<std::string>& inputs);

// Years of weather into station files.
struct Derivation {
    std::vector<std::string> years;  // weather files
    std::string output;              // a station file for one year, or a folder for all
    std::string name;                // of the one station, otherwise that of the place
    int first_number = 1;            // the stations are counted from it in the order of the years
    bool strict = false;             // refuse what would be mended or assumed
};

// Tells what was mended on standard error. A year at fault does not hold up the others of a folder;
// throws host::InputError in the end.
void derive_stations(const Derivation& derivation);

}  // namespace quorvel::program
