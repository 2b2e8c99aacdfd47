#pragma once

#include <vector>

#include "calculation/climate/station.h"
#include "calculation/climate/weather.h"

namespace quorvel::climatefile {

// The bands of a year's weather, by the method that docs/input/climate.md states; place and number
// of the station are left to the caller.
struct BandClimate {
    Station station;
    std::vector<std::size_t> flat_months;  // whose mean day never warms: their times are 5 and 15 h
};

// Of weather without NaN (mended_weather.h).
BandClimate band_climate(const WeatherYear& year);

}  // namespace quorvel::climatefile
