// Band climate summary: each month's days in ten bands, from the built-in table of 184 rows.
//
// Two sets of 92 rows each, a value per month in a row. Rows of a set, counted from 1:
//   1, 2     time A, time B            hour of the day
//   3..12    F, bands 1 to 10          cumulative frequency, a fraction
//   13..92   Q1 to Q8, ten rows each   band quantities
#pragma once

#include <array>
#include <cstdint>

#include "climate/band_search.h"

namespace quorvel::climate {

inline constexpr int band_quantities = 8;

using MonthlyRow = std::array<Real, 12>;

// Row 1..184; numbers outside pick the first or last row. Wide, for sums of any two Integers.
const MonthlyRow& band_row(std::int64_t row) noexcept;

// Between the rows base + lower and base + upper.
Real interpolate_band_rows(Integer base, Integer lower, Integer upper, Integer month,
                           Real weight) noexcept;

struct BandClimate {
    std::array<Real, band_quantities> quantities;  // Q1 to Q8
    Real time_a, time_b;
};

// Set 2 or, for any other number, set 1; bands and months outside pick the nearest.
BandClimate band_climate(Integer band, Integer month, Integer set) noexcept;
BandClimate band_climate_at(Real percentage, Integer month, Integer set) noexcept;

// Cumulative frequency of a band in percent.
Real band_percentage(Integer band, Integer month, Integer set) noexcept;

}  // namespace quorvel::climate
