// Daily courses of half cosine waves: down from one hour to another, and up again through midnight.
// Hours are 0 to 24.
#pragma once

#include "base/contract.h"
#include "math/math.h"

namespace quorvel::climate {

// 1 at the first hour, -1 at the second; rising is the time [h] from the second through midnight to
// the first.
inline Real half_waves(Real hour, Real first, Real second, Real rising) noexcept {
    if (hour < first) return -math::cos(pi * (hour + 24.0f - second) / rising);
    if (hour < second) return math::cos(pi * (hour - first) / (second - first));
    return -math::cos(pi * (hour - second) / rising);
}

// Between the extremes of a day and the hours at which they are reached; the mean if these
// coincide.
inline Real daily_temperature(Real hour, Real highest, Real lowest, Real hour_of_highest,
                              Real hour_of_lowest) noexcept {
    const Real mean = (highest + lowest) / 2.0f;
    const Real amplitude = mean - lowest;
    const Real tx = hour_of_highest, tn = hour_of_lowest;
    if (tx == tn) return mean;
    return tx < tn ? mean + amplitude * half_waves(hour, tx, tn, tx + 24.0f - tn)
                   : mean - amplitude * half_waves(hour, tn, tx, 24.0f - tx + tn);
}

// Highest at the first hour if factor times amplitude is positive; the first hour comes before the
// second.
inline Real daily_value(Real hour, Real mean, Real amplitude, Real first, Real second,
                        Real factor) noexcept {
    return mean + factor * amplitude * half_waves(hour, first, second, first + 24.0f - second);
}

}  // namespace quorvel::climate
