// Vectors, the frames of surfaces, and projections onto planes.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

#include "conformance/random_arguments.h"
#include "quorvel/library.h"

namespace {

using quorvel::conformance::Random;

template <class T>
using Vec = std::array<T, 3>;
using Vec3 = Vec<float>;
using Matrix = std::array<float, 9>;

constexpr float pi = std::numbers::pi_v<float>;
constexpr float far = 1e20f;
constexpr Vec3 nowhere{far, far, far};

float dot(const Vec3& a, const Vec3& b) { return lib::GEDOTP(a, b); }
double dot(const Vec<double>& a, const Vec<double>& b) { return lib::GEDTDP(a, b); }
float length(const Vec3& a) { return lib::GEVMOD(a); }
double length(const Vec<double>& a) { return lib::GEVMDP(a); }
Vec3 cross(const Vec3& a, const Vec3& b) {
    Vec3 c;
    lib::GEXPRO(a, b, c);
    return c;
}
Vec<double> cross(const Vec<double>& a, const Vec<double>& b) {
    Vec<double> c;
    lib::GEXPDP(a, b, c);
    return c;
}

template <class T>
Vec<T> random_vector(Random& random, double size) {
    Vec<T> v;
    for (T& component : v) component = static_cast<T>(random.between(-size, size));
    return v;
}

template <class T>
class Vectors : public testing::Test {};
using Precisions = testing::Types<float, double>;
TYPED_TEST_SUITE(Vectors, Precisions);

TYPED_TEST(Vectors, ObeyTheIdentitiesOfTheirProducts) {
    using T = TypeParam;
    Random random(1);
    for (int i = 0; i < 10000; ++i) {
        const auto a = random_vector<T>(random, 10.0), b = random_vector<T>(random, 3.0);
        const auto c = random_vector<T>(random, 1.0), axb = cross(a, b);
        const T ab = length(a) * length(b), rounding = 4 * std::numeric_limits<T>::epsilon() * ab;
        EXPECT_EQ(dot(a, b), dot(b, a));
        EXPECT_NEAR(std::hypot(length(axb), dot(a, b)), ab, rounding);
        EXPECT_NEAR(dot(axb, a), T{0}, rounding * length(a));
        EXPECT_NEAR(dot(axb, b), T{0}, rounding * length(b));
        EXPECT_NEAR(dot(axb, c), dot(cross(b, c), a), rounding * length(c));
    }
    const Vec<T> x{1, 0, 0}, y{0, 1, 0}, z{0, 0, 1};
    EXPECT_EQ(cross(x, y), z);
    EXPECT_EQ(cross(y, z), x);
    EXPECT_EQ(cross(z, x), y);
    EXPECT_EQ(length(Vec<T>{2, -3, 6}), T{7});
}

struct Frame {
    Matrix axes, inverse;

    Frame(float azimuth, float tilt) { lib::GERSET(azimuth, tilt, axes, inverse); }

