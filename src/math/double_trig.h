// Sine, cosine and tangent in double precision; D is double or a pack of doubles.
//
// Algorithm: x = k step + r with 512 steps a turn, |r| <= step/2 in 106 bits, and sin x = sin(k
// step) cos r + cos(k step) sin r with a table of sines in 106 bits. The tangent is a quotient of
// such sums, the rest of whose division is taken from them. From 2^12 on the 53-bit integer of the
// angle is first multiplied by 192 bits of 2/pi (Payne and Hanek), dropping multiples of four
// quarters.
//
// Error in ulp: sin and cos 0.75, tan 0.95. The last sum errs by 0.5. What it adds to the sine of
// the step is below 2^-7 and errs by three roundings, 0.2 ulp of a result of 2^-5, below which a
// careful sum takes over; so do both sums of the tangent.
//
// Coefficients and constants: tools/math/coefficients.sollya.
#pragma once

#include "base/number.h"
#include "math/double_double.h"
#include "math/tables.h"

namespace quorvel::math {
namespace detail {

constexpr double kLeastLargeAngle = 0x1p12;

// x = number steps + r + low
template <class D>
struct StepAngle {
    D r, low;
    decltype(bits(D())) number;  // meaningful modulo 512
};

// |x| < 2^12: the first two products and all differences but the last are exact.
template <class D>
QUORVEL_INLINE StepAngle<D> step_angle(D x) noexcept {
    const D shifted = x * 0x1.45f306dc9c883p6 + kToInteger;
    const D n = shifted - kToInteger;
    const D head = x - n * 0x1.921fb544p-7, middle = n * 0x1.0b4611a6p-41;
    const D r = head - middle;
    return {r, ((head - r) - middle) - n * 0x1.3198a2e037073p-76, bits(shifted)};
}

// The bits of 2/pi after the binary point, behind 64 zeros
constexpr std::uint32_t kTwoOverPi[] = {
    0,          0,          0xa2f9836e, 0x4e441529, 0xfc2757d1, 0xf534ddc0, 0xdb629599, 0x3c439041,
    0xfe5163ab, 0xdebbc561, 0xb7246e3a, 0x424dd2e0, 0x06492eea, 0x09d1921c, 0xfe1deb1c, 0xb129a73e,
    0xe88235f5, 0x2ebb4484, 0xe99c7026, 0xb45f7e41, 0x3991d639, 0x835339f4, 0x9c845f8b, 0xbdf9283b,
    0x1ff897ff, 0xde05980f, 0xef2f118b, 0x5a0a6d1f, 0x6d367ecf, 0x27cb09b7, 0x4f463f66, 0x9e5fea2d,
    0x7527bac7, 0xebe5f17b, 0x3d0739f7, 0x8a5292ea, 0x6bfb5fb1, 0x1f8d5d08, 0x56033046, 0xfc7b6bab,
};

// 192 bits, least significant word first
struct Wide {
    std::uint32_t word[6];
};

inline Wide two_over_pi(int first_bit) noexcept {
    const int first_word = first_bit / 32, shift = first_bit % 32;
    Wide window;
    for (int i = 0; i < 6; ++i) {
        const std::uint32_t* w = kTwoOverPi + first_word + i;
        window.word[5 - i] =
            static_cast<std::uint32_t>(((std::uint64_t{w[0]} << 32 | w[1]) << shift) >> 32);
    }
    return window;
}

// a * factor modulo 2^192
inline Wide low_product(const Wide& a, std::uint64_t factor) noexcept {
    const std::uint64_t f[2] = {factor & 0xffffffff, factor >> 32};
    Wide product = {};
    for (int j = 0; j < 2; ++j) {
        std::uint64_t carry = 0;
        for (int i = 0; i + j < 6; ++i) {
            carry += a.word[i] * f[j] + product.word[i + j];
            product.word[i + j] = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
    }
    return product;
}

// x = count quarters + angle
struct QuarterAngle {
    Pair angle;
    std::uint64_t count;  // meaningful modulo 4
};

// |x| >= 2^12 and finite. The product counts quarters in units of 2^-190.
inline QuarterAngle quarter_angle(double x) noexcept {
    const int exponent = static_cast<int>(bits(x) >> 52 & 0x7ff) - 1075;
    const std::uint64_t integer = (bits(x) & 0x000fffffffffffff) | 0x0010000000000000;
    const Wide product = low_product(two_over_pi(exponent + 62), integer);
    // nearest count of quarters; the rest is signed
    const std::uint64_t count = (std::uint64_t{product.word[5]} + 0x20000000) >> 30;
    double unit = 0x1p-30;
    const auto top = static_cast<std::int32_t>(product.word[5] << 2) >> 2;
    Pair rest = {static_cast<double>(top) * unit, 0.0};
    for (int i = 4; i >= 0; --i) {
        unit *= 0x1p-32;
        rest = rest + Pair{product.word[i] * unit, 0.0};
    }
    const Pair r = rest * Pair{0x1.921fb54442d18p0, 0x1.1a62633145c07p-54};
    return sign(x) != 0 ? QuarterAngle{-r, 0 - count} : QuarterAngle{r, count};
}

[[gnu::cold, gnu::noinline]] inline StepAngle<double> step_angle_of_any(double x) noexcept {
    if (!(magnitude(x) < kInfinity)) return {x - x, 0.0, 0};
    const auto [angle, count] = quarter_angle(x);
    const auto [r, low, number] = step_angle(angle.high);
    return {r, low + angle.low, number + 128 * count};
}

// step_angle(x) of any x
QUORVEL_INLINE StepAngle<double> any_step_angle(double x) noexcept {
    if (magnitude(x) < kLeastLargeAngle) [[likely]]
        return step_angle(x);
    return step_angle_of_any(x);
}

// Sine and cosine of step k, and of r + low: sin - r and 1 - cos
template <class D>
struct Addends {
    D s, s_low, c, c_low;
    D r, sine_rest, versine;
};
template <class D>
QUORVEL_INLINE Addends<D> addends(StepAngle<D> x) noexcept {
    const auto k = x.number & 511;
    const D r = x.r, z = r * r;
    return {lookup(kSines, k),
            lookup(kSinesLow, k),
            lookup(kSines, k + 128),
            lookup(kSinesLow, k + 128),
            r,
            x.low - r * z * (0x1.5555555554437p-3 - z * 0x1.1110faaff7a54p-7),
            z * (0x1.fffffffffc416p-2 - z * 0x1.55552e2b72ca1p-5)};
}
// The same a quarter of a turn on
template <class D>
QUORVEL_INLINE Addends<D> quarter_on(const Addends<D>& a) noexcept {
    return {a.c, a.c_low, -a.s, -a.s_low, a.r, a.sine_rest, a.versine};
}

// What the sine is more than that of the step
template <class D>
QUORVEL_INLINE D beyond_step(const Addends<D>& a) noexcept {
    return a.c * (a.r + a.sine_rest) + (a.s_low - a.s * a.versine);
}

// The sine as high - low; adding 0 keeps sin -0 = -0. The product of r and the integer next to the
// cosine is exact.
template <class D>
QUORVEL_INLINE PairOf<D> careful_sine(const Addends<D>& a) noexcept {
    const D whole = (a.c + kToInteger) - kToInteger, rest = (a.c - whole) + a.c_low;
    const auto [head, low] = fast_two_sum(a.s, D(whole * a.r));
    return {head, (0.0 + a.s * a.versine) - (a.s_low + (a.c * a.sine_rest + (rest * a.r + low)))};
}

// Near zero the two parts nearly cancel.
constexpr double kCancelled = 0x1p-5;

template <class D>
QUORVEL_INLINE D sum(const Addends<D>& a) noexcept {
    const D quick = a.s + beyond_step(a);
    return either(
        rarely(absolute(quick) < kCancelled),
        [&] {
            const PairOf<D> careful = careful_sine(a);
            return careful.high - careful.low;
        },
        [&] { return quick; });
}

// The first 26 bits: a product of two such is exact.
template <class D>
QUORVEL_INLINE D upper_half(D x) noexcept {
    return from_bits(bits(x) & 0xfffffffff8000000);
}

// (a.high - a.low)/(b.high - b.low)
template <class D>
QUORVEL_INLINE D quotient(PairOf<D> a, PairOf<D> b) noexcept {
    const D divisor = b.high - b.low, inverse = 1.0 / divisor;
    const D q = upper_half(D((a.high - a.low) * inverse)), upper = upper_half(divisor);
    const D lower = (b.high - upper) - b.low;
    return q - (((q * upper - a.high) + a.low) + q * lower) * inverse;
}

template <class D>
QUORVEL_INLINE D sine(StepAngle<D> x) noexcept {
    return sum(addends(x));
}
template <class D>
QUORVEL_INLINE D cosine(StepAngle<D> x) noexcept {
    return sum(quarter_on(addends(x)));
}

template <class D>
QUORVEL_INLINE D tangent(StepAngle<D> x) noexcept {
    const Addends<D> s = addends(x), c = quarter_on(s);
    const D quick = quotient<D>({s.s, -beyond_step(s)}, {c.s, -beyond_step(c)});
    const D size = absolute(quick);
    return either(
        rarely((size < kCancelled) | (size > 1.0 / kCancelled)),
        [&] { return quotient(careful_sine(s), careful_sine(c)); }, [&] { return quick; });
}

template <class D>
QUORVEL_INLINE SinCosOf<D> sine_and_cosine(StepAngle<D> x) noexcept {
    const Addends<D> a = addends(x);
    return {sum(a), sum(quarter_on(a))};
}

}  // namespace detail

inline double sin(double x) noexcept { return detail::sine(detail::any_step_angle(x)); }

inline double cos(double x) noexcept { return detail::cosine(detail::any_step_angle(x)); }

inline SinCosOf<double> sincos(double x) noexcept {
    return detail::sine_and_cosine(detail::any_step_angle(x));
}

inline double tan(double x) noexcept { return detail::tangent(detail::any_step_angle(x)); }

}  // namespace quorvel::math
