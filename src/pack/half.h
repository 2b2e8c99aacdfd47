// One of the two registers of a pack of doubles, as a number type of its own.
//
// Functions too long to be inlined take and return these: a register is passed as such, whereas a
// pack of doubles goes through memory, in pieces on which GCC 12 has its reader wait.
#pragma once

#include "pack/pack.h"

namespace quorvel::pack {

using HalfMask = Truth<WideLanes>;
using HalfReals = Number<Doubles, DoubleReal, HalfMask>;
using HalfWords = Number<Longs, std::uint64_t, HalfMask>;

QUORVEL_PACK HalfWords operator&(HalfWords a, HalfWords b) noexcept { return HalfWords(a.v & b.v); }
QUORVEL_PACK HalfWords operator|(HalfWords a, HalfWords b) noexcept { return HalfWords(a.v | b.v); }
QUORVEL_PACK HalfWords operator^(HalfWords a, HalfWords b) noexcept { return HalfWords(a.v ^ b.v); }
QUORVEL_PACK HalfWords operator<<(HalfWords a, int n) noexcept { return HalfWords(a.v << n); }
QUORVEL_PACK HalfWords operator>>(HalfWords a, int n) noexcept { return HalfWords(a.v >> n); }

QUORVEL_PACK HalfWords bits(HalfReals x) noexcept { return HalfWords(Longs(x.v)); }
QUORVEL_PACK HalfReals from_bits(HalfWords x) noexcept { return HalfReals(Doubles(x.v)); }
QUORVEL_PACK HalfReals absolute(HalfReals x) noexcept {
    return from_bits(bits(x) & HalfWords(~std::uint64_t{0} >> 1));
}
QUORVEL_PACK HalfReals square_root(HalfReals x) noexcept { return HalfReals(square_root(x.v)); }
QUORVEL_PACK HalfReals lookup(const DoubleReal* table, HalfWords index) noexcept {
    return HalfReals(gathered(table, index.v));
}

}  // namespace quorvel::pack
