#include "calculation/climate/station_day.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "calculation/climate/station.h"

namespace quorvel::climatefile {
namespace {

bool all_within(const Quantity& range, std::initializer_list<double> values) {
    for (const double value : values)
        if (!(value >= range.low && value <= range.high)) return false;
    return true;
}

}  // namespace

std::optional<StationDay> station_day(const MonthRecord& record) {
    if (!all_within(times[0], {record.hour_a, record.hour_b}) ||
        !all_within(quantities[3], {record.air_a, record.air_b}))
        return std::nullopt;
    const double a = std::fmod(record.hour_a, 24), b = std::fmod(record.hour_b, 24);
    if (a == b) {
        const auto [low, high] = std::minmax(record.air_a, record.air_b);
        return StationDay{{low, high, std::fmod(a + 14, 24), a}, false, true};
    }
    if (record.air_b > record.air_a)
        return StationDay{{record.air_a, record.air_b, a, b}, true, false};
    return StationDay{{record.air_b, record.air_a, b, a}, false, false};
}

}  // namespace quorvel::climatefile
