// The files that are made of stations, as their bytes.
#pragma once

#include <string>
#include <vector>

#include "calculation/climate/station.h"

namespace quorvel::climatefile {

// A station file: TOML with a table of twelve months by ten bands for each quantity of each set,
// below a comment of lines that begin with #. The numbers read back as the same ones.
std::string station_file(const Station& station, const std::string& comment);

// A climate data file. Numbers left out become stations of zeros.
std::string data_file(const std::vector<Station>& stations);

// The places that stand beside it, by the numbers of the stations.
std::string places_file(std::vector<Station> stations);

}  // namespace quorvel::climatefile
