#pragma once

#include <algorithm>

#include "quorvel/psychro.h"

namespace quorvel::host {

inline constexpr int sling = 1;  // the psychrometer in moving air, as the library counts them

// %, of air at a temperature in °C and a vapour pressure in Pa; 100 where that exceeds saturation.
inline double relative_humidity(double temperature, double vapour_pressure) {
    return std::min(100 * vapour_pressure / lib::saturation_pressure(temperature), 100.0);
}

}  // namespace quorvel::host
