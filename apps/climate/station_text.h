// The readable form of a station: a TOML file with a table of twelve months by ten bands for each
// quantity of each set.
#pragma once

#include <string>

#include "climate/station.h"

namespace quorvel::climatefile {

// Throws host::InputError at the first fault.
Station read_station(const std::string& path);

// With a comment above, of lines that begin with #. The numbers read back as the same ones.
std::string station_text(const Station& station, const std::string& comment);

}  // namespace quorvel::climatefile
