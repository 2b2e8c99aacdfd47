// The design day of each month: one day that stands for the month in design calculations.
#pragma once

#include "climate/months.h"

namespace quorvel::climate {

// January to December as days of the year, 1 to 365 without leap day, then as days of the month.
// The two are separate sets and not one date: they differ by up to two days either way.
inline constexpr Integer design_days[24] = {
    21, 52, 80, 112, 142, 172, 204, 234, 265, 295, 326, 355,
    21, 20, 22, 20,  21,  21,  23,  24,  22,  23,  21,  22,
};

// The 29th before midsummer, the 4th after it; here both are the same date.
inline constexpr Integer second_design_days[24] = {
    29, 57, 88, 118, 149, 172, 185, 216, 247, 277, 308, 338,
    29, 26, 29, 28,  29,  21,  4,   4,   4,   4,   4,   4,
};

// Of the month with option 1, else of the year; 0 for no month.
template <class R>
IntegerOf<R> selected_day(const Integer* days, IntegerOf<R> month, IntegerOf<R> option) noexcept {
    using I = IntegerOf<R>;
    return either(
        is_month(month),
        [&] { return lookup(days, table_row(month, 12) + select(option == 1, I(12), I(0))); },
        [&] { return I(0); });
}

template <class R>
IntegerOf<R> design_day_by_option(IntegerOf<R> month, IntegerOf<R> option) noexcept {
    return selected_day<R>(design_days, month, option);
}

template <class R>
IntegerOf<R> second_design_day_by_option(IntegerOf<R> month, IntegerOf<R> option) noexcept {
    return selected_day<R>(second_design_days, month, option);
}

template <class R>
IntegerOf<R> design_day(IntegerOf<R> month) noexcept {
    return design_day_by_option<R>(month, IntegerOf<R>(0));
}

template <class R>
IntegerOf<R> second_design_day(IntegerOf<R> month) noexcept {
    return second_design_day_by_option<R>(month, IntegerOf<R>(0));
}

}  // namespace quorvel::climate
