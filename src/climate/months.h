// Months, 1 to 12, and what has a value for each of them.
#pragma once

#include <array>

#include "base/numeric.h"

namespace quorvel::climate {

using MonthlyRow = std::array<Real, 12>;  // January to December

template <class I>
constexpr auto is_month(I month) noexcept {
    return (month >= 1) & (month <= 12);
}

}  // namespace quorvel::climate
