// What is told of climate data files.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "calculation/climate/station.h"
#include "telling/answer.h"

namespace quorvel::climatefile {

// A station's bands, of some of its sets and months, which count from 0.
host::Answer told(const Station& station, const std::vector<std::size_t>& sets,
                  const std::vector<std::size_t>& months);

// The stations of a file, with their places.
host::Answer told_stations(const std::string& file, const std::vector<Station>& stations);

// The violations found in so many stations of a file; wrong if there are any.
host::Answer told_violations(const std::string& file, std::size_t stations,
                             const std::vector<std::string>& violations);

}  // namespace quorvel::climatefile
