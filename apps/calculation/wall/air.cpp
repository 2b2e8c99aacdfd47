#include "calculation/wall/air.h"

#include <algorithm>

#include "calculation/moist_air.h"

namespace quorvel::wall {

double Air::vapour_pressure() const { return lib::vapour_pressure(temperature, humidity); }

Air air_of_pressure(double temperature, double vapour_pressure) {
    return {temperature, host::relative_humidity(temperature, vapour_pressure)};
}

double saturation_temperature(double vapour_pressure) {
    double low = -100, high = 100;
    while (high - low > 1e-6) {
        const double middle = (low + high) / 2;
        (lib::saturation_pressure(middle) < vapour_pressure ? low : high) = middle;
    }
    return (low + high) / 2;
}

double vapour_excess(int humidity_class, double outside_temperature) {
    static constexpr double at_0_and_below[humidity_classes] = {270, 540, 810, 1080, 1360};  // Pa
    constexpr double none_from = 20;                                                         // °C
    return at_0_and_below[humidity_class - 1] *
           std::clamp(1 - outside_temperature / none_from, 0.0, 1.0);
}

}  // namespace quorvel::wall
