// Polygons: their areas, how they lie in space, and what lies in them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <vector>

#include "conformance/random_arguments.h"
#include "quorvel/geometry.h"

namespace {

using quorvel::conformance::Random;
using Point = std::array<float, 2>;

constexpr float pi = std::numbers::pi_v<float>;
constexpr float nan = std::numeric_limits<float>::quiet_NaN();

struct Polygon {
    std::vector<float> x, y;

    int size() const { return static_cast<int>(x.size()); }
};

const Polygon unit_square{{0, 0, 1, 1}, {0, 1, 1, 0}};
const Polygon l_shape{{0, 0, 1, 1, 5, 5}, {0, 5, 5, 1, 1, 0}};

// Clockwise about the origin, at angles from the north; regular for a spread of 0, else a star.
Polygon star(int n, double spread, Random& random) {
    Polygon polygon;
    for (int i = 0; i < n; ++i) {
        const double angle = 2.0 * std::numbers::pi * (i + 0.3 * spread * random.unit()) / n;
        const double radius = 3.0 - 2.0 * spread * random.unit();
        polygon.x.push_back(static_cast<float>(radius * std::sin(angle)));
        polygon.y.push_back(static_cast<float>(radius * std::cos(angle)));
    }
    return polygon;
}

// Of a clockwise polygon, in double precision by vertical strips.
double true_area(const Polygon& p) {
    double sum = 0.0;
    for (std::size_t i = 0, j = p.x.size() - 1; i < p.x.size(); j = i++)
        sum += (double{p.x[i]} - double{p.x[j]}) * (double{p.y[i]} + double{p.y[j]}) / 2.0;
    return sum;
}

// The polygon on a surface, moved 2 m to the right and 1 m up the slope: x, y and z in turn.
std::vector<float> in_space(const Polygon& polygon, float azimuth, float tilt) {
    std::array<float, 9> r, ri;
    lib::GERSET(azimuth, tilt, r, ri);
    std::vector<float> v;
    for (std::size_t k = 0; k < polygon.x.size(); ++k) {
        std::array<float, 3> p;
        lib::GERAXI(std::array{polygon.x[k] + 2, polygon.y[k] + 1, 0.0f}, r, p);
        v.insert(v.end(), p.begin(), p.end());
    }
    return v;
}

struct Lie {
    float area = -1, tilt = -1, orientation = -1, area_by_triangles;

