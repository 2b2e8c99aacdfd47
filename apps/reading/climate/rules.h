// What the values of a station must keep to.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "calculation/climate/station.h"
#include "reading/climate/data_file.h"

namespace quorvel::climatefile {

// What is wrong with a band's cumulative frequency beside the others of its month; empty if
// nothing is. Bands without days repeat the frequency before them.
std::string frequency_fault(const Station& station, std::size_t set, std::size_t month,
                            std::size_t band);

// One line for each violated rule: "set 1, July, band 10: F is 0.98; allowed 1 in band 10".
std::vector<std::string> violations(const Station& station);

// All stations that are in the file as a whole.
std::vector<int> whole_stations(const DataFile& file);

// What is wrong with a file: with its length and header, and with its stations or the one asked
// for.
struct Findings {
    std::size_t stations = 0;  // that were looked at
    std::vector<std::string> violations;
};
Findings check(const DataFile& file, std::optional<int> station);

}  // namespace quorvel::climatefile
