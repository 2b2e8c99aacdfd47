#pragma once

#include <array>

#include "calculation/climate/station.h"

namespace quorvel::climatefile {

// Of all days of a month, the bands by their frequency. A day's mean is that of its values at the
// times A and B, as it is of the wave between them. NaN where a value of the month is.
struct MonthlyMeans {
    std::array<double, month_count> temperature;      // °C
    std::array<double, month_count> vapour_pressure;  // Pa
};

// Set 0 or 1; both have the same days. The atmospheric pressure in Pa, such as that of the standard
// atmosphere at the height (atmosphere.h).
MonthlyMeans monthly_means(const Station& station, std::size_t set, double pressure);

}  // namespace quorvel::climatefile
