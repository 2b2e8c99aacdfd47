// The angle of the point (x, y) in single precision.
//
// Algorithm: atan of the smaller over the larger of |y| and |x|, as in atan, turned into its
// octant; relative error in double below 2^-50. Where that leaves the rounding in doubt (one call
// in 2^24), the same in 106 bits with the series of atan, of relative error below 2^-98.
#pragma once

#include "math/careful_inverse_trig.h"
#include "math/double_double.h"
#include "math/scalar.h"

namespace quorvel::math {

inline float atan2(float y, float x) noexcept;

namespace detail {

constexpr double kAtan2Error = 0x1p-49;

// The octant of (x, y): the angle is quarters pi/2, plus or, if backwards, minus
// (eighths pi/4 + atan(numerator/denominator)), with the sign of y.
struct Octant {
    double numerator, denominator;
    double eighths, quarters;
    bool backwards;
};

QUORVEL_INLINE Octant octant(double y, double x) noexcept {
    const double ay = magnitude(y), ax = magnitude(x);
    const bool steep = ay > ax, left = sign(x) != 0;
    const double small = steep ? ax : ay, large = steep ? ay : ax;
    const bool diagonal = small > large * 0x1.a827999fcef32p-2;
    const double quarters = steep ? 1.0 : left ? 2.0 : 0.0;
    return {diagonal ? small - large : small, diagonal ? small + large : large,
            diagonal ? 1.0 : 0.0, quarters, steep != left};
}

// Not a number for two zeros or two infinities
QUORVEL_INLINE double atan2_in_double(double y, double x) noexcept {
    const Octant o = octant(y, x);
    const double t = o.numerator / o.denominator;
    const double angle = o.eighths * (0.5 * kHalfPi) + (t + atan_tail(t));
    return flip_sign(o.quarters * kHalfPi + (o.backwards ? -angle : angle), sign(y));
}

inline float atan2_accurate(double y, double x) noexcept {
    constexpr Pair kQuarter = {kHalfPi, kHalfPiTail};
    const Octant o = octant(y, x);
    const Pair t = Pair{o.numerator, 0.0} / Pair{o.denominator, 0.0};
    const Pair z = -(t * t);
    Pair sum = {0.0, 0.0};
    for (int k = 87; k >= 1; k -= 2)
        sum = sum * z + Pair{1.0, 0.0} / Pair{static_cast<double>(k), 0.0};
    const Pair angle = Pair{0.5 * o.eighths, 0.0} * kQuarter + t * sum;
    const float value =
        round_to_float(Pair{o.quarters, 0.0} * kQuarter + (o.backwards ? -angle : angle));
    return sign(y) != 0 ? -value : value;
}

inline float atan2_of_any(float y, float x) noexcept {
    if (x != x || y != y) return x + y;
    if (y == 0.0f && x == 0.0f) return atan2(y, std::copysign(1.0f, x));
    if (std::isinf(y) && std::isinf(x))
        return atan2(std::copysign(1.0f, y), std::copysign(1.0f, x));
    return atan2_accurate(static_cast<double>(y), static_cast<double>(x));
}

}  // namespace detail

inline float atan2(float y, float x) noexcept {
    using namespace detail;
    const double value = atan2_in_double(static_cast<double>(y), static_cast<double>(x));
    if (rounds_safely(value, kAtan2Error)) [[likely]]
        return static_cast<float>(value);
    return outlined<atan2_of_any>(y, x);
}

}  // namespace quorvel::math
