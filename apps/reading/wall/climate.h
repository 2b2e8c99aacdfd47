// The climate on the two sides of an element, from the input, from weather or from a climate data
// file.
#pragma once

#include <string>
#include <vector>

#include "calculation/climate/mended_weather.h"
#include "calculation/wall/air.h"
#include "reading/input.h"

namespace quorvel::wall {

struct ReadClimate {
    std::vector<Climate> climates;  // one, or those of the months from January
    std::string source;             // where that outside comes from; empty: from the input itself
    std::vector<climatefile::Replacement> replaced;  // in the weather
    bool saturated_inside = false;  // the humidity class asks for more than air can hold
};

// A file of weather, if any, takes the place of all that the table says of the air outside. Throws
// host::InputError.
ReadClimate read_climate(const host::InputTable& table, const std::string& weather);

}  // namespace quorvel::wall
