// The day of a month that the bands of a station tell of.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "calculation/daily_temperature.h"

namespace quorvel::climatefile {

// What a climate data file holds of a month at a percentage of days, in one of its sets.
// Temperatures in °C, hours in solar time.
struct MonthRecord {
    double hour_a, hour_b;  // when the air of the day is warmest, and coldest
    double air_a, air_b;    // temperatures then
    double wet_bulb_a, wet_bulb_b;
    double beam_factor, diffuse_factor;  // Q1 and Q2, on the design irradiance of a clear sky
    double cloud_free;                   // Q7, share of the sky, 0 to 1
};

struct StationDay {
    host::DailyTemperature air;
    double wet_bulb_at_min, wet_bulb_at_max;  // °C, when the air is coldest and warmest
    double beam_factor, diffuse_factor;
    double cloud_free;
    std::vector<std::string> notes;  // what had to be assumed, a sentence each without a full stop
};

// Temperatures within -90 to 60 °C and hours within 0 to 24 make a day, whatever their order:
// nothing where one of them is outside, or NaN. The day is one of many like it, so the coldest hour
// may be in the evening. Where the temperature falls from hour B to hour A, as the days of a band
// may in a polar night, the day has its mean throughout; where the hours coincide, the coldest one
// is taken 10 hours ahead of the warmest. Both are noted.
std::optional<StationDay> station_day(const MonthRecord& record);

}  // namespace quorvel::climatefile
