// Small numeric helpers that are defined for every argument, numbers or not.
#pragma once

#include <algorithm>

#include "base/contract.h"

namespace quorvel {

// Zero-based row of a table for a one-based selector; selectors outside pick the nearest row.
constexpr int table_row(Integer selector, int rows) noexcept {
    return std::clamp(selector, Integer{1}, Integer{rows}) - 1;
}

// Limits x to [low, high]; not a number stays not a number.
constexpr Real limited(Real x, Real low, Real high) noexcept { return std::clamp(x, low, high); }

}  // namespace quorvel
