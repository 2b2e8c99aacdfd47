// The band search: where a cumulative frequency lies among the ten bands of a month.
#pragma once

#include "base/numeric.h"

namespace quorvel::climate {

inline constexpr int band_count = 10;

// A value is that of the lower band plus weight times the step to the upper one.
struct BandPosition {
    Integer lower, upper;  // 1..10
    Real weight;           // outside 0..1 the value is extrapolated
};

// F(k) is the cumulative frequency of band k, a fraction. A caller's frequencies may be anything:
// bands of equal frequency are skipped as far as band 10, where the weight may become infinite or,
// for a fraction equal to them all, not a number.
template <class Frequency>
BandPosition bracketing_bands(Real fraction, Frequency F) noexcept {
    Integer lower = 1;
    if (!(fraction <= F(1))) {
        while (lower < band_count - 1 && !(F(lower + 1) >= fraction)) ++lower;
    }
    Integer upper = lower + 1;
    while (upper < band_count && F(upper) - F(lower) == 0.0f) ++upper;
    return {lower, upper, (fraction - F(lower)) / (F(upper) - F(lower))};
}

// Extrapolated backwards from band 1, by one step at most; beyond band 10 its values.
template <class Frequency>
BandPosition extrapolated_band(Real fraction, Frequency F) noexcept {
    const auto [lower, upper, weight] = bracketing_bands(fraction, F);
    return {lower, upper, limited(weight, -1.0f, 1.0f)};
}

// At and beyond the ends band 1 or band 10 itself.
template <class Frequency>
BandPosition held_band(Real fraction, Frequency F) noexcept {
    if (fraction <= F(1)) return {1, 1, 0.0f};
    if (fraction >= F(band_count)) return {band_count, band_count, 0.0f};
    const auto [lower, upper, weight] = bracketing_bands(fraction, F);
    return {lower, upper, lesser(absolute(weight), 1.0f)};
}

// In the frequencies of a caller, twelve months of band 1 first; a month outside picks the nearest.
inline BandPosition locate_band(Real fraction, Integer month, const Real* frequencies) noexcept {
    const Integer column = table_row(month, 12);
    return extrapolated_band(fraction,
                             [=](Integer band) { return frequencies[12 * (band - 1) + column]; });
}

constexpr Real interpolate(Real lower, Real upper, Real weight) noexcept {
    return lower + (upper - lower) * weight;
}

}  // namespace quorvel::climate
