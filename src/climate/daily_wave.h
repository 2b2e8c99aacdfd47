// Daily courses of half cosine waves: down from one hour to another, and up again through midnight.
// Hours are 0 to 24.
#pragma once

#include "base/number.h"
#include "math/math.h"

namespace quorvel::climate {

// 1 at the first hour, -1 at the second; rising is the time, h, from the second through midnight to
// the first.
template <class R>
inline R half_waves(R hour, R first, R second, R rising) noexcept {
    const MaskOf<R> early = hour < first, falls = (hour < second) & !early;
    const R since = select(early, hour + 24.0f - second, hour - select(falls, first, second));
    const R wave = math::cos(pi * since / select(falls, second - first, rising));
    return select(falls, wave, -wave);
}

// Between the extremes of a day and the hours at which they are reached; the mean if these
// coincide.
template <class R>
inline R daily_temperature(R hour, R highest, R lowest, R hour_of_highest,
                           R hour_of_lowest) noexcept {
    const R mean = (highest + lowest) / 2.0f;
    const R amplitude = mean - lowest;
    const R tx = hour_of_highest, tn = hour_of_lowest;
    return piecewise(
        tx == tn, [&] { return mean; },  //
        tx < tn, [&] { return mean + amplitude * half_waves<R>(hour, tx, tn, tx + 24.0f - tn); },
        [&] { return mean - amplitude * half_waves<R>(hour, tn, tx, 24.0f - tx + tn); });
}

// Highest at the first hour if factor times amplitude is positive; the first hour comes before the
// second.
template <class R>
R daily_value(R hour, R mean, R amplitude, R first, R second, R factor) noexcept {
    return mean + factor * amplitude * half_waves<R>(hour, first, second, first + 24.0f - second);
}

}  // namespace quorvel::climate
