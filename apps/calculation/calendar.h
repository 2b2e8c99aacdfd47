// The calendar of a year of 365 days, as every calculation of the library takes it.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace quorvel::host {

inline constexpr std::array<std::string_view, 12> month_names = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};

// A day of the year, 1 to 365, as "21 June".
inline std::string date(int day_of_year) {
    constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    std::size_t month = 0;
    for (; day_of_year > days[month]; ++month) day_of_year -= days[month];
    return std::to_string(day_of_year) + ' ' + std::string(month_names[month]);
}

}  // namespace quorvel::host
