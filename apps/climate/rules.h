// What the values of a station must keep to.
#pragma once

#include <string>
#include <vector>

#include "climate/station.h"

namespace quorvel::climatefile {

// What is wrong with a band's cumulative frequency beside the others of its month; empty if
// nothing is. Bands without days repeat the frequency before them.
std::string frequency_fault(const Station& station, std::size_t set, std::size_t month,
                            std::size_t band);

// One line for each violated rule: "set 1, July, band 10: F is 0.98; allowed 1 in band 10".
std::vector<std::string> violations(const Station& station);

// The value as the user wrote it: as many digits as the number needs.
std::string shortest(float value);

}  // namespace quorvel::climatefile
