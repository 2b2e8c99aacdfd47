// What entry points share: how arguments are read from the caller's variables, and results stored.
#pragma once

#include <cstring>
#include <type_traits>

#include "base/number.h"
#include "quorvel.h"

namespace quorvel::entry {

// A value that the caller stores as a few numbers one after the other, such as a vector.
template <class T, class Scalar>
T load(const Scalar* at) noexcept {
    static_assert(std::is_trivially_copyable_v<T> && sizeof(T) % sizeof(Scalar) == 0);
    T value;
    std::memcpy(&value, at, sizeof value);
    return value;
}

template <class T, class Scalar>
void store(const T& value, Scalar* at) noexcept {
    static_assert(std::is_trivially_copyable_v<T> && sizeof(T) % sizeof(Scalar) == 0);
    std::memcpy(at, &value, sizeof value);
}
inline void store(Real value, Real* at) noexcept { *at = value; }
inline void store(DoubleReal value, DoubleReal* at) noexcept { *at = value; }
inline void store(Integer value, Integer* at) noexcept { *at = value; }
template <class R>
void store(const Maybe<R>& result, R* at) noexcept {
    if (result.written) *at = result.value;
}

// Truth is all bits set.
constexpr Integer logical(bool value) noexcept { return value ? -1 : 0; }

}  // namespace quorvel::entry
