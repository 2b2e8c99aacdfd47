// Every transcendental function of the library goes through this header.
#pragma once

#include <cmath>

namespace quorvel::math {

inline float sin(float x) noexcept { return std::sin(x); }
inline float cos(float x) noexcept { return std::cos(x); }
inline float tan(float x) noexcept { return std::tan(x); }
inline float asin(float x) noexcept { return std::asin(x); }
inline float acos(float x) noexcept { return std::acos(x); }
inline float atan(float x) noexcept { return std::atan(x); }
inline float atan2(float y, float x) noexcept { return std::atan2(y, x); }
inline float exp(float x) noexcept { return std::exp(x); }
inline float log(float x) noexcept { return std::log(x); }
inline float log10(float x) noexcept { return std::log10(x); }
inline float exp10(float x) noexcept { return std::pow(10.0f, x); }
inline float pow(float x, float y) noexcept { return std::pow(x, y); }
inline float sqrt(float x) noexcept { return std::sqrt(x); }

inline double sin(double x) noexcept { return std::sin(x); }
inline double cos(double x) noexcept { return std::cos(x); }
inline double tan(double x) noexcept { return std::tan(x); }
inline double asin(double x) noexcept { return std::asin(x); }
inline double acos(double x) noexcept { return std::acos(x); }
inline double atan(double x) noexcept { return std::atan(x); }
inline double atan2(double y, double x) noexcept { return std::atan2(y, x); }
inline double exp(double x) noexcept { return std::exp(x); }
inline double log(double x) noexcept { return std::log(x); }
inline double pow(double x, double y) noexcept { return std::pow(x, y); }
inline double sqrt(double x) noexcept { return std::sqrt(x); }

}  // namespace quorvel::math
