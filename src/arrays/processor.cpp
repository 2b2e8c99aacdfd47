#include "arrays/processor.h"

#if defined(__x86_64__)

#include <cpuid.h>

#include <cstdint>

namespace quorvel::arrays {
namespace {

// Bits of the registers that the instruction CPUID fills.
constexpr unsigned leaf1_ecx_v2 =
    bit_SSE3 | bit_SSSE3 | bit_CMPXCHG16B | bit_SSE4_1 | bit_SSE4_2 | bit_POPCNT;
constexpr unsigned leaf1_ecx_v3 = bit_FMA | bit_MOVBE | bit_OSXSAVE | bit_AVX | bit_F16C;
constexpr unsigned leaf7_ebx_v3 = bit_BMI | bit_AVX2 | bit_BMI2;
constexpr unsigned leaf7_ebx_v4 =
    bit_AVX512F | bit_AVX512DQ | bit_AVX512CD | bit_AVX512BW | bit_AVX512VL;
constexpr unsigned lahf_v2 = 1u << 0, lzcnt_v3 = 1u << 5;  // of leaf 0x80000001, ecx

// Register states that the system saves at a change of threads: bits of XCR0.
constexpr std::uint64_t saved_256 = 0x6, saved_512 = 0xe6;

struct Leaf {
    unsigned eax = 0, ebx = 0, ecx = 0, edx = 0;
};
Leaf leaf(unsigned number) noexcept {
    Leaf l;
    __get_cpuid_count(number, 0, &l.eax, &l.ebx, &l.ecx, &l.edx);
    return l;
}

bool has(unsigned bits, unsigned wanted) noexcept { return (bits & wanted) == wanted; }

bool system_saves(std::uint64_t wanted) noexcept {
    std::uint32_t low = 0, high = 0;
    __asm__("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
    return ((std::uint64_t{high} << 32 | low) & wanted) == wanted;
}

}  // namespace

bool supports_v2() noexcept {
    return has(leaf(1).ecx, leaf1_ecx_v2) && has(leaf(0x80000001).ecx, lahf_v2);
}

bool supports_v3() noexcept {
    return supports_v2() && has(leaf(1).ecx, leaf1_ecx_v3) && has(leaf(7).ebx, leaf7_ebx_v3) &&
           has(leaf(0x80000001).ecx, lzcnt_v3) && system_saves(saved_256);
}

bool supports_v4() noexcept {
    return supports_v3() && has(leaf(7).ebx, leaf7_ebx_v4) && system_saves(saved_512);
}

}  // namespace quorvel::arrays

#endif
