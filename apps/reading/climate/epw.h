// A year of hourly weather data in the EPW format: comma-separated lines, a header ahead of the
// data.
#pragma once

#include <string>

#include "calculation/climate/weather.h"

namespace quorvel::climatefile {

// Whole: values that are missing or impossible are replaced and counted, as mended_weather.h says;
// humidities of up to 115 % and irradiances down to -20 Wh/m², which instruments do give, are not
// impossible. The name of the place becomes UTF-8. Throws host::InputError at the first fault that
// cannot be mended.
WeatherYear read_epw(const std::string& path);

}  // namespace quorvel::climatefile
