// What stands between a window and sun, sky and ground: against endless plates, whose shadows and
// views are known, and against rays that are sent past boxes and plates in a way of their own.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

#include "calculation/angle.h"
#include "calculation/window/shading.h"
#include "quorvel/library.h"

namespace quorvel::window {
namespace {

class ShadingTest : public testing::Test {
  protected:
    static void SetUpTestSuite() { host::load_library(); }
};
using Sunlit = ShadingTest;
using OpennessTest = ShadingTest;

constexpr double endless = 50;  // m that make a plate as good as endless

Window window(double orientation, double tilt = 90, double width = 2, double height = 1.5,
              double sill = 1) {
    Window w{};
    w.orientation = orientation;
    w.tilt = tilt;
    w.width = width;
    w.height = height;
    w.sill = sill;
    w.area = width * height;
    return w;
}

host::Sun sun(double altitude, double azimuth) {
    return {host::radians(altitude), host::radians(azimuth), 0, 0, 0};
}

double left_of(double shadow, double size) {
    return 1 - std::min(std::max(shadow / size, 0.0), 1.0);
}

TEST_F(Sunlit, OfEndlessPlatesFollowsTheProfileAngles) {
    for (const double altitude : {15.0, 40.0, 65.0})
        for (const double aside : {-50.0, 0.0, 30.0}) {
            const double up = std::tan(host::radians(altitude)) / std::cos(host::radians(aside));
            const double left = std::tan(host::radians(aside));
            const auto fraction = [&](const Shades& shades) {
                Window w = window(200);
                w.shades = shades;
                return Shading(w).sunlit_fraction(sun(altitude, 200 + aside));
            };
            for (const double slope : {0.0, 25.0, -30.0}) {
                const double a = host::radians(slope);
                EXPECT_NEAR(fraction({0, {}, {}, Overhang{0.6, 0.1, endless, endless, slope}, {}}),
                            left_of(0.6 * (std::cos(a) * up + std::sin(a)) - 0.1, 1.5), 2e-3);
            }
            const Fin fin{0.5, 0.2, endless, endless};
            EXPECT_NEAR(fraction({0, fin, {}, {}, {}}), left_of(0.5 * left - 0.2, 2), 2e-3);
            EXPECT_NEAR(fraction({0, {}, fin, {}, {}}), left_of(-0.5 * left - 0.2, 2), 2e-3);
            EXPECT_NEAR(fraction({0.15, {}, {}, {}, {}}),
                        left_of(0.15 * up, 1.5) * left_of(0.15 * std::fabs(left), 2), 2e-3);
        }
}

// The sky is even over the height of the window: the integral of the sine of what an endless edge
// leaves.
TEST_F(OpennessTest, OfEndlessPlatesIsTheirViewFactor) {
    Window below = window(180);
    below.shades.overhang = Overhang{0.8, 0, endless, endless, 0};
    const Openness left = Shading(below).open();
    EXPECT_NEAR(left.sky, (std::hypot(1.5, 0.8) - 0.8) / 1.5, 0.006);
    EXPECT_EQ(left.ground, 1);
    EXPECT_GT(left.horizon, 0.95);

    Window opposite = window(180);
    opposite.shades.obstructions.push_back({"Wall", 10, 0, 1000, 0, 0, 9, 0});
    const double top = 9 - 1, foot = 1;
    const Openness rest = Shading(opposite).open();
    EXPECT_NEAR(rest.sky, 1 - (std::hypot(top, 10) - std::hypot(top - 1.5, 10)) / 1.5, 0.006);
    EXPECT_NEAR(rest.ground, 1 - (std::hypot(foot + 1.5, 10) - std::hypot(foot, 10)) / 1.5, 0.006);
    EXPECT_NEAR(rest.horizon, 0, 0.01);
}

using Point = std::array<double, 3>;

// Boxes by their slabs, upright: right, up and out of a vertical window at the same place.
class Rays {
  public:
    explicit Rays(const Window& w) : window_(w) {}

    bool is_open(const Point& p, const Point& d) const {
        const Shades& s = window_.shades;
        if (s.left_fin && meets_fin(*s.left_fin, -s.left_fin->offset, p, d)) return false;
        if (s.right_fin && meets_fin(*s.right_fin, window_.width + s.right_fin->offset, p, d))
            return false;
        if (s.overhang && meets_overhang(*s.overhang, p, d)) return false;
        for (const Obstruction& box : s.obstructions)
            if (meets_box(box, upright(p), upright(d))) return false;
        return true;
    }

    Point upright(const Point& p) const {
        const double slope = host::radians(window_.tilt);
        return {p[0], p[1] * std::sin(slope) + p[2] * std::cos(slope),
                p[2] * std::sin(slope) - p[1] * std::cos(slope)};
    }

    // Of a direction east, north, up.
    Point in_frame(const Point& v) const {
        const double facing = host::radians(window_.orientation),
                     slope = host::radians(window_.tilt);
        const double x = std::sin(facing), y = std::cos(facing);
        return {-y * v[0] + x * v[1],
                -(x * v[0] + y * v[1]) * std::cos(slope) + v[2] * std::sin(slope),
                (x * v[0] + y * v[1]) * std::sin(slope) + v[2] * std::cos(slope)};
    }

