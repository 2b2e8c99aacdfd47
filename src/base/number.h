// What formulas need of a number besides arithmetic, so that one text serves any number type R: one
// number here, and whatever else has these functions.
//
//     MaskOf<R>, IntegerOf<R>     what comparisons give; selectors, days and counts
//     DoubleOf<R>                 what formulas compute in that need more than single precision
//     select(mask, a, b)          one of two values at hand
//     either(mask, f, g)          one of two calculations; only what is needed is evaluated
//     rarely(mask)                the mask, for an either whose first calculation is the exception
//     piecewise(mask, f, ..., g)  the first calculation whose mask holds, the last where none does
//     both(mask, f)               mask & f(), where f is evaluated only if needed
//     any(mask)                   whether the mask holds anywhere
//     lookup(table, index)        an element of a table, counted from 0; the index must be in it
//     replaced(mask, y, f, x...)  y, but f(x...) of single numbers where the mask holds, which is
//     seldom
//
// The values chosen may also be structures that hold nothing but R.
//
// Masks are combined by & | and !, since && and || cannot be had for more than one number. A
// formula that takes no R from its arguments is called as f<R>(...).
// Either takes its first calculation for the usual one, which decides how a single number is
// compiled and no result.
#pragma once

#include <cmath>
#include <type_traits>

#include "base/contract.h"

namespace quorvel {

template <class R>
struct NumberTypes;
template <class R>
requires std::is_floating_point_v<R>
struct NumberTypes<R> {
    using Mask = bool;
    using Integer = quorvel::Integer;
    using Double = DoubleReal;
};

template <class R>
using MaskOf = typename NumberTypes<R>::Mask;
template <class R>
using IntegerOf = typename NumberTypes<R>::Integer;
template <class R>
using DoubleOf = typename NumberTypes<R>::Double;

// Whether R is one number: searches, in which packs wait for their slowest, have a loop for either.
template <class R>
inline constexpr bool is_single = std::is_same_v<MaskOf<R>, bool>;

template <class T>
constexpr T select(bool mask, const T& a, const T& b) noexcept {
    return mask ? a : b;
}

constexpr bool rarely(bool mask) noexcept { return __builtin_expect(mask, false); }

template <class F, class G>
constexpr auto either(bool mask, F f, G g) noexcept -> decltype(f()) {
    return __builtin_expect(mask, true) ? f() : g();
}

template <class F>
constexpr auto piecewise(F last) noexcept {
    return last();
}
template <class Mask, class F, class... Rest>
constexpr auto piecewise(Mask mask, F f, Rest... rest) noexcept {
    return either(mask, f, [&] { return piecewise(rest...); });
}

template <class F>
constexpr bool both(bool mask, F f) noexcept {
    return mask && f();
}

constexpr bool any(bool mask) noexcept { return mask; }

template <class Y, class F, class... X>
constexpr Y replaced(bool mask, Y y, F f, X... x) noexcept {
    return mask ? f(x...) : y;
}

template <class T>
constexpr T lookup(const T* table, Integer index) noexcept {
    return table[index];
}

constexpr Real to_real(Integer n) noexcept { return static_cast<Real>(n); }
constexpr Real to_real(DoubleReal x) noexcept { return static_cast<Real>(x); }
constexpr DoubleReal to_double(Integer n) noexcept { return static_cast<DoubleReal>(n); }
constexpr DoubleReal to_double(Real x) noexcept { return static_cast<DoubleReal>(x); }
// Towards zero; x must lie within the range of an Integer.
constexpr Integer to_integer(Real x) noexcept { return static_cast<Integer>(x); }

// x less a whole multiple of y, exactly; with the sign of x.
inline Real modulo(Real x, Real y) noexcept { return std::fmod(x, y); }

inline Real absolute(Real x) noexcept { return std::fabs(x); }
inline DoubleReal absolute(DoubleReal x) noexcept { return std::fabs(x); }

// Towards zero, to a real.
inline Real truncated(Real x) noexcept { return std::trunc(x); }
inline DoubleReal truncated(DoubleReal x) noexcept { return std::trunc(x); }

// A result that a routine may leave unwritten.
template <class R>
struct Maybe {
    R value;
    MaskOf<R> written;
};

}  // namespace quorvel
