#include "climate/bands.h"

#include <algorithm>

namespace quorvel::climate {
namespace {

constexpr int rows_per_set = 92;
constexpr int row_count = 2 * rows_per_set;

constexpr std::array<MonthlyRow, row_count> table{{
#include "band_rows.inc"
}};

Real value(std::int64_t row, Integer month) noexcept {
    return band_row(row)[static_cast<std::size_t>(table_row(month, 12))];
}

// Number of the row before a set's first.
constexpr int set_base(Integer set) noexcept { return set == 2 ? rows_per_set : 0; }

// Number of the row before band 1: of F for quantity 0, of Q1 to Q8 for 1 to 8.
constexpr int quantity_base(Integer set, int quantity) noexcept {
    return set_base(set) + 2 + band_count * quantity;
}

constexpr Integer nearest_band(Integer band) noexcept { return table_row(band, band_count) + 1; }

// The month's climate with quantity(base) for each quantity, base being the row before its band 1.
template <class Quantity>
BandClimate gather(Integer month, Integer set, Quantity quantity) noexcept {
    BandClimate climate;
    for (int q = 0; q < band_quantities; ++q)
        climate.quantities[static_cast<std::size_t>(q)] = quantity(quantity_base(set, q + 1));
    climate.time_a = value(set_base(set) + 1, month);
    climate.time_b = value(set_base(set) + 2, month);
    return climate;
}

}  // namespace

const MonthlyRow& band_row(std::int64_t row) noexcept {
    return table[static_cast<std::size_t>(std::clamp<std::int64_t>(row, 1, row_count) - 1)];
}

Real interpolate_band_rows(Integer base, Integer lower, Integer upper, Integer month,
                           Real weight) noexcept {
    return interpolate(value(std::int64_t{base} + lower, month),
                       value(std::int64_t{base} + upper, month), weight);
}

BandClimate band_climate(Integer band, Integer month, Integer set) noexcept {
    return gather(month, set, [=](int base) { return value(base + nearest_band(band), month); });
}

BandClimate band_climate_at(Real percentage, Integer month, Integer set) noexcept {
    const int frequencies = quantity_base(set, 0);
    const auto [lower, upper, weight] =
        locate_band(percentage / 100.0f, Ends::Extrapolated,
                    [=](Integer band) { return value(frequencies + band, month); });
    return gather(month, set, [=, lower = lower, upper = upper, weight = weight](int base) {
        return interpolate_band_rows(base, lower, upper, month, weight);
    });
}

Real band_percentage(Integer band, Integer month, Integer set) noexcept {
    return 100.0f * value(quantity_base(set, 0) + nearest_band(band), month);
}

}  // namespace quorvel::climate
