// The band search: where a cumulative frequency lies among the ten bands of a month.
#pragma once

#include "frame/numeric.h"

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

// Below band 1 its values are extrapolated backwards by one step at most; beyond band 10 they stay.
template <class Frequency>
BandPosition locate_band(Real fraction, Frequency F) noexcept {
    const auto [lower, upper, weight] = bracketing_bands(fraction, F);
    return {lower, upper, limited(weight, -1.0f, 1.0f)};
}

constexpr Real interpolate(Real lower, Real upper, Real weight) noexcept {
    return lower + (upper - lower) * weight;
}

}  // namespace quorvel::climate
