#include "climate/bands.h"
#include "entry/entry.h"

#include <algorithm>

using namespace quorvel;

// The percentage is written only when a band is given.
void CLBAND(const Integer* band, const Integer* month, const Integer* set, Real* percentage,
            Real* q1, Real* q2, Real* q3, Real* q4, Real* q5, Real* q6, Real* time_a, Real* time_b,
            Real* q7, Real* q8) {
    const bool given = *band != 0;
    const auto climate = given ? climate::band_climate(*band, *month, *set)
                               : climate::band_climate_at(*percentage, *month, *set);
    if (given) *percentage = climate::band_percentage(*band, *month, *set);
    Real* const quantities[climate::band_quantities] = {q1, q2, q3, q4, q5, q6, q7, q8};
    for (std::size_t q = 0; q < climate.quantities.size(); ++q)
        *quantities[q] = climate.quantities[q];
    *time_a = climate.time_a;
    *time_b = climate.time_b;
}

void CLBAN1(const Real* fraction, const Integer* month, const Real* frequencies, Integer* lower,
            Integer* upper, Real* weight) {
    const int column = table_row(*month, 12);
    const auto position =
        climate::locate_band(*fraction, climate::Ends::Extrapolated,
                             [=](Integer band) { return frequencies[12 * (band - 1) + column]; });
    *lower = position.lower;
    *upper = position.upper;
    *weight = position.weight;
}

void CLBAN2(const Integer* base, const Integer* lower, const Integer* upper, const Integer* month,
            const Real* weight, Real* value) {
    *value = climate::interpolate_band_rows(*base, *lower, *upper, *month, *weight);
}

void CLBAN3(const Integer* row, Real* values) {
    std::ranges::copy(climate::band_row(*row), values);
}
