// Registers of the instruction set that a file is compiled for, with what packs need of them beyond
// the operators that compilers have for their vectors. One header a width, all with the same names:
//
//     width                           how many floats a register holds
//     Floats, Ints                    registers of floats, of 32-bit integers
//     Doubles, Longs                  registers of doubles, of 64-bit integers: half as many
//     Lanes, WideLanes                truth by float, by double; combined by & | ~
//     all_lanes, all_wide_lanes       the same truth everywhere
//     less, less_equal, equal         comparisons
//     blend(lanes, a, b)              a where true, else b
//     any(lanes)                      whether one is true
//     Halves<Doubles>                 as many doubles as a register holds floats
//     widened, narrowed               from one to the other
//     low_words(longs)                the lower half of each 64-bit integer
//     gathered(table, index)          elements of a table
//     fused(a, b, c)                  a b + c, rounded once where the level has that instruction
//     smaller, larger                 of two doubles; the second where they do not compare
//     square_root, truncated
//
// Everything is inlined: what is compiled for one instruction set must never be called for another.
#pragma once

#include <cstddef>
#include <cstdint>

#define QUORVEL_PACK [[gnu::always_inline]] inline

namespace quorvel::pack {

template <class Register>
struct Halves {
    Register low, high;
};

}  // namespace quorvel::pack

#if defined(__AVX512F__) && defined(__AVX512DQ__) && defined(__AVX512VL__)
#include "pack/registers_512.h"
#elif defined(__AVX2__) && defined(__FMA__)
#include "pack/registers_256.h"
#elif defined(__SSE4_1__)
#include "pack/registers_128.h"
#else
#error "packs need x86-64-v2, v3 or v4"
#endif
