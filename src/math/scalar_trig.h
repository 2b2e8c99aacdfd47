// Sine, cosine and tangent of single values in single precision.
//
// Algorithm: x = k step + r with 512 steps a turn, |r| <= step/2; sin x = sin(k step) cos r +
// cos(k step) sin r with a table of sines, cos r = 1 - c r^2 and sin r = r - s r^3. tan x likewise
// from tan r. Where the error of the double leaves the rounding in doubt, for zeros, subnormals and
// from 2^14 on the careful forms decide.
//
// Relative error of the double: sin and cos 2^-36, which leaves one angle in 2000 in doubt; tan
// 2^-41.
//
// Coefficients and constants: tools/math/coefficients.sollya.
#pragma once

#include "math/careful_trig.h"
#include "math/scalar.h"
#include "math/tables.h"

namespace quorvel::math {
namespace detail {

constexpr std::uint32_t kSineError = 0x20000, kTangentError = 0x1000;  // see near_midpoint

// |x| < 2^14: n steps are subtracted in two parts, of which the first is exact.
struct SineStep {
    double r;
    std::uint32_t number;  // meaningful modulo 512
};
QUORVEL_INLINE SineStep nearest_step(double x) noexcept {
    const double shifted = x * 0x1.45f306dc9c883p6 + kToInteger;
    const double n = shifted - kToInteger;
    return {(x - n * 0x1.921fb544p-7) - n * 0x1.0b4611a626331p-41,
            static_cast<std::uint32_t>(bits(shifted))};
}

struct Direction {
    double sine, cosine;
};
QUORVEL_INLINE Direction direction_of_step(std::uint32_t number) noexcept {
    const std::size_t k = number & 511;
    return {kSines[k], kSines[k + 128]};
}

// sin(k step + r)
QUORVEL_INLINE double table_sin(SineStep step) noexcept {
    const auto [s, c] = direction_of_step(step.number);
    const double r = step.r, z = r * r, cr = c * r;
    return (s + cr) - z * (s * 0x1.ffffb000e61d7p-2 + cr * 0x1.55555dc831f63p-3);
}
QUORVEL_INLINE double table_cos(SineStep step) noexcept {
    return table_sin({step.r, step.number + 128});
}

QUORVEL_INLINE double table_tan(SineStep step) noexcept {
    const auto [s, c] = direction_of_step(step.number);
    const double r = step.r, z = r * r;
    const double t = r + r * z * (0x1.55555554c341dp-2 + z * 0x1.11128e431e6acp-3);
    return (s + c * t) / (c - s * t);
}

constexpr std::uint32_t kBelow2To14 = 0x467fffff;

}  // namespace detail

QUORVEL_INLINE float sin(float x) noexcept {
    using namespace detail;
    return rounded<careful::sin, kSineError>(x, magnitude_within<kLeastNormal, kBelow2To14>(x),
                                             [](double t) { return table_sin(nearest_step(t)); });
}

QUORVEL_INLINE float cos(float x) noexcept {
    using namespace detail;
    return rounded<careful::cos, kSineError>(x, magnitude_within<0, kBelow2To14>(x),
                                             [](double t) { return table_cos(nearest_step(t)); });
}

QUORVEL_INLINE SinCos sincos(float x) noexcept {
    using namespace detail;
    if (magnitude_within<kLeastNormal, kBelow2To14>(x)) [[likely]] {
        const SineStep step = nearest_step(static_cast<double>(x));
        const double s = table_sin(step), c = table_cos(step);
        if (!near_midpoint<kSineError>(s) && !near_midpoint<kSineError>(c)) [[likely]]
            return {static_cast<float>(s), static_cast<float>(c)};
    }
    return outlined<careful::sincos>(x);
}

QUORVEL_INLINE float tan(float x) noexcept {
    using namespace detail;
    return rounded<careful::tan, kTangentError>(
        x, magnitude_within<kLeastNormal, kBelow2To14>(x),
        [](double t) { return table_tan(nearest_step(t)); });
}

}  // namespace quorvel::math
