#include "program/check/arithmetic.h"

#ifdef __SSE__
#include <xmmintrin.h>
#else
#include <fenv.h>
#endif

#include <bit>
#include <cstdint>
#include <limits>

namespace quorvel::program {

// On x86 the functions of the C library tell of the x87 unit, where nothing is computed.
#ifdef __SSE__
static bool exceptions_are_masked() { return _MM_GET_EXCEPTION_MASK() == _MM_MASK_MASK; }
void mask_exceptions() { _MM_SET_EXCEPTION_MASK(_MM_MASK_MASK); }
#else
static bool exceptions_are_masked() { return fegetexcept() == 0; }
void mask_exceptions() { fedisableexcept(FE_ALL_EXCEPT); }
#endif

std::string fault_of_arithmetic() {
    if (!exceptions_are_masked()) return "floating-point exceptions end the process";
    // Volatile: computed by the processor in its present state, not by the compiler.
    volatile float smallest = std::numeric_limits<float>::min(), half = 0.5f, one = 1.0f;
    volatile float third = one / 3.0f, minus_third = -one / 3.0f, subnormal = smallest * half;
    // By its bits: a comparison takes subnormal numbers for zero too.
    if (std::bit_cast<std::uint32_t>(float{subnormal}) == 0)
        return "subnormal numbers are flushed to zero";
    if (subnormal * 2.0f != smallest) return "subnormal numbers are taken for zero";
    if (third != 0x1.555556p-2f || minus_third != -0x1.555556p-2f)
        return "results are not rounded to the nearest number";
    return {};
}

}  // namespace quorvel::program
