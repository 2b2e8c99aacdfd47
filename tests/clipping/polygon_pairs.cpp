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

PlanRing star(Random& random) {
    return star(3 + random.below(7), {0.2, 2.5}, random.between(-2, 2), random.between(-2, 2),
                random);
}

PlanRing convex(Random& random) {
    const double r = random.between(0.5, 2.5);
    return star(3 + random.below(9), {r, r}, random.between(-2, 2), random.between(-2, 2), random);
}

PlanPoint vertex_of(const PlanRing& polygon, Random& random) {
    return polygon[static_cast<std::size_t>(random.below(static_cast<int>(polygon.size())))];
}

// All coordinates are multiples of 64 steps of the grid, so that each edge has grid points on it.
PlanRing coarsened(PlanRing ring) {
    constexpr double coarse = 64.0 * grid;
    for (PlanPoint& p : ring)
        p = {coarse * std::trunc(p.x / coarse), coarse * std::trunc(p.y / coarse)};
    return ring;
}

PlanPoint on_an_edge(const PlanRing& coarse, Random& random) {
    const auto i = static_cast<std::size_t>(random.below(static_cast<int>(coarse.size())));
    const PlanPoint a = coarse[i], b = coarse[(i + 1) % coarse.size()];
    const double k = (1 + random.below(63)) / 64.0;
    return {a.x + k * (b.x - a.x), a.y + k * (b.y - a.y)};
}

PlanRing shifted(PlanRing polygon, PlanPoint from, PlanPoint to) {
    for (PlanPoint& p : polygon) p = {p.x - from.x + to.x, p.y - from.y + to.y};
    return polygon;
}

RingPair stars(Random& random) { return {star(random), star(random)}; }

RingPair convex_ones(Random& random) { return {convex(random), convex(random)}; }

RingPair one_inside(Random& random) {
    const double x = random.between(-2, 2), y = random.between(-2, 2);
    const PlanRing outer = star(4 + random.below(6), {1.0, 2.5}, x, y, random);
    const double size = random.between(0.1, 0.6);
    const PlanRing inner = star(3 + random.below(6), {0.3 * size, size}, x, y, random);
    return {outer, inner};
}

RingPair vertex_on_edge(Random& random) {
    const PlanRing a = coarsened(star(random)), b = star(random);
    return {a, shifted(b, vertex_of(b, random), on_an_edge(a, random))};
}

RingPair vertex_on_vertex(Random& random) {
    const PlanRing a = star(random), b = star(random);
    return {a, shifted(b, vertex_of(b, random), vertex_of(a, random))};
}

RingPair shared_edge(Random& random) {
    const PlanRing a = star(random);
    const auto i = static_cast<std::size_t>(random.below(static_cast<int>(a.size())));
    PlanRing b{a[i], a[(i + 1) % a.size()]};
    for (int extra = 1 + random.below(3); extra > 0; --extra)
        b.push_back(on_grid(random.between(-3, 3), random.between(-3, 3)));
    return {a, b};
}

RingPair shared_vertices(Random& random) {
    const PlanRing a = random.below(2) ? star(random) : convex(random);
    PlanRing b;
    for (const PlanPoint& p : a)
        if (random.below(3)) b.push_back(p);
    for (int extra = random.below(3); extra > 0; --extra)
        b.push_back(on_grid(random.between(-3, 3), random.between(-3, 3)));
    return {a, b};
}

RingPair partly_shared_edges(Random& random) {
    const PlanRing a = coarsened(star(random));
    PlanRing b;
    for (int n = 3 + random.below(3); n > 0; --n) b.push_back(on_an_edge(a, random));
    return {a, b};
}

RingPair edge_through_vertex(Random& random) {
    const PlanRing a = star(random);
    const PlanPoint v = vertex_of(a, random),
                    d = on_grid(random.between(-3, 3), random.between(-3, 3));
    PlanRing b{{v.x - d.x, v.y - d.y}, {v.x + d.x, v.y + d.y}};
    for (int extra = 1 + random.below(3); extra > 0; --extra)
        b.push_back(on_grid(random.between(-4, 4), random.between(-4, 4)));
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
        {"Convex", convex_ones},
        {"OneInsideTheOther", one_inside},
        {"VertexOnEdge", vertex_on_edge},
        {"VertexOnVertex", vertex_on_vertex},
        {"SharedEdge", shared_edge},
        {"SharedVertices", shared_vertices},
        {"PartlySharedEdges", partly_shared_edges},
        {"EdgeThroughVertex", edge_through_vertex},
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
