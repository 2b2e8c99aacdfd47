#include "clipping/polygon_pairs.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "clipping/exact_overlap.h"

namespace quorvel::test {
namespace {

constexpr double full_turn = 2.0 * std::numbers::pi;

PlanPoint on_grid(double x, double y) {
    return {grid * std::round(x / grid), grid * std::round(y / grid)};
}

double distance(PlanPoint p, PlanPoint a, PlanPoint b) {
    const double x = b.x - a.x, y = b.y - a.y;
    const double along = ((p.x - a.x) * x + (p.y - a.y) * y) / (x * x + y * y);
    const double t = std::clamp(along, 0.0, 1.0);
    return std::hypot(p.x - a.x - t * x, p.y - a.y - t * y);
}

// Of every kind, from slender to round, but not so slender as to have no area to the library. What
// crosses itself has an overlap with itself that is not its area, since parts of it count twice or
// negative; that is seen where no vertex comes near an edge.
bool is_usable(const PlanRing& ring) {
    constexpr double least_area = 2e-4;  // m2: 14 mm square, beside tolerances up to 2 mm
    constexpr double least_width = 5e-5;
    const std::size_t n = ring.size();
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t j = i + 1; j + 1 < i + n; ++j)
            if (!(distance(ring[i], ring[j % n], ring[(j + 1) % n]) > least_width)) return false;
    const double area = n < 3 ? 0.0 : std::fabs(signed_area(ring));
    return area > least_area && std::fabs(rounded_overlap(ring, ring) - area) < 1e-10;
}

struct Radii {
    double low, high;
};

PlanRing star(int n, Radii radii, double x, double y, Random& random) {
    std::vector<double> angles;
    for (int i = 0; i < n; ++i) angles.push_back(random.between(0.0, full_turn));
    std::sort(angles.begin(), angles.end());
    PlanRing polygon;
    for (double angle : angles) {
        const double r = random.between(radii.low, radii.high);
        polygon.push_back(on_grid(x + r * std::cos(angle), y + r * std::sin(angle)));
    }
    return polygon;
}

// Some are convex, with all vertices on a circle.
PlanRing star(Random& random) {
    const double high = random.between(0.5, 2.5), low = random.below(3) ? 0.1 * high : high;
    const double x = random.between(-2, 2), y = random.between(-2, 2);
    return star(3 + random.below(9), {low, high}, x, y, random);
}

// All coordinates are multiples of 64 steps of the grid, so that each edge has grid points on it.
PlanRing coarsened(PlanRing ring) {
    constexpr double coarse = 64.0 * grid;
    for (PlanPoint& p : ring)
        p = {coarse * std::trunc(p.x / coarse), coarse * std::trunc(p.y / coarse)};
    return ring;
}

PlanPoint between(PlanPoint a, PlanPoint b, Random& random) {
    const double k = (1 + random.below(63)) / 64.0;
    return {a.x + k * (b.x - a.x), a.y + k * (b.y - a.y)};
}

RingPair stars(Random& random) { return {star(random), star(random)}; }

RingPair one_inside(Random& random) {
    const double x = random.between(-2, 2), y = random.between(-2, 2);
    const PlanRing outer = star(4 + random.below(6), {1.0, 2.5}, x, y, random);
    const double size = random.between(0.1, 0.6);
    const PlanRing inner = star(3 + random.below(6), {0.3 * size, size}, x, y, random);
    return {outer, inner};
}

// Some vertices are those of the other polygon, some lie on its edges; so edges coincide, wholly or
// in part, and one polygon's edge runs through the other's vertex.
RingPair touching(Random& random) {
    const PlanRing a = coarsened(star(random));
    const int rarity = 2 + random.below(4);
    PlanRing b;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (random.below(rarity) == 0) b.push_back(a[i]);
        if (random.below(rarity) == 0) b.push_back(between(a[i], a[(i + 1) % a.size()], random));
    }
    for (int extra = random.below(4); extra > 0; --extra) {
        const double x = random.between(-3, 3), y = random.between(-3, 3);
        b.push_back(on_grid(x, y));
    }
    return {a, b};
}

// Apart by up to a few tolerances, which are about 0.5 mm.
RingPair nearly_equal(Random& random) {
    const PlanRing a = star(random);
    PlanRing b = a;
    const auto shift = [&] { return grid * (random.below(801) - 400); };
    for (PlanPoint& p : b) p = {p.x + shift(), p.y + shift()};
    return {a, b};
}

}  // namespace

const std::vector<PairClass>& pair_classes() {
    static const std::vector<PairClass> classes = {
        {"StarShaped", stars},
        {"OneInsideTheOther", one_inside},
        {"Touching", touching},
        {"NearlyEqual", nearly_equal},
    };
    return classes;
}

void turn_about(RingPair& pair, Random& random) {
    for (PlanRing* const ring : {&pair.a, &pair.b}) {
        if (random.below(2)) std::ranges::reverse(*ring);
        std::ranges::rotate(*ring, ring->begin() + random.below(static_cast<int>(ring->size())));
    }
    if (random.below(2)) std::swap(pair.a, pair.b);
}

RingPair draw_pair(const PairClass& kind, Random& random) {
    for (;;) {
        RingPair pair = kind.draw(random);
        if (!is_usable(pair.a) || !is_usable(pair.b)) continue;
        turn_about(pair, random);
        return pair;
    }
}

double distance(const PlanRing& vertices, const PlanRing& edges) {
    double least = std::numeric_limits<double>::infinity();
    for (const PlanPoint& vertex : vertices)
        for (std::size_t i = 0; i < edges.size(); ++i)
            least = std::min(least, distance(vertex, edges[i], edges[(i + 1) % edges.size()]));
    return least;
}

}  // namespace quorvel::test
