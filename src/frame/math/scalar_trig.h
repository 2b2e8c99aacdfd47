// Sine, cosine and tangent of single values in single precision.
//
// Algorithm: x = k step + r with 256 steps a turn, |r| <= step/2; sin x = sin(k step) cos r +
// cos(k step) sin r with a table of sines, cos r = 1 - c r^2 and sin r = r - s r^3. tan x likewise
// from tan r. Where the error of the double leaves the rounding in doubt, for -0, subnormals and
// from 2^14 on the forms for loops decide.
//
// Relative error of the double: sin and cos 2^-32, which leaves one angle in 128 in doubt; tan
// 2^-41.
//
// Coefficients and constants: tools/math/coefficients.sollya.
#pragma once

#include "frame/math/loop_trig.h"
#include "frame/math/scalar.h"
#include "frame/math/tables.h"

namespace quorvel::math {
namespace detail {

constexpr std::uint32_t kSineError = 0x200000, kTangentError = 0x1000;  // see near_midpoint

// |x| < 2^14: n steps are subtracted in two parts, of which the first is exact.
struct SineStep {
    double r;
    std::uint32_t number;  // meaningful modulo 256
};
QUORVEL_INLINE SineStep nearest_step(double x) noexcept {
    const double shifted = x * 0x1.45f306dc9c883p5 + kToInteger;
    const double n = shifted - kToInteger;
    return {(x - n * 0x1.921fb544p-6) - n * 0x1.0b4611a626331p-40,
            static_cast<std::uint32_t>(bits(shifted))};
}

QUORVEL_INLINE double sine_of_step(std::uint32_t number) noexcept { return kSines[number & 255]; }
QUORVEL_INLINE double cosine_of_step(std::uint32_t number) noexcept {
    return kSines[(number + 64) & 255];
}

// sin(k step + r)
QUORVEL_INLINE double table_sin(SineStep step) noexcept {
    const auto [r, k] = step;
    const double s = sine_of_step(k), c = cosine_of_step(k), z = r * r, cr = c * r;
    return (s + cr) - z * (s * 0x1.fffec007333p-2 + cr * 0x1.555577293e4abp-3);
}
QUORVEL_INLINE double table_cos(SineStep step) noexcept {
    return table_sin({step.r, step.number + 64});
}

QUORVEL_INLINE double table_tan(SineStep step) noexcept {
    const auto [r, k] = step;
    const double s = sine_of_step(k), c = cosine_of_step(k), z = r * r;
    const double t = r + r * z * (0x1.5555554c21928p-2 + z * 0x1.11170be96933p-3);
    return (s + c * t) / (c - s * t);
}

QUORVEL_INLINE bool below_2_to_14(float x) noexcept { return magnitude_bits(x) < 0x46800000; }
QUORVEL_INLINE bool normal_below_2_to_14(float x) noexcept {
    return magnitude_bits(x) - 0x00800000 < 0x46800000 - 0x00800000;
}

}  // namespace detail

QUORVEL_INLINE float sin(float x) noexcept {
    using namespace detail;
    return rounded<loop::sin, kSineError>(x, normal_below_2_to_14(x),
                                          [](double t) { return table_sin(nearest_step(t)); });
}

QUORVEL_INLINE float cos(float x) noexcept {
    using namespace detail;
    return rounded<loop::cos, kSineError>(x, below_2_to_14(x),
                                          [](double t) { return table_cos(nearest_step(t)); });
}

QUORVEL_INLINE SinCos sincos(float x) noexcept {
    using namespace detail;
    if (normal_below_2_to_14(x)) [[likely]] {
        const SineStep step = nearest_step(static_cast<double>(x));
        const double s = table_sin(step), c = table_cos(step);
        if (!near_midpoint<kSineError>(s) && !near_midpoint<kSineError>(c)) [[likely]]
            return {static_cast<float>(s), static_cast<float>(c)};
    }
    return outlined<loop::sincos>(x);
}

QUORVEL_INLINE float tan(float x) noexcept {
    using namespace detail;
    return rounded<loop::tan, kTangentError>(x, normal_below_2_to_14(x),
                                             [](double t) { return table_tan(nearest_step(t)); });
}

}  // namespace quorvel::math
