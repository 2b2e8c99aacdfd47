// What entry points share: how arguments are read from the caller's variables, and results stored.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <utility>

#include "base/number.h"

namespace quorvel::entry {

// A value that the caller stores as a few numbers one after the other, such as a vector. It is not
// copied as a block, which compilers put together, or take apart, by a slow way through memory.
template <class T, class Scalar>
inline constexpr std::size_t numbers_in = sizeof(T) / sizeof(Scalar);

template <class T, class Scalar>
T load(const Scalar* at) noexcept {
    return [&]<std::size_t... i>(std::index_sequence<i...>) {
        return std::bit_cast<T>(std::array{at[i]...});
    }
    (std::make_index_sequence<numbers_in<T, Scalar>>{});
}

template <class T, class Scalar>
void store(const T& value, Scalar* at) noexcept {
    const auto numbers = std::bit_cast<std::array<Scalar, numbers_in<T, Scalar>>>(value);
    for (std::size_t i = 0; i < numbers.size(); ++i) at[i] = numbers[i];
}
inline void store(Real value, Real* at) noexcept { *at = value; }
inline void store(DoubleReal value, DoubleReal* at) noexcept { *at = value; }
inline void store(Integer value, Integer* at) noexcept { *at = value; }
template <class T, std::size_t n, class Scalar>
void store(const std::array<T, n>& values, Scalar* at) noexcept {
    for (const T& value : values) {
        store(value, at);
        at += numbers_in<T, Scalar>;
    }
}
template <class R>
void store(const Maybe<R>& result, R* at) noexcept {
    if (result.written) *at = result.value;
}

// Truth is all bits set.
constexpr Integer logical(bool value) noexcept { return value ? -1 : 0; }

}  // namespace quorvel::entry
