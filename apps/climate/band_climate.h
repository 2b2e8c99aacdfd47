#pragma once

#include "calculation/climate/weather.h"
#include "climate/station.h"

namespace quorvel::climatefile {

// The bands of a year's weather, by the method that help_on_hourly states. The library must have
// been loaded. Throws host::InputError when a day has no sky cover at all.
Station band_climate(const WeatherYear& year, const std::string& file);

}  // namespace quorvel::climatefile
