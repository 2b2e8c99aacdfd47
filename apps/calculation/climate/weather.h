// A year of hourly weather at a place.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace quorvel::climatefile {

// Temperatures, humidity and pressure at the end of the hour, irradiances over it. NaN where there
// is no value.
struct Hour {
    double dry_bulb, dew_point;  // °C
    double relative_humidity;    // %
    double pressure;             // Pa
    double horizontal_infrared;  // W/m², of the sky
    double direct_normal;        // W/m²
    double diffuse_horizontal;   // W/m²
    double sky_cover;            // tenths
    double opaque_cover;         // tenths, of clouds that hide what is above them
};

struct WeatherDay {
    int month;                   // 1 to 12
    int day_of_year;             // of 365; 29 February counts as the day before
    std::array<Hour, 24> hours;  // of standard time, the first one ends at 1:00
};

// The hours of the year in which one kind of remedy was put in place of one quantity's values,
// since they were missing or impossible: see mended_weather.h.
struct Replacement {
    double Hour::*of;
    std::string quantity, remedy;  // "relative humidity", "above 100 %: taken as 100 %"
    int hours;
    std::string first;  // "4 March, hour 5"
};

struct WeatherYear {
    std::string place;
    double latitude, longitude;  // degrees, positive north and east
    double zone;                 // standard time ahead of universal time, h
    double height;               // m above sea level
    std::vector<WeatherDay> days;
    std::vector<Replacement> replaced;
};

}  // namespace quorvel::climatefile
