#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "climate/station.h"

namespace quorvel::climatefile {

// Tables of the bands, one for each of the sets and months.
std::string report(const Station& station, const std::vector<std::size_t>& sets,
                   const std::vector<std::size_t>& months);

}  // namespace quorvel::climatefile
