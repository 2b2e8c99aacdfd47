// Where a function of one unknown is 0.
#pragma once

#include <limits>

#include "base/with_slope.h"

namespace quorvel {

// The unknown between `low` and `high`, by Newton's steps from x on, and by halves where one leads
// out of what is left of the interval. `excess` gives a WithSlope for one; it must be monotonic,
// whether it rises or falls. Not a number where its signs at the two ends do not differ.
template <class D, class Excess>
D root(D low, D high, D x, Excess excess) noexcept {
    constexpr int most_steps = 80;  // halves alone take 40
    constexpr DoubleReal settled = 1e-9;
    const D at_low = excess(WithSlope<D>(low)).value, at_high = excess(WithSlope<D>(high)).value;
    const MaskOf<D> exists =
        ((at_low <= D(0.0)) & (at_high >= D(0.0))) | ((at_low >= D(0.0)) & (at_high <= D(0.0)));
    const D rising = select(at_low <= at_high, D(1.0), D(-1.0));

    MaskOf<D> searching = exists;
    for (int i = 0; i < most_steps && any(searching); ++i) {
        const WithSlope<D> y = excess(WithSlope<D>(x, D(1.0)));
        const MaskOf<D> beyond = rising * y.value > D(0.0);
        high = select(beyond, x, high);
        low = select(beyond, low, x);
        const D newton = x - y.value / y.slope;
        const MaskOf<D> inside = (newton >= low) & (newton <= high);
        const D next = select(inside, newton, D(0.5) * (low + high));
        const MaskOf<D> moves = absolute(next - x) > D(settled);
        x = select(searching, next, x);
        searching = searching & moves;
    }
    return select(exists, x, D(std::numeric_limits<DoubleReal>::quiet_NaN()));
}

}  // namespace quorvel
