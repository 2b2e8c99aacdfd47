// Sine, cosine and tangent in double precision.
//
// Algorithm: the polynomials for |r| <= pi/4 of single precision, with r in 106 bits. Below 2^20
// quarter turns are subtracted in four parts; from there on the 53-bit integer of the angle is
// multiplied by 192 bits of 2/pi (Payne and Hanek), dropping multiples of four quarters.
//
// Error in ulp: sin and cos 0.85, tan 0.97.
//
// Constants: tools/math/coefficients.sollya.
#pragma once

#include "math/careful_trig.h"
#include "math/double_double.h"

namespace quorvel::math {
namespace detail {

inline ReducedAngle reduce_moderate_double(double x) noexcept {
    const double shifted = x * 0x1.45f306dc9c883p-1 + kToInteger;
    const double n = shifted - kToInteger;
    const Pair head = two_sum(x - n * 0x1.921fb544p0, -(n * 0x1.0b4611a6p-34));
    const Pair tail = fast_two_sum(n * 0x1.3198a2ep-69, n * 0x1.b839a252049c1p-104);
    const Pair r = head - tail;
    return {r.high, -r.low, bits(shifted)};
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

// |x| >= 2^20 and finite. The product counts quarters in units of 2^-190.
inline ReducedAngle reduce_large_double(double x) noexcept {
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
    return sign(x) != 0 ? ReducedAngle{-r.high, r.low, 0 - count}
                        : ReducedAngle{r.high, -r.low, count};
}

inline SinCosPair sin_cos(double x) noexcept {
    if (!(magnitude(x) < kInfinity)) return {{x - x, 0.0}, {x - x, 0.0}};
    const auto [r, correction, count] =
        magnitude(x) < 0x1p20 ? reduce_moderate_double(x) : reduce_large_double(x);
    const Pair square = two_product(r, r);
    return in_quadrant(count, sin_kernel(r, correction * (1.0 - 0.5 * square.high)),
                       cos_kernel(r, r * correction - 0.5 * square.low));
}

}  // namespace detail

inline double sin(double x) noexcept {
    if (x == 0.0) return x;
    const detail::Pair s = detail::sin_cos(x).sin;
    return s.high + s.low;
}

inline double cos(double x) noexcept {
    const detail::Pair c = detail::sin_cos(x).cos;
    return c.high + c.low;
}

struct DoubleSinCos {
    double sin, cos;
};

inline DoubleSinCos sincos(double x) noexcept {
    const auto [s, c] = detail::sin_cos(x);
    return {x == 0.0 ? x : s.high + s.low, c.high + c.low};
}

inline double tan(double x) noexcept {
    if (detail::magnitude(x) < 0x1p-27) return x;
    const auto [s, c] = detail::sin_cos(x);
    return (detail::fast_two_sum(s.high, s.low) / detail::fast_two_sum(c.high, c.low)).high;
}

}  // namespace quorvel::math
