// The number type of array calculations: packs in the objects of a level of instructions, single
// numbers elsewhere.
#pragma once

#include <cstddef>
#include <cstring>

#include "base/number.h"

#ifdef QUORVEL_LEVEL

#include "pack/math.h"
#include "pack/pack.h"

namespace quorvel::arrays {

using Number = pack::Reals;
inline constexpr std::size_t width = pack::width;

template <class N>
using Stored = typename N::Scalar;
using pack::load;
using pack::store;

}  // namespace quorvel::arrays

#else

#include "math/math.h"

namespace quorvel::arrays {

using Number = Real;
inline constexpr std::size_t width = 1;

// What a number of a number type is stored as.
template <class N>
using Stored = N;
template <class N>
N load(const N* at) noexcept {
    N x;
    std::memcpy(&x, at, sizeof x);
    return x;
}
template <class N>
void store(N x, N* at) noexcept {
    std::memcpy(at, &x, sizeof x);
}

}  // namespace quorvel::arrays

#endif
