// The side of a line on which a point lies.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "clipping/exact_overlap.h"
#include "geometry/orientation_predicate.h"
#include "support/random_arguments.h"

namespace {

using namespace quorvel;
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

// The third point is as near to the line as rounding brings it, or on it.
TEST(OrientationPredicate, IsExactNearTheLine) {
    Random random(7);
    for (int i = 0; i < 20000; ++i) {
        const double offset = i % 4 ? std::ldexp(1.0, random.below(40)) : 0.0;
        const auto point = [&] {
            return PlanPoint{offset + random.unit(), random.unit() - offset};
        };
        const PlanPoint a = point(), b = point();
        const double t = random.below(3) ? 3.0 * random.unit() - 1.0 : 0.5 * random.below(5) - 1.0;
        const PlanPoint c{a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)};
        expect_one_answer(a, b, c, exact_side(a, b, c));
    }
}

// From subnormal to almost infinite, by factors up to 2^960 from one point to another.
TEST(OrientationPredicate, IsExactAtAnySize) {
    Random random(8);
    for (int i = 0; i < 3000; ++i) {
        const int least_x = random.below(1138) - 1074, least_y = random.below(1138) - 1074;
        const auto drawn = [&](int least) {
            const int exponent = least + (random.below(4) ? random.below(959) : 0);
            return random.below(8)
                       ? std::ldexp((random.below(2) ? -1.0 : 1.0) * random.between(1.0, 2.0),
                                    exponent)
                       : 0.0;
        };
        const auto point = [&] { return PlanPoint{drawn(least_x), drawn(least_y)}; };
        const PlanPoint a = point(), b = point();
        const PlanPoint c = random.below(2) ? point() : PlanPoint{a.x + 0.5 * (b.x - a.x), b.y};
        expect_one_answer(a, b, c, exact_side(a, b, c));
    }
}

TEST(OrientationPredicate, WhatIsNotFiniteLiesOnEveryLine) {
    const double infinity = std::numeric_limits<double>::infinity();
    expect_one_answer({0, 0}, {infinity, 1}, {1, 2}, 0);
    expect_one_answer({0, 0}, {1, 1}, {std::nan(""), 2}, 0);
}

}  // namespace
