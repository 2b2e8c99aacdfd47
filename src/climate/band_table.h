// Band climate summary: each month's days in ten bands, from the built-in table of 184 rows.
//
// Two sets of 92 rows each, a value per month in a row. Rows of a set, counted from 1:
//   1, 2     time A, time B            hour of the day
//   3..12    F, bands 1 to 10          cumulative frequency, a fraction
//   13..92   Q1 to Q8, ten rows each   band quantities
#pragma once

#include <algorithm>
#include <cstdint>

#include "climate/band_search.h"
#include "climate/months.h"

namespace quorvel::climate {

inline constexpr int rows_per_set = 92;
inline constexpr int band_row_count = 2 * rows_per_set;

extern const std::array<MonthlyRow, band_row_count> band_rows;

// Row 1..184; numbers outside pick the first or last row. Wide, for sums of any two Integers.
template <class R>
const MonthlyRow& band_row(std::int64_t row) noexcept {
    return band_rows[static_cast<std::size_t>(std::clamp<std::int64_t>(row, 1, band_row_count) -
                                              1)];
}

// Months outside pick the nearest.
inline Real band_value(std::int64_t row, Integer month) noexcept {
    return band_row<Real>(row)[static_cast<std::size_t>(table_row(month, 12))];
}

// Between the rows base + lower and base + upper.
template <class R>
R interpolate_band_rows(Integer base, Integer lower, Integer upper, Integer month,
                        R weight) noexcept {
    return interpolate(band_value(std::int64_t{base} + lower, month),
                       band_value(std::int64_t{base} + upper, month), weight);
}

template <class R>
struct BandClimate {
    R percentage;  // cumulative, of days
    R q1, q2, q3, q4, q5, q6;
    R time_a, time_b;  // h
    R q7, q8;
};

// Of a band or, for band 0, interpolated at the percentage. Set 2 or, for any other number, set 1;
// bands and months outside pick the nearest.
template <class R>
inline BandClimate<R> band_climate(Integer band, Integer month, Integer set,
                                   R percentage) noexcept {
    const std::size_t before = set == 2 ? rows_per_set : 0;
    const auto column = static_cast<std::size_t>(table_row(month, 12));
    const auto value = [=](std::size_t row) { return band_rows[before + row - 1][column]; };
    const auto frequency = [=](Integer k) { return value(2 + static_cast<std::size_t>(k)); };
    const Integer nearest = table_row(band, band_count) + 1;
    const BandPosition at = band == 0 ? extrapolated_band(percentage / 100.0f, frequency)
                                      : BandPosition{nearest, nearest, 0.0f};
    const auto lower = static_cast<std::size_t>(at.lower);
    const auto upper = static_cast<std::size_t>(at.upper);
    const auto Q = [=](std::size_t quantity) {
        const std::size_t base = 2 + band_count * quantity;
        if (band != 0) return value(base + lower);
        return interpolate(value(base + lower), value(base + upper), at.weight);
    };
    const R given = band == 0 ? percentage : 100.0f * frequency(nearest);
    // clang-format off
    return {given, Q(1), Q(2), Q(3), Q(4), Q(5), Q(6), value(1), value(2), Q(7), Q(8)};
    // clang-format on
}

}  // namespace quorvel::climate
