#include "geometry/orientation_predicate.h"

#include <algorithm>
#include <array>

namespace quorvel::geometry {
namespace {

// A rounded result and what rounding took off it.
struct Exact {
    DoubleReal rounded, error;
};

// D. E. Knuth.
Exact two_sum(DoubleReal a, DoubleReal b) noexcept {
    const DoubleReal sum = a + b, b_in_sum = sum - a, a_in_sum = sum - b_in_sum;
    return {sum, (a - a_in_sum) + (b - b_in_sum)};
}

// The upper half of the digits. T. J. Dekker, G. W. Veltkamp.
DoubleReal upper(DoubleReal a) noexcept {
    const DoubleReal shifted = (0x1p27 + 1.0) * a;
    return shifted - (shifted - a);
}

// Exact unless it over- or underflows.
Exact two_product(DoubleReal a, DoubleReal b) noexcept {
    const DoubleReal product = a * b;
    const DoubleReal a_upper = upper(a), a_lower = a - a_upper;
    const DoubleReal b_upper = upper(b), b_lower = b - b_upper;
    const DoubleReal rest = ((product - a_upper * b_upper) - a_lower * b_upper) - a_upper * b_lower;
    return {product, a_lower * b_lower - rest};
}

// A sum without rounding: terms whose digits do not overlap, the least first.
class Expansion {
  public:
    void add(DoubleReal term) noexcept {
        int kept = 0;
        for (int i = 0; i < size_; ++i) {
            const auto [sum, error] = two_sum(term, terms_[i]);
            if (error != 0.0) terms_[kept++] = error;
            term = sum;
        }
        if (term != 0.0) terms_[kept++] = term;
        size_ = kept;
    }

    // Of the greatest term, which outweighs all others.
    int sign() const noexcept {
        if (size_ == 0) return 0;
        return terms_[size_ - 1] > 0.0 ? 1 : -1;
    }

  private:
    std::array<DoubleReal, 12> terms_;
    int size_ = 0;
};

struct Triple {
    DoubleReal a, b, c;

    bool finite() const noexcept {
        return std::isfinite(a) && std::isfinite(b) && std::isfinite(c);
    }

    // By a power of two, so that no product of two scaled ones overflows, and as few as can be
    // underflow.
    Triple scaled() const noexcept {
        int exponent = 0;
        std::frexp(std::max({std::fabs(a), std::fabs(b), std::fabs(c)}), &exponent);
        const auto scale = [&](DoubleReal value) { return std::scalbn(value, 480 - exponent); };
        return {scale(a), scale(b), scale(c)};
    }
};

constexpr bool same(PlanPosition a, PlanPosition b) noexcept { return a.x == b.x && a.y == b.y; }

// Three points of an upright or of a level line, or not even three points: what occurs most.
constexpr bool plainly_in_line(PlanPosition a, PlanPosition b, PlanPosition c) noexcept {
    return (a.x == b.x && b.x == c.x) || (a.y == b.y && b.y == c.y) || same(a, b) || same(b, c) ||
           same(c, a);
}

}  // namespace

// (b - a) x (c - a) = a x b + b x c + c x a: no difference that could be rounded.
int exact_orientation(PlanPosition a, PlanPosition b, PlanPosition c) noexcept {
    if (plainly_in_line(a, b, c)) return 0;
    const Triple xs{a.x, b.x, c.x}, ys{a.y, b.y, c.y};
    if (!xs.finite() || !ys.finite()) return 0;
    const Triple x = xs.scaled(), y = ys.scaled();
    Expansion sum;
    const auto add = [&](DoubleReal factor, DoubleReal other) {
        const auto [rounded, error] = two_product(factor, other);
        sum.add(error);
        sum.add(rounded);
    };
    add(x.a, y.b), add(x.b, -y.a);
    add(x.b, y.c), add(x.c, -y.b);
    add(x.c, y.a), add(x.a, -y.c);
    return sum.sign();
}

}  // namespace quorvel::geometry
