// The calendar of a year of 365 days, as every calculation of the library takes it.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace quorvel::host {

inline constexpr std::size_t months_of_year = 12;

inline constexpr std::array<std::string_view, months_of_year> month_names = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};

inline constexpr std::array<int, months_of_year> days_of_month = {31, 28, 31, 30, 31, 30,
                                                                  31, 31, 30, 31, 30, 31};

struct Date {
    std::size_t month;  // 0 January
    int day;
};

// Of a day of the year, 1 to 365.
constexpr Date date_of(int day_of_year) {
    Date date{0, day_of_year};
    while (date.day > days_of_month[date.month]) date.day -= days_of_month[date.month++];
    return date;
}

// A day of the year as "21 June".
inline std::string date(int day_of_year) {
    const auto [month, day] = date_of(day_of_year);
    return std::to_string(day) + ' ' + std::string(month_names[month]);
}

// "Jan" and so on: the months of a year that begins with any of them, 0 January.
inline std::vector<std::string> short_month_names(std::size_t first = 0) {
    std::vector<std::string> names;
    for (std::size_t m = 0; m < months_of_year; ++m)
        names.emplace_back(month_names[(first + m) % months_of_year].substr(0, 3));
    return names;
}

}  // namespace quorvel::host
