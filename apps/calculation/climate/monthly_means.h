#pragma once

#include <array>

#include "calculation/climate/station.h"
#include "calculation/climate/weather.h"

namespace quorvel::climatefile {

// Of all hours or days of a month.
struct MonthlyMeans {
    std::array<double, month_count> temperature;      // °C
    std::array<double, month_count> vapour_pressure;  // Pa
};

// Of the bands by their frequency. A day's mean is that of its values at the times A and B, as it
// is of the wave between them. NaN where a value of the month is. Set 0 or 1; both have the same
// days. The atmospheric pressure in Pa, such as that of the standard atmosphere at the height
// (atmosphere.h).
MonthlyMeans monthly_means(const Station& station, std::size_t set, double pressure);

// Of the hours, relative humidity above 100 % as 100 %.
MonthlyMeans monthly_means(const WeatherYear& weather);

}  // namespace quorvel::climatefile