    Vec3 axis(std::size_t j) const { return {axes[3 * j], axes[3 * j + 1], axes[3 * j + 2]}; }
};

Vec3 rotated(const Vec3& p, const Matrix& r) {
    Vec3 q;
    lib::GERAXI(p, r, q);
    return q;
}

Vec3 rotated_back(const Vec3& p, const Matrix& r) {
    Vec3 q;
    lib::GERAX2(p, r, q);
    return q;
}

Vec3 direction_to(float altitude, float azimuth) {
    Vec3 s;
    lib::GESUNV(altitude, azimuth, s);
    return s;
}

void expect_near(const Vec3& a, const Vec3& b, float tolerance) {
    for (std::size_t i = 0; i < 3; ++i) EXPECT_NEAR(a[i], b[i], tolerance) << "component " << i;
}

TEST(SurfaceFrame, IsRightHandedAndLooksOutwards) {
    for (float azimuth = -7.0f; azimuth < 7.0f; azimuth += 0.21f)
        for (float tilt = 0.0f; tilt <= 3.14f; tilt += 0.17f) {
            const Frame frame(azimuth, tilt);
            expect_near(cross(frame.axis(0), frame.axis(1)), frame.axis(2), 1e-6f);
            expect_near(cross(frame.axis(1), frame.axis(2)), frame.axis(0), 1e-6f);
            // The clean-up moves a component by up to 1e-5.
            expect_near(frame.axis(2), direction_to(0.5f * pi - tilt, azimuth), 1.1e-5f);
            EXPECT_EQ(frame.axis(0)[2], 0.0f);
            EXPECT_GE(frame.axis(1)[2], 0.0f);
        }
    const Frame north_wall(0.0f, 0.5f * pi);
    EXPECT_EQ(north_wall.axes, (Matrix{-1, 0, 0, 0, 0, 1, 0, 1, 0}));
    EXPECT_EQ(north_wall.inverse, north_wall.axes);
    EXPECT_EQ(Frame(0.0f, 0.99e-5f).axis(2)[1], 0.0f);
    EXPECT_EQ(Frame(0.0f, 1.01e-5f).axis(2)[1], 1.01e-5f);
    EXPECT_EQ(Frame(-0.99e-5f, 0.0f).axis(0)[1], 0.0f);
    EXPECT_EQ(Frame(-1.01e-5f, 0.0f).axis(0)[1], -1.01e-5f);
}

TEST(SurfaceFrame, IsUndoneByItsInverseAndByItsTranspose) {
    Random random(2);
    for (int i = 0; i < 10000; ++i) {
        const Frame frame(random.real(0.0, 6.3), random.real(0.0, 3.14));
        const auto local = random_vector<float>(random, 10.0);
        const Vec3 global = rotated(local, frame.axes);
        expect_near(rotated_back(global, frame.axes), local, 2e-4f);
        expect_near(rotated(global, frame.inverse), local, 2e-5f);
        for (std::size_t row = 0; row < 3; ++row)
            for (std::size_t column = 0; column < 3; ++column)
                EXPECT_NEAR(frame.inverse[row + 3 * column], frame.axes[column + 3 * row], 2e-5f);
    }
    // Any matrix will do: rows of R are taken, or columns of it.
    const Matrix r{1, 2, 3, 4, 5, 6, 7, 8, 9};
    EXPECT_EQ(rotated({1, 10, 100}, r), (Vec3{741, 852, 963}));
    EXPECT_EQ(rotated_back({1, 10, 100}, r), (Vec3{321, 654, 987}));
}

TEST(BackAzimuth, OfAnglesAndOfNumbersThatAreNone) {
    const float cases[][2] = {{0, 270},        {90, 180},    {270, 0},
                              {280, 350},      {700, -70},   {-999.5f, 189.5f},
                              {999.5f, -9.5f}, {1000, 1000}, {-1000, -1000}};
    for (const auto& [angle, expected] : cases) EXPECT_EQ(lib::BORI(angle), expected) << angle;
    for (float angle = 0.0f; angle < 360.0f; angle += 0.5f)
        EXPECT_EQ(lib::BORI(lib::BORI(angle)), angle);
}

struct Projections {
    Vec3 any, forward, or_start;

