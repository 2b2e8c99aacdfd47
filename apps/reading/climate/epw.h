// A year of hourly weather data in the EPW format: comma-separated lines, eight of them ahead of
// the data.
#pragma once

#include <string>

#include "calculation/climate/weather.h"

namespace quorvel::climatefile {

// Throws host::InputError at the first fault.
WeatherYear read_epw(const std::string& path);

}  // namespace quorvel::climatefile
