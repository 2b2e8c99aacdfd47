#pragma once

namespace quorvel::host {

inline constexpr double stefan_boltzmann = 5.67e-8;  // W/m²K⁴
inline constexpr double kelvin = 273.15;             // K at 0 °C

}  // namespace quorvel::host