    Projections(const Vec3& p0, const Vec3& normal, const Vec3& p, const Vec3& d) {
        lib::GEPROJ(p0, normal, p, d, any);
        lib::GEPROJ2(p0, normal, p, d, forward);
        lib::GEPROJ3(p0, normal, p, d, or_start);
    }
};

TEST(Projection, LiesInThePlaneAndInTheDirection) {
    Random random(3);
    int ahead = 0, behind = 0;
    for (int i = 0; i < 20000; ++i) {
        const auto p0 = random_vector<float>(random, 1.0), n = random_vector<float>(random, 1.0);
        const auto p = random_vector<float>(random, 10.0), d = random_vector<float>(random, 1.0);
        const float closing = dot(d, n) / (length(d) * length(n));
        const Vec3 offset{p0[0] - p[0], p0[1] - p[1], p0[2] - p[2]};
        const float t = dot(offset, n) / dot(d, n);
        // Away from a shallow angle and from the plane, where rounding decides.
        if (std::fabs(closing) < 0.2f || std::fabs(t) * length(d) < 8.0f) continue;
        const Projections x(p0, n, p, d);
        const Vec3 from_plane{x.any[0] - p0[0], x.any[1] - p0[1], x.any[2] - p0[2]};
        const Vec3 way{x.any[0] - p[0], x.any[1] - p[1], x.any[2] - p[2]};
        EXPECT_NEAR(dot(from_plane, n) / length(n), 0.0f, 1e-4f);
        EXPECT_NEAR(length(cross(way, d)) / length(d), 0.0f, 1e-4f);
        if (t < 0.0f) {
            EXPECT_EQ(x.forward, nowhere);
            EXPECT_EQ(x.or_start, p);
            ++behind;
        } else {
            EXPECT_EQ(x.forward, x.any);
            EXPECT_EQ(x.or_start, x.any);
            ++ahead;
        }
    }
    EXPECT_GT(ahead, 1000);
    EXPECT_GT(behind, 1000);
}

TEST(Projection, OfPointsInThePlaneAndOfParallelDirections) {
    const Vec3 origin{0, 0, 0}, up{0, 0, 1}, p{1, 2, 0}, above{1, 2, 3};
    const Projections in_plane(origin, up, p, {0, 0, -1});
    EXPECT_EQ(in_plane.any, p);
    EXPECT_EQ(in_plane.forward, nowhere);
    EXPECT_EQ(in_plane.or_start, p);
    const Projections level(origin, up, above, {1, 0, 0});
    EXPECT_EQ(level.any, nowhere);
    EXPECT_EQ(level.forward, nowhere);
    // Parallel is what closes by 1e-15 or less.
    const Vec3 high{0, 0, 1};
    const Projections nearly(origin, up, high, {0, 0, -0.99e-15f});
    EXPECT_EQ(nearly.any, nowhere);
    EXPECT_NEAR(Projections(origin, up, high, {0, 0, -1.01e-15f}).any[2], 0.0f, 1e-6f);
}

TEST(Projection, OrStartIsTheSameForANormalOfAnyLength) {
    // The direction of a window's plane but for rounding, as a sun at the zenith casts it, too.
    const Vec3 zenith{0, -4.3711388e-15f, 1}, point{0, 1, 0}, south{0, 0.25f, 0};
    EXPECT_EQ(Projections({0, 2, 0}, south, point, zenith).or_start, point);
    Random random(4);
    for (int i = 0; i < 20000; ++i) {
        const auto p0 = random_vector<float>(random, 1.0), p = random_vector<float>(random, 10.0);
        const auto d = random_vector<float>(random, 1.0);
        auto n = random_vector<float>(random, 1.0);
        const Vec3 expected = Projections(p0, n, p, d).or_start;
        for (float& component : n) component = std::ldexp(component, -60);
        EXPECT_EQ(Projections(p0, n, p, d).or_start, expected);
    }
    // Only what a division by zero makes stays as it is.
    const Vec3 level = Projections({0, 0, 0}, {0, 0, 1}, {1, 2, 3}, {1, 0, 0}).or_start;
    EXPECT_EQ(level[0], -std::numeric_limits<float>::infinity());
    EXPECT_TRUE(std::isnan(level[2]));
}

TEST(Projection, IsAheadOnlyWhenTheDirectionCanBeTold) {
    const Vec3 origin{0, 0, 0}, up{0, 0, 1}, high{0, 0, 1};
    EXPECT_EQ(Projections(origin, up, high, {0, 0, -1.01e-8f}).forward, origin);
    const Projections too_short(origin, up, high, {0, 0, -0.99e-8f});
    EXPECT_EQ(too_short.forward, nowhere);
    EXPECT_EQ(too_short.or_start, high);
    // The way of a millimetre to the plane, next to which x is large, is rounded by more than 1e-6.
    EXPECT_EQ(Projections(origin, up, {1000, 0, 0.001f}, {1, 0, -1}).forward, nowhere);
    EXPECT_NE(Projections(origin, up, {0, 0, 0.001f}, {1, 0, -1}).forward, nowhere);
}

}  // namespace
