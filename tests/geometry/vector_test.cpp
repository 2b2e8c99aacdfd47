// Vectors, the axes of surfaces, and projections onto planes.
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
void cross(const Vec3& a, const Vec3& b, Vec3& c) { lib::GEXPRO(a, b, c); }
void cross(const Vec<double>& a, const Vec<double>& b, Vec<double>& c) { lib::GEXPDP(a, b, c); }
template <class T>
Vec<T> cross(const Vec<T>& a, const Vec<T>& b) {
    Vec<T> c;
    cross(a, b, c);
    return c;
}

template <class T>
Vec<T> random_vector(Random& random, double size) {
    Vec<T> v;
    for (T& component : v) component = static_cast<T>(random.between(-size, size));
    return v;
}

template <class T>
void obeys_the_identities_of_products() {
    Random random(1);
    for (int i = 0; i < 10000; ++i) {
        const auto a = random_vector<T>(random, 10.0), b = random_vector<T>(random, 3.0);
        const auto c = random_vector<T>(random, 1.0), axb = cross(a, b);
        const T ab = length(a) * length(b), rounding = 4 * std::numeric_limits<T>::epsilon() * ab;
        EXPECT_NEAR(std::hypot(length(axb), dot(a, b)), ab, rounding);
        EXPECT_NEAR(dot(axb, a), T{0}, rounding * length(a));
        EXPECT_NEAR(dot(axb, c), dot(cross(b, c), a), rounding * length(c));
    }
    EXPECT_EQ(cross(Vec<T>{1, 0, 0}, Vec<T>{0, 1, 0}), (Vec<T>{0, 0, 1}));
    EXPECT_EQ(length(Vec<T>{2, -3, 6}), T{7});
}

TEST(Vectors, ObeyTheIdentitiesOfTheirProducts) {
    obeys_the_identities_of_products<float>();
    obeys_the_identities_of_products<double>();
}

struct Axes {
    Matrix axes, inverse;

    Axes(float azimuth, float tilt) { lib::GERSET(azimuth, tilt, axes, inverse); }

    Vec3 operator[](std::size_t j) const { return {axes[3 * j], axes[3 * j + 1], axes[3 * j + 2]}; }
};

void expect_near(const Vec3& a, const Vec3& b, float tolerance) {
    for (std::size_t i = 0; i < 3; ++i) EXPECT_NEAR(a[i], b[i], tolerance) << "component " << i;
}

TEST(SurfaceAxes, AreRightHandedAndLookOutwards) {
    for (float azimuth = -7.0f; azimuth < 7.0f; azimuth += 0.21f)
        for (float tilt = 0.0f; tilt <= 3.14f; tilt += 0.17f) {
            const Axes axes(azimuth, tilt);
            Vec3 outwards;
            lib::GESUNV(0.5f * pi - tilt, azimuth, outwards);
            // The clean-up moves a component by up to 1e-5.
            expect_near(axes[2], outwards, 1.1e-5f);
            expect_near(cross(axes[0], axes[1]), axes[2], 1e-6f);
            expect_near(cross(axes[1], axes[2]), axes[0], 1e-6f);
            EXPECT_EQ(axes[0][2], 0.0f);
            EXPECT_GE(axes[1][2], 0.0f);
        }
    const Axes north_wall(0.0f, 0.5f * pi);
    EXPECT_EQ(north_wall.axes, (Matrix{-1, 0, 0, 0, 0, 1, 0, 1, 0}));
    EXPECT_EQ(Axes(0.0f, 0.99e-5f)[2][1], 0.0f);
    EXPECT_EQ(Axes(0.0f, 1.01e-5f)[2][1], 1.01e-5f);
    EXPECT_EQ(Axes(-0.99e-5f, 0.0f)[0][1], 0.0f);
}

TEST(SurfaceAxes, AreUndoneByTheirInverseAndByTheirTranspose) {
    Random random(2);
    const auto rotated = [](const Vec3& p, const Matrix& r, auto by) {
        Vec3 q;
        by(p, r, q);
        return q;
    };
    for (int i = 0; i < 10000; ++i) {
        const Axes axes(random.real(0.0, 6.3), random.real(0.0, 3.14));
        const auto local = random_vector<float>(random, 10.0);
        const Vec3 global = rotated(local, axes.axes, lib::GERAXI);
        expect_near(rotated(global, axes.axes, lib::GERAX2), local, 2e-4f);
        expect_near(rotated(global, axes.inverse, lib::GERAXI), local, 2e-5f);
    }
    // Any matrix will do: rows of it are taken, or columns.
    const Matrix r{1, 2, 3, 4, 5, 6, 7, 8, 9};
    EXPECT_EQ(rotated({1, 10, 100}, r, lib::GERAXI), (Vec3{741, 852, 963}));
    EXPECT_EQ(rotated({1, 10, 100}, r, lib::GERAX2), (Vec3{321, 654, 987}));
}

TEST(BackAzimuth, OfAnglesAndOfNumbersThatAreNone) {
    const float cases[][2] = {{0, 270},        {700, -70},   {-999.5f, 189.5f},
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
    int counts[2] = {};
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
        EXPECT_EQ(x.forward, t < 0.0f ? nowhere : x.any);
        EXPECT_EQ(x.or_start, t < 0.0f ? p : x.any);
        ++counts[t < 0.0f];
    }
    EXPECT_GT(counts[0], 1000);
    EXPECT_GT(counts[1], 1000);
}

TEST(Projection, OntoTheLevelPlaneOfTellingPoints) {
    const Vec3 origin{0, 0, 0}, high{0, 0, 1}, inside{1, 2, 0};
    const struct {
        Vec3 p, d, any, forward, or_start;
        const char* why;
    } cases[] = {
        {inside, {0, 0, -1}, inside, nowhere, inside, "no direction to the point itself"},
        {high, {0, 0, -1.01e-15f}, origin, nowhere, high, "closes by more than 1e-15"},
        {high, {0, 0, -0.99e-15f}, nowhere, nowhere, origin, "counts as parallel, and is divided"},
        {high, {0, 0, -1.01e-8f}, origin, origin, origin, "long enough to tell the direction"},
        {high, {0, 0, -0.99e-8f}, origin, nowhere, high, "too short"},
    };
    for (const auto& [p, d, any, forward, or_start, why] : cases) {
        const Projections x(origin, {0, 0, 1}, p, d);
        EXPECT_EQ(x.any, any) << why;
        EXPECT_EQ(x.forward, forward) << why;
        EXPECT_EQ(x.or_start, or_start) << why;
    }
    // The way of a millimetre to the plane, next to which x is large, is rounded by more than 1e-6.
    EXPECT_EQ(Projections(origin, high, {1000, 0, 0.001f}, {1, 0, -1}).forward, nowhere);
    EXPECT_NE(Projections(origin, high, {0, 0, 0.001f}, {1, 0, -1}).forward, nowhere);
}

}  // namespace
