#include "calculation/wall/climates.h"

#include <algorithm>
#include <array>

namespace quorvel::wall {

std::vector<Air> monthly_means(const climatefile::WeatherYear& weather) {
    struct Sums {
        double temperature = 0, pressure = 0;
        int hours = 0;
    };
    std::array<Sums, 12> sums;
    for (const auto& day : weather.days) {
        Sums& sum = sums[static_cast<std::size_t>(day.month - 1)];
        for (const auto& hour : day.hours) {
            sum.temperature += hour.dry_bulb;
            sum.pressure += Air{hour.dry_bulb, std::min(hour.relative_humidity, 100.0)}.vapour_pressure();
            ++sum.hours;
        }
    }
    std::vector<Air> means;
    for (const auto& [temperature, pressure, hours] : sums)
        means.push_back(air_of_pressure(temperature / hours, pressure / hours));
    return means;
}

std::vector<Climate> climates(const Indoors& inside, const std::vector<Air>& outside) {
    std::vector<Climate> result;
    for (std::size_t i = 0; i < outside.size(); ++i) {
        const double t = inside.temperature[i];
        const auto by_class = [&] {
            return air_of_pressure(t, outside[i].vapour_pressure() +
                                          vapour_excess(*inside.humidity_class, outside[i].temperature));
        };
        result.push_back({inside.humidity_class ? by_class() : Air{t, inside.humidity[i]}, outside[i]});
    }
    return result;
}

}  // namespace quorvel::wall
