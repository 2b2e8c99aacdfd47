#include "calculation/window/openness.h"

#include <cmath>
#include <numbers>

namespace quorvel::window {
namespace {

constexpr int rays = 8192;
constexpr double horizon_rise = 0.1132;  // sine of 6.5 degrees

using Point = std::array<double, 3>;

Point point(const Vector& v) { return {v[0], v[1], v[2]}; }
Point difference(const Point& a, const Point& b) { return {a[0] - b[0], a[1] - b[1], a[2] - b[2]}; }
double dot(const Point& a, const Point& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }
Point product(const Point& a, const Point& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

// A convex face as the half spaces whose common part of its plane it is.
class Target {
  public:
    explicit Target(const Polygon& polygon) : corner_(point(polygon[0])) {
        normal_ =
            product(difference(point(polygon[1]), corner_), difference(point(polygon[2]), corner_));
        for (std::size_t i = 0; i < polygon.size(); ++i) {
            const Point here = point(polygon[i]), next = point(polygon[(i + 1) % polygon.size()]);
            const Point inwards = product(normal_, difference(next, here));
            edges_.push_back({inwards, dot(inwards, here)});
        }
    }

    bool is_met(const Point& start, const Point& direction) const {
        const double speed = dot(normal_, direction);
        if (speed == 0) return false;
        const double t = dot(normal_, difference(corner_, start)) / speed;
        if (!(t > 0)) return false;
        const Point place{start[0] + t * direction[0], start[1] + t * direction[1],
                          start[2] + t * direction[2]};
        for (const auto& [inwards, least] : edges_)
            if (dot(inwards, place) < least) return false;
        return true;
    }

  private:
    struct Edge {
        Point inwards;
        double least;
    };
    Point corner_, normal_;
    std::vector<Edge> edges_;
};

// Points that fill the unit cube of four dimensions evenly, one after the other: multiples of
// powers of the root of x^5 = x + 1 (M. Roberts, The unreasonable effectiveness of quasirandom
// sequences, 2018).
std::array<double, 4> evenly_spread(int i) {
    constexpr double root = 1.1673039782614187;
    std::array<double, 4> place{};
    double step = 1;
    for (double& x : place) {
        step /= root;
        x = std::fmod(0.5 + step * i, 1.0);
    }
    return place;
}

// As often as light from everywhere would come from there.
Point direction(double u, double v) {
    const double r = std::sqrt(u), turn = 2 * std::numbers::pi * v;
    return {r * std::cos(turn), r * std::sin(turn), std::sqrt(1 - u)};
}

struct Count {
    int open = 0, all = 0;

    void add(bool is_open) {
        open += is_open;
        ++all;
    }
    double share() const { return all > 0 ? static_cast<double>(open) / all : 1; }
};

}  // namespace

Openness openness(const Scene& scene, double width, double height) {
    if (scene.faces().empty()) return {};
    std::vector<Target> targets;
    for (const Face& face : scene.faces()) targets.emplace_back(face.corners);
    Count sky, horizon, ground;
    for (int i = 1; i <= rays; ++i) {
        const auto [u, v, x, y] = evenly_spread(i);
        const Point start{x * width, y * height, 0}, ray = direction(u, v);
        bool open = true;
        for (const Target& target : targets) open = open && !target.is_met(start, ray);
        const double rise = static_cast<double>(scene.rise(vector(ray[0], ray[1], ray[2])));
        (rise > 0 ? sky : ground).add(open);
        if (rise > 0 && rise < horizon_rise) horizon.add(open);
    }
    return {sky.share(), horizon.share(), ground.share()};
}

}  // namespace quorvel::window
