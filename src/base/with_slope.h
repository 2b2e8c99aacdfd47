// A number with its derivative by an unknown: a number type of the formulas, by which a search has
// the slope of what it solves from the text of the formula itself (forward differentiation). D is
// double or a pack of doubles.
#pragma once

#include "base/number.h"

namespace quorvel {

template <class D>
struct WithSlope {
    D value, slope;

    WithSlope() = default;
    WithSlope(D value, D slope) noexcept : value(value), slope(slope) {}
    WithSlope(D constant) noexcept : WithSlope(constant, D(0.0)) {}
    WithSlope(Real constant) noexcept : WithSlope(D(constant)) {}

    friend WithSlope operator+(WithSlope a, WithSlope b) noexcept {
        return {a.value + b.value, a.slope + b.slope};
    }
    friend WithSlope operator-(WithSlope a, WithSlope b) noexcept {
        return {a.value - b.value, a.slope - b.slope};
    }
    friend WithSlope operator*(WithSlope a, WithSlope b) noexcept {
        return {a.value * b.value, a.value * b.slope + a.slope * b.value};
    }
    friend WithSlope operator/(WithSlope a, WithSlope b) noexcept {
        const D quotient = a.value / b.value;
        return {quotient, (a.slope - quotient * b.slope) / b.value};
    }
    friend auto operator<(WithSlope a, WithSlope b) noexcept { return a.value < b.value; }
    friend auto operator>(WithSlope a, WithSlope b) noexcept { return a.value > b.value; }
    friend auto operator>=(WithSlope a, WithSlope b) noexcept { return a.value >= b.value; }
};

template <class D>
struct NumberTypes<WithSlope<D>> {
    using Mask = MaskOf<D>;
    using Integer = IntegerOf<D>;
    using Double = D;
};

}  // namespace quorvel
