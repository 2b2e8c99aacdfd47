// The readable form of a station: a TOML file with a table of twelve months by ten bands for each
// quantity of each set.
#pragma once

#include <string>

#include "calculation/climate/station.h"

namespace quorvel::climatefile {

// Throws host::InputError at the first fault.
Station read_station(const std::string& path);

}  // namespace quorvel::climatefile
