#include "calculation/climate/sky_cover.h"

#include <algorithm>
#include <cmath>

#include "calculation/heat_radiation.h"
#include "calculation/none.h"

namespace quorvel::climatefile {
namespace {

using host::kelvin;
using host::stefan_boltzmann;

constexpr double overcast = 10;            // tenths
constexpr double least_sine = 0.17364818;  // of 10°

// Of the sky's emissivity, a clear one's; rises with the cover throughout.
double emissivity_factor(double n) { return 1 + n * (0.0224 + n * (-0.0035 + n * 0.00028)); }

}  // namespace

double cover_by_clearness(const Hour& hour, double sine_of_altitude) {
    if (sine_of_altitude < least_sine) return host::none;
    const double clear = 910 * sine_of_altitude - 30;
    const double global = hour.direct_normal * sine_of_altitude + hour.diffuse_horizontal;
    const double lost = std::clamp(1 - global / clear, 0.0, 0.75);  // NaN stays NaN
    return overcast * std::pow(lost / 0.75, 1 / 3.4);
}

double cover_by_infrared(const Hour& hour) {
    const double clear_emissivity = 0.787 + 0.764 * std::log((hour.dew_point + kelvin) / kelvin);
    const double factor = hour.horizontal_infrared / stefan_boltzmann /
                          std::pow(hour.dry_bulb + kelvin, 4) / clear_emissivity;
    if (std::isnan(factor)) return host::none;
    double low = 0, high = overcast;
    while (high - low > 0.01) {
        const double middle = (low + high) / 2;
        (emissivity_factor(middle) < factor ? low : high) = middle;
    }
    return factor <= 1 ? 0 : (low + high) / 2;
}

}  // namespace quorvel::climatefile
