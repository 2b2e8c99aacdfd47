#pragma once

#include <limits>

namespace quorvel::host {

// A quantity that does not exist, such as the sun's direction at night.
inline constexpr double none = std::numeric_limits<double>::quiet_NaN();

}  // namespace quorvel::host
