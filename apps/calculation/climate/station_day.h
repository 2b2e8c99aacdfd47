// The day of a month that the bands of a station tell of.
#pragma once

#include <optional>

#include "calculation/daily_temperature.h"

namespace quorvel::climatefile {

// What a climate data file holds of a month at a percentage of days, in one of its sets: the hours
// when the air of the day is warmest (A) and coldest (B), in solar time, and its temperatures then,
// °C.
struct MonthRecord {
    double hour_a, hour_b;
    double air_a, air_b;
};

struct StationDay {
    host::DailyTemperature air;
    bool is_turned;   // it is warmer at hour B, as days of a band may be in a polar night
    bool is_assumed;  // the hours coincide: the coldest is taken 10 hours ahead of the warmest
};

// Temperatures within -90 to 60 °C and hours within 0 to 24 make a day, whatever their order:
// nothing where one of them is outside, or NaN. The day is one of many like it, so the coldest hour
// may be in the evening.
std::optional<StationDay> station_day(const MonthRecord& record);

}  // namespace quorvel::climatefile
