// Degrees for people, radians for the library.
#pragma once

#include <numbers>

namespace quorvel::host {

// The last number of single precision below π/2.
inline constexpr double right_angle = 1.57079625;

constexpr double radians(double degrees) { return degrees * (std::numbers::pi / 180); }
constexpr double degrees(double radians) { return radians * (180 / std::numbers::pi); }

}  // namespace quorvel::host
