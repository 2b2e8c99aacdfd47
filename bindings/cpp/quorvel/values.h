// Between a host, which reckons in double precision, and the library, most of which is single: what
// lib::NAME is made of for values. Rounding to single precision happens here, and widening what
// comes back.
#pragma once

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <span>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

namespace quorvel::host {

// What stands where the library leaves an output as it was.
template <class T>
inline constexpr T unwritten = std::is_integral_v<T> ? T{} : std::numeric_limits<T>::quiet_NaN();

inline std::size_t size(std::int32_t count) { return static_cast<std::size_t>(std::max(count, 0)); }

template <class T, class Given>
std::vector<T> stored(std::span<const Given> values) {
    std::vector<T> stored(values.size());
    std::ranges::transform(values, stored.begin(),
                           [](Given value) { return static_cast<T>(value); });
    return stored;
}

template <class Told, class T>
Told told(const std::vector<T>& stored) {
    Told told;
    if constexpr (requires { told.resize(1); }) told.resize(stored.size());
    std::ranges::copy(stored, told.begin());
    return told;
}

// How many numbers the lists have, all of them as many. Throws std::invalid_argument.
inline std::int32_t count(const char* routine, const char* name, std::int64_t low,
                          std::int64_t high, std::initializer_list<std::size_t> sizes) {
    const std::size_t count = *sizes.begin();
    const std::string place = std::string(routine) + ": " + name;
    if (std::ranges::count(sizes, count) != std::ssize(sizes))
        throw std::invalid_argument(place + ": unequal lists");
    if (count < static_cast<std::size_t>(low) || count > static_cast<std::size_t>(high))
        throw std::invalid_argument(place + ": " + std::to_string(count) + "; allowed " +
                                    std::to_string(low) + " to " + std::to_string(high));
    return static_cast<std::int32_t>(count);
}

}  // namespace quorvel::host
