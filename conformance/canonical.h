// Results made comparable: which not-a-number comes out is the hardware's business, as is the order
// of bytes in memory; that one comes out is ours.
#pragma once

#include <array>
#include <bit>
#include <cstdint>

#include "conformance/routine_table.h"

namespace quorvel::conformance {

// One word of an argument or result of that type. Of a DoubleReal the low half comes first.
inline std::uint32_t canonical(Type type, const std::uint32_t* words, std::size_t index) {
    const std::uint32_t word = words[index];
    if (type == Type::Real && (word & 0x7fffffffu) > 0x7f800000u) return 0x7fc00000u;
    if (type == Type::DoubleReal) {
        const std::array halves = {words[index & ~std::size_t{1}], words[index | 1]};
        auto bits = std::bit_cast<std::uint64_t>(halves);
        if ((bits & ~std::uint64_t{0} >> 1) > 0x7ff0000000000000u) bits = 0x7ff8000000000000u;
        return static_cast<std::uint32_t>(index & 1 ? bits >> 32 : bits);
    }
    if (type == Type::Text) {
        const auto c = std::bit_cast<std::array<std::uint8_t, 4>>(word);
        return std::uint32_t{c[3]} << 24 | std::uint32_t{c[2]} << 16 | std::uint32_t{c[1]} << 8 |
               c[0];
    }
    return word;
}

}  // namespace quorvel::conformance