  private:
    bool meets_fin(const Fin& fin, double x, const Point& p, const Point& d) const {
        const double t = (x - p[0]) / d[0];
        const double y = p[1] + t * d[1], z = p[2] + t * d[2];
        return t > 0 && y >= -fin.below && y <= window_.height + fin.above && z <= fin.depth;
    }

    bool meets_overhang(const Overhang& o, const Point& p, const Point& d) const {
        const double a = host::radians(o.slope), y = p[1] - window_.height - o.offset;
        const double t =
            -(std::cos(a) * y + std::sin(a) * p[2]) / (std::cos(a) * d[1] + std::sin(a) * d[2]);
        const double x = p[0] + t * d[0],
                     along = -std::sin(a) * (y + t * d[1]) + std::cos(a) * (p[2] + t * d[2]);
        return t > 0 && x >= -o.left && x <= window_.width + o.right && along >= 0 &&
               along <= o.depth;
    }

    bool meets_box(const Obstruction& box, const Point& p, const Point& d) const {
        const double turn = host::radians(box.rotation), c = std::cos(turn), s = std::sin(turn);
        const double right = p[0] - window_.width / 2 - box.offset, out = p[2] - box.distance;
        const double starts[] = {right * c + out * s, out * c - right * s, p[1]};
        const double speeds[] = {d[0] * c + d[2] * s, d[2] * c - d[0] * s, d[1]};
        const double low[] = {-box.width / 2, 0, box.base - window_.sill};
        const double high[] = {box.width / 2, box.depth, box.top - window_.sill};
        double first = 0, last = 1e9;
        for (int i = 0; i < 3; ++i) {
            const double a = (low[i] - starts[i]) / speeds[i],
                         b = (high[i] - starts[i]) / speeds[i];
            first = std::max(first, std::min(a, b));
            last = std::min(last, std::max(a, b));
        }
        return first <= last;
    }

    const Window& window_;
};

Window random_scene(std::mt19937& source) {
    const auto between = [&](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(source);
    };
    Window w = window(between(0, 360), between(0, 1) < 0.5 ? 90 : between(20, 120), between(0.5, 3),
                      between(0.5, 3), between(0, 6));
    if (between(0, 1) < 0.6)
        w.shades.overhang = Overhang{between(0.1, 1.5), between(0, 0.4), between(0, 1),
                                     between(0, 1), between(-30, 40)};
    if (between(0, 1) < 0.5)
        w.shades.left_fin = Fin{between(0.1, 1), between(0, 0.4), between(0, 1), between(0, 1)};
    if (between(0, 1) < 0.5)
        w.shades.right_fin = Fin{between(0.1, 1), between(0, 0.4), between(0, 1), between(0, 1)};
    for (int i = 0; i < 3; ++i)
        w.shades.obstructions.push_back({"", between(3, 20), between(-12, 12), between(1, 15),
                                         between(0.1, 8), 0, between(2, 14), between(-60, 60)});
    return w;
}

TEST_F(Sunlit, AndOpenAreAsRaysSay) {
    std::mt19937 source(5);
    std::uniform_real_distribution<double> chance;
    for (int scene = 0; scene < 40; ++scene) {
        const Window w = random_scene(source);
        const Shading shading(w);
        const Rays rays(w);
        const auto anywhere = [&] {
            return Point{chance(source) * w.width, chance(source) * w.height, 0};
        };

        const host::Sun above = sun(10 + 60 * chance(source), 360 * chance(source));
        const Point towards = rays.in_frame({std::sin(above.azimuth) * std::cos(above.altitude),
                                             std::cos(above.azimuth) * std::cos(above.altitude),
                                             std::sin(above.altitude)});
        EXPECT_EQ(shading.bearing(above).before, towards[2] > 0.002);
        if (towards[2] > 0.01) {
            int open = 0;
            for (int i = 0; i < 4000; ++i) open += rays.is_open(anywhere(), towards);
            EXPECT_NEAR(shading.sunlit_fraction(above), open / 4000.0, 0.032) << scene;
        }

        int open[2] = {}, all[2] = {};
        for (int i = 0; i < 10000; ++i) {
            const double r = std::sqrt(chance(source)),
                         turn = 2 * std::numbers::pi * chance(source);
            const Point d{r * std::cos(turn), r * std::sin(turn), std::sqrt(1 - r * r)};
            const bool sky = rays.upright(d)[1] > 0;
            ++all[sky];
            open[sky] += rays.is_open(anywhere(), d);
        }
        const auto expect = [&](double share, bool sky) {
            const double n = all[sky];
            if (n > 500) {
                EXPECT_NEAR(share, open[sky] / n, 4 * 0.5 / std::sqrt(n) + 0.005) << scene;
            }
        };
        expect(shading.open().sky, true);
        expect(shading.open().ground, false);
    }
}

}  // namespace
}  // namespace quorvel::window
