// Small numeric helpers that are defined for every argument, numbers or not.
#pragma once

#include "base/number.h"

namespace quorvel {

// Zero-based row of a table for a one-based selector; selectors outside pick the nearest row.
template <class I>
constexpr I table_row(I selector, Integer rows) noexcept {
    return select(selector < 1, I(1), select(selector > rows, I(rows), selector)) - 1;
}

// Limits x to [low, high]; not a number stays not a number.
template <class R>
constexpr R limited(R x, Real low, Real high) noexcept {
    return select(x < low, R(low), select(x > high, R(high), x));
}

// The lesser of two; a where one is not a number.
template <class R>
constexpr R lesser(R a, R b) noexcept {
    return select(b < a, b, a);
}

// The greater of two; a where one is not a number.
template <class R>
constexpr R greater(R a, R b) noexcept {
    return select(a < b, b, a);
}

}  // namespace quorvel
