#include "calculation/climate/station_day.h"

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
    if (!all_within(time_a, {record.hour_a, record.hour_b}) ||
        !all_within(quantities[3], {record.air_a, record.air_b}))
        return std::nullopt;
    StationDay day{
        {record.air_b, record.air_a, std::fmod(record.hour_b, 24), std::fmod(record.hour_a, 24)},
        record.wet_bulb_b,
        record.wet_bulb_a,
        record.beam_factor,
        record.diffuse_factor,
        record.cloud_free,
        {}};
    host::DailyTemperature& air = day.air;
    if (air.minimum > air.maximum) {
        air.minimum = air.maximum = (air.minimum + air.maximum) / 2;
        day.notes.push_back(
            "the station's temperature falls from hour B to hour A: taken as its mean all day");
    }
    if (air.hour_of_min == air.hour_of_max) {
        air.hour_of_min = std::fmod(air.hour_of_max + 14, 24);
        day.notes.push_back(
            "the station's hours A and B coincide: the coldest taken 10 hours ahead of the "
            "warmest");
    }
    return day;
}

}  // namespace quorvel::climatefile
