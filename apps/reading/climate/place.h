// The places of the stations, which stand beside a climate data file: europe.climate.toml beside
// europe.climate.
#pragma once

#include <initializer_list>
#include <map>
#include <string>
#include <string_view>

#include "calculation/climate/station.h"
#include "reading/input.h"

namespace quorvel::climatefile {

std::string file_of_places(const std::string& data_file);

// By the numbers of the stations; none where there is no such file. Throws host::InputError.
std::map<int, Place> read_places(const std::string& data_file);

// The place of the number, or one that has it for its name: "Station 3".
Place place_of(const std::map<int, Place>& places, int number);

// A place in one table of a file: its name, and what else is given of it. The required keys are
// those of the whole table.
Place read_place(const host::InputTable& table, std::initializer_list<std::string_view> required);

}  // namespace quorvel::climatefile
