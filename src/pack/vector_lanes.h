// Truth as the compilers' vectors have it: all bits of a number set, or none. What follows from it
// for every width; included by registers_128.h and registers_256.h.
#pragma once

namespace quorvel::pack {

using Lanes = Ints;
using WideLanes = std::int64_t __attribute__((vector_size(sizeof(Doubles))));

QUORVEL_PACK Lanes all_lanes(bool b) noexcept { return Lanes{} - (b ? 1 : 0); }
QUORVEL_PACK WideLanes all_wide_lanes(bool b) noexcept { return WideLanes{} - (b ? 1 : 0); }
QUORVEL_PACK bool lane(Lanes a, std::size_t i) noexcept { return a[i] != 0; }

template <class V>
QUORVEL_PACK auto less(V a, V b) noexcept {
    return a < b;
}
template <class V>
QUORVEL_PACK auto less_equal(V a, V b) noexcept {
    return a <= b;
}
template <class V>
QUORVEL_PACK auto equal(V a, V b) noexcept {
    return a == b;
}

template <class V>
QUORVEL_PACK V blend(Lanes m, V a, V b) noexcept requires(sizeof(a[0]) == 4) {
    return m ? a : b;
}
template <class V>
QUORVEL_PACK V blend(WideLanes m, V a, V b) noexcept requires(sizeof(a[0]) == 8) {
    return m ? a : b;
}

}  // namespace quorvel::pack
