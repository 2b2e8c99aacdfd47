// Lines and segments in plan, and points on them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "conformance/random_arguments.h"
#include "quorvel/geometry.h"

namespace {

using quorvel::conformance::Random;
using Point = std::array<float, 2>;
using Vec3 = std::array<float, 3>;

constexpr Point nowhere{1e20f, 1e20f};

Point meeting(const Point& a, const Point& b, const Point& c, const Point& d) {
    Point x;
    lib::GEMEET(a, b, c, d, x);
    return x;
}

Point crossing(const Point& a, const Point& b, const Point& c, const Point& d) {
    Point x;
    lib::GECROS(a, b, c, d, x);
    return x;
}

Point random_point(Random& random, double size) {
    const float x = random.real(-size, size);
    return {x, random.real(-size, size)};
}

// Twice the area of the triangle ABC, positive when C lies left of AB.
double turn(const Point& a, const Point& b, const Point& c) {
    const double ax = a[0], ay = a[1];
    return (b[0] - ax) * (c[1] - ay) - (b[1] - ay) * (c[0] - ax);
}
double distance_to_the_left(const Point& a, const Point& b, const Point& c) {
    return turn(a, b, c) / std::hypot(b[0] - a[0], b[1] - a[1]);
}

TEST(Lines, CrossWhereEachSegmentSeparatesTheEndsOfTheOther) {
    Random random(1);
    int crossings = 0;
    for (int i = 0; i < 20000; ++i) {
        const Point a = random_point(random, 1.0), b = random_point(random, 1.0);
        const Point c = random_point(random, 1.0), d = random_point(random, 1.0);
        const double ends[] = {turn(a, b, c), turn(a, b, d), turn(c, d, a), turn(c, d, b)};
        const auto close = [](double end) { return std::fabs(end) < 0.01; };
        if (std::ranges::any_of(ends, close) || std::fabs(ends[0] - ends[1]) < 0.1) continue;
        const Point x = meeting(a, b, c, d);
        EXPECT_NEAR(distance_to_the_left(a, b, x), 0.0, 1e-4);
        EXPECT_NEAR(distance_to_the_left(c, d, x), 0.0, 1e-4);
        const bool cross = ends[0] * ends[1] < 0.0 && ends[2] * ends[3] < 0.0;
        EXPECT_EQ(crossing(a, b, c, d), cross ? x : nowhere);
        crossings += cross;
    }
    EXPECT_GT(crossings, 1000);
}

TEST(Lines, ThatAreParallelMeetNowhere) {
    EXPECT_EQ(crossing({0, 0}, {2, 0}, {1, 0}, {3, 0}), nowhere);
    EXPECT_EQ(meeting({1, 1}, {1, 1}, {0, 0}, {1, 0}), nowhere);
    // The limit is 1e-10 for the product of the lengths and the sine.
    EXPECT_EQ(meeting({0, 0}, {1e-5f, 0}, {0, 1}, {0, 1 + 0.96e-5f}), nowhere);
    EXPECT_EQ(meeting({0, 0}, {1e-5f, 0}, {0, 1}, {0, 1 + 1.04e-5f}), (Point{0, 0}));
}

TEST(Lines, OfSegmentsReachATenthOfAMillimetreFurther) {
    const struct {
        float x, y;  // the lower end of an upright segment of 1 m; the other is from 0 to 1, level
        bool crosses;
    } cases[] = {{1.0f, 0.0f, true},       {1.00005f, -0.5f, true},  {-0.00009f, 0.00009f, true},
                 {-0.0001f, -0.5f, false}, {1.00011f, -0.5f, false}, {0.5f, 0.00011f, false},
                 {0.5f, -1.0001f, false}};
    for (const auto& [x, y, crosses] : cases) {
        const Point above{x, 1 + y}, below{x, y};
        EXPECT_EQ(crossing({0, 0}, {1, 0}, above, below) != nowhere, crosses) << x << ' ' << y;
        EXPECT_EQ(crossing(below, above, {1, 0}, {0, 0}) != nowhere, crosses) << x << ' ' << y;
    }
}

int collinearity(const std::vector<Point>& points) {
    std::vector<float> x, y;
    for (const Point& p : points) {
        x.push_back(p[0]);
        y.push_back(p[1]);
    }
    return lib::IGELIN(x.data(), y.data(), static_cast<int>(points.size()));
}

TEST(Collinearity, OfTellingPoints) {
    const struct {
        std::vector<Point> points;
        int expected;
        const char* why;
    } cases[] = {
        {{}, 1, "no point"},
        {{{0, 0}, {1, 2}}, 1, "two points"},
        {{{0, 0}, {1, 0}, {2, 0}, {2, 1}}, 4, "the first point off the y of point 1"},
        {{{0, 0}, {1e-5f, 5}, {-1e-5f, 9}}, 1, "upright, as far as the tolerance, which counts"},
        {{{0, 5}, {3, 5 + 0.9e-5f}, {7, 5}}, 1, "level within the tolerance"},
        {{{0, 0}, {2, 0}, {1, 1}}, 3, "the slanted pair is 1 and 3, and point 2 is off it"},
        {{{0, 0}, {0.9e-5f, 0}, {1, 1}, {2, 2}}, 1, "points 1 and 2 are no slanted pair"},
        {{{0, 0}, {1, 1}, {2, 2 + 0.8e-5f}}, 1, "off by less than the tolerance"},
        {{{0, 0}, {1, 1}, {2, 2 + 1.05e-5f}}, 2, "off by more"},
        {{{0, 0}, {1000, 1000}, {500, 500.004f}}, 1, "a long pair tolerates more"},
        {{{0, 0}, {0, 5}, {3, 0}}, 2, "the corner is off the line of the other two"},
        {{{0, 0}, {1.5e-5f, 0}, {0.7e-5f, 5}}, 3, "no two of them differ in both coordinates"},
    };
    for (const auto& [points, expected, why] : cases)
        EXPECT_EQ(collinearity(points), expected) << why;
}

TEST(SideOfLine, IsThatOfTheTurn) {
    Random random(3);
    for (int i = 0; i < 20000; ++i) {
        const Point a = random_point(random, 10.0), b = random_point(random, 10.0);
        const Point c = random_point(random, 10.0);
        const double left = distance_to_the_left(a, b, c);
        if (std::fabs(left) < 3e-5) continue;
        EXPECT_EQ(lib::IGEPNT(a, b, c), left > 0.0 ? -1 : 1);
    }
    const Point origin{0, 0}, north{0, 1};
    EXPECT_EQ(lib::IGEPNT(origin, north, Point{1e-5f, 3}), 1);
    EXPECT_EQ(lib::IGEPNT(origin, north, Point{0.99e-5f, 3}), 0);
    EXPECT_EQ(lib::IGEPNT(origin, north, Point{-1.01e-5f, -3}), -1);
    EXPECT_EQ(lib::IGEPNT(origin, origin, Point{-1, 5}), -1) << "as though the line ran north";
}

TEST(Coincidence, IsThatOfBothCoordinates) {
    EXPECT_EQ(lib::GECOIN(0.0f, 0.0f, 0.99e-5f, -0.99e-5f), -1);
    EXPECT_EQ(lib::GECOIN(0.0f, 0.0f, 1e-5f, 0.0f), 0);
    EXPECT_EQ(lib::GECOIN(0.0f, 1e-5f, 0.0f, 0.0f), 0);
}

TEST(PointOnSegment, OfTellingPoints) {
    const Vec3 a{1, 5, -2}, b{3, 1, -2};
    const struct {
        Vec3 p;
        float in_span, ahead_and_nearer;
    } cases[] = {
        {a, 1, 1},
        {b, 1, 0},  // no nearer to a than b itself
        {{2, 3, -2}, 1, 1},
        {{0.99f, 5, -2}, 0, 0},
        {{3.01f, 0.98f, -2}, 0, 0},
        {{2, 5.1f, -2}, 0, 1},
        {{2, 0.9f, -2}, 0, 1},
        {{2, 3, -1.9f}, 0, 1},
        {{2, 3, -2.1f}, 0, 1},
    };
    for (const auto& [p, in_span, ahead_and_nearer] : cases) {
        EXPECT_EQ(lib::GEINLN(a, b, p), in_span) << p[0] << ' ' << p[1] << ' ' << p[2];
        EXPECT_EQ(lib::GEINLN(b, a, p), in_span) << p[0] << ' ' << p[1] << ' ' << p[2];
        EXPECT_EQ(lib::GEINLN2(a, b, p), ahead_and_nearer) << p[0] << ' ' << p[1] << ' ' << p[2];
    }
}

}  // namespace
