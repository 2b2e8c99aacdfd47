// The double-precision functions of math/math.h for packs, with the same results to the last bit:
// they are the same text. Angles too large for it are left to the scalar functions.
#pragma once

#include "math/math.h"
#include "pack/half.h"

namespace quorvel::math {
namespace detail {

QUORVEL_PACK pack::WideMask large_angle(pack::DoubleReals x) noexcept {
    return !(absolute(x) < kLeastLargeAngle);
}

// A function of one register, and of the two of a pack
#define QUORVEL_BY_REGISTER(name, expression)                            \
    QUORVEL_PACK_CALL pack::Doubles name(pack::Doubles lanes) noexcept { \
        const pack::HalfReals x(lanes);                                  \
        return (expression).v;                                           \
    }                                                                    \
    QUORVEL_PACK pack::DoubleReals name(pack::DoubleReals x) noexcept {  \
        return pack::DoubleReals({name(x.v.low), name(x.v.high)});       \
    }
QUORVEL_BY_REGISTER(half_sine, sine(step_angle(x)))
QUORVEL_BY_REGISTER(half_cosine, cosine(step_angle(x)))
QUORVEL_BY_REGISTER(half_tangent, tangent(step_angle(x)))
QUORVEL_BY_REGISTER(half_asin, asin_of(x))
QUORVEL_BY_REGISTER(half_acos, acos_of(x))
QUORVEL_BY_REGISTER(half_atan, atan_of(x))
QUORVEL_BY_REGISTER(half_exp, exp_of<pack::HalfReals>({x, 0.0}))
QUORVEL_BY_REGISTER(half_log, log_of(x))
#undef QUORVEL_BY_REGISTER

QUORVEL_PACK_CALL pack::Doubles half_sincos(pack::Doubles x, pack::Doubles& cosine) noexcept {
    const SinCosOf<pack::HalfReals> both = sine_and_cosine(step_angle(pack::HalfReals(x)));
    cosine = both.cos.v;
    return both.sin.v;
}

}  // namespace detail

QUORVEL_PACK pack::DoubleReals sin(pack::DoubleReals x) noexcept {
    return replaced(
        detail::large_angle(x), detail::half_sine(x), [](DoubleReal a) { return math::sin(a); }, x);
}
QUORVEL_PACK pack::DoubleReals cos(pack::DoubleReals x) noexcept {
    return replaced(
        detail::large_angle(x), detail::half_cosine(x), [](DoubleReal a) { return math::cos(a); },
        x);
}
QUORVEL_PACK SinCosOf<pack::DoubleReals> sincos(pack::DoubleReals x) noexcept {
    pack::Halves<pack::Doubles> s, c;
    s.low = detail::half_sincos(x.v.low, c.low);
    s.high = detail::half_sincos(x.v.high, c.high);
    const pack::WideMask large = detail::large_angle(x);
    return {replaced(
                large, pack::DoubleReals(s), [](DoubleReal a) { return math::sin(a); }, x),
            replaced(
                large, pack::DoubleReals(c), [](DoubleReal a) { return math::cos(a); }, x)};
}
QUORVEL_PACK pack::DoubleReals tan(pack::DoubleReals x) noexcept {
    return replaced(
        detail::large_angle(x), detail::half_tangent(x), [](DoubleReal a) { return math::tan(a); },
        x);
}
QUORVEL_PACK pack::DoubleReals asin(pack::DoubleReals x) noexcept { return detail::half_asin(x); }
QUORVEL_PACK pack::DoubleReals acos(pack::DoubleReals x) noexcept { return detail::half_acos(x); }
QUORVEL_PACK pack::DoubleReals atan(pack::DoubleReals x) noexcept { return detail::half_atan(x); }
QUORVEL_PACK pack::DoubleReals exp(pack::DoubleReals x) noexcept { return detail::half_exp(x); }
QUORVEL_PACK pack::DoubleReals log(pack::DoubleReals x) noexcept { return detail::half_log(x); }
QUORVEL_PACK pack::DoubleReals sqrt(pack::DoubleReals x) noexcept { return square_root(x); }

}  // namespace quorvel::math
