#include "calculation/wall/surface.h"

#include <algorithm>
#include <cmath>

#include "calculation/moist_air.h"

namespace quorvel::wall {
namespace {

double temperature_factor(const std::vector<Section>& sections, double inside, double outside) {
    double least = 1;
    for (const Section& section : sections)
        least = std::min(least, 1 - inside / (inside + resistance(section) + outside));
    return least;
}

SurfaceOfMonth month(const Climate& climate, double factor, double humidity) {
    const double inside = climate.inside.temperature, outside = climate.outside.temperature;
    const double pressure = climate.inside.vapour_pressure();
    SurfaceOfMonth month{};
    month.temperature = std::lerp(outside, inside, factor);
    month.humidity = host::relative_humidity(month.temperature, pressure);
    month.least_temperature = saturation_temperature(100 * pressure / humidity);
    if (outside < std::min(inside, month.least_temperature))
        month.required = (month.least_temperature - outside) / (inside - outside);
    return month;
}

}  // namespace

SurfaceYear surface_year(const std::vector<Section>& sections, const Surfaces& surfaces,
                         std::span<const Climate> climates, const SurfaceDemand& demand) {
    SurfaceYear year{};
    year.factor = temperature_factor(sections, demand.inside_resistance, surfaces.outside);
    for (const Climate& climate : climates)
        year.months.push_back(month(climate, year.factor, demand.humidity));
    const auto demanding = [&](std::size_t m) {
        const double required = year.months[m].required;
        return std::pair(std::isnan(required) ? 0 : required, -climates[m].outside.temperature);
    };
    for (std::size_t m = 1; m < climates.size(); ++m)
        if (demanding(m) > demanding(year.critical)) year.critical = m;
    year.required = year.months[year.critical].required;
    return year;
}

}  // namespace quorvel::wall
