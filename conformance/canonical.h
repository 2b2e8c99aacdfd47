// Results made comparable: which not-a-number comes out is the hardware's business; that one comes
// out is ours.
#pragma once

#include <cstdint>

#include "conformance/routine_table.h"

namespace quorvel::conformance {

// One word of an argument or result of that type.
inline std::uint32_t canonical(Type type, const std::uint32_t* words, std::size_t index) {
    const std::uint32_t word = words[index];
    if (type == Type::Real && (word & 0x7fffffffu) > 0x7f800000u) return 0x7fc00000u;
    if (type == Type::DoubleReal) {
        const std::uint32_t low = words[index & ~std::size_t{1}], high = words[index | 1];
        const std::uint64_t magnitude = (std::uint64_t{high & 0x7fffffffu} << 32) | low;
        if (magnitude > 0x7ff0000000000000u) return index & 1 ? 0x7ff80000u : 0u;
    }
    return word;
}

}  // namespace quorvel::conformance
