// A station of a climate data file: two sets of monthly tables of ten bands of days, in the rows of
// the file. Sets, months, bands and rows count from 0 here, from 1 for the user.
#pragma once

#include <array>
#include <string>

#include "calculation/none.h"
#include "quorvel/climate_file_layout.h"

namespace quorvel::climatefile {

using namespace climate_file_layout;

inline constexpr int last_station_number = 9999;  // of the files written here

using MonthlyRow = std::array<float, month_count>;

struct Quantity {
    const char* key;
    const char* meaning;
    double low, high;  // allowed
    const char* unit;
    int decimals;  // worth showing
};

inline constexpr std::array<const char*, set_count> set_keys = {"set1", "set2"};
inline constexpr std::array<Quantity, 2> times = {{
    {"time_A", "hour of the warmest air, solar time", 0, 24, "h", 2},
    {"time_B", "hour of the coldest air, solar time", 0, 24, "h", 2},
}};
inline constexpr std::array<Quantity, quantity_count> quantities = {{
    {"F", "share of the days in a band and those before it", 0, 1, "of the days", 4},
    {"Q1", "beam factor, on the design irradiance of a clear sky", 0, 10, "of the design value", 3},
    {"Q2", "diffuse factor, on that of a clear sky", 0, 10, "of the design value", 3},
    {"Q3", "air temperature at time A, °C", -90, 60, "°C", 2},
    {"Q4", "air temperature at time B, °C", -90, 60, "°C", 2},
    {"Q5", "wet-bulb temperature at time A, °C", -90, 60, "°C", 2},
    {"Q6", "wet-bulb temperature at time B, °C", -90, 60, "°C", 2},
    {"Q7", "cloud-free share of the sky", 0, 1, "of the sky", 3},
}};

// Where a station is. The climate data file has no room for it. What is not known is NaN, or empty.
struct Place {
    std::string name;
    double latitude = host::none, longitude = host::none;  // degrees, positive north and east
    double height = host::none;                            // m above sea level
    double zone = host::none;                              // of its standard time, h
};

struct Station {
    Place place;
    int number = 0;
    std::array<MonthlyRow, station_rows> rows{};

    // A number that was left out when the file was made.
    bool empty() const { return rows == std::array<MonthlyRow, station_rows>{}; }
};

}  // namespace quorvel::climatefile
