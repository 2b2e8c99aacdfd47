// e^x, 10^x and the logarithms of single values in single precision.
//
// Algorithm: 2^x = 2^n 2^(k/64) 2^r, |r| <= 1/128, by a table of 64 steps and a cubic; e^x and 10^x
// from it. log x = (n + log2 c) log 2 + log(1 + r), 1 + r = m/c, for x = 2^n m, 1 <= m < 2, by a
// table of 128 steps and a quartic; log10 x from it. The first step has c = 1 and the last c = 2,
// so that a logarithm near 0 keeps its accuracy: -1/256 <= r <= 1/128. Where the error of the
// double leaves the rounding in doubt, and outside the range of normal floats, the careful forms
// decide.
//
// Relative error of the double: exp and exp10 2^-37, which leaves one argument in 4096 in doubt;
// log and log10 2^-34.8, one in 900.
//
// Coefficients: tools/math/coefficients.sollya.
#pragma once

#include "math/careful_exp_log.h"
#include "math/scalar.h"
#include "math/tables.h"

namespace quorvel::math {
namespace detail {

constexpr std::uint32_t kExpError = 0x10000, kLogError = 0x4a000;  // see near_midpoint

// 87 and 37.75, as bit patterns
constexpr std::uint32_t kExpLimit = 0x42ae0000, kExp10Limit = 0x42170000;

// 2^x, |x| <= 256. The cubic is split into factors, the leading one of which is in the table.
QUORVEL_INLINE double table_exp2(double x) noexcept {
    const double shifted = x + kTo64ths;
    const double r = x - (shifted - kTo64ths);
    const double scale = from_bits(kExpSteps[bits(shifted) & 63] + (bits(shifted) << 46));
    return (r * (r + 0x1.0341e7f84f061p1) + 0x1.f4c1c08d583dfp2) *
           ((r + 0x1.26bd59b726116p1) * scale);
}

// log2 x = whole + log2(1 + r)
struct LogStep {
    double whole, r;
};
QUORVEL_INLINE LogStep log_step(float x) noexcept {
    const auto b = std::bit_cast<std::uint32_t>(x);
    const std::uint32_t fraction = b & 0x007fffff, k = fraction >> 16;
    const double m = from_bits(bits(1.0) + (std::uint64_t{fraction} << 29));
    const auto biased_exponent = static_cast<double>(static_cast<std::int32_t>(b >> 23));
    return {biased_exponent + kLogSteps.log2[k], m * kLogSteps.inverse[k] - 1.0};
}

// The quartic is r - c r^2 ((r - a)^2 + b).
QUORVEL_INLINE double table_log(float x) noexcept {
    const auto [whole, r] = log_step(x);
    const double shifted = r - 0x1.5776d9d29d209p-1;
    return (whole * 0x1.62e42fefa39efp-1 + r) -
           (shifted * shifted + 0x1.8ffd8f7bd5272p0) * (r * r * 0x1.fcd39640b44d6p-3);
}

QUORVEL_INLINE bool normal_and_positive(float x) noexcept {
    return std::bit_cast<std::uint32_t>(x) - kLeastNormal <= kLargest - kLeastNormal;
}

}  // namespace detail

QUORVEL_INLINE float exp(float x) noexcept {
    using namespace detail;
    return rounded<careful::exp, kExpError>(x, magnitude_within<0, kExpLimit>(x), [](double t) {
        return table_exp2(t * 0x1.71547652b82fep0);
    });
}

QUORVEL_INLINE float exp10(float x) noexcept {
    using namespace detail;
    return rounded<careful::exp10, kExpError>(x, magnitude_within<0, kExp10Limit>(x), [](double t) {
        return table_exp2(t * 0x1.a934f0979a371p1);
    });
}

QUORVEL_INLINE float log(float x) noexcept {
    using namespace detail;
    return rounded<careful::log, kLogError>(x, normal_and_positive(x),
                                            [x](double) { return table_log(x); });
}

QUORVEL_INLINE float log10(float x) noexcept {
    using namespace detail;
    return rounded<careful::log10, kLogError>(
        x, normal_and_positive(x), [x](double) { return table_log(x) * 0x1.bcb7b1526e50ep-2; });
}

}  // namespace quorvel::math
