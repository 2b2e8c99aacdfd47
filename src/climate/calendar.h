// The design day of each month: one day that stands for the month in design calculations.
#pragma once

#include "base/contract.h"

namespace quorvel::climate {

struct DesignDay {
    Integer of_year;  // 1..365, no leap day
    Integer of_month;
};

// January to December. The two columns are separate sets and not one date: they differ by up to two
// days either way.
inline constexpr DesignDay design_days[12] = {
    {21, 21},  {52, 20},  {80, 22},  {112, 20}, {142, 21}, {172, 21},
    {204, 23}, {234, 24}, {265, 22}, {295, 23}, {326, 21}, {355, 22},
};

// The 29th before midsummer, the 4th after it; here both columns are the same date.
inline constexpr DesignDay second_design_days[12] = {
    {29, 29}, {57, 26}, {88, 29}, {118, 28}, {149, 29}, {172, 21},
    {185, 4}, {216, 4}, {247, 4}, {277, 4},  {308, 4},  {338, 4},
};

constexpr bool is_month(Integer month) noexcept { return month >= 1 && month <= 12; }

// The month's day of the year, or its day of the month with option 1; 0 for no month.
constexpr Integer selected_day(const DesignDay (&days)[12], Integer month,
                               Integer option) noexcept {
    if (!is_month(month)) return 0;
    const DesignDay& day = days[month - 1];
    return option == 1 ? day.of_month : day.of_year;
}

constexpr Integer design_day_by_option(Integer month, Integer option) noexcept {
    return selected_day(design_days, month, option);
}

constexpr Integer second_design_day_by_option(Integer month, Integer option) noexcept {
    return selected_day(second_design_days, month, option);
}

constexpr Integer design_day(Integer month) noexcept { return design_day_by_option(month, 0); }

constexpr Integer second_design_day(Integer month) noexcept {
    return second_design_day_by_option(month, 0);
}

}  // namespace quorvel::climate
