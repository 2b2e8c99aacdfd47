#include "calculation/wall/climates.h"

namespace quorvel::wall {

std::vector<Air> outside_air(const climatefile::MonthlyMeans& means) {
    std::vector<Air> air;
    for (std::size_t month = 0; month < means.temperature.size(); ++month)
        air.push_back(air_of_pressure(means.temperature[month], means.vapour_pressure[month]));
    return air;
}

std::vector<Climate> climates(const Indoors& inside, const std::vector<Air>& outside) {
    std::vector<Climate> result;
    for (std::size_t i = 0; i < outside.size(); ++i) {
        const double t = inside.temperature[i];
        const auto by_class = [&] {
            return air_of_pressure(
                t, outside[i].vapour_pressure() +
                       vapour_excess(*inside.humidity_class, outside[i].temperature));
        };
        result.push_back(
            {inside.humidity_class ? by_class() : Air{t, inside.humidity[i]}, outside[i]});
    }
    return result;
}

}  // namespace quorvel::wall
