// Triangles and quadrilaterals by their corners.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "conformance/random_arguments.h"
#include "quorvel/geometry.h"

namespace {

using quorvel::conformance::Random;
using Triangle = std::array<double, 9>;
using Quadrilateral = std::array<double, 12>;
template <std::size_t n>
using Plan = std::array<std::array<double, 2>, n>;

constexpr double degree = std::numbers::pi / 180.0;

// Points given in local coordinates of a surface, x to the right seen from outside and y up the
// slope, at one height above it.
template <std::size_t n>
std::array<double, 3 * n> on_surface(double azimuth, double tilt, const Plan<n>& plan,
                                     double height = 0.0) {
    std::array<float, 9> r, ri;
    lib::GERSET(static_cast<float>(azimuth), static_cast<float>(tilt), r, ri);
    std::array<double, 3 * n> points;
    for (std::size_t k = 0; k < n; ++k)
        for (std::size_t i = 0; i < 3; ++i)
            points[3 * k + i] = plan[k][0] * double{r[i]} + plan[k][1] * double{r[3 + i]} +
                                height * double{r[6 + i]} + 5.0;
    return points;
}

struct Facing {
    double azimuth, tilt;

    explicit Facing(const Triangle& t, double given = 0.0) : azimuth(given) {
        lib::GETILT(t, azimuth, tilt);
    }
};

TEST(TriangleFacing, IsThatOfItsSurfaceWhenTheCornersRunClockwise) {
    for (double azimuth = 0.0; azimuth < 359.9; azimuth += 7.5)
        for (double tilt = 5.0; tilt < 178.0; tilt += 8.5) {
            const double a = azimuth * degree, t = tilt * degree;
            const Facing outside(on_surface<3>(a, t, {{{0, 0}, {1, 3}, {2, 1}}}));
            EXPECT_NEAR(outside.azimuth, azimuth, 2e-3);
            EXPECT_NEAR(outside.tilt, tilt, 1e-3);
        }
}

TEST(TriangleFacing, OfLevelAndNortherlyOnes) {
    const Triangle roof{0, 0, 3, 0, 1, 3, 1, 0, 3};
    EXPECT_NEAR(Facing(roof).tilt, 0.0, 1e-7);
    EXPECT_NEAR(Facing(roof, 1.0).azimuth, 57.29578, 1e-5) << "as though it were in radians";
    EXPECT_NEAR(Facing(roof, 14.0).azimuth, 0.0, 1e-5) << "reduced once, and still too large";
    // Level are those whose normal, here as long as the triangle is steep, leans less than 1e-10.
    EXPECT_EQ(Facing({0, 0, 0, 0, 1, 0, 1, 0, 0.9e-10}, 2.0).azimuth, Facing(roof, 2.0).azimuth);
    EXPECT_NEAR(Facing({0, 0, 0, 0, 1, 0, 1, 0, 1.1e-10}, 2.0).azimuth, 270.0, 1e-6);
    // From 359.99 on azimuths are those of the north.
    const auto facing = [](double azimuth) {
        return Facing({0, 0, 0, 0, 0, 1, -std::cos(azimuth), std::sin(azimuth), 0}).azimuth;
    };
    EXPECT_NEAR(facing(359.985 * degree), 359.985, 1e-6);
    EXPECT_EQ(facing(359.995 * degree), 0.0);
    EXPECT_NEAR(facing(0.005 * degree), 0.005, 1e-6);
}

TEST(Triangles, AreParallelByTheUnscaledProduct) {
    const Triangle level{0, 0, 0, 1, 0, 0, 0, 1, 0};
    const auto leaning = [](double lift) { return Triangle{5, 5, 5, 6, 5, 5, 5, 6, 5 + lift}; };
    EXPECT_EQ(lib::GEPLEL(level, leaning(0.000995)), -1);
    EXPECT_EQ(lib::GEPLEL(level, leaning(0.001005)), 0);
    EXPECT_EQ(lib::GEPLEL(level, Triangle{0, 0, 0, 0.03, 0, 0, 0, 0, 0.03}), -1) << "but small";
}

TEST(Triangles, HaveParallelSidesAmongTheFirstTwo) {
    const struct {
        Triangle other;
        int first, second;
        const char* why;
    } cases[] = {
        {{0, 0, 1, -1, 0, 1, 0, 1, 1}, 1, 1, ""},
        {{0, 0, 1, 1, 1, 1, 9, 1, 1}, 1, 2, ""},
        {{0, 0, 1, 0, 5, 1, 1, 1, 1}, 2, 1, ""},
        {{1, 0, 1, 0, 2, 1, 0, 5, 1}, 2, 2, ""},
        {{0, 0, 0, 1, 2, 0, -8, -6, 0}, 3, 3, "third sides are not tried"},
        {{0, 0, 0, 1, 0.00024, 0, 5, 5, 5}, 1, 1, "within the tolerance"},
        {{0, 0, 0, 1, 0.00026, 0, 5, 5, 5}, 3, 3, "beyond the tolerance"},
    };
    for (const auto& [other, first, second, why] : cases) {
        std::int32_t i, j;
        const auto found = lib::GEPSID(Triangle{0, 0, 0, 4, 0, 0, 4, 3, 0}, other, i, j);
        EXPECT_EQ(found, first == 3 ? 0 : -1) << why;
        EXPECT_EQ((std::array{i, j}), (std::array{first, second})) << why;
    }
}

TEST(Quadrilaterals, AreRectangularByTheCornersFromTheSecondOn) {
    const auto rectangular = [](const Plan<4>& q) { return lib::GERECT(on_surface(0.5, 1.1, q)); };
    EXPECT_EQ(rectangular({{{0, 0}, {0, 1}, {2, 1}, {2, 0}}}), -1);
    EXPECT_EQ(rectangular({{{0, 0}, {0.5, 1}, {2, 1}, {2, 0}}}), 0) << "oblique at 1 and 2";
    EXPECT_EQ(rectangular({{{-1, 0}, {0.6, 0.8}, {1, 0}, {0, -1}}}), 0) << "oblique at 1 and 3";
    EXPECT_EQ(rectangular({{{0.5, 0}, {0.5, 1}, {2, 1}, {2, 0.5}}}), 0) << "oblique at 1 and 4";
    const auto nearly = [](double dot) { return Quadrilateral{0, 0, 0, 0, 1, 0, 1, 1, 0, 1, dot}; };
    EXPECT_EQ(lib::GERECT(nearly(0.98e-6)), -1);
    EXPECT_EQ(lib::GERECT(nearly(-1.02e-6)), 0);
}

TEST(Quadrilaterals, InLocalCoordinatesAreThoseOfTheirSurface) {
    Random random(1);
    const Plan<4> window{{{1, 1}, {4, 1}, {4, 3}, {1, 3}}};
    for (int n = 0; n < 500; ++n) {
        const double azimuth = 6.3 * random.unit(), tilt = 3.0 * random.unit();
        Plan<4> other;
        for (auto& corner : other) corner = {10 * random.unit(), 10 * random.unit()};
        Quadrilateral local, local2;
        lib::GELCAL(on_surface(azimuth, tilt, window), on_surface(azimuth, tilt, other, 2.0), local,
                    local2);
        for (std::size_t k = 0; k < 4; ++k)
            for (std::size_t i = 0; i < 3; ++i) {
                EXPECT_NEAR(local[3 * k + i], i < 2 ? window[k][i] - 1 : 0.0, 1e-4);
                EXPECT_NEAR(local2[3 * k + i], i < 2 ? other[k][i] - 1 : 2.0, 1e-4);
            }
    }
}

}  // namespace
