#include "calculation/climate/monthly_means.h"

#include <algorithm>

#include "calculation/moist_air.h"

namespace quorvel::climatefile {

MonthlyMeans monthly_means(const Station& station, std::size_t set, double pressure) {
    MonthlyMeans means{};
    for (std::size_t month = 0; month < month_count; ++month) {
        double before = 0;
        for (std::size_t band = 0; band < band_count; ++band) {
            const auto Q = [&](std::size_t q) -> double {
                return station.rows[band_row(set, q, band)][month];
            };
            const auto vapour = [&](double air, double wet_bulb) {
                return lib::vapour_pressure_from_psychrometer(air, wet_bulb, pressure, host::sling);
            };
            const double share = Q(0) - before;
            means.temperature[month] += share * (Q(3) + Q(4)) / 2;
            means.vapour_pressure[month] += share * (vapour(Q(3), Q(5)) + vapour(Q(4), Q(6))) / 2;
            before = Q(0);
        }
    }
    return means;
}

MonthlyMeans monthly_means(const WeatherYear& weather) {
    MonthlyMeans means{};
    std::array<int, month_count> hours{};
    for (const WeatherDay& day : weather.days) {
        const auto month = static_cast<std::size_t>(day.month - 1);
        for (const Hour& hour : day.hours) {
            means.temperature[month] += hour.dry_bulb;
            means.vapour_pressure[month] +=
                lib::vapour_pressure(hour.dry_bulb, std::min(hour.relative_humidity, 100.0));
            ++hours[month];
        }
    }
    for (std::size_t month = 0; month < month_count; ++month) {
        means.temperature[month] /= hours[month];
        means.vapour_pressure[month] /= hours[month];
    }
    return means;
}

}  // namespace quorvel::climatefile
