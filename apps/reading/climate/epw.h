// A year of hourly weather data in the EPW format: comma-separated lines, a header ahead of the data.
#pragma once

#include <string>

#include "calculation/climate/mended_weather.h"
#include "calculation/climate/weather.h"

namespace quorvel::climatefile {

// Values that are missing or impossible become NaN; humidities of up to 115 % and irradiances down to
// -20 Wh/m², which instruments do give, stay. The name of the place becomes UTF-8. Throws
// host::InputError at the first fault that is not one of a value.
WeatherYear read_epw(const std::string& path);

// The same, whole: see mended_weather.h. The library must have been loaded. Throws host::InputError
// for what cannot be mended too.
MendedWeather read_weather(const std::string& path);

}  // namespace quorvel::climatefile
