// Vectors, the axes of surfaces, and projections onto planes.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

#include "conformance/random_arguments.h"
#include "quorvel/geometry.h"

namespace {

using quorvel::conformance::Random;

template <class T>
using Vec = std::array<T, 3>;
using Vec3 = Vec<float>;
using Matrix = std::array<float, 9>;

constexpr float pi = std::numbers::pi_v<float>;
constexpr float far = 1e20f;
constexpr Vec3 nowhere{far, far, far};

template <class T>
Vec<T> random_vector(Random& random, double size) {
    Vec<T> v;
    for (T& component : v) component = static_cast<T>(random.between(-size, size));
    return v;
}

void expect_near(const Vec3& a, const Vec3& b, float tolerance) {
    for (std::size_t i = 0; i < 3; ++i) EXPECT_NEAR(a[i], b[i], tolerance) << "component " << i;
}

template <class T>
void expect_identities(auto dot, auto cross, auto length) {
    Random random(1);
    for (int i = 0; i < 10000; ++i) {
        const auto a = random_vector<T>(random, 10.0), b = random_vector<T>(random, 3.0);
        const auto c = random_vector<T>(random, 1.0);
        const T ab = length(a) * length(b), rounding = 4 * std::numeric_limits<T>::epsilon() * ab;
        Vec<T> axb, bxc;
        cross(a, b, axb);
        cross(b, c, bxc);
        EXPECT_NEAR(std::hypot(length(axb), dot(a, b)), ab, rounding);
        EXPECT_NEAR(dot(axb, a), T{0}, rounding * length(a));
        EXPECT_NEAR(dot(axb, c), dot(bxc, a), rounding * length(c));
    }
}

TEST(Vectors, ObeyTheIdentitiesOfTheirProducts) {
    expect_identities<float>(lib::GEDOTP, lib::GEXPRO, lib::GEVMOD);
    expect_identities<double>(lib::GEDTDP, lib::GEXPDP, lib::GEVMDP);
}

struct Axes {
    Matrix axes, inverse;

    Axes(float azimuth, float tilt) { lib::GERSET(azimuth, tilt, axes, inverse); }

    Vec3 operator[](std::size_t j) const { return {axes[3 * j], axes[3 * j + 1], axes[3 * j + 2]}; }
};

TEST(SurfaceAxes, AreRightHandedAndLookOutwards) {
    for (float azimuth = -7.0f; azimuth < 7.0f; azimuth += 0.21f)
        for (float tilt = 0.0f; tilt <= 3.14f; tilt += 0.17f) {
            const Axes axes(azimuth, tilt);
            Vec3 outwards;
            lib::GESUNV(0.5f * pi - tilt, azimuth, outwards);
            // The clean-up moves a component by up to 1e-5.
            expect_near(axes[2], outwards, 1.1e-5f);
            Vec3 z;
            lib::GEXPRO(axes[0], axes[1], z);
            expect_near(axes[2], z, 1e-6f);
            EXPECT_EQ(axes[0][2], 0.0f);
            EXPECT_GE(axes[1][2], 0.0f);
        }
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
        const Axes axes{random.real(0.0, 6.3), random.real(0.0, 3.14)};
        const auto local = random_vector<float>(random, 10.0);
        const Vec3 global = rotated(local, axes.axes, lib::GERAXI);
        expect_near(rotated(global, axes.axes, lib::GERAX2), local, 2e-4f);
        expect_near(rotated(global, axes.inverse, lib::GERAXI), local, 2e-5f);
    }
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

TEST(Projection, IsTheStartMovedInTheDirection) {
    Random random(3);
    int counts[2] = {};
    for (int i = 0; i < 20000; ++i) {
        const auto n = random_vector<float>(random, 1.0), d = random_vector<float>(random, 1.0);
        const auto p = random_vector<float>(random, 10.0);
        const float t = random.real(-20.0, 20.0), closing = lib::GEDOTP(d, n);
        // Away from a shallow angle and from the plane, where rounding decides.
        if (std::fabs(closing) < 0.2f || std::fabs(t) < 8.0f) continue;
        Vec3 expected, p0;
        for (std::size_t k = 0; k < 3; ++k) expected[k] = p[k] + t * d[k];
        lib::GEXPRO(n, random_vector<float>(random, 1.0), p0);  // in the plane, from there
        for (std::size_t k = 0; k < 3; ++k) p0[k] += expected[k];
        const Projections x(p0, n, p, d);
        expect_near(x.any, expected, 1e-4f);
        EXPECT_EQ(x.forward, t < 0.0f ? nowhere : x.any);
        EXPECT_EQ(x.or_start, t < 0.0f ? p : x.any);
        ++counts[t < 0.0f];
    }
    EXPECT_GT(counts[0], 1000);
    EXPECT_GT(counts[1], 1000);
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

TEST(Projection, OntoTheLevelPlaneOfTellingPoints) {
    const Vec3 origin{0, 0, 0}, high{0, 0, 1}, inside{1, 2, 0};
    const struct {
        Vec3 p, d, any, forward, or_start;
        const char* why;
    } cases[] = {
        {inside, {0, 0, -1}, inside, nowhere, inside, "no direction to the point itself"},
        {high, {0, 0, -1.01e-15f}, origin, nowhere, high, "closes by more than 1e-15"},
        {high, {0, 0, -0.99e-15f}, nowhere, nowhere, high, "counts as parallel"},
        {high, {0, 0, -1.01e-8f}, origin, origin, origin, "long enough to tell the direction"},
        {high, {0, 0, -0.99e-8f}, origin, nowhere, high, "too short"},
    };
    for (const auto& [p, d, any, forward, or_start, why] : cases) {
        const Projections x(origin, {0, 0, 1}, p, d);
        EXPECT_EQ(x.any, any) << why;
        EXPECT_EQ(x.forward, forward) << why;
        EXPECT_EQ(x.or_start, or_start) << why;
    }
    // The way of a millimetre to the plane, next to which x is large, is rounded by some 1e-5.
    EXPECT_EQ(Projections(origin, high, {1, 0, 0.001f}, {1, 0, -1}).forward, nowhere);
    EXPECT_NE(Projections(origin, high, {0, 0, 0.001f}, {1, 0, -1}).forward, nowhere);
}

}  // namespace
