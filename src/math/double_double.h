// Sums, products and quotients of unevaluated sums of two doubles, 106 bits in all.
// Relative error of each operation: below 2^-101. Dekker's and Knuth's algorithms; no FMA.
#pragma once

#include "math/bits.h"

namespace quorvel::math::detail {

inline Pair two_sum(double a, double b) noexcept {
    const double s = a + b, t = s - a;
    return {s, (a - (s - t)) + (b - t)};
}

// |a| and |b| below 2^990, and the product's last bit above the subnormals
template <class D>
inline PairOf<D> two_product(D a, D b) noexcept {
    constexpr double kSplitter = 0x1p27 + 1.0;
    const D ta = kSplitter * a, tb = kSplitter * b;
    const D ah = ta - (ta - a), bh = tb - (tb - b);
    const D al = a - ah, bl = b - bh, p = a * b;
    return {p, ((ah * bh - p) + ah * bl + al * bh) + al * bl};
}

inline Pair operator+(Pair a, Pair b) noexcept {
    const Pair high = two_sum(a.high, b.high), low = two_sum(a.low, b.low);
    const Pair sum = fast_two_sum(high.high, high.low + low.high);
    return fast_two_sum(sum.high, sum.low + low.low);
}

inline Pair operator-(Pair a) noexcept { return {-a.high, -a.low}; }
inline Pair operator-(Pair a, Pair b) noexcept { return a + -b; }

inline Pair operator*(Pair a, Pair b) noexcept {
    const Pair p = two_product(a.high, b.high);
    return fast_two_sum(p.high, p.low + (a.high * b.low + a.low * b.high));
}

inline Pair operator/(Pair a, Pair b) noexcept {
    const double q = a.high / b.high;
    const Pair product = two_product(q, b.high);
    const double rest = ((a.high - product.high) - product.low) + (a.low - q * b.low);
    return fast_two_sum(q, rest / b.high);
}

// The float nearest to the exact sum: the double is rounded to odd first, so that it is never
// mistaken for a midpoint.
inline float round_to_float(Pair x) noexcept {
    std::uint64_t b = bits(x.high);
    if (x.low != 0.0 && (b & 1) == 0) b += sign(x.high) == sign(x.low) ? 1 : ~std::uint64_t{0};
    return static_cast<float>(from_bits(b));
}

// Whether `value`, of relative error below `margin`, leaves no doubt about the nearest float
QUORVEL_INLINE bool rounds_safely(double value, double margin) noexcept {
    const double error = value * margin;
    return static_cast<float>(value - error) == static_cast<float>(value + error);
}

}  // namespace quorvel::math::detail
