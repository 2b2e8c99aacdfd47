#include "telling/sun.h"

#include <algorithm>
#include <cmath>

namespace quorvel::host {

std::string sun_times(double sunrise, double sunset, double solar_minus_clock) {
    if (sunset < sunrise) return "the sun does not rise";
    if (sunset > hours_a_day) return "the sun does not set";
    std::string text =
        "sunrise " + clock_time(sunrise) + ", sunset " + clock_time(sunset) + " solar time";
    if (std::isnan(solar_minus_clock)) return text;
    return text + " (" + clock_time(sunrise - solar_minus_clock) + " and " +
           clock_time(sunset - solar_minus_clock) + " by the clock)";
}

Scale hours_shown(double sunrise, double sunset, double step) {
    const bool sets = sunrise < sunset && sunset <= hours_a_day;
    if (!sets) return {0, hours_a_day, step};
    return {std::max(0.0, std::floor(sunrise) - 1),
            std::min<double>(hours_a_day, std::ceil(sunset) + 1), step};
}

}  // namespace quorvel::host
