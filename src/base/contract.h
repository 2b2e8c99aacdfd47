// The types and constants that every routine shares. The exported interface is made from
// the catalogue; of the sources, entry points alone know it.
#pragma once

#include <cfloat>
#include <cstdint>

namespace quorvel {

using Real = float;
using DoubleReal = double;
using Integer = std::int32_t;

static_assert(FLT_EVAL_METHOD == 0, "single precision must be evaluated in single precision");
static_assert(sizeof(Real) == 4 && sizeof(DoubleReal) == 8, "IEEE floats are assumed");

// The library's own pi is the decimal 3.141593 as a float, which is one step above the float
// nearest to pi; results depend on it.
inline constexpr Real pi = 3.141593f;

inline constexpr Real zero_celsius = 273.15f;  // K

// Written for a quantity that does not exist; anything above the limit is read as such.
inline constexpr Real undefined = 1.0e20f;
inline constexpr Real undefined_limit = 1.0e10f;
template <class R>
constexpr auto is_undefined(R value) noexcept {
    return value > undefined_limit;
}

}  // namespace quorvel
