// The elementary functions that searches need, of a number with its derivative, in double
// precision.
#pragma once

#include "base/with_slope.h"
#include "math/math.h"

namespace quorvel::math {

inline constexpr DoubleReal log_of_ten = 0x1.26bb1bbb55516p+1;

template <class D>
WithSlope<D> exp10(WithSlope<D> x) noexcept {
    const D y = math::exp(x.value * D(log_of_ten));
    return {y, y * D(log_of_ten) * x.slope};
}

template <class D>
WithSlope<D> log10(WithSlope<D> x) noexcept {
    return {math::log(x.value) / D(log_of_ten), x.slope / (x.value * D(log_of_ten))};
}

}  // namespace quorvel::math