    explicit Lie(const std::vector<float>& v) {
        const int n = static_cast<int>(v.size() / 3);
        lib::GEASO(n, v.data(), area, tilt, orientation);
        std::vector<float> coordinates[3];
        for (std::size_t i = 0; i < v.size(); ++i) coordinates[i % 3].push_back(v[i]);
        area_by_triangles =
            lib::GEAPO3(coordinates[0].data(), coordinates[1].data(), coordinates[2].data(), n);
    }
};

TEST(PlanArea, IsPositiveForClockwiseVertices) {
    Random random(1);
    const auto areas = [](const Polygon& p) {
        return std::array{lib::GEAPOL(p.x.data(), p.y.data(), p.size()),
                          lib::GEAPO2(p.x.data(), p.y.data(), p.size())};
    };
    for (int n = 3; n < 40; ++n) {
        Polygon polygon = star(n, 1.0, random);
        const auto [area, clockwise_area] = areas(polygon);
        EXPECT_NEAR(area, true_area(polygon), 1e-5 * area);
        EXPECT_EQ(clockwise_area, area);
        std::ranges::reverse(polygon.x);
        std::ranges::reverse(polygon.y);
        EXPECT_NEAR(areas(polygon)[0], area, 1e-5f * area);
        EXPECT_NEAR(areas(polygon)[1], -area, 1e-5f * area);
    }
}

TEST(SpacePolygon, KeepsItsAreaAndFacesAsItsSurface) {
    Random random(2);
    for (int i = 0; i < 2000; ++i) {
        const Polygon polygon = star(3 + random.below(8), 0.0, random);
        const float azimuth = random.real(0.0, 360.0), tilt = random.real(5.0, 175.0);
        const Lie lie(in_space(polygon, azimuth * pi / 180.0f, tilt * pi / 180.0f));
        EXPECT_NEAR(lie.area_by_triangles, true_area(polygon), 1e-4);
        EXPECT_NEAR(lie.area, true_area(polygon), 1e-4);
        EXPECT_NEAR(std::remainder(lie.orientation - azimuth, 360.0f), 0.0f, 0.02f);
        // Towards the normal, against which the vertices run anticlockwise.
        EXPECT_NEAR(lie.tilt, 180.0f - tilt, 0.02f);
    }
}

TEST(SpacePolygon, OfOtherShapesThanConvex) {
    const auto v = in_space(l_shape, 0.5f, 1.0f);
    EXPECT_NEAR(Lie(v).area, 9.0f, 1e-4f);
    // The mean of the vertices, at (2, 2), lies outside: 4 m² of triangles are not part of it, and
    // counted instead of taken off.
    EXPECT_NEAR(Lie(v).area_by_triangles, 9.0f + 2.0f * 4.0f, 1e-4f);
    // Starting at the reflex corner the normal, and with it the sign, is the other one.
    auto reflex = v;
    std::rotate(reflex.begin(), reflex.begin() + 9, reflex.end());
    EXPECT_NEAR(Lie(reflex).area, -9.0f, 1e-4f);
}

TEST(SpacePolygon, ThatIsNearlyLevelIsOrientedByItsFirstSide) {
    // On a slope that faces 30 degrees; the first side is level and runs at 120 degrees. The third
    // vertex, below it or above, makes the normal point up or down.
    const auto orientation = [](float third_y, float tilt) {
        return Lie(in_space({{1, 0, 0}, {0, 0, third_y}}, pi / 6.0f, tilt * pi / 180.0f))
            .orientation;
    };
    // arccos 0.999 = 2.5626 degrees
    EXPECT_NEAR(orientation(-1, 2.55f), 300.0f, 0.01f);
    EXPECT_NEAR(orientation(1, 2.55f), 120.0f, 0.01f);
    EXPECT_NEAR(orientation(-1, 2.575f), 210.0f, 0.01f);
    EXPECT_NEAR(orientation(1, 2.575f), 30.0f, 0.01f);
}

TEST(SpacePolygon, OfFewerThanThreeVerticesHasNoArea) {
    const Lie line({1, 2, 3, 1, 5, 3}), none({});
    EXPECT_EQ(line.area, 0.0f);
    EXPECT_EQ(line.orientation, 180.0f);
    EXPECT_EQ(none.area, 0.0f);
    EXPECT_EQ(none.orientation, -1.0f) << "not written";
}

// The flags, of which 7 are left as given.
std::vector<std::int32_t> enclosed(const Polygon& polygon, const Polygon& points) {
    std::vector<std::int32_t> flags(points.x.size(), 7);
    std::int32_t count = -1;
    lib::GECLOS(polygon.x.data(), polygon.y.data(), polygon.size(), points.x.data(),
                points.y.data(), points.size(), flags.data(), count);
    EXPECT_EQ(count, std::ranges::count(flags, 1));
    return flags;
}

// Number of boundary crossings of a ray to the east, odd for a point inside.
bool surrounded(const Polygon& polygon, double x, double y) {
    bool odd = false;
    for (std::size_t i = 0, j = polygon.x.size() - 1; i < polygon.x.size(); j = i++) {
        const double xi = polygon.x[i], yi = polygon.y[i], xj = polygon.x[j], yj = polygon.y[j];
        if ((yi > y) != (yj > y) && x < xi + (y - yi) / (yj - yi) * (xj - xi)) odd = !odd;
    }
    return odd;
}

TEST(ConvexPolygon, EnclosesWhatItSurrounds) {
    Random random(3);
    for (int i = 0; i < 500; ++i) {
        const Polygon polygon = star(3 + random.below(8), 0.0, random);
        EXPECT_EQ(enclosed(polygon, polygon), std::vector<std::int32_t>(polygon.x.size(), 1));
        for (int k = 0; k < 20; ++k) {
            const float x = random.real(-3.0, 3.0), y = random.real(-3.0, 3.0);
            EXPECT_EQ(enclosed(polygon, {{x}, {y}})[0], surrounded(polygon, x, y) ? 1 : 7);
        }
    }
}

TEST(ConvexPolygon, EnclosesItsBoundaryToTheTolerance) {
    EXPECT_EQ(enclosed(unit_square, {{0.5f, -0.9e-5f, -1.1e-5f, 1 + 0.8e-5f, 2, nan},
                                     {1, 0.5f, 0.5f, -0.8e-5f, 0, 0.5f}}),
              (std::vector<std::int32_t>{1, 1, 7, 1, 7, 1}));
    // At the corner of a diamond, further off the edge than coincidence allows, but coincident.
    EXPECT_EQ(enclosed({{0, 1, 2, 1}, {0, 1, 0, -1}}, {{-0.9e-5f, 0.5f}, {0.9e-5f, 0.50002f}}),
              (std::vector<std::int32_t>{1, 7}));
}

TEST(BoundaryCrossing, OfTellingSegments) {
    const struct {
        Point a, b, p;
        std::int32_t k;
        const char* why;
    } cases[] = {
        {{0.5f, 0.5f}, {0.5f, -1}, {0.5f, 0}, 1, "leaves by the closing edge"},
        {{-1, 0.5f}, {2, 0.5f}, {0, 0.5f}, 2, "crosses twice; edge 1 comes first"},
        {{0.5f, 0.5f}, {0.6f, 0.5f}, {1e20f, 1e20f}, 0, "stays inside"},
        {{1, 0.5f}, {2, 0.5f}, {1, 0}, 999 + 4, "starts on an edge and goes outwards"},
        {{1, 0.5f}, {-1, 0.5f}, {0, 0.5f}, 2, "starts on an edge and goes through"},
        {{1, 1}, {2, 3}, {1e20f, 1e20f}, -3, "starts at a vertex and goes outwards"},
        {{0, 0}, {-1, -1}, {0, 0}, -1, "starts at the vertex of the last edge"},
    };
    for (const auto& [a, b, expected, number, why] : cases) {
        Point p;
        std::int32_t k;
        lib::GESIDE(a, b, unit_square.x.data(), unit_square.y.data(), 4, p, k);
        EXPECT_EQ(k, number) << why;
        EXPECT_EQ(p, expected) << why;
    }
    Point p;
    std::int32_t k;
    // Crossings beyond 100000 are not taken; the coordinates are exact.
    for (const float x : {65536.0f, 131072.0f}) {
        lib::GESIDE(Point{0, 0}, Point{2 * x, 0}, std::array{x, x, 2 * x},
                    std::array{-8.0f, 8.0f, 8.0f}, 3, p, k);
        EXPECT_EQ(k, x < 1e5f ? 2 : 0);
    }
}

bool inside(const std::array<float, 3>& p, std::vector<float> v) {
    std::int32_t in = -1;
    v.insert(v.end(), {v[0], v[1], v[2]});
    lib::GEINSI(p, v.data(), static_cast<int>(v.size() / 3), in);
    return in == 1;
}

TEST(SpacePolygon, ContainsWhatItSurrounds) {
    Random random(5);
    int contained = 0;
    for (int i = 0; i < 500; ++i) {
        const Polygon polygon = star(4 + random.below(8), 1.0, random);
        const float azimuth = random.real(0.0, 6.0), tilt = random.real(0.0, 3.0);
        const auto v = in_space(polygon, azimuth, tilt);
        for (int k = 0; k < 20; ++k) {
            const float x = random.real(-3.0, 3.0), y = random.real(-3.0, 3.0);
            const auto p = in_space({{x}, {y}}, azimuth, tilt);
            const bool expected = surrounded(polygon, x, y);
            EXPECT_EQ(inside({p[0], p[1], p[2]}, v), expected);
            contained += expected;
        }
    }
    EXPECT_GT(contained, 1000);
}

TEST(SpacePolygon, ContainsItsBoundaryButNotWhatIsInLineWithAnEdge) {
    const std::vector<float> square{0, 0, 2, 0, 1, 2, 1, 1, 2, 1, 0, 2};
    const std::vector<float> large{0, 0, 0, 0, 9, 0, 9, 9, 0, 9, 0, 0};
    const std::vector<float> l{0, 0, 0, 0, 5, 0, 1, 5, 0, 1, 1, 0, 5, 1, 0, 5, 0, 0};
    const std::vector<float> beside_0{0, -1, 0, 2, -1, 0, 2, 0, 0, 1, 0, 0, 1, 1, 0, 0, 1, 0};
    const struct {
        std::array<float, 3> p;
        const std::vector<float>& v;
        bool inside;
        const char* why;
    } cases[] = {
        {{0, 0.25f, 2}, square, true, "on an edge"},
        {{1, 1, 2}, square, true, "at a vertex"},
        {{0, 1.5f, 2}, square, false, "in line with an edge"},
        {{0.5f, 0.5f, 2.49f}, square, true, "off the plane by less than half a side"},
        {{0.5f, 0.5f, 2.51f}, square, false, "off the plane by more"},
        {{1, 0.5f, 0}, l, false, "inside, but in line with the edge at the reflex corner"},
        {{1.01f, 0.5f, 0}, l, true, "beside that line"},
        {{0.5f, 0.97e-6f, 0}, beside_0, false, "in line to the tolerance"},
        {{0.5f, 1.03e-6f, 0}, beside_0, true, "not in line"},
        {{0.6e-6f, 0.6e-6f, 0}, large, false, "less than 1e-6 from a corner, not in line"},
        {{0.8e-6f, 0.8e-6f, 0}, large, true, "more than 1e-6"},
    };
    for (const auto& [p, v, expected, why] : cases) EXPECT_EQ(inside(p, v), expected) << why;
}

}  // namespace
