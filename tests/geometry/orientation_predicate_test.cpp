// The side of a line on which a point lies.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "clipping/exact_overlap.h"
#include "conformance/random_arguments.h"
#include "geometry/orientation_predicate.h"

namespace {

using namespace quorvel;
using namespace quorvel::conformance;
using namespace quorvel::test;

int side(PlanPoint a, PlanPoint b, PlanPoint c) {
    return geometry::orientation({a.x, a.y}, {b.x, b.y}, {c.x, c.y});
}

void expect_one_answer(PlanPoint a, PlanPoint b, PlanPoint c, int answer) {
    EXPECT_EQ(side(a, b, c), answer);
    EXPECT_EQ(side(b, c, a), answer);
    EXPECT_EQ(side(c, a, b), answer);
    EXPECT_EQ(side(b, a, c), -answer);
    EXPECT_EQ(side(a, c, b), -answer);
    EXPECT_EQ(side(c, b, a), -answer);
}

// The third point is on the line or as near as rounding brings it; and anywhere, at sizes from
// subnormal to almost infinite, up to 2^960 apart.
TEST(OrientationPredicate, IsExactAndAntisymmetric) {
    Random random(7);
    for (int i = 0; i < 10000; ++i) {
        const double offset = random.below(4) ? std::ldexp(1.0, random.below(40)) : 0.0;
        const auto near = [&] { return PlanPoint{offset + random.unit(), random.unit() - offset}; };
        const PlanPoint a = near(), b = near();
        const double t = random.below(3) ? 3.0 * random.unit() - 1.0 : 0.5 * random.below(5) - 1.0;
        const PlanPoint c{a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)};
        expect_one_answer(a, b, c, exact_side(a, b, c));

        const int least = random.below(1138) - 1074;
        const auto size = [&] { return least + (random.below(4) ? random.below(959) : 0); };
        const auto scaled = [&](double value) {
            return random.below(8) ? std::ldexp(1.0 + value - std::floor(value), size()) : -0.0;
        };
        const PlanPoint u{scaled(a.x), scaled(a.y)}, v{-scaled(b.x), scaled(b.y)};
        const PlanPoint w{scaled(c.x), random.below(2) ? v.y : scaled(c.y)};
        if (i % 4 == 0) expect_one_answer(u, v, w, exact_side(u, v, w));
    }
}

TEST(OrientationPredicate, WhatIsNotFiniteLiesOnEveryLine) {
    const double infinity = std::numeric_limits<double>::infinity();
    expect_one_answer({0, 0}, {infinity, 1}, {1, 2}, 0);
    expect_one_answer({0, 0}, {1, 1}, {std::nan(""), 2}, 0);
}

}  // namespace
