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
inline constexpr int band_quantities = 8;

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
BandClimate<R> band_climate(Integer band, Integer month, Integer set, R percentage) noexcept {
    const int before = set == 2 ? rows_per_set : 0;
    const auto frequency = [=](Integer k) { return band_value(before + 2 + k, month); };
    const Integer nearest = table_row(band, band_count) + 1;
    const BandPosition at = band == 0
                                ? locate_band(percentage / 100.0f, Ends::Extrapolated, frequency)
                                : BandPosition{nearest, nearest, 0.0f};
    const auto Q = [&](int quantity) {
        const int base = before + 2 + band_count * quantity;
        if (band != 0) return band_value(base + nearest, month);
        return interpolate_band_rows<R>(base, at.lower, at.upper, month, at.weight);
    };
    return {band == 0 ? percentage : 100.0f * frequency(nearest),
            Q(1),
            Q(2),
            Q(3),
            Q(4),
            Q(5),
            Q(6),
            band_value(before + 1, month),
            band_value(before + 2, month),
            Q(7),
            Q(8)};
}

}  // namespace quorvel::climate
