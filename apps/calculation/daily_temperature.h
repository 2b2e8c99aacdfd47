// Air temperature over a day that is known by its extremes, as the usual design methods take it:
// half a cosine from the minimum up to the maximum, another half back down through the night.
#pragma once

#include <cmath>
#include <numbers>

namespace quorvel::host {

struct DailyTemperature {
    double minimum, maximum;          // °C
    double hour_of_min, hour_of_max;  // 0 to 24, not the same; the next day is like this one

    double operator()(double hour) const {
        const double rise = hour_of_max - hour_of_min + (hour_of_max > hour_of_min ? 0.0 : 24.0);
        const double since_min =
            hour >= hour_of_min ? hour - hour_of_min : hour - hour_of_min + 24.0;
        const double phase =
            since_min < rise ? since_min / rise : 1.0 + (since_min - rise) / (24.0 - rise);
        return (maximum + minimum) / 2 -
               (maximum - minimum) / 2 * std::cos(std::numbers::pi * phase);
    }
};

}  // namespace quorvel::host
