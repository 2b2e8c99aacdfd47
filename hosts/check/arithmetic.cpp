#include "check/arithmetic.h"

#include <limits>

namespace quorvel::check {

std::string fault_of_arithmetic() {
    // Volatile: computed by the processor in its present state, not by the compiler.
    volatile float smallest = std::numeric_limits<float>::min(), half = 0.5f, one = 1.0f;
    volatile float third = one / 3.0f, minus_third = -one / 3.0f, subnormal = smallest * half;
    if (subnormal == 0.0f) return "subnormal numbers are flushed to zero";
    if (subnormal * 2.0f != smallest) return "subnormal numbers are taken for zero";
    if (third != 0x1.555556p-2f || minus_third != -0x1.555556p-2f)
        return "results are not rounded to the nearest number";
    return {};
}

}  // namespace quorvel::check
