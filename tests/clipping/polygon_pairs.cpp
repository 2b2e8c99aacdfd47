#include "clipping/polygon_pairs.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace quorvel::test {
namespace {

constexpr double full_turn = 2.0 * std::numbers::pi;

GridPoint on_grid(double x, double y) { return {std::llround(x / grid), std::llround(y / grid)}; }

std::int64_t cross(GridPoint a, GridPoint b, GridPoint c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

int side(GridPoint a, GridPoint b, GridPoint c) {
    const std::int64_t product = cross(a, b, c);
    return (product > 0) - (product < 0);
}

bool in_box(GridPoint a, GridPoint b, GridPoint p) {
    return std::min(a.x, b.x) <= p.x && p.x <= std::max(a.x, b.x) && std::min(a.y, b.y) <= p.y &&
           p.y <= std::max(a.y, b.y);
}

bool meet(GridPoint a, GridPoint b, GridPoint c, GridPoint d) {
    const int abc = side(a, b, c), abd = side(a, b, d), cda = side(c, d, a), cdb = side(c, d, b);
    if (abc * abd < 0 && cda * cdb < 0) return true;
    return (!abc && in_box(a, b, c)) || (!abd && in_box(a, b, d)) || (!cda && in_box(c, d, a)) ||
           (!cdb && in_box(c, d, b));
}

// No edges meet but neighbours, and these in their common vertex alone.
bool is_simple(const GridPolygon& polygon) {
    const std::size_t n = polygon.size();
    const auto at = [&](std::size_t i) { return polygon[i % n]; };
    for (std::size_t i = 0; i < n; ++i) {
        if (at(i) == at(i + 1)) return false;
        const bool folded =
            !side(at(i), at(i + 1), at(i + 2)) &&
            (in_box(at(i), at(i + 1), at(i + 2)) || in_box(at(i + 1), at(i + 2), at(i)));
        if (folded) return false;
        for (std::size_t j = i + 2; j < n; ++j)
            if ((j + 1) % n != i && meet(at(i), at(i + 1), at(j), at(j + 1))) return false;
    }
    return true;
}

std::int64_t doubled_area(const GridPolygon& polygon) {
    std::int64_t sum = 0;
    for (std::size_t i = 1; i + 1 < polygon.size(); ++i)
        sum += cross(polygon[0], polygon[i], polygon[i + 1]);
    return std::abs(sum);
}

// Of every kind, from slender to round, but not so slender as to have no area to the library.
bool is_usable(const GridPolygon& polygon) {
    constexpr double least_area = 2e-4;  // m2: 14 mm square, beside tolerances up to 2 mm
    return is_simple(polygon) &&
           static_cast<double>(doubled_area(polygon)) * grid * grid > 2.0 * least_area;
}

struct Radii {
    double low, high;
};

GridPolygon star(int n, Radii radii, double x, double y, Random& random) {
    std::vector<double> angles;
    for (int i = 0; i < n; ++i) angles.push_back(random.between(0.0, full_turn));
    std::sort(angles.begin(), angles.end());
    GridPolygon polygon;
    for (double angle : angles) {
        const double r = random.between(radii.low, radii.high);
        polygon.push_back(on_grid(x + r * std::cos(angle), y + r * std::sin(angle)));
    }
    return polygon;
}

GridPolygon star(Random& random) {
    return star(3 + random.below(7), {0.2, 2.5}, random.between(-2, 2), random.between(-2, 2),
                random);
}

GridPolygon convex(Random& random) {
    const double r = random.between(0.5, 2.5);
    return star(3 + random.below(9), {r, r}, random.between(-2, 2), random.between(-2, 2), random);
}

GridPoint vertex_of(const GridPolygon& polygon, Random& random) {
    return polygon[static_cast<std::size_t>(random.below(static_cast<int>(polygon.size())))];
}

// All coordinates are multiples of 64 steps of the grid, so that each edge has grid points on it.
GridPolygon coarsened(GridPolygon polygon) {
    for (GridPoint& p : polygon) p = {p.x / 64 * 64, p.y / 64 * 64};
    return polygon;
}

GridPoint on_an_edge(const GridPolygon& coarse, Random& random) {
    const auto i = static_cast<std::size_t>(random.below(static_cast<int>(coarse.size())));
    const GridPoint a = coarse[i], b = coarse[(i + 1) % coarse.size()];
    const int k = 1 + random.below(63);
    return {a.x + (b.x - a.x) / 64 * k, a.y + (b.y - a.y) / 64 * k};
}

GridPolygon shifted(GridPolygon polygon, GridPoint from, GridPoint to) {
    for (GridPoint& p : polygon) p = {p.x - from.x + to.x, p.y - from.y + to.y};
    return polygon;
}

PolygonPair stars(Random& random) { return {star(random), star(random)}; }

PolygonPair convex_ones(Random& random) { return {convex(random), convex(random)}; }

PolygonPair one_inside(Random& random) {
    const double x = random.between(-2, 2), y = random.between(-2, 2);
    const GridPolygon outer = star(4 + random.below(6), {1.0, 2.5}, x, y, random);
    const double size = random.between(0.1, 0.6);
    const GridPolygon inner = star(3 + random.below(6), {0.3 * size, size}, x, y, random);
    return random.below(2) ? PolygonPair{outer, inner} : PolygonPair{inner, outer};
}

PolygonPair vertex_on_edge(Random& random) {
    const GridPolygon a = coarsened(star(random)), b = star(random);
    PolygonPair pair{a, shifted(b, vertex_of(b, random), on_an_edge(a, random))};
    if (random.below(2)) std::swap(pair.a, pair.b);
    return pair;
}

PolygonPair vertex_on_vertex(Random& random) {
    const GridPolygon a = star(random), b = star(random);
    return {a, shifted(b, vertex_of(b, random), vertex_of(a, random))};
}

PolygonPair shared_edge(Random& random) {
    const GridPolygon a = star(random);
    const auto i = static_cast<std::size_t>(random.below(static_cast<int>(a.size())));
    GridPolygon b{a[i], a[(i + 1) % a.size()]};
    for (int extra = 1 + random.below(3); extra > 0; --extra)
        b.push_back(on_grid(random.between(-3, 3), random.between(-3, 3)));
    return {a, b};
}

PolygonPair shared_vertices(Random& random) {
    const GridPolygon a = random.below(2) ? star(random) : convex(random);
    GridPolygon b;
    for (const GridPoint& p : a)
        if (random.below(3)) b.push_back(p);
    for (int extra = random.below(3); extra > 0; --extra)
        b.push_back(on_grid(random.between(-3, 3), random.between(-3, 3)));
    return {a, b};
}

PolygonPair partly_shared_edges(Random& random) {
    const GridPolygon a = coarsened(star(random));
    GridPolygon b;
    for (int n = 3 + random.below(3); n > 0; --n) b.push_back(on_an_edge(a, random));
    return {a, b};
}

PolygonPair edge_through_vertex(Random& random) {
    const GridPolygon a = star(random);
    const GridPoint v = vertex_of(a, random),
                    d = on_grid(random.between(-3, 3), random.between(-3, 3));
    GridPolygon b{{v.x - d.x, v.y - d.y}, {v.x + d.x, v.y + d.y}};
    for (int extra = 1 + random.below(3); extra > 0; --extra)
        b.push_back(on_grid(random.between(-4, 4), random.between(-4, 4)));
    return {a, b};
}

PolygonPair equal_ones(Random& random) {
    const GridPolygon a = star(random);
    return {a, a};
}

// Apart by up to a few tolerances, which are about 0.5 mm.
PolygonPair nearly_equal(Random& random) {
    const GridPolygon a = star(random);
    GridPolygon b = a;
    for (GridPoint& p : b) p = {p.x + random.below(801) - 400, p.y + random.below(801) - 400};
    return {a, b};
}

void turn_about(GridPolygon& polygon, Random& random) {
    if (random.below(2)) std::reverse(polygon.begin(), polygon.end());
    std::rotate(polygon.begin(), polygon.begin() + random.below(static_cast<int>(polygon.size())),
                polygon.end());
}

double length(double x, double y) { return grid * std::sqrt(x * x + y * y); }

double distance(GridPoint p, GridPoint a, GridPoint b) {
    const auto x = static_cast<double>(b.x - a.x), y = static_cast<double>(b.y - a.y);
    const auto px = static_cast<double>(p.x - a.x), py = static_cast<double>(p.y - a.y);
    const double along = std::clamp((px * x + py * y) / (x * x + y * y), 0.0, 1.0);
    return length(px - along * x, py - along * y);
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
        {"Equal", equal_ones},
        {"NearlyEqual", nearly_equal},
    };
    return classes;
}

PolygonPair draw_pair(const PairClass& kind, Random& random) {
    for (;;) {
        PolygonPair pair = kind.draw(random);
        if (pair.a.size() < 3 || pair.b.size() < 3 || !is_usable(pair.a) || !is_usable(pair.b))
            continue;
        turn_about(pair.a, random);
        turn_about(pair.b, random);
        return pair;
    }
}

PlanRing in_metres(const GridPolygon& polygon) {
    PlanRing ring;
    for (const GridPoint& p : polygon)
        ring.push_back({grid * static_cast<double>(p.x), grid * static_cast<double>(p.y)});
    return ring;
}

double narrowest(const GridPolygon& polygon) {
    const std::size_t n = polygon.size();
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t j = i + 1; j + 1 < i + n; ++j)
            least = std::min(least, distance(polygon[i], polygon[j % n], polygon[(j + 1) % n]));
    return least;
}

double distance(const GridPolygon& vertices, const GridPolygon& edges) {
    double least = std::numeric_limits<double>::infinity();
    for (const GridPoint& vertex : vertices)
        for (std::size_t i = 0; i < edges.size(); ++i)
            least = std::min(least, distance(vertex, edges[i], edges[(i + 1) % edges.size()]));
    return least;
}

}  // namespace quorvel::test
