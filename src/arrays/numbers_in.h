// Values as the numbers that they consist of, in the order in which callers store them.
#pragma once

#include <array>
#include <bit>
#include <limits>
#include <tuple>

#include "arrays/number.h"
#include "geometry/vector.h"

namespace quorvel::arrays {

using Integers = IntegerOf<Number>;

template <class T>
struct NumbersIn {
    using Type = T;
    static constexpr std::size_t count = 1;
};
template <class N, int n>
struct NumbersIn<geometry::Vector<N, n>> {
    using Type = N;
    static constexpr std::size_t count = n;
};
template <class T, std::size_t n>
struct NumbersIn<std::array<T, n>> {
    using Type = typename NumbersIn<T>::Type;
    static constexpr std::size_t count = n * NumbersIn<T>::count;
};

template <class T>
using NumberOf = typename NumbersIn<T>::Type;
template <class T>
using NumbersOf = std::array<NumberOf<T>, NumbersIn<T>::count>;

// The outputs of a formula, one after the other.
template <class... T>
std::tuple<T...> outputs(const T&... values) noexcept {
    return {values...};
}

// What callers get where a routine leaves an output as it was: what they gave, or no number.
template <class R>
R or_given(const Maybe<R>& result, R given) noexcept {
    return select(result.written, result.value, given);
}
template <class R>
R or_given(R result, R) noexcept {
    return result;
}
template <class R>
R or_none(const Maybe<R>& result) noexcept {
    return or_given(result, R(std::numeric_limits<Real>::quiet_NaN()));
}
template <class R>
R or_none(R result) noexcept {
    return result;
}

// Truth is all bits set.
template <class Mask>
Integers logical(Mask truth) noexcept {
    return select(truth, Integers(-1), Integers(0));
}

}  // namespace quorvel::arrays
